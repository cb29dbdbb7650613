// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <QWidget>
#include <QWindow>

#include <Autolock.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"

using test::Log;
using test::LoggingWindow;


namespace {

class WindowLook : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new LoggingWindow(BRect(60, 70, 359, 269), fLog);
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	Qt::WindowFlags NativeFlags()
	{
		test::Settle(fWindow);
		Qt::WindowFlags flags;
		test::OnWidget(fWindow,
			[&flags](QWidget& widget) { flags = widget.windowHandle()->flags(); });
		return flags;
	}

	Log fLog;
	LoggingWindow* fWindow = nullptr;
};

} // namespace


TEST_F(WindowLook, OnlyKnownLooksAreTaken)
{
	const int known[] = {1, 3, 4, 7, 11, 19, 20, 25};
	for (int value = 0; value < 32; value++) {
		const window_look before = fWindow->Look();
		const bool isKnown
			= std::find(std::begin(known), std::end(known), value) != std::end(known);
		EXPECT_EQ(fWindow->SetLook(static_cast<window_look>(value)), isKnown ? B_OK : B_BAD_VALUE);
		EXPECT_EQ(fWindow->Look(), isKnown ? static_cast<window_look>(value) : before);
	}
}


// As a program hides the tab of its window: by taking bits out of the look's value.
TEST_F(WindowLook, ClearedBitsOfALook)
{
	const auto mask = [this](window_look look) {
		EXPECT_EQ(fWindow->SetLook(look), B_OK);
		return fWindow->SetLook(static_cast<window_look>(look & ~0x13));
	};
	EXPECT_EQ(mask(B_FLOATING_WINDOW_LOOK), B_OK);
	EXPECT_EQ(fWindow->Look(), 4);
	EXPECT_EQ(mask(B_BORDERED_WINDOW_LOOK), B_OK);
	EXPECT_EQ(fWindow->Look(), 4);
	for (window_look look : {B_TITLED_WINDOW_LOOK, B_MODAL_WINDOW_LOOK, B_NO_BORDER_WINDOW_LOOK,
			 B_DOCUMENT_WINDOW_LOOK}) {
		EXPECT_EQ(mask(look), B_BAD_VALUE);
		EXPECT_EQ(fWindow->Look(), look);
	}
}


TEST_F(WindowLook, TypesAreLooksWithFeels)
{
	const struct {
		window_type type;
		int look;
		int feel;
	} rows[] = {
		{B_TITLED_WINDOW, 1, 0},
		{B_DOCUMENT_WINDOW, 11, 0},
		{B_BORDERED_WINDOW, 20, 0},
		{B_MODAL_WINDOW, 3, 1},
		{B_FLOATING_WINDOW, 7, 4},
	};
	for (const auto& row : rows) {
		EXPECT_EQ(fWindow->SetType(row.type), B_OK);
		EXPECT_EQ(fWindow->Look(), row.look);
		EXPECT_EQ(fWindow->Feel(), row.feel);
		EXPECT_EQ(fWindow->Type(), row.type);
	}
	EXPECT_EQ(fWindow->SetType(B_BORDERED_WINDOW), B_OK);
	EXPECT_EQ(fWindow->SetLook(B_MODAL_WINDOW_LOOK), B_OK);
	EXPECT_EQ(fWindow->Type(), B_UNTYPED_WINDOW);
	EXPECT_EQ(fWindow->SetType(B_UNTYPED_WINDOW), B_OK);
	EXPECT_EQ(fWindow->Look(), B_TITLED_WINDOW_LOOK);
}


TEST_F(WindowLook, FeelsAndFlagsAreChecked)
{
	EXPECT_EQ(fWindow->SetFeel(static_cast<window_feel>(7)), B_BAD_VALUE);
	EXPECT_EQ(fWindow->Feel(), B_NORMAL_WINDOW_FEEL);
	EXPECT_EQ(fWindow->SetFlags(0x20000000), B_BAD_VALUE);
	EXPECT_EQ(fWindow->SetFlags(B_NOT_ZOOMABLE), B_OK);
	EXPECT_EQ(fWindow->Flags(), B_NOT_ZOOMABLE | B_ASYNCHRONOUS_CONTROLS);
}


