// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Pictures, and what views have as their background.
#include <algorithm>
#include <math.h>
#include <vector>

#include "platform/interface/BitmapData.h"
#include "platform/interface/Painter.h"
#include "platform/interface/Pixels.h"
#include "platform/interface/ViewData.h"


namespace hosted {

// Smooth pictures are scaled as a whole, so there is a limit to their size.
static const int kMaxSmoothSide = 8192;


// The place is rounded first, then the size.
static QRect
target_pixels(BRect destination)
{
	destination.OffsetTo(roundf(destination.left), roundf(destination.top));
	return QRect(QPoint(FloorPixel(destination.left), FloorPixel(destination.top)),
		QPoint(FloorPixel(roundf(destination.right)), FloorPixel(roundf(destination.bottom))));
}


void
Painter::DrawPicture(BitmapData& bitmap, BRect source, BRect destination, uint32 options)
{
	if (bitmap.status != B_OK || !source.IsValid() || !destination.IsValid())
		return;
	const QRect target = target_pixels(destination);
	if (!fClip.intersects(target))
		return;
	const QRect pixels(FloorPixel(source.left), FloorPixel(source.top), source.IntegerWidth() + 1,
		source.IntegerHeight() + 1);
	const bool isLazy = bitmap.IsLazy();
	const bool isSmooth = isLazy || (options & B_FILTER_BITMAP_BILINEAR) != 0;
	const bool isSmall = target.width() <= kMaxSmoothSide && target.height() <= kMaxSmoothSide;
	if (isSmooth && isSmall && (isLazy || pixels.size() != target.size()))
		_DrawSmooth(bitmap, pixels, target);
	else
		_DrawNearest(bitmap, pixels, target);
}


// The number of the source pixel for one of the target.
static int
source_pixel(int index, int sourceCount, int targetCount)
{
	return static_cast<int>(static_cast<int64>(index) * sourceCount / targetCount);
}


void
Painter::_DrawNearest(BitmapData& bitmap, const QRect& source, const QRect& target)
{
	const QRect whole(0, 0, bitmap.Width(), bitmap.Height());
	const QRect used = source & whole;
	const QImage pixels = bitmap.Pixels(used);
	if (pixels.isNull())
		return;
	const bool blendsAlpha = bitmap.space == B_RGBA32 && source.size() == target.size();
	std::vector<QRgb> line;
	_ForClip(target, [&](const QRect& part) {
		line.resize(static_cast<size_t>(part.width()));
		for (int y = part.top(); y <= part.bottom(); y++) {
			const int fromY
				= source.top() + source_pixel(y - target.top(), source.height(), target.height());
			if (fromY < used.top() || fromY > used.bottom())
				continue;
			const QRgb* row
				= reinterpret_cast<const QRgb*>(pixels.constScanLine(fromY - used.top()));
			int begin = part.left();
			size_t count = 0;
			for (int x = part.left(); x <= part.right(); x++) {
				const int fromX = source.left()
					+ source_pixel(x - target.left(), source.width(), target.width());
				if (fromX >= used.left() && fromX <= used.right())
					line[count++] = row[fromX - used.left()];
				else if (count == 0)
					begin++;
			}
			PaintPicture(_Row(begin, y), line.data(), static_cast<int>(count), fInk, blendsAlpha);
		}
	});
}


void
Painter::_DrawSmooth(BitmapData& bitmap, const QRect& source, const QRect& target)
{
	const QRect used = source & QRect(0, 0, bitmap.Width(), bitmap.Height());
	if (used.isEmpty())
		return;
	QRect place = target;
	if (used != source) {
		const double xScale = static_cast<double>(target.width()) / source.width();
		const double yScale = static_cast<double>(target.height()) / source.height();
		place = QRectF(target.left() + (used.left() - source.left()) * xScale,
			target.top() + (used.top() - source.top()) * yScale, used.width() * xScale,
			used.height() * yScale)
					.toRect();
	}
	if (place.isEmpty())
		return;
	const QImage image = bitmap.SmoothPixels(used, place.size(), fInk.mode == B_OP_COPY);
	if (image.isNull())
		return;
	_ForClip(place, [&](const QRect& part) {
		for (int y = part.top(); y <= part.bottom(); y++) {
			const QRgb* row = reinterpret_cast<const QRgb*>(image.constScanLine(y - place.top()));
			PaintPicture(_Row(part.left(), y), row + part.left() - place.left(), part.width(), fInk,
				true);
		}
	});
}


static void
paint_view_bitmap(Painter& painter, const ViewBitmap& background, const QRect& pixels)
{
	QRect first = target_pixels(background.destination);
	const int width = first.width();
	const int height = first.height();
	if (width <= 0 || height <= 0)
		return;
	const bool repeatsX = (background.options & B_TILE_BITMAP_X) != 0;
	const bool repeatsY = (background.options & B_TILE_BITMAP_Y) != 0;
	// The tile that covers the first pixel to paint, or the one that there is.
	const int tilesLeft = static_cast<int>(floor((pixels.left() - first.left()) / double(width)));
	const int tilesTop = static_cast<int>(floor((pixels.top() - first.top()) / double(height)));
	first.translate(repeatsX ? tilesLeft * width : 0, repeatsY ? tilesTop * height : 0);
	for (int top = first.top(); top <= pixels.bottom(); top += height) {
		for (int left = first.left(); left <= pixels.right(); left += width) {
			painter.DrawPicture(*background.bitmap, background.source,
				BRect(left, top, left + width - 1, top + height - 1), background.options);
			if (!repeatsX)
				break;
		}
		if (!repeatsY)
			break;
	}
}


void
PaintBackground(ViewData& view)
{
	const bool isColored = !IsTransparent(view.viewColor);
	if (!isColored && view.viewBitmap == nullptr)
		return;
	// The background knows nothing of the drawing state.
	const DrawState state = view.state;
	view.state = DrawState();
	{
		Painter painter(view);
		if (!painter.IsEmpty()) {
			painter.fInk.high = view.viewColor;
			if (isColored)
				painter.FillRegion(painter.fClip);
			if (view.viewBitmap != nullptr) {
				ViewBitmap background = *view.viewBitmap;
				background.destination = painter.ToHost(background.destination);
				painter.fInk.mode = B_OP_OVER;
				paint_view_bitmap(painter, background, painter.fClip.boundingRect());
			}
		}
	}
	view.state = state;
}

} // namespace hosted
