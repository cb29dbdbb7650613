// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// A settings file that cannot be used, or that somebody has written into: the program's values are
// sensible, no text is longer than its buffer, and nothing else is changed.
#include "settings/Prefs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>

#include <File.h>
#include <TypeConstants.h>
#include <gtest/gtest.h>

#include "platform/storage/ExtendedAttributes.h"
#include "settings/PrefsTable.h"
#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Unprivileged.h"


namespace {

class DamagedSettingsFile : public testing::Test {
protected:
	DamagedSettingsFile()
		:
		fOldConfiguration(getenv("XDG_CONFIG_HOME")),
		fOldData(getenv("XDG_DATA_HOME")),
		fPath(fFolder / kSettingsFileName)
	{
		setenv("XDG_CONFIG_HOME", fFolder.Path().c_str(), 1);
		setenv("XDG_DATA_HOME", fFolder.MakeFolder("data").c_str(), 1);
	}

	~DamagedSettingsFile() override
	{
		hosted::ExtendedAttributes::SetRefusal(0);
		fPrefs.reset();
		setenv("XDG_CONFIG_HOME", fOldConfiguration.c_str(), 1);
		setenv("XDG_DATA_HOME", fOldData.c_str(), 1);
	}

	Prefs& MakePrefs()
	{
		fOutput = test::OutputOf([this] { fPrefs = std::make_unique<Prefs>(); });
		return *fPrefs;
	}

	void Store(const char* key, uint32 type, const void* data, size_t size)
	{
		BFile file(fPath.c_str(), B_READ_WRITE | B_CREATE_FILE);
		ASSERT_EQ(file.WriteAttr(key, type, 0, data, size), static_cast<ssize_t>(size)) << key;
	}

	bool Printed(const std::string& text) { return fOutput.find(text) != std::string::npos; }

	// Nothing could be read: each field has what it starts with.
	void ExpectStartValues()
	{
		Prefs& prefs = *fPrefs;
		EXPECT_TRUE(prefs.fError);
		for (const TextPref& pref : kTextPrefs)
			EXPECT_STREQ(pref.buffer(prefs), pref.deflt) << pref.key;
		for (const FlagPref& pref : kFlagPrefs)
			EXPECT_EQ(prefs.*pref.field, pref.deflt) << pref.key;
		for (const NumberPref& pref : kNumberPrefs)
			EXPECT_EQ(prefs.*pref.field, pref.deflt) << pref.key;
		for (const FramePref& pref : kFramePrefs)
			EXPECT_EQ(prefs.*pref.field, BRect()) << pref.key;
		EXPECT_EQ(prefs.altWinBackCol, (rgb_color{216, 216, 216, 0}));
		EXPECT_STREQ(prefs.fSpareText, "-empty-");
	}

	test::TempFolder fFolder;
	const std::string fOldConfiguration;
	const std::string fOldData;
	const std::string fPath;
	std::unique_ptr<Prefs> fPrefs;
	std::string fOutput;
};


// The same but for the settings' own state.
void
expect_equal(Prefs& prefs, Prefs& other)
{
	for (const TextPref& pref : kTextPrefs)
		EXPECT_STREQ(pref.buffer(prefs), pref.buffer(other)) << pref.key;
	for (const FlagPref& pref : kFlagPrefs)
		EXPECT_EQ(prefs.*pref.field, other.*pref.field) << pref.key;
	for (const NumberPref& pref : kNumberPrefs)
		EXPECT_EQ(prefs.*pref.field, other.*pref.field) << pref.key;
	for (const FramePref& pref : kFramePrefs)
		EXPECT_EQ(memcmp(&(prefs.*pref.field), &(other.*pref.field), sizeof(BRect)), 0) << pref.key;
	EXPECT_EQ(prefs.altWinBackCol, other.altWinBackCol);
}

} // namespace


TEST_F(DamagedSettingsFile, ReadOnlyFileLeavesTheStartValues)
{
	Store("Audio", B_STRING_TYPE, "kept", 4);
	ASSERT_EQ(chmod(fPath.c_str(), 0444), 0);
	ASSERT_EQ(chmod(fFolder.Path().c_str(), 0755), 0);
	{
		const test::Unprivileged user;
		ASSERT_TRUE(user.IsDone());
		MakePrefs();
		ExpectStartValues();
		EXPECT_TRUE(Printed("Unknown error reading rs232_port:\n")) << fOutput;
		const std::string output = test::OutputOf([this] { EXPECT_FALSE(fPrefs->Save()); });
		EXPECT_EQ(output.find("Unknown error writing use_splitting:\n"), 0u) << output;
		fPrefs.reset();
	}
	ASSERT_EQ(chmod(fPath.c_str(), 0644), 0);
	EXPECT_STREQ(MakePrefs().Audio, "kept");
}


TEST_F(DamagedSettingsFile, FolderInItsPlaceIsLeftAlone)
{
	fFolder.Write(std::string(kSettingsFileName) + "/inside", "text");
	MakePrefs();
	ExpectStartValues();
	EXPECT_TRUE(Printed("Unknown error reading rs232_port:\n")) << fOutput;
	EXPECT_FALSE(Printed("ir_logfile"));
	fPrefs.reset();
	EXPECT_EQ(test::ReadFile(fPath + "/inside"), "text");
}


