// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BString: comparing, searching and replacing.
#include <String.h>

#include <gtest/gtest.h>


TEST(BStringFind, AbsenceIsAnErrorAndNullABadValue)
{
	const BString string("abcabc");
	const char* null = nullptr;
	EXPECT_EQ(string.FindFirst("x"), B_ERROR);
	EXPECT_EQ(string.FindFirst('x'), -1);
	EXPECT_EQ(string.FindLast("x"), B_ERROR);
	EXPECT_EQ(string.FindFirst(null), B_BAD_VALUE);
	EXPECT_EQ(string.FindLast(null), B_BAD_VALUE);
	EXPECT_EQ(string.IFindFirst(null, 1), B_BAD_VALUE);
}


TEST(BStringFind, NegativeOffsetFindsNothing)
{
	const BString string("abcabc");
	EXPECT_EQ(string.FindFirst("a", -1), B_ERROR);
	EXPECT_EQ(string.FindFirst('a', -1), B_ERROR);
	EXPECT_EQ(string.FindLast("a", -1), B_ERROR);
	EXPECT_EQ(string.FindLast('a', -1), B_ERROR);
}


TEST(BStringFind, OffsetBehindTheEndFindsNothing)
{
	const BString string("abcabc");
	EXPECT_EQ(string.FindFirst("a", 100), B_ERROR);
	EXPECT_EQ(string.FindFirst('a', 100), B_ERROR);
	EXPECT_EQ(string.FindFirst("a", INT32_MAX), B_ERROR);
}


TEST(BStringFind, FirstStartsAtTheOffset)
{
	const BString string("abcabc");
	EXPECT_EQ(string.FindFirst("abc"), 0);
	EXPECT_EQ(string.FindFirst("abc", 1), 3);
	EXPECT_EQ(string.FindFirst(BString("c")), 2);
	EXPECT_EQ(string.FindFirst('c', 3), 5);
	EXPECT_EQ(string.FindFirst("abcabcabc"), B_ERROR);
}


TEST(BStringFind, LastMatchEndsBeforeTheOffset)
{
	const BString string("abcabcabc");
	EXPECT_EQ(string.FindLast("abc"), 6);
	EXPECT_EQ(string.FindLast("abc", 7), 3);
	EXPECT_EQ(string.FindLast("abc", 6), 3);
	EXPECT_EQ(string.FindLast("abc", 5), 0);
	EXPECT_EQ(string.FindLast("abc", 2), B_ERROR);
	EXPECT_EQ(string.FindLast("abc", 1000), 6);
}


TEST(BStringFind, LastCharacterMayLieAtTheOffset)
{
	const BString string("abcabc");
	EXPECT_EQ(string.FindLast('a'), 3);
	EXPECT_EQ(string.FindLast('a', 3), 3);
	EXPECT_EQ(string.FindLast('a', 2), 0);
}


TEST(BStringFind, EmptyTextIsEverywhere)
{
	const BString string("abc");
	EXPECT_EQ(string.FindFirst(""), 0);
	EXPECT_EQ(string.FindLast(""), 3);
	EXPECT_EQ(BString().FindFirst(""), 0);
}


TEST(BStringFind, CaseCanBeIgnored)
{
	const BString string("aBCabC");
	EXPECT_EQ(string.IFindFirst("bc"), 1);
	EXPECT_EQ(string.IFindFirst("BC", 2), 4);
	EXPECT_EQ(string.IFindLast("bc"), 4);
	EXPECT_EQ(string.IFindLast("bc", 5), 1);
}


TEST(BStringCompare, BothSidesAndNull)
{
	const BString a("a");
	const char* null = nullptr;
	EXPECT_TRUE(a == "a" && "a" == a && a == BString("a"));
	EXPECT_TRUE(a != "b" && "b" != a && a < "b" && "b" > a && a <= "a" && "a" >= a);
	EXPECT_TRUE(BString() == null);
	EXPECT_TRUE(a > null);
	EXPECT_TRUE(null < a);
	EXPECT_EQ(a.Compare("abc", 1), 0);
	EXPECT_LT(a.Compare("abc", 2), 0);
	EXPECT_EQ(a.ICompare("A"), 0);
	EXPECT_EQ(a.ICompare("ABC", 1), 0);
}


