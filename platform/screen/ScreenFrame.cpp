// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/ScreenFrame.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/screen/DisplayThread.h"


namespace hosted {

BRect
ScreenFrame()
{
	BRect frame;
	DisplayThread::Call([&frame]() {
		const QScreen* screen = QGuiApplication::primaryScreen();
		if (screen != nullptr) {
			const QSize size = screen->geometry().size();
			frame.Set(0, 0, size.width() - 1, size.height() - 1);
		}
	});
	return frame;
}

} // namespace hosted
