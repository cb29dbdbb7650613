// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BString: contents, insertion, removal, bytes and characters, printing.
#include <String.h>
#include <StringList.h>

#include <gtest/gtest.h>
#include <string.h>
#include <string>
#include <type_traits>


namespace {

static_assert(std::is_convertible_v<BString, const char*>);
static_assert(!std::is_polymorphic_v<BString>);

} // namespace


TEST(BString, NullCountsAsEmpty)
{
	const char* null = nullptr;
	const BString string(null);
	EXPECT_STREQ(string.String(), "");
	EXPECT_EQ(string.Length(), 0);
	EXPECT_TRUE(string.IsEmpty());
	BString other("text");
	other = null;
	EXPECT_STREQ(other.String(), "");
	other << null;
	other += null;
	other.Append(null).Prepend(null).Insert(null, 0).Append(null, 5);
	EXPECT_STREQ(other.String(), "");
}


TEST(BString, ConstructorTakesAtMostTheLength)
{
	EXPECT_STREQ(BString("abcdef", 3).String(), "abc");
	EXPECT_STREQ(BString("abc", 100).String(), "abc");
	EXPECT_STREQ(BString("abc", -1).String(), "");
}


TEST(BString, MovedFromIsEmpty)
{
	BString from("a text that is too long to lie in the object itself");
	const BString to(std::move(from));
	EXPECT_STREQ(from.String(), "");
	EXPECT_EQ(to.Length(), 51);
}


TEST(BString, SetToTakesLengthsAsEachFormHasThem)
{
	BString string;
	EXPECT_STREQ(string.SetTo("abcdef", 2).String(), "ab");
	EXPECT_STREQ(string.SetTo(BString("abcdef"), 2).String(), "ab");
	EXPECT_STREQ(string.SetTo(BString("abcdef"), -1).String(), "abcdef");
	EXPECT_STREQ(string.SetTo('x', 3).String(), "xxx");
	EXPECT_STREQ(string.SetTo('x', -3).String(), "");
	EXPECT_STREQ((string = 'y').String(), "y");
}


TEST(BString, SetToFormatMayUseTheTextItself)
{
	BString string("inner");
	string.SetToFormat("<%s %02d>", string.String(), 7);
	EXPECT_STREQ(string.String(), "<inner 07>");
}


TEST(BString, AdoptEmptiesTheOther)
{
	BString from("text");
	BString to("old");
	to.Adopt(from);
	EXPECT_STREQ(to.String(), "text");
	EXPECT_STREQ(from.String(), "");
}


TEST(BString, AppendingItselfDoubles)
{
	BString string("ab");
	string += string;
	string.Append(string.String());
	EXPECT_STREQ(string.String(), "abababab");
	string.Insert(string, 1);
	EXPECT_EQ(string.Length(), 16);
}


TEST(BString, InsertBehindTheEndIsIgnored)
{
	BString string("abc");
	EXPECT_STREQ(string.Insert("x", 4).String(), "abc");
	EXPECT_STREQ(string.Insert("x", 3).String(), "abcx");
}


TEST(BString, InsertBeforeTheBeginningDropsBytes)
{
	EXPECT_STREQ(BString("abc").Insert("1234", -2).String(), "34abc");
	EXPECT_STREQ(BString("abc").Insert("1234", 3, -2).String(), "3abc");
	EXPECT_STREQ(BString("abc").Insert("12", -5).String(), "abc");
	EXPECT_STREQ(BString("abc").Insert('x', 3, -1).String(), "xxabc");
}


TEST(BString, PrependComesFirst)
{
	EXPECT_STREQ(BString("c").Prepend("ab").Prepend('-', 2).Prepend("xyz", 1).String(), "x--abc");
}


TEST(BString, CopyIntoWritesNoTerminator)
{
	char buffer[] = "0123456789";
	BString("abcdef").CopyInto(buffer, 2, 3);
	EXPECT_STREQ(buffer, "cde3456789");
	BString("abc").CopyInto(buffer, 1, 100);
	EXPECT_STREQ(buffer, "bce3456789");
}


TEST(BString, CopyIntoStringTakesTheRestForNegativeLength)
{
	BString string("abcdef");
	BString into("old");
	EXPECT_STREQ(string.CopyInto(into, 2, 2).String(), "cd");
	EXPECT_STREQ(string.CopyInto(into, 2, -1).String(), "cdef");
	EXPECT_STREQ(string.CopyInto(string, 2, 2).String(), "abcdef");
}


TEST(BString, MoveIntoRemoves)
{
	BString string("abcdef");
	BString into;
	string.MoveInto(into, 1, 3);
	EXPECT_STREQ(into.String(), "bcd");
	EXPECT_STREQ(string.String(), "aef");
}


TEST(BString, TruncateClampsBothWays)
{
	EXPECT_STREQ(BString("abc").Truncate(2).String(), "ab");
	EXPECT_STREQ(BString("abc").Truncate(5).String(), "abc");
	EXPECT_STREQ(BString("abc").Truncate(-1).String(), "");
}


