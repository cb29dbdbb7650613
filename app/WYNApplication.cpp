// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "app/WYNApplication.h"

#include <stdio.h>

#include <Message.h>
#include <Messenger.h>
#include <OS.h>
#include <Rect.h>

#include "window/MediaWindow.h"
#include "window/WindowCommands.h"


static constexpr char kSignature[] = "application/x-vnd.kv-VinyloH";


WYNApplication::WYNApplication()
	:
	BApplication(kSignature)
{
	// The window replaces this frame with the one that it had last.
	const BRect frame(260, 40, 660, 600);
	fWindow = new MEDIA_Window(frame);
	fWindow->Show();
}


void
WYNApplication::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case kMsgCloseWindow:
		case kMsgHideTitleTab:
		case kMsgToggleTitleTab:
		case kMsgShowTitleTab:
		case kMsgRemoteKey:
		case kMsgLanguageChanged:
			_Forward(message);
			break;
		case kMsgWindowGone:
			_ForgetWindow();
			break;
		case B_COUNT_PROPERTIES:
		case B_GET_PROPERTY:
		case B_REPLY:
			break;
		case kMsgKeyDump:
		case B_KEY_DOWN:
		case B_KEY_UP:
			message->PrintToStream();
			break;
		default:
			_HandleUnknown(message);
			break;
	}
}


void
WYNApplication::_HandleUnknown(BMessage* message)
{
	printf("WYN_App ");
	message->PrintToStream();
	BApplication::MessageReceived(message);
}


void
WYNApplication::_Forward(BMessage* message)
{
	if (fWindow == nullptr)
		return;
	const BMessenger window(fWindow);
	window.SendMessage(message, static_cast<BHandler*>(nullptr), B_INFINITE_TIMEOUT);
}


void
WYNApplication::_ForgetWindow()
{
	fWindow = nullptr;
	printf(" MMF-abgemeldet\n");
	be_app_messenger.SendMessage(B_QUIT_REQUESTED);
}
