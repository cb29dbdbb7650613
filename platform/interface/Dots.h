// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DOTS_H
#define DOTS_H

#include <QImage>
#include <QRect>


// A pixel of the kits is one or more dots of a fine screen wide and high. The images that views are
// painted into know how many.
namespace hosted {

inline int
DotsPerPixel(const QImage& image)
{
	return qRound(image.devicePixelRatio());
}


inline QRect
ToDots(const QRect& pixels, int dots)
{
	return QRect(pixels.topLeft() * dots, pixels.size() * dots);
}


// The pixels that these dots, none of them negative, are part of.
inline QRect
ToPixels(const QRect& rect, int dots)
{
	return QRect(QPoint(rect.left() / dots, rect.top() / dots),
		QPoint(rect.right() / dots, rect.bottom() / dots));
}


// All pixels of the image.
inline QRect
PixelsOf(const QImage& image)
{
	return ToPixels(image.rect(), DotsPerPixel(image));
}

} // namespace hosted

#endif // DOTS_H
