// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// The glyphs of the six play buttons.

#include "listview/MxView.h"

#include <stdio.h>

#include <GraphicsDefs.h>


namespace {

constexpr rgb_color kHighlight = {252, 252, 252, 255};
constexpr rgb_color kGlyph = {25, 25, 25, 255};
// Side of the square that holds a glyph.
constexpr float kBoxSide = 22;

} // namespace


void
MxView::PlyBut(long button, BRect frame)
{
	if (button < 0 || button > 5) {
		buttonRect[5] = frame;
		printf(" %ld ..BAD PLYBUTTON !!\n", button);
		return;
	}

	buttonRect[button] = frame;
	const float x = static_cast<int32>(frame.left + (frame.Width() * 0.5 - 11) + 2);
	const float y = static_cast<int32>(frame.top + (frame.Height() * 0.5 - 11));
	const BRect box(x, y, x + kBoxSide, y + kBoxSide);
	// The light copy shows as an edge below and right of the dark one.
	SetHighColor(kHighlight);
	_DrawGlyph(button, box);
	SetHighColor(kGlyph);
	_DrawGlyph(button, box.OffsetByCopy(-2, -1));
}


void
MxView::_DrawGlyph(int32 button, BRect box)
{
	const float x0 = box.left;
	const float y0 = box.top;
	const float x1 = box.right;
	const float y1 = box.bottom;
	const auto triangle = [&](float baseY, float tipY) {
		FillTriangle(BPoint(x0 + 3, baseY), BPoint(x1 - 3, baseY), BPoint(x0 + 11, tipY));
	};

	switch (button) {
		case 0:
			triangle(y1 - 5, y0 + 9);
			FillRect(BRect(x0 + 3, y0 + 5, x1 - 3, y0 + 7));
			break;
		case 1:
			triangle(y0 + 5, y1 - 9);
			FillRect(BRect(x0 + 3, y1 - 7, x1 - 3, y1 - 5));
			break;
		case 2:
			triangle(y0 + 11, y0 + 3);
			triangle(y1 - 2, y1 - 10);
			break;
		case 3:
			triangle(y0 + 2, y0 + 10);
			triangle(y1 - 11, y1 - 3);
			break;
		case 4:
			triangle(y1 - 6, y0 + 8);
			break;
		default:
			triangle(y0 + 6, y1 - 8);
			break;
	}
}
