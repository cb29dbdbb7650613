// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <math.h>

#include <QWidget>

#include <Autolock.h>
#include <Screen.h>
#include <Window.h>

#include "platform/screen/QtMessages.h"
#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"

using test::Log;
using test::LoggingView;
using test::LoggingWindow;


namespace {

class WindowFrame : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new LoggingWindow(BRect(60, 70, 359, 269), fLog);
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	void Show()
	{
		fWindow->Show();
		test::Settle(fWindow);
	}

	BRect Frame()
	{
		return test::Locked(fWindow, [this]() { return fWindow->Frame(); });
	}

	BRect Bounds()
	{
		return test::Locked(fWindow, [this]() { return fWindow->Bounds(); });
	}

	QRect WidgetFrame()
	{
		QRect frame;
		test::OnWidget(fWindow, [&frame](QWidget& widget) {
			frame = QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size());
		});
		return frame;
	}

	// As the window manager does it.
	void SetWidgetFrame(const QRect& frame)
	{
		test::OnWidget(fWindow, [&frame](QWidget& widget) { widget.setGeometry(frame); });
		test::Settle(fWindow);
	}

	Log fLog;
	LoggingWindow* fWindow = nullptr;
};

} // namespace


TEST_F(WindowFrame, IsRoundedAtConstruction)
{
	LoggingWindow* window = new LoggingWindow(BRect(10.4f, 20.5f, 110.6f, 80.2f), fLog);
	EXPECT_EQ(window->Frame(), BRect(10, 21, 111, 80));
	EXPECT_EQ(window->Bounds(), BRect(0, 0, 101, 59));
	test::CloseWindow(window);
}


TEST_F(WindowFrame, ChangesAtOnceAndIsReportedLater)
{
	fWindow->MoveTo(100.4f, 50);
	fWindow->ResizeTo(400, 299.6f);
	EXPECT_EQ(Frame(), BRect(100, 50, 500, 350));
	EXPECT_TRUE(fLog.Lines().empty());

	Show();
	EXPECT_EQ(fLog.Count("moved to 100 50"), 1);
	EXPECT_EQ(fLog.Count("resized to 400 300"), 1);
}


TEST_F(WindowFrame, PendingResizesAreOneCall)
{
	Show();
	fLog.Clear();
	{
		BAutolock lock(fWindow);
		for (int width = 300; width < 350; width++)
			fWindow->ResizeTo(width, 200);
	}
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Lines(), std::vector<std::string>({"resized to 349 200"}));
	EXPECT_EQ(WidgetFrame().size(), QSize(350, 201));
}


TEST_F(WindowFrame, NoChangeIsNoCall)
{
	Show();
	fLog.Clear();
	fWindow->MoveTo(Frame().LeftTop());
	fWindow->ResizeTo(299, 199);
	test::Settle(fWindow);
	EXPECT_TRUE(fLog.Lines().empty());
}


TEST_F(WindowFrame, ChildrenFollowAtOnce)
{
	LoggingView* view = new LoggingView(Bounds(), "child", fLog);
	fWindow->AddChild(view);
	fWindow->ResizeTo(500, 400);
	EXPECT_EQ(view->Frame(), BRect(0, 0, 500, 400));
}


TEST_F(WindowFrame, SizeLimitsClampNowAndLater)
{
	fWindow->SetSizeLimits(600, 1240, 382, 1024);
	EXPECT_EQ(Bounds(), BRect(0, 0, 600, 382));
	fWindow->ResizeTo(5000, 5000);
	EXPECT_EQ(Bounds(), BRect(0, 0, 1240, 1024));
	fWindow->ResizeTo(10, 10);
	EXPECT_EQ(Bounds(), BRect(0, 0, 600, 382));

	Show();
	test::OnWidget(fWindow, [](QWidget& widget) {
		EXPECT_EQ(widget.minimumSize(), QSize(601, 383));
		EXPECT_EQ(widget.maximumSize(), QSize(1241, 1025));
		EXPECT_EQ(widget.size(), QSize(601, 383));
	});
}


