// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BNode: opening, its attributes as Haiku's programs see them, and how they lie on the disk.
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <Node.h>
#include <String.h>
#include <TypeConstants.h>

#include <errno.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string.h>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "tests/support/TempFolder.h"
#include "tests/support/Unprivileged.h"


namespace {

namespace fs = std::filesystem;

static_assert(sizeof(attr_info) == 16);


bool
has_attributes(const std::string& path)
{
	const bool has = setxattr(path.c_str(), "user.probe", "x", 1, 0) == 0;
	if (has)
		removexattr(path.c_str(), "user.probe");
	return has;
}


class BNodeTest : public testing::Test {
protected:
	BNodeTest()
		:
		fPath(fFolder.Write("file", "contents")),
		fNode(fPath.c_str())
	{
	}

	test::TempFolder fFolder;
	std::string fPath;
	BNode fNode;
};

} // namespace


TEST_F(BNodeTest, OpensFilesFoldersAndLinks)
{
	fs::create_symlink("nowhere", fFolder / "link");
	EXPECT_EQ(fNode.InitCheck(), B_OK);
	EXPECT_TRUE(fNode.IsFile());
	EXPECT_TRUE(BNode(fFolder.Path().c_str()).IsDirectory());
	EXPECT_TRUE(BNode((fFolder / "link").c_str()).IsSymLink());
	EXPECT_EQ(BNode((fFolder / "no").c_str()).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BNode(static_cast<const char*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BNode(static_cast<const BEntry*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BNode().InitCheck(), B_NO_INIT);
}


TEST_F(BNodeTest, CopiesStayOpen)
{
	BNode copy(fNode);
	fNode.Unset();
	EXPECT_TRUE(copy.IsFile());
	EXPECT_EQ(fNode.InitCheck(), B_NO_INIT);
	fNode = copy;
	EXPECT_TRUE(fNode == copy);
	const int fd = copy.Dup();
	EXPECT_GE(fd, 0);
	close(fd);
	EXPECT_EQ(BNode().Dup(), B_FILE_ERROR);
	EXPECT_TRUE(BNode() == BNode());
	EXPECT_TRUE(fNode != BNode());
	EXPECT_EQ(BNode(BNode("/no/such/file")).InitCheck(), B_ENTRY_NOT_FOUND);
}


TEST_F(BNodeTest, LockKeepsOtherLockersOut)
{
	BNode other(fPath.c_str());
	EXPECT_EQ(fNode.Lock(), B_OK);
	EXPECT_EQ(other.Lock(), B_BUSY);
	EXPECT_EQ(fNode.Unlock(), B_OK);
	EXPECT_EQ(other.Lock(), B_OK);
	EXPECT_EQ(BNode().Lock(), B_FILE_ERROR);
	EXPECT_EQ(fNode.Sync(), B_OK);
}


TEST_F(BNodeTest, UninitializedAnswersFileError)
{
	BNode node("/no/such/file");
	BString string("kept");
	attr_info info;
	char name[B_ATTR_NAME_LENGTH];
	int32 value = 0;
	EXPECT_EQ(node.ReadAttr("a", B_INT32_TYPE, 0, &value, 4), B_FILE_ERROR);
	EXPECT_EQ(node.WriteAttr("a", B_INT32_TYPE, 0, &value, 4), B_FILE_ERROR);
	EXPECT_EQ(node.RemoveAttr("a"), B_FILE_ERROR);
	EXPECT_EQ(node.RenameAttr("a", "b"), B_FILE_ERROR);
	EXPECT_EQ(node.GetAttrInfo("a", &info), B_FILE_ERROR);
	EXPECT_EQ(node.GetNextAttrName(name), B_FILE_ERROR);
	EXPECT_EQ(node.RewindAttrs(), B_FILE_ERROR);
	EXPECT_EQ(node.WriteAttrString("a", &string), B_FILE_ERROR);
	EXPECT_EQ(node.ReadAttrString("a", &string), B_FILE_ERROR);
	EXPECT_STREQ(string.String(), "kept");
}


TEST_F(BNodeTest, ShortReadLeavesTheRest)
{
	char buffer[16] = "0123456789";
	EXPECT_EQ(fNode.WriteAttr("text", B_STRING_TYPE, 0, "hello", 5), 5);
	attr_info info = {};
	EXPECT_EQ(fNode.GetAttrInfo("text", &info), B_OK);
	EXPECT_EQ(info.size, 5);
	EXPECT_EQ(info.type, static_cast<uint32>(B_STRING_TYPE));
	EXPECT_EQ(fNode.ReadAttr("text", B_STRING_TYPE, 0, buffer, sizeof(buffer)), 5);
	EXPECT_STREQ(buffer, "hello56789");
	EXPECT_EQ(fNode.ReadAttr("text", B_STRING_TYPE, 3, buffer, 10), 2);
	EXPECT_EQ(fNode.ReadAttr("text", B_STRING_TYPE, 5, buffer, 10), 0);
	EXPECT_EQ(fNode.ReadAttr("text", B_STRING_TYPE, 500, buffer, 10), 0);
	EXPECT_EQ(fNode.ReadAttr("text", B_STRING_TYPE, 0, buffer, 2), 2);
}


TEST_F(BNodeTest, FourBytesLeaveTheUpperHalfOfALong)
{
	const int32 five = 5;
	ASSERT_EQ(fNode.WriteAttr("n", B_INT32_TYPE, 0, &five, sizeof(five)), 4);
	long value = 0x7700000000;
	EXPECT_EQ(fNode.ReadAttr("n", B_INT32_TYPE, 0, &value, sizeof(int32)), 4);
	EXPECT_EQ(value, 0x7700000005);
}


TEST_F(BNodeTest, TypeIsIgnoredWhenReading)
{
	const int32 five = 5;
	fNode.WriteAttr("n", B_INT32_TYPE, 0, &five, sizeof(five));
	char bytes[8] = {};
	EXPECT_EQ(fNode.ReadAttr("n", B_STRING_TYPE, 0, bytes, sizeof(bytes)), 4);
	EXPECT_EQ(bytes[0], 5);
}


TEST_F(BNodeTest, BadArguments)
{
	char buffer[4] = {};
	attr_info info;
	EXPECT_EQ(fNode.ReadAttr("missing", B_STRING_TYPE, 0, buffer, 4), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(fNode.ReadAttr(nullptr, B_STRING_TYPE, 0, buffer, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.ReadAttr("", B_STRING_TYPE, 0, buffer, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, 0, nullptr, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, -1, buffer, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr(nullptr, B_STRING_TYPE, 0, buffer, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr("", B_STRING_TYPE, 0, buffer, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr("a", B_STRING_TYPE, 0, nullptr, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr("a", B_STRING_TYPE, -1, buffer, 4), B_BAD_VALUE);
	EXPECT_EQ(fNode.GetAttrInfo("missing", &info), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(fNode.GetAttrInfo("a", nullptr), B_BAD_VALUE);
	EXPECT_EQ(fNode.RemoveAttr("missing"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(fNode.RemoveAttr(nullptr), B_BAD_VALUE);
	EXPECT_EQ(fNode.GetNextAttrName(nullptr), B_BAD_VALUE);
	EXPECT_EQ(fNode.RenameAttr("a", "b"), B_NOT_SUPPORTED);
	const std::string tooLong(256, 'x');
	EXPECT_EQ(fNode.WriteAttr(tooLong.c_str(), B_STRING_TYPE, 0, buffer, 4), B_NAME_TOO_LONG);
	EXPECT_EQ(fNode.ReadAttr(tooLong.c_str(), B_STRING_TYPE, 0, buffer, 4), B_NAME_TOO_LONG);
}


TEST_F(BNodeTest, LongestNameIsKept)
{
	const std::string name(255, 'x');
	char buffer[4] = {};
	EXPECT_EQ(fNode.WriteAttr(name.c_str(), B_STRING_TYPE, 0, "abc", 4), 4);
	EXPECT_EQ(fNode.ReadAttr(name.c_str(), B_STRING_TYPE, 0, buffer, 4), 4);
	EXPECT_STREQ(buffer, "abc");
	EXPECT_EQ(fNode.RemoveAttr(name.c_str()), B_OK);
	EXPECT_EQ(fNode.ReadAttr(name.c_str(), B_STRING_TYPE, 0, buffer, 4), B_ENTRY_NOT_FOUND);
}


TEST_F(BNodeTest, WritingReplacesTheValue)
{
	fNode.WriteAttr("a", B_STRING_TYPE, 0, "long text", 10);
	EXPECT_EQ(fNode.WriteAttr("a", B_RAW_TYPE, 0, "x", 2), 2);
	attr_info info = {};
	EXPECT_EQ(fNode.GetAttrInfo("a", &info), B_OK);
	EXPECT_EQ(info.size, 2);
	EXPECT_EQ(info.type, static_cast<uint32>(B_RAW_TYPE));
}


TEST_F(BNodeTest, WritingAtAnOffsetEndsThere)
{
	char buffer[16] = {};
	fNode.WriteAttr("a", B_STRING_TYPE, 0, "0123456789", 10);
	EXPECT_EQ(fNode.WriteAttr("a", B_STRING_TYPE, 2, "xy", 2), 2);
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, 0, buffer, sizeof(buffer)), 4);
	EXPECT_EQ(std::string(buffer, 4), "01xy");
	EXPECT_EQ(fNode.WriteAttr("a", B_STRING_TYPE, 6, "z", 1), 1);
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, 0, buffer, sizeof(buffer)), 7);
	EXPECT_EQ(std::string(buffer, 7), std::string("01xy\0\0z", 7));
}


TEST_F(BNodeTest, NothingIsWrittenForNothing)
{
	char buffer[4];
	EXPECT_EQ(fNode.WriteAttr("a", B_STRING_TYPE, 0, "", 0), 0);
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, 0, buffer, 4), B_ENTRY_NOT_FOUND);
	fNode.WriteAttr("a", B_STRING_TYPE, 0, "abc", 3);
	EXPECT_EQ(fNode.WriteAttr("a", B_STRING_TYPE, 0, "", 0), 0);
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, 0, buffer, 4), 0);
}


TEST_F(BNodeTest, ValueIsLimited)
{
	const std::string largest(40960, 'x');
	std::string read(50000, '\0');
	EXPECT_EQ(fNode.WriteAttr("a", B_RAW_TYPE, 0, largest.data(), 40961), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr("a", B_RAW_TYPE, 1, largest.data(), 40960), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr("a", B_RAW_TYPE, INT64_MAX, "x", 1), B_BAD_VALUE);
	EXPECT_EQ(fNode.WriteAttr("a", B_RAW_TYPE, 0, largest.data(), 40960), 40960);
	EXPECT_EQ(fNode.ReadAttr("a", B_RAW_TYPE, 0, read.data(), read.size()), 40960);
	EXPECT_EQ(read.substr(0, 40960), largest);
	// A small value again, wherever the large one went.
	EXPECT_EQ(fNode.WriteAttr("a", B_RAW_TYPE, 0, "small", 5), 5);
	EXPECT_EQ(fNode.ReadAttr("a", B_RAW_TYPE, 0, read.data(), read.size()), 5);
	EXPECT_EQ(fNode.RemoveAttr("a"), B_OK);
	EXPECT_EQ(fNode.ReadAttr("a", B_RAW_TYPE, 0, read.data(), 5), B_ENTRY_NOT_FOUND);
}


TEST_F(BNodeTest, Strings)
{
	BString string("text");
	EXPECT_EQ(fNode.WriteAttrString("s", &string), B_OK);
	attr_info info = {};
	fNode.GetAttrInfo("s", &info);
	EXPECT_EQ(info.size, 5);
	EXPECT_EQ(info.type, static_cast<uint32>(B_STRING_TYPE));
	BString read("old");
	EXPECT_EQ(fNode.ReadAttrString("s", &read), B_OK);
	EXPECT_STREQ(read.String(), "text");
	EXPECT_EQ(fNode.ReadAttrString("missing", &read), B_ENTRY_NOT_FOUND);
	EXPECT_STREQ(read.String(), "text");
	fNode.WriteAttr("s", B_INT32_TYPE, 0, "ab\0cd", 5);
	EXPECT_EQ(fNode.ReadAttrString("s", &read), B_OK);
	EXPECT_STREQ(read.String(), "ab");
	fNode.WriteAttr("s", B_STRING_TYPE, 0, "open", 4);
	EXPECT_EQ(fNode.ReadAttrString("s", &read), B_OK);
	EXPECT_STREQ(read.String(), "open");
	EXPECT_EQ(fNode.WriteAttrString("s", nullptr), B_BAD_VALUE);
	EXPECT_EQ(fNode.ReadAttrString("s", nullptr), B_BAD_VALUE);
}


TEST_F(BNodeTest, NamesAreListed)
{
	fNode.WriteAttr("one", B_STRING_TYPE, 0, "1", 1);
	fNode.WriteAttr("Audio:Track", B_STRING_TYPE, 0, "2", 1);
	fNode.WriteAttr("a/b%c", B_STRING_TYPE, 0, "3", 1);
	if (has_attributes(fPath))
		setxattr(fPath.c_str(), "user.foreign", "x", 1, 0);
	std::set<std::string> names;
	char name[B_ATTR_NAME_LENGTH];
	while (fNode.GetNextAttrName(name) == B_OK)
		names.insert(name);
	EXPECT_EQ(names, (std::set<std::string>{"one", "Audio:Track", "a/b%c"}));
	EXPECT_EQ(fNode.GetNextAttrName(name), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(fNode.RewindAttrs(), B_OK);
	EXPECT_EQ(fNode.GetNextAttrName(name), B_OK);
}


TEST_F(BNodeTest, LiesOnTheDiskAsHaikusToolsKeepIt)
{
	if (!has_attributes(fPath))
		GTEST_SKIP() << "a file system without attributes";
	const int32 five = 5;
	ASSERT_EQ(fNode.WriteAttr("Audio:Track", B_INT32_TYPE, 0, &five, sizeof(five)), 4);
	char raw[32];
	ASSERT_EQ(getxattr(fPath.c_str(), "user.haiku.Audio:Track", raw, sizeof(raw)), 8);
	EXPECT_EQ(memcmp(raw, "\x47\x4e\x4f\x4c\x05\x00\x00\x00", 8), 0);
	ASSERT_EQ(fNode.WriteAttr("a/b%", B_STRING_TYPE, 0, "x", 1), 1);
	ASSERT_EQ(getxattr(fPath.c_str(), "user.haiku.a%\\b%%", raw, sizeof(raw)), 5);
	EXPECT_EQ(memcmp(raw, "RTSCx", 5), 0);
}


TEST_F(BNodeTest, ReadsWhatOthersStored)
{
	if (!has_attributes(fPath))
		GTEST_SKIP() << "a file system without attributes";
	char buffer[16] = {};
	ASSERT_EQ(setxattr(fPath.c_str(), "user.haiku.x", "RTSChi", 7, 0), 0);
	EXPECT_EQ(fNode.ReadAttr("x", B_STRING_TYPE, 0, buffer, sizeof(buffer)), 3);
	EXPECT_STREQ(buffer, "hi");
	ASSERT_EQ(setxattr(fPath.c_str(), "user.haiku.x", "RTSC", 4, 0), 0);
	EXPECT_EQ(fNode.ReadAttr("x", B_STRING_TYPE, 0, buffer, sizeof(buffer)), 0);
	// Too short to have a type.
	ASSERT_EQ(setxattr(fPath.c_str(), "user.haiku.x", "RTS", 3, 0), 0);
	EXPECT_EQ(fNode.ReadAttr("x", B_STRING_TYPE, 0, buffer, sizeof(buffer)), B_BAD_DATA);
	attr_info info;
	EXPECT_EQ(fNode.GetAttrInfo("x", &info), B_BAD_DATA);
	EXPECT_EQ(fNode.WriteAttr("x", B_STRING_TYPE, 0, "new", 4), 4);
	EXPECT_EQ(fNode.ReadAttr("x", B_STRING_TYPE, 0, buffer, sizeof(buffer)), 4);
}


TEST_F(BNodeTest, RightsAreTheFilesNotTheOpenModes)
{
	BFile file(fPath.c_str(), B_READ_ONLY);
	EXPECT_EQ(file.WriteAttr("a", B_STRING_TYPE, 0, "x", 1), 1);
	fs::permissions(fFolder.Path(), fs::perms(0755));
	fs::permissions(fPath, fs::perms(0444));
	test::Unprivileged user;
	ASSERT_TRUE(user.IsDone());
	BNode node(fPath.c_str());
	ASSERT_EQ(node.InitCheck(), B_OK);
	EXPECT_EQ(node.WriteAttr("a", B_STRING_TYPE, 0, "y", 1), B_PERMISSION_DENIED);
	EXPECT_EQ(node.RemoveAttr("a"), B_PERMISSION_DENIED);
	char c = 0;
	EXPECT_EQ(node.ReadAttr("a", B_STRING_TYPE, 0, &c, 1), 1);
	EXPECT_EQ(c, 'x');
}


TEST_F(BNodeTest, ModificationTimeStays)
{
	ASSERT_EQ(fNode.SetModificationTime(1000000000), B_OK);
	fNode.WriteAttr("a", B_STRING_TYPE, 0, "x", 1);
	time_t modified = 0;
	EXPECT_EQ(fNode.GetModificationTime(&modified), B_OK);
	EXPECT_EQ(modified, 1000000000);
}


TEST_F(BNodeTest, LinkHasAttributesOfItsOwn)
{
	fs::create_symlink("file", fFolder / "link");
	fNode.WriteAttr("a", B_STRING_TYPE, 0, "file", 5);
	BNode link((fFolder / "link").c_str());
	char buffer[8] = {};
	EXPECT_EQ(link.ReadAttr("a", B_STRING_TYPE, 0, buffer, 8), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(link.WriteAttr("a", B_STRING_TYPE, 0, "link", 5), 5);
	EXPECT_EQ(link.ReadAttr("a", B_STRING_TYPE, 0, buffer, 8), 5);
	EXPECT_STREQ(buffer, "link");
	EXPECT_EQ(fNode.ReadAttr("a", B_STRING_TYPE, 0, buffer, 8), 5);
	EXPECT_STREQ(buffer, "file");
}


TEST_F(BNodeTest, FoldersHaveAttributes)
{
	BNode folder(fFolder.Path().c_str());
	EXPECT_EQ(folder.WriteAttr("a", B_STRING_TYPE, 0, "x", 1), 1);
	char c;
	EXPECT_EQ(BDirectory(fFolder.Path().c_str()).ReadAttr("a", B_STRING_TYPE, 0, &c, 1), 1);
}


TEST_F(BNodeTest, RemovedFileStillAnswersItsOwn)
{
	fNode.WriteAttr("a", B_STRING_TYPE, 0, "x", 1);
	fs::remove(fPath);
	char c;
	EXPECT_EQ(fNode.ReadAttr("missing", B_STRING_TYPE, 0, &c, 1), B_ENTRY_NOT_FOUND);
	EXPECT_TRUE(fNode.IsFile());
}


TEST_F(BNodeTest, StoredTypeWinsOverAComputedOne)
{
	const std::string song = fFolder.Write("song.mp3", "");
	BNode node(song.c_str());
	char type[B_MIME_TYPE_LENGTH] = {};
	EXPECT_EQ(node.ReadAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, type, sizeof(type)), 11);
	EXPECT_STREQ(type, "audio/mpeg");
	attr_info info = {};
	EXPECT_EQ(node.GetAttrInfo("BEOS:TYPE", &info), B_OK);
	EXPECT_EQ(info.type, static_cast<uint32>(B_MIME_STRING_TYPE));
	// What nobody stored cannot be removed, nor is it listed.
	EXPECT_EQ(node.RemoveAttr("BEOS:TYPE"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(node.GetNextAttrName(type), B_ENTRY_NOT_FOUND);
	node.WriteAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, "text/plain", 11);
	EXPECT_EQ(node.ReadAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, type, sizeof(type)), 11);
	EXPECT_STREQ(type, "text/plain");
	EXPECT_EQ(node.RemoveAttr("BEOS:TYPE"), B_OK);
	EXPECT_EQ(node.ReadAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, type, sizeof(type)), 11);
	EXPECT_STREQ(type, "audio/mpeg");
}


TEST_F(BNodeTest, CallsWithDescriptorsSetErrno)
{
	BFile file(fPath.c_str(), B_READ_WRITE);
	const int fd = file.Dup();
	const int32 five = 5;
	int32 value = 0;
	attr_info info = {};
	EXPECT_EQ(fs_write_attr(fd, "n", B_INT32_TYPE, 0, &five, 4), 4);
	EXPECT_EQ(fs_read_attr(fd, "n", B_INT32_TYPE, 0, &value, 4), 4);
	EXPECT_EQ(value, 5);
	EXPECT_EQ(fs_stat_attr(fd, "n", &info), 0);
	EXPECT_EQ(info.size, 4);
	EXPECT_EQ(fs_remove_attr(fd, "n"), 0);
	EXPECT_EQ(fs_read_attr(fd, "n", B_INT32_TYPE, 0, &value, 4), -1);
	EXPECT_EQ(errno, B_ENTRY_NOT_FOUND);
	close(fd);
	EXPECT_EQ(fs_stat_attr(-1, "n", &info), -1);
	EXPECT_EQ(errno, B_FILE_ERROR);
}
