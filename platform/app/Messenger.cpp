// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Messenger.h>

#include <memory>
#include <tuple>

#include <Errors.h>
#include <Handler.h>
#include <Looper.h>

#include "platform/app/Delivery.h"
#include "platform/app/HandlerAccess.h"
#include "platform/app/Registry.h"
#include "platform/app/Threads.h"

using hosted::Address;
using hosted::MessengerAccess;
using hosted::Registry;


namespace {

status_t
find_application(const char* signature, team_id team, Address* address)
{
	if (signature == nullptr && team < 0)
		return B_BAD_TYPE;
	team_id found = -1;
	const status_t status = hosted::FindTeam(signature, team, &found);
	if (status != B_OK)
		return status;
	address->team = found;
	address->port = hosted::kApplicationPort;
	address->token = hosted::kPreferredToken;
	return B_OK;
}


status_t
find_handler(const BHandler* handler, const BLooper* looper, Address* address)
{
	if (handler == nullptr && looper == nullptr)
		return B_BAD_VALUE;
	const BLooper* owner = looper;
	if (handler != nullptr) {
		owner = handler->Looper();
		if (owner == nullptr || (looper != nullptr && looper != owner))
			return B_MISMATCHED_VALUES;
	}
	const std::shared_ptr<hosted::LooperCore> core = Registry::Get().LooperFor(owner);
	if (core == nullptr)
		return B_BAD_VALUE;
	address->team = hosted::CurrentTeam();
	address->port = core->port;
	address->token
		= handler != nullptr ? hosted::HandlerAccess::TokenOf(*handler) : hosted::kPreferredToken;
	return B_OK;
}

} // namespace


BMessenger::BMessenger(const char* signature, team_id team, status_t* result)
{
	const status_t status = SetTo(signature, team);
	if (result != nullptr)
		*result = status;
}


BMessenger::BMessenger(const BHandler* handler, const BLooper* looper, status_t* result)
{
	const status_t status = SetTo(handler, looper);
	if (result != nullptr)
		*result = status;
}


status_t
BMessenger::SetTo(const char* signature, team_id team)
{
	Address address;
	const status_t status = find_application(signature, team, &address);
	*this = MessengerAccess::Make(address);
	return status;
}


status_t
BMessenger::SetTo(const BHandler* handler, const BLooper* looper)
{
	Address address;
	const status_t status = find_handler(handler, looper, &address);
	*this = MessengerAccess::Make(address);
	return status;
}


bool
BMessenger::IsTargetLocal() const
{
	return fTeam == hosted::CurrentTeam();
}


BHandler*
BMessenger::Target(BLooper** looper) const
{
	if (looper != nullptr)
		*looper = nullptr;
	if (!IsTargetLocal())
		return nullptr;
	const std::shared_ptr<hosted::LooperCore> core = Registry::Get().LooperAt(fPort);
	if (core == nullptr)
		return nullptr;
	if (looper != nullptr)
		*looper = core->looper;
	if (fToken == hosted::kPreferredToken)
		return nullptr;
	return Registry::Get().HandlerIn(fToken, core->looper);
}


bool
BMessenger::LockTarget() const
{
	return LockTargetWithTimeout(B_INFINITE_TIMEOUT) == B_OK;
}


status_t
BMessenger::LockTargetWithTimeout(bigtime_t timeout) const
{
	if (!IsTargetLocal())
		return B_BAD_VALUE;
	const std::shared_ptr<hosted::LooperCore> core = Registry::Get().LooperAt(fPort);
	return core != nullptr ? core->Lock(timeout) : B_BAD_VALUE;
}


status_t
BMessenger::SendMessage(uint32 command, BHandler* replyTo) const
{
	BMessage message(command);
	return SendMessage(&message, replyTo);
}


status_t
BMessenger::SendMessage(BMessage* message, BHandler* replyTo, bigtime_t timeout) const
{
	return SendMessage(message, BMessenger(replyTo), timeout);
}


status_t
BMessenger::SendMessage(BMessage* message, BMessenger replyTo, bigtime_t timeout) const
{
	if (message == nullptr)
		return B_BAD_VALUE;
	return hosted::SendCopy(MessengerAccess::AddressOf(*this), *message,
		MessengerAccess::AddressOf(replyTo), timeout, hosted::Way::kPort);
}


status_t
BMessenger::SendMessage(uint32 command, BMessage* reply) const
{
	BMessage message(command);
	return SendMessage(&message, reply);
}


status_t
BMessenger::SendMessage(BMessage* message, BMessage* reply, bigtime_t deliveryTimeout,
	bigtime_t replyTimeout) const
{
	if (message == nullptr || reply == nullptr)
		return B_BAD_VALUE;
	return hosted::SendCopyAndWait(MessengerAccess::AddressOf(*this), *message, reply,
		deliveryTimeout, replyTimeout);
}


bool
BMessenger::IsValid() const
{
	if (fTeam < 0 || fPort < 0)
		return false;
	if (IsTargetLocal())
		return Registry::Get().HasPort(fPort);
	return hosted::IsTeamAlive(fTeam);
}


bool
BMessenger::operator==(const BMessenger& other) const
{
	return fTeam == other.fTeam && fPort == other.fPort && fToken == other.fToken;
}


bool
BMessenger::operator<(const BMessenger& other) const
{
	return std::tie(fTeam, fPort, fToken) < std::tie(other.fTeam, other.fPort, other.fToken);
}
