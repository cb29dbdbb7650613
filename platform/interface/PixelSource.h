// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PIXEL_SOURCE_H
#define PIXEL_SOURCE_H

#include <memory>

#include <GraphicsDefs.h>
#include <Rect.h>

class BBitmap;
class QImage;
class QSize;


namespace hosted {

/*!	Where a bitmap gets its pixels from when they are first needed.

	A bitmap made with one knows its size at once and decodes later: at the size at which it is
	drawn, or whole when its bits are asked for. Called with the bitmap in use by one thread at a
	time, from any thread.
*/
class PixelSource {
public:
	virtual ~PixelSource() = default;

	// The picture scaled (smoothly) to that size, or whole for an empty size. A null image if it
	// cannot be decoded (any more).
	virtual QImage Decode(const QSize& size) = 0;
};

// Makes a bitmap of these bounds and color space over a source; the caller owns it. Implemented by
// the drawing part of the Interface Kit, which keeps the scaled pictures under one total limit.
BBitmap* NewLazyBitmap(BRect bounds, color_space space, std::unique_ptr<PixelSource> source);

} // namespace hosted

#endif // PIXEL_SOURCE_H
