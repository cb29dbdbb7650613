// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "entryview/MEView.h"

#include <string>
#include <vector>

#include <string.h>

#include <Bitmap.h>
#include <Font.h>
#include <gtest/gtest.h>

#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"


namespace {

constexpr float kWidth = 490;
constexpr float kHeight = 114;


// A tile that draws into a bitmap.
class MEViewDraw : public testing::Test {
protected:
	void SetUp() override
	{
		test::TheApplication();
		Prefs::getSTPrefs()->playingTitle = "";
		KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
		MEView::SepListSelected = false;
		MEView::IsSelected = -1;
		MEView::IsNext = -1;
		fBitmap = new BBitmap(BRect(0, 0, kWidth, kHeight), B_RGB32, true);
		fParent = new BView(fBitmap->Bounds(), "parent", 0, B_WILL_DRAW);
		fParent->SetViewColor(90, 91, 92);
		fBitmap->AddChild(fParent);
		fTile = new MEView(fBitmap->Bounds(), "tile", "Song.mp3", 4);
		ASSERT_TRUE(fBitmap->Lock());
		fParent->AddChild(fTile);
		fBitmap->Unlock();
	}

	void TearDown() override
	{
		delete fBitmap;
		MEView::SepListSelected = false;
		MEView::IsSelected = 0;
		MEView::IsNext = 0;
	}

	void Draw()
	{
		ASSERT_TRUE(fBitmap->Lock());
		fTile->Draw(fTile->Bounds());
		fParent->Sync();
		fBitmap->Unlock();
	}

	rgb_color At(int x, int y)
	{
		const uint8* const pixel
			= static_cast<const uint8*>(fBitmap->Bits()) + y * fBitmap->BytesPerRow() + x * 4;
		return {pixel[2], pixel[1], pixel[0], 255};
	}

	// How many pixels of the area have that color.
	int Count(BRect area, rgb_color color)
	{
		int count = 0;
		for (int y = static_cast<int>(area.top); y <= area.bottom; y++) {
			for (int x = static_cast<int>(area.left); x <= area.right; x++)
				count += At(x, y) == color ? 1 : 0;
		}
		return count;
	}

	std::vector<uint8> Pixels(BRect area)
	{
		std::vector<uint8> pixels;
		for (int y = static_cast<int>(area.top); y <= area.bottom; y++) {
			for (int x = static_cast<int>(area.left); x <= area.right; x++) {
				const rgb_color color = At(x, y);
				pixels.insert(pixels.end(), {color.red, color.green, color.blue});
			}
		}
		return pixels;
	}

	// The first column of the number or the time, which end at the right.
	static int LeftOf(const char* label)
	{
		BFont font(be_bold_font);
		font.SetSize(10);
		return static_cast<int>(485 - font.StringWidth(label));
	}

	BBitmap* fBitmap = nullptr;
	BView* fParent = nullptr;
	MEView* fTile = nullptr;
};


constexpr rgb_color kBackground = {240, 240, 240, 255};
constexpr rgb_color kPlayingBackground = {250, 250, 150, 255};
constexpr rgb_color kRed = {200, 80, 80, 255};
const BRect kPictureArea(3, 3, 50, 52);
const BRect kNumberArea(250, 14, 489, 26);
const BRect kTimeArea(250, 30, 489, 42);
const BRect kTextArea(60, 50, 400, 113);

} // namespace


TEST_F(MEViewDraw, OrdinaryTile)
{
	Draw();
	EXPECT_EQ(At(200, 5), kBackground);
	EXPECT_EQ(At(200, 0), (rgb_color{130, 130, 130, 255}));
	EXPECT_EQ(At(200, 114), (rgb_color{130, 130, 130, 255}));
	// Outside the round corner the parent's color erases what was there.
	EXPECT_EQ(At(0, 0), (rgb_color{90, 91, 92, 255}));
}


TEST_F(MEViewDraw, PlayingTileIsYellow)
{
	Prefs::getSTPrefs()->playingTitle = "Song";
	Draw();
	EXPECT_EQ(At(200, 5), kPlayingBackground);
	EXPECT_EQ(At(200, 0), (rgb_color{20, 20, 20, 255}));
}


