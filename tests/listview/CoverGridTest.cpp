// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/CoverGrid.h"

#include <gtest/gtest.h>


TEST(CoverGridFits, NeedsThreeCellsBesideTheTiles)
{
	EXPECT_FALSE(CoverGridFits(650, 38));
	EXPECT_FALSE(CoverGridFits(714, 38));
	EXPECT_TRUE(CoverGridFits(715, 38));
}


TEST(CoverGrid, WithoutCoversIsOneCellHigh)
{
	const CoverGrid grid(BRect(0, 0, 999, 699), 38, 0);
	EXPECT_TRUE(grid.cells.empty());
	EXPECT_EQ(grid.area, BRect(19, 19, 399, 57));
}


TEST(CoverGrid, OneRowIsOneCellHigh)
{
	const CoverGrid grid(BRect(0, 0, 999, 699), 38, 3);
	ASSERT_EQ(grid.cells.size(), 3u);
	EXPECT_EQ(grid.cells[0], BRect(19, 19, 57, 57));
	EXPECT_EQ(grid.cells[1], BRect(61, 19, 99, 57));
	EXPECT_EQ(grid.cells[2], BRect(103, 19, 141, 57));
	EXPECT_FLOAT_EQ(grid.area.bottom, 57);
}


TEST(CoverGrid, RowMayEndWithACellInTheMargin)
{
	// The margin begins at 399; the tenth cell begins at 397 and moves it.
	const CoverGrid grid(BRect(0, 0, 999, 699), 38, 11);
	EXPECT_EQ(grid.cells[9], BRect(397, 19, 435, 57));
	EXPECT_EQ(grid.cells[10], BRect(19, 61, 57, 99));
	EXPECT_EQ(grid.area, BRect(19, 19, 435, 99));
}


TEST(CoverGrid, GoesOnBelowTheViewWithTooManyCovers)
{
	const CoverGrid grid(BRect(0, 0, 799, 399), 38, 500);
	EXPECT_EQ(grid.cells.size(), 500u);
	EXPECT_GT(grid.area.bottom, 399);
}


TEST(CoverIndexAt, CountsInReadingOrder)
{
	// Three columns: the grid is 122 wide, a step is 42.
	const BRect area(19, 19, 141, 141);
	EXPECT_EQ(CoverIndexAt(BPoint(area.left + 90, area.top + 50), area, 38), 5);
	EXPECT_EQ(CoverIndexAt(area.LeftTop(), area, 38), 0);
	EXPECT_EQ(CoverIndexAt(BPoint(area.left + 42, area.top), area, 38), 1);
	EXPECT_EQ(CoverIndexAt(BPoint(area.left, area.top + 42), area, 38), 3);
}


TEST(CoverIndexAt, FindsEachCellOfAFullGrid)
{
	const CoverGrid grid(BRect(0, 0, 999, 699), 38, 40);
	for (size_t index = 0; index < grid.cells.size(); index++) {
		const BPoint middle((grid.cells[index].left + grid.cells[index].right) / 2,
			grid.cells[index].top + 10);
		EXPECT_EQ(CoverIndexAt(middle, grid.area, 38), static_cast<int32>(index));
	}
}
