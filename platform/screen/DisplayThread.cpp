// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/DisplayThread.h"

#include <chrono>
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <errno.h>
#include <math.h>
#include <memory>
#include <mutex>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <string>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSocketNotifier>

#include <AppDefs.h>
#include <Application.h>
#include <Message.h>
#include <Messenger.h>

#include "platform/screen/Accessibility.h"
#include "platform/screen/QtMessages.h"


namespace hosted {

namespace {

// Finer screens show what is painted for this many.
constexpr int kMostDotsPerPixel = 4;


struct Job {
	std::function<void()> run;
	// Set by the display thread when the job is done or dropped; null for jobs nobody waits for.
	bool* done = nullptr;
};

struct State {
	std::mutex mutex;
	std::condition_variable changed;
	std::thread thread;
	std::deque<Job> jobs;
	int wakeFile = -1;
	bool running = false;
	bool opened = false;
	bool failed = false;
	bool stopping = false;
	std::atomic<bool> isDisplayOptional = false;
	std::atomic<int> dotsPerPixel = 1;
};

// How long a program may take to end when it has lost its display.
constexpr std::chrono::seconds kLastMoment(5);


// Lives as long as the process: jobs may still be posted while static objects are destroyed.
State&
state()
{
	static State* sState = new State;
	return *sState;
}


// Qt ends the process when no platform plug-in works. The off-screen plug-in as the last choice
// always works, and shows that no display could be opened.
std::string
platform_choice()
{
	const char* wanted = getenv("QT_QPA_PLATFORM");
	if (wanted != nullptr && wanted[0] != '\0')
		return wanted;
	std::string choice;
	const char* wayland = getenv("WAYLAND_DISPLAY");
	if (wayland != nullptr && wayland[0] != '\0')
		choice += "wayland;";
	const char* x11 = getenv("DISPLAY");
	if (x11 != nullptr && x11[0] != '\0')
		choice += "xcb;";
	return choice + "offscreen";
}


bool
is_offscreen_by_necessity(const std::string& choice)
{
	return QGuiApplication::platformName() == QLatin1String("offscreen")
		&& choice.compare(0, strlen("offscreen"), "offscreen") != 0;
}


void
wake(State& shared)
{
	const uint64_t one = 1;
	ssize_t written = write(shared.wakeFile, &one, sizeof(one));
	(void)written;
}


void
run_jobs(State& shared)
{
	uint64_t count;
	ssize_t bytesRead = read(shared.wakeFile, &count, sizeof(count));
	(void)bytesRead;

	std::unique_lock<std::mutex> lock(shared.mutex);
	while (!shared.jobs.empty()) {
		Job job = std::move(shared.jobs.front());
		shared.jobs.pop_front();
		lock.unlock();
		job.run();
		job.run = nullptr;
		lock.lock();
		if (job.done != nullptr) {
			*job.done = true;
			shared.changed.notify_all();
		}
	}
	if (shared.stopping)
		QCoreApplication::exit(0);
}


void
drop_jobs(State& shared)
{
	std::lock_guard<std::mutex> lock(shared.mutex);
	shared.running = false;
	for (Job& job : shared.jobs) {
		if (job.done != nullptr)
			*job.done = true;
	}
	shared.jobs.clear();
	shared.changed.notify_all();
}


// Qt ends the process when the display server is gone, from within the display thread. The program
// gets a moment to save what it has; from here on it runs without a display.
void
quit_without_display(State& shared)
{
	drop_jobs(shared);
	BMessage quit(B_QUIT_REQUESTED);
	be_app_messenger.SendMessage(&quit, static_cast<BHandler*>(nullptr), 0);
	std::unique_lock<std::mutex> lock(shared.mutex);
	shared.changed.wait_for(lock, kLastMoment, [&shared]() { return shared.stopping; });
}


// The process may call exit() while a window paints; destroying Qt's font caches under its feet
// would crash it. Registered after the first text was drawn, so that it runs before Qt's own.
void
leave_at_once(int status, void*)
{
	State& shared = state();
	bool running;
	bool isDisplayLost;
	{
		std::lock_guard<std::mutex> lock(shared.mutex);
		running = shared.running;
		isDisplayLost = shared.thread.get_id() == std::this_thread::get_id();
	}
	if (!running)
		return;
	if (isDisplayLost)
		quit_without_display(shared);
	fflush(nullptr);
	_exit(status);
}


void
draw_first_text()
{
	QImage image(16, 16, QImage::Format_RGB32);
	image.fill(Qt::white);
	QPainter painter(&image);
	painter.drawText(0, 12, QStringLiteral("a"));
}


void
report(State& shared, bool opened)
{
	std::lock_guard<std::mutex> lock(shared.mutex);
	shared.opened = opened;
	shared.failed = !opened;
	shared.running = opened;
	shared.changed.notify_all();
}


void
display_main(State& shared)
{
	static int sArgumentCount = 1;
	static char* sArguments[] = {program_invocation_short_name, nullptr};

	InstallQtMessageFilter();
	const std::string choice = platform_choice();
	const char* before = getenv("QT_QPA_PLATFORM");
	const bool wasSet = before != nullptr && before[0] != '\0';
	if (!wasSet)
		setenv("QT_QPA_PLATFORM", choice.c_str(), 1);
	{
		QApplication application(sArgumentCount, sArguments);
		if (!wasSet)
			unsetenv("QT_QPA_PLATFORM");
		shared.dotsPerPixel = std::clamp(static_cast<int>(ceil(application.devicePixelRatio())), 1,
			kMostDotsPerPixel);
		application.setQuitOnLastWindowClosed(false);
		// Desktops find the icon of a window by it.
		QGuiApplication::setDesktopFileName(QFile::decodeName(program_invocation_short_name));
		const bool isMissing
			= is_offscreen_by_necessity(choice) || (!wasSet && choice == "offscreen");
		if (isMissing && !shared.isDisplayOptional) {
			report(shared, false);
			return;
		}
		OfferAccessibility();
		draw_first_text();
		static bool sGuarded = false;
		if (!sGuarded) {
			sGuarded = true;
			on_exit(leave_at_once, nullptr);
		}
		QSocketNotifier notifier(shared.wakeFile, QSocketNotifier::Read);
		QObject::connect(&notifier, &QSocketNotifier::activated, [&shared]() { run_jobs(shared); });
		report(shared, true);
		application.exec();
		drop_jobs(shared);
	}
}

} // namespace


bool
DisplayThread::Start()
{
	State& shared = state();
	std::unique_lock<std::mutex> lock(shared.mutex);
	if (shared.running)
		return true;
	if (shared.wakeFile < 0)
		shared.wakeFile = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
	shared.opened = false;
	shared.failed = false;
	shared.stopping = false;
	shared.thread = std::thread([&shared]() { display_main(shared); });
	shared.changed.wait(lock, [&shared]() { return shared.opened || shared.failed; });
	if (shared.opened)
		return true;
	std::thread thread = std::move(shared.thread);
	lock.unlock();
	thread.join();
	return false;
}


void
DisplayThread::MakeDisplayOptional()
{
	state().isDisplayOptional = true;
}


void
DisplayThread::Stop()
{
	State& shared = state();
	std::thread thread;
	{
		std::lock_guard<std::mutex> lock(shared.mutex);
		if (!shared.thread.joinable())
			return;
		shared.stopping = true;
		shared.changed.notify_all();
		thread = std::move(shared.thread);
	}
	wake(shared);
	thread.join();
}


bool
DisplayThread::IsRunning()
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.mutex);
	return shared.running;
}


int
DisplayThread::DotsPerPixel()
{
	return state().dotsPerPixel;
}


bool
DisplayThread::IsCurrent()
{
	State& shared = state();
	std::lock_guard<std::mutex> lock(shared.mutex);
	return shared.thread.get_id() == std::this_thread::get_id();
}


void
DisplayThread::Post(std::function<void()> job)
{
	State& shared = state();
	{
		std::lock_guard<std::mutex> lock(shared.mutex);
		if (!shared.running)
			return;
		shared.jobs.push_back({std::move(job), nullptr});
	}
	wake(shared);
}


bool
DisplayThread::Call(std::function<void()> job)
{
	if (IsCurrent()) {
		job();
		return true;
	}
	State& shared = state();
	bool done = false;
	std::unique_lock<std::mutex> lock(shared.mutex);
	if (!shared.running)
		return false;
	bool ran = false;
	shared.jobs.push_back({[&job, &ran]() {
							   job();
							   ran = true;
						   },
		&done});
	wake(shared);
	shared.changed.wait(lock, [&done]() { return done; });
	return ran;
}

} // namespace hosted
