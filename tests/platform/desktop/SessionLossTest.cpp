// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Programs whose session bus hangs or ends under them.
#include <memory>
#include <signal.h>
#include <sys/wait.h>

#include "tests/platform/desktop/SessionApp.h"

using test::Peer;
using test::Program;


namespace {

constexpr char kHolder[] = "application/x-vnd.holder";
// Well below the 25 seconds that the bus's own library waits for an answer.
constexpr std::chrono::seconds kPatience(15);

class SessionLossTest : public testing::Test {
protected:
	void SetUp() override
	{
		fBus = std::make_unique<Program>(
			std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--print-address=1"});
		fAddress = "DBUS_SESSION_BUS_ADDRESS=" + fBus->ReadLine();
		fHolder = Start(kHolder, {});
		ASSERT_TRUE(fHolder->IsReady());
	}

	std::unique_ptr<Peer> Start(const std::string& signature, std::vector<std::string> variables)
	{
		variables.push_back(fAddress);
		return std::make_unique<Peer>(signature, variables);
	}

	// One that waits for the holder's answer, which never comes.
	std::unique_ptr<Peer> StartWaiting()
	{
		const std::string target = std::string("PEER_WAITS_FOR=") + kHolder;
		std::unique_ptr<Peer> peer = Start(test::kPeerSignature, {target});
		EXPECT_TRUE(peer->IsReady());
		EXPECT_TRUE(fHolder->WaitForLine("holding"));
		// Once the holder has answered somebody else, this one knows that its question has arrived.
		std::unique_ptr<Peer> other
			= Start("application/x-vnd.answered", {target, "PEER_IS_ANSWERED=1"});
		EXPECT_TRUE(other->WaitForLine("waited 0, reply other"));
		return peer;
	}

	static void EndsInOrder(Peer& peer)
	{
		peer.Kill(SIGTERM);
		EXPECT_TRUE(peer.WaitForLine("quit requested", kPatience));
		int status = -1;
		EXPECT_TRUE(peer.WaitForEnd(&status, kPatience));
		EXPECT_EQ(status, 0);
	}

	std::unique_ptr<Program> fBus;
	std::unique_ptr<Peer> fHolder;
	std::string fAddress;
};

} // namespace


TEST_F(SessionLossTest, EndOfTheBusWakesWhoWaits)
{
	const std::unique_ptr<Peer> waiting = StartWaiting();
	fBus->Kill(SIGKILL);
	EXPECT_TRUE(waiting->WaitForLine("waited 0, reply NONE", kPatience));
	EndsInOrder(*waiting);
	EndsInOrder(*fHolder);
}


TEST_F(SessionLossTest, BusThatHangsDoesNotHoldTheEnd)
{
	fBus->Kill(SIGSTOP);
	EndsInOrder(*fHolder);
}
