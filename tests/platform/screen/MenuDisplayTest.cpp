// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/MenuDisplay.h"

#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/screen/DisplayThread.h"
#include "tests/support/Popups.h"

using hosted::DisplayThread;
using hosted::MenuContents;
using hosted::MenuLine;
using hosted::MenuPlace;
using hosted::NativeMenu;
using std::chrono::milliseconds;


namespace {

constexpr int kKeyEscape = 0x01000000;
constexpr int kKeyReturn = 0x01000004;
constexpr int kKeyUp = 0x01000013;
constexpr int kKeyRight = 0x01000014;
constexpr int kKeyDown = 0x01000015;


MenuLine
item(const char* label, int choice)
{
	MenuLine line;
	line.label = label;
	line.choice = choice;
	return line;
}


MenuLine
separator()
{
	MenuLine line;
	line.kind = MenuLine::kSeparator;
	return line;
}


class NativeMenuTest : public testing::Test {
protected:
	void SetUp() override { ASSERT_TRUE(DisplayThread::Start()); }

	std::shared_ptr<NativeMenu> Open(const MenuContents& contents)
	{
		return NativeMenu::Open(std::make_shared<MenuContents>(contents), place);
	}

	MenuPlace place;
};

} // namespace


TEST_F(NativeMenuTest, ClickReportsTheChoice)
{
	MenuContents contents;
	contents.lines = {item("one", 3), separator(), item("two", 7)};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	EXPECT_FALSE(menu->WaitFor(milliseconds(1)));
	ASSERT_TRUE(test::ClickMenuRow("two"));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), 7);
}


TEST_F(NativeMenuTest, EverySeparatorIsSeen)
{
	auto submenu = std::make_shared<MenuContents>();
	submenu->lines = {separator(), item("inner", 1)};
	MenuLine more = item("more", -1);
	more.kind = MenuLine::kSubmenu;
	more.submenu = submenu;
	MenuContents contents;
	contents.lines = {separator(), more, separator(), separator(), item("two", 2), separator()};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_EQ(test::MenuRows().size(), 6u);
	for (const test::MenuRow& row : test::MenuRows())
		EXPECT_GT(row.height, 0);

	ASSERT_TRUE(test::PressKey(kKeyDown));
	ASSERT_TRUE(test::PressKey(kKeyRight));
	ASSERT_EQ(test::MenuRows().size(), 2u);
	EXPECT_GT(test::MenuRows()[0].height, 0);
	menu->Close();
	EXPECT_TRUE(menu->WaitFor(milliseconds(10000)));
}


TEST_F(NativeMenuTest, ShowsWhatItWasGiven)
{
	MenuContents contents;
	contents.fontPixels = 11;
	MenuLine marked = item("Fish & \tChips", 0);
	marked.marked = true;
	MenuLine disabled = item("off", 1);
	disabled.enabled = false;
	contents.lines = {marked, disabled, separator(), item("plain", 2)};
	place.x = 120;
	place.y = 80;
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());

	const std::vector<test::MenuRow> rows = test::MenuRows();
	ASSERT_EQ(rows.size(), 4u);
	EXPECT_EQ(rows[0].label, "Fish &  Chips");
	EXPECT_TRUE(rows[0].checked);
	EXPECT_FALSE(rows[0].radio);
	EXPECT_FALSE(rows[1].enabled);
	EXPECT_TRUE(rows[2].separator);
	EXPECT_FALSE(rows[3].checkable);
	EXPECT_EQ(test::MenuFontPixels(), 11);
	int x = 0;
	int y = 0;
	ASSERT_TRUE(test::MenuCorner(&x, &y));
	EXPECT_EQ(x, 120);
	EXPECT_EQ(y, 80);
	menu->Close();
	menu->Wait();
	EXPECT_EQ(menu->Choice(), -1);
}


TEST_F(NativeMenuTest, RadioMenuShowsAllItemsAsRadioButtons)
{
	MenuContents contents;
	contents.radio = true;
	MenuLine marked = item("a", 0);
	marked.marked = true;
	contents.lines = {marked, item("b", 1)};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	const std::vector<test::MenuRow> rows = test::MenuRows();
	ASSERT_EQ(rows.size(), 2u);
	EXPECT_TRUE(rows[0].radio && rows[0].checked);
	EXPECT_TRUE(rows[1].radio && !rows[1].checked);
	menu->Close();
	menu->Wait();
}


TEST_F(NativeMenuTest, DisabledItemCannotBeChosen)
{
	MenuContents contents;
	MenuLine disabled = item("off", 1);
	disabled.enabled = false;
	contents.lines = {disabled, item("on", 2)};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ClickMenuRow("off"));
	EXPECT_FALSE(menu->WaitFor(milliseconds(50)));
	ASSERT_TRUE(test::PressKey(kKeyEscape));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), -1);
}


