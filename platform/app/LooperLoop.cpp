// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The loop: how messages get into a looper, and from its queue to a handler.
#include <Looper.h>

#include <inttypes.h>
#include <memory>
#include <stdio.h>
#include <utility>

#include <AppDefs.h>
#include <Errors.h>
#include <Message.h>
#include <MessageQueue.h>
#include <Messenger.h>

#include "platform/app/Debugger.h"
#include "platform/app/Delivery.h"
#include "platform/app/Envelope.h"
#include "platform/app/Filters.h"
#include "platform/app/HandlerAccess.h"
#include "platform/app/LooperCore.h"
#include "platform/app/QueueState.h"
#include "platform/app/Registry.h"
#include "platform/app/Scripting.h"
#include "platform/app/Threads.h"

using hosted::Address;
using hosted::LooperCore;
using hosted::MessageAccess;
using hosted::Registry;


namespace {

// A window that never runs out of messages shows at least this often what they change.
constexpr bigtime_t kLongestBatch = 40000;

status_t
post(const LooperCore* core, BMessage* message, int32 token, BHandler* replyTo)
{
	if (message == nullptr)
		return B_BAD_VALUE;
	if (core == nullptr)
		return B_BAD_PORT_ID;
	Address target;
	target.team = hosted::CurrentTeam();
	target.port = core->port;
	target.token = token;
	return hosted::SendCopy(target, *message,
		hosted::MessengerAccess::AddressOf(BMessenger(replyTo)), 0, hosted::Way::kDirect);
}

} // namespace


status_t
BLooper::PostMessage(uint32 command)
{
	BMessage message(command);
	return PostMessage(&message);
}


status_t
BLooper::PostMessage(BMessage* message)
{
	const std::shared_ptr<LooperCore> core = Registry::Get().LooperFor(this);
	return post(core.get(), message, core != nullptr ? core->token : -1, nullptr);
}


status_t
BLooper::PostMessage(uint32 command, BHandler* handler, BHandler* replyTo)
{
	BMessage message(command);
	return PostMessage(&message, handler, replyTo);
}


status_t
BLooper::PostMessage(BMessage* message, BHandler* handler, BHandler* replyTo)
{
	if (handler != nullptr && handler->Looper() != this)
		return B_MISMATCHED_VALUES;
	const std::shared_ptr<LooperCore> core = Registry::Get().LooperFor(this);
	return post(core.get(), message,
		handler != nullptr ? hosted::HandlerAccess::TokenOf(*handler) : hosted::kPreferredToken,
		replyTo);
}


thread_id
BLooper::Run()
{
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling Run");
	const std::shared_ptr<LooperCore> core = fCore;
	if (core->running.exchange(true))
		hosted::Debugger("can't call BLooper::Run twice!");
	{
		std::lock_guard<std::mutex> lock(core->mutex);
		core->hasThread = true;
	}
	Registry::Get().ThreadStarts(core);

	// The thread waits for the lock before it touches the looper.
	const auto loop = [this, core]() {
		core->thread = hosted::CurrentThread();
		_RunLoop();
		core->BeginDying();
		delete this;
	};
	const auto ended = [core]() {
		core->running = false;
		core->thread = -1;
		Registry::Get().ThreadEnded(*core);
		core->Ended();
	};
	const thread_id thread = hosted::StartThread(Name(), loop, ended);
	if (thread < 0) {
		ended();
		return thread;
	}
	thread_id none = -1;
	core->thread.compare_exchange_strong(none, thread);
	Unlock();
	return thread;
}


void
BLooper::Loop()
{
	if (!IsLocked())
		hosted::Debugger("looper must be locked before calling Loop");
	if (fCore->running.exchange(true))
		hosted::Debugger("can't call BLooper::Loop twice!");
	fCore->thread = hosted::CurrentThread();
	fCore->UnlockFully();
	_RunLoop();
	fCore->running = false;
}


// Ends with the lock held. A dispatch may delete the looper and end the thread, so that nothing
// here may rely on coming back from it.
void
BLooper::_RunLoop()
{
	const std::shared_ptr<LooperCore> core = fCore;
	bigtime_t lastBatch = 0;
	while (true) {
		BMessage* message = hosted::QueueAccess::Take(core->queue, B_INFINITE_TIMEOUT);
		core->Lock(B_INFINITE_TIMEOUT);
		_DispatchNext(message);
		if (fTerminating)
			return;

		const bigtime_t now = system_time();
		if (core->queue.IsEmpty() || now - lastBatch > kLongestBatch) {
			_BatchDone();
			lastBatch = now;
		}
		core->Unlock();
	}
}


void
BLooper::_DispatchNext(BMessage* message)
{
	fLastMessage = message;
	BHandler* target = _FindTarget(message);
	if (target != nullptr && message->HasSpecifiers())
		target = _ResolveSpecifiers(message, target);
	if (target != nullptr)
		target = _ApplyFilters(message, target);
	if (target != nullptr)
		DispatchMessage(message, target);
	delete _FinishMessage();
}


