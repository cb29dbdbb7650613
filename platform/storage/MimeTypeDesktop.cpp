// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What the desktop knows about a type.
#include <MimeType.h>

#include <algorithm>
#include <set>
#include <stdio.h>
#include <string.h>
#include <vector>

#include <gio/gio.h>

#include <Bitmap.h>
#include <Message.h>

#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/FileTypes.h"
#include "platform/desktop/Players.h"
#include "platform/storage/TypeIcons.h"

using hosted::DesktopEntry;
using hosted::InstalledPlayer;


namespace {

// Every name of the type that a program's list of types may have it under.
std::vector<std::string>
names_of(const std::string& type)
{
	std::vector<std::string> names
		= {hosted::DesktopTypeName(type), type, hosted::HaikuTypeName(type)};
	names.push_back(hosted::DesktopTypeName(names.back()));
	return names;
}


bool
opens(const InstalledPlayer& player, const std::vector<std::string>& names)
{
	return std::any_of(names.begin(), names.end(),
		[&player](const std::string& name) { return hosted::PlayerOpensType(player, name); });
}


// In byte order, each once.
std::set<std::string>
supporters_of(const std::vector<std::string>& names)
{
	std::set<std::string> signatures;
	for (const InstalledPlayer& player : hosted::InstalledPlayers()) {
		if (player.offered && opens(player, names))
			signatures.insert(player.signature);
	}
	for (const std::string& name : names) {
		for (const DesktopEntry& entry : hosted::FindEntriesFor(name)) {
			if (!entry.signature.empty())
				signatures.insert(entry.signature);
		}
	}
	return signatures;
}


std::set<std::string>
supporters_of_supertype(const std::string& supertype)
{
	std::set<std::string> signatures;
	for (const InstalledPlayer& player : hosted::InstalledPlayers()) {
		if (player.offered && hosted::PlayerOpensSupertype(player, supertype))
			signatures.insert(player.signature);
	}
	return signatures;
}


// The signature of an application, empty for one that has none.
std::string
signature_of(const DesktopEntry& entry)
{
	if (!entry.signature.empty())
		return entry.signature;
	for (const InstalledPlayer& player : hosted::InstalledPlayers()) {
		if (player.offered && player.desktopEntry == entry.id)
			return player.signature;
	}
	return "";
}

} // namespace


bool
BMimeType::IsInstalled() const
{
	if (fStatus != B_OK)
		return false;
	const bool isSupertype = IsSupertypeOnly();
	const std::string wanted = isSupertype ? fType + "/" : hosted::DesktopTypeName(fType);
	GList* const types = g_content_types_get_registered();
	bool found = false;
	for (const GList* item = types; item != nullptr && !found; item = item->next) {
		const char* const name = static_cast<const char*>(item->data);
		found = isSupertype ? strncmp(name, wanted.c_str(), wanted.size()) == 0
							: g_content_type_equals(name, wanted.c_str()) != FALSE;
	}
	g_list_free_full(types, g_free);
	return found;
}


status_t
BMimeType::GetIcon(BBitmap* icon, icon_size size) const
{
	if (fStatus != B_OK)
		return B_NO_INIT;
	if (hosted::CheckIconBitmap(icon, size) != B_OK)
		return B_BAD_VALUE;
	if (!IsInstalled())
		return B_ENTRY_NOT_FOUND;
	return hosted::PutIconOfType(fType, size, icon);
}


status_t
BMimeType::GetPreferredApp(char* signature, app_verb verb) const
{
	if (fStatus != B_OK)
		return B_NO_INIT;
	if (signature == nullptr || verb != B_OPEN)
		return B_BAD_VALUE;
	for (const std::string& name : names_of(fType)) {
		DesktopEntry entry;
		if (!hosted::FindDefaultEntry(name, &entry))
			continue;
		const std::string found = signature_of(entry);
		if (found.empty() || found.size() >= B_MIME_TYPE_LENGTH)
			return B_ENTRY_NOT_FOUND;
		snprintf(signature, B_MIME_TYPE_LENGTH, "%s", found.c_str());
		return B_OK;
	}
	return B_ENTRY_NOT_FOUND;
}


status_t
BMimeType::GetShortDescription(char* description) const
{
	if (fStatus != B_OK)
		return B_NO_INIT;
	if (description == nullptr)
		return B_BAD_VALUE;
	if (!IsInstalled())
		return B_ENTRY_NOT_FOUND;
	char* const text = g_content_type_get_description(hosted::DesktopTypeName(fType).c_str());
	snprintf(description, B_MIME_TYPE_LENGTH, "%s", text);
	g_free(text);
	return B_OK;
}


status_t
BMimeType::GetSupportingApps(BMessage* signatures) const
{
	if (signatures == nullptr)
		return B_BAD_VALUE;
	if (fStatus != B_OK)
		return B_NO_INIT;

	std::set<std::string> ofType;
	if (!IsSupertypeOnly())
		ofType = supporters_of(names_of(fType));
	std::set<std::string> ofSupertype = supporters_of_supertype(fType.substr(0, fType.find('/')));
	for (const std::string& signature : ofType)
		ofSupertype.erase(signature);

	signatures->MakeEmpty();
	signatures->what = 'rgrz';
	signatures->AddInt32("result", B_OK);
	if (!IsSupertypeOnly())
		signatures->AddInt32("be:sub", static_cast<int32>(ofType.size()));
	signatures->AddInt32("be:super", static_cast<int32>(ofSupertype.size()));
	for (const std::string& signature : ofType)
		signatures->AddString("applications", signature.c_str());
	for (const std::string& signature : ofSupertype)
		signatures->AddString("applications", signature.c_str());
	return B_OK;
}
