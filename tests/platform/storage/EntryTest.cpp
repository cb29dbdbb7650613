// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// entry_ref and BEntry: finding, naming and looking at entries.
#include <Directory.h>
#include <Entry.h>
#include <Node.h>
#include <Path.h>
#include <StorageDefs.h>
#include <Volume.h>

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <stddef.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "tests/support/TempFolder.h"


namespace {

namespace fs = std::filesystem;

static_assert(B_FILE_NAME_LENGTH == 256 && B_PATH_NAME_LENGTH == 1024);
static_assert(B_ATTR_NAME_LENGTH == 255 && B_MIME_TYPE_LENGTH == 240);
static_assert(B_DEV_NAME_LENGTH == 128 && B_MAX_SYMLINKS == 16);
static_assert(B_READ_ONLY == 0 && B_WRITE_ONLY == 1 && B_READ_WRITE == 2);
static_assert(B_FAIL_IF_EXISTS == 0x100 && B_CREATE_FILE == 0x200);
static_assert(B_ERASE_FILE == 0x400 && B_OPEN_AT_END == 0x800);
static_assert(B_FILE_NODE == 1 && B_SYMLINK_NODE == 2 && B_DIRECTORY_NODE == 4);
static_assert(B_ANY_NODE == 7);
static_assert(offsetof(entry_ref, device) == 0 && offsetof(entry_ref, directory) == 8);
static_assert(offsetof(entry_ref, name) == 16);


std::string
path_of(const BEntry& entry)
{
	BPath path;
	return entry.GetPath(&path) == B_OK ? path.Path() : "";
}

} // namespace


TEST(EntryRef, OwnsItsName)
{
	entry_ref ref;
	EXPECT_EQ(ref.device, static_cast<dev_t>(-1));
	EXPECT_EQ(ref.directory, static_cast<ino_t>(-1));
	EXPECT_EQ(ref.name, nullptr);
	std::string name = "name";
	EXPECT_EQ(ref.set_name(name.c_str()), B_OK);
	name[0] = 'X';
	EXPECT_STREQ(ref.name, "name");
	EXPECT_EQ(ref.set_name(ref.name), B_OK);
	EXPECT_STREQ(ref.name, "name");
	ref = *&ref;
	EXPECT_STREQ(ref.name, "name");
}


TEST(EntryRef, Compares)
{
	const entry_ref a(1, 2, "a");
	const entry_ref b(1, 2, "b");
	const entry_ref none(1, 2, nullptr);
	EXPECT_TRUE(a == entry_ref(a));
	EXPECT_TRUE(a != b && a != none && none == none);
	EXPECT_TRUE(a < b && !(b < a) && none < a);
	EXPECT_TRUE(a < entry_ref(1, 3, "a") && a < entry_ref(2, 0, "a"));
}


TEST(BEntry, MissingLeafIsNoError)
{
	test::TempFolder folder;
	const BEntry entry((folder / "missing").c_str());
	EXPECT_EQ(entry.InitCheck(), B_OK);
	EXPECT_FALSE(entry.Exists());
	EXPECT_STREQ(entry.Name(), "missing");
	EXPECT_EQ(path_of(entry), folder / "missing");
	struct stat status;
	EXPECT_EQ(entry.GetStat(&status), B_ENTRY_NOT_FOUND);
	EXPECT_FALSE(entry.IsFile() || entry.IsDirectory() || entry.IsSymLink());
}


TEST(BEntry, ParentMustBeADirectory)
{
	test::TempFolder folder;
	folder.Write("file", "");
	EXPECT_EQ(BEntry((folder / "no/x").c_str()).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BEntry((folder / "file/x").c_str()).InitCheck(), B_NOT_A_DIRECTORY);
}


