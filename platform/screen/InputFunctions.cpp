// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The global functions for the state of keyboard, pointer and workspaces.
#include <QCursor>
#include <QGuiApplication>

#include <InterfaceDefs.h>
#include <OS.h>
#include <WindowScreen.h>

#include "platform/screen/DisplayThread.h"
#include "platform/screen/InputState.h"
#include "platform/screen/Workspaces.h"


status_t
get_key_info(key_info* info)
{
	if (info == nullptr)
		return B_BAD_VALUE;
	*info = hosted::CurrentKeys();
	return B_OK;
}


uint32
modifiers()
{
	return hosted::CurrentKeys().modifiers;
}


status_t
get_mouse(BPoint* screenWhere, uint32* buttons)
{
	if (screenWhere == nullptr && buttons == nullptr)
		return B_BAD_VALUE;
	hosted::PointerState pointer = hosted::CurrentPointer();
	if (!pointer.isOurs) {
		hosted::DisplayThread::Call([&pointer]() {
			const QPoint place = QCursor::pos();
			pointer.screenWhere = BPoint(place.x(), place.y());
		});
	}
	if (screenWhere != nullptr)
		*screenWhere = pointer.screenWhere;
	if (buttons != nullptr)
		*buttons = pointer.buttons;
	return B_OK;
}


status_t
get_click_speed(bigtime_t* speed)
{
	if (speed == nullptr)
		return B_BAD_VALUE;
	constexpr bigtime_t kClickSpeed = 500000;
	*speed = kClickSpeed;
	return B_OK;
}


void
set_mouse_position(int32 x, int32 y)
{
	hosted::DisplayThread::Call([x, y]() { QCursor::setPos(x, y); });
}


void
set_mouse_mode(mode_mouse mode)
{
	hosted::SetMouseMode(mode);
}


mode_mouse
mouse_mode()
{
	return hosted::MouseMode();
}


void
set_focus_follows_mouse(bool follow)
{
	set_mouse_mode(follow ? B_FOCUS_FOLLOWS_MOUSE : B_NORMAL_MOUSE);
}


bool
focus_follows_mouse()
{
	return mouse_mode() == B_FOCUS_FOLLOWS_MOUSE;
}


int32
count_workspaces()
{
	int32 count = 1;
	hosted::DisplayThread::Call([&count]() { count = hosted::CountWorkspaces(); });
	return count;
}


int32
current_workspace()
{
	int32 workspace = 0;
	hosted::DisplayThread::Call([&workspace]() { workspace = hosted::CurrentWorkspace(); });
	return workspace;
}


void
activate_workspace(int32 workspace)
{
	hosted::DisplayThread::Call([workspace]() { hosted::ActivateWorkspace(workspace); });
}
