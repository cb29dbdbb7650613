// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <string>

#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <gtest/gtest.h>

#include "appcontrol/PreferredAudioApp.h"
#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Output.h"


namespace {

// "One" and "Two", and a submenu with "Deep".
class SetItemToTest : public testing::Test {
protected:
	SetItemToTest()
	{
		test::TheApplication();
		KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
		fMenu = new BMenu("menu");
		fOne = Add(fMenu, "One", 'one ');
		fTwo = Add(fMenu, "Two", 'two ');
		BMenu* const submenu = new BMenu("Sub");
		fDeep = Add(submenu, "Deep", 'deep');
		fMenu->AddItem(submenu);
	}

	~SetItemToTest() override { delete fMenu; }

	BMenuItem* Add(BMenu* menu, const char* label, uint32 command)
	{
		BMenuItem* const item = new BMenuItem(label, new BMessage(command));
		menu->AddItem(item);
		return item;
	}

	BMenu* fMenu;
	BMenuItem* fOne;
	BMenuItem* fTwo;
	BMenuItem* fDeep;
};

} // namespace


TEST_F(SetItemToTest, FindsByLabel)
{
	EXPECT_TRUE(SetItemTo(fMenu, 0, "Two", false, "", true));
	EXPECT_TRUE(fTwo->IsMarked());
	EXPECT_FALSE(fTwo->IsEnabled());
	EXPECT_FALSE(fOne->IsMarked());
	EXPECT_TRUE(SetItemTo(fMenu, 0, "Two", true, "", false));
	EXPECT_FALSE(fTwo->IsMarked());
	EXPECT_TRUE(fTwo->IsEnabled());
}


TEST_F(SetItemToTest, CommandWinsOverTheLabel)
{
	EXPECT_TRUE(SetItemTo(fMenu, 'one ', "Two", true, "", true));
	EXPECT_TRUE(fOne->IsMarked());
	EXPECT_FALSE(fTwo->IsMarked());
}


TEST_F(SetItemToTest, FindsInSubmenus)
{
	fDeep->SetEnabled(false);
	EXPECT_TRUE(SetItemTo(fMenu, 0, "Deep", true, "", true));
	EXPECT_TRUE(fDeep->IsMarked());
	EXPECT_TRUE(fDeep->IsEnabled());
}


TEST_F(SetItemToTest, LabelServesIfTheCommandIsAbsent)
{
	fTwo->SetEnabled(false);
	std::string output
		= test::OutputOf([this] { EXPECT_TRUE(SetItemTo(fMenu, 'none', "Two", true, "", true)); });
	EXPECT_EQ(output, " 'Two' not found[2 enable]\n[IN SUB FOUND 'Two']  [Item 1:Two][<out]\n");
	EXPECT_TRUE(fTwo->IsMarked());
	EXPECT_FALSE(fTwo->IsEnabled());

	output
		= test::OutputOf([this] { EXPECT_TRUE(SetItemTo(fMenu, 'none', "Deep", true, "", true)); });
	EXPECT_EQ(output, " 'Deep' not found[2 enable]\n\n [Untermenu an 2][SM-out]\n");
	EXPECT_TRUE(fDeep->IsMarked());
}


TEST_F(SetItemToTest, UnknownItemIsNotFound)
{
	EXPECT_FALSE(SetItemTo(fMenu, 0, "Three", true, "", true));
	EXPECT_FALSE(SetItemTo(fMenu, 'none', "Three", true, "", true));
}


TEST_F(SetItemToTest, SomeCallsAreRefused)
{
	EXPECT_EQ(test::OutputOf([] { EXPECT_FALSE(SetItemTo(nullptr, 0, "x", true, "", true)); }),
		" [Menu==NULL :x][out]\n");
	EXPECT_EQ(
		test::OutputOf([this] { EXPECT_FALSE(SetItemTo(fMenu, 1, nullptr, true, "", true)); }),
		" return ! \n");
	EXPECT_EQ(test::OutputOf([this] { EXPECT_FALSE(SetItemTo(fMenu, 0, "-?-", true, "", true)); }),
		" [forbidden Label :-?-][out]\n");
}
