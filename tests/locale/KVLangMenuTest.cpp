// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/KVLangMenu.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

#include <sys/stat.h>

#include <MenuItem.h>
#include <Message.h>
#include <Path.h>
#include <Roster.h>
#include <gtest/gtest.h>

#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "locale/LanguageMemory.h"
#include "locale/LanguageMessages.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Output.h"
#include "tests/support/Unprivileged.h"


namespace {

// Language files beside the test program, and no catalogue before and after.
class KVLangMenuTest : public testing::Test {
protected:
	void SetUp() override
	{
		app_info info;
		ASSERT_EQ(test::TheApplication().GetAppInfo(&info), B_OK);
		fProgramFolder = std::filesystem::path(BPath(&info.ref).Path()).parent_path();
		Clear();
		AskStrSetting("KORU-Haiku", "LAST", true);
	}

	void TearDown() override { Clear(); }

	void Clear()
	{
		std::filesystem::remove_all(fProgramFolder / "Dictionaries");
		std::filesystem::remove_all(fProgramFolder / "Language");
		delete KVLabel::labelZgr;
	}

	std::string Write(const std::string& name, const std::string& contents,
		const std::string& folder = "Dictionaries")
	{
		const std::filesystem::path path = fProgramFolder / folder / name;
		std::filesystem::create_directories(path.parent_path());
		std::ofstream(path) << contents;
		return path;
	}

	std::filesystem::path fProgramFolder;
};


BMessage
choice(const KVLangMenu& menu, int32 index)
{
	return *menu.ItemAt(index)->Message();
}

} // namespace


TEST_F(KVLangMenuTest, OffersTheFilesAndMarksTheLastLanguage)
{
	Write("KORU-Haiku.deDE", "x");
	const std::string french = Write("KORU-Haiku.frFR", "x");
	AskStrSetting("KORU-Haiku", "frFR", true);
	const KVLangMenu menu("Language", "KORU-Haiku");
	ASSERT_EQ(menu.CountItems(), 4);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "Deutsch");
	EXPECT_STREQ(menu.ItemAt(1)->Label(), "Français");
	EXPECT_STREQ(menu.ItemAt(3)->Label(), "-default");
	EXPECT_FALSE(menu.ItemAt(0)->IsMarked());
	EXPECT_TRUE(menu.ItemAt(1)->IsMarked());
	EXPECT_FALSE(menu.ItemAt(3)->IsMarked());
	EXPECT_EQ(menu.fSelected, 1);
	EXPECT_EQ(menu.fItemCount, 4);
	EXPECT_STREQ(menu.fLanguageFilePath.String(), french.c_str());

	EXPECT_EQ(choice(menu, 1).what, kMsgLanguageChanged);
	EXPECT_EQ(choice(menu, 1).GetInt32("_MenuItem", -1), 1);
	EXPECT_STREQ(choice(menu, 1).GetString("_LangFilePath"), french.c_str());
	EXPECT_EQ(choice(menu, 3).GetInt32("_MenuItem", -1), 3);
	EXPECT_STREQ(choice(menu, 3).GetString("_LangFilePath"), "_none");
}


TEST_F(KVLangMenuTest, NameCountsWithoutRegardToCase)
{
	Write("koru-haiku.ruRU", "x");
	Write("Notes.deDE", "x");
	const KVLangMenu menu("Language", "KORU-Haiku");
	ASSERT_EQ(menu.CountItems(), 3);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "Russian");
	// Nothing was ever chosen.
	EXPECT_TRUE(menu.ItemAt(2)->IsMarked());
	EXPECT_EQ(menu.fSelected, -1);
	EXPECT_EQ(menu.fLanguageFilePath, "");
}


TEST_F(KVLangMenuTest, UnknownCodeIsShownAsItsFileName)
{
	Write("KORU-Haiku.xxXX", "x");
	const KVLangMenu menu("Language", "KORU-Haiku");
	ASSERT_EQ(menu.CountItems(), 3);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "KORU-Haiku.xxXX");
}


