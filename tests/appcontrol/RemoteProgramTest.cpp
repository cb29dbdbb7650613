// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The remote control on the command line, as its users start it.
#include <math.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <OS.h>

#include "platform/desktop/Mpris.h"
#include "platform/desktop/Players.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Wait.h"

using test::Lines;
using test::Program;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

struct Result {
	int exitCode = -1;
	std::string output;
};


// The exit code is -1 if it does not end by itself in time.
Result
run(const Lines& words, const Lines& variables = {})
{
	const test::TempFolder folder;
	Lines line = {"sh", "-c", "output=$1; shift; exec \"$@\" >\"$output\" 2>&1", "sh",
		folder / "output", VINYLOH_REMOTE};
	line.insert(line.end(), words.begin(), words.end());
	Program program(line, variables);
	Result result;
	int status;
	if (program.WaitForEnd(&status, std::chrono::seconds(60)) && WIFEXITED(status))
		result.exitCode = WEXITSTATUS(status);
	result.output = test::ReadFile(folder / "output");
	return result;
}


constexpr char kNobody[] = "vinyloh-remote: no player is there, or it does not answer.\n";
const Lines kCommands = {"play", "stop", "next", "previous", "volume-up", "volume-down", "mute"};

class RemoteProgramTest : public RemoteTest {};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(RemoteProgramTest, HelpNamesEverything)
{
	const Result help = run({"--help"});
	EXPECT_EQ(help.exitCode, 0);
	const std::string text = help.output;
	EXPECT_EQ(text.find("Usage: vinyloh-remote [--application=SIGNATURE] COMMAND\n"), 0u);
	EXPECT_EQ(run({"-h"}).output, text);

	const std::string page
		= test::ReadFile(std::string(VINYLOH_SOURCES) + "/docs/vinyloh-remote.1");
	for (const std::string& command : kCommands) {
		EXPECT_TRUE(contains(text, "\n  " + command + " ")) << command;
		EXPECT_TRUE(contains(page, "\n.B " + command + "\n")) << command;
	}
	for (const char* kind : {"audio", "video", "start"}) {
		EXPECT_TRUE(contains(text, std::string("\n  ") + kind + " KEY ")) << kind;
		EXPECT_TRUE(contains(page, std::string("\n.BI ") + kind + " \" KEY\"\n")) << kind;
	}
}


TEST_F(RemoteProgramTest, MistakesAreSaid)
{
	const Lines mistakes[]
		= {{}, {"dance"}, {"--loud", "play"}, {"play", "now"}, {"audio"}, {"audio", "0x5E", "0x5F"},
			{"audio", "five"}, {"audio", "5x"}, {"audio", ""}, {"audio", "-1"}, {"audio", "256"},
			{"audio", "99999999999999999999"}, {"video"}, {"start"}, {"start", "0x99"}, {""}};
	for (const Lines& words : mistakes) {
		const Result result = run(words);
		EXPECT_EQ(result.exitCode, 2) << result.output;
		EXPECT_TRUE(contains(result.output, "vinyloh-remote: ")) << result.output;
		EXPECT_TRUE(contains(result.output, "Try \"vinyloh-remote --help\".\n")) << result.output;
	}
}


TEST_F(RemoteProgramTest, NobodyIsThere)
{
	for (const std::string& command : kCommands) {
		const Result result = run({command});
		EXPECT_EQ(result.exitCode, 1) << command;
		EXPECT_TRUE(contains(result.output, kNobody)) << result.output;
	}
	EXPECT_EQ(run({"audio", "0x5E"}).exitCode, 1);
	EXPECT_EQ(run({"video", "0x44"}).exitCode, 1);
	const Result start = run({"start", "0x34"});
	EXPECT_EQ(start.exitCode, 1);
	EXPECT_TRUE(contains(start.output, "Sorry Can't launch StyledEdit - N1 app..\n"));
}


TEST_F(RemoteProgramTest, WorksWithoutSessionBus)
{
	const Result result = run({"stop"}, {"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"});
	EXPECT_EQ(result.exitCode, 1);
	EXPECT_TRUE(contains(result.output, kNobody)) << result.output;
}


