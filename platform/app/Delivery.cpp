// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/Delivery.h"

#include <memory>
#include <string.h>
#include <utility>
#include <vector>

#include <AppDefs.h>
#include <Errors.h>

#include "platform/app/Envelope.h"
#include "platform/app/QueueState.h"
#include "platform/app/Registry.h"
#include "platform/app/Threads.h"


namespace hosted {

namespace {

// What follows a message's own bytes to another process. It may be missing.
struct OutsideTrailer {
	uint32 magic;
	uint32 flags;
	Address replyTo;
};

// The last character is the version.
constexpr uint32 kOutsideMagic = 'VMo1';
constexpr uint32 kReplyRequiredFlag = 1;
constexpr uint32 kIsReplyFlag = 2;

status_t
deliver_inside(const Address& target, std::unique_ptr<BMessage> message, bigtime_t timeout, Way way)
{
	Envelope& envelope = MessageAccess::EnvelopeOf(*message);
	envelope.delivered = true;
	envelope.target = target.token;

	const std::shared_ptr<LooperCore> core = Registry::Get().LooperAt(target.port);
	if (core != nullptr) {
		const bool counts = way == Way::kCounted
			|| (way == Way::kPort && (target.token == kPreferredToken || envelope.remote));
		// A looper that waits for room in its own queue would wait for ever.
		const bool toItself = core->thread == CurrentThread() && timeout > 0;
		const int32 capacity = counts && !toItself ? core->capacity : 0;
		return QueueAccess::Post(core->queue, message.release(), capacity, timeout);
	}

	const std::shared_ptr<ReplySlot> slot = Registry::Get().ReplySlotAt(target.port);
	if (slot != nullptr)
		return slot->Put(message.release());

	envelope.replyRequired = false;
	return B_BAD_PORT_ID;
}


status_t
deliver_outside(const Address& target, const BMessage& message, bigtime_t timeout)
{
	const Envelope& envelope = MessageAccess::EnvelopeOf(message);
	OutsideTrailer trailer;
	trailer.magic = kOutsideMagic;
	trailer.flags
		= (envelope.replyRequired ? kReplyRequiredFlag : 0) | (envelope.isReply ? kIsReplyFlag : 0);
	trailer.replyTo = envelope.replyTo;

	const size_t size = static_cast<size_t>(message.FlattenedSize());
	std::vector<char> bytes(size + sizeof(trailer));
	const status_t status = message.Flatten(bytes.data(), static_cast<ssize_t>(size));
	if (status != B_OK)
		return status;
	memcpy(bytes.data() + size, &trailer, sizeof(trailer));
	return SendToOutside(target, bytes.data(), bytes.size(), timeout);
}


status_t
take_from_outside(const void* bytes, size_t size, BMessage& message)
{
	if (bytes == nullptr)
		return B_BAD_VALUE;
	const char* flattened = static_cast<const char*>(bytes);
	size_t used;
	const status_t status = MessageAccess::Unflatten(message, flattened, size, &used);
	if (status != B_OK || used == size)
		return status;

	OutsideTrailer trailer;
	if (size - used != sizeof(trailer))
		return B_BAD_VALUE;
	memcpy(&trailer, flattened + used, sizeof(trailer));
	if (trailer.magic != kOutsideMagic
		|| (trailer.flags & ~(kReplyRequiredFlag | kIsReplyFlag)) != 0)
		return B_BAD_VALUE;
	Envelope& envelope = MessageAccess::EnvelopeOf(message);
	envelope.isReply = (trailer.flags & kIsReplyFlag) != 0;
	envelope.replyRequired = (trailer.flags & kReplyRequiredFlag) != 0;
	envelope.replyTo = trailer.replyTo;
	return B_OK;
}


// A copy that carries on what the original knows about its sender.
std::unique_ptr<BMessage>
addressed_copy(BMessage& message, const Address& replyTo)
{
	std::unique_ptr<BMessage> copy = std::make_unique<BMessage>(message);
	Envelope& envelope = MessageAccess::EnvelopeOf(*copy);
	// Whoever waits gets the answer from the copy's receiver.
	if (message.IsSourceWaiting())
		envelope.replyRequired = true;
	else if (IsReachable(replyTo))
		envelope.replyTo = replyTo;
	else if (!IsReachable(envelope.replyTo))
		envelope.replyTo = ApplicationAddress();
	return copy;
}

} // namespace


Address
ApplicationAddress()
{
	Address address;
	address.team = CurrentTeam();
	address.port = kApplicationPort;
	address.token = kPreferredToken;
	return address;
}


BMessenger
MessengerAccess::Make(const Address& address)
{
	BMessenger messenger;
	messenger.fTeam = address.team;
	messenger.fPort = address.port;
	messenger.fToken = address.token;
	return messenger;
}


Address
MessengerAccess::AddressOf(const BMessenger& messenger)
{
	Address address;
	address.team = messenger.fTeam;
	address.port = messenger.fPort;
	address.token = messenger.fToken;
	return address;
}


bool
IsReachable(const Address& address)
{
	if (address.team < 0 || address.port < 0)
		return false;
	return address.team != CurrentTeam() || Registry::Get().HasPort(address.port);
}


status_t
SendCopy(const Address& target, BMessage& message, const Address& replyTo, bigtime_t timeout,
	Way way)
{
	if (!IsReachable(target))
		return B_BAD_PORT_ID;
	const bool handsOver = message.IsSourceWaiting();
	std::unique_ptr<BMessage> copy = addressed_copy(message, replyTo);
	// Before the copy is under way, because its receiver may be faster than this thread.
	Envelope& envelope = MessageAccess::EnvelopeOf(message);
	if (handsOver)
		envelope.replyDone = true;
	const status_t status = Deliver(target, copy.release(), timeout, way);
	if (status != B_OK && handsOver)
		envelope.replyDone = false;
	return status;
}


status_t
SendCopyAndWait(const Address& target, BMessage& message, BMessage* reply,
	bigtime_t deliveryTimeout, bigtime_t replyTimeout, bool isReply)
{
	if (!IsReachable(target))
		return B_BAD_PORT_ID;
	if (message.IsSourceWaiting())
		return B_ERROR;

	Registry& registry = Registry::Get();
	const std::shared_ptr<ReplySlot> slot = registry.AddReplySlot(target.team);
	std::unique_ptr<BMessage> copy = std::make_unique<BMessage>(message);
	Envelope& envelope = MessageAccess::EnvelopeOf(*copy);
	envelope.replyRequired = true;
	envelope.isReply = isReply;
	envelope.replyTo.team = CurrentTeam();
	envelope.replyTo.port = slot->Port();
	envelope.replyTo.token = kPreferredToken;

	status_t status
		= Deliver(target, copy.release(), deliveryTimeout, isReply ? Way::kDirect : Way::kPort);
	if (status == B_OK)
		status = slot->Wait(reply, replyTimeout);
	registry.RemoveReplySlot(*slot);
	return status;
}


status_t
Deliver(const Address& target, BMessage* message, bigtime_t timeout, Way way)
{
	std::unique_ptr<BMessage> owned(message);
	if (target.team == CurrentTeam())
		return deliver_inside(target, std::move(owned), timeout, way);
	return deliver_outside(target, *owned, timeout);
}


void
AnswerUnanswered(BMessage& message)
{
	Envelope& envelope = MessageAccess::EnvelopeOf(message);
	if (!envelope.delivered || !message.IsSourceWaiting())
		return;
	envelope.replyDone = true;
	BMessage* answer = new BMessage(B_NO_REPLY);
	MessageAccess::EnvelopeOf(*answer).isReply = true;
	Deliver(envelope.replyTo, answer, 0, Way::kDirect);
}


void
TakeDelivered(BMessage& from, BMessage* to)
{
	to->MakeEmpty();
	to->what = from.what;
	std::swap(MessageAccess::FieldsOf(*to), MessageAccess::FieldsOf(from));
	std::swap(MessageAccess::EnvelopeOf(*to), MessageAccess::EnvelopeOf(from));
}


status_t
DeliverFromOutside(const Address& target, const void* flattened, size_t size, team_id sender)
{
	std::unique_ptr<BMessage> message = std::make_unique<BMessage>();
	const status_t status = take_from_outside(flattened, size, *message);
	if (status != B_OK)
		return status;

	Envelope& envelope = MessageAccess::EnvelopeOf(*message);
	envelope.remote = sender != CurrentTeam();
	if (envelope.replyTo.team < 0 || envelope.replyTo.port < 0) {
		envelope.replyTo.team = sender;
		envelope.replyTo.port = kApplicationPort;
		envelope.replyTo.token = kPreferredToken;
		envelope.replyRequired = false;
	}
	// The display thread must not wait until the looper has room.
	return deliver_inside(target, std::move(message), 0, Way::kPort);
}


bool
AwaitsReply(const void* flattened, size_t size, Address* replyTo)
{
	BMessage message;
	if (take_from_outside(flattened, size, message) != B_OK)
		return false;
	*replyTo = MessageAccess::EnvelopeOf(message).replyTo;
	return MessageAccess::EnvelopeOf(message).replyRequired;
}


void
TeamIsGone(team_id team)
{
	for (const std::shared_ptr<ReplySlot>& slot : Registry::Get().ReplySlotsFor(team))
		slot->GiveUp();
}

} // namespace hosted
