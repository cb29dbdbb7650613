// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Messages between two processes.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <Errors.h>
#include <Messenger.h>
#include <Roster.h>
#include <String.h>

#include "tests/platform/desktop/SessionApp.h"
#include "tests/support/Wait.h"

using test::kOwnSignature;
using test::kPeerSignature;
using test::Peer;
using test::SessionApp;


namespace {

constexpr bigtime_t kSecond = 1000000;

status_t
echo(const BMessenger& target, const std::string& text, BString* answer)
{
	BMessage message('echo');
	message.AddString("text", text.c_str());
	BMessage reply;
	const status_t status = target.SendMessage(&message, &reply, 10 * kSecond, 10 * kSecond);
	*answer = reply.what == 'ECHO' ? reply.FindString("text") : "";
	return status;
}

} // namespace


TEST(SessionMessages, PassBothWays)
{
	SessionApp& app = SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	status_t status = B_ERROR;
	const BMessenger target(kPeerSignature, -1, &status);
	ASSERT_EQ(status, B_OK);
	EXPECT_TRUE(target.IsValid());
	EXPECT_FALSE(target.IsTargetLocal());
	EXPECT_EQ(target.Team(), peer.Id());

	BMessage message('text');
	message.AddString("text", "over there");
	EXPECT_EQ(target.SendMessage(&message), B_OK);
	EXPECT_TRUE(peer.WaitForLine("text over there"));

	BMessage question('ask ');
	question.AddString("signature", kOwnSignature);
	question.AddString("text", "and back");
	EXPECT_EQ(target.SendMessage(&question), B_OK);
	EXPECT_TRUE(peer.WaitForLine("answer 0 and back"));
	BMessage received;
	ASSERT_TRUE(app.WaitFor([](const BMessage& one) { return one.what == 'echo'; }, &received));
	EXPECT_STREQ(received.FindString("text"), "and back");
}


TEST(SessionMessages, SynchronousReplyComesBack)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const BMessenger target(nullptr, peer.Id());
	BMessage message('echo');
	message.AddString("text", "hello");
	BMessage reply;
	ASSERT_EQ(target.SendMessage(&message, &reply, kSecond * 10, kSecond * 10), B_OK);
	EXPECT_EQ(reply.what, uint32('ECHO'));
	EXPECT_STREQ(reply.FindString("text"), "hello");
	EXPECT_EQ(reply.FindInt32("team"), peer.Id());
	EXPECT_TRUE(reply.IsReply());
	EXPECT_TRUE(reply.IsSourceRemote());
}


TEST(SessionMessages, AsynchronousReplyReachesTheApplication)
{
	SessionApp& app = SessionApp::Get();
	app.Forget();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	BMessage message('echo');
	message.AddString("text", "later");
	EXPECT_EQ(BMessenger(kPeerSignature).SendMessage(&message), B_OK);
	BMessage reply;
	ASSERT_TRUE(app.WaitFor([](const BMessage& one) { return one.what == 'ECHO'; }, &reply));
	EXPECT_STREQ(reply.FindString("text"), "later");
}


TEST(SessionMessages, UnknownOneGetsNoReply)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	BMessage message('unkn');
	BMessage reply;
	EXPECT_EQ(BMessenger(kPeerSignature).SendMessage(&message, &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_NO_REPLY));
}


TEST(SessionMessages, KeepTheirOrder)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const BMessenger target(kPeerSignature);
	for (int i = 0; i < 300; i++) {
		BMessage message('text');
		message.AddString("text", std::to_string(i).c_str());
		ASSERT_EQ(target.SendMessage(&message), B_OK);
	}
	for (int i = 0; i < 300; i++)
		ASSERT_EQ(peer.ReadLine(), "text " + std::to_string(i));
}


TEST(SessionMessages, LargeOnesPassAndHugeOnesAreRefused)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const BMessenger target(kPeerSignature);
	const std::string text(1000000, 'x');
	BString answer;
	EXPECT_EQ(echo(target, text, &answer), B_OK);
	EXPECT_EQ(std::string(answer.String()), text);
	EXPECT_EQ(echo(target, std::string(17 * 1024 * 1024, 'x'), &answer), B_NO_MEMORY);
	EXPECT_EQ(echo(target, "still there", &answer), B_OK);
	EXPECT_STREQ(answer.String(), "still there");
}


