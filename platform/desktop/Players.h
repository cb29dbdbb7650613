// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAYERS_H
#define PLAYERS_H

#include <string>
#include <vector>

#include <OS.h>
#include <SupportDefs.h>

#include "platform/desktop/PlayersTable.h"


namespace hosted {

/*!	A player that is installed on this machine.

	signature is the one that stands for it here, which another installed player may have made
	differ from the table's. offered is false for the few that share it with a better one: these are
	not found by their signature unless they run.
*/
struct InstalledPlayer {
	PlayerEntry entry;
	std::string signature;
	bool offered = false;
	// Its program's file with its full path, as it is found, links not resolved.
	std::string executable;
	// Empty, like the types, if it has no desktop entry.
	std::string desktopEntry;
	std::vector<std::string> types;
};

// A player that runs, with the signature that stands for it here.
struct RunningPlayer {
	std::string signature;
	team_id team = -1;
	// The program's file with its full path, as app_info names it.
	std::string executable;
	// Its names on the session bus, with the prefix; empty if it has none.
	std::vector<std::string> busNames;
	// Microseconds since the machine started.
	bigtime_t started = 0;
};

// The players of the table that are installed, in its order. All calls may come from any thread.
std::vector<InstalledPlayer> InstalledPlayers();

// The offered player of that signature, false if there is none. Two signatures that differ only in
// the case of their letters can stand for two players: the exact one is looked for first.
bool FindInstalledPlayer(const char* signature, InstalledPlayer* player);

// Whether the player says that it opens this type of the Linux desktop, or plays that kind at all.
bool PlayerOpensType(const InstalledPlayer& player, const std::string& type);
bool PlayerOpensSupertype(const InstalledPlayer& player, const std::string& supertype);

// This user's players that run, in the order of their start.
std::vector<RunningPlayer> RunningPlayers();
bool FindRunningPlayer(team_id team, RunningPlayer* player);

// What names on the session bus begin with that players have.
inline constexpr char kPlayerNamePrefix[] = "org.mpris.MediaPlayer2";

} // namespace hosted

#endif // PLAYERS_H
