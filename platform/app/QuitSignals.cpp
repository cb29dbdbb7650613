// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/QuitSignals.h"

#include <atomic>

#include <errno.h>
#include <fcntl.h>
#include <unistd.h>


namespace hosted {

namespace {

constexpr char kSignalled = 's';
constexpr char kEnd = 'e';

std::atomic<int> sWriteEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler reads it");


// Between system calls of any thread: it may do little more than this.
void
note_signal(int)
{
	const int error = errno;
	if (write(sWriteEnd, &kSignalled, 1) != 1)
		_exit(1);
	errno = error;
}

} // namespace


QuitSignals::QuitSignals(std::function<void()> onSignal)
	:
	fOnSignal(std::move(onSignal)),
	fHandled({{{SIGTERM, {}, false}, {SIGINT, {}, false}, {SIGHUP, {}, false}}})
{
	int ends[2];
	if (sWriteEnd >= 0 || pipe2(ends, O_CLOEXEC) != 0)
		return;
	fReadEnd = ends[0];
	sWriteEnd = ends[1];
	fThread = std::thread([this]() { _Listen(); });

	struct sigaction ours = {};
	ours.sa_handler = &note_signal;
	ours.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
	for (Handled& handled : fHandled) {
		if (sigaction(handled.signal, nullptr, &handled.before) == 0
			&& handled.before.sa_handler == SIG_DFL)
			handled.isOurs = sigaction(handled.signal, &ours, nullptr) == 0;
	}
}


QuitSignals::~QuitSignals()
{
	if (fReadEnd < 0)
		return;
	for (const Handled& handled : fHandled) {
		if (handled.isOurs)
			sigaction(handled.signal, &handled.before, nullptr);
	}
	if (write(sWriteEnd, &kEnd, 1) == 1)
		fThread.join();
	else
		fThread.detach();
	close(sWriteEnd);
	sWriteEnd = -1;
	close(fReadEnd);
}


void
QuitSignals::_Listen()
{
	char what = kEnd;
	ssize_t length;
	do {
		length = read(fReadEnd, &what, 1);
		if (length == 1 && what == kSignalled)
			fOnSignal();
	} while (length == 1 ? what != kEnd : length < 0 && errno == EINTR);
}

} // namespace hosted
