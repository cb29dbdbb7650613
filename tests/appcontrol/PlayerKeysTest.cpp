// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <stdlib.h>
#include <unistd.h>

#include <Message.h>
#include <Roster.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"

using test::Lines;
using test::OutputOf;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

constexpr char kHaikuPlayer[] = "application/x-vnd.Haiku-MediaPlayer";
constexpr char kTabLine[] = "key 26 char 9 byte 9 bytes '' modifiers 30 when 1 states 16";

class PlayerKeysTest : public RemoteTest {
protected:
	// What the player is sent for a key.
	static Lines Sent(ScriptedPlayer& player, void (*function)(long), long key)
	{
		OutputOf([function, key] { function(key); });
		return player.Take();
	}

	static Lines Key(const std::string& key, const std::string& character,
		const std::string& bytes = "\"\"", const std::string& modifiers = "30")
	{
		return {"key " + key + " char " + character + " byte " + character + " bytes '" + bytes
			+ "' modifiers " + modifiers + " when 1 states 16"};
	}

	// Installs players that only leave a file behind.
	void Install(const std::vector<const char*>& signatures)
	{
		std::string table;
		for (const char* signature : signatures) {
			const std::string name = std::string(signature).substr(18);
			const std::string path = fFolder.Write(name,
				"#!/bin/sh\necho started >'" + fFolder / (name + ".started") + "'\n");
			ASSERT_EQ(system(("chmod +x '" + path + "'").c_str()), 0);
			table += "player " + name + "\n\tsignature " + signature + "\n\texecutable " + path
				+ "\n\ttypes audio\n";
		}
		AddPlayers(table);
	}

