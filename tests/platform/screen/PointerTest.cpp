// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>

#include <Autolock.h>
#include <InterfaceDefs.h>
#include <Messenger.h>

#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"

using test::Log;
using test::LoggingView;
using test::LoggingWindow;
using test::Pointer;


namespace {

// Two views side by side, the right one with a child.
class PointerInput : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new LoggingWindow(BRect(60, 70, 359, 269), fWindowLog);
		fLeft = new LoggingView(BRect(0, 0, 99, 199), "left", fLog);
		fRight = new LoggingView(BRect(100, 0, 199, 199), "right", fLog);
		fChild = new LoggingView(BRect(50, 50, 99, 99), "child", fLog);
		fRight->AddChild(fChild);
		fWindow->AddChild(fLeft);
		fWindow->AddChild(fRight);
		fWindow->Show();
		test::Settle(fWindow);
		test::LeaveWindow(fWindow);
		test::Settle(fWindow);
		fLog.Clear();
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton,
		Qt::MouseButtons others = Qt::NoButton)
	{
		test::PressMouse(fWindow, {x, y, button, others | button});
		test::Settle(fWindow);
	}

	void Release(int x, int y, Qt::MouseButton button = Qt::LeftButton,
		Qt::MouseButtons remaining = Qt::NoButton)
	{
		test::ReleaseMouse(fWindow, {x, y, button, remaining});
		test::Settle(fWindow);
	}

	void Move(int x, int y, Qt::MouseButtons held = Qt::NoButton)
	{
		test::MoveMouse(fWindow, {x, y, Qt::NoButton, held});
		test::Settle(fWindow);
	}

	std::vector<std::string> LinesWithoutDraws() const
	{
		std::vector<std::string> lines;
		for (const std::string& line : fLog.Lines()) {
			if (line.find(": draw") == std::string::npos)
				lines.push_back(line);
		}
		return lines;
	}

	Log fLog;
	Log fWindowLog;
	LoggingWindow* fWindow = nullptr;
	LoggingView* fLeft = nullptr;
	LoggingView* fRight = nullptr;
	LoggingView* fChild = nullptr;
};

using Lines = std::vector<std::string>;

} // namespace


TEST_F(PointerInput, DownHasAllFields)
{
	test::PressMouse(fWindow, {160, 70, Qt::RightButton, Qt::RightButton, Qt::ShiftModifier});
	test::Settle(fWindow);
	EXPECT_EQ(LinesWithoutDraws(), Lines({"child: down"}));
	const BMessage message = fLog.Last(B_MOUSE_DOWN);
	EXPECT_EQ(message.GetInt32("buttons", 0), B_SECONDARY_MOUSE_BUTTON);
	EXPECT_EQ(message.GetInt32("clicks", 0), 1);
	EXPECT_EQ(message.GetInt32("modifiers", 0), B_SHIFT_KEY);
	EXPECT_EQ(message.FindPoint("where"), BPoint(10, 20));
	EXPECT_EQ(message.FindPoint("be:view_where"), BPoint(10, 20));
	EXPECT_EQ(message.FindPoint("screen_where"), BPoint(220, 140));
	EXPECT_TRUE(message.HasInt64("when"));
	EXPECT_FALSE(message.HasInt32("be:transit"));
	EXPECT_FALSE(message.HasInt32("_input"));
	EXPECT_FALSE(message.HasPoint("_where"));
	Release(160, 70, Qt::RightButton);
	Move(1, 1);
}


TEST_F(PointerInput, ButtonsAreAllThatAreHeld)
{
	Press(10, 10);
	Press(10, 10, Qt::MiddleButton, Qt::LeftButton);
	EXPECT_EQ(fLog.Last(B_MOUSE_DOWN).GetInt32("buttons", 0),
		B_PRIMARY_MOUSE_BUTTON | B_TERTIARY_MOUSE_BUTTON);
	Release(10, 10, Qt::LeftButton, Qt::MiddleButton);
	EXPECT_EQ(fLog.Last(B_MOUSE_UP).GetInt32("buttons", 0), B_TERTIARY_MOUSE_BUTTON);
	EXPECT_FALSE(fLog.Last(B_MOUSE_UP).HasInt32("clicks"));
	Release(10, 10, Qt::MiddleButton);
	EXPECT_EQ(fLog.Last(B_MOUSE_UP).GetInt32("buttons", -1), 0);
}