TEST_F(MEViewDraw, NextTileHasABlueFrameUnlessItIsTheSelectedOne)
{
	MEView::IsNext = 4;
	MEView::IsSelected = 3;
	Draw();
	EXPECT_EQ(At(200, 0), (rgb_color{120, 120, 250, 255}));
	MEView::IsSelected = 4;
	Draw();
	EXPECT_EQ(At(200, 0), (rgb_color{130, 130, 130, 255}));
}


TEST_F(MEViewDraw, TileAboveTheViewDrawsNothing)
{
	Draw();
	const rgb_color before = At(200, 5);
	Prefs::getSTPrefs()->playingTitle = "Song";
	fTile->MoveTo(0, -kHeight - 1);
	Draw();
	EXPECT_EQ(At(200, 5), before);

	// Its last row is still to be seen.
	fTile->MoveTo(0, -kHeight);
	Draw();
	EXPECT_EQ(At(200, 0), (rgb_color{20, 20, 20, 255}));
}


TEST_F(MEViewDraw, NameIsDrawnAtTheBottom)
{
	Draw();
	EXPECT_GT(Count(BRect(119, 60, 300, 112), {130, 130, 130, 255}), 20);
	// Text begins behind the place of the cover.
	EXPECT_EQ(Count(BRect(4, 60, 118, 112), kBackground), 115 * 53);
}


TEST_F(MEViewDraw, KindIsShownWhereThereIsNoCover)
{
	Draw();
	const int plain = Count(kPictureArea, kBackground);
	fTile->fKind = MEView::kAudioKind;
	Draw();
	const int audio = Count(kPictureArea, kBackground);
	EXPECT_LT(audio, plain);
	fTile->fKind = MEView::kVideoKind;
	Draw();
	EXPECT_LT(Count(kPictureArea, kBackground), plain);
	// The name moves beside the picture.
	EXPECT_LT(Count(BRect(59, 60, 118, 112), kBackground), 60 * 53);
}


TEST_F(MEViewDraw, CoverIsScaledIntoTheTile)
{
	BBitmap cover(BRect(0, 0, 9, 9), B_RGB32);
	for (int32 at = 0; at < cover.BitsLength(); at += 4) {
		const uint8 pixel[] = {30, 20, 10, 255};
		memcpy(static_cast<uint8*>(cover.Bits()) + at, pixel, sizeof(pixel));
	}
	fTile->fCover = &cover;
	Draw();
	EXPECT_TRUE(fTile->fCoverDrawn);
	const rgb_color color = {10, 20, 30, 255};
	EXPECT_EQ(At(3, 3), color);
	EXPECT_EQ(At(111, 111), color);
	EXPECT_EQ(At(113, 50), kBackground);

	// An album's own list shows no covers; its texts begin at the left.
	fTile->fCoverDrawn = false;
	MEView::SepListSelected = true;
	Draw();
	EXPECT_FALSE(fTile->fCoverDrawn);
	EXPECT_EQ(Count(BRect(3, 3, 100, 50), color), 0);
	EXPECT_LT(Count(BRect(10, 60, 100, 112), kBackground), 91 * 53);
}


TEST_F(MEViewDraw, NumberOrTrack)
{
	Draw();
	const int number = Count(kNumberArea, kBackground);
	fTile->fTrack = 3;
	Draw();
	EXPECT_EQ(Count(kNumberArea, kBackground), number);
	MEView::SepListSelected = true;
	Draw();
	EXPECT_LT(Count(kNumberArea, kBackground), number);
}


TEST_F(MEViewDraw, UnknownTimeIsRed)
{
	Draw();
	EXPECT_GT(Count(kTimeArea, kRed), 10);
	fTile->fMinutes = 12;
	fTile->fSeconds = 5;
	fTile->fLengthCode = 1205;
	Draw();
	EXPECT_EQ(Count(kTimeArea, kRed), 0);
	EXPECT_LT(Count(kTimeArea, kBackground), 240 * 13);
}


TEST_F(MEViewDraw, BadNameHasARedStar)
{
	const rgb_color star = {250, 80, 80, 255};
	Draw();
	EXPECT_EQ(Count(kTextArea, star), 0);
	fTile->fBadCharacters = true;
	Draw();
	EXPECT_GT(Count(BRect(119, 60, 139, 112), star), 3);
}


