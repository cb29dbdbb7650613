// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Menu.h>

#include <memory>

#include <gtest/gtest.h>

#include <MenuItem.h>
#include <Message.h>
#include <PopUpMenu.h>
#include <SeparatorItem.h>


namespace {

BMenuItem*
item(const char* label, uint32 what = 0)
{
	return new BMenuItem(label, what != 0 ? new BMessage(what) : nullptr);
}

} // namespace


TEST(Menu, ItemsStandInOrder)
{
	BMenu menu("menu");
	BMenuItem* one = item("one");
	BMenuItem* two = item("two");
	BMenuItem* three = item("three");
	EXPECT_TRUE(menu.AddItem(one));
	EXPECT_TRUE(menu.AddItem(three));
	EXPECT_TRUE(menu.AddItem(two, 1));
	EXPECT_EQ(menu.CountItems(), 3);
	EXPECT_EQ(menu.ItemAt(1), two);
	EXPECT_EQ(menu.IndexOf(three), 2);
	EXPECT_EQ(two->Menu(), &menu);
	EXPECT_EQ(menu.ItemAt(3), nullptr);
	EXPECT_EQ(menu.ItemAt(-1), nullptr);
	EXPECT_EQ(menu.SubmenuAt(0), nullptr);
}


TEST(Menu, AddItemRefusesNothingAndIndicesOutside)
{
	BMenu menu("menu");
	std::unique_ptr<BMenuItem> one(item("one"));
	EXPECT_FALSE(menu.AddItem(static_cast<BMenuItem*>(nullptr)));
	EXPECT_FALSE(menu.AddItem(static_cast<BMenu*>(nullptr)));
	EXPECT_FALSE(menu.AddItem(one.get(), 1));
	EXPECT_FALSE(menu.AddItem(one.get(), -1));
	EXPECT_EQ(menu.CountItems(), 0);
	EXPECT_EQ(one->Menu(), nullptr);
}


TEST(MenuDeathTest, AnItemInAMenuCannotBeAddedAgain)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	BMenu menu("menu");
	menu.AddItem(item("one"));
	EXPECT_DEATH(menu.AddItem(menu.ItemAt(0)), "in a menu already");
}


TEST(Menu, SeparatorHasAnEmptyLabelAndStaysDisabled)
{
	BMenu menu("menu");
	EXPECT_TRUE(menu.AddSeparatorItem());
	BMenuItem* separator = menu.ItemAt(0);
	ASSERT_NE(dynamic_cast<BSeparatorItem*>(separator), nullptr);
	EXPECT_STREQ(separator->Label(), "");
	EXPECT_FALSE(separator->IsEnabled());
	separator->SetEnabled(true);
	EXPECT_FALSE(separator->IsEnabled());
}


TEST(Menu, SubmenuIsWrappedInAnItemOfItsName)
{
	BMenu menu("menu");
	BMenu* submenu = new BMenu("sub");
	EXPECT_TRUE(menu.AddItem(submenu));
	EXPECT_EQ(menu.SubmenuAt(0), submenu);
	EXPECT_EQ(menu.IndexOf(submenu), 0);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "sub");
	EXPECT_EQ(submenu->Superitem(), menu.ItemAt(0));
	EXPECT_EQ(submenu->Supermenu(), &menu);
}


TEST(Menu, RemoveItemNeverDeletes)
{
	BMenu menu("menu");
	menu.AddItem(item("one"));
	menu.AddItem(item("two"));
	std::unique_ptr<BMenuItem> one(menu.RemoveItem(int32(0)));
	ASSERT_NE(one, nullptr);
	EXPECT_STREQ(one->Label(), "one");
	EXPECT_EQ(one->Menu(), nullptr);
	EXPECT_FALSE(menu.RemoveItem(one.get()));
	std::unique_ptr<BMenuItem> two(menu.ItemAt(0));
	EXPECT_TRUE(menu.RemoveItem(two.get()));
	EXPECT_STREQ(two->Label(), "two");
	EXPECT_EQ(menu.RemoveItem(int32(0)), nullptr);
	EXPECT_EQ(menu.CountItems(), 0);
}


