// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WAIT_H
#define WAIT_H

#include <chrono>
#include <functional>
#include <thread>


namespace test {

// Waits until the condition holds, looking every 2 ms, and gives up after the limit. Returns
// whether it held.
inline bool
WaitFor(const std::function<bool()>& condition,
	std::chrono::milliseconds limit = std::chrono::seconds(10))
{
	const auto end = std::chrono::steady_clock::now() + limit;
	while (!condition()) {
		if (std::chrono::steady_clock::now() >= end)
			return false;
		std::this_thread::sleep_for(std::chrono::milliseconds(2));
	}
	return true;
}

} // namespace test

#endif // WAIT_H
