// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef QUIT_SIGNALS_H
#define QUIT_SIGNALS_H

#include <array>
#include <functional>
#include <thread>

#include <signal.h>


namespace hosted {

/*!	While it lives, the signals by which a session or a terminal ends programs call a function, in
	a thread of its own.

	The same signal more than a second later ends the program at once. What whoever started the
	program has ignored stays ignored. There is one at a time.
*/
class QuitSignals {
public:
	explicit QuitSignals(std::function<void()> onSignal);
	~QuitSignals();
	QuitSignals(const QuitSignals&) = delete;
	QuitSignals& operator=(const QuitSignals&) = delete;

private:
	struct Handled {
		int signal;
		struct sigaction before;
		bool isOurs;
	};

	void _Listen();

	std::function<void()> fOnSignal;
	std::array<Handled, 3> fHandled;
	int fReadEnd = -1;
	std::thread fThread;
};

} // namespace hosted

#endif // QUIT_SIGNALS_H
