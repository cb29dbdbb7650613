// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MESSENGER_H
#define MESSENGER_H

#include <stddef.h>

#include <Message.h>
#include <OS.h>
#include <SupportDefs.h>

class BHandler;
class BLooper;

namespace hosted {
class MessengerAccess;
}


/*!	Names a handler in this or another application, or the handler that its looper prefers.

	A value: it may be copied, and outlive its target.
*/
class BMessenger {
public:
	constexpr BMessenger() {}
	BMessenger(const char* signature, team_id team = -1, status_t* result = NULL);
	BMessenger(const BHandler* handler, const BLooper* looper = NULL, status_t* result = NULL);
	BMessenger(const BMessenger& other) = default;

	BMessenger& operator=(const BMessenger& other) = default;

	status_t SetTo(const char* signature, team_id team = -1);
	status_t SetTo(const BHandler* handler, const BLooper* looper = NULL);

	bool IsTargetLocal() const;
	BHandler* Target(BLooper** looper) const;
	bool LockTarget() const;
	status_t LockTargetWithTimeout(bigtime_t timeout) const;

	status_t SendMessage(uint32 command, BHandler* replyTo = NULL) const;
	status_t SendMessage(BMessage* message, BHandler* replyTo = NULL,
		bigtime_t timeout = B_INFINITE_TIMEOUT) const;
	status_t SendMessage(BMessage* message, BMessenger replyTo,
		bigtime_t timeout = B_INFINITE_TIMEOUT) const;
	// These wait for the answer.
	status_t SendMessage(uint32 command, BMessage* reply) const;
	status_t SendMessage(BMessage* message, BMessage* reply,
		bigtime_t deliveryTimeout = B_INFINITE_TIMEOUT,
		bigtime_t replyTimeout = B_INFINITE_TIMEOUT) const;

	bool IsValid() const;
	team_id Team() const { return fTeam; }

	bool operator==(const BMessenger& other) const;
	bool operator!=(const BMessenger& other) const { return !(*this == other); }
	bool operator<(const BMessenger& other) const;

private:
	friend class hosted::MessengerAccess;

	team_id fTeam = -1;
	int32 fPort = -1;
	int32 fToken = -1;
};

#endif // MESSENGER_H