TEST(BStringCompare, BytesCountAsUnsigned)
{
	EXPECT_TRUE(BString("z") < BString("\xc3\xa4"));
}


TEST(BStringCompare, BeginningsAndEnds)
{
	const BString string("file:///x.MP3");
	EXPECT_TRUE(string.StartsWith("file://"));
	EXPECT_FALSE(string.StartsWith("FILE"));
	EXPECT_TRUE(string.IStartsWith("FILE"));
	EXPECT_TRUE(string.EndsWith(".MP3"));
	EXPECT_FALSE(string.EndsWith(".mp3"));
	EXPECT_TRUE(string.IEndsWith(".mp3"));
	EXPECT_FALSE(BString("x").StartsWith("xx"));
	EXPECT_FALSE(BString("x").EndsWith("xx"));
	EXPECT_TRUE(BString("x").EndsWith(""));
	EXPECT_FALSE(string.StartsWith(static_cast<const char*>(nullptr)));
}


TEST(BStringReplace, InsertedTextIsNotSearchedAgain)
{
	EXPECT_STREQ(BString("aaa").ReplaceAll("a", "aa").String(), "aaaaaa");
	EXPECT_STREQ(BString("aaaa").ReplaceAll("aa", "a").String(), "aa");
}


TEST(BStringReplace, FirstLastAndLimited)
{
	EXPECT_STREQ(BString("abab").ReplaceFirst("ab", "x").String(), "xab");
	EXPECT_STREQ(BString("abab").ReplaceLast("ab", "x").String(), "abx");
	EXPECT_STREQ(BString("aaaa").Replace("a", "b", 2, 1).String(), "abba");
	EXPECT_STREQ(BString("aaaa").ReplaceAll("a", "b", 2).String(), "aabb");
	EXPECT_STREQ(BString("aaaa").Replace("a", "b", 0).String(), "aaaa");
	EXPECT_STREQ(BString("aaaa").Replace('a', 'b', 2, 1).String(), "abba");
	EXPECT_STREQ(BString("abab").ReplaceFirst('a', 'x').ReplaceLast('b', 'y').String(), "xbay");
	EXPECT_STREQ(BString("abab").ReplaceAll('a', 'x', 1).String(), "abxb");
}


TEST(BStringReplace, NothingToFindChangesNothing)
{
	const char* null = nullptr;
	EXPECT_STREQ(BString("abc").ReplaceAll("", "x").String(), "abc");
	EXPECT_STREQ(BString("abc").ReplaceAll(null, "x").String(), "abc");
	EXPECT_STREQ(BString("abc").ReplaceLast(null, "x").String(), "abc");
	EXPECT_STREQ(BString("abc").ReplaceAll("b", null).String(), "ac");
	EXPECT_STREQ(BString("abc").ReplaceAll("b", "x", -5).String(), "axc");
	EXPECT_STREQ(BString("abc").ReplaceAll("b", "x", 50).String(), "abc");
}


TEST(BStringReplace, CaseCanBeIgnored)
{
	EXPECT_STREQ(BString("aAbB").IReplaceAll("A", "x").String(), "xxbB");
	EXPECT_STREQ(BString("aAbB").IReplaceAll('a', 'x').String(), "xxbB");
	EXPECT_STREQ(BString("aAbB").IReplaceFirst("A", "x").String(), "xAbB");
	EXPECT_STREQ(BString("aAbB").IReplaceLast('b', 'x').String(), "aAbx");
	EXPECT_STREQ(BString("aAbB").IReplaceLast("b", "xy").String(), "aAbxy");
}


TEST(BStringReplace, SetOfBytes)
{
	EXPECT_STREQ(BString("a/b\\c").ReplaceSet("/\\", '_').String(), "a_b_c");
	EXPECT_STREQ(BString("a/b").ReplaceSet("/", "--").String(), "a--b");
	EXPECT_STREQ(BString("a/b").ReplaceSet(nullptr, "--").String(), "a/b");
}
