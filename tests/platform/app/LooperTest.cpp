// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <AppDefs.h>
#include <Errors.h>
#include <Handler.h>
#include <Looper.h>
#include <Message.h>
#include <MessageQueue.h>
#include <Messenger.h>

#include "tests/platform/app/Recorder.h"
#include "tests/support/Output.h"

using test::LockBlindly;
using test::QuitLooper;
using test::Record;
using test::RecordingHandler;
using test::RecordingLooper;
using test::WaitFor;


namespace {

// Tells in which order its end happens.
class EndingLooper : public BLooper {
public:
	EndingLooper(std::atomic<bool>& deleted, bool mayQuit = true)
		:
		BLooper("ending"),
		fDeleted(deleted),
		fMayQuit(mayQuit)
	{
	}

	~EndingLooper() override { fDeleted = true; }

	bool QuitRequested() override
	{
		fAsked++;
		return fMayQuit;
	}

	std::atomic<int> fAsked{0};

private:
	std::atomic<bool>& fDeleted;
	std::atomic<bool> fMayQuit;
};


class BatchLooper : public BLooper {
public:
	std::atomic<int> fBatches{0};
	std::atomic<int> fMessages{0};
	std::atomic<bool> fLocked{true};

private:
	void MessageReceived(BMessage*) override { fMessages++; }
	void _BatchDone() override
	{
		fBatches++;
		fLocked = fLocked && IsLocked();
	}
};

} // namespace


TEST(LooperRun, ConstructedLockedByItsMaker)
{
	BLooper* looper = new BLooper("name");
	EXPECT_TRUE(looper->IsLocked());
	EXPECT_EQ(looper->CountLocks(), 1);
	EXPECT_EQ(looper->Thread(), -1);
	EXPECT_STREQ(looper->Name(), "name");
	EXPECT_EQ(looper->CountHandlers(), 1);
	EXPECT_EQ(looper->HandlerAt(0), looper);
	EXPECT_EQ(looper->Looper(), looper);
	std::thread([looper]() {
		EXPECT_FALSE(looper->IsLocked());
		EXPECT_EQ(looper->LockWithTimeout(0), B_WOULD_BLOCK);
		EXPECT_EQ(looper->LockWithTimeout(1000), B_TIMED_OUT);
	}).join();
	looper->Quit();
}


TEST(LooperRun, MessagesWaitForIt)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	EXPECT_EQ(looper->PostMessage('1st '), B_OK);
	EXPECT_EQ(looper->PostMessage('2nd '), B_OK);
	EXPECT_TRUE(looper->IsMessageWaiting());
	const thread_id thread = looper->Run();
	EXPECT_GT(thread, 0);
	EXPECT_FALSE(looper->IsLocked());
	EXPECT_EQ(looper->Thread(), thread);
	EXPECT_EQ(BLooper::LooperForThread(thread), looper);
	ASSERT_TRUE(record.WaitForCount(2));
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'1st ', '2nd '}));
	QuitLooper(looper);
	EXPECT_EQ(BLooper::LooperForThread(thread), nullptr);
}


TEST(LooperRun, CurrentMessageIsTheDispatchedOne)
{
	Record record;
	BLooper* self = nullptr;
	std::atomic<BMessage*> detached{nullptr};
	RecordingLooper* looper = new RecordingLooper(record, [&](BMessage* message) {
		EXPECT_TRUE(self->IsLocked());
		EXPECT_EQ(self->CurrentMessage(), message);
		if (message->what == 'keep') {
			EXPECT_EQ(self->DetachCurrentMessage(), message);
			EXPECT_EQ(self->CurrentMessage(), nullptr);
			detached = message;
		}
	});
	self = looper;
	looper->PostMessage('show');
	looper->PostMessage('keep');
	looper->Run();
	ASSERT_TRUE(WaitFor([&detached]() { return detached != nullptr; }));
	QuitLooper(looper);
	EXPECT_EQ(detached.load()->what, static_cast<uint32>('keep'));
	delete detached;
}


TEST(LooperRun, OwnMessagesFollowTheCurrentOne)
{
	Record record;
	BLooper* self = nullptr;
	RecordingLooper* looper = new RecordingLooper(record, [&self](BMessage* message) {
		if (message->what != 'frst')
			return;
		BMessenger(self).SendMessage('own1');
		self->PostMessage('own2');
	});
	self = looper;
	looper->PostMessage('frst');
	looper->PostMessage('scnd');
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(4));
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'frst', 'scnd', 'own1', 'own2'}));
	QuitLooper(looper);
}


