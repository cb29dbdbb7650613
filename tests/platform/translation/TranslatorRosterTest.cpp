// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <TranslatorRoster.h>

#include <memory>
#include <string.h>
#include <string>

#include <QImage>

#include <Bitmap.h>
#include <BitmapStream.h>
#include <ByteOrder.h>
#include <DataIO.h>
#include <File.h>
#include <TranslatorFormats.h>

#include <gtest/gtest.h>

#include "platform/screen/DisplayThread.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

static_assert(B_TRANSLATOR_BITMAP == 0x62697473 && B_TRANSLATOR_TEXT == 0x54455854);
static_assert(B_TRANSLATOR_NONE == 0x6e6f6e65 && B_TRANSLATOR_ANY_TYPE == 0);
static_assert(B_JPEG_FORMAT == 0x4a504547 && B_PNG_FORMAT == 0x504e4720);
static_assert(B_GIF_FORMAT == 0x47494620 && sizeof(TranslatorBitmap) == 32);

using test::PngHeader;
using test::SavePicture;
using test::TempFolder;
using test::TurnedPicture;
using test::TwoColors;


namespace {

struct Translated {
	status_t status = B_ERROR;
	std::unique_ptr<BBitmap> bitmap;
};


Translated
translate(BPositionIO* source)
{
	Translated result;
	BBitmapStream stream;
	BTranslatorRoster roster;
	result.status = roster.Translate(source, nullptr, nullptr, &stream, B_TRANSLATOR_BITMAP);
	BBitmap* bitmap = nullptr;
	if (result.status == B_OK && stream.DetachBitmap(&bitmap) == B_OK)
		result.bitmap.reset(bitmap);
	return result;
}


Translated
translate(const std::string& path)
{
	BFile file(path.c_str(), B_READ_ONLY);
	return translate(&file);
}


// Red, green, blue, alpha of a pixel.
uint32
pixel(const BBitmap& bitmap, int32 x, int32 y)
{
	uint32 value;
	const uint8* const bits = static_cast<const uint8*>(bitmap.Bits());
	memcpy(&value, bits + y * bitmap.BytesPerRow() + x * 4, sizeof(value));
	return value;
}


bool
is_near(uint32 pixel, uint32 color)
{
	for (int shift = 0; shift < 24; shift += 8) {
		const int difference = int(pixel >> shift & 0xff) - int(color >> shift & 0xff);
		if (difference < -12 || difference > 12)
			return false;
	}
	return true;
}


constexpr uint32 kRed = 0xff0000;
constexpr uint32 kBlue = 0x0000ff;


class TranslatorRoster : public testing::Test {
protected:
	static void SetUpTestSuite() { ASSERT_TRUE(hosted::DisplayThread::Start()); }

	const TempFolder fFolder;
};

} // namespace


TEST_F(TranslatorRoster, DefaultMayBeDeleted)
{
	BTranslatorRoster* const first = BTranslatorRoster::Default();
	ASSERT_NE(first, nullptr);
	EXPECT_EQ(BTranslatorRoster::Default(), first);
	delete first;
	BTranslatorRoster* const second = BTranslatorRoster::Default();
	ASSERT_NE(second, nullptr);
	BTranslatorRoster* const other = new BTranslatorRoster;
	delete other;
	EXPECT_EQ(BTranslatorRoster::Default(), second);
	delete second;
}


TEST_F(TranslatorRoster, ReadsTheCommonFormats)
{
	for (const char* name : {"a.jpg", "a.png", "a.bmp", "a.tiff", "a.webp", "a.ppm", "a.ico"}) {
		const Translated result = translate(SavePicture(TwoColors(40, 20), fFolder / name));
		ASSERT_EQ(result.status, B_OK) << name;
		ASSERT_NE(result.bitmap, nullptr) << name;
		EXPECT_EQ(result.bitmap->InitCheck(), B_OK) << name;
		EXPECT_TRUE(result.bitmap->Bounds() == BRect(0, 0, 39, 19)) << name;
		EXPECT_TRUE(is_near(pixel(*result.bitmap, 3, 10), kRed)) << name;
		EXPECT_TRUE(is_near(pixel(*result.bitmap, 36, 10), kBlue)) << name;
	}
}


