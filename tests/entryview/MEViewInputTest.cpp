// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "entryview/MEView.h"

#include <mutex>
#include <vector>

#include <Autolock.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <PopUpMenu.h>
#include <Window.h>
#include <gtest/gtest.h>

#include "entryview/EntryMessages.h"
#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"


namespace {

// Keeps what its tiles send.
class Listener : public BWindow {
public:
	Listener()
		:
		BWindow(BRect(0, 0, 600, 300), "listener", B_TITLED_WINDOW, 0)
	{
	}

	void MessageReceived(BMessage* message) override
	{
		const std::lock_guard<std::mutex> guard(fLock);
		fReceived.push_back(*message);
	}

	std::vector<BMessage> Received(uint32 what)
	{
		const std::lock_guard<std::mutex> guard(fLock);
		std::vector<BMessage> found;
		for (const BMessage& message : fReceived) {
			if (message.what == what)
				found.push_back(message);
		}
		return found;
	}

private:
	std::mutex fLock;
	std::vector<BMessage> fReceived;
};


// Calls the hook for the mouse in the midst of another message.
constexpr uint32 kPress = 'pres';


// Says that the second button is down, without a pointer.
class PressedTile : public MEView {
public:
	using MEView::MEView;

	void MessageReceived(BMessage* message) override
	{
		if (message->what == kPress)
			MouseDown(BPoint(5, 5));
		else
			MEView::MessageReceived(message);
	}

	void AddPopMenu() override { fMenuCount++; }

	int fMenuCount = 0;
};


class MEViewInput : public testing::Test {
protected:
	void SetUp() override
	{
		test::TheApplication();
		KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
		MEView::IsSelected = 0;
		MEView::IsNext = 0;
		fWindow = new Listener;
		fTile = new PressedTile(BRect(10, 10, 500, 100), "tile", "Song.mp3", 4);
		fTile->fArtist = "Artist";
		fTile->fImageNumber = 2;
		fWindow->AddChild(fTile);
		fWindow->Show();
	}

	void TearDown() override
	{
		if (fWindow->Lock())
			fWindow->Quit();
	}

	void Press(int32 buttons)
	{
		BMessage message(B_MOUSE_DOWN);
		message.AddInt32("buttons", buttons);
		message.AddInt32("clicks", 1);
		message.AddPoint("be:view_where", BPoint(5, 5));
		message.AddPoint("where", BPoint(5, 5));
		Send(message);
	}

	// Waits until it has been handled.
	void Send(BMessage message)
	{
		BMessenger tile;
		{
			const BAutolock lock(fWindow);
			tile = BMessenger(fTile);
		}
		tile.SendMessage(&message);
		// Once for what was sent, and once for what that has sent in turn.
		for (int round = 0; round < 2; round++) {
			BMessage last('last');
			BMessage reply;
			BMessenger(fWindow).SendMessage(&last, &reply, 5000000, 5000000);
		}
	}

	Listener* fWindow = nullptr;
	PressedTile* fTile = nullptr;
};

} // namespace


TEST_F(MEViewInput, PrimaryButtonPlays)
{
	Press(B_PRIMARY_MOUSE_BUTTON);
	ASSERT_TRUE(test::WaitFor([this] { return fWindow->Received(kMsgPlayTitle).size() == 1; }));
	const std::vector<BMessage> sent = fWindow->Received(kMsgPlayTitle);
	EXPECT_EQ(sent[0].GetInt32("ml_nr", -1), 4);
	EXPECT_EQ(MEView::IsSelected, 4);
	EXPECT_EQ(MEView::IsNext, 5);
	const Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_EQ(prefs->playingTitle, "Song");
	EXPECT_EQ(prefs->playingArtist, "Artist");
	EXPECT_EQ(prefs->playingImage, 2);
	EXPECT_EQ(fTile->fMenuCount, 0);
}


TEST_F(MEViewInput, SecondaryButtonAsksForTheMenu)
{
	Press(B_SECONDARY_MOUSE_BUTTON);
	EXPECT_EQ(fTile->fMenuCount, 1);
	EXPECT_TRUE(fWindow->Received(kMsgPlayTitle).empty());
}


TEST_F(MEViewInput, OtherButtonsDoNothing)
{
	for (const int32 buttons : {0, 3, 4, 5, 7})
		Press(buttons);
	EXPECT_EQ(fTile->fMenuCount, 0);
	EXPECT_TRUE(fWindow->Received(kMsgPlayTitle).empty());
	EXPECT_EQ(MEView::IsNext, 0);
}


// Whatever else calls the hook, its buttons are unknown.
TEST_F(MEViewInput, PressThatNoMouseMessageCameWithDoesNothing)
{
	for (const int32 buttons : {B_PRIMARY_MOUSE_BUTTON, B_SECONDARY_MOUSE_BUTTON}) {
		BMessage message(kPress);
		message.AddInt32("buttons", buttons);
		Send(message);
	}
	EXPECT_TRUE(fWindow->Received(kMsgPlayTitle).empty());
	const BAutolock lock(fWindow);
	ASSERT_EQ(fWindow->CurrentMessage(), nullptr);
	fTile->MouseDown(BPoint(5, 5));
	EXPECT_EQ(fTile->fMenuCount, 0);
	EXPECT_EQ(MEView::IsNext, 0);
}


TEST_F(MEViewInput, DropGoesToTheWindow)
{
	BMessage drop(B_SIMPLE_DATA);
	drop.AddInt32("mark", 7);
	Send(drop);
	ASSERT_TRUE(test::WaitFor([this] { return !fWindow->Received(B_SIMPLE_DATA).empty(); }));
	EXPECT_EQ(fWindow->Received(B_SIMPLE_DATA)[0].GetInt32("mark", 0), 7);
}


TEST_F(MEViewInput, OtherMessagesAreNotPassedOn)
{
	const std::string output = test::OutputOf([this] { Send(BMessage('none')); });
	EXPECT_EQ(output, "MEView::MessageReceived\n");
	EXPECT_TRUE(fWindow->Received('none').empty());
}
