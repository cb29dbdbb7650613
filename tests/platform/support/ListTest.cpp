// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <List.h>
#include <StringList.h>
#include <TypeConstants.h>

#include <gtest/gtest.h>
#include <string.h>


namespace {

class BListTest : public testing::Test {
protected:
	void SetUp() override
	{
		for (int& number : fNumbers)
			fList.AddItem(&number);
	}
	void* At(int index) { return &fNumbers[index]; }

	int fNumbers[3] = {30, 10, 20};
	BList fList;
};


// What the callback is given are the places of the pointers.
int
by_value(const void* a, const void* b)
{
	return **static_cast<int* const*>(a) - **static_cast<int* const*>(b);
}

} // namespace


TEST_F(BListTest, ItemOutsideIsNull)
{
	EXPECT_EQ(fList.ItemAt(-1), nullptr);
	EXPECT_EQ(fList.ItemAt(3), nullptr);
	EXPECT_EQ(fList.ItemAt(2), At(2));
	EXPECT_EQ(fList.ItemAt(INT32_MIN), nullptr);
	EXPECT_EQ(BList().FirstItem(), nullptr);
	EXPECT_EQ(BList().LastItem(), nullptr);
	EXPECT_EQ(fList.FirstItem(), At(0));
	EXPECT_EQ(fList.LastItem(), At(2));
	EXPECT_EQ(fList.ItemAtFast(1), At(1));
}


TEST_F(BListTest, AddingOutsideIsRefused)
{
	int more = 0;
	EXPECT_FALSE(fList.AddItem(&more, -1));
	EXPECT_FALSE(fList.AddItem(&more, 4));
	EXPECT_TRUE(fList.AddItem(&more, 3));
	EXPECT_TRUE(fList.AddItem(&more, 0));
	EXPECT_EQ(fList.CountItems(), 5);
	EXPECT_EQ(fList.ItemAt(1), At(0));
	EXPECT_EQ(fList.IndexOf(&more), 0);
}


TEST_F(BListTest, RemovingByPointerTakesTheFirst)
{
	fList.AddItem(At(0));
	EXPECT_TRUE(fList.RemoveItem(At(0)));
	EXPECT_EQ(fList.IndexOf(At(0)), 2);
	int other = 0;
	EXPECT_FALSE(fList.RemoveItem(&other));
}


TEST_F(BListTest, RemovingByIndexGivesTheItem)
{
	EXPECT_EQ(fList.RemoveItem(3), nullptr);
	EXPECT_EQ(fList.RemoveItem(-1), nullptr);
	EXPECT_EQ(fList.RemoveItem(1), At(1));
	EXPECT_EQ(fList.CountItems(), 2);
}


TEST_F(BListTest, RemoveItemsClampsTheCount)
{
	EXPECT_FALSE(fList.RemoveItems(3, 1));
	EXPECT_FALSE(fList.RemoveItems(-1, 2));
	EXPECT_FALSE(fList.RemoveItems(0, 0));
	EXPECT_TRUE(fList.RemoveItems(1, 100));
	EXPECT_EQ(fList.CountItems(), 1);
}


TEST_F(BListTest, ReplaceSwapAndMove)
{
	int other = 0;
	EXPECT_FALSE(fList.ReplaceItem(3, &other));
	EXPECT_FALSE(fList.ReplaceItem(-1, &other));
	EXPECT_TRUE(fList.SwapItems(0, 2));
	EXPECT_FALSE(fList.SwapItems(0, 3));
	EXPECT_EQ(fList.ItemAt(0), At(2));
	EXPECT_TRUE(fList.MoveItem(0, 2));
	EXPECT_EQ(fList.ItemAt(2), At(2));
	EXPECT_EQ(fList.ItemAt(0), At(1));
	EXPECT_TRUE(fList.MoveItem(2, 0));
	EXPECT_EQ(fList.ItemAt(0), At(2));
	EXPECT_FALSE(fList.MoveItem(0, 3));
	EXPECT_TRUE(fList.ReplaceItem(2, &other));
	EXPECT_EQ(fList.LastItem(), &other);
}