BMessage*
BLooper::_FinishMessage()
{
	return std::exchange(fLastMessage, nullptr);
}


BHandler*
BLooper::_FindTarget(BMessage* message)
{
	const int32 token = MessageAccess::EnvelopeOf(*message).target;
	if (token == hosted::kPreferredToken)
		return _TargetFor(message, fPreferred != nullptr ? fPreferred : this, true);
	return _TargetFor(message, Registry::Get().HandlerIn(token, this), false);
}


BHandler*
BLooper::_ResolveSpecifiers(BMessage* message, BHandler* target)
{
	int32 index;
	BMessage specifier;
	int32 form;
	const char* property;
	while (message->GetCurrentSpecifier(&index, &specifier, &form, &property) == B_OK) {
		BHandler* resolved = target->ResolveSpecifier(message, index, &specifier, form, property);
		if (resolved == nullptr || resolved == target)
			return resolved;
		if (resolved->Looper() != this) {
			hosted::ReplyNotUnderstood(message, B_BAD_SCRIPT_SYNTAX,
				"The object belongs to another looper");
			return nullptr;
		}
		target = resolved;
	}
	return target;
}


BHandler*
BLooper::_ApplyFilters(BMessage* message, BHandler* target)
{
	target = hosted::ApplyFilters(fCommonFilters, message, target);
	// A target that a filter chose has filters, too.
	BHandler* asked = nullptr;
	while (target != nullptr && target != asked) {
		if (target->Looper() != this)
			hosted::Debugger("The filter's target handler must belong to the looper");
		asked = target;
		target = hosted::ApplyFilters(target->fFilters, message, target);
	}
	return target;
}


void
BLooper::DispatchMessage(BMessage* message, BHandler* handler)
{
	if (message->what == _QUIT_)
		fTerminating = true;
	else if (message->what == B_QUIT_REQUESTED && handler == this)
		_AnswerQuitRequest(message);
	else
		handler->MessageReceived(message);
}


void
BLooper::_AnswerQuitRequest(BMessage* message)
{
	// A looper that quits does not come back from Quit(); its destructor gives up the message. The
	// application does.
	const bool quits = QuitRequested();
	if (quits)
		Quit();
	if (!message->IsSourceWaiting())
		return;
	BMessage reply(B_REPLY);
	reply.AddBool("result", quits);
	reply.AddInt32("thread", Thread());
	message->SendReply(&reply);
}


void
BLooper::MessageReceived(BMessage* message)
{
	BHandler::MessageReceived(message);
}


BMessage*
BLooper::CurrentMessage() const
{
	return fLastMessage;
}


BMessage*
BLooper::DetachCurrentMessage()
{
	return _FinishMessage();
}


void
BLooper::Quit()
{
	if (!IsLocked()) {
		printf("ERROR - you must Lock a looper before calling Quit(), team=%" PRId32
			   ", looper=%s\n",
			Team(), Name() != nullptr ? Name() : "(null)");
	}
	if (!Lock())
		return;

	const std::shared_ptr<LooperCore> core = fCore;
	if (!core->running) {
		fTerminating = true;
		delete this;
		return;
	}
	if (_IsOwnThread()) {
		fTerminating = true;
		core->BeginDying();
		delete this;
		hosted::ExitThread();
	}

	PostMessage(_QUIT_);
	core->UnlockFully();
	core->WaitForEnd();
	hosted::JoinEndedThreads();
}


bool
BLooper::QuitRequested()
{
	return true;
}


BHandler*
BLooper::ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
	const char* property)
{
	return BHandler::ResolveSpecifier(message, index, specifier, what, property);
}


status_t
BLooper::GetSupportedSuites(BMessage* data)
{
	return BHandler::GetSupportedSuites(data);
}


void
BLooper::_BatchDone()
{
}


BHandler*
BLooper::_TargetFor(BMessage* message, BHandler* target, bool preferred)
{
	(void)message;
	(void)preferred;
	return target;
}


void
BLooper::_Deliver(BMessage* message)
{
	fOuterMessages.push_back(fLastMessage);
	_DispatchNext(message);
	fLastMessage = fOuterMessages.back();
	fOuterMessages.pop_back();
}


void
BLooper::_DispatchTo(BMessage* message, BHandler* handler)
{
	BHandler* target = _ApplyFilters(message, handler);
	if (target != nullptr)
		DispatchMessage(message, target);
}


bool
BLooper::_WaitForMessage(bigtime_t until)
{
	return hosted::QueueAccess::Wait(fCore->queue, until);
}


void
BLooper::_Wake()
{
	hosted::QueueAccess::Wake(fCore->queue);
}


bool
BLooper::_IsOwnThread() const
{
	return fCore->thread == hosted::CurrentThread();
}


bool
BLooper::_IsRunning() const
{
	return fCore->running;
}
