// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "app/WYNApplication.h"

#include <string>

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
	static void SetUpTestSuite() { sApplication = new WYNApplication; }

	static void TearDownTestSuite()
	{
		// The window ends with the loop, which each order of tests must have run.
		if (sApplication->fWindow != nullptr)
			CloseAndRun();
		delete sApplication;
		Prefs::DeleteMe();
	}

	// The loop does not run, so the message is handled here. Returns what is printed.
	static std::string Handle(uint32 what)
	{
		BMessage message(what);
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
};


WYNApplication* WYNApplicationTest::sApplication = nullptr;

} // namespace


TEST_F(WYNApplicationTest, ShowsItsWindowAtOnce)
{
	ASSERT_NE(sApplication->fWindow, nullptr);
	EXPECT_STREQ(sApplication->Signature(), "application/x-vnd.kv-VinyloH");
	EXPECT_FALSE(sApplication->fWindow->IsHidden());
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
	Handle('kvCL');
	Handle('MWse');
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
