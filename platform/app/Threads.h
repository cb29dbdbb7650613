// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef THREADS_H
#define THREADS_H

#include <functional>

#include <OS.h>


namespace hosted {

thread_id CurrentThread();
team_id CurrentTeam();

// Runs the function in a new thread, and ended as its very last act, even if the thread leaves from
// deep inside by ExitThread(). Returns when the thread's id is known; below 0 if there is no thread
// to be had.
thread_id StartThread(const char* name, std::function<void()> function,
	std::function<void()> ended);

// Ends the calling thread: the objects on its stack are destroyed on the way.
[[noreturn]] void ExitThread();

// Waits for the last steps of the threads that have run their ended function.
void JoinEndedThreads();

} // namespace hosted

#endif // THREADS_H
