// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include <GraphicsDefs.h>
#include <List.h>
#include <Node.h>
#include <StringView.h>
#include <TypeConstants.h>

#include "listview/MxView.h"
#include "settings/Prefs.h"
#include "tests/support/Output.h"
#include "tests/window/MediaWindowFixture.h"
#include "window/BitmapPath.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

class MediaDrops : public MediaWindowFixture {
protected:
	std::string DropFiles(const Paths& paths) { return Send(Drop(paths)); }
	Paths List() { return PathsOf(Window().mflist); }
	Paths Folders() { return PathsOf(Window().fFolderList); }
};


int
count_of(const std::string& text, const std::string& part)
{
	int count = 0;
	for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
		count++;
	return count;
}


bool
contains(const std::string& text, const std::string& part)
{
	return count_of(text, part) > 0;
}

} // namespace


TEST_F(MediaDrops, MediaFilesJoinTheListInTheirOrder)
{
	const Paths titles = {MakeTitle("b/2.mp3"), MakeTitle("a/1.mp4", "video/mp4"),
		MakeTitle("b/3.asf", "x/x-asf")};
	const std::string output = DropFiles(titles);
	EXPECT_EQ(List(), titles);
	EXPECT_TRUE(contains(output, "+mt10:  '" + titles[0] + "' \n"));
	EXPECT_TRUE(contains(output, "+mt11:  '" + titles[1] + "' \n"));
	EXPECT_TRUE(contains(output, "+mt11:  '" + titles[2] + "' \n"));
	EXPECT_EQ(count_of(output, " ::CheckFolderImages \n"), 3);
	EXPECT_EQ(Folders(), (Paths{fFolder / "b", fFolder / "a"}));
	EXPECT_EQ(Window().fListView->CountChildren(), 3);
}


TEST_F(MediaDrops, ThreeAudioFilesAreAddedOneAfterTheOther)
{
	const Paths titles = {MakeTitle("c.mp3"), MakeTitle("a.ogg"), MakeTitle("b.flac")};
	const std::string output = DropFiles(titles);
	EXPECT_EQ(List(), titles);
	EXPECT_EQ(count_of(output, " ::CheckFolderImages \n"), 3);
	size_t at = 0;
	for (int count = 1; count <= 3; count++) {
		at = output.find(" add to mflist\n", at + 1);
		at = output.find(" mflist has " + std::to_string(count) + " items\n", at);
		EXPECT_NE(at, std::string::npos) << count;
	}
}


TEST_F(MediaDrops, MixedDropTakesEachForWhatItIs)
{
	const std::string title = MakeTitle("one/a.mp3");
	const std::string album = fFolder.MakeFolder("album");
	const std::string text = MakeTitle("texts/notes.txt", "text/plain");
	const std::string video = MakeTitle("two/b.mp4", "video/mp4");
	const std::string output = DropFiles({title, album, text, video});
	EXPECT_EQ(List(), (Paths{title, video}));
	EXPECT_EQ(Folders(), (Paths{fFolder / "one", album, fFolder / "texts", fFolder / "two"}));
	EXPECT_EQ(count_of(output, ".. Folder added\n"), 2);
}


TEST_F(MediaDrops, TitleBeforeAPlaylistGoesWithTheOldList)
{
	const std::string list = fFolder.Write("mine.m3u8", "/music/new.mp3\n");
	const std::string output = DropFiles({MakeTitle("1.mp3"), list, MakeTitle("2.mp3")});
	EXPECT_EQ(count_of(output, " add to mflist\n"), 1);
	EXPECT_EQ(List(), Paths{"/music/new.mp3"});
}


