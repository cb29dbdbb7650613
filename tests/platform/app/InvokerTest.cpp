// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <Errors.h>
#include <Handler.h>
#include <Invoker.h>
#include <Looper.h>
#include <Message.h>

#include "tests/platform/app/Recorder.h"

using test::QuitLooper;
using test::Record;
using test::RecordingHandler;
using test::RecordingLooper;


TEST(Invoker, NeedsMessageAndTarget)
{
	BInvoker invoker;
	EXPECT_EQ(invoker.Command(), 0u);
	EXPECT_EQ(invoker.Invoke(), B_BAD_VALUE);
	invoker.SetMessage(new BMessage('test'));
	EXPECT_EQ(invoker.Command(), static_cast<uint32>('test'));
	EXPECT_EQ(invoker.Invoke(), B_BAD_PORT_ID);
	BHandler loose;
	EXPECT_EQ(invoker.SetTarget(&loose), B_MISMATCHED_VALUES);
	EXPECT_EQ(invoker.SetTarget(static_cast<BHandler*>(nullptr)), B_BAD_VALUE);
}


TEST(Invoker, SendsItsMessageOrAnother)
{
	Record record;
	RecordingHandler handler(record);
	BLooper* looper = new BLooper;
	looper->AddHandler(&handler);
	BInvoker invoker(new BMessage('own '), &handler);
	BLooper* found;
	EXPECT_EQ(invoker.Target(&found), &handler);
	EXPECT_EQ(found, looper);
	EXPECT_TRUE(invoker.IsTargetLocal());
	EXPECT_EQ(invoker.Invoke(), B_OK);
	BMessage other('othr');
	EXPECT_EQ(invoker.Invoke(&other), B_OK);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(2));
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'own ', 'othr'}));
	QuitLooper(looper);
	EXPECT_EQ(invoker.Invoke(), B_BAD_PORT_ID);
}


TEST(Invoker, RepliesGoToItsHandler)
{
	Record asked;
	Record answers;
	RecordingLooper* looper
		= new RecordingLooper(asked, [](BMessage* message) { message->SendReply('pong'); });
	RecordingHandler handler(answers);
	looper->AddHandler(&handler);
	BInvoker invoker(new BMessage('ping'), looper);
	invoker.SetHandlerForReply(&handler);
	EXPECT_EQ(invoker.Invoke(), B_OK);
	looper->Run();
	EXPECT_TRUE(answers.WaitForCount(1));
	QuitLooper(looper);
}
