// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Bitmap.h>

#include "entryview/MEView.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Output.h"
#include "window/WindowCommands.h"


namespace {

class MxViewKeys : public ListViewFixture {
protected:
	void Show(int count, int32 next)
	{
		AddTitles(count, "00:30");
		MakeView();
		fView->CenterMediaFile(next, false, 0);
		ASSERT_EQ(fView->nextIndex, next);
	}

	std::string Key(int32 key, int32 remoteKey = 0)
	{
		BMessage message(B_KEY_DOWN);
		message.AddInt32("key", key);
		if (remoteKey != 0)
			message.AddInt32("korukey", remoteKey);
		return test::OutputOf([&] { fView->KeyEvents(&message); });
	}

	int32 AfterKey(int32 key)
	{
		Key(key);
		EXPECT_EQ(MEView::IsNext, fView->nextIndex);
		return fView->nextIndex;
	}
};

} // namespace


TEST_F(MxViewKeys, CursorAndKeypadMoveTheMarkByOne)
{
	Show(10, 5);
	EXPECT_EQ(AfterKey(0x57), 4);
	EXPECT_EQ(AfterKey(0x25), 3);
	EXPECT_EQ(AfterKey(0x62), 4);
	EXPECT_EQ(AfterKey(0x3A), 5);
}


TEST_F(MxViewKeys, FirstTitleKeepsTheMark)
{
	Show(10, 0);
	EXPECT_EQ(AfterKey(0x57), 0);
	EXPECT_EQ(AfterKey(0x25), 0);
}


TEST_F(MxViewKeys, LastTitleKeepsTheMark)
{
	Show(10, 9);
	EXPECT_EQ(AfterKey(0x62), 9);
	EXPECT_EQ(AfterKey(0x3A), 9);
}


TEST_F(MxViewKeys, CursorLeftAndRightMoveByAPage)
{
	Show(30, 15);
	fView->visibleCount = 4;
	EXPECT_EQ(AfterKey(0x61), 11);
	fView->visibleCount = 4;
	EXPECT_EQ(AfterKey(0x63), 15);
	// What is placed counts: twelve and the one in the middle.
	EXPECT_EQ(fView->visibleCount, 12);
	EXPECT_EQ(AfterKey(0x63), 27);
}


TEST_F(MxViewKeys, PageKeysGoToTheEnds)
{
	Show(10, 4);
	EXPECT_EQ(AfterKey(0x36), 9);
	EXPECT_EQ(AfterKey(0x21), 0);
}


TEST_F(MxViewKeys, EnterPlaysTheMarkedTitle)
{
	Show(10, 3);
	Key(0x47);
	EXPECT_EQ(fView->playEnd, sNow + fView->playLength);
	EXPECT_EQ(Prefs::getSTPrefs()->last_top_media, 3);
	ASSERT_EQ(Received(kMsgPlayTitle).size(), 1u);
	EXPECT_EQ(Received(kMsgPlayTitle)[0].GetInt32("ml_nr", -1), 3);
	Key(0x5B);
	EXPECT_EQ(Received(kMsgPlayTitle).size(), 2u);
}


TEST_F(MxViewKeys, RemoteEnterPlaysTheMarkedTitle)
{
	Show(10, 3);
	Key(0, 69);
	EXPECT_EQ(fView->playEnd, sNow + fView->playLength);
	Key(0, 94);
	ASSERT_EQ(Received(kMsgPlayTitle).size(), 2u);
	EXPECT_EQ(Received(kMsgPlayTitle)[0].GetInt32("ml_nr", -1), 3);
	EXPECT_EQ(Received(kMsgPlayTitle)[1].GetInt32("ml_nr", -1), 3);
}


TEST_F(MxViewKeys, RemoteKeysMoveTheMark)
{
	Show(30, 15);
	Key(0, 61);
	EXPECT_EQ(fView->nextIndex, 14);
	Key(0, 62);
	EXPECT_EQ(fView->nextIndex, 15);
	Key(0, 63);
	EXPECT_EQ(fView->nextIndex, 3);
	Key(0, 64);
	EXPECT_EQ(fView->nextIndex, 12);
	Key(0, 95);
	EXPECT_EQ(fView->nextIndex, 29);
	Key(0, 91);
	EXPECT_EQ(fView->nextIndex, 0);
}


TEST_F(MxViewKeys, KeyOfTheKeyboardWinsOverTheRemoteControl)
{
	Show(10, 5);
	Key(0x57, 62);
	EXPECT_EQ(fView->nextIndex, 4);
}


TEST_F(MxViewKeys, UnknownRemoteKeyIsPrinted)
{
	Show(10, 5);
	EXPECT_EQ(Key(0, 7), " sorry...\n");
	EXPECT_EQ(Key(0), " sorry...\n");
	EXPECT_EQ(fView->nextIndex, 5);
	EXPECT_TRUE(Received(kMsgPlayTitle).empty());
}


TEST_F(MxViewKeys, AnyOtherKeyDrawsTheTiles)
{
	AddTitles(3);
	MakePicture();
	// Beside the picture of the first tile, above its name.
	const rgb_color fill = {240, 240, 240, 255};
	EXPECT_EQ(Count(BRect(560, 292, 760, 330), fill), 0);
	EXPECT_EQ(Key(0x1e), "");
	fView->Sync();
	EXPECT_EQ(Count(BRect(560, 292, 760, 330), fill), 201 * 39);
}


TEST_F(MxViewKeys, EmptyListTakesEveryKey)
{
	MakeView();
	for (const int32 key : {0x57, 0x62, 0x61, 0x63, 0x21, 0x36, 0x25, 0x3A})
		EXPECT_EQ(Key(key), "no childs..\n") << key;
	Key(0x47);
	EXPECT_EQ(Received(kMsgPlayTitle).size(), 1u);
}
