// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <atomic>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

#include <List.h>
#include <Node.h>
#include <NodeInfo.h>

#include "listview/MxView.h"
#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "tests/support/Popups.h"
#include "tests/window/MediaWindowFixture.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

class MediaFileList : public MediaWindowFixture {
protected:
	Paths List() { return PathsOf(Window().mflist); }
	Prefs& Settings() { return *Prefs::getSTPrefs(); }
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(MediaFileList, EachOperationNamesItself)
{
	EXPECT_EQ(Do(11), "DoWithMediaFiles [11 proc]\t");
	EXPECT_EQ(Do(15), "DoWithMediaFiles [15 proc]\t");
	EXPECT_EQ(Do(-1), "DoWithMediaFiles [-1 proc]\t");
}


TEST_F(MediaFileList, BuildAndDelete)
{
	EXPECT_EQ(Do(MF_DELETE), "DoWithMediaFiles [1 proc]\t delete mflist\n oops NO mflist\n");
	EXPECT_EQ(Window().mflist, nullptr);
	EXPECT_EQ(MxView::MedList, nullptr);
	EXPECT_EQ(Do(MF_ADD, "/music/a.mp3"), "DoWithMediaFiles [2 proc]\t oops NO mflist\n");
	EXPECT_EQ(Do(MF_BUILD), "DoWithMediaFiles [0 proc]\t build mflist\n");
	EXPECT_NE(Window().mflist, nullptr);
	MxView::MedList = Window().mflist;
	const BList* const list = Window().mflist;
	Do(MF_BUILD);
	EXPECT_EQ(Window().mflist, list);
}


TEST_F(MediaFileList, NewTitleIsAppended)
{
	WritePlaylist({"/music/a.mp3", "/music/b.mp3", "/music/c.mp3"});
	Window();
	const std::string output = Do(MF_ADD, "/music/d.mp3\r\n");
	EXPECT_TRUE(contains(output, "-MF_ADD\nwill add: /music/d.mp3\n-MF_ADD  >> \n"));
	EXPECT_TRUE(contains(output, " add to mflist\n"));
	EXPECT_TRUE(contains(output, "-MF_ADD return 2\n"));
	EXPECT_EQ(List(), (Paths{"/music/a.mp3", "/music/b.mp3", "/music/c.mp3", "/music/d.mp3"}));
	EXPECT_EQ(Settings().last_top_media, 4);
	EXPECT_TRUE(Window().fListChanged);
	EXPECT_TRUE(Window().fListView->listChanged);
}


TEST_F(MediaFileList, ListedTitleIsPointedAt)
{
	WritePlaylist({"/music/a.mp3", "/music/b.mp3"});
	Window();
	const std::string output = Do(MF_ADD, "/music/b.mp3");
	EXPECT_EQ(output.find("DoWithMediaFiles [2 proc]\t-MF_ADD\nwill add: /music/b.mp3\n"
						  "1 |Allways in List:\n/music/b.mp3\n reLC 0  - se 1\n"),
		0u)
		<< output;
	EXPECT_TRUE(contains(output, "-MF_ADD return\n"));
	EXPECT_EQ(Window().fListView->centeredIndex, 1);
	EXPECT_EQ(List().size(), 2u);
	EXPECT_EQ(Settings().last_top_media, 1);
	EXPECT_FALSE(Window().fListChanged);
}


TEST_F(MediaFileList, DecOnlyMarksTheList)
{
	WritePlaylist({"/music/a.mp3"});
	Window();
	const std::string output = Do(MF_DEC);
	EXPECT_TRUE(contains(output, "-MF_DEC\n remove from mflist  -not implemented \n"));
	EXPECT_EQ(List().size(), 1u);
	EXPECT_TRUE(Window().fListChanged);
	EXPECT_FALSE(Window().fListView->listChanged);
}


TEST_F(MediaFileList, LoadAppendsAndClearsTheMark)
{
	WritePlaylist({"file:///music/a.mp3"});
	Window().fListChanged = true;
	Window().fListView->listChanged = true;
	EXPECT_EQ(Do(MF_LOAD), "DoWithMediaFiles [4 proc]\tListStyleWithFile 1\n");
	EXPECT_EQ(List(), (Paths{"/music/a.mp3", "/music/a.mp3"}));
	EXPECT_FALSE(Window().fListChanged);
	EXPECT_FALSE(Window().fListView->listChanged);
	EXPECT_EQ(MxView::PlayListFile, &Window().fPlaylistPath);
}


TEST_F(MediaFileList, MissingPlaylistIsPathTrouble)
{
	Window();
	EXPECT_TRUE(Window().fListView->pathTrouble);
	EXPECT_TRUE(contains(Do(MF_LOAD), "'" + PlaylistPath() + "' OpenError!\n"));
	EXPECT_TRUE(List().empty());
	WritePlaylist({"/music/a.mp3"});
	Do(MF_LOAD);
	EXPECT_FALSE(Window().fListView->pathTrouble);
}


TEST_F(MediaFileList, UnchangedListIsNotSaved)
{
	EXPECT_EQ(Do(MF_SAVE), "DoWithMediaFiles [5 proc]\t mflist not changed -not saved\n");
	EXPECT_NE(access(PlaylistPath().c_str(), F_OK), 0);
}


TEST_F(MediaFileList, ChangedListIsSaved)
{
	WritePlaylist({"#x", ";x", "x", "file:///music/a.mp3", "/music/b.mp3"});
	Window();
	EXPECT_EQ(List(), (Paths{"/music/a.mp3", "/music/b.mp3"}));
	Do(MF_DEC);
	Window().fListView->listChanged = true;
	EXPECT_TRUE(contains(Do(MF_SAVE),
		" MP-Style, saving with 'file://'\n save mflist\n mflist has 2 items\n"
		" Write Attribute 'x-playlist'\n save mflist end\n"));
	EXPECT_EQ(test::ReadFile(PlaylistPath()), "file:///music/a.mp3\nfile:///music/b.mp3\n");
	EXPECT_FALSE(Window().fListChanged);
	EXPECT_FALSE(Window().fListView->listChanged);
}


TEST_F(MediaFileList, FailedSaveIsToldAndTriedAgain)
{
	Do(MF_ADD, "/music/a.mp3");
	mkdir(PlaylistPath().c_str(), 0755);
	EXPECT_TRUE(contains(Do(MF_SAVE), "'" + PlaylistPath() + "' OpenError!\n"));
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogText(), ".. can't save the playlist!");
	EXPECT_TRUE(test::ClickDialogButton("OK"));
	EXPECT_TRUE(test::WaitForNoDialog());
	EXPECT_TRUE(Window().fListChanged);
	EXPECT_TRUE(Window().fListView->listChanged);

