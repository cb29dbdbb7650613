// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/Timers.h"

#include <chrono>
#include <utility>

#include <Errors.h>

#include "platform/app/Deadline.h"
#include "platform/app/Delivery.h"
#include "platform/app/Threads.h"


namespace hosted {

Timers&
Timers::Get()
{
	static Timers* sTimers = new Timers;
	return *sTimers;
}


int64
Timers::Add(const Address& target, const BMessage& message, const Address& replyTo,
	bigtime_t interval, int32 count)
{
	std::shared_ptr<Timer> timer = std::make_shared<Timer>();
	timer->target = target;
	timer->replyTo = replyTo;
	timer->message = message;
	timer->interval = interval;
	timer->due = DeadlineAfter(interval);
	timer->count = count;

	std::lock_guard<std::mutex> lock(fMutex);
	const int64 number = ++fLastNumber;
	fTimers[number] = std::move(timer);
	_StartThread();
	fChanged.notify_all();
	return number;
}


void
Timers::Remove(int64 number)
{
	// Its message is deleted after the mutex is free.
	std::shared_ptr<Timer> removed;
	std::unique_lock<std::mutex> lock(fMutex);
	const auto found = fTimers.find(number);
	if (found == fTimers.end())
		return;
	removed = found->second;
	fTimers.erase(found);
	fChanged.notify_all();
	fChanged.wait(lock, [this, number]() { return fFiring != number; });
}


status_t
Timers::SetInterval(int64 number, bigtime_t interval)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fTimers.find(number);
	if (found == fTimers.end())
		return B_BAD_VALUE;
	found->second->interval = interval;
	found->second->due = DeadlineAfter(interval);
	fChanged.notify_all();
	return B_OK;
}


status_t
Timers::SetCount(int64 number, int32 count)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fTimers.find(number);
	if (found == fTimers.end())
		return B_BAD_VALUE;
	if (found->second->count == 0)
		found->second->due = DeadlineAfter(found->second->interval);
	found->second->count = count;
	fChanged.notify_all();
	return B_OK;
}


status_t
Timers::GetInfo(int64 number, bigtime_t* interval, int32* count)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fTimers.find(number);
	if (found == fTimers.end())
		return B_BAD_VALUE;
	if (interval != nullptr)
		*interval = found->second->interval;
	if (count != nullptr)
		*count = found->second->count;
	return B_OK;
}


void
Timers::_StartThread()
{
	if (fRunning)
		return;
	fRunning = true;
	const thread_id thread = StartThread(
		"timers", [this]() { _Run(); }, []() {});
	if (thread < 0)
		fRunning = false;
}


void
Timers::_Run()
{
	std::unique_lock<std::mutex> lock(fMutex);
	while (!fTimers.empty()) {
		const auto first = _First();
		const bigtime_t now = system_time();
		if (first == fTimers.end()) {
			fChanged.wait(lock);
		} else if (first->second->due > now) {
			// At most an hour, so that no clock overflows.
			constexpr bigtime_t kLongest = 3600 * 1000000L;
			const bigtime_t left = first->second->due - now;
			fChanged.wait_until(lock,
				std::chrono::steady_clock::now()
					+ std::chrono::microseconds(left < kLongest ? left : kLongest));
		} else
			_Fire(lock, first->first, first->second);
	}
	fRunning = false;
}


std::map<int64, std::shared_ptr<Timers::Timer>>::iterator
Timers::_First()
{
	auto first = fTimers.end();
	for (auto timer = fTimers.begin(); timer != fTimers.end(); ++timer) {
		if (timer->second->count == 0)
			continue;
		if (first == fTimers.end() || timer->second->due < first->second->due)
			first = timer;
	}
	return first;
}


void
Timers::_Fire(std::unique_lock<std::mutex>& lock, int64 number, std::shared_ptr<Timer> timer)
{
	// After a long halt, as of the whole machine, what was missed is not made up for.
	const bigtime_t now = system_time();
	timer->due += timer->interval;
	if (timer->due <= now)
		timer->due = now + timer->interval;

	fFiring = number;
	lock.unlock();
	const status_t status
		= SendCopy(timer->target, timer->message, timer->replyTo, 0, Way::kCounted);
	lock.lock();
	fFiring = 0;
	fChanged.notify_all();

	if (status == B_BAD_PORT_ID)
		timer->count = 0;
	else if (status == B_OK && timer->count > 0)
		timer->count--;
}

} // namespace hosted
