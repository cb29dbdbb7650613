// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Attributes where the file system takes none: the same through BNode, and what happens to the
// database itself.
#include <Directory.h>
#include <Entry.h>
#include <Node.h>
#include <TypeConstants.h>

#include <atomic>
#include <errno.h>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/storage/AttributeDatabase.h"
#include "platform/storage/ExtendedAttributes.h"
#include "tests/support/TempFolder.h"


namespace {

namespace fs = std::filesystem;
using hosted::AttributeDatabase;
using hosted::ExtendedAttributes;

// Set when the tests run again in a folder whose file system really takes no attributes.
constexpr const char* kRealFolder = "VINYLOH_FOLDER_WITHOUT_ATTRIBUTES";


/*!	A folder without attributes: a real one if the variable names it, else the calls to the system
	are refused.
*/
class AttributesElsewhere : public testing::Test {
protected:
	void SetUp() override
	{
		const char* real = getenv(kRealFolder);
		if (real != nullptr) {
			std::string pattern = std::string(real) + "/XXXXXX";
			fFolder = mkdtemp(pattern.data());
		} else {
			ExtendedAttributes::SetRefusal(EOPNOTSUPP);
			fFolder = fTemporary.MakeFolder("files");
		}
		fIsReal = real != nullptr;
		fDataBefore = getenv("XDG_DATA_HOME");
		setenv("XDG_DATA_HOME", fTemporary.MakeFolder("data").c_str(), 1);
		fPath = Write("file");
	}
	void TearDown() override
	{
		ExtendedAttributes::SetRefusal(0);
		setenv("XDG_DATA_HOME", fDataBefore.c_str(), 1);
		std::error_code error;
		fs::remove_all(fFolder, error);
	}

	std::string Write(const std::string& name) const
	{
		const std::string path = fFolder + "/" + name;
		fs::create_directories(fs::path(path).parent_path());
		FILE* file = fopen(path.c_str(), "w");
		if (file != nullptr)
			fclose(file);
		return path;
	}
	static ssize_t Put(const std::string& path, const std::string& value)
	{
		BNode node(path.c_str());
		return node.WriteAttr("a", B_STRING_TYPE, 0, value.data(), value.size());
	}
	// The value, or the error in words.
	static std::string Get(const std::string& path)
	{
		char buffer[64];
		const ssize_t count
			= BNode(path.c_str()).ReadAttr("a", B_STRING_TYPE, 0, buffer, sizeof(buffer));
		if (count < 0)
			return strerror(static_cast<int>(count));
		return std::string(buffer, static_cast<size_t>(count));
	}

	test::TempFolder fTemporary;
	std::string fDataBefore;
	std::string fFolder;
	std::string fPath;
	bool fIsReal = false;
};

constexpr const char* kMissing = "No such file or directory";

} // namespace


TEST_F(AttributesElsewhere, NoneAreTakenByTheFileSystem)
{
	const int result = fIsReal ? setxattr(fPath.c_str(), "user.x", "x", 1, 0) : -1;
	EXPECT_EQ(result, -1);
	RecordProperty("by", fIsReal ? "a real file system" : "refused calls");
	printf("attributes elsewhere: %s\n", fIsReal ? "a real file system" : "refused calls");
}


