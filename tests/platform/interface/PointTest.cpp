// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Point.h>

#include <Rect.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/support/Output.h"


TEST(Point, StartsAtTheOrigin)
{
	BPoint point;
	EXPECT_EQ(point, BPoint(0, 0));
	EXPECT_EQ(point, B_ORIGIN);
}


TEST(Point, CalculatesPerCoordinate)
{
	BPoint point(1, 2);
	EXPECT_EQ(point + BPoint(10, 20), BPoint(11, 22));
	EXPECT_EQ(point - BPoint(10, 20), BPoint(-9, -18));
	EXPECT_EQ(-point, BPoint(-1, -2));
	point += BPoint(1, 1);
	EXPECT_EQ(point, BPoint(2, 3));
	point -= BPoint(2, 3);
	EXPECT_EQ(point, B_ORIGIN);
	EXPECT_NE(point, BPoint(0, 1));
	EXPECT_NE(point, BPoint(1, 0));
}


TEST(Point, IsConstrainedToARectangle)
{
	const BRect rect(10, 10, 20, 20);
	BPoint point(0, 30);
	point.ConstrainTo(rect);
	EXPECT_EQ(point, BPoint(10, 20));
	point.Set(15, 12);
	point.ConstrainTo(rect);
	EXPECT_EQ(point, BPoint(15, 12));
}


TEST(Point, PrintsItsCoordinates)
{
	EXPECT_EQ(test::OutputOf([]() { BPoint(1.5f, -2).PrintToStream(); }),
		"BPoint(x:1.500000, y:-2.000000)\n");
}
