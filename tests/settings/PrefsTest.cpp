// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "settings/Prefs.h"

#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

#include <File.h>
#include <FindDirectory.h>
#include <Path.h>
#include <Roster.h>
#include <TypeConstants.h>
#include <fs_attr.h>
#include <gtest/gtest.h>

#include "settings/PrefsTable.h"
#include "tests/support/Output.h"
#include "tests/support/RunningApplication.h"


namespace {

std::string
settings_path()
{
	BPath path;
	find_directory(B_USER_SETTINGS_DIRECTORY, &path, true);
	path.Append(kSettingsFileName);
	return path.Path();
}


// The attribute's bytes; without it, "-absent-".
std::string
attribute(const char* key, uint32* type = nullptr)
{
	const BNode node(settings_path().c_str());
	attr_info info;
	if (node.GetAttrInfo(key, &info) != B_OK)
		return "-absent-";
	if (type != nullptr)
		*type = info.type;
	std::string data(static_cast<size_t>(info.size), '\0');
	node.ReadAttr(key, info.type, 0, data.data(), data.size());
	return data;
}


void
store(const char* key, uint32 type, const void* data, size_t size)
{
	BFile file(settings_path().c_str(), B_READ_WRITE | B_CREATE_FILE);
	ASSERT_EQ(file.WriteAttr(key, type, 0, data, size), static_cast<ssize_t>(size));
}


template <class Value>
std::string
bytes_of(const Value& value)
{
	return std::string(reinterpret_cast<const char*>(&value), sizeof(value));
}


// Begins and ends without settings.
class PrefsTest : public testing::Test {
protected:
	void SetUp() override { _Forget(); }
	void TearDown() override { _Forget(); }

private:
	void _Forget()
	{
		Prefs::DeleteMe();
		unlink(settings_path().c_str());
		rmdir(settings_path().c_str());
	}
};

} // namespace


TEST_F(PrefsTest, FreshSystemGetsAnEmptyFileWithEveryDefault)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	off_t size = -1;
	EXPECT_EQ(BFile(settings_path().c_str(), B_READ_ONLY).GetSize(&size), B_OK);
	EXPECT_EQ(size, 0);
	EXPECT_FALSE(prefs->fError);

	for (const TextPref& pref : kTextPrefs) {
		uint32 type = 0;
		EXPECT_EQ(attribute(pref.key, &type), pref.deflt) << pref.key;
		EXPECT_EQ(type, B_STRING_TYPE) << pref.key;
		EXPECT_STREQ(pref.buffer(*prefs), pref.deflt);
	}
	for (const FlagPref& pref : kFlagPrefs) {
		uint32 type = 0;
		EXPECT_EQ(attribute(pref.key, &type), std::string(1, pref.deflt ? '\1' : '\0'));
		EXPECT_EQ(type, B_BOOL_TYPE) << pref.key;
		EXPECT_EQ(prefs->*pref.field, pref.deflt) << pref.key;
	}
	for (const FramePref& pref : kFramePrefs) {
		uint32 type = 0;
		const float floats[4] = {pref.left, pref.top, pref.right, pref.bottom};
		EXPECT_EQ(attribute(pref.key, &type), bytes_of(floats)) << pref.key;
		EXPECT_EQ(type, B_RECT_TYPE) << pref.key;
		EXPECT_EQ(prefs->*pref.field, BRect(pref.left, pref.top, pref.right, pref.bottom));
	}
	for (const NumberPref& pref : kNumberPrefs) {
		uint32 type = 0;
		EXPECT_EQ(attribute(pref.key, &type), bytes_of(static_cast<int32>(pref.deflt)));
		EXPECT_EQ(type, B_INT32_TYPE) << pref.key;
		EXPECT_EQ(prefs->*pref.field, pref.deflt) << pref.key;
	}
	EXPECT_EQ(attribute(kBackColorKey), "-absent-");
}


