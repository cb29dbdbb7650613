// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Autolock.h>

#include <Looper.h>


BAutolock::BAutolock(BLooper* looper)
	:
	fLooper(looper)
{
	Lock();
}


BAutolock::BAutolock(BLocker* locker)
	:
	fLocker(locker)
{
	Lock();
}


BAutolock::BAutolock(BLocker& locker)
	:
	fLocker(&locker)
{
	Lock();
}


BAutolock::~BAutolock()
{
	Unlock();
}


bool
BAutolock::IsLocked()
{
	return fIsLocked;
}


bool
BAutolock::Lock()
{
	if (fIsLocked)
		return true;
	if (fLocker != nullptr)
		fIsLocked = fLocker->Lock();
	else if (fLooper != nullptr)
		fIsLocked = fLooper->Lock();
	return fIsLocked;
}


void
BAutolock::Unlock()
{
	if (!fIsLocked)
		return;
	fIsLocked = false;
	if (fLocker != nullptr)
		fLocker->Unlock();
	else
		fLooper->Unlock();
}
