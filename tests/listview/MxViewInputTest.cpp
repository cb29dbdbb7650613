// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <math.h>

#include <Bitmap.h>
#include <GraphicsDefs.h>
#include <MenuItem.h>
#include <PopUpMenu.h>

#include "entryview/EntryMessages.h"
#include "entryview/MEView.h"
#include "locale/KVLangMenu.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"
#include "window/WindowCommands.h"

#include <QImage>


namespace {

class MxViewMessages : public ListViewFixture {
protected:
	std::string Hand(uint32 what)
	{
		BMessage message(what);
		return Hand(message);
	}

	std::string Hand(BMessage& message)
	{
		return test::OutputOf([&] { fView->MessageReceived(&message); });
	}
};


// In a view of 1001 x 701 pixels.
class MxViewMouse : public ListViewFixture {
protected:
	void Show(int count, int32 centered)
	{
		AddTitles(count);
		MakeView();
		fView->Draw(fView->Bounds());
		fView->Draw(fView->Bounds());
		fView->CenterMediaFile(centered, false, 0);
	}

	void Click(BPoint where, int32 buttons = B_PRIMARY_MOUSE_BUTTON) { Press(where, buttons); }

	void ClickButton(int32 button)
	{
		const BRect frame = fView->buttonRect[button];
		Click(BPoint(frame.left + 30, frame.top + 20));
	}
};

// Where nothing but the view itself is.
const BPoint kEmptyPlace(200, 200);

} // namespace


TEST_F(MxViewMessages, BoxSizes)
{
	struct Size {
		uint32 code;
		int32 linkSize;
		float height;
	};
	const Size sizes[] = {
		{0x4D576D78, 1, 114},
		{0x4D576D64, 2, 95},
		{0x4D576D69, 3, 76},
		{0x4D576D34, 4, 57},
		{0x4D576D35, 5, 48},
	};
	AddTitles(3, "00:30");
	MakeView();
	for (const Size& size : sizes) {
		Hand(size.code);
		EXPECT_EQ(Prefs::getSTPrefs()->LINK_SIZE, size.linkSize);
		EXPECT_EQ(fView->tileSize, size.height);
		EXPECT_FLOAT_EQ(fView->tileThird, size.height / 3);
		EXPECT_EQ(Tile(0)->Bounds(), BRect(0, 0, 490, size.height));
		EXPECT_EQ(Tile(0)->Frame().top, roundf(350 - (size.height / 2 + 5)));
	}
}


TEST_F(MxViewMessages, MicroTilesHaveCellsOf19Pixels)
{
	MakeView();
	Hand('MWm4');
	EXPECT_EQ(Prefs::getSTPrefs()->LINK_SIZE, 4);
	EXPECT_EQ(fView->tileSize, 57);
	EXPECT_EQ(fView->tileThird, 19);
}


TEST_F(MxViewMessages, BoxSizeKeepsTheTimingAndShowsThePlayingTitle)
{
	AddTitles(5, "00:30");
	MakeView();
	fView->CenterMediaFile(2, true, 0);
	const bigtime_t end = fView->playEnd;
	fView->CenterMediaFile(4, false, 0);
	sNow += 1000000;
	EXPECT_NE(Hand('MWmi').find(" | same play "), std::string::npos);
	EXPECT_EQ(fView->playEnd, end);
	EXPECT_EQ(fView->centeredIndex, 2);
}


TEST_F(MxViewMessages, BoxSizeMarksItsItem)
{
	MakeView();
	fView->opensMenu = true;
	fView->AddWPopMenu();
	for (const uint32 code : {'MWmi', 'MWm5', 'MWmx'}) {
		Hand(code);
		for (const uint32 other : {'MWmx', 'MWmd', 'MWmi', 'MWm4', 'MWm5'})
			EXPECT_EQ(fView->popMenu->FindItem(other)->IsMarked(), other == code);
	}
}


