// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The installed applications, and which of them opens what.
#include "platform/app/LaunchTarget.h"

#include <fstream>
#include <limits.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <MimeType.h>
#include <Node.h>
#include <Path.h>
#include <Roster.h>
#include <String.h>

#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/FileTypes.h"
#include "platform/desktop/Players.h"
#include "platform/desktop/RunningApps.h"


namespace hosted {

namespace {

void
set_target(const DesktopEntry& entry, LaunchTarget* target)
{
	*target = LaunchTarget();
	target->executable = entry.executable;
	target->signature = entry.signature;
	target->command = entry.command;
	target->isKitProgram = !entry.signature.empty();
}


void
set_target(const InstalledPlayer& player, LaunchTarget* target)
{
	*target = LaunchTarget();
	target->executable = player.executable;
	target->signature = player.signature;
}


bool
find_by_signature(const std::string& signature, LaunchTarget* target)
{
	for (const RunningApp& app : AppsOfSignature(RunningPrograms(), signature)) {
		*target = LaunchTarget();
		target->executable = app.executable;
		target->signature = app.identity.signature;
		target->isKitProgram = true;
		return true;
	}
	InstalledPlayer player;
	if (FindInstalledPlayer(signature.c_str(), &player)) {
		set_target(player, target);
		return true;
	}
	DesktopEntry entry;
	if (!FindDesktopEntryBySignature(signature, &entry) || entry.executable.empty())
		return false;
	set_target(entry, target);
	return true;
}


bool
find_for_supertype(const std::string& supertype, LaunchTarget* target)
{
	for (const InstalledPlayer& player : InstalledPlayers()) {
		if (player.offered && PlayerOpensSupertype(player, supertype)) {
			set_target(player, target);
			return true;
		}
	}
	return false;
}


bool
find_for_type(const std::string& desktopType, LaunchTarget* target)
{
	DesktopEntry entry;
	if (FindDefaultEntry(desktopType, &entry) && !entry.executable.empty()) {
		set_target(entry, target);
		return true;
	}
	if (find_for_supertype(desktopType.substr(0, desktopType.find('/')), target))
		return true;
	for (const DesktopEntry& candidate : FindEntriesFor(desktopType)) {
		if (!candidate.executable.empty()) {
			set_target(candidate, target);
			return true;
		}
	}
	return false;
}


bool
is_in_trash(const std::string& path)
{
	return path.find("/Trash/files/") != std::string::npos
		|| path.find("/.Trash-") != std::string::npos;
}


// Many file systems of other machines mark every file as executable, so that its contents have to
// say it, too.
bool
is_program(const std::string& path)
{
	struct stat status;
	if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)
		|| access(path.c_str(), X_OK) != 0)
		return false;
	char begin[4] = {};
	std::ifstream(path, std::ios::binary).read(begin, sizeof(begin));
	return memcmp(begin, "\177ELF", 4) == 0 || memcmp(begin, "#!", 2) == 0;
}


status_t
find_for_file(const std::string& path, LaunchTarget* target)
{
	BNode file(path.c_str());
	BString signature;
	if (file.ReadAttrString("BEOS:PREF_APP", &signature) == B_OK
		&& find_by_signature(signature.String(), target))
		return B_OK;
	BString type;
	if (file.ReadAttrString("BEOS:TYPE", &type) != B_OK || type.IsEmpty())
		type = FileType(path).c_str();
	if (type.IsEmpty())
		return B_LAUNCH_FAILED_NO_PREFERRED_APP;
	return FindLaunchTarget(type.String(), target);
}

} // namespace


status_t
FindLaunchTarget(const char* mimeType, LaunchTarget* target)
{
	if (mimeType == nullptr || !BMimeType::IsValid(mimeType))
		return B_BAD_VALUE;
	const std::string type = mimeType;
	const std::string desktopType = DesktopTypeName(type);
	const bool isSupertype = type.find('/') == std::string::npos;
	const bool found = isSupertype
		? find_for_supertype(type, target)
		:
		find_by_signature(type, target) || find_for_type(desktopType, target);
	if (!found) {
		return isSupertype || IsDesktopType(desktopType) ? B_LAUNCH_FAILED_NO_PREFERRED_APP
														 : B_LAUNCH_FAILED_APP_NOT_FOUND;
	}
	return is_in_trash(target->executable) ? B_LAUNCH_FAILED_APP_IN_TRASH : B_OK;
}


status_t
FindLaunchTarget(const entry_ref* ref, LaunchTarget* target)
{
	if (ref == nullptr)
		return B_BAD_VALUE;
	const BPath path(ref);
	if (path.InitCheck() != B_OK)
		return path.InitCheck();
	struct stat status;
	if (lstat(path.Path(), &status) != 0)
		return B_ENTRY_NOT_FOUND;
	char resolved[PATH_MAX];
	if (realpath(path.Path(), resolved) == nullptr)
		return B_LAUNCH_FAILED_NO_RESOLVE_LINK;
	if (is_program(resolved)) {
		*target = LaunchTarget();
		target->executable = path.Path();
		target->isKitProgram = true;
		return is_in_trash(resolved) ? B_LAUNCH_FAILED_APP_IN_TRASH : B_OK;
	}
	const status_t result = find_for_file(resolved, target);
	target->document = path.Path();
	return result;
}

} // namespace hosted


status_t
BRoster::FindApp(const char* mimeType, entry_ref* app) const
{
	if (app == nullptr)
		return B_BAD_VALUE;
	hosted::LaunchTarget target;
	const status_t status = hosted::FindLaunchTarget(mimeType, &target);
	return status == B_OK ? get_ref_for_path(target.executable.c_str(), app) : status;
}


status_t
BRoster::FindApp(entry_ref* ref, entry_ref* app) const
{
	if (app == nullptr)
		return B_BAD_VALUE;
	hosted::LaunchTarget target;
	const status_t status = hosted::FindLaunchTarget(ref, &target);
	return status == B_OK ? get_ref_for_path(target.executable.c_str(), app) : status;
}
