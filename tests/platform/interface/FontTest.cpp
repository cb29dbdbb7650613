// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Font.h>

#include <math.h>
#include <string.h>

#include <String.h>

#include "platform/screen/DisplayThread.h"
#include "tests/platform/interface/Canvas.h"
#include "tests/support/Output.h"
#include "tests/support/Program.h"

static_assert(B_NO_TRUNCATION == 0xffffffff && B_TRUNCATE_SMART == 3, "truncation");
static_assert(B_BITMAP_SPACING == 2 && B_FIXED_SPACING == 3, "spacing");
static_assert(B_ITALIC_FACE == 1 && B_BOLD_FACE == 0x20 && B_REGULAR_FACE == 0x40, "faces");
static_assert(sizeof(font_family) == 64 && sizeof(font_style) == 64, "names");


class FontTest : public testing::Test {
protected:
	static void SetUpTestSuite() { ASSERT_TRUE(hosted::DisplayThread::Start()); }

	std::string Truncated(const char* text, uint32 mode, float width)
	{
		BString string(text);
		fFont.TruncateString(&string, mode, width);
		return string.String();
	}

	BFont fFont;
};


TEST_F(FontTest, StartsAsThePlainFont)
{
	font_family family;
	font_style style;
	fFont.GetFamilyAndStyle(&family, &style);
	EXPECT_STREQ(family, "Noto Sans");
	EXPECT_STREQ(style, "Regular");
	EXPECT_FLOAT_EQ(fFont.Size(), 12);
	EXPECT_EQ(fFont.Spacing(), B_BITMAP_SPACING);
	EXPECT_EQ(fFont, *be_plain_font);
	EXPECT_EQ(BFont(static_cast<const BFont*>(nullptr)), *be_plain_font);
	EXPECT_NE(fFont, *be_bold_font);
	be_bold_font->GetFamilyAndStyle(&family, &style);
	EXPECT_STREQ(style, "Bold");
	be_fixed_font->GetFamilyAndStyle(&family, &style);
	EXPECT_STREQ(family, "Noto Sans Mono");
}


TEST_F(FontTest, ChangesFamilyAndStyle)
{
	EXPECT_EQ(fFont.SetFamilyAndStyle("Noto Sans Mono", "Bold Italic"), B_OK);
	EXPECT_EQ(fFont.Face(), B_BOLD_FACE | B_ITALIC_FACE);
	EXPECT_EQ(fFont.SetFamilyAndStyle("No Such Family", "Regular"), B_NAME_NOT_FOUND);
	EXPECT_EQ(fFont.SetFamilyAndStyle(nullptr, "Nonsense"), B_NAME_NOT_FOUND);
	EXPECT_EQ(fFont.SetFamilyAndStyle(nullptr, nullptr), B_BAD_VALUE);
	font_family family;
	font_style style;
	fFont.GetFamilyAndStyle(&family, &style);
	EXPECT_STREQ(family, "Noto Sans Mono");
	EXPECT_STREQ(style, "Bold Italic");
}


TEST_F(FontTest, WidthIsTheSumOfTheCharacters)
{
	// Kerning would bring these two together.
	const float sum = fFont.StringWidth("A") + fFont.StringWidth("V");
	EXPECT_GT(sum, 10);
	EXPECT_FLOAT_EQ(fFont.StringWidth("AV"), sum);
	EXPECT_FLOAT_EQ(fFont.StringWidth("AVxyz", 2), sum);
	EXPECT_FLOAT_EQ(fFont.StringWidth(nullptr), 0);
	EXPECT_FLOAT_EQ(fFont.StringWidth(""), 0);
	EXPECT_FLOAT_EQ(fFont.StringWidth("AV", 0), 0);
	EXPECT_FLOAT_EQ(fFont.StringWidth("AV", 1000), sum);
	EXPECT_GT(fFont.StringWidth("\xc3\xa4"), 5);
	EXPECT_LT(fFont.StringWidth("\xc3\xa4"), 9);
	EXPECT_FLOAT_EQ(fFont.StringWidth("\xc3\xa4"
									  "b"),
		fFont.StringWidth("\xc3\xa4") + fFont.StringWidth("b"));
}


TEST(FontWithoutDisplay, MeasuresNothingAndDrawsTheRest)
{
	test::Program program({test::ProgramPath("text-without-display")});
	EXPECT_EQ(program.ReadLine(), "0 0 Album");
	EXPECT_EQ(program.ReadLine(), "ffffff 000000");
	int status = -1;
	EXPECT_TRUE(program.WaitForEnd(&status));
	EXPECT_EQ(status, 0);
}


TEST_F(FontTest, FixedCharactersAreEquallyWide)
{
	EXPECT_FLOAT_EQ(be_fixed_font->StringWidth("iii"), be_fixed_font->StringWidth("MMM"));
	EXPECT_LT(be_plain_font->StringWidth("iii"), be_plain_font->StringWidth("MMM"));
	EXPECT_GT(be_bold_font->StringWidth("abc"), be_plain_font->StringWidth("abc"));
}


