// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <string.h>

#include <Bitmap.h>
#include <Font.h>
#include <InterfaceDefs.h>

#include "entryview/MEView.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"
#include "window/BitmapPath.h"

#include <QImage>


namespace {

constexpr rgb_color kDark = {20, 20, 20, 255};
constexpr rgb_color kPanel = {240, 240, 240, 255};
constexpr rgb_color kYellow = {250, 250, 150, 255};
constexpr rgb_color kFrame = {120, 120, 120, 255};
constexpr rgb_color kLight = {253, 253, 253, 255};
constexpr rgb_color kHint = {25, 25, 25, 255};
constexpr rgb_color kBusy = {250, 100, 100, 255};
constexpr rgb_color kCover = {10, 120, 200, 255};
const rgb_color kOuterEdge = tint_color(kPanel, 1.295f);
const rgb_color kInnerEdge = tint_color(kPanel, 1.555f);

// Where the hint for an empty list stands in a view of 1001 x 701 pixels.
const BRect kHintArea(495, 316, 900, 342);


// All of it in a view of 1001 x 701 pixels with tiles of 114 pixels, unless a test says otherwise.
class MxViewDraw : public ListViewFixture {
protected:
	MxViewDraw() { Prefs::getSTPrefs()->window_mtab = false; }

	void AddAlbums(int count)
	{
		for (int number = 0; number < count; number++)
			AddAlbum("album" + std::to_string(number), kCover);
	}

	// Takes the tiles away from what they cover.
	void HideTiles()
	{
		for (int32 index = 0; index < fView->CountChildren(); index++)
			Tile(index)->MoveTo(0, -1000);
	}
};

} // namespace


TEST_F(MxViewDraw, FrameIsDrawnWithTheTitleTabHidden)
{
	MakePicture();
	EXPECT_EQ(At(700, 6), kUntouched);
	Prefs::getSTPrefs()->window_mtab = true;
	Redraw();
	EXPECT_EQ(At(700, 6), kDark);
	EXPECT_EQ(At(700, 694), kDark);
	EXPECT_EQ(At(4, 600), kDark);
	EXPECT_EQ(At(996, 600), kDark);
	EXPECT_EQ(At(5, 600), kUntouched);
	// The corners are round.
	EXPECT_EQ(At(4, 6), kUntouched);
	EXPECT_EQ(At(996, 694), kUntouched);
}


TEST_F(MxViewDraw, ViewIsOutlined)
{
	MakePicture();
	for (const BPoint& where : {BPoint(0, 0), BPoint(1000, 0), BPoint(0, 700), BPoint(1000, 700),
			 BPoint(500, 0), BPoint(500, 700), BPoint(0, 200), BPoint(1000, 200)})
		EXPECT_EQ(At(where.x, where.y), kDark) << where.x << ", " << where.y;
	EXPECT_EQ(At(1, 200), kUntouched);
}


TEST_F(MxViewDraw, ColorsFollowTheSystem)
{
	// A longer list shows no hint, which has a low color and a font of its own.
	AddTitles(3);
	MakePicture();
	const rgb_color background = ui_color(B_MENU_BACKGROUND_COLOR);
	fView->listBackColor = {1, 2, 3, 255};
	fView->SetViewColor(1, 2, 3);
	fView->SetLowColor(1, 2, 3);
	fView->SetFont(be_bold_font);
	fView->SetPenSize(5);
	fView->SetDrawingMode(B_OP_BLEND);
	Redraw();
	EXPECT_EQ(fView->PenSize(), 1);
	EXPECT_EQ(fView->DrawingMode(), B_OP_COPY);
	EXPECT_EQ(fView->listBackColor, background);
	EXPECT_EQ(fView->ViewColor(), background);
	EXPECT_EQ(fView->LowColor(), background);
	BFont font;
	fView->GetFont(&font);
	EXPECT_EQ(font.Size(), 10);
	EXPECT_EQ(font.Face(), be_plain_font->Face());
}


TEST_F(MxViewDraw, CenterBarMarksTheRow)
{
	MakePicture();
	EXPECT_EQ(Count(BRect(455, 348, 990, 348), kLight), 536);
	EXPECT_EQ(Count(BRect(455, 352, 990, 352), kLight), 536);
	EXPECT_EQ(Count(BRect(456, 349, 989, 351), kDark), 3 * 534);
	EXPECT_EQ(At(454, 350), kUntouched);
	EXPECT_EQ(At(991, 350), kUntouched);
	EXPECT_EQ(At(700, 347), kUntouched);
	EXPECT_EQ(At(700, 353), kUntouched);
}