TEST(BEntry, BadArguments)
{
	test::TempFolder folder;
	EXPECT_EQ(BEntry(static_cast<const char*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BEntry("").InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BEntry(static_cast<const entry_ref*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BEntry(nullptr, "x").InitCheck(), B_BAD_VALUE);
	const BDirectory none;
	EXPECT_EQ(BEntry(&none, "x").InitCheck(), B_BAD_VALUE);
	const entry_ref unset;
	EXPECT_NE(BEntry(&unset).InitCheck(), B_OK);
	EXPECT_EQ(BEntry((folder / std::string(255, 'x')).c_str()).InitCheck(), B_OK);
	EXPECT_EQ(BEntry((folder / std::string(256, 'x')).c_str()).InitCheck(), B_NAME_TOO_LONG);
	const BEntry entry(folder.Path().c_str());
	EXPECT_EQ(entry.GetPath(nullptr), B_BAD_VALUE);
	EXPECT_EQ(entry.GetRef(nullptr), B_BAD_VALUE);
	EXPECT_EQ(entry.GetName(nullptr), B_BAD_VALUE);
	EXPECT_EQ(entry.GetStat(nullptr), B_BAD_VALUE);
	EXPECT_EQ(entry.GetParent(static_cast<BEntry*>(nullptr)), B_BAD_VALUE);
}


TEST(BEntry, UninitializedRefusesEverything)
{
	BEntry entry;
	BPath path;
	entry_ref ref;
	struct stat status;
	char name[B_FILE_NAME_LENGTH];
	BDirectory directory;
	EXPECT_EQ(entry.InitCheck(), B_NO_INIT);
	EXPECT_EQ(entry.Name(), nullptr);
	EXPECT_FALSE(entry.Exists());
	EXPECT_EQ(entry.GetPath(&path), B_NO_INIT);
	EXPECT_EQ(entry.GetRef(&ref), B_NO_INIT);
	EXPECT_EQ(entry.GetStat(&status), B_NO_INIT);
	EXPECT_EQ(entry.GetName(name), B_NO_INIT);
	EXPECT_EQ(entry.GetParent(&entry), B_NO_INIT);
	EXPECT_EQ(entry.GetParent(&directory), B_NO_INIT);
	EXPECT_EQ(entry.Rename("x"), B_NO_INIT);
	EXPECT_EQ(entry.MoveTo(&directory), B_NO_INIT);
	EXPECT_EQ(entry.Remove(), B_NO_INIT);
	EXPECT_TRUE(entry == BEntry());
}


TEST(BEntry, TrailingSlashesAndDotsAreResolved)
{
	test::TempFolder folder;
	folder.MakeFolder("a/b");
	const std::string a = folder / "a";
	EXPECT_EQ(path_of(BEntry((a + "///").c_str())), a);
	EXPECT_EQ(path_of(BEntry((a + "/b/..").c_str())), a);
	EXPECT_EQ(path_of(BEntry((a + "/.").c_str())), a);
	EXPECT_STREQ(BEntry((a + "/b/.").c_str()).Name(), "b");
	EXPECT_EQ(path_of(BEntry((a + "//b/../c").c_str())), a + "/c");
}


TEST(BEntry, RootHasNoParent)
{
	BEntry root("/");
	ASSERT_EQ(root.InitCheck(), B_OK);
	EXPECT_STREQ(root.Name(), ".");
	EXPECT_EQ(path_of(root), "/");
	BEntry parent;
	BDirectory directory;
	EXPECT_EQ(root.GetParent(&parent), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(root.GetParent(&directory), B_ENTRY_NOT_FOUND);
	EXPECT_TRUE(root.IsDirectory());
	EXPECT_TRUE(BEntry("/..") == root);
	BEntry below("/usr");
	EXPECT_EQ(below.GetParent(&below), B_OK);
	EXPECT_TRUE(below == root);
}


TEST(BEntry, LinksAreFollowedOnlyOnRequest)
{
	test::TempFolder folder;
	const std::string file = folder.Write("real/file", "12345");
	fs::create_symlink("real/file", folder / "link");
	fs::create_symlink("link", folder / "second");
	const BEntry link((folder / "second").c_str());
	EXPECT_TRUE(link.IsSymLink());
	EXPECT_FALSE(link.IsFile());
	const BEntry followed((folder / "second").c_str(), true);
	EXPECT_EQ(path_of(followed), file);
	EXPECT_TRUE(followed.IsFile());
	off_t size = 0;
	EXPECT_EQ(followed.GetSize(&size), B_OK);
	EXPECT_EQ(size, 5);
}


TEST(BEntry, DanglingLink)
{
	test::TempFolder folder;
	fs::create_symlink("nowhere", folder / "link");
	EXPECT_TRUE(BEntry((folder / "link").c_str()).Exists());
	EXPECT_EQ(BEntry((folder / "link").c_str(), true).InitCheck(), B_ENTRY_NOT_FOUND);
	// Nothing to follow is no link that leads nowhere.
	EXPECT_EQ(BEntry((folder / "missing").c_str(), true).InitCheck(), B_OK);
}


TEST(BEntry, LinksAreFollowedSixteenTimes)
{
	test::TempFolder folder;
	folder.Write("l0", "");
	for (int index = 1; index <= 17; index++)
		fs::create_symlink("l" + std::to_string(index - 1), folder / ("l" + std::to_string(index)));
	EXPECT_EQ(BEntry((folder / "l16").c_str(), true).InitCheck(), B_OK);
	EXPECT_EQ(BEntry((folder / "l17").c_str(), true).InitCheck(), B_LINK_LIMIT);
	fs::create_symlink("loop", folder / "loop");
	EXPECT_EQ(BEntry((folder / "loop").c_str(), true).InitCheck(), B_LINK_LIMIT);
}


TEST(BEntry, ComesBackFromItsReference)
{
	test::TempFolder folder;
	const std::string file = folder.Write("sub/file", "");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(file.c_str(), &ref), B_OK);
	EXPECT_STREQ(ref.name, "file");
	struct stat status;
	ASSERT_EQ(stat((folder / "sub").c_str(), &status), 0);
	EXPECT_EQ(ref.device, status.st_dev);
	EXPECT_EQ(ref.directory, status.st_ino);
	const BEntry entry(&ref);
	EXPECT_EQ(path_of(entry), file);
	EXPECT_TRUE(entry == BEntry(file.c_str()));
	EXPECT_TRUE(entry != BEntry(folder.Path().c_str()));
}


TEST(BEntry, ReferenceMayNameWhatIsMissing)
{
	test::TempFolder folder;
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path((folder / "later").c_str(), &ref), B_OK);
	EXPECT_FALSE(BEntry(&ref).Exists());
	folder.Write("later", "");
	EXPECT_TRUE(BEntry(&ref).Exists());
}


TEST(BEntry, ReferenceSurvivesRenamedParents)
{
	test::TempFolder folder;
	folder.Write("a/b/file", "");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path((folder / "a/b/file").c_str(), &ref), B_OK);
	fs::rename(folder / "a/b", folder / "a/c");
	EXPECT_EQ(path_of(BEntry(&ref)), folder / "a/c/file");
	fs::rename(folder / "a", folder / "z");
	EXPECT_EQ(path_of(BEntry(&ref)), folder / "z/c/file");
	fs::rename(folder / "z/c", folder / "z/d");
	fs::rename(folder / "z", folder / "y");
	EXPECT_EQ(path_of(BEntry(&ref)), folder / "y/d/file");
}


