// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include <Autolock.h>
#include <Message.h>
#include <Messenger.h>
#include <View.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/Wait.h"


namespace {

class WindowScripting : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new BWindow(BRect(60, 70, 359, 269), "first title", B_TITLED_WINDOW, 0);
		fWindow->Show();
		fTarget = BMessenger(fWindow);
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	BMessage Ask(BMessage request) const
	{
		BMessage reply;
		EXPECT_EQ(fTarget.SendMessage(&request, &reply, 10000000, 10000000), B_OK);
		return reply;
	}

	BMessage Get(const char* property) const
	{
		BMessage request(B_GET_PROPERTY);
		request.AddSpecifier(property);
		return Ask(request);
	}

	static BMessage Setting(const char* property)
	{
		BMessage request(B_SET_PROPERTY);
		request.AddSpecifier(property);
		return request;
	}

	BWindow* fWindow = nullptr;
	BMessenger fTarget;
};

} // namespace


TEST_F(WindowScripting, TellsWhatItIs)
{
	BMessage reply = Get("Title");
	EXPECT_EQ(reply.what, uint32(B_REPLY));
	EXPECT_STREQ(reply.GetString("result"), "first title");
	// The answer to a question carries no error.
	EXPECT_FALSE(reply.HasInt32("error"));

	EXPECT_EQ(Get("Frame").GetRect("result", BRect()), BRect(60, 70, 359, 269));
	EXPECT_FALSE(Get("Hidden").GetBool("result", true));
	EXPECT_TRUE(Get("Active").HasBool("result"));

	BMessenger self;
	ASSERT_EQ(Get("Messenger").FindMessenger("result", &self), B_OK);
	EXPECT_EQ(self, fTarget);
}


TEST_F(WindowScripting, CanBeChanged)
{
	BMessage request = Setting("Title");
	request.AddString("data", "second title");
	BMessage reply = Ask(request);
	EXPECT_EQ(reply.GetInt32("error", -1), B_OK);
	EXPECT_STREQ(Get("Title").GetString("result"), "second title");

	request = Setting("Frame");
	request.AddRect("data", BRect(80, 90, 279, 239));
	EXPECT_EQ(Ask(request).GetInt32("error", -1), B_OK);
	EXPECT_EQ(Get("Frame").GetRect("result", BRect()), BRect(80, 90, 279, 239));

	for (const bool hidden : {true, false}) {
		request = Setting("Hidden");
		request.AddBool("data", hidden);
		EXPECT_EQ(Ask(request).GetInt32("error", -1), B_OK);
		EXPECT_EQ(Get("Hidden").GetBool("result", !hidden), hidden);
	}
}


TEST_F(WindowScripting, NumbersAreSetAsByTheirMethods)
{
	const struct {
		const char* property;
		int32 before;
		int32 after;
		// One that the window refuses.
		int32 bad;
	} rows[] = {
		{"Look", B_TITLED_WINDOW_LOOK, B_FLOATING_WINDOW_LOOK, 8},
		{"Feel", B_NORMAL_WINDOW_FEEL, B_FLOATING_APP_WINDOW_FEEL, 7},
		{"Flags", B_ASYNCHRONOUS_CONTROLS, B_ASYNCHRONOUS_CONTROLS | B_NOT_CLOSABLE, 0x20000000},
	};
	for (const auto& row : rows) {
		EXPECT_EQ(Get(row.property).GetInt32("result", -1), row.before) << row.property;
		BMessage request = Setting(row.property);
		request.AddInt32("data", row.after);
		EXPECT_EQ(Ask(request).GetInt32("error", -1), B_OK) << row.property;
		EXPECT_EQ(Get(row.property).GetInt32("result", -1), row.after) << row.property;
		request.ReplaceInt32("data", row.bad);
		EXPECT_EQ(Ask(request).GetInt32("error", B_OK), B_BAD_VALUE) << row.property;
		EXPECT_EQ(Get(row.property).GetInt32("result", -1), row.after) << row.property;
	}

	BMessage request = Setting("Workspaces");
	request.AddInt32("data", -1);
	EXPECT_EQ(Ask(request).GetInt32("error", -1), B_OK);
	EXPECT_EQ(Get("Workspaces").GetInt32("result", 0), -1);
	EXPECT_EQ(test::Locked(fWindow, [this]() { return fWindow->Workspaces(); }), B_ALL_WORKSPACES);
}


TEST_F(WindowScripting, CanBeMinimized)
{
	for (const bool minimized : {true, false}) {
		BMessage request = Setting("Minimize");
		request.AddBool("data", minimized);
		EXPECT_EQ(Ask(request).GetInt32("error", -1), B_OK);
		// The desktop may still be reporting what it did before.
		EXPECT_TRUE(test::WaitFor([&]() {
			return Get("Minimize").GetBool("result", !minimized) == minimized
				&& test::Locked(fWindow, [this]() { return fWindow->IsMinimized(); }) == minimized;
		}));
	}
}