TEST_F(MEViewDraw, ShortArtistIsNotShown)
{
	fTile->fArtist = "ab";
	Draw();
	EXPECT_EQ(Count(BRect(119, 30, 249, 60), kBackground), 131 * 31);
	fTile->fArtist = "abc";
	Draw();
	EXPECT_LT(Count(BRect(119, 30, 249, 60), kBackground), 131 * 31);
}


// Letters that reach as far up and down as any do.
TEST_F(MEViewDraw, LongTextsStayAwayFromTheNumberTheTimeAndTheEdge)
{
	const char* const texts[] = {
		"ÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇgÅÇg",
		"東京事変東京事変東京事変東京事変東京事変東京事変東京事変東京事変東京事変東京事変東京事変",
		"Ὕμνος εἰς τὴν Ἐλευθερίαν, Ὕμνος εἰς τὴν Ἐλευθερίαν, Ὕμνος εἰς τὴν Ἐλευθερίαν",
	};
	fTile->fLengthCode = 12345;
	fTile->fMinutes = 123;
	fTile->fSeconds = 45;
	for (const float height : {114, 95, 76, 57, 48}) {
		fTile->ResizeTo(kWidth, height);
		for (const bool isAlbum : {false, true}) {
			MEView::SepListSelected = isAlbum;
			fTile->fTrack = 12;
			fTile->fName = "x";
			fTile->fArtist = "";
			fTile->fBadCharacters = false;
			Draw();
			const BRect number(LeftOf(isAlbum ? " AlbumTrack: 12" : "[5]") - 2, 14, 485, 28);
			const BRect time(LeftOf(" 123:45 ") - 2, 29, 485, 43);
			const BRect edge(481, 44, kWidth, height - 5);
			const std::vector<uint8> before[] = {Pixels(number), Pixels(time), Pixels(edge)};
			for (const char* text : texts) {
				fTile->fName = text;
				fTile->fArtist = text;
				for (const bool isBad : {false, true}) {
					fTile->fBadCharacters = isBad;
					Draw();
					EXPECT_TRUE(Pixels(number) == before[0]) << height << isAlbum << text;
					EXPECT_TRUE(Pixels(time) == before[1]) << height << isAlbum << text;
					EXPECT_TRUE(Pixels(edge) == before[2]) << height << isAlbum << text;
				}
			}
		}
	}
}


TEST_F(MEViewDraw, LongTextsReachFarWhereTheyMay)
{
	fTile->fName = "wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww";
	Draw();
	EXPECT_LT(Count(BRect(440, 70, 479, 95), kBackground), 40 * 26);
	fTile->fArtist = fTile->fName;
	Draw();
	EXPECT_LT(Count(BRect(400, 44, 430, 60), kBackground), 31 * 17);
}


TEST_F(MEViewDraw, LongMissingPathEndsBeforeTheEdge)
{
	fTile->fFound = false;
	fTile->fMissingPath.SetTo(("/music/" + std::string(200, 'm') + "/gone.mp3").c_str());
	Draw();
	EXPECT_EQ(Count(BRect(481, 2, 486, 13), kBackground), 6 * 12);
	EXPECT_LT(Count(BRect(440, 1, 479, 13), kBackground), 40 * 13);
}


TEST_F(MEViewDraw, MissingEntryShowsItsPath)
{
	const rgb_color orange = {250, 120, 50, 255};
	fTile->fFound = false;
	fTile->fMissingPath.SetTo("/music/gone.mp3");
	Draw();
	EXPECT_GT(Count(BRect(59, 20, 249, 75), orange), 20);
	EXPECT_GT(Count(BRect(59, 1, 249, 13), orange), 20);
	EXPECT_LT(Count(kPictureArea, kBackground), 48 * 50);
}


TEST_F(MEViewDraw, LowTilesOfEverySizeAreDrawn)
{
	for (const float height : {95, 76, 57, 48}) {
		fTile->ResizeTo(kWidth, height);
		fTile->fFound = false;
		Draw();
		EXPECT_EQ(At(200, static_cast<int>(height)), (rgb_color{130, 130, 130, 255})) << height;
	}
}


TEST_F(MEViewDraw, DrawingLeavesTheStateAlone)
{
	const rgb_color color = fTile->HighColor();
	Draw();
	EXPECT_EQ(fTile->HighColor(), color);
	EXPECT_EQ(fTile->DrawingMode(), B_OP_COPY);
	BFont font;
	fTile->GetFont(&font);
	EXPECT_EQ(font.Size(), 11);
}
