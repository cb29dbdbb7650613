// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <SymLink.h>
#include <Path.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string.h>
#include <string>
#include <sys/stat.h>

#include "tests/support/TempFolder.h"
#include "tests/support/Unprivileged.h"


namespace {

namespace fs = std::filesystem;


std::string
read_all(BFile& file)
{
	char buffer[64];
	const ssize_t count = file.ReadAt(0, buffer, sizeof(buffer));
	return count >= 0 ? std::string(buffer, static_cast<size_t>(count)) : "error";
}

} // namespace


TEST(BFile, MissingFile)
{
	test::TempFolder folder;
	EXPECT_EQ(BFile((folder / "x").c_str(), B_READ_ONLY).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BFile((folder / "x").c_str(), B_READ_WRITE).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BFile((folder / "no/x").c_str(), B_READ_WRITE | B_CREATE_FILE).InitCheck(),
		B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BFile().InitCheck(), B_NO_INIT);
	EXPECT_EQ(BFile(static_cast<const char*>(nullptr), B_READ_ONLY).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BFile((folder / "x").c_str(), 3).InitCheck(), B_BAD_VALUE);
}


TEST(BFile, CreatesWithTheUsualRights)
{
	test::TempFolder folder;
	const mode_t before = umask(022);
	const BFile file((folder / "x").c_str(), B_READ_WRITE | B_CREATE_FILE);
	umask(before);
	EXPECT_EQ(file.InitCheck(), B_OK);
	EXPECT_TRUE(file.IsReadable() && file.IsWritable());
	mode_t rights = 0;
	EXPECT_EQ(file.GetPermissions(&rights), B_OK);
	EXPECT_EQ(rights, 0644u);
}


