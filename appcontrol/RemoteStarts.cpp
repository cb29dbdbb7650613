// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Programs, addresses and queries.
#include "appcontrol/RemoteCommands.h"

#include <array>

#include <stdio.h>
#include <string.h>

#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <FindDirectory.h>
#include <NodeInfo.h>
#include <Path.h>
#include <Query.h>
#include <Roster.h>
#include <StorageDefs.h>
#include <TypeConstants.h>
#include <Volume.h>
#include <VolumeRoster.h>

#include "appcontrol/RemoteKeys.h"
#include "appcontrol/RemotePlayers.h"
#include "settings/Helpers.h"
#include "settings/Locations.h"


namespace {

struct Start {
	long key;
	const char* signature;
	const char* failure;
};

constexpr std::array<Start, 3> kStarts = {{
	{kRemoteNumber1, kTextEditorSignature, "Sorry Can't launch StyledEdit - N1 app.."},
	{kRemoteNumber2, "application/x-vnd.Be-SHEL", "Sorry Can't launch Terminal - N2 app.."},
	{kRemoteNumber3, "application/x-vnd.gobe.productive", "Sorry Can't GoBe - N3 app.."},
}};

constexpr char kPageType[] = "text/html";
constexpr size_t kShortestUrl = 7;

constexpr char kAudioPredicate[] = "((BEOS:TYPE=='%s'))";
constexpr char kAudioType[] = "audio/x-mpeg";

constexpr char kQueryType[] = "application/x-vnd.Be-query";
constexpr char kQueryCondition[] = "_trk/qrystr";
constexpr char kQueryInitial[] = "_trk/qryinitstr";

} // namespace


static bool
has_started(status_t status)
{
	return status == B_OK || status == B_ALREADY_RUNNING;
}


status_t
StartProgramFor(long key)
{
	for (const Start& start : kStarts) {
		if (start.key != key)
			continue;
		const status_t status = be_roster->Launch(start.signature, static_cast<BMessage*>(nullptr));
		if (!has_started(status))
			AnyAlert(start.failure, true);
		return status == B_ALREADY_RUNNING ? B_OK : status;
	}
	return B_BAD_VALUE;
}


void
IAnyApps(long key)
{
	StartProgramFor(key);
}


static void
remove_line_ends(char* text)
{
	char* to = text;
	for (const char* from = text; *from != '\0'; from++) {
		if (*from != '\n' && *from != '\r')
			*to++ = *from;
	}
	*to = '\0';
}


static bool
begins_with(const char* text, const char* begin)
{
	return strncmp(text, begin, strlen(begin)) == 0;
}


void
IOpenThisUrl(char* url, bool activate)
{
	if (url == nullptr)
		return;
	remove_line_ends(url);
	if (strlen(url) < kShortestUrl) {
		printf("URL to Short!\n");
		return;
	}
	if (!begins_with(url, "http:") && !begins_with(url, "file:/")) {
		printf("URL not accepted: '%s'\n", url);
		return;
	}

	// As a word of its own it never meets a shell.
	const char* const words[] = {url};
	if (!has_started(be_roster->Launch(kPageType, 1, words))) {
		printf("URL not opened: '%s'\n", url);
		return;
	}
	entry_ref browser;
	if (activate && be_roster->FindApp(kPageType, &browser) == B_OK) {
		const team_id team = be_roster->TeamFor(&browser);
		if (team >= 0)
			be_roster->ActivateApp(team);
	}
}


void
ISearchTypes()
{
	char predicate[64];
	snprintf(predicate, sizeof(predicate), kAudioPredicate, kAudioType);

	BVolume bootVolume;
	BVolumeRoster().GetBootVolume(&bootVolume);
	BQuery query;
	query.SetVolume(&bootVolume);
	query.SetPredicate(predicate);
	const status_t status = query.Fetch();
	if (status != B_OK) {
		printf("can't ask for %s\n", predicate);
		return;
	}
	entry_ref ref;
	while (query.GetNextRef(&ref) == B_OK) {
		const BPath path(&ref);
		if (path.InitCheck() == B_OK)
			printf("%s\n", path.Path());
	}
}


// Where a query of that name is saved.
static status_t
query_path(const char* name, BPath* path)
{
	if (strchr(name, '/') != nullptr)
		return path->SetTo(name);
	status_t status = find_directory(B_USER_DIRECTORY, path);
	if (status == B_OK)
		status = path->Append("queries");
	if (status == B_OK)
		status = create_directory(path->Path(), 0755);
	return status == B_OK ? path->Append(name) : status;
}


static bool
is_query(BNode* file)
{
	char type[B_MIME_TYPE_LENGTH] = "";
	return BNodeInfo(file).GetType(type) == B_OK && strcmp(type, kQueryType) == 0;
}


static status_t
write_text(BNode* file, const char* attribute, const char* text)
{
	const ssize_t size = static_cast<ssize_t>(strlen(text) + 1);
	const ssize_t written
		= file->WriteAttr(attribute, B_STRING_TYPE, 0, text, static_cast<size_t>(size));
	if (written < 0)
		return static_cast<status_t>(written);
	return written == size ? B_OK : B_ERROR;
}


// Never makes a query of a file that is something else.
static status_t
save_query(const BPath& path, const char* condition, const char* initial)
{
	BFile file;
	status_t status = file.SetTo(path.Path(), B_CREATE_FILE | B_FAIL_IF_EXISTS | B_READ_WRITE);
	if (status == B_FILE_EXISTS) {
		status = file.SetTo(path.Path(), B_READ_WRITE);
		if (status == B_OK && !is_query(&file))
			return B_FILE_EXISTS;
	}
	if (status == B_OK)
		status = BNodeInfo(&file).SetType(kQueryType);
	if (status == B_OK)
		status = write_text(&file, kQueryCondition, condition);
	return status == B_OK ? write_text(&file, kQueryInitial, initial) : status;
}


void
CreateQuery(const char* path, const char* condition, const char* initial)
{
	if (path == nullptr || path[0] == '\0' || condition == nullptr)
		return;
	BPath target;
	status_t status = query_path(path, &target);
	if (status == B_OK)
		status = save_query(target, condition, initial != nullptr ? initial : "");
	if (status != B_OK)
		printf("can't save the query '%s'\n", path);
}
