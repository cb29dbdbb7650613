// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Players.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/Processes.h"
#include "tests/platform/desktop/DesktopSupport.h"
#include "tests/support/Program.h"
#include "tests/support/Wait.h"

using hosted::FindInstalledPlayer;
using hosted::FindRunningPlayer;
using hosted::InstalledPlayer;
using hosted::InstalledPlayers;
using hosted::RunningPlayer;


namespace {

// Runs until it is killed, and leaves nothing behind for long.
constexpr char kSleepingScript[] = "#!/bin/sh\nwhile :; do sleep 0.1; done\n";


std::map<std::string, InstalledPlayer>
players_by_name()
{
	std::map<std::string, InstalledPlayer> players;
	for (const InstalledPlayer& player : InstalledPlayers())
		players[player.entry.name] = player;
	return players;
}

} // namespace


TEST(InstalledPlayers, FindsTheRealOnesWithTheirEntries)
{
	const std::map<std::string, InstalledPlayer> players = players_by_name();
	ASSERT_EQ(players.count("vlc"), 1u);
	ASSERT_EQ(players.count("mpv"), 1u);
	EXPECT_EQ(players.at("vlc").signature, "application/x-vnd.videolan-vlc");
	EXPECT_EQ(players.at("vlc").executable, "/usr/bin/vlc");
	EXPECT_EQ(players.at("mpv").desktopEntry, "mpv.desktop");
	EXPECT_TRUE(PlayerOpensType(players.at("mpv"), "audio/mpeg"));
	EXPECT_FALSE(PlayerOpensType(players.at("mpv"), "image/png"));
	EXPECT_TRUE(PlayerOpensSupertype(players.at("mpv"), "video"));
	EXPECT_FALSE(PlayerOpensSupertype(players.at("mpv"), "text"));
}


TEST(InstalledPlayers, EachIsOfferedUnderASignatureOfItsOwn)
{
	test::ProgramFolder folder;
	for (const char* name : {"audacious", "qmmp", "deadbeef", "strawberry", "clementine"})
		folder.Add(name, kSleepingScript);
	std::set<std::string> signatures;
	for (const InstalledPlayer& player : InstalledPlayers()) {
		EXPECT_TRUE(player.offered) << player.entry.name;
		EXPECT_TRUE(signatures.insert(player.signature).second) << player.signature;
		InstalledPlayer found;
		ASSERT_TRUE(FindInstalledPlayer(player.signature.c_str(), &found));
		EXPECT_EQ(found.executable, player.executable);
	}
	EXPECT_EQ(signatures.size(), 7u);
	const std::map<std::string, InstalledPlayer> players = players_by_name();
	EXPECT_EQ(players.at("audacious").signature, players.at("audacious").entry.signature);
	EXPECT_EQ(players.at("strawberry").signature, players.at("strawberry").entry.signature);
}


TEST(InstalledPlayers, WithoutFreeSignatureTheOwnOneIsSecondChoice)
{
	test::ProgramFolder folder;
	for (const char* name : {"audacious", "qmmp", "deadbeef", "strawberry", "clementine", "elisa",
			 "rhythmbox", "totem", "parole"})
		folder.Add(name, kSleepingScript);
	const std::map<std::string, InstalledPlayer> players = players_by_name();
	size_t offered = 0;
	for (const auto& [name, player] : players)
		offered += player.offered ? 1 : 0;
	EXPECT_EQ(players.size(), 11u);
	EXPECT_EQ(offered, 8u);
	ASSERT_FALSE(players.at("parole").offered);
	EXPECT_EQ(players.at("parole").signature, "application/x-vnd.Be.MediaPlayer");
	InstalledPlayer found;
	ASSERT_TRUE(FindInstalledPlayer("application/x-vnd.Be.MediaPlayer", &found));
	EXPECT_EQ(found.entry.name, "rhythmbox");
}


TEST(FindInstalledPlayer, ExactCaseGoesFirst)
{
	test::ProgramFolder folder;
	// Together they need all eight signatures.
	for (const char* name :
		{"audacious", "qmmp", "deadbeef", "strawberry", "celluloid", "rhythmbox"})
		folder.Add(name, kSleepingScript);
	InstalledPlayer found;
	ASSERT_TRUE(FindInstalledPlayer("application/x-vnd.yT-MediaPlayer", &found));
	const std::string one = found.executable;
	ASSERT_TRUE(FindInstalledPlayer("application/x-vnd.YT-MediaPlayer", &found));
	EXPECT_NE(found.executable, one);
	ASSERT_TRUE(FindInstalledPlayer("APPLICATION/x-vnd.VideoLAN-VLC", &found));
	EXPECT_EQ(found.entry.name, "vlc");
	EXPECT_FALSE(FindInstalledPlayer("application/x-vnd.nobody", &found));
}


TEST(FindExecutable, KnowsFullPathsAndNames)
{
	test::ProgramFolder folder;
	const std::string path = folder.Add("some-player", kSleepingScript);
	EXPECT_EQ(hosted::FindExecutable("some-player"), path);
	EXPECT_EQ(hosted::FindExecutable(path), path);
	EXPECT_EQ(hosted::FindExecutable(path + "x"), "");
	EXPECT_EQ(hosted::FindExecutable("no-such-player"), "");
	EXPECT_EQ(hosted::FindExecutable("../some-player"), "");
	EXPECT_EQ(hosted::FindExecutable(""), "");
}


