// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <FindDirectory.h>
#include <Path.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <string>
#include <vector>

#include "tests/support/TempFolder.h"


namespace {

static_assert(B_DESKTOP_DIRECTORY == 0 && B_TRASH_DIRECTORY == 1);
static_assert(B_SYSTEM_DIRECTORY == 1000 && B_SYSTEM_ADDONS_DIRECTORY == 1002);
static_assert(B_SYSTEM_APPS_DIRECTORY == 1007 && B_SYSTEM_BIN_DIRECTORY == 1008);
static_assert(B_SYSTEM_DATA_DIRECTORY == 1015 && B_SYSTEM_SETTINGS_DIRECTORY == 2010);
static_assert(B_SYSTEM_LOG_DIRECTORY == 2012 && B_SYSTEM_TEMP_DIRECTORY == 2014);
static_assert(B_SYSTEM_CACHE_DIRECTORY == 2020);
static_assert(B_USER_DIRECTORY == 3000 && B_USER_CONFIG_DIRECTORY == 3001);
static_assert(B_USER_FONTS_DIRECTORY == 3004 && B_USER_SETTINGS_DIRECTORY == 3006);
static_assert(B_USER_TRANSLATORS_DIRECTORY == 3009 && B_USER_DATA_DIRECTORY == 3012);
static_assert(B_USER_CACHE_DIRECTORY == 3013 && B_USER_NONPACKAGED_DIRECTORY == 3016);
static_assert(B_USER_APPS_DIRECTORY == 3031 && B_USER_LOG_DIRECTORY == 3035);
static_assert(B_USER_VAR_DIRECTORY == 3037);
static_assert(B_APPS_DIRECTORY == 4000 && B_PREFERENCES_DIRECTORY == 4001);


class FindDirectory : public testing::Test {
protected:
	void SetUp() override
	{
		for (const char* name : kNames) {
			const char* value = getenv(name);
			fBefore.emplace_back(value != nullptr ? value : "");
			unsetenv(name);
		}
		setenv("HOME", fHome.Path().c_str(), 1);
	}
	void TearDown() override
	{
		size_t index = 0;
		for (const char* name : kNames) {
			if (!fBefore[index].empty())
				setenv(name, fBefore[index].c_str(), 1);
			else
				unsetenv(name);
			index++;
		}
	}
	static std::string Find(directory_which which)
	{
		BPath path;
		return find_directory(which, &path) == B_OK ? path.Path() : "error";
	}

	static constexpr const char* kNames[] = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
		"XDG_CACHE_HOME", "XDG_STATE_HOME", "TMPDIR"};
	std::vector<std::string> fBefore;
	test::TempFolder fHome;
};

} // namespace


TEST_F(FindDirectory, UsersFoldersLieInTheHomeFolder)
{
	EXPECT_EQ(Find(B_USER_DIRECTORY), fHome.Path());
	EXPECT_EQ(Find(B_USER_SETTINGS_DIRECTORY), fHome / ".config");
	EXPECT_EQ(Find(B_USER_DATA_DIRECTORY), fHome / ".local/share");
	EXPECT_EQ(Find(B_USER_CACHE_DIRECTORY), fHome / ".cache");
	EXPECT_EQ(Find(B_USER_FONTS_DIRECTORY), fHome / ".local/share/fonts");
	EXPECT_EQ(Find(B_TRASH_DIRECTORY), fHome / ".local/share/Trash/files");
	EXPECT_EQ(Find(B_DESKTOP_DIRECTORY), fHome / "Desktop");
}


