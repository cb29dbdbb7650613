// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Threads by their number, which is the system's own.
#include <OS.h>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <pthread.h>
#include <string>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>


namespace {

enum class State { kStarting, kSuspended, kRunning, kFinished };


struct Thread {
	thread_func function;
	void* data;
	std::string name;
	int32 priority;
	// The rest is guarded by the table's mutex.
	thread_id id = -1;
	State state = State::kStarting;
	status_t result = B_OK;
};


// Everything that threads spawned here share. It is never destroyed: some may outlive main().
struct Table {
	std::mutex mutex;
	std::condition_variable changed;
	std::map<thread_id, std::shared_ptr<Thread>> threads;
};


Table&
table()
{
	static Table* const sTable = new Table;
	return *sTable;
}


thread_id
own_id()
{
	return static_cast<thread_id>(syscall(SYS_gettid));
}


void*
run_thread(void* argument)
{
	std::unique_ptr<std::shared_ptr<Thread>> holder(
		static_cast<std::shared_ptr<Thread>*>(argument));
	const std::shared_ptr<Thread> thread = *holder;
	Table& all = table();

	pthread_setname_np(pthread_self(), thread->name.substr(0, 15).c_str());
	// Only background work can be told apart without special rights.
	if (thread->priority < B_NORMAL_PRIORITY)
		setpriority(PRIO_PROCESS, static_cast<id_t>(own_id()), 10);
	{
		std::unique_lock<std::mutex> guard(all.mutex);
		thread->id = own_id();
		thread->state = State::kSuspended;
		all.threads[thread->id] = thread;
		all.changed.notify_all();
		all.changed.wait(guard, [&] { return thread->state == State::kRunning; });
	}
	const status_t result = thread->function(thread->data);

	std::lock_guard<std::mutex> guard(all.mutex);
	thread->result = result;
	thread->state = State::kFinished;
	all.changed.notify_all();
	return nullptr;
}


std::shared_ptr<Thread>
thread_of(thread_id id)
{
	const auto found = table().threads.find(id);
	return found != table().threads.end() ? found->second : nullptr;
}

} // namespace


extern "C"
{

	thread_id spawn_thread(thread_func function, const char* name, int32 priority, void* data)
	{
		if (function == nullptr)
			return B_BAD_VALUE;
		const auto thread = std::make_shared<Thread>();
		thread->function = function;
		thread->data = data;
		thread->name.assign(name != nullptr ? name : "user thread");
		thread->name.resize(std::min<size_t>(thread->name.size(), B_OS_NAME_LENGTH - 1));
		thread->priority = priority;

		pthread_attr_t attributes;
		pthread_attr_init(&attributes);
		pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
		auto holder = std::make_unique<std::shared_ptr<Thread>>(thread);
		pthread_t handle;
		const int error = pthread_create(&handle, &attributes, run_thread, holder.get());
		pthread_attr_destroy(&attributes);
		if (error != 0)
			return B_NO_MORE_THREADS;
		holder.release();

		std::unique_lock<std::mutex> guard(table().mutex);
		table().changed.wait(guard, [&] { return thread->state != State::kStarting; });
		return thread->id;
	}


	status_t resume_thread(thread_id id)
	{
		std::lock_guard<std::mutex> guard(table().mutex);
		const std::shared_ptr<Thread> thread = thread_of(id);
		if (thread == nullptr || thread->state == State::kFinished)
			return B_BAD_THREAD_ID;
		if (thread->state != State::kSuspended)
			return B_BAD_THREAD_STATE;
		thread->state = State::kRunning;
		table().changed.notify_all();
		return B_OK;
	}


	status_t wait_for_thread(thread_id id, status_t* returnValue)
	{
		std::unique_lock<std::mutex> guard(table().mutex);
		const std::shared_ptr<Thread> thread = thread_of(id);
		if (thread == nullptr)
			return B_BAD_THREAD_ID;
		// Waiting for a thread that was never resumed would have no end.
		if (thread->state == State::kSuspended) {
			thread->state = State::kRunning;
			table().changed.notify_all();
		}
		table().changed.wait(guard, [&] { return thread->state == State::kFinished; });
		if (returnValue != nullptr)
			*returnValue = thread->result;
		const auto entry = table().threads.find(id);
		if (entry != table().threads.end() && entry->second == thread)
			table().threads.erase(entry);
		return B_OK;
	}


	thread_id find_thread(const char* name)
	{
		if (name == nullptr)
			return own_id();
		std::lock_guard<std::mutex> guard(table().mutex);
		for (const auto& [id, thread] : table().threads) {
			if (thread->state != State::kFinished && thread->name == name)
				return id;
		}
		return B_NAME_NOT_FOUND;
	}

} // extern "C"
