// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Real players on the session bus, and ones that are known by their processes only.
#include <gtest/gtest.h>
#include <math.h>
#include <signal.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

#include <List.h>
#include <Messenger.h>
#include <Path.h>
#include <Roster.h>

#include "platform/desktop/Mpris.h"
#include "platform/desktop/PlayerRequests.h"
#include "platform/desktop/Players.h"
#include "platform/desktop/RunningApps.h"
#include "tests/platform/desktop/DesktopSupport.h"
#include "tests/platform/desktop/SessionApp.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Wait.h"

using hosted::RunningPlayer;
using hosted::RunningPlayers;
using test::Program;
using test::SessionApp;


namespace {

constexpr char kVlcSignature[] = "application/x-vnd.videolan-vlc";
constexpr char kMpvSignature[] = "application/x-vnd.Haiku-MediaPlayer";


// A minute of a soft tone in the folder.
std::string
make_music(const test::TempFolder& folder, const std::string& name)
{
	const std::string path = folder / name;
	Program sox({"sox", "-n", "-r", "8000", "-c", "1", path, "synth", "60", "sine", "440"});
	int status = -1;
	EXPECT_TRUE(sox.WaitForEnd(&status));
	EXPECT_EQ(status, 0);
	return path;
}


std::vector<std::string>
vlc_words(const std::vector<std::string>& files)
{
	std::vector<std::string> words
		= {"vlc", "-I", "dummy", "--control", "dbus", "--no-audio", "--no-video", "--quiet"};
	words.insert(words.end(), files.begin(), files.end());
	return words;
}


std::vector<std::string>
mpv_words(const std::vector<std::string>& files)
{
	std::vector<std::string> words
		= {"mpv", "--no-video", "--ao=null", "--really-quiet", "--no-terminal"};
	words.insert(words.end(), files.begin(), files.end());
	return words;
}


bool
wait_on_bus(team_id team, RunningPlayer* player)
{
	return test::WaitFor(
		[team, player]() {
			return hosted::FindRunningPlayer(team, player) && !player->busNames.empty();
		},
		std::chrono::seconds(30));
}


status_t
script(const BMessenger& target, uint32 what, const char* property, BMessage* reply,
	const float* data = nullptr)
{
	BMessage message(what);
	message.AddSpecifier(property);
	if (data != nullptr)
		message.AddFloat("data", *data);
	return target.SendMessage(&message, reply, 10000000, 10000000);
}

} // namespace


TEST(SessionPlayers, VlcIsFoundAndQuits)
{
	if (geteuid() == 0)
		GTEST_SKIP() << "VLC refuses to run as root";
	SessionApp& app = SessionApp::Get();
	app.Forget();
	test::TempFolder folder;
	const std::string music = make_music(folder, "tone.wav");
	EXPECT_EQ(be_roster->StartWatching(be_app_messenger), B_OK);
	Program vlc(vlc_words({music}));
	RunningPlayer player;
	ASSERT_TRUE(wait_on_bus(vlc.Id(), &player));
	EXPECT_EQ(player.signature, kVlcSignature);
	hosted::Mpris remote(player.busNames.front());
	bool isPlaying = false;
	ASSERT_TRUE(test::WaitFor([&]() { return remote.GetIsPlaying(&isPlaying) && isPlaying; }));

	app_info info;
	ASSERT_EQ(be_roster->GetAppInfo(kVlcSignature, &info), B_OK);
	EXPECT_EQ(info.team, vlc.Id());
	EXPECT_STREQ(info.ref.name, "vlc");
	BList list;
	be_roster->GetAppList(&list);
	EXPECT_TRUE(list.HasItem(reinterpret_cast<void*>(static_cast<addr_t>(vlc.Id()))));

	status_t status = B_ERROR;
	BMessenger target(kVlcSignature, -1, &status);
	EXPECT_EQ(status, B_OK);
	EXPECT_TRUE(target.IsValid());
	EXPECT_EQ(target.SendMessage(B_QUIT_REQUESTED), B_OK);
	int end = -1;
	ASSERT_TRUE(vlc.WaitForEnd(&end));
	// By itself, not by a signal.
	EXPECT_TRUE(WIFEXITED(end));
	EXPECT_FALSE(be_roster->IsRunning(kVlcSignature));
	BMessage notice;
	const auto is_from_vlc = [](uint32 what) {
		return [what](const BMessage& message) {
			return message.what == what
				&& strcmp(message.GetString("be:signature", ""), kVlcSignature) == 0;
		};
	};
	EXPECT_TRUE(app.WaitFor(is_from_vlc(B_SOME_APP_LAUNCHED)));
	EXPECT_TRUE(app.WaitFor(is_from_vlc(B_SOME_APP_QUIT)));
	EXPECT_EQ(be_roster->StopWatching(be_app_messenger), B_OK);
}


