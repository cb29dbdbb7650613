// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: lines, rectangles and other shapes.
#include <View.h>

#include <algorithm>
#include <math.h>

#include <QPainterPath>

#include <Region.h>

#include "platform/interface/Painter.h"
#include "platform/interface/Pixels.h"
#include "platform/interface/RegionData.h"
#include "platform/interface/ViewData.h"

using hosted::FloorPixel;
using hosted::FloorPixels;
using hosted::Painter;


// Whether lines of this width run through the middle of the pixels. Even ones run along their
// edges.
static bool
is_centered(float penSize)
{
	return fmodf(penSize, 2) != 0 || penSize <= 0;
}


// A whole pen, which paints straight lines without half covered pixels.
static bool
is_whole(float penSize)
{
	return penSize >= 1 && penSize == floorf(penSize);
}


static QPointF
pen_point(BPoint point, float penSize)
{
	return QPointF(FloorPixel(point)) + (is_centered(penSize) ? QPointF(0.5, 0.5) : QPointF());
}


static QPainterPath
polygon(const Painter& painter, const BPoint* points, int32 count, float penSize, bool closed)
{
	QPainterPath path;
	path.setFillRule(Qt::WindingFill);
	for (int32 index = 0; index < count; index++) {
		const QPointF point = pen_point(painter.ToHost(points[index]), penSize);
		if (index == 0)
			path.moveTo(point);
		else
			path.lineTo(point);
	}
	if (closed)
		path.closeSubpath();
	return path;
}


static void
stroke_line(Painter& painter, BPoint start, BPoint end, float penSize)
{
	start = painter.ToHost(start);
	end = painter.ToHost(end);
	const QPoint from = FloorPixel(start);
	const QPoint to = FloorPixel(end);
	const bool isThin = penSize <= 1;
	const bool isStraight = from.x() == to.x() || from.y() == to.y();
	if (isThin && isStraight) {
		painter.FillPixels(QRect(from, to).normalized() | QRect(from, from) | QRect(to, to));
		return;
	}
	if (from == to) {
		painter.FillPixels(QRect(from, from));
		return;
	}
	QPainterPath path(pen_point(start, penSize));
	path.lineTo(pen_point(end, penSize));
	// A thin line includes both of its ends.
	if (isThin)
		painter.StrokePath(path, B_SQUARE_CAP);
	else
		painter.StrokePath(path);
}


void
BView::StrokeLine(BPoint end, ::pattern pattern)
{
	StrokeLine(fData->state.pen, end, pattern);
}


void
BView::StrokeLine(BPoint start, BPoint end, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (!painter.IsEmpty())
		stroke_line(painter, start, end, fData->state.penSize);
	fData->state.pen = end;
}


void
BView::BeginLineArray(int32 count)
{
	fData->lines.clear();
	fData->lines.reserve(static_cast<size_t>(std::clamp<int32>(count, 0, 65536)));
}


void
BView::AddLine(BPoint start, BPoint end, rgb_color color)
{
	fData->lines.push_back({start, end, color});
}


void
BView::EndLineArray()
{
	Painter painter(*fData);
	for (const hosted::ColoredLine& line : fData->lines) {
		if (painter.IsEmpty())
			break;
		painter.Colors().high = line.color;
		stroke_line(painter, line.start, line.end, fData->state.penSize);
	}
	fData->lines = std::vector<hosted::ColoredLine>();
}


static BRect
normalized(BRect rect)
{
	return BRect(std::min(rect.left, rect.right), std::min(rect.top, rect.bottom),
		std::max(rect.left, rect.right), std::max(rect.top, rect.bottom));
}


// Four bars, each pixel once: drawing modes count how often.
static void
fill_frame(Painter& painter, const QRect& outside, int width)
{
	const QRect inside = outside.adjusted(width, width, -width, -width);
	if (inside.isEmpty()) {
		painter.FillPixels(outside);
		return;
	}
	painter.FillPixels(QRect(outside.left(), outside.top(), outside.width(), width));
	painter.FillPixels(QRect(outside.left(), inside.bottom() + 1, outside.width(), width));
	painter.FillPixels(QRect(outside.left(), inside.top(), width, inside.height()));
	painter.FillPixels(QRect(inside.right() + 1, inside.top(), width, inside.height()));
}


void
BView::StrokeRect(BRect rect, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (painter.IsEmpty())
		return;
	const float penSize = fData->state.penSize;
	rect = painter.ToHost(normalized(rect));
	const QRect edges = FloorPixels(rect);
	if (penSize <= 1)
		fill_frame(painter, edges, 1);
	else if (is_whole(penSize) && fData->state.join == B_MITER_JOIN) {
		const int width = static_cast<int>(penSize);
		const int before = width / 2;
		const int after = (width - 1) / 2;
		fill_frame(painter, edges.adjusted(-before, -before, after, after), width);
	} else {
		QPainterPath path;
		path.addRect(
			QRectF(pen_point(rect.LeftTop(), penSize), pen_point(rect.RightBottom(), penSize)));
		painter.StrokePath(path);
	}
}


void
BView::FillRect(BRect rect, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (!painter.IsEmpty())
		painter.FillPixels(FloorPixels(painter.ToHost(rect)));
}


