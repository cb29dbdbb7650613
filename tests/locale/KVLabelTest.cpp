// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/KVLabel.h"

#include <memory>
#include <string>

#include <FindDirectory.h>
#include <InterfaceDefs.h>
#include <Node.h>
#include <TypeConstants.h>
#include <gtest/gtest.h>

#include "locale/Labels.h"
#include "locale/LanguageMemory.h"
#include "platform/screen/InputState.h"
#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"


namespace {

// A catalogue of its own, which is the process's for as long as it lives.
class KVLabelTest : public testing::Test {
protected:
	KVLabelTest()
		:
		fCatalogue(new KVLabel("KORU-Haiku"))
	{
		KVLabel::labelZgr = fCatalogue.get();
		fCatalogue->MirrorList(eLabel);
	}

	std::string Text(int number) { return fCatalogue->getLabel(nullptr, number); }

	// How many labels differ from the built-in ones.
	int CountChanged()
	{
		int count = 0;
		for (int number = 0; number < kLabelCount; number++)
			count += Text(number) != eLabel[number] ? 1 : 0;
		return count;
	}

	void Load(const std::string& contents, const std::string& name = "KORU-Haiku.deDE")
	{
		fCatalogue->LoadLangFile(fFolder.Write(name, contents).c_str());
	}

	// Writes a report in that language's name; what that prints is kept.
	std::string Report(const char* code)
	{
		fCatalogue->altLangFile.SetTo("/tmp/x.deDE");
		fCatalogue->lastLanguage = code;
		fOutput = test::OutputOf([this] { fCatalogue->ExpMissingStr(); });
		BPath home;
		find_directory(B_USER_DIRECTORY, &home);
		return test::ReadFile(std::string(home.Path()) + "/KORU-Haiku_" + code + "_Missing.txt");
	}

	static std::string ReportBegin(const std::string& kind)
	{
		return "# - - - missing in: \n# - - - '/tmp/x.deDE'\n# - - - " + kind + " Labels: \n";
	}

	// The code that the language memory holds for this catalogue's name.
	static std::string StoredUnderTheName()
	{
		BPath path;
		find_directory(B_USER_SETTINGS_DIRECTORY, &path);
		path.Append("_LP_x-vnd.KV/kv_simpel_locale");
		char code[6] = "";
		BNode(path.Path()).ReadAttr("KORU-Haiku", B_STRING_TYPE, 0, code, 5);
		return code;
	}

	test::TempFolder fFolder;
	std::unique_ptr<KVLabel> fCatalogue;
	std::string fOutput;
};

} // namespace


TEST_F(KVLabelTest, MirroredTableGivesItsTextsAndNothingElse)
{
	EXPECT_EQ(Text(0), "Koru");
	EXPECT_EQ(Text(220), "220");
	EXPECT_EQ(Text(221), "-nf-");
	EXPECT_EQ(Text(100000), "-nf-");
	EXPECT_EQ(fCatalogue->getLabel(nullptr, -1), nullptr);
	EXPECT_EQ(fCatalogue->mirrorLabel.CountItems(), 221);
	EXPECT_EQ(fCatalogue->fLastIndex, 220);
	EXPECT_NE(fCatalogue->getLabel(nullptr, 0), eLabel[0]);
}


TEST(KVLabel, BeforeMirroringThereIsNoText)
{
	KVLabel catalogue("Other");
	EXPECT_EQ(catalogue.getLabel(nullptr, 0), nullptr);
	EXPECT_STREQ(catalogue.getLabel(nullptr, 1), "-nf-");
	EXPECT_EQ(catalogue.Setting4App, "Other");
	EXPECT_EQ(catalogue.fLanguageCode, 0x64654445);
	EXPECT_EQ(catalogue.quelllist, nullptr);
}


TEST(KVLabel, ConstructionReadsTheStoredLanguageAndPrintsTheState)
{
	AskStrSetting("Other", "nlNL", true);
	std::unique_ptr<KVLabel> catalogue;
	const std::string output
		= test::OutputOf([&catalogue] { catalogue = std::make_unique<KVLabel>("Other"); });
	EXPECT_EQ(catalogue->lastLanguage, "nlNL");
	EXPECT_STREQ(catalogue->altLangFile.Leaf(), "notset");
	EXPECT_EQ(output,
		std::string("\n- - - - -\nlastLanguage: 'nlNL'\n Setting4App: 'Other'\n altLangFile: '")
			+ catalogue->altLangFile.Path()
			+ "'\n mirrorLabel:    0 Items \t(replaced:0)\n quelllist= (nil) \n- - - - -\n"
			  "\nBUILD-KVLabel-DONE\n");
}