TEST_F(MxViewMessages, BoxSizeAndColorDrawAtOnceAndAnew)
{
	const rgb_color dark = {20, 20, 20, 255};
	for (const uint32 code : {uint32('MWmd'), uint32(B_PASTE)}) {
		MakePicture();
		fView->SetHighColor(kUntouched);
		fView->FillRect(fView->Bounds());
		EXPECT_EQ(Hand(code).find("MxView::MessageReceived"), std::string::npos);
		fView->Sync();
		EXPECT_EQ(At(0, 300), dark);
		CloseView();

		MakeView();
		fWindow->Unlock();
		fWindow->Show();
		test::Settle(fWindow);
		fWindow->Lock();
		fView->SetHighColor(kUntouched);
		fView->FillRect(BRect(200, 200, 210, 210));
		Hand(code);
		fWindow->Unlock();
		test::Settle(fWindow);
		EXPECT_NE(test::PictureOf(fWindow).pixel(205, 205),
			qRgb(kUntouched.red, kUntouched.green, kUntouched.blue));
		fWindow->Lock();
		CloseView();
	}
}


TEST_F(MxViewMessages, MeasuringIsAsked)
{
	MakeView();
	const std::string output = Hand('MWPT');
	EXPECT_EQ(output.rfind("Wish: Set PlaytimeAttribute..\n", 0), 0u);
	EXPECT_EQ(fView->progressCalls.back(), true);
}


TEST_F(MxViewMessages, DropsGoToTheWindow)
{
	MakeView();
	BMessage drop(B_SIMPLE_DATA);
	drop.AddString("mark", "this one");
	Hand(drop);
	ASSERT_EQ(Received(B_SIMPLE_DATA).size(), 1u);
	EXPECT_STREQ(Received(B_SIMPLE_DATA)[0].GetString("mark", ""), "this one");
}


TEST_F(MxViewMessages, DroppedColorIsTakenUntilTheNextDrawing)
{
	MakePicture();
	BMessage paste(B_PASTE);
	const rgb_color color = {9, 99, 199, 255};
	paste.AddData("RGBColor", B_RGB_COLOR_TYPE, &color, sizeof(color));
	Hand(paste);
	// The whole view was drawn, which takes the system's color again.
	EXPECT_EQ(fView->listBackColor, ui_color(B_MENU_BACKGROUND_COLOR));
	EXPECT_EQ(fView->ViewColor(), ui_color(B_MENU_BACKGROUND_COLOR));
}


TEST_F(MxViewMessages, WheelIsIgnored)
{
	AddTitles(9);
	MakeView();
	BMessage wheel(B_MOUSE_WHEEL_CHANGED);
	wheel.AddFloat("be:wheel_delta_y", 3);
	EXPECT_EQ(Hand(wheel), "");
	EXPECT_EQ(fView->centeredIndex, 0);
	EXPECT_TRUE(Received(B_MOUSE_WHEEL_CHANGED).empty());
}


TEST_F(MxViewMessages, LanguageGoesOnToTheWindow)
{
	MakeView();
	BMessage language(kMsgLanguageChanged);
	Hand(language);
	EXPECT_EQ(Received(kMsgLanguageChanged).size(), 1u);

	delete fView->langMenu;
	fView->langMenu = nullptr;
	Hand(language);
	EXPECT_EQ(Received(kMsgLanguageChanged).size(), 2u);
}


TEST_F(MxViewMessages, LanguageIsTakenOnTopOfTheBuiltInTexts)
{
	const std::string file = fFolder.Write("KORU-Haiku.deDE", "\"Close\" \"Zumachen\"\n");
	const std::string other = fFolder.Write("KORU-Haiku.frFR", "\"Save\" \"Sauver\"\n");
	MakeView();
	BMessage language(kMsgLanguageChanged);
	language.AddString("_LangFilePath", file.c_str());
	Hand(language);
	EXPECT_STREQ(getLabel(173), "Zumachen");
	language.ReplaceString("_LangFilePath", other.c_str());
	Hand(language);
	EXPECT_STREQ(getLabel(173), "Close");
	EXPECT_STREQ(getLabel(199), "Sauver");
}


TEST_F(MxViewMessages, UnknownMessageIsPrinted)
{
	MakeView();
	const std::string output = Hand('odd?');
	EXPECT_EQ(output.rfind("MxView::MessageReceived\n", 0), 0u);
	EXPECT_NE(output.find("odd?"), std::string::npos);
	// The platform hands it on.
	EXPECT_EQ(Received('odd?').size(), 1u);
}


