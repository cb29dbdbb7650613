// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LOOPER_CORE_H
#define LOOPER_CORE_H

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>

#include <MessageQueue.h>
#include <OS.h>
#include <SupportDefs.h>

class BLooper;
class BWindow;


namespace hosted {

/*!	The part of a looper that other threads touch: its queue and its lock.

	Whoever posts to a looper or wants its lock shares this part, which therefore outlives the
	looper for as long as one of them is at it.
*/
struct LooperCore {
	LooperCore(BLooper* looper, int32 port, int32 token, int32 capacity);

	// B_BAD_VALUE if the looper is dying, or has begun to while the caller waited.
	status_t Lock(bigtime_t timeout);
	void Unlock();
	// Gives up all of the caller's locks.
	void UnlockFully();
	bool IsLockedByCaller();

	// The looper's name, for those who look for it by name without its lock. May be null.
	void SetName(const char* newName);
	bool IsNamed(const char* wanted);

	// Only the holder gets the lock from now on; everybody who waits for it gives up.
	void BeginDying();
	// The looper is gone, and the lock with it.
	void Dead();

	// The looper's thread is about to end; nothing of the looper runs any more.
	void Ended();
	void WaitForEnd();

	BLooper* const looper;
	const int32 port;
	const int32 token;
	const int32 capacity;
	BMessageQueue queue;

	// Set while a thread runs the loop.
	std::atomic<thread_id> thread{-1};
	std::atomic<bool> running{false};

	// Touched with the registry's mutex only.
	BWindow* window = nullptr;
	bool listed = false;
	bool wasWindow = false;

	std::mutex mutex;
	std::condition_variable changed;
	thread_id holder = -1;
	int32 holds = 0;
	int32 waiting = 0;
	bool dying = false;
	bool dead = false;
	bool hasThread = false;
	bool ended = false;
	std::optional<std::string> name;
};

} // namespace hosted

#endif // LOOPER_CORE_H
