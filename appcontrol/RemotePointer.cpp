// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The pointer and the caller's own windows.
#include "appcontrol/RemoteCommands.h"

#include <math.h>
#include <stdio.h>

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <Message.h>
#include <Messenger.h>
#include <OS.h>
#include <Rect.h>
#include <Roster.h>
#include <Screen.h>
#include <String.h>
#include <StringView.h>
#include <View.h>
#include <Window.h>
#include <WindowScreen.h>

#include "appcontrol/RemoteKeys.h"
#include "appcontrol/RemotePlayers.h"
#include "appcontrol/RemoteViews.h"
#include "settings/Helpers.h"


namespace {

constexpr float kStep = 20;
constexpr float kLongStep = 100;
// How long the desktop may take to move the pointer.
constexpr bigtime_t kPointerLimit = 200000;

struct Click {
	int32 buttons;
	int32 count;
};

} // namespace


// False for keys that move nothing.
static bool
step_for(long key, BPoint* step)
{
	switch (key) {
		case kRemoteLouder:
			*step = BPoint(0, -kStep);
			return true;
		case kRemoteSofter:
			*step = BPoint(0, kStep);
			return true;
		case kRemotePrevious:
			*step = BPoint(-kStep, 0);
			return true;
		case kRemoteNext:
			*step = BPoint(kStep, 0);
			return true;
		case kRemotePageUp:
			*step = BPoint(0, -kLongStep);
			return true;
		case kRemotePageDown:
			*step = BPoint(0, kLongStep);
			return true;
		default:
			return false;
	}
}


// False for keys that click nothing.
static bool
click_for(long key, Click* click)
{
	switch (key) {
		case kRemotePlay:
			*click = {B_PRIMARY_MOUSE_BUTTON, 1};
			return true;
		case kRemoteLaunch:
			*click = {B_PRIMARY_MOUSE_BUTTON, 2};
			return true;
		case kRemoteStop:
			*click = {B_SECONDARY_MOUSE_BUTTON, 1};
			return true;
		default:
			return false;
	}
}


static void
move_pointer(BPoint where)
{
	const BRect screen = BScreen().Frame();
	if (!isfinite(where.x) || !isfinite(where.y) || !screen.IsValid()) {
		printf("Mouse-oops\n");
		return;
	}
	where.ConstrainTo(screen);
	where.Set(floorf(where.x), floorf(where.y));
	set_mouse_position(static_cast<int32>(where.x), static_cast<int32>(where.y));

	const bigtime_t start = system_time();
	do {
		// A desktop that keeps the place for itself may tell any.
		BPoint now;
		if (get_mouse(&now, nullptr) == B_OK && fabsf(now.x - where.x) < 1
			&& fabsf(now.y - where.y) < 1)
			return;
		snooze(5000);
	} while (system_time() - start < kPointerLimit);
	printf(" the desktop does not let the pointer be moved\n");
}


static void
send_button(const BMessenger& target, uint32 what, const Click& click, BPoint where)
{
	BMessage message(what);
	message.AddInt64("when", system_time());
	message.AddInt32("clicks", click.count);
	message.AddInt32("buttons", what == B_MOUSE_DOWN ? click.buttons : 0);
	message.AddInt32("modifiers", 0);
	message.AddPoint("screen_where", where);
	target.SendMessage(&message, static_cast<BHandler*>(nullptr), kDeliveryLimit);
}


static void
send_click(const Click& click, BPoint where)
{
	BString signature;
	const BMessenger target = GetLastRosterMessenger(nullptr, &signature);
	if (!target.IsValid()) {
		printf(" oops - nobody for the click\n");
		return;
	}
	if (IsSelf(signature.String(), target.Team())) {
		printf(" no click on myself\n");
		return;
	}
	send_button(target, B_MOUSE_DOWN, click, where);
	send_button(target, B_MOUSE_UP, click, where);
}


static bool
lies_in(BPoint where, BWindow* window)
{
	if (window == nullptr || window->LockWithTimeout(kDeliveryLimit) != B_OK)
		return false;
	const bool isInside = !window->IsHidden() && window->Frame().Contains(where);
	window->Unlock();
	return isInside;
}


static void
show_active_application(BStringView* name)
{
	app_info active;
	const char* text = be_roster->GetActiveAppInfo(&active) == B_OK ? active.ref.name : nullptr;
	if (text != nullptr)
		WithView(name, [text](BStringView& view) { view.SetText(text); });
}


void
IMoveWindow(long key, BWindow* window)
{
	BPoint step;
	if (window == nullptr || !step_for(key, &step)
		|| window->LockWithTimeout(kDeliveryLimit) != B_OK) {
		printf("Mouse-oops\n");
		return;
	}
	window->MoveTo(window->Frame().LeftTop() + step);
	window->Unlock();
}


void
IMoveMouse(BPoint where, long key, BView* view, BStringView* name, BWindow* window)
{
	WithView(view, [&where](BView& own) { own.ConvertToScreen(&where); });
	BPoint step;
	Click click;
	KeyPress press;
	if (step_for(key, &step))
		move_pointer(where + step);
	else if (click_for(key, &click)) {
		if (lies_in(where, window))
			printf(" no click on myself\n");
		else
			send_click(click, where);
	} else if (KeyPressFor(key, &press)) {
		PressKeyInLastApplication(press, key);
	}
	show_active_application(name);
}
