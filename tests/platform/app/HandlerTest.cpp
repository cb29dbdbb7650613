// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <AppDefs.h>
#include <Errors.h>
#include <Handler.h>
#include <Looper.h>
#include <Message.h>
#include <Messenger.h>
#include <String.h>

#include "tests/platform/app/Recorder.h"
#include "tests/support/Output.h"

using test::QuitLooper;
using test::Record;
using test::RecordingHandler;
using test::RecordingLooper;


TEST(Handler, NameIsOptional)
{
	BHandler handler;
	EXPECT_EQ(handler.Name(), nullptr);
	handler.SetName("name");
	EXPECT_STREQ(handler.Name(), "name");
	handler.SetName(handler.Name());
	EXPECT_STREQ(handler.Name(), "name");
	EXPECT_EQ(handler.Looper(), nullptr);
	EXPECT_FALSE(handler.LockLooper());
	EXPECT_EQ(handler.LockLooperWithTimeout(0), B_BAD_VALUE);
	handler.UnlockLooper();
}


TEST(Handler, ArchiveKeepsClassAndName)
{
	BMessage archive;
	EXPECT_EQ(BHandler("name").Archive(&archive), B_OK);
	EXPECT_STREQ(archive.GetString("class"), "BHandler");
	EXPECT_EQ(BHandler("name").Archive(nullptr), B_BAD_VALUE);
}


TEST(HandlerMessageReceived, UnknownMessageGoesToTheNextHandler)
{
	Record record;
	BHandler first;
	RecordingHandler second(record);
	RecordingLooper* looper = new RecordingLooper(record);
	looper->AddHandler(&first);
	looper->AddHandler(&second);
	first.SetNextHandler(&second);
	looper->PostMessage('test', &first);
	looper->Run();
	ASSERT_TRUE(record.WaitForCount(1));
	QuitLooper(looper);
	EXPECT_EQ(record.Codes().size(), 1u);
}


TEST(HandlerMessageReceived, UnknownPlainMessageVanishesSilently)
{
	BHandler handler;
	BMessage message('test');
	EXPECT_EQ(test::OutputOf([&]() { handler.MessageReceived(&message); }), "");
}


TEST(HandlerMessageReceived, UnknownScriptIsPrintedAndRefused)
{
	BLooper* looper = new BLooper("deaf");
	looper->Run();
	BMessage message('test');
	message.AddSpecifier("Messenger");
	BMessage reply;
	const std::string output = test::OutputOf(
		[&]() { EXPECT_EQ(BMessenger(looper).SendMessage(&message, &reply), B_OK); });
	EXPECT_EQ(reply.what, static_cast<uint32>(B_MESSAGE_NOT_UNDERSTOOD));
	QuitLooper(looper);
	(void)output;
}


TEST(HandlerMessageReceived, PrintsWhatItDoesNotUnderstand)
{
	struct Deaf : public BHandler {
		Deaf()
			:
			BHandler("deaf")
		{
		}
		BHandler* ResolveSpecifier(BMessage*, int32, BMessage*, int32, const char*) override
		{
			return this;
		}
	};
	Deaf handler;
	BMessage message('test');
	message.AddSpecifier("Nothing");
	const std::string output = test::OutputOf([&]() { handler.MessageReceived(&message); });
	EXPECT_EQ(output.find("BHandler deaf: MessageReceived() couldn't understand the message:\n"
						  "BMessage('test') {\n"),
		0u)
		<< output;
}


