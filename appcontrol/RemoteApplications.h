// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REMOTE_APPLICATIONS_H
#define REMOTE_APPLICATIONS_H

#include <vector>

#include <Messenger.h>
#include <Roster.h>

#include "appcontrol/RemoteCommands.h"


inline constexpr char kFileManagerSignature[] = "application/x-vnd.Be-TRAK";

// The running applications in the roster's order.
std::vector<app_info> RunningApplications();

// The running file manager; an invalid messenger if there is none.
BMessenger FileManager();

/*!	The windows of an application, by scripting it.

	The list is as long as the application answers in time; one that hangs is not asked again.
*/
std::vector<RemoteWindow> WindowsOf(const BMessenger& application);

// The window that says it is the active one; null if none does in time.
const RemoteWindow* FindActiveWindow(const std::vector<RemoteWindow>& windows);
void ActivateWindow(const RemoteWindow& window);

#endif // REMOTE_APPLICATIONS_H
