// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The order in which settings are read and written, and where both stop: the system's calls for
// attributes are watched, and one of them fails.
#include "settings/Prefs.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "settings/PrefsTable.h"
#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"


namespace {

using Keys = std::vector<std::string>;

// The calls since they were last forgotten.
Keys sRead;
Keys sWritten;
// The keys for which they fail.
std::string sUnreadable;
std::string sUnwritable;

constexpr char kPrefix[] = "user.haiku.";


bool
note(Keys& keys, const char* name, const std::string& failing)
{
	if (strncmp(name, kPrefix, strlen(kPrefix)) != 0)
		return true;
	const std::string key = name + strlen(kPrefix);
	// A long value is read a second time.
	if (keys.empty() || keys.back() != key)
		keys.push_back(key);
	if (key != failing)
		return true;
	errno = EIO;
	return false;
}

} // namespace


// In place of the C library's.
extern "C" ssize_t
fgetxattr(int fd, const char* name, void* value, size_t size) noexcept
{
	return note(sRead, name, sUnreadable) ? syscall(SYS_fgetxattr, fd, name, value, size) : -1;
}


extern "C" int
fsetxattr(int fd, const char* name, const void* value, size_t size, int flags) noexcept
{
	if (!note(sWritten, name, sUnwritable))
		return -1;
	return static_cast<int>(syscall(SYS_fsetxattr, fd, name, value, size, flags));
}


namespace {

const Keys kLoadOrder
	= {"rs232_port", "ir_logfile", "use_splitting", "use_pimped", "show_pulse", "hold_irInfo",
		"use_systemsound", "all_workspaces", "use_DualButton", "use_Folderjpg", "mw_ever_topped",
		"altWinBackCol", "Desktop", "Application", "Audio", "Video", "Presetfile", "Layoutfile",
		"pref_AudioApp", "prefs_window_rect", "vr_window_rect", "pr_window_rect", "lt_window_rect",
		"window_by_begin", "use_ompl", "window_mtab", "PRIORITY", "LAST_PLAY", "LINK_SIZE"};

const Keys kSaveOrder = {"use_splitting", "use_pimped", "show_pulse", "hold_irInfo",
	"use_systemsound", "all_workspaces", "use_DualButton", "use_Folderjpg", "mw_ever_topped",
	"Desktop", "Application", "Audio", "Video", "Presetfile", "Layoutfile", "pref_AudioApp",
	"prefs_window_rect", "vr_window_rect", "pr_window_rect", "lt_window_rect", "rs232_port",
	"ir_logfile", "window_by_begin", "use_ompl", "window_mtab", "LAST_PLAY", "LINK_SIZE",
	"altWinBackCol", "PRIORITY"};


// Settings in a fresh folder, with the calls forgotten that made them.
class PrefsOrder : public testing::Test {
protected:
	PrefsOrder()
		:
		fOldConfiguration(getenv("XDG_CONFIG_HOME"))
	{
		setenv("XDG_CONFIG_HOME", fFolder.Path().c_str(), 1);
	}

	void SetUp() override
	{
		const std::string path = fFolder.Write("probe", "");
		if (setxattr(path.c_str(), "user.probe", "", 0, 0) != 0)
			GTEST_SKIP() << "the file system takes no attributes";
	}

	void TearDown() override
	{
		sUnreadable = "";
		sUnwritable = "";
		fPrefs.reset();
		setenv("XDG_CONFIG_HOME", fOldConfiguration.c_str(), 1);
	}

	Prefs& MakePrefs()
	{
		Forget();
		fOutput = test::OutputOf([this] { fPrefs = std::make_unique<Prefs>(); });
		return *fPrefs;
	}

	static void Forget()
	{
		sRead.clear();
		sWritten.clear();
	}

	test::TempFolder fFolder;
	const std::string fOldConfiguration;
	std::unique_ptr<Prefs> fPrefs;
	std::string fOutput;
};


// The keys up to and with that one.
Keys
up_to(const Keys& keys, const std::string& last)
{
	return Keys(keys.begin(), std::find(keys.begin(), keys.end(), last) + 1);
}

} // namespace


TEST_F(PrefsOrder, TheTableHoldsEachKeyOnce)
{
	Keys keys = {kBackColorKey};
	for (const TextPref& pref : kTextPrefs)
		keys.push_back(pref.key);
	for (const FlagPref& pref : kFlagPrefs)
		keys.push_back(pref.key);
	for (const FramePref& pref : kFramePrefs)
		keys.push_back(pref.key);
	for (const NumberPref& pref : kNumberPrefs)
		keys.push_back(pref.key);
	std::sort(keys.begin(), keys.end());
	for (Keys expected : {kLoadOrder, kSaveOrder}) {
		std::sort(expected.begin(), expected.end());
		EXPECT_EQ(keys, expected);
	}
}


