// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Bitmap.h>
#include <Font.h>
#include <InterfaceDefs.h>
#include <List.h>
#include <Path.h>

#include "entryview/MEView.h"
#include "locale/KVLabel.h"
#include "locale/KVLangMenu.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"
#include "tests/support/Pictures.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Wait.h"
#include "window/BitmapPath.h"
#include "window/WindowCommands.h"

#include <QImage>


namespace {

class MxViewLayout : public ListViewFixture {
protected:
	Prefs& Settings() { return *Prefs::getSTPrefs(); }
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}


using Numbers = std::vector<int32>;

} // namespace


TEST_F(MxViewLayout, StartValues)
{
	Settings().altWinBackCol = {1, 2, 3, 4};
	const MxView view(BRect(0, 0, 1000, 700), "MxView", B_FOLLOW_ALL_SIDES, B_WILL_DRAW);
	EXPECT_EQ(view.settings, &Settings());
	EXPECT_EQ(view.listBackColor, (rgb_color{1, 2, 3, 4}));
	EXPECT_EQ(view.progressColor, (rgb_color{240, 240, 240, 0}));
	EXPECT_EQ(view.progressFillColor, (rgb_color{30, 20, 30, 0}));
	EXPECT_EQ(view.ViewColor(), ui_color(B_MENU_BACKGROUND_COLOR));
	EXPECT_EQ(view.LowColor(), (rgb_color{150, 150, 150, 24}));
	EXPECT_EQ(view.HighColor(), (rgb_color{10, 10, 10, 128}));
	EXPECT_EQ(view.DrawingMode(), B_OP_OVER);
	BFont font;
	view.GetFont(&font);
	EXPECT_EQ(font.Size(), be_bold_font->Size());
	EXPECT_EQ(font.Face(), be_bold_font->Face());
	EXPECT_EQ(view.backBitmap, nullptr);
	EXPECT_EQ(view.popMenu, nullptr);
	ASSERT_NE(view.langMenu, nullptr);
	EXPECT_STREQ(view.langMenu->Name(), "Language");
	EXPECT_EQ(view.langMenu->fAppName, "KORU-Haiku");
	EXPECT_EQ(view.tileSize, 114);
	EXPECT_EQ(view.tileThird, 38);
	EXPECT_EQ(view.centerY, 350);
	EXPECT_EQ(view.tileLeft, 485);
	EXPECT_EQ(view.upMarkRect, BRect(0, 0, -1, -1));
	EXPECT_EQ(view.downMarkRect, BRect(0, 0, -1, -1));
	EXPECT_EQ(view.imageGridRect, BRect(0, 0, 1, 1));
	EXPECT_EQ(view.menuRect, BRect(0, 0, -1, -1));
	for (const BRect& rect : view.buttonRect)
		EXPECT_EQ(rect, BRect(0, 0, -1, -1));
	EXPECT_EQ(view.lastBounds, BRect(0, 0, -1, -1));
	EXPECT_EQ(view.visibleHalf, 0);
	EXPECT_EQ(view.centeredIndex, 0);
	EXPECT_EQ(view.nextIndex, 1);
	EXPECT_EQ(view.visibleCount, 5);
	EXPECT_EQ(view.lastIndex, 0);
	EXPECT_EQ(view.imageIndex, -1);
	EXPECT_EQ(view.playEnd, 0);
	EXPECT_EQ(view.playLength, 0);
	EXPECT_FALSE(view.listChanged);
	EXPECT_TRUE(view.sizeMenuShown);
	EXPECT_FALSE(view.pathTrouble);
}


TEST_F(MxViewLayout, BeginsWithTheBuiltInTexts)
{
	const std::string file = fFolder.Write("KORU-Haiku.deDE", "\"Close\" \"Zumachen\"\n");
	KVLabel::getKVLabel("KORU-Haiku")->LoadLangFile(file.c_str());
	ASSERT_STREQ(getLabel(173), "Zumachen");
	// No file of that language lies beside the program.
	const MxView view(BRect(0, 0, 1000, 700), "MxView", 0, 0);
	EXPECT_STREQ(getLabel(173), "Close");
}


TEST_F(MxViewLayout, TileSizeIsTheSettings)
{
	const float sizes[] = {114, 114, 95, 76, 57, 48, 114, 114};
	for (int32 linkSize = 0; linkSize < 8; linkSize++) {
		Settings().LINK_SIZE = linkSize;
		const MxView view(BRect(0, 0, 1000, 700), "MxView", 0, 0);
		EXPECT_EQ(view.tileSize, sizes[linkSize]) << linkSize;
		EXPECT_FLOAT_EQ(view.tileThird, sizes[linkSize] / 3) << linkSize;
	}
}


