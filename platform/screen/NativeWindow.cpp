// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/NativeWindow.h"

#include <string.h>
#include <utility>

#include <QAccessible>

#include "platform/interface/Dots.h"
#include "platform/screen/DisplayThread.h"
#include "platform/screen/NativeWidget.h"


namespace hosted {

namespace {

// More rectangles than this are taken as one.
constexpr size_t kMostRectangles = 32;


void
copy_dots(const QImage& from, QImage& to, const QRect& rect)
{
	const size_t bytes = static_cast<size_t>(rect.width()) * 4;
	for (int y = rect.top(); y <= rect.bottom(); y++) {
		memcpy(to.scanLine(y) + rect.left() * 4, from.constScanLine(y) + rect.left() * 4, bytes);
	}
}


void
merge_many(std::vector<QRect>& rects)
{
	if (rects.size() <= kMostRectangles)
		return;
	QRect all;
	for (const QRect& rect : rects)
		all |= rect;
	rects.assign(1, all);
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
NativeWindow::StartDrag(const ViewDrag& drag)
{
	std::lock_guard<std::mutex> lock(fMutex);
	fDrag = std::make_shared<const ViewDrag>(drag);
}


std::shared_ptr<const ViewDrag>
NativeWindow::Drag() const
{
	std::lock_guard<std::mutex> lock(fMutex);
	return fDrag;
}


void
NativeWindow::EndDrag()
{
	std::lock_guard<std::mutex> lock(fMutex);
	fDrag.reset();
}


void
NativeWindow::Show(const QImage& picture, const QRegion& region)
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		if (fPicture.size() != picture.size()) {
			fPicture = picture.copy();
			fNewPixels.assign(1, PixelsOf(fPicture));
		} else {
			std::vector<QRect> rects(region.begin(), region.end());
			merge_many(rects);
			for (QRect& rect : rects) {
				rect &= PixelsOf(fPicture);
				if (!rect.isEmpty())
					copy_dots(picture, fPicture, ToDots(rect, DotsPerPixel(picture)));
			}
			fNewPixels.insert(fNewPixels.end(), rects.begin(), rects.end());
			merge_many(fNewPixels);
		}
	}
	_PostRepaint();
}


void
NativeWindow::SetTexts(std::vector<ShownText> texts)
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		if (fTexts == texts)
			return;
		fTexts = std::move(texts);
	}
	std::shared_ptr<NativeWindow> self = shared_from_this();
	DisplayThread::Post([self]() {
		if (!QAccessible::isActive() || self->Widget() == nullptr)
			return;
		QAccessibleEvent changed(self->Widget(), QAccessible::ObjectReorder);
		QAccessible::updateAccessibility(&changed);
	});
}


std::vector<ShownText>
NativeWindow::Texts() const
{
	std::lock_guard<std::mutex> lock(fMutex);
	return fTexts;
}


QImage
NativeWindow::Picture() const
{
	std::lock_guard<std::mutex> lock(fMutex);
	return fPicture.copy();
}


void
NativeWindow::Send(BMessage& message, const BMessenger& replyTo)
{
	// The lock makes sure that a window that is being deleted gets nothing more.
	std::lock_guard<std::mutex> lock(fMutex);
	if (!fIsClosed)
		fTarget.SendMessage(&message, replyTo, 0);
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
		std::vector<QRect> pixels;
		{
			std::lock_guard<std::mutex> lock(self->fMutex);
			self->fRepaintPosted = false;
			pixels.swap(self->fNewPixels);
		}
		if (self->fWidget == nullptr)
			return;
		for (const QRect& rect : pixels)
			self->fWidget->update(rect);
	});
}

} // namespace hosted