TEST(SessionMessages, DeathOfTheReceiverWakesWhoWaits)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const BMessenger target(kPeerSignature);
	std::thread killer([&peer]() {
		peer.WaitForLine("holding");
		// One more goes the same way, so that this one is surely seen as delivered.
		BMessenger(kPeerSignature).SendMessage('unkn');
		peer.Kill(SIGKILL);
	});
	BMessage message('hold');
	BMessage reply;
	EXPECT_EQ(target.SendMessage(&message, &reply), B_OK);
	EXPECT_EQ(reply.what, uint32(B_NO_REPLY));
	killer.join();

	ASSERT_TRUE(peer.WaitForEnd());
	EXPECT_FALSE(target.IsValid());
	EXPECT_EQ(target.SendMessage('text'), B_BAD_PORT_ID);
	status_t status = B_OK;
	BMessenger gone(kPeerSignature, -1, &status);
	EXPECT_EQ(status, B_BAD_VALUE);
	EXPECT_FALSE(gone.IsValid());
}


TEST(SessionMessages, ReplyTimeOutIsKept)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	BMessage message('hold');
	BMessage reply;
	EXPECT_EQ(BMessenger(kPeerSignature).SendMessage(&message, &reply, kSecond, 50000),
		B_TIMED_OUT);
}


TEST(SessionMessages, FullQueueRefuses)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const BMessenger target(kPeerSignature);
	ASSERT_EQ(target.SendMessage('stop'), B_OK);
	ASSERT_TRUE(peer.WaitForLine("stopping"));
	BMessage message('text');
	status_t status = B_OK;
	int sent = 0;
	while (status == B_OK && sent < 1000) {
		status = target.SendMessage(&message, static_cast<BHandler*>(nullptr), 0);
		sent++;
	}
	EXPECT_EQ(status, B_WOULD_BLOCK);
	EXPECT_EQ(sent, 201);
	EXPECT_EQ(target.SendMessage(&message, static_cast<BHandler*>(nullptr), 100000), B_TIMED_OUT);
}


TEST(SessionMessages, FrozenProgramHoldsUpNobodyForLong)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const BMessenger target(kPeerSignature);
	peer.Kill(SIGSTOP);
	BMessage message('text');
	const bigtime_t start = system_time();
	EXPECT_EQ(target.SendMessage(&message, static_cast<BHandler*>(nullptr), 0), B_WOULD_BLOCK);
	EXPECT_EQ(target.SendMessage(&message, static_cast<BHandler*>(nullptr), 200000), B_TIMED_OUT);
	EXPECT_EQ(be_roster->TeamFor(kPeerSignature), peer.Id());
	EXPECT_LT(system_time() - start, 5 * kSecond);
}


TEST(SessionMessages, QuitRequestEndsTheProgram)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	EXPECT_EQ(BMessenger(kPeerSignature).SendMessage(B_QUIT_REQUESTED), B_OK);
	EXPECT_TRUE(peer.WaitForLine("quit requested"));
	int status = -1;
	ASSERT_TRUE(peer.WaitForEnd(&status));
	EXPECT_EQ(status, 0);
}


TEST(SessionMessenger, StatusTellsWhatIsWrong)
{
	SessionApp::Get();
	Peer peer;
	ASSERT_TRUE(peer.IsReady());
	const auto status_for = [](const char* signature, team_id team) {
		status_t status = 1;
		BMessenger messenger(signature, team, &status);
		EXPECT_EQ(messenger.IsValid(), status == B_OK);
		return status;
	};
	EXPECT_EQ(status_for(kPeerSignature, peer.Id()), B_OK);
	EXPECT_EQ(status_for("APPLICATION/X-vnd.Kit-PEER", -1), B_OK);
	EXPECT_EQ(status_for(nullptr, peer.Id()), B_OK);
	EXPECT_EQ(status_for(nullptr, -1), B_BAD_TYPE);
	EXPECT_EQ(status_for("application/x-vnd.nobody", -1), B_BAD_VALUE);
	EXPECT_EQ(status_for("application/x-vnd.nobody", peer.Id()), B_MISMATCHED_VALUES);
	EXPECT_EQ(status_for(kPeerSignature, 0x7ffffff0), B_BAD_TEAM_ID);
	EXPECT_EQ(status_for(kOwnSignature, getpid()), B_OK);
	EXPECT_EQ(status_for(kOwnSignature, -1), B_OK);
}


TEST(SessionMessenger, OfSeveralInstancesTheFirstIsMeant)
{
	SessionApp::Get();
	Peer first;
	ASSERT_TRUE(first.IsReady());
	Peer second;
	ASSERT_TRUE(second.IsReady());
	EXPECT_EQ(BMessenger(kPeerSignature).Team(), first.Id());
	EXPECT_EQ(BMessenger(kPeerSignature, second.Id()).Team(), second.Id());
	first.Kill(SIGKILL);
	ASSERT_TRUE(first.WaitForEnd());
	EXPECT_TRUE(test::WaitFor([&]() { return BMessenger(kPeerSignature).Team() == second.Id(); }));
}
