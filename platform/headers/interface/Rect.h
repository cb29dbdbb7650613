// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef RECT_H
#define RECT_H

#include <math.h>

#include <Point.h>
#include <Size.h>
#include <SupportDefs.h>


/*!	A rectangle of pixels. The edges are the numbers of the outermost pixels, so that it covers one
	pixel more than its width.
*/
class BRect {
public:
	float left = 0;
	float top = 0;
	float right = -1;
	float bottom = -1;

	BRect() = default;
	BRect(float left, float top, float right, float bottom)
		:
		left(left),
		top(top),
		right(right),
		bottom(bottom)
	{
	}

	BRect(BPoint leftTop, BPoint rightBottom)
		:
		BRect(leftTop.x, leftTop.y, rightBottom.x, rightBottom.y)
	{
	}

	BRect(BPoint leftTop, BSize size)
		:
		BRect(leftTop.x, leftTop.y, leftTop.x + size.width, leftTop.y + size.height)
	{
	}

	explicit BRect(float side)
		:
		BRect(0, 0, side - 1, side - 1)
	{
	}

	BRect(float width, float height)
		:
		BRect(0, 0, width, height)
	{
	}

	void Set(float newLeft, float newTop, float newRight, float newBottom)
	{
		left = newLeft;
		top = newTop;
		right = newRight;
		bottom = newBottom;
	}

	void PrintToStream() const;

	BPoint LeftTop() const { return BPoint(left, top); }
	BPoint RightTop() const { return BPoint(right, top); }
	BPoint LeftBottom() const { return BPoint(left, bottom); }
	BPoint RightBottom() const { return BPoint(right, bottom); }
	BSize Size() const { return BSize(right - left, bottom - top); }

	void SetLeftTop(BPoint point);
	void SetRightTop(BPoint point);
	void SetLeftBottom(BPoint point);
	void SetRightBottom(BPoint point);

	void InsetBy(BPoint inset) { InsetBySelf(inset.x, inset.y); }
	void InsetBy(float dx, float dy) { InsetBySelf(dx, dy); }
	void OffsetBy(BPoint delta) { OffsetBySelf(delta.x, delta.y); }
	void OffsetBy(float dx, float dy) { OffsetBySelf(dx, dy); }
	void OffsetTo(BPoint leftTop) { OffsetToSelf(leftTop.x, leftTop.y); }
	void OffsetTo(float newLeft, float newTop) { OffsetToSelf(newLeft, newTop); }

	BRect& InsetBySelf(BPoint inset) { return InsetBySelf(inset.x, inset.y); }
	BRect& InsetBySelf(float dx, float dy);
	BRect InsetByCopy(BPoint inset) const { return BRect(*this).InsetBySelf(inset.x, inset.y); }
	BRect InsetByCopy(float dx, float dy) const { return BRect(*this).InsetBySelf(dx, dy); }
	BRect& OffsetBySelf(BPoint delta) { return OffsetBySelf(delta.x, delta.y); }
	BRect& OffsetBySelf(float dx, float dy);
	BRect OffsetByCopy(BPoint delta) const { return BRect(*this).OffsetBySelf(delta.x, delta.y); }
	BRect OffsetByCopy(float dx, float dy) const { return BRect(*this).OffsetBySelf(dx, dy); }
	BRect& OffsetToSelf(BPoint leftTop) { return OffsetToSelf(leftTop.x, leftTop.y); }
	BRect& OffsetToSelf(float newLeft, float newTop);
	BRect OffsetToCopy(BPoint leftTop) const { return OffsetToCopy(leftTop.x, leftTop.y); }
	BRect OffsetToCopy(float newLeft, float newTop) const
	{
		return BRect(*this).OffsetToSelf(newLeft, newTop);
	}

	bool operator==(BRect other) const;
	bool operator!=(BRect other) const { return !(*this == other); }

	// The common part, and the smallest rectangle around both.
	BRect operator&(BRect other) const;
	BRect operator|(BRect other) const;

	bool IsValid() const { return left <= right && top <= bottom; }
	float Width() const { return right - left; }
	int32 IntegerWidth() const { return static_cast<int32>(ceil(right - left)); }
	float Height() const { return bottom - top; }
	int32 IntegerHeight() const { return static_cast<int32>(ceil(bottom - top)); }

	bool Intersects(BRect other) const;
	bool Contains(BPoint point) const;
	bool Contains(BRect other) const;
};

#endif // RECT_H
