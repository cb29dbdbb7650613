// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "appcontrol/RemoteApplications.h"

#include <algorithm>

#include <stdint.h>

#include <AppDefs.h>
#include <List.h>
#include <Message.h>
#include <Path.h>

#include "appcontrol/RemotePlayers.h"


namespace {

constexpr char kFileManagerPath[] = "/system/Tracker";

// An application that tells of windows without end, or takes its time for each, is cut short.
constexpr int32 kMostWindows = 256;
constexpr bigtime_t kListLimit = 10000000;

} // namespace


std::vector<app_info>
RunningApplications()
{
	BList teams;
	be_roster->GetAppList(&teams);
	std::vector<app_info> applications;
	for (int32 index = 0; index < teams.CountItems(); index++) {
		const team_id team = static_cast<team_id>(reinterpret_cast<intptr_t>(teams.ItemAt(index)));
		app_info info;
		if (be_roster->GetRunningAppInfo(team, &info) == B_OK)
			applications.push_back(info);
	}
	return applications;
}


BMessenger
FileManager()
{
	for (const app_info& application : RunningApplications()) {
		const BPath path(&application.ref);
		const BString text(path.InitCheck() == B_OK ? path.Path() : "");
		if (text.EndsWith(kFileManagerPath))
			return BMessenger(application.signature, application.team);
	}
	return BMessenger(kFileManagerSignature);
}


static status_t
ask(const BMessenger& target, BMessage* request, BMessage* reply)
{
	return target.SendMessage(request, reply, kDeliveryLimit, kReplyLimit);
}


static status_t
ask_window(const BMessenger& application, int32 index, const char* property, BMessage* reply)
{
	BMessage request(B_GET_PROPERTY);
	request.AddSpecifier(property);
	request.AddSpecifier("Window", index);
	return ask(application, &request, reply);
}


std::vector<RemoteWindow>
WindowsOf(const BMessenger& application)
{
	std::vector<RemoteWindow> windows;
	BMessage request(B_COUNT_PROPERTIES);
	request.AddSpecifier("Window");
	BMessage reply;
	int32 count;
	if (ask(application, &request, &reply) != B_OK || reply.FindInt32("result", &count) != B_OK)
		return windows;

	const bigtime_t start = system_time();
	count = std::min(count, kMostWindows);
	for (int32 index = 0; index < count && system_time() - start < kListLimit; index++) {
		RemoteWindow window;
		if (ask_window(application, index, "Title", &reply) != B_OK)
			break;
		reply.FindString("result", &window.title);
		if (ask_window(application, index, "Messenger", &reply) != B_OK)
			break;
		// One that was closed meanwhile has none.
		if (reply.FindMessenger("result", &window.messenger) == B_OK)
			windows.push_back(window);
	}
	return windows;
}


const RemoteWindow*
FindActiveWindow(const std::vector<RemoteWindow>& windows)
{
	const bigtime_t start = system_time();
	for (const RemoteWindow& window : windows) {
		BMessage request(B_GET_PROPERTY);
		request.AddSpecifier("Active");
		BMessage reply;
		const status_t status = ask(window.messenger, &request, &reply);
		if (status == B_OK && reply.GetBool("result", false))
			return &window;
		// A closed window is no reason to give up, one that hangs is.
		if (status == B_TIMED_OUT || system_time() - start > kListLimit)
			return nullptr;
	}
	return nullptr;
}


void
ActivateWindow(const RemoteWindow& window)
{
	BMessage request(B_SET_PROPERTY);
	request.AddSpecifier("Active");
	request.AddBool("data", true);
	window.messenger.SendMessage(&request, static_cast<BHandler*>(nullptr), kDeliveryLimit);
}
