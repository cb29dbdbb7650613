// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <PopUpMenu.h>

#include <atomic>
#include <memory>
#include <thread>

#include <gtest/gtest.h>

#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <View.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/Popups.h"
#include "tests/support/Receiver.h"
#include "tests/support/Wait.h"


namespace {

constexpr int kKeyEscape = 0x01000000;
constexpr int kKeyRight = 0x01000014;
constexpr int kKeyDown = 0x01000015;


class PopUpMenuTest : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fReceiver = new test::Receiver;
		fMenu = std::make_unique<BPopUpMenu>("menu", false, false);
		for (const char* label : {"zero", "one", "two"}) {
			BMessage* message = new BMessage('item');
			message->AddString("own", label);
			fMenu->AddItem(new BMenuItem(label, message));
		}
		fMenu->SetTargetForItems(fReceiver);
	}

	void TearDown() override
	{
		fMenu.reset();
		fReceiver->Lock();
		fReceiver->Quit();
		EXPECT_TRUE(test::WaitForNoMenu());
	}

	void OpenAsync(bool delivers = true)
	{
		EXPECT_EQ(fMenu->Go(BPoint(50, 60), delivers, false, true), nullptr);
		ASSERT_TRUE(test::WaitForMenu());
	}

	// Opens the menu, has the row chosen (or with null, Escape pressed) and gives what Go()
	// returns.
	BMenuItem* GoAndChoose(bool delivers, const char* label)
	{
		BMenuItem* result = nullptr;
		std::thread thread([&]() { result = fMenu->Go(BPoint(50, 60), delivers, true); });
		EXPECT_TRUE(test::WaitForMenu());
		if (label != nullptr)
			EXPECT_TRUE(test::ClickMenuRow(label));
		else
			EXPECT_TRUE(test::PressKey(kKeyEscape));
		thread.join();
		return result;
	}

	test::Receiver* fReceiver = nullptr;
	std::unique_ptr<BPopUpMenu> fMenu;
};


class CountedMenu : public BPopUpMenu {
public:
	CountedMenu(std::atomic<int>& deleted)
		:
		BPopUpMenu("counted", false, false),
		fDeleted(deleted)
	{
		AddItem(new BMenuItem("only", new BMessage('only')));
		SetAsyncAutoDestruct(true);
	}

	~CountedMenu() override { fDeleted++; }

private:
	std::atomic<int>& fDeleted;
};


// Opens the menu when it gets 'open', and tells what it draws and gets.
class MenuWindow : public BWindow {
public:
	class View : public BView {
	public:
		View()
			:
			BView(BRect(0, 0, 99, 99), "view", B_FOLLOW_NONE, B_WILL_DRAW)
		{
		}

		void Draw(BRect) override { draws++; }

		std::atomic<int> draws{0};
	};

	MenuWindow(BPopUpMenu* menu, bool async)
		:
		BWindow(BRect(100, 100, 299, 299), "menu", B_TITLED_WINDOW, 0),
		fMenu(menu),
		fAsync(async)
	{
		AddChild(view);
	}

	void MessageReceived(BMessage* message) override
	{
		if (message->what == 'open') {
			view->Invalidate();
			chosen = fMenu->Go(BPoint(150, 150), true, true, fAsync);
			closed = true;
		} else if (message->what == 'ping') {
			pings++;
		} else {
			BWindow::MessageReceived(message);
		}
	}

	View* view = new View;
	std::atomic<BMenuItem*> chosen{nullptr};
	std::atomic<bool> closed{false};
	std::atomic<int> pings{0};

private:
	BPopUpMenu* fMenu;
	bool fAsync;
};

} // namespace


TEST_F(PopUpMenuTest, AsyncChoiceSendsACopyWithItsFields)
{
	OpenAsync();
	EXPECT_TRUE(fReceiver->HasOnly(0));
	ASSERT_TRUE(test::ClickMenuRow("one"));
	ASSERT_TRUE(fReceiver->WaitForMessages(1));
	const BMessage message = fReceiver->Messages()[0];
	EXPECT_EQ(message.what, uint32('item'));
	EXPECT_STREQ(message.GetString("own"), "one");
	EXPECT_EQ(message.GetInt32("index", -1), 1);
	EXPECT_TRUE(message.HasInt64("when"));
	void* source = nullptr;
	EXPECT_EQ(message.FindPointer("source", &source), B_OK);
	EXPECT_EQ(source, fMenu->ItemAt(1));
	EXPECT_TRUE(message.HasMessenger("be:sender"));
	EXPECT_FALSE(fMenu->ItemAt(1)->Message()->HasInt32("index"));
}


