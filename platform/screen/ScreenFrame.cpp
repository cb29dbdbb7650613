// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/ScreenFrame.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/screen/DisplayThread.h"


namespace hosted {

static BRect
common_part(BRect frame, const QScreen& screen)
{
	const QRect area = screen.geometry();
	return frame & BRect(area.left(), area.top(), area.right(), area.bottom());
}


static BRect
frame_of_most(BRect shown)
{
	float most = 0;
	BRect frame;
	for (const QScreen* screen : QGuiApplication::screens()) {
		const BRect part = common_part(shown, *screen);
		const float size = part.IsValid() ? (part.Width() + 1) * (part.Height() + 1) : 0;
		if (size > most) {
			most = size;
			const QRect area = screen->geometry();
			frame.Set(area.left(), area.top(), area.right(), area.bottom());
		}
	}
	return frame;
}


BRect
ScreenFrame(BRect shown)
{
	BRect frame;
	DisplayThread::Call([shown, &frame]() {
		frame = frame_of_most(shown);
		if (frame.IsValid())
			return;
		const QScreen* screen = QGuiApplication::primaryScreen();
		if (screen != nullptr) {
			const QSize size = screen->geometry().size();
			frame.Set(0, 0, size.width() - 1, size.height() - 1);
		}
	});
	return frame;
}

} // namespace hosted
