// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LOCKER_H
#define LOCKER_H

#include <OS.h>


/*!	A lock that the thread which holds it may take again.

	It is free once it was given back as often as it was taken. A thread that does not hold it
	cannot give it back.
*/
class BLocker {
public:
	BLocker();
	BLocker(const char* name);
	virtual ~BLocker();
	BLocker(const BLocker&) = delete;
	BLocker& operator=(const BLocker&) = delete;

	status_t InitCheck() const;

	bool Lock();
	status_t LockWithTimeout(bigtime_t timeout);
	void Unlock();

	thread_id LockingThread() const;
	// Whether the calling thread holds it.
	bool IsLocked() const;
	int32 CountLocks() const;
	int32 CountLockRequests() const;

private:
	struct Private;
	Private* fPrivate;
};

#endif // LOCKER_H
