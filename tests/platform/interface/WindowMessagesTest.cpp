// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <string>
#include <unistd.h>
#include <vector>

#include <AppDefs.h>
#include <Autolock.h>
#include <Message.h>
#include <MessageQueue.h>
#include <Messenger.h>
#include <Window.h>

#include "platform/app/Delivery.h"
#include "platform/interface/InputFields.h"
#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"

using test::Log;
using test::LoggingView;
using test::LoggingWindow;


namespace {

// Tells which of the hooks ran that LoggingWindow leaves alone.
class HookWindow : public LoggingWindow {
public:
	HookWindow(Log& log, uint32 flags)
		:
		LoggingWindow(BRect(60, 70, 359, 269), log, flags),
		fLog(log)
	{
	}

	void Zoom(BPoint, float, float) override { fLog.Add("zoom"); }
	void Minimize(bool minimize) override { fLog.Add(minimize ? "minimize" : "restore"); }

	void ScreenChanged(BRect frame, color_space space) override
	{
		fLog.Add("screen " + std::to_string(int(frame.right)) + " " + std::to_string(space));
	}

	void WorkspaceActivated(int32 workspace, bool active) override
	{
		fLog.Add("workspace " + std::to_string(workspace) + (active ? " on" : " off"));
	}

	void WorkspacesChanged(uint32 old, uint32 now) override
	{
		fLog.Add("workspaces " + std::to_string(old) + " " + std::to_string(now));
	}

private:
	Log& fLog;
};


class WindowMessages : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		Open(0);
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	void Open(uint32 flags)
	{
		fWindow = new HookWindow(fLog, flags);
		fView = new LoggingView(fWindow->Bounds(), "view", fLog);
		fWindow->AddChild(fView);
		fView->MakeFocus(true);
		fWindow->Show();
		test::Settle(fWindow);
	}

	// Delivers the message as if another program had sent it.
	status_t SendFromOutside(const BMessenger& target, const BMessage& message)
	{
		std::vector<char> bytes(static_cast<size_t>(message.FlattenedSize()));
		message.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size()));
		return hosted::DeliverFromOutside(hosted::MessengerAccess::AddressOf(target), bytes.data(),
			bytes.size(), getpid() + 1);
	}

	Log fLog;
	HookWindow* fWindow = nullptr;
	LoggingView* fView = nullptr;
};

} // namespace


TEST_F(WindowMessages, QuitRequestsAndPulsesAreTheWindowsWhoeverHasTheFocus)
{
	fWindow->agreesToQuit = false;
	fWindow->SetPulseRate(0);
	const BMessenger preferred(nullptr, fWindow);
	for (const BMessenger& target : {preferred, BMessenger(fView)}) {
		fLog.Clear();
		target.SendMessage(B_QUIT_REQUESTED);
		target.SendMessage(B_PULSE);
		test::Settle(fWindow);
		EXPECT_EQ(fLog.Count("quit requested"), 1);
		EXPECT_TRUE(fLog.Messages(B_QUIT_REQUESTED).empty());
		EXPECT_TRUE(fLog.Messages(B_PULSE).empty());
	}
}


TEST_F(WindowMessages, BecomeHooks)
{
	const BMessenger target(fWindow);
	BMessage screen(B_SCREEN_CHANGED);
	screen.AddRect("frame", BRect(0, 0, 799, 599));
	screen.AddInt32("mode", B_RGB32);
	BMessage workspace(B_WORKSPACE_ACTIVATED);
	workspace.AddInt32("workspace", 2);
	workspace.AddBool("active", true);
	BMessage workspaces(B_WORKSPACES_CHANGED);
	workspaces.AddInt32("old", 1);
	workspaces.AddInt32("new", 4);
	BMessage restore(B_MINIMIZE);
	restore.AddBool("minimize", false);
	target.SendMessage(B_ZOOM);
	target.SendMessage(B_MINIMIZE);
	for (BMessage* message : {&restore, &screen, &workspace, &workspaces})
		target.SendMessage(message);
	test::Settle(fWindow);

	for (const char* line :
		{"zoom", "minimize", "restore", "screen 799 8", "workspace 2 on", "workspaces 1 4"})
		EXPECT_EQ(fLog.Count(line), 1) << line;
	for (const int32 code :
		{B_ZOOM, B_MINIMIZE, B_SCREEN_CHANGED, B_WORKSPACE_ACTIVATED, B_WORKSPACES_CHANGED})
		EXPECT_TRUE(fLog.Messages(code).empty()) << code;
}