TEST_F(MediaDrops, PlaylistsAreKnownByTheirNames)
{
	for (const char* name :
		{"a.m3u", "b.m3u8", "C.M3U", "with blanks.m3u8", "\u65e5\u672c.m3u", "\xff\xfe.m3u"}) {
		const std::string list = fFolder.Write(name,
			"#EXTM3U\r\n#EXTINF:123,Some - Song\r\nfile:///music/a b.mp3\r\n\r\n  \r\n"
			"C:\\Music\\b.mp3\r\nnear/\u00fc \u041c.mp3\r\n../\xff\xfe.mp3\r\n;end\r\n");
		DropFiles({list});
		std::string above = fFolder.Path();
		above.erase(above.rfind('/'));
		EXPECT_EQ(List(),
			(Paths{"/music/a b.mp3", fFolder / "C:\\Music\\b.mp3",
				fFolder / "near/\u00fc \u041c.mp3", above + "/\xff\xfe.mp3"}));
		EXPECT_TRUE(Window().fListStyleWithFile);
		EXPECT_STREQ(Window().Title(), ("using: >> " + list).c_str());
	}
}


TEST_F(MediaDrops, DroppedPlaylistIsSavedToWithItsPrefixes)
{
	const std::string list = fFolder.Write("mine.m3u", "file:///music/a.mp3\r\n/music/b.mp3\r\n");
	DropFiles({list, MakeTitle("ignored.mp3")});
	const std::string title = MakeTitle("c.mp3");
	DropFiles({title});
	CloseWindow();
	EXPECT_EQ(test::ReadFile(list),
		"file:///music/a.mp3\nfile:///music/b.mp3\nfile://" + title + "\n");
	EXPECT_NE(access(PlaylistPath().c_str(), F_OK), 0);
}


TEST_F(MediaDrops, LinksAndDevicesAreSkipped)
{
	const std::string title = fFolder / "link.mp3";
	ASSERT_EQ(symlink(MakeTitle("a.mp3").c_str(), title.c_str()), 0);
	const std::string folder = fFolder / "link to a folder";
	ASSERT_EQ(symlink(fFolder.MakeFolder("album").c_str(), folder.c_str()), 0);
	const std::string pipe = fFolder / "pipe.mp3";
	ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
	DropFiles({title, folder, pipe, "/dev/null"});
	EXPECT_TRUE(List().empty());
	EXPECT_TRUE(Folders().empty());
}


TEST_F(MediaDrops, ThreeHundredFilesAreAddedInTheirOrder)
{
	Paths titles;
	for (int number = 0; number < 300; number++)
		titles.push_back(MakeTitle(
			"album " + std::to_string(number / 10) + "/" + std::to_string(number) + ".mp3"));
	DropFiles(titles);
	EXPECT_EQ(List(), titles);
	EXPECT_EQ(Folders().size(), 30u);
	EXPECT_EQ(Window().fListView->CountChildren(), 300);
}


TEST_F(MediaDrops, WhatIsNoFileDoesNothing)
{
	BMessage text(B_SIMPLE_DATA);
	text.AddData("text/plain", B_MIME_TYPE, "/music/a.mp3", 12);
	text.AddString("be:url", "file:///music/a.mp3");
	EXPECT_EQ(Send(text), "");
	BMessage color(B_SIMPLE_DATA);
	const rgb_color red = {255, 0, 0, 255};
	color.AddData("RGBColor", B_RGB_COLOR_TYPE, &red, sizeof(red));
	EXPECT_EQ(Send(color), "");
	BMessage wrong(B_SIMPLE_DATA);
	wrong.AddString("refs", "/music/a.mp3");
	EXPECT_EQ(Send(wrong), "");
	EXPECT_TRUE(List().empty());
}


TEST_F(MediaDrops, DropWithoutFilesDoesNothing)
{
	EXPECT_EQ(Send(B_SIMPLE_DATA), "");
}


