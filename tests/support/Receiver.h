// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef RECEIVER_H
#define RECEIVER_H

#include <mutex>
#include <vector>

#include <Looper.h>
#include <Message.h>

#include "tests/support/Wait.h"


namespace test {

/*!	A running looper that keeps what it gets. End it with Lock() and Quit().
 */
class Receiver : public BLooper {
public:
	Receiver()
		:
		BLooper("receiver")
	{
		Run();
	}

	void MessageReceived(BMessage* message) override
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fMessages.push_back(*message);
	}

	std::vector<BMessage> Messages() const
	{
		std::lock_guard<std::mutex> lock(fMutex);
		return fMessages;
	}

	bool WaitForMessages(size_t count) const
	{
		return WaitFor([this, count]() { return Messages().size() >= count; });
	}

	// Whether nothing but the given number has come, once all that is queued has been handled.
	bool HasOnly(size_t count)
	{
		PostMessage('last');
		const bool came = WaitFor([this]() {
			const std::vector<BMessage> messages = Messages();
			return !messages.empty() && messages.back().what == 'last';
		});
		std::lock_guard<std::mutex> lock(fMutex);
		if (came)
			fMessages.pop_back();
		return came && fMessages.size() == count;
	}

private:
	mutable std::mutex fMutex;
	std::vector<BMessage> fMessages;
};

} // namespace test

#endif // RECEIVER_H
