// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/NativeWindow.h"

#include <string.h>
#include <utility>

#include <Message.h>

#include "platform/screen/DisplayThread.h"
#include "platform/screen/NativeWidget.h"


namespace hosted {

namespace {

// A region of more rectangles than this is copied as one.
constexpr int kMostRectangles = 32;


void
copy_pixels(const QImage& from, QImage& to, const QRect& rect)
{
	const size_t bytes = static_cast<size_t>(rect.width()) * 4;
	for (int y = rect.top(); y <= rect.bottom(); y++) {
		memcpy(to.scanLine(y) + rect.left() * 4, from.constScanLine(y) + rect.left() * 4, bytes);
	}
}

} // namespace


NativeWindow::NativeWindow(const BMessenger& target)
	:
	fTarget(target)
{
}


NativeWindow::~NativeWindow() = default;


void
NativeWindow::Change(const std::function<void(WindowWishes&)>& change)
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		change(fWishes);
	}
	_PostApply();
}


void
NativeWindow::Activate(bool activate)
{
	std::shared_ptr<NativeWindow> self = shared_from_this();
	DisplayThread::Post([self, activate]() {
		if (self->fWidget != nullptr)
			self->fWidget->Activate(activate);
	});
}


void
NativeWindow::Close()
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fIsClosed = true;
	}
	_PostApply();
}


void
NativeWindow::Show(const QImage& picture, const QRegion& region)
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		if (fPicture.size() != picture.size()) {
			fPicture = picture.copy();
			fNewPixels = fPicture.rect();
		} else {
			const QRegion pixels
				= region.rectCount() > kMostRectangles ? QRegion(region.boundingRect()) : region;
			for (const QRect& rect : pixels& fPicture.rect())
				copy_pixels(picture, fPicture, rect);
			fNewPixels += pixels;
		}
	}
	_PostRepaint();
}


QImage
NativeWindow::Picture() const
{
	std::lock_guard<std::mutex> lock(fMutex);
	return fPicture.copy();
}


void
NativeWindow::Send(BMessage& message)
{
	// The lock makes sure that a window that is being deleted gets nothing more.
	std::lock_guard<std::mutex> lock(fMutex);
	if (!fIsClosed)
		fTarget.SendMessage(&message, BMessenger(), 0);
}


void
NativeWindow::Paint(const std::function<void(const QImage&)>& paint) const
{
	std::lock_guard<std::mutex> lock(fMutex);
	paint(fPicture);
}


NativeWidget*
NativeWindow::Widget() const
{
	return fWidget;
}


void
NativeWindow::_PostApply()
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		if (fApplyPosted)
			return;
		fApplyPosted = true;
	}
	std::shared_ptr<NativeWindow> self = shared_from_this();
	DisplayThread::Post([self]() { self->_Apply(); });
}


// Qt calls back while it changes a window, so nothing is locked by then.
void
NativeWindow::_Apply()
{
	WindowWishes wishes;
	bool isClosed;
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fApplyPosted = false;
		wishes = fWishes;
		isClosed = fIsClosed;
	}
	if (isClosed) {
		NativeWidget* widget = std::exchange(fWidget, nullptr);
		delete widget;
		return;
	}
	if (fWidget == nullptr) {
		if (!wishes.isVisible)
			return;
		fWidget = new NativeWidget(*this);
	}
	fWidget->Apply(wishes);
}


void
NativeWindow::_PostRepaint()
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		if (fRepaintPosted)
			return;
		fRepaintPosted = true;
	}
	std::shared_ptr<NativeWindow> self = shared_from_this();
	DisplayThread::Post([self]() {
		QRegion pixels;
		{
			std::lock_guard<std::mutex> lock(self->fMutex);
			self->fRepaintPosted = false;
			pixels = std::exchange(self->fNewPixels, QRegion());
		}
		if (self->fWidget != nullptr)
			self->fWidget->update(pixels);
	});
}

} // namespace hosted