TEST_F(MediaDrops, PlaylistReplacesTheListAndEndsTheDrop)
{
	WritePlaylist({"/music/old.mp3"});
	const std::string list = MakeTitle("lists/mine.m3u", "text/x-playlist");
	fFolder.Write("lists/mine.m3u", "#EXTM3U\n/music/new.mp3\nnear.mp3\n");
	Window();
	Do(MF_DEC);
	const std::string output = DropFiles({list, MakeTitle("1.mp3")});
	EXPECT_EQ(output.find("open a (Soundplay)-Playlist\nDoWithMediaFiles [1 proc]\t delete mflist\n"
						  " oops NO mflist\nDoWithMediaFiles [0 proc]\t build mflist\n"
						  "DoWithMediaFiles [4 proc]\tListStyleWithFile 0\n ::CheckFolderImages \n"
						  " mflist has 2 items\nadd Bitmap: "
				  + (fFolder / "lists")
				  + "\n folderlist has 2 items\nDoWithMediaFiles [8 proc]\t-MF_UPDATE\n"),
		0u)
		<< output;
	EXPECT_EQ(List(), (Paths{"/music/new.mp3", fFolder / "lists/near.mp3"}));
	EXPECT_EQ(Folders(), (Paths{"/music", fFolder / "lists"}));
	EXPECT_TRUE(Window().fForeignListStyle);
	EXPECT_EQ(Window().fPlaylistPath, list.c_str());
	EXPECT_EQ(MxView::MedList, Window().mflist);
	EXPECT_STREQ(Window().Title(), ("using: >> " + list).c_str());
	EXPECT_EQ(Window().fListView->CountChildren(), 2);
	// The old list was not saved, and what changes from now on goes to the dropped file.
	EXPECT_EQ(test::ReadFile(PlaylistPath()), "/music/old.mp3\n");
	Do(MF_REMOVE, "", 0);
	Do(MF_SAVE);
	EXPECT_EQ(test::ReadFile(list), (fFolder / "lists/near.mp3") + "\n");
}


TEST_F(MediaDrops, FolderJoinsTheFoldersOnce)
{
	const std::string folder = fFolder.MakeFolder("album");
	std::string output = DropFiles({folder});
	EXPECT_TRUE(contains(output, "no valid folder...  back to the default-List\n"));
	EXPECT_TRUE(contains(output, folder + "\n.. Folder added\n"));
	EXPECT_EQ(Folders(), Paths{folder});
	EXPECT_FALSE(Window().fFolderShown);

	output = DropFiles({folder});
	EXPECT_EQ(output, " ...schon dabei \n");
	EXPECT_EQ(Folders(), Paths{folder});
}


TEST_F(MediaDrops, OtherFileAddsItsFolderEachTime)
{
	const std::string text = MakeTitle("album/notes.txt", "text/plain");
	const std::string output = DropFiles({text});
	EXPECT_TRUE(contains(output, ".. ohh anything dragged \n"));
	EXPECT_TRUE(contains(output, text + "\n\n.. Folder added\n"));
	// The list stays, though the folder has titles.
	MakeTitle("album/1.mp3");
	EXPECT_TRUE(contains(DropFiles({text}), "no valid folder...  back to the default-List\n"));
	EXPECT_FALSE(Window().fFolderShown);
	EXPECT_EQ(Folders(), (Paths{fFolder / "album", fFolder / "album"}));
	EXPECT_TRUE(List().empty());
}


TEST_F(MediaDrops, WhatIsNeitherFileNorFolderIsSkipped)
{
	const std::string link = fFolder / "dangling";
	ASSERT_EQ(symlink("nothing", link.c_str()), 0);
	EXPECT_EQ(DropFiles({link, fFolder / "gone.mp3"}), "");
	EXPECT_TRUE(Folders().empty());
}


TEST_F(MediaDrops, WithoutAddingTheRemoteTypeIsRemoved)
{
	const std::string title = MakeTitle("1.mp3");
	BNode node(title.c_str());
	const int32 type = 1;
	node.WriteAttr("KORU_TYPE", B_INT32_TYPE, 0, &type, sizeof(type));
	BMessage message = Drop({title});
	MEDIA_Window& window = Window();
	EXPECT_EQ(test::OutputOf([&] { window.DraggedMediaFiles(&message, false); }),
		"-mt10:  '" + title + "' \n");
	int32 read = 0;
	EXPECT_LT(node.ReadAttr("KORU_TYPE", B_INT32_TYPE, 0, &read, sizeof(read)), 0);
	EXPECT_TRUE(contains(test::OutputOf([&] { window.DraggedMediaFiles(&message, false); }),
		"Unknown error remove KORU_TYPE: "));
	EXPECT_TRUE(List().empty());
}