TEST_F(AttributesElsewhere, ValuesComeBack)
{
	EXPECT_EQ(Get(fPath), kMissing);
	EXPECT_EQ(Put(fPath, "value"), 5);
	EXPECT_EQ(Get(fPath), "value");
	EXPECT_EQ(Put(fPath, "new"), 3);
	EXPECT_EQ(Get(fPath), "new");
	attr_info info = {};
	BNode node(fPath.c_str());
	EXPECT_EQ(node.GetAttrInfo("a", &info), B_OK);
	EXPECT_EQ(info.type, static_cast<uint32>(B_STRING_TYPE));
	EXPECT_EQ(info.size, 3);
	char name[B_ATTR_NAME_LENGTH];
	EXPECT_EQ(node.GetNextAttrName(name), B_OK);
	EXPECT_STREQ(name, "a");
	EXPECT_EQ(node.GetNextAttrName(name), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(node.RemoveAttr("a"), B_OK);
	EXPECT_EQ(node.RemoveAttr("a"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(Get(fPath), kMissing);
}


TEST_F(AttributesElsewhere, BytesAreKeptAsTheyAre)
{
	const std::string bytes("\0\xff'\"\0", 5);
	EXPECT_EQ(Put(fPath, bytes), 5);
	EXPECT_EQ(Get(fPath), bytes);
	const std::string odd = Write("odd \xff'name%_");
	EXPECT_EQ(Put(odd, "odd"), 3);
	EXPECT_EQ(Get(odd), "odd");
	EXPECT_EQ(Get(fPath), bytes);
	EXPECT_EQ(BNode(odd.c_str()).WriteAttr("a", B_RAW_TYPE, 5, "x", 1), 1);
	EXPECT_EQ(Get(odd), std::string("odd\0\0x", 6));
}


TEST_F(AttributesElsewhere, FollowARename)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	BEntry entry(fPath.c_str());
	ASSERT_EQ(entry.Rename("renamed"), B_OK);
	EXPECT_EQ(Get(fFolder + "/renamed"), "value");
	// A new file at the old place has none.
	Write("file");
	EXPECT_EQ(Get(fPath), kMissing);
}


TEST_F(AttributesElsewhere, FollowTheFoldersRename)
{
	const std::string inside = Write("sub/deep/file");
	const std::string beside = Write("sub0/file");
	ASSERT_EQ(Put(inside, "inside"), 6);
	ASSERT_EQ(Put(beside, "beside"), 6);
	BEntry entry((fFolder + "/sub").c_str());
	ASSERT_EQ(entry.Rename("moved"), B_OK);
	EXPECT_EQ(Get(fFolder + "/moved/deep/file"), "inside");
	EXPECT_EQ(Get(beside), "beside");
}


TEST_F(AttributesElsewhere, RenamedOverAnotherReplaceItsOwn)
{
	const std::string other = Write("other");
	ASSERT_EQ(Put(fPath, "kept"), 4);
	ASSERT_EQ(Put(other, "lost"), 4);
	BEntry entry(fPath.c_str());
	ASSERT_EQ(entry.Rename("other", true), B_OK);
	EXPECT_EQ(Get(other), "kept");
}


TEST_F(AttributesElsewhere, AreGoneWithTheFile)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	BEntry entry(fPath.c_str());
	ASSERT_EQ(entry.Remove(), B_OK);
	Write("file");
	EXPECT_EQ(Get(fPath), kMissing);
}


TEST_F(AttributesElsewhere, AreNotInheritedByWhatReplacesTheFile)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	// By another program: the new file exists before the old one goes, so it is another node.
	const std::string fresh = Write("fresh");
	fs::rename(fresh, fPath);
	EXPECT_EQ(Get(fPath), kMissing);
	EXPECT_EQ(Put(fPath, "own"), 3);
	EXPECT_EQ(Get(fPath), "own");
}


TEST_F(AttributesElsewhere, FollowAnotherProgramsRenameWhereBirthsAreKnown)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	struct statx status;
	ASSERT_EQ(statx(AT_FDCWD, fPath.c_str(), 0, STATX_BTIME, &status), 0);
	fs::rename(fPath, fFolder + "/renamed");
	const bool isKnown = (status.stx_mask & STATX_BTIME) != 0;
	EXPECT_EQ(Get(fFolder + "/renamed"), isKnown ? "value" : kMissing);
	if (isKnown) {
		// A write there brings the row up to date.
		EXPECT_EQ(Put(fFolder + "/renamed", "new"), 3);
		Write("file");
		EXPECT_EQ(Get(fPath), kMissing);
		EXPECT_EQ(Get(fFolder + "/renamed"), "new");
	}
}


