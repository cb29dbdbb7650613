// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string.h>
#include <string>
#include <vector>

#include <DataIO.h>
#include <Entry.h>
#include <Errors.h>
#include <Message.h>


namespace {

BMessage
sample()
{
	BMessage message('samp');
	message.AddInt32("n", 1);
	message.AddInt32("n", 2);
	message.AddString("text", "some text");
	message.AddString("text", "");
	message.AddRect("frame", BRect(1, 2, 3, 4));
	const entry_ref ref(3, 52417, "a.mp3");
	message.AddRef("refs", &ref);
	BMessage inner('innr');
	inner.AddString("s", "deep");
	message.AddMessage("m", &inner);
	message.AddSpecifier("Name");
	return message;
}


std::vector<char>
bytes_of(const BMessage& message)
{
	std::vector<char> bytes(static_cast<size_t>(message.FlattenedSize()));
	EXPECT_EQ(message.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size())), B_OK);
	return bytes;
}


status_t
unflatten(const std::vector<char>& bytes, BMessage& message)
{
	BMemoryIO stream(bytes.data(), bytes.size());
	return message.Unflatten(&stream);
}

} // namespace


TEST(MessageFlattening, RoundTripKeepsEverything)
{
	const BMessage message = sample();
	const std::vector<char> bytes = bytes_of(message);
	BMessage back;
	ASSERT_EQ(back.Unflatten(bytes.data()), B_OK);
	EXPECT_EQ(back.what, static_cast<uint32>('samp'));
	EXPECT_EQ(back.GetInt32("n", 1, 0), 2);
	EXPECT_STREQ(back.GetString("text", 0, ""), "some text");
	EXPECT_TRUE(back.FindRect("frame") == BRect(1, 2, 3, 4));
	entry_ref ref;
	ASSERT_EQ(back.FindRef("refs", &ref), B_OK);
	EXPECT_STREQ(ref.name, "a.mp3");
	EXPECT_TRUE(back.HasSpecifiers());
	EXPECT_EQ(bytes_of(back), bytes);
}


TEST(MessageFlattening, EmptyMessage)
{
	const std::vector<char> bytes = bytes_of(BMessage('none'));
	BMessage back('old ');
	back.AddInt32("n", 1);
	ASSERT_EQ(unflatten(bytes, back), B_OK);
	EXPECT_EQ(back.what, static_cast<uint32>('none'));
	EXPECT_TRUE(back.IsEmpty());
}


TEST(MessageFlattening, StreamTakesOneMessageAfterTheOther)
{
	BMallocIO stream;
	ssize_t size;
	ASSERT_EQ(sample().Flatten(&stream, &size), B_OK);
	EXPECT_EQ(size, sample().FlattenedSize());
	ASSERT_EQ(BMessage('2nd ').Flatten(&stream), B_OK);
	stream.Seek(0, SEEK_SET);
	BMessage first;
	BMessage second;
	ASSERT_EQ(first.Unflatten(&stream), B_OK);
	ASSERT_EQ(second.Unflatten(&stream), B_OK);
	EXPECT_EQ(first.what, static_cast<uint32>('samp'));
	EXPECT_EQ(second.what, static_cast<uint32>('2nd '));
}


TEST(MessageFlattening, SmallBufferOverflows)
{
	const BMessage message = sample();
	std::vector<char> bytes(static_cast<size_t>(message.FlattenedSize()) - 1);
	EXPECT_EQ(message.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size())), B_BUFFER_OVERFLOW);
	EXPECT_EQ(message.Flatten(static_cast<char*>(nullptr), 10), B_BAD_VALUE);
}


TEST(MessageFlattening, EveryTruncationIsRefused)
{
	const std::vector<char> bytes = bytes_of(sample());
	for (size_t length = 0; length < bytes.size(); length++) {
		// On the heap and exactly as long, so that the sanitizer sees a byte too many.
		std::vector<char> cut(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(length));
		cut.shrink_to_fit();
		BMessage back('old ');
		EXPECT_EQ(unflatten(cut, back), B_BAD_VALUE) << length;
		EXPECT_TRUE(back.IsEmpty());
	}
}