TEST_F(MxViewDraw, ButtonsStandInTheirStrip)
{
	MakePicture();
	// The cover grid ends at 400; the tiles begin at 485.
	EXPECT_EQ(fView->imageGridRect.right, 400);
	EXPECT_EQ(fView->buttonRect[0], BRect(415, 10, 475, 68));
	EXPECT_EQ(fView->buttonRect[2], BRect(415, 78, 475, 282));
	EXPECT_EQ(fView->buttonRect[4], BRect(415, 292, 475, 340));
	EXPECT_EQ(fView->buttonRect[5], BRect(415, 360, 475, 408));
	EXPECT_EQ(fView->buttonRect[3], BRect(415, 418, 475, 622));
	EXPECT_EQ(fView->buttonRect[1], BRect(415, 632, 475, 690));
}


TEST_F(MxViewDraw, ButtonsBesideTheCenterAreDrawnFirst)
{
	MakePicture();
	fView->buttonsDrawn.clear();
	fView->Draw(fView->Bounds());
	EXPECT_EQ(fView->buttonsDrawn, (std::vector<long>{4, 5, 3, 1, 0, 2}));
}


TEST_F(MxViewDraw, ButtonsHaveAFaceAndThreeEdges)
{
	MakePicture();
	for (const BRect& frame : fView->buttonRect) {
		const float middleY = frame.top + 20;
		EXPECT_EQ(At(frame.left, middleY), kDark);
		EXPECT_EQ(At(frame.left + 1, middleY), kPanel);
		EXPECT_EQ(At(frame.right - 1, middleY), kPanel);
		EXPECT_EQ(At(frame.right, middleY), kDark);
		EXPECT_EQ(At(frame.right + 1, middleY), kInnerEdge);
		EXPECT_EQ(At(frame.right + 2, middleY), kOuterEdge);
		EXPECT_EQ(At(frame.right + 3, middleY), kUntouched);
		EXPECT_EQ(At(445, frame.top), kDark);
		EXPECT_EQ(At(445, frame.bottom), kDark);
		EXPECT_EQ(At(445, frame.bottom + 1), kInnerEdge);
		EXPECT_EQ(At(445, frame.bottom + 2), kOuterEdge);
		// The corners are round.
		EXPECT_EQ(At(frame.left, frame.top), kUntouched);
		EXPECT_EQ(At(frame.right + 2, frame.bottom + 2), kUntouched);
	}
}


TEST_F(MxViewDraw, EmptyListShowsTheHint)
{
	MakePicture();
	EXPECT_GT(Count(kHintArea, kHint), 500);
	EXPECT_GT(Count(kHintArea, kPanel), 40);
	EXPECT_EQ(Count(BRect(900, 316, 980, 342), kUntouched), 81 * 27);
}


TEST_F(MxViewDraw, TwoTitlesShowTheHintAndThreeDoNot)
{
	AddTitles(2);
	MakePicture();
	HideTiles();
	Redraw();
	EXPECT_GT(Count(kHintArea, kHint), 500);

	AddTitle("Third.mp3");
	fView->ChildsFromList(true);
	Redraw();
	EXPECT_EQ(Count(kHintArea, kUntouched), 406 * 27);
}


TEST_F(MxViewDraw, WithoutAListThereIsNoHint)
{
	MakePicture();
	MxView::MedList = nullptr;
	const std::string output = test::OutputOf([this] { Redraw(); });
	EXPECT_NE(output.find(" *MxView::Draw() MedList == NULL\n"), std::string::npos);
	EXPECT_EQ(Count(kHintArea, kUntouched), 406 * 27);
}


TEST_F(MxViewDraw, PathTroubleIsShownBelowTheGridOfAShortList)
{
	const BRect area(29, 67, 250, 92);
	MakePicture();
	EXPECT_EQ(Count(area, kHint), 0);
	fView->pathTrouble = true;
	Redraw();
	EXPECT_GT(Count(area, kHint), 300);

	AddTitles(3);
	fView->ChildsFromList(true);
	Redraw();
	EXPECT_EQ(Count(area, kHint), 0);
}


TEST_F(MxViewDraw, GridNeedsItsWidth)
{
	AddAlbums(3);
	MakePicture(714, 700);
	EXPECT_FALSE(fView->imagesFit);
	EXPECT_EQ(fView->imageGridRect, BRect(0, 0, 1, 1));
	EXPECT_EQ(Count(BRect(1, 1, 100, 100), kCover), 0);
	// The buttons take the room.
	EXPECT_EQ(fView->buttonRect[0], BRect(16, 10, 189, 68));

	CloseView();
	MakePicture(715, 700);
	EXPECT_TRUE(fView->imagesFit);
	EXPECT_GT(Count(BRect(1, 1, 100, 100), kCover), 0);
}


