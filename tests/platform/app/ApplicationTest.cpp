// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <string.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include <AppDefs.h>
#include <Application.h>
#include <Clipboard.h>
#include <Errors.h>
#include <Message.h>
#include <Messenger.h>
#include <Roster.h>

#include "platform/screen/DisplayThread.h"
#include "tests/platform/app/Recorder.h"
#include "tests/support/Output.h"

using test::Record;
using test::WaitFor;


namespace {

constexpr const char* kSignature = "application/x-vnd.VinyloH-test";

// Tells which of its hooks ran, by the code of what caused them.
class TestApplication : public BApplication {
public:
	TestApplication(Record& record, std::function<void(BMessage*)> function = nullptr)
		:
		BApplication(kSignature),
		fRecord(record),
		fFunction(std::move(function))
	{
	}

	void ReadyToRun() override { fRecord.Add(B_READY_TO_RUN); }
	void Pulse() override { fRecord.Add(B_PULSE); }
	void AboutRequested() override { fRecord.Add(B_ABOUT_REQUESTED); }
	void RefsReceived(BMessage*) override { fRecord.Add(B_REFS_RECEIVED); }
	void AppActivated(bool) override { fRecord.Add(B_APP_ACTIVATED); }
	void ArgvReceived(int32 argc, char** argv) override
	{
		fArguments.assign(argv, argv + argc);
		fRecord.Add(B_ARGV_RECEIVED);
	}
	void MessageReceived(BMessage* message) override
	{
		if (message->HasSpecifiers()) {
			BApplication::MessageReceived(message);
			return;
		}
		fRecord.Add(message->what);
		if (fFunction)
			fFunction(message);
	}

	std::vector<std::string> fArguments;

private:
	Record& fRecord;
	std::function<void(BMessage*)> fFunction;
};


// Stands in for a window in the application's list; the application only passes the pointer on.
class WindowLooper : public BLooper {
public:
	WindowLooper(bool listed = true)
		:
		BLooper("window")
	{
		_SetWindow(reinterpret_cast<BWindow*>(this), listed);
		sCount++;
	}

	~WindowLooper() override
	{
		_SetWindow(nullptr, false);
		if (fAtEnd)
			fAtEnd();
		sCount--;
	}

	bool QuitRequested() override
	{
		fAsker = find_thread(nullptr);
		return fMayQuit;
	}

	bool fMayQuit = true;
	std::atomic<thread_id> fAsker{-1};
	std::function<void()> fAtEnd;
	static std::atomic<int> sCount;
};

std::atomic<int> WindowLooper::sCount{0};


size_t
count_of(const Record& record, uint32 what)
{
	const std::vector<uint32> codes = record.Codes();
	return static_cast<size_t>(std::count(codes.begin(), codes.end(), what));
}

} // namespace


TEST(Application, NothingIsThereBefore)
{
	EXPECT_EQ(be_app, nullptr);
	EXPECT_FALSE(be_app_messenger.IsValid());
	EXPECT_EQ(be_clipboard, nullptr);
	EXPECT_NE(be_roster, nullptr);
}


TEST(Application, BadSignatureIsRefused)
{
	for (const char* signature : {"", "text/plain", "application/", "application/a b"}) {
		status_t status = B_OK;
		const std::string output = test::OutputOf([signature, &status]() {
			BApplication application(signature, &status);
			EXPECT_EQ(application.InitCheck(), status);
			EXPECT_EQ(application.Run(), status);
			EXPECT_EQ(be_app, nullptr);
		});
		EXPECT_EQ(status, B_BAD_VALUE) << signature;
		EXPECT_EQ(output.find("bad signature ("), 0u) << output;
	}
	EXPECT_FALSE(hosted::DisplayThread::IsRunning());
}


