// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef AUTOLOCK_H
#define AUTOLOCK_H

#include <Locker.h>

class BLooper;


// Holds a lock as long as it exists, if it could be taken at all.
class BAutolock {
public:
	BAutolock(BLooper* looper);
	BAutolock(BLocker* locker);
	BAutolock(BLocker& locker);
	~BAutolock();
	BAutolock(const BAutolock&) = delete;
	BAutolock& operator=(const BAutolock&) = delete;

	bool IsLocked();
	bool Lock();
	void Unlock();

private:
	BLocker* fLocker = nullptr;
	BLooper* fLooper = nullptr;
	bool fIsLocked = false;
};

#endif // AUTOLOCK_H