TEST_F(KVLabelTest, EmptyTableGivesNothing)
{
	const char* const empty[] = {nullptr};
	fCatalogue->MirrorList(empty);
	EXPECT_EQ(fCatalogue->fLastIndex, -1);
	EXPECT_EQ(Text(0), "-nf-");
}


TEST_F(KVLabelTest, AppendedTableLeavesOneNullTextBehind)
{
	const char* const more[] = {"one", "two", nullptr};
	fCatalogue->AddToMirrorList(more);
	EXPECT_EQ(Text(221), "one");
	EXPECT_EQ(Text(222), "two");
	EXPECT_EQ(fCatalogue->getLabel(nullptr, 223), nullptr);
	EXPECT_EQ(Text(224), "-nf-");
	EXPECT_EQ(fCatalogue->quelllist, more);
}


TEST_F(KVLabelTest, FileReplacesItsTextAndStoresItsCode)
{
	Load("\"Open folder\"\t\t\"Ordner öffnen\"\n");
	EXPECT_EQ(Text(177), "Ordner öffnen");
	EXPECT_EQ(CountChanged(), 1);
	EXPECT_EQ(fCatalogue->fReplaced, 1);
	EXPECT_STREQ(fCatalogue->GetLastLanguage(), "deDE");
	EXPECT_STREQ(AskStrSetting("", "none", false), "deDE");
	EXPECT_STREQ(fCatalogue->altLangFile.Path(), (fFolder / "KORU-Haiku.deDE").c_str());
	EXPECT_EQ(StoredUnderTheName(), "deDE");
}


TEST_F(KVLabelTest, FileWithoutADotIsALanguageByItsPath)
{
	Load("\"Edit\"\t\t\"Bearbeiten\"\n", "German");
	EXPECT_EQ(Text(6), "Bearbeiten");
	EXPECT_STREQ(fCatalogue->GetLastLanguage(), (fFolder / "German").c_str());
}


TEST_F(KVLabelTest, MirroringAnewForgetsTheTranslations)
{
	Load("\"Open folder\"\t\t\"Ordner öffnen\"\n");
	EXPECT_EQ(fCatalogue->fReplaced, 1);
	fCatalogue->MirrorList(eLabel);
	EXPECT_EQ(CountChanged(), 0);
	EXPECT_EQ(fCatalogue->mirrorLabel.CountItems(), 221);
	EXPECT_EQ(fCatalogue->fReplaced, 0);
	EXPECT_EQ(fCatalogue->quelllist, eLabel);
	// Each load counts for itself.
	Load("\"Edit\"\t\t\"Bearbeiten\"\n");
	Load("# nothing\n");
	EXPECT_EQ(fCatalogue->fReplaced, 0);
}


TEST_F(KVLabelTest, TranslationThatHoldsAnotherTextOfTheSameLengthReplacesThatToo)
{
	Load("\"Quit\"\t\t\"No Edit\"\n");
	EXPECT_EQ(Text(7), "No Edit");
	EXPECT_EQ(Text(6), "No Edit");
}


TEST_F(KVLabelTest, SecondLineMatchesTheTextAsItIsNow)
{
	Load("\"Close\"\t\"Zu\"\n\"Close\"\t\"Ende\"\n\"Zu\"\t\"Schluss\"\n");
	EXPECT_EQ(Text(173), "Schluss");
	EXPECT_EQ(fCatalogue->fReplaced, 2);
}


TEST_F(KVLabelTest, LongTextIsMetInFull)
{
	const std::string text(230, 'x');
	Load("\"Edit\"\t\"" + text + "\"\n\"" + text + "\"\t\"short\"\n");
	EXPECT_EQ(Text(6), "short");
}


TEST_F(KVLabelTest, LabelsThatShareATextAreAllReplaced)
{
	Load("\"Prefered Audio-Application : \"\t\"Spieler\"\n");
	EXPECT_EQ(Text(200), "Spieler");
	EXPECT_EQ(Text(212), "Spieler");
}


TEST_F(KVLabelTest, CommentsAndBrokenLinesChangeNothing)
{
	Load("# \"Edit\"\t\"x\"\n \"Edit\"\t\"x\"\n\"Edit\"\n\"Edit\n\"\n\"\n\"Edit\"x\n\n");
	EXPECT_EQ(CountChanged(), 0);
	// Everything else of an entry is there.
	Load("#Edit\"\"\"x\"\n");
	EXPECT_EQ(CountChanged(), 0);
}


TEST_F(KVLabelTest, WhatFollowsTheFourthQuoteIsIgnored)
{
	Load("\"Edit\"\t\"Bearbeiten\" \"more\" \n");
	EXPECT_EQ(Text(6), "Bearbeiten");
}


