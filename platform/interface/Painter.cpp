// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/interface/Painter.h"

#include <algorithm>
#include <math.h>

#include <QPainter>
#include <QPainterPath>

#include "platform/interface/Dots.h"
#include "platform/interface/FontData.h"
#include "platform/interface/Pixels.h"
#include "platform/interface/ViewData.h"


namespace hosted {

Painter::Painter(ViewData& view, const pattern& pattern)
	:
	fView(view),
	fClip(view.DrawRegion())
{
	if (fClip.isEmpty())
		return;
	fImage = view.tree->host->Image();
	fClip &= PixelsOf(*fImage);
	fDots = DotsPerPixel(*fImage);
	fOffset = view.DrawOffset();
	fInk.high = view.state.high;
	fInk.low = view.state.low;
	fInk.mode = view.state.mode;
	fInk.sourceAlpha = view.state.sourceAlpha;
	fInk.alphaFunction = view.state.alphaFunction;
	fInk.pattern = pattern;
	fInk.patternOrigin = FloorPixel(view.HostOffset()) * fDots;
}


Painter::~Painter()
{
	// An update reports all of its pixels itself.
	if (!fTouched.isEmpty() && fView.tree->updating == nullptr)
		fView.tree->host->Painted(fClip & fTouched);
}


QRgb*
Painter::_Row(int x, int y)
{
	return reinterpret_cast<QRgb*>(fImage->scanLine(y)) + x;
}


void
Painter::_ForClip(const QRect& bounds, const std::function<void(const QRect& part)>& paint)
{
	for (const QRect& rect : fClip) {
		const QRect part = ToDots(rect, fDots) & bounds;
		if (part.isEmpty())
			continue;
		paint(part);
		fTouched |= ToPixels(part, fDots);
	}
}


void
Painter::FillPixels(const QRect& pixels)
{
	if (pixels.isEmpty())
		return;
	_ForClip(ToDots(pixels, fDots), [this](const QRect& part) {
		for (int y = part.top(); y <= part.bottom(); y++)
			PaintSpan(_Row(part.left(), y), nullptr, part.width(), part.left(), y, fInk);
	});
}


void
Painter::FillRegion(const QRegion& pixels)
{
	for (const QRect& rect : pixels)
		FillPixels(rect);
}


// Qt's own painting gives the pixels of the mode.
bool
Painter::_IsPlain() const
{
	if (fImage->format() != QImage::Format_RGB32)
		return false;
	if (fInk.mode == B_OP_COPY)
		return fInk.IsSolidHigh() || fInk.IsSolidLow();
	return fInk.mode == B_OP_OVER && fInk.IsSolidHigh();
}


void
Painter::_Smooth(const QRect& bounds, const Paint& paint)
{
	const QRegion clip = fClip & bounds;
	if (clip.isEmpty())
		return;
	fTouched |= clip.boundingRect();
	if (!_IsPlain()) {
		_SmoothByMask(clip, paint);
		return;
	}
	const rgb_color color = fInk.IsSolidLow() ? fInk.low : fInk.high;
	QPainter painter(fImage);
	painter.setClipRegion(clip);
	painter.setRenderHint(QPainter::Antialiasing);
	paint(painter, QColor(color.red, color.green, color.blue));
}


void
Painter::_SmoothByMask(const QRegion& clip, const Paint& paint)
{
	const QRect bounds = clip.boundingRect();
	QImage mask(bounds.size() * fDots, QImage::Format_Alpha8);
	mask.setDevicePixelRatio(fDots);
	mask.fill(0);
	{
		QPainter painter(&mask);
		painter.setRenderHint(QPainter::Antialiasing);
		painter.translate(-bounds.topLeft());
		paint(painter, Qt::black);
	}
	const QPoint origin = bounds.topLeft() * fDots;
	for (const QRect& pixels : clip) {
		const QRect part = ToDots(pixels, fDots);
		for (int y = part.top(); y <= part.bottom(); y++) {
			const uint8* coverage = mask.constScanLine(y - origin.y()) + part.left() - origin.x();
			PaintSpan(_Row(part.left(), y), coverage, part.width(), part.left(), y, fInk);
		}
	}
}


void
Painter::FillPath(const QPainterPath& path)
{
	_Smooth(path.boundingRect().toAlignedRect(),
		[&path](QPainter& painter, const QColor& color) { painter.fillPath(path, color); });
}


static Qt::PenCapStyle
to_cap(cap_mode cap)
{
	switch (cap) {
		case B_ROUND_CAP:
			return Qt::RoundCap;
		case B_SQUARE_CAP:
			return Qt::SquareCap;
		default:
			return Qt::FlatCap;
	}
}


static Qt::PenJoinStyle
to_join(join_mode join)
{
	switch (join) {
		case B_ROUND_JOIN:
			return Qt::RoundJoin;
		case B_BEVEL_JOIN:
		case B_BUTT_JOIN:
			return Qt::BevelJoin;
		default:
			// Beyond the limit it bevels, where the other kind would leave a spike.
			return Qt::SvgMiterJoin;
	}
}


void
Painter::StrokePath(const QPainterPath& path)
{
	StrokePath(path, fView.state.cap);
}


// The outline is filled, because Qt draws thin lines by a rule of their own, not by what they
// cover.
void
Painter::StrokePath(const QPainterPath& path, cap_mode cap)
{
	const DrawState& state = fView.state;
	QPainterPathStroker stroker;
	stroker.setWidth(state.penSize <= 0 ? 1 : state.penSize);
	stroker.setCapStyle(to_cap(cap));
	stroker.setJoinStyle(to_join(state.join));
	stroker.setMiterLimit(state.miterLimit);
	QPainterPath outline = stroker.createStroke(path);
	outline.setFillRule(Qt::WindingFill);
	FillPath(outline);
}


void
Painter::DrawText(QPoint where, const QString& text)
{
	const QFont* font = ToQFont(fView.state.font);
	if (font == nullptr || text.isEmpty())
		return;
	const int size = font->pixelSize();
	const int width = static_cast<int>(ceilf(TextWidth(fView.state.font, text)));
	const QRect bounds(where.x() - size, where.y() - 2 * size, width + 2 * size, 3 * size);
	// Only where letters join, because it brings kerning and ligatures along.
	QFont shaping;
	if (NeedsShaping(text)) {
		shaping = *font;
		shaping.setStyleStrategy(
			static_cast<QFont::StyleStrategy>(font->styleStrategy() & ~QFont::PreferNoShaping));
		font = &shaping;
	}
	_Smooth(bounds, [&](QPainter& painter, const QColor& color) {
		painter.setFont(*font);
		painter.setPen(color);
		painter.drawText(where, text);
	});
}

} // namespace hosted
