// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "window/PlaylistFile.h"

#include <filesystem>
#include <string>
#include <vector>

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <List.h>
#include <Node.h>
#include <NodeInfo.h>
#include <Path.h>
#include <TypeConstants.h>
#include <gtest/gtest.h>

#include "tests/support/TempFolder.h"
#include "tests/support/Unprivileged.h"
#include "window/PathLists.h"


namespace {

// The paths that a playlist's contents give.
class PlaylistFileTest : public testing::Test {
protected:
	~PlaylistFileTest() override { EmptyPathList(&fList); }

	std::vector<std::string> Read(const std::string& contents)
	{
		return ReadFrom(fFolder.Write("list", contents));
	}

	std::vector<std::string> ReadFrom(const std::string& path)
	{
		EmptyPathList(&fList);
		EXPECT_TRUE(ReadPlaylist(path.c_str(), &fList, &fWithPrefix));
		std::vector<std::string> paths;
		for (int32 index = 0; index < fList.CountItems(); index++) {
			const char* const entry = PathAt(&fList, index)->Path();
			paths.push_back(entry != nullptr ? entry : "-none-");
		}
		return paths;
	}

	void Fill(const std::vector<std::string>& paths)
	{
		EmptyPathList(&fList);
		for (const std::string& path : paths)
			fList.AddItem(new BPath(path.c_str()));
	}

	// The names in the folder.
	std::vector<std::string> Names()
	{
		std::vector<std::string> names;
		for (const auto& entry : std::filesystem::directory_iterator(fFolder.Path()))
			names.push_back(entry.path().filename());
		return names;
	}

	test::TempFolder fFolder;
	BList fList;
	bool fWithPrefix = false;
};

using Paths = std::vector<std::string>;

} // namespace


TEST_F(PlaylistFileTest, CommentsAndShortLinesAreNoTitles)
{
	EXPECT_EQ(Read("#EXTM3U\n#/music/x.mp3\n;/music/y.mp3\nx\nfile:///music/a.mp3\n/music/b.mp3\n"),
		(Paths{"/music/a.mp3", "/music/b.mp3"}));
	EXPECT_TRUE(fWithPrefix);
	// Each file has its own style.
	EXPECT_EQ(Read("/music/c.mp3\n"), Paths{"/music/c.mp3"});
	EXPECT_FALSE(fWithPrefix);
}


TEST_F(PlaylistFileTest, SavedWithTheSamePrefix)
{
	Fill(Read("file:///music/a.mp3\n/music/b.mp3\n"));
	const std::string path = fFolder / "saved";
	ASSERT_TRUE(WritePlaylist(path.c_str(), fList, fWithPrefix));
	EXPECT_EQ(test::ReadFile(path), "file:///music/a.mp3\nfile:///music/b.mp3\n");
}


TEST_F(PlaylistFileTest, FiveCharactersAreTooFew)
{
	EXPECT_EQ(Read("/abcd\n/abcde\nfile:///abcd\nfile:///abcde\n"), (Paths{"/abcde", "/abcde"}));
}


TEST_F(PlaylistFileTest, WindowsLineEndsAreRemoved)
{
	EXPECT_EQ(Read("/music/a.mp3\r\n\r\n/music/b.mp3\r\n"),
		(Paths{"/music/a.mp3", "/music/b.mp3"}));
	EXPECT_FALSE(fWithPrefix);
}


TEST_F(PlaylistFileTest, LastLineNeedsNoEnd)
{
	EXPECT_EQ(Read("/music/a.mp3"), (Paths{"/music/a.mp3"}));
	EXPECT_EQ(Read(""), Paths());
	EXPECT_EQ(Read("\n\n\n"), Paths());
}


TEST_F(PlaylistFileTest, LongLinesAreReadInPieces)
{
	// A piece of 1023 characters, then the rest.
	const std::string line = "/" + std::string(1022, 'a') + "/" + std::string(20, 'b');
	const Paths paths = Read(line + "\n");
	ASSERT_EQ(paths.size(), 2u);
	EXPECT_EQ(paths[0], line.substr(0, 1023));
	EXPECT_EQ(paths[1], line.substr(1023));
}


