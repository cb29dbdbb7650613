// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What the window asks of its list view.
#include <string>
#include <vector>

#include <List.h>

#include "listview/MxView.h"
#include "settings/Prefs.h"
#include "tests/window/MediaWindowFixture.h"
#include "window/BitmapPath.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

using Calls = std::vector<std::string>;


// Notes what it is asked, and does nothing of it.
class WatchedView : public MxView {
public:
	explicit WatchedView(BRect frame)
		:
		MxView(frame, "MxView", B_FOLLOW_ALL_SIDES, B_WILL_DRAW | B_PULSE_NEEDED)
	{
	}

	void AttachedToWindow() override {}

	void MessageReceived(BMessage* message) override
	{
		const uint32 what = message->what;
		std::string code;
		for (int shift = 24; shift >= 0; shift -= 8)
			code += static_cast<char>(what >> shift);
		fCalls.push_back("message " + code);
	}

	void Draw(BRect update) override
	{
		fCalls.push_back(update == Bounds() ? "draw" : "draw a part");
	}

	void FrameResized(float width, float height) override
	{
		fCalls.push_back("resized " + std::to_string(static_cast<int>(width)) + " "
			+ std::to_string(static_cast<int>(height)));
	}

	void ChildsFromList(bool quiet) override { fCalls.push_back(quiet ? "quiet tiles" : "tiles"); }

	void KeyEvents(BMessage*) override { fCalls.push_back("key"); }

	void CenterMediaFile(long index, bool startPlay, long step) override
	{
		fCalls.push_back("center " + std::to_string(index) + (startPlay ? " playing " : " ")
			+ std::to_string(step));
	}

	void ShowToppedAlbum(long image) override
	{
		fCalls.push_back("album " + std::to_string(image));
	}

	void CalcContinousPlaytime() override { fCalls.push_back("play time"); }

	// What it was asked since the last time.
	Calls Take()
	{
		Calls calls;
		calls.swap(fCalls);
		return calls;
	}

private:
	Calls fCalls;
};


class ListViewCalls : public MediaWindowFixture {
protected:
	ListViewCalls()
	{
		WritePlaylist({MakeTitle("own/1.mp3"), MakeTitle("own/2.mp3")});
		MEDIA_Window& window = Window();
		window.Lock();
		MxView* const usual = window.fListView;
		window.RemoveChild(usual);
		fView = new WatchedView(usual->Frame());
		delete usual;
		window.fListView = fView;
		window.AddChild(fView);
		window.Unlock();
		fView->Take();
	}

	Calls Doing(int32 operation, const std::string& path = "", int32 number = -1)
	{
		Do(operation, path, number);
		return fView->Take();
	}

	Calls Sending(const BMessage& message)
	{
		Send(message);
		return fView->Take();
	}

	Calls Playing(int32 number)
	{
		Play(number);
		return fView->Take();
	}

	WatchedView* fView = nullptr;
};

} // namespace


TEST_F(ListViewCalls, OfTheListsOperations)
{
	EXPECT_EQ(Doing(MF_ADD, MakeTitle("own/3.mp3")), (Calls{"tiles", "draw"}));
	EXPECT_EQ(Doing(MF_ADD, fFolder / "own/2.mp3"), Calls{"center 1 0"});
	EXPECT_EQ(Doing(MF_DEC), Calls{"draw"});
	EXPECT_EQ(Doing(MF_UPDATE), (Calls{"draw", "tiles"}));
	EXPECT_EQ(Doing(MF_SAVE), Calls{"draw"});
	EXPECT_EQ(Doing(MF_SAVE), Calls());
	EXPECT_EQ(Doing(MF_RBC, "", 0), Calls{"tiles"});
	EXPECT_EQ(Doing(MF_RBC, "", 5), Calls());
	EXPECT_EQ(Doing(MF_REMOVE, "", 0), Calls{"tiles"});
	EXPECT_EQ(Doing(MF_REMOVE, "", 5), Calls());
	EXPECT_EQ(Doing(MF_SHOW), Calls());
	EXPECT_EQ(Doing(MF_LOAD), Calls());
}