TEST(Menu, RemovingASubmenuLeavesItsItemOrphaned)
{
	BMenu menu("menu");
	BMenu* submenu = new BMenu("sub");
	menu.AddItem(submenu);
	std::unique_ptr<BMenuItem> orphan(menu.ItemAt(0));
	EXPECT_TRUE(menu.RemoveItem(submenu));
	EXPECT_EQ(menu.CountItems(), 0);
	EXPECT_EQ(orphan->Submenu(), submenu);
	EXPECT_FALSE(menu.RemoveItem(submenu));

	// It may be added elsewhere, and the orphan then no longer deletes it.
	BMenu other("other");
	EXPECT_TRUE(other.AddItem(submenu));
	orphan.reset();
	EXPECT_EQ(other.SubmenuAt(0), submenu);
	EXPECT_EQ(submenu->Supermenu(), &other);
}


TEST(Menu, RemoveItemsTakesWhatThereIs)
{
	BMenu menu("menu");
	for (const char* label : {"0", "1", "2", "3"})
		menu.AddItem(item(label));
	EXPECT_TRUE(menu.RemoveItems(1, 2, true));
	ASSERT_EQ(menu.CountItems(), 2);
	EXPECT_STREQ(menu.ItemAt(1)->Label(), "3");
	EXPECT_FALSE(menu.RemoveItems(2, 5, true));
	EXPECT_TRUE(menu.RemoveItems(1, 100, true));
	EXPECT_EQ(menu.CountItems(), 1);
}


TEST(Menu, DeletedItemLeavesItsMenu)
{
	BMenu menu("menu");
	menu.AddItem(item("one"));
	delete menu.ItemAt(0);
	EXPECT_EQ(menu.CountItems(), 0);
}


TEST(Menu, FindItemGoesIntoSubmenusInOrder)
{
	BMenu menu("menu");
	BMenu* first = new BMenu("first");
	BMenu* deep = new BMenu("deep");
	deep->AddItem(item("target", 'deep'));
	first->AddItem(deep);
	menu.AddItem(item("a", 'aaaa'));
	menu.AddItem(first);
	menu.AddItem(item("target", 'flat'));
	menu.AddItem(item("late", 'deep'));

	// The submenu stands before.
	EXPECT_EQ(menu.FindItem("target"), deep->ItemAt(0));
	EXPECT_EQ(menu.FindItem(uint32('deep')), deep->ItemAt(0));
	EXPECT_EQ(menu.FindItem(uint32('flat')), menu.ItemAt(2));
	EXPECT_EQ(menu.FindItem("deep"), first->ItemAt(0));
	EXPECT_EQ(menu.FindItem("nowhere"), nullptr);
	EXPECT_EQ(menu.FindItem(uint32('none')), nullptr);
}


TEST(Menu, FindItemTakesItemsWithoutMessageForCommandZero)
{
	BMenu menu("menu");
	menu.AddItem(item("a", 'aaaa'));
	menu.AddItem(item("silent"));
	EXPECT_EQ(menu.FindItem(uint32(0)), menu.ItemAt(1));
}


TEST(Menu, RadioModeKeepsOneMark)
{
	BMenu menu("menu");
	EXPECT_FALSE(menu.IsRadioMode());
	menu.AddItem(item("a"));
	menu.AddItem(item("b"));
	menu.ItemAt(0)->SetMarked(true);
	menu.ItemAt(1)->SetMarked(true);
	EXPECT_TRUE(menu.ItemAt(0)->IsMarked());
	EXPECT_EQ(menu.FindMarked(), menu.ItemAt(0));

	menu.SetRadioMode(true);
	menu.ItemAt(1)->SetMarked(true);
	EXPECT_FALSE(menu.ItemAt(0)->IsMarked());
	EXPECT_EQ(menu.FindMarked(), menu.ItemAt(1));

	BMenuItem* marked = item("c");
	marked->SetMarked(true);
	menu.AddItem(marked);
	EXPECT_FALSE(menu.ItemAt(1)->IsMarked());
	EXPECT_EQ(menu.FindMarked(), marked);

	marked->SetMarked(false);
	EXPECT_EQ(menu.FindMarked(), nullptr);
}