TEST_F(PrefsTest, DefaultsAreTheDocumentedOnes)
{
	const Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_STREQ(prefs->rs232_port, "serial2");
	EXPECT_STREQ(prefs->ir_logfile, "/boot/home/_logfile_KORU_");
	EXPECT_STREQ(prefs->fSpareText, "-empty-");
	EXPECT_STREQ(prefs->Desktop, "-empty-");
	EXPECT_STREQ(prefs->Application, "-empty-");
	EXPECT_STREQ(prefs->Audio, "-empty-");
	EXPECT_STREQ(prefs->Video, "-empty-");
	EXPECT_STREQ(prefs->Presetfile, "_preset_");
	EXPECT_STREQ(prefs->Layoutfile, "_LAYOUT_");
	EXPECT_STREQ(prefs->pref_AudioApp, "-empty-");
	EXPECT_TRUE(prefs->mw_ever_topped);
	EXPECT_TRUE(prefs->use_Folderjpg);
	EXPECT_FALSE(prefs->use_splitting);
	EXPECT_FALSE(prefs->use_pimped);
	EXPECT_FALSE(prefs->show_pulse);
	EXPECT_FALSE(prefs->hold_irInfo);
	EXPECT_FALSE(prefs->use_systemsound);
	EXPECT_FALSE(prefs->all_workspaces);
	EXPECT_FALSE(prefs->use_DualButton);
	EXPECT_FALSE(prefs->use_ompl);
	EXPECT_FALSE(prefs->window_mtab);
	EXPECT_FALSE(prefs->window_by_begin);
	EXPECT_EQ(prefs->PRIORITY, 40);
	EXPECT_EQ(prefs->LINK_SIZE, 1);
	EXPECT_EQ(prefs->last_top_media, 0);
	EXPECT_EQ(prefs->last_top_media_buf, 0);
	EXPECT_EQ(prefs->next_top_media, 0);
	EXPECT_EQ(prefs->last_timer_nr, -1);
	EXPECT_EQ(prefs->playingImage, -1);
	EXPECT_EQ(prefs->prefs_window_rect, BRect(60, 100, 760, 300));
	EXPECT_EQ(prefs->vr_window_rect, BRect(40, 40, 600, 600));
	EXPECT_EQ(prefs->pr_window_rect, BRect(40, 40, 640, 355));
	EXPECT_EQ(prefs->lt_window_rect, BRect(200, 100, 800, 515));
	EXPECT_STREQ(kSettingsFileName, "_KORU_WYN_Beta030");
}


TEST_F(PrefsTest, StartPrintsTheVersionAndThePath)
{
	const std::string output = test::OutputOf([] { Prefs::getSTPrefs(); });
	EXPECT_EQ(output,
		"\nUSING WYN-Version..\nU_SETTING_PATH " + settings_path() + "\n  Err altWinBackCol \n");
}


TEST_F(PrefsTest, MissingColorStaysAndLoadingGoesOn)
{
	const Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_EQ(prefs->altWinBackCol, (rgb_color{216, 216, 216, 0}));
	EXPECT_NE(attribute("LINK_SIZE"), "-absent-");
}


TEST_F(PrefsTest, SavedTextHasItsTerminatorAndADefaultHasNot)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_EQ(attribute("Audio").size(), strlen("-empty-"));
	EXPECT_TRUE(prefs->Save());
	EXPECT_EQ(attribute("Audio"), std::string("-empty-", 8));
	EXPECT_TRUE(prefs->LoadPrefs());
	EXPECT_STREQ(prefs->Audio, "-empty-");
}


TEST_F(PrefsTest, TextWithoutTerminatorIsReadBack)
{
	Prefs::getSTPrefs();
	Prefs other;
	EXPECT_STREQ(other.rs232_port, "serial2");
	store("Video", B_STRING_TYPE, "ab", 2);
	EXPECT_TRUE(other.LoadPrefs());
	EXPECT_STREQ(other.Video, "ab");
}


