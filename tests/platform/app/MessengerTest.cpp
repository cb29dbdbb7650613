// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <string.h>
#include <thread>
#include <unistd.h>

#include <AppDefs.h>
#include <Errors.h>
#include <Handler.h>
#include <Looper.h>
#include <Message.h>
#include <MessageQueue.h>
#include <Messenger.h>

#include "tests/platform/app/Recorder.h"

using test::QuitLooper;
using test::Record;
using test::RecordingHandler;
using test::RecordingLooper;


TEST(MessengerStatus, NothingGiven)
{
	status_t status = B_OK;
	const BMessenger messenger(static_cast<BHandler*>(nullptr), nullptr, &status);
	EXPECT_EQ(status, B_BAD_VALUE);
	EXPECT_FALSE(messenger.IsValid());
	EXPECT_EQ(messenger.Team(), -1);
	BMessenger none(static_cast<const char*>(nullptr), -1, &status);
	EXPECT_EQ(status, B_BAD_TYPE);
}


TEST(MessengerStatus, HandlersAndLoopers)
{
	Record record;
	BHandler loose;
	RecordingHandler handler(record);
	BLooper* looper = new BLooper;
	BLooper* other = new BLooper;
	looper->AddHandler(&handler);

	status_t status;
	EXPECT_FALSE(BMessenger(&loose, nullptr, &status).IsValid());
	EXPECT_EQ(status, B_MISMATCHED_VALUES);
	EXPECT_FALSE(BMessenger(&handler, other, &status).IsValid());
	EXPECT_EQ(status, B_MISMATCHED_VALUES);
	const BMessenger named(&handler, nullptr, &status);
	EXPECT_EQ(status, B_OK);
	EXPECT_TRUE(named.IsValid());
	EXPECT_TRUE(named.IsTargetLocal());
	EXPECT_EQ(named.Team(), getpid());
	const BMessenger preferred(nullptr, looper, &status);
	EXPECT_EQ(status, B_OK);

	BLooper* found;
	EXPECT_EQ(named.Target(&found), &handler);
	EXPECT_EQ(found, looper);
	EXPECT_EQ(preferred.Target(&found), nullptr);
	EXPECT_EQ(found, looper);
	EXPECT_TRUE(named == BMessenger(&handler));
	EXPECT_TRUE(named != preferred);
	EXPECT_NE(named < preferred, preferred < named);

	looper->RemoveHandler(&handler);
	looper->Quit();
	EXPECT_FALSE(named.IsValid());
	EXPECT_EQ(named.SendMessage('ping'), B_BAD_PORT_ID);
	BMessage reply;
	EXPECT_EQ(named.SendMessage('ping', &reply), B_BAD_PORT_ID);
	EXPECT_FALSE(named.LockTarget());
	other->Quit();
}


TEST(MessengerStatus, NoMessage)
{
	BLooper* looper = new BLooper;
	const BMessenger messenger(looper);
	BMessage message;
	EXPECT_EQ(messenger.SendMessage(static_cast<BMessage*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(messenger.SendMessage(&message, static_cast<BMessage*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(BMessenger().SendMessage('ping'), B_BAD_PORT_ID);
	looper->Quit();
}


TEST(MessengerSend, TakesACopyInOrder)
{
	Record record;
	std::atomic<int32> sum{0};
	RecordingLooper* looper = new RecordingLooper(record,
		[&sum](BMessage* message) { sum += message->GetInt32("n", 0); });
	const BMessenger messenger(looper);
	BMessage message('frst');
	message.AddInt32("n", 1);
	EXPECT_EQ(messenger.SendMessage(&message), B_OK);
	message.what = 'scnd';
	message.ReplaceInt32("n", 10);
	EXPECT_EQ(looper->PostMessage(&message), B_OK);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(2));
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'frst', 'scnd'}));
	EXPECT_TRUE(test::WaitFor([&sum]() { return sum == 11; }));
	QuitLooper(looper);
}


