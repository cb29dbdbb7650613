// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Conversion between color spaces.
#include "platform/interface/BitmapConvert.h"

#include <algorithm>
#include <string.h>

#include "platform/interface/Palette.h"


namespace hosted {

namespace {

constexpr uint32 kOpaque = 0xff000000;

uint32
make_pixel(uint32 red, uint32 green, uint32 blue)
{
	return kOpaque | red << 16 | green << 8 | blue;
}


uint32
five_bits(uint32 value)
{
	value &= 0x1f;
	return value << 3 | value >> 2;
}


uint32
read_pixel16(const uint8* bytes, color_space space)
{
	const uint32 value = static_cast<uint32>(bytes[0]) | static_cast<uint32>(bytes[1]) << 8;
	if (space == B_RGB16) {
		const uint32 green = value >> 5 & 0x3f;
		return make_pixel(five_bits(value >> 11), green << 2 | green >> 4, five_bits(value));
	}
	const uint32 pixel
		= make_pixel(five_bits(value >> 10), five_bits(value >> 5), five_bits(value));
	if (space == B_RGBA15 && (value & 0x8000) == 0)
		return pixel & ~kOpaque;
	return pixel;
}


// A pixel with alpha, from a row of any readable color space.
uint32
read_pixel(const uint8* row, int32 column, color_space space)
{
	switch (space) {
		case B_GRAY1:
		{
			const bool isBlack = (row[column >> 3] & (0x80 >> (column & 7))) != 0;
			return isBlack ? kOpaque : 0xffffffff;
		}
		case B_GRAY8:
			return make_pixel(row[column], row[column], row[column]);
		case B_CMAP8:
			return PalettePixels()[row[column]];
		case B_RGB15:
		case B_RGBA15:
		case B_RGB16:
			return read_pixel16(row + column * 2, space);
		case B_RGB24:
			row += column * 3;
			return make_pixel(row[2], row[1], row[0]);
		case B_RGB24_BIG:
			row += column * 3;
			return make_pixel(row[0], row[1], row[2]);
		case B_RGB32:
			row += column * 4;
			return make_pixel(row[2], row[1], row[0]);
		case B_RGBA32:
			row += column * 4;
			return (make_pixel(row[2], row[1], row[0]) & ~kOpaque)
				| static_cast<uint32>(row[3]) << 24;
		case B_RGB32_BIG:
			row += column * 4;
			return make_pixel(row[1], row[2], row[3]);
		case B_RGBA32_BIG:
			row += column * 4;
			return (make_pixel(row[1], row[2], row[3]) & ~kOpaque)
				| static_cast<uint32>(row[0]) << 24;
		default:
			return kOpaque;
	}
}


void
write_pixel(uint8* row, int32 column, color_space space, uint32 pixel)
{
	switch (space) {
		case B_GRAY8:
			row[column] = Brightness(pixel >> 16 & 0xff, pixel >> 8 & 0xff, pixel & 0xff);
			break;
		case B_CMAP8:
			row[column] = PaletteIndex(pixel);
			break;
		default:
			row += column * 4;
			row[0] = static_cast<uint8>(pixel);
			row[1] = static_cast<uint8>(pixel >> 8);
			row[2] = static_cast<uint8>(pixel >> 16);
			row[3] = static_cast<uint8>(pixel >> 24);
			break;
	}
}


// The number of whole pixels in that many bytes from the start of a row, after a column.
int32
pixels_in(size_t bytes, color_space space, int32 firstColumn, int32 width)
{
	const size_t pixels = bytes * 8 / static_cast<size_t>(BitsPerPixel(space));
	if (pixels <= static_cast<size_t>(firstColumn))
		return 0;
	return static_cast<int32>(
		std::min(pixels - static_cast<size_t>(firstColumn), static_cast<size_t>(width)));
}


void
convert_row(const ConstRows& from, const Rows& to, const uint8* source, uint8* destination,
	int32 width)
{
	if (from.space == to.space) {
		const int32 bytesPerPixel = BitsPerPixel(to.space) / 8;
		memmove(destination + to.firstColumn * bytesPerPixel,
			source + from.firstColumn * bytesPerPixel,
			static_cast<size_t>(width) * static_cast<size_t>(bytesPerPixel));
		return;
	}
	for (int32 column = 0; column < width; column++) {
		write_pixel(destination, to.firstColumn + column, to.space,
			read_pixel(source, from.firstColumn + column, from.space));
	}
}

} // namespace


bool
IsReadable(color_space space)
{
	return BitsPerPixel(space) != 0;
}


bool
IsDrawable(color_space space)
{
	return space == B_CMAP8 || space == B_GRAY8 || space == B_RGB32 || space == B_RGBA32;
}


int32
BitsPerPixel(color_space space)
{
	switch (space) {
		case B_GRAY1:
			return 1;
		case B_GRAY8:
		case B_CMAP8:
			return 8;
		case B_RGB15:
		case B_RGBA15:
		case B_RGB16:
			return 16;
		case B_RGB24:
		case B_RGB24_BIG:
			return 24;
		case B_RGB32:
		case B_RGBA32:
		case B_RGB32_BIG:
		case B_RGBA32_BIG:
			return 32;
		default:
			return 0;
	}
}


void
ConvertPixels(const ConstRows& from, const Rows& to, int32 width, int32 height)
{
	for (int32 row = 0; row < height; row++) {
		const size_t sourceOffset
			= static_cast<size_t>(row) * static_cast<size_t>(from.bytesPerRow);
		const size_t offset = static_cast<size_t>(row) * static_cast<size_t>(to.bytesPerRow);
		if (sourceOffset >= from.length || offset >= to.length)
			return;
		const int32 count
			= std::min(pixels_in(from.length - sourceOffset, from.space, from.firstColumn, width),
				pixels_in(to.length - offset, to.space, to.firstColumn, width));
		convert_row(from, to, from.data + sourceOffset, to.data + offset, count);
	}
}

} // namespace hosted
