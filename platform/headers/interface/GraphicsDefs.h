// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef GRAPHICS_DEFS_H
#define GRAPHICS_DEFS_H

#include <SupportDefs.h>


struct pattern {
	uint8 data[8];
};

extern const pattern B_SOLID_HIGH;
extern const pattern B_MIXED_COLORS;
extern const pattern B_SOLID_LOW;


struct rgb_color {
	uint8 red;
	uint8 green;
	uint8 blue;
	uint8 alpha;

	rgb_color& set_to(uint8 newRed, uint8 newGreen, uint8 newBlue, uint8 newAlpha = 255)
	{
		red = newRed;
		green = newGreen;
		blue = newBlue;
		alpha = newAlpha;
		return *this;
	}

	bool operator==(const rgb_color& other) const
	{
		return red == other.red && green == other.green && blue == other.blue
			&& alpha == other.alpha;
	}

	bool operator!=(const rgb_color& other) const { return !(*this == other); }
};


inline rgb_color
make_color(uint8 red, uint8 green, uint8 blue, uint8 alpha = 255)
{
	rgb_color color = {red, green, blue, alpha};
	return color;
}


// The amount is the second color's share, of 255.
rgb_color mix_color(rgb_color color1, rgb_color color2, uint8 amount);
rgb_color disable_color(rgb_color color, rgb_color background);


extern const rgb_color B_TRANSPARENT_COLOR;
extern const rgb_color B_TRANSPARENT_32_BIT;
extern const uint8 B_TRANSPARENT_MAGIC_CMAP8;
extern const uint16 B_TRANSPARENT_MAGIC_RGBA15;
extern const uint32 B_TRANSPARENT_MAGIC_RGBA32;
const uint8 B_TRANSPARENT_8_BIT = 0xff;


struct color_map {
	int32 id;
	rgb_color color_list[256];
	uint8 inversion_map[256];
	uint8 index_map[32768];
};


struct screen_id {
	int32 id;
};

extern const struct screen_id B_MAIN_SCREEN_ID;


enum color_space {
	B_NO_COLOR_SPACE = 0x0000,

	// Bytes from the lowest address: blue, green, red, alpha.
	B_RGB32 = 0x0008,
	B_RGBA32 = 0x2008,
	B_RGB24 = 0x0003,
	B_RGB16 = 0x0005,
	B_RGB15 = 0x0010,
	B_RGBA15 = 0x2010,
	B_CMAP8 = 0x0004,
	B_GRAY8 = 0x0002,
	B_GRAY1 = 0x0001,

	B_RGB32_BIG = 0x1008,
	B_RGBA32_BIG = 0x3008,
	B_RGB24_BIG = 0x1003,

	B_COLOR_8_BIT = B_CMAP8,
	B_RGB_32_BIT = B_RGB32
};


enum drawing_mode {
	B_OP_COPY = 0,
	B_OP_OVER,
	B_OP_ERASE,
	B_OP_INVERT,
	B_OP_ADD,
	B_OP_SUBTRACT,
	B_OP_BLEND,
	B_OP_MIN,
	B_OP_MAX,
	B_OP_SELECT,
	B_OP_ALPHA
};

enum source_alpha { B_PIXEL_ALPHA = 0, B_CONSTANT_ALPHA };

enum alpha_function { B_ALPHA_OVERLAY = 0, B_ALPHA_COMPOSITE };

#endif // GRAPHICS_DEFS_H
