// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "entryview/MEView.h"

#include <mutex>
#include <string>
#include <vector>

#include <Message.h>
#include <Messenger.h>
#include <PopUpMenu.h>
#include <Window.h>
#include <gtest/gtest.h>

#include "entryview/EntryMessages.h"
#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "tests/support/Desktop.h"
#include "tests/support/Popups.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Wait.h"


namespace {

// Keeps the last list operation that it is asked for.
class OperationWindow : public BWindow {
public:
	OperationWindow()
		:
		BWindow(BRect(50, 50, 650, 350), "operations", B_TITLED_WINDOW, 0)
	{
	}

	void MessageReceived(BMessage* message) override
	{
		const std::lock_guard<std::mutex> guard(fLock);
		if (message->what == kMsgListOperation)
			fLast = *message;
	}

	BMessage Last()
	{
		const std::lock_guard<std::mutex> guard(fLock);
		return fLast;
	}

private:
	std::mutex fLock;
	BMessage fLast;
};


class MEViewMenu : public testing::Test {
protected:
	void SetUp() override
	{
		test::TheApplication();
		KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
		MEView::SepListSelected = false;
		fWindow = new OperationWindow;
	}

	void TearDown() override
	{
		test::CloseWindow(fWindow);
		MEView::SepListSelected = false;
	}

	void MakeTile(const char* name)
	{
		fTile = new MEView(BRect(10, 10, 500, 100), "tile", name, 4);
		fWindow->AddChild(fTile);
		fWindow->Show();
		test::Settle(fWindow);
	}

	void OpenMenu()
	{
		test::PressMouse(fWindow, {60, 60, Qt::RightButton, Qt::RightButton, Qt::NoModifier});
		ASSERT_TRUE(test::WaitForMenu());
	}

	void CloseMenu()
	{
		test::PressKey(Qt::Key_Escape);
		ASSERT_TRUE(test::WaitForNoMenu());
		test::ReleaseMouse(fWindow, {60, 60, Qt::RightButton, Qt::NoButton, Qt::NoModifier});
		test::Settle(fWindow);
	}

	// The rows' labels; separators are "-".
	std::vector<std::string> Labels()
	{
		std::vector<std::string> labels;
		for (const test::MenuRow& row : test::MenuRows()) {
			EXPECT_FALSE(row.checked) << row.label;
			labels.push_back(row.separator ? "-" : row.label);
		}
		return labels;
	}

	// What choosing the row asks for.
	BMessage Choose(const std::string& label)
	{
		EXPECT_TRUE(test::ClickMenuRow(label));
		EXPECT_TRUE(test::WaitFor([this] { return fWindow->Last().what == kMsgListOperation; }));
		return fWindow->Last();
	}

	OperationWindow* fWindow = nullptr;
	MEView* fTile = nullptr;
};

using Rows = std::vector<std::string>;

} // namespace


TEST_F(MEViewMenu, TileOfTheListCanBeRemoved)
{
	MakeTile("Song.mp3");
	OpenMenu();
	EXPECT_EQ(Labels(), (Rows{"-", "Open folder", "Remove from List"}));
	EXPECT_FALSE(test::MenuRows()[1].enabled);
	const BMessage message = Choose("Remove from List");
	EXPECT_EQ(message.GetInt32("mpl_what", -1), MF_REMOVE);
	EXPECT_EQ(message.GetInt32("mpl_nr", -1), 4);
}


TEST_F(MEViewMenu, OpensAtThePointerInItsOwnFont)
{
	MakeTile("Song.mp3");
	OpenMenu();
	EXPECT_EQ(test::MenuFontPixels(), 11);
	int x;
	int y;
	ASSERT_TRUE(test::MenuCorner(&x, &y));
	const BPoint pointer = fWindow->Frame().LeftTop() + BPoint(60, 60);
	EXPECT_EQ(BPoint(x, y), pointer);
	CloseMenu();
	EXPECT_STREQ(fTile->fContextMenu->Name(), "MeView_Menu");
	EXPECT_FALSE(fTile->fContextMenu->IsRadioMode());
}


TEST_F(MEViewMenu, WithoutTheSecondButtonThereIsNoMenu)
{
	MakeTile("Song.mp3");
	ASSERT_TRUE(fWindow->Lock());
	fTile->AddPopMenu();
	EXPECT_EQ(fTile->fContextMenu, nullptr);
	fWindow->Unlock();
}


TEST_F(MEViewMenu, ExistingFolderCanBeOpened)
{
	MakeTile("Song.mp3");
	fTile->fCanOpenFolder = true;
	OpenMenu();
	EXPECT_TRUE(test::MenuRows()[1].enabled);
	const BMessage message = Choose("Open folder");
	EXPECT_EQ(message.GetInt32("mpl_what", -1), MF_OFOLD);
	EXPECT_EQ(message.GetInt32("mpl_nr", -1), 4);
}


TEST_F(MEViewMenu, BadNameCanBeReplaced)
{
	MakeTile("It's a song.mp3");
	OpenMenu();
	EXPECT_EQ(Labels(),
		(Rows{"-", "Open folder", "Remove from List", "-", "Replace bad chars in filename"}));
	const BMessage message = Choose("Replace bad chars in filename");
	EXPECT_EQ(message.GetInt32("mpl_what", -1), MF_RBC);
	EXPECT_EQ(message.GetInt32("mpl_nr", -1), 4);
}


TEST_F(MEViewMenu, AlbumsTitleCanBeTaken)
{
	MEView::SepListSelected = true;
	MakeTile("It's a song.mp3");
	OpenMenu();
	EXPECT_EQ(Labels(),
		(Rows{"-", "Open folder", "-", "Add to Playlist", "-", "..back to playlist"}));
	const BMessage message = Choose("..back to playlist");
	EXPECT_EQ(message.GetInt32("mpl_what", -1), MF_FOLDER);
	EXPECT_EQ(message.GetInt32("mpl_nr", -1), 999);
}


TEST_F(MEViewMenu, TitleIsTaken)
{
	MEView::SepListSelected = true;
	MakeTile("Song.mp3");
	OpenMenu();
	const BMessage message = Choose("Add to Playlist");
	EXPECT_EQ(message.GetInt32("mpl_what", -1), MF_TAKE);
	EXPECT_EQ(message.GetInt32("mpl_nr", -1), 4);
}


TEST_F(MEViewMenu, MenuStaysAsItWasBuilt)
{
	MakeTile("Song.mp3");
	OpenMenu();
	const Rows first = Labels();
	CloseMenu();
	MEView::SepListSelected = true;
	fTile->fCanOpenFolder = true;
	OpenMenu();
	EXPECT_EQ(Labels(), first);
	EXPECT_FALSE(test::MenuRows()[1].enabled);
	CloseMenu();
}
