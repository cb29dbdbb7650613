// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAYERS_TABLE_H
#define PLAYERS_TABLE_H

#include <string>
#include <vector>


namespace hosted {

// One player as the table has it; players.table explains the fields.
struct PlayerEntry {
	std::string name;
	std::string signature;
	std::vector<std::string> executables;
	std::vector<std::string> desktopEntries;
	std::vector<std::string> busNames;
	bool playsAudio = false;
	bool playsVideo = false;
};

struct PlayersTable {
	std::vector<PlayerEntry> players;
	std::vector<std::string> spareSignatures;

	const PlayerEntry* Find(const std::string& name) const;
	// Puts the other table's players and spare signatures before these, and takes out the ones
	// that they replace.
	void Extend(const PlayersTable& other);
};

/*!	Reads a table.

	Lines that say nothing known, and players without signature or executable, are left out and
	reported with their line numbers, each in a line of the problems; null if nobody asks.
*/
PlayersTable ParsePlayersTable(const std::string& text, std::string* problems);

// The table that was built in.
const char* BuiltInPlayersTable();

/*!	The table of this installation: the file share/VinyloH/players.table beside the program's own
	folder, else the one built in, extended by VinyloH/players.table in the user's settings folder.

	Read when first asked for, and again when one of the files has changed.
*/
PlayersTable CurrentPlayersTable();

} // namespace hosted

#endif // PLAYERS_TABLE_H