TEST_F(KVLabelTest, LastLineWithoutEndLosesACharacter)
{
	Load("\"Edit\"\t\"Bearbeiten\"");
	EXPECT_EQ(Text(6), "Bearbeiten");
	Load("\"Quit\"\t\"Beenden");
	EXPECT_EQ(Text(7), "Beende");
}


TEST_F(KVLabelTest, OverlongLineIsSplit)
{
	const std::string translation(300, 'x');
	Load("\"Edit\"\t\"" + translation + "\"\n\"Quit\"\t\"Ende\"\n");
	// 254 characters are read, the last of them is cut like a line end.
	EXPECT_EQ(Text(6), translation.substr(0, 254 - 8 - 1));
	EXPECT_EQ(Text(7), "Ende");
}


TEST_F(KVLabelTest, MissingFileStoresThatThereIsNone)
{
	fCatalogue->lastLanguage = "frFR";
	const std::string output
		= test::OutputOf([this] { fCatalogue->LoadLangFile((fFolder / "none.deDE").c_str()); });
	EXPECT_NE(output.find(" 0 Bytes | ..oops cant open - reset\n"), std::string::npos) << output;
	EXPECT_EQ(CountChanged(), 0);
	EXPECT_STREQ(AskStrSetting("", "none", false), "_non");
	EXPECT_EQ(StoredUnderTheName(), "_non");
	EXPECT_STREQ(fCatalogue->GetLastLanguage(), "frFR");
}


TEST_F(KVLabelTest, EmptyFileStoresNothing)
{
	AskStrSetting("KORU-Haiku", "svSE", true);
	Load("", "KORU-Haiku.frFR");
	EXPECT_EQ(CountChanged(), 0);
	EXPECT_STREQ(AskStrSetting("", "none", false), "svSE");
}


TEST_F(KVLabelTest, LoadingPrintsWhatItDoes)
{
	const std::string path = fFolder.Write("KORU-Haiku.deDE", "\"Edit\"\t\"Bearbeiten\"\n");
	const std::string output
		= test::OutputOf([this, &path] { fCatalogue->LoadLangFile(path.c_str()); });
	EXPECT_EQ(output.find("KVLabel::LoadLangFile\n -'" + path
				  + "'-\n 20 Bytes |  ..(replaced: 1 )..done\n\n\nmod: "),
		0u)
		<< output;
}


// On a file that cannot be opened as well.
TEST_F(KVLabelTest, HeldKeysAskForTheReport)
{
	const struct {
		uint32 modifiers;
		const char* names;
	} cases[] = {{B_COMMAND_KEY | B_LEFT_COMMAND_KEY, "[B_COMMAND_KEY]"},
		{B_OPTION_KEY, "[B_OPTION_KEY]"}, {B_CONTROL_KEY, "[B_CONTROL_KEY]"},
		{B_COMMAND_KEY | B_OPTION_KEY | B_CONTROL_KEY,
			"[B_COMMAND_KEY][B_OPTION_KEY][B_CONTROL_KEY]"}};
	for (const auto& held : cases) {
		key_info keys = {};
		keys.modifiers = held.modifiers;
		hosted::SetCurrentKeys(keys);
		const std::string output = test::OutputOf([this] { fCatalogue->LoadLangFile("/none.xx"); });
		EXPECT_NE(output.find("\nmod: " + std::to_string(held.modifiers) + "  kstates: 0 "
					  + held.names + "\n- - - - -\n"),
			std::string::npos)
			<< output;
		EXPECT_NE(output.find("\n - ExpMissingStr -\n"), std::string::npos) << output;
	}

	key_info shift = {};
	shift.modifiers = B_SHIFT_KEY | B_CAPS_LOCK;
	hosted::SetCurrentKeys(shift);
	const std::string output = test::OutputOf([this] { fCatalogue->LoadLangFile("/none.xx"); });
	EXPECT_NE(output.find("\nmod: 9  kstates: 0 "), std::string::npos) << output;
	EXPECT_EQ(output.find("ExpMissingStr"), std::string::npos) << output;
	hosted::SetCurrentKeys(key_info());
}