TEST(LooperRun, BatchIsDoneWhenTheQueueIsEmpty)
{
	BatchLooper* looper = new BatchLooper;
	for (int i = 0; i < 50; i++)
		looper->PostMessage('test');
	looper->Run();
	ASSERT_TRUE(WaitFor([looper]() { return looper->fMessages == 50 && looper->fBatches > 0; }));
	EXPECT_LT(looper->fBatches, 50);
	EXPECT_TRUE(looper->fLocked);
	QuitLooper(looper);
}


TEST(LooperTargets, HandlersByNumberPreferredOrLooper)
{
	Record own;
	Record other;
	RecordingHandler handler(other);
	RecordingLooper* looper = new RecordingLooper(own);
	looper->AddHandler(&handler);
	EXPECT_EQ(looper->CountHandlers(), 2);
	EXPECT_EQ(looper->IndexOf(&handler), 1);
	EXPECT_EQ(handler.Looper(), looper);
	EXPECT_EQ(handler.NextHandler(), looper);
	looper->SetPreferredHandler(&handler);
	EXPECT_EQ(looper->PreferredHandler(), &handler);
	looper->PostMessage('own ');
	looper->PostMessage('pref', nullptr);
	looper->PostMessage('hand', &handler);
	BHandler loose;
	EXPECT_EQ(looper->PostMessage('none', &loose), B_MISMATCHED_VALUES);
	looper->Run();
	ASSERT_TRUE(other.WaitForCount(2));
	EXPECT_EQ(own.Codes(), (std::vector<uint32>{'own '}));
	EXPECT_EQ(other.Codes(), (std::vector<uint32>{'pref', 'hand'}));
	QuitLooper(looper);
	EXPECT_EQ(handler.Looper(), nullptr);
	EXPECT_EQ(handler.NextHandler(), nullptr);
}


TEST(LooperTargets, DeletedHandlersMessagesVanish)
{
	Record record;
	Record other;
	RecordingLooper* looper = new RecordingLooper(record);
	RecordingHandler* handler = new RecordingHandler(other);
	looper->AddHandler(handler);
	const BMessenger messenger(handler);
	EXPECT_EQ(messenger.SendMessage('gone'), B_OK);
	delete handler;
	EXPECT_EQ(looper->CountHandlers(), 1);
	EXPECT_TRUE(messenger.IsValid());
	EXPECT_EQ(messenger.SendMessage('gone'), B_OK);
	looper->PostMessage('here');
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(1));
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'here'}));
	EXPECT_TRUE(other.Codes().empty());
	QuitLooper(looper);
}


TEST(LooperTargets, HandlerOfAnotherLooperIsNotTaken)
{
	BHandler handler;
	BLooper* first = new BLooper;
	BLooper* second = new BLooper;
	first->AddHandler(&handler);
	second->AddHandler(&handler);
	EXPECT_EQ(handler.Looper(), first);
	EXPECT_FALSE(second->RemoveHandler(&handler));
	EXPECT_TRUE(first->RemoveHandler(&handler));
	second->AddHandler(&handler);
	EXPECT_EQ(handler.Looper(), second);
	first->Quit();
	second->Quit();
}


TEST(LooperQuit, NeverRunLooperIsDeleted)
{
	std::atomic<bool> deleted{false};
	EndingLooper* looper = new EndingLooper(deleted);
	looper->Quit();
	EXPECT_TRUE(deleted);
}


TEST(LooperQuit, FromAnotherThreadWaitsAndComesAfterQueuedMessages)
{
	Record record;
	std::atomic<bool> slow{false};
	RecordingLooper* looper = new RecordingLooper(record, [&slow](BMessage*) {
		std::this_thread::sleep_for(std::chrono::milliseconds(5));
		slow = true;
	});
	for (int i = 0; i < 5; i++)
		looper->PostMessage('work');
	looper->Run();
	const BMessenger messenger(looper);
	ASSERT_TRUE(looper->Lock());
	looper->Lock();
	looper->Quit();
	EXPECT_EQ(record.Codes().size(), 5u);
	EXPECT_FALSE(messenger.IsValid());
	EXPECT_FALSE(messenger.LockTarget());
}


TEST(LooperQuit, FromOwnThreadDoesNotReturn)
{
	std::atomic<bool> deleted{false};
	std::atomic<bool> returned{false};
	std::atomic<bool> unwound{false};
	struct Guard {
		explicit Guard(std::atomic<bool>& flag)
			:
			fFlag(flag)
		{
		}
		~Guard() { fFlag = true; }
		std::atomic<bool>& fFlag;
	};
	class Suicide : public EndingLooper {
	public:
		Suicide(std::atomic<bool>& deleted, std::atomic<bool>& returned, std::atomic<bool>& unwound)
			:
			EndingLooper(deleted),
			fReturned(returned),
			fUnwound(unwound)
		{
		}
		void MessageReceived(BMessage*) override
		{
			std::atomic<bool>& returned = fReturned;
			Guard guard(fUnwound);
			Quit();
			returned = true;
		}
		std::atomic<bool>& fReturned;
		std::atomic<bool>& fUnwound;
	};
	Suicide* looper = new Suicide(deleted, returned, unwound);
	const BMessenger messenger(looper);
	looper->Run();
	BMessage reply;
	EXPECT_EQ(messenger.SendMessage('quit', &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_NO_REPLY));
	EXPECT_TRUE(WaitFor([&]() { return deleted && unwound; }));
	EXPECT_FALSE(returned);
}


