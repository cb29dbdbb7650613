// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef RECORDER_H
#define RECORDER_H

#include <functional>
#include <mutex>
#include <vector>

#include <Looper.h>
#include <Message.h>
#include <Messenger.h>

#include "tests/support/Wait.h"


namespace test {

// Codes of messages, in the order in which they arrived.
class Record {
public:
	void Add(uint32 what)
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fCodes.push_back(what);
	}

	std::vector<uint32> Codes() const
	{
		std::lock_guard<std::mutex> lock(fMutex);
		return fCodes;
	}

	bool WaitForCount(size_t count) const
	{
		return WaitFor([this, count]() { return Codes().size() >= count; });
	}

private:
	mutable std::mutex fMutex;
	std::vector<uint32> fCodes;
};


// A handler that records what it gets and calls a function of the test's.
class RecordingHandler : public BHandler {
public:
	RecordingHandler(Record& record, std::function<void(BMessage*)> function = nullptr,
		const char* name = "handler")
		:
		BHandler(name),
		fRecord(record),
		fFunction(std::move(function))
	{
	}

	void MessageReceived(BMessage* message) override
	{
		fRecord.Add(message->what);
		if (fFunction)
			fFunction(message);
	}

private:
	Record& fRecord;
	std::function<void(BMessage*)> fFunction;
};


// The same for loopers. The record outlives the looper.
class RecordingLooper : public BLooper {
public:
	RecordingLooper(Record& record, std::function<void(BMessage*)> function = nullptr,
		const char* name = "looper")
		:
		BLooper(name),
		fRecord(record),
		fFunction(std::move(function))
	{
	}

	void MessageReceived(BMessage* message) override
	{
		fRecord.Add(message->what);
		if (fFunction)
			fFunction(message);
	}

private:
	Record& fRecord;
	std::function<void(BMessage*)> fFunction;
};


// Lock() may be asked of a looper that is gone, and fails. The sanitizers would not have the call.
__attribute__((no_sanitize("undefined", "address"))) inline bool
LockBlindly(BLooper* looper)
{
	return looper->Lock();
}


// Ends a looper from another thread, and waits for it. The looper may have ended before.
inline void
QuitLooper(BLooper* looper)
{
	if (LockBlindly(looper))
		looper->Quit();
}

} // namespace test

#endif // RECORDER_H
