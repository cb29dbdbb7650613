// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Bitmap.h>

#include <string.h>

#include "tests/platform/interface/Canvas.h"

static_assert(B_BITMAP_ACCEPTS_VIEWS == 2 && B_BITMAP_IS_CONTIGUOUS == 0x1c, "flags");
static_assert(B_BITMAP_WILL_OVERLAY == 0x60 && B_BITMAP_NO_SERVER_LINK == 0x100, "flags");


static const uint8*
bytes_of(const BBitmap& bitmap)
{
	return static_cast<const uint8*>(bitmap.Bits());
}


static uint32
pixel_of(const BBitmap& bitmap, int32 x, int32 y)
{
	uint32 pixel;
	memcpy(&pixel, bytes_of(bitmap) + y * bitmap.BytesPerRow() + x * 4, 4);
	return pixel;
}


TEST(Bitmap, RowsAreRoundedUpToFourBytes)
{
	const BBitmap bitmap(BRect(0, 0, 49, 51), B_CMAP8);
	EXPECT_EQ(bitmap.InitCheck(), B_OK);
	EXPECT_EQ(bitmap.BytesPerRow(), 52);
	EXPECT_EQ(bitmap.BitsLength(), 52 * 52);
	EXPECT_EQ(bitmap.ColorSpace(), B_CMAP8);
	EXPECT_EQ(bitmap.Bounds(), BRect(0, 0, 49, 51));
	EXPECT_EQ(BBitmap(BRect(0, 0, 2, 2), B_RGB32).BytesPerRow(), 12);
	EXPECT_EQ(BBitmap(BRect(0, 0, 2, 2), B_GRAY8).BytesPerRow(), 4);
	EXPECT_EQ(BBitmap(BRect(0, 0, 2, 2), 0, B_RGBA32, 32).BytesPerRow(), 32);
}


TEST(Bitmap, RefusesBadBoundsAndSpaces)
{
	EXPECT_EQ(BBitmap(BRect(), B_RGB32).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BBitmap(BRect(0, 0, 9, 9), B_NO_COLOR_SPACE).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BBitmap(BRect(0, 0, 9, 9), static_cast<color_space>(99)).InitCheck(), B_BAD_VALUE);
	const BBitmap bad(BRect(5, 5, 4, 4), B_RGB32);
	EXPECT_FALSE(bad.IsValid());
	EXPECT_EQ(bad.Bits(), nullptr);
	EXPECT_EQ(bad.BitsLength(), 0);
}


TEST(Bitmap, IsClearedToWhiteOnWish)
{
	const BBitmap indexed(BRect(0, 0, 3, 3), B_BITMAP_CLEAR_TO_WHITE, B_CMAP8);
	EXPECT_EQ(bytes_of(indexed)[0], 65);
	const BBitmap direct(BRect(0, 0, 3, 3), B_BITMAP_CLEAR_TO_WHITE, B_RGB32);
	EXPECT_EQ(pixel_of(direct, 3, 3), 0xffffffffu);
}


TEST(Bitmap, CopiesHaveTheirOwnBits)
{
	BBitmap bitmap(BRect(0, 0, 3, 3), B_BITMAP_CLEAR_TO_WHITE, B_RGB32);
	const BBitmap copy(bitmap);
	const BBitmap byPointer(&bitmap);
	memset(bitmap.Bits(), 0, 4);
	EXPECT_EQ(pixel_of(copy, 0, 0), 0xffffffffu);
	EXPECT_EQ(pixel_of(byPointer, 0, 0), 0xffffffffu);
	EXPECT_EQ(copy.Bounds(), bitmap.Bounds());
	BBitmap assigned(BRect(0, 0, 9, 9), B_CMAP8);
	assigned = bitmap;
	EXPECT_EQ(assigned.ColorSpace(), B_RGB32);
	EXPECT_EQ(pixel_of(assigned, 0, 0), 0u);
	EXPECT_EQ(BBitmap(static_cast<const BBitmap*>(nullptr)).IsValid(), false);
}


