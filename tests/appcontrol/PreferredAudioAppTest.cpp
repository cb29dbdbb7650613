// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "appcontrol/PreferredAudioApp.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>

#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <MimeType.h>
#include <gtest/gtest.h>

#include "appcontrol/PlayerMessages.h"
#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"


namespace {

class AskForPrefAppTest : public testing::Test {
protected:
	AskForPrefAppTest()
	{
		test::TheApplication();
		KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
		Prefs::DeleteMe();
	}

	// Three players of the user's own: one is known, the next one's signature differs by its case,
	// and one was thrown away.
	static void SetUpTestSuite()
	{
		sFolder = std::make_unique<test::TempFolder>();
		const std::string known = sFolder->Write("known-player", "#!/bin/sh\n");
		const std::string unknown = sFolder->Write("unknown-player", "#!/bin/sh\n");
		chmod(known.c_str(), 0755);
		chmod(unknown.c_str(), 0755);
		const std::string trashed = sFolder->Write("Trash/files/trashed-player", "#!/bin/sh\n");
		chmod(trashed.c_str(), 0755);
		const std::string folder = std::string(getenv("XDG_CONFIG_HOME")) + "/VinyloH";
		std::filesystem::create_directories(folder);
		std::ofstream(folder + "/players.table")
			<< "player known\n\tsignature application/x-vnd.ClaesL-CLAmp\n\texecutable " << known
			<< "\n\ttypes audio\nplayer unknown\n\tsignature application/x-vnd.claesl-clamp\n"
			<< "\texecutable " << unknown << "\n\ttypes audio\nplayer trashed\n"
			<< "\tsignature application/x-vnd.yT-AudioTagger\n\texecutable " << trashed
			<< "\n\ttypes audio\n";
	}

	static void TearDownTestSuite() { sFolder.reset(); }

	std::string Fill()
	{
		fMenu = std::make_unique<BMenu>("players");
		return test::OutputOf([this] { AskForPrefApp(fMenu.get()); });
	}

	std::unique_ptr<BMenu> fMenu;

	static std::unique_ptr<test::TempFolder> sFolder;
};

std::unique_ptr<test::TempFolder> AskForPrefAppTest::sFolder;

} // namespace


TEST_F(AskForPrefAppTest, NoneComesFirstAndIsMarked)
{
	Fill();
	ASSERT_GE(fMenu->CountItems(), 2);
	const BMenuItem* const none = fMenu->ItemAt(0);
	EXPECT_STREQ(none->Label(), " -none-");
	EXPECT_TRUE(none->IsMarked());
	EXPECT_EQ(none->Command(), kMsgPreferredAudioApp);
	EXPECT_STREQ(none->Message()->GetString("aa_mime"), " -none-");
	EXPECT_NE(dynamic_cast<BSeparatorItem*>(fMenu->ItemAt(1)), nullptr);
	EXPECT_TRUE(fMenu->IsRadioMode());
}


TEST_F(AskForPrefAppTest, PlayerWhoseSignatureDiffersInCaseIsUnknown)
{
	const std::string output = Fill();
	ASSERT_NE(fMenu->FindItem("known-player"), nullptr);
	EXPECT_STREQ(fMenu->FindItem("known-player")->Message()->GetString("aa_mime"),
		((*sFolder) / "known-player").c_str());
	EXPECT_EQ(fMenu->FindItem("unknown-player"), nullptr);
	EXPECT_NE(output.find("[DA_App_H] [30]: '" + ((*sFolder) / "known-player") + "' [OK]\n"),
		std::string::npos);
	EXPECT_NE(output.find(" [unknown] [30]: '" + ((*sFolder) / "unknown-player") + "' [Trouble]\n"),
		std::string::npos);
}


TEST_F(AskForPrefAppTest, PlayerThatIsNotInstalledIsPrintedAndLeftOut)
{
	const std::string output = Fill();
	EXPECT_EQ(fMenu->FindItem("trashed-player"), nullptr);
	EXPECT_NE(output.find("[DA_App_F] [not found: 'application/x-vnd.yT-AudioTagger']\n"),
		std::string::npos)
		<< output;
}


TEST_F(AskForPrefAppTest, PlayersCarryTheirPathsAndThePreferredOneIsMarked)
{
	Fill();
	for (int32 index = 2; index < fMenu->CountItems(); index++) {
		const std::string path = fMenu->ItemAt(index)->Message()->GetString("aa_mime");
		EXPECT_EQ(path.substr(path.rfind('/') + 1), fMenu->ItemAt(index)->Label());
		EXPECT_FALSE(fMenu->ItemAt(index)->IsMarked());

		Prefs* const prefs = Prefs::getSTPrefs();
		snprintf(prefs->pref_AudioApp, sizeof(prefs->pref_AudioApp), "%s", path.c_str());
		Fill();
		EXPECT_TRUE(fMenu->ItemAt(index)->IsMarked());
		EXPECT_FALSE(fMenu->ItemAt(0)->IsMarked());
		strcpy(prefs->pref_AudioApp, "-empty-");
		Fill();
	}
}


TEST_F(AskForPrefAppTest, PrintsWhatItFinds)
{
	BMessage reply;
	BMimeType("audio/x-mpeg").GetSupportingApps(&reply);
	const std::string output = Fill();
	EXPECT_EQ(output.find("\nAskForPrefApp() \n"), 0u);
	EXPECT_NE(output.find(" subs:"), std::string::npos);

	const std::string silent = test::OutputOf([] { AskForPrefApp(nullptr); });
	EXPECT_EQ(silent.find(" [OK]"), std::string::npos);
	const char* signature;
	for (int32 index = 0; reply.FindString("applications", index, &signature) == B_OK; index++) {
		const std::string support
			= index < reply.GetInt32("be:sub", 0) ? "     Full support: '" : "Supertype support: '";
		EXPECT_NE(output.find(support + signature + "'\n"), std::string::npos) << signature;
		EXPECT_NE(silent.find(support + signature + "'\n"), std::string::npos) << signature;
	}
}
