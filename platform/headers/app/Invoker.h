// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef INVOKER_H
#define INVOKER_H

#include <stddef.h>

#include <Messenger.h>
#include <OS.h>
#include <SupportDefs.h>

class BHandler;
class BLooper;
class BMessage;


// What has a message to send, and whom to.
class BInvoker {
public:
	BInvoker();
	// The invoker takes the message over.
	BInvoker(BMessage* message, const BHandler* handler, const BLooper* looper = NULL);
	BInvoker(BMessage* message, BMessenger target);
	virtual ~BInvoker();
	BInvoker(const BInvoker&) = delete;
	BInvoker& operator=(const BInvoker&) = delete;

	virtual status_t SetMessage(BMessage* message);
	BMessage* Message() const;
	uint32 Command() const;

	virtual status_t SetTarget(const BHandler* handler, const BLooper* looper = NULL);
	virtual status_t SetTarget(BMessenger target);
	bool IsTargetLocal() const;
	BHandler* Target(BLooper** looper = NULL) const;
	BMessenger Messenger() const;

	virtual status_t SetHandlerForReply(BHandler* handler);
	BHandler* HandlerForReply() const;

	virtual status_t Invoke(BMessage* message = NULL);

	status_t SetTimeout(bigtime_t timeout);
	bigtime_t Timeout() const;

private:
	BMessage* fMessage = NULL;
	BMessenger fMessenger;
	BHandler* fReplyTo = NULL;
	bigtime_t fTimeout = B_INFINITE_TIMEOUT;
};

#endif // INVOKER_H