	rmdir(PlaylistPath().c_str());
	Do(MF_SAVE);
	EXPECT_EQ(test::ReadFile(PlaylistPath()), "/music/a.mp3\n");
}


TEST_F(MediaFileList, ClosingWaitsUntilTheUserHasReadOfAFailedSave)
{
	Do(MF_ADD, "/music/a.mp3");
	mkdir(PlaylistPath().c_str(), 0755);
	std::atomic<bool> isClosed = false;
	std::thread closing([&] {
		CloseWindow();
		isClosed = true;
	});
	EXPECT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogText(), ".. can't save the playlist!");
	EXPECT_FALSE(isClosed);
	EXPECT_TRUE(test::ClickDialogButton("OK"));
	closing.join();
	EXPECT_TRUE(isClosed);
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(MediaFileList, ClosingSavesAChangedList)
{
	Do(MF_ADD, "/music/a.mp3");
	CloseWindow();
	EXPECT_EQ(test::ReadFile(PlaylistPath()), "/music/a.mp3\n");
}


TEST_F(MediaFileList, ShowPrintsTheList)
{
	WritePlaylist({"/music/a.mp3", "/music/b.mp3"});
	Window();
	EXPECT_EQ(Do(MF_SHOW),
		"DoWithMediaFiles [6 proc]\t-MF_SHOW\n mflist has 2 items\n[0]'/music/a.mp3'\n"
		"[1]'/music/b.mp3'\n show mflist\n");
}


TEST_F(MediaFileList, RemoveTakesTheEntryOut)
{
	WritePlaylist({"/music/a.mp3", "/music/b.mp3"});
	Window();
	EXPECT_TRUE(contains(Do(MF_REMOVE, "", 0), "-MF_REMOVE\n DeleteX 0 '/music/a.mp3'\n"));
	EXPECT_EQ(List(), Paths{"/music/b.mp3"});
	EXPECT_TRUE(Window().fListChanged);
	EXPECT_TRUE(Window().fListView->listChanged);
	EXPECT_EQ(Window().fListView->CountChildren(), 1);
}


TEST_F(MediaFileList, RemoveWithoutAnEntryChangesNothing)
{
	WritePlaylist({"/music/a.mp3"});
	Window();
	EXPECT_TRUE(contains(Do(MF_REMOVE, "", 1), " DeleteX 1 >> entry not found\n"));
	EXPECT_TRUE(contains(Do(MF_REMOVE, "", -1), " DeleteX -1 >> entry not found\n"));
	EXPECT_FALSE(Window().fListChanged);
	EXPECT_EQ(List().size(), 1u);
}