TEST_F(KVLangMenuTest, WithoutAFolderTheMenuIsEmpty)
{
	std::unique_ptr<KVLangMenu> menu;
	const std::string output = test::OutputOf(
		[&menu] { menu = std::make_unique<KVLangMenu>("Language", "KORU-Haiku"); });
	EXPECT_EQ(menu->CountItems(), 0);
	EXPECT_NE(output.find("KVLangMenu::ScanFolder()\nKVLangMenu: '"
				  + (fProgramFolder / "Dictionaries").string() + "'\noops: "),
		std::string::npos);
	EXPECT_NE(output.find("Language/Dictionaries'\noops: "), std::string::npos);
	EXPECT_NE(output.find(" back 0 \n"), std::string::npos);
}


TEST_F(KVLangMenuTest, SecondFolderServesIfThereIsNoFirst)
{
	Write("KORU-Haiku.itIT", "x", "Language/Dictionaries");
	const KVLangMenu menu("Language", "KORU-Haiku");
	ASSERT_EQ(menu.CountItems(), 3);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "Italian");
}


TEST_F(KVLangMenuTest, EmptyFilesAndFoldersAreLeftOut)
{
	Write("KORU-Haiku.deDE", "");
	Write("KORU-Haiku.frFR/inner", "x");
	Write("KORU-Haiku.plPL", "x");
	const KVLangMenu menu("Language", "KORU-Haiku");
	ASSERT_EQ(menu.CountItems(), 3);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "Polish");
	EXPECT_EQ(choice(menu, 0).GetInt32("_MenuItem", -1), 0);
}


TEST_F(KVLangMenuTest, NamesOfAllCodes)
{
	KVLangMenu menu("Language", "KORU-Haiku");
	const auto name_for = [&menu](const char* fileName) {
		char name[B_FILE_NAME_LENGTH] = "";
		menu.GetNameFor(fileName, name);
		return std::string(name);
	};
	const std::pair<const char*, const char*> names[] = {{"arAR", "Argentina"},
		{"nlBE", "Belgisch"}, {"bgBG", "Bulgaria"}, {"deDE", "Deutsch"}, {"enUK", "English (UK)"},
		{"enUS", "English (US)"}, {"esES", "Español"}, {"etEE", "Estonia"}, {"fiFI", "Finnish"},
		{"frFR", "Français"}, {"itIT", "Italian"}, {"jaJP", "日本語"}, {"huHU", "Magyar"},
		{"nlNL", "Nederlands"}, {"noNO", "Norsk"}, {"plPL", "Polish"}, {"ptPT", "Português"},
		{"ruRU", "Russian"}, {"svSE", "Svenska"}, {"trTR", "Tuerkç"}};
	for (const auto& [code, name] : names) {
		EXPECT_EQ(name_for((std::string("KORU-Haiku.") + code).c_str()), name);
		EXPECT_EQ(name_for((std::string("x.") + code + ".old").c_str()), name);
		// Without the dot, in another case, or with nothing before it, the code is none.
		EXPECT_EQ(name_for((std::string("KORU-Haiku-") + code).c_str()),
			std::string("KORU-Haiku-") + code);
		EXPECT_EQ(name_for((std::string(".") + code).c_str()), std::string(".") + code);
	}
	EXPECT_EQ(name_for("KORU-Haiku.dede"), "KORU-Haiku.dede");
	// The first code of the table, not of the name, and wherever the name has it again.
	EXPECT_EQ(name_for("KORU-Haiku.frFR.nlBE"), "Belgisch");
	EXPECT_EQ(name_for(".deDE.deDE"), "Deutsch");
	EXPECT_EQ(test::OutputOf([&menu] { menu.GetNameFor("x", nullptr); }), " oops no INTO-ADR \n");
}


