// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Activity.h"

#include <atomic>
#include <unistd.h>

#include <QGuiApplication>
#include <QWindow>

#include <Roster.h>

#include "platform/desktop/BusObject.h"
#include "platform/desktop/RunningApps.h"
#include "platform/desktop/SessionBus.h"
#include "platform/desktop/Watching.h"


namespace hosted {

namespace {

std::atomic<team_id> sActive{-1};


void
tell(const RunningApp& program, bool active, bool isNews)
{
	SessionBus::Post(program.busNames.front(), kObjectPath, kObjectInterface, "NoteActivity",
		{active, isNews});
}


void
notify(team_id team)
{
	RunningApp program;
	if (FindRunningProgram(team, &program))
		NotifyWatchers(B_SOME_APP_ACTIVATED, program);
}

} // namespace


team_id
ActiveTeam()
{
	return sActive;
}


void
NoteOwnActivity(bool active)
{
	const team_id own = getpid();
	if (active == (sActive == own))
		return;
	sActive = active ? own : -1;
	for (const RunningApp& program : RunningPrograms()) {
		if (program.identity.team != own)
			tell(program, active, true);
	}
	if (active)
		notify(own);
}


void
NoteActivityOf(team_id team, bool active, bool isNews)
{
	if (!active) {
		ForgetActivityOf(team);
		return;
	}
	const team_id before = sActive.exchange(team);
	if (before != team && isNews)
		notify(team);
}


void
TellActivityTo(team_id team)
{
	RunningApp program;
	if (sActive == getpid() && team != getpid() && FindRunningProgram(team, &program))
		tell(program, true, false);
}


void
ForgetActivityOf(team_id team)
{
	sActive.compare_exchange_strong(team, -1);
}


void
ActivateOwnWindows()
{
	for (QWindow* window : QGuiApplication::topLevelWindows()) {
		if (window->type() != Qt::Window || !window->isVisible())
			continue;
		window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
		window->raise();
		window->requestActivate();
		// Without a common desktop each program keeps its active window, and no event will come.
		if (QGuiApplication::focusWindow() == window)
			NoteOwnActivity(true);
		return;
	}
}

} // namespace hosted
