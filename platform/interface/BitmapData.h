// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BITMAP_DATA_H
#define BITMAP_DATA_H

#include <memory>
#include <mutex>
#include <vector>

#include <QImage>
#include <QRegion>

#include <Bitmap.h>
#include <Errors.h>

#include "platform/interface/PixelSource.h"
#include "platform/interface/ViewHost.h"


namespace hosted {

// The host of the views in a bitmap that accepts them.
class BitmapHost : public ViewHost {
public:
	BitmapHost(QImage image, BRect bounds);
	~BitmapHost() override;

	QImage* Image() override { return &fImage; }
	void Painted(const QRegion&) override {}
	// Nothing is drawn into a bitmap by itself.
	void NeedsUpdate(const QRegion&) override {}
	const QRegion& PendingUpdate() const override { return fNothing; }
	BWindow* Window() override { return nullptr; }
	BPoint ScreenOrigin() const override { return BPoint(); }

	BView& Root() { return *fRoot; }

	std::recursive_mutex lock;

private:
	// Over the bitmap's own memory.
	QImage fImage;
	QRegion fNothing;
	std::unique_ptr<BView> fRoot;
};


struct BitmapData {
	BRect bounds;
	color_space space = B_NO_COLOR_SPACE;
	uint32 flags = 0;
	int32 bytesPerRow = 0;
	status_t status = B_NO_INIT;
	// Empty for a lazy bitmap until its bits are asked for.
	std::vector<uint8> bits;
	std::unique_ptr<BitmapHost> host;

	// Guards what follows, and the bits of a lazy bitmap.
	std::mutex lazyMutex;
	// Null once the bits are there, or for an ordinary bitmap.
	std::unique_ptr<PixelSource> source;

	~BitmapData();

	int32 Width() const { return bounds.IntegerWidth() + 1; }
	int32 Height() const { return bounds.IntegerHeight() + 1; }
	int32 Length() const { return bytesPerRow * Height(); }

	static BitmapData& Of(const BBitmap& bitmap) { return *bitmap.fData; }
	static const std::shared_ptr<BitmapData>& Share(const BBitmap& bitmap) { return bitmap.fData; }

	// Checks the bounds and the space and lays out the rows, without memory.
	void SetTo(BRect newBounds, uint32 newFlags, color_space newSpace, int32 wantedBytesPerRow);
	void Allocate();
	// Decodes a lazy bitmap for good.
	void NeedBits();
	bool IsLazy();

	// A row of pixels within the picture as 32-bit ones that are not premultiplied; transparent
	// ones have alpha 0, all others of a picture without alpha 255. Needs the bits.
	void ReadRow(int left, int y, int width, QRgb* pixels) const;
	// A part of the picture drawn at a size, smoothly. A null image if it cannot be decoded. With
	// isOpaque the transparent pixels of an ordinary bitmap show their color.
	QImage SmoothPixels(const QRect& part, const QSize& size, bool isOpaque);

private:
	QImage _Pixels(const QRect& part);
	QImage _LazyPixels(const QSize& size);
	QImage _DecodeAt(const QSize& size);

	// The source could not decode; it is not asked again.
	bool fFailed = false;
};

// Bytes of a row of pixels, before rounding up; 0 for a color space that is not known.
int32 RowBytes(color_space space, int32 width);

// For tests of views: what a bitmap's views are drawn with.
ViewHost& HostOf(BBitmap& bitmap);
BView& RootOf(BBitmap& bitmap);

} // namespace hosted

#endif // BITMAP_DATA_H
