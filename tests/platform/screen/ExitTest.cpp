// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <stdlib.h>

#include <Autolock.h>
#include <Messenger.h>

#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"


namespace {

// Draws text again and again.
class BusyView : public BView {
public:
	explicit BusyView(BRect frame)
		:
		BView(frame, "busy", B_FOLLOW_ALL, B_WILL_DRAW)
	{
	}

	void Draw(BRect) override
	{
		draws++;
		SetFontSize(10 + draws % 7);
		DrawString("A line of text that keeps the fonts busy", BPoint(5, 5 + draws % 90));
		Invalidate();
	}

	std::atomic<int> draws{0};
};


void
leave_while_windows_paint()
{
	test::Application();
	std::vector<BusyView*> views;
	for (int i = 0; i < 4; i++) {
		BWindow* window = new BWindow(BRect(0, 0, 199, 99), "busy", B_TITLED_WINDOW, 0);
		views.push_back(new BusyView(window->Bounds()));
		window->AddChild(views.back());
		window->Show();
	}
	for (BusyView* view : views)
		test::WaitFor([view]() { return view->draws > 20; });
	exit(7);
}

} // namespace


// A death test's own name, so that it runs before threads exist.
TEST(ExitDeathTest, LeavesCleanlyWhileWindowsPaint)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_EXIT(leave_while_windows_paint(), testing::ExitedWithCode(7), "");
}
