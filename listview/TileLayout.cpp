// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/TileLayout.h"

#include <stdlib.h>


float
TileHeightFor(int32 linkSize)
{
	switch (linkSize) {
		case 2:
			return 95;
		case 3:
			return 76;
		case 4:
			return 57;
		case 5:
			return 48;
		default:
			return 114;
	}
}


BRect
ParkedFrame(BRect bounds, float tileSize)
{
	return BRect(bounds.right - 525, -100 - tileSize, bounds.right - 35, -100);
}


float
ParkedTop(float tileSize)
{
	return -(tileSize + 10);
}


TileColumn::TileColumn(BRect bounds, float tileSize)
	:
	bounds(bounds),
	tileSize(tileSize),
	centerY((bounds.bottom - bounds.top) * 0.5f),
	left(bounds.right - 515)
{
}


int32
TileColumn::CountHalf() const
{
	int32 half = static_cast<int32>(centerY / (tileSize + kTileGap)) + 1;
	if (centerY <= half * (tileSize + kTileGap) - tileSize * 0.5f)
		half--;
	return half;
}


BPoint
TileColumn::CenteredTile() const
{
	return BPoint(left, centerY - (tileSize * 0.5f + kTileGap));
}


bool
TileColumn::IsNear(int32 index, int32 target)
{
	return llabs(static_cast<long long>(index) - target) <= kTilesPerSide;
}


BPoint
TileColumn::PositionFor(int32 index, int32 target) const
{
	BPoint position = CenteredTile();
	position.y += (index - target) * (tileSize + kTileGap);
	return position;
}


bool
TileColumn::CrossesEdge(BRect frame) const
{
	return (frame.top < bounds.top && bounds.top <= frame.bottom)
		|| (frame.top < bounds.bottom && bounds.bottom <= frame.bottom);
}


int32
MoveMark(int32 index, int32 step, int32 count)
{
	const int64 target = static_cast<int64>(index) + step;
	if (target < 1)
		return 0;
	return target >= count ? count - 1 : static_cast<int32>(target);
}
