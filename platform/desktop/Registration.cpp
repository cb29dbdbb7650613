// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Announces this process to the session, and takes it off again.

#include <stdio.h>
#include <unistd.h>

#include <Roster.h>

#include "platform/app/Transport.h"
#include "platform/desktop/Launching.h"
#include "platform/desktop/PlayerRequests.h"
#include "platform/desktop/Processes.h"
#include "platform/desktop/ProgramFlags.h"
#include "platform/desktop/SessionBus.h"
#include "platform/desktop/SessionDesk.h"
#include "platform/screen/DisplayThread.h"


namespace hosted {

namespace {

// Another program of the same kind that does not want this one beside it.
bool
has_rival(const AppIdentity& identity)
{
	const uint32 kind = identity.flags & B_LAUNCH_MASK;
	if (kind == B_MULTIPLE_LAUNCH)
		return false;
	const std::string own = ProcessExecutable(identity.team);
	for (const RunningApp& program : AppsOfSignature(RunningPrograms(), identity.signature)) {
		if (kind == B_EXCLUSIVE_LAUNCH || program.executable == own)
			return true;
	}
	return false;
}


bool
open_desk(const std::string& name)
{
	bool opened = false;
	DisplayThread::Call([&name, &opened]() {
		SessionDesk* desk = new SessionDesk;
		opened = desk->Open(name);
		if (!opened)
			delete desk;
	});
	return opened;
}


// They come before everything else that the application is told at its start.
void
deliver_launch_messages()
{
	team_id launcher = -1;
	const std::vector<std::string> messages = FetchLaunchMessages(&launcher);
	Address target;
	target.team = getpid();
	target.port = kApplicationPort;
	target.token = kPreferredToken;
	for (const std::string& flattened : messages) {
		DisplayThread::Call([&target, &flattened, launcher]() {
			DeliverFromOutside(target, flattened.data(), flattened.size(), launcher);
		});
	}
}

} // namespace


status_t
RegisterApplication(const char* signature)
{
	if (signature == nullptr || signature[0] == '\0')
		return B_BAD_VALUE;
	if (OwnIdentity().team >= 0)
		return B_ALREADY_RUNNING;
	AppIdentity identity;
	identity.signature = signature;
	identity.team = getpid();
	identity.flags = ProgramFlags(ProcessExecutable(identity.team));
	identity.registered = TimeSinceBoot();
	if (has_rival(identity))
		return B_ALREADY_RUNNING;
	SetOwnIdentity(identity);
	if (!SessionBus::IsConnected() || !open_desk(AppNameFor(identity))) {
		fprintf(stderr, "No session bus: this program and others do not find each other.\n");
		return B_OK;
	}
	deliver_launch_messages();
	return B_OK;
}


void
UnregisterApplication()
{
	if (OwnIdentity().team < 0)
		return;
	FinishPlayerRequests();
	DisplayThread::Call([]() { delete SessionDesk::Current(); });
	SetOwnIdentity(AppIdentity());
	SessionBus::Disconnect();
}

} // namespace hosted
