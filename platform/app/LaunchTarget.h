// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LAUNCH_TARGET_H
#define LAUNCH_TARGET_H

#include <string>
#include <vector>

#include <Entry.h>
#include <SupportDefs.h>


namespace hosted {

// A program that can be launched.
struct LaunchTarget {
	// Its file with its full path.
	std::string executable;
	// Its signature as far as it is known.
	std::string signature;
	// The command line from its desktop entry, with placeholders; empty if its file alone is run.
	std::vector<std::string> command;
	// Takes messages when it starts; others take files as words of their command line.
	bool isKitProgram = false;
	// The file that was to be opened, if it was not the program itself.
	std::string document;
};

// What BRoster::FindApp() finds, with its status codes.
status_t FindLaunchTarget(const char* mimeType, LaunchTarget* target);
status_t FindLaunchTarget(const entry_ref* ref, LaunchTarget* target);

} // namespace hosted

#endif // LAUNCH_TARGET_H