TEST_F(NativeMenuTest, KeysMoveAndChoose)
{
	MenuContents contents;
	contents.lines = {item("a", 0), separator(), item("b", 1), item("c", 2)};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	for (int key : {kKeyDown, kKeyDown, kKeyDown, kKeyUp, kKeyReturn})
		ASSERT_TRUE(test::PressKey(key));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), 1);
}


TEST_F(NativeMenuTest, TriggerChooses)
{
	MenuContents contents;
	MenuLine line = item("Save & exit", 5);
	line.trigger = 'x';
	contents.lines = {item("a", 0), line};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::PressKey('X', "x"));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), 5);
}


TEST_F(NativeMenuTest, SubmenuItemReportsItsChoice)
{
	auto submenu = std::make_shared<MenuContents>();
	submenu->fontPixels = 17;
	submenu->lines = {item("inner", 42)};
	MenuContents contents;
	MenuLine line;
	line.kind = MenuLine::kSubmenu;
	line.label = "more";
	line.submenu = submenu;
	contents.lines = {item("a", 0), line};
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	EXPECT_TRUE(test::MenuRows()[1].submenu);
	for (int key : {kKeyDown, kKeyDown, kKeyRight})
		ASSERT_TRUE(test::PressKey(key));
	EXPECT_EQ(test::MenuFontPixels(), 17);
	ASSERT_TRUE(test::ClickMenuRow("inner"));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), 42);
	EXPECT_TRUE(test::WaitForNoMenu());
}


TEST_F(NativeMenuTest, PressDragReleaseChooses)
{
	MenuContents contents;
	contents.lines = {item("a", 0), item("b", 1), item("c", 2)};
	place.clickTime = std::chrono::microseconds(0);
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ReleaseOverMenuRow("c"));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), 2);
}


TEST_F(NativeMenuTest, QuickReleaseKeepsTheMenuOpen)
{
	MenuContents contents;
	contents.lines = {item("a", 0), item("b", 1)};
	place.clickTime = std::chrono::hours(1);
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ReleaseOverMenuRow("b"));
	EXPECT_FALSE(menu->WaitFor(milliseconds(50)));
	ASSERT_TRUE(test::ClickMenuRow("a"));
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), 0);
}


TEST_F(NativeMenuTest, LateReleaseOutsideClosesOnlyAMenuThatMay)
{
	MenuContents contents;
	contents.lines = {item("a", 0)};
	place.clickTime = std::chrono::microseconds(0);
	const auto closing = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ReleaseOutsideMenu());
	ASSERT_TRUE(closing->WaitFor(milliseconds(10000)));
	EXPECT_EQ(closing->Choice(), -1);

	place.staysOpen = true;
	const auto staying = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ReleaseOutsideMenu());
	EXPECT_FALSE(staying->WaitFor(milliseconds(50)));
	staying->Close();
	staying->Wait();

	place.staysOpen = false;
	place.keepLeft = -10000;
	place.keepTop = -10000;
	place.keepRight = 10000;
	place.keepBottom = 10000;
	const auto kept = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ReleaseOutsideMenu());
	EXPECT_FALSE(kept->WaitFor(milliseconds(50)));
	kept->Close();
	kept->Wait();
}


TEST_F(NativeMenuTest, EmptyMenuIsOverAtOnce)
{
	const auto menu = Open(MenuContents());
	ASSERT_TRUE(menu->WaitFor(milliseconds(10000)));
	EXPECT_EQ(menu->Choice(), -1);
}


TEST_F(NativeMenuTest, MenuIsMovedOntoTheScreen)
{
	MenuContents contents;
	contents.lines = {item("a", 0)};
	place.x = 100000;
	place.y = 100000;
	const auto menu = Open(contents);
	ASSERT_TRUE(test::WaitForMenu());
	int x = 0;
	int y = 0;
	ASSERT_TRUE(test::MenuCorner(&x, &y));
	EXPECT_LT(x, 5000);
	EXPECT_LT(y, 5000);
	menu->Close();
	menu->Wait();
}


// In a process of its own: Qt does not get over a second display thread altogether.
TEST(NativeMenuDeathTest, EndsWithTheDisplayThread)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	const auto run = []() {
		auto contents = std::make_shared<MenuContents>();
		contents->lines = {item("a", 0)};
		if (!DisplayThread::Start())
			return 1;
		const auto menu = NativeMenu::Open(contents, MenuPlace());
		if (!test::WaitForMenu())
			return 2;
		DisplayThread::Stop();
		if (!menu->WaitFor(milliseconds(10000)) || menu->Choice() != -1)
			return 3;
		const auto never = NativeMenu::Open(contents, MenuPlace());
		return never->WaitFor(milliseconds(1)) && never->Choice() == -1 ? 0 : 4;
	};
	EXPECT_EXIT(_exit(run()), testing::ExitedWithCode(0), "");
}
