// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/Registry.h"

#include <algorithm>

#include <AppDefs.h>
#include <Errors.h>

#include "platform/app/Deadline.h"
#include "platform/app/Delivery.h"
#include "platform/app/Threads.h"


namespace hosted {

ReplySlot::ReplySlot(int32 port, team_id answerer)
	:
	fPort(port),
	fAnswerer(answerer)
{
}


status_t
ReplySlot::Put(BMessage* reply)
{
	std::unique_ptr<BMessage> owned(reply);
	std::lock_guard<std::mutex> lock(fMutex);
	if (fTaken)
		return B_DUPLICATE_REPLY;
	fTaken = true;
	fReply = std::move(owned);
	fArrived.notify_all();
	return B_OK;
}


void
ReplySlot::GiveUp()
{
	Put(new BMessage(B_NO_REPLY));
}


status_t
ReplySlot::Wait(BMessage* reply, bigtime_t timeout)
{
	std::unique_ptr<BMessage> arrived;
	{
		std::unique_lock<std::mutex> lock(fMutex);
		const bool came
			= WaitUntil(fArrived, lock, DeadlineAfter(timeout), [this]() { return fTaken; });
		// What comes later is refused.
		fTaken = true;
		if (!came)
			return timeout <= 0 ? B_WOULD_BLOCK : B_TIMED_OUT;
		arrived = std::move(fReply);
	}
	TakeDelivered(*arrived, reply);
	return B_OK;
}


Registry&
Registry::Get()
{
	static Registry* sRegistry = new Registry;
	return *sRegistry;
}


int32
Registry::AddHandler(BHandler* handler)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const int32 token = fNextToken++;
	fHandlers[token] = {handler, nullptr};
	return token;
}


void
Registry::RemoveHandler(int32 token)
{
	std::lock_guard<std::mutex> lock(fMutex);
	fHandlers.erase(token);
}


void
Registry::SetLooper(int32 token, BLooper* looper)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fHandlers.find(token);
	if (found != fHandlers.end())
		found->second.looper = looper;
}


BHandler*
Registry::HandlerIn(int32 token, const BLooper* looper)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fHandlers.find(token);
	if (found == fHandlers.end() || found->second.looper != looper)
		return nullptr;
	return found->second.handler;
}


bool
Registry::AddressOf(int32 token, Address* address)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fHandlers.find(token);
	if (found == fHandlers.end())
		return false;
	const auto core = fByLooper.find(found->second.looper);
	if (core == fByLooper.end())
		return false;
	address->team = CurrentTeam();
	address->port = core->second->port;
	address->token = token;
	return true;
}


std::shared_ptr<LooperCore>
Registry::AddLooper(BLooper* looper, int32 port, int32 token, int32 capacity)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const int32 number = port < 0 ? fNextPort++ : port;
	std::shared_ptr<LooperCore> core
		= std::make_shared<LooperCore>(looper, number, token, capacity);
	fLoopers.push_back(core);
	fByPort[number] = core;
	fByLooper[looper] = core;
	return core;
}


void
Registry::RemoveLooper(const LooperCore& core)
{
	// Released after the mutex.
	std::shared_ptr<LooperCore> removed;
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = std::find_if(fLoopers.begin(), fLoopers.end(),
		[&core](const std::shared_ptr<LooperCore>& other) { return other.get() == &core; });
	if (found == fLoopers.end())
		return;
	removed = *found;
	fLoopers.erase(found);
	fByPort.erase(core.port);
	fByLooper.erase(core.looper);
}


std::shared_ptr<LooperCore>
Registry::LooperAt(int32 port)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fByPort.find(port);
	return found != fByPort.end() ? found->second : nullptr;
}


std::shared_ptr<LooperCore>
Registry::LooperFor(const BLooper* looper)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fByLooper.find(looper);
	return found != fByLooper.end() ? found->second : nullptr;
}


std::shared_ptr<LooperCore>
Registry::LooperForThread(thread_id thread)
{
	std::lock_guard<std::mutex> lock(fMutex);
	for (const std::shared_ptr<LooperCore>& core : fLoopers) {
		if (core->thread == thread)
			return core;
	}
	return nullptr;
}


std::vector<std::shared_ptr<LooperCore>>
Registry::Loopers()
{
	std::lock_guard<std::mutex> lock(fMutex);
	return fLoopers;
}


void
Registry::SetWindow(const BLooper* looper, BWindow* window, bool listed)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fByLooper.find(looper);
	if (found == fByLooper.end())
		return;
	found->second->window = window;
	found->second->listed = listed;
	if (window != nullptr)
		found->second->wasWindow = true;
}


std::vector<std::shared_ptr<LooperCore>>
Registry::Windows(bool listedOnly)
{
	std::lock_guard<std::mutex> lock(fMutex);
	std::vector<std::shared_ptr<LooperCore>> windows;
	for (const std::shared_ptr<LooperCore>& core : fLoopers) {
		if (core->window != nullptr && (core->listed || !listedOnly))
			windows.push_back(core);
	}
	return windows;
}


BWindow*
Registry::WindowAt(int32 index)
{
	if (index < 0)
		return nullptr;
	std::lock_guard<std::mutex> lock(fMutex);
	for (const std::shared_ptr<LooperCore>& core : fLoopers) {
		if (core->window != nullptr && core->listed && index-- == 0)
			return core->window;
	}
	return nullptr;
}


void
Registry::ThreadStarts(const std::shared_ptr<LooperCore>& core)
{
	std::lock_guard<std::mutex> lock(fMutex);
	fWithThread.push_back(core);
}


void
Registry::ThreadEnded(const LooperCore& core)
{
	std::shared_ptr<LooperCore> removed;
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = std::find_if(fWithThread.begin(), fWithThread.end(),
		[&core](const std::shared_ptr<LooperCore>& other) { return other.get() == &core; });
	if (found == fWithThread.end())
		return;
	removed = *found;
	fWithThread.erase(found);
}


std::vector<std::shared_ptr<LooperCore>>
Registry::WindowThreads()
{
	std::lock_guard<std::mutex> lock(fMutex);
	std::vector<std::shared_ptr<LooperCore>> windows;
	for (const std::shared_ptr<LooperCore>& core : fWithThread) {
		if (core->wasWindow)
			windows.push_back(core);
	}
	return windows;
}


std::shared_ptr<ReplySlot>
Registry::AddReplySlot(team_id answerer)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const int32 port = fNextPort++;
	std::shared_ptr<ReplySlot> slot = std::make_shared<ReplySlot>(port, answerer);
	fReplySlots[port] = slot;
	return slot;
}


void
Registry::RemoveReplySlot(const ReplySlot& slot)
{
	std::lock_guard<std::mutex> lock(fMutex);
	fReplySlots.erase(slot.Port());
}


std::shared_ptr<ReplySlot>
Registry::ReplySlotAt(int32 port)
{
	std::lock_guard<std::mutex> lock(fMutex);
	const auto found = fReplySlots.find(port);
	return found != fReplySlots.end() ? found->second : nullptr;
}


std::vector<std::shared_ptr<ReplySlot>>
Registry::ReplySlotsFor(team_id answerer)
{
	std::lock_guard<std::mutex> lock(fMutex);
	std::vector<std::shared_ptr<ReplySlot>> slots;
	for (const auto& entry : fReplySlots) {
		if (entry.second->Answerer() == answerer)
			slots.push_back(entry.second);
	}
	return slots;
}


bool
Registry::HasPort(int32 port)
{
	std::lock_guard<std::mutex> lock(fMutex);
	return fByPort.count(port) != 0 || fReplySlots.count(port) != 0;
}

} // namespace hosted
