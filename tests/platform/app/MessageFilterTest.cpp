// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <Looper.h>
#include <Message.h>
#include <MessageFilter.h>
#include <Messenger.h>

#include "tests/platform/app/Recorder.h"

using test::QuitLooper;
using test::Record;
using test::RecordingHandler;
using test::RecordingLooper;


namespace {

int sDeleted;
BHandler* sOtherTarget;

class SkippingFilter : public BMessageFilter {
public:
	using BMessageFilter::BMessageFilter;
	~SkippingFilter() override { sDeleted++; }
	filter_result Filter(BMessage*, BHandler**) override { return B_SKIP_MESSAGE; }
};


filter_result
send_elsewhere(BMessage*, BHandler** target, BMessageFilter*)
{
	*target = sOtherTarget;
	return B_DISPATCH_MESSAGE;
}

} // namespace


TEST(MessageFilter, KnowsWhatItFilters)
{
	const BMessageFilter one('test');
	EXPECT_FALSE(one.FiltersAnyCommand());
	EXPECT_EQ(one.Command(), static_cast<uint32>('test'));
	const BMessageFilter any(B_DROPPED_DELIVERY, B_LOCAL_SOURCE);
	EXPECT_TRUE(any.FiltersAnyCommand());
	EXPECT_EQ(any.MessageDelivery(), B_DROPPED_DELIVERY);
	EXPECT_EQ(any.MessageSource(), B_LOCAL_SOURCE);
	EXPECT_EQ(any.Looper(), nullptr);
}


TEST(MessageFilter, SkipsOnlyItsMessages)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	sDeleted = 0;
	looper->AddFilter(new SkippingFilter('skip'));
	looper->AddCommonFilter(new SkippingFilter('comm'));
	looper->AddCommonFilter(new SkippingFilter(B_DROPPED_DELIVERY, B_ANY_SOURCE));
	looper->AddCommonFilter(new SkippingFilter(B_ANY_DELIVERY, B_REMOTE_SOURCE));
	looper->PostMessage('skip');
	looper->PostMessage('comm');
	looper->PostMessage('pass');
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(1));
	QuitLooper(looper);
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'pass'}));
	EXPECT_EQ(sDeleted, 4);
}


TEST(MessageFilter, MayChangeTheTarget)
{
	Record own;
	Record other;
	RecordingHandler handler(other);
	RecordingLooper* looper = new RecordingLooper(own);
	looper->AddHandler(&handler);
	sOtherTarget = &handler;
	looper->AddCommonFilter(new BMessageFilter('test', send_elsewhere));
	looper->PostMessage('test');
	looper->Run();
	ASSERT_TRUE(other.WaitForCount(1));
	QuitLooper(looper);
	EXPECT_TRUE(own.Codes().empty());
}


TEST(MessageFilter, IsAskedOnTheWayToTheNextHandler)
{
	Record record;
	BHandler first;
	RecordingLooper* looper = new RecordingLooper(record);
	looper->AddHandler(&first);
	looper->AddFilter(new SkippingFilter('skip'));
	looper->PostMessage('skip', &first);
	looper->PostMessage('pass', &first);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(1));
	QuitLooper(looper);
	EXPECT_EQ(record.Codes(), (std::vector<uint32>{'pass'}));
}


TEST(MessageFilter, RemovedOneBelongsToTheCaller)
{
	BHandler handler;
	BMessageFilter filter('test');
	handler.AddFilter(&filter);
	EXPECT_NE(handler.FilterList(), nullptr);
	EXPECT_TRUE(handler.RemoveFilter(&filter));
	EXPECT_FALSE(handler.RemoveFilter(&filter));
}