TEST_F(TranslatorRoster, ExtensionDoesNotMatter)
{
	const std::string path = SavePicture(TwoColors(8, 8), fFolder / "a.png");
	ASSERT_EQ(rename(path.c_str(), (fFolder / "Folder.jpg").c_str()), 0);
	EXPECT_EQ(translate(fFolder / "Folder.jpg").status, B_OK);
}


TEST_F(TranslatorRoster, ColorSpacesTellTransparency)
{
	const auto space = [this](const QImage& image, const char* name) {
		const Translated result = translate(SavePicture(image, fFolder / name));
		return result.bitmap != nullptr ? result.bitmap->ColorSpace() : B_NO_COLOR_SPACE;
	};
	const QImage opaque = TwoColors(8, 8);
	QImage clear = opaque.convertToFormat(QImage::Format_ARGB32);
	clear.setPixel(0, 0, qRgba(255, 0, 0, 128));
	QImage listed(8, 8, QImage::Format_Indexed8);
	listed.setColorTable({qRgba(0, 0, 0, 0), qRgb(255, 0, 0)});
	listed.fill(1);
	EXPECT_EQ(space(opaque, "opaque.jpg"), B_RGB32);
	EXPECT_EQ(space(opaque.convertToFormat(QImage::Format_Grayscale8), "gray.jpg"), B_RGB32);
	EXPECT_EQ(space(opaque, "opaque.png"), B_RGB32);
	EXPECT_EQ(space(opaque.convertToFormat(QImage::Format_Grayscale8), "gray.png"), B_RGB32);
	EXPECT_EQ(space(clear, "clear.png"), B_RGBA32);
	EXPECT_EQ(space(listed, "listed.png"), B_RGBA32);
}


TEST_F(TranslatorRoster, KeepsAlpha)
{
	QImage image(4, 4, QImage::Format_ARGB32);
	image.fill(qRgba(10, 200, 30, 128));
	const Translated result = translate(SavePicture(image, fFolder / "a.png"));
	ASSERT_NE(result.bitmap, nullptr);
	EXPECT_EQ(pixel(*result.bitmap, 1, 1), 0x800ac81eu);
}


TEST_F(TranslatorRoster, ReadsGrayPictures)
{
	QImage image(16, 16, QImage::Format_Grayscale8);
	image.fill(100);
	const Translated result = translate(SavePicture(image, fFolder / "a.jpg"));
	ASSERT_NE(result.bitmap, nullptr);
	EXPECT_TRUE(is_near(pixel(*result.bitmap, 8, 8), 0x646464));
}


TEST_F(TranslatorRoster, ReadsTheFirstPictureOfAnAnimation)
{
	// Two frames of 1 by 1 pixel, the first of color 0 (red), the second of color 1 (blue).
	const std::string head("GIF89a\x01\0\x01\0\x80\0\0\xff\0\0\0\0\xff", 19);
	const std::string first("\x2c\0\0\0\0\x01\0\x01\0\0\x02\x02\x44\x01\0", 15);
	const std::string second("\x2c\0\0\0\0\x01\0\x01\0\0\x02\x02\x4c\x01\0", 15);
	const Translated result = translate(fFolder.Write("a.gif", head + first + second + "\x3b"));
	ASSERT_EQ(result.status, B_OK);
	EXPECT_EQ(result.bitmap->ColorSpace(), B_RGBA32);
	EXPECT_TRUE(result.bitmap->Bounds() == BRect(0, 0, 0, 0));
	EXPECT_EQ(pixel(*result.bitmap, 0, 0), 0xffff0000u);
}


TEST_F(TranslatorRoster, TurnsAsTheCameraSays)
{
	const auto turned = [this](int orientation) {
		return translate(fFolder.Write("a.jpg", TurnedPicture(TwoColors(64, 32), orientation)));
	};
	const Translated plain = turned(1);
	ASSERT_NE(plain.bitmap, nullptr);
	EXPECT_TRUE(plain.bitmap->Bounds() == BRect(0, 0, 63, 31));
	const Translated over = turned(3);
	ASSERT_NE(over.bitmap, nullptr);
	EXPECT_TRUE(over.bitmap->Bounds() == BRect(0, 0, 63, 31));
	EXPECT_TRUE(is_near(pixel(*over.bitmap, 5, 16), kBlue));
	const Translated right = turned(6);
	ASSERT_NE(right.bitmap, nullptr);
	EXPECT_TRUE(right.bitmap->Bounds() == BRect(0, 0, 31, 63));
	EXPECT_TRUE(is_near(pixel(*right.bitmap, 16, 5), kRed));
	EXPECT_TRUE(is_near(pixel(*right.bitmap, 16, 58), kBlue));
}


