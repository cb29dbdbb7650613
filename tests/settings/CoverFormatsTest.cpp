// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Covers in every format that the image library reads, and pictures that mean harm.
#include "settings/Helpers.h"

#include <chrono>
#include <memory>
#include <set>
#include <string>

#include <stdint.h>
#include <string.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QImage>
#include <QImageReader>

#include <Bitmap.h>
#include <gtest/gtest.h>

#include "tests/support/CpuTime.h"
#include "tests/support/Media.h"
#include "tests/support/Output.h"
#include "tests/support/Pictures.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/TempFolder.h"


namespace {

class CoverFormats : public testing::Test {
protected:
	static void SetUpTestSuite() { test::TheApplication(); }

	std::unique_ptr<BBitmap> Load(const std::string& path)
	{
		std::unique_ptr<BBitmap> bitmap;
		fOutput = test::OutputOf([&] { bitmap.reset(GetImage(path.c_str())); });
		return bitmap;
	}

	const test::TempFolder fFolder;
	std::string fOutput;
};


uint32
pixel(const BBitmap& bitmap, int32 x, int32 y)
{
	uint32 value;
	const uint8* const bits = static_cast<const uint8*>(bitmap.Bits());
	memcpy(&value, bits + y * bitmap.BytesPerRow() + x * 4, sizeof(value));
	return value & 0xffffff;
}


// The most memory that the process has had, in kilobytes.
long
peak_memory()
{
	struct rusage usage;
	getrusage(RUSAGE_SELF, &usage);
	return usage.ru_maxrss;
}


// Some bytes of each kind of number, and what a picture of that size would begin with.
std::string
little(uint32_t value, int bytes)
{
	std::string text;
	for (int index = 0; index < bytes; index++)
		text += static_cast<char>(value >> (8 * index));
	return text;
}


std::string
big(uint32_t value, int bytes)
{
	std::string text;
	for (int index = bytes - 1; index >= 0; index--)
		text += static_cast<char>(value >> (8 * index));
	return text;
}

} // namespace


// White on the left, black on the right: each format can tell that.
TEST_F(CoverFormats, EachFormatOfTheImageLibraryLoads)
{
	const std::string source = fFolder / "source.png";
	test::OutputOfCommand("convert -size 16x32 xc:white xc:black +append +repage '" + source + "'");
	const std::set<std::string> byLibrary = {"cur", "icns", "wbmp"};
	int count = 0;
	for (const QByteArray& format : QImageReader::supportedImageFormats()) {
		const std::string name = format.toStdString();
		// Vector graphics have no pixels and are no covers.
		if (name == "svg" || name == "svgz")
			continue;
		const std::string path = fFolder / ("Folder." + name);
		if (byLibrary.count(name) != 0) {
			test::SavePicture(QImage(QString::fromStdString(source)), path);
		} else {
			test::OutputOfCommand("convert '" + source + "' -type TrueColor '" + path + "'");
			// Only the newer kind of these is read, which ends with its name.
			if (name == "tga") {
				fFolder.Write("Folder.tga",
					test::ReadFile(path) + std::string(8, '\0')
						+ std::string("TRUEVISION-XFILE.\0", 18));
			}
		}

		const std::unique_ptr<BBitmap> bitmap = Load(path);
		ASSERT_NE(bitmap, nullptr) << name;
		EXPECT_EQ(bitmap->Bounds(), BRect(0, 0, 31, 31)) << name;
		ASSERT_NE(bitmap->Bits(), nullptr) << name;
		EXPECT_EQ(pixel(*bitmap, 3, 16), 0xffffffu) << name;
		EXPECT_EQ(pixel(*bitmap, 28, 16), 0u) << name;
		EXPECT_EQ(fOutput, "") << name;
		count++;
	}
	EXPECT_GE(count, 12);
}


