// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRANSLATION_DEFS_H
#define TRANSLATION_DEFS_H

#include <SupportDefs.h>


typedef unsigned long translator_id;

struct translator_info {
	uint32 type;
	translator_id translator;
	uint32 group;
	float quality;
	float capability;
	char name[251];
	char MIME[251];
};

#endif // TRANSLATION_DEFS_H