// Bytes that count up, without 0, so that untouched bytes show.
static std::vector<uint8>
counting_bytes(size_t length)
{
	std::vector<uint8> bytes(length);
	for (size_t index = 0; index < length; index++)
		bytes[index] = static_cast<uint8>(index % 250 + 1);
	return bytes;
}


static void
expect_rows(const BBitmap& bitmap, const std::vector<uint8>& source, int32 rows, int32 width,
	int32 stride)
{
	for (int32 y = 0; y < rows; y++) {
		EXPECT_EQ(memcmp(bytes_of(bitmap) + y * bitmap.BytesPerRow(), &source[y * stride], width),
			0)
			<< "row " << y;
	}
}


TEST(SetBits, LastRowMayLackItsPadding)
{
	BBitmap bitmap(BRect(0, 0, 49, 51), B_CMAP8);
	const std::vector<uint8> source = counting_bytes(2703);
	bitmap.SetBits(source.data(), 2703, 0, B_CMAP8);
	expect_rows(bitmap, source, 52, 50, 52);
	// The padding is left alone.
	EXPECT_EQ(bytes_of(bitmap)[50], 0);
}


TEST(SetBits, FillsFiftyRowsFromBytesOfFifty)
{
	BBitmap bitmap(BRect(0, 0, 49, 49), B_CMAP8);
	const std::vector<uint8> source = counting_bytes(2601);
	bitmap.SetBits(source.data(), 2601, 0, B_CMAP8);
	expect_rows(bitmap, source, 50, 50, 52);
}


TEST(SetBits, NeverWritesBehindTheBitmap)
{
	BBitmap bitmap(BRect(0, 0, 131, 131), B_CMAP8);
	ASSERT_EQ(bitmap.BitsLength(), 17424);
	const std::vector<uint8> source = counting_bytes(17689);
	bitmap.SetBits(source.data(), 17689, 0, B_CMAP8);
	expect_rows(bitmap, source, 132, 132, 132);
}


TEST(SetBits, StopsWhereTheDataEnds)
{
	BBitmap bitmap(BRect(0, 0, 7, 3), B_CMAP8);
	const std::vector<uint8> source = counting_bytes(12);
	bitmap.SetBits(source.data(), 12, 0, B_CMAP8);
	expect_rows(bitmap, source, 1, 8, 8);
	EXPECT_EQ(bytes_of(bitmap)[11], 12);
	EXPECT_EQ(bytes_of(bitmap)[12], 0);
	EXPECT_EQ(bytes_of(bitmap)[16], 0);
}


TEST(SetBits, OffsetCountsTheBitmapsBytes)
{
	BBitmap bitmap(BRect(0, 0, 7, 3), B_CMAP8);
	const std::vector<uint8> source = counting_bytes(64);
	bitmap.SetBits(source.data(), 64, 8, B_CMAP8);
	EXPECT_EQ(bytes_of(bitmap)[7], 0);
	EXPECT_EQ(memcmp(bytes_of(bitmap) + 8, source.data(), 24), 0);
}


