// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/TileLayout.h"

#include <gtest/gtest.h>


TEST(TileHeightFor, EachBoxSizeHasItsHeight)
{
	EXPECT_FLOAT_EQ(TileHeightFor(1), 114);
	EXPECT_FLOAT_EQ(TileHeightFor(2), 95);
	EXPECT_FLOAT_EQ(TileHeightFor(3), 76);
	EXPECT_FLOAT_EQ(TileHeightFor(4), 57);
	EXPECT_FLOAT_EQ(TileHeightFor(5), 48);
}


TEST(TileHeightFor, UnlistedSizeFallsBackToLargest)
{
	EXPECT_FLOAT_EQ(TileHeightFor(0), 114);
	EXPECT_FLOAT_EQ(TileHeightFor(7), 114);
	EXPECT_FLOAT_EQ(TileHeightFor(-1), 114);
	EXPECT_FLOAT_EQ(TileHeightFor(2000000000), 114);
}


TEST(ParkedFrame, LiesAboveTheViewAtTileSize)
{
	const BRect parked = ParkedFrame(BRect(0, 0, 699, 199), 57);
	EXPECT_EQ(parked, BRect(174, -157, 664, -100));
	EXPECT_FLOAT_EQ(parked.Width(), kTileWidth);
	EXPECT_FLOAT_EQ(parked.Height(), 57);
}


TEST(TileColumn, TheCenteredTileIsCenteredWithItsGap)
{
	const TileColumn column(BRect(0, 0, 999, 700), 114);
	EXPECT_EQ(column.CenteredTile(), BPoint(484, 350 - 62));
}


TEST(TileColumn, HalfCountsTheTilesThatFitBesideTheCenteredOne)
{
	// 350 / 119 is 2.9: three, and 350 is more than 3 * 119 - 57.
	EXPECT_EQ(TileColumn(BRect(0, 0, 999, 700), 114).CountHalf(), 3);
	// 250 / 119 is 2.1: three, but 250 is not more than 3 * 119 - 57.
	EXPECT_EQ(TileColumn(BRect(0, 0, 999, 500), 114).CountHalf(), 2);
	// 3 * 53 - 24 is 135, which is not enough; half a pixel more is.
	EXPECT_EQ(TileColumn(BRect(0, 0, 999, 270), 48).CountHalf(), 2);
	EXPECT_EQ(TileColumn(BRect(0, 0, 999, 271), 48).CountHalf(), 3);
}


TEST(TileColumn, OfTwentyTilesThirteenAreNearTheTenth)
{
	int placed = 0;
	for (int32 index = 0; index < 20; index++) {
		const bool isNear = TileColumn::IsNear(index, 10);
		EXPECT_EQ(isNear, index >= 4 && index <= 16) << index;
		placed += isNear ? 1 : 0;
	}
	EXPECT_EQ(placed, 13);
}


TEST(TileColumn, NeighborsAreOneTileAndOneGapAway)
{
	const TileColumn column(BRect(0, 0, 999, 700), 48);
	EXPECT_EQ(column.PositionFor(7, 7), column.CenteredTile());
	EXPECT_FLOAT_EQ(column.PositionFor(8, 7).y - column.PositionFor(7, 7).y, 53);
	EXPECT_FLOAT_EQ(column.PositionFor(7, 7).y - column.PositionFor(6, 7).y, 53);
}


TEST(TileColumn, OnlyTilesOverAnEdgeCrossIt)
{
	const TileColumn column(BRect(0, 0, 999, 700), 48);
	EXPECT_TRUE(column.CrossesEdge(BRect(0, -1, 490, 47)));
	EXPECT_TRUE(column.CrossesEdge(BRect(0, -48, 490, 0)));
	EXPECT_FALSE(column.CrossesEdge(BRect(0, -49, 490, -1)));
	EXPECT_FALSE(column.CrossesEdge(BRect(0, 0, 490, 48)));
	EXPECT_TRUE(column.CrossesEdge(BRect(0, 652, 490, 700)));
	EXPECT_FALSE(column.CrossesEdge(BRect(0, 651, 490, 699)));
	EXPECT_FALSE(column.CrossesEdge(BRect(0, 700, 490, 748)));
}


TEST(MoveMark, StaysInTheList)
{
	EXPECT_EQ(MoveMark(5, 1, 20), 6);
	EXPECT_EQ(MoveMark(5, -1, 20), 4);
	EXPECT_EQ(MoveMark(0, -1, 20), 0);
	EXPECT_EQ(MoveMark(1, -1, 20), 0);
	EXPECT_EQ(MoveMark(19, 1, 20), 19);
	EXPECT_EQ(MoveMark(3, 1000, 10), 9);
	EXPECT_EQ(MoveMark(0, 1, 1), 0);
}
