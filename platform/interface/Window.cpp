// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The window's life, its views and its messages.
#include <Window.h>

#include <AppDefs.h>
#include <Application.h>
#include <Autolock.h>
#include <Button.h>
#include <InterfaceDefs.h>
#include <MessageQueue.h>
#include <Messenger.h>

#include "platform/app/Debugger.h"
#include "platform/interface/MenuTracking.h"
#include "platform/interface/ViewPrivate.h"
#include "platform/interface/WindowHost.h"
#include "platform/screen/DisplayThread.h"
#include "platform/screen/NativeWindow.h"


BWindow::BWindow(BRect frame, const char* title, window_type type, uint32 flags, uint32 workspace)
	:
	BLooper(title, B_DISPLAY_PRIORITY)
{
	_Init(frame, title, flags, workspace);
	SetType(type);
}


BWindow::BWindow(BRect frame, const char* title, window_look look, window_feel feel, uint32 flags,
	uint32 workspace)
	:
	BLooper(title, B_DISPLAY_PRIORITY)
{
	_Init(frame, title, flags, workspace);
	SetLook(look);
	SetFeel(feel);
}


void
BWindow::_Init(BRect frame, const char* title, uint32 flags, uint32 workspaces)
{
	if (be_app == nullptr)
		hosted::Debugger("A window needs a BApplication.");
	fHost = std::make_unique<hosted::WindowHost>(this, frame, title);
	fHost->fFlags = flags | B_ASYNCHRONOUS_CONTROLS;
	fHost->fWorkspaces = workspaces;
	fHost->_RequestLook();
	_SetWindow(this, true);
}


// The derived parts are gone. Whoever waited for the lock has been refused by now; the views are
// deleted with it held.
BWindow::~BWindow()
{
	_SetWindow(nullptr, false);
	hosted::CloseMenusOf(this);
	// The views' hooks may still ask things of the window.
	hosted::DetachRoot(fHost->Root());
	fHost.reset();
}


void
BWindow::Quit()
{
	while (!IsHidden())
		Hide();
	if ((Flags() & B_QUIT_ON_WINDOW_CLOSE) != 0)
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	BLooper::Quit();
}


void
BWindow::Close()
{
	Quit();
}


bool
BWindow::QuitRequested()
{
	return BLooper::QuitRequested();
}


thread_id
BWindow::Run()
{
	return BLooper::Run();
}


void
BWindow::Show()
{
	if (!Lock())
		return;
	fHost->fHideLevel--;
	if (fHost->fHideLevel == 0)
		fHost->_SetVisible();
	const bool isRunning = _IsRunning();
	Unlock();
	// The lock that this gives up is the one of the construction.
	if (!isRunning)
		Run();
}


void
BWindow::Hide()
{
	BAutolock lock(this);
	if (!lock.IsLocked())
		return;
	fHost->fHideLevel++;
	if (fHost->fHideLevel == 1)
		fHost->_SetVisible();
}


bool
BWindow::IsHidden() const
{
	return fHost->_IsHidden();
}


// The views.


void
BWindow::AddChild(BView* child, BView* before)
{
	BAutolock lock(this);
	fHost->Root().AddChild(child, before);
}


bool
BWindow::RemoveChild(BView* child)
{
	BAutolock lock(this);
	return fHost->Root().RemoveChild(child);
}


int32
BWindow::CountChildren() const
{
	return fHost->Root().CountChildren();
}


BView*
BWindow::ChildAt(int32 index) const
{
	return fHost->Root().ChildAt(index);
}


BView*
BWindow::FindView(const char* viewName) const
{
	BAutolock lock(const_cast<BWindow*>(this));
	return fHost->Root().FindView(viewName);
}


BView*
BWindow::FindView(BPoint point) const
{
	BAutolock lock(const_cast<BWindow*>(this));
	return hosted::ViewAt(fHost->Root(), point);
}


BView*
BWindow::CurrentFocus() const
{
	return hosted::FocusView(fHost->Root());
}


BView*
BWindow::LastMouseMovedView() const
{
	return fHost->fPointerView;
}


void
BWindow::SetDefaultButton(BButton* button)
{
	BAutolock lock(this);
	BButton* before = DefaultButton();
	if (button == before)
		return;
	fHost->fDefaultButton = button;
	if (before != nullptr)
		before->MakeDefault(false);
	if (button != nullptr)
		button->MakeDefault(true);
}


BButton*
BWindow::DefaultButton() const
{
	return static_cast<BButton*>(fHost->fDefaultButton);
}


// Messages.


void
BWindow::_BatchDone()
{
	fHost->_PaintPending();
}


BHandler*
BWindow::_TargetFor(BMessage* message, BHandler* target, bool)
{
	return fHost->_TargetFor(*message, target);
}


void
BWindow::DispatchMessage(BMessage* message, BHandler* handler)
{
	if (handler == this && _DispatchOwn(message))
		return;
	if (message == fHost->fKeyMessage) {
		fHost->fKeyMessage = nullptr;
		if (message->what == B_KEY_DOWN && fHost->_HandleKeyDown(*message))
			return;
	}
	BLooper::DispatchMessage(message, handler);
}


