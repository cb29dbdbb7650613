// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <Errors.h>
#include <Looper.h>
#include <Message.h>
#include <Messenger.h>

#include "tests/platform/app/Recorder.h"


TEST(MessageSpecifiers, AreMessagesInAField)
{
	BMessage message(B_GET_PROPERTY);
	EXPECT_FALSE(message.HasSpecifiers());
	EXPECT_EQ(message.AddSpecifier("A"), B_OK);
	EXPECT_EQ(message.AddSpecifier("B", 3), B_OK);
	EXPECT_EQ(message.AddSpecifier("C", 3, 4), B_OK);
	EXPECT_EQ(message.AddSpecifier("D", "name"), B_OK);
	EXPECT_EQ(message.AddSpecifier("E", 3, -1), B_BAD_VALUE);
	EXPECT_EQ(message.AddSpecifier(static_cast<const char*>(nullptr)), B_BAD_VALUE);
	EXPECT_TRUE(message.HasSpecifiers());

	const uint32 forms[]
		= {B_DIRECT_SPECIFIER, B_INDEX_SPECIFIER, B_RANGE_SPECIFIER, B_NAME_SPECIFIER};
	for (int32 i = 0; i < 4; i++) {
		BMessage specifier;
		ASSERT_EQ(message.FindMessage("specifiers", i, &specifier), B_OK);
		EXPECT_EQ(specifier.what, forms[i]);
	}
	BMessage specifier;
	message.FindMessage("specifiers", 2, &specifier);
	EXPECT_STREQ(specifier.GetString("property"), "C");
	EXPECT_EQ(specifier.GetInt32("index", 0), 3);
	EXPECT_EQ(specifier.GetInt32("range", 0), 4);
	EXPECT_EQ(message.GetCurrentSpecifier(nullptr), B_BAD_SCRIPT_SYNTAX);
	EXPECT_EQ(message.SetCurrentSpecifier(4), B_BAD_INDEX);
}


TEST(MessageSpecifiers, ArePoppedFromTheLast)
{
	struct Target : public BLooper {
		BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
			const char* property) override
		{
			EXPECT_EQ(index, 1);
			EXPECT_EQ(what, B_NAME_SPECIFIER);
			EXPECT_STREQ(property, "outer");
			EXPECT_STREQ(specifier->GetString("name"), "n");
			EXPECT_EQ(message->PopSpecifier(), B_OK);

			int32 current;
			BMessage inner;
			const char* name;
			EXPECT_EQ(message->GetCurrentSpecifier(&current, &inner, nullptr, &name), B_OK);
			EXPECT_EQ(current, 0);
			EXPECT_STREQ(name, "inner");
			EXPECT_EQ(message->PopSpecifier(), B_OK);
			EXPECT_EQ(message->GetCurrentSpecifier(&current), B_BAD_SCRIPT_SYNTAX);
			EXPECT_EQ(message->PopSpecifier(), B_BAD_VALUE);
			message->SendReply('seen');
			return nullptr;
		}
	};
	Target* target = new Target;
	target->Run();
	BMessage message(B_GET_PROPERTY);
	message.AddSpecifier("inner");
	message.AddSpecifier("outer", "n");
	BMessage reply;
	ASSERT_EQ(BMessenger(target).SendMessage(&message, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>('seen'));
	test::QuitLooper(target);
}
