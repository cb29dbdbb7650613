// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Running players, by their names on the session bus and by their processes.
#include "platform/desktop/Players.h"

#include <algorithm>
#include <fstream>
#include <limits.h>
#include <map>
#include <sstream>
#include <stdlib.h>
#include <unistd.h>

#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/Processes.h"
#include "platform/desktop/SessionBus.h"


namespace hosted {

namespace {

// What is looked for: a player of the table with what it is called here.
struct KnownPlayer {
	PlayerEntry entry;
	std::string signature;
	// As it is installed, and with all links resolved; empty if it is not installed.
	std::string executable;
	std::string resolved;
};


std::string
resolve(const std::string& path)
{
	char resolved[PATH_MAX];
	return realpath(path.c_str(), resolved) != nullptr ? resolved : "";
}


std::string
leaf_of(const std::string& path)
{
	return path.substr(path.rfind('/') + 1);
}


std::vector<KnownPlayer>
known_players()
{
	std::map<std::string, InstalledPlayer> installed;
	for (const InstalledPlayer& player : InstalledPlayers())
		installed[player.entry.name] = player;
	std::vector<KnownPlayer> known;
	for (const PlayerEntry& entry : CurrentPlayersTable().players) {
		KnownPlayer player;
		player.entry = entry;
		player.signature = entry.signature;
		const auto found = installed.find(entry.name);
		if (found != installed.end()) {
			player.signature = found->second.signature;
			player.executable = found->second.executable;
			player.resolved = resolve(player.executable);
		}
		known.push_back(player);
	}
	return known;
}


// Instances of a player add a dot and their own part to its name.
bool
is_bus_name_of(const PlayerEntry& entry, const std::string& name)
{
	for (const std::string& own : entry.busNames) {
		const std::string plain = std::string(kPlayerNamePrefix) + "." + own;
		if (name == plain || name.compare(0, plain.size() + 1, plain + ".") == 0)
			return true;
	}
	return false;
}


std::string
absolute_word(team_id process, const std::string& word)
{
	if (word.empty() || word[0] == '/' || word.find('/') == std::string::npos)
		return word;
	return ProcessFolder(process) + "/" + word;
}


// The file that runs a script, by its first line; empty if the file is no script.
std::string
interpreter_of(const std::string& script)
{
	std::ifstream file(script, std::ios::binary);
	std::string line;
	if (!std::getline(file, line) || line.compare(0, 2, "#!") != 0)
		return "";
	std::istringstream words(line.substr(2));
	std::string word;
	words >> word;
	if (leaf_of(word) == "env") {
		do
			words >> word;
		while (words && word[0] == '-');
	}
	return words || words.eof() ? resolve(FindExecutable(word)) : "";
}


/*!	Whether the process is that program: its file runs, or an interpreter runs it as a script.

	A file that has another name, as one program of many names has, counts only if the process was
	called by the player's.
*/
bool
is_process_of(team_id process, const std::string& running,
	const std::vector<std::string>& arguments, const KnownPlayer& player)
{
	if (player.resolved.empty() || running.empty())
		return false;
	const std::string name = leaf_of(player.executable);
	if (running == player.resolved) {
		return leaf_of(running) == name
			|| (!arguments.empty() && leaf_of(arguments.front()) == name);
	}
	// "/bin/sh -e /usr/bin/player": the script stands behind the interpreter and its options.
	for (size_t i = 1; i < arguments.size() && i < 4; i++) {
		if (!arguments[i].empty() && arguments[i][0] == '-')
			continue;
		const std::string script = absolute_word(process, arguments[i]);
		return !script.empty() && script[0] == '/' && resolve(script) == player.resolved
			&& running == interpreter_of(player.resolved);
	}
	return false;
}


RunningPlayer
running_player(const KnownPlayer& known, team_id team)
{
	RunningPlayer player;
	player.signature = known.signature;
	player.team = team;
	player.executable = !known.executable.empty() ? known.executable : ProcessExecutable(team);
	player.started = ProcessStart(team);
	return player;
}


void
add_named(std::map<team_id, RunningPlayer>& found, const std::vector<KnownPlayer>& known)
{
	const std::string prefix = std::string(kPlayerNamePrefix) + ".";
	for (const std::string& name : SessionBus::NamesBeginningWith(prefix)) {
		for (const KnownPlayer& player : known) {
			if (!is_bus_name_of(player.entry, name))
				continue;
			const team_id team = SessionBus::ProcessOf(name);
			if (team > 0) {
				found.emplace(team, running_player(player, team));
				found[team].busNames.push_back(name);
			}
			break;
		}
	}
}


const KnownPlayer*
player_of_process(team_id process, const std::vector<KnownPlayer>& known)
{
	const std::string running = ProcessExecutable(process);
	if (running.empty())
		return nullptr;
	const std::vector<std::string> arguments = ProcessArguments(process);
	for (const KnownPlayer& player : known) {
		if (is_process_of(process, running, arguments, player))
			return &player;
	}
	return nullptr;
}


void
add_processes(std::map<team_id, RunningPlayer>& found, const std::vector<KnownPlayer>& known)
{
	for (pid_t process : OwnProcesses()) {
		if (found.find(process) != found.end() || process == getpid())
			continue;
		const KnownPlayer* player = player_of_process(process, known);
		if (player == nullptr)
			continue;
		// A program's helper processes run the same file; the first one stands for all.
		const auto parent = found.find(ProcessParent(process));
		if (parent != found.end() && parent->second.signature == player->signature)
			continue;
		const RunningPlayer running = running_player(*player, process);
		if (running.started >= 0)
			found.emplace(process, running);
	}
}

} // namespace


std::vector<RunningPlayer>
RunningPlayers()
{
	const std::vector<KnownPlayer> known = known_players();
	std::map<team_id, RunningPlayer> found;
	add_named(found, known);
	add_processes(found, known);
	std::vector<RunningPlayer> players;
	for (const auto& [team, player] : found)
		players.push_back(player);
	std::stable_sort(players.begin(), players.end(),
		[](const RunningPlayer& one, const RunningPlayer& other) {
			return one.started < other.started;
		});
	return players;
}


bool
FindRunningPlayer(team_id team, RunningPlayer* player)
{
	for (const RunningPlayer& candidate : RunningPlayers()) {
		if (candidate.team == team) {
			*player = candidate;
			return true;
		}
	}
	return false;
}

} // namespace hosted
