// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PICTURE_H
#define PICTURE_H

#include <QByteArray>
#include <QIODevice>
#include <QSize>
#include <memory>
#include <stdint.h>

#include <GraphicsDefs.h>
#include <Rect.h>
#include <SupportDefs.h>

#include "platform/interface/PixelSource.h"

class BBitmap;
class BBitmapStream;
class BPositionIO;
class QImage;
class QImageReader;


namespace hosted {

// More pixels than these are refused, whatever their format; a picture of the largest size takes
// 400 MB when its bits are asked for.
constexpr int64_t kMaxPicturePixels = 100000000;
constexpr int kMaxPictureSide = 65000;
// A file of more bytes is no picture.
constexpr int64_t kMaxPictureBytes = int64_t(512) << 20;


// The kit's streams as Qt reads them. The source has to outlive the device.
class StreamDevice : public QIODevice {
public:
	explicit StreamDevice(BPositionIO* source);

	bool isSequential() const override { return false; }
	qint64 size() const override;
	bool seek(qint64 position) override;

protected:
	qint64 readData(char* data, qint64 size) override;
	qint64 writeData(const char* data, qint64 size) override;

private:
	BPositionIO* const fSource;
	// Where the source is read next, which runs ahead of the device's own buffer.
	qint64 fOffset = 0;
};


// What a picture's first bytes tell, as the picture is shown: turned as its camera says.
struct PictureFacts {
	QByteArray format; // Qt's name of it
	QSize size;
	color_space space = B_RGB32;
};

// Reads no more than it must of the device, which has to be open. False for what is no picture, or
// one that is too big.
bool ReadPictureFacts(QIODevice* device, PictureFacts* facts);

// The picture at that size, or whole for an empty one; null if it cannot be decoded. Always RGB32
// or ARGB32.
QImage DecodePicture(QIODevice* device, const PictureFacts& facts, const QSize& size);

// What decodes the picture when its pixels are needed, from the file that the stream reads or else
// from its contents. Null if the stream cannot be read.
std::unique_ptr<PixelSource> NewPictureSource(BPositionIO* stream, const PictureFacts& facts);

// The bounds of a picture as a bitmap.
BRect BoundsOf(const PictureFacts& facts);


// How a bitmap gets into a stream without being written pixel by pixel.
class BitmapReceiver {
public:
	static void Give(BBitmapStream& stream, BBitmap* bitmap);
};

} // namespace hosted

#endif // PICTURE_H
