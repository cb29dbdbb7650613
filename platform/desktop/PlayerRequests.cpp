// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/PlayerRequests.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <poll.h>
#include <string.h>
#include <strings.h>
#include <string>
#include <thread>
#include <unistd.h>

#include <AppDefs.h>
#include <Message.h>
#include <Messenger.h>
#include <OS.h>

#include "platform/app/Transport.h"
#include "platform/desktop/Mpris.h"
#include "platform/desktop/Players.h"
#include "platform/desktop/Processes.h"
#include "platform/screen/DisplayThread.h"


namespace hosted {

namespace {

struct Request {
	RunningApp player;
	BMessage message;
	Address replyTo;
	bool isAwaited = false;
};

struct State {
	std::mutex lock;
	std::condition_variable changed;
	std::deque<Request> requests;
	std::thread thread;
	bool finishing = false;
	// When those that are still waiting are dropped; players that hang must not hold the end.
	bigtime_t dropTime = 0;
};

constexpr bigtime_t kFinishLimit = 3000000;

State&
state()
{
	static State* sState = new State;
	return *sState;
}


Mpris
remote_of(const RunningApp& player)
{
	return Mpris(player.busNames.empty() ? "" : player.busNames.front());
}


bool
is_finishing()
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	return shared.finishing;
}


// Whether the process ends within a second; whoever ends this program need not wait so long.
bool
ends_soon(int process)
{
	for (int i = 0; i < 20 && !is_finishing(); i++) {
		pollfd waited = {process, POLLIN, 0};
		if (poll(&waited, 1, 50) > 0)
			return true;
	}
	return false;
}


// A player that is just starting may take the request and forget it, as VLC does; so it is asked
// again while it stays.
bool
quit_by_remote(const RunningApp& player)
{
	const int process = PinProcess(player.identity.team);
	bool taken = remote_of(player).Quit();
	for (int i = 0; i < 3 && taken && process >= 0 && !ends_soon(process) && !is_finishing(); i++)
		taken = remote_of(player).Quit() || ends_soon(process);
	if (process >= 0)
		close(process);
	return taken;
}


bool
quit(const RunningApp& player)
{
	if (!player.busNames.empty() && quit_by_remote(player))
		return true;
	const team_id team = player.identity.team;
	const bigtime_t started = player.identity.registered;
	return TerminateProcess(team, [team, started]() {
		RunningPlayer running;
		return FindRunningPlayer(team, &running) && running.started == started;
	});
}


// What a scripting message is about: the property that was named last, and what it is a part of.
struct Property {
	const char* name = "";
	const char* owner = "";
	int32 ownerIndex = 0;
	bool isDirect = false;
};

class Specifiers {
public:
	explicit Specifiers(const BMessage& request)
	{
		int32 count = 0;
		type_code type;
		if (request.GetInfo("specifiers", &type, &count) != B_OK)
			return;
		fIsKnown = count > 0 && count <= 2 && request.FindMessage("specifiers", 0, &fInner) == B_OK
			&& (count == 1 || request.FindMessage("specifiers", 1, &fOuter) == B_OK);
	}

