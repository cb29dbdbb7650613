// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Rect.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/support/Output.h"

static_assert(sizeof(BRect) == 16, "four floats and nothing else");


TEST(Rect, IsMadeInSixWays)
{
	EXPECT_EQ(BRect(), BRect(0, 0, -1, -1));
	EXPECT_EQ(BRect(BPoint(1, 2), BPoint(3, 4)), BRect(1, 2, 3, 4));
	EXPECT_EQ(BRect(BPoint(1, 2), BSize(10, 20)), BRect(1, 2, 11, 22));
	EXPECT_EQ(BRect(16), BRect(0, 0, 15, 15));
	EXPECT_EQ(BRect(10, 20), BRect(0, 0, 10, 20));
}


TEST(Rect, SizeIsOnePixelLessThanItCovers)
{
	const BRect rect(10, 20, 13.5f, 25);
	EXPECT_FLOAT_EQ(rect.Width(), 3.5f);
	EXPECT_FLOAT_EQ(rect.Height(), 5);
	EXPECT_EQ(rect.IntegerWidth(), 4);
	EXPECT_EQ(rect.IntegerHeight(), 5);
	EXPECT_EQ(rect.Size(), BSize(3.5f, 5));
}


TEST(Rect, IsValidDownToASinglePixel)
{
	EXPECT_FALSE(BRect().IsValid());
	EXPECT_TRUE(BRect(5, 5, 5, 5).IsValid());
	EXPECT_FALSE(BRect(5, 5, 4, 5).IsValid());
	EXPECT_FALSE(BRect(5, 5, 5, 4).IsValid());
}


TEST(Rect, ContainsItsEdges)
{
	const BRect rect(10, 10, 20, 20);
	EXPECT_TRUE(rect.Contains(BPoint(10, 20)));
	EXPECT_TRUE(rect.Contains(BPoint(20, 10)));
	EXPECT_FALSE(rect.Contains(BPoint(20.5f, 10)));
	EXPECT_FALSE(rect.Contains(BPoint(15, 9)));
	EXPECT_TRUE(rect.Contains(rect));
	EXPECT_FALSE(rect.Contains(BRect(10, 10, 21, 20)));
	// Validity is not asked for.
	EXPECT_TRUE(rect.Contains(BRect(15, 15, 12, 12)));
}


TEST(Rect, IntersectsWhenEdgesTouch)
{
	const BRect rect(10, 10, 20, 20);
	EXPECT_TRUE(rect.Intersects(BRect(20, 20, 30, 30)));
	EXPECT_FALSE(rect.Intersects(BRect(21, 10, 30, 20)));
	EXPECT_FALSE(rect.Intersects(BRect(10, 21, 20, 30)));
	EXPECT_FALSE(rect.Intersects(BRect(18, 18, 12, 12)));
	EXPECT_FALSE(BRect(18, 18, 12, 12).Intersects(rect));
}


TEST(Rect, CutsAndJoins)
{
	const BRect rect(10, 10, 20, 20);
	EXPECT_EQ(rect & BRect(15, 5, 30, 12), BRect(15, 10, 20, 12));
	EXPECT_EQ(rect & BRect(30, 30, 40, 40), BRect(30, 30, 20, 20));
	EXPECT_EQ(rect | BRect(15, 5, 30, 12), BRect(10, 5, 30, 20));
	EXPECT_NE(rect, BRect(10, 10, 20, 20.5f));
}


TEST(Rect, IsInsetAndEnlarged)
{
	BRect rect(10, 10, 20, 20);
	rect.InsetBy(2, 3);
	EXPECT_EQ(rect, BRect(12, 13, 18, 17));
	rect.InsetBy(BPoint(-2, -3));
	EXPECT_EQ(rect, BRect(10, 10, 20, 20));
	EXPECT_EQ(rect.InsetByCopy(1, 1), BRect(11, 11, 19, 19));
	EXPECT_EQ(rect.InsetByCopy(BPoint(1, 1)), BRect(11, 11, 19, 19));
	EXPECT_EQ(&rect.InsetBySelf(1, 1), &rect);
	EXPECT_EQ(rect, BRect(11, 11, 19, 19));
}


TEST(Rect, IsOffset)
{
	BRect rect(10, 10, 20, 20);
	rect.OffsetBy(1, 2);
	EXPECT_EQ(rect, BRect(11, 12, 21, 22));
	rect.OffsetBy(BPoint(-1, -2));
	EXPECT_EQ(rect, BRect(10, 10, 20, 20));
	rect.OffsetTo(0, 5);
	EXPECT_EQ(rect, BRect(0, 5, 10, 15));
	rect.OffsetTo(B_ORIGIN);
	EXPECT_EQ(rect, BRect(0, 0, 10, 10));
	EXPECT_EQ(rect.OffsetByCopy(1, 1), BRect(1, 1, 11, 11));
	EXPECT_EQ(rect.OffsetToCopy(BPoint(7, 8)), BRect(7, 8, 17, 18));
	EXPECT_EQ(rect.OffsetToCopy(7, 8), BRect(7, 8, 17, 18));
	EXPECT_EQ(&rect.OffsetBySelf(1, 1), &rect);
	EXPECT_EQ(&rect.OffsetToSelf(BPoint(3, 3)), &rect);
	EXPECT_EQ(rect, BRect(3, 3, 13, 13));
}


TEST(Rect, HasFourCorners)
{
	BRect rect(1, 2, 3, 4);
	EXPECT_EQ(rect.LeftTop(), BPoint(1, 2));
	EXPECT_EQ(rect.RightTop(), BPoint(3, 2));
	EXPECT_EQ(rect.LeftBottom(), BPoint(1, 4));
	EXPECT_EQ(rect.RightBottom(), BPoint(3, 4));
	rect.SetLeftTop(BPoint(10, 11));
	rect.SetRightBottom(BPoint(20, 21));
	EXPECT_EQ(rect, BRect(10, 11, 20, 21));
	rect.SetRightTop(BPoint(30, 12));
	rect.SetLeftBottom(BPoint(9, 31));
	EXPECT_EQ(rect, BRect(9, 12, 30, 31));
}


TEST(Rect, PrintsItsEdges)
{
	EXPECT_EQ(test::OutputOf([]() { BRect(1, 2.25f, -3, 4).PrintToStream(); }),
		"BRect(l:1.0, t:2.2, r:-3.0, b:4.0)\n");
}


TEST(Size, IsUnsetAtFirst)
{
	BSize size;
	EXPECT_FALSE(size.IsWidthSet());
	EXPECT_FALSE(size.IsHeightSet());
	EXPECT_FLOAT_EQ(size.width, -2);
	EXPECT_FLOAT_EQ(size.height, -2);
}