TEST(Application, RunsFromReadyToQuit)
{
	Record record;
	{
		TestApplication application(record);
		EXPECT_EQ(application.InitCheck(), B_OK);
		EXPECT_EQ(be_app, &application);
		EXPECT_TRUE(be_app_messenger.IsValid());
		EXPECT_NE(be_clipboard, nullptr);
		EXPECT_TRUE(hosted::DisplayThread::IsRunning());
		EXPECT_TRUE(application.IsLocked());
		EXPECT_TRUE(application.IsLaunching());
		EXPECT_STREQ(application.Signature(), kSignature);
		EXPECT_STREQ(application.Name(), "kit-app-tests");
		EXPECT_EQ(application.CountWindows(), 0);

		be_app_messenger.SendMessage('test');
		be_app_messenger.SendMessage(B_ABOUT_REQUESTED);
		be_app_messenger.SendMessage(B_REFS_RECEIVED);
		be_app_messenger.SendMessage(B_COLORS_UPDATED);
		BMessage activated(B_APP_ACTIVATED);
		activated.AddBool("active", true);
		be_app_messenger.SendMessage(&activated);
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		be_app_messenger.SendMessage('late');
		EXPECT_EQ(application.Run(), getpid());
		EXPECT_TRUE(application.IsLocked());
		EXPECT_FALSE(application.IsLaunching());
	}
	EXPECT_EQ(be_app, nullptr);
	EXPECT_EQ(be_clipboard, nullptr);
	EXPECT_FALSE(be_app_messenger.IsValid());
	EXPECT_FALSE(hosted::DisplayThread::IsRunning());

	std::vector<uint32> codes = record.Codes();
	if (codes.front() == B_ARGV_RECEIVED)
		codes.erase(codes.begin());
	EXPECT_EQ(codes,
		(std::vector<uint32>{B_READY_TO_RUN, 'test', B_ABOUT_REQUESTED, B_REFS_RECEIVED,
			B_APP_ACTIVATED}));
}


TEST(Application, InfoNamesTheProgram)
{
	app_info info;
	Record record;
	TestApplication application(record);
	ASSERT_EQ(application.GetAppInfo(&info), B_OK);
	EXPECT_EQ(info.team, getpid());
	EXPECT_EQ(info.thread, getpid());
	EXPECT_STREQ(info.signature, kSignature);
	EXPECT_STREQ(info.ref.name, "kit-app-tests");
	EXPECT_EQ(application.GetAppInfo(nullptr), B_BAD_VALUE);
}


TEST(Application, ArgumentsComeAsWords)
{
	Record record;
	TestApplication application(record);
	BMessage message(B_ARGV_RECEIVED);
	message.AddInt32("argc", 2);
	message.AddString("argv", "program");
	message.AddString("argv", "song.mp3");
	application.PostMessage(&message);
	application.PostMessage(B_QUIT_REQUESTED);
	application.Run();
	EXPECT_EQ(application.fArguments, (std::vector<std::string>{"program", "song.mp3"}));
}


TEST(Application, PulseComesAtItsRate)
{
	Record record;
	TestApplication application(record);
	const bigtime_t start = system_time();
	application.SetPulseRate(150000);
	std::thread other([&record]() {
		EXPECT_TRUE(WaitFor([&record]() { return count_of(record, B_PULSE) >= 2; }));
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	});
	application.Run();
	other.join();
	EXPECT_GE(system_time() - start, 200000);
}


TEST(Application, AnswersToNobodyReachIt)
{
	Record record;
	Record asked;
	TestApplication application(record);
	test::RecordingLooper* looper
		= new test::RecordingLooper(asked, [](BMessage* message) { message->SendReply('pong'); });
	looper->Run();
	BMessenger(looper).SendMessage('ping');
	std::thread other([&record]() {
		EXPECT_TRUE(WaitFor([&record]() { return count_of(record, 'pong') == 1; }));
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	});
	application.Run();
	other.join();
	test::QuitLooper(looper);
}


