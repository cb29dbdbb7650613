// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaDefs.h>

#include <string.h>


void
media_format::Clear()
{
	type = B_MEDIA_UNKNOWN_TYPE;
	memset(&u, 0, sizeof(u));
}