TEST_F(MxViewMouse, MarksAreOnlyPrinted)
{
	Show(5, 2);
	EXPECT_EQ(test::OutputOf([this] { fView->MouseDown(BPoint(741, 5)); }), " UP selected\n");
	EXPECT_EQ(test::OutputOf([this] { fView->MouseDown(BPoint(741, 690)); }), " DOWN selected\n");
	EXPECT_EQ(fView->menuCount, 0);
	EXPECT_EQ(fView->centeredIndex, 2);
}


TEST_F(MxViewMouse, FirstAndLastButtonShowTheEnds)
{
	Show(9, 4);
	ClickButton(1);
	EXPECT_EQ(fView->centeredIndex, 8);
	ClickButton(0);
	EXPECT_EQ(fView->centeredIndex, 0);
	EXPECT_EQ(fView->playEnd, 0);
	EXPECT_EQ(fView->menuCount, 0);
}


TEST_F(MxViewMouse, PageButtonsMoveByWhatIsVisible)
{
	Show(30, 15);
	fView->visibleCount = 4;
	ClickButton(2);
	EXPECT_EQ(fView->centeredIndex, 11);
	fView->visibleCount = 4;
	ClickButton(3);
	EXPECT_EQ(fView->centeredIndex, 15);
	fView->visibleCount = 20;
	ClickButton(2);
	EXPECT_EQ(fView->centeredIndex, 0);
}


TEST_F(MxViewMouse, PageDownFrom18Of20ShowsTheLast)
{
	Show(20, 18);
	ClickButton(3);
	EXPECT_EQ(fView->centeredIndex, 19);
	ClickButton(3);
	EXPECT_EQ(fView->centeredIndex, 19);
}


TEST_F(MxViewMouse, MarkButtonsMoveTheMarkByOne)
{
	Show(9, 4);
	ClickButton(4);
	EXPECT_EQ(fView->nextIndex, 3);
	EXPECT_EQ(MEView::IsNext, 3);
	ClickButton(5);
	ClickButton(5);
	EXPECT_EQ(fView->nextIndex, 5);
	EXPECT_EQ(MEView::IsNext, 5);
	EXPECT_TRUE(Received(kMsgPlayTitle).empty());
}


TEST_F(MxViewMouse, FirstButtonInTheTestOrderWins)
{
	Show(30, 15);
	for (BRect& frame : fView->buttonRect)
		frame = BRect(100, 500, 200, 600);
	fView->visibleCount = 3;
	Click(BPoint(150, 550));
	EXPECT_EQ(fView->centeredIndex, 12);
	fView->buttonRect[2] = BRect(0, 0, -1, -1);
	fView->visibleCount = 3;
	Click(BPoint(150, 550));
	EXPECT_EQ(fView->centeredIndex, 15);
	fView->buttonRect[3] = BRect(0, 0, -1, -1);
	Click(BPoint(150, 550));
	EXPECT_EQ(fView->centeredIndex, 0);
	fView->buttonRect[0] = BRect(0, 0, -1, -1);
	Click(BPoint(150, 550));
	EXPECT_EQ(fView->centeredIndex, 29);
	fView->buttonRect[1] = BRect(0, 0, -1, -1);
	Click(BPoint(150, 550));
	EXPECT_EQ(fView->nextIndex, 28);
	fView->buttonRect[4] = BRect(0, 0, -1, -1);
	Click(BPoint(150, 550));
	EXPECT_EQ(fView->nextIndex, 29);
}


TEST_F(MxViewMouse, ButtonsOfAnEmptyListDoNothing)
{
	Show(0, 0);
	for (int32 button = 0; button < 6; button++)
		ClickButton(button);
	EXPECT_EQ(fView->centeredIndex, -1);
	EXPECT_EQ(fView->menuCount, 0);
}