TEST_F(PointerInput, TransitIsToldToBothViews)
{
	Move(10, 10);
	Move(20, 10);
	Move(120, 10);
	Move(170, 70);
	test::LeaveWindow(fWindow);
	test::Settle(fWindow);
	EXPECT_EQ(LinesWithoutDraws(),
		Lines({"left: moved 0", "left: moved 1", "left: moved 2", "right: moved 0",
			"right: moved 2", "child: moved 0", "child: moved 2"}));
	const std::vector<BMessage> moves = fLog.Messages(B_MOUSE_MOVED);
	ASSERT_EQ(moves.size(), 7u);
	// The place in the window, and in the view.
	EXPECT_EQ(moves[5].FindPoint("where"), BPoint(170, 70));
	EXPECT_EQ(moves[5].FindPoint("be:view_where"), BPoint(20, 20));
	EXPECT_EQ(moves[5].GetInt32("be:transit", -1), B_ENTERED_VIEW);
}


TEST_F(PointerInput, BesideAllViewsNobodyIsTold)
{
	Press(250, 100);
	Release(250, 100);
	Move(251, 100);
	EXPECT_TRUE(LinesWithoutDraws().empty());
	EXPECT_TRUE(fWindowLog.Messages(B_MOUSE_DOWN).empty());
}


TEST_F(PointerInput, ClicksAreCounted)
{
	const auto clicks = [this]() { return fLog.Last(B_MOUSE_DOWN).GetInt32("clicks", 0); };
	Press(10, 10);
	Release(10, 10);
	Press(11, 12);
	EXPECT_EQ(clicks(), 2);
	Release(11, 12);
	Press(11, 12);
	EXPECT_EQ(clicks(), 3);
	Release(11, 12);
	// Too far away, another button, another modifier, another view.
	Press(16, 12);
	EXPECT_EQ(clicks(), 1);
	Release(16, 12);
	Press(16, 12, Qt::RightButton);
	EXPECT_EQ(clicks(), 1);
	Release(16, 12, Qt::RightButton);
	test::PressMouse(fWindow, {16, 12, Qt::RightButton, Qt::RightButton, Qt::ControlModifier});
	test::Settle(fWindow);
	EXPECT_EQ(clicks(), 1);
	Release(16, 12, Qt::RightButton);
	Press(98, 12);
	Release(98, 12);
	Press(101, 12);
	EXPECT_EQ(clicks(), 1);
	Release(101, 12);
}


TEST_F(PointerInput, WithoutAMaskTheViewUnderThePointerGetsTheRelease)
{
	Press(10, 10);
	Move(150, 10, Qt::LeftButton);
	Release(150, 10);
	EXPECT_EQ(LinesWithoutDraws(),
		Lines({"left: down", "left: moved 2", "right: moved 0", "right: up"}));
}


TEST_F(PointerInput, AMaskHoldsThePointerUntilTheRelease)
{
	fLeft->mask = B_POINTER_EVENTS;
	Move(10, 10);
	Press(10, 10);
	fLog.Clear();
	Move(-20, 10, Qt::LeftButton);
	Move(-30, 10, Qt::LeftButton);
	EXPECT_EQ(fLog.Last(B_MOUSE_MOVED).FindPoint("be:view_where"), BPoint(-30, 10));
	Release(-30, 10);
	Move(-30, 10);
	EXPECT_EQ(LinesWithoutDraws(), Lines({"left: moved 2", "left: moved 3", "left: up"}));
}


