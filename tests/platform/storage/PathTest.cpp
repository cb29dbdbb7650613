// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Directory.h>
#include <Entry.h>
#include <Path.h>
#include <TypeConstants.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/TempFolder.h"


namespace {

namespace fs = std::filesystem;


class BPathTest : public testing::Test {
protected:
	BPathTest()
		:
		fBefore(fs::current_path())
	{
		fs::current_path(fFolder.Path());
	}
	~BPathTest() override { fs::current_path(fBefore); }

	test::TempFolder fFolder;
	fs::path fBefore;
};

} // namespace


TEST_F(BPathTest, CleanAbsolutePathTouchesNoDisk)
{
	const BPath path("/no/such/folder/at all");
	EXPECT_EQ(path.InitCheck(), B_OK);
	EXPECT_STREQ(path.Path(), "/no/such/folder/at all");
	EXPECT_STREQ(path.Leaf(), "at all");
	EXPECT_STREQ(BPath("/...").Path(), "/...");
	EXPECT_STREQ(BPath("/.a/..b").Path(), "/.a/..b");
	EXPECT_STREQ(BPath("/").Path(), "/");
	// Links in it are kept.
	fs::create_directory_symlink(fFolder.Path(), fFolder / "link");
	EXPECT_EQ(BPath((fFolder / "link/x").c_str()).Path(), fFolder / "link/x");
}


TEST_F(BPathTest, LeafAloneLiesInTheCurrentFolder)
{
	EXPECT_EQ(BPath("name").Path(), fFolder / "name");
	EXPECT_EQ(BPath("./name").Path(), fFolder / "name");
	EXPECT_EQ(BPath(".").Path(), fFolder.Path());
	EXPECT_TRUE(BPath("name").IsAbsolute());
	EXPECT_EQ(BPath("no/name").InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BPath("no/name").Path(), nullptr);
}


TEST_F(BPathTest, UncleanPathIsNormalized)
{
	fFolder.MakeFolder("a/b");
	const std::string a = fFolder / "a";
	EXPECT_EQ(BPath((a + "//b").c_str()).Path(), a + "/b");
	EXPECT_EQ(BPath((a + "/b/").c_str()).Path(), a + "/b");
	EXPECT_EQ(BPath((a + "/b/../c").c_str()).Path(), a + "/c");
	EXPECT_EQ(BPath((a + "/b/..").c_str()).Path(), a);
	EXPECT_EQ(BPath((a + "/no//x").c_str()).InitCheck(), B_ENTRY_NOT_FOUND);
}


TEST_F(BPathTest, NormalizingResolvesTheFoldersButNotTheLeaf)
{
	fFolder.MakeFolder("real");
	fs::create_directory_symlink(fFolder / "real", fFolder / "link");
	fs::create_symlink("nowhere", fFolder / "real/leaf");
	EXPECT_EQ(BPath((fFolder / "link/leaf").c_str(), nullptr, true).Path(), fFolder / "real/leaf");
	EXPECT_EQ(BPath((fFolder / "link").c_str(), nullptr, true).Path(), fFolder / "link");
}


