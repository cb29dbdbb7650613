// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <string.h>
#include <string>
#include <type_traits>

#include <AppDefs.h>
#include <Entry.h>
#include <Errors.h>
#include <Flattenable.h>
#include <Looper.h>
#include <Message.h>
#include <Messenger.h>
#include <Node.h>
#include <String.h>
#include <StringList.h>


namespace {

class Pair : public BFlattenable {
public:
	bool IsFixedSize() const override { return true; }
	type_code TypeCode() const override { return 'PAIR'; }
	ssize_t FlattenedSize() const override { return sizeof(fValues); }
	status_t Flatten(void* buffer, ssize_t size) const override
	{
		if (size < FlattenedSize())
			return B_BAD_VALUE;
		memcpy(buffer, fValues, sizeof(fValues));
		return B_OK;
	}
	status_t Unflatten(type_code code, const void* buffer, ssize_t size) override
	{
		if (code != TypeCode() || size != FlattenedSize())
			return B_BAD_VALUE;
		memcpy(fValues, buffer, sizeof(fValues));
		return B_OK;
	}

	int32 fValues[2] = {0, 0};
};

} // namespace


TEST(Message, CodesAreReadHighByteFirst)
{
	EXPECT_EQ(B_QUIT_REQUESTED, 0x5F515251);
	EXPECT_EQ(B_SIMPLE_DATA, 0x44415441);
}


TEST(Message, PointerIsNoMessageToCopy)
{
	EXPECT_FALSE((std::is_constructible<BMessage, BMessage*>::value));
	EXPECT_TRUE((std::is_constructible<BMessage, uint32>::value));
}


TEST(Message, NewOneIsEmpty)
{
	BMessage message;
	EXPECT_EQ(message.what, 0u);
	EXPECT_TRUE(message.IsEmpty());
	EXPECT_FALSE(message.WasDelivered());
	EXPECT_FALSE(message.IsReply());
	EXPECT_FALSE(message.ReturnAddress().IsValid());
}


TEST(MessageFields, KeepOrderOfFirstAdd)
{
	BMessage message('test');
	message.AddInt32("b", 1);
	message.AddString("a", "x");
	message.AddInt32("b", 2);

	char* name;
	type_code type;
	int32 count;
	ASSERT_EQ(message.GetInfo(B_ANY_TYPE, 0, &name, &type, &count), B_OK);
	EXPECT_STREQ(name, "b");
	EXPECT_EQ(type, static_cast<type_code>(B_INT32_TYPE));
	EXPECT_EQ(count, 2);
	ASSERT_EQ(message.GetInfo(B_ANY_TYPE, 1, &name, &type), B_OK);
	EXPECT_STREQ(name, "a");
	EXPECT_EQ(message.GetInfo(B_ANY_TYPE, 2, &name, &type), B_BAD_INDEX);
	EXPECT_EQ(message.GetInfo(B_RECT_TYPE, 0, &name, &type), B_BAD_TYPE);
	EXPECT_EQ(message.GetInfo(B_STRING_TYPE, 1, &name, &type), B_BAD_INDEX);
	EXPECT_EQ(message.CountNames(B_ANY_TYPE), 2);
	EXPECT_EQ(message.CountNames(B_INT32_TYPE), 1);
}