TEST(MessengerSend, PreferredTargetWaitsForRoom)
{
	BLooper* looper = new BLooper("small", B_NORMAL_PRIORITY, 3);
	const BMessenger preferred(nullptr, looper);
	BMessage message('ping');
	std::thread sender([&]() {
		for (int i = 0; i < 3; i++)
			EXPECT_EQ(preferred.SendMessage(&message, BMessenger(), 0), B_OK);
		EXPECT_EQ(preferred.SendMessage(&message, BMessenger(), 0), B_WOULD_BLOCK);
		EXPECT_EQ(preferred.SendMessage(&message, BMessenger(), 1000), B_TIMED_OUT);
		// A named handler is reached directly, and posting never waits.
		EXPECT_EQ(BMessenger(looper).SendMessage(&message, BMessenger(), 0), B_OK);
		EXPECT_EQ(looper->PostMessage('post'), B_OK);
	});
	sender.join();
	EXPECT_EQ(looper->MessageQueue()->CountMessages(), 5);

	std::thread waiter([&]() { EXPECT_EQ(preferred.SendMessage(&message), B_OK); });
	looper->Run();
	waiter.join();
	QuitLooper(looper);
}


TEST(MessengerSend, SenderWaitingForRoomLearnsOfTheEnd)
{
	BLooper* looper = new BLooper("small", B_NORMAL_PRIORITY, 1);
	const BMessenger preferred(nullptr, looper);
	std::atomic<bool> started{false};
	std::thread sender([&]() {
		EXPECT_EQ(preferred.SendMessage('ping'), B_OK);
		started = true;
		EXPECT_EQ(preferred.SendMessage('ping'), B_BAD_PORT_ID);
	});
	ASSERT_TRUE(test::WaitFor([&]() { return started.load(); }));
	looper->Quit();
	sender.join();
}


TEST(MessengerReply, Synchronous)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record, [](BMessage* message) {
		EXPECT_TRUE(message->WasDelivered());
		EXPECT_TRUE(message->IsSourceWaiting());
		EXPECT_FALSE(message->IsSourceRemote());
		BMessage reply('pong');
		reply.AddInt32("n", message->GetInt32("n", 0) + 1);
		EXPECT_EQ(message->SendReply(&reply), B_OK);
		EXPECT_FALSE(message->IsSourceWaiting());
		EXPECT_EQ(message->SendReply(&reply), B_DUPLICATE_REPLY);
	});
	looper->Run();
	BMessage message('ping');
	message.AddInt32("n", 41);
	BMessage reply('old ');
	reply.AddInt32("old", 1);
	ASSERT_EQ(BMessenger(looper).SendMessage(&message, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>('pong'));
	EXPECT_EQ(reply.GetInt32("n", 0), 42);
	EXPECT_FALSE(reply.HasInt32("old"));
	EXPECT_TRUE(reply.IsReply());
	EXPECT_TRUE(reply.WasDelivered());
	QuitLooper(looper);
}


TEST(MessengerReply, TargetThatDoesNotReply)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	looper->Run();
	BMessage reply;
	EXPECT_EQ(BMessenger(looper).SendMessage('ping', &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_NO_REPLY));
	QuitLooper(looper);
}


TEST(MessengerReply, TimesOut)
{
	BLooper* looper = new BLooper;
	BMessage message('ping');
	BMessage reply;
	const BMessenger messenger(looper);
	EXPECT_EQ(messenger.SendMessage(&message, &reply, B_INFINITE_TIMEOUT, 2000), B_TIMED_OUT);
	EXPECT_EQ(messenger.SendMessage(&message, &reply, 0, 0), B_WOULD_BLOCK);
	looper->Quit();
}


TEST(MessengerReply, TargetThatQuitsGivesNone)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	const BMessenger messenger(looper);
	looper->Run();
	BMessage reply;
	EXPECT_EQ(messenger.SendMessage(B_QUIT_REQUESTED, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_NO_REPLY));
	EXPECT_TRUE(test::WaitFor([&messenger]() { return !messenger.IsValid(); }));
}


TEST(MessengerReply, QueuedQuestionIsGivenUpWithItsLooper)
{
	BLooper* looper = new BLooper;
	const BMessenger messenger(looper);
	std::thread asker([&messenger]() {
		BMessage reply;
		EXPECT_EQ(messenger.SendMessage('ping', &reply), B_OK);
		EXPECT_EQ(reply.what, static_cast<uint32>(B_NO_REPLY));
	});
	ASSERT_TRUE(test::WaitFor([looper]() { return looper->IsMessageWaiting(); }));
	looper->Quit();
	asker.join();
}


TEST(MessengerReply, EmptiedQuestionIsGivenUp)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record, [](BMessage* message) {
		message->MakeEmpty();
		EXPECT_FALSE(message->WasDelivered());
		EXPECT_EQ(message->SendReply('late'), B_BAD_REPLY);
	});
	looper->Run();
	BMessage reply;
	EXPECT_EQ(BMessenger(looper).SendMessage('ping', &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_NO_REPLY));
	QuitLooper(looper);
}


