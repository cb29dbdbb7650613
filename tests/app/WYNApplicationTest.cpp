// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "app/WYNApplication.h"

#include <string>

#include <Autolock.h>
#include <Message.h>
#include <Messenger.h>
#include <gtest/gtest.h>

#include "settings/Prefs.h"
#include "tests/support/Output.h"
#include "window/MediaWindow.h"


namespace {

// There is one application in a process: the tests go through its life, in their order.
class WYNApplicationTest : public testing::Test {
protected:
	static void SetUpTestSuite()
	{
		sStart = test::OutputOf([] { sApplication = new WYNApplication; });
	}

	static void TearDownTestSuite()
	{
		// The window ends with the loop, which each order of tests must have run.
		if (sApplication->fWindow != nullptr)
			CloseAndRun();
		delete sApplication;
		Prefs::DeleteMe();
	}

	static std::string Handle(uint32 what)
	{
		BMessage message(what);
		return Handle(message);
	}

	// The loop does not run, so the message is handled here. Returns what is printed; the window,
	// which may have its frame to tell of, is silent meanwhile.
	static std::string Handle(BMessage& message)
	{
		const BAutolock lock(sApplication->fWindow);
		return test::OutputOf([&] { sApplication->MessageReceived(&message); });
	}

	// Lets the window handle what was sent to it.
	static void WaitForWindow()
	{
		BMessage question('none');
		BMessage reply;
		BMessenger(sApplication->fWindow).SendMessage(&question, &reply, 5000000, 5000000);
	}

	static std::string CloseAndRun()
	{
		Handle('MW_C');
		return test::OutputOf([] { sApplication->Run(); });
	}

	static WYNApplication* sApplication;
	// What its making prints.
	static std::string sStart;
};


WYNApplication* WYNApplicationTest::sApplication = nullptr;
std::string WYNApplicationTest::sStart;

} // namespace


TEST_F(WYNApplicationTest, ShowsItsWindowAtOnce)
{
	ASSERT_NE(sApplication->fWindow, nullptr);
	EXPECT_STREQ(sApplication->Signature(), "application/x-vnd.kv-VinyloH");
	EXPECT_FALSE(sApplication->fWindow->IsHidden());
	EXPECT_NE(sStart.find("me init frame: BRect(l:260.0, t:40.0, r:660.0, b:600.0)\n"),
		std::string::npos)
		<< sStart;
}


TEST_F(WYNApplicationTest, ScriptingMessagesAreIgnored)
{
	EXPECT_EQ(Handle('PCNT'), "");
	EXPECT_EQ(Handle('PGET'), "");
	EXPECT_EQ(Handle('RPLY'), "");
}


TEST_F(WYNApplicationTest, KeysAreOnlyPrinted)
{
	EXPECT_EQ(Handle('_KDN'), "BMessage('_KDN') {\n}\n");
	EXPECT_EQ(Handle('_KYD'), "BMessage('_KYD') {\n}\n");
	EXPECT_EQ(Handle('_KYU'), "BMessage('_KYU') {\n}\n");
}


TEST_F(WYNApplicationTest, UnknownCodesArePrintedAndGoToThePlatform)
{
	EXPECT_EQ(Handle('abcd'), "WYN_App BMessage('abcd') {\n}\n");
	EXPECT_EQ(Handle('irmi'), "WYN_App BMessage('irmi') {\n}\n");
	EXPECT_EQ(Handle('MWpl'), "WYN_App BMessage('MWpl') {\n}\n");
	// Of a script's command the platform says that nobody understands it.
	BMessage script('abcd');
	script.AddSpecifier("Nothing");
	const std::string output = Handle(script);
	EXPECT_EQ(output.find("WYN_App BMessage('abcd') {\n"), 0u) << output;
	EXPECT_NE(output.find(": MessageReceived() couldn't understand the message:\n"),
		std::string::npos)
		<< output;
}


TEST_F(WYNApplicationTest, WindowCommandsReachTheWindow)
{
	EXPECT_EQ(Handle('MWkT'), "");
	WaitForWindow();
	EXPECT_TRUE(Prefs::getSTPrefs()->window_mtab);
	Handle('MWsT');
	WaitForWindow();
	EXPECT_FALSE(Prefs::getSTPrefs()->window_mtab);
	Handle('MWhT');
	WaitForWindow();
	EXPECT_TRUE(Prefs::getSTPrefs()->window_mtab);
	Handle('MWsT');
	WaitForWindow();
}


TEST_F(WYNApplicationTest, LanguageAndRemoteKeysReachTheWindow)
{
	sApplication->fWindow->Lock();
	sApplication->fWindow->SetTitle("other");
	sApplication->fWindow->Unlock();
	const std::string output = test::OutputOf([] {
		BMessage key('MWse');
		sApplication->MessageReceived(&key);
		WaitForWindow();
	});
	EXPECT_NE(output.find(" sorry...\n"), std::string::npos) << output;
	Handle('kvCL');
	WaitForWindow();
	sApplication->fWindow->Lock();
	EXPECT_EQ(std::string(sApplication->fWindow->Title()).find("using: >> "), 0u);
	sApplication->fWindow->Unlock();
}


TEST_F(WYNApplicationTest, EndsWithItsWindow)
{
	const std::string output = CloseAndRun();
	EXPECT_NE(output.find(" MMF-abgemeldet\n"), std::string::npos) << output;
	EXPECT_EQ(sApplication->fWindow, nullptr);
}


TEST_F(WYNApplicationTest, CommandsAfterTheWindowsEndAreDropped)
{
	if (sApplication->fWindow != nullptr)
		CloseAndRun();
	EXPECT_EQ(Handle('MW_Q'), " MMF-abgemeldet\n");
	EXPECT_EQ(Handle('MWkT'), "");
	EXPECT_FALSE(Prefs::getSTPrefs()->window_mtab);
}