TEST_F(TranslatorRoster, BigPicturesWorkAndHugeOnesDoNot)
{
	const std::string big = SavePicture(TwoColors(8000, 5000), fFolder / "big.jpg");
	const Translated result = translate(big);
	ASSERT_EQ(result.status, B_OK);
	EXPECT_TRUE(is_near(pixel(*result.bitmap, 7999, 4999), kBlue));

	EXPECT_EQ(translate(fFolder.Write("ok.png", PngHeader(10000, 10000))).status, B_OK);
	EXPECT_EQ(translate(fFolder.Write("10k.png", PngHeader(10001, 10001))).status, B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("65k.png", PngHeader(65500, 65500))).status, B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("long.png", PngHeader(1000000, 1))).status, B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("max.png", PngHeader(0x7fffffff, 0x7fffffff))).status,
		B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("none.png", PngHeader(0, 0))).status, B_NO_TRANSLATOR);
}


TEST_F(TranslatorRoster, RefusesWhatIsNoPicture)
{
	EXPECT_EQ(translate(fFolder.Write("a.jpg", "no picture at all")).status, B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("b.jpg", "")).status, B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("c.jpg", std::string(100000, '\0'))).status, B_NO_TRANSLATOR);
	EXPECT_EQ(translate(fFolder.Write("d.jpg", "\xff\xd8\xff")).status, B_NO_TRANSLATOR);
	EXPECT_NE(translate(fFolder.MakeFolder("e.jpg")).status, B_OK);
	EXPECT_NE(translate(fFolder / "missing.jpg").status, B_OK);
}


TEST_F(TranslatorRoster, TornPicturesAreSafe)
{
	for (const char* name : {"a.jpg", "a.png", "a.webp", "a.tiff", "a.bmp"}) {
		const std::string whole = test::ReadFile(SavePicture(TwoColors(100, 100), fFolder / name));
		for (size_t size = 0; size < whole.size(); size += whole.size() / 20 + 1) {
			const Translated result = translate(fFolder.Write(name, whole.substr(0, size)));
			if (result.status != B_OK)
				continue;
			ASSERT_NE(result.bitmap, nullptr);
			EXPECT_TRUE(result.bitmap->Bounds() == BRect(0, 0, 99, 99)) << name << size;
			EXPECT_NE(result.bitmap->Bits(), nullptr) << name << size;
		}
	}
}


TEST_F(TranslatorRoster, DecodesLater)
{
	const std::string path = SavePicture(TwoColors(40, 20), fFolder / "a.png");
	const Translated gone = translate(path);
	const Translated changed = translate(path);
	ASSERT_NE(gone.bitmap, nullptr);
	ASSERT_NE(changed.bitmap, nullptr);
	ASSERT_EQ(unlink(path.c_str()), 0);
	ASSERT_NE(gone.bitmap->Bits(), nullptr);
	EXPECT_EQ(pixel(*gone.bitmap, 0, 0) & 0xffffff, 0u);

	QImage other(80, 80, QImage::Format_RGB32);
	other.fill(qRgb(0, 255, 0));
	SavePicture(other, path);
	EXPECT_EQ(changed.bitmap->Bounds().IntegerWidth(), 39);
	EXPECT_EQ(pixel(*changed.bitmap, 39, 19) & 0xffffff, 0x00ff00u);
}


TEST_F(TranslatorRoster, ThousandsOfPicturesKeepNoFileOpen)
{
	const std::string path = SavePicture(TwoColors(40, 20), fFolder / "a.jpg");
	std::vector<Translated> all;
	for (int i = 0; i < 3000; i++) {
		all.push_back(translate(path));
		ASSERT_EQ(all.back().status, B_OK) << i;
	}
	EXPECT_TRUE(is_near(pixel(*all.back().bitmap, 0, 0), kRed));
}


TEST_F(TranslatorRoster, ReadsFromMemory)
{
	std::string data = test::ReadFile(SavePicture(TwoColors(40, 20), fFolder / "a.png"));
	std::unique_ptr<BBitmap> bitmap;
	{
		BMemoryIO source(data.data(), data.size());
		bitmap = translate(&source).bitmap;
	}
	data.assign(data.size(), '\0');
	ASSERT_NE(bitmap, nullptr);
	EXPECT_EQ(pixel(*bitmap, 39, 0) & 0xffffff, kBlue);
}


