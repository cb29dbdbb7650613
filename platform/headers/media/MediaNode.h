// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_NODE_H
#define MEDIA_NODE_H

#include <MediaDefs.h>


// Names a part of the sound system. The roster fills it; until then it names none.
struct media_node {
	media_node_id node = -1;
};

#endif // MEDIA_NODE_H
