// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Which view gets the keys, the pointer and what is dropped.
#include "platform/interface/WindowHost.h"

#include <algorithm>
#include <ctype.h>
#include <math.h>

#include <AppDefs.h>
#include <Application.h>
#include <InterfaceDefs.h>
#include <MessageQueue.h>
#include <Messenger.h>
#include <View.h>

#include "platform/app/Delivery.h"
#include "platform/app/HandlerAccess.h"
#include "platform/app/Registry.h"
#include "platform/interface/InputFields.h"
#include "platform/interface/ViewPrivate.h"
#include "platform/screen/NativeWindow.h"


namespace hosted {

namespace {

// A click this far from the one before starts to count anew.
constexpr float kClickDistance = 4;
// Moves of the pointer that waited longer are passed over by who polls it, in microseconds.
constexpr bigtime_t kOldMove = 10000;

constexpr uint32 kShortcutModifiers
	= B_SHIFT_KEY | B_COMMAND_KEY | B_CONTROL_KEY | B_OPTION_KEY | B_MENU_KEY;


bool
is_pointer_message(const BMessage& message)
{
	return message.what == B_MOUSE_DOWN || message.what == B_MOUSE_UP
		|| message.what == B_MOUSE_MOVED;
}


bool
is_old_move(const BMessage& message)
{
	return message.what == B_MOUSE_MOVED && system_time() - message.GetInt64("when", 0) > kOldMove;
}


// Takes the oldest message about the pointer out of the queue. The caller owns it.
BMessage*
take_pointer_message(BMessageQueue& queue)
{
	BMessage* found = nullptr;
	queue.Lock();
	for (int32 index = 0; found == nullptr;) {
		BMessage* message = queue.FindMessage(index);
		if (message == nullptr)
			break;
		if (!is_pointer_message(*message) || !message->HasPoint("screen_where")) {
			index++;
			continue;
		}
		queue.RemoveMessage(message);
		if (is_old_move(*message))
			delete message;
		else
			found = message;
	}
	queue.Unlock();
	return found;
}

} // namespace


BHandler*
WindowHost::_TargetFor(BMessage& message, BHandler* target)
{
	// These are the window's own, whichever view they were sent to.
	if (message.what == B_QUIT_REQUESTED || message.what == B_PULSE)
		return fWindow;
	// Other programs cannot speak for the desktop.
	if (message.IsSourceRemote())
		message.RemoveName(kInputKind);
	int32 kind;
	if (message.FindInt32(kInputKind, &kind) != B_OK) {
		// The handler that it was sent to is gone.
		return target == nullptr ? fWindow : target;
	}
	if (kind == kInputFrame)
		return fWindow;
	message.RemoveName(kInputKind);
	if (kind == kInputKey)
		return _TargetForKey(message);
	if (kind == kInputDrop)
		return _TargetForDrop(message);
	if (message.what == B_MOUSE_WHEEL_CHANGED)
		return _TargetForWheel(message);
	return _TargetForPointer(message);
}


BHandler*
WindowHost::_TargetForKey(BMessage& message)
{
	if (fMaskView != nullptr && (fMask & B_KEYBOARD_EVENTS) != 0 && fMaskView != FocusView(*fRoot))
		fWindow->_DispatchTo(&message, fMaskView);
	fKeyMessage = &message;
	BView* view = FocusView(*fRoot);
	if (message.what == B_KEY_DOWN && fDefaultButton != nullptr
		&& message.GetInt8("byte", 0) == B_ENTER)
		view = fDefaultButton;
	return view == nullptr ? static_cast<BHandler*>(fWindow) : view;
}


BView*
WindowHost::_ViewUnder(const BMessage& message) const
{
	if (message.HasBool(kInputOutside))
		return nullptr;
	return ViewAt(*fRoot, message.GetPoint(kInputWhere, B_ORIGIN));
}


BHandler*
WindowHost::_TargetForPointer(BMessage& message)
{
	const BPoint where = message.GetPoint(kInputWhere, B_ORIGIN);
	fTargetView = _ViewUnder(message);
	message.RemoveName(kInputWhere);
	message.RemoveName(kInputOutside);
	if (message.what == B_MOUSE_DOWN)
		_CountClick(message, fTargetView);
	else if (message.what == B_MOUSE_MOVED)
		_EndMouseEventMask(message);

	// Hooks may take views away: ViewDetached() keeps the pointers true.
	BView* const left = fPointerView;
	const bool hasEntered = left != fTargetView;
	fPointerView = fTargetView;
	if (message.what == B_MOUSE_MOVED && left != nullptr && hasEntered)
		_SendPointerTo(message, *left, where, B_EXITED_VIEW);
	if (fMaskView != nullptr && (fMask & B_POINTER_EVENTS) != 0 && fMaskView != fTargetView
		&& !(fMaskView == left && message.what == B_MOUSE_MOVED))
		_SendPointerTo(message, *fMaskView, where, B_OUTSIDE_VIEW);
	if (message.what == B_MOUSE_UP)
		_EndMouseEventMask(message);
	if (fTargetView == nullptr)
		return nullptr;

	const BPoint viewWhere = FromHost(*fTargetView, where);
	message.AddPoint("be:view_where", viewWhere);
	message.AddPoint("where", message.what == B_MOUSE_MOVED ? where : viewWhere);
	if (message.what == B_MOUSE_MOVED)
		message.AddInt32("be:transit", hasEntered ? B_ENTERED_VIEW : B_INSIDE_VIEW);
	return fTargetView;
}


void
WindowHost::_SendPointerTo(const BMessage& message, BView& view, BPoint where, int32 transit)
{
	BMessage copy(message);
	const BPoint viewWhere = FromHost(view, where);
	copy.AddPoint("be:view_where", viewWhere);
	copy.AddPoint("where", copy.what == B_MOUSE_MOVED ? where : viewWhere);
	if (copy.what == B_MOUSE_MOVED)
		copy.AddInt32("be:transit", transit);
	fWindow->_DispatchTo(&copy, &view);
}


void
WindowHost::_CountClick(BMessage& message, BView* view)
{
	bigtime_t speed = 0;
	get_click_speed(&speed);
	Clicks click;
	click.view = view;
	click.where = message.GetPoint("screen_where", B_ORIGIN);
	click.when = message.GetInt64("when", 0);
	click.button = message.GetInt32("buttons", 0);
	click.modifiers = message.GetInt32("modifiers", 0) & kShortcutModifiers;
	const bool continues = click.view == fClicks.view && click.button == fClicks.button
		&& click.modifiers == fClicks.modifiers && click.when - fClicks.when <= speed
		&& fabsf(click.where.x - fClicks.where.x) < kClickDistance
		&& fabsf(click.where.y - fClicks.where.y) < kClickDistance;
	click.count = continues ? fClicks.count + 1 : 1;
	fClicks = click;
	message.AddInt32("clicks", click.count);
}


// The release itself may have gone to a menu.
void
WindowHost::_EndMouseEventMask(const BMessage& message)
{
	if (message.GetInt32("buttons", 0) != 0)
		return;
	fMaskView = nullptr;
	fMask = 0;
}


BHandler*
WindowHost::_TargetForWheel(BMessage& message)
{
	BView* view = fPointerView == nullptr ? _ViewUnder(message) : fPointerView;
	message.RemoveName(kInputWhere);
	return view == nullptr ? static_cast<BHandler*>(fWindow) : view;
}


BHandler*
WindowHost::_TargetForDrop(BMessage& message)
{
	BView* view = _ViewUnder(message);
	const BPoint where = message.GetPoint(kInputWhere, B_ORIGIN);
	message.RemoveName(kInputWhere);
	if (message.what == B_SIMPLE_DATA)
		message.AddPoint("click_pt", view == nullptr ? where : FromHost(*view, where));
	return view == nullptr ? static_cast<BHandler*>(fWindow) : view;
}


bool
WindowHost::GetMouse(BPoint* hostWhere, uint32* buttons, bool checkMessageQueue)
{
	BPoint screenWhere;
	uint32 pressed = 0;
	std::unique_ptr<BMessage> message;
	if (checkMessageQueue) {
		_PaintPending();
		message.reset(take_pointer_message(*fWindow->MessageQueue()));
	}
	if (message != nullptr) {
		screenWhere = message->GetPoint("screen_where", B_ORIGIN);
		pressed = message->GetInt32("buttons", 0);
		_EndMouseEventMask(*message);
	} else if (get_mouse(&screenWhere, &pressed) != B_OK) {
		return false;
	}
	if (hostWhere != nullptr)
		*hostWhere = screenWhere - fFrame.LeftTop();
	if (buttons != nullptr)
		*buttons = pressed;
	return true;
}


// Only a press starts it, as a release ends it.
void
WindowHost::SetMouseEventMask(BView& view, uint32 mask, uint32)
{
	const BMessage* message = fWindow->CurrentMessage();
	if (message == nullptr || message->what != B_MOUSE_DOWN)
		return;
	fMaskView = mask == 0 ? nullptr : &view;
	fMask = mask;
}


// The desktop draws nothing for it: the views under the pointer are told with each move.
void
WindowHost::DragMessage(BView& view, BMessage& message, BRect rect, BHandler* replyTo)
{
	BPoint screenWhere;
	uint32 buttons = 0;
	get_mouse(&screenWhere, &buttons);
	if (buttons == 0)
		return;
	const BPoint where = FromHost(view, screenWhere - fFrame.LeftTop());
	fNative->StartDrag({message, where - rect.LeftTop(), BMessenger(replyTo)});
}


// Keys that the window itself understands. True if the message needs no further handling.
bool
WindowHost::_HandleKeyDown(const BMessage& message)
{
	const uint32 modifiers = message.GetInt32("modifiers", 0) & kShortcutModifiers;
	const uint32 key = tolower(message.GetInt32("raw_char", 0));
	if ((fFlags & B_CLOSE_ON_ESCAPE) != 0 && modifiers == 0 && key == B_ESCAPE) {
		fWindow->PostMessage(B_QUIT_REQUESTED);
		return true;
	}
	// Leads from window to window, which is the desktop's business.
	if ((modifiers & B_CONTROL_KEY) != 0 && key == B_TAB)
		return true;
	if (key == B_TAB && (modifiers & ~B_SHIFT_KEY) == 0)
		return _MoveFocus(modifiers == 0);
	if ((modifiers & B_COMMAND_KEY) == 0)
		return false;
	if (message.HasInt32("be:key_repeat") || _InvokeShortcut(message, key, modifiers))
		return true;
	if (key == 'q' && modifiers == B_COMMAND_KEY && be_app != nullptr)
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	return true;
}


bool
WindowHost::_InvokeShortcut(const BMessage& message, uint32 key, uint32 modifiers)
{
	for (const Shortcut& shortcut : fShortcuts) {
		if (shortcut.key != key || shortcut.modifiers != modifiers)
			continue;
		BMessage copy(*shortcut.message);
		copy.AddInt64("when", message.GetInt64("when", 0));
		Address address;
		if (shortcut.target == kNoTarget) {
			BView* const focus = FocusView(*fRoot);
			BMessenger(focus == nullptr ? static_cast<BHandler*>(fWindow) : focus)
				.SendMessage(&copy);
		} else if (Registry::Get().AddressOf(shortcut.target, &address))
			MessengerAccess::Make(address).SendMessage(&copy);
		return true;
	}
	return false;
}


void
WindowHost::_AddShortcut(uint32 key, uint32 modifiers, BMessage* message, BHandler* target)
{
	Shortcut shortcut;
	shortcut.key = tolower(key);
	shortcut.modifiers = (modifiers & kShortcutModifiers) | B_COMMAND_KEY;
	shortcut.message.reset(message);
	shortcut.target = target == nullptr ? kNoTarget : HandlerAccess::TokenOf(*target);
	fShortcuts.push_back(std::move(shortcut));
}


void
WindowHost::_RemoveShortcut(uint32 key, uint32 modifiers)
{
	key = tolower(key);
	modifiers = (modifiers & kShortcutModifiers) | B_COMMAND_KEY;
	fShortcuts.erase(std::remove_if(fShortcuts.begin(), fShortcuts.end(),
						 [=](const Shortcut& shortcut) {
							 return shortcut.key == key && shortcut.modifiers == modifiers;
						 }),
		fShortcuts.end());
}


// Leads from the view that the keyboard can reach, and that has the focus or holds the view that
// has it, to the next one or the one before, around the ends. False if the focus is elsewhere.
bool
WindowHost::_MoveFocus(bool forward)
{
	const BView* focus = FocusView(*fRoot);
	if (focus == nullptr)
		return false;
	const std::vector<BView*> views = NavigableViews(*fRoot);
	const auto found = std::find_if(views.begin(), views.end(),
		[focus](const BView* view) { return IsInTree(*view, *focus); });
	if (found == views.end())
		return false;
	const size_t step = forward ? 1 : views.size() - 1;
	views[(found - views.begin() + step) % views.size()]->MakeFocus(true);
	return true;
}

} // namespace hosted
