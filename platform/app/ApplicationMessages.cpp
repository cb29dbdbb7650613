// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// What the application does with its messages.
#include <Application.h>

#include <memory>
#include <vector>

#include <AppDefs.h>
#include <Errors.h>
#include <Message.h>
#include <PropertyInfo.h>
#include <Roster.h>

#include "platform/app/Delivery.h"
#include "platform/app/LooperCore.h"
#include "platform/app/Registry.h"
#include "platform/app/Scripting.h"

using hosted::LooperCore;
using hosted::Registry;

using Loopers = std::vector<std::shared_ptr<LooperCore>>;


namespace {

property_info sApplicationProperties[]
	= {{"Window", {}, {B_INDEX_SPECIFIER, B_REVERSE_INDEX_SPECIFIER, B_NAME_SPECIFIER}, nullptr, 0,
		   {}},
		{"Looper", {}, {B_INDEX_SPECIFIER, B_REVERSE_INDEX_SPECIFIER, B_NAME_SPECIFIER}, nullptr, 0,
			{}},
		{"Name", {B_GET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_STRING_TYPE}},
		{"Window", {B_COUNT_PROPERTIES}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
		{"Windows", {B_GET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_MESSENGER_TYPE}},
		{"Looper", {B_COUNT_PROPERTIES}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
		{"Loopers", {B_GET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_MESSENGER_TYPE}},
		{nullptr, {}, {}, nullptr, 0, {}}};

enum { kOneWindow, kOneLooper, kName, kWindowCount, kWindowList, kLooperCount, kLooperList };


// The looper itself, and not the handler that it prefers.
BMessenger
messenger_of(const LooperCore& core)
{
	hosted::Address address = hosted::ApplicationAddress();
	address.port = core.port;
	address.token = core.token;
	return hosted::MessengerAccess::Make(address);
}


std::shared_ptr<LooperCore>
looper_for(const Loopers& loopers, const BMessage& specifier)
{
	if (specifier.what == B_NAME_SPECIFIER) {
		const char* name = specifier.GetString("name", "");
		for (const std::shared_ptr<LooperCore>& core : loopers) {
			if (core->IsNamed(name))
				return core;
		}
		return nullptr;
	}

	const int32 count = static_cast<int32>(loopers.size());
	int32 index = specifier.GetInt32("index", -1);
	if (specifier.what == B_REVERSE_INDEX_SPECIFIER)
		index = count - index;
	return index >= 0 && index < count ? loopers[static_cast<size_t>(index)] : nullptr;
}


void
add_loopers(BMessage& reply, const Loopers& loopers)
{
	for (const std::shared_ptr<LooperCore>& core : loopers)
		reply.AddMessenger("result", messenger_of(*core));
}


bool
answer_property(const BApplication& application, BMessage* message)
{
	BMessage reply(B_REPLY);
	switch (hosted::MatchProperty(sApplicationProperties, message)) {
		case kName:
			reply.AddString("result", application.Name());
			break;
		case kWindowCount:
			reply.AddInt32("result", application.CountWindows());
			break;
		case kWindowList:
			add_loopers(reply, Registry::Get().Windows(true));
			break;
		case kLooperCount:
			reply.AddInt32("result", application.CountLoopers());
			break;
		case kLooperList:
			add_loopers(reply, Registry::Get().Loopers());
			break;
		default:
			return false;
	}
	reply.AddInt32("error", B_OK);
	message->SendReply(&reply);
	return true;
}

} // namespace


BHandler*
BApplication::ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
	const char* property)
{
	const BPropertyInfo properties(sApplicationProperties);
	const int32 match = properties.FindMatch(message, index, specifier, what, property);
	if (match < 0)
		return BLooper::ResolveSpecifier(message, index, specifier, what, property);
	if (match != kOneWindow && match != kOneLooper)
		return this;

	const bool isWindow = match == kOneWindow;
	const Loopers loopers = isWindow ? Registry::Get().Windows(true) : Registry::Get().Loopers();
	const std::shared_ptr<LooperCore> core = looper_for(loopers, *specifier);
	if (core == nullptr) {
		hosted::ReplyNotUnderstood(message, B_BAD_INDEX, "There is no such window or looper");
		return nullptr;
	}
	message->PopSpecifier();
	if (core->looper == this)
		return this;
	// The rest is the looper's own business, in its own thread.
	messenger_of(*core).SendMessage(message, static_cast<BHandler*>(nullptr), 0);
	return nullptr;
}


status_t
BApplication::GetSupportedSuites(BMessage* data)
{
	if (data == nullptr)
		return B_BAD_VALUE;
	const status_t status = data->AddString("suites", "suite/vnd.Be-application");
	return status == B_OK ? BLooper::GetSupportedSuites(data) : status;
}


void
BApplication::MessageReceived(BMessage* message)
{
	if (answer_property(*this, message))
		return;
	if (message->what == B_SILENT_RELAUNCH)
		be_roster->ActivateApp(Team());
	else
		BLooper::MessageReceived(message);
}


void
BApplication::DispatchMessage(BMessage* message, BHandler* handler)
{
	if (handler != this) {
		BLooper::DispatchMessage(message, handler);
		return;
	}
	switch (message->what) {
		case B_ARGV_RECEIVED:
			_ArgvReceived(message);
			break;
		case B_REFS_RECEIVED:
			RefsReceived(message);
			break;
		case B_READY_TO_RUN:
			if (fReadyToRunCalled)
				break;
			fReadyToRunCalled = true;
			ReadyToRun();
			break;
		case B_ABOUT_REQUESTED:
			AboutRequested();
			break;
		case B_PULSE:
			Pulse();
			break;
		case B_APP_ACTIVATED:
		{
			bool active;
			if (message->FindBool("active", &active) == B_OK)
				AppActivated(active);
			break;
		}
		case B_COLORS_UPDATED:
			break;
		default:
			BLooper::DispatchMessage(message, handler);
			break;
	}
}


void
BApplication::_ArgvReceived(BMessage* message)
{
	int32 count = 0;
	if (message->GetInfo("argv", nullptr, &count) != B_OK || count <= 0)
		return;
	std::vector<char*> words;
	for (int32 i = 0; i < count; i++)
		words.push_back(const_cast<char*>(message->GetString("argv", i, "")));
	words.push_back(nullptr);
	ArgvReceived(count, words.data());
}


void
BApplication::Pulse()
{
}


void
BApplication::ReadyToRun()
{
}


void
BApplication::ArgvReceived(int32 argc, char** argv)
{
	(void)argc;
	(void)argv;
}


void
BApplication::AppActivated(bool active)
{
	(void)active;
}


void
BApplication::RefsReceived(BMessage* message)
{
	(void)message;
}


void
BApplication::AboutRequested()
{
}
