// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/DesktopEntries.h"

#include <algorithm>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include "platform/desktop/AppName.h"


namespace hosted {

namespace {

std::string
text_of(const char* text)
{
	return text != nullptr ? text : "";
}


// Words of the command line that stand for files, addresses, icon, name and the entry itself.
bool
is_placeholder(const std::string& word)
{
	return word.size() == 2 && word[0] == '%' && word[1] != '%';
}


bool
is_file_placeholder(const std::string& word)
{
	return is_placeholder(word) && strchr("fFuU", word[1]) != nullptr;
}


bool
is_executable_file(const std::string& path)
{
	struct stat status;
	return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode)
		&& access(path.c_str(), X_OK) == 0;
}


DesktopEntry
entry_of(GDesktopAppInfo* info)
{
	DesktopEntry entry;
	entry.id = text_of(g_app_info_get_id(G_APP_INFO(info)));
	gchar** words = nullptr;
	const char* line = g_app_info_get_commandline(G_APP_INFO(info));
	if (line != nullptr && g_shell_parse_argv(line, nullptr, &words, nullptr)) {
		for (gchar** word = words; *word != nullptr; word++)
			entry.command.push_back(*word);
		g_strfreev(words);
	}
	if (!entry.command.empty())
		entry.executable = FindExecutable(entry.command.front());
	const char** types = g_app_info_get_supported_types(G_APP_INFO(info));
	for (; types != nullptr && *types != nullptr; types++)
		entry.types.push_back(*types);
	gchar* signature = g_desktop_app_info_get_string(info, "X-Haiku-Signature");
	entry.signature = text_of(signature);
	g_free(signature);
	return entry;
}


bool
take_info(GAppInfo* info, DesktopEntry* entry)
{
	if (info == nullptr)
		return false;
	const bool isEntry = G_IS_DESKTOP_APP_INFO(info);
	if (isEntry)
		*entry = entry_of(G_DESKTOP_APP_INFO(info));
	g_object_unref(info);
	return isEntry;
}


std::vector<DesktopEntry>
take_infos(GList* infos)
{
	std::vector<DesktopEntry> entries;
	for (GList* item = infos; item != nullptr; item = item->next) {
		DesktopEntry entry;
		if (take_info(G_APP_INFO(item->data), &entry))
			entries.push_back(entry);
	}
	g_list_free(infos);
	return entries;
}


std::vector<std::string>
program_folders()
{
	std::vector<std::string> folders;
	std::string list = text_of(getenv("PATH"));
	list += ":/usr/local/bin:/usr/bin:/usr/games:/snap/bin:/var/lib/flatpak/exports/bin:";
	list += text_of(getenv("HOME")) + "/.local/share/flatpak/exports/bin";
	size_t begin = 0;
	while (begin < list.size()) {
		const size_t end = std::min(list.find(':', begin), list.size());
		// A relative folder would mean another program in every place.
		if (end > begin && list[begin] == '/')
			folders.push_back(list.substr(begin, end - begin));
		begin = end + 1;
	}
	return folders;
}

} // namespace


bool
FindDesktopEntry(const std::string& id, DesktopEntry* entry)
{
	GDesktopAppInfo* info = g_desktop_app_info_new(id.c_str());
	return info != nullptr && take_info(G_APP_INFO(info), entry);
}


bool
FindDesktopEntryBySignature(const std::string& signature, DesktopEntry* entry)
{
	for (const DesktopEntry& candidate : take_infos(g_app_info_get_all())) {
		if (!candidate.signature.empty() && SameSignature(candidate.signature, signature)) {
			*entry = candidate;
			return true;
		}
	}
	return false;
}


bool
FindDefaultEntry(const std::string& type, DesktopEntry* entry)
{
	return take_info(g_app_info_get_default_for_type(type.c_str(), FALSE), entry);
}


std::vector<DesktopEntry>
FindEntriesFor(const std::string& type)
{
	return take_infos(g_app_info_get_all_for_type(type.c_str()));
}


bool
IsDesktopType(const std::string& type)
{
	GList* types = g_content_types_get_registered();
	bool found = false;
	for (GList* item = types; item != nullptr && !found; item = item->next)
		found = strcasecmp(static_cast<const char*>(item->data), type.c_str()) == 0;
	g_list_free_full(types, g_free);
	return found;
}


std::vector<std::string>
CommandWithFiles(const DesktopEntry& entry, const std::vector<std::string>& files)
{
	std::vector<std::string> command;
	bool placed = false;
	for (const std::string& word : entry.command) {
		if (is_file_placeholder(word)) {
			if (!placed)
				command.insert(command.end(), files.begin(), files.end());
			placed = true;
		} else if (!is_placeholder(word)) {
			command.push_back(word);
		}
	}
	if (!placed)
		command.insert(command.end(), files.begin(), files.end());
	return command;
}


std::string
FindExecutable(const std::string& name)
{
	if (name.find('/') != std::string::npos)
		return name[0] == '/' && is_executable_file(name) ? name : "";
	if (name.empty())
		return "";
	for (const std::string& folder : program_folders()) {
		const std::string path = folder + "/" + name;
		if (is_executable_file(path))
			return path;
	}
	return "";
}

} // namespace hosted