	// Whether exactly this one was started.
	bool WasStarted(const char* signature) const
	{
		const std::string file = std::string(signature).substr(18) + ".started";
		return test::WaitFor([&] { return test::ReadFile(fFolder / file) == "started\n"; })
			&& unlink((fFolder / file).c_str()) == 0
			&& system(("! ls '" + fFolder.Path() + "' | grep -q started").c_str()) == 0;
	}
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(PlayerKeysTest, LouderIsThreeStepsForSoundplay)
{
	ScriptedPlayer player;
	ASSERT_TRUE(player.IsReady());
	EXPECT_EQ(Sent(player, IAudioApps, 0x40),
		(Lines{"track 0: volume?", "track 0: volume 0.52", "track 0: volume?",
			"track 0: volume 0.54", "track 0: volume?", "track 0: volume 0.56"}));
	EXPECT_EQ(Sent(player, IAudioApps, 0x3F),
		(Lines{"track 0: volume?", "track 0: volume 0.54", "track 0: volume?",
			"track 0: volume 0.52", "track 0: volume?", "track 0: volume 0.50"}));
}


TEST_F(PlayerKeysTest, KeysAreCommandsForSoundplay)
{
	ScriptedPlayer player;
	ASSERT_TRUE(player.IsReady());
	EXPECT_EQ(Sent(player, IAudioApps, 0x5B), (Lines{"track 0: previous"}));
	EXPECT_EQ(Sent(player, IAudioApps, 0x5F), (Lines{"track 0: next"}));
	EXPECT_EQ(Sent(player, IAudioApps, 0x60), (Lines{"track 0: pitch 0.00"}));
	EXPECT_EQ(Sent(player, IAudioApps, 0x5D), (Lines{"track 0: pitch 0.00"}));
	EXPECT_EQ(Sent(player, IAudioApps, 0x5E), (Lines{"track 0: pitch 1.00"}));
	for (const long key : {0x34L, 0x3DL, 0x3EL, 0x44L, 0L, -1L})
		EXPECT_EQ(Sent(player, IAudioApps, key), Lines()) << key;
	EXPECT_EQ(OutputOf([] { IAudioApps(0x5F); }), "IAudioApps(95)\t");
}


TEST_F(PlayerKeysTest, HaikusMediaPlayerGetsKeysOfTheKeyboard)
{
	ScriptedPlayer player(kHaikuPlayer);
	ASSERT_TRUE(player.IsReady());
	Remember(kHaikuPlayer);
	for (const auto function : {IAudioApps, IVideoApps}) {
		EXPECT_EQ(Sent(player, function, 0x40), Key("57", "1e"));
		EXPECT_EQ(Sent(player, function, 0x3F), Key("62", "1f"));
		EXPECT_EQ(Sent(player, function, 0x3E), Key("36", "c"));
		EXPECT_EQ(Sent(player, function, 0x3D), Key("21", "b"));
		EXPECT_EQ(Sent(player, function, 0x5B), Key("61", "1c"));
		EXPECT_EQ(Sent(player, function, 0x5F), Key("63", "1d"));
		EXPECT_EQ(Sent(player, function, 0x5D), Key("5e", "20"));
		EXPECT_EQ(Sent(player, function, 0x5E), Key("5e", "20"));
		EXPECT_EQ(Sent(player, function, 0x60), Key("3f", "66", "f", "422"));
		// Any other key.
		EXPECT_EQ(Sent(player, function, 0x34), Key("26", "9"));
	}
}


TEST_F(PlayerKeysTest, KeysForHaikusMediaPlayerGoToTheLastActiveApplication)
{
	ScriptedPlayer player(kHaikuPlayer);
	ScriptedPlayer other("application/x-vnd.other");
	ASSERT_TRUE(player.IsReady());
	ASSERT_TRUE(other.IsReady());
	Remember("application/x-vnd.other");
	const std::string output = OutputOf([] { IAudioApps(0x60); });
	EXPECT_EQ(output.find("IAudioApps(96)\t Haiku-MediaPlayer FOUND\n "), 0u) << output;
	EXPECT_TRUE(contains(output, "(Haiku?)Mediaplayer_selected")) << output;
	EXPECT_TRUE(contains(output, " SIM ALT-F\n")) << output;
	EXPECT_TRUE(contains(output,
		" will top myself 'application/x-vnd.kv-VinyloH-tests'  Team:" + std::to_string(getpid())
			+ "\n"))
		<< output;
	EXPECT_EQ(other.Take(), Key("3f", "66", "f", "422"));
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(PlayerKeysTest, OtherPlayersGetOneKeyForAll)
{
	for (const char* signature : {"application/x-vnd.RMC.Zenebona",
			 "application/x-vnd.ClaesL-CLAmp", "application/x-vnd.Be.MediaPlayer",
			 "application/x-vnd.yT-MediaPlayer", "application/x-vnd.YT-MediaPlayer"}) {
		ScriptedPlayer player(signature);
		ASSERT_TRUE(player.IsReady());
		const std::string output = OutputOf([] { IAudioApps(0x40); });
		EXPECT_EQ(player.Take(), (Lines{kTabLine})) << signature;
		EXPECT_TRUE(contains(output, std::string("  target is '") + signature + "' \n  WILL SEND "))
			<< output;
	}
}


TEST_F(PlayerKeysTest, VideoPlayersGetOneKeyForAll)
{
	for (const char* signature : {"application/x-vnd.videolan-vlc", "application/x-vnd.Me.stampTV",
			 "application/x-vnd.yT-MediaPlayer"}) {
		ScriptedPlayer player(signature);
		ASSERT_TRUE(player.IsReady());
		const std::string output = OutputOf([] { IVideoApps(0x40); });
		EXPECT_EQ(player.Take(), (Lines{kTabLine})) << signature;
		EXPECT_TRUE(contains(output, std::string("  target is '") + signature + "' \n  WILL SEND "))
			<< output;
		EXPECT_TRUE(contains(output, "IVideoApps end\n")) << output;
	}
}


TEST_F(PlayerKeysTest, FoundPlayersAreNamed)
{
	const std::pair<const char*, const char*> players[]
		= {{"application/x-vnd.ClaesL-CLAmp", " CL-Amp FOUND\n "},
			{"application/x-vnd.Be.MediaPlayer", " Be.MediaPlayer FOUND\n "},
			{"application/x-vnd.yT-MediaPlayer", " yT-MediaPlayer FOUND\n "},
			{"application/x-vnd.YT-MediaPlayer", " YT-MediaPlayer FOUND\n "}};
	for (const auto& [signature, text] : players) {
		ScriptedPlayer player(signature);
		ASSERT_TRUE(player.IsReady());
		EXPECT_TRUE(contains(OutputOf([] { IAudioApps(0); }), text)) << signature;
	}
	ScriptedPlayer silent("application/x-vnd.RMC.Zenebona");
	ASSERT_TRUE(silent.IsReady());
	EXPECT_FALSE(contains(OutputOf([] { IAudioApps(0); }), "FOUND"));
}


TEST_F(PlayerKeysTest, LastStartedPlayerIsTheTarget)
{
	ScriptedPlayer first("application/x-vnd.RMC.Zenebona");
	ASSERT_TRUE(first.IsReady());
	ScriptedPlayer second("application/x-vnd.yT-MediaPlayer");
	ASSERT_TRUE(second.IsReady());
	EXPECT_EQ(Sent(second, IAudioApps, 0x40), (Lines{kTabLine}));
	EXPECT_EQ(first.Take(), Lines());
	ScriptedPlayer third;
	ASSERT_TRUE(third.IsReady());
	EXPECT_EQ(Sent(third, IAudioApps, 0x5F), (Lines{"track 0: next"}));
	EXPECT_EQ(second.Take(), Lines());
}


TEST_F(PlayerKeysTest, SignaturesThatDifferInCaseAreOthers)
{
	ScriptedPlayer player("application/x-vnd.Marcone-SoundPlay");
	ASSERT_TRUE(player.IsReady());
	EXPECT_EQ(OutputOf([] { IAudioApps(0x5F); }),
		"IAudioApps(95)\tIAudioApps any startet ? -end (95)\n");
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(PlayerKeysTest, AudioKeysStartPlayersIfNoneRuns)
{
	const std::pair<long, const char*> starts[] = {{0x44, kHaikuPlayer},
		{0x34, "application/x-vnd.marcone-soundplay"}, {0x35, "application/x-vnd.RMC.Zenebona"},
		{0x36, "application/x-vnd.yT-MediaPlayer"}, {0x37, "application/x-vnd.Be.MediaPlayer"}};
	Install({kHaikuPlayer, "application/x-vnd.marcone-soundplay", "application/x-vnd.RMC.Zenebona",
		"application/x-vnd.yT-MediaPlayer", "application/x-vnd.Be.MediaPlayer"});
	for (const auto& [key, signature] : starts) {
		const long number = key;
		const std::string output = OutputOf([number] { IAudioApps(number); });
		EXPECT_EQ(output,
			"IAudioApps(" + std::to_string(number) + ")\tIAudioApps any startet ? -end ("
				+ std::to_string(number) + ")\n");
		EXPECT_TRUE(WasStarted(signature)) << signature;
		// The one that was started has to be gone before the next key.
		const char* const started = signature;
		EXPECT_TRUE(test::WaitFor([started] { return !be_roster->IsRunning(started); }));
	}
}


TEST_F(PlayerKeysTest, VideoKeysStartPlayersIfNoneRuns)
{
	const std::pair<long, const char*> starts[]
		= {{0x44, "application/x-vnd.videolan-vlc"}, {0x34, "application/x-vnd.videolan-vlc"},
			{0x35, "application/x-vnd.Me.stampTV"}, {0x36, "application/x-vnd.yT-MediaPlayer"}};
	Install({"application/x-vnd.videolan-vlc", "application/x-vnd.Me.stampTV",
		"application/x-vnd.yT-MediaPlayer"});
	for (const auto& [key, signature] : starts) {
		const long number = key;
		OutputOf([number] { IVideoApps(number); });
		EXPECT_TRUE(WasStarted(signature)) << signature;
		const char* const started = signature;
		EXPECT_TRUE(test::WaitFor([started] { return !be_roster->IsRunning(started); }));
	}
}


TEST_F(PlayerKeysTest, WhatDoesNotStartIsSaid)
{
	const std::pair<long, const char*> audio[]
		= {{0x44, "Sorry Can't launch Haiku-MediaPlayer - next app..\n"},
			{0x34, "Sorry Can't launch Soundplay - N1 app..\n"},
			{0x35, "Sorry Can't launch Zenebona - N2 app..\n"},
			{0x36, "Sorry Can't launch MediaPlayer - N3 app..\n"},
			{0x37, "Sorry Can't launch old Be.MediaPlayer - N4 app..\n"}, {0x38, ""}, {0x5E, ""}};
	for (const auto& [key, text] : audio) {
		const long number = key;
		const std::string digits = std::to_string(number);
		EXPECT_EQ(OutputOf([number] { IAudioApps(number); }),
			"IAudioApps(" + digits + ")\t" + text + "IAudioApps any startet ? -end (" + digits
				+ ")\n");
	}
	const std::pair<long, const char*> video[]
		= {{0x44, "Sorry Can't launch VLC\n"}, {0x34, "Sorry Can't launch VLC - N1 app..\n"},
			{0x35, "Sorry Can't launch StampTV - N2 app..\n"},
			{0x36, "Sorry Can't launch MediaPlayer - N3 app..\n"}, {0x37, ""}};
	for (const auto& [key, text] : video) {
		const long number = key;
		const std::string digits = std::to_string(number);
		EXPECT_EQ(OutputOf([number] { IVideoApps(number); }),
			"IVideoApps(" + digits + ")\t" + text + "IVideoApps any startet ? -end (" + digits
				+ ")\nIVideoApps end\n");
	}
}


TEST_F(PlayerKeysTest, RunningPlayerIsNotStartedAgain)
{
	Install({"application/x-vnd.RMC.Zenebona"});
	ScriptedPlayer player("application/x-vnd.yT-MediaPlayer");
	ASSERT_TRUE(player.IsReady());
	EXPECT_EQ(Sent(player, IAudioApps, 0x35), (Lines{kTabLine}));
	EXPECT_EQ(test::ReadFile(fFolder / "RMC.Zenebona.started"), "");
}
