// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Autolock.h>
#include <Locker.h>
#include <Looper.h>

#include <gtest/gtest.h>
#include <thread>
#include <vector>


TEST(BLocker, HolderMayLockAgain)
{
	BLocker locker("test");
	EXPECT_TRUE(locker.Lock());
	EXPECT_TRUE(locker.Lock());
	EXPECT_EQ(locker.CountLocks(), 2);
	locker.Unlock();
	EXPECT_TRUE(locker.IsLocked());
	EXPECT_EQ(locker.LockingThread(), find_thread(nullptr));
	locker.Unlock();
	EXPECT_FALSE(locker.IsLocked());
	EXPECT_EQ(locker.LockingThread(), -1);
}


TEST(BLocker, IsLockedAsksForThisThread)
{
	BLocker locker;
	locker.Lock();
	bool isLockedThere = true;
	status_t withoutWaiting = B_OK;
	status_t waiting = B_OK;
	std::thread([&] {
		isLockedThere = locker.IsLocked();
		withoutWaiting = locker.LockWithTimeout(0);
		waiting = locker.LockWithTimeout(1000);
		// Not its own, so this does nothing.
		locker.Unlock();
	}).join();
	EXPECT_FALSE(isLockedThere);
	EXPECT_EQ(withoutWaiting, B_WOULD_BLOCK);
	EXPECT_EQ(waiting, B_TIMED_OUT);
	EXPECT_TRUE(locker.IsLocked());
	locker.Unlock();
}


TEST(BLocker, KeepsOthersOut)
{
	BLocker locker;
	int32 count = 0;
	std::vector<std::thread> threads;
	for (int index = 0; index < 4; index++) {
		threads.emplace_back([&] {
			for (int turn = 0; turn < 1000; turn++) {
				BAutolock lock(locker);
				count = count + 1;
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	EXPECT_EQ(count, 4000);
}


TEST(BAutolock, GivesTheLockBack)
{
	BLocker locker;
	{
		BAutolock lock(&locker);
		EXPECT_TRUE(lock.IsLocked());
		EXPECT_TRUE(locker.IsLocked());
		lock.Unlock();
		EXPECT_FALSE(locker.IsLocked());
		EXPECT_TRUE(lock.Lock());
	}
	EXPECT_FALSE(locker.IsLocked());
}


TEST(BAutolock, NothingToLock)
{
	BAutolock nothing(static_cast<BLocker*>(nullptr));
	EXPECT_FALSE(nothing.IsLocked());
	BAutolock noLooper(static_cast<BLooper*>(nullptr));
	EXPECT_FALSE(noLooper.IsLocked());
}


TEST(BAutolock, LocksALooper)
{
	BLooper* looper = new BLooper("looper");
	looper->Run();
	{
		BAutolock lock(looper);
		EXPECT_TRUE(lock.IsLocked());
		EXPECT_TRUE(looper->IsLocked());
	}
	EXPECT_FALSE(looper->IsLocked());
	ASSERT_TRUE(looper->Lock());
	looper->Quit();
}