TEST_F(PrefsTest, LongTextIsKeptUpToItsBuffer)
{
	const std::string text(400, 'x');
	store("Audio", B_STRING_TYPE, text.data(), text.size());
	store("ir_logfile", B_STRING_TYPE, text.data(), text.size());
	store("pref_AudioApp", B_STRING_TYPE, text.data(), text.size());
	const Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_EQ(std::string(prefs->Audio), text.substr(0, 79));
	EXPECT_EQ(std::string(prefs->ir_logfile), text.substr(0, 63));
	EXPECT_EQ(std::string(prefs->pref_AudioApp), text.substr(0, 254));
	EXPECT_STREQ(prefs->Application, "-empty-");
	EXPECT_STREQ(prefs->Video, "-empty-");
}


TEST_F(PrefsTest, GetStrFillsForeignBuffersWithUpTo256Bytes)
{
	const std::string text(400, 'y');
	store("foreign", B_STRING_TYPE, text.data(), text.size());
	std::vector<char> buffer(257, '#');
	EXPECT_TRUE(Prefs::getSTPrefs()->GetStr("foreign", buffer.data(), ""));
	EXPECT_EQ(std::string(buffer.data()), text.substr(0, 255));
	EXPECT_EQ(buffer[256], '#');
}


TEST_F(PrefsTest, SaveTakesThePendingPositionIfThereIsOne)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	prefs->last_top_media = 3;
	EXPECT_TRUE(prefs->Save());
	EXPECT_EQ(attribute("LAST_PLAY"), bytes_of(int32(3)));

	prefs->last_top_media_buf = 7;
	EXPECT_TRUE(prefs->Save());
	EXPECT_EQ(attribute("LAST_PLAY"), bytes_of(int32(7)));
}


TEST_F(PrefsTest, DeleteMeSavesAndTheNextObjectLoads)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	prefs->window_mtab = true;
	prefs->LINK_SIZE = 4;
	prefs->PRIORITY = -2;
	prefs->altWinBackCol = {1, 2, 3, 4};
	prefs->prefs_window_rect = BRect(1, 2.5, 3, 4);
	strcpy(prefs->pref_AudioApp, "/usr/bin/player");
	const std::string output = test::OutputOf([] { Prefs::DeleteMe(); });
	EXPECT_EQ(output, "Prefs-Save\n");
	EXPECT_EQ(Prefs::aPrefsZgr, nullptr);

	const Prefs* const loaded = Prefs::getSTPrefs();
	EXPECT_TRUE(loaded->window_mtab);
	EXPECT_EQ(loaded->LINK_SIZE, 4);
	EXPECT_EQ(loaded->PRIORITY, -2);
	EXPECT_EQ(loaded->altWinBackCol, (rgb_color{1, 2, 3, 4}));
	EXPECT_EQ(loaded->prefs_window_rect, BRect(1, 2.5, 3, 4));
	EXPECT_STREQ(loaded->pref_AudioApp, "/usr/bin/player");
	EXPECT_EQ(attribute(kBackColorKey), std::string("\1\2\3\4"));
}


TEST_F(PrefsTest, RunTimeStateIsNotStored)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	prefs->next_top_media = 5;
	prefs->last_timer_nr = 6;
	prefs->playingImage = 7;
	prefs->playingTitle = "Title";
	Prefs::DeleteMe();
	const Prefs* const loaded = Prefs::getSTPrefs();
	EXPECT_EQ(loaded->next_top_media, 0);
	EXPECT_EQ(loaded->last_timer_nr, -1);
	EXPECT_EQ(loaded->playingImage, -1);
	EXPECT_EQ(loaded->playingTitle, "");
}


TEST_F(PrefsTest, ShortAndForeignValuesAreAcceptedAsTheyAre)
{
	store("PRIORITY", B_INT32_TYPE, "\x05\x00", 2);
	store("use_pimped", B_BOOL_TYPE, "\x07", 1);
	store("LINK_SIZE", B_STRING_TYPE, "\x03\x00\x00\x00", 4);
	const Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_FALSE(prefs->fError);
	EXPECT_EQ(prefs->PRIORITY, 5);
	EXPECT_TRUE(prefs->use_pimped);
	EXPECT_EQ(prefs->LINK_SIZE, 3);
}


