// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Bitmap.h>

#include "tests/listview/ListViewFixture.h"
#include "window/BitmapPath.h"


namespace {

constexpr rgb_color kDark = {20, 20, 20, 255};
constexpr rgb_color kPanel = {240, 240, 240, 255};
constexpr rgb_color kRing = {250, 250, 150, 255};
constexpr rgb_color kCover = {10, 120, 200, 255};
constexpr rgb_color kOther = {200, 30, 60, 255};


// The playing album's cover in a view of 1001 x 701 pixels: the frame is (15, 301) to (404, 690).
class MxViewToppedAlbum : public ListViewFixture {
protected:
	void MakeAlbums()
	{
		AddAlbum("first", kCover);
		AddAlbum("second", kOther);
		AddAlbum("plain");
	}

	void Show(int32 image)
	{
		fView->imageIndex = image;
		Redraw();
	}

	// What is not the bare panel.
	int CountText(BRect area)
	{
		return (area.IntegerWidth() + 1) * (area.IntegerHeight() + 1) - Count(area, kPanel);
	}

	bool IsShown() { return At(15, 500) == kDark; }
};

} // namespace


TEST_F(MxViewToppedAlbum, StandsBelowTheGridAsWideAsIt)
{
	MakeAlbums();
	MakePicture();
	EXPECT_FALSE(IsShown());
	Show(0);
	EXPECT_EQ(Count(BRect(15, 301, 404, 301), kDark), 390);
	EXPECT_EQ(Count(BRect(15, 690, 404, 690), kDark), 390);
	EXPECT_EQ(Count(BRect(15, 301, 15, 690), kDark), 390);
	EXPECT_EQ(Count(BRect(404, 301, 404, 690), kDark), 390);
	EXPECT_EQ(Count(BRect(17, 303, 402, 688), kCover), 386 * 386);
	EXPECT_EQ(At(16, 500), kUntouched);
	EXPECT_EQ(At(403, 500), kUntouched);
	EXPECT_EQ(At(14, 500), kUntouched);
	Show(1);
	EXPECT_EQ(Count(BRect(17, 303, 402, 688), kOther), 386 * 386);
}


TEST_F(MxViewToppedAlbum, YellowRingMarksTheAlbumShown)
{
	MakeAlbums();
	MakePicture();
	MxView::SingleAlbum = true;
	Show(0);
	// Four pixels wide, around the frame that is 3 pixels away.
	EXPECT_EQ(Count(BRect(5, 500, 14, 500), kRing), 4);
	EXPECT_EQ(Count(BRect(8, 500, 11, 500), kRing), 4);
	EXPECT_EQ(Count(BRect(407, 500, 410, 500), kRing), 4);
	EXPECT_EQ(Count(BRect(200, 294, 200, 297), kRing), 4);
	EXPECT_EQ(Count(BRect(200, 693, 200, 696), kRing), 4);
	EXPECT_EQ(At(12, 500), kUntouched);
	EXPECT_EQ(At(7, 500), kUntouched);
	EXPECT_EQ(At(15, 500), kDark);
	EXPECT_EQ(fView->PenSize(), 1);
}


TEST_F(MxViewToppedAlbum, MissingCoverIsSaidOnAPanel)
{
	MakeAlbums();
	MakePicture();
	Show(2);
	EXPECT_TRUE(IsShown());
	EXPECT_EQ(At(16, 500), kPanel);
	EXPECT_EQ(At(403, 500), kPanel);
	EXPECT_EQ(At(200, 600), kPanel);
	EXPECT_EQ(fView->LowColor(), (rgb_color{240, 240, 240, 0}));
	// ".. missing:" small, with its base line 25 pixels below the frame's top, then "Folder.jpg".
	const int small = CountText(BRect(25, 314, 100, 329));
	const int large = CountText(BRect(25, 336, 160, 362));
	EXPECT_GT(small, 100);
	EXPECT_GT(large, 2 * small);
	EXPECT_EQ(CountText(BRect(18, 304, 401, 687)), small + large);
}


TEST_F(MxViewToppedAlbum, IsNotShownWithoutAnAlbum)
{
	MakeAlbums();
	MakePicture();
	for (const int32 image : {-2, -1, 3, 2000000000}) {
		Show(image);
		EXPECT_FALSE(IsShown()) << image;
	}
	fAlbums.AddItem(nullptr);
	Show(3);
	EXPECT_FALSE(IsShown());
	Show(0);
	EXPECT_TRUE(IsShown());
	MxView::ImgList = nullptr;
	Redraw();
	EXPECT_FALSE(IsShown());
}


TEST_F(MxViewToppedAlbum, AnotherAlbumCanBeShownWhileOneIsPlayed)
{
	MakeAlbums();
	MakePicture();
	fView->ShowToppedAlbum(1);
	EXPECT_FALSE(IsShown());
	Show(0);
	fView->ShowToppedAlbum(1);
	fView->Sync();
	EXPECT_EQ(At(200, 500), kOther);
	fView->ShowToppedAlbum(-1);
	fView->Sync();
	EXPECT_EQ(At(200, 500), kOther);
}


TEST_F(MxViewToppedAlbum, IsNotShownWhereTheGridDoesNotFit)
{
	MakeAlbums();
	MakePicture();
	fView->imageIndex = 0;
	fView->imagesFit = false;
	fView->ShowToppedAlbum(0);
	fView->Sync();
	EXPECT_FALSE(IsShown());
	fView->imagesFit = true;
	fView->ShowToppedAlbum(0);
	fView->Sync();
	EXPECT_TRUE(IsShown());
}


TEST_F(MxViewToppedAlbum, IsShownWithTheTilesAndWithAClickOnACover)
{
	MakeAlbums();
	AddTitle("Title.mp3");
	MakePicture();
	fView->imageIndex = 0;
	fView->CenterMediaFile(0, false, 0);
	fView->Sync();
	EXPECT_EQ(At(200, 500), kCover);
	fView->MouseDown(BPoint(70, 30));
	fView->Sync();
	EXPECT_EQ(At(200, 500), kOther);
}


TEST_F(MxViewToppedAlbum, NeedsAGridOfOneAndAHalfTiles)
{
	MakeAlbums();
	// The grid is 171 pixels wide, one and a half tiles.
	MakePicture(790, 700);
	Show(0);
	EXPECT_EQ(fView->imageGridRect.Width(), 171);
	EXPECT_EQ(At(15, 600), kUntouched);
	CloseView();
	MakePicture(791, 700);
	Show(0);
	EXPECT_EQ(fView->imageGridRect.Width(), 172);
	EXPECT_EQ(At(15, 600), kDark);
}


TEST_F(MxViewToppedAlbum, NeedsRoomBelowTheGrid)
{
	MakeAlbums();
	// The square is 381 high, above 14 pixels of margin, and the grid ends at 57.
	MakePicture(1000, 452);
	Show(0);
	EXPECT_EQ(At(15, 300), kUntouched);
	CloseView();
	MakePicture(1000, 453);
	Show(0);
	EXPECT_EQ(At(15, 300), kDark);
}