TEST_F(TranslatorRoster, IdentifyNamesTheFormat)
{
	const auto identify = [this](const char* name, translator_info* info) {
		BFile file(SavePicture(TwoColors(8, 8), fFolder / name).c_str(), B_READ_ONLY);
		file.Seek(5, SEEK_SET);
		BTranslatorRoster roster;
		return roster.Identify(&file, nullptr, info);
	};
	translator_info info;
	ASSERT_EQ(identify("a.jpg", &info), B_OK);
	EXPECT_EQ(info.type, uint32(B_JPEG_FORMAT));
	EXPECT_EQ(info.group, uint32(B_TRANSLATOR_BITMAP));
	EXPECT_STREQ(info.MIME, "image/jpeg");
	ASSERT_EQ(identify("a.png", &info), B_OK);
	EXPECT_EQ(info.type, uint32(B_PNG_FORMAT));
	ASSERT_EQ(identify("a.bmp", &info), B_OK);
	EXPECT_EQ(info.type, uint32('BMP '));

	BTranslatorRoster roster;
	BFile file(fFolder.Write("a.txt", "words").c_str(), B_READ_ONLY);
	EXPECT_EQ(roster.Identify(&file, nullptr, &info), B_NO_TRANSLATOR);
	EXPECT_EQ(roster.Identify(nullptr, nullptr, &info), B_BAD_VALUE);
	EXPECT_EQ(roster.Identify(&file, nullptr, nullptr), B_BAD_VALUE);
}


TEST_F(TranslatorRoster, WritesTheStreamForm)
{
	BFile file(SavePicture(TwoColors(40, 20), fFolder / "a.png").c_str(), B_READ_ONLY);
	BMallocIO destination;
	BTranslatorRoster roster;
	ASSERT_EQ(roster.Translate(&file, nullptr, nullptr, &destination, B_TRANSLATOR_BITMAP), B_OK);
	ASSERT_EQ(destination.BufferLength(), 32u + 40 * 20 * 4);
	const uint8* const bytes = static_cast<const uint8*>(destination.Buffer());
	const auto number = [bytes](size_t offset) {
		uint32 value;
		memcpy(&value, bytes + offset, sizeof(value));
		return uint32(B_BENDIAN_TO_HOST_INT32(value));
	};
	EXPECT_EQ(number(0), uint32(B_TRANSLATOR_BITMAP));
	EXPECT_EQ(number(12), 0x421c0000u); // 39
	EXPECT_EQ(number(20), 160u);
	EXPECT_EQ(number(24), uint32(B_RGB32));
	EXPECT_EQ(number(28), 3200u);
	EXPECT_EQ(bytes[32], 0); // blue comes first
	EXPECT_EQ(bytes[34], 255);

	// And back again.
	destination.Seek(0, SEEK_SET);
	const Translated back = translate(&destination);
	ASSERT_EQ(back.status, B_OK);
	EXPECT_TRUE(back.bitmap->Bounds() == BRect(0, 0, 39, 19));
	EXPECT_EQ(pixel(*back.bitmap, 39, 19) & 0xffffff, kBlue);
}


TEST_F(TranslatorRoster, RefusesOtherOutputsAndNothing)
{
	BFile file(SavePicture(TwoColors(8, 8), fFolder / "a.png").c_str(), B_READ_ONLY);
	BMallocIO destination;
	BTranslatorRoster roster;
	EXPECT_EQ(roster.Translate(&file, nullptr, nullptr, &destination, B_TRANSLATOR_TEXT),
		B_NO_TRANSLATOR);
	EXPECT_EQ(roster.Translate(nullptr, nullptr, nullptr, &destination, B_TRANSLATOR_BITMAP),
		B_BAD_VALUE);
	EXPECT_EQ(roster.Translate(&file, nullptr, nullptr, nullptr, B_TRANSLATOR_BITMAP), B_BAD_VALUE);
	BFile torn(fFolder.Write("torn.png", PngHeader(20, 20)).c_str(), B_READ_ONLY);
	EXPECT_EQ(roster.Translate(&torn, nullptr, nullptr, &destination, B_TRANSLATOR_BITMAP),
		B_ILLEGAL_DATA);
}
