// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// A looper's life, its handlers and its lock. The loop itself is in LooperLoop.cpp.
#include <Looper.h>

#include <algorithm>
#include <utility>

#include <Errors.h>
#include <List.h>
#include <Message.h>
#include <MessageFilter.h>
#include <MessageQueue.h>

#include "platform/app/Debugger.h"
#include "platform/app/Delivery.h"
#include "platform/app/Filters.h"
#include "platform/app/LooperCore.h"
#include "platform/app/QueueState.h"
#include "platform/app/Registry.h"
#include "platform/app/Threads.h"

using hosted::LooperCore;
using hosted::Registry;


BLooper::BLooper(const char* name, int32 priority, int32 portCapacity)
	:
	BHandler(name)
{
	_Init(priority, -1, portCapacity);
}


BLooper::BLooper(int32 priority, int32 port, const char* name)
	:
	BHandler(name)
{
	_Init(priority, port, B_LOOPER_PORT_DEFAULT_CAPACITY);
}


void
BLooper::_Init(int32 priority, int32 port, int32 capacity)
{
	fPriority = priority;
	fCore = Registry::Get().AddLooper(this, port, fToken, capacity > 0 ? capacity : 1);
	fCore->SetName(Name());
	fHandlers.push_back(this);
	fLooper = this;
	Registry::Get().SetLooper(fToken, this);
	fCore->Lock(B_INFINITE_TIMEOUT);
}


BLooper::~BLooper()
{
	if (fCore->running && !fTerminating)
		hosted::Debugger("You can't call delete on a BLooper object once it is running.");

	fCore->Lock(B_INFINITE_TIMEOUT);
	fCore->BeginDying();
	Registry::Get().RemoveLooper(*fCore);

	// Whoever waits for an answer to one of these learns that there will be none.
	for (BMessage* message : hosted::QueueAccess::Close(fCore->queue))
		delete message;
	delete fLastMessage;
	for (BMessage* message : fOuterMessages)
		delete message;

	for (BHandler* handler : fHandlers) {
		handler->fNextHandler = nullptr;
		Registry::Get().SetLooper(handler->fToken, nullptr);
		// From here on another thread may delete it.
		handler->fLooper = nullptr;
	}
	hosted::DeleteFilters(fCommonFilters);
	fCore->Dead();
}


BMessageQueue*
BLooper::MessageQueue() const
{
	return &fCore->queue;
}


bool
BLooper::IsMessageWaiting() const
{
	return !fCore->queue.IsEmpty();
}


void
BLooper::AddHandler(BHandler* handler)
{
	if (handler == nullptr)
		return;
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling AddHandler");
	if (handler->Looper() != nullptr)
		return;
	fHandlers.push_back(handler);
	handler->fLooper = this;
	Registry::Get().SetLooper(handler->fToken, this);
	if (handler != this)
		handler->SetNextHandler(this);
}


bool
BLooper::RemoveHandler(BHandler* handler)
{
	if (handler == nullptr)
		return false;
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling RemoveHandler");
	if (handler->Looper() != this || handler == this)
		return false;

	// Late comers leave first, mostly.
	const auto found = std::find(fHandlers.rbegin(), fHandlers.rend(), handler);
	if (found != fHandlers.rend())
		fHandlers.erase(std::next(found).base());
	if (handler == fPreferred)
		fPreferred = nullptr;
	handler->SetNextHandler(nullptr);
	handler->fLooper = nullptr;
	Registry::Get().SetLooper(handler->fToken, nullptr);
	return true;
}


int32
BLooper::CountHandlers() const
{
	return static_cast<int32>(fHandlers.size());
}


BHandler*
BLooper::HandlerAt(int32 index) const
{
	if (index < 0 || index >= CountHandlers())
		return nullptr;
	return fHandlers[static_cast<size_t>(index)];
}


int32
BLooper::IndexOf(BHandler* handler) const
{
	const auto found = std::find(fHandlers.begin(), fHandlers.end(), handler);
	return found != fHandlers.end() ? static_cast<int32>(found - fHandlers.begin()) : -1;
}


BHandler*
BLooper::PreferredHandler() const
{
	return fPreferred;
}


void
BLooper::SetPreferredHandler(BHandler* handler)
{
	fPreferred = handler != nullptr && handler->Looper() == this ? handler : nullptr;
}


// The lock's methods may be called on a looper that is being deleted or gone: they look it up and
// touch none of its fields.
// Looks the looper up by its address alone: it may be gone.
static status_t
lock_if_alive(const BLooper* looper, bigtime_t timeout)
{
	const std::shared_ptr<LooperCore> core = Registry::Get().LooperFor(looper);
	return core != nullptr ? core->Lock(timeout) : B_BAD_VALUE;
}


bool
BLooper::Lock()
{
	return lock_if_alive(this, B_INFINITE_TIMEOUT) == B_OK;
}


status_t
BLooper::LockWithTimeout(bigtime_t timeout)
{
	return lock_if_alive(this, timeout);
}


void
BLooper::Unlock()
{
	const std::shared_ptr<LooperCore> core = Registry::Get().LooperFor(this);
	if (core != nullptr)
		core->Unlock();
}


bool
BLooper::IsLocked() const
{
	const std::shared_ptr<LooperCore> core = Registry::Get().LooperFor(this);
	return core != nullptr && core->IsLockedByCaller();
}


thread_id
BLooper::LockingThread() const
{
	std::lock_guard<std::mutex> lock(fCore->mutex);
	return fCore->holder;
}


int32
BLooper::CountLocks() const
{
	std::lock_guard<std::mutex> lock(fCore->mutex);
	return fCore->holds;
}


int32
BLooper::CountLockRequests() const
{
	std::lock_guard<std::mutex> lock(fCore->mutex);
	return fCore->waiting + (fCore->holds > 0 ? 1 : 0);
}


thread_id
BLooper::Thread() const
{
	return fCore->thread;
}


team_id
BLooper::Team() const
{
	return hosted::CurrentTeam();
}


BLooper*
BLooper::LooperForThread(thread_id thread)
{
	const std::shared_ptr<LooperCore> core
		= thread >= 0 ? Registry::Get().LooperForThread(thread) : nullptr;
	return core != nullptr ? core->looper : nullptr;
}


void
BLooper::AddCommonFilter(BMessageFilter* filter)
{
	if (filter == nullptr)
		return;
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling AddCommonFilter");
	if (fCommonFilters == nullptr)
		fCommonFilters = new BList;
	filter->fLooper = this;
	fCommonFilters->AddItem(filter);
}


bool
BLooper::RemoveCommonFilter(BMessageFilter* filter)
{
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling RemoveCommonFilter");
	if (fCommonFilters == nullptr || !fCommonFilters->RemoveItem(static_cast<void*>(filter)))
		return false;
	filter->fLooper = nullptr;
	return true;
}


void
BLooper::SetCommonFilterList(BList* filters)
{
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling SetCommonFilterList");
	hosted::DeleteFilters(fCommonFilters);
	fCommonFilters = filters;
	for (int32 i = 0; filters != nullptr && i < filters->CountItems(); i++)
		static_cast<BMessageFilter*>(filters->ItemAt(i))->fLooper = this;
}


BList*
BLooper::CommonFilterList() const
{
	return fCommonFilters;
}


void
BLooper::_SetWindow(BWindow* window, bool listed)
{
	Registry::Get().SetWindow(this, window, listed);
}
