// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REGISTRY_H
#define REGISTRY_H

#include <condition_variable>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include <Message.h>
#include <OS.h>
#include <SupportDefs.h>

#include "platform/app/LooperCore.h"
#include "platform/app/Transport.h"

class BHandler;
class BLooper;


namespace hosted {

/*!	Where the answer to one synchronous message arrives.

	It has a port like a looper, so that the answer finds its way from anywhere.
*/
class ReplySlot {
public:
	ReplySlot(int32 port, team_id answerer);

	int32 Port() const { return fPort; }
	team_id Answerer() const { return fAnswerer; }

	// Takes the message over. Only the first one counts.
	status_t Put(BMessage* reply);
	// Wakes the waiting thread, with B_NO_REPLY.
	void GiveUp();
	// B_TIMED_OUT or B_WOULD_BLOCK if nothing came.
	status_t Wait(BMessage* reply, bigtime_t timeout);

private:
	const int32 fPort;
	const team_id fAnswerer;
	std::mutex fMutex;
	std::condition_variable fArrived;
	std::unique_ptr<BMessage> fReply;
	bool fTaken = false;
};


/*!	All handlers, loopers and expected replies of the process, by number.

	Numbers are never used again. Its mutex is held for look-ups only: nothing is called while it
	is.
*/
class Registry {
public:
	// Lives as long as the process.
	static Registry& Get();

	int32 AddHandler(BHandler* handler);
	void RemoveHandler(int32 token);
	void SetLooper(int32 token, BLooper* looper);
	// The handler of that number if it belongs to the looper.
	BHandler* HandlerIn(int32 token, const BLooper* looper);
	// Where the handler of that number is reached; false if it is gone or in no looper.
	bool AddressOf(int32 token, Address* address);

	// A port below 0 asks for a new one.
	std::shared_ptr<LooperCore> AddLooper(BLooper* looper, int32 port, int32 token, int32 capacity);
	void RemoveLooper(const LooperCore& core);
	std::shared_ptr<LooperCore> LooperAt(int32 port);
	// The looper may be gone.
	std::shared_ptr<LooperCore> LooperFor(const BLooper* looper);
	std::shared_ptr<LooperCore> LooperForThread(thread_id thread);
	// In the order in which they were made.
	std::vector<std::shared_ptr<LooperCore>> Loopers();

	void SetWindow(const BLooper* looper, BWindow* window, bool listed);
	std::vector<std::shared_ptr<LooperCore>> Windows(bool listedOnly);
	BWindow* WindowAt(int32 index);

	// The loopers with a thread, from its start to its end; those that became windows stay windows
	// here while they die.
	void ThreadStarts(const std::shared_ptr<LooperCore>& core);
	void ThreadEnded(const LooperCore& core);
	std::vector<std::shared_ptr<LooperCore>> WindowThreads();

	std::shared_ptr<ReplySlot> AddReplySlot(team_id answerer);
	void RemoveReplySlot(const ReplySlot& slot);
	std::shared_ptr<ReplySlot> ReplySlotAt(int32 port);
	std::vector<std::shared_ptr<ReplySlot>> ReplySlotsFor(team_id answerer);

	bool HasPort(int32 port);

private:
	Registry() = default;

private:
	struct HandlerPlace {
		BHandler* handler;
		BLooper* looper;
	};

	std::mutex fMutex;
	int32 fNextToken = 1;
	int32 fNextPort = kApplicationPort + 1;
	std::unordered_map<int32, HandlerPlace> fHandlers;
	std::vector<std::shared_ptr<LooperCore>> fLoopers;
	std::vector<std::shared_ptr<LooperCore>> fWithThread;
	std::unordered_map<int32, std::shared_ptr<LooperCore>> fByPort;
	std::unordered_map<const BLooper*, std::shared_ptr<LooperCore>> fByLooper;
	std::unordered_map<int32, std::shared_ptr<ReplySlot>> fReplySlots;
};

} // namespace hosted

#endif // REGISTRY_H
