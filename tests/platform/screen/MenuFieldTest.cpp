// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MenuField.h>

#include <gtest/gtest.h>

#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <PopUpMenu.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Popups.h"
#include "tests/support/Wait.h"


namespace {

class MenuFieldTest : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fMenu = new BPopUpMenu("choose");
		fMenu->AddItem(new BMenuItem("one", new BMessage('one1')));
		fMenu->AddItem(new BMenuItem("two", new BMessage('two2')));
		BMenu* submenu = new BMenu("more");
		submenu->AddItem(new BMenuItem("three", new BMessage('thr3')));
		fMenu->AddItem(submenu);
		fField = new BMenuField(BRect(10, 10, 189, 39), "field", "Label", fMenu);
		fWindow = new test::LoggingWindow(BRect(100, 100, 399, 299), fLog);
		fWindow->AddChild(fField);
		fWindow->Show();
	}

	void TearDown() override
	{
		test::CloseWindow(fWindow);
		EXPECT_TRUE(test::WaitForNoMenu());
	}

	void Open()
	{
		ASSERT_TRUE(fWindow->Lock());
		fField->MouseDown(BPoint(fField->Divider() + 10, 10));
		fWindow->Unlock();
		ASSERT_TRUE(test::WaitForMenu());
	}

	std::string Label()
	{
		fWindow->Lock();
		const std::string label = fField->MenuItem()->Label();
		fWindow->Unlock();
		return label;
	}

	test::Log fLog;
	BPopUpMenu* fMenu = nullptr;
	BMenuField* fField = nullptr;
	test::LoggingWindow* fWindow = nullptr;
};

} // namespace


TEST_F(MenuFieldTest, ItemsAreTargetedAtTheWindowSubmenusToo)
{
	EXPECT_EQ(fMenu->ItemAt(0)->Target(), fWindow);
	EXPECT_EQ(fMenu->SubmenuAt(2)->ItemAt(0)->Target(), fWindow);
	fWindow->Lock();
	fMenu->AddItem(new BMenuItem("late", new BMessage('late')));
	fWindow->Unlock();
	EXPECT_EQ(fMenu->ItemAt(3)->Target(), fWindow);
}


TEST_F(MenuFieldTest, ChoiceReachesTheWindowAndTheLabel)
{
	EXPECT_EQ(Label(), "choose");
	Open();
	int x = 0;
	int y = 0;
	ASSERT_TRUE(test::MenuCorner(&x, &y));
	EXPECT_EQ(x, 110 + int(fField->Divider()));
	EXPECT_EQ(y, 140);
	ASSERT_TRUE(test::ClickMenuRow("two"));
	ASSERT_TRUE(test::WaitFor([this]() { return !fLog.Messages('two2').empty(); }));
	EXPECT_EQ(fLog.Last('two2').GetInt32("index", -1), 1);
	EXPECT_EQ(Label(), "two");
	EXPECT_TRUE(fMenu->ItemAt(1)->IsMarked());
}


TEST_F(MenuFieldTest, DisabledFieldStaysClosed)
{
	fWindow->Lock();
	fField->SetEnabled(false);
	EXPECT_FALSE(fMenu->IsEnabled());
	fField->MouseDown(BPoint(fField->Divider() + 10, 10));
	fWindow->Unlock();
	test::Settle(fWindow);
	EXPECT_TRUE(test::MenuRows().empty());
}


TEST_F(MenuFieldTest, DeletingTheFieldClosesItsMenu)
{
	Open();
	fWindow->Lock();
	fField->RemoveSelf();
	EXPECT_TRUE(test::WaitForNoMenu());
	delete fField;
	fWindow->Unlock();
}
