// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// How the window looks and where it is.
#include "platform/screen/NativeWidget.h"

#include <algorithm>

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include <AppDefs.h>
#include <Message.h>
#include <OS.h>
#include <Window.h>

#include "platform/interface/Dots.h"
#include "platform/interface/InputFields.h"
#include "platform/screen/Workspaces.h"


namespace hosted {

namespace {

// How long the desktop may take to report a frame that the window has asked for.
constexpr std::chrono::milliseconds kEchoTime(1000);

// The modal windows on the desktop, the one opened last at the end.
std::vector<NativeWidget*> sModalWidgets;


bool
knows_positions()
{
	return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}


Qt::WindowFlags
flags_for(const WindowWishes& wishes)
{
	Qt::WindowFlags flags = Qt::Window;
	if (wishes.hasBorder) {
		flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
		if ((wishes.flags & B_NOT_CLOSABLE) == 0)
			flags |= Qt::WindowCloseButtonHint;
		if ((wishes.flags & B_NOT_MINIMIZABLE) == 0)
			flags |= Qt::WindowMinimizeButtonHint;
		if ((wishes.flags & (B_NOT_ZOOMABLE | B_NOT_RESIZABLE)) == 0)
			flags |= Qt::WindowMaximizeButtonHint;
	} else {
		flags |= Qt::FramelessWindowHint;
	}
	if (wishes.staysOnTop)
		flags |= Qt::WindowStaysOnTopHint;
	if ((wishes.flags & B_AVOID_FOCUS) != 0)
		flags |= Qt::WindowDoesNotAcceptFocus;
	return flags;
}


// Qt takes "[*]" in a title for the place of a mark, except where it stands twice.
QString
qt_title(const std::string& title)
{
	QString text = QString::fromStdString(title);
	text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
	return text;
}

} // namespace


NativeWidget::NativeWidget(NativeWindow& window)
	:
	QWidget(nullptr, Qt::Window),
	fWindow(window.shared_from_this())
{
	setAttribute(Qt::WA_OpaquePaintEvent);
	setAttribute(Qt::WA_NoSystemBackground);
	setAttribute(Qt::WA_InputMethodEnabled);
	setMouseTracking(true);
	setAcceptDrops(true);
	setFocusPolicy(Qt::StrongFocus);
}


NativeWidget::~NativeWidget()
{
	sModalWidgets.erase(std::remove(sModalWidgets.begin(), sModalWidgets.end(), this),
		sModalWidgets.end());
}


void
NativeWidget::Apply(const WindowWishes& wishes)
{
	fIsApplying = true;
	if (fIsNew || wishes.title != fWishes.title)
		setWindowTitle(qt_title(wishes.title));
	_ApplyFlags(wishes);
	_ApplyFrame(wishes);
	if (wishes.onAllWorkspaces != (!fIsNew && fWishes.onAllWorkspaces)) {
		create();
		ShowOnAllWorkspaces(*this, wishes.onAllWorkspaces);
	}
	_ApplyVisibility(wishes);
	fWishes = wishes;
	fIsNew = false;
	fIsApplying = false;
}


void
NativeWidget::Activate(bool activate)
{
	if (!isVisible())
		return;
	if (!activate) {
		lower();
		return;
	}
	if (isMinimized())
		setWindowState(windowState() & ~Qt::WindowMinimized);
	raise();
	activateWindow();
}


QPointF
NativeWidget::ToScreen(const QPointF& where) const
{
	return where + fKnownFrame.topLeft();
}


QPointF
NativeWidget::FromScreen(const QPointF& screenWhere) const
{
	return screenWhere - fKnownFrame.topLeft();
}


// What leads from the window's screen coordinates to Qt's.
QPoint
NativeWidget::QtOffset() const
{
	return mapToGlobal(QPoint(0, 0)) - fKnownFrame.topLeft();
}


int
NativeWidget::CountTexts() const
{
	return static_cast<int>(fWindow->Texts().size());
}


ShownText
NativeWidget::TextAt(int index) const
{
	const std::vector<ShownText> texts = fWindow->Texts();
	const size_t place = static_cast<size_t>(index);
	return place < texts.size() ? texts[place] : ShownText();
}


bool
NativeWidget::IsBlocked() const
{
	return !sModalWidgets.empty() && sModalWidgets.back() != this;
}


void
NativeWidget::_ApplyFlags(const WindowWishes& wishes)
{
	setAttribute(Qt::WA_ShowWithoutActivating, (wishes.flags & B_AVOID_FOCUS) != 0);
	const Qt::WindowFlags flags = flags_for(wishes);
	if (!fIsNew && flags == flags_for(fWishes))
		return;
	if (windowHandle() == nullptr) {
		setWindowFlags(flags);
		return;
	}
	// QWidget's own function would hide the window and lose its place.
	overrideWindowFlags(flags);
	windowHandle()->setFlags(flags);
}


void
NativeWidget::_ApplyFrame(const WindowWishes& wishes)
{
	const bool isMoved = fIsNew || wishes.serial != fWishes.serial;
	const QSize size = isMoved ? wishes.frame.size() : this->size();
	QSize smallest = wishes.smallest;
	QSize largest = wishes.largest;
	if ((wishes.flags & (B_NOT_RESIZABLE | B_NOT_H_RESIZABLE)) != 0) {
		smallest.setWidth(size.width());
		largest.setWidth(size.width());
	}
	if ((wishes.flags & (B_NOT_RESIZABLE | B_NOT_V_RESIZABLE)) != 0) {
		smallest.setHeight(size.height());
		largest.setHeight(size.height());
	}
	// The limits of before must not stand in the way of the new ones.
	if (minimumSize() != smallest || maximumSize() != largest) {
		setMinimumSize(0, 0);
		setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
		setMinimumSize(smallest);
		setMaximumSize(largest);
	}
	if (!isMoved)
		return;

	const auto now = std::chrono::steady_clock::now();
	if (!fIsNew && fKnownFrame != wishes.frame)
		fPastFrames.push_back({fKnownFrame, now});
	fKnownFrame = wishes.frame;
	if ((windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0)
		setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
	setGeometry(wishes.frame);
}


void
NativeWidget::_ApplyVisibility(const WindowWishes& wishes)
{
	if (wishes.isVisible != isVisible()) {
		sModalWidgets.erase(std::remove(sModalWidgets.begin(), sModalWidgets.end(), this),
			sModalWidgets.end());
		if (wishes.isVisible && wishes.isMinimized)
			showMinimized();
		else if (wishes.isVisible)
			show();
		else
			hide();
	}
	const bool isListed
		= std::find(sModalWidgets.begin(), sModalWidgets.end(), this) != sModalWidgets.end();
	if (wishes.isVisible && wishes.isModal && !isListed) {
		sModalWidgets.push_back(this);
	} else if (isListed && !(wishes.isVisible && wishes.isModal)) {
		sModalWidgets.erase(std::remove(sModalWidgets.begin(), sModalWidgets.end(), this),
			sModalWidgets.end());
	}
	if (isVisible() && wishes.isMinimized != isMinimized()) {
		if (wishes.isMinimized)
			setWindowState(windowState() | Qt::WindowMinimized);
		else
			setWindowState(windowState() & ~Qt::WindowMinimized);
	}
}


// Reports of frames that the window asked for and has already replaced would set it back.
bool
NativeWidget::_IsEcho(const QRect& frame)
{
	if (frame == fKnownFrame) {
		fPastFrames.clear();
		return true;
	}
	const auto oldest = std::chrono::steady_clock::now() - kEchoTime;
	fPastFrames.erase(std::remove_if(fPastFrames.begin(), fPastFrames.end(),
						  [oldest](const PastFrame& past) { return past.time < oldest; }),
		fPastFrames.end());
	return std::any_of(fPastFrames.begin(), fPastFrames.end(), [&frame](const PastFrame& past) {
		return past.frame.size() == frame.size() && past.frame.topLeft() == frame.topLeft();
	});
}


void
NativeWidget::_ReportFrame()
{
	if (fIsApplying || !isVisible() || isMinimized())
		return;
	QRect frame(mapToGlobal(QPoint(0, 0)), size());
	if (!knows_positions())
		frame.moveTopLeft(fKnownFrame.topLeft());
	if (_IsEcho(frame))
		return;

	const bool isMoved = frame.topLeft() != fKnownFrame.topLeft();
	const bool isResized = frame.size() != fKnownFrame.size();
	fKnownFrame = frame;
	if (isMoved) {
		BMessage message(B_WINDOW_MOVED);
		message.AddInt64("when", system_time());
		message.AddPoint("where", BPoint(frame.left(), frame.top()));
		message.AddInt32(kInputKind, kInputFrame);
		message.AddInt32(kInputSerial, fWishes.serial);
		fWindow->Send(message);
	}
	if (isResized) {
		BMessage message(B_WINDOW_RESIZED);
		message.AddInt64("when", system_time());
		message.AddInt32("width", frame.width() - 1);
		message.AddInt32("height", frame.height() - 1);
		message.AddInt32(kInputKind, kInputFrame);
		message.AddInt32(kInputSerial, fWishes.serial);
		fWindow->Send(message);
	}
}


void
NativeWidget::paintEvent(QPaintEvent* event)
{
	QPainter painter(this);
	fWindow->Paint([this, &painter, event](const QImage& picture) {
		const QRect pixels = PixelsOf(picture);
		// On a screen that is coarser than the finest one.
		painter.setRenderHint(QPainter::SmoothPixmapTransform);
		for (const QRect& rect : event->region() & pixels)
			painter.drawImage(rect, picture, ToDots(rect, DotsPerPixel(picture)));
		// Where the window has grown, its thread has not painted yet.
		for (const QRect& rect : (event->region() & this->rect()) - QRegion(pixels))
			painter.fillRect(rect, Qt::white);
	});
}


void
NativeWidget::resizeEvent(QResizeEvent*)
{
	_ReportFrame();
}


void
NativeWidget::moveEvent(QMoveEvent*)
{
	_ReportFrame();
}


void
NativeWidget::changeEvent(QEvent* event)
{
	if (event->type() == QEvent::ActivationChange) {
		BMessage message(B_WINDOW_ACTIVATED);
		message.AddInt64("when", system_time());
		message.AddBool("active", isActiveWindow());
		fWindow->Send(message);
	} else if (event->type() == QEvent::WindowStateChange && !fIsApplying
		&& isMinimized() != fWishes.isMinimized) {
		fWishes.isMinimized = isMinimized();
		BMessage message(B_MINIMIZE);
		message.AddInt64("when", system_time());
		message.AddBool("minimize", isMinimized());
		fWindow->Send(message);
	}
	QWidget::changeEvent(event);
}


// Only the window itself decides whether it closes.
void
NativeWidget::closeEvent(QCloseEvent* event)
{
	event->ignore();
	if (IsBlocked() || (fWishes.flags & B_NOT_CLOSABLE) != 0)
		return;
	BMessage message(B_QUIT_REQUESTED);
	fWindow->Send(message);
}

} // namespace hosted