TEST(HandlerScripting, BuiltInProperties)
{
	BHandler handler("inner");
	BLooper* looper = new BLooper("outer");
	looper->AddHandler(&handler);
	const BMessenger messenger(&handler);
	looper->Run();

	BMessage name(B_GET_PROPERTY);
	name.AddSpecifier("InternalName");
	BMessage reply;
	ASSERT_EQ(messenger.SendMessage(&name, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_REPLY));
	EXPECT_STREQ(reply.GetString("result"), "inner");
	EXPECT_EQ(reply.GetInt32("error", -1), B_OK);

	BMessage who(B_GET_PROPERTY);
	who.AddSpecifier("Messenger");
	ASSERT_EQ(messenger.SendMessage(&who, &reply), B_OK);
	BMessenger found;
	ASSERT_EQ(reply.FindMessenger("result", &found), B_OK);
	EXPECT_TRUE(found == messenger);

	ASSERT_EQ(messenger.SendMessage(B_GET_PROPERTY, &reply), B_OK);
	ASSERT_EQ(reply.FindMessenger("result", &found), B_OK);
	EXPECT_TRUE(found == messenger);

	ASSERT_EQ(messenger.SendMessage(B_GET_SUPPORTED_SUITES, &reply), B_OK);
	EXPECT_STREQ(reply.GetString("suites"), "suite/vnd.Be-handler");
	QuitLooper(looper);
}


TEST(HandlerScripting, UnknownPropertyIsRefused)
{
	BLooper* looper = new BLooper("outer");
	const BMessenger messenger(looper);
	looper->Run();
	BMessage message(B_GET_PROPERTY);
	message.AddSpecifier("Nothing");
	BMessage reply;
	ASSERT_EQ(messenger.SendMessage(&message, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_MESSAGE_NOT_UNDERSTOOD));
	EXPECT_EQ(reply.GetInt32("error", 0), B_BAD_SCRIPT_SYNTAX);
	EXPECT_TRUE(reply.HasString("message"));
	QuitLooper(looper);
}


TEST(HandlerScripting, LastSpecifierIsResolvedFirst)
{
	struct Album : public BLooper {
		BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
			const char* property) override
		{
			if (what != B_INDEX_SPECIFIER || BString("track") != property)
				return BLooper::ResolveSpecifier(message, index, specifier, what, property);
			message->PopSpecifier();
			return fTracks[specifier->GetInt32("index", 0)];
		}
		BHandler* fTracks[3];
	};
	BHandler tracks[3];
	Album* album = new Album;
	for (int i = 0; i < 3; i++) {
		album->AddHandler(&tracks[i]);
		album->fTracks[i] = &tracks[i];
	}
	const BMessenger expected(&tracks[2]);
	album->Run();

	BMessage message(B_GET_PROPERTY);
	message.AddSpecifier("Messenger");
	message.AddSpecifier("track", 2);
	BMessage reply;
	ASSERT_EQ(BMessenger(album).SendMessage(&message, &reply), B_OK);
	BMessenger found;
	ASSERT_EQ(reply.FindMessenger("result", &found), B_OK);
	EXPECT_TRUE(found == expected);

	BMessage wrong(B_GET_PROPERTY);
	wrong.AddSpecifier("track", 2);
	wrong.AddSpecifier("Messenger");
	ASSERT_EQ(BMessenger(album).SendMessage(&wrong, &reply), B_OK);
	EXPECT_EQ(reply.what, static_cast<uint32>(B_MESSAGE_NOT_UNDERSTOOD));
	QuitLooper(album);
}


TEST(HandlerEnd, LeavesItsRunningLooper)
{
	Record record;
	RecordingLooper* looper = new RecordingLooper(record);
	looper->Run();
	for (int i = 0; i < 100; i++) {
		RecordingHandler* handler = new RecordingHandler(record);
		ASSERT_TRUE(looper->Lock());
		looper->AddHandler(handler);
		looper->Unlock();
		BMessenger(handler).SendMessage('test');
		// Locked, because it may be handling that message.
		ASSERT_TRUE(looper->Lock());
		delete handler;
		looper->Unlock();
	}
	ASSERT_TRUE(looper->Lock());
	EXPECT_EQ(looper->CountHandlers(), 1);
	looper->Quit();
}


TEST(HandlerEnd, MayMeetItsLoopersEnd)
{
	for (int i = 0; i < 100; i++) {
		BLooper* looper = new BLooper;
		BHandler* handler = new BHandler;
		looper->AddHandler(handler);
		looper->Run();
		std::thread other([handler]() { delete handler; });
		QuitLooper(looper);
		other.join();
	}
}
