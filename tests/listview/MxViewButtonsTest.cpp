// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Bitmap.h>

#include "tests/listview/ListViewFixture.h"
#include "tests/support/Output.h"


namespace {

constexpr rgb_color kHighlight = {252, 252, 252, 255};
constexpr rgb_color kGlyph = {25, 25, 25, 255};

struct Triangle {
	int baseY;
	int tipY;
};

struct Glyph {
	std::vector<Triangle> triangles;
	// Top of the bar three pixels high; -1 for none.
	int barTop;
};

// In rows of the glyph's box, which is 23 pixels high.
const Glyph kGlyphs[] = {
	{{{17, 9}}, 5},
	{{{5, 13}}, 15},
	{{{11, 3}, {20, 12}}, -1},
	{{{2, 10}, {11, 19}}, -1},
	{{{16, 8}}, -1},
	{{{6, 14}}, -1},
};


class MxViewButtons : public ListViewFixture {
protected:
	void SetUp() override { MakePicture(400, 300); }

	// Draws a button alone into a frame whose glyph's box begins at (102, 51).
	void DrawButton(int32 button)
	{
		fView->SetHighColor(kUntouched);
		fView->FillRect(fView->Bounds());
		fView->PlyBut(button, BRect(81, 21, 141, 103));
		fView->Sync();
	}

	// The dark pixels of a row of the box.
	int CountDark(int row) { return Count(BRect(80, 50 + row, 141, 50 + row), kGlyph); }
	int CountLight(int row) { return Count(BRect(80, 51 + row, 141, 51 + row), kHighlight); }
};

} // namespace


TEST_F(MxViewButtons, GlyphsAreTrianglesOverTheirBase)
{
	for (int32 button = 0; button < 6; button++) {
		DrawButton(button);
		for (const Triangle& triangle : kGlyphs[button].triangles) {
			const int down = triangle.tipY > triangle.baseY ? 1 : -1;
			// 17 pixels at the base, fewer with every row, none beyond.
			EXPECT_GE(CountDark(triangle.baseY + down), 11) << button;
			EXPECT_LE(CountDark(triangle.baseY + down), 15) << button;
			EXPECT_LT(CountDark(triangle.baseY + 4 * down), CountDark(triangle.baseY + down));
			EXPECT_LT(CountDark(triangle.baseY + 6 * down), CountDark(triangle.baseY + 4 * down));
			EXPECT_EQ(At(111, 50 + triangle.baseY + 4 * down), kGlyph) << button;
			EXPECT_EQ(CountDark(triangle.tipY + down), 0) << button;
		}
	}
}


TEST_F(MxViewButtons, FirstAndLastHaveABar)
{
	for (int32 button = 0; button < 6; button++) {
		DrawButton(button);
		const int top = kGlyphs[button].barTop;
		if (top < 0)
			continue;
		const BRect bar(103, 50 + top, 119, 52 + top);
		EXPECT_EQ(Count(bar, kGlyph), 17 * 3) << button;
		// The light copy looks out at the right and below.
		EXPECT_EQ(Count(BRect(120, 51 + top, 121, 53 + top), kHighlight), 2 * 3) << button;
		EXPECT_EQ(Count(BRect(105, 53 + top, 121, 53 + top), kHighlight), 17) << button;
		EXPECT_EQ(CountLight(top + 3), 0) << button;
	}
}


TEST_F(MxViewButtons, NothingElseIsDrawn)
{
	for (int32 button = 0; button < 6; button++) {
		DrawButton(button);
		EXPECT_EQ(Count(BRect(0, 0, 400, 49), kUntouched), 401 * 50) << button;
		EXPECT_EQ(Count(BRect(0, 75, 400, 300), kUntouched), 401 * 226) << button;
		EXPECT_EQ(Count(BRect(0, 50, 99, 74), kUntouched), 100 * 25) << button;
		EXPECT_EQ(Count(BRect(126, 50, 400, 74), kUntouched), 275 * 25) << button;
	}
}


TEST_F(MxViewButtons, GlyphIsCenteredInWholePixels)
{
	// (20 * 0.5 - 11) + 2 is 1 to the right of the frame's left, 30.7 + (9.5 * 0.5 - 11) is 24.45.
	fView->SetHighColor(kUntouched);
	fView->FillRect(fView->Bounds());
	fView->PlyBut(0, BRect(30.4, 30.7, 50.4, 40.2));
	fView->Sync();
	const BRect bar(31 - 2 + 3, 24 - 1 + 5, 31 - 2 + 19, 24 - 1 + 7);
	EXPECT_EQ(Count(bar, kGlyph), 17 * 3);
	EXPECT_EQ(At(bar.left - 1, bar.top), kUntouched);
	EXPECT_EQ(At(bar.left, bar.top - 1), kUntouched);
}


TEST_F(MxViewButtons, FrameIsRemembered)
{
	for (int32 button = 0; button < 6; button++)
		fView->PlyBut(button, BRect(button, 10, 100 + button, 60));
	for (int32 button = 0; button < 6; button++)
		EXPECT_EQ(fView->buttonRect[button], BRect(button, 10, 100 + button, 60));
}


TEST_F(MxViewButtons, BadNumberTakesTheLastPlaceAndDrawsNothing)
{
	for (const int32 button : {-1, 6, 999}) {
		const BRect before = fView->buttonRect[4];
		const std::string output = test::OutputOf([&] { DrawButton(button); });
		EXPECT_EQ(output, " " + std::to_string(button) + " ..BAD PLYBUTTON !!\n");
		EXPECT_EQ(fView->buttonRect[5], BRect(81, 21, 141, 103));
		EXPECT_EQ(fView->buttonRect[4], before);
		EXPECT_EQ(Count(fView->Bounds(), kUntouched), 401 * 301);
	}
}
