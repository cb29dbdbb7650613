// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Desktop.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <AppDefs.h>
#include <Messenger.h>

#include "platform/interface/WindowHost.h"
#include "platform/screen/DisplayThread.h"
#include "platform/screen/NativeWidget.h"
#include "platform/screen/NativeWindow.h"
#include "tests/support/Wait.h"


namespace test {

namespace {

// Keeps the bytes as another program has sent them; QMimeData itself would take them apart.
class RawUrls : public QMimeData {
public:
	explicit RawUrls(const QByteArray& bytes)
		:
		fBytes(bytes)
	{
	}

	bool hasFormat(const QString& format) const override { return formats().contains(format); }
	QStringList formats() const override { return {QStringLiteral("text/uri-list")}; }

protected:
	QVariant retrieveData(const QString& format, QMetaType) const override
	{
		return hasFormat(format) ? QVariant(fBytes) : QVariant();
	}

private:
	QByteArray fBytes;
};


// Answered by every window, after all messages that were queued before.
void
ask(const BMessenger& messenger)
{
	BMessage question(B_GET_SUPPORTED_SUITES);
	BMessage reply;
	messenger.SendMessage(&question, &reply);
}


bool
drop_on(QWidget& widget, const QPoint& where, QMimeData& data)
{
	QDragEnterEvent enter(where, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
	// Qt's own drags start out as refused.
	enter.ignore();
	QCoreApplication::sendEvent(&widget, &enter);
	if (!enter.isAccepted())
		return false;
	QDropEvent drop(where, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
	QCoreApplication::sendEvent(&widget, &drop);
	return drop.isAccepted();
}


void
send_mouse(BWindow* window, QEvent::Type type, const Pointer& pointer)
{
	OnWidget(window, [&](QWidget& widget) {
		const QPointF where(pointer.x, pointer.y);
		QMouseEvent event(type, where, widget.mapToGlobal(where), pointer.button, pointer.held,
			pointer.modifiers);
		QCoreApplication::sendEvent(&widget, &event);
	});
}


void
send_key(BWindow* window, QEvent::Type type, const Key& key)
{
	OnWidget(window, [&](QWidget& widget) {
		QKeyEvent event(type, key.qtKey, key.modifiers, key.linuxKey == 0 ? 0 : key.linuxKey + 8, 0,
			key.nativeModifiers, key.text, key.repeats);
		QCoreApplication::sendEvent(&widget, &event);
	});
}

} // namespace


BApplication&
Application()
{
	static BApplication* sApplication = new BApplication("application/x-vnd.VinyloH-test");
	return *sApplication;
}


bool
HasWindowManager()
{
	return QGuiApplication::platformName() != QLatin1String("offscreen");
}


bool
OnWidget(BWindow* window, const std::function<void(QWidget&)>& function)
{
	std::shared_ptr<hosted::NativeWindow> native = hosted::WindowHost::Of(window)->Native();
	bool hasWidget = false;
	hosted::DisplayThread::Call([&]() {
		hasWidget = native->Widget() != nullptr;
		if (hasWidget)
			function(*native->Widget());
	});
	return hasWidget;
}


QImage
PictureOf(BWindow* window)
{
	return hosted::WindowHost::Of(window)->Native()->Picture();
}


void
Settle(BWindow* window)
{
	const BMessenger messenger(window);
	for (int round = 0; round < 3; round++) {
		hosted::DisplayThread::Call([]() { QCoreApplication::processEvents(); });
		ask(messenger);
	}
}


void
CloseWindow(BWindow* window)
{
	const BMessenger messenger(window);
	if (window->Lock())
		window->Quit();
	WaitFor([&messenger]() { return !messenger.IsValid(); });
}


void
PressMouse(BWindow* window, const Pointer& pointer)
{
	send_mouse(window, QEvent::MouseButtonPress, pointer);
}


void
ReleaseMouse(BWindow* window, const Pointer& pointer)
{
	send_mouse(window, QEvent::MouseButtonRelease, pointer);
}


void
MoveMouse(BWindow* window, const Pointer& pointer)
{
	send_mouse(window, QEvent::MouseMove, pointer);
}


void
LeaveWindow(BWindow* window)
{
	OnWidget(window, [](QWidget& widget) {
		QEvent event(QEvent::Leave);
		QCoreApplication::sendEvent(&widget, &event);
	});
}


void
TurnWheel(BWindow* window, int x, int y, float right, float down)
{
	OnWidget(window, [=](QWidget& widget) {
		const QPointF where(x, y);
		QWheelEvent event(where, widget.mapToGlobal(where), QPoint(),
			QPoint(-right * 120, -down * 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
			false);
		QCoreApplication::sendEvent(&widget, &event);
	});
}


void
PressKey(BWindow* window, const Key& key)
{
	send_key(window, QEvent::KeyPress, key);
}


void
ReleaseKey(BWindow* window, const Key& key)
{
	send_key(window, QEvent::KeyRelease, key);
}


bool
Drop(BWindow* window, int x, int y, const std::function<void(QMimeData&)>& fill)
{
	bool taken = false;
	OnWidget(window, [&](QWidget& widget) {
		QMimeData data;
		fill(data);
		taken = drop_on(widget, QPoint(x, y), data);
	});
	return taken;
}


bool
DropUrls(BWindow* window, int x, int y, const QByteArray& uriList)
{
	bool taken = false;
	OnWidget(window, [&](QWidget& widget) {
		RawUrls data(uriList);
		taken = drop_on(widget, QPoint(x, y), data);
	});
	return taken;
}

} // namespace test
