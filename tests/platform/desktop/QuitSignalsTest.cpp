// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// How a program of the kits ends when the session or a terminal ends it.
#include <chrono>
#include <thread>

#include <signal.h>
#include <sys/wait.h>

#include <gtest/gtest.h>

#include "tests/support/Program.h"


TEST(QuitSignals, ProgramIsAskedToQuitAndEndsInOrder)
{
	for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
		test::Program peer({test::ProgramPath("kit-peer")});
		EXPECT_EQ(peer.ReadLine().find("ready "), 0u);
		peer.Kill(signal);
		EXPECT_TRUE(peer.WaitForLine("quit requested"));
		EXPECT_TRUE(peer.WaitForLine("ended"));
		int status = -1;
		ASSERT_TRUE(peer.WaitForEnd(&status));
		EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << signal;
	}
}


TEST(QuitSignals, WhatItsStarterIgnoresStaysIgnored)
{
	test::Program peer(
		{"/bin/sh", "-c", "trap '' HUP; exec \"$0\"", test::ProgramPath("kit-peer")});
	EXPECT_EQ(peer.ReadLine().find("ready "), 0u);
	peer.Kill(SIGHUP);
	peer.Kill(SIGTERM);
	EXPECT_EQ(peer.ReadLine(), "quit requested");
	EXPECT_EQ(peer.ReadLine(), "ended");
}


// A terminal that is closed and its shell both send SIGHUP.
TEST(QuitSignals, SignalsThatComeTogetherAskOnce)
{
	test::Program peer({test::ProgramPath("kit-peer")}, {"PEER_STAYS=1"});
	EXPECT_EQ(peer.ReadLine().find("ready "), 0u);
	for (int i = 0; i < 20; i++) {
		peer.Kill(SIGHUP);
		std::this_thread::sleep_for(std::chrono::milliseconds(2));
	}
	EXPECT_EQ(peer.ReadLine(), "quit requested");
	EXPECT_FALSE(peer.WaitForEnd(nullptr, std::chrono::milliseconds(200)));
}


TEST(QuitSignals, LaterSignalEndsProgramThatStays)
{
	test::Program peer({test::ProgramPath("kit-peer")}, {"PEER_STAYS=1"});
	EXPECT_EQ(peer.ReadLine().find("ready "), 0u);
	int status = 0;
	bool ended = false;
	for (int i = 0; i < 200 && !ended; i++) {
		peer.Kill(SIGTERM);
		ended = peer.WaitForEnd(&status, std::chrono::milliseconds(100));
	}
	ASSERT_TRUE(ended);
	EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
	EXPECT_EQ(peer.ReadLine(), "quit requested");
	EXPECT_EQ(peer.ReadLine(std::chrono::milliseconds(100)), "");
}
