// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/SessionDesk.h"

#include <unistd.h>

#include <QGuiApplication>

#include <Roster.h>

#include "platform/app/Transport.h"
#include "platform/desktop/Activity.h"
#include "platform/desktop/SessionBus.h"
#include "platform/desktop/Watching.h"


namespace hosted {

namespace {

SessionDesk* sCurrent = nullptr;

} // namespace


SessionDesk::SessionDesk()
{
	sCurrent = this;
}


SessionDesk::~SessionDesk()
{
	sCurrent = nullptr;
	NoteOwnActivity(false);
	QDBusConnection connection = SessionBus::Connection();
	if (!connection.isConnected())
		return;
	// Nobody waits for a bus that may hang; at the latest the name goes with the connection.
	SessionBus::ReleaseName(fName);
	connection.unregisterObject(QLatin1String(kObjectPath));
}


bool
SessionDesk::Open(const std::string& name)
{
	QDBusConnection connection = SessionBus::Connection();
	if (!connection.registerVirtualObject(QLatin1String(kObjectPath), &fObject))
		return false;
	fName = name;

	// Watching begins before anybody is looked for, so that nobody is missed.
	fPrograms.setConnection(connection);
	fPrograms.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
	fPrograms.addWatchedService(QLatin1String(kAppNamePrefix) + QLatin1Char('*'));
	QObject::connect(&fPrograms, &QDBusServiceWatcher::serviceOwnerChanged, &fPrograms,
		[this](const QString& changed, const QString&, const QString& owner) {
			if (owner.isEmpty())
				_Vanished(changed.toStdString());
			else
				_Appeared(changed.toStdString());
		});
	fBusEnd.setSingleShot(true);
	QObject::connect(&fBusEnd, &QTimer::timeout, &fBusEnd, [this]() { _BusVanished(); });
	connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
		QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), &fBusEnd,
		SLOT(start()));
	for (const RunningApp& program : RunningPrograms())
		fSeen[program.busNames.front()] = program;
	fSeen.erase(name);
	QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &fPrograms,
		[](Qt::ApplicationState state) { NoteOwnActivity(state == Qt::ApplicationActive); });

	return connection.registerService(QString::fromStdString(name));
}


void
SessionDesk::WatchPlayers()
{
	if (fPlayers == nullptr)
		fPlayers = std::make_unique<PlayerWatch>();
}


SessionDesk*
SessionDesk::Current()
{
	return sCurrent;
}


void
SessionDesk::_Appeared(const std::string& name)
{
	RunningApp program;
	if (fSeen.find(name) != fSeen.end() || !LookUpProgram(name, &program))
		return;
	fSeen[name] = program;
	TellActivityTo(program.identity.team);
	NotifyWatchers(B_SOME_APP_LAUNCHED, program);
}


void
SessionDesk::_Vanished(const std::string& name)
{
	AppIdentity identity;
	RunningApp program;
	if (!ParseAppName(name, &identity))
		return;
	// Also of one that ended before it was looked at somebody may wait for an answer; but a name
	// that somebody else made up says nothing about a program that is still there.
	if (!FindRunningProgram(identity.team, &program)) {
		ForgetActivityOf(identity.team);
		TeamIsGone(identity.team);
	}
	const auto found = fSeen.find(name);
	if (found == fSeen.end())
		return;
	program = found->second;
	fSeen.erase(found);
	NotifyWatchers(B_SOME_APP_QUIT, program);
}


// The other programs may well be there still, but no answer of theirs comes this way any more.
void
SessionDesk::_BusVanished()
{
	for (const auto& [name, program] : fSeen) {
		ForgetActivityOf(program.identity.team);
		TeamIsGone(program.identity.team);
	}
	fSeen.clear();
}

} // namespace hosted
