// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WINDOW_H
#define WINDOW_H

#include <memory>

#include <Looper.h>
#include <Rect.h>
#include <View.h>

class BButton;
class BMessage;

namespace hosted {
class WindowHost;
}


enum window_type {
	B_UNTYPED_WINDOW = 0,
	B_TITLED_WINDOW = 1,
	B_MODAL_WINDOW = 3,
	B_DOCUMENT_WINDOW = 11,
	B_BORDERED_WINDOW = 20,
	B_FLOATING_WINDOW = 21
};

enum window_look {
	B_BORDERED_WINDOW_LOOK = 20,
	B_NO_BORDER_WINDOW_LOOK = 19,
	B_TITLED_WINDOW_LOOK = 1,
	B_DOCUMENT_WINDOW_LOOK = 11,
	B_MODAL_WINDOW_LOOK = 3,
	B_FLOATING_WINDOW_LOOK = 7
};

enum window_feel {
	B_NORMAL_WINDOW_FEEL = 0,
	B_MODAL_APP_WINDOW_FEEL = 1,
	B_MODAL_SUBSET_WINDOW_FEEL = 2,
	B_MODAL_ALL_WINDOW_FEEL = 3,
	B_FLOATING_APP_WINDOW_FEEL = 4,
	B_FLOATING_SUBSET_WINDOW_FEEL = 5,
	B_FLOATING_ALL_WINDOW_FEEL = 6
};

// Window flags.
enum {
	B_NOT_MOVABLE = 0x00000001,
	B_NOT_RESIZABLE = 0x00000002,
	B_NOT_H_RESIZABLE = 0x00000004,
	B_NOT_V_RESIZABLE = 0x00000008,
	B_WILL_ACCEPT_FIRST_CLICK = 0x00000010,
	B_NOT_CLOSABLE = 0x00000020,
	B_NOT_ZOOMABLE = 0x00000040,
	B_AVOID_FRONT = 0x00000080,
	B_NO_WORKSPACE_ACTIVATION = 0x00000100,
	B_OUTLINE_RESIZE = 0x00001000,
	B_AVOID_FOCUS = 0x00002000,
	B_NOT_MINIMIZABLE = 0x00004000,
	B_ASYNCHRONOUS_CONTROLS = 0x00080000,
	B_QUIT_ON_WINDOW_CLOSE = 0x00100000,
	B_SAME_POSITION_IN_ALL_WORKSPACES = 0x00200000,
	B_AUTO_UPDATE_SIZE_LIMITS = 0x00400000,
	B_CLOSE_ON_ESCAPE = 0x00800000
};

#define B_CURRENT_WORKSPACE 0
#define B_ALL_WORKSPACES 0xffffffff


/*!	A window with a thread of its own, in which all of its hooks and those of its views run.

	Made hidden and locked; the first Show() starts the thread and gives up that lock.
*/
class BWindow : public BLooper {
public:
	BWindow(BRect frame, const char* title, window_type type, uint32 flags,
		uint32 workspace = B_CURRENT_WORKSPACE);
	BWindow(BRect frame, const char* title, window_look look, window_feel feel, uint32 flags,
		uint32 workspace = B_CURRENT_WORKSPACE);
	~BWindow() override;

	void Quit() override;
	void Close();
	void DispatchMessage(BMessage* message, BHandler* handler) override;
	void MessageReceived(BMessage* message) override;
	virtual void FrameMoved(BPoint newPosition);
	virtual void FrameResized(float newWidth, float newHeight);
	virtual void WindowActivated(bool active);
	virtual void WorkspacesChanged(uint32 oldWorkspaces, uint32 newWorkspaces);
	virtual void WorkspaceActivated(int32 workspace, bool active);
	virtual void ScreenChanged(BRect screenSize, color_space depth);
	virtual void Minimize(bool minimize);
	virtual void Zoom(BPoint origin, float width, float height);
	virtual void MenusBeginning();
	virtual void MenusEnded();
	bool QuitRequested() override;
	virtual void Show();
	virtual void Hide();
	thread_id Run() override;
	// Other programs may get and set "Active", "Feel", "Flags", "Frame", "Hidden", "Look",
	// "Minimize", "Title" and "Workspaces", count and name a "View".
	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override;

	void AddChild(BView* child, BView* before = NULL);
	bool RemoveChild(BView* child);
	int32 CountChildren() const;
	BView* ChildAt(int32 index) const;
	BView* FindView(const char* viewName) const;
	BView* FindView(BPoint point) const;
	BView* CurrentFocus() const;
	BView* LastMouseMovedView() const;

	void MoveTo(BPoint point);
	void MoveTo(float x, float y);
	void MoveBy(float dx, float dy);
	void ResizeTo(float width, float height);
	void ResizeBy(float dx, float dy);
	void CenterIn(const BRect& rect);
	void CenterOnScreen();
	BRect Bounds() const;
	BRect Frame() const;
	const char* Title() const;
	void SetTitle(const char* title);
	bool IsHidden() const;
	bool IsMinimized() const;
	bool IsActive() const;
	bool IsFront() const;

	void SetSizeLimits(float minWidth, float maxWidth, float minHeight, float maxHeight);
	void GetSizeLimits(float* minWidth, float* maxWidth, float* minHeight, float* maxHeight);
	void SetZoomLimits(float maxWidth, float maxHeight);
	void Zoom();

	void SetPulseRate(bigtime_t rate);
	bigtime_t PulseRate() const;

	status_t SetType(window_type type);
	window_type Type() const;
	status_t SetLook(window_look look);
	window_look Look() const;
	status_t SetFeel(window_feel feel);
	window_feel Feel() const;
	status_t SetFlags(uint32 flags);
	uint32 Flags() const;
	bool IsModal() const;
	bool IsFloating() const;

	void Activate(bool active = true);
	void UpdateIfNeeded();
	void DisableUpdates();
	void EnableUpdates();
	void Flush() const;
	void Sync() const;

	void AddShortcut(uint32 key, uint32 modifiers, BMessage* message);
	void AddShortcut(uint32 key, uint32 modifiers, BMessage* message, BHandler* target);
	void RemoveShortcut(uint32 key, uint32 modifiers);
	void SetDefaultButton(BButton* button);
	BButton* DefaultButton() const;

	uint32 Workspaces() const;
	void SetWorkspaces(uint32 workspaces);

	void ConvertToScreen(BPoint* point) const;
	BPoint ConvertToScreen(BPoint point) const;
	void ConvertFromScreen(BPoint* point) const;
	BPoint ConvertFromScreen(BPoint point) const;
	void ConvertToScreen(BRect* rect) const;
	BRect ConvertToScreen(BRect rect) const;
	void ConvertFromScreen(BRect* rect) const;
	BRect ConvertFromScreen(BRect rect) const;

private:
	friend class hosted::WindowHost;

	BWindow(const BWindow&) = delete;
	BWindow& operator=(const BWindow&) = delete;

	void _BatchDone() override;
	BHandler* _TargetFor(BMessage* message, BHandler* target, bool preferred) override;

	void _Init(BRect frame, const char* title, uint32 flags, uint32 workspaces);
	void _FrameMessage(BMessage* message);
	void _ActivationMessage(BMessage* message);
	bool _DispatchOwn(BMessage* message);
	bool _AnswerProperty(BMessage* message);

private:
	std::unique_ptr<hosted::WindowHost> fHost;
};

#endif // WINDOW_H
