// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Watching.h"

#include <mutex>
#include <vector>

#include <Entry.h>
#include <Message.h>
#include <Roster.h>


namespace hosted {

namespace {

struct Watcher {
	BMessenger target;
	uint32 mask;
};

struct State {
	std::mutex lock;
	std::vector<Watcher> watchers;
};

State&
state()
{
	static State* sState = new State;
	return *sState;
}


uint32
bit_of(uint32 event)
{
	switch (event) {
		case B_SOME_APP_LAUNCHED:
			return B_REQUEST_LAUNCHED;
		case B_SOME_APP_QUIT:
			return B_REQUEST_QUIT;
		default:
			return B_REQUEST_ACTIVATED;
	}
}


BMessage
make_notice(uint32 event, const RunningApp& app)
{
	BMessage notice(event);
	notice.AddString("be:signature", app.identity.signature.c_str());
	notice.AddInt32("be:team", app.identity.team);
	notice.AddInt32("be:thread", app.identity.team);
	notice.AddInt32("be:flags", static_cast<int32>(app.identity.flags));
	entry_ref ref;
	if (!app.executable.empty())
		get_ref_for_path(app.executable.c_str(), &ref);
	notice.AddRef("be:ref", &ref);
	return notice;
}

} // namespace


void
AddWatcher(const BMessenger& target, uint32 mask)
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	for (Watcher& watcher : shared.watchers) {
		if (watcher.target == target) {
			watcher.mask = mask;
			return;
		}
	}
	shared.watchers.push_back({target, mask});
}


bool
RemoveWatcher(const BMessenger& target)
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	for (size_t i = 0; i < shared.watchers.size(); i++) {
		if (shared.watchers[i].target == target) {
			shared.watchers.erase(shared.watchers.begin() + static_cast<ptrdiff_t>(i));
			return true;
		}
	}
	return false;
}


void
NotifyWatchers(uint32 event, const RunningApp& app)
{
	std::vector<Watcher> watchers;
	{
		State& shared = state();
		std::lock_guard<std::mutex> lock(shared.lock);
		watchers = shared.watchers;
	}
	const uint32 bit = bit_of(event);
	for (const Watcher& watcher : watchers) {
		if ((watcher.mask & bit) == 0)
			continue;
		BMessage notice = make_notice(event, app);
		// Nobody is waited for. One whose target is gone stays listed until it is taken out.
		watcher.target.SendMessage(&notice, static_cast<BHandler*>(nullptr), 0);
	}
}

} // namespace hosted
