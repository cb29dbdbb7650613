// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <BitmapStream.h>

#include <memory>
#include <string.h>
#include <vector>

#include <Bitmap.h>

#include <gtest/gtest.h>


namespace {

std::unique_ptr<BBitmap>
bitmap_of(uint8 value)
{
	std::unique_ptr<BBitmap> bitmap(new BBitmap(BRect(0, 0, 3, 1), B_RGB32));
	memset(bitmap->Bits(), value, bitmap->BitsLength());
	return bitmap;
}


std::vector<uint8>
bytes_of(BBitmapStream& stream)
{
	std::vector<uint8> bytes(stream.Size());
	EXPECT_EQ(stream.ReadAt(0, bytes.data(), bytes.size()), ssize_t(bytes.size()));
	return bytes;
}

} // namespace


TEST(BBitmapStream, ReadsHeaderAndPixels)
{
	BBitmapStream stream(bitmap_of(7).release());
	ASSERT_EQ(stream.Size(), 32 + 4 * 2 * 4);
	const std::vector<uint8> bytes = bytes_of(stream);
	EXPECT_EQ(memcmp(bytes.data(), "bits", 4), 0);
	EXPECT_EQ(bytes[23], 16); // bytes of a row
	EXPECT_EQ(bytes[27], B_RGB32);
	EXPECT_EQ(bytes[31], 32); // bytes of pixels
	EXPECT_EQ(bytes[32], 7);
	EXPECT_EQ(bytes.back(), 7);
	uint8 byte;
	EXPECT_EQ(stream.ReadAt(stream.Size(), &byte, 1), 0);
	EXPECT_EQ(stream.ReadAt(-1, &byte, 1), B_BAD_VALUE);
}


TEST(BBitmapStream, WritingMakesTheBitmap)
{
	BBitmapStream source(bitmap_of(9).release());
	const std::vector<uint8> bytes = bytes_of(source);
	BBitmapStream stream;
	// In pieces that cut header and pixels anywhere.
	for (size_t done = 0; done < bytes.size(); done += 7) {
		const size_t part = std::min<size_t>(7, bytes.size() - done);
		ASSERT_EQ(stream.Write(bytes.data() + done, part), ssize_t(part));
	}
	EXPECT_EQ(stream.Position(), off_t(bytes.size()));
	BBitmap* bitmap = nullptr;
	ASSERT_EQ(stream.DetachBitmap(&bitmap), B_OK);
	const std::unique_ptr<BBitmap> owned(bitmap);
	EXPECT_TRUE(bitmap->Bounds() == BRect(0, 0, 3, 1));
	EXPECT_EQ(bitmap->ColorSpace(), B_RGB32);
	const uint8* const bits = static_cast<const uint8*>(bitmap->Bits());
	for (int32 i = 0; i < bitmap->BitsLength(); i++)
		EXPECT_EQ(bits[i], 9);
}


TEST(BBitmapStream, DetachesOnce)
{
	BBitmapStream empty;
	BBitmap* bitmap = nullptr;
	EXPECT_EQ(empty.DetachBitmap(nullptr), B_BAD_VALUE);
	EXPECT_EQ(empty.DetachBitmap(&bitmap), B_ERROR);
	BBitmap* const given = bitmap_of(1).release();
	BBitmapStream stream(given);
	ASSERT_EQ(stream.DetachBitmap(&bitmap), B_OK);
	EXPECT_EQ(bitmap, given);
	EXPECT_EQ(stream.DetachBitmap(&bitmap), B_ERROR);
	EXPECT_EQ(stream.Size(), 0);
	delete given;
}


TEST(BBitmapStream, RefusesBadHeaders)
{
	BBitmapStream source(bitmap_of(1).release());
	const std::vector<uint8> good = bytes_of(source);
	const auto write = [&good](size_t index, uint8 value) {
		std::vector<uint8> bytes = good;
		bytes[index] = value;
		BBitmapStream stream;
		const ssize_t written = stream.WriteAt(0, bytes.data(), bytes.size());
		uint8 byte = 0;
		EXPECT_LT(stream.WriteAt(32, &byte, 1), 0);
		return written;
	};
	EXPECT_LT(write(0, 'x'), 0); // magic
	EXPECT_LT(write(12, 0x7f), 0); // a huge right edge
	EXPECT_LT(write(12, 0xff), 0); // a negative one
	EXPECT_LT(write(20, 0x7f), 0); // bytes of a row
	EXPECT_LT(write(27, 0x77), 0); // color space
	EXPECT_LT(write(28, 0xff), 0); // bytes of pixels
}


TEST(BBitmapStream, WritesNoFurtherThanThePixels)
{
	BBitmapStream stream(bitmap_of(1).release());
	const std::vector<uint8> bytes(1000, 5);
	EXPECT_EQ(stream.WriteAt(60, bytes.data(), bytes.size()), 4);
	EXPECT_EQ(stream.WriteAt(stream.Size(), bytes.data(), 1), 0);
	EXPECT_EQ(stream.WriteAt(stream.Size() + 1, bytes.data(), 1), B_BAD_VALUE);
}


TEST(BBitmapStream, SeeksFromAnywhere)
{
	BBitmapStream stream(bitmap_of(1).release());
	EXPECT_EQ(stream.Seek(10, SEEK_SET), 10);
	EXPECT_EQ(stream.Seek(5, SEEK_CUR), 15);
	EXPECT_EQ(stream.Seek(-4, SEEK_END), 60);
	EXPECT_EQ(stream.Position(), 60);
	EXPECT_EQ(stream.Seek(-1, SEEK_SET), B_BAD_VALUE);
	EXPECT_EQ(stream.SetSize(64), B_OK);
	EXPECT_EQ(stream.SetSize(10), B_BAD_VALUE);
	EXPECT_EQ(stream.SetSize(-1), B_BAD_VALUE);
}