TEST_F(PrefsOrder, FirstStartReadsEachKeyAndWritesItsDefaultAtOnce)
{
	MakePrefs();
	EXPECT_EQ(sRead, kLoadOrder);
	Keys written = kLoadOrder;
	written.erase(std::find(written.begin(), written.end(), kBackColorKey));
	EXPECT_EQ(sWritten, written);
}


TEST_F(PrefsOrder, LaterStartWritesNothing)
{
	MakePrefs().Save();
	MakePrefs();
	EXPECT_EQ(sRead, kLoadOrder);
	// The object before saved itself at its end.
	EXPECT_EQ(sWritten, kSaveOrder);
	EXPECT_EQ(fOutput.find("Err"), std::string::npos);
}


TEST_F(PrefsOrder, SaveWritesEachKey)
{
	Prefs& prefs = MakePrefs();
	Forget();
	EXPECT_EQ(test::OutputOf([&prefs] { EXPECT_TRUE(prefs.Save()); }), "Prefs-Save\n");
	EXPECT_EQ(sWritten, kSaveOrder);
}


TEST_F(PrefsOrder, LoadingStopsAtTheFirstKeyThatCannotBeRead)
{
	MakePrefs();
	fPrefs.reset();
	for (const std::string& key : kLoadOrder) {
		sUnreadable = key;
		const Prefs& prefs = MakePrefs();
		if (key == kBackColorKey) {
			// A color that cannot be read is passed over.
			EXPECT_EQ(sRead, kLoadOrder);
			EXPECT_FALSE(prefs.fError);
			EXPECT_NE(fOutput.find("  Err altWinBackCol \n"), std::string::npos);
		} else {
			EXPECT_EQ(sRead, up_to(kLoadOrder, key));
			EXPECT_TRUE(prefs.fError) << key;
			EXPECT_NE(fOutput.find("Unknown error reading " + key + ":\nI/O error\n"),
				std::string::npos)
				<< fOutput;
		}
		sUnreadable = "";
		fPrefs.reset();
	}
}


TEST_F(PrefsOrder, LoadingStopsAtTheFirstDefaultThatCannotBeWritten)
{
	for (const std::string& key : kLoadOrder) {
		if (key == kBackColorKey)
			continue;
		unlink((fFolder / kSettingsFileName).c_str());
		sUnwritable = key;
		const Prefs& prefs = MakePrefs();
		EXPECT_EQ(sRead, up_to(kLoadOrder, key));
		EXPECT_TRUE(prefs.fError) << key;
		EXPECT_NE(fOutput.find("WriteAttr on " + key + " died\n"), std::string::npos) << fOutput;
		EXPECT_EQ(fOutput.find("Unknown"), std::string::npos) << fOutput;
		sUnwritable = "";
		fPrefs.reset();
	}
}


TEST_F(PrefsOrder, NumberThatCannotBeReadGetsItsDefault)
{
	for (const NumberPref& pref : kNumberPrefs) {
		Prefs& prefs = MakePrefs();
		prefs.*pref.field = 99;
		sUnreadable = pref.key;
		EXPECT_FALSE(prefs.LoadPrefs()) << pref.key;
		EXPECT_EQ(prefs.*pref.field, pref.deflt) << pref.key;
		sUnreadable = "";
	}
}


TEST_F(PrefsOrder, SavingStopsAtTheFirstKeyThatCannotBeWrittenExceptThePosition)
{
	Prefs& prefs = MakePrefs();
	for (const std::string& key : kSaveOrder) {
		Forget();
		prefs.fError = false;
		sUnwritable = key;
		bool saved = false;
		const std::string output = test::OutputOf([&] { saved = prefs.Save(); });
		const std::string message = "Unknown error writing " + key + ":\nI/O error\n";
		EXPECT_TRUE(prefs.fError) << key;
		if (key == kLastPlayPref.key) {
			EXPECT_TRUE(saved);
			EXPECT_EQ(sWritten, kSaveOrder);
			EXPECT_EQ(output, message + "Prefs-Save\n");
		} else {
			EXPECT_FALSE(saved) << key;
			EXPECT_EQ(sWritten, up_to(kSaveOrder, key));
			EXPECT_EQ(output, message);
		}
	}
}
