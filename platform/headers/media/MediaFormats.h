// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_FORMATS_H
#define MEDIA_FORMATS_H

#include <MediaDefs.h>


struct media_codec_info {
	char pretty_name[96];
	char short_name[32];
	int32 id;
	int32 sub_id;
};

#endif // MEDIA_FORMATS_H
