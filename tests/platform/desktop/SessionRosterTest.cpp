// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The roster over several processes.
#include <gtest/gtest.h>
#include <signal.h>
#include <string.h>
#include <unistd.h>

#include <Entry.h>
#include <List.h>
#include <Messenger.h>
#include <Path.h>
#include <Roster.h>

#include "platform/desktop/RunningApps.h"
#include "platform/desktop/SessionBus.h"
#include "tests/platform/desktop/SessionApp.h"
#include "tests/support/Wait.h"

using test::kOwnSignature;
using test::kPeerSignature;
using test::Peer;
using test::SessionApp;


namespace {

std::vector<team_id>
teams_of(const BList& list)
{
	std::vector<team_id> teams;
	for (int32 i = 0; i < list.CountItems(); i++)
		teams.push_back(static_cast<team_id>(reinterpret_cast<addr_t>(list.ItemAt(i))));
	return teams;
}


std::function<bool(const BMessage&)>
notice_of(uint32 what, team_id team)
{
	return [what, team](const BMessage& message) {
		return message.what == what && message.GetInt32("be:team", -1) == team;
	};
}


/*!	Watches from the test's application while it lives. */
class Watch {
public:
	explicit Watch(uint32 mask)
		:
		fTarget(be_app_messenger)
	{
		SessionApp::Get().Forget();
		EXPECT_EQ(be_roster->StartWatching(fTarget, mask), B_OK);
	}

	~Watch() { EXPECT_EQ(be_roster->StopWatching(fTarget), B_OK); }

private:
	BMessenger fTarget;
};

} // namespace


TEST(Roster, ListsTheRosterServerFirstThenInOrderOfRegistration)
{
	SessionApp::Get();
	Peer second("application/x-vnd.second-peer");
	ASSERT_TRUE(second.IsReady());
	Peer third("application/x-vnd.a-third-peer");
	ASSERT_TRUE(third.IsReady());
	BList list;
	list.AddItem(&list);
	be_roster->GetAppList(&list);
	const std::vector<team_id> teams = teams_of(list);
	ASSERT_EQ(teams.size(), 5u);
	app_info info;
	ASSERT_EQ(be_roster->GetRunningAppInfo(teams[1], &info), B_OK);
	EXPECT_STREQ(info.signature, hosted::kRosterServerSignature);
	EXPECT_EQ(teams[1], hosted::SessionBus::BusProcess());
	EXPECT_EQ(teams[2], getpid());
	EXPECT_EQ(teams[3], second.Id());
	EXPECT_EQ(teams[4], third.Id());
}


TEST(Roster, TellsAboutARunningProgram)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	app_info info;
	ASSERT_EQ(be_roster->GetRunningAppInfo(peer.Id(), &info), B_OK);
	EXPECT_EQ(info.team, peer.Id());
	EXPECT_EQ(info.thread, peer.Id());
	EXPECT_EQ(info.flags, uint32(B_MULTIPLE_LAUNCH));
	EXPECT_STREQ(info.signature, kPeerSignature);
	EXPECT_STREQ(BPath(&info.ref).Path(), test::ProgramPath("kit-peer").c_str());

	app_info same;
	EXPECT_EQ(be_roster->GetAppInfo("Application/X-Vnd.Kit-Peer", &same), B_OK);
	EXPECT_EQ(same.team, peer.Id());
	EXPECT_EQ(be_roster->GetAppInfo(&info.ref, &same), B_OK);
	EXPECT_EQ(same.team, peer.Id());
	EXPECT_EQ(be_roster->TeamFor(&info.ref), peer.Id());
	EXPECT_TRUE(be_roster->IsRunning(kPeerSignature));
	EXPECT_TRUE(be_roster->IsRunning(&info.ref));

	Peer other;
	ASSERT_TRUE(other.IsReady());
	BList list;
	be_roster->GetAppList(kPeerSignature, &list);
	EXPECT_EQ(teams_of(list), (std::vector<team_id>{peer.Id(), other.Id()}));
}


TEST(Roster, FailsExactly)
{
	SessionApp::Get();
	app_info info;
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path("/bin/ls", &ref), B_OK);
	EXPECT_EQ(info.team, -1);
	EXPECT_EQ(info.thread, -1);
	EXPECT_EQ(info.port, -1);
	EXPECT_EQ(info.flags, 1u);
	EXPECT_STREQ(info.signature, "");
	EXPECT_EQ(be_roster->GetAppInfo("application/x-vnd.nobody", &info), B_ERROR);
	EXPECT_EQ(be_roster->GetAppInfo(&ref, &info), B_ERROR);
	EXPECT_EQ(be_roster->GetRunningAppInfo(0x7ffffff0, &info), B_BAD_TEAM_ID);
	EXPECT_EQ(be_roster->GetRunningAppInfo(-1, &info), B_BAD_TEAM_ID);
	EXPECT_EQ(be_roster->TeamFor("application/x-vnd.nobody"), B_ERROR);
	EXPECT_EQ(be_roster->TeamFor(&ref), B_ERROR);
	EXPECT_FALSE(be_roster->IsRunning("application/x-vnd.nobody"));
	EXPECT_EQ(be_roster->ActivateApp(0x7ffffff0), B_BAD_TEAM_ID);
	EXPECT_EQ(be_roster->ActivateApp(getpid()), B_OK);
	EXPECT_EQ(be_roster->Broadcast(nullptr), B_BAD_VALUE);
}


