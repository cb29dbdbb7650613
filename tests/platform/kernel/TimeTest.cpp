// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <OS.h>

#include <gtest/gtest.h>
#include <time.h>


namespace {

static_assert(B_OS_NAME_LENGTH == 32);
static_assert(B_INFINITE_TIMEOUT == 0x7fffffffffffffff);
static_assert(B_RELATIVE_TIMEOUT == 0x8 && B_ABSOLUTE_TIMEOUT == 0x10);
static_assert(B_SYSTEM_TIMEBASE == 0);
static_assert(B_LOW_PRIORITY == 5 && B_NORMAL_PRIORITY == 10 && B_DISPLAY_PRIORITY == 15);
static_assert(sizeof(team_id) == 4 && sizeof(thread_id) == 4 && sizeof(sem_id) == 4);

} // namespace


TEST(Time, SnoozeWaitsAtLeastThatLong)
{
	const bigtime_t begin = system_time();
	EXPECT_EQ(snooze(5000), B_OK);
	EXPECT_GE(system_time() - begin, 5000);
}


TEST(Time, NothingToWaitForReturnsAtOnce)
{
	const bigtime_t begin = system_time();
	EXPECT_EQ(snooze(0), B_OK);
	EXPECT_EQ(snooze(-1000000), B_OK);
	EXPECT_EQ(snooze_until(begin - 1, B_SYSTEM_TIMEBASE), B_OK);
	EXPECT_EQ(snooze_until(-5, B_SYSTEM_TIMEBASE), B_OK);
	EXPECT_LT(system_time() - begin, 500000);
}


TEST(Time, SnoozeUntilReachesTheTime)
{
	const bigtime_t end = system_time() + 3000;
	EXPECT_EQ(snooze_until(end, B_SYSTEM_TIMEBASE), B_OK);
	EXPECT_GE(system_time(), end);
	EXPECT_EQ(snooze_until(end, 42), B_BAD_VALUE);
}


TEST(Time, RealTimeCountsFrom1970)
{
	const time_t now = time(nullptr);
	EXPECT_NEAR(static_cast<double>(real_time_clock()), static_cast<double>(now), 2.0);
	EXPECT_NEAR(static_cast<double>(real_time_clock_usecs()) / 1e6, static_cast<double>(now), 2.0);
}
