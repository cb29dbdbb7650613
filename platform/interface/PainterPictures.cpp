// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Pictures, and what views have as their background.
#include <algorithm>
#include <math.h>
#include <vector>

#include "platform/interface/BitmapData.h"
#include "platform/interface/Dots.h"
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
	const QRect targetPixels = target_pixels(destination);
	if (!fClip.intersects(targetPixels))
		return;
	const QRect target = ToDots(targetPixels, fDots);
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


// The source pixels for a range of the target's, along one axis.
static std::vector<int>
source_pixels(int first, int count, int sourceStart, int sourceCount, int targetStart,
	int targetCount)
{
	std::vector<int> numbers(static_cast<size_t>(count));
	for (int index = 0; index < count; index++) {
		const int64 distance = first + index - targetStart;
		numbers[static_cast<size_t>(index)]
			= sourceStart + static_cast<int>(distance * sourceCount / targetCount);
	}
	return numbers;
}


void
Painter::_DrawNearest(BitmapData& bitmap, const QRect& source, const QRect& target)
{
	const QRect used = source & QRect(0, 0, bitmap.Width(), bitmap.Height());
	if (used.isEmpty())
		return;
	bitmap.NeedBits();
	const bool isUnscaled = source.size() == target.size();
	const bool blendsAlpha = bitmap.space == B_RGBA32 && isUnscaled;
	std::vector<QRgb> row(static_cast<size_t>(used.width()));
	std::vector<QRgb> line;
	_ForClip(target, [&](const QRect& part) {
		const std::vector<int> columns = source_pixels(part.left(), part.width(), source.left(),
			source.width(), target.left(), target.width());
		const std::vector<int> rows = source_pixels(part.top(), part.height(), source.top(),
			source.height(), target.top(), target.height());
		// The columns of the target for which the picture has pixels.
		const auto begin = std::lower_bound(columns.begin(), columns.end(), used.left());
		const auto end = std::upper_bound(columns.begin(), columns.end(), used.right());
		const int left = part.left() + static_cast<int>(begin - columns.begin());
		const int count = static_cast<int>(end - begin);
		if (count <= 0)
			return;
		line.resize(static_cast<size_t>(count));
		int lastRow = -1;
		for (int y = part.top(); y <= part.bottom(); y++) {
			const int fromY = rows[static_cast<size_t>(y - part.top())];
			if (fromY < used.top() || fromY > used.bottom())
				continue;
			if (fromY != lastRow)
				bitmap.ReadRow(used.left(), fromY, used.width(), row.data());
			if (fromY != lastRow && !isUnscaled) {
				std::transform(begin, end, line.begin(),
					[&](int x) { return row[static_cast<size_t>(x - used.left())]; });
			}
			lastRow = fromY;
			const QRgb* pixels = isUnscaled ? row.data() + *begin - used.left() : line.data();
			PaintPicture(_Row(left, y), pixels, count, fInk, blendsAlpha);
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
