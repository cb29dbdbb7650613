// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/DesktopClipboard.h"

#include <unistd.h>
#include <utility>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>

#include "platform/screen/DisplayThread.h"


namespace hosted {

namespace {

// Tells this process's own contents: not every platform knows who owns the clipboard.
const char kMark[] = "application/x-vnd.hosted-clipboard";


QByteArray
own_mark()
{
	return QByteArray::number(qint64(getpid()));
}


bool
is_own(const QMimeData* data)
{
	return data != nullptr && data->data(QLatin1String(kMark)) == own_mark();
}

} // namespace


bool
WatchDesktopClipboard(std::function<void()> changed)
{
	return DisplayThread::Call([&]() {
		// Of the display thread alone.
		static std::function<void()> sChanged;
		static QPointer<QClipboard> sWatched;
		QClipboard* clipboard = QGuiApplication::clipboard();
		if (!sChanged)
			sChanged = std::move(changed);
		if (sWatched == clipboard)
			return;
		sWatched = clipboard;
		QObject::connect(clipboard, &QClipboard::dataChanged, [clipboard]() {
			if (!is_own(clipboard->mimeData()))
				sChanged();
		});
	});
}


bool
ReadDesktopClipboard(std::string* text, bool* own)
{
	return DisplayThread::Call([&]() {
		const QMimeData* data = QGuiApplication::clipboard()->mimeData();
		*own = is_own(data);
		text->clear();
		if (!*own && data != nullptr && data->hasText())
			*text = data->text().toStdString();
	});
}


void
WriteDesktopClipboard(const std::string& text)
{
	DisplayThread::Post([text]() {
		QMimeData* data = new QMimeData;
		data->setData(QLatin1String(kMark), own_mark());
		if (!text.empty())
			data->setText(QString::fromStdString(text));
		QGuiApplication::clipboard()->setMimeData(data);
	});
}

} // namespace hosted
