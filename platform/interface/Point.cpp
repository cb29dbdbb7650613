// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Point.h>

#include <algorithm>
#include <stdio.h>

#include <Rect.h>


const BPoint B_ORIGIN(0, 0);


void
BPoint::ConstrainTo(BRect rect)
{
	x = std::max(std::min(x, rect.right), rect.left);
	y = std::max(std::min(y, rect.bottom), rect.top);
}


void
BPoint::PrintToStream() const
{
	printf("BPoint(x:%f, y:%f)\n", x, y);
}