TEST_F(PopUpMenuTest, SyncGoReturnsTheItem)
{
	EXPECT_EQ(GoAndChoose(false, "two"), fMenu->ItemAt(2));
	EXPECT_TRUE(fReceiver->HasOnly(0));
	EXPECT_EQ(GoAndChoose(true, "zero"), fMenu->ItemAt(0));
	EXPECT_TRUE(fReceiver->HasOnly(1));
	EXPECT_EQ(GoAndChoose(true, nullptr), nullptr);
	EXPECT_TRUE(fReceiver->HasOnly(1));
}


TEST_F(PopUpMenuTest, InvokingMarksInRadioModeOnly)
{
	GoAndChoose(true, "one");
	EXPECT_EQ(fMenu->FindMarked(), nullptr);
	fMenu->SetRadioMode(true);
	GoAndChoose(false, "one");
	EXPECT_EQ(fMenu->FindMarked(), nullptr);
	GoAndChoose(true, "one");
	EXPECT_EQ(fMenu->FindMarked(), fMenu->ItemAt(1));
	GoAndChoose(true, "two");
	EXPECT_EQ(fMenu->FindMarked(), fMenu->ItemAt(2));
	EXPECT_FALSE(fMenu->ItemAt(1)->IsMarked());
}


TEST_F(PopUpMenuTest, NativeMenuShowsTheItems)
{
	fMenu->SetFontSize(11);
	fMenu->AddSeparatorItem();
	fMenu->AddItem(new BMenu("more"));
	fMenu->ItemAt(0)->SetMarked(true);
	fMenu->ItemAt(1)->SetEnabled(false);
	fMenu->ItemAt(2)->SetLabel(nullptr);
	OpenAsync();
	const std::vector<test::MenuRow> rows = test::MenuRows();
	ASSERT_EQ(rows.size(), 5u);
	EXPECT_EQ(rows[0].label, "zero");
	EXPECT_TRUE(rows[0].checked);
	EXPECT_FALSE(rows[1].enabled);
	EXPECT_EQ(rows[2].label, "");
	EXPECT_TRUE(rows[3].separator);
	EXPECT_TRUE(rows[4].submenu);
	EXPECT_EQ(rows[4].label, "more");
	EXPECT_EQ(test::MenuFontPixels(), 11);
	int x = 0;
	int y = 0;
	ASSERT_TRUE(test::MenuCorner(&x, &y));
	EXPECT_EQ(x, 50);
	EXPECT_EQ(y, 60);
}


TEST_F(PopUpMenuTest, SubmenusNeedTargetsOfTheirOwn)
{
	BMenu* submenu = new BMenu("more");
	submenu->AddItem(new BMenuItem("inner", new BMessage('innr')));
	fMenu->AddItem(submenu);
	EXPECT_EQ(fMenu->SetTargetForItems(fReceiver), B_OK);
	EXPECT_FALSE(submenu->ItemAt(0)->Messenger().IsValid());

	const auto chooseInner = [this]() {
		OpenAsync();
		for (int key : {kKeyDown, kKeyDown, kKeyDown, kKeyDown, kKeyRight})
			ASSERT_TRUE(test::PressKey(key));
		ASSERT_TRUE(test::ClickMenuRow("inner"));
		ASSERT_TRUE(test::WaitForNoMenu());
	};
	// Without a target the message is lost.
	chooseInner();
	OpenAsync();
	ASSERT_TRUE(test::ClickMenuRow("zero"));
	ASSERT_TRUE(fReceiver->WaitForMessages(1));
	EXPECT_EQ(fReceiver->Messages()[0].what, uint32('item'));

	EXPECT_EQ(submenu->SetTargetForItems(BMessenger(fReceiver)), B_OK);
	chooseInner();
	ASSERT_TRUE(fReceiver->WaitForMessages(2));
	EXPECT_EQ(fReceiver->Messages()[1].what, uint32('innr'));
}


TEST_F(PopUpMenuTest, SecondGoWaitsForTheFirst)
{
	OpenAsync();
	std::atomic<bool> opened{false};
	std::thread thread([&]() {
		fMenu->Go(BPoint(80, 90), true, false, true);
		opened = true;
	});
	std::this_thread::sleep_for(std::chrono::milliseconds(30));
	EXPECT_FALSE(opened);
	ASSERT_TRUE(test::ClickMenuRow("zero"));
	thread.join();
	EXPECT_TRUE(opened);
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(test::ClickMenuRow("one"));
	ASSERT_TRUE(fReceiver->WaitForMessages(2));
}