TEST_F(MediaDrops, WithoutAListNothingIsAddedOrReplaced)
{
	const std::string title = MakeTitle("1.mp3");
	const std::string list = fFolder.Write("mine.m3u", title + "\n");
	Do(MF_DELETE);
	EXPECT_EQ(DropFiles({title}), "+mt10:  '" + title + "' \n");
	EXPECT_EQ(DropFiles({list}), "open a (Soundplay)-Playlist\n");
	EXPECT_EQ(Window().mflist, nullptr);
	EXPECT_EQ(Window().fPlaylistPath, PlaylistPath().c_str());
}


TEST_F(MediaDrops, EachNewFolderIsShownInTheInformationWindow)
{
	MEDIA_Window& window = Window();
	window.fInfoWindow = ShowNextWindow(&window);
	ASSERT_NE(window.fInfoText, nullptr);
	Do(MF_ADD, "/b/1.mp3");
	Do(MF_ADD, "/a/2.mp3");
	Do(MF_ADD, "/b/3.mp3");
	window.CheckFolderImages();
	ASSERT_TRUE(window.fInfoWindow->Lock());
	EXPECT_STREQ(window.fInfoText->Text(), "/a");
	window.fInfoWindow->Quit();
	window.fInfoWindow = nullptr;
	window.fInfoText = nullptr;
}


TEST_F(MediaDrops, WithoutFoldersThereIsNothingToCheck)
{
	BList* folders = nullptr;
	std::swap(Window().fFolderList, folders);
	const std::string output = test::OutputOf([this] { Window().CheckFolderImages(); });
	std::swap(Window().fFolderList, folders);
	EXPECT_EQ(output, " ::CheckFolderImages \n no folderlist \n");
}


TEST_F(MediaDrops, FoldersAreThoseOfTheListInItsOrder)
{
	WritePlaylist({"/b/1.mp3", "/a/2.mp3", "/b/3.mp3", "/c/4.mp3", "/a/5.mp3"});
	EXPECT_EQ((Window(), Folders()), (Paths{"/b", "/a", "/c"}));
	const std::string output = test::OutputOf([this] { Window().CheckFolderImages(); });
	EXPECT_EQ(output, " ::CheckFolderImages \n mflist has 5 items\n folderlist has 3 items\n");
}


namespace {

class CheckPathChars : public MediaWindowFixture {
protected:
	std::string Check(const std::string& path)
	{
		BPath checked(path.c_str());
		MEDIA_Window& window = Window();
		fOutput = test::OutputOf([&] { window.CheckPathChars(&checked); });
		return checked.Path();
	}

	std::string fOutput;
};

} // namespace


TEST_F(CheckPathChars, GoodNamesAreLeftAlone)
{
	const std::string title = MakeTitle("it's/plain.mp3");
	EXPECT_EQ(Check(title), title);
	EXPECT_EQ(fOutput, "CheckPathChars: \n" + title + "\n");
	const std::string first = MakeTitle("'first.mp3");
	EXPECT_EQ(Check(first), first);
	EXPECT_EQ(access(first.c_str(), F_OK), 0);
}


TEST_F(CheckPathChars, EachApostropheBecomesAnAsterisk)
{
	const std::string title = MakeTitle("it's 'x'.mp3");
	EXPECT_EQ(Check(title), fFolder / "it*s *x*.mp3");
	EXPECT_EQ(fOutput,
		"CheckPathChars: \n" + title + "\nBAD chars in filename..\nBetter is: it*s *x*.mp3\n");
	EXPECT_EQ(Check(MakeTitle("'a'.mp3")), fFolder / "*a*.mp3");
}


TEST_F(CheckPathChars, FailedRenamingLeavesTheNewNameAlone)
{
	const std::string title = MakeTitle("it's.mp3");
	MakeTitle("it*s.mp3");
	EXPECT_EQ(Check(title).substr(Check(title).rfind('/')), "/it*s.mp3");
	EXPECT_EQ(access(title.c_str(), F_OK), 0);
}
