// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/CoverGrid.h"


namespace {

// Pixels between two cells.
constexpr float kCellGap = 4;
// Pixels that the tiles, the buttons and the time bar take.
constexpr float kTilesMargin = 600;

} // namespace


bool
CoverGridFits(float viewWidth, float cell)
{
	return viewWidth > cell * 3 + kTilesMargin;
}


CoverGrid::CoverGrid(BRect bounds, float cell, int32 count)
{
	area.left = bounds.left + cell / 2;
	area.top = bounds.top + cell / 2;
	area.right = (bounds.right - bounds.left) - kTilesMargin;
	area.bottom = area.top + cell;

	float x = bounds.left - cell / 2 - kCellGap;
	float y = area.top;
	for (int32 index = 0; index < count; index++) {
		x += cell + kCellGap;
		if (x > area.right) {
			x = bounds.left + cell / 2;
			y += cell + kCellGap;
			area.bottom = y + cell;
		}
		const BRect frame(x, y, x + cell, y + cell);
		if (frame.right > area.right)
			area.right = frame.right;
		cells.push_back(frame);
	}
}


int32
CoverIndexAt(BPoint where, BRect area, float cell)
{
	const float step = cell + kCellGap;
	const int32 column = static_cast<int32>((where.x - area.left) / step);
	const int32 row = static_cast<int32>((where.y - area.top) / step);
	const int32 columns = static_cast<int32>((area.right - area.left) / step) + 1;
	return columns * row + column;
}