TEST_F(MediaFileList, UpdateMakesTheTilesAnew)
{
	WritePlaylist({"/music/a.mp3"});
	Window();
	EXPECT_TRUE(contains(Do(MF_UPDATE), "-MF_UPDATE\n"));
	EXPECT_EQ(Window().fListView->CountChildren(), 1);
}


TEST_F(MediaFileList, OpenFolderHandsTheParentToTheFileManager)
{
	const std::string title = MakeTitle("album/a.mp3");
	WritePlaylist({title});
	Window();
	const std::string folder = fFolder / "album";
	EXPECT_TRUE(contains(Do(MF_OFOLD, "", 0),
		std::string("[open][") + kFileManager + " '" + folder + "' &]\n"));
	EXPECT_EQ(Opened(1), folder + "\n");
	EXPECT_EQ(Do(MF_OFOLD, "", 1), "DoWithMediaFiles [9 proc]\t-MF_OFOLD\n");
}


TEST_F(MediaFileList, FolderThatIsGoneIsToldWhenItIsOpened)
{
	WritePlaylist({fFolder / "gone/a.mp3"});
	const std::string text = (fFolder / "gone") + "\n ..File not found :(";
	EXPECT_TRUE(contains(Do(MF_OFOLD, "", 0), "[open][" + text + "]\n"));
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogText(), text);
	EXPECT_TRUE(test::ClickDialogButton("OK"));
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(MediaFileList, EditOpensThePlaylistAsText)
{
	WritePlaylist({"/music/a.mp3"});
	Window();
	EXPECT_EQ(Do(MF_EDIT),
		std::string("DoWithMediaFiles [10 proc]\t[open][") + kFileManager + " '" + PlaylistPath()
			+ "' &]\n");
	EXPECT_EQ(Opened(1), PlaylistPath() + "\n");

	BNode node(PlaylistPath().c_str());
	char text[B_MIME_TYPE_LENGTH] = "";
	BNodeInfo(&node).GetType(text);
	EXPECT_STREQ(text, "text/plain");
	BNodeInfo(&node).GetPreferredApp(text);
	EXPECT_STREQ(text, "application/x-vnd.Haiku-StyledEdit");

	Do(MF_DEC);
	Do(MF_SAVE);
	BNode saved(PlaylistPath().c_str());
	BNodeInfo(&saved).GetType(text);
	EXPECT_STREQ(text, "text/x-playlist");
}


TEST_F(MediaFileList, PlaylistWhosePathEndsItsQuotesIsNotHandedToTheShell)
{
	ASSERT_EQ(chdir(fFolder.Path().c_str()), 0);
	Window().fPlaylistPath.SetTo((fFolder / "it's; touch hurt; 'x").c_str());
	EXPECT_TRUE(contains(Do(MF_EDIT), " oops: couldn't execute \n"));
	EXPECT_NE(access("hurt", F_OK), 0);
	ASSERT_EQ(chdir("/"), 0);
}


TEST_F(MediaFileList, CleanNameRenamesTheFile)
{
	const std::string title = MakeTitle("album/it's 'x'.mp3");
	WritePlaylist({title});
	Window();
	const std::string output = Do(MF_RBC, "", 0);
	EXPECT_TRUE(contains(output, "-MF_RBC\n RemoveBadChars 0\n" + title + "\nCheckPathChars: \n"));
	EXPECT_EQ(List(), Paths{fFolder / "album/it*s *x*.mp3"});
	EXPECT_EQ(access((fFolder / "album/it*s *x*.mp3").c_str(), F_OK), 0);
	EXPECT_TRUE(Window().fListChanged);
	EXPECT_TRUE(Window().fListView->listChanged);
	EXPECT_TRUE(contains(output, "ChildsFromList"));
	EXPECT_TRUE(contains(Do(MF_RBC, "", 7), " RemoveBadChars 7 >> entry not found\n"));
}


TEST_F(MediaFileList, MissingTitlesStay)
{
	WritePlaylist({"/nowhere/a.mp3", "/nowhere/b.mp3"});
	Window();
	EXPECT_EQ(List().size(), 2u);
	EXPECT_EQ(Window().fListView->CountChildren(), 2);
	Do(MF_DEC);
	Do(MF_SAVE);
	EXPECT_EQ(test::ReadFile(PlaylistPath()), "/nowhere/a.mp3\n/nowhere/b.mp3\n");
}