TEST_F(WindowLook, UnknownFlagsOfTheConstructorDoNothing)
{
	LoggingWindow* window = new LoggingWindow(BRect(0, 0, 99, 99), fLog, 0x20000000);
	EXPECT_EQ(window->Flags() & B_ASYNCHRONOUS_CONTROLS, uint32(B_ASYNCHRONOUS_CONTROLS));
	window->Show();
	test::Settle(window);
	EXPECT_TRUE(test::OnWidget(window, [](QWidget& widget) {
		EXPECT_TRUE(widget.isVisible());
		EXPECT_EQ(widget.maximumSize(), QSize(32769, 32769));
	}));
	test::CloseWindow(window);
}


TEST_F(WindowLook, BordersComeAndGoWhileTheWindowIsShown)
{
	fWindow->Show();
	EXPECT_FALSE(NativeFlags() & Qt::FramelessWindowHint);
	EXPECT_TRUE(NativeFlags() & Qt::WindowTitleHint);

	fWindow->SetLook(static_cast<window_look>(4));
	EXPECT_TRUE(NativeFlags() & Qt::FramelessWindowHint);
	fWindow->SetLook(B_FLOATING_WINDOW_LOOK);
	EXPECT_FALSE(NativeFlags() & Qt::FramelessWindowHint);
	EXPECT_TRUE(test::OnWidget(fWindow, [](QWidget& widget) { EXPECT_TRUE(widget.isVisible()); }));
	EXPECT_EQ(test::Locked(fWindow, [this]() { return fWindow->Frame(); }),
		BRect(60, 70, 359, 269));
}


TEST_F(WindowLook, FloatingAllStaysOnTop)
{
	fWindow->Show();
	EXPECT_FALSE(NativeFlags() & Qt::WindowStaysOnTopHint);
	fWindow->SetFeel(B_FLOATING_ALL_WINDOW_FEEL);
	EXPECT_TRUE(NativeFlags() & Qt::WindowStaysOnTopHint);
	fWindow->SetFeel(B_NORMAL_WINDOW_FEEL);
	EXPECT_FALSE(NativeFlags() & Qt::WindowStaysOnTopHint);
}


TEST_F(WindowLook, FlagsTakeButtonsAway)
{
	fWindow->Show();
	EXPECT_TRUE(NativeFlags() & Qt::WindowCloseButtonHint);
	EXPECT_TRUE(NativeFlags() & Qt::WindowMaximizeButtonHint);
	fWindow->SetFlags(B_NOT_CLOSABLE | B_NOT_ZOOMABLE | B_NOT_MINIMIZABLE);
	EXPECT_FALSE(NativeFlags() & Qt::WindowCloseButtonHint);
	EXPECT_FALSE(NativeFlags() & Qt::WindowMaximizeButtonHint);
	EXPECT_FALSE(NativeFlags() & Qt::WindowMinimizeButtonHint);
}


TEST_F(WindowLook, TitlesArriveUnchanged)
{
	fWindow->SetTitle("using: >> /a [*] b/\xc3\xa4\xe3\x81\x82");
	EXPECT_STREQ(fWindow->Title(), "using: >> /a [*] b/\xc3\xa4\xe3\x81\x82");
	fWindow->Show();
	test::Settle(fWindow);
	test::OnWidget(fWindow, [](QWidget& widget) {
		EXPECT_EQ(widget.windowHandle()->title().toStdString(),
			"using: >> /a [*] b/\xc3\xa4\xe3\x81\x82");
	});
	BAutolock lock(fWindow);
	fWindow->SetTitle(nullptr);
	EXPECT_STREQ(fWindow->Title(), "");
}


TEST_F(WindowLook, MinimizingGoesBothWays)
{
	const auto windowIsMinimized = [this]() {
		BAutolock lock(fWindow);
		return fWindow->IsMinimized();
	};
	fWindow->Show();
	fWindow->Minimize(true);
	EXPECT_TRUE(test::WaitFor([this, windowIsMinimized]() {
		bool seen = false;
		// The window manager has done it when nothing of the window is left on the screen.
		test::OnWidget(fWindow, [&seen](QWidget& widget) {
			seen = widget.isMinimized()
				&& (!test::HasWindowManager() || !widget.windowHandle()->isExposed());
		});
		return seen && windowIsMinimized();
	}));
	test::OnWidget(fWindow, [](QWidget& widget) { widget.setWindowState(Qt::WindowNoState); });
	EXPECT_TRUE(test::WaitFor([windowIsMinimized]() { return !windowIsMinimized(); }));
}
