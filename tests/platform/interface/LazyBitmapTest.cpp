// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/interface/PixelSource.h"

#include <memory>
#include <string.h>

#include "platform/interface/PictureCache.h"
#include "tests/platform/interface/Canvas.h"


namespace {

// What a source was asked for.
struct Requests {
	std::vector<QSize> sizes;
	bool isBroken = false;
	bool isGone = false;
};

// A picture whose left half is red and whose right half is blue.
class HalvesSource : public hosted::PixelSource {
public:
	HalvesSource(Requests& requests, QSize size)
		:
		fRequests(requests),
		fSize(size)
	{
	}

	~HalvesSource() override { fRequests.isGone = true; }

	QImage Decode(const QSize& size) override
	{
		fRequests.sizes.push_back(size);
		if (fRequests.isBroken)
			return QImage();
		const QSize wanted = size.isEmpty() ? fSize : size;
		QImage image(wanted, QImage::Format_RGB32);
		for (int y = 0; y < wanted.height(); y++) {
			for (int x = 0; x < wanted.width(); x++)
				image.setPixel(x, y, x < wanted.width() / 2 ? 0xffff0000 : 0xff0000ff);
		}
		return image;
	}

private:
	Requests& fRequests;
	QSize fSize;
};


class LazyBitmap : public testing::Test {
protected:
	std::unique_ptr<BBitmap> Make(int32 width, int32 height)
	{
		return std::unique_ptr<BBitmap>(hosted::NewLazyBitmap(BRect(0, 0, width - 1, height - 1),
			B_RGB32, std::make_unique<HalvesSource>(fRequests, QSize(width, height))));
	}

	Requests fRequests;
};

} // namespace


TEST_F(LazyBitmap, KnowsItsSizeWithoutDecoding)
{
	const std::unique_ptr<BBitmap> bitmap = Make(1000, 500);
	EXPECT_EQ(bitmap->InitCheck(), B_OK);
	EXPECT_EQ(bitmap->Bounds(), BRect(0, 0, 999, 499));
	EXPECT_EQ(bitmap->BytesPerRow(), 4000);
	EXPECT_EQ(bitmap->BitsLength(), 2000000);
	EXPECT_TRUE(fRequests.sizes.empty());
}


TEST_F(LazyBitmap, DecodesAtTheSizeThatIsDrawnAndOnce)
{
	test::Canvas canvas(40, 40);
	const std::unique_ptr<BBitmap> bitmap = Make(1000, 500);
	canvas.view->DrawBitmap(bitmap.get(), BRect(4, 4, 23, 13));
	canvas.view->DrawBitmap(bitmap.get(), BRect(4, 20, 23, 29));
	ASSERT_EQ(fRequests.sizes.size(), 1u);
	EXPECT_EQ(fRequests.sizes[0], QSize(20, 10));
	EXPECT_EQ(canvas.At(4, 4), 0xff0000u);
	EXPECT_EQ(canvas.At(13, 13), 0xff0000u);
	EXPECT_EQ(canvas.At(14, 13), 0x0000ffu);
	EXPECT_EQ(canvas.At(23, 29), 0x0000ffu);
	EXPECT_EQ(canvas.At(24, 13), 0xffffffu);
	EXPECT_EQ(canvas.At(3, 4), 0xffffffu);
}


TEST_F(LazyBitmap, IsNotDecodedWhereNothingOfItShows)
{
	test::Canvas canvas(40, 40);
	const std::unique_ptr<BBitmap> bitmap = Make(1000, 500);
	canvas.view->DrawBitmap(bitmap.get(), BRect(50, 4, 69, 13));
	EXPECT_TRUE(fRequests.sizes.empty());
}


TEST_F(LazyBitmap, StaysSharpWhenDrawnLargerLater)
{
	test::Canvas canvas(100, 100);
	const std::unique_ptr<BBitmap> bitmap = Make(1000, 1000);
	canvas.view->DrawBitmap(bitmap.get(), BRect(0, 0, 9, 9));
	canvas.view->DrawBitmap(bitmap.get(), BRect(0, 0, 99, 99));
	ASSERT_EQ(fRequests.sizes.size(), 2u);
	EXPECT_EQ(fRequests.sizes[1], QSize(100, 100));
	EXPECT_EQ(canvas.At(49, 50), 0xff0000u);
	EXPECT_EQ(canvas.At(50, 50), 0x0000ffu);
}


