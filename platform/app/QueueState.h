// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef QUEUE_STATE_H
#define QUEUE_STATE_H

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

#include <MessageQueue.h>
#include <OS.h>
#include <SupportDefs.h>


namespace hosted {

/*!	What a message queue keeps, and how a looper waits for it.

	Somebody may hold the queue for a while (BMessageQueue::Lock()); everything else waits then. The
	mutex itself is held only while the fields are touched.
*/
struct QueueState {
	std::mutex mutex;
	// The holder let go, a message arrived or left, somebody woke the looper, the queue closed.
	std::condition_variable changed;
	std::deque<BMessage*> messages;
	std::thread::id holder;
	int32 holds = 0;
	// How many of the messages count against the looper's capacity.
	int32 throughPort = 0;
	bool woken = false;
	bool closed = false;

	// Waits until nobody else holds the queue.
	void WaitForHolder(std::unique_lock<std::mutex>& lock);
	bool IsHeldByOther() const;
	void Removed(const BMessage* message);
};


// The kit's way into queues.
class QueueAccess {
public:
	// Takes the message over, also when it fails; a failed one is deleted without an answer. A
	// capacity of 0 means no limit, else a message that goes through the port waits for room.
	static status_t Post(BMessageQueue& queue, BMessage* message, int32 capacity,
		bigtime_t timeout);
	// Waits for a message; null when the time, in system_time(), has come.
	static BMessage* Take(BMessageQueue& queue, bigtime_t until);
	// Waits for a message without taking it, or for Wake(). Whether there is one.
	static bool Wait(BMessageQueue& queue, bigtime_t until);
	static void Wake(BMessageQueue& queue);
	// Refuses messages from now on, and hands out those that are left.
	static std::deque<BMessage*> Close(BMessageQueue& queue);
};

} // namespace hosted

#endif // QUEUE_STATE_H
