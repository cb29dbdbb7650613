// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Messages to other processes, and who they can go to.

#include <algorithm>
#include <unistd.h>

#include <QDBusError>

#include <Roster.h>

#include "platform/app/Transport.h"
#include "platform/desktop/BusObject.h"
#include "platform/desktop/PlayerRequests.h"
#include "platform/desktop/RunningApps.h"
#include "platform/desktop/SessionBus.h"
#include "platform/screen/DisplayThread.h"


namespace hosted {

namespace {

// A program that does not even answer must not hang others, however long they say they want to
// wait. For one whose queue is full they do wait.
constexpr bigtime_t kLongestDelivery = 10000000;
// What handing over takes at most where nobody wants to wait.
constexpr bigtime_t kQuickDelivery = 500000;


status_t
status_of(const QDBusMessage& answer, const std::string& name, bool wantsToWait)
{
	if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("i"))
		return answer.arguments().constFirst().toInt();
	switch (QDBusError(answer).type()) {
		case QDBusError::NoReply:
		case QDBusError::Timeout:
		case QDBusError::TimedOut:
			// It hangs, or it ended before it could answer.
			if (SessionBus::ProcessOf(name) < 0)
				return B_BAD_PORT_ID;
			return wantsToWait ? B_TIMED_OUT : B_WOULD_BLOCK;
		case QDBusError::LimitsExceeded:
		case QDBusError::NoMemory:
			return B_NO_MEMORY;
		case QDBusError::AccessDenied:
			return B_NOT_ALLOWED;
		default:
			return B_BAD_PORT_ID;
	}
}


QVariantList
arguments_for(const Address& target, const void* flattened, size_t size)
{
	return {static_cast<int>(target.port), static_cast<int>(target.token),
		QByteArray(static_cast<const char*>(flattened), static_cast<qsizetype>(size))};
}


// The other side never waits for a place in a full queue, so this side asks again.
status_t
send_to_program(const RunningApp& program, const Address& target, const void* flattened,
	size_t size, bigtime_t timeout)
{
	const std::string& name = program.busNames.front();
	const QVariantList arguments = arguments_for(target, flattened, size);
	// Two display threads that wait for each other would both stand still.
	if (DisplayThread::IsCurrent()) {
		return SessionBus::Post(name, kObjectPath, kObjectInterface, "Deliver", arguments)
			? B_OK
			: B_BAD_PORT_ID;
	}
	const bool wantsToWait = timeout > 0;
	const bigtime_t start = system_time();
	bigtime_t pause = 1000;
	while (true) {
		const bigtime_t left = std::max(timeout - (system_time() - start), bigtime_t(1000));
		const bigtime_t limit = wantsToWait ? std::min(left, kLongestDelivery) : kQuickDelivery;
		const QDBusMessage answer = SessionBus::Call(name, kObjectPath, kObjectInterface, "Deliver",
			arguments, static_cast<int>((limit + 999) / 1000));
		const status_t status = status_of(answer, name, wantsToWait);
		if (status != B_WOULD_BLOCK || !wantsToWait)
			return status;
		if (system_time() - start + pause >= timeout)
			return B_TIMED_OUT;
		snooze(pause);
		pause = std::min(pause * 2, bigtime_t(20000));
	}
}

} // namespace


status_t
SendToOutside(const Address& target, const void* flattened, size_t size, bigtime_t timeout)
{
	if (size > kMaxMessageSize)
		return B_NO_MEMORY;
	RunningApp app;
	if (target.team == getpid() || !FindRunningApp(target.team, &app))
		return B_BAD_PORT_ID;
	if (app.kind == AppKind::kProgram)
		return send_to_program(app, target, flattened, size, timeout);
	return RequestFromPlayer(app, flattened, size);
}


bool
IsTeamAlive(team_id team)
{
	RunningApp app;
	return team > 0 && (team == getpid() || FindRunningApp(team, &app));
}


status_t
FindTeam(const char* signature, team_id wanted, team_id* team)
{
	if (signature == nullptr && wanted < 0)
		return B_BAD_TYPE;
	RunningApp app;
	if (wanted >= 0) {
		if (!FindRunningApp(wanted, &app))
			return B_BAD_TEAM_ID;
		if (signature != nullptr && !SameSignature(app.identity.signature, signature))
			return B_MISMATCHED_VALUES;
	} else {
		const std::vector<RunningApp> apps = AppsOfSignature(RunningApps(), signature);
		if (apps.empty())
			return B_BAD_VALUE;
		app = apps.front();
	}
	if ((app.identity.flags & B_ARGV_ONLY) != 0)
		return B_BAD_TYPE;
	*team = app.identity.team;
	return B_OK;
}

} // namespace hosted
