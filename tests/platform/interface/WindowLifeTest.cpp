// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QWidget>

#include <Autolock.h>
#include <Messenger.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"

using test::Log;
using test::LoggingView;
using test::LoggingWindow;


namespace {

class WindowLife : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new LoggingWindow(BRect(60, 70, 359, 269), fLog);
	}

	bool IsOnDesktop()
	{
		bool isVisible = false;
		test::OnWidget(fWindow, [&](QWidget& widget) { isVisible = widget.isVisible(); });
		return isVisible;
	}

	bool IsHidden()
	{
		BAutolock lock(fWindow);
		return fWindow->IsHidden();
	}

	bool WaitForEnd(const BMessenger& messenger)
	{
		return test::WaitFor([&]() { return !messenger.IsValid(); });
	}

	static size_t Place(const std::vector<std::string>& lines, const std::string& line)
	{
		return std::find(lines.begin(), lines.end(), line) - lines.begin();
	}

	Log fLog;
	LoggingWindow* fWindow = nullptr;
};

// As the close box of the window manager does.
void
close_from_desktop(BWindow* window)
{
	test::OnWidget(window, [](QWidget& widget) {
		QCloseEvent event;
		QCoreApplication::sendEvent(&widget, &event);
		EXPECT_FALSE(event.isAccepted());
	});
}

} // namespace


TEST_F(WindowLife, StartsHiddenAndLocked)
{
	EXPECT_TRUE(fWindow->IsHidden());
	EXPECT_TRUE(fWindow->IsLocked());
	EXPECT_FALSE(test::OnWidget(fWindow, [](QWidget&) {}));
	fWindow->Show();
	EXPECT_FALSE(fWindow->IsLocked());
	EXPECT_FALSE(IsHidden());
	test::Settle(fWindow);
	EXPECT_TRUE(IsOnDesktop());
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, ShowsAndHidesNest)
{
	fWindow->Hide();
	fWindow->Show();
	test::Settle(fWindow);
	EXPECT_TRUE(IsHidden());
	EXPECT_FALSE(IsOnDesktop());
	fWindow->Show();
	test::Settle(fWindow);
	EXPECT_TRUE(IsOnDesktop());
	fWindow->Hide();
	fWindow->Hide();
	fWindow->Show();
	test::Settle(fWindow);
	EXPECT_FALSE(IsOnDesktop());
	fWindow->Show();
	test::Settle(fWindow);
	EXPECT_TRUE(IsOnDesktop());
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, NeverShownItIsDeletedByQuit)
{
	const BMessenger messenger(fWindow);
	fWindow->Lock();
	fWindow->Quit();
	EXPECT_FALSE(messenger.IsValid());
	EXPECT_EQ(fLog.Count("derived part deleted"), 1);
}


TEST_F(WindowLife, ViewsDieAfterTheDerivedPartAndKnowNoWindow)
{
	LoggingView* parent = new LoggingView(fWindow->Bounds(), "parent", fLog);
	parent->AddChild(new LoggingView(BRect(0, 0, 9, 9), "child", fLog));
	fWindow->AddChild(parent);
	fWindow->Show();
	const BMessenger messenger(fWindow);
	messenger.SendMessage(B_QUIT_REQUESTED);
	ASSERT_TRUE(WaitForEnd(messenger));

	const std::vector<std::string> lines = fLog.Lines();
	EXPECT_LT(Place(lines, "quit requested"), Place(lines, "derived part deleted"));
	EXPECT_LT(Place(lines, "derived part deleted"), Place(lines, "parent: detached"));
	EXPECT_LT(Place(lines, "parent: detached"), Place(lines, "child: detached"));
	EXPECT_EQ(fLog.Count("parent: deleted"), 1);
	EXPECT_EQ(fLog.Count("child: deleted"), 1);
}


TEST_F(WindowLife, TheCloseBoxAsks)
{
	fWindow->agreesToQuit = false;
	fWindow->Show();
	test::Settle(fWindow);
	close_from_desktop(fWindow);
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Count("quit requested"), 1);
	EXPECT_TRUE(IsOnDesktop());

	fWindow->Lock();
	fWindow->agreesToQuit = true;
	fWindow->Unlock();
	const BMessenger messenger(fWindow);
	close_from_desktop(fWindow);
	EXPECT_TRUE(WaitForEnd(messenger));
	EXPECT_EQ(fLog.Count("quit requested"), 2);
}


TEST_F(WindowLife, WithoutACloseBoxNothingIsAsked)
{
	fWindow->SetFlags(B_NOT_CLOSABLE);
	fWindow->Show();
	test::Settle(fWindow);
	close_from_desktop(fWindow);
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Count("quit requested"), 0);
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, QuitFromAnotherThreadWaitsAndDoesNotAsk)
{
	fWindow->Show();
	const BMessenger messenger(fWindow);
	for (int i = 0; i < 20; i++)
		messenger.SendMessage('many');
	ASSERT_TRUE(fWindow->Lock());
	fWindow->Quit();
	EXPECT_FALSE(messenger.IsValid());
	EXPECT_EQ(fLog.Count("quit requested"), 0);
	EXPECT_EQ(fLog.Messages('many').size(), 20u);
	EXPECT_EQ(fLog.Count("derived part deleted"), 1);
}


TEST_F(WindowLife, WhoWaitsForTheLockIsServedOrRefused)
{
	fWindow->Show();
	std::atomic<bool> stop{false};
	BWindow* window = fWindow;
	const BMessenger messenger(fWindow);
	std::vector<std::thread> threads;
	for (int i = 0; i < 3; i++) {
		threads.emplace_back([window, messenger, &stop]() {
			while (!stop && messenger.LockTarget())
				window->Unlock();
		});
	}
	messenger.SendMessage(B_QUIT_REQUESTED);
	EXPECT_TRUE(WaitForEnd(messenger));
	stop = true;
	for (std::thread& thread : threads)
		thread.join();
}


