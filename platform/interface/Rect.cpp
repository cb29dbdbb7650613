// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Rect.h>

#include <algorithm>
#include <stdio.h>


void
BRect::PrintToStream() const
{
	printf("BRect(l:%.1f, t:%.1f, r:%.1f, b:%.1f)\n", left, top, right, bottom);
}


void
BRect::SetLeftTop(BPoint point)
{
	left = point.x;
	top = point.y;
}


void
BRect::SetRightTop(BPoint point)
{
	right = point.x;
	top = point.y;
}


void
BRect::SetLeftBottom(BPoint point)
{
	left = point.x;
	bottom = point.y;
}


void
BRect::SetRightBottom(BPoint point)
{
	right = point.x;
	bottom = point.y;
}


BRect&
BRect::InsetBySelf(float dx, float dy)
{
	left += dx;
	top += dy;
	right -= dx;
	bottom -= dy;
	return *this;
}


BRect&
BRect::OffsetBySelf(float dx, float dy)
{
	left += dx;
	top += dy;
	right += dx;
	bottom += dy;
	return *this;
}


BRect&
BRect::OffsetToSelf(float newLeft, float newTop)
{
	right = newLeft + (right - left);
	bottom = newTop + (bottom - top);
	left = newLeft;
	top = newTop;
	return *this;
}


bool
BRect::operator==(BRect other) const
{
	return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
}


BRect
BRect::operator&(BRect other) const
{
	return BRect(std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
		std::min(bottom, other.bottom));
}


BRect
BRect::operator|(BRect other) const
{
	return BRect(std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
		std::max(bottom, other.bottom));
}


bool
BRect::Intersects(BRect other) const
{
	if (!IsValid() || !other.IsValid())
		return false;
	return left <= other.right && other.left <= right && top <= other.bottom && other.top <= bottom;
}


bool
BRect::Contains(BPoint point) const
{
	return point.x >= left && point.x <= right && point.y >= top && point.y <= bottom;
}


bool
BRect::Contains(BRect other) const
{
	return other.left >= left && other.right <= right && other.top >= top && other.bottom <= bottom;
}