TEST_F(PrefsTest, ShortNumberKeepsTheBytesThatItDoesNotHave)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	store("number", B_INT32_TYPE, "\1\2", 2);
	long value = 0x77777777;
	const long deflt = 0;
	EXPECT_TRUE(prefs->GetInt("number", &value, &deflt));
	const int32 stored = static_cast<int32>(value);
	EXPECT_EQ(bytes_of(stored), "\1\2\x77\x77");
}


TEST_F(PrefsTest, ColorOfWrongSizeIsNotTaken)
{
	store(kBackColorKey, B_RGB_COLOR_TYPE, "\1\2\3", 3);
	Prefs* prefs = nullptr;
	const std::string output = test::OutputOf([&prefs] { prefs = Prefs::getSTPrefs(); });
	EXPECT_NE(output.find("  Err altWinBackCol \n"), std::string::npos);
	EXPECT_EQ(prefs->altWinBackCol, (rgb_color{216, 216, 216, 0}));
	EXPECT_FALSE(prefs->fError);
}


TEST_F(PrefsTest, UnreadableFileLeavesTheStartValues)
{
	// A folder stands where the file should be.
	ASSERT_EQ(mkdir(settings_path().c_str(), 0755), 0);
	Prefs* prefs = nullptr;
	const std::string output = test::OutputOf([&prefs] { prefs = Prefs::getSTPrefs(); });
	EXPECT_NE(output.find("Unknown error reading rs232_port:\n"), std::string::npos);
	EXPECT_EQ(output.find("ir_logfile"), std::string::npos);
	EXPECT_TRUE(prefs->fError);
	EXPECT_STREQ(prefs->rs232_port, "serial2");
	EXPECT_FALSE(prefs->window_by_begin);
	EXPECT_EQ(prefs->LINK_SIZE, 1);
	EXPECT_FALSE(prefs->LoadPrefs());

	bool saved = true;
	const std::string saving = test::OutputOf([&] { saved = prefs->Save(); });
	EXPECT_FALSE(saved);
	EXPECT_EQ(saving.find("Unknown error writing use_splitting:\n"), 0u);
	EXPECT_EQ(saving.find("Prefs-Save"), std::string::npos);
}


TEST_F(PrefsTest, PutReportsFailure)
{
	ASSERT_EQ(mkdir(settings_path().c_str(), 0755), 0);
	Prefs* const prefs = Prefs::getSTPrefs();
	prefs->fError = false;
	const long number = 1;
	EXPECT_FALSE(prefs->PutInt("number", &number));
	EXPECT_TRUE(prefs->fError);
}


TEST_F(PrefsTest, GetIntStoresItsDefault)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	long value = 1;
	const long deflt = -9;
	EXPECT_TRUE(prefs->GetInt("number", &value, &deflt));
	EXPECT_EQ(value, -9);
	EXPECT_EQ(attribute("number"), bytes_of(int32(-9)));

	const long other = 12;
	EXPECT_TRUE(prefs->PutInt("number", &other));
	value = 0x1234567800000000;
	EXPECT_TRUE(prefs->GetInt("number", &value, &deflt));
	EXPECT_EQ(value, 12);
}


TEST_F(PrefsTest, MissingFlagAndFrameTakeTheirDefaults)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	bool flag = false;
	const bool flagDefault = true;
	EXPECT_TRUE(prefs->GetBool("flag", &flag, &flagDefault));
	EXPECT_TRUE(flag);
	EXPECT_EQ(attribute("flag"), std::string(1, '\1'));

	BRect frame(9, 9, 9, 9);
	const BRect frameDefault(1, 2, 3, 4.5f);
	EXPECT_TRUE(prefs->GetRect("frame", &frame, &frameDefault));
	EXPECT_EQ(frame, frameDefault);
	const float floats[] = {1, 2, 3, 4.5f};
	EXPECT_EQ(attribute("frame"), bytes_of(floats));
}


