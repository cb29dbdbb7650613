// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DESKTOP_H
#define DESKTOP_H

#include <functional>
#include <string>
#include <vector>

#include <QByteArray>
#include <QImage>
#include <QString>

#include <Application.h>
#include <Autolock.h>
#include <Message.h>
#include <Window.h>

class QMimeData;
class QWidget;


/*!	A test's hands on the desktop: what the user and the window manager do to a window, as events
	in the display thread.
*/
namespace test {

// The one application of a test program, made when it is first asked for and never run.
BApplication& Application();

// Whether the tests run on a real display, which a window manager looks after.
bool HasWindowManager();

// Runs the function on the window's widget, in the display thread. False if it has none.
bool OnWidget(BWindow* window, const std::function<void(QWidget&)>& function);

// What the window shows, as copied for the display thread last.
QImage PictureOf(BWindow* window);

// Waits until the display thread and the window have handled all that was sent to them before, and
// what that led to.
void Settle(BWindow* window);

// What the function returns, called with the window locked: a window that is shown may be changing
// itself at any time.
template <typename Function>
auto
Locked(BWindow* window, Function function)
{
	BAutolock lock(window);
	return function();
}


// Quits the window and waits until it is gone.
void CloseWindow(BWindow* window);

struct Pointer {
	int x = 0;
	int y = 0;
	Qt::MouseButton button = Qt::NoButton;
	// All that are held after the event.
	Qt::MouseButtons held = Qt::NoButton;
	Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

void PressMouse(BWindow* window, const Pointer& pointer);
void ReleaseMouse(BWindow* window, const Pointer& pointer);
void MoveMouse(BWindow* window, const Pointer& pointer);
void LeaveWindow(BWindow* window);
// In notches, to the right and down.
void TurnWheel(BWindow* window, int x, int y, float right, float down);

struct Key {
	// The number in Linux's input layer.
	uint32 linuxKey = 0;
	int qtKey = 0;
	QString text;
	Qt::KeyboardModifiers modifiers = Qt::NoModifier;
	bool repeats = false;
	uint32 nativeModifiers = 0;
};

void PressKey(BWindow* window, const Key& key);
void ReleaseKey(BWindow* window, const Key& key);

// Drags data, made in the display thread, over the window and drops it. False if the window refused
// it.
bool Drop(BWindow* window, int x, int y, const std::function<void(QMimeData&)>& fill);
bool DropUrls(BWindow* window, int x, int y, const QByteArray& uriList);

} // namespace test

#endif // DESKTOP_H
