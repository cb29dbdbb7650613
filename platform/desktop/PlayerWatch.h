// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAYER_WATCH_H
#define PLAYER_WATCH_H

#include <map>
#include <memory>
#include <string>

#include <QDBusServiceWatcher>
#include <QPointer>
#include <QSocketNotifier>

#include "platform/desktop/RunningApps.h"


namespace hosted {

/*!	Sees players come and go, for the roster's notices.

	A player comes when it takes its name on the session bus, and is gone when its process is.
	Lives in the display thread.
*/
class PlayerWatch {
public:
	PlayerWatch();
	~PlayerWatch();
	PlayerWatch(const PlayerWatch&) = delete;
	PlayerWatch& operator=(const PlayerWatch&) = delete;

private:
	// A running player, with the file that becomes readable when its process ends.
	struct Seen {
		RunningApp app;
		int process = -1;
		std::unique_ptr<QSocketNotifier> notifier;
	};

	void _NameAppeared(const std::string& name);
	bool _Follow(const RunningApp& app);
	void _Ended(team_id team);

private:
	QDBusServiceWatcher fNames;
	std::map<team_id, Seen> fSeen;
};

} // namespace hosted

#endif // PLAYER_WATCH_H