TEST_F(AttributesElsewhere, DamagedDatabaseIsPutAside)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	const std::string database = AttributeDatabase::DefaultPath();
	fs::remove(database + "-wal");
	fs::remove(database + "-shm");
	fs::remove(database);
	FILE* file = fopen(database.c_str(), "w");
	ASSERT_NE(file, nullptr);
	for (int index = 0; index < 5000; index++)
		fputs("rubbish ", file);
	fclose(file);
	EXPECT_EQ(Get(fPath), kMissing);
	EXPECT_EQ(Put(fPath, "again"), 5);
	EXPECT_EQ(Get(fPath), "again");
	EXPECT_TRUE(fs::exists(database + ".damaged"));
}


TEST_F(AttributesElsewhere, ForeignTablesArePutAside)
{
	const std::string database = AttributeDatabase::DefaultPath();
	fs::create_directories(fs::path(database).parent_path());
	sqlite3* handle = nullptr;
	ASSERT_EQ(sqlite3_open(database.c_str(), &handle), SQLITE_OK);
	sqlite3_exec(handle, "CREATE TABLE node (x); CREATE TABLE attribute (y);", nullptr, nullptr,
		nullptr);
	sqlite3_close(handle);
	EXPECT_EQ(Put(fPath, "value"), 5);
	EXPECT_EQ(Get(fPath), "value");
	EXPECT_TRUE(fs::exists(database + ".damaged"));
}


TEST_F(AttributesElsewhere, EmptyDatabaseFileIsFilled)
{
	const std::string database = AttributeDatabase::DefaultPath();
	fs::create_directories(fs::path(database).parent_path());
	fclose(fopen(database.c_str(), "w"));
	EXPECT_EQ(Get(fPath), kMissing);
	EXPECT_EQ(Put(fPath, "value"), 5);
	EXPECT_EQ(Get(fPath), "value");
}


TEST_F(AttributesElsewhere, RemovedDatabaseIsMadeAnew)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	fs::remove_all(fs::path(AttributeDatabase::DefaultPath()).parent_path());
	EXPECT_EQ(Get(fPath), kMissing);
	EXPECT_EQ(Put(fPath, "again"), 5);
	EXPECT_EQ(Get(fPath), "again");
}