// From a terminal of another machine, or where the one display does not answer.
TEST_F(RemoteProgramTest, WorksWithoutDisplay)
{
	ScriptedPlayer player;
	ASSERT_TRUE(player.IsReady());
	for (const char* display : {"DISPLAY=", "DISPLAY=:9973"}) {
		const Result result = run({"next"}, {"QT_QPA_PLATFORM=", "WAYLAND_DISPLAY=", display});
		EXPECT_EQ(result.exitCode, 0) << display << ": " << result.output;
		EXPECT_EQ(player.Take(), (Lines{"track 0: next"}));
	}
}


TEST_F(RemoteProgramTest, CommandsReachThePlayer)
{
	ScriptedPlayer player;
	ASSERT_TRUE(player.IsReady());
	const std::pair<const char*, Lines> commands[]
		= {{"play", {"track 0: pitch 1.00"}}, {"stop", {"track 0: pitch 0.00"}},
			{"next", {"track 0: next"}}, {"previous", {"track 0: previous"}},
			{"volume-up", {"track 0: volume?", "track 0: volume 0.52"}},
			{"volume-down", {"track 0: volume?", "track 0: volume 0.50"}},
			{"mute", {"track 0: volume?", "track 0: volume 0.00"}},
			{"mute", {"track 0: volume?", "track 0: volume 1.00"}}};
	for (const auto& [command, record] : commands) {
		const Result result = run({command});
		EXPECT_EQ(result.exitCode, 0) << result.output;
		EXPECT_EQ(player.Take(), record) << command;
	}
}


TEST_F(RemoteProgramTest, KeysReachThePlayer)
{
	ScriptedPlayer player;
	ASSERT_TRUE(player.IsReady());
	EXPECT_EQ(run({"audio", "0x5F"}).exitCode, 0);
	EXPECT_EQ(player.Take(), (Lines{"track 0: next"}));
	// The same number, decimal.
	EXPECT_EQ(run({"audio", "95"}).exitCode, 0);
	EXPECT_EQ(player.Take(), (Lines{"track 0: next"}));

	ScriptedPlayer vlc("application/x-vnd.videolan-vlc");
	ASSERT_TRUE(vlc.IsReady());
	EXPECT_EQ(run({"video", "0x5E"}).exitCode, 0);
	EXPECT_EQ(vlc.Take().size(), 1u);
}


TEST_F(RemoteProgramTest, KeysForTheMediaPlayerGoWhereTheyAreToldTo)
{
	constexpr char kMediaPlayer[] = "application/x-vnd.Haiku-MediaPlayer";
	ScriptedPlayer player(kMediaPlayer);
	ASSERT_TRUE(player.IsReady());
	const Lines space = {"key 5e char 20 byte 20 bytes '\"\"' modifiers 30 when 1 states 16"};
	EXPECT_EQ(run({"audio", "0x5E"}).exitCode, 0);
	EXPECT_EQ(player.Take(), space);

	ScriptedPlayer other("application/x-vnd.other");
	ASSERT_TRUE(other.IsReady());
	EXPECT_EQ(run({"--application=application/x-vnd.other", "audio", "0x5E"}).exitCode, 0);
	EXPECT_EQ(other.Take(), space);
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(RemoteProgramTest, SilentPlayerIsGivenUp)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=silent"});
	ASSERT_TRUE(player.IsReady());
	const bigtime_t start = system_time();
	EXPECT_EQ(run({"next"}).exitCode, 1);
	EXPECT_LT(system_time() - start, 12000000);

	ScriptedPlayer stopped;
	player.Process().Kill(SIGKILL);
	ASSERT_TRUE(player.Process().WaitForEnd());
	ASSERT_TRUE(stopped.IsReady());
	stopped.Process().Kill(SIGSTOP);
	EXPECT_EQ(run({"next"}).exitCode, 1);
	stopped.Process().Kill(SIGCONT);
}