TEST_F(MxViewLayout, EndKeepsTheColorAndTellsTheApplication)
{
	test::TheApplication().ForgetReceived();
	MxView* const view = new MxView(BRect(0, 0, 1000, 700), "MxView", 0, 0);
	view->listBackColor = {9, 8, 7, 6};
	const std::string output = test::OutputOf([view] { delete view; });
	EXPECT_EQ(Settings().altWinBackCol, (rgb_color{9, 8, 7, 6}));
	EXPECT_TRUE(contains(output, " last_top_media"));
	EXPECT_TRUE(contains(output, "Prefs-Save"));
	EXPECT_TRUE(contains(output, "[Del: MxView]"));
	EXPECT_TRUE(
		test::WaitFor([] { return test::TheApplication().CountReceived(kMsgWindowGone) > 0; }));
	rgb_color saved = {0, 0, 0, 0};
	Prefs::DeleteMe();
	EXPECT_TRUE(Prefs::getSTPrefs()->GetCol("altWinBackCol", &saved, nullptr));
	EXPECT_EQ(saved, (rgb_color{9, 8, 7, 6}));
}


TEST_F(MxViewLayout, AttachingBuildsTheTilesAndStartsNothing)
{
	AddTitles(5, "03:07");
	const std::string output = test::OutputOf([this] { MakeView(); });
	EXPECT_TRUE(contains(output, " MxView::AttachedToWindow()"));
	EXPECT_TRUE(contains(output, " \nChildsFromList >> all Removed (0)\n"));
	EXPECT_TRUE(contains(output, "LanguagePath ::'" + (fFolder / "language") + "'"));
	EXPECT_TRUE(contains(output, " Background '" + (fFolder / "language/_mediaback.jpg") + "'"));
	EXPECT_TRUE(contains(output, " Background-Bitmap  not found"));
	EXPECT_TRUE(contains(output, " MxView::AttachedToWindow -ende-"));
	// The list had been fetched before.
	EXPECT_FALSE(contains(output, " MedList "));

	EXPECT_EQ(fView->CountChildren(), 5);
	EXPECT_EQ(fView->lastIndex, 4);
	EXPECT_EQ(fView->upMarkRect, BRect(740, 4, 790, 12));
	EXPECT_EQ(fView->downMarkRect, BRect(740, 688, 790, 696));
	EXPECT_EQ(fView->playEnd, 0);
	EXPECT_EQ(fView->playLength, 0);
	EXPECT_EQ(Settings().last_timer_nr, -1);
	EXPECT_EQ(fView->backBitmap, nullptr);
	EXPECT_EQ(fView->DrawingMode(), B_OP_OVER);
	sNow += 3600000000LL;
	fView->Pulse();
	EXPECT_TRUE(Received(kMsgPlayTitle).empty());
}


TEST_F(MxViewLayout, WindowWithoutAListIsAskedOnce)
{
	MxView::MedListChecked = false;
	MxView::MedList = nullptr;
	const std::string output = test::OutputOf([this] { MakeView(); });
	EXPECT_TRUE(contains(output, " MedList NOT FOUND"));
	EXPECT_TRUE(MxView::MedListChecked);
	EXPECT_EQ(fView->CountChildren(), 0);
}


TEST_F(MxViewLayout, BackgroundPictureIsLoaded)
{
	test::SavePicture(test::TwoColors(32, 16), fFolder / "language/_mediaback.jpg");
	const std::string output = test::OutputOf([this] { MakeView(); });
	EXPECT_TRUE(contains(output, " Background-Bitmap  set"));
	ASSERT_NE(fView->backBitmap, nullptr);
	EXPECT_EQ(fView->backBitmap->Bounds(), BRect(0, 0, 31, 15));

	// It is repeated from the left top corner on.
	fWindow->Unlock();
	fWindow->Show();
	test::Settle(fWindow);
	const QImage picture = test::PictureOf(fWindow);
	const QRgb one = picture.pixel(4 * 32 + 8, 20 * 16 + 4);
	const QRgb other = picture.pixel(4 * 32 + 24, 20 * 16 + 12);
	EXPECT_NE(one, other);
	for (int column = 1; column < 11; column++) {
		EXPECT_EQ(picture.pixel(column * 32 + 8, 25 * 16 + 4), one) << column;
		EXPECT_EQ(picture.pixel(column * 32 + 24, 25 * 16 + 12), other) << column;
	}
	fWindow->Lock();
}


TEST_F(MxViewLayout, LanguageFolderIsFoundWhenItIsNotSet)
{
	Settings().fLanguagePath.Unset();
	const std::string output = test::OutputOf([this] { MakeView(); });
	EXPECT_TRUE(contains(output, "LanguagePath ::''"));
	ASSERT_NE(Settings().fLanguagePath.Path(), nullptr);
	EXPECT_STREQ(Settings().fLanguagePath.Leaf(), "Language");
}


