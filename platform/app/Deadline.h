// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DEADLINE_H
#define DEADLINE_H

#include <chrono>
#include <condition_variable>
#include <mutex>

#include <OS.h>


namespace hosted {

// The end of a span that begins now, in system_time().
inline bigtime_t
DeadlineAfter(bigtime_t timeout)
{
	const bigtime_t now = system_time();
	return timeout > B_INFINITE_TIMEOUT - now ? B_INFINITE_TIMEOUT : now + timeout;
}


// Waits until the condition holds; false if the time came first.
template <typename Condition>
bool
WaitUntil(std::condition_variable& changed, std::unique_lock<std::mutex>& lock, bigtime_t deadline,
	Condition condition)
{
	// Longer waits end and start again, so that no clock overflows.
	constexpr bigtime_t kLongest = 1000000L * 3600;
	while (!condition()) {
		if (deadline == B_INFINITE_TIMEOUT) {
			changed.wait(lock);
			continue;
		}
		const bigtime_t left = deadline - system_time();
		if (left <= 0)
			return false;
		changed.wait_for(lock, std::chrono::microseconds(left < kLongest ? left : kLongest));
	}
	return true;
}

} // namespace hosted

#endif // DEADLINE_H
