// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRANSLATION_UTILS_H
#define TRANSLATION_UTILS_H

#include <SupportDefs.h>

class BBitmap;
struct entry_ref;


class BTranslationUtils {
public:
	// The picture in a file, which the caller owns; null if there is none that can be read.
	static BBitmap* GetBitmap(const char* path);
	static BBitmap* GetBitmap(const entry_ref* ref);
};

#endif // TRANSLATION_UTILS_H
