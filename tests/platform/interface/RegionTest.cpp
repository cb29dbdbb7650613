// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Region.h>

#include "tests/platform/interface/Canvas.h"


TEST(Region, IsEmptyAtFirst)
{
	BRegion region;
	EXPECT_EQ(region.CountRects(), 0);
	EXPECT_FALSE(region.Frame().IsValid());
	EXPECT_FALSE(region.RectAt(0).IsValid());
}


TEST(Region, CoversBothEdgesOfARectangle)
{
	BRegion region(BRect(1, 2, 3, 4));
	EXPECT_EQ(region.CountRects(), 1);
	EXPECT_EQ(region.Frame(), BRect(1, 2, 3, 4));
	EXPECT_EQ(region.RectAt(0), BRect(1, 2, 3, 4));
	EXPECT_TRUE(region.Contains(BPoint(3, 4)));
	EXPECT_FALSE(region.Contains(BPoint(4, 4)));
}


TEST(Region, ExcludesAndIncludes)
{
	BRegion region(BRect(0, 0, 9, 9));
	region.Exclude(BRect(5, 0, 9, 9));
	EXPECT_EQ(region.Frame(), BRect(0, 0, 4, 9));
	region.Include(BRect(20, 0, 21, 1));
	EXPECT_EQ(region.CountRects(), 3);
	EXPECT_FALSE(region.Intersects(BRect(10, 0, 19, 9)));
	EXPECT_TRUE(region.Intersects(BRect(10, 0, 20, 9)));

	const BRegion other(BRect(0, 0, 100, 4));
	region.IntersectWith(&other);
	EXPECT_TRUE(region.Contains(BPoint(20, 1)));
	EXPECT_FALSE(region.Contains(BPoint(0, 5)));
	region.Exclude(&other);
	EXPECT_EQ(region.CountRects(), 0);
	region.Include(&other);
	EXPECT_EQ(region, other);
}


TEST(Region, IgnoresInvalidRectangles)
{
	BRegion region(BRect(0, 0, 9, 9));
	region.Include(BRect(30, 30, 20, 20));
	EXPECT_EQ(region.Frame(), BRect(0, 0, 9, 9));
	region.Set(BRect());
	EXPECT_EQ(region.CountRects(), 0);
}


TEST(Region, CopiesAreIndependent)
{
	BRegion region(BRect(0, 0, 9, 9));
	BRegion copy(region);
	copy.OffsetBy(5, 5);
	EXPECT_EQ(region.Frame(), BRect(0, 0, 9, 9));
	EXPECT_EQ(copy.Frame(), BRect(5, 5, 14, 14));
	region = copy;
	copy.MakeEmpty();
	EXPECT_EQ(region.Frame(), BRect(5, 5, 14, 14));
}