TEST_F(WindowFrame, CrossedSizeLimitsAreIgnored)
{
	fWindow->SetSizeLimits(200, 100, 0, 1000);
	fWindow->SetSizeLimits(0, 1000, 200, 100);
	float minWidth;
	float maxWidth;
	float minHeight;
	float maxHeight;
	fWindow->GetSizeLimits(&minWidth, &maxWidth, &minHeight, &maxHeight);
	EXPECT_EQ(minWidth, 0);
	EXPECT_EQ(maxWidth, 32768);
	EXPECT_EQ(minHeight, 0);
	EXPECT_EQ(maxHeight, 32768);
	EXPECT_EQ(Bounds(), BRect(0, 0, 299, 199));
}


TEST_F(WindowFrame, LimitsBeyondAllMeasureDoNoHarm)
{
	Show();
	const int warnings = hosted::CountQtWarnings();
	for (const float limit : {-4e9f, 4e9f, 3e38f}) {
		fWindow->SetSizeLimits(-fabsf(limit), fabsf(limit), -fabsf(limit), fabsf(limit));
		fWindow->SetSizeLimits(limit, limit, 0, 1000);
		fWindow->SetSizeLimits(0, 1000, 0, 1000);
	}
	EXPECT_EQ(Bounds(), BRect(0, 0, 1000, 199));
	fWindow->SetSizeLimits(100, 500, 50, 400);
	fWindow->SetSizeLimits(NAN, NAN, 0, 10);
	fWindow->SetSizeLimits(0, 10, 0, NAN);
	test::Settle(fWindow);
	float maxWidth;
	float maxHeight;
	test::Locked(fWindow,
		[&]() { fWindow->GetSizeLimits(nullptr, &maxWidth, nullptr, &maxHeight); });
	EXPECT_EQ(maxWidth, 500);
	EXPECT_EQ(maxHeight, 400);

	const BRect frame = Frame();
	fWindow->MoveTo(NAN, 3);
	fWindow->ResizeTo(NAN, 300);
	EXPECT_EQ(Frame(), frame);
	fWindow->ResizeTo(3e38f, -3e38f);
	fWindow->MoveTo(3e38f, -3e38f);
	EXPECT_EQ(Bounds(), BRect(0, 0, 500, 50));
	fWindow->MoveTo(frame.LeftTop());
	test::Settle(fWindow);
	EXPECT_EQ(Frame().LeftTop(), frame.LeftTop());
	EXPECT_EQ(hosted::CountQtWarnings(), warnings);
}


TEST_F(WindowFrame, NonsenseAtConstructionIsPutRight)
{
	const int warnings = hosted::CountQtWarnings();
	for (const float bad : {NAN, INFINITY, -INFINITY, 3e38f, -3e38f}) {
		for (const BRect frame : {BRect(bad, 10, 100, 100), BRect(10, 10, bad, 100),
				 BRect(10, bad, 100, bad), BRect(bad, bad, bad, bad)}) {
			LoggingWindow* const window = new LoggingWindow(frame, fLog);
			window->Show();
			test::Settle(window);
			const BRect shown = test::Locked(window, [window]() { return window->Frame(); });
			for (const float edge : {shown.left, shown.bottom})
				EXPECT_LE(fabsf(edge), 2000000);
			test::CloseWindow(window);
		}
	}
	EXPECT_EQ(hosted::CountQtWarnings(), warnings);
}


TEST_F(WindowFrame, ZoomTogglesWithinItsLimits)
{
	fWindow->SetSizeLimits(100, 600, 100, 500);
	fWindow->SetZoomLimits(400, 9000);
	const BRect before = Frame();
	const BRect screen = BScreen().Frame();
	fWindow->Zoom();
	EXPECT_EQ(Frame().Width(), 400);
	EXPECT_EQ(Frame().Height(), std::min(500.0f, screen.Height()));
	EXPECT_EQ(Frame().left, floorf((screen.Width() - 400) / 2));
	fWindow->Zoom();
	EXPECT_EQ(Frame(), before);
}