TEST_F(KVLabelTest, ReportListsWhatIsUntranslated)
{
	Load("\"Edit\"\t\"Bearbeiten\"\n");
	const std::string output = test::OutputOf([this] { fCatalogue->ExpMissingStr(); });
	EXPECT_EQ(output, "\n - ExpMissingStr -\n - 0 not translated - \n");

	BPath home;
	find_directory(B_USER_DIRECTORY, &home);
	const std::string report
		= test::ReadFile(std::string(home.Path()) + "/KORU-Haiku_deDE_Missing.txt");
	EXPECT_EQ(report.find("# - - - missing in: \n# - - - '" + (fFolder / "KORU-Haiku.deDE")
				  + "'\n# - - - not translated Labels: \n\"Koru\"\t\t\"Koru\"\n"),
		0u)
		<< report;
	EXPECT_NE(report.find("\"Open folder\"\t\t\"Open folder\"\n"), std::string::npos);
	EXPECT_EQ(report.find("Edit\"\t"), std::string::npos);
}


TEST_F(KVLabelTest, ReportStopsWhereATableEnds)
{
	const char* const longer[] = {"a", "b", "c", nullptr};
	fCatalogue->MirrorList(longer);
	const char* const shorter[] = {"a", nullptr};
	fCatalogue->quelllist = shorter;
	EXPECT_EQ(Report("xxXX"),
		ReportBegin("not translated") + "\"a\"\t\t\"a\"\n\nBREAK: Q-POINTER IS NULL\n");
	EXPECT_EQ(fOutput, "\n - ExpMissingStr -\n - 0 not translated - \n");

	fCatalogue->quelllist = longer;
	delete[] static_cast<char*>(fCatalogue->mirrorLabel.ItemAt(1));
	fCatalogue->mirrorLabel.ReplaceItem(1, nullptr);
	EXPECT_EQ(Report("xxXX"),
		ReportBegin("not translated") + "\"a\"\t\t\"a\"\n\nBREAK: M-POINTER IS NULL\n");
	EXPECT_EQ(fOutput, "\n - ExpMissingStr -\n - 0 not translated - \n");
}


TEST_F(KVLabelTest, ReportWithoutASourceListsAll)
{
	const char* const table[] = {"a", " b", nullptr};
	fCatalogue->MirrorList(table);
	fCatalogue->quelllist = nullptr;
	EXPECT_EQ(Report("yyYY"), ReportBegin("all direct") + "\"a\"\n\" b\"\n");
	EXPECT_EQ(fOutput, "\n - ExpMissingStr -\n - 0 not translated - \n");
}


TEST_F(KVLabelTest, ReportOfNoTextsHasItsHeadAlone)
{
	fCatalogue->ClearMirrorList();
	EXPECT_EQ(Report("zzZZ"), "# - - - missing in: \n# - - - '/tmp/x.deDE'");
	EXPECT_EQ(fOutput, "\n - ExpMissingStr -\n");
}


TEST_F(KVLabelTest, ReportThatCannotBeWrittenIsPrinted)
{
	fCatalogue->lastLanguage = "no/such/folder";
	const std::string output = test::OutputOf([this] { fCatalogue->ExpMissingStr(); });
	EXPECT_EQ(output, "\n - ExpMissingStr -\n..can't open \n");
}


TEST_F(KVLabelTest, PrintToStreamShowsTheState)
{
	fCatalogue->lastLanguage = "deDE";
	fCatalogue->altLangFile.SetTo("/tmp/x.deDE");
	const std::string output = test::OutputOf([this] { fCatalogue->PrintToStream(); });
	EXPECT_EQ(output.find("\n- - - - -\nlastLanguage: 'deDE'\n Setting4App: 'KORU-Haiku'\n"
						  " altLangFile: '/tmp/x.deDE'\n"
						  " mirrorLabel:  221 Items \t(replaced:0)\n quelllist= 0x"),
		0u)
		<< output;
}


TEST_F(KVLabelTest, ListLabelPrintsATable)
{
	const char* const table[] = {"a", "b", nullptr};
	EXPECT_EQ(test::OutputOf([&] { fCatalogue->listLabel(table); }), "[a][b]\n");
}


TEST_F(KVLabelTest, DeleteMeEndsTheProcessCatalogue)
{
	const std::string output = test::OutputOf([this] { fCatalogue.release()->DeleteMe(); });
	EXPECT_EQ(output, "DESTROY-KVLabel done\nDESTROY-KVLabel::DeleteMe done\n");
	EXPECT_EQ(KVLabel::labelZgr, nullptr);
}


TEST(GetLabel, MakesTheCatalogueOnFirstUse)
{
	ASSERT_EQ(KVLabel::labelZgr, nullptr);
	EXPECT_STREQ(getLabel(5), "-nf-");
	ASSERT_NE(KVLabel::labelZgr, nullptr);
	EXPECT_EQ(KVLabel::labelZgr->Setting4App, "KORU-Haiku");
	KVLabel::labelZgr->MirrorList(eLabel);
	EXPECT_STREQ(getLabel(47), "using:");
	KVLabel::labelZgr->DeleteMe();
}
