// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <AppDefs.h>
#include <Message.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/platform/interface/RecordingHost.h"

static_assert(B_PRIMARY_MOUSE_BUTTON == 1 && B_SECONDARY_MOUSE_BUTTON == 2, "buttons");
static_assert(B_ENTERED_VIEW == 0 && B_EXITED_VIEW == 2 && B_OUTSIDE_VIEW == 3, "transits");
static_assert(B_POINTER_EVENTS == 1 && B_KEYBOARD_EVENTS == 2, "masks");


namespace {

class InputView : public BView {
public:
	InputView()
		:
		BView(BRect(10, 20, 29, 39), "input", B_FOLLOW_NONE, 0)
	{
	}

	void MouseDown(BPoint where) override
	{
		hook = "down";
		point = where;
	}

	void MouseUp(BPoint where) override
	{
		hook = "up";
		point = where;
	}

	void MouseMoved(BPoint where, uint32 code, const BMessage* dragMessage) override
	{
		hook = "moved";
		point = where;
		transit = code;
		dragged = dragMessage == nullptr ? 0 : dragMessage->what;
	}

	void KeyDown(const char* newBytes, int32 count) override
	{
		hook = "key down";
		bytes.assign(newBytes, static_cast<size_t>(count));
	}

	void KeyUp(const char* newBytes, int32 count) override
	{
		hook = "key up";
		bytes.assign(newBytes, static_cast<size_t>(count));
	}

	void FrameMoved(BPoint where) override
	{
		hook = "frame moved";
		point = where;
	}

	void FrameResized(float width, float height) override
	{
		hook = "frame resized";
		point = BPoint(width, height);
	}

	std::string hook;
	BPoint point;
	uint32 transit = 99;
	uint32 dragged = 0;
	std::string bytes;
};

} // namespace


TEST(ViewMessages, BecomeMouseHooks)
{
	InputView view;
	BMessage down(B_MOUSE_DOWN);
	down.AddPoint("where", BPoint(1, 1));
	down.AddPoint("be:view_where", BPoint(3, 4));
	view.MessageReceived(&down);
	EXPECT_EQ(view.hook, "down");
	EXPECT_EQ(view.point, BPoint(3, 4));

	BMessage up(B_MOUSE_UP);
	up.AddPoint("where", BPoint(5, 6));
	view.MessageReceived(&up);
	EXPECT_EQ(view.hook, "up");
	EXPECT_EQ(view.point, BPoint(5, 6));

	BMessage moved(B_MOUSE_MOVED);
	moved.AddPoint("be:view_where", BPoint(7, 8));
	moved.AddInt32("be:transit", B_EXITED_VIEW);
	view.MessageReceived(&moved);
	EXPECT_EQ(view.hook, "moved");
	EXPECT_EQ(view.point, BPoint(7, 8));
	EXPECT_EQ(view.transit, uint32(B_EXITED_VIEW));
	EXPECT_EQ(view.dragged, 0u);
	const BMessage drag(B_SIMPLE_DATA);
	moved.AddMessage("be:drag_message", &drag);
	view.MessageReceived(&moved);
	EXPECT_EQ(view.dragged, uint32(B_SIMPLE_DATA));
}


TEST(ViewMessages, BecomeKeyAndFrameHooks)
{
	InputView view;
	BMessage key(B_KEY_DOWN);
	key.AddString("bytes", "\xc3\xa4");
	view.MessageReceived(&key);
	EXPECT_EQ(view.hook, "key down");
	EXPECT_EQ(view.bytes, "\xc3\xa4");
	key.what = B_KEY_UP;
	view.MessageReceived(&key);
	EXPECT_EQ(view.hook, "key up");

	BMessage frame(B_VIEW_MOVED);
	frame.AddPoint("where", BPoint(9, 10));
	view.MessageReceived(&frame);
	EXPECT_EQ(view.hook, "frame moved");
	EXPECT_EQ(view.point, BPoint(9, 10));
	BMessage size(B_VIEW_RESIZED);
	size.AddInt32("width", 11);
	size.AddInt32("height", 12);
	view.MessageReceived(&size);
	EXPECT_EQ(view.hook, "frame resized");
	EXPECT_EQ(view.point, BPoint(11, 12));
}


TEST(ViewMouse, IsAskedOfTheHost)
{
	test::RecordingHost host;
	InputView* view = new InputView;
	host.root->AddChild(view);
	BPoint where;
	uint32 buttons;
	view->GetMouse(&where, &buttons);
	EXPECT_EQ(where, BPoint(40, 40));
	EXPECT_EQ(buttons, uint32(B_PRIMARY_MOUSE_BUTTON));
	view->GetMouse(&where, &buttons, false);
	EXPECT_EQ(buttons, uint32(B_SECONDARY_MOUSE_BUTTON));
	view->SetMouseEventMask(B_POINTER_EVENTS, B_LOCK_WINDOW_FOCUS);
	EXPECT_EQ(host.maskedView, view);
	EXPECT_EQ(host.eventMask, uint32(B_POINTER_EVENTS));
	EXPECT_EQ(host.maskOptions, uint32(B_LOCK_WINDOW_FOCUS));
	BMessage message(B_SIMPLE_DATA);
	view->DragMessage(&message, BRect(0, 0, 3, 3));
	EXPECT_EQ(host.draggingView, view);
	EXPECT_EQ(host.dragRect, BRect(0, 0, 3, 3));
	EXPECT_EQ(host.dragReplyTo, view);
	view->RemoveSelf();
	view->GetMouse(&where, &buttons);
	EXPECT_EQ(buttons, 0u);
	view->SetMouseEventMask(B_POINTER_EVENTS);
	delete view;
}
