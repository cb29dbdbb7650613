// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PALETTE_H
#define PALETTE_H

#include <InterfaceDefs.h>


namespace hosted {

// The 256 colors of B_CMAP8 as 32-bit pixels, alpha 0 for the transparent one.
const uint32* PalettePixels();

inline uint8
PaletteIndex(uint32 pixel)
{
	if (pixel >> 24 < 128)
		return B_TRANSPARENT_8_BIT;
	return system_colors()
		->index_map[(pixel >> 9 & 0x7c00) | (pixel >> 6 & 0x3e0) | (pixel >> 3 & 0x1f)];
}


inline uint8
Brightness(uint32 red, uint32 green, uint32 blue)
{
	return static_cast<uint8>((308 * red + 600 * green + 116 * blue) / 1024);
}

} // namespace hosted

#endif // PALETTE_H
