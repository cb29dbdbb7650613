// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <signal.h>
#include <stdlib.h>

#include <OS.h>
#include <Roster.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"

using test::Lines;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

// A question's two time-outs, and what a busy machine adds.
constexpr bigtime_t kQuestionLimit = 8000000;

class DoCommandTest : public RemoteTest {
protected:
	// What the player is asked for by one command, as it is with that volume.
	static Lines Done(uint32 command, const std::string& volume = "0.5")
	{
		ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_VOLUME=" + volume});
		EXPECT_TRUE(player.IsReady());
		DoCommand(command);
		return player.Take();
	}

	static bigtime_t TimeOf(uint32 command)
	{
		const bigtime_t start = system_time();
		DoCommand(command);
		return system_time() - start;
	}

	// Installs the player, which writes its record to a file of the test's folder.
	void Install(const Lines& variables)
	{
		std::string script = "#!/bin/sh\nexport PLAYER_RECORD='" + fFolder / "record" + "'\n";
		for (const std::string& variable : variables)
			script += "export " + variable + "\n";
		script += "exec '" + test::ProgramPath("scripted-player") + "'\n";
		const std::string path = fFolder.Write("installed", script);
		ASSERT_EQ(system(("chmod +x '" + path + "'").c_str()), 0);
		AddPlayers("player scripted\n\tsignature application/x-vnd.marcone-soundplay\n"
				   "\texecutable "
			+ path + "\n\ttypes audio\n");
	}

	std::string Record() const { return test::ReadFile(fFolder / "record"); }

	void QuitInstalled()
	{
		BMessenger(test::kSoundplaySignature).SendMessage(B_QUIT_REQUESTED);
		EXPECT_TRUE(test::WaitFor([this] { return Record().find("ended\n") != std::string::npos; },
			std::chrono::seconds(20)));
	}
};

} // namespace


TEST_F(DoCommandTest, NothingIsSentWithoutPlayer)
{
	for (const uint32 command : {kCommandNext, kCommandStop, kCommandLouder, kCommandMute})
		EXPECT_LT(TimeOf(command), 1500000);
	EXPECT_FALSE(be_roster->IsRunning(test::kSoundplaySignature));
}


TEST_F(DoCommandTest, PlayAndStopAreThePitch)
{
	EXPECT_EQ(Done(kCommandPlay), (Lines{"track 0: pitch 1.00"}));
	EXPECT_EQ(Done(kCommandStop), (Lines{"track 0: pitch 0.00"}));
}


TEST_F(DoCommandTest, NextAndPreviousAreExecuted)
{
	EXPECT_EQ(Done(kCommandNext), (Lines{"track 0: next"}));
	EXPECT_EQ(Done(kCommandPrevious), (Lines{"track 0: previous"}));
}


TEST_F(DoCommandTest, LouderAndSofterAreSteps)
{
	EXPECT_EQ(Done(kCommandLouder), (Lines{"track 0: volume?", "track 0: volume 0.52"}));
	EXPECT_EQ(Done(kCommandSofter), (Lines{"track 0: volume?", "track 0: volume 0.48"}));
}


TEST_F(DoCommandTest, VolumeStaysInItsRange)
{
	EXPECT_EQ(Done(kCommandLouder, "1.99"), (Lines{"track 0: volume?", "track 0: volume 2.00"}));
	EXPECT_EQ(Done(kCommandLouder, "2.0"), (Lines{"track 0: volume?", "track 0: volume 2.00"}));
	EXPECT_EQ(Done(kCommandSofter, "0.01"), (Lines{"track 0: volume?", "track 0: volume 0.00"}));
	EXPECT_EQ(Done(kCommandSofter, "0"), (Lines{"track 0: volume?", "track 0: volume 0.00"}));
	// What a player should not have said.
	EXPECT_EQ(Done(kCommandSofter, "70"), (Lines{"track 0: volume?", "track 0: volume 2.00"}));
	EXPECT_EQ(Done(kCommandLouder, "-70"), (Lines{"track 0: volume?", "track 0: volume 0.00"}));
}


TEST_F(DoCommandTest, MuteTurnsTheVolumeOffAndOn)
{
	EXPECT_EQ(Done(kCommandMute, "0.03"), (Lines{"track 0: volume?", "track 0: volume 1.00"}));
	EXPECT_EQ(Done(kCommandMute, "0"), (Lines{"track 0: volume?", "track 0: volume 1.00"}));
	EXPECT_EQ(Done(kCommandMute, "0.5"), (Lines{"track 0: volume?", "track 0: volume 0.00"}));
	EXPECT_EQ(Done(kCommandMute, "0.031"), (Lines{"track 0: volume?", "track 0: volume 0.00"}));
}


TEST_F(DoCommandTest, UnknownCodesDoNothing)
{
	for (const uint32 command : {uint32(0), uint32('Play'), uint32('rset'), uint32(-1)})
		EXPECT_EQ(Done(command), Lines());
}


