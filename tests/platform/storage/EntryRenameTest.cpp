// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BEntry: renaming, moving, removing.
#include <Directory.h>
#include <Entry.h>
#include <Path.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/TempFolder.h"


namespace {

namespace fs = std::filesystem;


std::string
path_of(const BEntry& entry)
{
	BPath path;
	return entry.GetPath(&path) == B_OK ? path.Path() : "";
}


class BEntryRename : public testing::Test {
protected:
	BEntryRename()
		:
		fFile(fFolder.Write("file", "contents")),
		fEntry(fFile.c_str())
	{
	}

	test::TempFolder fFolder;
	std::string fFile;
	BEntry fEntry;
};

} // namespace


TEST_F(BEntryRename, ObjectNamesTheNewPlace)
{
	EXPECT_EQ(fEntry.Rename("other"), B_OK);
	EXPECT_STREQ(fEntry.Name(), "other");
	EXPECT_EQ(path_of(fEntry), fFolder / "other");
	EXPECT_TRUE(fEntry.Exists());
	EXPECT_FALSE(fs::exists(fFile));
}


TEST_F(BEntryRename, OwnNameExists)
{
	EXPECT_EQ(fEntry.Rename("file"), B_FILE_EXISTS);
	EXPECT_EQ(path_of(fEntry), fFile);
	EXPECT_EQ(fEntry.Rename("file", true), B_OK);
	EXPECT_EQ(test::ReadFile(fFile), "contents");
}


TEST_F(BEntryRename, ExistingTargetIsKept)
{
	fFolder.Write("other", "old");
	EXPECT_EQ(fEntry.Rename("other"), B_FILE_EXISTS);
	EXPECT_EQ(path_of(fEntry), fFile);
	EXPECT_EQ(test::ReadFile(fFolder / "other"), "old");
	EXPECT_EQ(fEntry.Rename("other", true), B_OK);
	EXPECT_EQ(test::ReadFile(fFolder / "other"), "contents");
	EXPECT_EQ(path_of(fEntry), fFolder / "other");
}


TEST_F(BEntryRename, HardLinkOfTheFileIsAnotherEntry)
{
	fs::create_hard_link(fFile, fFolder / "link");
	EXPECT_EQ(fEntry.Rename("link"), B_FILE_EXISTS);
	EXPECT_TRUE(fs::exists(fFile));
}


TEST_F(BEntryRename, MissingSource)
{
	fs::remove(fFile);
	EXPECT_EQ(fEntry.Rename("other"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(fEntry.Rename("file"), B_ENTRY_NOT_FOUND);
	EXPECT_STREQ(fEntry.Name(), "file");
}


TEST_F(BEntryRename, PathIsRelativeToTheEntrysFolder)
{
	fFolder.MakeFolder("sub");
	EXPECT_EQ(fEntry.Rename("sub/moved"), B_OK);
	EXPECT_EQ(path_of(fEntry), fFolder / "sub/moved");
	EXPECT_EQ(fEntry.Rename("../back"), B_OK);
	EXPECT_EQ(path_of(fEntry), fFolder / "back");
	EXPECT_EQ(fEntry.Rename("no/such/folder"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(fEntry.Rename((fFolder / "absolute").c_str()), B_OK);
	EXPECT_EQ(path_of(fEntry), fFolder / "absolute");
}


TEST_F(BEntryRename, KindsDoNotReplaceEachOther)
{
	fFolder.Write("full/x", "");
	fFolder.MakeFolder("empty");
	EXPECT_EQ(fEntry.Rename("empty", true), B_IS_A_DIRECTORY);
	BEntry empty((fFolder / "empty").c_str());
	EXPECT_EQ(empty.Rename("file", true), B_NOT_A_DIRECTORY);
	EXPECT_EQ(empty.Rename("full", true), B_DIRECTORY_NOT_EMPTY);
	EXPECT_EQ(path_of(empty), fFolder / "empty");
	BEntry full((fFolder / "full").c_str());
	EXPECT_EQ(full.Rename("empty", true), B_OK);
	EXPECT_EQ(full.Rename("empty/inside"), B_BAD_VALUE);
}


TEST_F(BEntryRename, BadNames)
{
	EXPECT_EQ(fEntry.Rename(nullptr), B_BAD_VALUE);
	EXPECT_EQ(fEntry.Rename(""), B_BAD_VALUE);
	EXPECT_EQ(fEntry.Rename(std::string(256, 'x').c_str()), B_NAME_TOO_LONG);
	EXPECT_EQ(path_of(fEntry), fFile);
}


TEST_F(BEntryRename, LinkItselfIsRenamed)
{
	fs::create_symlink("file", fFolder / "link");
	BEntry link((fFolder / "link").c_str());
	EXPECT_EQ(link.Rename("renamed"), B_OK);
	EXPECT_TRUE(fs::is_symlink(fFolder / "renamed"));
	EXPECT_TRUE(fs::exists(fFile));
}


TEST_F(BEntryRename, MoveToKeepsTheName)
{
	fFolder.MakeFolder("sub");
	BDirectory sub((fFolder / "sub").c_str());
	BDirectory none;
	EXPECT_EQ(fEntry.MoveTo(nullptr), B_BAD_VALUE);
	EXPECT_EQ(fEntry.MoveTo(&none), B_BAD_VALUE);
	EXPECT_EQ(fEntry.MoveTo(&sub), B_OK);
	EXPECT_EQ(path_of(fEntry), fFolder / "sub/file");
	fFolder.Write("file", "new");
	BEntry other(fFile.c_str());
	EXPECT_EQ(other.MoveTo(&sub), B_FILE_EXISTS);
	EXPECT_EQ(other.MoveTo(&sub, "second"), B_OK);
	EXPECT_EQ(test::ReadFile(fFolder / "sub/second"), "new");
}


TEST_F(BEntryRename, OtherVolumeIsRefused)
{
	struct stat here;
	struct stat there;
	if (stat(fFile.c_str(), &here) != 0 || stat("/dev/shm", &there) != 0
		|| here.st_dev == there.st_dev) {
		GTEST_SKIP() << "no second volume";
	}
	BDirectory directory("/dev/shm");
	EXPECT_EQ(fEntry.MoveTo(&directory, "vinyloh-test-never-there"), B_CROSS_DEVICE_LINK);
	EXPECT_EQ(path_of(fEntry), fFile);
}


TEST_F(BEntryRename, RemovedEntryStaysInitialized)
{
	EXPECT_EQ(fEntry.Remove(), B_OK);
	EXPECT_EQ(fEntry.InitCheck(), B_OK);
	EXPECT_FALSE(fEntry.Exists());
	EXPECT_EQ(fEntry.Remove(), B_ENTRY_NOT_FOUND);
	fFolder.Write("full/x", "");
	BEntry full((fFolder / "full").c_str());
	EXPECT_EQ(full.Remove(), B_DIRECTORY_NOT_EMPTY);
	EXPECT_EQ(BEntry((fFolder / "full/x").c_str()).Remove(), B_OK);
	EXPECT_EQ(full.Remove(), B_OK);
	EXPECT_FALSE(fs::exists(fFolder / "full"));
}