TEST(BEntry, ReferenceToARemovedFolderIsNotFound)
{
	test::TempFolder folder;
	folder.Write("a/file", "");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path((folder / "a/file").c_str(), &ref), B_OK);
	fs::remove_all(folder / "a");
	EXPECT_EQ(BEntry(&ref).InitCheck(), B_ENTRY_NOT_FOUND);
	const entry_ref nobody(ref.device, 1, "x");
	EXPECT_EQ(BEntry(&nobody).InitCheck(), B_ENTRY_NOT_FOUND);
}


TEST(BEntry, FollowsItsRenamedParent)
{
	test::TempFolder folder;
	folder.Write("a/file", "");
	BEntry entry((folder / "a/file").c_str());
	fs::rename(folder / "a", folder / "b");
	folder.MakeFolder("a");
	EXPECT_EQ(path_of(entry), folder / "b/file");
	EXPECT_TRUE(entry.Exists());
	fs::create_directories(folder / "far/away");
	fs::rename(folder / "b", folder / "far/away/b");
	EXPECT_EQ(path_of(entry), folder / "far/away/b/file");
	entry_ref ref;
	ASSERT_EQ(entry.GetRef(&ref), B_OK);
	EXPECT_EQ(path_of(BEntry(&ref)), folder / "far/away/b/file");
}


