// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The window's picture, from its views to the desktop.
#include "platform/interface/WindowHost.h"

#include <utility>

#include <QPainter>
#include <QStringList>

#include <AppDefs.h>
#include <Messenger.h>
#include <View.h>

#include "platform/interface/Dots.h"
#include "platform/interface/ViewData.h"
#include "platform/interface/ViewPrivate.h"
#include "platform/screen/DisplayThread.h"
#include "platform/screen/NativeWindow.h"


namespace hosted {

WindowHost*
WindowHost::Of(const BWindow* window)
{
	return window == nullptr ? nullptr : window->fHost.get();
}


WindowHost::WindowHost(BWindow* window, BRect frame, const char* title)
	:
	fWindow(window),
	fNative(std::make_shared<NativeWindow>(BMessenger(window))),
	fFrame(_FirstFrame(frame)),
	fTitle(title == nullptr ? "" : title)
{
	fRoot.reset(NewRootView(*this, fFrame.OffsetToCopy(0, 0)));
	_AddShortcut('w', 0, new BMessage(B_QUIT_REQUESTED), window);
	for (auto [key, command] :
		{std::pair<uint32, uint32>{'x', B_CUT}, {'c', B_COPY}, {'v', B_PASTE}, {'a', B_SELECT_ALL}})
		_AddShortcut(key, 0, new BMessage(command), nullptr);
	fNative->Change([this](WindowWishes& wishes) { wishes.title = fTitle; });
	_RequestFrame();
	_RequestLimits();
}


// The native window is closed first, so that nothing more comes from there.
WindowHost::~WindowHost()
{
	fNative->Close();
	fPulseRunner.reset();
	DetachRoot(*fRoot);
	fRoot.reset();
}


QImage*
WindowHost::Image()
{
	if (_IsHidden())
		return nullptr;
	const int dots = DisplayThread::DotsPerPixel();
	const QSize size
		= QSize(static_cast<int>(fFrame.Width()) + 1, static_cast<int>(fFrame.Height()) + 1) * dots;
	if (fImage.size() != size && size.width() > 0 && size.height() > 0) {
		QImage image(size, QImage::Format_RGB32);
		if (image.isNull())
			return nullptr;
		image.setDevicePixelRatio(dots);
		image.fill(Qt::white);
		if (!fImage.isNull())
			QPainter(&image).drawImage(0, 0, fImage);
		fImage = std::move(image);
	}
	return fImage.isNull() ? nullptr : &fImage;
}


void
WindowHost::Painted(const QRegion& pixels)
{
	fPainted += pixels;
	_WakeWindow();
}


void
WindowHost::NeedsUpdate(const QRegion& pixels)
{
	fPending += pixels;
	_WakeWindow();
}


const QRegion&
WindowHost::PendingUpdate() const
{
	return fPending;
}


BWindow*
WindowHost::Window()
{
	return fWindow;
}


BPoint
WindowHost::ScreenOrigin() const
{
	return fFrame.LeftTop();
}


// The window's own thread paints when it has no more messages. From another thread it has to be
// told.
void
WindowHost::_WakeWindow()
{
	if (fWakePosted || _IsHidden() || fWindow->_IsOwnThread())
		return;
	fWakePosted = true;
	fWindow->PostMessage(_UPDATE_);
}


// What the views that can be seen say.
static std::vector<ShownText>
shown_texts(BView& root)
{
	std::vector<ShownText> texts;
	ForSubtree(&root, [&texts](BView* view) {
		const ViewData& data = ViewData::Of(view);
		if (data.texts == nullptr)
			return;
		const QRect frame = data.VisibleRect();
		if (!frame.isEmpty())
			texts.push_back(
				{frame, QStringList(data.texts->begin(), data.texts->end()).join(", ")});
	});
	return texts;
}


void
WindowHost::_PaintPending()
{
	if (_IsHidden() || fUpdatesDisabled > 0 || fIsPainting)
		return;
	if (!fPending.isEmpty() && Image() != nullptr) {
		fIsPainting = true;
		const QRegion region = std::exchange(fPending, QRegion()) & PixelsOf(fImage);
		UpdateViews(*this, *fRoot, region);
		fIsPainting = false;
	}
	if (!fPainted.isEmpty())
		fNative->SetTexts(shown_texts(*fRoot));
	Flush();
	// What was invalidated while it was being drawn comes after the messages that wait.
	if (!fPending.isEmpty() && !fWakePosted) {
		fWakePosted = true;
		fWindow->PostMessage(_UPDATE_);
	}
}


void
WindowHost::Flush()
{
	if (_IsHidden() || Image() == nullptr || (fPainted.isEmpty() && fImage.size() == fShownSize))
		return;
	fShownSize = fImage.size();
	fNative->Show(fImage, std::exchange(fPainted, QRegion()));
}


// Called when the hide level became 0, or left it.
void
WindowHost::_SetVisible()
{
	const bool isVisible = !_IsHidden();
	if (isVisible)
		NeedsUpdate(QRect(0, 0, static_cast<int>(fFrame.Width()) + 1,
			static_cast<int>(fFrame.Height()) + 1));
	else
		fImage = QImage();
	fNative->Change([isVisible](WindowWishes& wishes) { wishes.isVisible = isVisible; });
}


void
WindowHost::_SetSize(float width, float height)
{
	fFrame.right = fFrame.left + width;
	fFrame.bottom = fFrame.top + height;
	ResizeRoot(*fRoot, width, height);
}


void
WindowHost::PulseNeeded()
{
	if (fPulseRunner == nullptr && fPulseRate > 0)
		_StartPulse();
}


void
WindowHost::_StartPulse()
{
	fPulseRunner
		= std::make_unique<BMessageRunner>(BMessenger(fWindow), BMessage(B_PULSE), fPulseRate);
}


void
WindowHost::ViewDetached(BView& view)
{
	for (BView** pointer :
		{&fPointerView, &fTargetView, &fMaskView, &fDefaultButton, &fClicks.view}) {
		if (*pointer == &view)
			*pointer = nullptr;
	}
}


void
WindowHost::FocusChanged(BView* view)
{
	fWindow->SetPreferredHandler(view);
}

} // namespace hosted