TEST_F(MxViewLayout, TilesStandAroundTheFirst)
{
	AddTitles(5);
	MakeView();
	EXPECT_EQ(Tile(0)->Frame(), BRect(485, 288, 975, 402));
	EXPECT_EQ(Tile(1)->Frame(), BRect(485, 407, 975, 521));
	EXPECT_EQ(Tile(2)->Frame(), BRect(485, 526, 975, 640));
	// The fourth would reach over the bottom, the fifth is below it.
	EXPECT_EQ(Tile(3)->Frame(), BRect(485, -124, 975, -10));
	EXPECT_EQ(Tile(4)->Frame(), BRect(485, 764, 975, 878));
	EXPECT_EQ(ShownTiles(), (Numbers{0, 1, 2}));
	EXPECT_EQ(fView->visibleHalf, 3);
	EXPECT_EQ(fView->visibleCount, 4);
	EXPECT_STREQ(Tile(3)->Name(), "MEV3");
	EXPECT_EQ(Tile(3)->fNumber, 3);
	EXPECT_EQ(Tile(3)->fName, "Title 3");
}


TEST_F(MxViewLayout, QuietTilesWaitAboveTheView)
{
	AddTitles(3);
	MakeView();
	Settings().LINK_SIZE = 1;
	fView->ChildsFromList(true);
	ASSERT_EQ(fView->CountChildren(), 3);
	for (int32 index = 0; index < 3; index++)
		EXPECT_EQ(Tile(index)->Frame(), BRect(475, -214, 965, -100)) << index;
}


TEST_F(MxViewLayout, QuietTilesKeepTheTimingAlone)
{
	AddTitles(3, "03:07");
	MakeView();
	MEView::SepListSelected = false;
	MxView::SingleAlbum = true;
	fView->ChildsFromList(true);
	EXPECT_EQ(fView->playEnd, 0);
	EXPECT_FALSE(MEView::SepListSelected);
	fView->ChildsFromList(false);
	EXPECT_GT(fView->playEnd, sNow);
	EXPECT_TRUE(MEView::SepListSelected);
}


TEST_F(MxViewLayout, BuildingShowsItsProgress)
{
	AddTitles(3);
	MakeView();
	fView->progressCalls.clear();
	fView->ChildsFromList(true);
	EXPECT_TRUE(fView->progressCalls.empty());
	fView->ChildsFromList(false);
	EXPECT_EQ(fView->progressCalls, (std::vector<bool>{false, false, false, true}));
}


TEST_F(MxViewLayout, PlayingTitlePastTheEndIsTheLast)
{
	Settings().last_top_media = 9;
	AddTitles(3);
	MakeView();
	EXPECT_EQ(fView->centeredIndex, 2);
	EXPECT_EQ(Tile(2)->Frame(), BRect(485, 288, 975, 402));
	EXPECT_EQ(ShownTiles(), (Numbers{0, 1, 2}));
}


TEST_F(MxViewLayout, DamagedIndexShowsTheFirst)
{
	Settings().last_top_media = -2147483647 - 1;
	AddTitles(3);
	MakeView();
	EXPECT_EQ(fView->centeredIndex, 0);
	EXPECT_EQ(ShownTiles(), (Numbers{0, 1, 2}));
	fView->nextIndex = -2147483647 - 1;
	EXPECT_TRUE(
		contains(test::OutputOf([this] { fView->CalcContinousPlaytime(); }), "     0.00 Times \n"));
}


TEST_F(MxViewLayout, EmptyListHasNoTiles)
{
	const std::string output = test::OutputOf([this] { MakeView(); });
	EXPECT_TRUE(contains(output, "no childs..\n"));
	EXPECT_TRUE(contains(output, " ooh.. someBTV==NULL"));
	EXPECT_EQ(fView->lastIndex, -1);
	EXPECT_EQ(fView->centeredIndex, -1);
	EXPECT_EQ(fView->CountChildren(), 0);
}


TEST_F(MxViewLayout, EntryWithoutAPathGetsNoTile)
{
	AddTitle("Alpha.mp3");
	fTitles.AddItem(new BPath);
	AddTitle("Beta.mp3");
	MakeView();
	EXPECT_EQ(fView->lastIndex, 2);
	ASSERT_EQ(fView->CountChildren(), 2);
	EXPECT_EQ(Tile(1)->fNumber, 2);
	EXPECT_STREQ(Tile(1)->Name(), "MEV2");
	EXPECT_EQ(Tile(1)->fName, "Beta");
}