TEST_F(PopUpMenuTest, DeletingTheMenuClosesIt)
{
	OpenAsync();
	fMenu.reset();
	EXPECT_TRUE(test::WaitForNoMenu());
	EXPECT_TRUE(fReceiver->HasOnly(0));
}


TEST_F(PopUpMenuTest, DeletingTheMenuAtOnceClosesIt)
{
	for (int i = 0; i < 20; i++) {
		BPopUpMenu* menu = new BPopUpMenu("short", false, false);
		menu->AddItem(new BMenuItem("item", new BMessage('item')));
		menu->SetTargetForItems(fReceiver);
		menu->Go(BPoint(10, 10), true, true, true);
		delete menu;
	}
	EXPECT_TRUE(test::WaitForNoMenu());
	EXPECT_TRUE(fReceiver->HasOnly(0));
}


TEST_F(PopUpMenuTest, DeletingTheMenuEndsASyncGo)
{
	std::atomic<bool> over{false};
	BMenuItem* result = fMenu->ItemAt(0);
	BPopUpMenu* menu = fMenu.get();
	std::thread thread([&]() {
		result = menu->Go(BPoint(50, 60), true, true);
		over = true;
	});
	ASSERT_TRUE(test::WaitForMenu());
	EXPECT_FALSE(over);
	fMenu.reset();
	thread.join();
	EXPECT_EQ(result, nullptr);
}


TEST_F(PopUpMenuTest, ItemDeletedMeanwhileIsNotInvoked)
{
	OpenAsync();
	delete fMenu->RemoveItem(int32(1));
	ASSERT_TRUE(test::ClickMenuRow("one"));
	ASSERT_TRUE(test::WaitForNoMenu());
	OpenAsync();
	ASSERT_TRUE(test::ClickMenuRow("two"));
	ASSERT_TRUE(fReceiver->WaitForMessages(1));
	EXPECT_STREQ(fReceiver->Messages()[0].GetString("own"), "two");
}


TEST_F(PopUpMenuTest, AutoDestructDeletesAfterTheChoice)
{
	std::atomic<int> deleted{0};
	CountedMenu* menu = new CountedMenu(deleted);
	menu->SetTargetForItems(fReceiver);
	menu->Go(BPoint(10, 10), true, true, true);
	ASSERT_TRUE(test::WaitForMenu());
	EXPECT_EQ(deleted, 0);
	ASSERT_TRUE(test::ClickMenuRow("only"));
	EXPECT_TRUE(test::WaitFor([&]() { return deleted == 1; }));
	EXPECT_TRUE(fReceiver->WaitForMessages(1));
}


TEST_F(PopUpMenuTest, SyncGoKeepsItsWindowUpdated)
{
	MenuWindow* window = new MenuWindow(fMenu.get(), false);
	window->Show();
	ASSERT_TRUE(test::WaitFor([&]() { return window->view->draws > 0; }));
	test::Settle(window);
	const int before = window->view->draws;
	window->PostMessage('open');
	ASSERT_TRUE(test::WaitForMenu());
	window->PostMessage('ping');
	EXPECT_TRUE(test::WaitFor([&]() { return window->view->draws > before; }));
	EXPECT_FALSE(window->closed);
	EXPECT_EQ(window->pings, 0);
	ASSERT_TRUE(test::ClickMenuRow("one"));
	ASSERT_TRUE(test::WaitFor([&]() { return window->pings == 1; }));
	EXPECT_EQ(window->chosen.load(), fMenu->ItemAt(1));
	EXPECT_TRUE(fReceiver->WaitForMessages(1));
	test::CloseWindow(window);
}


TEST_F(PopUpMenuTest, MenuIsClosedWithTheWindowThatOpenedIt)
{
	MenuWindow* window = new MenuWindow(fMenu.get(), true);
	window->Show();
	window->PostMessage('open');
	ASSERT_TRUE(test::WaitForMenu());
	test::CloseWindow(window);
	EXPECT_TRUE(test::WaitForNoMenu());
	EXPECT_TRUE(fReceiver->HasOnly(0));
}


TEST_F(PopUpMenuTest, WindowMayDeleteItsMenuWhileItIsOpen)
{
	BPopUpMenu* menu = new BPopUpMenu("owned", false, false);
	menu->AddItem(new BMenuItem("item", new BMessage('item')));
	MenuWindow* window = new MenuWindow(menu, true);
	menu->SetTargetForItems(window);
	window->Show();
	window->PostMessage('open');
	ASSERT_TRUE(test::WaitForMenu());
	ASSERT_TRUE(window->Lock());
	delete menu;
	window->Unlock();
	EXPECT_TRUE(test::WaitForNoMenu());
	test::CloseWindow(window);
}