TEST(MessageFields, StatusTellsWhatIsWrong)
{
	BMessage message;
	message.AddInt32("number", 5);

	int32 value = 7;
	EXPECT_EQ(message.FindInt32("other", &value), B_NAME_NOT_FOUND);
	EXPECT_EQ(message.FindInt32("number", 1, &value), B_BAD_INDEX);
	EXPECT_EQ(message.FindInt32("number", -1, &value), B_BAD_INDEX);
	EXPECT_EQ(message.FindInt32(nullptr, &value), B_BAD_VALUE);
	float other;
	EXPECT_EQ(message.FindFloat("number", &other), B_BAD_TYPE);
	EXPECT_EQ(message.AddString("number", "x"), B_BAD_TYPE);
	EXPECT_EQ(message.AddString("text", static_cast<const char*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(message.AddString(nullptr, "x"), B_BAD_VALUE);
	EXPECT_EQ(message.AddData("raw", B_RAW_TYPE, nullptr, 4), B_BAD_VALUE);
	EXPECT_EQ(message.AddData("raw", B_RAW_TYPE, "x", 0), B_BAD_VALUE);
	EXPECT_EQ(message.ReplaceInt32("other", 1), B_NAME_NOT_FOUND);
	EXPECT_EQ(message.ReplaceInt32("number", 1, 1), B_BAD_INDEX);
	EXPECT_EQ(message.ReplaceFloat("number", 1), B_BAD_TYPE);
	EXPECT_EQ(message.CountNames(B_ANY_TYPE), 1);
}


TEST(MessageFields, FailedFindClearsItsOutput)
{
	const BMessage message;
	int32 number = 5;
	message.FindInt32("x", &number);
	EXPECT_EQ(number, 0);
	bool flag = true;
	message.FindBool("x", &flag);
	EXPECT_FALSE(flag);
	double large = 1.5;
	message.FindDouble("x", &large);
	EXPECT_EQ(large, 0.0);
	const char* text = "old";
	message.FindString("x", &text);
	EXPECT_EQ(text, nullptr);
	BString string("old");
	message.FindString("x", &string);
	EXPECT_STREQ(string.String(), "");
	BRect rect(1, 2, 3, 4);
	message.FindRect("x", &rect);
	EXPECT_TRUE(rect == BRect(0, 0, -1, -1));
	BPoint point(1, 2);
	message.FindPoint("x", &point);
	EXPECT_TRUE(point == BPoint(0, 0));
	void* pointer = &number;
	message.FindPointer("x", &pointer);
	EXPECT_EQ(pointer, nullptr);
	entry_ref ref(1, 2, "name");
	message.FindRef("x", &ref);
	EXPECT_TRUE(ref == entry_ref());
	const void* data = &number;
	ssize_t size = 9;
	message.FindData("x", B_RAW_TYPE, &data, &size);
	EXPECT_EQ(data, nullptr);
	EXPECT_EQ(size, 0);
	BMessage inner('old ');
	inner.AddInt32("a", 1);
	message.FindMessage("x", &inner);
	EXPECT_TRUE(inner.IsEmpty());
}


TEST(MessageFields, FailedFindOfMessengerGivesInvalidOne)
{
	BLooper* looper = new BLooper;
	BMessenger messenger(looper);
	ASSERT_TRUE(messenger.IsValid());
	const BMessage message;
	EXPECT_EQ(message.FindMessenger("x", &messenger), B_NAME_NOT_FOUND);
	EXPECT_FALSE(messenger.IsValid());
	looper->Quit();
}


TEST(MessageFields, GetGivesDefaultOnlyIfAbsent)
{
	BMessage message;
	EXPECT_EQ(message.GetInt32("n", -1), -1);
	EXPECT_FALSE(message.GetBool("n"));
	EXPECT_EQ(message.GetString("n"), nullptr);
	EXPECT_STREQ(message.GetString("n", "default"), "default");
	message.AddInt32("n", 3);
	message.AddInt32("n", 4);
	EXPECT_EQ(message.GetInt32("n", -1), 3);
	EXPECT_EQ(message.GetInt32("n", 1, -1), 4);
	EXPECT_EQ(message.GetInt32("n", 2, -1), -1);
}


TEST(MessageFields, FindByValue)
{
	BMessage message;
	message.AddRect("r", BRect(1, 2, 3, 4));
	message.AddString("s", "text");
	message.AddBool("b", true);
	EXPECT_TRUE(message.FindRect("r") == BRect(1, 2, 3, 4));
	EXPECT_TRUE(message.FindRect("x") == BRect(0, 0, -1, -1));
	EXPECT_STREQ(message.FindString("s"), "text");
	EXPECT_EQ(message.FindString("x"), nullptr);
	EXPECT_TRUE(message.FindBool("b"));
	EXPECT_EQ(message.FindInt64("x"), 0);
}


TEST(MessageFields, EveryKindComesBack)
{
	BMessage message;
	EXPECT_EQ(message.AddInt8("i8", -8), B_OK);
	EXPECT_EQ(message.AddUInt8("u8", 200), B_OK);
	EXPECT_EQ(message.AddInt16("i16", -16), B_OK);
	EXPECT_EQ(message.AddUInt16("u16", 60000), B_OK);
	EXPECT_EQ(message.AddUInt32("u32", 0xfffffffe), B_OK);
	EXPECT_EQ(message.AddInt64("i64", -(1L << 40)), B_OK);
	EXPECT_EQ(message.AddUInt64("u64", ~0UL), B_OK);
	EXPECT_EQ(message.AddFloat("f", 1.5f), B_OK);
	EXPECT_EQ(message.AddDouble("d", 2.5), B_OK);
	EXPECT_EQ(message.AddPoint("p", BPoint(1, 2)), B_OK);
	EXPECT_EQ(message.AddSize("sz", BSize(3, 4)), B_OK);
	rgb_color color = {1, 2, 3, 4};
	EXPECT_EQ(message.AddColor("c", color), B_OK);
	int place;
	EXPECT_EQ(message.AddPointer("ptr", &place), B_OK);
	node_ref node(5, 6);
	EXPECT_EQ(message.AddNodeRef("node", &node), B_OK);

	EXPECT_EQ(message.GetInt8("i8", 0), -8);
	EXPECT_EQ(message.GetUInt8("u8", 0), 200);
	EXPECT_EQ(message.GetInt16("i16", 0), -16);
	EXPECT_EQ(message.GetUInt16("u16", 0), 60000);
	EXPECT_EQ(message.GetUInt32("u32", 0), 0xfffffffe);
	EXPECT_EQ(message.GetInt64("i64", 0), -(1L << 40));
	EXPECT_EQ(message.GetUInt64("u64", 0), ~0UL);
	EXPECT_EQ(message.GetFloat("f", 0), 1.5f);
	EXPECT_EQ(message.GetDouble("d", 0), 2.5);
	EXPECT_TRUE(message.GetPoint("p", BPoint()) == BPoint(1, 2));
	EXPECT_EQ(message.GetSize("sz", BSize(0, 0)).width, 3);
	EXPECT_EQ(message.GetColor("c", rgb_color()).blue, 3);
	EXPECT_EQ(message.GetPointer("ptr"), &place);
	node_ref found;
	EXPECT_EQ(message.FindNodeRef("node", &found), B_OK);
	EXPECT_TRUE(found == node);
}


TEST(MessageFields, ColorHasItsOwnType)
{
	BMessage message;
	rgb_color color = {1, 2, 3, 4};
	message.AddData("RGBColor", B_RGB_COLOR_TYPE, &color, sizeof(color));
	EXPECT_FALSE(message.HasColor("RGBColor"));
	const void* data;
	ssize_t size;
	ASSERT_EQ(message.FindData("RGBColor", B_RGB_COLOR_TYPE, &data, &size), B_OK);
	EXPECT_EQ(size, 4);
	EXPECT_EQ(memcmp(data, &color, 4), 0);
}


TEST(MessageFields, FixedSizeIsThatOfTheFirstValue)
{
	BMessage message;
	EXPECT_EQ(message.AddData("d", B_RAW_TYPE, "1234", 4), B_OK);
	EXPECT_EQ(message.AddData("d", B_RAW_TYPE, "12345", 5), B_BAD_VALUE);
	EXPECT_EQ(message.ReplaceData("d", B_RAW_TYPE, "12", 2), B_BAD_VALUE);
	EXPECT_EQ(message.AddData("v", B_RAW_TYPE, "1234", 4, false), B_OK);
	EXPECT_EQ(message.AddData("v", B_RAW_TYPE, "12345", 5, false), B_OK);
	EXPECT_EQ(message.ReplaceData("v", B_RAW_TYPE, 0, "123456789012345", 15), B_OK);

	const void* data;
	ssize_t size;
	ASSERT_EQ(message.FindData("v", B_RAW_TYPE, 0, &data, &size), B_OK);
	EXPECT_EQ(std::string(static_cast<const char*>(data), size), "123456789012345");
	ASSERT_EQ(message.FindData("v", B_ANY_TYPE, 1, &data, &size), B_OK);
	EXPECT_EQ(std::string(static_cast<const char*>(data), size), "12345");
}


TEST(MessageFields, StringCountsItsEnd)
{
	BMessage message;
	message.AddString("s", "");
	message.AddString("s", BString("four"));
	const void* data;
	ssize_t size;
	ASSERT_EQ(message.FindData("s", B_STRING_TYPE, 0, &data, &size), B_OK);
	EXPECT_EQ(size, 1);
	ASSERT_EQ(message.FindData("s", B_STRING_TYPE, 1, &data, &size), B_OK);
	EXPECT_EQ(size, 5);
}


TEST(MessageFields, StringWithoutEndIsNotFound)
{
	BMessage message;
	message.AddData("s", B_STRING_TYPE, "abc", 3, false);
	const char* text;
	EXPECT_EQ(message.FindString("s", &text), B_BAD_VALUE);
	EXPECT_EQ(text, nullptr);
	EXPECT_STREQ(message.GetString("s", "none"), "none");
}


TEST(MessageFields, ValueMayBeAddedFromTheSameField)
{
	BMessage message;
	message.AddString("s", "first text of some length");
	for (int i = 0; i < 100; i++)
		ASSERT_EQ(message.AddString("s", message.GetString("s", i, "")), B_OK);
	EXPECT_STREQ(message.GetString("s", 100, ""), "first text of some length");
}


TEST(MessageFields, RemoveAndReplaceKeepTheOthers)
{
	BMessage message;
	for (const char* text : {"zero", "one", "two", "three"})
		message.AddString("s", text);
	EXPECT_EQ(message.RemoveData("s", 1), B_OK);
	EXPECT_STREQ(message.GetString("s", 0, ""), "zero");
	EXPECT_STREQ(message.GetString("s", 1, ""), "two");
	EXPECT_STREQ(message.GetString("s", 2, ""), "three");
	EXPECT_EQ(message.ReplaceString("s", 1, "a much longer text than before"), B_OK);
	EXPECT_STREQ(message.GetString("s", 1, ""), "a much longer text than before");
	EXPECT_STREQ(message.GetString("s", 2, ""), "three");
	EXPECT_EQ(message.RemoveData("s", 3), B_BAD_INDEX);
	EXPECT_EQ(message.RemoveData("s"), B_OK);
	EXPECT_EQ(message.RemoveData("s"), B_OK);
	EXPECT_EQ(message.RemoveData("s"), B_OK);
	EXPECT_FALSE(message.HasString("s"));
	EXPECT_TRUE(message.IsEmpty());
	EXPECT_EQ(message.RemoveName("s"), B_NAME_NOT_FOUND);
}


TEST(MessageFields, SetReplacesTheFirstOrAdds)
{
	BMessage message;
	EXPECT_EQ(message.SetInt32("n", 1), B_OK);
	message.AddInt32("n", 2);
	EXPECT_EQ(message.SetInt32("n", 3), B_OK);
	EXPECT_EQ(message.GetInt32("n", 0, 0), 3);
	EXPECT_EQ(message.GetInt32("n", 1, 0), 2);
	EXPECT_EQ(message.SetString("s", "a"), B_OK);
	EXPECT_EQ(message.SetString("s", BString("longer")), B_OK);
	EXPECT_STREQ(message.GetString("s"), "longer");
	EXPECT_EQ(message.SetFloat("n", 1), B_BAD_TYPE);
}


TEST(MessageFields, RenameKeepsValues)
{
	BMessage message;
	message.AddInt32("old", 1);
	message.AddInt32("old", 2);
	EXPECT_EQ(message.Rename("old", "new"), B_OK);
	EXPECT_FALSE(message.HasInt32("old"));
	EXPECT_EQ(message.GetInt32("new", 1, 0), 2);
	EXPECT_EQ(message.Rename("old", "x"), B_NAME_NOT_FOUND);
}


TEST(MessageFields, ManyNamesAreFound)
{
	BMessage message;
	for (int32 i = 0; i < 2000; i++)
		ASSERT_EQ(message.AddInt32(std::to_string(i).c_str(), i), B_OK);
	for (int32 i = 0; i < 2000; i++)
		ASSERT_EQ(message.GetInt32(std::to_string(i).c_str(), -1), i);
	EXPECT_EQ(message.RemoveName("17"), B_OK);
	EXPECT_EQ(message.Rename("1999", "last"), B_OK);
	EXPECT_EQ(message.GetInt32("17", -1), -1);
	EXPECT_EQ(message.GetInt32("18", -1), 18);
	EXPECT_EQ(message.GetInt32("last", -1), 1999);
	EXPECT_EQ(BMessage(message).GetInt32("last", -1), 1999);
}


TEST(MessageFields, ManyRefsAreFound)
{
	BMessage message(B_SIMPLE_DATA);
	for (int i = 0; i < 1000; i++) {
		const entry_ref ref(3, 52417, ("track " + std::to_string(i)).c_str());
		ASSERT_EQ(message.AddRef("refs", &ref), B_OK);
	}
	entry_ref ref;
	for (int i = 0; i < 1000; i++) {
		ASSERT_EQ(message.FindRef("refs", i, &ref), B_OK);
		ASSERT_STREQ(ref.name, ("track " + std::to_string(i)).c_str());
	}
	EXPECT_EQ(ref.directory, 52417u);
	EXPECT_EQ(message.FindRef("refs", 1000, &ref), B_BAD_INDEX);
	EXPECT_EQ(message.AddRef("refs", nullptr), B_BAD_VALUE);
}


TEST(MessageFields, RefWithoutName)
{
	BMessage message;
	const entry_ref none;
	ASSERT_EQ(message.AddRef("r", &none), B_OK);
	entry_ref found(1, 2, "x");
	ASSERT_EQ(message.FindRef("r", &found), B_OK);
	EXPECT_EQ(found.name, nullptr);
	EXPECT_TRUE(found == none);
}


TEST(MessageFields, MessagesFlatsAndLists)
{
	BMessage inner('innr');
	inner.AddString("s", "deep");
	BMessage message;
	ASSERT_EQ(message.AddMessage("m", &inner), B_OK);
	BMessage found;
	ASSERT_EQ(message.FindMessage("m", &found), B_OK);
	EXPECT_EQ(found.what, static_cast<uint32>('innr'));
	EXPECT_STREQ(found.GetString("s"), "deep");

	Pair pair;
	pair.fValues[1] = 7;
	ASSERT_EQ(message.AddFlat("flat", &pair), B_OK);
	Pair back;
	ASSERT_EQ(message.FindFlat("flat", &back), B_OK);
	EXPECT_EQ(back.fValues[1], 7);
	EXPECT_TRUE(message.HasFlat("flat", &back));

	BStringList list;
	list.Add("a");
	list.Add("b");
	ASSERT_EQ(message.AddStrings("list", list), B_OK);
	BStringList backList;
	ASSERT_EQ(message.FindStrings("list", &backList), B_OK);
	EXPECT_TRUE(backList == list);
}


TEST(MessageFields, MessageMayBeFoundInItself)
{
	BMessage message('outr');
	BMessage inner('innr');
	message.AddMessage("m", &inner);
	ASSERT_EQ(message.FindMessage("m", &message), B_OK);
	EXPECT_EQ(message.what, static_cast<uint32>('innr'));
}


TEST(MessageFields, AppendAddsAllValues)
{
	BMessage message;
	message.AddInt32("n", 1);
	BMessage other;
	other.AddInt32("n", 2);
	other.AddString("s", "x");
	ASSERT_EQ(message.Append(other), B_OK);
	EXPECT_EQ(message.GetInt32("n", 1, 0), 2);
	EXPECT_STREQ(message.GetString("s"), "x");
	ASSERT_EQ(message.Append(message), B_OK);
	EXPECT_EQ(message.GetInt32("n", 3, 0), 2);
}


TEST(MessageCopy, IsDeepAndKeepsCode)
{
	BMessage message('orig');
	message.AddString("s", "x");
	BMessage copy(message);
	message.ReplaceString("s", "y");
	EXPECT_EQ(copy.what, static_cast<uint32>('orig'));
	EXPECT_STREQ(copy.GetString("s"), "x");
	const BMessage& itself = copy;
	copy = itself;
	EXPECT_STREQ(copy.GetString("s"), "x");
}


TEST(Message, MakeEmptyKeepsOnlyTheCode)
{
	BMessage message('keep');
	message.AddInt32("n", 1);
	message.AddSpecifier("Name");
	EXPECT_EQ(message.MakeEmpty(), B_OK);
	EXPECT_EQ(message.what, static_cast<uint32>('keep'));
	EXPECT_TRUE(message.IsEmpty());
	EXPECT_FALSE(message.HasSpecifiers());
}


TEST(Message, SystemCodesHaveUnderscoreAndUpperCase)
{
	EXPECT_TRUE(BMessage(B_QUIT_REQUESTED).IsSystem());
	EXPECT_FALSE(BMessage(B_SIMPLE_DATA).IsSystem());
	EXPECT_FALSE(BMessage('_abc').IsSystem());
}


TEST(Message, DropPointComesFromItsFields)
{
	BMessage message;
	message.AddPoint("_drop_point_", BPoint(10, 20));
	message.AddPoint("_drop_offset_", BPoint(1, 2));
	BPoint offset;
	EXPECT_TRUE(message.DropPoint(&offset) == BPoint(10, 20));
	EXPECT_TRUE(offset == BPoint(1, 2));
	EXPECT_FALSE(message.WasDropped());
}
