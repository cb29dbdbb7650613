// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/RunningApps.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <set>
#include <unistd.h>

#include <Roster.h>

#include "platform/desktop/Players.h"
#include "platform/desktop/Processes.h"
#include "platform/desktop/SessionBus.h"


namespace hosted {

namespace {

struct State {
	std::mutex lock;
	AppIdentity own;
	// Programs that the bus has confirmed, by name. A name holds a process number and a time, so
	// that it never comes to mean another program.
	std::map<std::string, RunningApp> confirmed;
};

State&
state()
{
	static State* sState = new State;
	return *sState;
}


bool
find_confirmed(const std::string& name, RunningApp* app)
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	const auto found = shared.confirmed.find(name);
	if (found == shared.confirmed.end())
		return false;
	*app = found->second;
	return true;
}


void
forget_all_but(const std::vector<std::string>& names)
{
	const std::set<std::string> kept(names.begin(), names.end());
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	for (auto item = shared.confirmed.begin(); item != shared.confirmed.end();) {
		if (kept.find(item->first) == kept.end())
			item = shared.confirmed.erase(item);
		else
			item++;
	}
}


bool
registered_before(const RunningApp& one, const RunningApp& other)
{
	return one.identity.registered < other.identity.registered;
}


bool
make_own(RunningApp* app)
{
	const AppIdentity identity = OwnIdentity();
	if (identity.team < 0)
		return false;
	app->kind = AppKind::kProgram;
	app->identity = identity;
	app->executable = ProcessExecutable(identity.team);
	app->busNames = {AppNameFor(identity)};
	return true;
}


RunningApp
roster_server()
{
	RunningApp app;
	app.kind = AppKind::kRosterServer;
	app.identity.signature = kRosterServerSignature;
	app.identity.team = std::max(SessionBus::BusProcess(), 1);
	app.identity.flags = B_EXCLUSIVE_LAUNCH | B_BACKGROUND_APP;
	app.executable = ProcessExecutable(app.identity.team);
	return app;
}


RunningApp
app_of(const RunningPlayer& player)
{
	RunningApp app;
	app.kind = AppKind::kPlayer;
	app.identity.signature = player.signature;
	app.identity.team = player.team;
	app.identity.flags = B_MULTIPLE_LAUNCH;
	app.identity.registered = player.started;
	app.executable = player.executable;
	app.busNames = player.busNames;
	return app;
}

} // namespace


bool
LookUpProgram(const std::string& busName, RunningApp* app)
{
	if (find_confirmed(busName, app))
		return true;
	RunningApp found;
	if (!ParseAppName(busName, &found.identity)
		|| SessionBus::ProcessOf(busName) != found.identity.team)
		return false;
	found.executable = ProcessExecutable(found.identity.team);
	found.busNames = {busName};
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	shared.confirmed[busName] = found;
	*app = found;
	return true;
}


std::vector<RunningApp>
RunningPrograms()
{
	std::vector<RunningApp> programs;
	std::set<team_id> teams;
	RunningApp own;
	if (make_own(&own)) {
		programs.push_back(own);
		teams.insert(own.identity.team);
	}
	const std::vector<std::string> names
		= SessionBus::NamesBeginningWith(std::string(kAppNamePrefix) + ".");
	forget_all_but(names);
	for (const std::string& name : names) {
		RunningApp app;
		// A process counts once, whatever it calls itself besides.
		if (LookUpProgram(name, &app) && teams.insert(app.identity.team).second)
			programs.push_back(app);
	}
	std::stable_sort(programs.begin(), programs.end(), registered_before);
	return programs;
}


std::vector<RunningApp>
RunningApps()
{
	std::vector<RunningApp> apps = RunningPrograms();
	std::set<team_id> teams;
	for (const RunningApp& app : apps)
		teams.insert(app.identity.team);
	for (const RunningPlayer& player : RunningPlayers()) {
		if (teams.insert(player.team).second)
			apps.push_back(app_of(player));
	}
	std::stable_sort(apps.begin(), apps.end(), registered_before);
	apps.insert(apps.begin(), roster_server());
	return apps;
}


bool
FindRunningProgram(team_id team, RunningApp* app)
{
	for (const RunningApp& candidate : RunningPrograms()) {
		if (candidate.identity.team == team) {
			*app = candidate;
			return true;
		}
	}
	return false;
}


bool
FindRunningApp(team_id team, RunningApp* app)
{
	if (FindRunningProgram(team, app))
		return true;
	RunningPlayer player;
	if (FindRunningPlayer(team, &player)) {
		*app = app_of(player);
		return true;
	}
	const RunningApp server = roster_server();
	if (server.identity.team != team)
		return false;
	*app = server;
	return true;
}


std::vector<RunningApp>
AppsOfSignature(const std::vector<RunningApp>& apps, const std::string& signature)
{
	std::vector<RunningApp> exact;
	std::vector<RunningApp> similar;
	for (const RunningApp& app : apps) {
		if (app.identity.signature == signature)
			exact.push_back(app);
		else if (SameSignature(app.identity.signature, signature))
			similar.push_back(app);
	}
	return exact.empty() ? similar : exact;
}


void
SetOwnIdentity(const AppIdentity& identity)
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	shared.own = identity;
}


AppIdentity
OwnIdentity()
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	return shared.own;
}

} // namespace hosted
