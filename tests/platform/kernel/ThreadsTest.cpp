// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <OS.h>

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

#include "tests/support/Wait.h"


namespace {

status_t
answer(void* data)
{
	*static_cast<std::atomic<thread_id>*>(data) = find_thread(nullptr);
	return 42;
}


status_t
wait_for_semaphore(void* data)
{
	return acquire_sem(*static_cast<sem_id*>(data));
}

} // namespace


TEST(Threads, NewOneWaitsToBeResumed)
{
	std::atomic<thread_id> seen{-1};
	const thread_id thread = spawn_thread(answer, "a test thread", B_NORMAL_PRIORITY, &seen);
	ASSERT_GT(thread, 0);
	EXPECT_EQ(find_thread("a test thread"), thread);
	EXPECT_EQ(seen, -1);
	EXPECT_EQ(resume_thread(thread), B_OK);
	status_t result = B_ERROR;
	EXPECT_EQ(wait_for_thread(thread, &result), B_OK);
	EXPECT_EQ(result, 42);
	EXPECT_EQ(seen, thread);
	// Waited for, it is gone.
	EXPECT_EQ(wait_for_thread(thread, &result), B_BAD_THREAD_ID);
	EXPECT_EQ(resume_thread(thread), B_BAD_THREAD_ID);
	EXPECT_EQ(find_thread("a test thread"), B_NAME_NOT_FOUND);
}


TEST(Threads, WaitingStartsASuspendedOne)
{
	std::atomic<thread_id> seen{-1};
	const thread_id thread = spawn_thread(answer, nullptr, B_LOW_PRIORITY, &seen);
	EXPECT_EQ(wait_for_thread(thread, nullptr), B_OK);
	EXPECT_EQ(seen, thread);
}


TEST(Threads, RunningOneIsNotResumed)
{
	sem_id semaphore = create_sem(0, "wait");
	const thread_id thread
		= spawn_thread(wait_for_semaphore, "waits", B_NORMAL_PRIORITY, &semaphore);
	EXPECT_EQ(resume_thread(thread), B_OK);
	EXPECT_EQ(resume_thread(thread), B_BAD_THREAD_STATE);
	EXPECT_EQ(delete_sem(semaphore), B_OK);
	status_t result = B_OK;
	EXPECT_EQ(wait_for_thread(thread, &result), B_OK);
	EXPECT_EQ(result, B_BAD_SEM_ID);
}


TEST(Threads, BadArguments)
{
	EXPECT_EQ(spawn_thread(nullptr, "x", B_NORMAL_PRIORITY, nullptr), B_BAD_VALUE);
	EXPECT_EQ(wait_for_thread(-1, nullptr), B_BAD_THREAD_ID);
	EXPECT_EQ(find_thread("no such thread"), B_NAME_NOT_FOUND);
	EXPECT_EQ(find_thread(nullptr), getpid());
}


TEST(Semaphores, CountDownAndUp)
{
	const sem_id semaphore = create_sem(2, "two");
	ASSERT_GT(semaphore, 0);
	EXPECT_EQ(acquire_sem(semaphore), B_OK);
	EXPECT_EQ(acquire_sem(semaphore), B_OK);
	EXPECT_EQ(acquire_sem_etc(semaphore, 1, B_RELATIVE_TIMEOUT, 0), B_WOULD_BLOCK);
	EXPECT_EQ(acquire_sem_etc(semaphore, 1, B_RELATIVE_TIMEOUT, 1000), B_TIMED_OUT);
	EXPECT_EQ(acquire_sem_etc(semaphore, 1, B_ABSOLUTE_TIMEOUT, system_time() + 1000), B_TIMED_OUT);
	EXPECT_EQ(release_sem(semaphore), B_OK);
	int32 count = 0;
	EXPECT_EQ(get_sem_count(semaphore, &count), B_OK);
	EXPECT_EQ(count, 1);
	EXPECT_EQ(release_sem_etc(semaphore, 2, 0), B_OK);
	EXPECT_EQ(acquire_sem_etc(semaphore, 3, B_RELATIVE_TIMEOUT, B_INFINITE_TIMEOUT), B_OK);
	EXPECT_EQ(delete_sem(semaphore), B_OK);
}


TEST(Semaphores, ReleaseWakesAWaiter)
{
	const sem_id semaphore = create_sem(0, "zero");
	std::atomic<status_t> result{B_ERROR};
	std::thread waiter([&] { result = acquire_sem(semaphore); });
	EXPECT_EQ(release_sem(semaphore), B_OK);
	waiter.join();
	EXPECT_EQ(result, B_OK);
	delete_sem(semaphore);
}


TEST(Semaphores, BadArguments)
{
	EXPECT_EQ(create_sem(-1, "x"), B_BAD_VALUE);
	EXPECT_EQ(acquire_sem(999999), B_BAD_SEM_ID);
	EXPECT_EQ(release_sem(999999), B_BAD_SEM_ID);
	EXPECT_EQ(delete_sem(999999), B_BAD_SEM_ID);
	const sem_id semaphore = create_sem(0, nullptr);
	EXPECT_EQ(acquire_sem_etc(semaphore, 0, 0, 0), B_BAD_VALUE);
	EXPECT_EQ(release_sem_etc(semaphore, 0, 0), B_BAD_VALUE);
	EXPECT_EQ(get_sem_count(semaphore, nullptr), B_BAD_VALUE);
	delete_sem(semaphore);
}


TEST(Teams, OwnTeamIsDescribed)
{
	team_info info = {};
	ASSERT_EQ(get_team_info(0, &info), B_OK);
	EXPECT_EQ(info.team, getpid());
	EXPECT_EQ(info.uid, getuid());
	EXPECT_GE(info.thread_count, 1);
	EXPECT_GE(info.argc, 1);
	EXPECT_NE(info.args[0], '\0');
	EXPECT_EQ(get_team_info(-5, &info), B_BAD_TEAM_ID);
	EXPECT_EQ(get_team_info(0, nullptr), B_BAD_VALUE);
}


TEST(Teams, AllAreListedInOrder)
{
	team_info info;
	int32 cookie = 0;
	team_id last = 0;
	bool seesOwn = false;
	while (get_next_team_info(&cookie, &info) == B_OK) {
		EXPECT_GT(info.team, last);
		last = info.team;
		seesOwn = seesOwn || info.team == getpid();
	}
	EXPECT_TRUE(seesOwn);
}
