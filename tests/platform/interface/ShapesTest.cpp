// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <Region.h>

#include "tests/platform/interface/Canvas.h"

using test::Canvas;
using test::Picture;


TEST(FillRect, CoversBothEdges)
{
	Canvas canvas(6, 4);
	canvas.view->FillRect(BRect(1, 1, 3, 2));
	EXPECT_EQ(canvas.Shape(), (Picture{"......", ".###..", ".###..", "......"}));
}


TEST(FillRect, FloorsItsEdges)
{
	Canvas canvas(6, 4);
	canvas.view->FillRect(BRect(1.9f, 1.2f, 3.9f, 2.1f));
	EXPECT_EQ(canvas.Shape(), (Picture{"......", ".###..", ".###..", "......"}));
	Canvas outside(3, 2);
	outside.view->FillRect(BRect(-1.5f, -0.5f, 0.5f, 0.5f));
	EXPECT_EQ(outside.Shape(), (Picture{"#..", "..."}));
}


TEST(FillRect, InvalidRectanglePaintsNothing)
{
	Canvas canvas(3, 1);
	canvas.view->FillRect(BRect(2, 0, 0, 0));
	canvas.view->FillRect(BRect());
	EXPECT_EQ(canvas.Shape(), (Picture{"..."}));
}


TEST(FillRect, HugeRectangleIsClipped)
{
	Canvas canvas(3, 2);
	canvas.view->FillRect(BRect(-1e30f, -1e30f, 1e30f, 1e30f));
	EXPECT_EQ(canvas.Shape(), (Picture{"###", "###"}));
}


TEST(StrokeRect, IsTheFrameOnTheEdges)
{
	Canvas canvas(6, 5);
	canvas.view->StrokeRect(BRect(1, 1, 4, 3));
	EXPECT_EQ(canvas.Shape(), (Picture{"......", ".####.", ".#..#.", ".####.", "......"}));
}


TEST(StrokeRect, SinglePixelAndInvalidOnesArePainted)
{
	Canvas canvas(6, 3);
	canvas.view->StrokeRect(BRect(1, 1, 1, 1));
	canvas.view->StrokeRect(BRect(5, 2, 3, 0));
	EXPECT_EQ(canvas.Shape(), (Picture{"...###", ".#.#.#", "...###"}));
}


TEST(StrokeRect, WidePenIsCenteredOnTheEdge)
{
	Canvas canvas(12, 12);
	canvas.view->SetPenSize(4);
	canvas.view->StrokeRect(BRect(3, 3, 8, 8));
	// The columns 1 to 4 and 6 to 9.
	EXPECT_EQ(canvas.Shape()[5], ".####.####..");
	EXPECT_EQ(canvas.Shape()[0], "............");
	EXPECT_EQ(canvas.Shape()[1], ".#########..");
	EXPECT_EQ(canvas.Shape()[10], "............");

	Canvas odd(12, 12);
	odd.view->SetPenSize(3);
	odd.view->StrokeRect(BRect(3, 3, 8, 8));
	EXPECT_EQ(odd.Shape()[5], "..###..###..");
	EXPECT_EQ(odd.Shape()[2], "..########..");
	EXPECT_EQ(odd.Shape()[1], "............");
}


TEST(StrokeRect, EachPixelIsPaintedOnce)
{
	Canvas canvas(4, 4);
	canvas.view->SetDrawingMode(B_OP_INVERT);
	canvas.view->StrokeRect(BRect(0, 0, 3, 3));
	EXPECT_EQ(canvas.Shape(), (Picture{"####", "#..#", "#..#", "####"}));
}


TEST(StrokeLine, StraightOnesIncludeBothEnds)
{
	Canvas canvas(6, 4);
	canvas.view->StrokeLine(BPoint(1, 0), BPoint(4, 0));
	canvas.view->StrokeLine(BPoint(5, 3), BPoint(5, 1));
	canvas.view->StrokeLine(BPoint(0, 3), BPoint(0, 3));
	EXPECT_EQ(canvas.Shape(), (Picture{".####.", ".....#", ".....#", "#....#"}));
}


TEST(StrokeLine, MovesThePenAndGoesOnFromIt)
{
	Canvas canvas(5, 3);
	canvas.view->MovePenTo(1, 1);
	canvas.view->StrokeLine(BPoint(3, 1));
	EXPECT_EQ(canvas.view->PenLocation(), BPoint(3, 1));
	canvas.view->StrokeLine(BPoint(3, 2));
	EXPECT_EQ(canvas.Shape(), (Picture{".....", ".###.", "...#."}));
}