TEST_F(PlaylistFileTest, RelativeLineThatIsTooLongWithItsFolderIsNoTitle)
{
	EXPECT_EQ(Read(std::string(1020, 'a') + "\nb.mp3/\n"), Paths{fFolder / "b.mp3"});
}


TEST_F(PlaylistFileTest, RelativeLinesStartAtThePlaylist)
{
	EXPECT_EQ(Read("album/song.mp3\nfile://other.mp3\n"),
		(Paths{fFolder / "album/song.mp3", fFolder / "other.mp3"}));
}


TEST_F(PlaylistFileTest, PathsWithDotsAreTidied)
{
	const std::string list = fFolder.Write("lists/list", "../album//song.mp3\n./x/../gone.mp3\n");
	EXPECT_EQ(ReadFrom(list), (Paths{fFolder / "album/song.mp3", fFolder / "lists/gone.mp3"}));
	EXPECT_EQ(Read("/nowhere//at/all/../a.mp3\n"), (Paths{"/nowhere/at/a.mp3"}));
	EXPECT_EQ(Read("/nowhere/../../../nowhere/a.mp3\n"), (Paths{"/nowhere/a.mp3"}));
}


TEST_F(PlaylistFileTest, ByteOrderMarkIsNoPartOfTheFirstLine)
{
	EXPECT_EQ(Read("\xef\xbb\xbf#EXTM3U\n/music/\u00fc.mp3\n"), Paths{"/music/\u00fc.mp3"});
	EXPECT_EQ(Read("\xef\xbb\xbf/music/a.mp3\n"), Paths{"/music/a.mp3"});
	// Only at the beginning, and only whole.
	EXPECT_EQ(Read("\xef\xbb/music/a.mp3\n"), Paths{fFolder / "\xef\xbb/music/a.mp3"});
	EXPECT_EQ(Read("\xef\xbb"), Paths());
}


TEST_F(PlaylistFileTest, WindowsPathsAreTakenAsTheyStand)
{
	// They lead nowhere, but stay in the list.
	EXPECT_EQ(Read("C:\\Music\\Some Song.mp3\r\n\\\\server\\a.mp3\r\n"),
		(Paths{fFolder / "C:\\Music\\Some Song.mp3", fFolder / "\\\\server\\a.mp3"}));
}


TEST_F(PlaylistFileTest, BlanksBelongToTheName)
{
	EXPECT_EQ(Read("/music/a b.mp3 \n /music/c.mp3\n   \n\t\n"),
		(Paths{"/music/a b.mp3 ", fFolder / " /music/c.mp3"}));
}


TEST_F(PlaylistFileTest, AnyBytesAreTaken)
{
	const std::string odd("/music/\xff\xfe\t'\"*.mp3");
	EXPECT_EQ(Read(odd + "\n"), Paths{odd});
	EXPECT_EQ(Read(std::string("/music/a\0b.mp3\n/music/c.mp3\n", 28)),
		(Paths{"/music/a", "/music/c.mp3"}));
}


TEST_F(PlaylistFileTest, MissingFileAndFolderCannotBeRead)
{
	EXPECT_FALSE(ReadPlaylist((fFolder / "missing").c_str(), &fList, &fWithPrefix));
	EXPECT_FALSE(ReadPlaylist(fFolder.Path().c_str(), &fList, &fWithPrefix));
	EXPECT_FALSE(ReadPlaylist(nullptr, &fList, &fWithPrefix));
	const std::string pipe = fFolder / "pipe";
	ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
	EXPECT_FALSE(ReadPlaylist(pipe.c_str(), &fList, &fWithPrefix));
	// A file whose reading fails from its first byte on.
	EXPECT_FALSE(ReadPlaylist("/proc/self/mem", &fList, &fWithPrefix));
	EXPECT_TRUE(fList.IsEmpty());
}