TEST(Menu, LabelFromMarkedTurnsRadioModeOn)
{
	BMenu menu("menu");
	menu.SetLabelFromMarked(true);
	EXPECT_TRUE(menu.IsLabelFromMarked());
	EXPECT_TRUE(menu.IsRadioMode());
	menu.SetRadioMode(false);
	EXPECT_FALSE(menu.IsRadioMode());
	EXPECT_FALSE(menu.IsLabelFromMarked());
}


TEST(Menu, LabelFromMarkedNamesTheSuperitem)
{
	BMenu menu("menu");
	BMenu* submenu = new BMenu("sub");
	submenu->SetLabelFromMarked(true);
	submenu->AddItem(item("a"));
	submenu->AddItem(item("b"));
	submenu->ItemAt(0)->SetMarked(true);
	menu.AddItem(submenu);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "a");
	submenu->ItemAt(1)->SetMarked(true);
	EXPECT_STREQ(menu.ItemAt(0)->Label(), "b");
}


TEST(Menu, EnabledStatesAreInherited)
{
	BMenu menu("menu");
	BMenu* submenu = new BMenu("sub");
	submenu->AddItem(item("inner"));
	menu.AddItem(submenu);
	menu.AddItem(item("outer"));

	menu.ItemAt(0)->SetEnabled(false);
	EXPECT_FALSE(submenu->IsEnabled());
	EXPECT_FALSE(submenu->ItemAt(0)->IsEnabled());
	EXPECT_TRUE(menu.ItemAt(1)->IsEnabled());
	submenu->SetEnabled(true);
	EXPECT_TRUE(menu.ItemAt(0)->IsEnabled());

	menu.SetEnabled(false);
	EXPECT_FALSE(menu.ItemAt(1)->IsEnabled());
	EXPECT_FALSE(submenu->ItemAt(0)->IsEnabled());
}


TEST(Menu, FontSizeIsTheMenusOwn)
{
	BMenu menu("menu");
	BMenu* submenu = new BMenu("sub");
	menu.AddItem(submenu);
	menu.SetFontSize(11);
	BFont font;
	menu.GetFont(&font);
	EXPECT_EQ(font.Size(), 11);
	submenu->GetFont(&font);
	EXPECT_EQ(font.Size(), 12);
}


TEST(MenuItem, LabelMayBeMissing)
{
	BMenuItem nameless(static_cast<const char*>(nullptr), nullptr);
	EXPECT_EQ(nameless.Label(), nullptr);
	nameless.SetLabel("name");
	EXPECT_STREQ(nameless.Label(), "name");
	nameless.SetLabel(nullptr);
	EXPECT_EQ(nameless.Label(), nullptr);
}


TEST(MenuItem, MessageAndShortcutsAreKept)
{
	BMenuItem quit("Quit", new BMessage('quit'), 'Q', B_SHIFT_KEY);
	EXPECT_EQ(quit.Command(), uint32('quit'));
	ASSERT_NE(quit.Message(), nullptr);
	uint32 modifiers = 0;
	EXPECT_EQ(quit.Shortcut(&modifiers), 'Q');
	EXPECT_EQ(modifiers, uint32(B_SHIFT_KEY | B_COMMAND_KEY));
	quit.SetTrigger('i');
	EXPECT_EQ(quit.Trigger(), 'i');
}


TEST(PopUpMenu, ModesAreGivenAtConstruction)
{
	BPopUpMenu standard("menu");
	EXPECT_TRUE(standard.IsRadioMode());
	EXPECT_TRUE(standard.IsLabelFromMarked());

	BPopUpMenu plain("menu", false, false);
	EXPECT_FALSE(plain.IsRadioMode());
	EXPECT_FALSE(plain.IsLabelFromMarked());

	// Label-from-marked brings radio mode along.
	BPopUpMenu labelled("menu", false, true);
	EXPECT_TRUE(labelled.IsRadioMode());
	labelled.SetRadioMode(false);
	EXPECT_FALSE(labelled.IsLabelFromMarked());
}
