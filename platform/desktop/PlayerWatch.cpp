// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/PlayerWatch.h"

#include <unistd.h>

#include <Roster.h>

#include "platform/desktop/Players.h"
#include "platform/desktop/Processes.h"
#include "platform/desktop/SessionBus.h"
#include "platform/desktop/Watching.h"
#include "platform/screen/DisplayThread.h"


namespace hosted {

PlayerWatch::PlayerWatch()
{
	fNames.setConnection(SessionBus::Connection());
	fNames.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
	fNames.addWatchedService(QLatin1String(kPlayerNamePrefix) + QLatin1Char('*'));
	QObject::connect(&fNames, &QDBusServiceWatcher::serviceRegistered, &fNames,
		[this](const QString& name) { _NameAppeared(name.toStdString()); });
	// The ones that run already are no news, but their end is.
	for (const RunningApp& app : RunningApps()) {
		if (app.kind == AppKind::kPlayer)
			_Follow(app);
	}
}


PlayerWatch::~PlayerWatch()
{
	for (auto& [team, seen] : fSeen) {
		seen.notifier.reset();
		close(seen.process);
	}
}


void
PlayerWatch::_NameAppeared(const std::string& name)
{
	const team_id team = SessionBus::ProcessOf(name);
	RunningApp app;
	if (team < 0 || fSeen.find(team) != fSeen.end() || !FindRunningApp(team, &app)
		|| app.kind != AppKind::kPlayer)
		return;
	if (_Follow(app))
		NotifyWatchers(B_SOME_APP_LAUNCHED, app);
}


bool
PlayerWatch::_Follow(const RunningApp& app)
{
	const team_id team = app.identity.team;
	const int process = PinProcess(team);
	if (process < 0)
		return false;
	Seen& seen = fSeen[team];
	seen.app = app;
	seen.process = process;
	seen.notifier = std::make_unique<QSocketNotifier>(process, QSocketNotifier::Read);
	QObject::connect(seen.notifier.get(), &QSocketNotifier::activated, &fNames, [this, team]() {
		// The notifier is not deleted while it speaks.
		fSeen[team].notifier->setEnabled(false);
		DisplayThread::Post([watch = QPointer<QObject>(&fNames), this, team]() {
			if (watch != nullptr)
				_Ended(team);
		});
	});
	return true;
}


void
PlayerWatch::_Ended(team_id team)
{
	const auto found = fSeen.find(team);
	if (found == fSeen.end())
		return;
	const RunningApp app = found->second.app;
	found->second.notifier.reset();
	close(found->second.process);
	fSeen.erase(found);
	NotifyWatchers(B_SOME_APP_QUIT, app);
}

} // namespace hosted
