// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// How a program of the kits ends when the session or a terminal ends it.
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