TEST_F(WindowLife, ClosesWhileTheDesktopKeepsSending)
{
	for (int round = 0; round < 20; round++) {
		LoggingWindow* window = new LoggingWindow(BRect(0, 0, 199, 199), fLog);
		LoggingView* view = new LoggingView(window->Bounds(), "view", fLog);
		window->AddChild(view);
		window->Show();
		const BMessenger messenger(window);
		test::OnWidget(window, [&messenger](QWidget& widget) {
			for (int i = 0; i < 60; i++) {
				QMouseEvent event(QEvent::MouseMove, QPointF(i, i), QPointF(i, i), Qt::NoButton,
					Qt::NoButton, Qt::NoModifier);
				QCoreApplication::sendEvent(&widget, &event);
				widget.resize(200 + i, 200);
				if (i == 30)
					messenger.SendMessage(B_QUIT_REQUESTED);
			}
		});
		EXPECT_TRUE(WaitForEnd(messenger));
	}
	EXPECT_EQ(fLog.Count("derived part deleted"), 20);
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, ManyWindowsComeAndGo)
{
	std::vector<BMessenger> messengers;
	for (int i = 0; i < 12; i++) {
		LoggingWindow* window = new LoggingWindow(BRect(i * 10, 0, i * 10 + 99, 99), fLog);
		window->AddChild(new LoggingView(window->Bounds(), "view", fLog));
		window->Show();
		messengers.emplace_back(window);
	}
	for (const BMessenger& messenger : messengers)
		messenger.SendMessage(B_QUIT_REQUESTED);
	for (const BMessenger& messenger : messengers)
		EXPECT_TRUE(WaitForEnd(messenger));
	EXPECT_EQ(fLog.Count("derived part deleted"), 12);
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, TheApplicationListsItsWindows)
{
	BApplication& application = test::Application();
	const int32 before = application.CountWindows();
	LoggingWindow* window = new LoggingWindow(BRect(0, 0, 99, 99), fLog);
	EXPECT_EQ(application.CountWindows(), before + 1);
	bool isListed = false;
	for (int32 index = 0; index < application.CountWindows(); index++)
		isListed = isListed || application.WindowAt(index) == window;
	EXPECT_TRUE(isListed);
	test::CloseWindow(window);
	EXPECT_EQ(application.CountWindows(), before);
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, ActivationReachesWindowAndViews)
{
	fWindow->AddChild(new LoggingView(fWindow->Bounds(), "view", fLog));
	fWindow->Show();
	test::Settle(fWindow);
	fWindow->Activate();
	EXPECT_TRUE(test::WaitFor([this]() {
		BAutolock lock(fWindow);
		return fWindow->IsActive();
	}));
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Count("active"), 1);
	EXPECT_EQ(fLog.Count("view: active"), 1);
	test::CloseWindow(fWindow);
}


// For the thread sanitizer.
TEST_F(WindowLife, IsActivatedWhileItComesAndGoes)
{
	fWindow->Show();
	std::thread other([this]() {
		for (int i = 0; i < 100; i++)
			fWindow->Activate();
	});
	for (int i = 0; i < 100; i++) {
		fWindow->Hide();
		fWindow->Show();
	}
	other.join();
	EXPECT_TRUE(test::WaitFor([this]() { return IsOnDesktop(); }));
	test::CloseWindow(fWindow);
}


// The pulse.


TEST_F(WindowLife, PulseStartsWithAViewThatNeedsIt)
{
	EXPECT_EQ(fWindow->PulseRate(), 500000);
	fWindow->SetPulseRate(20000);
	fWindow->SetPulseRate(0);
	fWindow->SetPulseRate(-5);
	EXPECT_EQ(fWindow->PulseRate(), 0);
	fWindow->AddChild(new LoggingView(BRect(0, 0, 9, 9), "still", fLog, B_WILL_DRAW));
	fWindow->AddChild(new LoggingView(BRect(0, 0, 9, 9), "beating", fLog, B_PULSE_NEEDED));
	fWindow->SetPulseRate(10000);
	// Hidden windows are pulsed, too.
	fWindow->Run();
	EXPECT_TRUE(test::WaitFor([this]() { return fLog.Count("beating: pulse") >= 3; }));
	EXPECT_EQ(fLog.Count("still: pulse"), 0);

	fWindow->SetPulseRate(0);
	test::Settle(fWindow);
	fLog.Clear();
	std::this_thread::sleep_for(std::chrono::milliseconds(60));
	EXPECT_EQ(fLog.Count("beating: pulse"), 0);
	test::CloseWindow(fWindow);
}


TEST_F(WindowLife, PulseGoesToParentsFirst)
{
	LoggingView* parent = new LoggingView(BRect(0, 0, 99, 99), "parent", fLog, B_PULSE_NEEDED);
	parent->AddChild(new LoggingView(BRect(0, 0, 9, 9), "child", fLog, B_PULSE_NEEDED));
	fWindow->AddChild(parent);
	fWindow->SetPulseRate(0);
	fWindow->Show();
	BMessenger(fWindow).SendMessage(B_PULSE);
	test::Settle(fWindow);
	const std::vector<std::string> lines = fLog.Lines();
	EXPECT_EQ(fLog.Count("parent: pulse"), 1);
	EXPECT_EQ(fLog.Count("child: pulse"), 1);
	EXPECT_LT(Place(lines, "parent: pulse"), Place(lines, "child: pulse"));
	test::CloseWindow(fWindow);
}
