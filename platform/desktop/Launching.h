// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LAUNCHING_H
#define LAUNCHING_H

#include <string>
#include <vector>

#include <OS.h>
#include <SupportDefs.h>


namespace hosted {

/*!	Starts a program in a session of its own, so that it lives on when this process ends.

	words are its command line, the first one its file with the full path; no shell is involved.
	messages are the flattened messages that it gets before anything else, if it is built on the
	kits: it fetches them while it registers. B_LAUNCH_FAILED_EXECUTABLE if it cannot be started.
*/
status_t StartProgram(const std::vector<std::string>& words,
	const std::vector<std::string>& messages, team_id* team);

// Hands out the messages that wait for a program under this key, once.
std::vector<std::string> TakeLaunchMessages(const std::string& key);

// Fetches the messages that the program which started this one has left for it, in order, with the
// team that left them. Nothing the second time.
std::vector<std::string> FetchLaunchMessages(team_id* launcher);

} // namespace hosted

#endif // LAUNCHING_H