TEST(SessionPlayers, SecondInstanceIsFoundByItsOwnName)
{
	SessionApp::Get();
	test::TempFolder folder;
	const std::string music = make_music(folder, "tone.wav");
	Program first(mpv_words({music}));
	RunningPlayer player;
	ASSERT_TRUE(wait_on_bus(first.Id(), &player));
	Program second(mpv_words({music}));
	ASSERT_TRUE(wait_on_bus(second.Id(), &player));
	EXPECT_EQ(player.signature, kMpvSignature);
	EXPECT_EQ(BMessenger(kMpvSignature).Team(), first.Id());

	EXPECT_EQ(BMessenger(kMpvSignature, second.Id()).SendMessage(B_QUIT_REQUESTED), B_OK);
	EXPECT_TRUE(second.WaitForEnd());
	EXPECT_EQ(BMessenger(kMpvSignature).SendMessage(B_QUIT_REQUESTED), B_OK);
	EXPECT_TRUE(first.WaitForEnd());
	EXPECT_FALSE(be_roster->IsRunning(kMpvSignature));
}


TEST(SessionPlayers, ScriptingReachesThePlayer)
{
	SessionApp::Get();
	test::TempFolder folder;
	const std::string music = make_music(folder, "tone.wav");
	Program mpv(mpv_words({music, music}));
	RunningPlayer player;
	ASSERT_TRUE(wait_on_bus(mpv.Id(), &player));
	hosted::Mpris remote(player.busNames.front());
	const BMessenger target(kMpvSignature);
	BMessage reply;

	const float half = 0.5f;
	ASSERT_EQ(script(target, B_SET_PROPERTY, "volume", &reply, &half), B_OK);
	EXPECT_EQ(reply.what, uint32(B_REPLY));
	EXPECT_EQ(reply.GetInt32("error", -1), B_OK);
	EXPECT_TRUE(test::WaitFor([&]() {
		script(target, B_GET_PROPERTY, "volume", &reply);
		return fabsf(reply.GetFloat("result", -1) - half) < 0.01f;
	}));

	const float still = 0;
	bool isPlaying = true;
	ASSERT_EQ(script(target, B_SET_PROPERTY, "pitch", &reply, &still), B_OK);
	EXPECT_TRUE(test::WaitFor([&]() { return remote.GetIsPlaying(&isPlaying) && !isPlaying; }));
	const float normal = 1;
	ASSERT_EQ(script(target, B_SET_PROPERTY, "pitch", &reply, &normal), B_OK);
	EXPECT_TRUE(test::WaitFor([&]() { return remote.GetIsPlaying(&isPlaying) && isPlaying; }));
	ASSERT_EQ(script(target, B_GET_PROPERTY, "pitch", &reply), B_OK);
	EXPECT_FLOAT_EQ(reply.GetFloat("result", -1), 1);
	EXPECT_EQ(script(target, B_EXECUTE_PROPERTY, "next", &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_REPLY));
}


TEST(SessionPlayers, TheirOneTrackIsThemselves)
{
	SessionApp::Get();
	test::TempFolder folder;
	Program mpv(mpv_words({make_music(folder, "tone.wav")}));
	RunningPlayer player;
	ASSERT_TRUE(wait_on_bus(mpv.Id(), &player));
	for (const int32 index : {0, 1}) {
		BMessage message(B_GET_PROPERTY);
		message.AddSpecifier("Messenger");
		message.AddSpecifier("track", index);
		BMessage reply;
		ASSERT_EQ(BMessenger(kMpvSignature).SendMessage(&message, &reply, 10000000, 10000000),
			B_OK);
		BMessenger track;
		if (index > 0) {
			EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
			continue;
		}
		EXPECT_EQ(reply.GetInt32("error", -1), B_OK);
		ASSERT_EQ(reply.FindMessenger("result", &track), B_OK);
		EXPECT_EQ(track.Team(), mpv.Id());
	}
}


