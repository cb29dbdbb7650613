// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SESSION_DESK_H
#define SESSION_DESK_H

#include <map>
#include <memory>
#include <string>

#include <QDBusServiceWatcher>
#include <QTimer>

#include "platform/desktop/BusObject.h"
#include "platform/desktop/PlayerWatch.h"
#include "platform/desktop/RunningApps.h"


namespace hosted {

/*!	This program's place on the session bus: its object and its name there, and its eye on the
	other programs' coming and going.

	Lives in the display thread, from the application's registration to its end.
*/
class SessionDesk {
public:
	SessionDesk();
	~SessionDesk();
	SessionDesk(const SessionDesk&) = delete;
	SessionDesk& operator=(const SessionDesk&) = delete;

	// Takes messages from now on, under this name. False if the bus refuses.
	bool Open(const std::string& name);
	// Players are looked for only once somebody asks.
	void WatchPlayers();

	// The one of this process, null without one. Display thread only.
	static SessionDesk* Current();

private:
	void _Appeared(const std::string& name);
	void _Vanished(const std::string& name);
	void _BusVanished();

private:
	BusObject fObject;
	QDBusServiceWatcher fPrograms;
	// Runs out when the connection to the bus has ended: signals of the bus start a ready-made
	// slot.
	QTimer fBusEnd;
	std::map<std::string, RunningApp> fSeen;
	std::unique_ptr<PlayerWatch> fPlayers;
	std::string fName;
};

} // namespace hosted

#endif // SESSION_DESK_H
