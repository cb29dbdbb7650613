// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef VIEW_HOST_H
#define VIEW_HOST_H

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>

class BHandler;
class BMessage;
class BView;
class BWindow;
class QImage;
class QRegion;


namespace hosted {

/*!	What a tree of views is drawn into: a window's back image, or a bitmap that accepts views.

	The host owns a root view that covers it and is the parent of the views that were added to it.
	All calls come from the thread that holds the host's lock.
*/
class ViewHost {
public:
	virtual ~ViewHost() = default;

	// The picture that is painted into, RGB32 or ARGB32; the root view's (0,0) is its first pixel.
	// Null as long as the host has no size.
	virtual QImage* Image() = 0;

	// These pixels were painted and have to reach whoever shows the picture. Never waits.
	virtual void Painted(const QRegion& pixels) = 0;

	// These pixels are out of date. The host calls UpdateViews() with them later, from its own
	// thread.
	virtual void NeedsUpdate(const QRegion& pixels) = 0;

	// What NeedsUpdate() has collected and no update has painted yet.
	virtual const QRegion& PendingUpdate() const = 0;

	// The window, or null for a bitmap.
	virtual BWindow* Window() = 0;

	// The host's (0,0) in screen coordinates.
	virtual BPoint ScreenOrigin() const = 0;

	// What views ask for beyond drawing. A bitmap has none of it.

	// Shows what was painted so far. Never waits.
	virtual void Flush() {}

	// Brings the picture up to date first where an update is pending, then gives the pointer's
	// place in the host and the buttons, from the oldest queued mouse message if wanted and there
	// is one. False leaves both as they are.
	virtual bool GetMouse(BPoint*, uint32*, bool /* checkMessageQueue */) { return false; }
	// Sends the view the pointer and key messages of the mask until the buttons are released.
	virtual void SetMouseEventMask(BView&, uint32 /* mask */, uint32 /* options */) {}
	virtual void DragMessage(BView&, BMessage&, BRect, BHandler* /* replyTo */) {}
	// A view was attached that wants to be pulsed.
	virtual void PulseNeeded() {}
	// The view, which may be in destruction, leaves the host: no pointer to it may stay behind.
	// Its focus is already given up.
	virtual void ViewDetached(BView&) {}
	// The focus went to that view, or to none.
	virtual void FocusChanged(BView*) {}
};

// Erases and draws every view that touches the region, as the platform's updates do: all
// backgrounds, then Draw() parents first, then DrawAfterChildren() in reverse. The region is
// clipped to the host. Implemented by the drawing part of the Interface Kit.
void UpdateViews(ViewHost& host, BView& root, const QRegion& pixels);

} // namespace hosted

#endif // VIEW_HOST_H
