// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PAINTER_H
#define PAINTER_H

#include <functional>

#include <QImage>
#include <QRegion>

#include <GraphicsDefs.h>
#include <Rect.h>

#include "platform/interface/PixelModes.h"

class QColor;
class QPainter;
class QPainterPath;
class QString;


namespace hosted {

struct BitmapData;
struct ViewData;

/*!	One drawing call of a view: knows where it may paint and with what, and reports what it painted.

	Coordinates are the host's, in pixels; what is called dots is what the host's image is made of.
*/
class Painter {
public:
	explicit Painter(ViewData& view, const pattern& pattern = B_SOLID_HIGH);
	~Painter();
	Painter(const Painter&) = delete;
	Painter& operator=(const Painter&) = delete;

	// Nothing of the view can be painted now.
	bool IsEmpty() const { return fClip.isEmpty(); }

	BPoint ToHost(BPoint point) const { return point + fOffset; }
	BRect ToHost(BRect rect) const { return rect.OffsetByCopy(fOffset); }

	Ink& Colors() { return fInk; }

	void FillPixels(const QRect& pixels);
	void FillRegion(const QRegion& pixels);
	// Smooth edges.
	void FillPath(const QPainterPath& path);
	void StrokePath(const QPainterPath& path);
	void StrokePath(const QPainterPath& path, cap_mode cap);
	// The left end of the base line.
	void DrawText(QPoint where, const QString& text);
	// The source counts the picture's pixels from its first.
	void DrawPicture(BitmapData& bitmap, BRect source, BRect destination, uint32 options);

private:
	friend void PaintBackground(ViewData& view);

	using Paint = std::function<void(QPainter& painter, const QColor& color)>;

	void _Smooth(const QRect& bounds, const Paint& paint);
	void _SmoothByMask(const QRegion& clip, const Paint& paint);
	// Calls with every rectangle of the clipping region that is in the bounds. Both are in dots.
	void _ForClip(const QRect& bounds, const std::function<void(const QRect& part)>& paint);
	void _DrawNearest(BitmapData& bitmap, const QRect& source, const QRect& target);
	void _DrawSmooth(BitmapData& bitmap, const QRect& source, const QRect& target);
	bool _IsPlain() const;
	QRgb* _Row(int x, int y);

	ViewData& fView;
	QImage* fImage = nullptr;
	int fDots = 1;
	QRegion fClip;
	BPoint fOffset;
	Ink fInk;
	QRect fTouched;
};

// The view color and picture, where the update paints.
void PaintBackground(ViewData& view);

} // namespace hosted

#endif // PAINTER_H