TEST_F(KVLangMenuTest, ScanPrintsEachFile)
{
	const std::string german = Write("KORU-Haiku.deDE", "four");
	const std::string empty = Write("KORU-Haiku.frFR", "");
	const std::string closed = Write("KORU-Haiku.plPL", "x");
	ASSERT_EQ(chmod(closed.c_str(), 0), 0);
	AskStrSetting("KORU-Haiku", "deDE", true);
	KVLabel::getKVLabel("KORU-Haiku");
	std::string output;
	{
		const test::Unprivileged user;
		ASSERT_TRUE(user.IsDone());
		output = test::OutputOf([] { KVLangMenu("Language", "KORU-Haiku"); });
	}
	EXPECT_EQ(output,
		"KVLangMenu::ScanFolder()\nKVLangMenu: '" + (fProgramFolder / "Dictionaries").string()
			+ "'\n: '" + german + "'  4 Bytes\n  = last selected !\n: '" + empty
			+ "'  0 Bytes\n can't read 0 ..ooops cant open\n back 1 \n");
}


TEST_F(KVLangMenuTest, LastOfSeveralFilesOfTheLanguageIsTheOne)
{
	Write("KORU-Haiku.1.deDE", "x");
	const std::string second = Write("KORU-Haiku.2.deDE", "x");
	Write("KORU-Haiku.frFR", "x");
	AskStrSetting("KORU-Haiku", "deDE", true);
	const KVLangMenu menu("Language", "KORU-Haiku");
	EXPECT_TRUE(menu.ItemAt(0)->IsMarked());
	EXPECT_TRUE(menu.ItemAt(1)->IsMarked());
	EXPECT_FALSE(menu.ItemAt(2)->IsMarked());
	EXPECT_FALSE(menu.ItemAt(4)->IsMarked());
	EXPECT_EQ(menu.fSelected, 1);
	EXPECT_STREQ(menu.fLanguageFilePath.String(), second.c_str());
}


TEST_F(KVLangMenuTest, LanguageIsLookedForInTheWholePath)
{
	Write("KORU-Haiku.deDE", "x");
	// Any path beside the program has that in it.
	AskStrSetting("KORU-Haiku", "Dict", true);
	const KVLangMenu menu("Language", "KORU-Haiku");
	EXPECT_TRUE(menu.ItemAt(0)->IsMarked());
	EXPECT_EQ(menu.fSelected, 0);
}


TEST_F(KVLangMenuTest, TablesGoToTheCatalogue)
{
	KVLangMenu menu("Language", "KORU-Haiku");
	const char* const first[] = {"a", nullptr};
	const char* const second[] = {"b", "c", nullptr};
	menu.MirrorThisList(first);
	menu.MirrorAddThisList(second);
	EXPECT_EQ(menu.fCatalogue->mirrorLabel.CountItems(), 3);
	EXPECT_STREQ(menu.fCatalogue->getLabel(nullptr, 2), "c");
}


TEST_F(KVLangMenuTest, ChosenLanguageIsLoadedAndMarked)
{
	Write("KORU-Haiku.deDE", "\"Edit\"\t\"Bearbeiten\"\n");
	Write("KORU-Haiku.frFR", "\"Edit\"\t\"Modifier\"\n");
	KVLangMenu menu("Language", "KORU-Haiku");
	menu.MirrorThisList(eLabel);

	BMessage message = choice(menu, 1);
	const std::string output = test::OutputOf([&] { menu.SetLangFile(&message); });
	EXPECT_NE(output.find(" Mark Item nr: 1\n\n- - - - -\nlastLanguage: 'frFR'\n"),
		std::string::npos)
		<< output;
	EXPECT_STREQ(getLabel(6), "Modifier");
	EXPECT_TRUE(menu.ItemAt(1)->IsMarked());
	EXPECT_FALSE(menu.ItemAt(3)->IsMarked());
	EXPECT_STREQ(AskStrSetting("", "none", false), "frFR");

	menu.MirrorThisList(eLabel);
	message = choice(menu, 3);
	menu.SetLangFile(&message);
	EXPECT_STREQ(getLabel(6), "Edit");
	EXPECT_FALSE(menu.ItemAt(1)->IsMarked());
	EXPECT_TRUE(menu.ItemAt(3)->IsMarked());
	EXPECT_STREQ(AskStrSetting("", "none", false), "_non");
}


