// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef COVER_GRID_H
#define COVER_GRID_H

#include <vector>

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>


// Whether a view of that width has room for the cover grid beside its tiles and buttons.
bool CoverGridFits(float viewWidth, float cell);

/*!	Where the covers stand: rows of square cells, filled from left to right.

	A row may end with a cell that reaches into the margin for the tiles; the area then grows to
	its right edge.
*/
struct CoverGrid {
	CoverGrid(BRect bounds, float cell, int32 count);

	BRect area;
	std::vector<BRect> cells;
};

// The index of the cover at a point of the grid's area, counted as the cells are filled. It may lie
// past the last cover.
int32 CoverIndexAt(BPoint where, BRect area, float cell);

#endif // COVER_GRID_H
