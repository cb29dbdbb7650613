// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "window/ExternalPlayer.h"

#include <filesystem>

#include <signal.h>
#include <spawn.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <List.h>
#include <Roster.h>

#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "tests/support/Output.h"
#include "tests/support/Popups.h"
#include "tests/support/Wait.h"
#include "tests/window/MediaWindowFixture.h"


namespace {

class ExternalPlayer : public MediaWindowFixture {
protected:
	std::string Open(const std::string& path, bool alert = false)
	{
		return test::OutputOf([&] { IOpenThisFile(path.c_str(), alert); });
	}

	void Prefer(const std::string& player)
	{
		Prefs* const prefs = Prefs::getSTPrefs();
		snprintf(prefs->pref_AudioApp, sizeof(prefs->pref_AudioApp), "%s", player.c_str());
	}

	// A player that notes what it is given, marked as its own.
	std::string MakePlayer(const std::string& name)
	{
		const std::string path = fFolder.Write("tools/" + name,
			"#!/bin/sh\necho \"player $*\" >> '" + (fFolder / "opened") + "'\n");
		chmod(path.c_str(), 0755);
		return path;
	}

	// Starts a program that the user has made the player of that signature.
	pid_t StartPlayer(const std::string& signature)
	{
		const std::string name = "player-of-" + std::to_string(++fPlayerCount);
		fFolder.Write("home/.config/VinyloH/players.table",
			"player tested\nsignature " + signature + "\nexecutable " + name + "\n");
		const std::string path = fFolder / ("tools/" + name);
		std::filesystem::copy_file(std::filesystem::canonical("/bin/sleep"), path);
		char* const arguments[]
			= {const_cast<char*>(path.c_str()), const_cast<char*>("60"), nullptr};
		pid_t process = -1;
		EXPECT_EQ(posix_spawn(&process, path.c_str(), nullptr, nullptr, arguments, environ), 0);
		EXPECT_TRUE(test::WaitFor([&] { return be_roster->IsRunning(signature.c_str()); }));
		return process;
	}

	static void End(pid_t process)
	{
		kill(process, SIGKILL);
		waitpid(process, nullptr, 0);
	}

	std::string Command(const std::string& begin, const std::string& path)
	{
		return "[open][" + begin + "'" + path + "' &]\n";
	}

	int fPlayerCount = 0;
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}


const std::string kManager = std::string(kFileManager) + " ";

} // namespace


TEST_F(ExternalPlayer, AudioWithoutAPreferredPlayerGoesToTheFileManager)
{
	Prefs::getSTPrefs();
	const std::string title = MakeTitle("a title.mp3");
	const std::string output = Open(title);
	EXPECT_EQ(output,
		" Mime: at. audio/mpeg \n ..no User-Prefered-Audio-App \n" + Command(kManager, title));
	EXPECT_EQ(Opened(1), title + "\n");
}


TEST_F(ExternalPlayer, NoneOfTheMenuIsNoPlayer)
{
	Prefer(" -none-");
	EXPECT_TRUE(contains(Open(MakeTitle("a.mp3")), " ..no User-Prefered-Audio-App \n"));
	Prefer("1234567890");
	EXPECT_TRUE(contains(Open(MakeTitle("a.mp3")), " ..no User-Prefered-Audio-App \n"));
	Prefer("MediaPlayer");
	EXPECT_TRUE(contains(Open(MakeTitle("a.mp3")), "evnt. Audio mit: 'MediaPlayer' starten\n"));
}


TEST_F(ExternalPlayer, AudioGoesToThePreferredPlayerAfterTheRunningOneWasClosed)
{
	if (IsPlayerRunning())
		GTEST_SKIP() << "a player is running";
	const std::string player = MakePlayer("player");
	Prefer(player);
	const std::string title = MakeTitle("a.mp3");
	const std::string output = Open(title);
	const size_t begin = output.find("evnt. Audio mit: '" + player
		+ "' starten\nMediaPlayer? : -1\n - will stop any Audio-App \ncount roster teams: ");
	EXPECT_NE(begin, std::string::npos) << output;
	EXPECT_TRUE(
		contains(output, "stop end\nwait close.. reopen app\n" + Command(player + " ", title)));
	EXPECT_EQ(Opened(1), "player " + title + "\n");
}