TEST_F(PlaylistFileTest, AHundredThousandLinesAreReadAndWritten)
{
	std::string contents;
	for (int number = 0; number < 100000; number++)
		contents += "/music/album " + std::to_string(number / 12) + "/title "
			+ std::to_string(number) + ".mp3\n";
	EXPECT_EQ(Read(contents).size(), 100000u);
	const std::string path = fFolder / "saved";
	EXPECT_TRUE(WritePlaylist(path.c_str(), fList, false));
	EXPECT_EQ(test::ReadFile(path), contents);
}


TEST_F(PlaylistFileTest, WritingReplacesTheFileAndGivesItItsType)
{
	const std::string path = fFolder.Write("list", "old and longer than what follows\n");
	Fill({"/music/a.mp3", "/music/b.mp3"});
	ASSERT_TRUE(WritePlaylist(path.c_str(), fList, false));
	EXPECT_EQ(test::ReadFile(path), "/music/a.mp3\n/music/b.mp3\n");
	BNode node(path.c_str());
	char type[B_MIME_TYPE_LENGTH] = "";
	EXPECT_EQ(BNodeInfo(&node).GetType(type), B_OK);
	EXPECT_STREQ(type, "text/x-playlist");
	EXPECT_EQ(Names(), Paths{"list"});
}


TEST_F(PlaylistFileTest, PermissionsAndAttributesAreKept)
{
	const std::string path = fFolder.Write("list", "");
	ASSERT_EQ(chmod(path.c_str(), 0640), 0);
	const int32 value = 5;
	BNode(path.c_str()).WriteAttr("mark", B_INT32_TYPE, 0, &value, sizeof(value));
	ASSERT_TRUE(WritePlaylist(path.c_str(), fList, false));

	struct stat status;
	ASSERT_EQ(stat(path.c_str(), &status), 0);
	EXPECT_EQ(status.st_mode & 07777, 0640u);
	int32 kept = 0;
	EXPECT_EQ(BNode(path.c_str()).ReadAttr("mark", B_INT32_TYPE, 0, &kept, sizeof(kept)), 4);
	EXPECT_EQ(kept, 5);
}


TEST_F(PlaylistFileTest, NewFileGetsTheUsualPermissions)
{
	const mode_t mask = umask(027);
	const std::string path = fFolder / "new";
	EXPECT_TRUE(WritePlaylist(path.c_str(), fList, false));
	umask(mask);
	struct stat status;
	ASSERT_EQ(stat(path.c_str(), &status), 0);
	EXPECT_EQ(status.st_mode & 0777, 0640u);
}


TEST_F(PlaylistFileTest, WhatALinkLeadsToIsWritten)
{
	const std::string target = fFolder.Write("real/list", "old\n");
	const std::string link = fFolder / "link";
	ASSERT_EQ(symlink("real/list", link.c_str()), 0);
	Fill({"/music/a.mp3"});
	ASSERT_TRUE(WritePlaylist(link.c_str(), fList, false));
	EXPECT_TRUE(std::filesystem::is_symlink(link));
	EXPECT_EQ(test::ReadFile(target), "/music/a.mp3\n");

	// Also where there is nothing yet.
	std::filesystem::remove(target);
	ASSERT_TRUE(WritePlaylist(link.c_str(), fList, false));
	EXPECT_TRUE(std::filesystem::is_symlink(link));
	EXPECT_EQ(test::ReadFile(target), "/music/a.mp3\n");
}


TEST_F(PlaylistFileTest, FileThatMayNotBeWrittenIsNotReplaced)
{
	const std::string path = fFolder.Write("list", "old\n");
	chmod(path.c_str(), 0444);
	chmod(fFolder.Path().c_str(), 0777);
	Fill({"/music/a.mp3"});
	// The superuser may write everything.
	const uid_t user = geteuid();
	ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0);
	const bool written = WritePlaylist(path.c_str(), fList, false);
	ASSERT_EQ(seteuid(user), 0);
	EXPECT_FALSE(written);
	EXPECT_EQ(test::ReadFile(path), "old\n");
	EXPECT_EQ(Names(), Paths{"list"});
}