TEST_F(PrefsTest, MissingTextIsStoredButNotCopied)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	char text[256] = "before";
	EXPECT_TRUE(prefs->GetStr("text", text, "default"));
	EXPECT_STREQ(text, "before");
	EXPECT_EQ(attribute("text"), "default");
}


// All others go back to their defaults.
TEST_F(PrefsTest, MissingSplittingKeepsItsValue)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	BNode node(settings_path().c_str());
	for (const FlagPref& pref : kFlagPrefs) {
		ASSERT_EQ(node.RemoveAttr(pref.key), B_OK);
		prefs->*pref.field = !pref.deflt;
	}
	EXPECT_TRUE(prefs->LoadPrefs());
	for (const FlagPref& pref : kFlagPrefs) {
		const bool expected = strcmp(pref.key, "use_splitting") == 0 ? true : pref.deflt;
		EXPECT_EQ(prefs->*pref.field, expected) << pref.key;
		EXPECT_EQ(attribute(pref.key), std::string(1, expected ? '\1' : '\0')) << pref.key;
	}
}


TEST_F(PrefsTest, TextsHaveTheirBuffersSizes)
{
	EXPECT_EQ(sizeof(Prefs::rs232_port), 80u);
	EXPECT_EQ(sizeof(Prefs::ir_logfile), 64u);
	EXPECT_EQ(sizeof(Prefs::fSpareText), 80u);
	EXPECT_EQ(sizeof(Prefs::Desktop), 80u);
	EXPECT_EQ(sizeof(Prefs::Application), 80u);
	EXPECT_EQ(sizeof(Prefs::Audio), 80u);
	EXPECT_EQ(sizeof(Prefs::Video), 80u);
	EXPECT_EQ(sizeof(Prefs::Presetfile), 80u);
	EXPECT_EQ(sizeof(Prefs::Layoutfile), 80u);
	EXPECT_EQ(sizeof(Prefs::pref_AudioApp), 255u);
}


TEST_F(PrefsTest, PrintPlayConditionsNamesThePlayState)
{
	Prefs* const prefs = Prefs::getSTPrefs();
	prefs->use_ompl = true;
	prefs->last_top_media = 4;
	prefs->last_top_media_buf = 12;
	prefs->next_top_media = 5;
	prefs->playingTitle = "Song";
	prefs->playingImage = 2;
	EXPECT_EQ(test::OutputOf([prefs] { prefs->PrintPlayConditions(); }),
		" -UseOwnPlaylist 1 \n"
		" last_top_media   4  last_top_media_buf  12\n"
		" next_top_media   5  last_timer_nr\t\t -1\n"
		" playingTitle: 'Song' \n"
		" playingImage: 2 \n");
}


TEST_F(PrefsTest, EnviromentFindsOrMakesTheLanguageFolder)
{
	app_info info;
	ASSERT_EQ(test::TheApplication().GetAppInfo(&info), B_OK);
	const std::filesystem::path folder
		= std::filesystem::path(BPath(&info.ref).Path()).parent_path() / "Language";
	std::filesystem::remove_all(folder);

	Prefs* const prefs = Prefs::getSTPrefs();
	EXPECT_NE(prefs->fLanguagePath.InitCheck(), B_OK);
	EXPECT_EQ(test::OutputOf([prefs] { prefs->Enviroment(); }),
		">> build: " + folder.string() + "\n");
	struct stat status;
	ASSERT_EQ(stat(folder.c_str(), &status), 0);
	EXPECT_TRUE(S_ISDIR(status.st_mode));
	const mode_t mask = umask(0);
	umask(mask);
	EXPECT_EQ(status.st_mode & 0777, 0755 & ~mask);
	EXPECT_STREQ(prefs->fLanguagePath.Path(), folder.c_str());
	EXPECT_EQ(test::OutputOf([prefs] { prefs->Enviroment(); }), ">> OK: " + folder.string() + "\n");
}