TEST(Application, QuitRequestIsAnsweredWithTheResult)
{
	Record record;
	TestApplication application(record);
	BMessage reply;
	std::thread other(
		[&reply]() { EXPECT_EQ(be_app_messenger.SendMessage(B_QUIT_REQUESTED, &reply), B_OK); });
	application.Run();
	other.join();
	EXPECT_EQ(reply.what, static_cast<uint32>(B_REPLY));
	EXPECT_TRUE(reply.GetBool("result"));
	EXPECT_EQ(reply.GetInt32("thread", -1), getpid());
}


TEST(ApplicationWindows, AreListedUnlessHidden)
{
	Record record;
	TestApplication application(record);
	WindowLooper* window = new WindowLooper;
	WindowLooper* menu = new WindowLooper(false);
	EXPECT_EQ(application.CountWindows(), 1);
	EXPECT_EQ(application.WindowAt(0), reinterpret_cast<BWindow*>(window));
	EXPECT_EQ(application.WindowAt(1), nullptr);
	EXPECT_EQ(application.WindowAt(-1), nullptr);
	EXPECT_EQ(application.CountLoopers(), 3);
	EXPECT_EQ(application.LooperAt(0), &application);
	EXPECT_EQ(application.LooperAt(3), nullptr);
	menu->Run();
	window->Run();
}


TEST(ApplicationWindows, RefusalKeepsTheApplication)
{
	Record record;
	{
		TestApplication application(record);
		WindowLooper* first = new WindowLooper;
		WindowLooper* second = new WindowLooper;
		second->fMayQuit = false;
		first->Run();
		second->Run();
		std::thread other([&application, second]() {
			BMessage reply;
			EXPECT_EQ(be_app_messenger.SendMessage(B_QUIT_REQUESTED, &reply), B_OK);
			EXPECT_FALSE(reply.GetBool("result", true));
			EXPECT_EQ(application.CountWindows(), 1);
			EXPECT_EQ(second->fAsker, getpid());
			EXPECT_TRUE(second->Lock());
			second->fMayQuit = true;
			second->Unlock();
			be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		});
		application.Run();
		other.join();
		EXPECT_EQ(application.CountWindows(), 0);
	}
	EXPECT_EQ(WindowLooper::sCount, 0);
}


TEST(ApplicationWindows, WindowThatClosesTheApplicationByItself)
{
	for (int i = 0; i < 10; i++) {
		Record record;
		{
			TestApplication application(record);
			WindowLooper* window = new WindowLooper;
			window->fAtEnd = []() {
				be_app_messenger.SendMessage(B_QUIT_REQUESTED);
				std::this_thread::sleep_for(std::chrono::milliseconds(2));
				be_app_messenger.SendMessage('bye ');
			};
			const BMessenger messenger(window);
			window->Run();
			messenger.SendMessage(B_QUIT_REQUESTED);
			application.Run();
		}
		EXPECT_EQ(WindowLooper::sCount, 0);
	}
}


TEST(ApplicationWindows, RemainingOnesAreQuitUnasked)
{
	Record record;
	std::atomic<bool> lockFailed{false};
	{
		TestApplication application(record);
		WindowLooper* stubborn = new WindowLooper;
		stubborn->fMayQuit = false;
		stubborn->fAtEnd = [&lockFailed]() { lockFailed = !be_app->Lock(); };
		stubborn->Run();
		WindowLooper* neverRun = new WindowLooper(false);
		neverRun->Unlock();
		application.PostMessage(_QUIT_);
		application.Run();
	}
	EXPECT_EQ(WindowLooper::sCount, 0);
	EXPECT_TRUE(lockFailed);
}


