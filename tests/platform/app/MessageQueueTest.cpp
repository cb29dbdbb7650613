// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <Looper.h>
#include <Message.h>
#include <MessageQueue.h>

#include "tests/platform/app/Recorder.h"


TEST(MessageQueue, FirstInFirstOut)
{
	BMessageQueue queue;
	EXPECT_TRUE(queue.IsEmpty());
	EXPECT_EQ(queue.NextMessage(), nullptr);
	queue.AddMessage(new BMessage('a'));
	queue.AddMessage(new BMessage('b'));
	queue.AddMessage(new BMessage('a'));
	EXPECT_EQ(queue.CountMessages(), 3);
	EXPECT_EQ(queue.FindMessage(int32(1))->what, static_cast<uint32>('b'));
	EXPECT_EQ(queue.FindMessage(int32(3)), nullptr);
	EXPECT_EQ(queue.FindMessage(int32(-1)), nullptr);
	EXPECT_EQ(queue.FindMessage(uint32('a'), 1), queue.FindMessage(int32(2)));
	EXPECT_EQ(queue.FindMessage(uint32('a'), 2), nullptr);

	BMessage* removed = queue.FindMessage(uint32('b'));
	queue.RemoveMessage(removed);
	delete removed;
	BMessage* first = queue.NextMessage();
	EXPECT_EQ(first->what, static_cast<uint32>('a'));
	delete first;
	EXPECT_EQ(queue.CountMessages(), 1);
}


TEST(MessageQueue, LockNestsAndKeepsOthersOut)
{
	BMessageQueue queue;
	ASSERT_TRUE(queue.Lock());
	ASSERT_TRUE(queue.Lock());
	EXPECT_TRUE(queue.IsLocked());
	std::atomic<bool> added{false};
	std::thread other([&]() {
		EXPECT_FALSE(queue.IsLocked());
		queue.Unlock();
		queue.AddMessage(new BMessage('late'));
		added = true;
	});
	queue.AddMessage(new BMessage('mine'));
	queue.Unlock();
	EXPECT_EQ(queue.CountMessages(), 1);
	EXPECT_FALSE(added);
	queue.Unlock();
	other.join();
	EXPECT_EQ(queue.CountMessages(), 2);
}


TEST(MessageQueue, LooperTakesNothingWhileSomebodyLooksThrough)
{
	test::Record record;
	test::RecordingLooper* looper = new test::RecordingLooper(record);
	looper->Run();
	BMessageQueue* queue = looper->MessageQueue();
	ASSERT_TRUE(queue->Lock());
	looper->PostMessage('keep');
	looper->PostMessage('drop');
	BMessage* dropped = queue->FindMessage(uint32('drop'));
	ASSERT_NE(dropped, nullptr);
	queue->RemoveMessage(dropped);
	delete dropped;
	EXPECT_TRUE(record.Codes().empty());
	queue->Unlock();
	EXPECT_TRUE(record.WaitForCount(1));
	test::QuitLooper(looper);
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'keep'}));
}
