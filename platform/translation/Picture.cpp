// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Reading pictures with Qt's plug-ins.
#include "platform/translation/Picture.h"

#include <algorithm>
#include <string.h>
#include <string_view>

#include <QImage>
#include <QImageReader>
#include <QLoggingCategory>

#include <DataIO.h>


namespace hosted {

namespace {

// Called before anything is decoded. Damaged pictures are an everyday thing and not worth a
// warning.
void
set_up_once()
{
	static const bool sDone = [] {
		constexpr int kMegabytes = 512;
		QImageReader::setAllocationLimit(kMegabytes);
		QLoggingCategory::setFilterRules(
			QStringLiteral("qt.gui.imageio*=false\nqt.gui.icc*=false\nqt.imageformats*=false\n"));
		return true;
	}();
	static_cast<void>(sDone);
}


// A Targa picture without a color table begins like a cursor of no pictures at all.
bool
is_targa(QIODevice* device)
{
	const QByteArray head = device->peek(18);
	const uint8_t depth = head.size() == 18 ? static_cast<uint8_t>(head[16]) : 0;
	return head.startsWith(QByteArray("\0\0\2\0\0\0", 6)) && (depth == 24 || depth == 32);
}


void
prepare(QImageReader& reader)
{
	if (is_targa(reader.device()))
		reader.setFormat("tga");
	else
		reader.setDecideFormatFromContent(true);
	reader.setAutoTransform(true);
}


// A format whose header does not tell the size, such as Apple's icons, has to be decoded for it.
QSize
size_of(QImageReader& reader)
{
	if (reader.supportsOption(QImageIOHandler::Size))
		return reader.size();
	constexpr qint64 kMaxBytes = 16 << 20;
	if (reader.device()->size() > kMaxBytes)
		return QSize();
	const QSize size = reader.read().size();
	reader.setDevice(reader.device());
	return reader.device()->seek(0) ? size : QSize();
}


bool
is_turned(const QImageReader& reader)
{
	return (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
}


uint32_t
big_endian_at(const QByteArray& bytes, int offset)
{
	uint32_t value = 0;
	for (int i = 0; i < 4; i++)
		value = (value << 8) | static_cast<uint8_t>(bytes[offset + i]);
	return value;
}


// A PNG picture has transparent pixels if its color type says so, or with a list of transparent
// colors, which stands before the pixels.
bool
is_png_transparent(QIODevice* device)
{
	constexpr int kColorType = 25;
	constexpr int kMaxChunks = 200;
	if (!device->seek(0))
		return false;
	const QByteArray head = device->read(33);
	if (head.size() < 33 || (head[kColorType] & 4) != 0)
		return head.size() == 33;

	qint64 offset = head.size();
	for (int i = 0; i < kMaxChunks; i++) {
		if (!device->seek(offset))
			return false;
		const QByteArray chunk = device->read(8);
		if (chunk.size() < 8 || chunk.endsWith("IDAT"))
			return false;
		if (chunk.endsWith("tRNS"))
			return true;
		offset += 12 + qint64(big_endian_at(chunk, 0));
	}
	return false;
}


color_space
space_of(QIODevice* device, const QByteArray& format, QImage::Format pixels)
{
	if (format == "jpeg" || format == "jpg")
		return B_RGB32;
	if (format == "gif")
		return B_RGBA32;
	if (format == "png")
		return is_png_transparent(device) ? B_RGBA32 : B_RGB32;
	// An unknown one may have transparent pixels.
	if (pixels == QImage::Format_Invalid)
		return B_RGBA32;
	return QImage::toPixelFormat(pixels).alphaUsage() == QPixelFormat::UsesAlpha ? B_RGBA32
																				 : B_RGB32;
}


int64_t
bytes_per_pixel(QImage::Format format)
{
	if (format == QImage::Format_Invalid)
		return 4;
	return std::max(4, QImage::toPixelFormat(format).bitsPerPixel() / 8);
}

} // namespace


StreamDevice::StreamDevice(BPositionIO* source)
	:
	fSource(source)
{
}


qint64
StreamDevice::size() const
{
	off_t size = 0;
	return fSource->GetSize(&size) == B_OK ? size : 0;
}


bool
StreamDevice::seek(qint64 position)
{
	if (!QIODevice::seek(position))
		return false;
	fOffset = position;
	return true;
}


qint64
StreamDevice::readData(char* data, qint64 size)
{
	const ssize_t count = fSource->ReadAt(fOffset, data, static_cast<size_t>(size));
	if (count < 0)
		return -1;
	fOffset += count;
	return count;
}


qint64
StreamDevice::writeData(const char*, qint64)
{
	return -1;
}


bool
ReadPictureFacts(QIODevice* device, PictureFacts* facts)
{
	set_up_once();
	if (device->size() <= 0 || device->size() > kMaxPictureBytes || !device->seek(0))
		return false;

	QImageReader reader(device);
	prepare(reader);
	if (!reader.canRead())
		return false;
	const QSize size = size_of(reader);
	const QImage::Format pixels = reader.imageFormat();
	if (size.isEmpty() || size.width() > kMaxPictureSide || size.height() > kMaxPictureSide
		|| int64_t(size.width()) * size.height() * bytes_per_pixel(pixels) > kMaxPicturePixels * 4)
		return false;

	facts->format = reader.format();
	facts->size = is_turned(reader) ? size.transposed() : size;
	facts->space = space_of(device, facts->format, pixels);
	return true;
}


QImage
DecodePicture(QIODevice* device, const PictureFacts& facts, const QSize& size)
{
	// The file may have become another picture since.
	PictureFacts now;
	if (!ReadPictureFacts(device, &now) || !device->seek(0))
		return QImage();

	QImageReader reader(device);
	prepare(reader);
	const QSize wanted = size.isEmpty() ? facts.size : size;
	if (wanted != now.size)
		reader.setScaledSize(is_turned(reader) ? wanted.transposed() : wanted);
	QImage image = reader.read();
	if (image.isNull())
		return image;
	if (image.size() != wanted)
		image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	return image.convertToFormat(
		facts.space == B_RGBA32 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

} // namespace hosted
