// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LOGGING_WINDOW_H
#define LOGGING_WINDOW_H

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

#include <Message.h>
#include <View.h>
#include <Window.h>


namespace test {

// What happened, in order; written by any thread.
class Log {
public:
	void Add(const std::string& line)
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fLines.push_back(line);
	}

	std::vector<std::string> Lines() const
	{
		std::lock_guard<std::mutex> lock(fMutex);
		return fLines;
	}

	int Count(const std::string& line) const
	{
		const std::vector<std::string> lines = Lines();
		return std::count(lines.begin(), lines.end(), line);
	}

	void Clear()
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fLines.clear();
		fMessages.clear();
	}

	void Keep(const BMessage& message)
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fMessages.push_back(message);
	}

	// The messages of that code, in order.
	std::vector<BMessage> Messages(uint32 what) const
	{
		std::lock_guard<std::mutex> lock(fMutex);
		std::vector<BMessage> found;
		for (const BMessage& message : fMessages) {
			if (message.what == what)
				found.push_back(message);
		}
		return found;
	}

	// The last one, an empty message if there is none.
	BMessage Last(uint32 what) const
	{
		const std::vector<BMessage> found = Messages(what);
		return found.empty() ? BMessage() : found.back();
	}

private:
	mutable std::mutex fMutex;
	std::vector<std::string> fLines;
	std::vector<BMessage> fMessages;
};


class LoggingView : public BView {
public:
	LoggingView(BRect frame, const char* name, Log& log, uint32 flags = B_WILL_DRAW)
		:
		BView(frame, name, B_FOLLOW_ALL, flags),
		fLog(log)
	{
	}

	~LoggingView() override { _Add(Window() == nullptr ? "deleted" : "deleted in window"); }

	void MessageReceived(BMessage* message) override
	{
		fLog.Keep(*message);
		if (message->WasDropped() && message->what == 'drag')
			message->SendReply('took');
		else
			BView::MessageReceived(message);
	}

	void MouseDown(BPoint) override
	{
		_Add("down");
		if (mask != 0)
			SetMouseEventMask(mask);
		if (dragged != nullptr)
			DragMessage(dragged, BRect(2, 3, 12, 13));
	}

	void MouseUp(BPoint) override { _Add("up"); }

	void MouseMoved(BPoint, uint32 code, const BMessage*) override
	{
		_Add("moved " + std::to_string(code));
	}

	void KeyDown(const char*, int32) override { _Add("key"); }
	void Pulse() override { _Add("pulse"); }
	void WindowActivated(bool active) override { _Add(active ? "active" : "inactive"); }
	void DetachedFromWindow() override { _Add("detached"); }

	void Draw(BRect) override
	{
		_Add("draw");
		SetHighColor(color);
		FillRect(Bounds());
	}

	rgb_color color = {10, 20, 30, 255};
	uint32 mask = 0;
	// Dragged by a press; the test's own.
	BMessage* dragged = nullptr;

private:
	void _Add(const char* what) { fLog.Add(std::string(Name()) + ": " + what); }
	void _Add(const std::string& what) { _Add(what.c_str()); }

private:
	Log& fLog;
};


class LoggingWindow : public BWindow {
public:
	LoggingWindow(BRect frame, Log& log, uint32 flags = 0)
		:
		BWindow(frame, "test", B_TITLED_WINDOW, flags),
		fLog(log)
	{
	}

	~LoggingWindow() override { fLog.Add("derived part deleted"); }

	void MessageReceived(BMessage* message) override
	{
		fLog.Keep(*message);
		// The base complains about dropped messages that nobody wants.
		if (!message->WasDropped())
			BWindow::MessageReceived(message);
	}

	void FrameMoved(BPoint where) override
	{
		fLog.Add("moved to " + std::to_string(int(where.x)) + " " + std::to_string(int(where.y)));
	}

	void FrameResized(float width, float height) override
	{
		fLog.Add("resized to " + std::to_string(int(width)) + " " + std::to_string(int(height)));
	}

	void WindowActivated(bool active) override { fLog.Add(active ? "active" : "inactive"); }

	bool QuitRequested() override
	{
		fLog.Add("quit requested");
		return agreesToQuit;
	}

	bool agreesToQuit = true;

private:
	Log& fLog;
};

} // namespace test

#endif // LOGGING_WINDOW_H
