// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PROCESSES_H
#define PROCESSES_H

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

#include <SupportDefs.h>


namespace hosted {

// The user's processes, as the system's process file system shows them.

// Numbers of all processes that belong to this user, in rising order.
std::vector<pid_t> OwnProcesses();

bool IsOwnProcess(pid_t process);

// The file that runs, with all links resolved; empty if the process is gone or not to be seen.
std::string ProcessExecutable(pid_t process);

// The words of its command line; empty if there is none.
std::vector<std::string> ProcessArguments(pid_t process);

// The folder that relative words of its command line start from.
std::string ProcessFolder(pid_t process);

pid_t ProcessParent(pid_t process);

// Microseconds from the machine's start to the process's; -1 if it is gone or only waits for its
// parent to notice its end.
bigtime_t ProcessStart(pid_t process);

// Microseconds since the machine's start.
bigtime_t TimeSinceBoot();

// A file for the process, which means no other one later and becomes readable when it ends; -1 if
// there is none. The caller closes it.
int PinProcess(pid_t process);

/*!	Asks a process of this user to end, by SIGTERM.

	The check runs after the process is pinned, so that a process that took over the number of an
	ended one is never met. False if there was nothing to ask.
*/
bool TerminateProcess(pid_t process, const std::function<bool()>& isStillRight);

} // namespace hosted

#endif // PROCESSES_H
