// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TIMERS_H
#define TIMERS_H

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>

#include <Message.h>
#include <OS.h>

#include "platform/app/Transport.h"


namespace hosted {

/*!	All messages that are sent again and again, from one thread that waits for the next one.

	The thread runs as long as there are timers.
*/
class Timers {
public:
	// Lives as long as the process.
	static Timers& Get();

	// A count below 0 means for ever. Returns the timer's number.
	int64 Add(const Address& target, const BMessage& message, const Address& replyTo,
		bigtime_t interval, int32 count);
	// Nothing is sent any more when this returns.
	void Remove(int64 timer);

	status_t SetInterval(int64 timer, bigtime_t interval);
	status_t SetCount(int64 timer, int32 count);
	status_t GetInfo(int64 timer, bigtime_t* interval, int32* count);

private:
	struct Timer {
		Address target;
		Address replyTo;
		BMessage message;
		bigtime_t interval;
		bigtime_t due;
		int32 count;
	};

	Timers() = default;

	void _StartThread();
	void _Run();
	// The timer that is to be sent first, or the end of the list.
	std::map<int64, std::shared_ptr<Timer>>::iterator _First();
	void _Fire(std::unique_lock<std::mutex>& lock, int64 number, std::shared_ptr<Timer> timer);

private:
	std::mutex fMutex;
	std::condition_variable fChanged;
	std::map<int64, std::shared_ptr<Timer>> fTimers;
	int64 fLastNumber = 0;
	// The timer whose message is being sent, 0 for none.
	int64 fFiring = 0;
	bool fRunning = false;
};

} // namespace hosted

#endif // TIMERS_H
