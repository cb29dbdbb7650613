// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/AlertDisplay.h"

#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/screen/DisplayThread.h"
#include "tests/support/Desktop.h"
#include "tests/support/Popups.h"

using hosted::AlertContents;
using hosted::AlertIcon;
using hosted::DisplayThread;
using hosted::NativeAlert;
using std::chrono::milliseconds;


namespace {

constexpr int kKeyEscape = 0x01000000;
constexpr int kKeyReturn = 0x01000004;


class NativeAlertTest : public testing::Test {
protected:
	void SetUp() override
	{
		ASSERT_TRUE(DisplayThread::Start());
		contents.title = "A title";
		contents.text = "Some text";
		contents.buttons = {{"No & never", 0}, {"Yes", 0}};
	}

	AlertContents contents;
};

} // namespace


TEST_F(NativeAlertTest, ShowsTitleTextIconAndButtons)
{
	contents.icon = AlertIcon::kWarning;
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogTitle(), "A title");
	EXPECT_EQ(test::DialogText(), "Some text");
	EXPECT_TRUE(test::DialogHasIcon());
	EXPECT_EQ(test::DialogButtons(), (std::vector<std::string>{"No & never", "Yes"}));
	EXPECT_EQ(test::DialogDefaultButton(), "Yes");
	alert->Close();
	alert->Wait();
	EXPECT_EQ(alert->Choice(), -1);
}


TEST_F(NativeAlertTest, EmptyTypeHasNoIcon)
{
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_FALSE(test::DialogHasIcon());
	alert->Close();
	alert->Wait();
}


TEST_F(NativeAlertTest, ClickReportsTheButton)
{
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_FALSE(alert->WaitFor(milliseconds(1)));
	ASSERT_TRUE(test::ClickDialogButton("No & never"));
	ASSERT_TRUE(alert->WaitFor(milliseconds(10000)));
	EXPECT_EQ(alert->Choice(), 0);
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST_F(NativeAlertTest, EnterIsTheLastButton)
{
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::PressKey(kKeyReturn));
	ASSERT_TRUE(alert->WaitFor(milliseconds(10000)));
	EXPECT_EQ(alert->Choice(), 1);
}


TEST_F(NativeAlertTest, ShortcutsWinOverTheDefaultButton)
{
	contents.buttons[0].key = '\n';
	const auto enter = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::PressKey(kKeyReturn));
	ASSERT_TRUE(enter->WaitFor(milliseconds(10000)));
	EXPECT_EQ(enter->Choice(), 0);

	contents.buttons[0].key = 'n';
	contents.buttons[1].key = 0x1b;
	const auto letter = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::PressKey('N', "n"));
	ASSERT_TRUE(letter->WaitFor(milliseconds(10000)));
	EXPECT_EQ(letter->Choice(), 0);

	const auto escape = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::PressKey(kKeyEscape));
	ASSERT_TRUE(escape->WaitFor(milliseconds(10000)));
	EXPECT_EQ(escape->Choice(), 1);
}


TEST_F(NativeAlertTest, EscapeAndClosingAnswerNothingUnlessAllowed)
{
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::PressKey(kKeyEscape));
	EXPECT_FALSE(alert->WaitFor(milliseconds(20)));
	ASSERT_TRUE(test::CloseDialog());
	EXPECT_FALSE(alert->WaitFor(milliseconds(20)));
	alert->Close();
	alert->Wait();

	contents.closesOnEscape = true;
	const auto escaped = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	ASSERT_TRUE(test::PressKey(kKeyEscape));
	ASSERT_TRUE(escaped->WaitFor(milliseconds(10000)));
	EXPECT_EQ(escaped->Choice(), -1);
}


TEST_F(NativeAlertTest, LongTextsCanBeRead)
{
	contents.text.clear();
	for (int i = 0; i < 400; i++)
		contents.text += "A line of the longest text that anyone has ever put there.\n";
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_TRUE(test::DialogTextFits());
	int frame[4] = {};
	ASSERT_TRUE(test::DialogFrame(frame));
	EXPECT_LT(frame[3] - frame[1], 600);
	alert->Close();
	alert->Wait();

	contents.text = "Cannot open '/home/somebody/Music/An artist with a name/An album with a name/"
					"01 - A title with a name that goes on and on and on.flac'.";
	const auto wrapped = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_TRUE(test::DialogTextFits());
	wrapped->Close();
	wrapped->Wait();
}


TEST_F(NativeAlertTest, IsPlacedOverTheGivenFrame)
{
	contents.overLeft = 200;
	contents.overTop = 150;
	contents.overRight = 599;
	contents.overBottom = 449;
	const auto alert = NativeAlert::Open(contents);
	ASSERT_TRUE(test::WaitForDialog());
	int frame[4] = {};
	ASSERT_TRUE(test::DialogFrame(frame));
	EXPECT_NEAR((frame[0] + frame[2]) / 2, 400, 2);
	// A title bar above it may move it down.
	EXPECT_NEAR((frame[1] + frame[3]) / 2, 300, test::HasWindowManager() ? 24 : 2);
	alert->Close();
	alert->Wait();
}


// In a process of its own: Qt does not get over a second display thread altogether.
TEST(NativeAlertDeathTest, EndsWithTheDisplayThread)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	const auto run = []() {
		AlertContents contents;
		contents.buttons = {{"OK", 0}};
		if (!DisplayThread::Start())
			return 1;
		const auto alert = NativeAlert::Open(contents);
		if (!test::WaitForDialog())
			return 2;
		DisplayThread::Stop();
		return alert->WaitFor(milliseconds(10000)) && alert->Choice() == -1 ? 0 : 3;
	};
	EXPECT_EXIT(_exit(run()), testing::ExitedWithCode(0), "");
}
