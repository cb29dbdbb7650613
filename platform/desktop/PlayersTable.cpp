// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/PlayersTable.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <sstream>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/desktop/FileText.h"
#include "platform/desktop/Processes.h"


namespace hosted {

namespace {

constexpr char kTableName[] = "/VinyloH/players.table";

using Words = std::vector<std::string>;


Words
words_of(const std::string& line)
{
	std::istringstream text(line.substr(0, line.find('#')));
	return {std::istream_iterator<std::string>(text), std::istream_iterator<std::string>()};
}


bool
contains(const std::vector<std::string>& list, const std::string& text)
{
	return std::find(list.begin(), list.end(), text) != list.end();
}


// False if the word means nothing to a player.
bool
set_field(PlayerEntry& player, const std::string& field, const Words& values)
{
	if (field == "signature") {
		player.signature = values.front();
	} else if (field == "executable") {
		player.executables = values;
	} else if (field == "desktop") {
		player.desktopEntries = values;
	} else if (field == "mpris") {
		player.busNames = values;
	} else if (field == "types") {
		player.playsAudio = contains(values, "audio");
		player.playsVideo = contains(values, "video");
	} else {
		return false;
	}
	return true;
}


bool
is_whole(const PlayerEntry& player)
{
	return player.signature.compare(0, 12, "application/") == 0 && !player.executables.empty();
}


void
report(std::string* problems, const std::string& text)
{
	if (problems != nullptr)
		*problems += text + "\n";
}


bool
read_line(PlayersTable& table, bool& inPlayer, const Words& words)
{
	const Words values(words.begin() + 1, words.end());
	if (values.empty())
		return false;
	if (words.front() == "spare") {
		table.spareSignatures.push_back(values.front());
		return true;
	}
	if (words.front() == "player") {
		table.players.emplace_back();
		table.players.back().name = values.front();
		inPlayer = true;
		return true;
	}
	return inPlayer && set_field(table.players.back(), words.front(), values);
}


// A file as it was when it was read last.
struct TableFile {
	std::string path;
	struct timespec changed = {-1, 0};
	off_t size = -1;
	PlayersTable table;
};


// Whether there is such a file; its table is then up to date.
bool
refresh(TableFile& file, const std::string& path)
{
	struct stat status;
	if (path.empty() || stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
		file = TableFile();
		return false;
	}
	if (path == file.path && status.st_size == file.size
		&& status.st_mtim.tv_sec == file.changed.tv_sec
		&& status.st_mtim.tv_nsec == file.changed.tv_nsec)
		return true;
	std::string problems;
	file.path = path;
	file.changed = status.st_mtim;
	file.size = status.st_size;
	file.table = ParsePlayersTable(FileText(path), &problems);
	if (!problems.empty())
		fprintf(stderr, "%s:\n%s", path.c_str(), problems.c_str());
	return true;
}


std::string
installed_path()
{
	std::string path = ProcessExecutable(getpid());
	for (int level = 0; level < 2; level++) {
		const size_t slash = path.rfind('/');
		if (slash == std::string::npos)
			return "";
		path.resize(slash);
	}
	return path + "/share" + kTableName;
}


std::string
user_path()
{
	const char* settings = getenv("XDG_CONFIG_HOME");
	if (settings != nullptr && settings[0] == '/')
		return std::string(settings) + kTableName;
	const char* home = getenv("HOME");
	return home != nullptr ? std::string(home) + "/.config" + kTableName : "";
}

} // namespace


const PlayerEntry*
PlayersTable::Find(const std::string& name) const
{
	for (const PlayerEntry& player : players) {
		if (player.name == name)
			return &player;
	}
	return nullptr;
}


void
PlayersTable::Extend(const PlayersTable& other)
{
	PlayersTable whole = other;
	for (const PlayerEntry& player : players) {
		if (other.Find(player.name) == nullptr)
			whole.players.push_back(player);
	}
	for (const std::string& signature : spareSignatures) {
		if (!contains(other.spareSignatures, signature))
			whole.spareSignatures.push_back(signature);
	}
	*this = whole;
}


PlayersTable
ParsePlayersTable(const std::string& text, std::string* problems)
{
	PlayersTable table;
	bool inPlayer = false;
	std::istringstream lines(text);
	std::string line;
	int number = 0;
	while (std::getline(lines, line)) {
		number++;
		const Words words = words_of(line);
		if (!words.empty() && !read_line(table, inPlayer, words))
			report(problems, "line " + std::to_string(number) + " means nothing: " + line);
	}
	std::vector<PlayerEntry> whole;
	for (const PlayerEntry& player : table.players) {
		if (is_whole(player))
			whole.push_back(player);
		else
			report(problems, "player " + player.name + " lacks its signature or executable");
	}
	table.players = whole;
	return table;
}


PlayersTable
CurrentPlayersTable()
{
	static std::mutex* sLock = new std::mutex;
	static TableFile* sInstalled = new TableFile;
	static TableFile* sUser = new TableFile;
	static const PlayersTable* sBuiltIn
		= new PlayersTable(ParsePlayersTable(BuiltInPlayersTable(), nullptr));

	std::lock_guard<std::mutex> lock(*sLock);
	PlayersTable table = refresh(*sInstalled, installed_path()) ? sInstalled->table : *sBuiltIn;
	if (refresh(*sUser, user_path()))
		table.Extend(sUser->table);
	return table;
}

} // namespace hosted
