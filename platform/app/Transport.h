// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRANSPORT_H
#define TRANSPORT_H

#include <stddef.h>

#include <OS.h>
#include <SupportDefs.h>


namespace hosted {

/*!	Names a handler in any process of the user's session.

	team is the process's team, port the number that its looper has there, token the handler's
	number, or kPreferredToken for the looper's preferred handler. Port kApplicationPort is the
	process's application object, whatever its own number is.
*/
struct Address {
	team_id team = -1;
	int32 port = -1;
	int32 token = -1;
};

inline constexpr int32 kPreferredToken = -2;
inline constexpr int32 kApplicationPort = 0;

// Implemented by the Application Kit; called by the desktop side, in the display thread.

// Queues a flattened message that came from another process. The bytes are not trusted: whatever is
// malformed is refused with an error code and has no other effect. sender is the team that the
// session bus vouches for.
status_t DeliverFromOutside(const Address& target, const void* flattened, size_t size,
	team_id sender);

// Whether the sender of a message on its way out waits for an answer, and where that answer goes:
// by DeliverFromOutside(), as a flattened message. The bytes themselves begin with the message as
// BMessage::Unflatten() takes it.
bool AwaitsReply(const void* flattened, size_t size, Address* replyTo);

// That process is gone: everyone who waits for its answer is woken, with no reply.
void TeamIsGone(team_id team);

// Implemented by the desktop side (platform/desktop); callable from any thread.

// Hands a flattened message to another process and does not wait for its handling. Players that are
// not built on the kits are targets, too: the requests they understand go to them over MPRIS.
// B_BAD_PORT_ID when that process is gone, B_TIMED_OUT or B_WOULD_BLOCK when it takes nothing.
status_t SendToOutside(const Address& target, const void* flattened, size_t size,
	bigtime_t timeout);

// Whether that team runs, for BMessenger::IsValid().
bool IsTeamAlive(team_id team);

// What a BMessenger by signature or team needs: status as BMessenger's constructor gives it, and
// the team on success. A team of -1 means any; a null signature means that the team alone counts.
status_t FindTeam(const char* signature, team_id wanted, team_id* team);

// Announces this process under its signature to the session and starts to take messages, and ends
// that. Called by BApplication, after the display thread has started and before it stops. Without a
// session bus Register prints one line and returns B_OK: everything inside this process still
// works.
status_t RegisterApplication(const char* signature);
void UnregisterApplication();

} // namespace hosted

#endif // TRANSPORT_H