TEST(StrokeLine, DiagonalIsSmoothAndIncludesItsEnds)
{
	Canvas canvas(7, 7);
	canvas.view->StrokeLine(BPoint(1, 1), BPoint(5, 5));
	const Picture shape = canvas.Shape();
	EXPECT_EQ(shape[0].substr(2), ".....");
	for (size_t at = 2; at <= 4; at++) {
		EXPECT_NE(shape[at][at], '.');
		EXPECT_EQ(shape[at][at - 1], '+');
		EXPECT_EQ(shape[at][at + 1], '+');
	}
	EXPECT_NE(shape[1][1], '.');
	EXPECT_NE(shape[5][5], '.');
	EXPECT_EQ(shape[6][0], '.');
}


TEST(StrokeLine, WideOneEndsAtItsPoints)
{
	Canvas canvas(8, 6);
	canvas.view->SetPenSize(2);
	canvas.view->StrokeLine(BPoint(2, 3), BPoint(6, 3));
	EXPECT_EQ(canvas.Shape(),
		(Picture{"........", "........", "..####..", "..####..", "........", "........"}));
}


TEST(LineArray, PaintsEachLineInItsColor)
{
	Canvas canvas(4, 2);
	canvas.view->BeginLineArray(2);
	canvas.view->AddLine(BPoint(0, 0), BPoint(3, 0), make_color(255, 0, 0));
	canvas.view->AddLine(BPoint(0, 1), BPoint(1, 1), make_color(0, 0, 255, 10));
	EXPECT_EQ(canvas.At(0, 0), 0xffffffu);
	canvas.view->EndLineArray();
	EXPECT_EQ(canvas.At(3, 0), 0xff0000u);
	EXPECT_EQ(canvas.At(1, 1), 0x0000ffu);
	EXPECT_EQ(canvas.At(2, 1), 0xffffffu);
	canvas.Clear(make_color(255, 255, 255));
	canvas.view->EndLineArray();
	EXPECT_EQ(canvas.At(3, 0), 0xffffffu);
}


TEST(RoundRect, FillHasTheExtentOfFillRect)
{
	Canvas canvas(12, 12);
	canvas.view->FillRoundRect(BRect(1, 1, 10, 10), 4, 4);
	const Picture shape = canvas.Shape();
	EXPECT_EQ(shape[0], "............");
	EXPECT_EQ(shape[11], "............");
	EXPECT_EQ(shape[5], ".##########.");
	EXPECT_EQ(shape[1].substr(5, 2), "##");
	EXPECT_EQ(shape[1][1], '.');
	EXPECT_EQ(shape[1][10], '.');
	EXPECT_EQ(shape[2][2], '+');
	for (size_t y = 0; y < 12; y++) {
		EXPECT_EQ(shape[y], shape[11 - y]);
		EXPECT_EQ(shape[y], std::string(shape[y].rbegin(), shape[y].rend()));
	}
}


TEST(RoundRect, StrokeHasTheExtentOfStrokeRect)
{
	Canvas canvas(12, 12);
	canvas.view->StrokeRoundRect(BRect(1, 1, 10, 10), 3, 3);
	const Picture shape = canvas.Shape();
	EXPECT_EQ(shape[0], "............");
	EXPECT_EQ(shape[5], ".#........#.");
	EXPECT_EQ(shape[1].substr(5, 2), "##");
	EXPECT_EQ(shape[10].substr(5, 2), "##");
	EXPECT_EQ(shape[1][1], '.');
}


// The lines between such corners run backwards, and must not end in spikes.
TEST(RoundRect, CornersThatDoNotFitStayInTheRectangle)
{
	Canvas canvas(40, 40);
	canvas.view->StrokeRoundRect(BRect(15, 5, 24, 34), 6, 6);
	const Picture shape = canvas.Shape();
	for (size_t y = 0; y < shape.size(); y++) {
		EXPECT_EQ(shape[y].substr(0, 15), std::string(15, '.')) << y;
		EXPECT_EQ(shape[y].substr(25), std::string(15, '.')) << y;
	}
}


TEST(RoundRect, WideStrokeLiesAroundTheRectangle)
{
	Canvas canvas(20, 20);
	canvas.view->SetPenSize(4);
	canvas.view->StrokeRoundRect(BRect(6, 6, 12, 12), 3, 3);
	// The columns left-4 to left-1 and right to right+3.
	EXPECT_EQ(canvas.Shape()[9], "..####......####....");
}