TEST(CommandWithFiles, FilesTakeThePlaceOfTheirPlaceholder)
{
	using Texts = std::vector<std::string>;
	hosted::DesktopEntry entry;
	entry.command = {"player", "%i", "--open", "%U", "--quiet"};
	EXPECT_EQ(CommandWithFiles(entry, {"/a b", "/c;d"}),
		(Texts{"player", "--open", "/a b", "/c;d", "--quiet"}));
	EXPECT_EQ(CommandWithFiles(entry, {}), (Texts{"player", "--open", "--quiet"}));
	entry.command = {"player"};
	EXPECT_EQ(CommandWithFiles(entry, {"/a"}), (Texts{"player", "/a"}));
}


TEST(RunningPlayers, AScriptOfAPlayersNameIsFoundByItsProcess)
{
	test::ProgramFolder folder;
	const std::string path = folder.Add("audacious", kSleepingScript);
	test::Program program({path});
	RunningPlayer player;
	ASSERT_TRUE(test::WaitFor([&]() { return FindRunningPlayer(program.Id(), &player); }));
	EXPECT_EQ(player.signature, "application/x-vnd.marcone-soundplay");
	EXPECT_EQ(player.executable, path);
	EXPECT_TRUE(player.busNames.empty());
	program.Kill(SIGKILL);
	ASSERT_TRUE(program.WaitForEnd());
	EXPECT_FALSE(FindRunningPlayer(program.Id(), &player));
}


TEST(RunningPlayers, AProgramThatOnlyReadsAPlayersFileIsNone)
{
	test::ProgramFolder folder;
	const std::string path = folder.Add("audacious", kSleepingScript);
	test::Program reader({"tail", "-f", path});
	ASSERT_TRUE(reader.WaitForLine("#!/bin/sh"));
	RunningPlayer player;
	EXPECT_FALSE(FindRunningPlayer(reader.Id(), &player));
	EXPECT_FALSE(FindRunningPlayer(getpid(), &player));
}


TEST(RunningPlayers, ALinkToAnotherProgramDoesNotMakeThatAPlayer)
{
	test::ProgramFolder folder;
	const std::string sleeper = hosted::FindExecutable("sleep");
	const std::string path = folder.Link("audacious", sleeper);
	test::Program other({sleeper, "60"});
	test::Program called({path, "60"});
	RunningPlayer player;
	ASSERT_TRUE(test::WaitFor([&]() { return FindRunningPlayer(called.Id(), &player); }));
	EXPECT_FALSE(FindRunningPlayer(other.Id(), &player));
}


TEST(RunningPlayers, HelperProcessesOfAPlayerCountOnce)
{
	test::ProgramFolder folder;
	const std::string path = folder.Add("audacious",
		"#!/bin/sh\n[ \"$1\" = helper ] || { $0 helper & echo $!; }\n"
		"while :; do sleep 0.1; done\n");
	test::Program program({path});
	const pid_t helper = static_cast<pid_t>(atoi(program.ReadLine().c_str()));
	ASSERT_GT(helper, 0);
	ASSERT_TRUE(test::WaitFor([&]() { return hosted::ProcessArguments(helper).size() == 3; }));
	RunningPlayer player;
	EXPECT_TRUE(FindRunningPlayer(program.Id(), &player));
	EXPECT_FALSE(FindRunningPlayer(helper, &player));
	kill(helper, SIGTERM);
}


TEST(TerminateProcess, AsksOnlyWhatIsStillRight)
{
	test::Program program({"sleep", "60"});
	ASSERT_GT(program.Id(), 0);
	EXPECT_FALSE(hosted::TerminateProcess(program.Id(), []() { return false; }));
	EXPECT_FALSE(hosted::TerminateProcess(1, []() { return true; }));
	EXPECT_FALSE(hosted::TerminateProcess(getpid(), []() { return true; }));
	EXPECT_FALSE(program.WaitForEnd(nullptr, std::chrono::milliseconds(50)));
	EXPECT_TRUE(hosted::TerminateProcess(program.Id(), []() { return true; }));
	EXPECT_TRUE(program.WaitForEnd());
	EXPECT_FALSE(hosted::TerminateProcess(program.Id(), []() { return true; }));
}


TEST(Processes, ThisOneIsSeenWhole)
{
	const std::vector<pid_t> own = hosted::OwnProcesses();
	EXPECT_NE(std::find(own.begin(), own.end(), getpid()), own.end());
	EXPECT_TRUE(hosted::IsOwnProcess(getpid()));
	EXPECT_EQ(hosted::ProcessParent(getpid()), getppid());
	EXPECT_NE(hosted::ProcessExecutable(getpid()).find("kit-desktop-tests"), std::string::npos);
	EXPECT_FALSE(hosted::ProcessArguments(getpid()).empty());
	const bigtime_t start = hosted::ProcessStart(getpid());
	EXPECT_GT(start, 0);
	EXPECT_LE(start, hosted::TimeSinceBoot());
	EXPECT_EQ(hosted::ProcessStart(-5), -1);
	EXPECT_EQ(hosted::ProcessExecutable(-5), "");
}
