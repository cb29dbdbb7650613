// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The running applications.
#include <Roster.h>

#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <unistd.h>
#include <vector>

#include <Application.h>
#include <List.h>
#include <Message.h>
#include <Path.h>

#include "platform/app/Delivery.h"
#include "platform/desktop/Activity.h"
#include "platform/desktop/BusObject.h"
#include "platform/desktop/Mpris.h"
#include "platform/desktop/RunningApps.h"
#include "platform/desktop/SessionBus.h"
#include "platform/desktop/SessionDesk.h"
#include "platform/desktop/Watching.h"
#include "platform/screen/DisplayThread.h"

using hosted::AppKind;
using hosted::RunningApp;


namespace {

const BRoster kRoster;


void
fill_info(const RunningApp& app, app_info* info)
{
	*info = app_info();
	info->thread = app.identity.team;
	info->team = app.identity.team;
	info->port = hosted::kApplicationPort;
	info->flags = app.identity.flags;
	if (!app.executable.empty())
		get_ref_for_path(app.executable.c_str(), &info->ref);
	snprintf(info->signature, sizeof(info->signature), "%s", app.identity.signature.c_str());
}


std::string
resolve(const char* path)
{
	char resolved[PATH_MAX];
	return path != nullptr && realpath(path, resolved) != nullptr ? resolved : "";
}


bool
find_by_signature(const char* signature, RunningApp* app)
{
	const std::vector<RunningApp> apps = hosted::AppsOfSignature(hosted::RunningApps(), signature);
	if (apps.empty())
		return false;
	*app = apps.front();
	return true;
}


bool
find_by_ref(const entry_ref& ref, RunningApp* app)
{
	const std::string path = resolve(BPath(&ref).Path());
	for (const RunningApp& candidate : hosted::RunningApps()) {
		if (!path.empty() && resolve(candidate.executable.c_str()) == path) {
			*app = candidate;
			return true;
		}
	}
	return false;
}


void
add_team(BList* teams, team_id team)
{
	teams->AddItem(reinterpret_cast<void*>(static_cast<addr_t>(team)));
}

} // namespace


const BRoster* be_roster = &kRoster;


app_info::app_info()
	:
	thread(-1),
	team(-1),
	port(-1),
	flags(B_MULTIPLE_LAUNCH)
{
	signature[0] = '\0';
}


app_info::~app_info()
{
}


BRoster::BRoster()
{
}


BRoster::~BRoster()
{
}


bool
BRoster::IsRunning(const char* signature) const
{
	return TeamFor(signature) >= 0;
}


bool
BRoster::IsRunning(entry_ref* ref) const
{
	return TeamFor(ref) >= 0;
}


team_id
BRoster::TeamFor(const char* signature) const
{
	RunningApp app;
	if (signature == nullptr || !find_by_signature(signature, &app))
		return B_ERROR;
	return app.identity.team;
}


team_id
BRoster::TeamFor(entry_ref* ref) const
{
	RunningApp app;
	if (ref == nullptr || !find_by_ref(*ref, &app))
		return B_ERROR;
	return app.identity.team;
}


void
BRoster::GetAppList(BList* teams) const
{
	if (teams == nullptr)
		return;
	for (const RunningApp& app : hosted::RunningApps())
		add_team(teams, app.identity.team);
}


void
BRoster::GetAppList(const char* signature, BList* teams) const
{
	if (signature == nullptr || teams == nullptr)
		return;
	for (const RunningApp& app : hosted::AppsOfSignature(hosted::RunningApps(), signature))
		add_team(teams, app.identity.team);
}


status_t
BRoster::GetAppInfo(const char* signature, app_info* info) const
{
	if (signature == nullptr || info == nullptr)
		return B_BAD_VALUE;
	RunningApp app;
	if (!find_by_signature(signature, &app))
		return B_ERROR;
	fill_info(app, info);
	return B_OK;
}


status_t
BRoster::GetAppInfo(entry_ref* ref, app_info* info) const
{
	if (ref == nullptr || info == nullptr)
		return B_BAD_VALUE;
	RunningApp app;
	if (!find_by_ref(*ref, &app))
		return B_ERROR;
	fill_info(app, info);
	return B_OK;
}


status_t
BRoster::GetRunningAppInfo(team_id team, app_info* info) const
{
	if (info == nullptr)
		return B_BAD_VALUE;
	RunningApp app;
	if (team < 0 || !hosted::FindRunningApp(team, &app))
		return B_BAD_TEAM_ID;
	fill_info(app, info);
	return B_OK;
}


status_t
BRoster::GetActiveAppInfo(app_info* info) const
{
	if (info == nullptr)
		return B_BAD_VALUE;
	const team_id team = hosted::ActiveTeam();
	if (team < 0 || GetRunningAppInfo(team, info) != B_OK)
		return B_ERROR;
	return B_OK;
}


status_t
BRoster::Broadcast(BMessage* message) const
{
	return Broadcast(message, be_app_messenger);
}


status_t
BRoster::Broadcast(BMessage* message, BMessenger replyTo) const
{
	if (message == nullptr)
		return B_BAD_VALUE;
	hosted::Address target;
	target.port = hosted::kApplicationPort;
	target.token = hosted::kPreferredToken;
	for (const RunningApp& program : hosted::RunningPrograms()) {
		target.team = program.identity.team;
		if (target.team != getpid())
			hosted::MessengerAccess::Make(target).SendMessage(message, replyTo, 0);
	}
	return B_OK;
}


status_t
BRoster::StartWatching(BMessenger target, uint32 eventMask) const
{
	hosted::AddWatcher(target, eventMask);
	// Whatever is launched from now on counts, so the watch has to be set up before this returns.
	hosted::DisplayThread::Call([]() {
		if (hosted::SessionDesk::Current() != nullptr)
			hosted::SessionDesk::Current()->WatchPlayers();
	});
	return B_OK;
}


status_t
BRoster::StopWatching(BMessenger target) const
{
	return hosted::RemoveWatcher(target) ? B_OK : B_BAD_VALUE;
}


status_t
BRoster::ActivateApp(team_id team) const
{
	RunningApp app;
	if (team < 0 || !hosted::FindRunningApp(team, &app))
		return B_BAD_TEAM_ID;
	if (team == getpid()) {
		hosted::DisplayThread::Post(hosted::ActivateOwnWindows);
	} else if (app.kind == AppKind::kProgram) {
		hosted::SessionBus::Post(app.busNames.front(), hosted::kObjectPath,
			hosted::kObjectInterface, "Activate");
	} else if (app.kind == AppKind::kPlayer && !app.busNames.empty()) {
		hosted::Mpris(app.busNames.front()).Raise();
	}
	return B_OK;
}
