// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BITMAP_CONVERT_H
#define BITMAP_CONVERT_H

#include <stddef.h>

#include <GraphicsDefs.h>


namespace hosted {

// Whether pixels of the color space can be read, and bitmaps of it made.
bool IsReadable(color_space space);
bool IsDrawable(color_space space);

// The bits of one pixel, 0 if the color space is not known.
int32 BitsPerPixel(color_space space);

struct ConstRows {
	const uint8* data;
	// From the first byte on.
	size_t length;
	int32 bytesPerRow;
	color_space space;
	// Where in each row the first pixel is.
	int32 firstColumn = 0;
};

struct Rows {
	uint8* data;
	size_t length;
	int32 bytesPerRow;
	color_space space;
	int32 firstColumn = 0;
};

// Copies and converts, as far as either side's bytes reach.
void ConvertPixels(const ConstRows& from, const Rows& to, int32 width, int32 height);

} // namespace hosted

#endif // BITMAP_CONVERT_H
