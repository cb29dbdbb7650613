// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <Errors.h>
#include <Message.h>
#include <MessageQueue.h>
#include <MessageRunner.h>
#include <Messenger.h>

#include "tests/platform/app/Recorder.h"

using test::QuitLooper;
using test::Record;
using test::RecordingLooper;


TEST(MessageRunner, BadArguments)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	const BMessenger messenger(looper);
	const BMessage message('tick');
	EXPECT_EQ(BMessageRunner(messenger, nullptr, 1000).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BMessageRunner(messenger, message, 0).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BMessageRunner(messenger, message, 1000, 0).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BMessageRunner(BMessenger(), message, 1000).InitCheck(), B_BAD_VALUE);
	looper->Quit();
}


TEST(MessageRunner, SendsAsOftenAsAsked)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	const bigtime_t start = system_time();
	BMessageRunner runner(BMessenger(looper), BMessage('tick'), 3000, 3);
	EXPECT_EQ(runner.InitCheck(), B_OK);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(3));
	EXPECT_GE(system_time() - start, 9000);
	int32 count = -1;
	bigtime_t interval = 0;
	EXPECT_TRUE(
		test::WaitFor([&]() { return runner.GetInfo(&interval, &count) == B_OK && count == 0; }));
	EXPECT_EQ(interval, 3000);
	EXPECT_EQ(runner.SetCount(1), B_OK);
	ASSERT_TRUE(record.WaitForCount(4));
	QuitLooper(looper);
	EXPECT_EQ(record.Codes().size(), 4u);
}


TEST(MessageRunner, DeletedOneSendsNothingMore)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	const BMessenger messenger(looper);
	looper->Run();
	for (int i = 0; i < 30; i++) {
		BMessageRunner* runner = new BMessageRunner(messenger, BMessage('tick'), 200);
		std::this_thread::sleep_for(std::chrono::microseconds(100 * (i % 7)));
		delete runner;
		// All that the runner sent is before this one.
		BMessage reply;
		messenger.SendMessage('sync', &reply);
		const size_t ticks = record.Codes().size();
		std::this_thread::sleep_for(std::chrono::microseconds(500));
		EXPECT_EQ(record.Codes().size(), ticks);
	}
	QuitLooper(looper);
}


TEST(MessageRunner, SurvivesItsTarget)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	BMessageRunner runner(BMessenger(looper), BMessage('tick'), 500);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(2));
	QuitLooper(looper);
	int32 count = -1;
	EXPECT_TRUE(
		test::WaitFor([&]() { return runner.GetInfo(nullptr, &count) == B_OK && count == 0; }));
}


TEST(MessageRunner, BusyTargetIsNotFlooded)
{
	BLooper* looper = new BLooper("busy", B_NORMAL_PRIORITY, 5);
	BMessageRunner runner(BMessenger(looper), BMessage('tick'), 100);
	EXPECT_TRUE(test::WaitFor([looper]() { return looper->MessageQueue()->CountMessages() == 5; }));
	std::this_thread::sleep_for(std::chrono::milliseconds(5));
	EXPECT_EQ(looper->MessageQueue()->CountMessages(), 5);
	looper->Quit();
}


TEST(MessageRunner, ManyAtOnce)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	const BMessenger messenger(looper);
	looper->Run();
	std::vector<std::thread> threads;
	for (int i = 0; i < 4; i++) {
		threads.emplace_back([&messenger]() {
			for (int j = 0; j < 50; j++) {
				BMessageRunner first(messenger, BMessage('1st '), 100 + j);
				BMessageRunner second(messenger, BMessage('2nd '), 50, 2);
				std::this_thread::sleep_for(std::chrono::microseconds(300));
				first.SetInterval(70);
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	EXPECT_TRUE(record.WaitForCount(10));
	QuitLooper(looper);
}