TEST_F(MxViewDraw, ViewOf650PixelsHidesTheGridAndLimitsTheZoom)
{
	MakeView(650, 400);
	fView->Draw(fView->Bounds());
	EXPECT_FALSE(fView->imagesFit);
	EXPECT_EQ(fView->imageGridRect, BRect(0, 0, 1, 1));
	fWindow->Zoom();
	EXPECT_EQ(fWindow->Bounds().Width(), 650);
	EXPECT_EQ(fWindow->Bounds().Height(), 600);
}


TEST_F(MxViewDraw, GridWithoutCoversIsAPanelOfOneCell)
{
	MakePicture();
	EXPECT_EQ(fView->imageGridRect, BRect(19, 19, 400, 57));
	EXPECT_EQ(Count(BRect(19, 19, 400, 57), kPanel), 382 * 39);
	// Filled three pixels beyond the grid, and outlined one more.
	EXPECT_EQ(At(16, 40), kPanel);
	EXPECT_EQ(At(403, 40), kPanel);
	EXPECT_EQ(At(15, 40), kDark);
	EXPECT_EQ(At(404, 40), kDark);
	EXPECT_EQ(At(200, 15), kDark);
	EXPECT_EQ(At(200, 61), kDark);
	EXPECT_EQ(At(15, 15), kUntouched);
	EXPECT_EQ(At(200, 62), kUntouched);
}


TEST_F(MxViewDraw, UnsavedListMakesThePanelYellow)
{
	MakePicture();
	fView->listChanged = true;
	Redraw();
	EXPECT_EQ(Count(BRect(19, 19, 400, 57), kYellow), 382 * 39);
}


TEST_F(MxViewDraw, OneCoverHasAFrame)
{
	AddAlbums(1);
	MakePicture();
	EXPECT_EQ(fView->imageGridRect, BRect(19, 19, 400, 57));
	EXPECT_EQ(Count(BRect(19, 19, 57, 57), kCover), 39 * 39);
	EXPECT_EQ(Count(BRect(18, 18, 58, 18), kFrame), 41);
	EXPECT_EQ(Count(BRect(18, 58, 58, 58), kFrame), 41);
	EXPECT_EQ(Count(BRect(18, 18, 18, 58), kFrame), 41);
	EXPECT_EQ(Count(BRect(58, 18, 58, 58), kFrame), 41);
	EXPECT_EQ(At(59, 40), kPanel);
}


TEST_F(MxViewDraw, CoversAreScaledSmoothly)
{
	AddAlbum("two colors", {0, 0, 0, 255});
	BBitmap& cover = *static_cast<BitmapPath*>(fAlbums.ItemAt(0))->fBitmap;
	// The right half of ten pixels is white.
	for (int32 pixel = 0; pixel < 100; pixel++) {
		if (pixel % 10 >= 5)
			memset(static_cast<uint8*>(cover.Bits()) + pixel * 4, 255, 4);
	}
	MakePicture();
	fView->imageIndex = 0;
	Redraw();
	const rgb_color black = {0, 0, 0, 255};
	const rgb_color white = {255, 255, 255, 255};
	for (const BRect& row : {BRect(19, 38, 57, 38), BRect(17, 495, 402, 495)}) {
		const int pixels = row.IntegerWidth() + 1;
		const int between = pixels - Count(row, black) - Count(row, white);
		EXPECT_GT(between, 1);
		EXPECT_LT(between, pixels / 5);
		EXPECT_EQ(At(row.left, row.top), black);
		EXPECT_EQ(At(row.right, row.top), white);
	}
}


TEST_F(MxViewDraw, OneRowOfCoversIsOneCellHigh)
{
	AddAlbums(9);
	MakePicture();
	EXPECT_EQ(fView->imageGridRect, BRect(19, 19, 400, 57));
	EXPECT_EQ(At(61, 19), kCover);
	EXPECT_EQ(At(60, 19), kFrame);
	EXPECT_EQ(At(355 + 38, 57), kCover);
}


TEST_F(MxViewDraw, LastCellOfARowMayReachIntoTheMargin)
{
	AddAlbums(10);
	MakePicture();
	EXPECT_EQ(fView->imageGridRect, BRect(19, 19, 435, 57));
	EXPECT_EQ(At(397, 19), kCover);
	EXPECT_EQ(At(435, 57), kCover);
	EXPECT_EQ(At(439, 40), kDark);
	EXPECT_EQ(fView->buttonRect[0].left, 450);
}


