// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef CPU_TIME_H
#define CPU_TIME_H

#include <chrono>
#include <time.h>


namespace test {

// What this process has worked so far, all threads together. A bound on it holds on a busy machine
// too. It says nothing of waits.
inline std::chrono::nanoseconds
CpuTime()
{
	timespec spent;
	clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
	return std::chrono::seconds(spent.tv_sec) + std::chrono::nanoseconds(spent.tv_nsec);
}

} // namespace test

#endif // CPU_TIME_H