	// Of "Messenger of track 0" the messenger is asked for, and the track is its owner.
	Property Get() const
	{
		Property property;
		if (!fIsKnown)
			return property;
		property.name = fInner.GetString("property", "");
		property.owner = fOuter.GetString("property", "");
		property.ownerIndex = fOuter.GetInt32("index", 0);
		property.isDirect = fInner.what == B_DIRECT_SPECIFIER;
		return property;
	}

private:
	BMessage fInner;
	BMessage fOuter;
	bool fIsKnown = false;
};


bool
get_property(const RunningApp& player, const Property& property, BMessage* reply)
{
	Mpris remote = remote_of(player);
	if (strcmp(property.name, "Messenger") == 0) {
		// A player has one track object: itself.
		if (strcmp(property.owner, "track") != 0 || property.ownerIndex != 0)
			return false;
		return reply->AddMessenger("result", BMessenger(nullptr, player.identity.team)) == B_OK;
	}
	if (strcmp(property.name, "volume") == 0) {
		double volume;
		return remote.GetVolume(&volume)
			&& reply->AddFloat("result", static_cast<float>(volume)) == B_OK;
	}
	if (strcmp(property.name, "pitch") == 0) {
		bool isPlaying;
		return remote.GetIsPlaying(&isPlaying)
			&& reply->AddFloat("result", isPlaying ? 1.0f : 0.0f) == B_OK;
	}
	return false;
}


bool
set_property(const RunningApp& player, const Property& property, const BMessage& request)
{
	Mpris remote = remote_of(player);
	float value;
	if (request.FindFloat("data", &value) != B_OK)
		return false;
	if (strcmp(property.name, "volume") == 0)
		return value >= 0 && value <= 2 && remote.SetVolume(static_cast<double>(value));
	if (strcmp(property.name, "pitch") == 0)
		return value == 0 ? remote.Pause() : remote.Play();
	return false;
}


bool
execute_property(const RunningApp& player, const Property& property)
{
	Mpris remote = remote_of(player);
	if (strcmp(property.name, "next") == 0)
		return remote.Next();
	return strcmp(property.name, "previous") == 0 && remote.Previous();
}


bool
perform_script(const RunningApp& player, const BMessage& request, BMessage* reply)
{
	const Specifiers specifiers(request);
	const Property property = specifiers.Get();
	if (!property.isDirect || player.busNames.empty())
		return false;
	switch (request.what) {
		case B_GET_PROPERTY:
			return get_property(player, property, reply);
		case B_SET_PROPERTY:
			return set_property(player, property, request);
		case B_EXECUTE_PROPERTY:
			return execute_property(player, property);
		default:
			return false;
	}
}


// As the platform's own applications do, whoever waits gets an answer, and so does a script.
void
answer(const Request& request, const BMessage& reply)
{
	if (!request.isAwaited && (!request.message.HasSpecifiers() || request.replyTo.port < 0))
		return;
	std::string bytes(static_cast<size_t>(reply.FlattenedSize()), '\0');
	if (reply.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size())) != B_OK)
		return;
	DisplayThread::Call([&request, &bytes]() {
		DeliverFromOutside(request.replyTo, bytes.data(), bytes.size(),
			request.player.identity.team);
	});
}


void
run_requests(State& shared)
{
	std::unique_lock<std::mutex> lock(shared.lock);
	while (true) {
		shared.changed.wait(lock,
			[&shared]() { return shared.finishing || !shared.requests.empty(); });
		if (shared.finishing && system_time() > shared.dropTime)
			shared.requests.clear();
		if (shared.requests.empty())
			return;
		Request request = std::move(shared.requests.front());
		shared.requests.pop_front();
		lock.unlock();
		BMessage reply;
		PerformRequest(request.player, request.message, &reply);
		answer(request, reply);
		lock.lock();
	}
}

} // namespace


void
PerformRequest(const RunningApp& player, const BMessage& request, BMessage* reply)
{
	const bool isPlayer = player.kind == AppKind::kPlayer;
	reply->MakeEmpty();
	reply->what = B_REPLY;
	if (isPlayer && request.what == B_QUIT_REQUESTED) {
		reply->AddBool("result", quit(player));
	} else if (isPlayer && perform_script(player, request, reply)) {
		reply->AddInt32("error", B_OK);
	} else {
		reply->MakeEmpty();
		reply->what = B_MESSAGE_NOT_UNDERSTOOD;
		reply->AddInt32("error", B_BAD_SCRIPT_SYNTAX);
		reply->AddString("message", "Didn't understand the specifier(s)");
	}
}


status_t
RequestFromPlayer(const RunningApp& player, const void* flattened, size_t size)
{
	constexpr size_t kMaxWaiting = 200;
	Request request;
	request.player = player;
	request.isAwaited = AwaitsReply(flattened, size, &request.replyTo);
	const status_t status = request.message.Unflatten(static_cast<const char*>(flattened));
	if (status != B_OK)
		return status;
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.lock);
	if (shared.finishing)
		return B_BAD_PORT_ID;
	if (shared.requests.size() >= kMaxWaiting)
		return B_WOULD_BLOCK;
	shared.requests.push_back(std::move(request));
	if (!shared.thread.joinable())
		shared.thread = std::thread([&shared]() { run_requests(shared); });
	shared.changed.notify_all();
	return B_OK;
}


void
FinishPlayerRequests()
{
	State& shared = state();
	std::thread thread;
	{
		std::lock_guard<std::mutex> lock(shared.lock);
		shared.finishing = true;
		shared.dropTime = system_time() + kFinishLimit;
		thread = std::move(shared.thread);
		shared.changed.notify_all();
	}
	if (thread.joinable())
		thread.join();
	std::lock_guard<std::mutex> lock(shared.lock);
	shared.finishing = false;
}

} // namespace hosted