TEST(MessengerReply, UndeliveredMessageCannotBeAnswered)
{
	BMessage message('ping');
	EXPECT_EQ(message.SendReply('pong'), B_BAD_REPLY);
	EXPECT_EQ(message.SendReply(static_cast<BMessage*>(nullptr)), B_BAD_VALUE);
}


TEST(MessengerReply, AsynchronousReplyCarriesTheQuestion)
{
	Record record;
	Record answers;
	RecordingLooper* asked = new RecordingLooper(record, [](BMessage* message) {
		EXPECT_FALSE(message->IsSourceWaiting());
		EXPECT_EQ(message->SendReply('pong'), B_OK);
		EXPECT_EQ(message->SendReply('agin'), B_OK);
	});
	std::atomic<int32> question{0};
	RecordingLooper* asking = new RecordingLooper(answers, [&question](BMessage* message) {
		EXPECT_TRUE(message->IsReply());
		const BMessage* previous = message->Previous();
		ASSERT_NE(previous, nullptr);
		EXPECT_EQ(previous->what, static_cast<uint32>('ping'));
		question = previous->GetInt32("n", 0);
	});
	const BMessenger returnAddress(asking);
	asked->Run();
	asking->Run();
	BMessage message('ping');
	message.AddInt32("n", 5);
	EXPECT_EQ(BMessenger(asked).SendMessage(&message, returnAddress), B_OK);
	ASSERT_TRUE(answers.WaitForCount(2));
	EXPECT_EQ(answers.Codes(), (std::vector<uint32>{'pong', 'agin'}));
	EXPECT_TRUE(test::WaitFor([&question]() { return question == 5; }));
	QuitLooper(asked);
	QuitLooper(asking);
}


TEST(MessengerForward, CopyAnswersTheFirstSender)
{
	Record record;
	RecordingLooper* last = new RecordingLooper(record, [](BMessage* message) {
		EXPECT_TRUE(message->IsSourceWaiting());
		message->SendReply('last');
	});
	const BMessenger lastTarget(last);
	RecordingLooper* first = new RecordingLooper(record, [lastTarget](BMessage* message) {
		EXPECT_EQ(lastTarget.SendMessage(message), B_OK);
		EXPECT_FALSE(message->IsSourceWaiting());
		EXPECT_EQ(message->SendReply('frst'), B_DUPLICATE_REPLY);
	});
	last->Run();
	first->Run();
	BMessage reply;
	EXPECT_EQ(BMessenger(first).SendMessage('ping', &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>('last'));
	QuitLooper(first);
	QuitLooper(last);
}


TEST(MessengerForward, FailureLeavesTheDutyWithTheOriginal)
{
	BLooper* gone = new BLooper;
	const BMessenger nowhere(gone);
	gone->Quit();
	Record record;
	RecordingLooper* looper = new RecordingLooper(record, [nowhere](BMessage* message) {
		EXPECT_EQ(nowhere.SendMessage(message), B_BAD_PORT_ID);
		EXPECT_TRUE(message->IsSourceWaiting());
		BMessage other;
		EXPECT_EQ(BMessenger(message->ReturnAddress()).SendMessage(message, &other), B_ERROR);
		message->SendReply('own ');
	});
	looper->Run();
	BMessage reply;
	EXPECT_EQ(BMessenger(looper).SendMessage('ping', &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>('own '));
	QuitLooper(looper);
}


TEST(MessengerForward, CopiesLoseDelivery)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record, [](BMessage* message) {
		const BMessage copy(*message);
		EXPECT_FALSE(copy.WasDelivered());
		EXPECT_FALSE(copy.IsSourceWaiting());
		EXPECT_FALSE(copy.IsReply());
	});
	looper->Run();
	BMessage reply;
	EXPECT_EQ(BMessenger(looper).SendMessage('ping', &reply), B_OK);
	QuitLooper(looper);
}


TEST(MessengerReply, ReplyToTheReply)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record, [](BMessage* message) {
		BMessage second;
		EXPECT_EQ(message->SendReply('ask2', &second), B_OK);
		EXPECT_EQ(second.what, static_cast<uint32>('ans2'));
	});
	looper->Run();
	{
		BMessage reply;
		ASSERT_EQ(BMessenger(looper).SendMessage('ask1', &reply), B_OK);
		EXPECT_EQ(reply.what, static_cast<uint32>('ask2'));
		EXPECT_TRUE(reply.IsSourceWaiting());
		EXPECT_EQ(reply.SendReply('ans2'), B_OK);
	}
	QuitLooper(looper);
}