TEST_F(BListTest, ListsAreInsertedAtAPlace)
{
	BList list;
	EXPECT_TRUE(list.AddList(&fList));
	EXPECT_TRUE(list == fList);
	EXPECT_TRUE(list.AddList(&list, 1));
	EXPECT_EQ(list.CountItems(), 6);
	EXPECT_EQ(list.ItemAt(1), At(0));
	EXPECT_EQ(list.ItemAt(5), At(2));
	EXPECT_FALSE(list.AddList(&fList, 7));
	EXPECT_FALSE(list.AddList(nullptr));
}


TEST_F(BListTest, SortGivesThePlacesOfThePointers)
{
	fList.SortItems(by_value);
	EXPECT_EQ(fList.ItemAt(0), At(1));
	EXPECT_EQ(fList.ItemAt(1), At(2));
	EXPECT_EQ(fList.ItemAt(2), At(0));
	BList().SortItems(by_value);
	fList.SortItems(nullptr);
}


TEST_F(BListTest, DoForEachStopsAtTrue)
{
	int seen = 0;
	fList.DoForEach(
		[](void* item, void* count) {
			++*static_cast<int*>(count);
			return *static_cast<int*>(item) == 10;
		},
		&seen);
	EXPECT_EQ(seen, 2);
}


TEST_F(BListTest, CopiesAreIndependent)
{
	BList copy(fList);
	BList assigned;
	assigned = fList;
	fList.MakeEmpty();
	EXPECT_TRUE(fList.IsEmpty());
	EXPECT_EQ(fList.ItemAt(0), nullptr);
	EXPECT_EQ(copy.CountItems(), 3);
	EXPECT_TRUE(copy == assigned);
	EXPECT_TRUE(copy != fList);
	EXPECT_TRUE(copy.HasItem(At(1)));
}


TEST(BList, BlockSizeIsAHintOnly)
{
	BList list(-5);
	static int sItem;
	for (int index = 0; index < 1000; index++)
		ASSERT_TRUE(list.AddItem(&sItem));
	EXPECT_EQ(list.CountItems(), 1000);
}


TEST(BStringList, AddsFindsAndRemoves)
{
	BStringList list;
	EXPECT_TRUE(list.Add("b") && list.Add("a", 0) && list.Add("B"));
	EXPECT_FALSE(list.Add("x", 9));
	EXPECT_EQ(list.CountStrings(), 3);
	EXPECT_EQ(list.IndexOf("B"), 2);
	EXPECT_EQ(list.IndexOf("B", true), 1);
	EXPECT_EQ(list.StringAt(7), "");
	EXPECT_EQ(list.Join(", "), "a, b, B");
	EXPECT_TRUE(list.Remove("b", true));
	EXPECT_EQ(list.CountStrings(), 1);
	EXPECT_EQ(list.Remove(0), "a");
	EXPECT_TRUE(list.IsEmpty());
	EXPECT_EQ(list.First(), "");
}


TEST(BStringList, SortsSwapsAndMoves)
{
	BStringList list;
	list.Add("b");
	list.Add("C");
	list.Add("a");
	list.Sort();
	EXPECT_EQ(list.Join(""), "Cab");
	list.Sort(true);
	EXPECT_EQ(list.Join(""), "abC");
	EXPECT_TRUE(list.Move(2, 0) && list.Swap(1, 2));
	EXPECT_EQ(list.Join(""), "Cba");
	EXPECT_FALSE(list.Move(3, 0) || list.Swap(0, -1) || list.Replace(3, "x"));
}


TEST(BStringList, SurvivesFlattening)
{
	BStringList list;
	list.Add("one");
	list.Add("");
	list.Add("three");
	char buffer[32];
	ASSERT_EQ(list.FlattenedSize(), 11);
	EXPECT_EQ(list.Flatten(buffer, 10), B_NO_MEMORY);
	ASSERT_EQ(list.Flatten(buffer, sizeof(buffer)), B_OK);
	BStringList copy;
	ASSERT_EQ(copy.Unflatten(B_STRING_LIST_TYPE, buffer, 11), B_OK);
	EXPECT_TRUE(copy == list);
	// Without its last zero it is damaged.
	EXPECT_EQ(copy.Unflatten(B_STRING_LIST_TYPE, buffer, 10), B_BAD_VALUE);
	EXPECT_EQ(copy.Unflatten(B_STRING_TYPE, buffer, 11), B_BAD_VALUE);
}
