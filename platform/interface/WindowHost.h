// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WINDOW_HOST_H
#define WINDOW_HOST_H

#include <memory>
#include <vector>

#include <QImage>
#include <QRegion>

#include <Message.h>
#include <OS.h>
#include <Window.h>

#include "platform/interface/ViewHost.h"

class BMessageRunner;


namespace hosted {

class NativeWindow;

/*!	What a BWindow keeps: its views and their picture, where its input goes, its native window.

	Used with the window's lock held, except where noted. The public part below is for views, menus
	and alerts.
*/
class WindowHost : public ViewHost {
public:
	static WindowHost* Of(const BWindow* window);

	explicit WindowHost(BWindow* window);
	~WindowHost() override;

	QImage* Image() override;
	void Painted(const QRegion& pixels) override;
	void NeedsUpdate(const QRegion& pixels) override;
	const QRegion& PendingUpdate() const override;
	BWindow* Window() override;
	BPoint ScreenOrigin() const override;

	// The view that covers the window and is the parent of all others.
	BView* Root() const;

	// A view of the window calls these: after its AttachedToWindow() and before its
	// DetachedFromWindow().
	void ViewAttached(BView* view);
	void ViewDetached(BView* view);

	// The view that keys go to, or null.
	BView* Focus() const;
	void SetFocus(BView* view);

	// As BView's calls of these names; the position is in screen coordinates.
	void SetMouseEventMask(BView* view, uint32 mask, uint32 options);
	void GetMouse(BPoint* screenWhere, uint32* buttons, bool checkMessageQueue);

	// Shows what was painted so far. Never waits.
	void Flush();

	// The window on the desktop; may be used from any thread. It exists from the start, even though
	// nothing is to be seen before the first Show().
	const std::shared_ptr<NativeWindow>& Native() const;
};

} // namespace hosted

#endif // WINDOW_HOST_H
