// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef RUNNING_APPS_H
#define RUNNING_APPS_H

#include <string>
#include <vector>

#include "platform/desktop/AppName.h"


namespace hosted {

enum class AppKind {
	// Stands for Haiku's roster server, which comes first in every list of applications: here it is
	// the session bus, or the machine's first process where there is no bus.
	kRosterServer,
	// A program built on the kits.
	kProgram,
	// A player of the table.
	kPlayer,
};

// An application that runs in the user's session.
struct RunningApp {
	AppKind kind = AppKind::kProgram;
	AppIdentity identity;
	// Its program's file with its full path; empty if it is not to be seen.
	std::string executable;
	// Its names on the session bus; none for players without one.
	std::vector<std::string> busNames;
};

inline constexpr char kRosterServerSignature[] = "application/x-vnd.haiku-registrar";

// All of them, in the roster's order: the roster server's stand-in, then by the time of their
// registration or start. Callable from any thread, like the rest.
std::vector<RunningApp> RunningApps();

// The programs built on the kits alone, in that order; this one is among them once it is
// registered.
std::vector<RunningApp> RunningPrograms();

bool FindRunningApp(team_id team, RunningApp* app);
bool FindRunningProgram(team_id team, RunningApp* app);

// The ones of that signature; if one is written exactly so, only these.
std::vector<RunningApp> AppsOfSignature(const std::vector<RunningApp>& apps,
	const std::string& signature);

// The program that a name on the bus belongs to, as far as the bus confirms what the name says.
bool LookUpProgram(const std::string& busName, RunningApp* app);

// What this process registered as; a team of -1 means that it is not registered.
void SetOwnIdentity(const AppIdentity& identity);
AppIdentity OwnIdentity();

} // namespace hosted

#endif // RUNNING_APPS_H
