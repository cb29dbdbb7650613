// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <String.h>

#include "platform/screen/DisplayThread.h"
#include "tests/platform/interface/Canvas.h"

using test::Canvas;
using test::Picture;


class DrawString : public testing::Test {
protected:
	static void SetUpTestSuite() { ASSERT_TRUE(hosted::DisplayThread::Start()); }

	// The rectangle of the pixels that are not white.
	static BRect Painted(const Canvas& canvas)
	{
		BRect painted;
		bool first = true;
		const Picture shape = canvas.Shape();
		for (size_t y = 0; y < shape.size(); y++) {
			for (size_t x = 0; x < shape[y].size(); x++) {
				if (shape[y][x] == '.')
					continue;
				const BRect pixel(x, y, x, y);
				painted = first ? pixel : painted | pixel;
				first = false;
			}
		}
		return painted;
	}
};


TEST_F(DrawString, StandsOnTheBaseLine)
{
	Canvas canvas(60, 30);
	canvas.view->DrawString("HEH", BPoint(10, 20));
	const BRect painted = Painted(canvas);
	EXPECT_NEAR(painted.left, 11, 1);
	// The base line is the lower edge of the row above it.
	EXPECT_EQ(painted.bottom, 19);
	EXPECT_NEAR(painted.top, 11, 1);
	EXPECT_LE(painted.right, 10 + canvas.view->StringWidth("HEH"));
}


TEST_F(DrawString, MovesThePenByTheWidth)
{
	Canvas canvas(60, 30);
	const float width = canvas.view->StringWidth("Album");
	canvas.view->DrawString("Album", BPoint(5, 20));
	EXPECT_EQ(canvas.view->PenLocation(), BPoint(5 + width, 20));
	canvas.view->DrawString("Album");
	EXPECT_EQ(canvas.view->PenLocation(), BPoint(5 + width + width, 20));
	canvas.view->DrawString("Album and more", 5, BPoint(0, 20));
	EXPECT_EQ(canvas.view->PenLocation(), BPoint(width, 20));
	canvas.view->DrawString(static_cast<const char*>(nullptr), BPoint(0, 0));
	EXPECT_EQ(canvas.view->PenLocation(), BPoint(width, 20));
}


// Two of the Arabic letter beh.
TEST_F(DrawString, LettersOfJoiningScriptsAreJoined)
{
	const char* const letter = "\xd8\xa8";
	Canvas joined(60, 30);
	joined.view->DrawString("\xd8\xa8\xd8\xa8", BPoint(10, 20));
	Canvas alone(60, 30);
	alone.view->DrawString(letter, BPoint(10, 20));
	alone.view->DrawString(letter, BPoint(10 + alone.view->StringWidth(letter), 20));
	EXPECT_NE(joined.Shape(), alone.Shape());
	const BRect painted = Painted(joined);
	EXPECT_TRUE(painted.IsValid());
	// Joined letters are narrower, never wider than measured.
	EXPECT_LE(painted.right, 10 + joined.view->StringWidth("\xd8\xa8\xd8\xa8"));
	EXPECT_LT(painted.Width(), Painted(alone).Width());
}


TEST_F(DrawString, RoundsThePlaceOfTheBaseLine)
{
	Canvas first(60, 30);
	first.view->DrawString("Wave", BPoint(5, 20));
	Canvas second(60, 30);
	second.view->DrawString("Wave", BPoint(4.6f, 20.4f));
	EXPECT_EQ(first.Shape(), second.Shape());
}


TEST_F(DrawString, UsesTheHighColorInCopyAndOverAlike)
{
	Canvas copy(60, 30);
	copy.Clear(make_color(0, 0, 100));
	copy.view->SetHighColor(255, 255, 0, 10);
	copy.view->SetLowColor(255, 0, 0);
	copy.view->DrawString("HHH", BPoint(5, 20));
	Canvas over(60, 30);
	over.Clear(make_color(0, 0, 100));
	over.view->SetHighColor(255, 255, 0);
	over.view->SetDrawingMode(B_OP_OVER);
	over.view->DrawString("HHH", BPoint(5, 20));
	bool foundFull = false;
	for (int32 y = 0; y < 30; y++) {
		for (int32 x = 0; x < 60; x++) {
			EXPECT_EQ(copy.At(x, y), over.At(x, y));
			foundFull = foundFull || copy.At(x, y) == 0xffff00;
			// The low color plays no part: red never exceeds green.
			EXPECT_LE(copy.At(x, y) >> 16, (copy.At(x, y) >> 8 & 0xff));
		}
	}
	EXPECT_TRUE(foundFull);
	EXPECT_EQ(copy.At(0, 0), 0x000064u);
}