TEST(BString, RemoveClampsAtTheEnd)
{
	EXPECT_STREQ(BString("abcdef").Remove(4, 100).String(), "abcd");
	EXPECT_STREQ(BString("abcdef").Remove(6, 1).String(), "abcdef");
	EXPECT_STREQ(BString("abcdef").Remove(1, 2).String(), "adef");
	EXPECT_STREQ(BString("abcdef").Remove(-1, 2).String(), "abcdef");
}


TEST(BString, RemoveByText)
{
	EXPECT_STREQ(BString("abcabc").RemoveFirst("bc").String(), "aabc");
	EXPECT_STREQ(BString("abcabc").RemoveLast("bc").String(), "abca");
	EXPECT_STREQ(BString("abcabc").RemoveAll("b").String(), "acac");
	EXPECT_STREQ(BString("abcabc").RemoveAll("").String(), "abcabc");
	EXPECT_STREQ(BString("abcabc").RemoveFirst("x").String(), "abcabc");
	EXPECT_STREQ(BString("a\r\nb\n").RemoveSet("\r\n").String(), "ab");
	BString self("ab");
	EXPECT_STREQ(self.RemoveAll(self).String(), "");
}


TEST(BString, BytesOutsideAreZero)
{
	BString string("abc");
	EXPECT_EQ(string.ByteAt(1), 'b');
	EXPECT_EQ(string.ByteAt(3), '\0');
	EXPECT_EQ(string.ByteAt(-1), '\0');
	EXPECT_EQ(string[2], 'c');
	EXPECT_STREQ(string.SetByteAt(1, 'x').SetByteAt(9, 'y').String(), "axc");
}


TEST(BString, CharactersAreCountedByTheirFirstBytes)
{
	const BString string("a\xc3\xa4\xe2\x82\xac"
						 "b");
	EXPECT_EQ(string.Length(), 7);
	EXPECT_EQ(string.CountChars(), 4);
	// Bytes that begin nothing do not count.
	EXPECT_EQ(BString("\x80\xbf").CountChars(), 0);
	EXPECT_EQ(BString("\xff\xc0").CountChars(), 2);
}


TEST(BString, CharAtFindsWholeCharacters)
{
	const BString string("a\xc3\xa4\xe2\x82\xac");
	int32 bytes = -1;
	EXPECT_EQ(string.CharAt(2, &bytes), string.String() + 3);
	EXPECT_EQ(bytes, 3);
	EXPECT_EQ(string.CharAt(0), string.String());
	EXPECT_STREQ(string.CharAt(3, &bytes), "");
	EXPECT_EQ(bytes, 0);
	char buffer[8] = {};
	EXPECT_TRUE(string.CharAt(1, buffer, &bytes));
	EXPECT_STREQ(buffer, "\xc3\xa4");
	EXPECT_FALSE(string.CharAt(9, buffer, &bytes));
}


TEST(BString, LockedBufferEndsAtTheZero)
{
	BString string;
	char* buffer = string.LockBuffer(20);
	strcpy(buffer, "hello");
	EXPECT_EQ(string.UnlockBuffer().Length(), 5);
	buffer = string.LockBuffer(3);
	EXPECT_STREQ(buffer, "hello");
	EXPECT_STREQ(string.UnlockBuffer(2).String(), "he");
	EXPECT_STREQ(string.UnlockBuffer(0).String(), "he");
}


TEST(BString, CaseAndBlanks)
{
	EXPECT_STREQ(BString("AbC\xc3\x84").ToLower().String(), "abc\xc3\x84");
	EXPECT_STREQ(BString("aBc").ToUpper().String(), "ABC");
	EXPECT_STREQ(BString("hELLO you").Capitalize().String(), "Hello you");
	EXPECT_STREQ(BString(" \t a b \n").Trim().String(), "a b");
	EXPECT_STREQ(BString(" \t ").Trim().String(), "");
}


TEST(BString, StreamsNumbersAsTheirText)
{
	BString string;
	string << 1 << ' ' << -2L << ' ' << 3u << ' ' << 4UL << ' ' << -5LL << ' ' << 6ULL;
	EXPECT_STREQ(string.String(), "1 -2 3 4 -5 6");
	string = "";
	string << 1.005f << ' ' << 2.0 << ' ' << true << false << BString("!");
	EXPECT_STREQ(string.String(), "1.00 2.00 truefalse!");
}


TEST(BString, SplitKeepsOrDropsEmptyPieces)
{
	BStringList list;
	EXPECT_TRUE(BString("a,,b,").Split(",", false, list));
	EXPECT_EQ(list.CountStrings(), 4);
	EXPECT_EQ(list.StringAt(1), "");
	list.MakeEmpty();
	EXPECT_TRUE(BString("a,,b,").Split(",", true, list));
	EXPECT_EQ(list.CountStrings(), 2);
	EXPECT_EQ(list.StringAt(1), "b");
	EXPECT_FALSE(BString("a").Split("", true, list));
}
