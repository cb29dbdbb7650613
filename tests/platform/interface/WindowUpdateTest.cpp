// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>

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

constexpr QRgb kOld = qRgb(10, 20, 30);
constexpr QRgb kNew = qRgb(200, 100, 50);

class WindowUpdate : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new LoggingWindow(BRect(60, 70, 159, 169), fLog);
		fView = new LoggingView(fWindow->Bounds(), "view", fLog);
		fWindow->AddChild(fView);
		fWindow->Show();
		ASSERT_TRUE(test::WaitFor([this]() { return PixelAt(50, 50) == kOld; }));
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	QRgb PixelAt(int x, int y)
	{
		const QImage picture = test::PictureOf(fWindow);
		return picture.rect().contains(x, y) ? picture.pixel(x, y) : 0;
	}

	void Recolor()
	{
		fView->color = {200, 100, 50, 255};
		fView->Invalidate();
	}

	Log fLog;
	LoggingWindow* fWindow = nullptr;
	LoggingView* fView = nullptr;
};

} // namespace


TEST_F(WindowUpdate, ShowsTheWholeWindow)
{
	const QImage picture = test::PictureOf(fWindow);
	EXPECT_EQ(picture.size(), QSize(100, 100));
	EXPECT_EQ(PixelAt(0, 0), kOld);
	EXPECT_EQ(PixelAt(99, 99), kOld);
}


TEST_F(WindowUpdate, FromAnotherThreadIsPaintedSoon)
{
	{
		BAutolock lock(fWindow);
		Recolor();
	}
	EXPECT_TRUE(test::WaitFor([this]() { return PixelAt(99, 99) == kNew; }));
}


TEST_F(WindowUpdate, DirectDrawingIsShownWithoutAnUpdate)
{
	const int draws = fLog.Count("view: draw");
	{
		BAutolock lock(fWindow);
		fView->SetHighColor(1, 2, 3);
		fView->FillRect(BRect(10, 10, 19, 19));
	}
	EXPECT_TRUE(test::WaitFor([this]() { return PixelAt(15, 15) == qRgb(1, 2, 3); }));
	EXPECT_EQ(PixelAt(20, 20), kOld);
	EXPECT_EQ(fLog.Count("view: draw"), draws);
}


TEST_F(WindowUpdate, ManyInvalidationsAreOneDraw)
{
	test::Settle(fWindow);
	const int draws = fLog.Count("view: draw");
	{
		BAutolock lock(fWindow);
		for (int i = 0; i < 100; i++)
			fView->Invalidate(BRect(i, i, i, i));
	}
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Count("view: draw"), draws + 1);
}


TEST_F(WindowUpdate, NothingIsPaintedWhileUpdatesAreOff)
{
	fWindow->DisableUpdates();
	{
		BAutolock lock(fWindow);
		Recolor();
	}
	test::Settle(fWindow);
	EXPECT_EQ(PixelAt(50, 50), kOld);
	fWindow->EnableUpdates();
	EXPECT_TRUE(test::WaitFor([this]() { return PixelAt(50, 50) == kNew; }));
}


TEST_F(WindowUpdate, NewAreaIsPaintedAfterAResize)
{
	fWindow->ResizeTo(199, 149);
	EXPECT_TRUE(test::WaitFor([this]() { return PixelAt(199, 149) == kOld; }));
	EXPECT_EQ(test::PictureOf(fWindow).size(), QSize(200, 150));
	fWindow->ResizeTo(49, 49);
	EXPECT_TRUE(
		test::WaitFor([this]() { return test::PictureOf(fWindow).size() == QSize(50, 50); }));
	EXPECT_EQ(PixelAt(49, 49), kOld);
}


TEST_F(WindowUpdate, IsPaintedInTheMidstOfAFlood)
{
	std::atomic<bool> stop{false};
	const BMessenger messenger(fWindow);
	std::thread flood([&]() {
		while (!stop)
			messenger.SendMessage('many');
	});
	{
		BAutolock lock(fWindow);
		Recolor();
	}
	EXPECT_TRUE(test::WaitFor([this]() { return PixelAt(50, 50) == kNew; }));
	stop = true;
	flood.join();
}


TEST_F(WindowUpdate, AfterHidingEverythingIsPaintedAnew)
{
	fWindow->Hide();
	{
		BAutolock lock(fWindow);
		Recolor();
	}
	test::Settle(fWindow);
	EXPECT_EQ(PixelAt(50, 50), kOld);
	fWindow->Show();
	EXPECT_TRUE(test::WaitFor([this]() { return PixelAt(50, 50) == kNew; }));
}


// The window's own thread may paint in the middle of handling a message.
TEST_F(WindowUpdate, IfNeededPaintsAtOnce)
{
	class TaskHandler : public BHandler {
	public:
		explicit TaskHandler(const std::function<void()>& task)
			:
			fTask(task)
		{
		}

		void MessageReceived(BMessage*) override { fTask(); }

	private:
		std::function<void()> fTask;
	};

	std::atomic<bool> sawNewPixel{false};
	std::atomic<bool> isDone{false};
	TaskHandler handler([&]() {
		Recolor();
		fWindow->UpdateIfNeeded();
		sawNewPixel = PixelAt(50, 50) == kNew;
		isDone = true;
	});
	fWindow->Lock();
	fWindow->AddHandler(&handler);
	fWindow->Unlock();
	BMessenger(&handler).SendMessage('test');
	EXPECT_TRUE(test::WaitFor([&]() { return isDone.load(); }));
	EXPECT_TRUE(sawNewPixel);
	fWindow->Lock();
	fWindow->RemoveHandler(&handler);
	fWindow->Unlock();
}
