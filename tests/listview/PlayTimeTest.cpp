// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/PlayTime.h"

#include <gtest/gtest.h>


TEST(IsTimed, TheLimitItselfIsNotTimed)
{
	EXPECT_FALSE(IsTimed(0));
	EXPECT_FALSE(IsTimed(0.02f));
	EXPECT_FALSE(IsTimed(0.03f));
	EXPECT_TRUE(IsTimed(0.0301f));
}


TEST(PlayMicros, ThreeMinutesSevenEndAfterAMarginOfOneSecond)
{
	const float playMinutes = static_cast<float>(3 + (7 / 0.6) / 100 + 0.02);
	EXPECT_NEAR(PlayMicros(playMinutes), 188200000, 20);
}


TEST(PlayMicros, IsTruncatedToWholeMicroseconds)
{
	EXPECT_EQ(PlayMicros(0.25f), 15000000);
	EXPECT_EQ(PlayMicros(0), 0);
}


TEST(MeasuredLength, OneSecondIsAdded)
{
	EXPECT_STREQ(MeasuredLength(59).text.String(), "01:00");
	EXPECT_STREQ(MeasuredLength(186).text.String(), "03:07");
	EXPECT_STREQ(MeasuredLength(1).text.String(), "00:02");
}


TEST(MeasuredLength, HoldsWhatTheTilesShow)
{
	const MeasuredLength length(724);
	EXPECT_STREQ(length.text.String(), "12:05");
	EXPECT_EQ(length.minutes, 12);
	EXPECT_EQ(length.seconds, 5);
	EXPECT_EQ(length.packed, 1205);
	EXPECT_NEAR(length.playMinutes, 12 + 5.0 / 60 + 0.02, 0.00001);
}


TEST(MeasuredLength, MinutesMayHaveMoreThanTwoDigits)
{
	const MeasuredLength length(100 * 60 + 8);
	EXPECT_STREQ(length.text.String(), "100:09");
	EXPECT_EQ(length.packed, 10009);
}