TEST_F(PointerInput, TheWheelTurnsWhereThePointerWas)
{
	Move(10, 10);
	test::TurnWheel(fWindow, 10, 10, 0, 1);
	test::TurnWheel(fWindow, 10, 10, -0.5f, -2);
	test::Settle(fWindow);
	const std::vector<BMessage> messages = fLog.Messages(B_MOUSE_WHEEL_CHANGED);
	ASSERT_EQ(messages.size(), 2u);
	EXPECT_FLOAT_EQ(messages[0].FindFloat("be:wheel_delta_y"), 1);
	EXPECT_FLOAT_EQ(messages[0].FindFloat("be:wheel_delta_x"), 0);
	EXPECT_FLOAT_EQ(messages[1].FindFloat("be:wheel_delta_y"), -2);
	EXPECT_FLOAT_EQ(messages[1].FindFloat("be:wheel_delta_x"), -0.5f);
	// Views that do not care hand it on up to the window.
	EXPECT_EQ(fWindowLog.Messages(B_MOUSE_WHEEL_CHANGED).size(), 2u);
}


TEST_F(PointerInput, AViewMayVanishUnderThePointer)
{
	class VanishingView : public BView {
	public:
		VanishingView()
			:
			BView(BRect(0, 0, 99, 199), "vanishing", B_FOLLOW_NONE, 0)
		{
		}

		void MouseMoved(BPoint, uint32 code, const BMessage*) override
		{
			if (code != B_EXITED_VIEW)
				return;
			// The view that is about to be told that the pointer came.
			BView* other = Window()->FindView("right");
			other->RemoveSelf();
			delete other;
		}
	};
	{
		BAutolock lock(fWindow);
		fLeft->RemoveSelf();
		delete fLeft;
		fWindow->AddChild(new VanishingView);
	}
	Move(10, 10);
	Move(110, 10);
	Move(111, 10);
	EXPECT_EQ(fLog.Count("right: deleted"), 1);
	EXPECT_EQ(fLog.Count("right: moved 0"), 0);
}


// What a view sees that asks for the mouse while it handles a press.


namespace {

class PollingView : public BView {
public:
	explicit PollingView(BRect frame)
		:
		BView(frame, "polling", B_FOLLOW_NONE, 0)
	{
	}

	void MouseDown(BPoint) override
	{
		isHandling = true;
		test::WaitFor([this]() { return mayPoll.load(); });
		GetMouse(&place, &buttons, looksIntoQueue);
		GetMouse(&nextPlace, &nextButtons, looksIntoQueue);
		isDone = true;
	}

	void MouseUp(BPoint) override { ups++; }

	std::atomic<bool> isHandling{false};
	std::atomic<bool> mayPoll{false};
	std::atomic<bool> isDone{false};
	std::atomic<int> ups{0};
	bool looksIntoQueue = true;
	BPoint place;
	BPoint nextPlace;
	uint32 buttons = 99;
	uint32 nextButtons = 99;
};

} // namespace


TEST_F(PointerInput, PollingReadsTheQueue)
{
	PollingView* view = new PollingView(BRect(220, 20, 279, 79));
	{
		BAutolock lock(fWindow);
		fWindow->AddChild(view);
	}
	test::PressMouse(fWindow, {230, 30, Qt::RightButton, Qt::RightButton});
	ASSERT_TRUE(test::WaitFor([view]() { return view->isHandling.load(); }));
	test::ReleaseMouse(fWindow, {232, 33, Qt::RightButton, Qt::NoButton});
	test::PressMouse(fWindow, {240, 40, Qt::LeftButton, Qt::LeftButton});
	view->mayPoll = true;
	ASSERT_TRUE(test::WaitFor([view]() { return view->isDone.load(); }));
	test::Settle(fWindow);
	// The release that waits in the queue comes first, and is used up.
	EXPECT_EQ(view->buttons, 0u);
	EXPECT_EQ(view->place, BPoint(12, 13));
	EXPECT_EQ(view->nextButtons, uint32(B_PRIMARY_MOUSE_BUTTON));
	EXPECT_EQ(view->nextPlace, BPoint(20, 20));
	EXPECT_EQ(view->ups, 0);
	Release(240, 40);
}


TEST_F(PointerInput, PollingWithAnEmptyQueueTellsThePresent)
{
	PollingView* view = new PollingView(BRect(220, 20, 279, 79));
	view->mayPoll = true;
	{
		BAutolock lock(fWindow);
		fWindow->AddChild(view);
	}
	Press(230, 30, Qt::RightButton);
	EXPECT_EQ(view->buttons, uint32(B_SECONDARY_MOUSE_BUTTON));
	EXPECT_EQ(view->place, BPoint(10, 10));
	EXPECT_EQ(view->nextButtons, uint32(B_SECONDARY_MOUSE_BUTTON));
	Release(230, 30, Qt::RightButton);
	EXPECT_EQ(view->ups, 1);
}


