// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DISPLAY_THREAD_H
#define DISPLAY_THREAD_H

#include <functional>


namespace hosted {

/*!	The one thread that owns the connection to the desktop: the Qt application, every native
	window, menu and drop, the clipboard, and the objects on the session bus.

	It never waits for a window's thread and never takes a looper's lock. All calls may come from
	any thread.
*/
class DisplayThread {
public:
	// Starts the thread and waits until it has a display. False where no display can be opened;
	// a thread that already runs is left alone.
	static bool Start();
	// From now on Start() does without a display where none can be opened, and is true all the
	// same.
	static void MakeDisplayOptional();
	// Runs the jobs that are queued, ends the thread and waits for it. Windows and menus must be
	// closed before.
	static void Stop();

	static bool IsRunning();
	static bool IsCurrent();
	// How fine the finest screen is that was there at the start: dots along a side of a pixel,
	// whole.
	static int DotsPerPixel();

	// Queues a job, first in first out, and returns at once. Without a running thread the job is
	// dropped.
	static void Post(std::function<void()> job);
	// Like Post(), but waits until the job has run; from the thread itself it runs at once. False
	// if the thread does not run (any more) and the job was dropped.
	static bool Call(std::function<void()> job);
};

} // namespace hosted

#endif // DISPLAY_THREAD_H
