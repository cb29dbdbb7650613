// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PIXELS_H
#define PIXELS_H

#include <math.h>

#include <QPoint>
#include <QRect>

#include <GraphicsDefs.h>
#include <Rect.h>


// From coordinates to whole pixels.
namespace hosted {

// Coordinates beyond this are taken as this; Qt's rectangles have room to add them up.
inline constexpr float kFarAway = 16777216;

inline int
FloorPixel(float value)
{
	if (!(value > -kFarAway))
		return -static_cast<int>(kFarAway);
	if (value > kFarAway)
		return static_cast<int>(kFarAway);
	return static_cast<int>(floorf(value));
}


inline QPoint
FloorPixel(BPoint point)
{
	return QPoint(FloorPixel(point.x), FloorPixel(point.y));
}


// The pixels of a rectangle, both edges included; empty if it is invalid.
inline QRect
FloorPixels(BRect rect)
{
	if (!rect.IsValid())
		return QRect();
	return QRect(FloorPixel(rect.LeftTop()), FloorPixel(rect.RightBottom()));
}


inline BRect
ToRect(const QRect& rect)
{
	return BRect(rect.left(), rect.top(), rect.right(), rect.bottom());
}


inline uint32
ToPixel(rgb_color color)
{
	return static_cast<uint32>(color.alpha) << 24 | static_cast<uint32>(color.red) << 16
		| static_cast<uint32>(color.green) << 8 | color.blue;
}


inline bool
IsTransparent(rgb_color color)
{
	return color == B_TRANSPARENT_COLOR;
}

} // namespace hosted

#endif // PIXELS_H