TEST(MessageFlattening, CutSizeFieldIsRefused)
{
	// The header claims fewer bytes than the fields need.
	const std::vector<char> bytes = bytes_of(sample());
	for (uint32 size = 0; size < bytes.size(); size++) {
		std::vector<char> cut = bytes;
		memcpy(cut.data() + 4, &size, sizeof(size));
		BMessage back;
		EXPECT_EQ(back.Unflatten(cut.data()), B_BAD_VALUE) << size;
	}
}


TEST(MessageFlattening, DamagedBytesNeverHurt)
{
	const std::vector<char> bytes = bytes_of(sample());
	std::mt19937 random(42);
	int refused = 0;
	for (int i = 0; i < 20000; i++) {
		std::vector<char> damaged = bytes;
		const int damages = 1 + static_cast<int>(random() % 4);
		for (int j = 0; j < damages; j++)
			damaged[random() % damaged.size()] = static_cast<char>(random());
		BMessage back;
		if (unflatten(damaged, back) != B_OK) {
			refused++;
			continue;
		}
		// Whatever was taken can be read.
		for (int32 n = 0; n < 4; n++) {
			back.GetString("text", n, "");
			entry_ref ref;
			back.FindRef("refs", n, &ref);
			BMessage inner;
			back.FindMessage("m", n, &inner);
			back.FindBool("n", n);
		}
		EXPECT_EQ(bytes_of(back).size(), static_cast<size_t>(back.FlattenedSize()));
	}
	EXPECT_GT(refused, 1000);
}


TEST(MessageFlattening, LyingSizeTakesNoMemory)
{
	std::vector<char> bytes = bytes_of(BMessage('none'));
	const uint32 size = 1u << 30;
	memcpy(bytes.data() + 4, &size, sizeof(size));
	BMessage back;
	EXPECT_EQ(unflatten(bytes, back), B_BAD_VALUE);

	const uint32 count = 0xffffffff;
	bytes = bytes_of(sample());
	memcpy(bytes.data() + 20, &count, sizeof(count));
	EXPECT_EQ(unflatten(bytes, back), B_BAD_VALUE);
}


TEST(MessageFlattening, WrongMagicIsRefused)
{
	std::vector<char> bytes = bytes_of(sample());
	bytes[0]++;
	BMessage back;
	EXPECT_EQ(unflatten(bytes, back), B_BAD_VALUE);
	EXPECT_EQ(back.Unflatten(bytes.data()), B_BAD_VALUE);
	EXPECT_EQ(back.Unflatten(static_cast<const char*>(nullptr)), B_BAD_VALUE);
}


TEST(MessageFlattening, NestingHasALimit)
{
	auto nested = std::make_unique<BMessage>('deep');
	nested->AddInt32("n", 1);
	BMessage back;
	for (int depth = 0; depth < 40; depth++) {
		auto outer = std::make_unique<BMessage>('outr');
		ASSERT_EQ(outer->AddMessage("m", nested.get()), B_OK);
		nested = std::move(outer);
	}
	EXPECT_EQ(unflatten(bytes_of(*nested), back), B_OK);
	for (int depth = 0; depth < 1000; depth++) {
		auto outer = std::make_unique<BMessage>('outr');
		ASSERT_EQ(outer->AddMessage("m", nested.get()), B_OK);
		nested = std::move(outer);
	}
	EXPECT_EQ(unflatten(bytes_of(*nested), back), B_BAD_VALUE);
}


TEST(MessageFlattening, BadSpecifierIndexIsPutRight)
{
	std::vector<char> bytes = bytes_of(sample());
	const int32 index = 77;
	memcpy(bytes.data() + 16, &index, sizeof(index));
	BMessage back;
	ASSERT_EQ(unflatten(bytes, back), B_OK);
	int32 current;
	back.GetCurrentSpecifier(&current);
	EXPECT_EQ(current, 0);
}
