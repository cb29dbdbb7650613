// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef NATIVE_WINDOW_H
#define NATIVE_WINDOW_H

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <QImage>
#include <QRect>
#include <QRegion>
#include <QSize>

#include <Message.h>
#include <Messenger.h>
#include <Point.h>
#include <SupportDefs.h>

#include "platform/screen/Accessibility.h"


namespace hosted {

class NativeWidget;

// What a window asks of the desktop. Sizes and places are those of its contents, in pixels.
struct WindowWishes {
	std::string title;
	QRect frame;
	// Counts the changes of frame that the window itself made.
	int32 serial = 0;
	QSize smallest;
	QSize largest;
	bool hasBorder = true;
	bool staysOnTop = false;
	bool isModal = false;
	bool onAllWorkspaces = false;
	bool isVisible = false;
	bool isMinimized = false;
	uint32 flags = 0;
};

// What a view of the window has begun to drag.
struct ViewDrag {
	BMessage message;
	// The pointer's place in what is dragged.
	BPoint offset;
	BMessenger replyTo;
};

/*!	A window on the desktop, as seen by the window's own thread: wishes and pixels go in, messages
	come out to the target.

	Shared by the window and the display thread. All calls may come from any thread, except where
	noted, and none waits.
*/
class NativeWindow : public std::enable_shared_from_this<NativeWindow> {
public:
	explicit NativeWindow(const BMessenger& target);
	~NativeWindow();

	// Changes the wishes; the display thread takes over what they are by the time it gets to it.
	void Change(const std::function<void(WindowWishes&)>& change);
	// Brings the window to the front and gives it the keys, or sends it to the back.
	void Activate(bool activate);
	// Takes the window off the desktop. No message is sent after this call has returned.
	void Close();

	// Lets what is dragged follow the pointer until the button is released: over a window of this
	// program it is dropped then.
	void StartDrag(const ViewDrag& drag);

	// Copies the region of the picture and shows it.
	void Show(const QImage& picture, const QRegion& region);
	// What the views of the picture say, for screen readers.
	void SetTexts(std::vector<ShownText> texts);
	std::vector<ShownText> Texts() const;
	// A copy of the picture as shown last.
	QImage Picture() const;

	// For the display thread only.
	void Send(BMessage& message, const BMessenger& replyTo = BMessenger());
	// Null if nothing is dragged.
	std::shared_ptr<const ViewDrag> Drag() const;
	void EndDrag();
	void Paint(const std::function<void(const QImage& picture)>& paint) const;
	// Null before the first show and after the close.
	NativeWidget* Widget() const;

private:
	void _PostApply();
	void _Apply();
	void _PostRepaint();

private:
	mutable std::mutex fMutex;
	BMessenger fTarget;
	WindowWishes fWishes;
	bool fIsClosed = false;
	bool fApplyPosted = false;
	bool fRepaintPosted = false;
	std::shared_ptr<const ViewDrag> fDrag;
	QImage fPicture;
	std::vector<ShownText> fTexts;
	// No QRegion, whose data two threads would share.
	std::vector<QRect> fNewPixels;
	// Belongs to the display thread.
	NativeWidget* fWidget = nullptr;
};

} // namespace hosted

#endif // NATIVE_WINDOW_H