TEST_F(FontTest, SizesAreWholePixels)
{
	const float width = fFont.StringWidth("Album");
	fFont.SetSize(12.4f);
	EXPECT_FLOAT_EQ(fFont.StringWidth("Album"), width);
	fFont.SetSize(24);
	EXPECT_NEAR(fFont.StringWidth("Album"), 2 * width, 0.5f);
}


TEST_F(FontTest, HeightGrowsWithTheSize)
{
	font_height height;
	fFont.GetHeight(&height);
	EXPECT_NEAR(height.ascent, 12.8f, 1);
	EXPECT_NEAR(height.descent, 3.5f, 1);
	EXPECT_GE(height.leading, 0);
	fFont.SetSize(24);
	font_height twice;
	fFont.GetHeight(&twice);
	EXPECT_NEAR(twice.ascent, 2 * height.ascent, 1);
}


TEST_F(FontTest, PrintsNameAndSize)
{
	const std::string printed = test::OutputOf([this]() { fFont.PrintToStream(); });
	EXPECT_NE(printed.find("Noto Sans"), std::string::npos);
	EXPECT_NE(printed.find("12.0"), std::string::npos);
}


static const char* const kText = "abcdefghij";
#define ELLIPSIS "\xe2\x80\xa6"


TEST_F(FontTest, TextThatFitsIsNotTruncated)
{
	const float width = fFont.StringWidth(kText);
	for (uint32 mode : {B_TRUNCATE_END, B_TRUNCATE_BEGINNING, B_TRUNCATE_MIDDLE, B_TRUNCATE_SMART})
		EXPECT_EQ(Truncated(kText, mode, width), kText);
	// Rounding does no harm.
	EXPECT_EQ(Truncated(kText, B_TRUNCATE_END, width - 0.005f), kText);
	EXPECT_NE(Truncated(kText, B_TRUNCATE_END, width - 0.02f), kText);
	EXPECT_EQ(Truncated(kText, B_NO_TRUNCATION, 1), kText);
	EXPECT_EQ(Truncated("", B_TRUNCATE_END, 10), "");
}


TEST_F(FontTest, EndKeepsThePrefixThatFits)
{
	const float width = fFont.StringWidth("abc" ELLIPSIS);
	EXPECT_EQ(Truncated(kText, B_TRUNCATE_END, width + 0.01f), "abc" ELLIPSIS);
	EXPECT_EQ(Truncated(kText, B_TRUNCATE_END, width - 0.1f), "ab" ELLIPSIS);
}


TEST_F(FontTest, BeginningKeepsTheSuffixThatFits)
{
	const float width = fFont.StringWidth(ELLIPSIS "hij");
	EXPECT_EQ(Truncated(kText, B_TRUNCATE_BEGINNING, width + 0.01f), ELLIPSIS "hij");
	EXPECT_EQ(Truncated(kText, B_TRUNCATE_BEGINNING, width - 0.1f), ELLIPSIS "ij");
}


TEST_F(FontTest, TruncatesToNothingWhereTheEllipsisDoesNotFit)
{
	const float width = fFont.StringWidth(ELLIPSIS);
	for (uint32 mode :
		{B_TRUNCATE_END, B_TRUNCATE_BEGINNING, B_TRUNCATE_MIDDLE, B_TRUNCATE_SMART}) {
		EXPECT_EQ(Truncated(kText, mode, width - 0.1f), "");
		EXPECT_EQ(Truncated(kText, mode, -5), "");
		EXPECT_EQ(Truncated("WWWWWWWW", mode, width + 0.1f), ELLIPSIS);
	}
}


TEST_F(FontTest, MiddleKeepsBothEnds)
{
	// All equally wide: taken in turn from the left and the right, given back from the right, then
	// from the left while that is the wider part.
	BFont font(be_fixed_font);
	const float one = font.StringWidth("a");
	ASSERT_FLOAT_EQ(font.StringWidth(ELLIPSIS), one);
	BString text("0123456789");
	font.TruncateString(&text, B_TRUNCATE_MIDDLE, 5 * one + 0.1f);
	EXPECT_STREQ(text.String(), "01" ELLIPSIS "89");
	text = "0123456789";
	font.TruncateString(&text, B_TRUNCATE_MIDDLE, 6 * one + 0.1f);
	EXPECT_STREQ(text.String(), "012" ELLIPSIS "89");
	text = "0123456789";
	font.TruncateString(&text, B_TRUNCATE_MIDDLE, 2 * one + 0.1f);
	EXPECT_STREQ(text.String(), "0" ELLIPSIS);
}


TEST_F(FontTest, SmartDoesWhatMiddleDoes)
{
	for (float width = 0; width < 120; width += 3) {
		EXPECT_EQ(Truncated("A title.mp3 of some length", B_TRUNCATE_SMART, width),
			Truncated("A title.mp3 of some length", B_TRUNCATE_MIDDLE, width));
	}
}


TEST_F(FontTest, TruncatedTextFits)
{
	for (uint32 mode : {B_TRUNCATE_END, B_TRUNCATE_BEGINNING, B_TRUNCATE_SMART}) {
		for (float width = 0; width < 150; width += 7) {
			const std::string text
				= Truncated("M\xc3\xbcller & S\xc3\xb6hne \xe2\x82\xac", mode, width);
			EXPECT_LE(fFont.StringWidth(text.c_str()), width + 0.01f);
		}
	}
}
