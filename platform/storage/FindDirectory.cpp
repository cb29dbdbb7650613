// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Where things are kept on Linux that Haiku has its own folders for.
#include <FindDirectory.h>

#include <Directory.h>
#include <Path.h>
#include <array>
#include <fstream>
#include <pwd.h>
#include <stdlib.h>
#include <string.h>
#include <string>
#include <unistd.h>

#include "platform/support/Errno.h"


namespace {

enum class Base { kFixed, kHome, kConfig, kData, kCache, kState, kDesktop, kTemporary };


struct Place {
	directory_which which;
	Base base;
	const char* below;
};


constexpr Place kPlaces[] = {
	{B_DESKTOP_DIRECTORY, Base::kDesktop, ""},
	{B_TRASH_DIRECTORY, Base::kData, "/Trash/files"},
	{B_SYSTEM_DIRECTORY, Base::kFixed, "/usr"},
	{B_SYSTEM_ADDONS_DIRECTORY, Base::kFixed, "/usr/lib"},
	{B_SYSTEM_APPS_DIRECTORY, Base::kFixed, "/usr/bin"},
	{B_SYSTEM_BIN_DIRECTORY, Base::kFixed, "/usr/bin"},
	{B_SYSTEM_DATA_DIRECTORY, Base::kFixed, "/usr/share"},
	{B_SYSTEM_SETTINGS_DIRECTORY, Base::kFixed, "/etc"},
	{B_SYSTEM_LOG_DIRECTORY, Base::kFixed, "/var/log"},
	{B_SYSTEM_TEMP_DIRECTORY, Base::kTemporary, ""},
	{B_SYSTEM_CACHE_DIRECTORY, Base::kFixed, "/var/cache"},
	{B_USER_DIRECTORY, Base::kHome, ""},
	{B_USER_CONFIG_DIRECTORY, Base::kConfig, ""},
	{B_USER_FONTS_DIRECTORY, Base::kData, "/fonts"},
	{B_USER_SETTINGS_DIRECTORY, Base::kConfig, ""},
	{B_USER_TRANSLATORS_DIRECTORY, Base::kData, "/Translators"},
	{B_USER_DATA_DIRECTORY, Base::kData, ""},
	{B_USER_CACHE_DIRECTORY, Base::kCache, ""},
	{B_USER_NONPACKAGED_DIRECTORY, Base::kHome, "/.local"},
	{B_USER_APPS_DIRECTORY, Base::kHome, "/.local/bin"},
	{B_USER_LOG_DIRECTORY, Base::kState, ""},
	{B_USER_VAR_DIRECTORY, Base::kState, ""},
	{B_APPS_DIRECTORY, Base::kFixed, "/usr/bin"},
	{B_PREFERENCES_DIRECTORY, Base::kFixed, "/usr/share/applications"},
};


// An absolute path of the environment; empty if the variable is not set or is no such path.
std::string
variable(const char* name)
{
	const char* value = getenv(name);
	std::string path = value != nullptr && value[0] == '/' ? value : "";
	while (path.size() > 1 && path.back() == '/')
		path.pop_back();
	return path;
}


// Empty if the user has none.
std::string
home()
{
	const std::string path = variable("HOME");
	if (!path.empty())
		return path;
	passwd entry;
	passwd* found = nullptr;
	std::array<char, 16384> buffer;
	if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr
		|| found->pw_dir == nullptr || found->pw_dir[0] != '/') {
		return {};
	}
	return found->pw_dir;
}


// A folder that a variable names, else one in the home folder.
std::string
variable_or_home(const char* name, const char* below)
{
	const std::string path = variable(name);
	if (!path.empty())
		return path;
	const std::string folder = home();
	return folder.empty() || folder == "/" ? (folder.empty() ? "" : below) : folder + below;
}


// The desktop's folder has a name in the user's language, which is written down in a file.
std::string
desktop()
{
	const std::string folder = home();
	const std::string config = variable_or_home("XDG_CONFIG_HOME", "/.config");
	if (folder.empty() || config.empty())
		return {};
	constexpr const char* kKey = "XDG_DESKTOP_DIR=\"";
	constexpr const char* kHome = "$HOME";
	std::ifstream file(config + "/user-dirs.dirs");
	std::string line;
	while (std::getline(file, line)) {
		const size_t end = line.rfind('"');
		if (line.compare(0, strlen(kKey), kKey) != 0 || end < strlen(kKey))
			continue;
		std::string path = line.substr(strlen(kKey), end - strlen(kKey));
		if (path.compare(0, strlen(kHome), kHome) == 0)
			path.replace(0, strlen(kHome), folder);
		while (path.size() > 1 && path.back() == '/')
			path.pop_back();
		if (!path.empty() && path[0] == '/')
			return path;
	}
	return folder + "/Desktop";
}


std::string
base_path(Base base)
{
	switch (base) {
		case Base::kHome:
			return home();
		case Base::kConfig:
			return variable_or_home("XDG_CONFIG_HOME", "/.config");
		case Base::kData:
			return variable_or_home("XDG_DATA_HOME", "/.local/share");
		case Base::kCache:
			return variable_or_home("XDG_CACHE_HOME", "/.cache");
		case Base::kState:
			return variable_or_home("XDG_STATE_HOME", "/.local/state");
		case Base::kDesktop:
			return desktop();
		case Base::kTemporary:
		{
			const std::string path = variable("TMPDIR");
			return path.empty() ? "/tmp" : path;
		}
		default:
			return {};
	}
}


status_t
find(directory_which which, bool createIt, std::string* path)
{
	for (const Place& place : kPlaces) {
		if (place.which != which)
			continue;
		*path = base_path(place.base);
		if (path->empty() && place.base != Base::kFixed)
			return B_ENTRY_NOT_FOUND;
		if (*path == "/" && place.below[0] != '\0')
			path->clear();
		*path += place.below;
		return createIt ? create_directory(path->c_str(), 0755) : B_OK;
	}
	return B_BAD_VALUE;
}

} // namespace


status_t
find_directory(directory_which which, BPath* path, bool createIt, BVolume* /*volume*/)
{
	if (path == nullptr)
		return B_BAD_VALUE;
	std::string found;
	const status_t status = find(which, createIt, &found);
	return status == B_OK ? path->SetTo(found.c_str()) : status;
}


extern "C" status_t
find_directory(directory_which which, dev_t /*device*/, bool createIt, char* path, int32 length)
{
	if (path == nullptr || length <= 0)
		return B_BAD_VALUE;
	std::string found;
	const status_t status = find(which, createIt, &found);
	if (status != B_OK)
		return status;
	if (found.size() >= static_cast<size_t>(length))
		return hosted::kArgumentTooBig;
	strcpy(path, found.c_str());
	return B_OK;
}
