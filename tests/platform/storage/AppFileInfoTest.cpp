// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <AppFileInfo.h>

#include <string.h>
#include <string>

#include <TypeConstants.h>

#include <gtest/gtest.h>

#include "tests/support/TempFolder.h"

static_assert(B_DEVELOPMENT_VERSION == 0 && B_ALPHA_VERSION == 1 && B_BETA_VERSION == 2);
static_assert(B_GAMMA_VERSION == 3 && B_GOLDEN_MASTER_VERSION == 4 && B_FINAL_VERSION == 5);
static_assert(B_APP_VERSION_KIND == 0 && B_SYSTEM_VERSION_KIND == 1);
static_assert(sizeof(version_info) == 340);

using test::TempFolder;


namespace {

version_info
record(uint32 major, const char* text)
{
	version_info info;
	memset(&info, 0, sizeof(info));
	info.major = major;
	info.middle = 2;
	info.minor = 3;
	info.variety = B_FINAL_VERSION;
	info.internal = 4;
	strcpy(info.short_info, text);
	return info;
}

} // namespace


TEST(BAppFileInfo, ProgramsWithoutVersionSaySo)
{
	BFile file("/bin/true", B_READ_ONLY);
	BAppFileInfo info(&file);
	ASSERT_EQ(info.InitCheck(), B_OK);
	version_info version = record(9, "kept");
	EXPECT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(version.major, 9u);
	EXPECT_STREQ(version.short_info, "kept");
	char signature[B_MIME_TYPE_LENGTH];
	EXPECT_EQ(info.GetSignature(signature), B_ENTRY_NOT_FOUND);
}


TEST(BAppFileInfo, ReadsBothRecords)
{
	const TempFolder folder;
	BFile file(folder.Write("program", "").c_str(), B_READ_WRITE);
	BAppFileInfo info(&file);
	const version_info records[2] = {record(1, "one"), record(5, "five")};
	version_info version;
	ASSERT_EQ(file.WriteAttr("BEOS:APP_VERSION", 'APPV', 0, records, 340), 340);
	ASSERT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_OK);
	EXPECT_EQ(version.major, 1u);
	EXPECT_EQ(version.internal, 4u);
	EXPECT_STREQ(version.short_info, "one");
	EXPECT_EQ(info.GetVersionInfo(&version, B_SYSTEM_VERSION_KIND), B_ENTRY_NOT_FOUND);
	ASSERT_EQ(file.WriteAttr("BEOS:APP_VERSION", 'APPV', 0, records, 680), 680);
	ASSERT_EQ(info.GetVersionInfo(&version, B_SYSTEM_VERSION_KIND), B_OK);
	EXPECT_STREQ(version.short_info, "five");
}


TEST(BAppFileInfo, ChecksTheRecord)
{
	const TempFolder folder;
	BFile file(folder.Write("program", "").c_str(), B_READ_WRITE);
	BAppFileInfo info(&file);
	version_info version = record(1, "");
	memset(version.short_info, 'x', sizeof(version.short_info));
	ASSERT_EQ(file.WriteAttr("BEOS:APP_VERSION", 'APPV', 0, &version, 100), 100);
	EXPECT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_BAD_DATA);
	ASSERT_EQ(file.WriteAttr("BEOS:APP_VERSION", B_STRING_TYPE, 0, &version, 340), 340);
	EXPECT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_BAD_TYPE);
	ASSERT_EQ(file.WriteAttr("BEOS:APP_VERSION", 'APPV', 0, &version, 340), 340);
	ASSERT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_OK);
	EXPECT_EQ(strlen(version.short_info), 63u);
	EXPECT_EQ(info.GetVersionInfo(nullptr, B_APP_VERSION_KIND), B_BAD_VALUE);
}


TEST(BAppFileInfo, NeedsAFile)
{
	BAppFileInfo info;
	version_info version;
	EXPECT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_NO_INIT);
	BFile missing("/no/such/file", B_READ_ONLY);
	EXPECT_EQ(info.SetTo(&missing), B_BAD_VALUE);
	EXPECT_EQ(info.GetVersionInfo(&version, B_APP_VERSION_KIND), B_NO_INIT);
}


TEST(BAppFileInfo, ReadsTheSignature)
{
	const TempFolder folder;
	BFile file(folder.Write("program", "").c_str(), B_READ_WRITE);
	const char* const text = "application/x-vnd.test";
	ASSERT_EQ(file.WriteAttr("BEOS:APP_SIG", B_MIME_STRING_TYPE, 0, text, strlen(text) + 1),
		ssize_t(strlen(text) + 1));
	char signature[B_MIME_TYPE_LENGTH];
	ASSERT_EQ(BAppFileInfo(&file).GetSignature(signature), B_OK);
	EXPECT_STREQ(signature, text);
}
