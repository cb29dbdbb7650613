// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TILE_LAYOUT_H
#define TILE_LAYOUT_H

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>


inline constexpr float kTileWidth = 490;
// Pixels between two tiles.
inline constexpr float kTileGap = 5;
// At most so many tiles are placed above the target, and as many below.
inline constexpr int32 kTilesPerSide = 6;

// The height in pixels of a tile of the setting "LINK_SIZE".
float TileHeightFor(int32 linkSize);

// Where a new tile waits, above the view, until it is laid out.
BRect ParkedFrame(BRect bounds, float tileSize);

// The top of a tile that is laid out, but not in view.
float ParkedTop(float tileSize);

/*!	The column of tiles around the centered one. */
struct TileColumn {
	TileColumn(BRect bounds, float tileSize);

	// How many tiles fit in half the height, plus one.
	int32 CountHalf() const;
	BPoint CenteredTile() const;
	// Whether that tile is near enough to the target to be placed at all.
	static bool IsNear(int32 index, int32 target);
	BPoint PositionFor(int32 index, int32 target) const;
	// Whether a tile reaches over the view's top or bottom edge.
	bool CrossesEdge(BRect frame) const;

	BRect bounds;
	float tileSize;
	float centerY;
	float left;
};

// The index that the next-mark gets when it moves by a step, among that many tiles.
int32 MoveMark(int32 index, int32 step, int32 count);

#endif // TILE_LAYOUT_H