TEST_F(KVLangMenuTest, IncompleteMessagesAreReported)
{
	KVLangMenu menu("Language", "KORU-Haiku");
	BMessage message(kMsgLanguageChanged);
	const std::string output = test::OutputOf([&] { menu.SetLangFile(&message); });
	EXPECT_NE(output.find("KVLangMenu::SetLangFile: _LangFilePath nf.\n"), std::string::npos);
	EXPECT_NE(output.find("KVLangMenu::SetLangFile: _MenuItem nf.\n"), std::string::npos);
}


TEST_F(KVLangMenuTest, FollowsAnotherCopyWithItsOwnFile)
{
	Write("KORU-Haiku.deDE", "\"Edit\"\t\"Bearbeiten\"\n\"Close\"\t\"Zu\"\n");
	Write("KORU-Haiku.frFR", "\"Edit\"\t\"Modifier\"\n");
	KVLangMenu menu("Language", "KORU-Haiku");
	menu.MirrorThisList(eLabel);

	BMessage message(kMsgLanguageChanged);
	message.AddString("_LangFilePath", "/elsewhere/Dictionaries/KORU-Haiku.deDE");
	menu.FollowLangFile(message, eLabel);
	EXPECT_STREQ(getLabel(6), "Bearbeiten");
	EXPECT_TRUE(menu.ItemAt(0)->IsMarked());
	EXPECT_FALSE(menu.ItemAt(3)->IsMarked());
	// What is loaded already is not loaded again.
	EXPECT_EQ(test::OutputOf([&] { menu.FollowLangFile(message, eLabel); }), "");

	// The next language starts from the built-in texts.
	BMessage french = choice(menu, 1);
	menu.FollowLangFile(french, eLabel);
	EXPECT_STREQ(getLabel(6), "Modifier");
	EXPECT_STREQ(getLabel(173), "Close");
	BMessage none = choice(menu, 3);
	menu.FollowLangFile(none, eLabel);
	EXPECT_STREQ(getLabel(6), "Edit");
	EXPECT_TRUE(menu.ItemAt(3)->IsMarked());
	EXPECT_STREQ(AskStrSetting("", "none", false), "_non");
}


TEST_F(KVLangMenuTest, FollowsNobodyToAFileThatIsNotInTheMenu)
{
	Write("KORU-Haiku.deDE", "\"Edit\"\t\"Bearbeiten\"\n");
	KVLangMenu menu("Language", "KORU-Haiku");
	menu.MirrorThisList(eLabel);
	BMessage message(kMsgLanguageChanged);
	EXPECT_EQ(test::OutputOf([&] { menu.FollowLangFile(message, eLabel); }), "");
	message.AddString("_LangFilePath", "/elsewhere/KORU-Remote.deDE");
	EXPECT_EQ(test::OutputOf([&] { menu.FollowLangFile(message, eLabel); }), "");
	for (const char* path : {"", "/", "..", "KORU-Haiku"}) {
		message.ReplaceString("_LangFilePath", path);
		EXPECT_EQ(test::OutputOf([&] { menu.FollowLangFile(message, eLabel); }), "") << path;
	}
	EXPECT_STREQ(getLabel(6), "Edit");
	menu.fCatalogue = nullptr;
	message.ReplaceString("_LangFilePath", "KORU-Haiku.deDE");
	EXPECT_EQ(test::OutputOf([&] { menu.FollowLangFile(message, eLabel); }), "");
}


TEST_F(KVLangMenuTest, WithoutACatalogueItSaysSo)
{
	KVLangMenu menu("Language", "KORU-Haiku");
	menu.fCatalogue = nullptr;
	const std::string output = test::OutputOf([&menu] {
		menu.MirrorThisList(eLabel);
		menu.MirrorAddThisList(eLabel);
		menu.LoadLangFile("x");
	});
	EXPECT_EQ(output,
		" KVLabel-Class not installed \n KVLabel-Class not installed \n"
		" KVLabel-Class not installed \n");
}
