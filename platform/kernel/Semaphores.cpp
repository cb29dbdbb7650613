// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Counting semaphores by number.
#include <OS.h>

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>


namespace {

struct Semaphore {
	std::mutex mutex;
	std::condition_variable changed;
	int32 count = 0;
	bool isDeleted = false;
};


struct Table {
	std::mutex mutex;
	std::map<sem_id, std::shared_ptr<Semaphore>> semaphores;
	sem_id lastId = 0;
};


// Never destroyed: threads may still wait when main() is over.
Table&
table()
{
	static Table* const sTable = new Table;
	return *sTable;
}


std::shared_ptr<Semaphore>
semaphore_of(sem_id id)
{
	std::lock_guard<std::mutex> guard(table().mutex);
	const auto found = table().semaphores.find(id);
	return found != table().semaphores.end() ? found->second : nullptr;
}


// The time left until a limit, with B_INFINITE_TIMEOUT for none.
bigtime_t
relative(uint32 flags, bigtime_t timeout)
{
	if ((flags & B_ABSOLUTE_TIMEOUT) != 0)
		return timeout == B_INFINITE_TIMEOUT ? timeout : timeout - system_time();
	return (flags & B_RELATIVE_TIMEOUT) != 0 ? timeout : B_INFINITE_TIMEOUT;
}

} // namespace


extern "C"
{

	sem_id create_sem(int32 count, const char* /*name*/)
	{
		if (count < 0)
			return B_BAD_VALUE;
		const auto semaphore = std::make_shared<Semaphore>();
		semaphore->count = count;
		std::lock_guard<std::mutex> guard(table().mutex);
		const sem_id id = ++table().lastId;
		table().semaphores[id] = semaphore;
		return id;
	}


	status_t delete_sem(sem_id id)
	{
		std::shared_ptr<Semaphore> semaphore;
		{
			std::lock_guard<std::mutex> guard(table().mutex);
			const auto found = table().semaphores.find(id);
			if (found == table().semaphores.end())
				return B_BAD_SEM_ID;
			semaphore = found->second;
			table().semaphores.erase(found);
		}
		std::lock_guard<std::mutex> guard(semaphore->mutex);
		semaphore->isDeleted = true;
		semaphore->changed.notify_all();
		return B_OK;
	}


	status_t acquire_sem(sem_id id)
	{
		return acquire_sem_etc(id, 1, 0, 0);
	}


	status_t acquire_sem_etc(sem_id id, int32 count, uint32 flags, bigtime_t timeout)
	{
		if (count <= 0)
			return B_BAD_VALUE;
		const std::shared_ptr<Semaphore> semaphore = semaphore_of(id);
		if (semaphore == nullptr)
			return B_BAD_SEM_ID;

		const bigtime_t left = relative(flags, timeout);
		// Beyond this the clock would overflow.
		constexpr bigtime_t kLongest = B_INFINITE_TIMEOUT / 4000;
		std::unique_lock<std::mutex> guard(semaphore->mutex);
		const auto isOver = [&] { return semaphore->isDeleted || semaphore->count >= count; };
		if (left >= kLongest)
			semaphore->changed.wait(guard, isOver);
		else if (!semaphore->changed.wait_for(guard, std::chrono::microseconds(left), isOver))
			return left > 0 || (flags & B_ABSOLUTE_TIMEOUT) != 0 ? B_TIMED_OUT : B_WOULD_BLOCK;
		if (semaphore->isDeleted)
			return B_BAD_SEM_ID;
		semaphore->count -= count;
		return B_OK;
	}


	status_t release_sem(sem_id id)
	{
		return release_sem_etc(id, 1, 0);
	}


	status_t release_sem_etc(sem_id id, int32 count, uint32 /*flags*/)
	{
		if (count <= 0)
			return B_BAD_VALUE;
		const std::shared_ptr<Semaphore> semaphore = semaphore_of(id);
		if (semaphore == nullptr)
			return B_BAD_SEM_ID;
		std::lock_guard<std::mutex> guard(semaphore->mutex);
		semaphore->count += count;
		semaphore->changed.notify_all();
		return B_OK;
	}


	status_t get_sem_count(sem_id id, int32* threadCount)
	{
		if (threadCount == nullptr)
			return B_BAD_VALUE;
		const std::shared_ptr<Semaphore> semaphore = semaphore_of(id);
		if (semaphore == nullptr)
			return B_BAD_SEM_ID;
		std::lock_guard<std::mutex> guard(semaphore->mutex);
		*threadCount = semaphore->count;
		return B_OK;
	}

} // extern "C"
