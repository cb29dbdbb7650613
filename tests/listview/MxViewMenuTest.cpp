// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Font.h>
#include <MenuItem.h>
#include <Message.h>
#include <PopUpMenu.h>
#include <String.h>

#include "entryview/MEView.h"
#include "locale/KVLangMenu.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"
#include "tests/support/Popups.h"
#include "tests/support/Wait.h"

#include <Qt>


namespace {

using Texts = std::vector<std::string>;


class MxViewMenu : public ListViewFixture {
protected:
	void Open()
	{
		fView->opensMenu = true;
		fView->AddWPopMenu();
	}

	// The labels of the items; separators are "-", submenus end with ">", marked ones with "*".
	Texts Labels()
	{
		Texts labels;
		for (int32 index = 0; index < fView->popMenu->CountItems(); index++) {
			const BMenuItem* const item = fView->popMenu->ItemAt(index);
			if (dynamic_cast<const BSeparatorItem*>(item) != nullptr) {
				labels.push_back("-");
				continue;
			}
			std::string label = item->Label();
			label += item->Submenu() != nullptr ? ">" : "";
			label += item->IsMarked() ? "*" : "";
			labels.push_back(label);
		}
		return labels;
	}

	const BMenuItem& Item(const char* label) { return *fView->popMenu->FindItem(label); }
};

} // namespace


TEST_F(MxViewMenu, ItemsInTheirOrder)
{
	AddTitles(2, "00:30");
	Prefs::getSTPrefs()->mw_ever_topped = false;
	MakeView();
	Open();
	EXPECT_STREQ(fView->popMenu->Name(), "MeView_Menu");
	EXPECT_EQ(Labels(),
		(Texts{"-", "Toggle Tab", "Window ever on top", "-", "Edit", "-",
			"Prefered Audio-Application : >", "-", "BoxSize: pico", "BoxSize: micro",
			"BoxSize: mini", "BoxSize: normal", "BoxSize: maxi*", "-", "Language>", "-", " About",
			"-", "Close"}));
	BFont font;
	fView->popMenu->GetFont(&font);
	EXPECT_EQ(font.Size(), 11);
}


TEST_F(MxViewMenu, AlbumWithUnsavedAndUnmeasuredTitles)
{
	AddTitles(2);
	MakeView();
	MxView::SingleAlbum = true;
	fView->listChanged = true;
	Prefs::getSTPrefs()->mw_ever_topped = true;
	Prefs::getSTPrefs()->LINK_SIZE = 4;
	Open();
	EXPECT_EQ(Labels(),
		(Texts{"-", "..back to playlist", "-", "Toggle Tab", "Window ever on top*", "-",
			"Set Playtime-Attribute", "-", "Edit", "Save", "-", "Prefered Audio-Application : >",
			"-", "BoxSize: pico", "BoxSize: micro*", "BoxSize: mini", "BoxSize: normal",
			"BoxSize: maxi", "-", "Language>", "-", " About", "-", "Close"}));
}


TEST_F(MxViewMenu, BoxSizesCanBeLeftOut)
{
	AddTitles(1, "00:30");
	MakeView();
	fView->sizeMenuShown = false;
	Open();
	EXPECT_EQ(fView->popMenu->FindItem('MWmi'), nullptr);
	EXPECT_NE(fView->popMenu->FindItem('MW_C'), nullptr);
}


TEST_F(MxViewMenu, SizeInUseIsMarked)
{
	const uint32 codes[] = {'MWmx', 'MWmd', 'MWmi', 'MWm4', 'MWm5'};
	for (int32 size = 1; size <= 5; size++) {
		Prefs::getSTPrefs()->LINK_SIZE = size;
		MakeView();
		Open();
		for (int32 other = 1; other <= 5; other++)
			EXPECT_EQ(fView->popMenu->FindItem(codes[other - 1])->IsMarked(), other == size);
		CloseView();
	}
}


TEST_F(MxViewMenu, MeasuringIsOfferedForAnyTitleWithoutATime)
{
	AddTitles(3, "00:30");
	AddTitle("Unknown.mp3");
	MakeView();
	Open();
	EXPECT_NE(fView->popMenu->FindItem('MWPT'), nullptr);
}


TEST_F(MxViewMenu, MeasuringIsNotOfferedWhenEachTitleHasATime)
{
	AddTitles(3, "00:30");
	MakeView();
	Open();
	EXPECT_EQ(fView->popMenu->FindItem('MWPT'), nullptr);
}


TEST_F(MxViewMenu, ViewThatIsNoTileIsOnlyPrinted)
{
	AddTitles(2, "00:30");
	MakeView();
	fView->AddChild(new BView(BRect(0, 0, 1, 1), "other", B_FOLLOW_NONE, 0));
	const std::string output = test::OutputOf([this] { Open(); });
	EXPECT_NE(output.find(" not a MEView (2) \n"), std::string::npos);
	EXPECT_EQ(fView->popMenu->FindItem('MWPT'), nullptr);
}


