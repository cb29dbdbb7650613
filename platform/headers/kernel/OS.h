// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef OS_H
#define OS_H

#include <SupportDefs.h>


#define B_OS_NAME_LENGTH 32
#define B_INFINITE_TIMEOUT (0x7fffffffffffffffL)

enum {
	B_RELATIVE_TIMEOUT = 0x8,
	B_ABSOLUTE_TIMEOUT = 0x10,
};

#define B_SYSTEM_TIMEBASE 0

enum {
	B_LOW_PRIORITY = 5,
	B_NORMAL_PRIORITY = 10,
	B_DISPLAY_PRIORITY = 15,
	B_URGENT_DISPLAY_PRIORITY = 20,
};

typedef int32 port_id;
typedef int32 sem_id;
typedef int32 team_id;
typedef int32 thread_id;

typedef status_t (*thread_func)(void*);

typedef struct {
	team_id team;
	int32 thread_count;
	int32 argc;
	char args[64];
	uid_t uid;
	gid_t gid;
} team_info;

extern "C"
{

	// Time. The system's time counts microseconds since the start of the machine.
	bigtime_t system_time(void);
	unsigned long real_time_clock(void);
	bigtime_t real_time_clock_usecs(void);
	status_t snooze(bigtime_t amount);
	status_t snooze_until(bigtime_t time, int timeBase);

	// Threads. A new one waits until it is resumed.
	thread_id spawn_thread(thread_func function, const char* name, int32 priority, void* data);
	status_t resume_thread(thread_id thread);
	status_t wait_for_thread(thread_id thread, status_t* returnValue);
	thread_id find_thread(const char* name);

	// Semaphores.
	sem_id create_sem(int32 count, const char* name);
	status_t delete_sem(sem_id id);
	status_t acquire_sem(sem_id id);
	status_t acquire_sem_etc(sem_id id, int32 count, uint32 flags, bigtime_t timeout);
	status_t release_sem(sem_id id);
	status_t release_sem_etc(sem_id id, int32 count, uint32 flags);
	status_t get_sem_count(sem_id id, int32* threadCount);

	// Teams, which are processes. A team of 0 is the caller's own.
	status_t get_team_info(team_id id, team_info* info);
	status_t get_next_team_info(int32* cookie, team_info* info);
}

#endif // OS_H
