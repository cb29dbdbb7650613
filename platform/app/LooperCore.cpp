// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/LooperCore.h"

#include "platform/app/Deadline.h"
#include "platform/app/Threads.h"


namespace hosted {

LooperCore::LooperCore(BLooper* looper, int32 port, int32 token, int32 capacity)
	:
	looper(looper),
	port(port),
	token(token),
	capacity(capacity)
{
}


status_t
LooperCore::Lock(bigtime_t timeout)
{
	const thread_id self = CurrentThread();
	std::unique_lock<std::mutex> lock(mutex);
	if (dead || (dying && holder != self))
		return B_BAD_VALUE;
	if (holder == self) {
		holds++;
		return B_OK;
	}
	if (holder != -1) {
		if (timeout <= 0)
			return B_WOULD_BLOCK;
		waiting++;
		const bool came = WaitUntil(changed, lock, DeadlineAfter(timeout),
			[this]() { return dying || dead || holder == -1; });
		waiting--;
		if (!came)
			return B_TIMED_OUT;
		if (dying || dead)
			return B_BAD_VALUE;
	}
	holder = self;
	holds = 1;
	return B_OK;
}


void
LooperCore::Unlock()
{
	std::lock_guard<std::mutex> lock(mutex);
	if (holder != CurrentThread())
		return;
	if (--holds > 0)
		return;
	holder = -1;
	changed.notify_all();
}


void
LooperCore::UnlockFully()
{
	std::lock_guard<std::mutex> lock(mutex);
	if (holder != CurrentThread())
		return;
	holds = 0;
	holder = -1;
	changed.notify_all();
}


bool
LooperCore::IsLockedByCaller()
{
	std::lock_guard<std::mutex> lock(mutex);
	return holder == CurrentThread();
}


void
LooperCore::SetName(const char* newName)
{
	std::lock_guard<std::mutex> lock(mutex);
	name.reset();
	if (newName != nullptr)
		name = newName;
}


bool
LooperCore::IsNamed(const char* wanted)
{
	std::lock_guard<std::mutex> lock(mutex);
	return name == wanted;
}


void
LooperCore::BeginDying()
{
	std::lock_guard<std::mutex> lock(mutex);
	dying = true;
	changed.notify_all();
}


void
LooperCore::Dead()
{
	std::lock_guard<std::mutex> lock(mutex);
	dead = true;
	holder = -1;
	holds = 0;
	changed.notify_all();
}


void
LooperCore::Ended()
{
	std::lock_guard<std::mutex> lock(mutex);
	ended = true;
	changed.notify_all();
}


void
LooperCore::WaitForEnd()
{
	std::unique_lock<std::mutex> lock(mutex);
	changed.wait(lock, [this]() { return ended || !hasThread; });
}

} // namespace hosted
