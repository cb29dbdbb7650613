// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ROSTER_H
#define ROSTER_H

#include <Entry.h>
#include <Messenger.h>
#include <OS.h>
#include <StorageDefs.h>

class BList;
class BMessage;


// What a running application is known by: the thread is its main thread, the ref its executable.
struct app_info {
	app_info();
	~app_info();

	thread_id thread;
	team_id team;
	port_id port;
	uint32 flags;
	entry_ref ref;
	char signature[B_MIME_TYPE_LENGTH];
};

// Bits of app_info::flags.
#define B_LAUNCH_MASK (0x3)
#define B_SINGLE_LAUNCH (0x0)
#define B_MULTIPLE_LAUNCH (0x1)
#define B_EXCLUSIVE_LAUNCH (0x2)
#define B_BACKGROUND_APP (0x4)
#define B_ARGV_ONLY (0x8)

// Events that BRoster::StartWatching() can be asked for.
enum {
	B_REQUEST_LAUNCHED = 0x00000001,
	B_REQUEST_QUIT = 0x00000002,
	B_REQUEST_ACTIVATED = 0x00000004
};

// Their notices: "be:signature" string, "be:team", "be:thread", "be:flags" int32, "be:ref" ref.
enum { B_SOME_APP_LAUNCHED = 'BRAS', B_SOME_APP_QUIT = 'BRAQ', B_SOME_APP_ACTIVATED = 'BRAW' };


/*!	The running and the installed applications of the user's session.

	Running applications are the programs built on the kits and the known players, each a team
	whose number is its process's. All calls may come from any thread, through be_roster or any
	other object.
*/
class BRoster {
public:
	BRoster();
	~BRoster();

	bool IsRunning(const char* signature) const;
	bool IsRunning(entry_ref* ref) const;
	team_id TeamFor(const char* signature) const;
	team_id TeamFor(entry_ref* ref) const;

	void GetAppList(BList* teams) const;
	void GetAppList(const char* signature, BList* teams) const;

	status_t GetAppInfo(const char* signature, app_info* info) const;
	status_t GetAppInfo(entry_ref* ref, app_info* info) const;
	status_t GetRunningAppInfo(team_id team, app_info* info) const;
	status_t GetActiveAppInfo(app_info* info) const;

	status_t FindApp(const char* mimeType, entry_ref* app) const;
	status_t FindApp(entry_ref* ref, entry_ref* app) const;

	status_t Broadcast(BMessage* message) const;
	status_t Broadcast(BMessage* message, BMessenger replyTo) const;

	status_t StartWatching(BMessenger target,
		uint32 eventMask = B_REQUEST_LAUNCHED | B_REQUEST_QUIT) const;
	status_t StopWatching(BMessenger target) const;

	status_t ActivateApp(team_id team) const;

	status_t Launch(const char* mimeType, BMessage* initialMessage = nullptr,
		team_id* appTeam = nullptr) const;
	status_t Launch(const char* mimeType, BList* messageList, team_id* appTeam = nullptr) const;
	status_t Launch(const char* mimeType, int argc, const char* const* args,
		team_id* appTeam = nullptr) const;
	status_t Launch(const entry_ref* ref, const BMessage* initialMessage = nullptr,
		team_id* appTeam = nullptr) const;
	status_t Launch(const entry_ref* ref, const BList* messageList,
		team_id* appTeam = nullptr) const;
	status_t Launch(const entry_ref* ref, int argc, const char* const* args,
		team_id* appTeam = nullptr) const;
};

extern const BRoster* be_roster;

#endif // ROSTER_H