TEST(SessionPlayers, OtherRequestsAreNotUnderstood)
{
	SessionApp::Get();
	test::TempFolder folder;
	Program mpv(mpv_words({make_music(folder, "tone.wav")}));
	RunningPlayer player;
	ASSERT_TRUE(wait_on_bus(mpv.Id(), &player));
	const BMessenger target(kMpvSignature);
	BMessage reply;
	EXPECT_EQ(script(target, B_GET_PROPERTY, "Window", &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	EXPECT_EQ(script(target, B_DELETE_PROPERTY, "volume", &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	const float tooLoud = 100;
	EXPECT_EQ(script(target, B_SET_PROPERTY, "volume", &reply, &tooLoud), B_OK);
	EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	EXPECT_EQ(target.SendMessage(B_KEY_DOWN, &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	EXPECT_FALSE(mpv.WaitForEnd(nullptr, std::chrono::milliseconds(1)));
}


TEST(SessionPlayers, OneThatHangsDoesNotHoldTheEnd)
{
	SessionApp::Get();
	test::TempFolder folder;
	Program mpv(mpv_words({make_music(folder, "tone.wav")}));
	RunningPlayer player;
	ASSERT_TRUE(wait_on_bus(mpv.Id(), &player));
	const BMessenger target(kMpvSignature, mpv.Id());
	mpv.Kill(SIGSTOP);
	for (int32 i = 0; i < 20; i++) {
		BMessage message(B_EXECUTE_PROPERTY);
		message.AddSpecifier("next");
		EXPECT_EQ(target.SendMessage(&message, static_cast<BHandler*>(nullptr), 2000000), B_OK);
	}
	const bigtime_t start = system_time();
	hosted::FinishPlayerRequests();
	EXPECT_LT(system_time() - start, 12000000);
	// Others are served as before.
	mpv.Kill(SIGCONT);
	BMessage reply;
	EXPECT_TRUE(test::WaitFor([&]() {
		script(target, B_GET_PROPERTY, "pitch", &reply);
		return reply.what == uint32(B_REPLY);
	}));
}


TEST(SessionPlayers, OneWithoutNameOnTheBusIsAskedBySignal)
{
	SessionApp::Get();
	test::ProgramFolder programs;
	Program player({programs.Add("audacious",
		"#!/bin/sh\ntrap 'echo asked; exit 7' TERM\nwhile :; do sleep 0.1; done\n")});
	app_info info;
	ASSERT_TRUE(test::WaitFor([&]() {
		return be_roster->GetAppInfo("application/x-vnd.marcone-soundplay", &info) == B_OK;
	}));
	EXPECT_EQ(info.team, player.Id());
	EXPECT_STREQ(info.ref.name, "audacious");
	BMessenger target("application/x-vnd.marcone-soundplay");
	// What only a remote control could do is not understood.
	BMessage reply;
	EXPECT_EQ(script(target, B_GET_PROPERTY, "volume", &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));

	EXPECT_EQ(target.SendMessage(B_QUIT_REQUESTED, &reply), B_OK);
	EXPECT_TRUE(reply.GetBool("result"));
	EXPECT_TRUE(player.WaitForLine("asked"));
	int status = -1;
	ASSERT_TRUE(player.WaitForEnd(&status));
	EXPECT_EQ(WEXITSTATUS(status), 7);
}


TEST(SessionPlayers, TheRosterServersStandInIsNeverAskedToQuit)
{
	SessionApp::Get();
	const team_id server = be_roster->TeamFor(hosted::kRosterServerSignature);
	ASSERT_GT(server, 0);
	BMessage message(B_QUIT_REQUESTED);
	BMessage reply;
	EXPECT_EQ(BMessenger(nullptr, server).SendMessage(&message, &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	EXPECT_EQ(kill(server, 0), 0);
}