TEST_F(LazyBitmap, IsEnlargedFromTheWholePicture)
{
	test::Canvas canvas(40, 40);
	const std::unique_ptr<BBitmap> bitmap = Make(10, 10);
	canvas.view->DrawBitmap(bitmap.get(), BRect(0, 0, 39, 39));
	ASSERT_EQ(fRequests.sizes.size(), 1u);
	EXPECT_TRUE(fRequests.sizes[0].isEmpty());
	EXPECT_EQ(canvas.At(0, 0), 0xff0000u);
	EXPECT_EQ(canvas.At(39, 39), 0x0000ffu);
}


TEST_F(LazyBitmap, DrawsAPartOfIt)
{
	test::Canvas canvas(40, 40);
	const std::unique_ptr<BBitmap> bitmap = Make(1000, 1000);
	canvas.view->DrawBitmap(bitmap.get(), BRect(500, 0, 999, 499), BRect(0, 0, 19, 19));
	ASSERT_EQ(fRequests.sizes.size(), 1u);
	EXPECT_EQ(fRequests.sizes[0], QSize(40, 40));
	EXPECT_EQ(canvas.At(0, 0), 0x0000ffu);
	EXPECT_EQ(canvas.At(19, 19), 0x0000ffu);
	EXPECT_EQ(canvas.At(20, 19), 0xffffffu);
}


TEST_F(LazyBitmap, GivesBitsAndThenForgetsTheSource)
{
	const std::unique_ptr<BBitmap> bitmap = Make(10, 4);
	const uint32* pixels = static_cast<const uint32*>(bitmap->Bits());
	ASSERT_NE(pixels, nullptr);
	EXPECT_EQ(pixels[4], 0xffff0000u);
	EXPECT_EQ(pixels[5], 0xff0000ffu);
	EXPECT_EQ(pixels[39], 0xff0000ffu);
	EXPECT_TRUE(fRequests.isGone);
	EXPECT_EQ(bitmap->Bits(), pixels);
	EXPECT_EQ(fRequests.sizes.size(), 1u);
}


TEST_F(LazyBitmap, CopiesAreWhole)
{
	const std::unique_ptr<BBitmap> bitmap = Make(10, 4);
	const BBitmap copy(*bitmap);
	EXPECT_EQ(static_cast<const uint32*>(copy.Bits())[4], 0xffff0000u);
}


TEST_F(LazyBitmap, BrokenOneDrawsNothingAndIsAskedOnce)
{
	test::Canvas canvas;
	fRequests.isBroken = true;
	const std::unique_ptr<BBitmap> bitmap = Make(100, 100);
	canvas.view->DrawBitmap(bitmap.get(), BRect(0, 0, 7, 7));
	canvas.view->DrawBitmap(bitmap.get(), BRect(0, 0, 7, 7));
	EXPECT_EQ(canvas.At(3, 3), 0xffffffu);
	EXPECT_EQ(fRequests.sizes.size(), 1u);
	EXPECT_NE(bitmap->Bits(), nullptr);
}


TEST_F(LazyBitmap, KeepsNoMoreThanTheLimit)
{
	const size_t before = hosted::SetPictureCacheLimit(0);
	hosted::SetPictureCacheLimit(3 * 20 * 20 * 4);
	test::Canvas canvas(40, 40);
	std::vector<std::unique_ptr<BBitmap>> bitmaps;
	for (int index = 0; index < 4; index++) {
		bitmaps.push_back(Make(100, 100));
		canvas.view->DrawBitmap(bitmaps.back().get(), BRect(0, 0, 19, 19));
		EXPECT_LE(hosted::CachedPictureBytes(), 3u * 20 * 20 * 4);
		// Used again and again, so it stays.
		canvas.view->DrawBitmap(bitmaps[0].get(), BRect(0, 0, 19, 19));
	}
	EXPECT_EQ(fRequests.sizes.size(), 4u);
	EXPECT_EQ(hosted::CachedPictureBytes(), 3u * 20 * 20 * 4);
	canvas.view->DrawBitmap(bitmaps[1].get(), BRect(0, 0, 19, 19));
	EXPECT_EQ(fRequests.sizes.size(), 5u);
	bitmaps.clear();
	EXPECT_EQ(hosted::CachedPictureBytes(), 0u);
	hosted::SetPictureCacheLimit(before);
}