TEST_F(ExternalPlayer, PlayerWhoseNameBeginsWithMediaPlayerStaysOpen)
{
	MakePlayer("MediaPlayerX");
	Prefer("MediaPlayerX");
	const std::string title = MakeTitle("a.mp3");
	const std::string output = Open(title);
	EXPECT_TRUE(contains(output, "MediaPlayer? : 0\n" + Command("MediaPlayerX ", title)));
	EXPECT_FALSE(contains(output, "will stop any"));
	EXPECT_EQ(Opened(1), "player " + title + "\n");
}


TEST_F(ExternalPlayer, AnyTypeThatNamesAudioIsAudio)
{
	MakePlayer("MediaPlayerX");
	Prefer("MediaPlayerX");
	for (const char* type : {"audio", "application/x-audio-book", "video/x-audio"}) {
		const std::string title = MakeTitle("a.bin", type);
		EXPECT_TRUE(contains(Open(title), Command("MediaPlayerX ", title))) << type;
	}
}


TEST_F(ExternalPlayer, VideoAndFoldersGoToTheFileManager)
{
	Prefer(MakePlayer("player"));
	const std::string video = MakeTitle("a.mp4", "video/mp4");
	EXPECT_EQ(Open(video), " Mime: at. video/mp4 \n" + Command(kManager, video));
	const std::string folder = fFolder.MakeFolder("album");
	EXPECT_TRUE(contains(Open(folder), Command(kManager, folder)));
	EXPECT_EQ(Opened(2), video + "\n" + folder + "\n");
}


TEST_F(ExternalPlayer, ProgramIsRunItself)
{
	const std::string program = MakePlayer("program");
	const std::string path = MakeTitle("run", "application/x-vnd.Be-elfexecutable");
	ASSERT_EQ(rename(program.c_str(), (path + "2").c_str()), 0);
	const std::string output = Open(path);
	EXPECT_TRUE(contains(output, Command("", path)));

	const std::string other = MakeTitle("other", "text/application/x-vnd.Be-elfexecutable");
	EXPECT_TRUE(contains(Open(other), Command(kManager, other)));
}


TEST_F(ExternalPlayer, MissingFileIsPrintedAndTold)
{
	const std::string path = fFolder / "missing.mp3";
	const std::string text = path + "\n ..File not found :(";
	const std::string output = Open(path);
	EXPECT_EQ(output, "[open][" + text + "]\n oops: couldn't execute :\n" + text + "\n");

	Open(path, true);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogText(), text);
	EXPECT_TRUE(test::ClickDialogButton("OK"));
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(ExternalPlayer, NothingOfAFileNameReachesTheShell)
{
	const std::string mark = fFolder / "hurt";
	const std::string names[]
		= {"x'; touch hurt; 'y.mp3", "'$(touch hurt)'.mp3", "`touch hurt`'", "x';touch hurt #.mp3"};
	ASSERT_EQ(chdir(fFolder.Path().c_str()), 0);
	for (const std::string& name : names) {
		const std::string output = Open(MakeTitle(name));
		EXPECT_TRUE(contains(output, " oops: couldn't execute :\n")) << output;
	}
	// Missing files, whose text is no command at all.
	for (const char* name : {"a;touch hurt", "a|touch hurt", "a`touch hurt`", "$(touch hurt)",
			 "a&touch hurt", "a\ntouch hurt", "a>hurt", "a b", "*", "a\"b", "(touch hurt)"}) {
		const std::string output = Open(fFolder / name);
		EXPECT_TRUE(contains(output, " oops: couldn't execute :\n")) << output;
	}
	EXPECT_NE(access(mark.c_str(), F_OK), 0);
	ASSERT_EQ(chdir("/"), 0);
}


TEST_F(ExternalPlayer, QuotedNamesArriveAsTheyAre)
{
	const std::string title = MakeTitle("$HOME `x` \"y\" \\ *;&|<>().mp4", "video/mp4");
	Open(title);
	EXPECT_EQ(Opened(1), title + "\n");
}