TEST_F(PlaylistFileTest, FileThatCannotBeReadIsNotReplaced)
{
	// It could not be loaded, so nothing of it is in the list.
	const std::string path = fFolder.Write("list", "old\n");
	chmod(fFolder.Path().c_str(), 0777);
	ASSERT_EQ(chown(path.c_str(), 65534, 65534), geteuid() == 0 ? 0 : -1);
	chmod(path.c_str(), 0222);
	Fill({"/music/a.mp3"});
	{
		const test::Unprivileged unprivileged;
		ASSERT_TRUE(unprivileged.IsDone());
		EXPECT_FALSE(WritePlaylist(path.c_str(), fList, false));
	}
	chmod(path.c_str(), 0666);
	EXPECT_EQ(test::ReadFile(path), "old\n");
	EXPECT_EQ(Names(), Paths{"list"});
}


TEST_F(PlaylistFileTest, ReadOnlyFolderLeavesTheOldFile)
{
	const std::string path = fFolder.Write("closed/list", "old\n");
	chmod(path.c_str(), 0666);
	chmod((fFolder / "closed").c_str(), 0555);
	Fill({"/music/a.mp3"});
	{
		const test::Unprivileged unprivileged;
		ASSERT_TRUE(unprivileged.IsDone());
		EXPECT_FALSE(WritePlaylist(path.c_str(), fList, false));
		EXPECT_FALSE(WritePlaylist((fFolder / "closed/new").c_str(), fList, false));
	}
	chmod((fFolder / "closed").c_str(), 0755);
	EXPECT_EQ(test::ReadFile(path), "old\n");
}


TEST_F(PlaylistFileTest, FullDiskLeavesTheOldFile)
{
	const std::string path = fFolder.Write("list", "old\n");
	Fill(Paths(1000, "/music/a title with a rather long name.mp3"));
	struct rlimit limit;
	ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
	struct rlimit low = limit;
	low.rlim_cur = 8192;
	const auto handler = signal(SIGXFSZ, SIG_IGN);
	ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &low), 0);
	const bool written = WritePlaylist(path.c_str(), fList, false);
	setrlimit(RLIMIT_FSIZE, &limit);
	signal(SIGXFSZ, handler);
	EXPECT_FALSE(written);
	EXPECT_EQ(test::ReadFile(path), "old\n");
	EXPECT_EQ(Names(), Paths{"list"});
}


TEST_F(PlaylistFileTest, DeviceIsWrittenItselfAndTellsThatItIsFull)
{
	ASSERT_EQ(symlink("/dev/null", (fFolder / "null").c_str()), 0);
	ASSERT_EQ(symlink("/dev/full", (fFolder / "full").c_str()), 0);
	chmod(fFolder.Path().c_str(), 0755);
	Fill({"/music/a.mp3"});
	{
		// The superuser could put a file in the device's place.
		const test::Unprivileged unprivileged;
		ASSERT_TRUE(unprivileged.IsDone());
		EXPECT_TRUE(WritePlaylist((fFolder / "null").c_str(), fList, false));
		EXPECT_FALSE(WritePlaylist((fFolder / "full").c_str(), fList, false));
	}
	EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
	EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}


TEST_F(PlaylistFileTest, PipeThatNobodyReadsIsNotWaitedFor)
{
	const std::string pipe = fFolder / "pipe";
	ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
	Fill({"/music/a.mp3"});
	EXPECT_FALSE(WritePlaylist(pipe.c_str(), fList, false));
	EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}


TEST_F(PlaylistFileTest, WhereNoFileCanBeNothingIsWritten)
{
	EXPECT_FALSE(WritePlaylist(fFolder.Path().c_str(), fList, false));
	EXPECT_FALSE(WritePlaylist((fFolder / "no/list").c_str(), fList, false));
	EXPECT_FALSE(WritePlaylist(nullptr, fList, false));
	const std::string loop = fFolder / "loop";
	ASSERT_EQ(symlink("loop", loop.c_str()), 0);
	EXPECT_FALSE(WritePlaylist(loop.c_str(), fList, false));
}
