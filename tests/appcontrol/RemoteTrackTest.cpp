// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <signal.h>

#include <OS.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Wait.h"

using test::Lines;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

// Both time-outs of a question, and what a busy machine adds.
constexpr bigtime_t kQuestionLimit = 8000000;

class RemoteTrackTest : public RemoteTest {};


BMessenger
timed_track(long index, bigtime_t* elapsed)
{
	const bigtime_t start = system_time();
	const BMessenger track = RemoteTrack(index);
	*elapsed = system_time() - start;
	return track;
}

} // namespace


TEST_F(RemoteTrackTest, WithoutPlayerThereIsNone)
{
	bigtime_t elapsed;
	EXPECT_FALSE(timed_track(0, &elapsed).IsValid());
	// Nobody is waited for.
	EXPECT_LT(elapsed, 1500000);
}


TEST_F(RemoteTrackTest, EachNumberHasItsOwnTrack)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_TRACKS=3"});
	ASSERT_TRUE(player.IsReady());
	const BMessenger first = RemoteTrack(0);
	const BMessenger third = RemoteTrack(2);
	ASSERT_TRUE(first.IsValid());
	ASSERT_TRUE(third.IsValid());
	EXPECT_EQ(first.Team(), player.Team());
	EXPECT_NE(first, third);
	EXPECT_EQ(first, RemoteTrack(0));
	EXPECT_FALSE(RemoteTrack(3).IsValid());
	EXPECT_FALSE(RemoteTrack(-1).IsValid());
	// Asking changes nothing.
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(RemoteTrackTest, OnlyTheFirstAudioPlayerIsAsked)
{
	ScriptedPlayer player("application/x-vnd.RMC.Zenebona");
	ASSERT_TRUE(player.IsReady());
	EXPECT_FALSE(RemoteTrack(0).IsValid());
}


TEST_F(RemoteTrackTest, LateAnswerIsNone)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=late"});
	ASSERT_TRUE(player.IsReady());
	bigtime_t elapsed;
	EXPECT_FALSE(timed_track(0, &elapsed).IsValid());
	EXPECT_GE(elapsed, 1900000);
	EXPECT_LT(elapsed, kQuestionLimit);
	// The answer that still comes disturbs nobody.
	EXPECT_EQ(player.Take(), Lines());
}


TEST_F(RemoteTrackTest, SilenceIsNone)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=silent"});
	ASSERT_TRUE(player.IsReady());
	bigtime_t elapsed;
	EXPECT_FALSE(timed_track(0, &elapsed).IsValid());
	EXPECT_GE(elapsed, 1900000);
	EXPECT_LT(elapsed, kQuestionLimit);
}


TEST_F(RemoteTrackTest, StoppedPlayerIsGivenUp)
{
	ScriptedPlayer player;
	ASSERT_TRUE(player.IsReady());
	player.Process().Kill(SIGSTOP);
	bigtime_t elapsed;
	EXPECT_FALSE(timed_track(0, &elapsed).IsValid());
	EXPECT_LT(elapsed, kQuestionLimit);
	player.Process().Kill(SIGCONT);
	EXPECT_TRUE(test::WaitFor([] { return RemoteTrack(0).IsValid(); }));
}


TEST_F(RemoteTrackTest, AnswerWithErrorIsNone)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=error"});
	ASSERT_TRUE(player.IsReady());
	EXPECT_FALSE(RemoteTrack(0).IsValid());
}


TEST_F(RemoteTrackTest, AnswerWithoutMessengerIsNone)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=no-messenger"});
	ASSERT_TRUE(player.IsReady());
	EXPECT_FALSE(RemoteTrack(0).IsValid());
}


TEST_F(RemoteTrackTest, PlayerThatDiesWhileItIsAskedHasNone)
{
	ScriptedPlayer player(test::kSoundplaySignature, {"PLAYER_FAULT=dies-at-second-track"});
	ASSERT_TRUE(player.IsReady());
	EXPECT_TRUE(RemoteTrack(0).IsValid());
	bigtime_t elapsed;
	EXPECT_FALSE(timed_track(1, &elapsed).IsValid());
	EXPECT_LT(elapsed, kQuestionLimit);
	EXPECT_TRUE(player.Process().WaitForEnd());
	EXPECT_FALSE(RemoteTrack(0).IsValid());
}
