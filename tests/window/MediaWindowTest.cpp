// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <cmath>

#include <string.h>

#include <Autolock.h>
#include <Font.h>
#include <InterfaceDefs.h>
#include <List.h>
#include <MessageQueue.h>
#include <StringView.h>

#include "listview/MxView.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Output.h"
#include "tests/support/Popups.h"
#include "tests/support/Wait.h"
#include "tests/window/MediaWindowFixture.h"
#include "window/BitmapPath.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

class MediaWindow : public MediaWindowFixture {
protected:
	Prefs& Settings() { return *Prefs::getSTPrefs(); }

	// Two titles in the list, two in an album that is shown.
	void ShowAlbum()
	{
		fOwn = {MakeTitle("own/1.mp3"), MakeTitle("own/2.mp3")};
		fAlbum = {MakeTitle("album/a.mp3"), MakeTitle("album/b.mp3")};
		WritePlaylist(fOwn);
		Window().fFolderList->AddItem(new BitmapPath((fFolder / "album").c_str()));
		Settings().last_top_media = 1;
		Do(MF_FOLDER, "", 1);
		ASSERT_TRUE(Window().fFolderShown);
	}

	Paths fOwn;
	Paths fAlbum;
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(MediaWindow, StartsWithTheKeptFrameAndState)
{
	Settings().prefs_window_rect = BRect(30, 50, 730, 500);
	EXPECT_EQ(Window().Frame(), BRect(30, 50, 730, 500));
	EXPECT_EQ(Window().Look(), B_FLOATING_WINDOW_LOOK);
	EXPECT_EQ(Window().Feel(), B_FLOATING_ALL_WINDOW_FEEL);
	EXPECT_NE(Window().Flags() & 0x20000000, 0u);
	EXPECT_EQ(Window().PulseRate(), 2000000);
	EXPECT_EQ(Window().fSpareFloat, 114);
	EXPECT_EQ(Window().fListView->fFirstSpan, 20000000);
	EXPECT_EQ(Window().fListView->fSecondSpan, 20000000);
	EXPECT_STREQ(Window().Title(), ("using: >> " + PlaylistPath()).c_str());
	float minWidth, maxWidth, minHeight, maxHeight;
	Window().GetSizeLimits(&minWidth, &maxWidth, &minHeight, &maxHeight);
	EXPECT_EQ(minWidth, 600);
	EXPECT_EQ(maxWidth, 1240);
	EXPECT_EQ(minHeight, 382);
	EXPECT_EQ(maxHeight, 1024);
	EXPECT_EQ(Window().fInfoWindow, nullptr);
	EXPECT_EQ(Window().fInfoText, nullptr);
	EXPECT_EQ(MxView::MedList, Window().mflist);
	EXPECT_EQ(MxView::ImgList, Window().fFolderList);
	const MxView& list = *Window().fListView;
	EXPECT_EQ(list.Window(), &Window());
	EXPECT_STREQ(list.Name(), "MxView");
	EXPECT_EQ(list.Frame(), Window().Bounds());
	EXPECT_EQ(list.ResizingMode(), static_cast<uint32>(B_FOLLOW_ALL_SIDES));
	EXPECT_NE(list.Flags() & B_WILL_DRAW, 0u);
	EXPECT_NE(list.Flags() & B_PULSE_NEEDED, 0u);
}


TEST_F(MediaWindow, InformationWindowGoesAfterTheStart)
{
	Window();
	EXPECT_TRUE(test::WaitFor([] {
		for (int32 index = 0; index < be_app->CountWindows(); index++) {
			const BWindow* const window = be_app->WindowAt(index);
			if (window != nullptr && strcmp(window->Title(), " WYN Init-Win ") == 0)
				return false;
		}
		return true;
	}));
}


TEST_F(MediaWindow, SmallKeptFrameIsEnlargedToTheLimits)
{
	Settings().prefs_window_rect = BRect(30, 50, 40, 60);
	EXPECT_EQ(Window().Frame(), BRect(30, 50, 630, 432));
}


TEST_F(MediaWindow, DamagedFrameIsNotTaken)
{
	Settings().prefs_window_rect = BRect(NAN, 50, INFINITY, 60);
	EXPECT_EQ(Window().Frame().LeftTop(), BPoint(260, 40));
}


TEST_F(MediaWindow, NormalFeelIfSoSet)
{
	Settings().mw_ever_topped = false;
	EXPECT_EQ(Window().Feel(), B_NORMAL_WINDOW_FEEL);
}


TEST_F(MediaWindow, HiddenTabAtStartKeepsTheLookThatMaskingRefuses)
{
	Settings().window_mtab = true;
	EXPECT_EQ(Window().Look(), B_TITLED_WINDOW_LOOK);
}


TEST_F(MediaWindow, StartPrintsItsSteps)
{
	Settings();
	WritePlaylist({"/music/a.mp3"});
	std::string output;
	output = test::OutputOf([this] { Window(); });
	EXPECT_EQ(output.find("me init frame: BRect(l:260.0, t:40.0, r:660.0, b:600.0)\n"
						  "me prefs frame: BRect(l:60.0, t:100.0, r:760.0, b:300.0)\n"
						  " -UseOwnPlaylist 0 \n"),
		0u)
		<< output;
	size_t at = 0;
	for (const std::string& step : {"U_playlist_PATH    : " + PlaylistPath() + " (0)\n",
			 std::string("DoWithMediaFiles [0 proc]\t build mflist\nDoWithMediaFiles [4 proc]\t"
						 "ListStyleWithFile 0\n INFOWIN  ON DESKTOP ?\n ::CheckFolderImages \n"
						 " mflist has 1 items\nadd Bitmap: /music\n folderlist has 1 items\n")}) {
		at = output.find(step, at);
		EXPECT_NE(at, std::string::npos) << step << output;
	}
}


TEST_F(MediaWindow, CloseTellsTheApplication)
{
	test::TheApplication().ForgetReceived();
	Window();
	const std::string output = test::OutputOf([this] { CloseWindow(); });
	EXPECT_TRUE(contains(output,
		"DoWithMediaFiles [5 proc]\t mflist not changed -not saved\nDoWithMediaFiles [1 proc]\t"
		" delete mflist\n oops NO mflist\n delete axflist\n delete trList\n"))
		<< output;
	EXPECT_TRUE(test::WaitFor([] { return test::TheApplication().CountReceived('irmi') == 1; }));
	// The list view has said so, too.
	EXPECT_TRUE(test::WaitFor([] { return test::TheApplication().CountReceived('MW_Q') == 2; }));
	EXPECT_EQ(MxView::MedList, nullptr);
	EXPECT_EQ(MxView::ImgList, nullptr);
}


TEST_F(MediaWindow, TitlePlaysAndIsCentered)
{
	const Paths titles = {MakeTitle("1.mp3"), MakeTitle("2.mp3")};
	WritePlaylist(titles);
	Play(1);
	EXPECT_EQ(Opened(1), titles[1] + "\n");
	EXPECT_EQ(Window().fListView->centeredIndex, 1);
}


TEST_F(MediaWindow, PastTheEndItStartsAgainFromTheTop)
{
	const Paths titles = {MakeTitle("1.mp3"), MakeTitle("2.mp3")};
	WritePlaylist(titles);
	Window();
	Settings().last_top_media = 1;
	Settings().last_top_media_buf = 1;
	const std::string output = Play(2);
	EXPECT_TRUE(contains(output, "\nEND OF TOPLIST\n OOPS: \n -UseOwnPlaylist 0 \n"));
	EXPECT_TRUE(contains(output, "PLAY FROM TOP\n"));
	EXPECT_TRUE(contains(output, "  NOW: \n"));
	EXPECT_EQ(Opened(1), titles[0] + "\n");
	EXPECT_EQ(Settings().last_top_media_buf, 0);
	EXPECT_EQ(Window().fListView->centeredIndex, 0);
}


TEST_F(MediaWindow, AlbumTitlePlaysFromTheAlbum)
{
	ShowAlbum();
	Play(1);
	EXPECT_EQ(Opened(1), fAlbum[1] + "\n");
	EXPECT_TRUE(Window().fFolderShown);
}


TEST_F(MediaWindow, PastTheAlbumsEndTheListGoesOn)
{
	ShowAlbum();
	ASSERT_EQ(Settings().last_top_media_buf, 1);
	const std::string output = Play(2);
	EXPECT_TRUE(contains(output, "END OF ALT-LIST\n OOPS: \n"));
	EXPECT_FALSE(contains(output, "END OF TOPLIST"));
	EXPECT_EQ(Opened(1), fOwn[1] + "\n");
	EXPECT_FALSE(Window().fFolderShown);
	EXPECT_FALSE(MxView::SingleAlbum);
	EXPECT_EQ(MxView::MedList, Window().mflist);
	EXPECT_EQ(Window().fListView->centeredIndex, 1);
}


TEST_F(MediaWindow, PastBothEndsTheListStartsAgain)
{
	ShowAlbum();
	Settings().last_top_media_buf = 5;
	const std::string output = Play(2);
	EXPECT_TRUE(contains(output, "END OF ALT-LIST\n"));
	EXPECT_TRUE(contains(output, "END OF TOPLIST\n"));
	EXPECT_EQ(Opened(1), fOwn[0] + "\n");
}


TEST_F(MediaWindow, MissingTitleIsCenteredWithoutAnAlert)
{
	WritePlaylist({MakeTitle("1.mp3"), "/nowhere/2.mp3"});
	EXPECT_TRUE(contains(Play(1), "[open][/nowhere/2.mp3\n ..File not found :(]\n"));
	EXPECT_EQ(Window().fListView->centeredIndex, 1);
	// Whatever had been opened would still be there after this one.
	Send(B_ABOUT_REQUESTED);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_TRUE(test::ClickDialogButton("OK"));
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(MediaWindow, PlayWithoutANumberIsPrinted)
{
	WritePlaylist({MakeTitle("1.mp3")});
	EXPECT_EQ(Send('MWpl'), "BMessage('MWpl') {\n}\n");
}


TEST_F(MediaWindow, EmptyListPlaysNothing)
{
	EXPECT_EQ(Play(0), "");
	EXPECT_EQ(Play(7), "");
}


TEST_F(MediaWindow, DeletedListPlaysNothing)
{
	Do(MF_DELETE);
	EXPECT_TRUE(contains(Play(0), "END OF TOPLIST"));
}


TEST_F(MediaWindow, TitleTabToggles)
{
	Send('MWkT');
	EXPECT_TRUE(Settings().window_mtab);
	EXPECT_EQ(Window().Look(), 4);
	Send('MWkT');
	EXPECT_FALSE(Settings().window_mtab);
	EXPECT_EQ(Window().Look(), B_FLOATING_WINDOW_LOOK);
}


TEST_F(MediaWindow, TitleTabIsHiddenAndShown)
{
	Send('MWhT');
	Send('MWhT');
	EXPECT_TRUE(Settings().window_mtab);
	EXPECT_EQ(Window().Look(), 4);
	Send('MWsT');
	EXPECT_FALSE(Settings().window_mtab);
	EXPECT_EQ(Window().Look(), B_FLOATING_WINDOW_LOOK);
	// Of any look that has them, the three bits are taken.
	Window().SetLook(B_BORDERED_WINDOW_LOOK);
	Send('MWhT');
	EXPECT_EQ(Window().Look(), 4);
}


TEST_F(MediaWindow, CloseIsToldBeforeTheWindowEnds)
{
	Window();
	test::TheApplication().ForgetReceived();
	EXPECT_EQ(Send('MW_C'), "");
	EXPECT_TRUE(test::WaitFor([] { return test::TheApplication().CountReceived('MW_Q') == 1; }));
	const BAutolock lock(&Window());
	EXPECT_NE(Window().MessageQueue()->FindMessage(B_QUIT_REQUESTED, 0), nullptr);
}


TEST_F(MediaWindow, AlwaysInFrontToggles)
{
	Send('MWff');
	EXPECT_FALSE(Settings().mw_ever_topped);
	EXPECT_EQ(Window().Feel(), B_NORMAL_WINDOW_FEEL);
	Send('MWff');
	EXPECT_TRUE(Settings().mw_ever_topped);
	EXPECT_EQ(Window().Feel(), B_FLOATING_ALL_WINDOW_FEEL);
}


TEST_F(MediaWindow, ListOperationTakesItsNumbersFromTheMessage)
{
	WritePlaylist({"/music/a.mp3"});
	BMessage message('mpl1');
	EXPECT_EQ(Send(message), "DoWithMediaFiles [-1 proc]\t");
	message.AddInt32("mpl_what", MF_REMOVE);
	EXPECT_TRUE(contains(Send(message), " DeleteX -1 >> entry not found\n"));
	message.AddInt32("mpl_nr", 0);
	EXPECT_TRUE(contains(Send(message), " DeleteX 0 '/music/a.mp3'\n"));
	EXPECT_TRUE(contains(Send('MW_E'), "DoWithMediaFiles [10 proc]\t"));
}


TEST_F(MediaWindow, PreferredPlayerIsKeptUpTo254Characters)
{
	EXPECT_EQ(Send('UPAA'), "");
	EXPECT_STREQ(Settings().pref_AudioApp, "-empty-");
	BMessage message('UPAA');
	message.AddString("aa_mime", "/usr/bin/player");
	EXPECT_EQ(Send(message), "upaa >> /usr/bin/player \n");
	EXPECT_STREQ(Settings().pref_AudioApp, "/usr/bin/player");

	BMessage overlong('UPAA');
	overlong.AddString("aa_mime", std::string(400, 'x').c_str());
	Send(overlong);
	EXPECT_EQ(strlen(Settings().pref_AudioApp), 254u);
}


TEST_F(MediaWindow, LanguageChangeRebuildsTheTitle)
{
	Window().SetTitle("other");
	EXPECT_EQ(Send('kvCL'), " KV_SIM_LOCALE reloadet\n");
	EXPECT_STREQ(Window().Title(), ("using: >> " + PlaylistPath()).c_str());
}


TEST_F(MediaWindow, NoticesAreRemembered)
{
	for (const uint32 what : {'BRAQ', 'BRAS', 'BRAW', 'BRAZ'})
		EXPECT_EQ(Send(what).find("##GetLastRosterMessenger() "), 0u);
}


TEST_F(MediaWindow, SomeMessagesAreIgnoredAndOthersPrinted)
{
	for (const uint32 what : {'_KYU', '_UKU', '_MCH', '_MWC', 'PGET'})
		EXPECT_EQ(Send(what), "");
	EXPECT_EQ(Send('what'), "MEDIA_Window::MessageReceived\nBMessage('what') {\n}\n");
}


TEST_F(MediaWindow, KeysAndBoxSizesGoToTheListView)
{
	WritePlaylist({"/music/a.mp3", "/music/b.mp3", "/music/c.mp3"});
	Window();
	Send('MWm4');
	EXPECT_EQ(Window().fListView->tileSize, 57);
	const int32 before = Window().fListView->nextIndex;
	BMessage down(B_KEY_DOWN);
	down.AddInt32("key", 0x62);
	Send(down);
	EXPECT_EQ(Window().fListView->nextIndex, before + 1);
	BMessage remote('MWse');
	remote.AddInt32("korukey", 61);
	Send(remote);
	EXPECT_EQ(Window().fListView->nextIndex, before);
}


TEST_F(MediaWindow, ModifiersAreNamed)
{
	BMessage message(B_UNMAPPED_KEY_DOWN);
	message.AddInt32("modifiers", 0x1 | 0x100 | 0x8);
	EXPECT_EQ(Send(message), ".. B_SHIFT_KEY\n.. B_CAPS_LOCK\n.. B_LEFT_SHIFT_KEY\n");
	EXPECT_EQ(Send(B_UNMAPPED_KEY_DOWN), "");
}


TEST_F(MediaWindow, EachModifierHasItsLineInTheirOrder)
{
	BMessage message(B_UNMAPPED_KEY_DOWN);
	message.AddInt32("modifiers", 0xff0f);
	const std::string output = Send(message);
	const std::string begin
		= ".. B_SHIFT_KEY\n.. B_CONTROL_KEY\n.. B_CAPS_LOCK\n.. B_LEFT_SHIFT_KEY\n"
		  ".. B_RIGHT_SHIFT_KEY\n.. B_LEFT_COMMAND_KEY\n.. B_RIGHT_COMMAND_KEY\n"
		  ".. B_LEFT_CONTROL_KEY\nshow TOPLIST-Info: \n";
	EXPECT_EQ(output.substr(0, begin.size()), begin);
	const std::string end = " Times \n.. B_LEFT_OPTION_KEY\n.. B_RIGHT_OPTION_KEY\n";
	EXPECT_EQ(output.substr(output.size() - end.size()), end);
}


TEST_F(MediaWindow, RightControlShowsTheState)
{
	WritePlaylist({"/music/a.mp3", "/other/b.mp3"});
	Window();
	Settings().last_top_media = 0;
	Settings().next_top_media = 1;
	Settings().playingTitle = "Song";
	Settings().playingArtist = "Artist";
	Settings().playingImage = 1;
	BMessage message(B_UNMAPPED_KEY_DOWN);
	message.AddInt32("modifiers", 0x2000);
	EXPECT_EQ(Send(message).find("show TOPLIST-Info: \nToplist-Images : 2\nToplist-Items  : 2\n"
								 "   AlienList-Style : 0\nListStyleWithFile  : 0\n"
								 "Folderlist : 0|0\nPrefs_play : 0\nPrefs_next : 1\n"
								 "PlayTitle : Song\nPlayArtist: Artist\nPlayImage : 1\n"
								 "ContPTime :  CalcContinousPlaytime:"),
		0u)
		<< Send(message);

	Window().fForeignListStyle = true;
	MxView::SingleAlbum = true;
	EXPECT_TRUE(contains(Send(message),
		"   AlienList-Style : 1\nListStyleWithFile  : 0\nFolderlist : 1|0\n"));
	Window().fForeignListStyle = false;
	Window().fListStyleWithFile = true;
	MxView::SingleAlbum = false;
	Window().fFolderShown = true;
	EXPECT_TRUE(contains(Send(message),
		"   AlienList-Style : 0\nListStyleWithFile  : 1\nFolderlist : 0|1\n"));
}


TEST_F(MediaWindow, PulseIsSetInHundredths)
{
	Window();
	EXPECT_EQ(test::OutputOf([this] { Window().NextInBigtime(150.7f); }),
		"MEDIA_Window:: Pulse-Function  150.70\n");
	EXPECT_EQ(Window().PulseRate(), 1500000);
	EXPECT_EQ(test::OutputOf([this] { Window().NextInBigtime(0.01f); }),
		"MEDIA_Window:: Pulse-Funtion  ----\n");
	EXPECT_EQ(Window().PulseRate(), 0);
	Window().NextInBigtime(NAN);
	EXPECT_EQ(Window().PulseRate(), 0);
	Window().NextInBigtime(INFINITY);
	EXPECT_GT(Window().PulseRate(), 1000000000);
}


TEST_F(MediaWindow, FrameIsRememberedUnlessHollow)
{
	Window().MoveTo(100, 110);
	Window().FrameMoved(BPoint(100, 110));
	EXPECT_EQ(Settings().prefs_window_rect, Window().Frame());
	Window().ResizeTo(800, 500);
	Window().FrameResized(800, 500);
	EXPECT_EQ(Settings().prefs_window_rect, Window().Frame());

	Window().fHollow = true;
	Window().MoveTo(10, 20);
	Window().FrameMoved(BPoint(10, 20));
	Window().FrameResized(800, 500);
	EXPECT_EQ(Settings().prefs_window_rect.left, 100);
	EXPECT_EQ(test::OutputOf([this] { Window().ShowList(); }), "*ShowList()  IsHollow\n");
}


TEST_F(MediaWindow, AboutShowsTheVersion)
{
	Send(B_ABOUT_REQUESTED);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogTitle(), "KORU_Alert");
	EXPECT_EQ(test::DialogText(), "WYN Version: Beta030");
	EXPECT_TRUE(test::ClickDialogButton("OK"));
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(MediaWindow, TenThousandTitlesHaveTheirTilesAndAlbums)
{
	Paths titles;
	for (int number = 0; number < 10000; number++)
		titles.push_back("/music/album " + std::to_string(number / 10) + "/title "
			+ std::to_string(number) + ".mp3");
	WritePlaylist(titles);
	Window();
	EXPECT_EQ(Window().fListView->CountChildren(), 10000);
	EXPECT_EQ(Window().fFolderList->CountItems(), 1000);
}


TEST(ShowNextWindow, WithoutAnOwnerItSaysSo)
{
	test::TheApplication();
	BWindow* window = nullptr;
	const std::string output = test::OutputOf([&window] { window = ShowNextWindow(nullptr); });
	EXPECT_EQ(output, " CAN NOT SET BST \n INFOWIN  ON DESKTOP ?\n");
	ASSERT_TRUE(window->Lock());
	EXPECT_FALSE(window->IsHidden());
	EXPECT_EQ(window->Look(), B_MODAL_WINDOW_LOOK);
	EXPECT_NE(window->Flags() & B_NOT_RESIZABLE, 0u);
	EXPECT_NE(window->Flags() & B_NOT_ZOOMABLE, 0u);
	EXPECT_STREQ(window->Title(), " WYN Init-Win ");
	EXPECT_EQ(window->Frame(), BRect(20, 80, 840, 100));

	const BView* const view = window->FindView("view");
	ASSERT_NE(view, nullptr);
	EXPECT_EQ(view->Frame(), window->Bounds());
	EXPECT_EQ(view->ViewColor(), ui_color(B_MENU_BACKGROUND_COLOR));
	const BStringView* const text = dynamic_cast<BStringView*>(window->FindView("gloInfo"));
	ASSERT_NE(text, nullptr);
	EXPECT_EQ(text->Parent(), view);
	EXPECT_STREQ(text->Text(), "WYN INFO OPEND");
	EXPECT_EQ(text->Alignment(), B_ALIGN_LEFT);
	EXPECT_EQ(text->Frame(), BRect(5, 0, 820, 20));
	EXPECT_EQ(text->ResizingMode(), static_cast<uint32>(B_FOLLOW_LEFT_RIGHT | B_FOLLOW_BOTTOM));
	BFont font;
	text->GetFont(&font);
	BFont plain(be_plain_font);
	plain.SetSize(12);
	EXPECT_TRUE(font == plain);
	window->Quit();
}
