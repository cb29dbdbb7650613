// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MESSAGE_QUEUE_H
#define MESSAGE_QUEUE_H

#include <SupportDefs.h>

class BMessage;

namespace hosted {
struct QueueState;
class QueueAccess;
} // namespace hosted


/*!	Messages in the order in which they arrived. The queue owns them.

	All calls may come from any thread; Lock() keeps everybody else out, and nests.
*/
class BMessageQueue {
public:
	BMessageQueue();
	virtual ~BMessageQueue();
	BMessageQueue(const BMessageQueue&) = delete;
	BMessageQueue& operator=(const BMessageQueue&) = delete;

	void AddMessage(BMessage* message);
	// The message is the caller's from then on.
	void RemoveMessage(BMessage* message);

	int32 CountMessages() const;
	bool IsEmpty() const;

	BMessage* FindMessage(int32 index) const;
	BMessage* FindMessage(uint32 what, int32 index = 0) const;

	bool Lock();
	void Unlock();
	bool IsLocked() const;

	// Takes the first message out, null if there is none.
	BMessage* NextMessage();
	bool IsNextMessage(const BMessage* message) const;

private:
	friend class hosted::QueueAccess;

	hosted::QueueState* fState;
};

#endif // MESSAGE_QUEUE_H
