// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Invoker.h>

#include <Errors.h>
#include <Message.h>


BInvoker::BInvoker()
{
}


BInvoker::BInvoker(BMessage* message, const BHandler* handler, const BLooper* looper)
	:
	fMessage(message),
	fMessenger(handler, looper)
{
}


BInvoker::BInvoker(BMessage* message, BMessenger target)
	:
	fMessage(message),
	fMessenger(target)
{
}


BInvoker::~BInvoker()
{
	delete fMessage;
}


status_t
BInvoker::SetMessage(BMessage* message)
{
	if (message != fMessage) {
		delete fMessage;
		fMessage = message;
	}
	return B_OK;
}


BMessage*
BInvoker::Message() const
{
	return fMessage;
}


uint32
BInvoker::Command() const
{
	return fMessage != nullptr ? fMessage->what : 0;
}


status_t
BInvoker::SetTarget(const BHandler* handler, const BLooper* looper)
{
	return fMessenger.SetTo(handler, looper);
}


status_t
BInvoker::SetTarget(BMessenger target)
{
	fMessenger = target;
	return B_OK;
}


bool
BInvoker::IsTargetLocal() const
{
	return fMessenger.IsTargetLocal();
}


BHandler*
BInvoker::Target(BLooper** looper) const
{
	return fMessenger.Target(looper);
}


BMessenger
BInvoker::Messenger() const
{
	return fMessenger;
}


status_t
BInvoker::SetHandlerForReply(BHandler* handler)
{
	fReplyTo = handler;
	return B_OK;
}


BHandler*
BInvoker::HandlerForReply() const
{
	return fReplyTo;
}


status_t
BInvoker::Invoke(BMessage* message)
{
	BMessage* sent = message != nullptr ? message : fMessage;
	if (sent == nullptr)
		return B_BAD_VALUE;
	return fMessenger.SendMessage(sent, fReplyTo, fTimeout);
}


status_t
BInvoker::SetTimeout(bigtime_t timeout)
{
	fTimeout = timeout;
	return B_OK;
}


bigtime_t
BInvoker::Timeout() const
{
	return fTimeout;
}