TEST_F(CoverFormats, BombOf65500By65500CostsNoTimeAndNoMemory)
{
	const uint32_t side = 65500;
	const std::string zeros(4000, '\0');
	const std::pair<const char*, std::string> bombs[] = {
		{"a.png", test::PngHeader(side, side) + zeros},
		{"a.gif",
			"GIF89a" + little(side, 2) + little(side, 2) + std::string("\x80\0\0", 3)
				+ std::string(6, '\0') + "," + little(0, 4) + little(side, 2) + little(side, 2)
				+ zeros},
		{"a.bmp",
			"BM" + little(54, 4) + little(0, 4) + little(54, 4) + little(40, 4) + little(side, 4)
				+ little(side, 4) + little(1, 2) + little(24, 2) + std::string(24, '\0') + zeros},
		{"a.ppm", "P6\n65500 65500\n255\n" + zeros},
		{"a.pgm", "P5\n65500 65500\n255\n" + zeros},
		{"a.pbm", "P4\n65500 65500\n" + zeros},
		{"a.xbm", "#define a_width 65500\n#define a_height 65500\nstatic char a_bits[] = {\n0x00,"},
		{"a.xpm", "/* XPM */\nstatic char *a[] = {\n\"65500 65500 1 1\",\n\"a c #000000\",\n"},
		{"a.tga",
			std::string("\0\0\x0a\0\0\0\0\0\0\0\0\0", 12) + little(side, 2) + little(side, 2)
				+ std::string("\x18\0", 2) + zeros},
		{"a.jpg",
			"\xff\xd8\xff\xc0" + big(17, 2) + "\x08" + big(side, 2) + big(side, 2)
				+ std::string("\3\1\x22\0\2\x11\1\3\x11\1", 10) + zeros},
		{"a.tif",
			"II*" + std::string(1, '\0') + little(8, 4) + little(2, 2) + little(256, 2)
				+ little(4, 2) + little(1, 4) + little(side, 4) + little(257, 2) + little(4, 2)
				+ little(1, 4) + little(side, 4) + zeros},
		{"a.webp",
			"RIFF" + little(30, 4) + "WEBPVP8X" + little(10, 4) + little(0, 4) + little(side - 1, 3)
				+ little(side - 1, 3) + zeros},
		{"a.wbmp", std::string(2, '\0') + "\x83\xff\x5c\x83\xff\x5c" + zeros},
	};
	const long before = peak_memory();
	const auto start = test::CpuTime();
	for (const auto& [name, contents] : bombs)
		EXPECT_EQ(Load(fFolder.Write(name, contents)), nullptr) << name;
	EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(10));
	EXPECT_LT(peak_memory() - before, 50000);
}


// A picture of that size that is whole, and small as a file.
TEST_F(CoverFormats, WholeBombIsRefusedLikeAnyUndecodableFile)
{
	const std::string path = fFolder / "Folder.jpg";
	// Rows of zeros, which deflate to next to nothing.
	test::OutputOfCommand("python3 -c \"\n"
						  "import struct, sys, zlib\n"
						  "side = 65500\n"
						  "def chunk(kind, data):\n"
						  "	body = kind + data\n"
						  "	return struct.pack('>I', len(data)) + body"
						  " + struct.pack('>I', zlib.crc32(body))\n"
						  "packer = zlib.compressobj(1)\n"
						  "row = bytes(1 + side // 8 + 1)\n"
						  "data = b''.join(packer.compress(row) for _ in range(side))"
						  " + packer.flush()\n"
						  "open(sys.argv[1], 'wb').write(b'\\x89PNG\\r\\n\\x1a\\n'"
						  " + chunk(b'IHDR', struct.pack('>IIBBBBB', side, side, 1, 0, 0, 0, 0))"
						  " + chunk(b'IDAT', data) + chunk(b'IEND', b''))\n"
						  "\" '"
		+ path + "'");
	const long before = peak_memory();
	const auto start = test::CpuTime();
	EXPECT_EQ(Load(path), nullptr);
	EXPECT_EQ(fOutput,
		"\xA0"
		"can't translate '"
			+ path + "'\n");
	EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(5));
	EXPECT_LT(peak_memory() - before, 20000);
}


TEST_F(CoverFormats, TornPictureHasItsSizeAndSomePixels)
{
	const std::string whole
		= test::ReadFile(test::SavePicture(test::TwoColors(300, 200), fFolder / "whole.jpg"));
	for (const size_t part : {3, 5, 9}) {
		const std::unique_ptr<BBitmap> bitmap
			= Load(fFolder.Write("Folder.jpg", whole.substr(0, whole.size() * part / 10)));
		ASSERT_NE(bitmap, nullptr) << part;
		EXPECT_EQ(bitmap->Bounds(), BRect(0, 0, 299, 199)) << part;
		EXPECT_NE(bitmap->Bits(), nullptr) << part;
	}
	EXPECT_EQ(Load(fFolder.Write("Folder.jpg", whole.substr(0, 10))), nullptr);
}
