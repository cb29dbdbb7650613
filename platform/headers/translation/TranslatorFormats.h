// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRANSLATOR_FORMATS_H
#define TRANSLATOR_FORMATS_H

#include <GraphicsDefs.h>
#include <Rect.h>
#include <TranslationDefs.h>


// The kinds of data that translators turn into each other.
enum TranslatorGroups {
	B_TRANSLATOR_BITMAP = 'bits',
	B_TRANSLATOR_TEXT = 'TEXT',
	B_TRANSLATOR_NONE = 'none',
};

enum {
	B_TRANSLATOR_ANY_TYPE = 0,
};

// Formats that have a code of their own.
enum {
	B_GIF_FORMAT = 'GIF ',
	B_JPEG_FORMAT = 'JPEG',
	B_PNG_FORMAT = 'PNG ',
};

// What a picture in the form 'bits' begins with, every number in big endian order; the rows of
// pixels follow.
struct TranslatorBitmap {
	uint32 magic; // B_TRANSLATOR_BITMAP
	BRect bounds;
	uint32 rowBytes;
	color_space colors;
	uint32 dataSize; // rowBytes times the number of rows
};

#endif // TRANSLATOR_FORMATS_H
