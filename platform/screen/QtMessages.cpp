// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/QtMessages.h"

#include <array>
#include <atomic>
#include <stdio.h>
#include <stdlib.h>

#include <QString>


namespace hosted {

namespace {

std::atomic<int> sWarnings{0};

// The display thread is not the process's first, windows without a window manager cannot be raised,
// and the off-screen platform can do neither that nor grab the pointer. A root user, as in a
// container, has no run-time folder. Old Targa pictures are simply not read. A window that is shown
// again before the display server has confirmed that it was hidden gets its state all the same.
constexpr std::array<const char*, 8> kNoise = {
	"QApplication was not created in the main() thread",
	"This plugin does not support raise()",
	"This plugin does not support grabbing the keyboard",
	"This plugin does not support propagateSizeHints()",
	"This plugin does not support setting window opacity",
	"QStandardPaths: XDG_RUNTIME_DIR not set",
	"QTgaHandler::canRead()",
	"setNetWmStateOnUnmappedWindow() called on mapped window",
};


bool
is_noise(const QString& text)
{
	for (const char* noise : kNoise) {
		if (text.contains(QLatin1String(noise)))
			return true;
	}
	return false;
}


void
handle(QtMsgType type, const QMessageLogContext&, const QString& text)
{
	if (is_noise(text))
		return;
	if (type == QtWarningMsg || type == QtCriticalMsg)
		sWarnings++;
	fprintf(stderr, "Qt: %s\n", text.toUtf8().constData());
	if (type == QtFatalMsg)
		abort();
}

} // namespace


void
InstallQtMessageFilter()
{
	qInstallMessageHandler(handle);
}


int
CountQtWarnings()
{
	return sWarnings;
}

} // namespace hosted