TEST_F(MxViewDraw, SeveralRowsOfCovers)
{
	AddAlbums(23);
	MakePicture();
	EXPECT_EQ(fView->imageGridRect, BRect(19, 19, 435, 141));
	for (int row = 0; row < 3; row++) {
		EXPECT_EQ(At(19, 19 + row * 42), kCover) << row;
		EXPECT_EQ(At(57, 57 + row * 42), kCover) << row;
	}
	// The third row has three.
	EXPECT_EQ(At(103, 120), kCover);
	EXPECT_EQ(At(145, 120), kPanel);
}


TEST_F(MxViewDraw, TooManyCoversRunOutOfTheView)
{
	AddAlbums(200);
	MakePicture();
	EXPECT_GT(fView->imageGridRect.bottom, 700);
	EXPECT_EQ(At(19, 19 + 15 * 42), kCover);
	EXPECT_EQ(At(435, 680), kCover);
}


TEST_F(MxViewDraw, AlbumWithoutACoverIsADarkCell)
{
	AddAlbums(1);
	AddAlbum("plain");
	MakePicture();
	EXPECT_EQ(Count(BRect(61, 19, 99, 57), kDark), 39 * 39);
	EXPECT_EQ(At(60, 40), kFrame);
}


TEST_F(MxViewDraw, MissingRecordIsOnlyPrinted)
{
	AddAlbums(1);
	fAlbums.AddItem(nullptr);
	AddAlbums(1);
	const std::string output = test::OutputOf([this] { MakePicture(); });
	EXPECT_NE(output.find(" BitmapPath==NULL \n"), std::string::npos);
	EXPECT_EQ(At(80, 40), kPanel);
	EXPECT_EQ(At(103, 40), kCover);
}


TEST_F(MxViewDraw, WithoutAListOfAlbumsThereIsNoGrid)
{
	MxView::ImgList = nullptr;
	MakePicture();
	EXPECT_TRUE(fView->imagesFit);
	EXPECT_EQ(At(30, 100), kPanel);
	EXPECT_EQ(fView->buttonRect[0], BRect(16, 10, 475, 68));
}


TEST_F(MxViewDraw, CellsFollowTheBoxSize)
{
	AddAlbums(2);
	MakePicture();
	fView->tileSize = 57;
	fView->tileThird = 19;
	Redraw();
	EXPECT_EQ(fView->imageGridRect, BRect(9.5, 9.5, 400, 28.5));
	EXPECT_EQ(At(20, 20), kCover);
	EXPECT_EQ(At(29, 20), kFrame);
	EXPECT_EQ(At(42, 20), kCover);
}


TEST_F(MxViewDraw, BusyLabelCoversTheGrid)
{
	MakePicture();
	fView->DrawProgressCalc(false);
	fView->Sync();
	EXPECT_GT(Count(BRect(18, 18, 401, 58), kBusy), 384 * 41 - 2500);
	EXPECT_EQ(At(18, 18), kBusy);
	EXPECT_EQ(At(401, 58), kBusy);
	EXPECT_EQ(At(402, 40), kPanel);
	EXPECT_GT(Count(BRect(20, 30, 160, 58), {20, 10, 10, 255}), 200);

	fView->DrawProgressCalc(true);
	fView->Sync();
	EXPECT_EQ(Count(BRect(1, 1, 420, 100), kBusy), 0);
}


TEST_F(MxViewDraw, BusyLabelNeedsAGrid)
{
	MakePicture(700, 400);
	fView->DrawProgressCalc(false);
	fView->Sync();
	EXPECT_EQ(Count(BRect(0, 0, 700, 400), kBusy), 0);
}


TEST_F(MxViewDraw, EraseViewDrawsNothing)
{
	MakePicture();
	const std::vector<uint8> before(static_cast<uint8*>(fBitmap->Bits()),
		static_cast<uint8*>(fBitmap->Bits()) + fBitmap->BitsLength());
	fView->EraseView(fView->Bounds());
	fView->Sync();
	EXPECT_EQ(memcmp(before.data(), fBitmap->Bits(), before.size()), 0);
}


TEST_F(MxViewDraw, GrownGridLeavesNothingOfTheOldButtons)
{
	AddAlbums(3);
	MakeView();
	fWindow->Unlock();
	fWindow->Show();
	test::Settle(fWindow);
	const QRgb background = test::PictureOf(fWindow).pixel(445, 72);
	EXPECT_EQ(test::PictureOf(fWindow).pixel(415, 30), qRgb(20, 20, 20));

	fWindow->Lock();
	AddAlbums(17);
	fView->Draw(fView->Bounds());
	fWindow->Unlock();
	test::Settle(fWindow);
	const QImage picture = test::PictureOf(fWindow);
	EXPECT_EQ(picture.pixel(450, 30), qRgb(20, 20, 20));
	for (int x = 440; x < 450; x++)
		EXPECT_EQ(picture.pixel(x, 30), background) << x;
	fWindow->Lock();
}