void
BView::FillRegion(BRegion* region, ::pattern pattern)
{
	if (region == nullptr)
		return;
	Painter painter(*fData, pattern);
	if (painter.IsEmpty())
		return;
	const QPoint offset = FloorPixel(painter.ToHost(BPoint()));
	painter.FillRegion(hosted::RegionData::Of(*region).translated(offset));
}


void
BView::InvertRect(BRect rect)
{
	Painter painter(*fData);
	if (painter.IsEmpty())
		return;
	painter.Colors().mode = B_OP_INVERT;
	painter.FillPixels(FloorPixels(painter.ToHost(rect)));
}


// What a fill covers, or the middle of the line around it.
static QRectF
shape_bounds(BRect rect, bool isFill, float penSize)
{
	const QRect pixels(FloorPixel(rect.LeftTop()), FloorPixel(rect.RightBottom()));
	if (isFill)
		return QRectF(pixels);
	return QRectF(pen_point(rect.LeftTop(), penSize), pen_point(rect.RightBottom(), penSize));
}


// The corners keep their radii even where they do not fit into the rectangle.
static QPainterPath
round_rect(const QRectF& rect, float xRadius, float yRadius)
{
	const qreal width = 2 * std::max(0.0f, xRadius);
	const qreal height = 2 * std::max(0.0f, yRadius);
	QPainterPath path;
	path.setFillRule(Qt::WindingFill);
	if (width == 0 || height == 0) {
		path.addRect(rect);
		return path;
	}
	const qreal right = rect.right() - width;
	const qreal bottom = rect.bottom() - height;
	path.arcMoveTo(QRectF(rect.left(), rect.top(), width, height), 180);
	path.arcTo(QRectF(rect.left(), rect.top(), width, height), 180, -90);
	path.arcTo(QRectF(right, rect.top(), width, height), 90, -90);
	path.arcTo(QRectF(right, bottom, width, height), 0, -90);
	path.arcTo(QRectF(rect.left(), bottom, width, height), 270, -90);
	path.closeSubpath();
	return path;
}


void
BView::StrokeRoundRect(BRect rect, float xRadius, float yRadius, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (painter.IsEmpty())
		return;
	const float penSize = fData->state.penSize;
	// Wide lines lie around the rectangle.
	if (penSize > 1) {
		const float inset = -ceilf(penSize / 2 - 0.5f);
		rect.InsetBy(inset, inset);
	}
	painter.StrokePath(
		round_rect(shape_bounds(painter.ToHost(rect), false, penSize), xRadius, yRadius));
}


void
BView::FillRoundRect(BRect rect, float xRadius, float yRadius, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (painter.IsEmpty() || !rect.IsValid())
		return;
	painter.FillPath(round_rect(shape_bounds(painter.ToHost(rect), true, 1), xRadius, yRadius));
}


static BRect
around(BPoint center, float xRadius, float yRadius)
{
	return BRect(center.x - xRadius, center.y - yRadius, center.x + xRadius, center.y + yRadius);
}


void
BView::StrokeEllipse(BPoint center, float xRadius, float yRadius, ::pattern pattern)
{
	StrokeEllipse(around(center, xRadius, yRadius), pattern);
}


void
BView::StrokeEllipse(BRect rect, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (painter.IsEmpty())
		return;
	QPainterPath path;
	path.addEllipse(shape_bounds(painter.ToHost(rect), false, fData->state.penSize));
	painter.StrokePath(path);
}


void
BView::FillEllipse(BPoint center, float xRadius, float yRadius, ::pattern pattern)
{
	FillEllipse(around(center, xRadius, yRadius), pattern);
}


void
BView::FillEllipse(BRect rect, ::pattern pattern)
{
	Painter painter(*fData, pattern);
	if (painter.IsEmpty() || !rect.IsValid())
		return;
	QPainterPath path;
	path.addEllipse(shape_bounds(painter.ToHost(rect), true, 1));
	painter.FillPath(path);
}


void
BView::StrokeTriangle(BPoint point1, BPoint point2, BPoint point3, BRect /* bounds */,
	::pattern pattern)
{
	StrokeTriangle(point1, point2, point3, pattern);
}


void
BView::StrokeTriangle(BPoint point1, BPoint point2, BPoint point3, ::pattern pattern)
{
	const BPoint points[3] = {point1, point2, point3};
	StrokePolygon(points, 3, true, pattern);
}


void
BView::FillTriangle(BPoint point1, BPoint point2, BPoint point3, BRect /* bounds */,
	::pattern pattern)
{
	FillTriangle(point1, point2, point3, pattern);
}


void
BView::FillTriangle(BPoint point1, BPoint point2, BPoint point3, ::pattern pattern)
{
	const BPoint points[3] = {point1, point2, point3};
	FillPolygon(points, 3, pattern);
}


void
BView::StrokePolygon(const BPoint* points, int32 count, bool closed, ::pattern pattern)
{
	if (points == nullptr || count < 2)
		return;
	Painter painter(*fData, pattern);
	if (!painter.IsEmpty())
		painter.StrokePath(polygon(painter, points, count, fData->state.penSize, closed));
}


void
BView::FillPolygon(const BPoint* points, int32 count, ::pattern pattern)
{
	if (points == nullptr || count < 3)
		return;
	Painter painter(*fData, pattern);
	if (!painter.IsEmpty())
		painter.FillPath(polygon(painter, points, count, 1, true));
}
