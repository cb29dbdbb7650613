// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DESKTOP_ENTRIES_H
#define DESKTOP_ENTRIES_H

#include <string>
#include <vector>


namespace hosted {

// An application as its desktop entry describes it.
struct DesktopEntry {
	std::string id;
	// The program's file with its full path; empty if it is not installed.
	std::string executable;
	// The words of its command line, the placeholders for files included.
	std::vector<std::string> command;
	std::vector<std::string> types;
	// The Haiku signature, which programs built on the kits give in the key X-Haiku-Signature.
	std::string signature;
};

// The type names here are the ones of the Linux desktop. All calls may come from any thread. False
// if there is none.
bool FindDesktopEntry(const std::string& id, DesktopEntry* entry);
bool FindDesktopEntryBySignature(const std::string& signature, DesktopEntry* entry);
// The user's choice for the type, else the desktop's.
bool FindDefaultEntry(const std::string& type, DesktopEntry* entry);
// All that say that they open the type, the default one first.
std::vector<DesktopEntry> FindEntriesFor(const std::string& type);

// Whether the desktop knows the type.
bool IsDesktopType(const std::string& type);

// The command line with these files or addresses in the place of its placeholders.
std::vector<std::string> CommandWithFiles(const DesktopEntry& entry,
	const std::vector<std::string>& files);

// The program's full path by its name, as the shell would find it, and in the folders where
// packages from outside the distribution put theirs; empty if there is none.
std::string FindExecutable(const std::string& name);

} // namespace hosted

#endif // DESKTOP_ENTRIES_H
