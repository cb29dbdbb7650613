// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// Many threads at once; above all for the thread sanitizer.
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <AppDefs.h>
#include <Errors.h>
#include <Looper.h>
#include <Message.h>
#include <MessageRunner.h>
#include <Messenger.h>

#include "tests/platform/app/Recorder.h"

using test::QuitLooper;
using test::WaitFor;


namespace {

// Passes each message on to the next looper as often as the message says.
class RingLooper : public BLooper {
public:
	explicit RingLooper(std::atomic<int>& ended)
		:
		BLooper("ring"),
		fEnded(ended)
	{
	}

	void MessageReceived(BMessage* message) override
	{
		const int32 left = message->GetInt32("left", 0);
		if (left == 0) {
			fEnded++;
			return;
		}
		message->ReplaceInt32("left", left - 1);
		fNext.SendMessage(message);
	}

	BMessenger fNext;

private:
	std::atomic<int>& fEnded;
};


class EchoLooper : public BLooper {
public:
	void MessageReceived(BMessage* message) override
	{
		if (message->what == 'ping')
			message->SendReply('pong');
	}
};

} // namespace


TEST(MessagingStress, RingOfLoopers)
{
	constexpr int kLoopers = 4;
	constexpr int kMessages = 200;
	std::atomic<int> ended{0};
	RingLooper* loopers[kLoopers];
	for (RingLooper*& looper : loopers)
		looper = new RingLooper(ended);
	for (int i = 0; i < kLoopers; i++)
		loopers[i]->fNext = BMessenger(loopers[(i + 1) % kLoopers]);
	for (RingLooper* looper : loopers)
		looper->Run();

	BMessage message('ring');
	message.AddInt32("left", 20);
	message.AddString("load", "a text that is copied each time");
	for (int i = 0; i < kMessages; i++)
		EXPECT_EQ(loopers[i % kLoopers]->PostMessage(&message), B_OK);
	EXPECT_TRUE(WaitFor([&ended]() { return ended == kMessages; }, std::chrono::seconds(60)));
	for (RingLooper* looper : loopers)
		QuitLooper(looper);
}


TEST(MessagingStress, QuitsInTheMiddle)
{
	std::atomic<bool> stop{false};
	std::atomic<int> answered{0};
	std::atomic<int> refused{0};
	for (int round = 0; round < 20; round++) {
		EchoLooper* looper = new EchoLooper;
		const BMessenger named(looper);
		const BMessenger preferred(nullptr, looper);
		looper->Run();
		stop = false;
		std::vector<std::thread> threads;
		for (int i = 0; i < 3; i++) {
			threads.emplace_back([&, i]() {
				const BMessenger& target = i == 0 ? preferred : named;
				while (!stop) {
					BMessage reply;
					const status_t status = target.SendMessage('ping', &reply);
					if (status == B_OK) {
						EXPECT_TRUE(reply.what == 'pong' || reply.what == B_NO_REPLY);
						answered++;
					} else {
						EXPECT_EQ(status, B_BAD_PORT_ID);
						refused++;
					}
					target.SendMessage('none');
					if (target.LockTarget()) {
						BLooper* locked;
						target.Target(&locked);
						locked->Unlock();
					}
				}
			});
		}
		BMessageRunner runner(named, BMessage('tick'), 100);
		std::this_thread::sleep_for(std::chrono::milliseconds(3));
		if (round % 2 == 0)
			QuitLooper(looper);
		else
			named.SendMessage(B_QUIT_REQUESTED);
		EXPECT_TRUE(WaitFor([&named]() { return !named.IsValid(); }));
		stop = true;
		for (std::thread& thread : threads)
			thread.join();
	}
	EXPECT_GT(answered, 0);
}


TEST(MessagingStress, HandlersComeAndGo)
{
	test::Record record;
	BLooper* looper = new BLooper;
	looper->Run();
	std::vector<std::thread> threads;
	for (int i = 0; i < 3; i++) {
		threads.emplace_back([looper, &record]() {
			for (int j = 0; j < 200; j++) {
				test::RecordingHandler handler(record);
				if (looper->Lock()) {
					looper->AddHandler(&handler);
					looper->Unlock();
				}
				const BMessenger messenger(&handler);
				messenger.SendMessage('test');
				messenger.SendMessage('test');
				// It may be handling one of them just now.
				if (handler.LockLooper()) {
					looper->RemoveHandler(&handler);
					looper->Unlock();
				}
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	QuitLooper(looper);
}


TEST(MessagingStress, ThousandsOfMessagesInOrder)
{
	class Counter : public BLooper {
	public:
		void MessageReceived(BMessage* message) override
		{
			if (message->GetInt32("n", -1) != fExpected)
				fWrong = true;
			fExpected++;
		}
		std::atomic<int32> fExpected{0};
		std::atomic<bool> fWrong{false};
	};
	Counter* counter = new Counter;
	const BMessenger messenger(counter);
	counter->Run();
	for (int32 i = 0; i < 5000; i++) {
		BMessage message('numb');
		message.AddInt32("n", i);
		ASSERT_EQ(messenger.SendMessage(&message), B_OK);
	}
	EXPECT_TRUE(WaitFor([counter]() { return counter->fExpected == 5000; }));
	EXPECT_FALSE(counter->fWrong);
	QuitLooper(counter);
}
