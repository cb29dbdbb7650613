// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MessageQueue.h>

#include <algorithm>
#include <utility>

#include <Errors.h>
#include <Message.h>

#include "platform/app/Deadline.h"
#include "platform/app/Envelope.h"
#include "platform/app/QueueState.h"


using hosted::QueueState;


namespace hosted {

bool
QueueState::IsHeldByOther() const
{
	return holds > 0 && holder != std::this_thread::get_id();
}


void
QueueState::WaitForHolder(std::unique_lock<std::mutex>& lock)
{
	changed.wait(lock, [this]() { return !IsHeldByOther(); });
}


void
QueueState::Removed(const BMessage* message)
{
	Envelope& envelope = MessageAccess::EnvelopeOf(*message);
	if (!envelope.throughPort)
		return;
	envelope.throughPort = false;
	throughPort--;
	changed.notify_all();
}


status_t
QueueAccess::Post(BMessageQueue& queue, BMessage* message, int32 capacity, bigtime_t timeout)
{
	QueueState& state = *queue.fState;
	status_t status = B_OK;
	{
		std::unique_lock<std::mutex> lock(state.mutex);
		state.WaitForHolder(lock);
		if (capacity > 0) {
			const auto hasRoom = [&state, capacity]() {
				return state.closed || (!state.IsHeldByOther() && state.throughPort < capacity);
			};
			if (!hasRoom() && timeout <= 0)
				status = B_WOULD_BLOCK;
			else if (!WaitUntil(state.changed, lock, DeadlineAfter(timeout), hasRoom))
				status = B_TIMED_OUT;
		}
		if (state.closed)
			status = B_BAD_PORT_ID;
		if (status == B_OK) {
			if (capacity > 0) {
				MessageAccess::EnvelopeOf(*message).throughPort = true;
				state.throughPort++;
			}
			state.messages.push_back(message);
			state.changed.notify_all();
			return B_OK;
		}
	}
	// The sender learns it from the status.
	MessageAccess::EnvelopeOf(*message).replyRequired = false;
	delete message;
	return status;
}


BMessage*
QueueAccess::Take(BMessageQueue& queue, bigtime_t until)
{
	QueueState& state = *queue.fState;
	std::unique_lock<std::mutex> lock(state.mutex);
	const auto hasMessage
		= [&state]() { return !state.IsHeldByOther() && !state.messages.empty(); };
	if (!WaitUntil(state.changed, lock, until, hasMessage))
		return nullptr;
	BMessage* message = state.messages.front();
	state.messages.pop_front();
	state.Removed(message);
	return message;
}


bool
QueueAccess::Wait(BMessageQueue& queue, bigtime_t until)
{
	QueueState& state = *queue.fState;
	std::unique_lock<std::mutex> lock(state.mutex);
	WaitUntil(state.changed, lock, until,
		[&state]() { return state.woken || (!state.IsHeldByOther() && !state.messages.empty()); });
	state.woken = false;
	return !state.messages.empty();
}


void
QueueAccess::Wake(BMessageQueue& queue)
{
	QueueState& state = *queue.fState;
	std::lock_guard<std::mutex> lock(state.mutex);
	state.woken = true;
	state.changed.notify_all();
}


std::deque<BMessage*>
QueueAccess::Close(BMessageQueue& queue)
{
	QueueState& state = *queue.fState;
	std::unique_lock<std::mutex> lock(state.mutex);
	state.WaitForHolder(lock);
	state.closed = true;
	state.throughPort = 0;
	std::deque<BMessage*> left;
	left.swap(state.messages);
	state.changed.notify_all();
	return left;
}

} // namespace hosted


BMessageQueue::BMessageQueue()
	:
	fState(new QueueState)
{
}


BMessageQueue::~BMessageQueue()
{
	for (BMessage* message : hosted::QueueAccess::Close(*this))
		delete message;
	delete fState;
}


void
BMessageQueue::AddMessage(BMessage* message)
{
	if (message == nullptr)
		return;
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	fState->messages.push_back(message);
	fState->changed.notify_all();
}


void
BMessageQueue::RemoveMessage(BMessage* message)
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	const auto found = std::find(fState->messages.begin(), fState->messages.end(), message);
	if (found == fState->messages.end())
		return;
	fState->messages.erase(found);
	fState->Removed(message);
}


int32
BMessageQueue::CountMessages() const
{
	std::lock_guard<std::mutex> lock(fState->mutex);
	return static_cast<int32>(fState->messages.size());
}


bool
BMessageQueue::IsEmpty() const
{
	return CountMessages() == 0;
}


BMessage*
BMessageQueue::FindMessage(int32 index) const
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	if (index < 0 || index >= static_cast<int32>(fState->messages.size()))
		return nullptr;
	return fState->messages[static_cast<size_t>(index)];
}


BMessage*
BMessageQueue::FindMessage(uint32 what, int32 index) const
{
	if (index < 0)
		return nullptr;
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	for (BMessage* message : fState->messages) {
		if (message->what == what && index-- == 0)
			return message;
	}
	return nullptr;
}


bool
BMessageQueue::Lock()
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	fState->holder = std::this_thread::get_id();
	fState->holds++;
	return true;
}


void
BMessageQueue::Unlock()
{
	std::lock_guard<std::mutex> lock(fState->mutex);
	if (fState->holds == 0 || fState->IsHeldByOther())
		return;
	if (--fState->holds == 0)
		fState->changed.notify_all();
}


bool
BMessageQueue::IsLocked() const
{
	std::lock_guard<std::mutex> lock(fState->mutex);
	return fState->holds > 0 && !fState->IsHeldByOther();
}


BMessage*
BMessageQueue::NextMessage()
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	if (fState->messages.empty())
		return nullptr;
	BMessage* message = fState->messages.front();
	fState->messages.pop_front();
	fState->Removed(message);
	return message;
}


bool
BMessageQueue::IsNextMessage(const BMessage* message) const
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->WaitForHolder(lock);
	return !fState->messages.empty() && fState->messages.front() == message;
}