// The messages that lead to a hook instead of MessageReceived().
bool
BWindow::_DispatchOwn(BMessage* message)
{
	switch (message->what) {
		case B_ZOOM:
			Zoom();
			return true;
		case B_MINIMIZE:
			Minimize(message->GetBool("minimize", true));
			return true;
		case B_WINDOW_MOVED:
		case B_WINDOW_RESIZED:
			_FrameMessage(message);
			return true;
		case B_WINDOW_ACTIVATED:
			_ActivationMessage(message);
			return true;
		case B_SCREEN_CHANGED:
			ScreenChanged(message->GetRect("frame", BRect()),
				static_cast<color_space>(message->GetInt32("mode", B_RGB32)));
			return true;
		case B_WORKSPACE_ACTIVATED:
			WorkspaceActivated(message->GetInt32("workspace", 0),
				message->GetBool("active", false));
			return true;
		case B_WORKSPACES_CHANGED:
			WorkspacesChanged(message->GetInt32("old", 0), message->GetInt32("new", 0));
			return true;
		case B_PULSE:
			hosted::PulseViews(fHost->Root());
			return true;
		case _UPDATE_:
			fHost->fWakePosted = false;
			fHost->_PaintPending();
			return true;
		default:
			return false;
	}
}


void
BWindow::_FrameMessage(BMessage* message)
{
	// Another program does not know where this window is.
	if (message->IsSourceRemote())
		return;
	// Only the last of several sizes counts; the program is told of them once.
	const bool isResize = message->what == B_WINDOW_RESIZED;
	if (isResize && MessageQueue()->FindMessage(B_WINDOW_RESIZED, 0) != nullptr)
		return;
	if (!fHost->_AdoptFrameMessage(*message))
		return;
	if (isResize)
		FrameResized(fHost->fFrame.Width(), fHost->fFrame.Height());
	else
		FrameMoved(message->GetPoint("where", fHost->fFrame.LeftTop()));
}


void
BWindow::_ActivationMessage(BMessage* message)
{
	const bool isActive = message->GetBool("active", false);
	if (isActive == fHost->fIsActive)
		return;
	fHost->fIsActive = isActive;
	WindowActivated(isActive);
	hosted::ActivateViews(fHost->Root(), isActive);
}


void
BWindow::MessageReceived(BMessage* message)
{
	if (!_AnswerProperty(message))
		BLooper::MessageReceived(message);
}


void
BWindow::AddShortcut(uint32 key, uint32 modifiers, BMessage* message)
{
	AddShortcut(key, modifiers, message, this);
}


void
BWindow::AddShortcut(uint32 key, uint32 modifiers, BMessage* message, BHandler* target)
{
	if (message == nullptr)
		return;
	RemoveShortcut(key, modifiers);
	BAutolock lock(this);
	fHost->_AddShortcut(key, modifiers, message, target);
}


void
BWindow::RemoveShortcut(uint32 key, uint32 modifiers)
{
	BAutolock lock(this);
	fHost->_RemoveShortcut(key, modifiers);
}


// Hooks that do nothing by themselves.


void
BWindow::FrameMoved(BPoint)
{
}


void
BWindow::FrameResized(float, float)
{
}


void
BWindow::WindowActivated(bool)
{
}


void
BWindow::WorkspacesChanged(uint32, uint32)
{
}


void
BWindow::WorkspaceActivated(int32, bool)
{
}


void
BWindow::ScreenChanged(BRect, color_space)
{
}


void
BWindow::MenusBeginning()
{
}


void
BWindow::MenusEnded()
{
}


// Updates and the pulse.


void
BWindow::UpdateIfNeeded()
{
	if (_IsOwnThread())
		fHost->_PaintPending();
}


void
BWindow::DisableUpdates()
{
	BAutolock lock(this);
	fHost->fUpdatesDisabled++;
}


void
BWindow::EnableUpdates()
{
	BAutolock lock(this);
	if (fHost->fUpdatesDisabled == 0)
		return;
	fHost->fUpdatesDisabled--;
	if (fHost->fUpdatesDisabled == 0 && !fHost->fPending.isEmpty())
		fHost->_WakeWindow();
}


void
BWindow::Flush() const
{
	BAutolock lock(const_cast<BWindow*>(this));
	fHost->Flush();
}


void
BWindow::Sync() const
{
	Flush();
	hosted::DisplayThread::Call([]() {});
}


void
BWindow::SetPulseRate(bigtime_t rate)
{
	BAutolock lock(this);
	const bool isRunning = fHost->fPulseRunner != nullptr;
	if (rate < 0 || (rate == fHost->fPulseRate && isRunning == (rate > 0)))
		return;
	fHost->fPulseRate = rate;
	if (rate == 0)
		fHost->fPulseRunner.reset();
	else if (isRunning)
		fHost->fPulseRunner->SetInterval(rate);
	else
		fHost->_StartPulse();
}


bigtime_t
BWindow::PulseRate() const
{
	return fHost->fPulseRate;
}
