// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ENVELOPE_H
#define ENVELOPE_H

#include <memory>
#include <stddef.h>

#include <Message.h>

#include "platform/app/FieldList.h"
#include "platform/app/Transport.h"


namespace hosted {

// What a message knows besides its code and its fields.
struct Envelope {
	// Where an answer goes; stays with copies, so that a message that is passed on answers its
	// first sender.
	Address replyTo;
	// The handler that a delivered message is for.
	int32 target = kPreferredToken;

	bool delivered = false;
	bool remote = false;
	bool isReply = false;
	// The sender waits for an answer, and whether it got one or somebody else is to give it.
	bool replyRequired = false;
	bool replyDone = false;
	// Counts against the capacity of the looper that it waits in.
	bool throughPort = false;

	bool dropped = false;
	bool hasSpecifiers = false;
	int32 currentSpecifier = -1;

	// Made when somebody asks for it.
	std::unique_ptr<BMessage> previous;
};


// The kit's way into messages.
class MessageAccess {
public:
	static Envelope& EnvelopeOf(const BMessage& message) { return *message.fEnvelope; }
	static FieldList& FieldsOf(BMessage& message) { return *message.fFields; }
	static const FieldList& FieldsOf(const BMessage& message) { return *message.fFields; }

	// Takes flattened bytes of any origin. used says how many of them the message was; null
	// demands all.
	static status_t Unflatten(BMessage& message, const char* bytes, size_t size, size_t* used);
};

} // namespace hosted

#endif // ENVELOPE_H
