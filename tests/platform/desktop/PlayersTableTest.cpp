// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/PlayersTable.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <stdlib.h>

#include "tests/support/TempFolder.h"

using hosted::BuiltInPlayersTable;
using hosted::CurrentPlayersTable;
using hosted::ParsePlayersTable;
using hosted::PlayerEntry;
using hosted::PlayersTable;


namespace {

using Texts = std::vector<std::string>;

constexpr char kTwoPlayers[] = "# Two\n"
							   "spare application/x-vnd.spare\n"
							   "\n"
							   "player one # the first\n"
							   "\tsignature application/x-vnd.one\n"
							   "\texecutable one uno\n"
							   "\tdesktop one.desktop\n"
							   "\tmpris one org.One\n"
							   "\ttypes audio video\n"
							   "player two\n"
							   "\tsignature application/x-vnd.two\n"
							   "\texecutable two\n"
							   "\ttypes audio";

// The signatures that programs both offer in their menus and ask to quit.
const std::set<std::string> kKnownSignatures
	= {"application/x-vnd.marcone-soundplay", "application/x-vnd.RMC.Zenebona",
		"application/x-vnd.yT-MediaPlayer", "application/x-vnd.Be.MediaPlayer",
		"application/x-vnd.YT-MediaPlayer", "application/x-vnd.yT-AudioTagger",
		"application/x-vnd.Haiku-MediaPlayer", "application/x-vnd.videolan-vlc"};

} // namespace


TEST(ParsePlayersTable, ReadsAllFields)
{
	std::string problems;
	const PlayersTable table = ParsePlayersTable(kTwoPlayers, &problems);
	EXPECT_EQ(problems, "");
	EXPECT_EQ(table.spareSignatures, Texts{"application/x-vnd.spare"});
	ASSERT_EQ(table.players.size(), 2u);
	const PlayerEntry& one = table.players[0];
	EXPECT_EQ(one.name, "one");
	EXPECT_EQ(one.signature, "application/x-vnd.one");
	EXPECT_EQ(one.executables, (Texts{"one", "uno"}));
	EXPECT_EQ(one.desktopEntries, Texts{"one.desktop"});
	EXPECT_EQ(one.busNames, (Texts{"one", "org.One"}));
	EXPECT_TRUE(one.playsAudio);
	EXPECT_TRUE(one.playsVideo);
	EXPECT_FALSE(table.players[1].playsVideo);
	EXPECT_EQ(table.Find("two"), &table.players[1]);
	EXPECT_EQ(table.Find("three"), nullptr);
}


TEST(ParsePlayersTable, ReportsWhatItLeavesOut)
{
	std::string problems;
	const PlayersTable table = ParsePlayersTable("signature application/x-vnd.lost\n"
												 "player\n"
												 "player half\n"
												 "\texecutable half\n"
												 "\tcolor red\n"
												 "player bad\n"
												 "\tsignature nonsense\n"
												 "\texecutable bad\n",
		&problems);
	EXPECT_TRUE(table.players.empty());
	EXPECT_EQ(problems,
		"line 1 means nothing: signature application/x-vnd.lost\n"
		"line 2 means nothing: player\n"
		"line 5 means nothing: \tcolor red\n"
		"player half lacks its signature or executable\n"
		"player bad lacks its signature or executable\n");
}


TEST(ParsePlayersTable, AnyBytesAreHarmless)
{
	std::string bytes;
	for (int i = 0; i < 5000; i++)
		bytes += static_cast<char>((i * 7919) >> 3);
	std::string problems;
	EXPECT_TRUE(ParsePlayersTable(bytes, &problems).players.empty());
	EXPECT_NE(problems, "");
}


TEST(PlayersTable, ExtensionComesFirstAndReplaces)
{
	PlayersTable table = ParsePlayersTable(kTwoPlayers, nullptr);
	table.Extend(ParsePlayersTable("spare application/x-vnd.mine\n"
								   "player two\n"
								   "\tsignature application/x-vnd.other\n"
								   "\texecutable /opt/two\n",
		nullptr));
	ASSERT_EQ(table.players.size(), 2u);
	EXPECT_EQ(table.players[0].name, "two");
	EXPECT_EQ(table.players[0].signature, "application/x-vnd.other");
	EXPECT_EQ(table.players[1].name, "one");
	EXPECT_EQ(table.spareSignatures, (Texts{"application/x-vnd.mine", "application/x-vnd.spare"}));
}


TEST(BuiltInPlayersTable, HasNoProblemAndOnlySignaturesThatProgramsKnow)
{
	std::string problems;
	const PlayersTable table = ParsePlayersTable(BuiltInPlayersTable(), &problems);
	EXPECT_EQ(problems, "");
	EXPECT_GE(table.players.size(), 20u);
	std::set<std::string> names;
	for (const PlayerEntry& player : table.players) {
		EXPECT_TRUE(names.insert(player.name).second) << player.name;
		EXPECT_EQ(kKnownSignatures.count(player.signature), 1u) << player.signature;
		EXPECT_TRUE(player.playsAudio) << player.name;
	}
	EXPECT_EQ(std::set<std::string>(table.spareSignatures.begin(), table.spareSignatures.end()),
		kKnownSignatures);
	ASSERT_NE(table.Find("vlc"), nullptr);
	EXPECT_EQ(table.Find("vlc")->signature, "application/x-vnd.videolan-vlc");
}


TEST(CurrentPlayersTable, FollowsTheUsersFile)
{
	test::TempFolder settings;
	const std::string before = getenv("XDG_CONFIG_HOME");
	setenv("XDG_CONFIG_HOME", settings.Path().c_str(), 1);
	EXPECT_EQ(CurrentPlayersTable().Find("mine"), nullptr);

	settings.Write("VinyloH/players.table",
		"player mine\nsignature application/x-vnd.mine\nexecutable mine\n");
	const PlayersTable table = CurrentPlayersTable();
	ASSERT_NE(table.Find("mine"), nullptr);
	EXPECT_EQ(table.players.front().name, "mine");
	EXPECT_NE(table.Find("vlc"), nullptr);

	settings.Write("VinyloH/players.table", "# nothing\n");
	EXPECT_EQ(CurrentPlayersTable().Find("mine"), nullptr);
	setenv("XDG_CONFIG_HOME", before.c_str(), 1);
}