TEST(BFile, OpenModes)
{
	test::TempFolder folder;
	const std::string path = folder.Write("x", "old");
	EXPECT_EQ(BFile(path.c_str(), B_READ_WRITE | B_CREATE_FILE | B_FAIL_IF_EXISTS).InitCheck(),
		B_FILE_EXISTS);
	EXPECT_EQ(BFile(path.c_str(), B_READ_WRITE | B_FAIL_IF_EXISTS).InitCheck(), B_OK);
	EXPECT_EQ(BFile(path.c_str(), B_READ_WRITE | B_CREATE_FILE).InitCheck(), B_OK);
	EXPECT_EQ(test::ReadFile(path), "old");
	EXPECT_EQ(BFile(path.c_str(), B_READ_ONLY | B_ERASE_FILE).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(test::ReadFile(path), "old");
	BFile atEnd(path.c_str(), B_WRITE_ONLY | B_OPEN_AT_END);
	EXPECT_EQ(atEnd.Write("er", 2), 2);
	EXPECT_EQ(test::ReadFile(path), "older");
	EXPECT_EQ(BFile(path.c_str(), B_WRITE_ONLY | B_ERASE_FILE).InitCheck(), B_OK);
	EXPECT_EQ(test::ReadFile(path), "");
}


TEST(BFile, DirectoryOpensForReadingOnly)
{
	test::TempFolder folder;
	BFile file(folder.Path().c_str(), B_READ_ONLY);
	EXPECT_EQ(file.InitCheck(), B_OK);
	EXPECT_TRUE(file.IsReadable());
	EXPECT_TRUE(file.IsDirectory());
	char c;
	EXPECT_EQ(file.Read(&c, 1), B_IS_A_DIRECTORY);
	EXPECT_EQ(BFile(folder.Path().c_str(), B_READ_WRITE).InitCheck(), B_IS_A_DIRECTORY);
	EXPECT_EQ(BFile(folder.Path().c_str(), B_READ_ONLY | B_CREATE_FILE).InitCheck(),
		B_IS_A_DIRECTORY);
}


TEST(BFile, FollowsLinks)
{
	test::TempFolder folder;
	folder.Write("x", "text");
	fs::create_symlink("x", folder / "link");
	BFile file((folder / "link").c_str(), B_READ_ONLY);
	EXPECT_TRUE(file.IsFile());
	EXPECT_EQ(read_all(file), "text");
}


TEST(BFile, ReadsAndWritesAtItsPosition)
{
	test::TempFolder folder;
	BFile file((folder / "x").c_str(), B_READ_WRITE | B_CREATE_FILE);
	EXPECT_EQ(file.Write("hello", 5), 5);
	EXPECT_EQ(file.Position(), 5);
	char buffer[8] = {};
	EXPECT_EQ(file.Read(buffer, sizeof(buffer)), 0);
	EXPECT_EQ(file.Seek(-4, SEEK_END), 1);
	EXPECT_EQ(file.Read(buffer, 2), 2);
	EXPECT_STREQ(buffer, "el");
	EXPECT_EQ(file.WriteAt(0, "J", 1), 1);
	EXPECT_EQ(file.ReadAt(-1, buffer, 1), B_BAD_VALUE);
	EXPECT_EQ(file.WriteAt(-1, buffer, 1), B_BAD_VALUE);
	EXPECT_EQ(file.Seek(-1, SEEK_SET), B_BAD_VALUE);
	EXPECT_EQ(file.Seek(0, 4), B_BAD_VALUE);
	EXPECT_EQ(read_all(file), "Jello");
	EXPECT_EQ(file.SetSize(2), B_OK);
	EXPECT_EQ(file.SetSize(-1), B_BAD_VALUE);
	off_t size = 0;
	EXPECT_EQ(file.GetSize(&size), B_OK);
	EXPECT_EQ(size, 2);
}


TEST(BFile, WrongDirection)
{
	test::TempFolder folder;
	const std::string path = folder.Write("x", "text");
	BFile reading(path.c_str(), B_READ_ONLY);
	BFile writing(path.c_str(), B_WRITE_ONLY);
	char c;
	EXPECT_FALSE(reading.IsWritable());
	EXPECT_FALSE(writing.IsReadable());
	EXPECT_EQ(reading.Write("x", 1), B_FILE_ERROR);
	EXPECT_EQ(writing.Read(&c, 1), B_FILE_ERROR);
	EXPECT_EQ(test::ReadFile(path), "text");
}


TEST(BFile, UninitializedAnswersWhy)
{
	BFile file("/no/such/file", B_READ_ONLY);
	char c;
	EXPECT_EQ(file.Read(&c, 1), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(file.Write(&c, 1), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(file.Seek(0, SEEK_SET), B_FILE_ERROR);
	EXPECT_EQ(file.Position(), B_FILE_ERROR);
	EXPECT_FALSE(file.IsReadable() || file.IsWritable());
	off_t size;
	EXPECT_EQ(file.GetSize(&size), B_NO_INIT);
}


TEST(BFile, RightsCount)
{
	test::TempFolder folder;
	fs::permissions(folder.Path(), fs::perms(0755));
	const std::string path = folder.Write("x", "text");
	fs::permissions(path, fs::perms(0));
	test::Unprivileged user;
	ASSERT_TRUE(user.IsDone());
	EXPECT_EQ(BFile(path.c_str(), B_READ_ONLY).InitCheck(), B_PERMISSION_DENIED);
	EXPECT_EQ(BFile(path.c_str(), B_WRITE_ONLY).InitCheck(), B_PERMISSION_DENIED);
	EXPECT_EQ(BNode(path.c_str()).InitCheck(), B_PERMISSION_DENIED);
}


TEST(BFile, PipeDoesNotKeepWaiting)
{
	test::TempFolder folder;
	ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
	BFile file((folder / "pipe").c_str(), B_READ_ONLY);
	EXPECT_EQ(file.InitCheck(), B_OK);
	char c;
	EXPECT_EQ(file.Read(&c, 1), 0);
	EXPECT_EQ(BNode((folder / "pipe").c_str()).InitCheck(), B_OK);
}


TEST(BFile, CopySharesThePosition)
{
	test::TempFolder folder;
	BFile file(folder.Write("x", "abc").c_str(), B_READ_ONLY);
	BFile copy(file);
	char c = 0;
	EXPECT_EQ(file.Read(&c, 1), 1);
	file.Unset();
	EXPECT_TRUE(copy.IsReadable());
	EXPECT_EQ(copy.Read(&c, 1), 1);
	EXPECT_EQ(c, 'b');
	BFile assigned;
	assigned = copy;
	EXPECT_EQ(assigned.Position(), 2);
}


TEST(BFile, OpensByReferenceEntryAndDirectory)
{
	test::TempFolder folder;
	const std::string path = folder.Write("x", "abc");
	const BEntry entry(path.c_str());
	entry_ref ref;
	ASSERT_EQ(entry.GetRef(&ref), B_OK);
	const BDirectory directory(folder.Path().c_str());
	BFile byRef(&ref, B_READ_ONLY);
	BFile byEntry(&entry, B_READ_ONLY);
	BFile byName(&directory, "x", B_READ_ONLY);
	EXPECT_EQ(read_all(byRef) + read_all(byEntry) + read_all(byName), "abcabcabc");
	const BEntry none;
	EXPECT_EQ(BFile(&none, B_READ_ONLY).InitCheck(), B_NO_INIT);
	EXPECT_EQ(BFile(static_cast<const entry_ref*>(nullptr), B_READ_ONLY).InitCheck(), B_BAD_VALUE);
}


TEST(BSymLink, TellsWhereItLeads)
{
	test::TempFolder folder;
	fs::create_symlink("some/target", folder / "link");
	fs::create_symlink("/some/target", folder / "absolute");
	BSymLink link((folder / "link").c_str());
	char buffer[32];
	EXPECT_EQ(link.ReadLink(buffer, sizeof(buffer)), 11);
	EXPECT_STREQ(buffer, "some/target");
	EXPECT_EQ(link.ReadLink(buffer, 5), 11);
	EXPECT_STREQ(buffer, "some");
	EXPECT_FALSE(link.IsAbsolute());
	BSymLink absolute((folder / "absolute").c_str());
	EXPECT_TRUE(absolute.IsAbsolute());
	BPath path;
	EXPECT_EQ(link.MakeLinkedPath("/folder", &path), 19);
	EXPECT_STREQ(path.Path(), "/folder/some/target");
	EXPECT_EQ(absolute.MakeLinkedPath("/folder", &path), 12);
	EXPECT_STREQ(path.Path(), "/some/target");
}


TEST(BSymLink, OtherNodesAreNoLinks)
{
	test::TempFolder folder;
	BSymLink file(folder.Write("x", "").c_str());
	char buffer[8];
	EXPECT_EQ(file.ReadLink(buffer, sizeof(buffer)), B_BAD_VALUE);
	EXPECT_EQ(file.ReadLink(nullptr, 8), B_BAD_VALUE);
	EXPECT_EQ(BSymLink().ReadLink(buffer, sizeof(buffer)), B_FILE_ERROR);
	EXPECT_FALSE(file.IsAbsolute());
}