TEST_F(ExternalPlayer, ClosingWithoutAPlayerSendsNothing)
{
	if (IsPlayerRunning())
		GTEST_SKIP() << "a player is running";
	const std::string output = test::OutputOf([] { ICloseMediaApp(); });
	BList teams;
	be_roster->GetAppList(&teams);
	EXPECT_EQ(output.find(" - will stop any Audio-App \ncount roster teams: "
				  + std::to_string(teams.CountItems() - 1) + "\n"),
		0u)
		<< output;
	EXPECT_TRUE(contains(output, "\nstop end\n"));
	EXPECT_FALSE(contains(output, "STOP"));
}


TEST_F(ExternalPlayer, EachKnownPlayerIsAskedToQuit)
{
	if (IsPlayerRunning())
		GTEST_SKIP() << "a player is running";
	for (const char* signature : {"application/x-vnd.marcone-soundplay",
			 "application/x-vnd.RMC.Zenebona", "application/x-vnd.yT-MediaPlayer",
			 "application/x-vnd.Be.MediaPlayer", "application/x-vnd.YT-MediaPlayer",
			 "application/x-vnd.yT-AudioTagger", "application/x-vnd.Haiku-MediaPlayer",
			 "application/x-vnd.videolan-vlc", "application/x-vnd.Me.stampTV"}) {
		const pid_t process = StartPlayer(signature);
		const std::string output = test::OutputOf([] { ICloseMediaApp(); });
		EXPECT_TRUE(
			contains(output, " '" + std::string(signature) + "'  STOP\n status 0 \nstop end\n"))
			<< output;
		int status = 0;
		EXPECT_EQ(waitpid(process, &status, 0), process);
		EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << signature;
	}
}


TEST_F(ExternalPlayer, ProgramWhoseSignatureIsOnlyLikeAPlayersStays)
{
	if (IsPlayerRunning())
		GTEST_SKIP() << "a player is running";
	for (const char* signature :
		{"application/x-vnd.videolan-vlc2", "application/x-vnd.videolan-vl"}) {
		const pid_t process = StartPlayer(signature);
		EXPECT_FALSE(contains(test::OutputOf([] { ICloseMediaApp(); }), "STOP")) << signature;
		EXPECT_EQ(waitpid(process, nullptr, WNOHANG), 0) << signature;
		End(process);
	}
}


TEST_F(ExternalPlayer, OnlyOneRunningPlayerIsAskedToQuit)
{
	if (IsPlayerRunning())
		GTEST_SKIP() << "a player is running";
	// Two processes of what is installed as the player.
	const std::string player = fFolder / "tools/vlc";
	std::filesystem::copy_file(std::filesystem::canonical("/bin/sleep"), player);
	pid_t processes[2];
	for (pid_t& process : processes) {
		char* const arguments[]
			= {const_cast<char*>(player.c_str()), const_cast<char*>("60"), nullptr};
		ASSERT_EQ(posix_spawn(&process, player.c_str(), nullptr, nullptr, arguments, environ), 0);
	}
	ASSERT_TRUE(test::WaitFor([] { return IsPlayerRunning(); }));

	const std::string output = test::OutputOf([] { ICloseMediaApp(); });
	const std::string stop = " 'application/x-vnd.videolan-vlc'  STOP\n status ";
	EXPECT_TRUE(contains(output, stop)) << output;
	EXPECT_EQ(output.find(stop), output.rfind(stop));

	// One of the two goes.
	int goneCount = 0;
	int status;
	const auto collect = [&] {
		for (pid_t& process : processes) {
			if (process > 0 && waitpid(process, &status, WNOHANG) == process) {
				process = 0;
				goneCount++;
			}
		}
		return goneCount > 0;
	};
	EXPECT_TRUE(test::WaitFor(collect));
	collect();
	EXPECT_EQ(goneCount, 1);
	for (const pid_t process : processes) {
		if (process > 0)
			End(process);
	}
}
