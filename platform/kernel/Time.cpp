// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The clocks and waiting for them.
#include <OS.h>

#include <algorithm>
#include <errno.h>
#include <time.h>


namespace {

constexpr int64 kMicrosPerSecond = 1000000;


bigtime_t
micros(clockid_t clock)
{
	timespec time = {};
	clock_gettime(clock, &time);
	return time.tv_sec * kMicrosPerSecond + time.tv_nsec / 1000;
}

} // namespace


extern "C"
{

	bigtime_t system_time(void)
	{
		return micros(CLOCK_MONOTONIC);
	}


	unsigned long real_time_clock(void)
	{
		return static_cast<unsigned long>(real_time_clock_usecs() / kMicrosPerSecond);
	}


	bigtime_t real_time_clock_usecs(void)
	{
		return micros(CLOCK_REALTIME);
	}


	status_t snooze(bigtime_t amount)
	{
		if (amount <= 0)
			return B_OK;
		const bigtime_t now = system_time();
		const bigtime_t end = amount < B_INFINITE_TIMEOUT - now ? now + amount : B_INFINITE_TIMEOUT;
		return snooze_until(end, B_SYSTEM_TIMEBASE);
	}


	status_t snooze_until(bigtime_t time, int timeBase)
	{
		if (timeBase != B_SYSTEM_TIMEBASE)
			return B_BAD_VALUE;
		time = std::max<bigtime_t>(time, 0);
		timespec end;
		end.tv_sec = time / kMicrosPerSecond;
		end.tv_nsec = time % kMicrosPerSecond * 1000;
		const int error = clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &end, nullptr);
		if (error == 0)
			return B_OK;
		return error == EINTR ? B_INTERRUPTED : B_ERROR;
	}

} // extern "C"