TEST_F(MxViewMenu, OpensAtThePointer)
{
	AddTitles(1, "00:30");
	MakeView();
	fWindow->Unlock();
	fWindow->Show();
	test::Settle(fWindow);
	test::Pointer pointer;
	pointer.x = 130;
	pointer.y = 90;
	test::MoveMouse(fWindow, pointer);
	test::Settle(fWindow);
	fWindow->Lock();
	Open();
	ASSERT_TRUE(test::WaitForMenu());
	int x;
	int y;
	ASSERT_TRUE(test::MenuCorner(&x, &y));
	EXPECT_EQ(BPoint(x, y), fWindow->Frame().LeftTop() + BPoint(130, 90));
	test::PressKey(Qt::Key_Escape);
	EXPECT_TRUE(test::WaitForNoMenu());
}


TEST_F(MxViewMenu, ItemsCarryTheirMessages)
{
	AddTitles(1);
	MakeView();
	MxView::SingleAlbum = true;
	fView->listChanged = true;
	Open();
	const BMessage& back = *Item("..back to playlist").Message();
	EXPECT_EQ(back.what, 0x6D706C31u);
	EXPECT_EQ(back.GetInt32("mpl_nr", -1), 999);
	EXPECT_EQ(back.GetInt32("mpl_what", -1), 13);
	const BMessage& save = *Item("Save").Message();
	EXPECT_EQ(save.what, 0x6D706C31u);
	EXPECT_FALSE(save.HasInt32("mpl_nr"));
	EXPECT_EQ(save.GetInt32("mpl_what", -1), 5);
	EXPECT_EQ(Item("Toggle Tab").Command(), 0x4D576B54u);
	EXPECT_EQ(Item("Window ever on top").Command(), 0x4D576666u);
	EXPECT_EQ(Item("Set Playtime-Attribute").Command(), 0x4D575054u);
	EXPECT_EQ(Item("Edit").Command(), 0x4D575F45u);
	EXPECT_EQ(Item("BoxSize: pico").Command(), 0x4D576D35u);
	EXPECT_EQ(Item("BoxSize: micro").Command(), 0x4D576D34u);
	EXPECT_EQ(Item("BoxSize: mini").Command(), 0x4D576D69u);
	EXPECT_EQ(Item("BoxSize: normal").Command(), 0x4D576D64u);
	EXPECT_EQ(Item("BoxSize: maxi").Command(), 0x4D576D78u);
	EXPECT_EQ(Item(" About").Command(), 0x5F414252u);
	EXPECT_EQ(Item("Close").Command(), 0x4D575F43u);
}


TEST_F(MxViewMenu, ItemsGoToTheWindowAndLanguagesToTheView)
{
	MakeView();
	Open();
	for (int32 index = 0; index < fView->popMenu->CountItems(); index++) {
		const BMenuItem* const item = fView->popMenu->ItemAt(index);
		if (item->Submenu() == nullptr && item->Command() != 0) {
			EXPECT_EQ(item->Target(), fWindow) << item->Label();
		}
	}
	const BMenu* const players = Item("Prefered Audio-Application : ").Submenu();
	ASSERT_NE(players, nullptr);
	EXPECT_EQ(players->ItemAt(0)->Target(), fWindow);
	EXPECT_EQ(players->ItemAt(0)->Command(), 0x55504141u);
	for (int32 index = 0; index < fView->langMenu->CountItems(); index++) {
		const BMenuItem* const item = fView->langMenu->ItemAt(index);
		if (item->Command() != 0) {
			EXPECT_EQ(item->Target(), fView) << index;
		}
	}
}


TEST_F(MxViewMenu, ChosenItemReachesTheWindow)
{
	AddTitles(1);
	MakeView();
	Open();
	ASSERT_TRUE(test::WaitForMenu());
	EXPECT_TRUE(test::ClickMenuRow("Set Playtime-Attribute"));
	EXPECT_TRUE(test::WaitForNoMenu());
	EXPECT_TRUE(test::WaitFor([this] { return Received('MWPT').size() == 1; }));
}


TEST_F(MxViewMenu, StaysAsItWasBuiltUntilItIsDropped)
{
	AddTitles(1, "00:30");
	MakeView();
	Open();
	const BPopUpMenu* const menu = fView->popMenu;
	ASSERT_TRUE(test::WaitForMenu());
	test::PressKey(Qt::Key_Escape);
	ASSERT_TRUE(test::WaitForNoMenu());
	fView->listChanged = true;
	Open();
	EXPECT_EQ(fView->popMenu, menu);
	EXPECT_EQ(fView->popMenu->FindItem("Save"), nullptr);
}