TEST(ApplicationScripting, WindowsLoopersAndName)
{
	Record record;
	TestApplication application(record);
	WindowLooper* window = new WindowLooper;
	const BMessenger windowTarget(window);
	window->Run();
	std::thread other([&windowTarget]() {
		BMessage reply;
		BMessage count(B_COUNT_PROPERTIES);
		count.AddSpecifier("Window");
		be_app_messenger.SendMessage(&count, &reply);
		EXPECT_EQ(reply.GetInt32("result", -1), 1);

		BMessage name(B_GET_PROPERTY);
		name.AddSpecifier("Name");
		be_app_messenger.SendMessage(&name, &reply);
		EXPECT_STREQ(reply.GetString("result"), "kit-app-tests");

		BMessage inner(B_GET_PROPERTY);
		inner.AddSpecifier("InternalName");
		inner.AddSpecifier("Window", int32(0));
		be_app_messenger.SendMessage(&inner, &reply);
		EXPECT_STREQ(reply.GetString("result"), "window");

		BMessage who(B_GET_PROPERTY);
		who.AddSpecifier("Window", "window");
		be_app_messenger.SendMessage(&who, &reply);
		BMessenger found;
		EXPECT_EQ(reply.FindMessenger("result", &found), B_OK);
		EXPECT_TRUE(found == windowTarget);

		BMessage absent(B_GET_PROPERTY);
		absent.AddSpecifier("Window", 7);
		be_app_messenger.SendMessage(&absent, &reply);
		EXPECT_EQ(reply.what, static_cast<uint32>(B_MESSAGE_NOT_UNDERSTOOD));
		EXPECT_EQ(reply.GetInt32("error", 0), B_BAD_INDEX);
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	});
	application.Run();
	other.join();
}


TEST(ApplicationScripting, WindowsAreMeantNotTheirPreferredHandlers)
{
	Record record;
	TestApplication application(record);
	WindowLooper* window = new WindowLooper;
	BHandler* preferred = new BHandler("preferred");
	window->AddHandler(preferred);
	window->SetPreferredHandler(preferred);
	const BMessenger windowTarget(window);
	window->Run();
	std::thread other([&windowTarget]() {
		BMessage reply;
		for (const bool byName : {false, true}) {
			BMessage question(B_GET_PROPERTY);
			question.AddSpecifier("InternalName");
			if (byName)
				question.AddSpecifier("Window", "window");
			else
				question.AddSpecifier("Window", int32(0));
			be_app_messenger.SendMessage(&question, &reply);
			EXPECT_STREQ(reply.GetString("result"), "window");
		}
		for (const char* property : {"Windows", "Loopers"}) {
			BMessage question(B_GET_PROPERTY);
			question.AddSpecifier(property);
			be_app_messenger.SendMessage(&question, &reply);
			const int32 last = strcmp(property, "Loopers") == 0 ? 1 : 0;
			BMessenger found;
			EXPECT_EQ(reply.FindMessenger("result", last, &found), B_OK) << property;
			EXPECT_TRUE(found == windowTarget) << property;
		}
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	});
	application.Run();
	other.join();
	delete preferred;
}


TEST(ApplicationScripting, NamesAreLookedForWithoutTheWindowsLocks)
{
	Record record;
	TestApplication application(record);
	WindowLooper* busy = new WindowLooper;
	busy->SetName("busy");
	busy->Run();
	WindowLooper* asked = new WindowLooper;
	asked->Run();
	std::thread other([busy]() {
		BMessage question(B_GET_PROPERTY);
		question.AddSpecifier("InternalName");
		question.AddSpecifier("Window", "window");
		BMessage reply;
		ASSERT_TRUE(busy->Lock());
		EXPECT_EQ(be_app_messenger.SendMessage(&question, &reply, 5000000, 5000000), B_OK);
		EXPECT_STREQ(reply.GetString("result"), "window");
		busy->Unlock();
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	});
	application.Run();
	other.join();
}


TEST(ApplicationDeathTest, OnlyOneAndOnlyWithASignature)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_EXIT(BApplication("wrong"), testing::ExitedWithCode(0), "");
	EXPECT_DEATH(
		{
			BApplication first(kSignature);
			BApplication second(kSignature);
		},
		"Only one is allowed");
}
