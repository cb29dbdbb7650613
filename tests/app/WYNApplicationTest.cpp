// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "app/WYNApplication.h"

#include <string>

#include <Message.h>
#include <Messenger.h>
#include <gtest/gtest.h>

#include "settings/Prefs.h"
#include "tests/support/Output.h"
#include "window/MediaWindow.h"


// One application in this process, so one test goes through its life.
TEST(WYNApplication, RelaysCommandsUntilItsWindowIsGone)
{
	WYNApplication* const application = new WYNApplication;
	ASSERT_NE(application->fWindow, nullptr);
	EXPECT_STREQ(application->Signature(), "application/x-vnd.kv-VinyloH");
	EXPECT_FALSE(application->fWindow->IsHidden());

	// The loop does not run yet, so messages are handled here.
	const auto handle = [application](uint32 what) {
		BMessage message(what);
		return test::OutputOf([&] { application->MessageReceived(&message); });
	};
	EXPECT_EQ(handle('PCNT'), "");
	EXPECT_EQ(handle('PGET'), "");
	EXPECT_EQ(handle('RPLY'), "");
	EXPECT_EQ(handle('_KDN'), "BMessage('_KDN') {\n}\n");
	EXPECT_EQ(handle('_KYD'), "BMessage('_KYD') {\n}\n");
	EXPECT_EQ(handle('_KYU'), "BMessage('_KYU') {\n}\n");
	EXPECT_EQ(handle('abcd'), "WYN_App BMessage('abcd') {\n}\n");

	// Both commands have been handled when the window answers.
	handle('MWkT');
	handle('kvCL');
	BMessage reply;
	BMessage get('none');
	BMessenger(application->fWindow).SendMessage(&get, &reply, 5000000, 5000000);
	EXPECT_TRUE(Prefs::getSTPrefs()->window_mtab);
	handle('MWsT');
	BMessenger(application->fWindow).SendMessage(&get, &reply, 5000000, 5000000);
	EXPECT_FALSE(Prefs::getSTPrefs()->window_mtab);

	// The window says that it goes, goes, and takes the application with it.
	handle('MW_C');
	const std::string output = test::OutputOf([application] { application->Run(); });
	EXPECT_NE(output.find(" MMF-abgemeldet\n"), std::string::npos) << output;
	EXPECT_EQ(application->fWindow, nullptr);

	// What comes after that is dropped.
	EXPECT_EQ(handle('MWkT'), "");
	EXPECT_FALSE(Prefs::getSTPrefs()->window_mtab);
	delete application;
	Prefs::DeleteMe();
}
