// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Installed players and the signatures that stand for them.
#include "platform/desktop/Players.h"

#include <algorithm>
#include <set>
#include <string.h>
#include <strings.h>

#include "platform/desktop/DesktopEntries.h"


namespace hosted {

namespace {

bool
find_installed(const PlayerEntry& entry, InstalledPlayer* player)
{
	for (const std::string& name : entry.executables) {
		player->executable = FindExecutable(name);
		if (!player->executable.empty())
			break;
	}
	if (player->executable.empty())
		return false;
	player->entry = entry;
	player->signature = entry.signature;
	for (const std::string& id : entry.desktopEntries) {
		DesktopEntry desktop;
		if (FindDesktopEntry(id, &desktop)) {
			player->desktopEntry = id;
			player->types = desktop.types;
			break;
		}
	}
	return true;
}


// Gives every player a signature of its own as long as there are any; players.table has the rule.
void
assign_signatures(std::vector<InstalledPlayer>& players, const std::vector<std::string>& spares)
{
	std::set<std::string> taken;
	for (InstalledPlayer& player : players)
		player.offered = taken.insert(player.entry.signature).second;
	for (InstalledPlayer& player : players) {
		if (player.offered)
			continue;
		for (const std::string& spare : spares) {
			if (taken.insert(spare).second) {
				player.signature = spare;
				player.offered = true;
				break;
			}
		}
	}
}

} // namespace


std::vector<InstalledPlayer>
InstalledPlayers()
{
	const PlayersTable table = CurrentPlayersTable();
	std::vector<InstalledPlayer> players;
	for (const PlayerEntry& entry : table.players) {
		InstalledPlayer player;
		if (find_installed(entry, &player))
			players.push_back(player);
	}
	assign_signatures(players, table.spareSignatures);
	return players;
}


bool
FindInstalledPlayer(const char* signature, InstalledPlayer* player)
{
	const std::vector<InstalledPlayer> players = InstalledPlayers();
	for (const bool exact : {true, false}) {
		for (const InstalledPlayer& candidate : players) {
			const int order = exact ? strcmp(candidate.signature.c_str(), signature)
									:
									strcasecmp(candidate.signature.c_str(), signature);
			if (candidate.offered && order == 0) {
				*player = candidate;
				return true;
			}
		}
	}
	return false;
}


bool
PlayerOpensType(const InstalledPlayer& player, const std::string& type)
{
	return std::find(player.types.begin(), player.types.end(), type) != player.types.end();
}


bool
PlayerOpensSupertype(const InstalledPlayer& player, const std::string& supertype)
{
	return (supertype == "audio" && player.entry.playsAudio)
		|| (supertype == "video" && player.entry.playsVideo);
}

} // namespace hosted
