// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: messages, focus, mouse.
#include <View.h>

#include <memory>
#include <string.h>

#include <AppDefs.h>
#include <Looper.h>
#include <Message.h>
#include <OS.h>
#include <Window.h>

#include "platform/interface/ViewData.h"
#include "platform/interface/ViewPrivate.h"

using hosted::ViewData;


void
BView::MouseDown(BPoint)
{
}


void
BView::MouseUp(BPoint)
{
}


void
BView::MouseMoved(BPoint, uint32, const BMessage*)
{
}


void
BView::WindowActivated(bool)
{
}


void
BView::KeyDown(const char*, int32)
{
}


void
BView::KeyUp(const char*, int32)
{
}


void
BView::Pulse()
{
}


void
BView::FrameMoved(BPoint)
{
}


void
BView::FrameResized(float, float)
{
}


// The place in the view that a mouse message is about.
static BPoint
view_where(const BMessage& message)
{
	BPoint where;
	if (message.FindPoint("be:view_where", &where) != B_OK)
		message.FindPoint("where", &where);
	return where;
}


static void
mouse_moved(BView& view, const BMessage& message)
{
	int32 transit = B_INSIDE_VIEW;
	message.FindInt32("be:transit", &transit);
	BMessage dragMessage;
	const bool isDrag = message.FindMessage("be:drag_message", &dragMessage) == B_OK;
	view.MouseMoved(view_where(message), static_cast<uint32>(transit),
		isDrag ? &dragMessage : nullptr);
}


static void
frame_resized(BView& view, const BMessage& message)
{
	int32 width;
	int32 height;
	if (message.FindInt32("width", &width) == B_OK && message.FindInt32("height", &height) == B_OK)
		view.FrameResized(static_cast<float>(width), static_cast<float>(height));
}


void
BView::MessageReceived(BMessage* message)
{
	const char* bytes = "";
	BPoint where;
	switch (message->what) {
		case B_MOUSE_DOWN:
			MouseDown(view_where(*message));
			break;
		case B_MOUSE_UP:
			MouseUp(view_where(*message));
			break;
		case B_MOUSE_MOVED:
			mouse_moved(*this, *message);
			break;
		case B_KEY_DOWN:
			if (message->FindString("bytes", &bytes) == B_OK)
				KeyDown(bytes, static_cast<int32>(strlen(bytes)));
			break;
		case B_KEY_UP:
			if (message->FindString("bytes", &bytes) == B_OK)
				KeyUp(bytes, static_cast<int32>(strlen(bytes)));
			break;
		case B_VIEW_MOVED:
			if (message->FindPoint("where", &where) == B_OK)
				FrameMoved(where);
			break;
		case B_VIEW_RESIZED:
			frame_resized(*this, *message);
			break;
		default:
			if (!_AnswerProperty(message))
				BHandler::MessageReceived(message);
			break;
	}
}


void
BView::MakeFocus(bool focus)
{
	if (fData->tree == nullptr)
		return;
	BView* const old = fData->tree->focus;
	if (!focus) {
		if (old == this)
			hosted::SetFocusView(*fData->tree->root, nullptr);
		return;
	}
	if (old == this)
		return;
	if (old != nullptr)
		old->MakeFocus(false);
	hosted::SetFocusView(*fData->tree->root, this);
}


bool
BView::IsFocus() const
{
	return fData->tree != nullptr && fData->tree->focus == this;
}


void
BView::GetMouse(BPoint* location, uint32* buttons, bool checkMessageQueue)
{
	BPoint where;
	uint32 pressed = 0;
	if (fData->tree != nullptr && fData->tree->host->GetMouse(&where, &pressed, checkMessageQueue))
		where = hosted::FromHost(*this, where);
	if (location != nullptr)
		*location = where;
	if (buttons != nullptr)
		*buttons = pressed;
}


void
BView::SetMouseEventMask(uint32 mask, uint32 options)
{
	if (fData->tree != nullptr)
		fData->tree->host->SetMouseEventMask(*this, mask, options);
}


void
BView::DragMessage(BMessage* message, BRect dragRect, BHandler* replyTo)
{
	if (message == nullptr || fData->tree == nullptr)
		return;
	fData->tree->host->DragMessage(*this, *message, dragRect, replyTo == nullptr ? this : replyTo);
}


namespace hosted {

void
PostFrameEvent(BView& view, bool moved)
{
	const ViewData& data = ViewData::Of(view);
	BLooper* looper = view.Looper();
	if (looper == nullptr || (data.flags & B_FRAME_EVENTS) == 0)
		return;
	BMessage message(moved ? B_VIEW_MOVED : B_VIEW_RESIZED);
	message.AddInt64("when", system_time());
	if (moved)
		message.AddPoint("where", data.position);
	else {
		message.AddInt32("width", static_cast<int32>(data.width));
		message.AddInt32("height", static_cast<int32>(data.height));
	}
	looper->PostMessage(&message, &view);
}


BView*
FocusView(const BView& root)
{
	const ViewData& data = ViewData::Of(root);
	return data.tree == nullptr ? nullptr : data.tree->focus;
}


void
SetFocusView(BView& root, BView* view)
{
	TreeData* tree = ViewData::Of(root).tree;
	if (tree == nullptr || tree->focus == view)
		return;
	tree->focus = view;
	tree->host->FocusChanged(view);
}


void
PulseViews(BView& root)
{
	TreeData* tree = ViewData::Of(root).tree;
	if (tree == nullptr)
		return;
	WalkViews(
		*tree, [](const ViewData& data) { return (data.flags & B_PULSE_NEEDED) != 0; },
		[](BView& view) { view.Pulse(); });
}


void
ActivateViews(BView& root, bool active)
{
	TreeData* tree = ViewData::Of(root).tree;
	if (tree == nullptr)
		return;
	WalkViews(
		*tree, [](const ViewData&) { return true; },
		[active](BView& view) { view.WindowActivated(active); });
}


std::vector<BView*>
NavigableViews(BView& root)
{
	std::vector<BView*> views;
	ForSubtree(&root, [&views](BView* view) {
		if ((view->Flags() & B_NAVIGABLE) != 0 && !view->IsHidden())
			views.push_back(view);
	});
	return views;
}

} // namespace hosted
