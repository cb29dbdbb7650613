// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/QuitSignals.h"

#include <atomic>

#include <errno.h>
#include <fcntl.h>
#include <stdint.h>
#include <time.h>
#include <unistd.h>


namespace hosted {

namespace {

constexpr char kSignalled = 's';
constexpr char kEnd = 'e';
// Who ends a program may signal twice: a closed terminal and its shell both send SIGHUP, and
// timeout(1) signals the program and its group.
constexpr int64_t kSameEndMillis = 1000;

std::atomic<int> sWriteEnd = -1;
// When each signal came first; 0 for one that did not come.
std::array<std::atomic<int64_t>, NSIG> sFirstMillis = {};
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<int64_t>::is_always_lock_free,
	"a signal handler uses them");


int64_t
now_millis()
{
	struct timespec now;
	clock_gettime(CLOCK_MONOTONIC, &now);
	return static_cast<int64_t>(now.tv_sec) * 1000 + now.tv_nsec / 1000000 + 1;
}


// Between system calls of any thread: it may do little more than this.
void
note_signal(int signal)
{
	const int error = errno;
	const int64_t now = now_millis();
	int64_t first = 0;
	if (sFirstMillis[static_cast<size_t>(signal)].compare_exchange_strong(first, now)) {
		if (write(sWriteEnd, &kSignalled, 1) != 1)
			_exit(1);
	} else if (now - first > kSameEndMillis) {
		// Ends the program when this function is left.
		struct sigaction original = {};
		original.sa_handler = SIG_DFL;
		sigaction(signal, &original, nullptr);
		raise(signal);
	}
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
	ours.sa_flags = SA_RESTART;
	for (Handled& handled : fHandled) {
		sFirstMillis[static_cast<size_t>(handled.signal)] = 0;
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