TEST(SetBits, ThreeBytesAPixelCountAsRgb)
{
	BBitmap bitmap(BRect(0, 0, 1, 1), B_RGB32);
	const uint8 source[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
	bitmap.SetBits(source, 12, 0, B_RGB32);
	EXPECT_EQ(pixel_of(bitmap, 0, 0), 0xff010203u);
	EXPECT_EQ(pixel_of(bitmap, 1, 0), 0xff040506u);
	EXPECT_EQ(pixel_of(bitmap, 0, 1), 0xff070809u);
	EXPECT_EQ(pixel_of(bitmap, 1, 1), 0xff0a0b0cu);
}


TEST(SetBits, IndexesForAnotherSpaceAreNotPadded)
{
	BBitmap bitmap(BRect(0, 0, 2, 1), B_RGB32);
	const uint8 source[6] = {0, 63, 32, 42, 52, 255};
	bitmap.SetBits(source, 6, 0, B_CMAP8);
	EXPECT_EQ(pixel_of(bitmap, 0, 0), 0xff000000u);
	EXPECT_EQ(pixel_of(bitmap, 1, 0), 0xffffffffu);
	EXPECT_EQ(pixel_of(bitmap, 2, 0), 0xff0000ffu);
	EXPECT_EQ(pixel_of(bitmap, 0, 1), 0xffff0000u);
	EXPECT_EQ(pixel_of(bitmap, 1, 1), 0xff00ff00u);
	EXPECT_EQ(pixel_of(bitmap, 2, 1), 0x00ffffffu);
}


TEST(ImportBits, RefusesBadArguments)
{
	BBitmap bitmap(BRect(0, 0, 7, 3), B_CMAP8);
	const uint8 source[32] = {};
	EXPECT_EQ(bitmap.ImportBits(nullptr, 32, -1, 0, B_CMAP8), B_BAD_VALUE);
	EXPECT_EQ(bitmap.ImportBits(source, 32, -1, 33, B_CMAP8), B_BAD_VALUE);
	EXPECT_EQ(bitmap.ImportBits(source, -1, -1, 0, B_CMAP8), B_BAD_VALUE);
	EXPECT_EQ(bitmap.ImportBits(source, 32, -1, 0, B_NO_COLOR_SPACE), B_BAD_VALUE);
	EXPECT_EQ(bitmap.ImportBits(source, 32, -1, 32, B_CMAP8), B_OK);
	EXPECT_EQ(bitmap.ImportBits(nullptr), B_BAD_VALUE);
}


TEST(ImportBits, ConvertsToGrayAndIndexes)
{
	const uint8 source[8] = {0, 0, 255, 0, 255, 255, 255, 0};
	BBitmap gray(BRect(0, 0, 1, 0), B_GRAY8);
	EXPECT_EQ(gray.ImportBits(source, 8, -1, 0, B_RGB32), B_OK);
	EXPECT_EQ(bytes_of(gray)[0], 308 * 255 / 1024);
	EXPECT_EQ(bytes_of(gray)[1], 255);

	BBitmap indexed(BRect(0, 0, 1, 0), B_CMAP8);
	EXPECT_EQ(indexed.ImportBits(source, 8, -1, 0, B_RGB32), B_OK);
	EXPECT_EQ(bytes_of(indexed)[1], 31);
	// Without alpha the last byte of each pixel becomes transparent.
	EXPECT_EQ(indexed.ImportBits(source, 8, -1, 0, B_RGBA32), B_OK);
	EXPECT_EQ(bytes_of(indexed)[1], 255);
}


TEST(ImportBits, ReadsOtherSpaces)
{
	BBitmap bitmap(BRect(0, 0, 1, 0), B_RGBA32);
	const uint8 mono[1] = {0x80};
	EXPECT_EQ(bitmap.ImportBits(mono, 1, 1, 0, B_GRAY1), B_OK);
	EXPECT_EQ(pixel_of(bitmap, 0, 0), 0xff000000u);
	EXPECT_EQ(pixel_of(bitmap, 1, 0), 0xffffffffu);
	const uint8 words[4] = {0x00, 0xf8, 0xe0, 0x07};
	EXPECT_EQ(bitmap.ImportBits(words, 4, -1, 0, B_RGB16), B_OK);
	EXPECT_EQ(pixel_of(bitmap, 0, 0), 0xffff0000u);
	EXPECT_EQ(pixel_of(bitmap, 1, 0), 0xff00ff00u);
	const uint8 bigEndian[8] = {1, 2, 3, 4, 5, 6, 7, 8};
	EXPECT_EQ(bitmap.ImportBits(bigEndian, 8, -1, 0, B_RGBA32_BIG), B_OK);
	EXPECT_EQ(pixel_of(bitmap, 0, 0), 0x01020304u);
	EXPECT_EQ(bitmap.ImportBits(bigEndian, 6, 6, 0, B_RGB24), B_OK);
	EXPECT_EQ(pixel_of(bitmap, 1, 0), 0xff060504u);
	const uint8 gray[2] = {17, 18};
	EXPECT_EQ(bitmap.ImportBits(gray, 2, -1, 0, B_GRAY8), B_OK);
	EXPECT_EQ(pixel_of(bitmap, 1, 0), 0xff121212u);
}


TEST(ImportBits, CopiesARectangle)
{
	BBitmap from(BRect(0, 0, 3, 3), B_CMAP8);
	uint8* bits = static_cast<uint8*>(from.Bits());
	for (int index = 0; index < 16; index++)
		bits[index] = static_cast<uint8>(index + 1);
	BBitmap to(BRect(0, 0, 3, 3), B_CMAP8);
	EXPECT_EQ(to.ImportBits(&from, BPoint(1, 1), BPoint(2, 2), BSize(1, 1)), B_OK);
	EXPECT_EQ(bytes_of(to)[2 * 4 + 2], 6);
	EXPECT_EQ(bytes_of(to)[2 * 4 + 3], 7);
	EXPECT_EQ(bytes_of(to)[3 * 4 + 3], 11);
	EXPECT_EQ(bytes_of(to)[0], 0);
	EXPECT_EQ(bytes_of(to)[2 * 4 + 1], 0);
	// What would lie outside of either is left out.
	EXPECT_EQ(to.ImportBits(&from, BPoint(2, 0), BPoint(0, 0), BSize(9, 0)), B_OK);
	EXPECT_EQ(bytes_of(to)[0], 3);
	EXPECT_EQ(bytes_of(to)[1], 4);
	EXPECT_EQ(bytes_of(to)[2], 0);
	EXPECT_EQ(to.ImportBits(&from, BPoint(-1, 0), BPoint(0, 0), BSize(1, 1)), B_BAD_VALUE);
}


TEST(ImportBits, TakesAWholeBitmapOfTheSameBounds)
{
	BBitmap from(BRect(0, 0, 3, 3), B_BITMAP_CLEAR_TO_WHITE, B_GRAY8);
	BBitmap to(BRect(0, 0, 3, 3), B_RGB32);
	EXPECT_EQ(to.ImportBits(&from), B_OK);
	EXPECT_EQ(pixel_of(to, 3, 3), 0xffffffffu);
	BBitmap other(BRect(0, 0, 4, 3), B_RGB32);
	EXPECT_EQ(other.ImportBits(&from), B_BAD_VALUE);
}


TEST(Bitmap, TakesViewsOnlyIfItWasMadeForThem)
{
	BBitmap plain(BRect(0, 0, 7, 7), B_RGB32);
	BView view(BRect(0, 0, 7, 7), "view", B_FOLLOW_NONE, 0);
	EXPECT_FALSE(plain.Lock());
	plain.AddChild(&view);
	EXPECT_FALSE(plain.RemoveChild(&view));

	BBitmap bitmap(BRect(0, 0, 7, 7), B_RGB32, true);
	EXPECT_EQ(bitmap.Flags() & B_BITMAP_ACCEPTS_VIEWS, uint32(B_BITMAP_ACCEPTS_VIEWS));
	ASSERT_TRUE(bitmap.Lock());
	bitmap.AddChild(&view);
	view.SetHighColor(1, 2, 3);
	view.FillRect(BRect(2, 2, 2, 2));
	view.Sync();
	EXPECT_EQ(pixel_of(bitmap, 2, 2), 0xff010203u);
	EXPECT_TRUE(bitmap.RemoveChild(&view));
	view.FillRect(BRect(3, 3, 3, 3));
	EXPECT_EQ(pixel_of(bitmap, 3, 3), 0u);
	bitmap.Unlock();
}