TEST_F(WindowScripting, ViewsAreCountedAndMeantByPlaceOrName)
{
	BView* const outer = new BView(BRect(10, 10, 59, 59), "outer", B_FOLLOW_NONE, B_WILL_DRAW);
	BView* const first = new BView(BRect(0, 0, 9, 9), nullptr, B_FOLLOW_NONE, B_WILL_DRAW);
	BView* const second = new BView(BRect(20, 0, 29, 9), "second", B_FOLLOW_NONE, B_WILL_DRAW);
	{
		BAutolock lock(fWindow);
		fWindow->AddChild(outer);
		outer->AddChild(first);
		outer->AddChild(second);
		// The window is asked all the same.
		outer->MakeFocus(true);
	}
	BMessage request(B_COUNT_PROPERTIES);
	request.AddSpecifier("View");
	EXPECT_EQ(Ask(request).GetInt32("result", -1), 1);
	request.AddSpecifier("View", "outer");
	EXPECT_EQ(Ask(request).GetInt32("result", -1), 2);

	// The last one added is resolved first.
	const auto frameOf = [this](const std::function<void(BMessage&)>& addView) {
		BMessage question(B_GET_PROPERTY);
		question.AddSpecifier("Frame");
		addView(question);
		question.AddSpecifier("View", int32(0));
		const BMessage reply = Ask(question);
		EXPECT_FALSE(reply.what == B_REPLY && reply.HasInt32("error"));
		return reply.GetRect("result", BRect());
	};
	EXPECT_EQ(frameOf([](BMessage&) {}), BRect(10, 10, 59, 59));
	EXPECT_EQ(frameOf([](BMessage& question) { question.AddSpecifier("View", 1); }),
		BRect(20, 0, 29, 9));
	EXPECT_EQ(frameOf([](BMessage& question) { question.AddSpecifier("View", "second"); }),
		BRect(20, 0, 29, 9));
	EXPECT_EQ(frameOf([](BMessage& question) {
		BMessage last(B_REVERSE_INDEX_SPECIFIER);
		last.AddString("property", "View");
		last.AddInt32("index", 2);
		question.AddSpecifier(&last);
	}),
		BRect(0, 0, 9, 9));

	BMessage whom(B_GET_PROPERTY);
	whom.AddSpecifier("View", int32(0));
	BMessenger found;
	EXPECT_EQ(Ask(whom).FindMessenger("result", &found), B_OK);
	EXPECT_EQ(found, BMessenger(outer));

	for (const int32 index : {-1, 1, 2147483647}) {
		BMessage absent(B_GET_PROPERTY);
		absent.AddSpecifier("Frame");
		absent.AddSpecifier("View", index);
		const BMessage reply = Ask(absent);
		EXPECT_EQ(reply.what, uint32(B_MESSAGE_NOT_UNDERSTOOD)) << index;
		EXPECT_EQ(reply.GetInt32("error", B_OK), B_BAD_INDEX) << index;
	}
}


TEST_F(WindowScripting, ViewsCanBeChanged)
{
	BView* const view = new BView(BRect(10, 10, 59, 59), "view", B_FOLLOW_NONE, B_WILL_DRAW);
	{
		BAutolock lock(fWindow);
		fWindow->AddChild(view);
	}
	const auto viewFrame = [view]() { return view->Frame(); };
	BMessage request = Setting("Frame");
	request.AddSpecifier("View", "view");
	EXPECT_EQ(Ask(request).what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	request.AddRect("data", BRect(1, 2, 30, 40));
	const BMessage reply = Ask(request);
	EXPECT_EQ(reply.what, uint32(B_REPLY));
	EXPECT_FALSE(reply.HasInt32("error"));
	EXPECT_EQ(test::Locked(fWindow, viewFrame), BRect(1, 2, 30, 40));
	request.ReplaceRect("data", BRect(0, 0, std::numeric_limits<float>::quiet_NaN(), 1));
	EXPECT_EQ(Ask(request).GetInt32("error", B_OK), B_BAD_VALUE);
	EXPECT_EQ(test::Locked(fWindow, viewFrame), BRect(1, 2, 30, 40));

	for (const bool hidden : {true, true, false}) {
		request = Setting("Hidden");
		request.AddSpecifier("View", int32(0));
		request.AddBool("data", hidden);
		EXPECT_EQ(Ask(request).what, uint32(B_REPLY));
		EXPECT_EQ(test::Locked(fWindow, [view]() { return view->IsHidden(); }), hidden);
	}
}


TEST_F(WindowScripting, CanBeActivated)
{
	BWindow* const other = new BWindow(BRect(90, 70, 359, 269), "other", B_TITLED_WINDOW, 0);
	other->Show();
	const BMessenger otherTarget(other);
	EXPECT_TRUE(test::WaitFor([&] { return !Get("Active").GetBool("result", true); }));

	BMessage request = Setting("Active");
	request.AddBool("data", true);
	EXPECT_EQ(Ask(request).GetInt32("error", -1), B_OK);
	EXPECT_TRUE(test::WaitFor([&] { return Get("Active").GetBool("result", false); }));
	test::CloseWindow(other);
}


TEST_F(WindowScripting, RefusesWhatItDoesNotUnderstand)
{
	EXPECT_EQ(Get("Nonsense").what, uint32(B_MESSAGE_NOT_UNDERSTOOD));
	BMessage request(B_EXECUTE_PROPERTY);
	request.AddSpecifier("Title");
	EXPECT_EQ(Ask(request).what, uint32(B_MESSAGE_NOT_UNDERSTOOD));

	for (const char* property :
		{"Title", "Frame", "Hidden", "Active", "Minimize", "Look", "Feel", "Flags", "Workspaces"}) {
		request = Setting(property);
		EXPECT_NE(Ask(request).GetInt32("error", B_OK), B_OK) << property;
		request.AddFloat("data", 1);
		EXPECT_NE(Ask(request).GetInt32("error", B_OK), B_OK) << property;
	}
	request = Setting("Frame");
	request.AddRect("data", BRect(0, 0, std::numeric_limits<float>::infinity(), 100));
	EXPECT_EQ(Ask(request).GetInt32("error", B_OK), B_BAD_VALUE);
	EXPECT_EQ(Get("Frame").GetRect("result", BRect()), BRect(60, 70, 359, 269));
	EXPECT_STREQ(Get("Title").GetString("result"), "first title");
}
