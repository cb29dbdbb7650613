// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <Path.h>
#include <SymLink.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/support/TempFolder.h"


namespace {

namespace fs = std::filesystem;


std::vector<std::string>
names_in(BDirectory& directory)
{
	std::vector<std::string> names;
	BEntry entry;
	while (directory.GetNextEntry(&entry) == B_OK)
		names.push_back(entry.Name());
	return names;
}

} // namespace


TEST(BDirectory, EntriesComeInTheOrderOfTheirBytes)
{
	test::TempFolder folder;
	for (const char* name : {"b", "B", "a10", "a9", "\xc3\xa4", "z", ".hidden", "!"})
		folder.Write(name, "");
	BDirectory directory(folder.Path().c_str());
	const std::vector<std::string> expected
		= {"!", ".hidden", "B", "a10", "a9", "b", "z", "\xc3\xa4"};
	EXPECT_EQ(names_in(directory), expected);
	EXPECT_EQ(directory.CountEntries(), 8);
	// Counting begins anew.
	EXPECT_EQ(names_in(directory), expected);
}


TEST(BDirectory, EndUnsetsTheEntry)
{
	test::TempFolder folder;
	BDirectory directory(folder.Path().c_str());
	BEntry entry("/usr");
	EXPECT_EQ(directory.GetNextEntry(&entry), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(entry.InitCheck(), B_NO_INIT);
	entry_ref ref;
	EXPECT_EQ(directory.GetNextRef(&ref), B_ENTRY_NOT_FOUND);
	folder.Write("new", "");
	EXPECT_EQ(directory.Rewind(), B_OK);
	EXPECT_EQ(directory.GetNextRef(&ref), B_OK);
	EXPECT_STREQ(ref.name, "new");
	EXPECT_TRUE(BEntry(&ref).Exists());
}


TEST(BDirectory, OpensOnlyDirectories)
{
	test::TempFolder folder;
	folder.Write("file", "");
	folder.MakeFolder("sub");
	fs::create_directory_symlink("sub", folder / "link");
	fs::create_symlink("file", folder / "toFile");
	EXPECT_EQ(BDirectory((folder / "file").c_str()).InitCheck(), B_NOT_A_DIRECTORY);
	EXPECT_EQ(BDirectory((folder / "toFile").c_str()).InitCheck(), B_NOT_A_DIRECTORY);
	EXPECT_EQ(BDirectory((folder / "no").c_str()).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BDirectory((folder / "link").c_str()).InitCheck(), B_OK);
	EXPECT_EQ(BDirectory(static_cast<const char*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BDirectory(static_cast<const node_ref*>(nullptr)).InitCheck(), B_BAD_VALUE);
}


TEST(BDirectory, UninitializedRefuses)
{
	BDirectory directory;
	BEntry entry;
	entry_ref ref;
	struct stat status;
	dirent buffer;
	EXPECT_EQ(directory.GetNextEntry(&entry), B_FILE_ERROR);
	EXPECT_EQ(directory.GetNextRef(&ref), B_FILE_ERROR);
	EXPECT_EQ(directory.GetNextDirents(&buffer, sizeof(buffer)), B_FILE_ERROR);
	EXPECT_EQ(directory.Rewind(), B_FILE_ERROR);
	EXPECT_EQ(directory.CountEntries(), B_FILE_ERROR);
	EXPECT_EQ(directory.GetStatFor("x", &status), B_NO_INIT);
	EXPECT_EQ(directory.GetEntry(&entry), B_NO_INIT);
	EXPECT_FALSE(directory.IsRootDirectory());
	EXPECT_FALSE(directory.Contains("x"));
}


TEST(BDirectory, DanglingLinkFailsOnlyWhenFollowed)
{
	test::TempFolder folder;
	fs::create_symlink("nowhere", folder / "a");
	folder.Write("b", "");
	BDirectory directory(folder.Path().c_str());
	BEntry entry;
	EXPECT_EQ(directory.GetNextEntry(&entry, true), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(entry.InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(directory.GetNextEntry(&entry, true), B_OK);
	EXPECT_STREQ(entry.Name(), "b");
	directory.Rewind();
	EXPECT_EQ(directory.GetNextEntry(&entry), B_OK);
	EXPECT_STREQ(entry.Name(), "a");
}


TEST(BDirectory, DirentsIncludeTheDots)
{
	test::TempFolder folder;
	folder.Write("file", "");
	BDirectory directory(folder.Path().c_str());
	alignas(dirent) char buffer[4096];
	dirent* entries = reinterpret_cast<dirent*>(buffer);
	EXPECT_EQ(directory.GetNextDirents(entries, 3), B_BUFFER_OVERFLOW);
	EXPECT_EQ(directory.GetNextDirents(nullptr, 3), B_BAD_VALUE);
	EXPECT_EQ(directory.GetNextDirents(entries, sizeof(buffer), 1), 1);
	EXPECT_STREQ(entries->d_name, ".");
	EXPECT_EQ(directory.GetNextDirents(entries, sizeof(buffer)), 2);
	EXPECT_STREQ(entries->d_name, "..");
	const dirent* second = reinterpret_cast<dirent*>(buffer + entries->d_reclen);
	EXPECT_STREQ(second->d_name, "file");
	EXPECT_EQ(directory.GetNextDirents(entries, sizeof(buffer)), 0);
}


TEST(BDirectory, FindsEntries)
{
	test::TempFolder folder;
	folder.Write("sub/file", "12");
	fs::create_symlink("sub", folder / "link");
	BDirectory directory(folder.Path().c_str());
	BEntry entry;
	EXPECT_EQ(directory.FindEntry("sub/file", &entry), B_OK);
	EXPECT_STREQ(entry.Name(), "file");
	EXPECT_EQ(directory.FindEntry("no", &entry), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(entry.InitCheck(), B_NO_INIT);
	EXPECT_EQ(directory.FindEntry(nullptr, &entry), B_BAD_VALUE);
	EXPECT_EQ(directory.FindEntry("x", nullptr), B_BAD_VALUE);
	EXPECT_TRUE(directory.Contains("sub"));
	EXPECT_TRUE(directory.Contains("sub", B_DIRECTORY_NODE));
	EXPECT_FALSE(directory.Contains("sub", B_FILE_NODE));
	EXPECT_TRUE(directory.Contains("link", B_SYMLINK_NODE));
	const BEntry outside("/usr");
	EXPECT_FALSE(directory.Contains(&outside));
	struct stat status;
	EXPECT_EQ(directory.GetStatFor("sub/file", &status), B_OK);
	EXPECT_EQ(status.st_size, 2);
	EXPECT_EQ(directory.GetStatFor("link", &status), B_OK);
	EXPECT_TRUE(S_ISLNK(status.st_mode));
	EXPECT_EQ(directory.GetStatFor("no", &status), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(directory.GetStatFor("", &status), B_ENTRY_NOT_FOUND);
}


TEST(BDirectory, MakesWhatIsMissing)
{
	test::TempFolder folder;
	BDirectory directory(folder.Path().c_str());
	BDirectory sub;
	EXPECT_EQ(directory.CreateDirectory("sub", &sub), B_OK);
	EXPECT_EQ(directory.CreateDirectory("sub", &sub), B_FILE_EXISTS);
	BFile file;
	EXPECT_EQ(sub.CreateFile("file", &file), B_OK);
	EXPECT_EQ(file.Write("text", 4), 4);
	EXPECT_EQ(sub.CreateFile("file", &file, true), B_FILE_EXISTS);
	EXPECT_EQ(test::ReadFile(folder / "sub/file"), "text");
	EXPECT_EQ(sub.CreateFile("file", nullptr), B_OK);
	EXPECT_EQ(test::ReadFile(folder / "sub/file"), "");
	BSymLink link;
	EXPECT_EQ(sub.CreateSymLink("link", "file", &link), B_OK);
	EXPECT_TRUE(link.IsSymLink());
	EXPECT_EQ(directory.CreateDirectory(nullptr, nullptr), B_BAD_VALUE);
	EXPECT_EQ(directory.CreateFile(nullptr, nullptr), B_BAD_VALUE);
	EXPECT_EQ(directory.CreateSymLink("x", nullptr, nullptr), B_BAD_VALUE);
}


TEST(BDirectory, CreateDirectoryMakesTheParents)
{
	test::TempFolder folder;
	EXPECT_EQ(create_directory((folder / "a/b/c").c_str(), 0755), B_OK);
	EXPECT_TRUE(fs::is_directory(folder / "a/b/c"));
	EXPECT_EQ(create_directory((folder / "a/b/c/").c_str(), 0755), B_OK);
	folder.Write("file", "");
	EXPECT_EQ(create_directory((folder / "file").c_str(), 0755), B_NOT_A_DIRECTORY);
	EXPECT_EQ(create_directory((folder / "file/x").c_str(), 0755), B_NOT_A_DIRECTORY);
	EXPECT_EQ(create_directory("", 0755), B_BAD_VALUE);
	EXPECT_EQ(create_directory(nullptr, 0755), B_BAD_VALUE);
	EXPECT_EQ(create_directory("/", 0755), B_OK);
}


TEST(BDirectory, KnowsTheRootOfItsVolume)
{
	test::TempFolder folder;
	folder.MakeFolder("sub");
	EXPECT_TRUE(BDirectory("/").IsRootDirectory());
	EXPECT_FALSE(BDirectory((folder / "sub").c_str()).IsRootDirectory());
}


TEST(BDirectory, CopyBeginsAnew)
{
	test::TempFolder folder;
	folder.Write("a", "");
	folder.Write("b", "");
	BDirectory directory(folder.Path().c_str());
	BEntry entry;
	directory.GetNextEntry(&entry);
	BDirectory copy(directory);
	EXPECT_EQ(names_in(copy).size(), 2u);
	EXPECT_EQ(names_in(directory).size(), 1u);
	copy.SetTo("/no/such/folder");
	EXPECT_EQ(copy.GetNextEntry(&entry), B_FILE_ERROR);
}
