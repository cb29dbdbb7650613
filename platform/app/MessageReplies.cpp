// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// Answers to messages, and the way back to who sent them.
#include <Message.h>

#include <memory>
#include <utility>

#include <Errors.h>
#include <Messenger.h>

#include "platform/app/Delivery.h"
#include "platform/app/Envelope.h"

using hosted::Envelope;
using hosted::MessageAccess;
using hosted::MessengerAccess;
using hosted::Way;


namespace {

const char* const kPreviousField = "_previous_";

// Adds the message that a reply answers. One is enough: a dialog of many replies would otherwise
// carry all of its past.
void
add_previous(BMessage& reply, const BMessage& original)
{
	BMessage previous(original);
	previous.RemoveName(kPreviousField);
	reply.RemoveName(kPreviousField);
	reply.AddMessage(kPreviousField, &previous);
}

} // namespace


BMessenger
BMessage::ReturnAddress() const
{
	return fEnvelope->delivered ? MessengerAccess::Make(fEnvelope->replyTo) : BMessenger();
}


const BMessage*
BMessage::Previous() const
{
	if (fEnvelope->previous == nullptr && HasMessage(kPreviousField)) {
		std::unique_ptr<BMessage> previous = std::make_unique<BMessage>();
		if (FindMessage(kPreviousField, previous.get()) == B_OK)
			fEnvelope->previous = std::move(previous);
	}
	return fEnvelope->previous.get();
}


status_t
BMessage::SendReply(uint32 command, BHandler* replyTo)
{
	BMessage reply(command);
	return SendReply(&reply, replyTo);
}


status_t
BMessage::SendReply(BMessage* reply, BHandler* replyTo, bigtime_t timeout)
{
	return SendReply(reply, BMessenger(replyTo), timeout);
}


status_t
BMessage::SendReply(BMessage* reply, BMessenger replyTo, bigtime_t timeout)
{
	if (reply == nullptr)
		return B_BAD_VALUE;
	if (!fEnvelope->delivered)
		return B_BAD_REPLY;
	const bool isAwaited = fEnvelope->replyRequired;
	if (isAwaited && fEnvelope->replyDone)
		return B_DUPLICATE_REPLY;

	std::unique_ptr<BMessage> copy = std::make_unique<BMessage>(*reply);
	Envelope& envelope = MessageAccess::EnvelopeOf(*copy);
	envelope.isReply = true;
	envelope.replyTo = MessengerAccess::AddressOf(replyTo);
	if (!hosted::IsReachable(envelope.replyTo))
		envelope.replyTo = hosted::ApplicationAddress();
	if (!isAwaited) {
		add_previous(*copy, *this);
		return hosted::Deliver(fEnvelope->replyTo, copy.release(), timeout, Way::kPort);
	}

	fEnvelope->replyDone = true;
	return hosted::Deliver(fEnvelope->replyTo, copy.release(), timeout, Way::kDirect);
}


status_t
BMessage::SendReply(uint32 command, BMessage* replyToReply)
{
	BMessage reply(command);
	return SendReply(&reply, replyToReply);
}


status_t
BMessage::SendReply(BMessage* reply, BMessage* replyToReply, bigtime_t sendTimeout,
	bigtime_t replyTimeout)
{
	if (reply == nullptr || replyToReply == nullptr)
		return B_BAD_VALUE;
	if (!fEnvelope->delivered)
		return B_BAD_REPLY;
	const bool isAwaited = fEnvelope->replyRequired;
	if (isAwaited && fEnvelope->replyDone)
		return B_DUPLICATE_REPLY;

	BMessage copy(*reply);
	if (isAwaited)
		fEnvelope->replyDone = true;
	else
		add_previous(copy, *this);
	return hosted::SendCopyAndWait(fEnvelope->replyTo, copy, replyToReply, sendTimeout,
		replyTimeout, true);
}
