// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DELIVERY_H
#define DELIVERY_H

#include <Message.h>
#include <Messenger.h>
#include <OS.h>

#include "platform/app/Transport.h"


namespace hosted {

// The kit's way into messengers.
class MessengerAccess {
public:
	static BMessenger Make(const Address& address);
	static Address AddressOf(const BMessenger& messenger);
};

enum class Way {
	// As messengers send: a message for a preferred handler counts against the looper's capacity.
	kPort,
	// As timers send: every message counts, so that they cannot flood a looper that is busy.
	kCounted,
	// As loopers post to themselves and as replies travel: always room.
	kDirect
};

// The preferred handler of this process's application object, whether or not there is one.
Address ApplicationAddress();

// Whether messages can be sent there at all, as far as this process knows.
bool IsReachable(const Address& address);

// Sends a copy. Without a valid reply address the answer goes to the message's first sender, or to
// the application.
status_t SendCopy(const Address& target, BMessage& message, const Address& replyTo,
	bigtime_t timeout, Way way);
// Sends a copy and waits for the answer.
status_t SendCopyAndWait(const Address& target, BMessage& message, BMessage* reply,
	bigtime_t deliveryTimeout, bigtime_t replyTimeout, bool isReply = false);

// Sends the message itself, addressed already, and takes it over. A failure leaves nobody waiting.
status_t Deliver(const Address& target, BMessage* message, bigtime_t timeout, Way way);

// Tells who still waits for an answer to the message that there will be none.
void AnswerUnanswered(BMessage& message);

// Moves all of a delivered message into another one, which is emptied first.
void TakeDelivered(BMessage& from, BMessage* to);

} // namespace hosted

#endif // DELIVERY_H