TEST_F(BPathTest, BadArgumentsLeaveNoPath)
{
	BPath path("/a");
	EXPECT_EQ(path.SetTo(static_cast<const char*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(path.Path(), nullptr);
	EXPECT_EQ(path.Leaf(), nullptr);
	EXPECT_EQ(path.InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(path.SetTo(""), B_BAD_VALUE);
	EXPECT_EQ(path.SetTo("/a", "/b"), B_BAD_VALUE);
	EXPECT_EQ(path.SetTo(static_cast<const BEntry*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(path.SetTo(static_cast<const entry_ref*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(path.SetTo(static_cast<const BDirectory*>(nullptr), "x"), B_BAD_VALUE);
	const BEntry none;
	EXPECT_EQ(path.SetTo(&none), B_NO_INIT);
	EXPECT_EQ(BPath().InitCheck(), B_NO_INIT);
	EXPECT_EQ(BPath().Path(), nullptr);
	EXPECT_FALSE(BPath().IsAbsolute());
}


TEST_F(BPathTest, LengthIsLimited)
{
	const std::string longest = "/" + std::string(1022, 'x');
	EXPECT_EQ(BPath(longest.c_str()).InitCheck(), B_OK);
	EXPECT_EQ(BPath((longest + "x").c_str()).InitCheck(), B_NAME_TOO_LONG);
	EXPECT_EQ(BPath(longest.c_str(), "x").InitCheck(), B_NAME_TOO_LONG);
}


TEST_F(BPathTest, LeafIsJoinedWithOneSlash)
{
	EXPECT_STREQ(BPath("/a/", "b").Path(), "/a/b");
	EXPECT_STREQ(BPath("/a", "b").Path(), "/a/b");
	EXPECT_STREQ(BPath("/", "b").Path(), "/b");
	EXPECT_STREQ(BPath("/a", "b/c").Path(), "/a/b/c");
	EXPECT_STREQ(BPath("/a", nullptr).Path(), "/a");
	EXPECT_STREQ(BPath("/a", "").Path(), "/a");
}


TEST_F(BPathTest, AppendUnsetsWhenItFails)
{
	BPath path("/a");
	EXPECT_EQ(path.Append("b"), B_OK);
	EXPECT_STREQ(path.Path(), "/a/b");
	EXPECT_EQ(path.Append("/c"), B_BAD_VALUE);
	EXPECT_EQ(path.Path(), nullptr);
	EXPECT_EQ(path.Append("c"), B_BAD_VALUE);
	path.SetTo(fFolder.Path().c_str());
	EXPECT_EQ(path.Append("no/../x"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(path.InitCheck(), B_ENTRY_NOT_FOUND);
}


TEST_F(BPathTest, MayBeSetToItsOwnText)
{
	BPath path("/a/b/c");
	EXPECT_EQ(path.SetTo(path.Path()), B_OK);
	EXPECT_STREQ(path.Path(), "/a/b/c");
	EXPECT_EQ(path.SetTo("/x", path.Leaf()), B_OK);
	EXPECT_STREQ(path.Path(), "/x/c");
	path = path.Path();
	EXPECT_STREQ(path.Path(), "/x/c");
	path = *&path;
	EXPECT_STREQ(path.Path(), "/x/c");
}


TEST_F(BPathTest, LeafAndParentGoByTheText)
{
	EXPECT_STREQ(BPath("/").Leaf(), "");
	BPath path("/a/b");
	EXPECT_EQ(path.GetParent(&path), B_OK);
	EXPECT_STREQ(path.Path(), "/a");
	EXPECT_EQ(path.GetParent(&path), B_OK);
	EXPECT_STREQ(path.Path(), "/");
	EXPECT_EQ(path.GetParent(&path), B_ENTRY_NOT_FOUND);
	EXPECT_STREQ(path.Path(), "/");
	EXPECT_EQ(path.GetParent(nullptr), B_BAD_VALUE);
	EXPECT_EQ(BPath().GetParent(&path), B_NO_INIT);
}


TEST_F(BPathTest, Compares)
{
	const BPath a("/a");
	const char* null = nullptr;
	EXPECT_TRUE(a == "/a" && a == BPath("/a") && a != "/b" && a != BPath("/b"));
	EXPECT_TRUE(BPath() == BPath());
	EXPECT_TRUE(a != BPath() && a != null);
	EXPECT_TRUE(BPath() == null);
}


TEST_F(BPathTest, AssigningNothingUnsets)
{
	BPath path("/a");
	path = BPath();
	EXPECT_EQ(path.InitCheck(), B_NO_INIT);
	path = "/b";
	EXPECT_STREQ(path.Path(), "/b");
	path = static_cast<const char*>(nullptr);
	EXPECT_EQ(path.Path(), nullptr);
}


TEST_F(BPathTest, FromEntriesAndDirectories)
{
	const std::string file = fFolder.Write("sub/file", "");
	const BDirectory directory((fFolder / "sub").c_str());
	EXPECT_EQ(BPath(&directory, "file").Path(), file);
	EXPECT_EQ(BPath(&directory).Path(), fFolder / "sub");
	const BEntry entry(file.c_str());
	EXPECT_EQ(BPath(&entry).Path(), file);
	entry_ref ref;
	ASSERT_EQ(entry.GetRef(&ref), B_OK);
	EXPECT_EQ(BPath(&ref).Path(), file);
	const BDirectory none;
	EXPECT_EQ(BPath(&none, "x").InitCheck(), B_BAD_VALUE);
}


TEST_F(BPathTest, SurvivesFlattening)
{
	const std::string file = fFolder.Write("file", "");
	const std::string texts[] = {file, "/"};
	for (const std::string& text : texts) {
		const BPath path(text.c_str());
		std::string buffer(static_cast<size_t>(path.FlattenedSize()), '\0');
		ASSERT_EQ(path.Flatten(buffer.data(), path.FlattenedSize()), B_OK);
		EXPECT_EQ(path.Flatten(buffer.data(), path.FlattenedSize() - 1), B_BAD_VALUE);
		BPath copy;
		EXPECT_EQ(copy.Unflatten(B_REF_TYPE, buffer.data(), path.FlattenedSize()), B_OK);
		EXPECT_TRUE(copy == path);
		EXPECT_EQ(copy.Unflatten(B_REF_TYPE, buffer.data(), path.FlattenedSize() - 1), B_BAD_VALUE);
		EXPECT_EQ(copy.Unflatten(B_REF_TYPE, buffer.data(), 3), B_BAD_VALUE);
		EXPECT_EQ(copy.Unflatten(B_STRING_TYPE, buffer.data(), 3), B_BAD_VALUE);
	}
	EXPECT_EQ(BPath().TypeCode(), static_cast<type_code>(B_REF_TYPE));
	EXPECT_FALSE(BPath().IsFixedSize());
}
