// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <NodeInfo.h>

#include <set>
#include <string.h>
#include <string>
#include <unistd.h>

#include <Bitmap.h>
#include <Entry.h>
#include <Node.h>
#include <TypeConstants.h>

#include <gtest/gtest.h>

#include "platform/screen/DisplayThread.h"
#include "tests/support/TempFolder.h"

static_assert(B_LARGE_ICON == 32 && B_MINI_ICON == 16 && B_OPEN == 0);

using test::TempFolder;


namespace {

std::string
type_of(const std::string& path)
{
	BNode node(path.c_str());
	BNodeInfo info(&node);
	char type[B_MIME_TYPE_LENGTH] = "";
	const status_t status = info.GetType(type);
	return status == B_OK ? type : "error " + std::to_string(status);
}


// How many different values the pixels of an icon have.
size_t
count_colors(const BBitmap& bitmap)
{
	const uint32* const pixels = static_cast<const uint32*>(bitmap.Bits());
	return std::set<uint32>(pixels, pixels + bitmap.BitsLength() / 4).size();
}

} // namespace


TEST(BNodeInfo, NeedsANode)
{
	BNodeInfo info;
	char type[B_MIME_TYPE_LENGTH];
	EXPECT_EQ(info.InitCheck(), B_NO_INIT);
	EXPECT_EQ(info.SetTo(nullptr), B_BAD_VALUE);
	BNode missing("/no/such/file");
	EXPECT_EQ(info.SetTo(&missing), B_BAD_VALUE);
	EXPECT_EQ(info.GetType(type), B_NO_INIT);
	EXPECT_EQ(info.SetType("a/b"), B_NO_INIT);
	EXPECT_EQ(info.GetPreferredApp(type), B_NO_INIT);
	EXPECT_EQ(info.GetTrackerIcon(nullptr), B_NO_INIT);
}


TEST(BNodeInfo, FilesAnswerTheirTypeWithoutStoringIt)
{
	const TempFolder folder;
	EXPECT_EQ(type_of(folder.Write("a.mp3", "")), "audio/mpeg");
	EXPECT_EQ(type_of(folder.Write("a.m3u", "")), "text/x-playlist");
	EXPECT_EQ(type_of(folder.Write("a.asf", "")), "video/x-asf");
	EXPECT_EQ(type_of(folder.Path()), "application/x-vnd.Be-directory");
}


TEST(BNodeInfo, StoredTypeGoesBeforeTheComputedOne)
{
	const TempFolder folder;
	const std::string path = folder.Write("a.mp3", "");
	BNode node(path.c_str());
	BNodeInfo info(&node);
	ASSERT_EQ(info.SetType("audio/x-mine"), B_OK);
	EXPECT_EQ(type_of(path), "audio/x-mine");
	char stored[64] = "";
	EXPECT_EQ(node.ReadAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, stored, sizeof(stored)),
		ssize_t(strlen("audio/x-mine") + 1));
	ASSERT_EQ(info.SetType(nullptr), B_OK);
	EXPECT_EQ(type_of(path), "audio/mpeg");
}


TEST(BNodeInfo, ChecksWhatIsStored)
{
	const TempFolder folder;
	BNode node(folder.Write("a.mp3", "").c_str());
	BNodeInfo info(&node);
	char type[B_MIME_TYPE_LENGTH] = "kept";
	EXPECT_EQ(info.SetType(std::string(240, 'a').c_str()), B_BAD_VALUE);
	EXPECT_EQ(info.SetType(std::string(239, 'a').c_str()), B_OK);
	EXPECT_EQ(info.GetType(type), B_OK);
	EXPECT_EQ(strlen(type), 239u);
	EXPECT_EQ(info.GetType(nullptr), B_BAD_VALUE);

	ASSERT_EQ(node.WriteAttr("BEOS:TYPE", B_STRING_TYPE, 0, "a/b", 4), 4);
	EXPECT_EQ(info.GetType(type), B_BAD_TYPE);
	const std::string text(300, 'a');
	ASSERT_EQ(node.WriteAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, text.data(), text.size()), 300);
	EXPECT_EQ(info.GetType(type), B_BAD_DATA);
	ASSERT_EQ(node.WriteAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, text.data(), 240), 240);
	EXPECT_EQ(info.GetType(type), B_OK);
	EXPECT_EQ(strlen(type), 239u);
}


TEST(BNodeInfo, PreferredAppIsAbsentUntilSet)
{
	const TempFolder folder;
	BNode node(folder.Write("a.mp3", "").c_str());
	BNodeInfo info(&node);
	char signature[B_MIME_TYPE_LENGTH] = "kept";
	EXPECT_EQ(info.GetPreferredApp(signature), B_ENTRY_NOT_FOUND);
	EXPECT_STREQ(signature, "kept");
	ASSERT_EQ(info.SetPreferredApp("application/x-vnd.videolan-vlc"), B_OK);
	ASSERT_EQ(info.GetPreferredApp(signature), B_OK);
	EXPECT_STREQ(signature, "application/x-vnd.videolan-vlc");
	ASSERT_EQ(info.SetPreferredApp(nullptr), B_OK);
	EXPECT_EQ(info.GetPreferredApp(signature), B_ENTRY_NOT_FOUND);
}


