// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/KeyCodes.h"

#include <gtest/gtest.h>


TEST(RawKeyForRemote, EachNumberStandsForItsKey)
{
	EXPECT_EQ(RawKeyForRemote(61), 0x57);
	EXPECT_EQ(RawKeyForRemote(62), 0x62);
	EXPECT_EQ(RawKeyForRemote(63), 0x61);
	EXPECT_EQ(RawKeyForRemote(64), 0x63);
	EXPECT_EQ(RawKeyForRemote(81), 0x35);
	EXPECT_EQ(RawKeyForRemote(91), 0x21);
	EXPECT_EQ(RawKeyForRemote(69), 0x47);
	EXPECT_EQ(RawKeyForRemote(94), 0x47);
	EXPECT_EQ(RawKeyForRemote(95), 0x36);
}


TEST(RawKeyForRemote, OtherNumbersStandForNone)
{
	EXPECT_EQ(RawKeyForRemote(0), 0);
	EXPECT_EQ(RawKeyForRemote(60), 0);
	EXPECT_EQ(RawKeyForRemote(-61), 0);
}
