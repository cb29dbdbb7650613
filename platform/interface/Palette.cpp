// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The palette of 8-bit pictures.
#include "platform/interface/Palette.h"

#include <array>


namespace hosted {

// The last color is the transparent one.
static const std::array<uint32, 256> kPalette = {{
	0xff000000,
	0xff080808,
	0xff101010,
	0xff181818,
	0xff202020,
	0xff282828,
	0xff303030,
	0xff383838,
	0xff404040,
	0xff484848,
	0xff505050,
	0xff585858,
	0xff606060,
	0xff686868,
	0xff707070,
	0xff787878,
	0xff808080,
	0xff888888,
	0xff909090,
	0xff989898,
	0xffa0a0a0,
	0xffa8a8a8,
	0xffb0b0b0,
	0xffb8b8b8,
	0xffc0c0c0,
	0xffc8c8c8,
	0xffd0d0d0,
	0xffd8d8d8,
	0xffe0e0e0,
	0xffe8e8e8,
	0xfff0f0f0,
	0xfff8f8f8,
	0xff0000ff,
	0xff0000e5,
	0xff0000cc,
	0xff0000b3,
	0xff00009a,
	0xff000081,
	0xff000069,
	0xff000050,
	0xff000037,
	0xff00001e,
	0xffff0000,
	0xffe40000,
	0xffcb0000,
	0xffb20000,
	0xff990000,
	0xff800000,
	0xff690000,
	0xff500000,
	0xff370000,
	0xff1e0000,
	0xff00ff00,
	0xff00e400,
	0xff00cb00,
	0xff00b200,
	0xff009900,
	0xff008000,
	0xff006900,
	0xff005000,
	0xff003700,
	0xff001e00,
	0xff009833,
	0xffffffff,
	0xffcbffff,
	0xffcbffcb,
	0xffcbff98,
	0xffcbff66,
	0xffcbff33,
	0xffcbff00,
	0xff98ffff,
	0xff98ffcb,
	0xff98ff98,
	0xff98ff66,
	0xff98ff33,
	0xff98ff00,
	0xff66ffff,
	0xff66ffcb,
	0xff66ff98,
	0xff66ff66,
	0xff66ff33,
	0xff66ff00,
	0xff33ffff,
	0xff33ffcb,
	0xff33ff98,
	0xff33ff66,
	0xff33ff33,
	0xff33ff00,
	0xffff98ff,
	0xffff98cb,
	0xffff9898,
	0xffff9866,
	0xffff9833,
	0xffff9800,
	0xff0066ff,
	0xff0066cb,
	0xffcbcbff,
	0xffcbcbcb,
	0xffcbcb98,
	0xffcbcb66,
	0xffcbcb33,
	0xffcbcb00,
	0xff98cbff,
	0xff98cbcb,
	0xff98cb98,
	0xff98cb66,
	0xff98cb33,
	0xff98cb00,
	0xff66cbff,
	0xff66cbcb,
	0xff66cb98,
	0xff66cb66,
	0xff66cb33,
	0xff66cb00,
	0xff33cbff,
	0xff33cbcb,
	0xff33cb98,
	0xff33cb66,
	0xff33cb33,
	0xff33cb00,
	0xffff66ff,
	0xffff66cb,
	0xffff6698,
	0xffff6666,
	0xffff6633,
	0xffff6600,
	0xff006698,
	0xff006666,
	0xffcb98ff,
	0xffcb98cb,
	0xffcb9898,
	0xffcb9866,
	0xffcb9833,
	0xffcb9800,
	0xff9898ff,
	0xff9898cb,
	0xff989898,
	0xff989866,
	0xff989833,
	0xff989800,
	0xff6698ff,
	0xff6698cb,
	0xff669898,
	0xff669866,
	0xff669833,
	0xff669800,
	0xff3398ff,
	0xff3398cb,
	0xff339898,
	0xff339866,
	0xff339833,
	0xff339800,
	0xffe68600,
	0xffff33cb,
	0xffff3398,
	0xffff3366,
	0xffff3333,
	0xffff3300,
	0xff006633,
	0xff006600,
	0xffcb66ff,
	0xffcb66cb,
	0xffcb6698,
	0xffcb6666,
	0xffcb6633,
	0xffcb6600,
	0xff9866ff,
	0xff9866cb,
	0xff986698,
	0xff986666,
	0xff986633,
	0xff986600,
	0xff6666ff,
	0xff6666cb,
	0xff666698,
	0xff666666,
	0xff666633,
	0xff666600,
	0xff3366ff,
	0xff3366cb,
	0xff336698,
	0xff336666,
	0xff336633,
	0xff336600,
	0xffff00ff,
	0xffff00cb,
	0xffff0098,
	0xffff0066,
	0xffff0033,
	0xffffaf13,
	0xff0033ff,
	0xff0033cb,
	0xffcb33ff,
	0xffcb33cb,
	0xffcb3398,
	0xffcb3366,
	0xffcb3333,
	0xffcb3300,
	0xff9833ff,
	0xff9833cb,
	0xff983398,
	0xff983366,
	0xff983333,
	0xff983300,
	0xff6633ff,
	0xff6633cb,
	0xff663398,
	0xff663366,
	0xff663333,
	0xff663300,
	0xff3333ff,
	0xff3333cb,
	0xff333398,
	0xff333366,
	0xff333333,
	0xff333300,
	0xffffcb66,
	0xffffcb98,
	0xffffcbcb,
	0xffffcbff,
	0xff003398,
	0xff003366,
	0xff003333,
	0xff003300,
	0xffcb00ff,
	0xffcb00cb,
	0xffcb0098,
	0xffcb0066,
	0xffcb0033,
	0xffffe346,
	0xff9800ff,
	0xff9800cb,
	0xff980098,
	0xff980066,
	0xff980033,
	0xff980000,
	0xff6600ff,
	0xff6600cb,
	0xff660098,
	0xff660066,
	0xff660033,
	0xff660000,
	0xff3300ff,
	0xff3300cb,
	0xff330098,
	0xff330066,
	0xff330033,
	0xff330000,
	0xffffcb33,
	0xffffcb00,
	0xffffff00,
	0xffffff33,
	0xffffff66,
	0xffffff98,
	0xffffffcb,
	0x00ffffff,
}};


const uint32*
PalettePixels()
{
	return kPalette.data();
}


static rgb_color
color_of(uint32 pixel)
{
	return make_color(static_cast<uint8>(pixel >> 16), static_cast<uint8>(pixel >> 8),
		static_cast<uint8>(pixel), static_cast<uint8>(pixel >> 24));
}


// A distance that weighs red and blue by how much red there is, close to what the eye sees.
static uint32
distance(int32 red, int32 green, int32 blue, rgb_color color)
{
	const int32 redMean = (red + color.red) / 2;
	const int32 dr = red - color.red;
	const int32 dg = green - color.green;
	const int32 db = blue - color.blue;
	return static_cast<uint32>(
		(((512 + redMean) * dr * dr) >> 8) + 4 * dg * dg + (((767 - redMean) * db * db) >> 8));
}


static uint8
nearest_index(const color_map& map, int32 red, int32 green, int32 blue)
{
	int32 best = 0;
	uint32 least = distance(red, green, blue, map.color_list[0]);
	for (int32 index = 1; index < 256; index++) {
		const uint32 current = distance(red, green, blue, map.color_list[index]);
		if (current < least) {
			least = current;
			best = index;
		}
	}
	return static_cast<uint8>(best);
}


static color_map*
make_color_map()
{
	color_map* map = new color_map();
	for (int32 index = 0; index < 256; index++)
		map->color_list[index] = color_of(kPalette[static_cast<size_t>(index)]);
	for (int32 index = 0; index < 32768; index++) {
		map->index_map[index] = nearest_index(*map, (index >> 10) << 3, ((index >> 5) & 0x1f) << 3,
			(index & 0x1f) << 3);
	}
	for (int32 index = 0; index < 256; index++) {
		const rgb_color color = map->color_list[index];
		map->inversion_map[index] = map->index_map[((255 - color.red) >> 3) << 10
			| ((255 - color.green) >> 3) << 5 | (255 - color.blue) >> 3];
	}
	return map;
}

} // namespace hosted


const color_map*
system_colors()
{
	// Made when first asked for, which takes some milliseconds, and kept for good.
	static const color_map* sMap = hosted::make_color_map();
	return sMap;
}