// Whoever was not told is no success, wherever the command got stuck.
TEST_F(RemoteProgramTest, PlayerThatTakesNothingIsNotTold)
{
	{
		ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=silent"});
		ASSERT_TRUE(player.IsReady());
		const Result result = run({"audio", "0x5F"});
		EXPECT_EQ(result.exitCode, 1);
		EXPECT_TRUE(contains(result.output, kNobody)) << result.output;
	}
	{
		ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=volume-text"});
		ASSERT_TRUE(player.IsReady());
		EXPECT_EQ(run({"volume-up"}).exitCode, 1);
		EXPECT_EQ(run({"audio", "0x40"}).exitCode, 1);
		EXPECT_EQ(run({"next"}).exitCode, 0);
	}
	{
		ScriptedPlayer stopped("application/x-vnd.RMC.Zenebona");
		ASSERT_TRUE(stopped.IsReady());
		stopped.Process().Kill(SIGSTOP);
		EXPECT_EQ(run({"audio", "0x40"}).exitCode, 1);
	}
	ScriptedPlayer player("application/x-vnd.Haiku-MediaPlayer");
	ASSERT_TRUE(player.IsReady());
	for (const char* kind : {"audio", "video"}) {
		EXPECT_EQ(run({"--application=application/x-vnd.nobody", kind, "0x5E"}).exitCode, 1);
		EXPECT_EQ(player.Take(), Lines());
		EXPECT_EQ(run({kind, "0x5E"}).exitCode, 0);
		EXPECT_EQ(player.Take().size(), 1u);
	}
}


// One that is started has been told, even if it is not there yet.
TEST_F(RemoteProgramTest, KeyThatStartsAPlayerIsASuccess)
{
	const std::string path = fFolder.Write("late", "#!/bin/sh\nexit 0\n");
	ASSERT_EQ(system(("chmod +x '" + path + "'").c_str()), 0);
	AddPlayers("player late\n\tsignature application/x-vnd.RMC.Zenebona\n\texecutable " + path
		+ "\n\ttypes audio\nplayer other\n\tsignature application/x-vnd.Me.stampTV\n"
		  "\texecutable "
		+ path + "\n\ttypes video\n");
	EXPECT_EQ(run({"audio", "0x35"}).exitCode, 0);
	EXPECT_EQ(run({"video", "0x35"}).exitCode, 0);
	EXPECT_EQ(run({"audio", "0x36"}).exitCode, 1);
	EXPECT_EQ(run({"video", "0x36"}).exitCode, 1);
}


TEST_F(RemoteProgramTest, RealPlayerIsSteered)
{
	const std::string program = fFolder / "mpv";
	ASSERT_EQ(system(("cp /usr/bin/mpv '" + program + "'").c_str()), 0);
	AddPlayers("player mpv\n\tsignature application/x-vnd.marcone-soundplay\n\texecutable "
		+ program + "\n\tmpris mpv\n\ttypes audio\n");
	const std::string title = fFolder / "title.wav";
	Program sox({"sox", "-n", "-r", "8000", "-c", "1", title, "synth", "300", "sine", "440"});
	ASSERT_TRUE(sox.WaitForEnd());
	Program mpv({program, "--no-config", "--script=/etc/mpv/scripts/mpris.so", "--no-video",
		"--ao=null", "--really-quiet", "--no-terminal", title});
	hosted::RunningPlayer running;
	ASSERT_TRUE(test::WaitFor(
		[&] { return hosted::FindRunningPlayer(mpv.Id(), &running) && !running.busNames.empty(); },
		std::chrono::seconds(40)));
	hosted::Mpris remote(running.busNames.front());

	const auto plays = [&remote](bool wanted) {
		bool isPlaying = !wanted;
		return test::WaitFor([&] { return remote.GetIsPlaying(&isPlaying) && isPlaying == wanted; },
			std::chrono::seconds(20));
	};
	const auto has_volume = [&remote](double wanted) {
		double volume = -1;
		return test::WaitFor(
			[&] { return remote.GetVolume(&volume) && fabs(volume - wanted) < 0.011; },
			std::chrono::seconds(20));
	};
	ASSERT_TRUE(plays(true));
	EXPECT_EQ(run({"stop"}).exitCode, 0);
	EXPECT_TRUE(plays(false));
	EXPECT_EQ(run({"audio", "0x5E"}).exitCode, 0);
	EXPECT_TRUE(plays(true));
	EXPECT_EQ(run({"mute"}).exitCode, 0);
	EXPECT_TRUE(has_volume(0));
	EXPECT_EQ(run({"mute"}).exitCode, 0);
	EXPECT_TRUE(has_volume(1));
	EXPECT_EQ(run({"volume-down"}).exitCode, 0);
	EXPECT_TRUE(has_volume(0.98));
	EXPECT_EQ(run({"volume-up"}).exitCode, 0);
	EXPECT_TRUE(has_volume(1));
}