TEST_F(DrawString, OtherModesPaintTheSameShape)
{
	Canvas copy(60, 30);
	copy.view->DrawString("Wave", BPoint(5, 20));
	Canvas alpha(60, 30);
	alpha.view->SetDrawingMode(B_OP_ALPHA);
	alpha.view->DrawString("Wave", BPoint(5, 20));
	for (int32 y = 0; y < 30; y++) {
		for (int32 x = 0; x < 60; x++) {
			EXPECT_NEAR(static_cast<int>(copy.At(x, y) & 0xff),
				static_cast<int>(alpha.At(x, y) & 0xff), 3);
		}
	}
}


TEST_F(DrawString, LineFeedBreaksNoLine)
{
	Canvas canvas(60, 60);
	canvas.view->DrawString("H\nH", BPoint(5, 20));
	EXPECT_EQ(Painted(canvas).bottom, 19);
	Canvas single(60, 60);
	single.view->DrawString("HH", BPoint(5, 20));
	EXPECT_EQ(canvas.Shape(), single.Shape());
}


TEST_F(DrawString, IsClippedToTheView)
{
	Canvas canvas(20, 20);
	canvas.view->DrawString("HHHHHHHH", BPoint(-10, 15));
	EXPECT_EQ(Painted(canvas).left, 0);
	EXPECT_EQ(Painted(canvas).right, 19);
}


TEST_F(DrawString, AddsTheSpacingThatIsAsked)
{
	Canvas canvas(80, 30);
	escapement_delta delta = {5, 9};
	canvas.view->DrawString("a b", BPoint(0, 20), &delta);
	EXPECT_NEAR(canvas.view->PenLocation().x, canvas.view->StringWidth("a b") + 5 + 9 + 5, 0.01f);
}


TEST_F(DrawString, DrawCharDrawsOne)
{
	Canvas canvas(30, 30);
	canvas.view->DrawChar('H', BPoint(5, 20));
	EXPECT_EQ(canvas.view->PenLocation(), BPoint(5 + canvas.view->StringWidth("H"), 20));
	Canvas other(30, 30);
	other.view->DrawString("H", BPoint(5, 20));
	EXPECT_EQ(canvas.Shape(), other.Shape());
	canvas.view->MovePenTo(15, 20);
	canvas.view->DrawChar('H');
	EXPECT_NE(canvas.Shape(), other.Shape());
}


TEST_F(DrawString, ViewTakesThePartsOfAFont)
{
	Canvas canvas(10, 10);
	BFont font(be_bold_font);
	font.SetSize(20);
	canvas.view->SetFont(&font, B_FONT_SIZE);
	BFont result;
	canvas.view->GetFont(&result);
	EXPECT_FLOAT_EQ(result.Size(), 20);
	EXPECT_EQ(result.Face(), B_REGULAR_FACE);
	canvas.view->SetFont(&font);
	canvas.view->GetFont(&result);
	EXPECT_EQ(result, font);
	canvas.view->SetFontSize(9);
	canvas.view->GetFont(&result);
	EXPECT_FLOAT_EQ(result.Size(), 9);
	EXPECT_EQ(result.Face(), B_BOLD_FACE);
	EXPECT_FLOAT_EQ(canvas.view->StringWidth("abc"), result.StringWidth("abc"));
	EXPECT_FLOAT_EQ(canvas.view->StringWidth("abc", 2), result.StringWidth("ab"));
	font_height height;
	canvas.view->GetFontHeight(&height);
	EXPECT_GT(height.ascent, 8);
	BString text("a long text");
	canvas.view->TruncateString(&text, B_TRUNCATE_END, 30);
	EXPECT_LE(canvas.view->StringWidth(text.String()), 30);
}
