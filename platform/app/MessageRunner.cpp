// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MessageRunner.h>

#include <Errors.h>
#include <Message.h>

#include "platform/app/Delivery.h"
#include "platform/app/Timers.h"

using hosted::MessengerAccess;
using hosted::Timers;


BMessageRunner::BMessageRunner(BMessenger target, const BMessage* message, bigtime_t interval,
	int32 count)
	:
	fStatus(_Start(target, message, interval, count, BMessenger()))
{
}


BMessageRunner::BMessageRunner(BMessenger target, const BMessage& message, bigtime_t interval,
	int32 count)
	:
	fStatus(_Start(target, &message, interval, count, BMessenger()))
{
}


BMessageRunner::BMessageRunner(BMessenger target, const BMessage* message, bigtime_t interval,
	int32 count, BMessenger replyTo)
	:
	fStatus(_Start(target, message, interval, count, replyTo))
{
}


BMessageRunner::BMessageRunner(BMessenger target, const BMessage& message, bigtime_t interval,
	int32 count, BMessenger replyTo)
	:
	fStatus(_Start(target, &message, interval, count, replyTo))
{
}


BMessageRunner::~BMessageRunner()
{
	if (fStatus == B_OK)
		Timers::Get().Remove(fTimer);
}


status_t
BMessageRunner::_Start(const BMessenger& target, const BMessage* message, bigtime_t interval,
	int32 count, const BMessenger& replyTo)
{
	if (message == nullptr || interval <= 0 || count == 0 || !target.IsValid())
		return B_BAD_VALUE;
	fTimer = Timers::Get().Add(MessengerAccess::AddressOf(target), *message,
		MessengerAccess::AddressOf(replyTo), interval, count);
	return B_OK;
}


status_t
BMessageRunner::InitCheck() const
{
	return fStatus;
}


status_t
BMessageRunner::SetInterval(bigtime_t interval)
{
	if (fStatus != B_OK)
		return fStatus;
	return interval > 0 ? Timers::Get().SetInterval(fTimer, interval) : B_BAD_VALUE;
}


status_t
BMessageRunner::SetCount(int32 count)
{
	if (fStatus != B_OK)
		return fStatus;
	return count != 0 ? Timers::Get().SetCount(fTimer, count) : B_BAD_VALUE;
}


status_t
BMessageRunner::GetInfo(bigtime_t* interval, int32* count) const
{
	return fStatus == B_OK ? Timers::Get().GetInfo(fTimer, interval, count) : fStatus;
}