TEST_F(WindowMessages, TheFlagQuitsTheApplicationWithTheWindow)
{
	BMessageQueue* const queue = test::Application().MessageQueue();
	for (const uint32 flags : {uint32(0), uint32(B_QUIT_ON_WINDOW_CLOSE)}) {
		test::CloseWindow(fWindow);
		Open(flags);
		const BMessenger target(fWindow);
		target.SendMessage(B_QUIT_REQUESTED);
		EXPECT_TRUE(test::WaitFor([&] { return !target.IsValid(); }));
		BMessage* const asked = queue->FindMessage(B_QUIT_REQUESTED, 0);
		EXPECT_EQ(asked != nullptr, flags != 0);
		if (asked != nullptr)
			queue->RemoveMessage(asked);
		delete asked;
		Open(0);
	}
}


TEST_F(WindowMessages, OnlyViewsThatWantThemGetFrameEvents)
{
	class FrameView : public BView {
	public:
		FrameView(const char* name, Log& log, uint32 flags)
			:
			BView(BRect(0, 0, 49, 49), name, B_FOLLOW_NONE, flags),
			fLog(log)
		{
		}

		void FrameMoved(BPoint where) override { _Add("moved", where.x, where.y); }
		void FrameResized(float width, float height) override { _Add("resized", width, height); }

	private:
		void _Add(const char* what, float first, float second)
		{
			fLog.Add(std::string(Name()) + " " + what + " " + std::to_string(int(first)) + " "
				+ std::to_string(int(second)));
		}

		Log& fLog;
	};

	Log log;
	FrameView* const told = new FrameView("told", log, B_WILL_DRAW | B_FRAME_EVENTS);
	FrameView* const silent = new FrameView("silent", log, B_WILL_DRAW);
	{
		BAutolock lock(fWindow);
		for (FrameView* view : {told, silent}) {
			fWindow->AddChild(view);
			view->MoveTo(7, 8);
			view->ResizeTo(30, 40);
			EXPECT_EQ(view->Frame(), BRect(7, 8, 37, 48));
		}
		// They come later, as messages.
		EXPECT_TRUE(log.Lines().empty());
	}
	test::Settle(fWindow);
	EXPECT_EQ(log.Lines(), (std::vector<std::string>{"told moved 7 8", "told resized 30 40"}));
}


// What only the desktop may say: that the user has moved the window, pressed a key or a button.
TEST_F(WindowMessages, OtherProgramsAreNotTheDesktop)
{
	const auto windowFrame = [this]() { return fWindow->Frame(); };
	const BRect frame = test::Locked(fWindow, windowFrame);
	const BMessenger target(fWindow);
	BMessage moved(B_WINDOW_MOVED);
	moved.AddInt32(hosted::kInputKind, hosted::kInputFrame);
	moved.AddPoint("where", BPoint(-3e9f, 2e9f));
	BMessage resized(B_WINDOW_RESIZED);
	resized.AddInt32(hosted::kInputKind, hosted::kInputFrame);
	resized.AddInt32("width", 2147483647);
	resized.AddInt32("height", -2147483647);
	BMessage pressed(B_MOUSE_DOWN);
	pressed.AddInt32(hosted::kInputKind, hosted::kInputPointer);
	pressed.AddPoint(hosted::kInputWhere, BPoint(5, 5));
	BMessage key(B_KEY_DOWN);
	key.AddInt32(hosted::kInputKind, hosted::kInputKey);
	key.AddInt32("raw_char", 'w');
	key.AddInt32("modifiers", B_COMMAND_KEY);
	for (const BMessage* message : {&moved, &resized, &pressed, &key})
		EXPECT_EQ(SendFromOutside(target, *message), B_OK);
	test::Settle(fWindow);

	EXPECT_EQ(test::Locked(fWindow, windowFrame), frame);
	for (const std::string& line : fLog.Lines()) {
		EXPECT_NE(line.compare(0, 8, "moved to"), 0) << line;
		EXPECT_NE(line.compare(0, 10, "resized to"), 0) << line;
	}
	EXPECT_EQ(fLog.Count("view: down"), 0);
	EXPECT_EQ(fLog.Count("quit requested"), 0);
}
