// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Handler.h>

#include <memory>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <AppDefs.h>
#include <Errors.h>
#include <List.h>
#include <Looper.h>
#include <Message.h>
#include <MessageFilter.h>
#include <Messenger.h>
#include <PropertyInfo.h>

#include "platform/app/Debugger.h"
#include "platform/app/Filters.h"
#include "platform/app/Registry.h"
#include "platform/app/Scripting.h"

using hosted::Registry;


namespace {

property_info sHandlerProperties[]
	= {{"Suites", {B_GET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {}},
		{"Messenger", {B_GET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_MESSENGER_TYPE}},
		{"InternalName", {B_GET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_STRING_TYPE}},
		{nullptr, {}, {}, nullptr, 0, {}}};

enum { kSuitesProperty, kMessengerProperty, kInternalNameProperty };

} // namespace


BHandler::BHandler(const char* name)
	:
	fToken(Registry::Get().AddHandler(this))
{
	SetName(name);
}


BHandler::~BHandler()
{
	// A looper that dies in another thread lets go of its handlers without being locked.
	while (Looper() != nullptr) {
		if (!LockLooper()) {
			snooze(1000);
			continue;
		}
		BLooper* looper = Looper();
		looper->RemoveHandler(this);
		looper->Unlock();
	}
	Registry::Get().RemoveHandler(fToken);
	hosted::DeleteFilters(fFilters);
	free(fName);
}


status_t
BHandler::Archive(BMessage* into, bool deep) const
{
	status_t status = BArchivable::Archive(into, deep);
	if (status == B_OK && fName != nullptr)
		status = into->AddString("_name", fName);
	return status;
}


void
BHandler::MessageReceived(BMessage* message)
{
	if (hosted::AnswerHandlerProperty(*this, message))
		return;

	BHandler* next = fNextHandler;
	if (next != nullptr) {
		BHandler* target = hosted::ApplyFilters(next->fFilters, message, next);
		if (target != nullptr)
			target->MessageReceived(message);
		return;
	}

	if (!message->WasDropped() && !message->HasSpecifiers())
		return;
	printf("BHandler %s: MessageReceived() couldn't understand the message:\n",
		fName != nullptr ? fName : "(null)");
	message->PrintToStream();
	message->SendReply(B_MESSAGE_NOT_UNDERSTOOD);
}


BLooper*
BHandler::Looper() const
{
	return fLooper;
}


void
BHandler::SetName(const char* name)
{
	char* copy = name != nullptr ? strdup(name) : nullptr;
	free(fName);
	fName = copy;
	if (fLooper != this)
		return;
	const std::shared_ptr<hosted::LooperCore> core = Registry::Get().LooperFor(fLooper);
	if (core != nullptr)
		core->SetName(name);
}


const char*
BHandler::Name() const
{
	return fName;
}


void
BHandler::SetNextHandler(BHandler* handler)
{
	BLooper* looper = Looper();
	if (looper == nullptr)
		hosted::Debugger("handler must belong to looper before setting NextHandler");
	if (!looper->IsLocked())
		hosted::Debugger("The handler's looper must be locked before setting NextHandler");
	if (handler != nullptr && handler->Looper() != looper)
		hosted::Debugger("The handler and its NextHandler must have the same looper");
	fNextHandler = handler;
}


BHandler*
BHandler::NextHandler() const
{
	return fNextHandler;
}


void
BHandler::AddFilter(BMessageFilter* filter)
{
	if (filter == nullptr)
		return;
	if (fFilters == nullptr)
		fFilters = new BList;
	filter->fLooper = Looper();
	fFilters->AddItem(filter);
}


bool
BHandler::RemoveFilter(BMessageFilter* filter)
{
	if (fFilters == nullptr || !fFilters->RemoveItem(static_cast<void*>(filter)))
		return false;
	filter->fLooper = nullptr;
	return true;
}


void
BHandler::SetFilterList(BList* filters)
{
	hosted::DeleteFilters(fFilters);
	fFilters = filters;
	for (int32 i = 0; filters != nullptr && i < filters->CountItems(); i++)
		static_cast<BMessageFilter*>(filters->ItemAt(i))->fLooper = Looper();
}


BList*
BHandler::FilterList()
{
	return fFilters;
}


bool
BHandler::LockLooper()
{
	return LockLooperWithTimeout(B_INFINITE_TIMEOUT) == B_OK;
}


status_t
BHandler::LockLooperWithTimeout(bigtime_t timeout)
{
	BLooper* looper = Looper();
	if (looper == nullptr)
		return B_BAD_VALUE;
	const std::shared_ptr<hosted::LooperCore> core = Registry::Get().LooperFor(looper);
	const status_t status = core != nullptr ? core->Lock(timeout) : B_BAD_VALUE;
	if (status != B_OK)
		return status;
	if (Looper() == looper)
		return B_OK;
	// The handler went elsewhere in the meantime.
	core->Unlock();
	return B_MISMATCHED_VALUES;
}


void
BHandler::UnlockLooper()
{
	BLooper* looper = Looper();
	if (looper != nullptr)
		looper->Unlock();
}


BHandler*
BHandler::ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
	const char* property)
{
	BPropertyInfo properties(sHandlerProperties);
	if (properties.FindMatch(message, index, specifier, what, property) >= 0)
		return this;

	hosted::ReplyNotUnderstood(message, B_BAD_SCRIPT_SYNTAX, "Didn't understand the specifier(s)");
	return nullptr;
}


status_t
BHandler::GetSupportedSuites(BMessage* data)
{
	if (data == nullptr)
		return B_BAD_VALUE;
	return data->AddString("suites", "suite/vnd.Be-handler");
}


status_t
BHandler::Perform(perform_code code, void* argument)
{
	return BArchivable::Perform(code, argument);
}


namespace hosted {

namespace {

status_t
add_property(BHandler& handler, int32 property, BMessage& reply)
{
	switch (property) {
		case kSuitesProperty:
			return handler.GetSupportedSuites(&reply);
		case kMessengerProperty:
			return reply.AddMessenger("result", BMessenger(&handler));
		default:
			return reply.AddString("result", handler.Name() != nullptr ? handler.Name() : "");
	}
}

} // namespace


bool
AnswerHandlerProperty(BHandler& handler, BMessage* message)
{
	int32 property;
	int32 specifier = -1;
	message->GetCurrentSpecifier(&specifier);
	if (message->what == B_GET_SUPPORTED_SUITES)
		property = kSuitesProperty;
	else if (message->what != B_GET_PROPERTY)
		return false;
	else if (specifier < 0)
		property = kMessengerProperty;
	else
		property = MatchProperty(sHandlerProperties, message);
	if (property < 0)
		return false;

	BMessage reply(B_REPLY);
	const status_t status = add_property(handler, property, reply);
	reply.AddInt32("error", status);
	message->SendReply(&reply);
	return true;
}

} // namespace hosted
