// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MESSAGE_RUNNER_H
#define MESSAGE_RUNNER_H

#include <Messenger.h>
#include <OS.h>
#include <SupportDefs.h>


// Sends a message again and again, the first time after one interval. A negative count: without
// end.
class BMessageRunner {
public:
	BMessageRunner(BMessenger target, const BMessage* message, bigtime_t interval,
		int32 count = -1);
	BMessageRunner(BMessenger target, const BMessage& message, bigtime_t interval,
		int32 count = -1);
	BMessageRunner(BMessenger target, const BMessage* message, bigtime_t interval, int32 count,
		BMessenger replyTo);
	BMessageRunner(BMessenger target, const BMessage& message, bigtime_t interval, int32 count,
		BMessenger replyTo);
	virtual ~BMessageRunner();
	BMessageRunner(const BMessageRunner&) = delete;
	BMessageRunner& operator=(const BMessageRunner&) = delete;

	status_t InitCheck() const;

	status_t SetInterval(bigtime_t interval);
	status_t SetCount(int32 count);
	status_t GetInfo(bigtime_t* interval, int32* count) const;

private:
	status_t _Start(const BMessenger& target, const BMessage* message, bigtime_t interval,
		int32 count, const BMessenger& replyTo);

private:
	int64 fTimer = 0;
	status_t fStatus;
};

#endif // MESSAGE_RUNNER_H
