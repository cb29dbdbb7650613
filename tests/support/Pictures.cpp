// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Pictures.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QString>

#include <gtest/gtest.h>


namespace test {

QImage
TwoColors(int width, int height)
{
	QImage image(width, height, QImage::Format_RGB32);
	for (int y = 0; y < height; y++) {
		for (int x = 0; x < width; x++)
			image.setPixel(x, y, x < width / 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
	}
	return image;
}


std::string
SavePicture(const QImage& image, const std::string& path)
{
	EXPECT_TRUE(image.save(QString::fromStdString(path), nullptr, 95)) << path;
	return path;
}


std::string
TurnedPicture(const QImage& image, int orientation)
{
	QByteArray bytes;
	QBuffer buffer(&bytes);
	EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
	EXPECT_TRUE(image.save(&buffer, "jpg", 95));
	// One entry of the kind "orientation" (0x0112), a short, in big endian order.
	std::string exif("Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 25);
	exif += static_cast<char>(orientation);
	exif += std::string(6, '\0');
	std::string segment("\xff\xe1\0", 3);
	segment += static_cast<char>(exif.size() + 2);
	segment += exif;
	std::string picture = bytes.toStdString();
	return picture.insert(2, segment);
}


std::string
PngHeader(unsigned int width, unsigned int height)
{
	const auto number = [](unsigned int value) {
		std::string bytes;
		for (int shift = 24; shift >= 0; shift -= 8)
			bytes += static_cast<char>(value >> shift);
		return bytes;
	};
	const std::string contents
		= "IHDR" + number(width) + number(height) + std::string("\x08\x02\0\0\0", 5);
	unsigned int sum = ~0u;
	for (const char byte : contents) {
		sum ^= static_cast<unsigned char>(byte);
		for (int bit = 0; bit < 8; bit++)
			sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xedb88320u : 0);
	}
	return "\x89PNG\r\n\x1a\n" + number(13) + contents + number(~sum) + number(0) + "IDAT";
}

} // namespace test
