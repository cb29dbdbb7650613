// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Locker.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>


struct BLocker::Private {
	std::string name;
	std::mutex mutex;
	std::condition_variable freed;
	thread_id owner = -1;
	int32 count = 0;
	int32 waiting = 0;
};


BLocker::BLocker()
	:
	BLocker("some BLocker")
{
}


BLocker::BLocker(const char* name)
	:
	fPrivate(new Private)
{
	if (name != nullptr)
		fPrivate->name.assign(name, strnlen(name, B_OS_NAME_LENGTH - 1));
}


BLocker::~BLocker()
{
	delete fPrivate;
}


status_t
BLocker::InitCheck() const
{
	return B_OK;
}


bool
BLocker::Lock()
{
	return LockWithTimeout(B_INFINITE_TIMEOUT) == B_OK;
}


status_t
BLocker::LockWithTimeout(bigtime_t timeout)
{
	const thread_id self = find_thread(nullptr);
	std::unique_lock<std::mutex> guard(fPrivate->mutex);
	if (fPrivate->owner != self) {
		const auto isFree = [this] { return fPrivate->count == 0; };
		// Beyond this the clock would overflow.
		constexpr bigtime_t kLongest = B_INFINITE_TIMEOUT / 4000;

		fPrivate->waiting++;
		bool got = true;
		if (timeout >= kLongest)
			fPrivate->freed.wait(guard, isFree);
		else
			got = fPrivate->freed.wait_for(guard, std::chrono::microseconds(timeout), isFree);
		fPrivate->waiting--;
		if (!got)
			return timeout > 0 ? B_TIMED_OUT : B_WOULD_BLOCK;
	}
	fPrivate->owner = self;
	fPrivate->count++;
	return B_OK;
}


void
BLocker::Unlock()
{
	const thread_id self = find_thread(nullptr);
	std::lock_guard<std::mutex> guard(fPrivate->mutex);
	if (fPrivate->owner != self)
		return;
	if (--fPrivate->count == 0) {
		fPrivate->owner = -1;
		fPrivate->freed.notify_one();
	}
}


thread_id
BLocker::LockingThread() const
{
	std::lock_guard<std::mutex> guard(fPrivate->mutex);
	return fPrivate->owner;
}


bool
BLocker::IsLocked() const
{
	return LockingThread() == find_thread(nullptr);
}


int32
BLocker::CountLocks() const
{
	std::lock_guard<std::mutex> guard(fPrivate->mutex);
	return fPrivate->count;
}


int32
BLocker::CountLockRequests() const
{
	std::lock_guard<std::mutex> guard(fPrivate->mutex);
	return fPrivate->waiting + (fPrivate->count > 0 ? 1 : 0);
}
