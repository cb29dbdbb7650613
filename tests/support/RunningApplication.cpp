// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/RunningApplication.h"

#include <condition_variable>
#include <thread>

#include <Messenger.h>
#include <gtest/gtest.h>


namespace test {

static RunningApplication* sApplication = nullptr;


namespace {

// Ends the application when all tests have run.
class ApplicationEnd : public testing::Environment {
public:
	explicit ApplicationEnd(std::thread&& thread)
		:
		fThread(std::move(thread))
	{
	}

	void TearDown() override
	{
		sApplication->PostMessage(B_QUIT_REQUESTED);
		fThread.join();
	}

private:
	std::thread fThread;
};

} // namespace


RunningApplication::RunningApplication()
	:
	BApplication("application/x-vnd.kv-VinyloH-tests")
{
}


void
RunningApplication::MessageReceived(BMessage* message)
{
	const std::lock_guard<std::mutex> guard(fLock);
	fReceived.push_back(*message);
}


int32
RunningApplication::CountReceived(uint32 what)
{
	const std::lock_guard<std::mutex> guard(fLock);
	int32 count = 0;
	for (const BMessage& message : fReceived)
		count += message.what == what ? 1 : 0;
	return count;
}


BMessage
RunningApplication::LastReceived(uint32 what)
{
	const std::lock_guard<std::mutex> guard(fLock);
	for (auto message = fReceived.rbegin(); message != fReceived.rend(); ++message) {
		if (message->what == what)
			return *message;
	}
	return BMessage();
}


void
RunningApplication::ForgetReceived()
{
	// When this has been handled, so has all that was sent before.
	BMessage reply;
	BMessenger(this).SendMessage('last', &reply);
	const std::lock_guard<std::mutex> guard(fLock);
	fReceived.clear();
}


RunningApplication&
TheApplication()
{
	if (sApplication != nullptr)
		return *sApplication;

	std::mutex lock;
	std::condition_variable made;
	std::thread thread([&lock, &made] {
		RunningApplication* const application = new RunningApplication;
		{
			const std::lock_guard<std::mutex> guard(lock);
			sApplication = application;
			made.notify_one();
		}
		application->Run();
		application->Unlock();
		delete application;
	});
	std::unique_lock<std::mutex> guard(lock);
	made.wait(guard, [] { return sApplication != nullptr; });
	testing::AddGlobalTestEnvironment(new ApplicationEnd(std::move(thread)));
	return *sApplication;
}

} // namespace test