TEST_F(MxViewLayout, TilesAreMadeAnew)
{
	AddTitles(3);
	MakeView();
	delete static_cast<BPath*>(fTitles.RemoveItem(int32(0)));
	fView->ChildsFromList(false);
	ASSERT_EQ(fView->CountChildren(), 2);
	EXPECT_EQ(Tile(0)->fName, "Title 1");
	EXPECT_EQ(Tile(0)->fNumber, 0);
	EXPECT_EQ(fView->lastIndex, 1);
}


TEST_F(MxViewLayout, TilesTakeTheirFoldersCover)
{
	AddAlbum("other", {1, 1, 1, 255});
	AddAlbum("album", {2, 2, 2, 255});
	AddAlbum("album", {3, 3, 3, 255});
	AddAlbum("plain");
	AddTitle("album/one.mp3");
	AddTitle("plain/two.mp3");
	AddTitle("none/three.mp3");
	fTitles.AddItem(new BPath("/nowhere/at/all/four.mp3"));
	MakeView();
	EXPECT_EQ(Tile(0)->fImageNumber, 1);
	EXPECT_EQ(Tile(0)->fCover, static_cast<BitmapPath*>(fAlbums.ItemAt(1))->fBitmap);
	EXPECT_EQ(Tile(1)->fImageNumber, 3);
	EXPECT_EQ(Tile(1)->fCover, nullptr);
	EXPECT_EQ(Tile(2)->fImageNumber, -1);
	EXPECT_TRUE(Tile(2)->fCanOpenFolder);
	EXPECT_TRUE(Tile(0)->fCanOpenFolder);
	EXPECT_FALSE(Tile(3)->fCanOpenFolder);
	EXPECT_FALSE(Tile(3)->fFound);
	EXPECT_EQ(fView->imageIndex, 1);
}


TEST_F(MxViewLayout, WithoutAlbumsTilesHaveNoCover)
{
	MxView::ImgList = nullptr;
	AddTitle("album/one.mp3");
	MakeView();
	EXPECT_EQ(Tile(0)->fImageNumber, -1);
	EXPECT_EQ(Tile(0)->fCover, nullptr);
	EXPECT_EQ(fView->imageIndex, -1);
}


TEST_F(MxViewLayout, TilesReadTheirFiles)
{
	AddTitle("song.mp3", "03:07");
	MakeView();
	EXPECT_EQ(Tile(0)->fLengthCode, 307);
	EXPECT_NEAR(Tile(0)->fLength, 3.13667, 0.0001);
}


TEST_F(MxViewLayout, ResizingLaysOutAnewAndKeepsTheTiming)
{
	AddTitles(5, "03:07");
	MakeView();
	fView->CenterMediaFile(1, true, 0);
	const bigtime_t end = fView->playEnd;
	ASSERT_GT(end, sNow);
	sNow += 5000000;
	fView->ResizeTo(900, 500);
	const std::string output = test::OutputOf([this] { fView->FrameResized(900, 500); });
	EXPECT_TRUE(contains(output, " FrameResized:"));
	EXPECT_EQ(fView->playEnd, end);
	EXPECT_EQ(fView->centerY, 250);
	EXPECT_EQ(fView->tileLeft, 385);
	EXPECT_EQ(fView->upMarkRect, BRect(640, 4, 690, 12));
	EXPECT_EQ(fView->downMarkRect, BRect(640, 488, 690, 496));
	EXPECT_EQ(fView->centeredIndex, 1);
	EXPECT_EQ(Tile(1)->Frame(), BRect(385, 188, 875, 302));
	EXPECT_EQ(ShownTiles(), (Numbers{0, 1, 2}));
}


TEST_F(MxViewLayout, ResizingDrawsAtOnceAndAnew)
{
	AddTitles(1);
	MakePicture();
	fView->SetHighColor(kUntouched);
	fView->FillRect(fView->Bounds());
	fView->FrameResized(1000, 700);
	fView->Sync();
	// The first tile, and the outline of the view.
	EXPECT_EQ(At(800, 300), (rgb_color{240, 240, 240, 255}));
	EXPECT_EQ(At(0, 300), (rgb_color{20, 20, 20, 255}));
	CloseView();

	MakeView();
	fWindow->Unlock();
	fWindow->Show();
	test::Settle(fWindow);
	fWindow->Lock();
	fView->SetHighColor(kUntouched);
	fView->FillRect(BRect(200, 200, 210, 210));
	fView->FrameResized(1000, 700);
	fWindow->Unlock();
	test::Settle(fWindow);
	const rgb_color background = ui_color(B_MENU_BACKGROUND_COLOR);
	EXPECT_EQ(test::PictureOf(fWindow).pixel(205, 205),
		qRgb(background.red, background.green, background.blue));
	fWindow->Lock();
}


TEST_F(MxViewLayout, ResizingTakesTheCenterFromItsArgument)
{
	MakeView();
	fView->FrameResized(1000, 440);
	EXPECT_EQ(fView->centerY, 220);
}
