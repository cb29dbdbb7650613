// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What bitmaps are made of: memory, views that draw into it, or a source that decodes later.
#include "platform/interface/BitmapData.h"

#include <algorithm>
#include <math.h>
#include <string.h>

#include <View.h>

#include "platform/interface/BitmapConvert.h"
#include "platform/interface/Palette.h"
#include "platform/interface/PictureCache.h"
#include "platform/interface/ViewPrivate.h"


namespace hosted {

// The palette's color that a bitmap of indexes is cleared to.
static const int kClearedIndex = 65;
static const float kMaxSide = 65535;


BitmapHost::BitmapHost(QImage image, BRect bounds)
	:
	fImage(std::move(image)),
	fRoot(NewRootView(*this, bounds.OffsetToCopy(B_ORIGIN)))
{
}


BitmapHost::~BitmapHost()
{
	DetachRoot(*fRoot);
}


BitmapData::~BitmapData()
{
	host.reset();
	ForgetPictures(this);
}


void
BitmapData::SetTo(BRect newBounds, uint32 newFlags, color_space newSpace, int32 wantedBytesPerRow)
{
	status = B_BAD_VALUE;
	if (!newBounds.IsValid() || newBounds.Width() > kMaxSide || newBounds.Height() > kMaxSide
		|| !IsDrawable(newSpace))
		return;
	bounds = newBounds;
	const int32 leastBytes = (RowBytes(newSpace, Width()) + 3) / 4 * 4;
	const int64 rowBytes = wantedBytesPerRow < 0 ? leastBytes : wantedBytesPerRow;
	const bool acceptsViews = (newFlags & B_BITMAP_ACCEPTS_VIEWS) != 0;
	if (rowBytes < RowBytes(newSpace, Width()) || rowBytes * Height() > INT32_MAX
		|| (acceptsViews && newSpace != B_RGB32 && newSpace != B_RGBA32)) {
		bounds = BRect();
		return;
	}
	space = newSpace;
	flags = newFlags;
	bytesPerRow = static_cast<int32>(rowBytes);
	status = B_OK;
}


void
BitmapData::Allocate()
{
	if (status != B_OK)
		return;
	uint8 first = 0;
	if ((flags & B_BITMAP_CLEAR_TO_WHITE) != 0)
		first = space == B_CMAP8 ? kClearedIndex : 0xff;
	bits.assign(static_cast<size_t>(Length()), first);
	if ((flags & B_BITMAP_ACCEPTS_VIEWS) == 0)
		return;
	const QImage::Format format = space == B_RGBA32 ? QImage::Format_ARGB32 : QImage::Format_RGB32;
	host = std::make_unique<BitmapHost>(QImage(bits.data(), Width(), Height(), bytesPerRow, format),
		bounds);
}


bool
BitmapData::IsLazy()
{
	std::lock_guard<std::mutex> lock(lazyMutex);
	return source != nullptr;
}


void
BitmapData::NeedBits()
{
	std::lock_guard<std::mutex> lock(lazyMutex);
	if (source == nullptr)
		return;
	const QImage image = source->Decode(QSize());
	source.reset();
	ForgetPictures(this);
	Allocate();
	if (image.isNull())
		return;
	const bool hasAlpha = image.hasAlphaChannel();
	const QImage pixels
		= image.convertToFormat(hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
	const ConstRows from = {pixels.constBits(), static_cast<size_t>(pixels.sizeInBytes()),
		static_cast<int32>(pixels.bytesPerLine()), hasAlpha ? B_RGBA32 : B_RGB32};
	const Rows to = {bits.data(), bits.size(), bytesPerRow, space};
	ConvertPixels(from, to, std::min(Width(), pixels.width()), std::min(Height(), pixels.height()));
}


void
BitmapData::ReadRow(int left, int y, int width, QRgb* pixels) const
{
	const uint8* row = bits.data() + y * bytesPerRow + left * (BitsPerPixel(space) / 8);
	switch (space) {
		case B_CMAP8:
			for (int column = 0; column < width; column++)
				pixels[column] = PalettePixels()[row[column]];
			break;
		case B_GRAY8:
			for (int column = 0; column < width; column++)
				pixels[column] = 0xff000000 | row[column] * 0x010101u;
			break;
		case B_RGB32:
			memcpy(pixels, row, static_cast<size_t>(width) * sizeof(QRgb));
			for (int column = 0; column < width; column++) {
				if (pixels[column] != B_TRANSPARENT_MAGIC_RGBA32)
					pixels[column] |= 0xff000000;
			}
			break;
		default:
			memcpy(pixels, row, static_cast<size_t>(width) * sizeof(QRgb));
			break;
	}
}


QImage
BitmapData::_Pixels(const QRect& part)
{
	NeedBits();
	QImage image(part.size(), QImage::Format_ARGB32);
	for (int y = 0; y < image.height(); y++) {
		ReadRow(part.left(), part.top() + y, part.width(),
			reinterpret_cast<QRgb*>(image.scanLine(y)));
	}
	return image;
}


QImage
BitmapData::_DecodeAt(const QSize& size)
{
	const QSize whole(Width(), Height());
	if (size != whole && (size.width() > whole.width() || size.height() > whole.height())) {
		const QImage image = _LazyPixels(whole);
		return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	}
	QImage image = source->Decode(size == whole ? QSize() : size);
	if (!image.isNull() && image.size() != size)
		image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	return image;
}


QImage
BitmapData::_LazyPixels(const QSize& size)
{
	QImage image = CachedPicture(this, size);
	if (!image.isNull() || fFailed)
		return image;
	image = _DecodeAt(size);
	if (image.isNull()) {
		fFailed = true;
		return image;
	}
	const bool hasAlpha = image.hasAlphaChannel() && space != B_RGB32;
	image = image.convertToFormat(hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
	CachePicture(this, size, image);
	return image;
}


static void
make_opaque(QImage& image)
{
	for (int y = 0; y < image.height(); y++) {
		QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
		for (int x = 0; x < image.width(); x++)
			row[x] |= 0xff000000;
	}
}


QImage
BitmapData::SmoothPixels(const QRect& part, const QSize& size, bool isOpaque)
{
	std::unique_lock<std::mutex> lock(lazyMutex);
	if (source == nullptr) {
		lock.unlock();
		QImage pixels = _Pixels(part);
		if (isOpaque)
			make_opaque(pixels);
		return pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	}
	if (part == QRect(0, 0, Width(), Height()))
		return _LazyPixels(size);

	// The whole picture at the scale of the part, but not larger than it is.
	const double xScale = std::min(1.0, static_cast<double>(size.width()) / part.width());
	const double yScale = std::min(1.0, static_cast<double>(size.height()) / part.height());
	const QSize scaledSize(std::max(1, static_cast<int>(lround(Width() * xScale))),
		std::max(1, static_cast<int>(lround(Height() * yScale))));
	const QImage whole = _LazyPixels(scaledSize);
	if (whole.isNull())
		return whole;
	const QRect scaledPart(static_cast<int>(lround(part.left() * xScale)),
		static_cast<int>(lround(part.top() * yScale)),
		std::max(1, static_cast<int>(lround(part.width() * xScale))),
		std::max(1, static_cast<int>(lround(part.height() * yScale))));
	return whole.copy(scaledPart & whole.rect())
		.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}


int32
RowBytes(color_space space, int32 width)
{
	return (width * BitsPerPixel(space) + 7) / 8;
}


BBitmap*
NewLazyBitmap(BRect bounds, color_space space, std::unique_ptr<PixelSource> source)
{
	BBitmap* bitmap = new BBitmap(static_cast<const BBitmap*>(nullptr));
	BitmapData& data = BitmapData::Of(*bitmap);
	data.SetTo(bounds, 0, space, B_ANY_BYTES_PER_ROW);
	if (data.status == B_OK)
		data.source = std::move(source);
	return bitmap;
}


ViewHost&
HostOf(BBitmap& bitmap)
{
	return *BitmapData::Of(bitmap).host;
}


BView&
RootOf(BBitmap& bitmap)
{
	return BitmapData::Of(bitmap).host->Root();
}

} // namespace hosted