TEST(BNodeInfo, HintNamesAFile)
{
	const TempFolder folder;
	const std::string player = folder.Write("player", "");
	BNode node(folder.Write("a.mp3", "").c_str());
	BNodeInfo info(&node);
	entry_ref ref;
	entry_ref found;
	EXPECT_EQ(info.GetAppHint(&found), B_ENTRY_NOT_FOUND);
	ASSERT_EQ(get_ref_for_path(player.c_str(), &ref), B_OK);
	ASSERT_EQ(info.SetAppHint(&ref), B_OK);
	ASSERT_EQ(info.GetAppHint(&found), B_OK);
	EXPECT_TRUE(found == ref);
	ASSERT_EQ(info.SetAppHint(nullptr), B_OK);
	EXPECT_EQ(info.GetAppHint(&found), B_ENTRY_NOT_FOUND);
}


TEST(BNodeInfo, OwnIconIsKept)
{
	const TempFolder folder;
	BNode node(folder.Write("a.mp3", "").c_str());
	BNodeInfo info(&node);
	BBitmap icon(BRect(0, 0, 15, 15), B_CMAP8);
	memset(icon.Bits(), 42, icon.BitsLength());
	BBitmap read(BRect(0, 0, 15, 15), B_CMAP8);
	EXPECT_EQ(info.GetIcon(&read, B_MINI_ICON), B_ENTRY_NOT_FOUND);
	ASSERT_EQ(info.SetIcon(&icon, B_MINI_ICON), B_OK);
	EXPECT_EQ(info.SetIcon(&icon, B_LARGE_ICON), B_BAD_VALUE);
	ASSERT_EQ(info.GetTrackerIcon(&read, B_MINI_ICON), B_OK);
	EXPECT_EQ(memcmp(read.Bits(), icon.Bits(), 256), 0);
	attr_info attribute;
	ASSERT_EQ(node.GetAttrInfo("BEOS:M:STD_ICON", &attribute), B_OK);
	EXPECT_EQ(attribute.type, uint32(B_MINI_ICON_TYPE));
	EXPECT_EQ(attribute.size, 256);
	ASSERT_EQ(info.SetIcon(nullptr, B_MINI_ICON), B_OK);
	EXPECT_EQ(info.GetIcon(&read, B_MINI_ICON), B_ENTRY_NOT_FOUND);
}


TEST(GetTrackerIcon, ShowsEveryKindOfFile)
{
	const TempFolder folder;
	const std::string link = folder / "link";
	ASSERT_EQ(symlink("/", link.c_str()), 0);
	const std::string paths[]
		= {folder.Write("a.mp3", ""), folder.Write("a.mp4", ""), folder.Write("a.jpg", ""),
			folder.Write("a.txt", ""), folder.Write("a", ""), folder.Path(), link, "/bin/true"};
	for (const std::string& path : paths) {
		entry_ref ref;
		ASSERT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
		for (const icon_size size : {B_LARGE_ICON, B_MINI_ICON}) {
			const float last = static_cast<float>(size - 1);
			BBitmap icon(BRect(0, 0, last, last), B_RGBA32);
			EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, &icon, size), B_OK) << path;
			EXPECT_GT(count_colors(icon), 3u) << path;
		}
		BBitmap indexed(BRect(0, 0, 31, 31), B_CMAP8);
		EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, &indexed), B_OK) << path;
	}
}


TEST(GetTrackerIcon, WorksWithTheDisplayThread)
{
	ASSERT_TRUE(hosted::DisplayThread::Start());
	const TempFolder folder;
	BNode node(folder.Write("a.mp3", "").c_str());
	BBitmap icon(BRect(0, 0, 31, 31), B_RGB32);
	EXPECT_EQ(BNodeInfo(&node).GetTrackerIcon(&icon), B_OK);
	EXPECT_GT(count_colors(icon), 3u);
}


TEST(GetTrackerIcon, ChecksFileAndBitmap)
{
	const TempFolder folder;
	entry_ref ref;
	BBitmap icon(BRect(0, 0, 31, 31), B_RGB32);
	ASSERT_EQ(get_ref_for_path((folder / "missing.jpg").c_str(), &ref), B_OK);
	EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, &icon), B_ENTRY_NOT_FOUND);
	ASSERT_EQ(get_ref_for_path(folder.Write("a.jpg", "").c_str(), &ref), B_OK);
	EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, nullptr), B_BAD_VALUE);
	EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, &icon, B_MINI_ICON), B_BAD_VALUE);
	EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, &icon, icon_size(24)), B_BAD_VALUE);
	EXPECT_EQ(BNodeInfo::GetTrackerIcon(nullptr, &icon), B_BAD_VALUE);
	BBitmap gray(BRect(0, 0, 31, 31), B_GRAY8);
	EXPECT_EQ(BNodeInfo::GetTrackerIcon(&ref, &gray), B_BAD_VALUE);
	BNode node(&ref);
	BNodeInfo info(&node);
	ASSERT_EQ(info.SetType("chemical/x-surely-not"), B_OK);
	EXPECT_EQ(info.GetTrackerIcon(&icon), B_ERROR);
}