TEST(Ellipse, FillsItsRectangle)
{
	Canvas canvas(12, 12);
	canvas.view->FillEllipse(BRect(1, 1, 10, 10));
	const Picture shape = canvas.Shape();
	EXPECT_EQ(shape[0], "............");
	EXPECT_NE(shape[5][1], '.');
	EXPECT_EQ(shape[5][0], '.');
	EXPECT_EQ(shape[5].substr(2, 8), "########");
	EXPECT_EQ(shape[1][1], '.');

	Canvas byRadius(12, 12);
	byRadius.view->FillEllipse(BPoint(5, 5), 4, 4);
	EXPECT_NE(byRadius.Shape()[5][1], '.');
	EXPECT_NE(byRadius.Shape()[5][9], '.');
	EXPECT_EQ(byRadius.Shape()[5][10], '.');
}


TEST(Ellipse, StrokesThroughTheEdgePixels)
{
	Canvas canvas(12, 12);
	canvas.view->StrokeEllipse(BRect(1, 1, 10, 10));
	const Picture shape = canvas.Shape();
	EXPECT_EQ(shape[5][5], '.');
	EXPECT_NE(shape[5][1], '.');
	EXPECT_NE(shape[5][10], '.');
	EXPECT_EQ(shape[5][0], '.');
	EXPECT_EQ(shape[5][11], '.');
}


TEST(Triangle, FillGoesThroughThePixelCenters)
{
	Canvas canvas(10, 10);
	canvas.view->FillTriangle(BPoint(1, 1), BPoint(8, 1), BPoint(1, 8));
	// Only the lower half of the top row and the right half of the left column are covered.
	EXPECT_NEAR(static_cast<int>(canvas.At(4, 1) & 0xff), 128, 2);
	EXPECT_NEAR(static_cast<int>(canvas.At(1, 4) & 0xff), 128, 2);
	EXPECT_EQ(canvas.At(3, 3), 0u);
	EXPECT_EQ(canvas.At(4, 0), 0xffffffu);
	EXPECT_EQ(canvas.At(8, 8), 0xffffffu);
}


TEST(Triangle, StrokeCoversItsStraightSides)
{
	Canvas canvas(10, 10);
	canvas.view->StrokeTriangle(BPoint(1, 1), BPoint(8, 1), BPoint(1, 8));
	EXPECT_EQ(canvas.Shape()[1].substr(2, 4), "####");
	EXPECT_EQ(canvas.Shape()[4][1], '#');
	EXPECT_EQ(canvas.Shape()[3][3], '.');
}


TEST(Polygon, FillsAndStrokes)
{
	const BPoint points[4] = {BPoint(1, 1), BPoint(6, 1), BPoint(6, 6), BPoint(1, 6)};
	Canvas canvas;
	canvas.view->FillPolygon(points, 4);
	EXPECT_EQ(canvas.Shape()[3], ".+####+.");
	Canvas open;
	open.view->StrokePolygon(points, 4, false);
	EXPECT_EQ(open.Shape()[3], "......#.");
	Canvas closed;
	closed.view->StrokePolygon(points, 4);
	EXPECT_EQ(closed.Shape()[3], ".#....#.");
	Canvas none;
	none.view->FillPolygon(points, 2);
	none.view->FillPolygon(nullptr, 4);
	EXPECT_EQ(none.Shape()[1], "........");
}


TEST(FillRegion, PaintsItsRectangles)
{
	Canvas canvas(6, 3);
	BRegion region(BRect(0, 0, 5, 2));
	region.Exclude(BRect(1, 1, 4, 1));
	canvas.view->FillRegion(&region);
	EXPECT_EQ(canvas.Shape(), (Picture{"######", "#....#", "######"}));
	canvas.view->FillRegion(nullptr);
}


TEST(InvertRect, InvertsColors)
{
	Canvas canvas(3, 1);
	canvas.view->SetHighColor(10, 20, 30);
	canvas.view->FillRect(BRect(0, 0, 0, 0));
	canvas.view->InvertRect(BRect(0, 0, 1, 0));
	EXPECT_EQ(canvas.At(0, 0), 0xf5ebe1u);
	EXPECT_EQ(canvas.At(1, 0), 0x000000u);
	EXPECT_EQ(canvas.At(2, 0), 0xffffffu);
}


TEST(Pattern, BeginsAtTheViewsOrigin)
{
	Canvas canvas(4, 2);
	canvas.view->FillRect(BRect(0, 0, 3, 1), B_MIXED_COLORS);
	EXPECT_EQ(canvas.Shape(), (Picture{"#.#.", ".#.#"}));
	canvas.view->SetLowColor(255, 0, 0);
	canvas.view->FillRect(BRect(0, 0, 3, 1), B_SOLID_LOW);
	EXPECT_EQ(canvas.At(2, 1), 0xff0000u);
}
