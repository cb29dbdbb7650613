// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/Threads.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>
#include <vector>


namespace hosted {

namespace {

struct Start {
	std::function<void()> function;
	std::function<void()> ended;
	char name[16] = "";

	std::mutex mutex;
	std::condition_variable known;
	thread_id id = -1;
};

struct EndedThreads {
	std::mutex mutex;
	std::vector<pthread_t> threads;
};

// Lives as long as the process, because threads may outlive static objects.
EndedThreads&
ended_threads()
{
	static EndedThreads* sThreads = new EndedThreads;
	return *sThreads;
}


// Reports the end of a thread, however it comes about.
struct EndGuard {
	explicit EndGuard(std::function<void()> ended)
		:
		fEnded(std::move(ended))
	{
	}

	~EndGuard()
	{
		{
			EndedThreads& ended = ended_threads();
			std::lock_guard<std::mutex> lock(ended.mutex);
			ended.threads.push_back(pthread_self());
		}
		fEnded();
	}

	std::function<void()> fEnded;
};


void*
thread_main(void* data)
{
	std::function<void()> function;
	std::function<void()> ended;
	{
		std::shared_ptr<Start> start = std::move(*static_cast<std::shared_ptr<Start>*>(data));
		delete static_cast<std::shared_ptr<Start>*>(data);
		pthread_setname_np(pthread_self(), start->name);
		function = std::move(start->function);
		ended = std::move(start->ended);
		std::lock_guard<std::mutex> lock(start->mutex);
		start->id = CurrentThread();
		start->known.notify_all();
	}
	EndGuard guard(std::move(ended));
	function();
	return nullptr;
}


// Threads that ended and that nobody has joined since.
struct JoinAtExit {
	~JoinAtExit() { JoinEndedThreads(); }
};

JoinAtExit sJoinAtExit;

} // namespace


thread_id
CurrentThread()
{
	static thread_local const thread_id sThread = static_cast<thread_id>(syscall(SYS_gettid));
	return sThread;
}


team_id
CurrentTeam()
{
	return getpid();
}


thread_id
StartThread(const char* name, std::function<void()> function, std::function<void()> ended)
{
	JoinEndedThreads();

	std::shared_ptr<Start> start = std::make_shared<Start>();
	start->function = std::move(function);
	start->ended = std::move(ended);
	snprintf(start->name, sizeof(start->name), "%s", name != nullptr ? name : "");

	pthread_t thread;
	auto* data = new std::shared_ptr<Start>(start);
	if (pthread_create(&thread, nullptr, thread_main, data) != 0) {
		delete data;
		return B_NO_MEMORY;
	}
	std::unique_lock<std::mutex> lock(start->mutex);
	start->known.wait(lock, [&start]() { return start->id != -1; });
	return start->id;
}


void
ExitThread()
{
	// The main thread does not come from here, and other threads would go on without it.
	if (CurrentThread() == CurrentTeam())
		exit(0);
	pthread_exit(nullptr);
}


void
JoinEndedThreads()
{
	std::vector<pthread_t> threads;
	{
		EndedThreads& ended = ended_threads();
		std::lock_guard<std::mutex> lock(ended.mutex);
		threads.swap(ended.threads);
	}
	for (pthread_t thread : threads)
		pthread_join(thread, nullptr);
}

} // namespace hosted