TEST(Roster, BroadcastReachesAllButTheSender)
{
	SessionApp& app = SessionApp::Get();
	app.Forget();
	Peer one;
	Peer two("application/x-vnd.other-peer");
	ASSERT_TRUE(one.IsReady());
	ASSERT_TRUE(two.IsReady());
	BMessage message('echo');
	message.AddString("text", "everybody");
	EXPECT_EQ(be_roster->Broadcast(&message), B_OK);
	std::vector<team_id> answered;
	for (int i = 0; i < 2; i++) {
		BMessage reply;
		ASSERT_TRUE(app.WaitFor([](const BMessage& got) { return got.what == 'ECHO'; }, &reply));
		answered.push_back(reply.FindInt32("team"));
	}
	EXPECT_NE(answered[0], answered[1]);
	EXPECT_FALSE(app.WaitFor([](const BMessage& got) { return got.what == 'echo'; }, nullptr,
		std::chrono::milliseconds(100)));
}


TEST(Watching, LaunchAndQuitAreNoticed)
{
	SessionApp& app = SessionApp::Get();
	Watch watch(B_REQUEST_LAUNCHED | B_REQUEST_QUIT | B_REQUEST_ACTIVATED);
	Peer peer;
	BMessage notice;
	ASSERT_TRUE(app.WaitFor(notice_of(B_SOME_APP_LAUNCHED, peer.Id()), &notice));
	EXPECT_STREQ(notice.FindString("be:signature"), kPeerSignature);
	EXPECT_EQ(notice.FindInt32("be:thread"), peer.Id());
	EXPECT_EQ(notice.FindInt32("be:flags"), B_MULTIPLE_LAUNCH);
	entry_ref ref;
	ASSERT_EQ(notice.FindRef("be:ref", &ref), B_OK);
	EXPECT_STREQ(ref.name, "kit-peer");
	EXPECT_EQ(notice.CountNames(B_ANY_TYPE), 5);

	ASSERT_TRUE(peer.IsReady());
	EXPECT_EQ(BMessenger(kPeerSignature).SendMessage(B_QUIT_REQUESTED), B_OK);
	ASSERT_TRUE(app.WaitFor(notice_of(B_SOME_APP_QUIT, peer.Id()), &notice));
	EXPECT_STREQ(notice.FindString("be:signature"), kPeerSignature);
	status_t status;
	BMessenger gone(kPeerSignature, -1, &status);
	EXPECT_EQ(status, B_BAD_VALUE);
}


TEST(Watching, SuddenDeathIsNoticed)
{
	SessionApp& app = SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	EXPECT_TRUE(be_roster->IsRunning(kPeerSignature));
	Watch watch(B_REQUEST_QUIT);
	peer.Kill(SIGKILL);
	EXPECT_TRUE(app.WaitFor(notice_of(B_SOME_APP_QUIT, peer.Id())));
}


TEST(Watching, OnlyTheWantedIsNoticed)
{
	SessionApp& app = SessionApp::Get();
	Watch watch(B_REQUEST_LAUNCHED | B_REQUEST_QUIT);
	// A second start changes the mask, and does not watch twice.
	EXPECT_EQ(be_roster->StartWatching(be_app_messenger, B_REQUEST_QUIT), B_OK);
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	EXPECT_TRUE(be_roster->IsRunning(kPeerSignature));
	peer.Kill(SIGKILL);
	EXPECT_TRUE(app.WaitFor(notice_of(B_SOME_APP_QUIT, peer.Id())));
	EXPECT_FALSE(app.WaitFor(
		[](const BMessage& got) {
			return got.what == B_SOME_APP_LAUNCHED || got.what == B_SOME_APP_QUIT;
		},
		nullptr, std::chrono::milliseconds(100)));
}


TEST(Watching, OthersSeeThisProgramsPeers)
{
	SessionApp::Get();
	Peer watcher;
	ASSERT_TRUE(watcher.IsReady());
	BMessage reply;
	ASSERT_EQ(BMessenger(kPeerSignature).SendMessage('wtch', &reply), B_OK);
	{
		Peer other("application/x-vnd.other-peer");
		EXPECT_TRUE(watcher.WaitForLine("launched application/x-vnd.other-peer"));
	}
	EXPECT_TRUE(watcher.WaitForLine("gone application/x-vnd.other-peer"));
}


TEST(Watching, EndsOnce)
{
	SessionApp::Get();
	EXPECT_EQ(be_roster->StopWatching(be_app_messenger), B_BAD_VALUE);
	EXPECT_EQ(be_roster->StartWatching(BMessenger()), B_OK);
	EXPECT_EQ(be_roster->StopWatching(BMessenger()), B_OK);
	EXPECT_EQ(be_roster->StopWatching(BMessenger()), B_BAD_VALUE);
}
