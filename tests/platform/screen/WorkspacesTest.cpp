// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <InterfaceDefs.h>
#include <Screen.h>
#include <WindowScreen.h>

#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"


// A desktop that tells of no workspaces has one.
TEST(Workspaces, AreOneWithoutAWindowManager)
{
	test::Application();
	if (test::HasWindowManager())
		GTEST_SKIP() << "There is a window manager.";
	EXPECT_EQ(count_workspaces(), 1);
	EXPECT_EQ(current_workspace(), 0);
	activate_workspace(3);
	EXPECT_EQ(current_workspace(), 0);
}


TEST(Workspaces, AreTheWindowManagers)
{
	test::Application();
	if (!test::HasWindowManager())
		GTEST_SKIP() << "There is no window manager.";
	const int32 count = count_workspaces();
	ASSERT_GE(count, 2);
	for (int32 workspace : {count - 1, 0}) {
		activate_workspace(workspace);
		EXPECT_TRUE(test::WaitFor([workspace]() { return current_workspace() == workspace; }));
	}
}


TEST(MouseMode, IsWhatWasSet)
{
	EXPECT_EQ(mouse_mode(), B_NORMAL_MOUSE);
	EXPECT_FALSE(focus_follows_mouse());
	set_focus_follows_mouse(true);
	EXPECT_EQ(mouse_mode(), B_FOCUS_FOLLOWS_MOUSE);
	set_mouse_mode(B_CLICK_TO_FOCUS_MOUSE);
	EXPECT_FALSE(focus_follows_mouse());
	set_mouse_mode(B_NORMAL_MOUSE);
}


TEST(MousePosition, CanBeSetAndAsked)
{
	test::Application();
	// Over no window of the program the desktop is asked.
	test::Log log;
	test::LoggingWindow* window = new test::LoggingWindow(BRect(300, 300, 399, 399), log);
	window->Show();
	test::Settle(window);
	test::LeaveWindow(window);
	set_mouse_position(40, 50);
	BPoint place;
	EXPECT_EQ(get_mouse(&place, nullptr), B_OK);
	EXPECT_EQ(place, BPoint(40, 50));
	EXPECT_EQ(get_mouse(nullptr, nullptr), B_BAD_VALUE);
	test::CloseWindow(window);
}


TEST(Screen, ColorsAreThoseOfThePalette)
{
	test::Application();
	BScreen screen;
	EXPECT_TRUE(screen.IsValid());
	EXPECT_EQ(screen.ColorSpace(), B_RGB32);
	EXPECT_EQ(screen.ColorMap(), system_colors());
	EXPECT_EQ(screen.IndexForColor(0, 0, 0), 0);
	EXPECT_EQ(screen.IndexForColor(255, 255, 255, 0), 255);
	// White is the brightest gray for the short index, although entry 63 is white as well.
	EXPECT_EQ(screen.IndexForColor(make_color(255, 255, 255)), 31);
	EXPECT_EQ(screen.ColorForIndex(63), make_color(255, 255, 255));
	EXPECT_EQ(screen.ColorForIndex(62), make_color(0, 152, 51));
}