TEST_F(MxViewMouse, CoverShowsItsFolder)
{
	for (int number = 0; number < 8; number++)
		AddAlbum("album" + std::to_string(number));
	Show(3, 0);
	// Three columns: a step is 42.
	fView->imageGridRect = BRect(19, 19, 141, 141);
	Click(BPoint(19 + 90, 19 + 50));
	ASSERT_EQ(Received(kMsgListOperation).size(), 1u);
	const BMessage message = Received(kMsgListOperation)[0];
	EXPECT_EQ(message.GetInt32("mpl_nr", -1), 5);
	EXPECT_EQ(message.GetInt32("mpl_what", -1), 13);
	EXPECT_EQ(fView->menuCount, 0);
}


TEST_F(MxViewMouse, EmptyCellIsBackground)
{
	AddAlbum("only");
	Show(3, 0);
	Click(BPoint(19 + 50, 30));
	EXPECT_TRUE(Received(kMsgListOperation).empty());
	EXPECT_EQ(fView->menuCount, 1);
}


TEST_F(MxViewMouse, WithoutAlbumsTheGridIsBackground)
{
	Show(3, 0);
	MxView::ImgList = nullptr;
	Click(BPoint(30, 30));
	EXPECT_TRUE(Received(kMsgListOperation).empty());
	EXPECT_EQ(fView->menuCount, 1);
}


TEST_F(MxViewMouse, CornerOfAHiddenGridShowsTheFirstFolder)
{
	AddAlbum("only");
	Show(3, 0);
	fView->imageGridRect = BRect(0, 0, 1, 1);
	Click(BPoint(1, 1));
	ASSERT_EQ(Received(kMsgListOperation).size(), 1u);
	EXPECT_EQ(Received(kMsgListOperation)[0].GetInt32("mpl_nr", -1), 0);
}


TEST_F(MxViewMouse, PrimaryAndSecondaryButtonOpenTheMenuOthersDoNot)
{
	Show(3, 0);
	Click(kEmptyPlace, B_SECONDARY_MOUSE_BUTTON);
	EXPECT_EQ(fView->menuCount, 1);
	Click(kEmptyPlace, B_PRIMARY_MOUSE_BUTTON);
	EXPECT_EQ(fView->menuCount, 2);
	Click(kEmptyPlace, B_TERTIARY_MOUSE_BUTTON);
	Click(kEmptyPlace, B_PRIMARY_MOUSE_BUTTON | B_SECONDARY_MOUSE_BUTTON);
	Click(kEmptyPlace, 0);
	EXPECT_EQ(fView->menuCount, 2);
}


TEST_F(MxViewMouse, WithoutAMouseMessageNoButtonIsPressed)
{
	Show(3, 0);
	fView->MouseDown(kEmptyPlace);
	EXPECT_EQ(fView->menuCount, 0);
	BMessage other('clck');
	other.AddInt32("buttons", B_PRIMARY_MOUSE_BUTTON);
	other.AddPoint("where", kEmptyPlace);
	SendToView(other);
	EXPECT_EQ(fView->menuCount, 0);
}


TEST_F(MxViewMouse, ClickDropsTheMenuAndKeepsTheLanguages)
{
	Show(3, 0);
	fView->opensMenu = true;
	fView->AddWPopMenu();
	ASSERT_NE(fView->popMenu, nullptr);
	EXPECT_EQ(fView->langMenu->Supermenu(), fView->popMenu);
	Click(kEmptyPlace, B_TERTIARY_MOUSE_BUTTON);
	EXPECT_EQ(fView->popMenu, nullptr);
	ASSERT_NE(fView->langMenu, nullptr);
	EXPECT_EQ(fView->langMenu->Supermenu(), nullptr);
	fView->AddWPopMenu();
	EXPECT_EQ(fView->langMenu->Supermenu(), fView->popMenu);
	// A mark leaves the menu alone.
	Click(BPoint(741, 5));
	EXPECT_NE(fView->popMenu, nullptr);
}


TEST_F(MxViewMouse, MenuAreaIsPrintedIfThereIsOne)
{
	Show(3, 0);
	fView->menuRect = BRect(100, 400, 150, 600);
	const std::string output = test::OutputOf([this] { fView->MouseDown(BPoint(120, 450)); });
	EXPECT_EQ(output.rfind("  ..MenuRect ", 0), 0u);
	EXPECT_NE(output.find("  ..> 150.0 "), std::string::npos);
	EXPECT_NE(output.find("  ..> 3 Feld"), std::string::npos);
}
