// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <DataIO.h>

#include <gtest/gtest.h>
#include <stdio.h>
#include <string.h>


TEST(BMallocIO, GrowsWithWhatIsWritten)
{
	BMallocIO io;
	EXPECT_EQ(io.BufferLength(), 0u);
	EXPECT_EQ(io.Write("hello", 5), 5);
	EXPECT_EQ(io.Position(), 5);
	EXPECT_EQ(io.WriteAt(8, "!", 1), 1);
	EXPECT_EQ(io.BufferLength(), 9u);
	EXPECT_EQ(memcmp(io.Buffer(), "hello\0\0\0!", 9), 0);
	EXPECT_EQ(io.Position(), 5);
}


TEST(BMallocIO, ReadsUpToTheEnd)
{
	BMallocIO io;
	io.Write("hello", 5);
	char buffer[10] = {};
	EXPECT_EQ(io.Read(buffer, sizeof(buffer)), 0);
	EXPECT_EQ(io.Seek(-3, SEEK_END), 2);
	EXPECT_EQ(io.Read(buffer, sizeof(buffer)), 3);
	EXPECT_STREQ(buffer, "llo");
	EXPECT_EQ(io.ReadAt(99, buffer, 1), 0);
	EXPECT_EQ(io.ReadAt(-1, buffer, 1), B_BAD_VALUE);
	EXPECT_EQ(io.ReadAt(0, nullptr, 1), B_BAD_VALUE);
}


TEST(BMallocIO, SeekStaysWithinReason)
{
	BMallocIO io;
	EXPECT_EQ(io.Seek(-1, SEEK_SET), B_BAD_VALUE);
	EXPECT_EQ(io.Seek(0, 77), B_BAD_VALUE);
	EXPECT_EQ(io.Seek(10, SEEK_CUR), 10);
	EXPECT_EQ(io.Seek(INT64_MAX, SEEK_CUR), B_BAD_VALUE);
	EXPECT_EQ(io.Position(), 10);
}


TEST(BMallocIO, SetSizeCutsAndFillsWithZeros)
{
	BMallocIO io;
	io.Write("abc", 3);
	EXPECT_EQ(io.SetSize(1), B_OK);
	EXPECT_EQ(io.SetSize(3), B_OK);
	EXPECT_EQ(memcmp(io.Buffer(), "a\0\0", 3), 0);
	EXPECT_EQ(io.SetSize(-1), B_BAD_VALUE);
	off_t size = 0;
	EXPECT_EQ(io.GetSize(&size), B_OK);
	EXPECT_EQ(size, 3);
	EXPECT_EQ(io.GetSize(nullptr), B_BAD_VALUE);
	EXPECT_EQ(io.WriteAt(INT64_MAX, "a", 1), B_BAD_VALUE);
}


TEST(BMemoryIO, NeverExceedsTheMemory)
{
	char memory[4] = {'a', 'b', 'c', 'd'};
	BMemoryIO io(memory, sizeof(memory));
	EXPECT_EQ(io.WriteAt(2, "xyz", 3), 2);
	EXPECT_EQ(memcmp(memory, "abxy", 4), 0);
	EXPECT_EQ(io.WriteAt(4, "z", 1), 0);
	EXPECT_EQ(io.SetSize(5), B_ERROR);
	EXPECT_EQ(io.SetSize(2), B_OK);
	char buffer[4];
	EXPECT_EQ(io.Read(buffer, sizeof(buffer)), 2);
}


TEST(BMemoryIO, ConstantMemoryIsNotWritten)
{
	const char memory[4] = {'a', 'b', 'c', 'd'};
	BMemoryIO io(memory, sizeof(memory));
	EXPECT_EQ(io.Write("x", 1), B_NOT_ALLOWED);
	EXPECT_EQ(io.SetSize(1), B_NOT_ALLOWED);
	EXPECT_EQ(memory[0], 'a');
}


TEST(BDataIO, ExactlyTellsHowFarItCame)
{
	BMallocIO io;
	EXPECT_EQ(io.WriteExactly("abcdef", 6), B_OK);
	io.Seek(2, SEEK_SET);
	char buffer[8];
	size_t count = 99;
	EXPECT_EQ(io.ReadExactly(buffer, 4, &count), B_OK);
	EXPECT_EQ(count, 4u);
	io.Seek(2, SEEK_SET);
	EXPECT_EQ(io.ReadExactly(buffer, 5, &count), B_PARTIAL_READ);
	EXPECT_EQ(count, 4u);
	char memory[2];
	BMemoryIO small(memory, sizeof(memory));
	EXPECT_EQ(small.WriteExactly("abc", 3, &count), B_PARTIAL_WRITE);
	EXPECT_EQ(count, 2u);
	EXPECT_EQ(io.ReadAtExactly(0, buffer, 6), B_OK);
	EXPECT_EQ(io.ReadAtExactly(1, buffer, 6), B_PARTIAL_READ);
	EXPECT_EQ(io.WriteAtExactly(0, "x", 1), B_OK);
}


TEST(BDataIO, PlainOneDoesNothing)
{
	BDataIO io;
	char c;
	EXPECT_EQ(io.Read(&c, 1), B_NOT_SUPPORTED);
	EXPECT_EQ(io.Write("x", 1), B_NOT_SUPPORTED);
	EXPECT_EQ(io.Flush(), B_OK);
}
