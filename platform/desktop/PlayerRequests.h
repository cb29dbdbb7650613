// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAYER_REQUESTS_H
#define PLAYER_REQUESTS_H

#include <stddef.h>

#include <SupportDefs.h>

#include "platform/desktop/RunningApps.h"

class BMessage;


namespace hosted {

/*!	Passes a flattened message on to a player that is not built on the kits.

	Understood are B_QUIT_REQUESTED and, by scripting: get "Messenger" of "track" 0, get and set
	"pitch" (0 stands still, 1 plays) and "volume" (1 is full), execute "next" and "previous".
	Everything else is answered B_MESSAGE_NOT_UNDERSTOOD. The player is spoken to by a thread of its
	own, so that nobody waits for it.
*/
status_t RequestFromPlayer(const RunningApp& player, const void* flattened, size_t size);

// Carries the request out, waiting for the player, and fills the reply.
void PerformRequest(const RunningApp& player, const BMessage& request, BMessage* reply);

// Waits until all requests are through, and ends the thread. After three seconds those that have
// not begun are dropped.
void FinishPlayerRequests();

} // namespace hosted

#endif // PLAYER_REQUESTS_H
