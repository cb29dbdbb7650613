// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Alert.h>

#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include <Invoker.h>
#include <Message.h>
#include <Messenger.h>

#include "tests/support/Desktop.h"
#include "tests/support/Popups.h"
#include "tests/support/Receiver.h"
#include "tests/support/Wait.h"


namespace {

constexpr int kKeyEscape = 0x01000000;
constexpr int kKeyReturn = 0x01000004;


class CountedAlert : public BAlert {
public:
	CountedAlert(std::atomic<int>& deleted)
		:
		BAlert("Title", "Really?", "No", "Maybe", "Yes", B_WIDTH_AS_USUAL, B_WARNING_ALERT),
		fDeleted(deleted)
	{
	}

	~CountedAlert() override { fDeleted++; }

private:
	std::atomic<int>& fDeleted;
};


class AlertTest : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fDeleted = 0;
	}

	// The thread that makes an alert also lets it go.
	int32 GoAnd(const std::function<void(BAlert&)>& prepare, const std::function<void()>& answer)
	{
		int32 result = -2;
		std::thread thread([&]() {
			BAlert* alert = new CountedAlert(fDeleted);
			prepare(*alert);
			result = alert->Go();
		});
		EXPECT_TRUE(test::WaitForDialog());
		answer();
		thread.join();
		EXPECT_EQ(fDeleted, 1);
		fDeleted = 0;
		return result;
	}

	std::atomic<int> fDeleted;
};


// Opens an alert when it gets 'open'.
class AlertWindow : public BWindow {
public:
	AlertWindow()
		:
		BWindow(BRect(100, 120, 599, 519), "window", B_TITLED_WINDOW, 0)
	{
	}

	void MessageReceived(BMessage* message) override
	{
		if (message->what == 'open')
			(new BAlert("Title", "Text", "OK"))->Go(nullptr);
		else
			BWindow::MessageReceived(message);
	}
};

} // namespace


TEST_F(AlertTest, GoReturnsTheButtonAndDeletesTheAlert)
{
	const auto nothing = [](BAlert&) {};
	EXPECT_EQ(GoAnd(nothing, []() { test::ClickDialogButton("No"); }), 0);
	EXPECT_EQ(GoAnd(nothing, []() { test::ClickDialogButton("Maybe"); }), 1);
	EXPECT_EQ(GoAnd(nothing, []() { test::PressKey(kKeyReturn); }), 2);
}


TEST_F(AlertTest, ShowsWhatItWasMadeOf)
{
	const auto change = [](BAlert& alert) {
		EXPECT_EQ(alert.Type(), B_WARNING_ALERT);
		EXPECT_EQ(alert.CountButtons(), 3);
		alert.SetText("Otherwise");
		alert.AddButton("Fourth");
	};
	const auto look = []() {
		EXPECT_EQ(test::DialogTitle(), "Title");
		EXPECT_EQ(test::DialogText(), "Otherwise");
		EXPECT_TRUE(test::DialogHasIcon());
		EXPECT_EQ(test::DialogButtons(),
			(std::vector<std::string>{"No", "Maybe", "Yes", "Fourth"}));
		test::ClickDialogButton("Fourth");
	};
	EXPECT_EQ(GoAnd(change, look), 3);
}


TEST_F(AlertTest, ShortcutsAreKeys)
{
	const auto shortcuts = [](BAlert& alert) {
		alert.SetShortcut(0, B_ESCAPE);
		alert.SetShortcut(1, B_ENTER);
		alert.SetShortcut(3, 'x');
		alert.SetShortcut(-1, 'x');
		EXPECT_EQ(alert.Shortcut(0), B_ESCAPE);
		EXPECT_EQ(alert.Shortcut(1), B_ENTER);
		EXPECT_EQ(alert.Shortcut(2), 0);
		EXPECT_EQ(alert.Shortcut(3), 0);
	};
	EXPECT_EQ(GoAnd(shortcuts, []() { test::PressKey(kKeyEscape); }), 0);
	EXPECT_EQ(GoAnd(shortcuts, []() { test::PressKey(kKeyReturn); }), 1);
}


TEST_F(AlertTest, EscapeClosesWhereTheFlagSaysSo)
{
	const auto flag = [](BAlert& alert) { alert.SetFlags(alert.Flags() | B_CLOSE_ON_ESCAPE); };
	EXPECT_EQ(GoAnd(flag, []() { test::PressKey(kKeyEscape); }), -1);
}


TEST_F(AlertTest, AsynchronousGoReturnsAtOnce)
{
	BAlert* alert = new CountedAlert(fDeleted);
	EXPECT_EQ(alert->Go(nullptr), B_OK);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(fDeleted, 0);
	ASSERT_TRUE(test::ClickDialogButton("Yes"));
	EXPECT_TRUE(test::WaitFor([this]() { return fDeleted == 1; }));
}


TEST_F(AlertTest, AsynchronousGoTellsTheInvoker)
{
	test::Receiver* receiver = new test::Receiver;
	BInvoker invoker(new BMessage('answ'), receiver);
	BAlert* alert = new CountedAlert(fDeleted);
	EXPECT_EQ(alert->Go(&invoker), B_OK);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::ClickDialogButton("Maybe"));
	ASSERT_TRUE(receiver->WaitForMessages(1));
	EXPECT_EQ(receiver->Messages()[0].what, uint32('answ'));
	EXPECT_EQ(receiver->Messages()[0].GetInt32("which", -1), 1);
	EXPECT_TRUE(test::WaitFor([this]() { return fDeleted == 1; }));
	receiver->Lock();
	receiver->Quit();
}


TEST_F(AlertTest, QuittingTheAlertClosesTheDialog)
{
	BAlert* alert = new CountedAlert(fDeleted);
	const BMessenger messenger(alert);
	alert->Go(nullptr);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(messenger.LockTarget());
	alert->Quit();
	EXPECT_EQ(fDeleted, 1);
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(AlertTest, LiesOverTheWindowThatOpensIt)
{
	AlertWindow* window = new AlertWindow;
	window->Show();
	window->PostMessage('open');
	ASSERT_TRUE(test::WaitForDialog());
	int frame[4] = {};
	ASSERT_TRUE(test::DialogFrame(frame));
	EXPECT_NEAR((frame[0] + frame[2]) / 2, 349, 2);
	EXPECT_NEAR((frame[1] + frame[3]) / 2, 319, 2);
	ASSERT_TRUE(test::ClickDialogButton("OK"));
	ASSERT_TRUE(test::WaitForNoDialog());
	test::CloseWindow(window);
}


TEST_F(AlertTest, OutlivesTheWindowThatItLiesOver)
{
	AlertWindow* window = new AlertWindow;
	window->Show();
	test::Settle(window);
	BAlert* alert = new CountedAlert(fDeleted);
	alert->Go(nullptr);
	ASSERT_TRUE(test::WaitForDialog());
	test::CloseWindow(window);
	EXPECT_EQ(test::DialogTitle(), "Title");
	ASSERT_TRUE(test::ClickDialogButton("Yes"));
	EXPECT_TRUE(test::WaitFor([this]() { return fDeleted == 1; }));
}