TEST_F(AttributesElsewhere, LockedDatabaseIsBusyForWriters)
{
	ASSERT_EQ(Put(fPath, "value"), 5);
	sqlite3* handle = nullptr;
	ASSERT_EQ(sqlite3_open(AttributeDatabase::DefaultPath().c_str(), &handle), SQLITE_OK);
	ASSERT_EQ(sqlite3_exec(handle, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
	EXPECT_EQ(Put(fPath, "new"), B_BUSY);
	EXPECT_EQ(Get(fPath), "value");
	sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
	sqlite3_close(handle);
	EXPECT_EQ(Put(fPath, "new"), 3);
}


TEST_F(AttributesElsewhere, NoPlaceForADatabase)
{
	setenv("XDG_DATA_HOME", "/proc/no/such/place", 1);
	EXPECT_EQ(Put(fPath, "value"), B_NOT_SUPPORTED);
	EXPECT_EQ(Get(fPath), kMissing);
	EXPECT_EQ(BNode(fPath.c_str()).RemoveAttr("a"), B_ENTRY_NOT_FOUND);
	char name[B_ATTR_NAME_LENGTH];
	EXPECT_EQ(BNode(fPath.c_str()).GetNextAttrName(name), B_ENTRY_NOT_FOUND);
}


TEST_F(AttributesElsewhere, ManyThreadsAtOnce)
{
	std::atomic<int> failures{0};
	std::vector<std::thread> threads;
	for (int index = 0; index < 4; index++) {
		threads.emplace_back([&, index] {
			const std::string path = Write("thread" + std::to_string(index));
			for (int turn = 0; turn < 50; turn++) {
				const std::string value = std::to_string(turn);
				if (Put(path, value) != static_cast<ssize_t>(value.size()) || Get(path) != value)
					failures++;
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	EXPECT_EQ(failures, 0);
}


TEST_F(AttributesElsewhere, FullFileSystemSendsThemElsewhere)
{
	if (fIsReal)
		GTEST_SKIP() << "takes none at all";
	ExtendedAttributes::SetRefusal(0);
	ASSERT_EQ(Put(fPath, "first"), 5);
	ExtendedAttributes::SetRefusal(ENOSPC);
	ASSERT_EQ(Put(fPath, "second"), 6);
	EXPECT_EQ(Get(fPath), "second");
	// Room again: the value goes home, and the copy goes.
	ExtendedAttributes::SetRefusal(0);
	ASSERT_EQ(Put(fPath, "third"), 5);
	EXPECT_EQ(Get(fPath), "third");
	ExtendedAttributes::SetRefusal(EOPNOTSUPP);
	EXPECT_EQ(Get(fPath), kMissing);
}


TEST_F(AttributesElsewhere, OtherErrorsAreToldAndStoreNothing)
{
	if (fIsReal)
		GTEST_SKIP() << "takes none at all";
	ExtendedAttributes::SetRefusal(EROFS);
	EXPECT_EQ(Put(fPath, "value"), B_READ_ONLY_DEVICE);
	ExtendedAttributes::SetRefusal(EACCES);
	EXPECT_EQ(Put(fPath, "value"), B_PERMISSION_DENIED);
	ExtendedAttributes::SetRefusal(EPERM);
	EXPECT_EQ(Put(fPath, "value"), B_NOT_ALLOWED);
	EXPECT_FALSE(AttributeDatabase::Default().Exists());
}


TEST(ExtendedAttributeNames, SlashAndPercentAreWrittenOtherwise)
{
	EXPECT_EQ(ExtendedAttributes::EncodeName("BEOS:TYPE"), "user.haiku.BEOS:TYPE");
	EXPECT_EQ(ExtendedAttributes::EncodeName("a/b%"), "user.haiku.a%\\b%%");
	std::string name;
	EXPECT_TRUE(ExtendedAttributes::DecodeName("user.haiku.a%\\b%%", &name));
	EXPECT_EQ(name, "a/b%");
	EXPECT_FALSE(ExtendedAttributes::DecodeName("user.other", &name));
	EXPECT_FALSE(ExtendedAttributes::DecodeName("user.haiku.", &name));
}


// Runs the tests above once more on a file system in memory that has no attributes, if this user
// may mount one in a name space of its own.
TEST(AttributesElsewhereForReal, OnAMountedFileSystem)
{
	if (getenv(kRealFolder) != nullptr)
		GTEST_SKIP() << "is running there";
	test::TempFolder folder;
	const char* const kSpaces[] = {"--mount", "--user --map-root-user --mount"};
	for (const char* space : kSpaces) {
		const std::string mount = std::string("unshare ") + space
			+ " sh -c 'mount -t ramfs none \"$0\"' " + folder.Path() + " 2>/dev/null";
		if (system(mount.c_str()) != 0)
			continue;
		const std::string program = fs::read_symlink("/proc/self/exe");
		const std::string command = std::string(kRealFolder) + "=" + folder.Path() + " unshare "
			+ space + " sh -c 'mount -t ramfs none \"$0\" && exec \"$@\"' " + folder.Path() + " "
			+ program + " --gtest_filter='AttributesElsewhere.*' --gtest_brief=1 --gtest_output=";
		printf("mounted by: unshare %s\n", space);
		EXPECT_EQ(system(command.c_str()), 0);
		return;
	}
	GTEST_SKIP() << "no file system can be mounted here; the calls are refused instead";
}
