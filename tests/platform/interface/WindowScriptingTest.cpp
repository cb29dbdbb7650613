// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <limits>

#include <Message.h>
#include <Messenger.h>
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

	for (const char* property : {"Title", "Frame", "Hidden", "Active"}) {
		request = Setting(property);
		EXPECT_NE(Ask(request).GetInt32("error", B_OK), B_OK) << property;
		request.AddInt32("data", 1);
		EXPECT_NE(Ask(request).GetInt32("error", B_OK), B_OK) << property;
	}
	request = Setting("Frame");
	request.AddRect("data", BRect(0, 0, std::numeric_limits<float>::infinity(), 100));
	EXPECT_EQ(Ask(request).GetInt32("error", B_OK), B_BAD_VALUE);
	EXPECT_EQ(Get("Frame").GetRect("result", BRect()), BRect(60, 70, 359, 269));
	EXPECT_STREQ(Get("Title").GetString("result"), "first title");
}