TEST_F(ListViewCalls, OfAnAlbum)
{
	MakeTitle("album/a.mp3");
	Window().fFolderList->AddItem(new BitmapPath((fFolder / "album").c_str()));
	EXPECT_EQ(Doing(MF_FOLDER, "", 1), Calls{"tiles"});
	EXPECT_EQ(Doing(MF_ADD, MakeTitle("own/3.mp3")), Calls{"draw"});
	EXPECT_EQ(Doing(MF_ADD, fFolder / "own/3.mp3"), Calls());
	Prefs::getSTPrefs()->playingImage = 1;
	EXPECT_EQ(Doing(MF_FOLDER, "", 999), (Calls{"tiles", "album 1"}));
	Doing(MF_FOLDER, "", 1);
	EXPECT_EQ(Doing(MF_TAKE, "", 0), (Calls{"draw", "tiles", "album 1"}));
}


TEST_F(ListViewCalls, OfWhatPlays)
{
	Prefs& settings = *Prefs::getSTPrefs();
	EXPECT_EQ(Playing(1), Calls{"center 1 playing 0"});

	settings.last_top_media = 5;
	settings.last_top_media_buf = 5;
	settings.last_timer_nr = 5;
	EXPECT_EQ(Playing(2), (Calls{"tiles", "center 0 playing 0"}));
	EXPECT_EQ(fView->imageIndex, -2);
	EXPECT_EQ(settings.last_top_media, 0);
	EXPECT_EQ(settings.last_top_media_buf, 0);
	EXPECT_EQ(settings.last_timer_nr, -1);
	MxView::MedList = nullptr;
	EXPECT_EQ(Playing(-1), (Calls{"tiles", "center 0 playing 0"}));

	EXPECT_EQ(MxView::MedList, Window().mflist);

	MakeTitle("album/a.mp3");
	Window().fFolderList->AddItem(new BitmapPath((fFolder / "album").c_str()));
	settings.last_top_media = 1;
	Doing(MF_FOLDER, "", 1);
	settings.last_timer_nr = 5;
	EXPECT_EQ(Playing(0), Calls{"center 0 playing 0"});
	EXPECT_EQ(Playing(1), (Calls{"tiles", "center 1 playing 0"}));
	EXPECT_EQ(fView->imageIndex, -2);
	EXPECT_EQ(settings.last_top_media, 1);
	EXPECT_EQ(settings.last_timer_nr, -1);
}


TEST_F(ListViewCalls, OfMessages)
{
	for (const uint32 what : {'MWmi', 'MWm4', 'MWm5', 'MWmd', 'MWmx', 'MWPT'}) {
		const std::string code = {static_cast<char>(what >> 24), static_cast<char>(what >> 16),
			static_cast<char>(what >> 8), static_cast<char>(what)};
		EXPECT_EQ(Sending(BMessage(what)), Calls{"message " + code});
	}
	EXPECT_EQ(Sending(BMessage(B_KEY_DOWN)), Calls{"key"});
	EXPECT_EQ(Sending(BMessage('MWse')), Calls{"key"});
	BMessage control(B_UNMAPPED_KEY_DOWN);
	control.AddInt32("modifiers", 0x2000);
	EXPECT_EQ(Sending(control), Calls{"play time"});
}


TEST_F(ListViewCalls, OfANewSize)
{
	MEDIA_Window& window = Window();
	window.Lock();
	window.FrameResized(700, 400);
	EXPECT_EQ(fView->Take(), (Calls{"resized 700 400", "draw"}));
	window.fHollow = true;
	window.FrameResized(700, 400);
	EXPECT_EQ(fView->Take(), Calls());
	window.fHollow = false;
	window.Unlock();
}
