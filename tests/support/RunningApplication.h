// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef RUNNING_APPLICATION_H
#define RUNNING_APPLICATION_H

#include <mutex>
#include <vector>

#include <Application.h>
#include <Message.h>


namespace test {

/*!	The one application object of a test process, running in a thread of its own. It keeps what it
	is told.
*/
class RunningApplication : public BApplication {
public:
	RunningApplication();

	void MessageReceived(BMessage* message) override;

	int32 CountReceived(uint32 what);
	// The last message of that code; an empty one if there is none.
	BMessage LastReceived(uint32 what);
	// Forgets also what is still on its way. Not for the application's own thread.
	void ForgetReceived();

private:
	std::mutex fLock;
	std::vector<BMessage> fReceived;
};

// Made with the first call, gone before the display thread stops.
RunningApplication& TheApplication();

} // namespace test

#endif // RUNNING_APPLICATION_H
