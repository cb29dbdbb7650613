// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Reading of playlist files.
#include "window/PlaylistFile.h"

#include <string>
#include <string_view>
#include <vector>

#include <stdio.h>
#include <string.h>
#include <sys/stat.h>

#include <List.h>
#include <Path.h>


// With the terminator; longer lines are split.
static constexpr size_t kPieceSize = 1024;
static constexpr std::string_view kPrefix = "file://";
// Some programs begin a list in UTF-8 with this.
static constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
// A path of this length or less is none.
static constexpr size_t kTooShort = 5;


static void
remove_line_ends(char* line)
{
	char* to = line;
	for (const char* from = line; *from != '\0'; from++) {
		if (*from != '\r' && *from != '\n')
			*to++ = *from;
	}
	*to = '\0';
}


const char*
PlaylistEntry(char* line, bool* withPrefix)
{
	if (line[0] == ';' || line[0] == '#')
		return nullptr;

	remove_line_ends(line);
	const char* path = line;
	if (strncmp(path, kPrefix.data(), kPrefix.size()) == 0) {
		path += kPrefix.size();
		*withPrefix = true;
	}
	return strlen(path) <= kTooShort ? nullptr : path;
}


// The path without empty, "." and ".." components, by its text alone.
static std::string
tidy_path(std::string_view path)
{
	std::vector<std::string_view> kept;
	while (!path.empty()) {
		const size_t end = path.find('/');
		const std::string_view name = path.substr(0, end);
		path = end == std::string_view::npos ? std::string_view() : path.substr(end + 1);
		if (name == "..") {
			if (!kept.empty())
				kept.pop_back();
		} else if (!name.empty() && name != ".") {
			kept.push_back(name);
		}
	}

	std::string tidy;
	for (const std::string_view name : kept)
		tidy.append("/").append(name);
	return tidy.empty() ? "/" : tidy;
}


static void
add_path(const char* entry, const char* folder, BList* list)
{
	const std::string full
		= entry[0] == '/' ? std::string(entry) : std::string(folder) + "/" + entry;
	BPath path(full.c_str());
	// A title whose folder is missing stays in the list.
	if (path.InitCheck() != B_OK)
		path.SetTo(tidy_path(full).c_str());
	// What is too long with the playlist's folder has no path at all.
	if (path.InitCheck() == B_OK)
		list->AddItem(new BPath(path));
}


static void
skip_byte_order_mark(FILE* file)
{
	char begin[kByteOrderMark.size()];
	if (fread(begin, 1, sizeof(begin), file) != sizeof(begin)
		|| std::string_view(begin, sizeof(begin)) != kByteOrderMark)
		rewind(file);
}


bool
ReadPlaylist(const char* path, BList* list, bool* withPrefix)
{
	*withPrefix = false;
	struct stat status;
	if (path == nullptr || stat(path, &status) != 0 || !S_ISREG(status.st_mode))
		return false;
	FILE* const file = fopen(path, "r");
	if (file == nullptr)
		return false;

	BPath folder;
	BPath(path).GetParent(&folder);
	skip_byte_order_mark(file);
	char piece[kPieceSize];
	while (fgets(piece, sizeof(piece), file) != nullptr) {
		const char* const entry = PlaylistEntry(piece, withPrefix);
		if (entry != nullptr)
			add_path(entry, folder.InitCheck() == B_OK ? folder.Path() : "/", list);
	}
	const bool wholly = ferror(file) == 0;
	fclose(file);
	return wholly;
}