TEST_F(FindDirectory, VariablesNameOtherPlaces)
{
	setenv("XDG_CONFIG_HOME", "/some/config/", 1);
	setenv("XDG_DATA_HOME", "relative/does/not/count", 1);
	setenv("TMPDIR", "/other/tmp", 1);
	EXPECT_EQ(Find(B_USER_SETTINGS_DIRECTORY), "/some/config");
	EXPECT_EQ(Find(B_USER_DATA_DIRECTORY), fHome / ".local/share");
	EXPECT_EQ(Find(B_SYSTEM_TEMP_DIRECTORY), "/other/tmp");
	unsetenv("TMPDIR");
	EXPECT_EQ(Find(B_SYSTEM_TEMP_DIRECTORY), "/tmp");
}


TEST_F(FindDirectory, DesktopMayHaveANameOfItsOwn)
{
	fHome.Write(".config/user-dirs.dirs",
		"# comment\nXDG_MUSIC_DIR=\"$HOME/Musik\"\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
	EXPECT_EQ(Find(B_DESKTOP_DIRECTORY), fHome / "Schreibtisch");
	fHome.Write(".config/user-dirs.dirs", "XDG_DESKTOP_DIR=\"\nXDG_DESKTOP_DIR=\"x\"\n");
	EXPECT_EQ(Find(B_DESKTOP_DIRECTORY), fHome / "Desktop");
}


TEST_F(FindDirectory, WithoutVariableTheUserDatabaseIsAsked)
{
	unsetenv("HOME");
	BPath path;
	const status_t status = find_directory(B_USER_DIRECTORY, &path);
	EXPECT_TRUE(status == B_OK ? path.IsAbsolute() : status == B_ENTRY_NOT_FOUND);
	setenv("HOME", "not/absolute", 1);
	EXPECT_EQ(find_directory(B_USER_DIRECTORY, &path), status);
	setenv("HOME", "/", 1);
	EXPECT_EQ(Find(B_USER_DIRECTORY), "/");
	EXPECT_EQ(Find(B_USER_SETTINGS_DIRECTORY), "/.config");
	EXPECT_EQ(Find(B_USER_NONPACKAGED_DIRECTORY), "/.local");
}


TEST_F(FindDirectory, FolderIsMadeOnRequestOnly)
{
	BPath path;
	EXPECT_EQ(find_directory(B_USER_SETTINGS_DIRECTORY, &path), B_OK);
	EXPECT_FALSE(std::filesystem::exists(path.Path()));
	EXPECT_EQ(find_directory(B_USER_SETTINGS_DIRECTORY, &path, true), B_OK);
	EXPECT_TRUE(std::filesystem::is_directory(path.Path()));
	setenv("HOME", fHome.Write("file", "").c_str(), 1);
	EXPECT_EQ(find_directory(B_USER_SETTINGS_DIRECTORY, &path, true), B_NOT_A_DIRECTORY);
}


TEST_F(FindDirectory, BadArguments)
{
	BPath path("/kept");
	EXPECT_EQ(find_directory(B_USER_DIRECTORY, nullptr), B_BAD_VALUE);
	EXPECT_EQ(find_directory(static_cast<directory_which>(4444), &path), B_BAD_VALUE);
	char buffer[B_PATH_NAME_LENGTH];
	EXPECT_EQ(find_directory(B_USER_DIRECTORY, 0, false, buffer, sizeof(buffer)), B_OK);
	EXPECT_EQ(buffer, fHome.Path());
	EXPECT_EQ(find_directory(B_USER_DIRECTORY, 0, false, buffer, 3), B_GENERAL_ERROR_BASE + 0x7001);
	EXPECT_EQ(find_directory(B_USER_DIRECTORY, 0, false, nullptr, 3), B_BAD_VALUE);
	EXPECT_EQ(find_directory(B_USER_DIRECTORY, 0, false, buffer, -1), B_BAD_VALUE);
}


TEST_F(FindDirectory, EveryPlaceIsAbsolute)
{
	for (int which = 0; which < 5000; which++) {
		BPath path;
		if (find_directory(static_cast<directory_which>(which), &path) == B_OK) {
			EXPECT_TRUE(path.IsAbsolute()) << which;
		}
	}
}
