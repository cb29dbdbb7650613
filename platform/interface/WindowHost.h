// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WINDOW_HOST_H
#define WINDOW_HOST_H

#include <memory>
#include <string>
#include <vector>

#include <QImage>
#include <QRegion>

#include <Message.h>
#include <MessageRunner.h>
#include <OS.h>
#include <Window.h>

#include "platform/interface/ViewHost.h"


namespace hosted {

class NativeWindow;

/*!	What a BWindow keeps: its views and their picture, where its input goes, its native window.

	Used with the window's lock held, except where noted.
*/
class WindowHost : public ViewHost {
public:
	static WindowHost* Of(const BWindow* window);

	WindowHost(BWindow* window, BRect frame, const char* title);
	~WindowHost() override;

	QImage* Image() override;
	void Painted(const QRegion& pixels) override;
	void NeedsUpdate(const QRegion& pixels) override;
	const QRegion& PendingUpdate() const override;
	BWindow* Window() override;
	BPoint ScreenOrigin() const override;
	bool GetMouse(BPoint* hostWhere, uint32* buttons, bool checkMessageQueue) override;
	void SetMouseEventMask(BView& view, uint32 mask, uint32 options) override;
	void DragMessage(BView& view, BMessage& message, BRect rect, BHandler* replyTo) override;
	void PulseNeeded() override;
	void ViewDetached(BView& view) override;
	void FocusChanged(BView* view) override;
	void Flush() override;

	// The view that covers the window and is the parent of all others.
	BView& Root() const { return *fRoot; }

	// The window on the desktop; may be asked for and used from any thread. It exists from the
	// start, even though nothing is to be seen before the first Show().
	const std::shared_ptr<NativeWindow>& Native() const { return fNative; }

private:
	friend class ::BWindow;

	static constexpr int32 kNoTarget = -1;

	struct Shortcut {
		uint32 key;
		uint32 modifiers;
		std::unique_ptr<BMessage> message;
		// The number of the handler, which may be gone by the time of the key; kNoTarget for the
		// focus view, or else the window.
		int32 target;
	};

	// How often the same place was clicked.
	struct Clicks {
		BView* view = nullptr;
		BPoint where;
		bigtime_t when = 0;
		uint32 button = 0;
		uint32 modifiers = 0;
		int32 count = 0;
	};

	// Painting.
	bool _IsHidden() const { return fHideLevel > 0; }
	void _SetVisible();
	void _SetSize(float width, float height);
	void _PaintPending();
	void _WakeWindow();

	// The frame, the look.
	static BRect _FirstFrame(BRect frame);
	void _RequestFrame();
	void _ClampToLimits(float& width, float& height) const;
	void _RequestLimits();
	void _RequestLook();
	bool _AdoptFrameMessage(BMessage& message);

	void _StartPulse();

	// Input.
	BHandler* _TargetFor(BMessage& message, BHandler* target);
	BHandler* _TargetForKey(BMessage& message);
	BHandler* _TargetForPointer(BMessage& message);
	BHandler* _TargetForWheel(BMessage& message);
	BHandler* _TargetForDrop(BMessage& message);
	BView* _ViewUnder(const BMessage& message) const;
	void _CountClick(BMessage& message, BView* view);
	void _SendPointerTo(const BMessage& message, BView& view, BPoint where, int32 transit);
	void _EndMouseEventMask(const BMessage& message);
	bool _HandleKeyDown(const BMessage& message);
	bool _InvokeShortcut(const BMessage& message, uint32 key, uint32 modifiers);
	void _AddShortcut(uint32 key, uint32 modifiers, BMessage* message, BHandler* target);
	void _RemoveShortcut(uint32 key, uint32 modifiers);
	bool _MoveFocus(bool forward);

private:
	BWindow* fWindow;
	std::unique_ptr<BView> fRoot;
	std::shared_ptr<NativeWindow> fNative;

	QImage fImage;
	QRegion fPending;
	QRegion fPainted;
	QSize fShownSize;
	int32 fUpdatesDisabled = 0;
	bool fIsPainting = false;
	bool fWakePosted = false;

	BRect fFrame;
	// Counts the changes of fFrame that did not come from the desktop.
	int32 fFrameSerial = 0;
	std::string fTitle;
	window_look fLook = B_TITLED_WINDOW_LOOK;
	window_feel fFeel = B_NORMAL_WINDOW_FEEL;
	uint32 fFlags = B_ASYNCHRONOUS_CONTROLS;
	uint32 fWorkspaces = 0;
	int32 fHideLevel = 1;
	bool fIsMinimized = false;
	bool fIsActive = false;
	float fMinWidth = 0;
	float fMaxWidth = 32768;
	float fMinHeight = 0;
	float fMaxHeight = 32768;
	float fMaxZoomWidth = 32768;
	float fMaxZoomHeight = 32768;
	// The frame to go back to; invalid as long as the window is not zoomed.
	BRect fUnzoomedFrame;
	BRect fZoomedFrame;

	bigtime_t fPulseRate = 500000;
	std::unique_ptr<BMessageRunner> fPulseRunner;

	// Views of the window: ViewDetached() clears these.
	BView* fPointerView = nullptr;
	BView* fTargetView = nullptr;
	BView* fMaskView = nullptr;
	BView* fDefaultButton = nullptr;
	uint32 fMask = 0;
	Clicks fClicks;
	// The message being dispatched, if it is a key from the desktop.
	const BMessage* fKeyMessage = nullptr;
	std::vector<Shortcut> fShortcuts;
};

} // namespace hosted

#endif // WINDOW_HOST_H