TEST(LooperQuit, RefusalIsAnswered)
{
	std::atomic<bool> deleted{false};
	EndingLooper* looper = new EndingLooper(deleted, false);
	const thread_id thread = looper->Run();
	BMessage reply;
	ASSERT_EQ(BMessenger(looper).SendMessage(B_QUIT_REQUESTED, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_REPLY));
	EXPECT_FALSE(reply.GetBool("result", true));
	EXPECT_EQ(reply.GetInt32("thread", -1), thread);
	EXPECT_FALSE(deleted);
	EXPECT_EQ(looper->fAsked, 1);
	// Quit() itself does not ask.
	QuitLooper(looper);
	EXPECT_TRUE(deleted);
}


TEST(LooperQuit, UnlockedCallerIsTold)
{
	BLooper* looper = new BLooper("nobody");
	looper->Run();
	const std::string output = test::OutputOf([looper]() { looper->Quit(); });
	EXPECT_EQ(output.find("ERROR - you must Lock a looper before calling Quit(), "), 0u) << output;
}


TEST(LooperQuit, TwoThreadsAtOnce)
{
	for (int i = 0; i < 50; i++) {
		BLooper* looper = new BLooper;
		looper->Run();
		std::thread first([looper]() { QuitLooper(looper); });
		std::thread second([looper]() { QuitLooper(looper); });
		first.join();
		second.join();
	}
}


TEST(LooperLock, FailsOnADeadLooper)
{
	BLooper* looper = new BLooper;
	looper->Quit();
	EXPECT_FALSE(LockBlindly(looper));
}


TEST(LooperLock, WaitersAreWokenByTheEnd)
{
	BLooper* looper = new BLooper;
	std::vector<std::thread> waiters;
	std::atomic<int> failed{0};
	for (int i = 0; i < 4; i++) {
		waiters.emplace_back([looper, &failed]() {
			if (!LockBlindly(looper))
				failed++;
		});
	}
	EXPECT_TRUE(WaitFor([looper]() { return looper->CountLockRequests() == 5; }));
	looper->Quit();
	for (std::thread& waiter : waiters)
		waiter.join();
	EXPECT_EQ(failed, 4);
}


TEST(LooperLock, NobodyGetsInWhileALooperDies)
{
	// The destructor of the derived class runs in the looper's thread, which then waits for us.
	struct Slow : public BLooper {
		~Slow() override
		{
			fEntered->store(true);
			WaitFor([this]() { return fTried->load(); });
		}
		std::atomic<bool>* fEntered;
		std::atomic<bool>* fTried;
	};
	std::atomic<bool> entered{false};
	std::atomic<bool> tried{false};
	Slow* looper = new Slow;
	looper->fEntered = &entered;
	looper->fTried = &tried;
	const BMessenger messenger(looper);
	looper->Run();
	messenger.SendMessage(B_QUIT_REQUESTED);
	ASSERT_TRUE(WaitFor([&entered]() { return entered.load(); }));
	EXPECT_FALSE(messenger.LockTarget());
	tried = true;
	EXPECT_TRUE(WaitFor([&messenger]() { return !messenger.IsValid(); }));
}


TEST(LooperLock, IsRecursive)
{
	BLooper* looper = new BLooper;
	EXPECT_TRUE(looper->Lock());
	EXPECT_EQ(looper->CountLocks(), 2);
	looper->Unlock();
	EXPECT_TRUE(looper->IsLocked());
	looper->Unlock();
	EXPECT_FALSE(looper->IsLocked());
	EXPECT_TRUE(looper->Lock());
	looper->Quit();
}


TEST(LooperDeathTest, MisuseStopsTheProgram)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(
		{
			BLooper* looper = new BLooper;
			looper->Run();
			looper->Lock();
			looper->Run();
		},
		"can't call BLooper::Run twice");
	EXPECT_DEATH(
		{
			BLooper* looper = new BLooper;
			looper->Run();
			delete looper;
		},
		"delete");
	EXPECT_DEATH(
		{
			BHandler handler;
			handler.SetNextHandler(nullptr);
		},
		"NextHandler");
}