TEST_F(DoCommandTest, EveryTrackObjectIsTold)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_TRACKS=3"});
	ASSERT_TRUE(player.IsReady());
	DoCommand(kCommandNext);
	EXPECT_EQ(player.Take(), (Lines{"track 0: next", "track 1: next", "track 2: next"}));
	DoCommand(kCommandLouder);
	EXPECT_EQ(player.Take(),
		(Lines{"track 0: volume?", "track 0: volume 0.52", "track 1: volume?",
			"track 1: volume 0.52", "track 2: volume?", "track 2: volume 0.52"}));
}


TEST_F(DoCommandTest, OtherPlayersAreLeftAlone)
{
	ScriptedPlayer other("application/x-vnd.Haiku-MediaPlayer");
	ScriptedPlayer player;
	ASSERT_TRUE(other.IsReady());
	ASSERT_TRUE(player.IsReady());
	DoCommand(kCommandStop);
	EXPECT_EQ(player.Take(), (Lines{"track 0: pitch 0.00"}));
	EXPECT_EQ(other.Take(), Lines());
}


TEST_F(DoCommandTest, PlayerWithoutTracksIsToldNothing)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_TRACKS=0"});
	ASSERT_TRUE(player.IsReady());
	DoCommand(kCommandPlay);
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(DoCommandTest, SilentPlayerCostsOneQuestion)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=silent", "PLAYER_TRACKS=5"});
	ASSERT_TRUE(player.IsReady());
	EXPECT_LT(TimeOf(kCommandNext), kQuestionLimit);
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(DoCommandTest, VolumeThatIsNoneChangesNothing)
{
	for (const char* fault : {"volume-text", "volume-nan", "volume-silent"}) {
		ScriptedPlayer player(test::kSoundplaySignature, {std::string("PLAYER_FAULT=") + fault});
		ASSERT_TRUE(player.IsReady());
		EXPECT_LT(TimeOf(kCommandLouder), kQuestionLimit) << fault;
		EXPECT_EQ(player.Take(), (Lines{"track 0: volume?"})) << fault;
		EXPECT_LT(TimeOf(kCommandMute), kQuestionLimit) << fault;
		EXPECT_EQ(player.Take(), (Lines{"track 0: volume?"})) << fault;
	}
}


TEST_F(DoCommandTest, LateVolumeChangesNothing)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=volume-late"});
	ASSERT_TRUE(player.IsReady());
	DoCommand(kCommandLouder);
	EXPECT_EQ(player.Take(), (Lines{"track 0: volume?"}));
}


TEST_F(DoCommandTest, PlayerMayDieInTheMiddle)
{
	for (const char* fault : {"dies-at-second-track", "dies-at-volume", "dies-at-command"}) {
		ScriptedPlayer player(test::kSoundplaySignature,
			{std::string("PLAYER_FAULT=") + fault, "PLAYER_TRACKS=3"});
		ASSERT_TRUE(player.IsReady());
		EXPECT_LT(TimeOf(kCommandLouder), kQuestionLimit) << fault;
		EXPECT_TRUE(player.Process().WaitForEnd()) << fault;
	}
	// And the next one is steered as ever.
	EXPECT_EQ(Done(kCommandStop), (Lines{"track 0: pitch 0.00"}));
}


TEST_F(DoCommandTest, EndlessTracksEnd)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=endless"});
	ASSERT_TRUE(player.IsReady());
	EXPECT_LT(TimeOf(kCommandStop), 45000000);
	const Lines record = player.Take();
	EXPECT_GT(record.size(), 1u);
	EXPECT_LE(record.size(), 256u);
}


TEST_F(DoCommandTest, PlayStartsThePlayerAndWaits)
{
	Install({"PLAYER_DELAY=1200"});
	const bigtime_t elapsed = TimeOf(kCommandPlay);
	// It looks every half second.
	EXPECT_GE(elapsed, 1400000);
	EXPECT_TRUE(test::WaitFor([this] { return Record() == "ready\ntrack 0: pitch 1.00\n"; },
		std::chrono::seconds(20)))
		<< Record();
	QuitInstalled();
}


TEST_F(DoCommandTest, PlayGivesUpAPlayerThatDoesNotCome)
{
	const std::string path = fFolder.Write("installed", "#!/bin/sh\nexit 1\n");
	ASSERT_EQ(system(("chmod +x '" + path + "'").c_str()), 0);
	AddPlayers("player scripted\n\tsignature application/x-vnd.marcone-soundplay\n\texecutable "
		+ path + "\n\ttypes audio\n");
	const bigtime_t elapsed = TimeOf(kCommandPlay);
	EXPECT_GE(elapsed, 9900000);
	EXPECT_LT(elapsed, 16000000);
}


TEST_F(DoCommandTest, PlayWithoutInstalledPlayerSaysSo)
{
	const std::string output = test::OutputOf([] { DoCommand(kCommandPlay); });
	EXPECT_EQ(output, "DoCommand: can't launch 'application/x-vnd.marcone-soundplay'\n");
}


TEST_F(DoCommandTest, OtherCommandsStartNothing)
{
	Install({});
	for (const uint32 command : {kCommandNext, kCommandStop, kCommandLouder})
		DoCommand(command);
	EXPECT_FALSE(be_roster->IsRunning(test::kSoundplaySignature));
	EXPECT_EQ(Record(), "");
}