TEST_F(WindowFrame, IsCenteredOnTheScreen)
{
	const BRect screen = BScreen().Frame();
	ASSERT_TRUE(screen.IsValid());
	EXPECT_EQ(screen.LeftTop(), BPoint(0, 0));
	fWindow->CenterOnScreen();
	EXPECT_NEAR(Frame().left, (screen.Width() - 299) / 2, 1);
	EXPECT_NEAR(Frame().top, (screen.Height() - 199) / 2, 1);
}


TEST_F(WindowFrame, TheContentsAreWhereTheFrameSays)
{
	Show();
	EXPECT_EQ(WidgetFrame(), QRect(60, 70, 300, 200));
	fWindow->MoveBy(5, -6);
	test::Settle(fWindow);
	EXPECT_EQ(WidgetFrame().topLeft(), QPoint(65, 64));
	BAutolock lock(fWindow);
	EXPECT_EQ(fWindow->ConvertToScreen(BPoint(1, 2)), BPoint(66, 66));
	EXPECT_EQ(fWindow->ConvertFromScreen(BPoint(66, 66)), BPoint(1, 2));
}


TEST_F(WindowFrame, TheUsersFrameIsAdopted)
{
	LoggingView* view = new LoggingView(Bounds(), "child", fLog);
	fWindow->AddChild(view);
	Show();
	fLog.Clear();
	SetWidgetFrame(QRect(80, 90, 400, 250));
	EXPECT_EQ(Frame(), BRect(80, 90, 479, 339));
	EXPECT_EQ(test::Locked(fWindow, [view]() { return view->Frame(); }), BRect(0, 0, 399, 249));
	EXPECT_EQ(fLog.Count("moved to 80 90"), 1);
	EXPECT_EQ(fLog.Count("resized to 399 249"), 1);

	// And back to what the window itself had asked for.
	SetWidgetFrame(QRect(60, 70, 300, 200));
	EXPECT_EQ(Frame(), BRect(60, 70, 359, 269));
}


TEST_F(WindowFrame, TheWindowsOwnRequestWinsOverAnOlderReport)
{
	Show();
	{
		BAutolock lock(fWindow);
		test::OnWidget(fWindow, [](QWidget& widget) { widget.resize(333, 222); });
		fWindow->ResizeTo(449, 349);
	}
	test::Settle(fWindow);
	EXPECT_EQ(Bounds(), BRect(0, 0, 449, 349));
	EXPECT_EQ(WidgetFrame().size(), QSize(450, 350));
}


TEST_F(WindowFrame, AStormFromBothSidesEndsInAgreement)
{
	Show();
	for (int round = 0; round < 200; round++) {
		if (round % 3 == 0) {
			fWindow->ResizeTo(200 + round, 150 + round % 7);
		} else {
			test::OnWidget(fWindow,
				[round](QWidget& widget) { widget.resize(600 - round, 300 + round % 5); });
		}
	}
	// A window manager may take its time.
	EXPECT_TRUE(test::WaitFor([this]() {
		test::Settle(fWindow);
		BAutolock lock(fWindow);
		const BRect bounds = Bounds();
		return WidgetFrame().size() == QSize(bounds.Width() + 1, bounds.Height() + 1);
	}));
}


TEST_F(WindowFrame, AFixedSizeStillObeysTheProgram)
{
	LoggingWindow* window = new LoggingWindow(BRect(20, 80, 840, 100), fLog, B_NOT_RESIZABLE);
	window->Show();
	test::Settle(window);
	window->ResizeTo(500, 60);
	test::Settle(window);
	test::OnWidget(window, [](QWidget& widget) {
		EXPECT_EQ(widget.size(), QSize(501, 61));
		EXPECT_EQ(widget.minimumSize(), QSize(501, 61));
		EXPECT_EQ(widget.maximumSize(), QSize(501, 61));
	});
	test::CloseWindow(window);
}