TEST(BEntry, PathOfARemovedParentIsNotFound)
{
	test::TempFolder folder;
	folder.MakeFolder("a");
	const BEntry entry((folder / "a/x").c_str());
	fs::remove(folder / "a");
	BPath path;
	EXPECT_EQ(entry.GetPath(&path), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(path.Path(), nullptr);
}


TEST(BEntry, ManyEntriesOfOneFolderShareIt)
{
	test::TempFolder folder;
	std::vector<BEntry> entries;
	for (int index = 0; index < 5000; index++)
		entries.emplace_back((folder / std::to_string(index)).c_str());
	EXPECT_EQ(entries.back().InitCheck(), B_OK);
}


TEST(BEntry, RelativePathsStartAtTheCurrentFolderOrTheGivenOne)
{
	test::TempFolder folder;
	folder.Write("sub/file", "");
	const BDirectory directory((folder / "sub").c_str());
	EXPECT_TRUE(BEntry(&directory, "file").Exists());
	EXPECT_TRUE(BEntry(&directory, "../sub/file").Exists());
	const fs::path before = fs::current_path();
	fs::current_path(folder.Path());
	EXPECT_TRUE(BEntry("sub/file").Exists());
	EXPECT_EQ(path_of(BEntry("new")), folder / "new");
	fs::current_path(before);
}


TEST(BStatable, TimesAndRights)
{
	test::TempFolder folder;
	const std::string file = folder.Write("file", "");
	BEntry entry(file.c_str());
	BNode node(file.c_str());
	time_t modified = 0;
	EXPECT_EQ(entry.SetModificationTime(1000000000), B_OK);
	EXPECT_EQ(node.GetModificationTime(&modified), B_OK);
	EXPECT_EQ(modified, 1000000000);
	EXPECT_EQ(node.SetModificationTime(1100000000), B_OK);
	EXPECT_EQ(entry.GetModificationTime(&modified), B_OK);
	EXPECT_EQ(modified, 1100000000);
	EXPECT_EQ(entry.SetPermissions(0640), B_OK);
	mode_t rights = 0;
	EXPECT_EQ(node.GetPermissions(&rights), B_OK);
	EXPECT_EQ(rights, 0640u);
	EXPECT_EQ(node.SetPermissions(0600), B_OK);
	EXPECT_EQ(entry.GetPermissions(&rights), B_OK);
	EXPECT_EQ(rights, 0600u);
	time_t created = 0;
	EXPECT_EQ(node.GetCreationTime(&created), B_OK);
	EXPECT_GT(created, 0);
	EXPECT_EQ(entry.GetCreationTime(nullptr), B_BAD_VALUE);
}


TEST(BStatable, LinksThemselvesAreChanged)
{
	test::TempFolder folder;
	const std::string file = folder.Write("file", "");
	fs::create_symlink("file", folder / "link");
	BEntry link((folder / "link").c_str());
	time_t before = 0;
	EXPECT_EQ(BEntry(file.c_str()).GetModificationTime(&before), B_OK);
	EXPECT_EQ(link.SetModificationTime(1000000000), B_OK);
	time_t after = 0;
	EXPECT_EQ(BEntry(file.c_str()).GetModificationTime(&after), B_OK);
	EXPECT_EQ(after, before);
	EXPECT_EQ(link.GetModificationTime(&after), B_OK);
	EXPECT_EQ(after, 1000000000);
	BNode node((folder / "link").c_str());
	EXPECT_EQ(node.SetModificationTime(1100000000), B_OK);
	EXPECT_EQ(link.GetModificationTime(&after), B_OK);
	EXPECT_EQ(after, 1100000000);
}


TEST(BStatable, NodeReferenceOpensTheDirectory)
{
	test::TempFolder folder;
	folder.MakeFolder("sub");
	const BEntry entry((folder / "sub").c_str());
	node_ref ref;
	ASSERT_EQ(entry.GetNodeRef(&ref), B_OK);
	const BDirectory directory(&ref);
	BEntry again;
	ASSERT_EQ(directory.GetEntry(&again), B_OK);
	EXPECT_TRUE(again == entry);
	EXPECT_EQ(entry.GetNodeRef(nullptr), B_BAD_VALUE);
	EXPECT_EQ(BEntry().GetNodeRef(&ref), B_NO_INIT);
	BVolume volume;
	EXPECT_EQ(entry.GetVolume(&volume), B_OK);
	EXPECT_EQ(volume.Device(), ref.device);
}