TEST_F(DamagedSettingsFile, SettingsFolderThatCannotBeMadeLeavesTheStartValues)
{
	setenv("XDG_CONFIG_HOME", "/proc/no/such/folder", 1);
	MakePrefs();
	ExpectStartValues();
	EXPECT_TRUE(Printed("Unknown error reading rs232_port:\n")) << fOutput;
	EXPECT_FALSE(fPrefs->Save());
}


TEST_F(DamagedSettingsFile, FileSystemWithoutAttributesKeepsThemAllTheSame)
{
	hosted::ExtendedAttributes::SetRefusal(EOPNOTSUPP);
	Prefs& prefs = MakePrefs();
	EXPECT_FALSE(prefs.fError);
	prefs.LINK_SIZE = 3;
	strcpy(prefs.Audio, "kept");
	fPrefs.reset();
	EXPECT_EQ(MakePrefs().LINK_SIZE, 3);
	EXPECT_STREQ(fPrefs->Audio, "kept");
	EXPECT_EQ(test::ReadFile(fPath), "");
}


TEST_F(DamagedSettingsFile, WithoutAnyPlaceForAttributesTheDefaultsCannotBeWritten)
{
	hosted::ExtendedAttributes::SetRefusal(EOPNOTSUPP);
	setenv("XDG_DATA_HOME", "/proc/no/such/folder", 1);
	MakePrefs();
	ExpectStartValues();
	EXPECT_TRUE(Printed("WriteAttr on rs232_port died\n")) << fOutput;
	EXPECT_FALSE(Printed("ir_logfile"));
	EXPECT_FALSE(fPrefs->Save());
}


TEST_F(DamagedSettingsFile, FileWithContentsIsNotRead)
{
	fFolder.Write(kSettingsFileName, "rs232_port=other\n");
	EXPECT_STREQ(MakePrefs().rs232_port, "serial2");
	EXPECT_FALSE(fPrefs->fError);
	fPrefs.reset();
	EXPECT_EQ(test::ReadFile(fPath), "rs232_port=other\n");
}


TEST_F(DamagedSettingsFile, AnyTypeAndSizeOfAnyKeyLoadsAndSavesWhatItLoaded)
{
	const std::string bytes(1000, '\x7f');
	const std::vector<uint32> types = {B_STRING_TYPE, B_BOOL_TYPE, B_RECT_TYPE, B_INT32_TYPE, 0};
	std::vector<const char*> keys = {kBackColorKey};
	for (const TextPref& pref : kTextPrefs)
		keys.push_back(pref.key);
	for (const FlagPref& pref : kFlagPrefs)
		keys.push_back(pref.key);
	for (const FramePref& pref : kFramePrefs)
		keys.push_back(pref.key);
	for (const NumberPref& pref : kNumberPrefs)
		keys.push_back(pref.key);
	for (const size_t size : {1, 3, 4, 15, 17, 79, 80, 255, 256, 1000}) {
		for (size_t index = 0; index < keys.size(); index++)
			Store(keys[index], types[(index + size) % types.size()], bytes.data(), size);
		Prefs& prefs = MakePrefs();
		EXPECT_FALSE(prefs.fError) << size << fOutput;
		EXPECT_EQ(strlen(prefs.rs232_port), std::min<size_t>(size, 79));
		EXPECT_EQ(strlen(prefs.ir_logfile), std::min<size_t>(size, 63));
		EXPECT_EQ(strlen(prefs.pref_AudioApp), std::min<size_t>(size, 254));
		EXPECT_STREQ(prefs.fSpareText, "-empty-");
		EXPECT_TRUE(prefs.Save());
		Prefs again;
		expect_equal(prefs, again);
		fPrefs.reset();
	}
}


TEST_F(DamagedSettingsFile, FrameThatIsNoNumberIsKeptForTheWindowToJudge)
{
	const float nan = std::numeric_limits<float>::quiet_NaN();
	const float floats[4] = {nan, 100, nan, 300};
	Store("prefs_window_rect", B_RECT_TYPE, floats, sizeof(floats));
	const Prefs& prefs = MakePrefs();
	EXPECT_FALSE(prefs.fError);
	EXPECT_TRUE(std::isnan(prefs.prefs_window_rect.left));
	EXPECT_EQ(prefs.prefs_window_rect.top, 100);
	EXPECT_EQ(prefs.vr_window_rect, BRect(40, 40, 600, 600));
}


TEST_F(DamagedSettingsFile, ShortFrameKeepsItsDefaultsBehind)
{
	const float floats[2] = {5, 6};
	Store("prefs_window_rect", B_RECT_TYPE, floats, sizeof(floats));
	EXPECT_EQ(MakePrefs().prefs_window_rect, BRect(5, 6, 760, 300));
}


TEST_F(DamagedSettingsFile, IndexOfTwoBillionIsReadAsItIs)
{
	const int32 index = 2000000000;
	Store("LAST_PLAY", B_INT32_TYPE, &index, sizeof(index));
	EXPECT_EQ(MakePrefs().last_top_media, 2000000000);
	EXPECT_FALSE(fPrefs->fError);
}