TEST_F(PointerInput, PollingThePresentLeavesTheQueueAlone)
{
	PollingView* view = new PollingView(BRect(220, 20, 279, 79));
	view->looksIntoQueue = false;
	{
		BAutolock lock(fWindow);
		fWindow->AddChild(view);
	}
	test::PressMouse(fWindow, {230, 30, Qt::RightButton, Qt::RightButton});
	ASSERT_TRUE(test::WaitFor([view]() { return view->isHandling.load(); }));
	test::ReleaseMouse(fWindow, {232, 33, Qt::RightButton, Qt::NoButton});
	view->mayPoll = true;
	test::Settle(fWindow);
	EXPECT_EQ(view->buttons, 0u);
	EXPECT_EQ(view->place, BPoint(12, 13));
	EXPECT_EQ(view->ups, 1);
}


TEST_F(PointerInput, TheGlobalPlaceIsOnTheScreen)
{
	Move(10, 20);
	BPoint place;
	uint32 buttons = 99;
	EXPECT_EQ(get_mouse(&place, &buttons), B_OK);
	EXPECT_EQ(place, BPoint(70, 90));
	EXPECT_EQ(buttons, 0u);
	bigtime_t speed = 0;
	EXPECT_EQ(get_click_speed(&speed), B_OK);
	EXPECT_EQ(speed, 500000);
}


// Drags of the program's own.


TEST_F(PointerInput, AViewDragsAMessageToAnother)
{
	BMessage dragged('drag');
	dragged.AddString("text", "something");
	fLeft->dragged = &dragged;
	Press(10, 10);
	Move(20, 10, Qt::LeftButton);
	BMessage inMove;
	EXPECT_EQ(fLog.Last(B_MOUSE_MOVED).FindMessage("be:drag_message", &inMove), B_OK);
	EXPECT_STREQ(inMove.GetString("text"), "something");
	Release(170, 70);
	EXPECT_EQ(fLog.Messages('drag').size(), 1u);
	BMessage dropped = fLog.Last('drag');
	EXPECT_TRUE(dropped.WasDropped());
	BPoint offset;
	EXPECT_EQ(dropped.DropPoint(&offset), BPoint(230, 140));
	EXPECT_EQ(offset, BPoint(8, 7));
	// The answer goes to the view that dragged.
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Messages('took').size(), 1u);

	fLeft->dragged = nullptr;
	Press(10, 10);
	Release(170, 70);
	EXPECT_EQ(fLog.Messages('drag').size(), 1u);
}


TEST_F(PointerInput, ADragMayEndInAnotherWindow)
{
	test::Log otherLog;
	LoggingWindow* other = new LoggingWindow(BRect(400, 300, 499, 399), otherLog);
	other->Show();
	test::Settle(other);
	BMessage dragged('drag');
	fLeft->dragged = &dragged;
	Press(10, 10);
	Release(350, 240);
	test::Settle(other);
	EXPECT_EQ(otherLog.Messages('drag').size(), 1u);
	EXPECT_TRUE(fLog.Messages('drag').empty());

	// Beside all windows nothing comes of it.
	Press(10, 10);
	Release(340, 5);
	test::Settle(other);
	EXPECT_EQ(otherLog.Messages('drag').size(), 1u);
	test::CloseWindow(other);
}


// Modal windows.


TEST_F(PointerInput, AModalWindowKeepsInputFromTheOthers)
{
	BWindow* modal = new BWindow(BRect(0, 0, 99, 99), "modal", B_MODAL_WINDOW_LOOK,
		B_MODAL_APP_WINDOW_FEEL, 0);
	modal->Show();
	test::Settle(modal);
	Press(10, 10);
	Release(10, 10);
	EXPECT_EQ(fLog.Count("left: down"), 0);
	test::CloseWindow(modal);
	test::Settle(fWindow);
	Press(10, 10);
	Release(10, 10);
	EXPECT_EQ(fLog.Count("left: down"), 1);
}
