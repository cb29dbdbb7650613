// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <string.h>

#include "tests/platform/interface/Canvas.h"

using test::Canvas;
using test::Picture;


// Black and white pixels from rows of characters.
static BBitmap
bitmap_of(const Picture& picture)
{
	BBitmap bitmap(BRect(0, 0, picture[0].size() - 1.0f, picture.size() - 1.0f), B_CMAP8);
	uint8* row = static_cast<uint8*>(bitmap.Bits());
	for (const std::string& line : picture) {
		for (size_t column = 0; column < line.size(); column++)
			row[column] = line[column] == '#' ? 0 : 63;
		row += bitmap.BytesPerRow();
	}
	return bitmap;
}


TEST(DrawBitmap, IsPutAtAPointOrThePen)
{
	const BBitmap bitmap = bitmap_of({"##", "#."});
	Canvas canvas(5, 3);
	canvas.view->DrawBitmap(&bitmap, BPoint(2, 1));
	EXPECT_EQ(canvas.Shape(), (Picture{".....", "..##.", "..#.."}));
	canvas.view->MovePenTo(0, 0);
	canvas.view->DrawBitmap(&bitmap);
	EXPECT_EQ(canvas.Shape()[0], "##...");
	canvas.view->DrawBitmapAsync(&bitmap, BPoint(3, 0));
	EXPECT_EQ(canvas.Shape()[0], "##.##");
	canvas.view->DrawBitmap(nullptr, BPoint(0, 0));
}


TEST(DrawBitmap, ScalesByTheNearestPixel)
{
	const BBitmap bitmap = bitmap_of({"#.#.#"});
	Canvas canvas(10, 1);
	canvas.view->DrawBitmap(&bitmap, BRect(0, 0, 9, 0));
	EXPECT_EQ(canvas.Shape()[0], "##..##..##");
	// The columns 0, 1 and 3 of five.
	Canvas small(5, 1);
	small.view->DrawBitmap(&bitmap, BRect(0, 0, 2, 0));
	EXPECT_EQ(small.Shape()[0], "#....");
}


TEST(DrawBitmap, ScalesSmoothlyOnWish)
{
	const BBitmap bitmap = bitmap_of({"#."});
	Canvas canvas(8, 1);
	canvas.view->DrawBitmap(&bitmap, bitmap.Bounds(), BRect(0, 0, 7, 0), B_FILTER_BITMAP_BILINEAR);
	EXPECT_EQ(canvas.Shape()[0][0], '#');
	EXPECT_EQ(canvas.Shape()[0][7], '.');
	EXPECT_EQ(canvas.Shape()[0][3], '+');
	EXPECT_EQ(canvas.Shape()[0][4], '+');
}


TEST(DrawBitmap, RoundsThePlaceThenTheSize)
{
	const BBitmap bitmap = bitmap_of({"##"});
	Canvas canvas(6, 3);
	canvas.view->DrawBitmap(&bitmap, BRect(0.6f, 0.5f, 1.6f, 0.5f));
	EXPECT_EQ(canvas.Shape(), (Picture{"......", ".##...", "......"}));
	Canvas wider(6, 1);
	wider.view->DrawBitmap(&bitmap, BRect(0.4f, 0, 1.9f, 0));
	EXPECT_EQ(wider.Shape()[0], "###...");
}


TEST(DrawBitmap, InvalidRectanglesPaintNothing)
{
	const BBitmap bitmap = bitmap_of({"##"});
	Canvas canvas(3, 1);
	canvas.view->DrawBitmap(&bitmap, BRect(2, 0, 0, 0));
	canvas.view->DrawBitmap(&bitmap, BRect(), BRect(0, 0, 2, 0));
	EXPECT_EQ(canvas.Shape()[0], "...");
}


TEST(DrawBitmap, DrawsAPart)
{
	const BBitmap bitmap = bitmap_of({"....", ".#..", ".##.", "...."});
	Canvas canvas(4, 4);
	canvas.view->DrawBitmap(&bitmap, BRect(1, 1, 2, 2), BRect(0, 0, 3, 3));
	EXPECT_EQ(canvas.Shape(), (Picture{"##..", "##..", "####", "####"}));
}


TEST(DrawBitmap, LeavesOutWhatThePictureLacks)
{
	const BBitmap bitmap = bitmap_of({"##"});
	Canvas canvas(6, 1);
	canvas.view->DrawBitmap(&bitmap, BRect(-1, 0, 2, 0), BRect(1, 0, 4, 0));
	EXPECT_EQ(canvas.Shape()[0], "..##..");
}


TEST(DrawBitmap, DrawsGray)
{
	BBitmap bitmap(BRect(0, 0, 0, 0), B_GRAY8);
	*static_cast<uint8*>(bitmap.Bits()) = 0x42;
	Canvas canvas(1, 1);
	canvas.view->DrawBitmap(&bitmap, BPoint(0, 0));
	EXPECT_EQ(canvas.At(0, 0), 0x424242u);
}


TEST(ViewBitmap, FillsTheViewWithTiles)
{
	Canvas canvas(5, 4);
	{
		const BBitmap bitmap = bitmap_of({"#.", ".."});
		canvas.view->SetViewBitmap(&bitmap);
		// The view keeps the picture.
	}
	EXPECT_EQ(canvas.Shape()[0], ".....");
	canvas.Update();
	EXPECT_EQ(canvas.Shape(), (Picture{"#.#.#", ".....", "#.#.#", "....."}));
	// A part looks as it does when all is painted.
	canvas.Clear(make_color(255, 255, 255));
	canvas.Update(QRegion(1, 1, 2, 2));
	EXPECT_EQ(canvas.Shape(), (Picture{".....", ".....", "..#..", "....."}));
	canvas.view->ClearViewBitmap();
	canvas.Update();
	EXPECT_EQ(canvas.Shape()[0], ".....");
}


TEST(ViewBitmap, IsRepeatedInOneDirectionOrScaled)
{
	const BBitmap bitmap = bitmap_of({"#.", ".."});
	Canvas canvas(5, 4);
	canvas.view->SetViewBitmap(&bitmap, B_FOLLOW_LEFT_TOP, B_TILE_BITMAP_X);
	canvas.Update();
	EXPECT_EQ(canvas.Shape(), (Picture{"#.#.#", ".....", ".....", "....."}));
	canvas.view->SetViewBitmap(&bitmap, BRect(0, 0, 1, 1), BRect(1, 0, 4, 3), B_FOLLOW_NONE, 0);
	canvas.Update();
	EXPECT_EQ(canvas.Shape(), (Picture{".##..", ".##..", ".....", "....."}));
}


TEST(ViewBitmap, ShowsTheViewColorWhereItIsTransparent)
{
	BBitmap bitmap(BRect(0, 0, 1, 0), B_CMAP8);
	const uint8 indexes[4] = {0, 255, 0, 0};
	bitmap.SetBits(indexes, 4, 0, B_CMAP8);
	Canvas canvas(2, 1);
	canvas.view->SetViewColor(0, 0, 255);
	canvas.view->SetViewBitmap(&bitmap);
	canvas.Update();
	EXPECT_EQ(canvas.At(0, 0), 0x000000u);
	EXPECT_EQ(canvas.At(1, 0), 0x0000ffu);
}
