// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <algorithm>
#include <set>

#include <unistd.h>

#include <List.h>
#include <Node.h>
#include <TypeConstants.h>

#include "listview/MxView.h"
#include "settings/Prefs.h"
#include "tests/support/Popups.h"
#include "tests/support/Wait.h"
#include "tests/window/MediaWindowFixture.h"
#include "window/BitmapPath.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

// An album of three titles beside the two of the list, which lie in a folder of their own.
class AlbumFolder : public MediaWindowFixture {
protected:
	AlbumFolder()
	{
		for (const char* name : {"a.mp3", "b.mp3", "c.mp3"})
			fTitles.push_back(MakeTitle(std::string("album/") + name));
		WritePlaylist({MakeTitle("own/1.mp3"), MakeTitle("own/2.mp3")});
	}

	// The album's number among the folders.
	int32 AddAlbum(const std::string& folder)
	{
		Window().fFolderList->AddItem(new BitmapPath(folder.c_str()));
		return Window().fFolderList->CountItems() - 1;
	}

	std::string ShowAlbum() { return Do(MF_FOLDER, "", AddAlbum(fFolder / "album")); }
	Paths Shown() { return PathsOf(Window().axflist); }
	Prefs& Settings() { return *Prefs::getSTPrefs(); }

	Paths fTitles;
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(AlbumFolder, TitlesWithoutNumbersStayInTheFoldersOrder)
{
	Window();
	Settings().last_top_media = 1;
	Settings().last_timer_nr = 7;
	Window().fListView->pathTrouble = true;
	const std::string output = ShowAlbum();
	EXPECT_EQ(Shown(), fTitles);
	EXPECT_FALSE(Window().fListView->pathTrouble);
	EXPECT_EQ(output.find("DoWithMediaFiles [13 proc]\tclear axflist 0 Items | fpath.Path: "
				  + (fFolder / "album") + "\nnow axflist has 3 Items\n"),
		0u)
		<< output;
	EXPECT_TRUE(contains(output, "now axflist has 3 Items\nlook for TrackNr info...\n"));
	EXPECT_TRUE(contains(output, "## break, found no TrackNr or <= 0 !\n" + fTitles[2] + "\n"));
	EXPECT_TRUE(contains(output, " axflist:\n  0 + " + fTitles[0] + "\n"));
	EXPECT_TRUE(Window().fFolderShown);
	EXPECT_TRUE(MxView::SingleAlbum);
	EXPECT_EQ(MxView::MedList, Window().axflist);
	EXPECT_EQ(Settings().last_top_media_buf, 1);
	EXPECT_EQ(Settings().last_top_media, 0);
	EXPECT_EQ(Settings().last_timer_nr, 0);
	EXPECT_EQ(Window().fListView->imageIndex, 1);
	EXPECT_EQ(Window().fListView->CountChildren(), 3);
}


TEST_F(AlbumFolder, TitlesAreOrderedByTheirNumbers)
{
	SetTrack(fTitles[0], 3);
	SetTrack(fTitles[1], 1);
	SetTrack(fTitles[2], 2);
	const std::string output = ShowAlbum();
	EXPECT_EQ(Shown(), (Paths{fTitles[1], fTitles[2], fTitles[0]}));
	EXPECT_TRUE(contains(output,
		"sort TrackNr...\n have a TRACKPNr-LIST:\n   0| Nr:  1 = " + fTitles[1]
			+ "\n   1| Nr:  2 = " + fTitles[2] + "\n   2| Nr:  3 = " + fTitles[0]
			+ "\nset playdata ..\n"))
		<< output;
}


TEST_F(AlbumFolder, OneTitleWithoutNumberLeavesTheFoldersOrder)
{
	SetTrack(fTitles[0], 3);
	SetTrack(fTitles[2], 1);
	ShowAlbum();
	EXPECT_EQ(Shown(), fTitles);
}


TEST_F(AlbumFolder, NumbersThatAreNoneLeaveTheFoldersOrder)
{
	for (const std::string& title : fTitles)
		SetTrack(title, 1);
	SetTrack(fTitles[1], 0);
	ShowAlbum();
	EXPECT_EQ(Shown(), fTitles);

	// Too short.
	BNode node(fTitles[1].c_str());
	node.RemoveAttr("Audio:Track");
	const int16 number = 1;
	node.WriteAttr("Audio:Track", B_INT32_TYPE, 0, &number, sizeof(number));
	EXPECT_EQ((Do(MF_FOLDER, "", 1), Shown()), fTitles);
}


TEST_F(AlbumFolder, NextAlbumTakesTheFirstOnesPlace)
{
	const Paths others = {MakeTitle("other/x.mp3"), MakeTitle("other/y.mp3")};
	SetTrack(others[0], 2);
	SetTrack(others[1], 1);
	for (const std::string& title : fTitles)
		SetTrack(title, 1);
	ShowAlbum();
	ASSERT_EQ(Shown().size(), 3u);
	Do(MF_FOLDER, "", AddAlbum(fFolder / "other"));
	EXPECT_EQ(Shown(), (Paths{others[1], others[0]}));
	EXPECT_EQ(Window().fListView->CountChildren(), 2);
	EXPECT_EQ(Window().fListView->imageIndex, 2);
}


TEST_F(AlbumFolder, EqualNumbersKeepTheOrderOfTheWalk)
{
	SetTrack(fTitles[0], 2);
	SetTrack(fTitles[1], 2);
	SetTrack(fTitles[2], 1);
	ShowAlbum();
	// The walk goes from the last title to the first.
	EXPECT_EQ(Shown(), (Paths{fTitles[2], fTitles[1], fTitles[0]}));
}


TEST_F(AlbumFolder, ManyEqualNumbersKeepTheOrderOfTheWalk)
{
	Paths expected;
	for (int number = 10; number < 60; number++)
		expected.push_back(MakeTitle("large/" + std::to_string(number) + ".mp3"));
	for (const std::string& title : expected)
		SetTrack(title, 1);
	Do(MF_FOLDER, "", AddAlbum(fFolder / "large"));
	std::reverse(expected.begin(), expected.end());
	EXPECT_EQ(Shown(), expected);
}


TEST_F(AlbumFolder, OnlyMediaFilesAreTaken)
{
	const std::string text = MakeTitle("album/notes.txt", "text/plain");
	const std::string windows = MakeTitle("album/y.asf", "x/x-asf");
	const std::string video = MakeTitle("album/z.mp4", "video/mp4");
	MakeTitle("album/more/d.mp3");
	ASSERT_EQ(symlink(fTitles[0].c_str(), (fFolder / "album/link.mp3").c_str()), 0);
	const std::string output = ShowAlbum();
	EXPECT_EQ(Shown(), (Paths{fTitles[0], fTitles[1], fTitles[2], windows, video}));
	EXPECT_TRUE(contains(output, " -> BAD (" + text + ")\n"));
	// What is no file at all is not worth a word.
	EXPECT_EQ(output.find(" -> BAD "), output.rfind(" -> BAD "));
}


TEST_F(AlbumFolder, FolderWithoutTitlesIsOpenedInstead)
{
	const std::string folder = fFolder.MakeFolder("empty");
	Window();
	Settings().last_top_media = 1;
	const std::string output = Do(MF_FOLDER, "", AddAlbum(folder));
	EXPECT_TRUE(contains(output, "no items, open Folder please!\n"));
	EXPECT_EQ(Opened(1), folder + "\n");
	EXPECT_FALSE(Window().fFolderShown);
	EXPECT_EQ(MxView::MedList, Window().mflist);
	EXPECT_EQ(Settings().last_top_media, 1);
	EXPECT_EQ(Window().fListView->imageIndex, 1);
}


TEST_F(AlbumFolder, VanishedFolderIsTold)
{
	const std::string folder = fFolder.MakeFolder("vanishing");
	const int32 number = AddAlbum(folder);
	rmdir(folder.c_str());
	const std::string output = Do(MF_FOLDER, "", number);
	EXPECT_TRUE(contains(output,
		" " + std::to_string(static_cast<long>(B_ENTRY_NOT_FOUND)) + " InitCheck()\n"));
	EXPECT_TRUE(Window().fListView->pathTrouble);
	EXPECT_TRUE(contains(output, "no items, open Folder please!\n"));
	// One of the folder, one of what the file manager should have opened, in either order.
	std::set<std::string> texts;
	for (int count = 0; count < 2; count++) {
		ASSERT_TRUE(test::WaitForDialog());
		const std::string text = test::DialogText();
		texts.insert(text);
		ASSERT_TRUE(test::WaitFor([] { return test::ClickDialogButton("OK"); }));
		EXPECT_TRUE(test::WaitFor([&] { return test::DialogText() != text; }));
	}
	EXPECT_EQ(texts,
		(std::set<std::string>{" OpenError: \n" + folder, folder + "\n ..File not found :("}));
	EXPECT_TRUE(test::WaitForNoDialog());
	EXPECT_FALSE(Window().fFolderShown);
}


TEST_F(AlbumFolder, LeavingRestoresTheList)
{
	Window();
	Settings().last_top_media = 1;
	ShowAlbum();
	Settings().playingImage = 1;
	Settings().last_timer_nr = 7;
	Window().fListView->pathTrouble = true;
	const std::string output = Do(MF_FOLDER, "", 999);
	EXPECT_FALSE(Window().fListView->pathTrouble);
	EXPECT_TRUE(contains(output, "no valid folder...  back to the default-List\n"));
	EXPECT_FALSE(Window().fFolderShown);
	EXPECT_FALSE(MxView::SingleAlbum);
	EXPECT_EQ(MxView::MedList, Window().mflist);
	EXPECT_EQ(Settings().last_top_media, 1);
	EXPECT_EQ(Settings().last_timer_nr, 1);
	EXPECT_EQ(Window().fListView->imageIndex, 1);
	EXPECT_EQ(Window().fListView->CountChildren(), 2);
}


TEST_F(AlbumFolder, OfAThousandFoldersNoneIsInTheWayBack)
{
	Paths titles;
	for (int number = 0; number < 1200; number++)
		titles.push_back("/music/" + std::to_string(number) + "/1.mp3");
	WritePlaylist(titles);
	ASSERT_EQ(Window().fFolderList->CountItems(), 1200);
	ShowAlbum();
	ASSERT_TRUE(Window().fFolderShown);
	EXPECT_TRUE(contains(Do(MF_FOLDER, "", 999), "no valid folder...  back to the default-List\n"));
	EXPECT_FALSE(Window().fFolderShown);
}


TEST_F(AlbumFolder, LeavingTheListItselfResetsThePosition)
{
	Window();
	Settings().last_top_media = 1;
	Settings().last_top_media_buf = 0;
	Do(MF_FOLDER, "", 999);
	EXPECT_EQ(Settings().last_top_media, 0);
}


TEST_F(AlbumFolder, TakenTitleJoinsTheList)
{
	ShowAlbum();
	Do(MF_TAKE, "", 1);
	EXPECT_EQ(PathsOf(Window().mflist).back(), fTitles[1]);
	EXPECT_EQ(Window().mflist->CountItems(), 3);
	EXPECT_FALSE(Window().fFolderShown);
	EXPECT_TRUE(Window().fListChanged);
}


TEST_F(AlbumFolder, TitlesAddedMeanwhileLeaveTheAlbumShown)
{
	ShowAlbum();
	const std::string path = MakeTitle("own/3.mp3");
	std::string output = Do(MF_ADD, path);
	EXPECT_TRUE(contains(output, " add to mflist\n"));
	EXPECT_FALSE(contains(output, "ChildsFromList"));
	EXPECT_EQ(Settings().last_top_media, 3);
	output = Do(MF_ADD, path);
	EXPECT_TRUE(contains(output, " reLC 0  - se 2\n"));
	EXPECT_EQ(Settings().last_top_media, 2);
	EXPECT_EQ(Window().fListView->centeredIndex, 0);
	EXPECT_EQ(MxView::MedList, Window().axflist);
}


TEST_F(AlbumFolder, DroppedPlaylistIsShownAndPlayedInTheAlbumsPlace)
{
	ShowAlbum();
	const std::string title = MakeTitle("own/3.mp3");
	Send(Drop({fFolder.Write("mine.m3u", title + "\n")}));
	EXPECT_EQ(MxView::MedList, Window().mflist);
	EXPECT_FALSE(Window().fFolderShown);
	EXPECT_FALSE(MxView::SingleAlbum);
	EXPECT_EQ(Window().fListView->CountChildren(), 1);
	Play(0);
	EXPECT_EQ(Opened(1), title + "\n");
}


TEST_F(AlbumFolder, NothingIsTakenWithoutAFolderOrATitle)
{
	Window();
	EXPECT_EQ(Do(MF_TAKE, "", 0), "DoWithMediaFiles [14 proc]\t");
	ShowAlbum();
	EXPECT_EQ(Do(MF_TAKE, "", 3), "DoWithMediaFiles [14 proc]\t");
	EXPECT_EQ(Window().mflist->CountItems(), 2);
	EXPECT_TRUE(Window().fFolderShown);
	// Its titles are still known when it is shown no more.
	Do(MF_FOLDER, "", 999);
	EXPECT_EQ(Do(MF_TAKE, "", 0), "DoWithMediaFiles [14 proc]\t");
	EXPECT_EQ(Window().mflist->CountItems(), 2);
}


TEST_F(AlbumFolder, OpenFolderMeansTheAlbumsTitle)
{
	ShowAlbum();
	Do(MF_OFOLD, "", 2);
	EXPECT_EQ(Opened(1), (fFolder / "album") + "\n");
}
