// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <random>
#include <string.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <AppDefs.h>
#include <Errors.h>
#include <Looper.h>
#include <Message.h>
#include <MessageQueue.h>
#include <Messenger.h>

#include "platform/app/Delivery.h"
#include "platform/app/Registry.h"
#include "platform/app/Transport.h"
#include "tests/platform/app/Recorder.h"

using hosted::Address;
using test::QuitLooper;
using test::Record;
using test::RecordingLooper;


namespace {

// No process has this number: the kernel gives none so large.
constexpr team_id kForeignTeam = 0x40000001;

std::vector<char>
bytes_of(const BMessage& message)
{
	std::vector<char> bytes(static_cast<size_t>(message.FlattenedSize()));
	message.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size()));
	return bytes;
}


Address
address_of(BLooper* looper)
{
	return hosted::MessengerAccess::AddressOf(BMessenger(looper));
}

} // namespace


TEST(DeliverFromOutside, QueuesTheMessage)
{
	Record record;
	std::atomic<bool> remote{false};
	std::atomic<team_id> answerTo{-1};
	RecordingLooper* looper = new RecordingLooper(record, [&](BMessage* message) {
		remote = message->IsSourceRemote();
		answerTo = message->ReturnAddress().Team();
		EXPECT_EQ(message->GetInt32("n", 0), 5);
	});
	BMessage message('outs');
	message.AddInt32("n", 5);
	const std::vector<char> bytes = bytes_of(message);
	EXPECT_EQ(
		hosted::DeliverFromOutside(address_of(looper), bytes.data(), bytes.size(), kForeignTeam),
		B_OK);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(1));
	QuitLooper(looper);
	EXPECT_TRUE(remote);
	EXPECT_EQ(answerTo, kForeignTeam);
}


TEST(DeliverFromOutside, UnknownTargetsAreRefused)
{
	const std::vector<char> bytes = bytes_of(BMessage('outs'));
	Address target;
	target.team = getpid();
	for (int32 port : {-1, 0, 123456789}) {
		target.port = port;
		EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam),
			B_BAD_PORT_ID);
	}
}


TEST(DeliverFromOutside, FullLooperIsNotWaitedFor)
{
	BLooper* looper = new BLooper("small", B_NORMAL_PRIORITY, 2);
	const std::vector<char> bytes = bytes_of(BMessage('outs'));
	const Address target = address_of(looper);
	EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam), B_OK);
	EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam), B_OK);
	EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam),
		B_WOULD_BLOCK);
	looper->Quit();
}


TEST(DeliverFromOutside, DamagedBytesAreRefusedOrHarmless)
{
	BLooper* looper = new BLooper;
	const Address target = address_of(looper);
	BMessage message('outs');
	message.AddString("text", "some text");
	std::vector<char> bytes = bytes_of(message);
	EXPECT_EQ(hosted::DeliverFromOutside(target, nullptr, 10, kForeignTeam), B_BAD_VALUE);
	for (size_t size = 0; size < bytes.size(); size++) {
		const std::vector<char> cut(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size));
		EXPECT_EQ(hosted::DeliverFromOutside(target, cut.data(), cut.size(), kForeignTeam),
			B_BAD_VALUE);
	}
	std::mt19937 random(7);
	bytes.resize(bytes.size() + 20);
	for (int i = 0; i < 2000; i++) {
		std::vector<char> damaged = bytes;
		damaged[random() % damaged.size()] = static_cast<char>(random());
		EXPECT_NE(hosted::DeliverFromOutside(target, damaged.data(), damaged.size(), kForeignTeam),
			B_OK);
	}
	EXPECT_TRUE(looper->MessageQueue()->IsEmpty());
	looper->Quit();
}


TEST(TeamIsGone, WakesWhoWaitsForItsAnswer)
{
	const std::shared_ptr<hosted::ReplySlot> slot
		= hosted::Registry::Get().AddReplySlot(kForeignTeam);
	const std::shared_ptr<hosted::ReplySlot> other
		= hosted::Registry::Get().AddReplySlot(kForeignTeam + 1);
	std::thread waiter([&slot]() {
		BMessage reply;
		EXPECT_EQ(slot->Wait(&reply, B_INFINITE_TIMEOUT), B_OK);
		EXPECT_EQ(reply.what, static_cast<uint32>(B_NO_REPLY));
	});
	hosted::TeamIsGone(kForeignTeam);
	waiter.join();
	BMessage reply;
	EXPECT_EQ(other->Wait(&reply, 0), B_WOULD_BLOCK);
	hosted::Registry::Get().RemoveReplySlot(*slot);
	hosted::Registry::Get().RemoveReplySlot(*other);
}


TEST(DeliverFromOutside, AnswersFindTheirWaiter)
{
	const std::shared_ptr<hosted::ReplySlot> slot
		= hosted::Registry::Get().AddReplySlot(kForeignTeam);
	Address target;
	target.team = getpid();
	target.port = slot->Port();
	const std::vector<char> bytes = bytes_of(BMessage('answ'));
	EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam), B_OK);
	EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam),
		B_DUPLICATE_REPLY);
	BMessage reply;
	EXPECT_EQ(slot->Wait(&reply, 0), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>('answ'));
	hosted::Registry::Get().RemoveReplySlot(*slot);
	EXPECT_EQ(hosted::DeliverFromOutside(target, bytes.data(), bytes.size(), kForeignTeam),
		B_BAD_PORT_ID);
}


TEST(AwaitsReply, PlainMessageDoesNot)
{
	const std::vector<char> bytes = bytes_of(BMessage('outs'));
	Address replyTo;
	EXPECT_FALSE(hosted::AwaitsReply(bytes.data(), bytes.size(), &replyTo));
	EXPECT_FALSE(hosted::AwaitsReply(bytes.data(), bytes.size() - 1, &replyTo));
}
