// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Box.h>

#include <math.h>


BBox::BBox(BRect frame, const char* name, uint32 resizingMode, uint32 flags, border_style border)
	:
	BView(frame, name, resizingMode, flags | B_WILL_DRAW | B_FRAME_EVENTS),
	fBorder(border)
{
}


BBox::~BBox() = default;


void
BBox::AttachedToWindow()
{
	if (Parent() != nullptr)
		SetViewColor(Parent()->ViewColor());
	else
		SetViewColor(ui_color(B_PANEL_BACKGROUND_COLOR));
	SetLowColor(ViewColor());
}


void
BBox::Draw(BRect)
{
	font_height height;
	GetFontHeight(&height);
	const rgb_color base = ViewColor();
	BRect rect = Bounds();
	if (fHasLabel)
		rect.top += floorf(height.ascent / 2);

	if (fBorder == B_FANCY_BORDER) {
		SetHighColor(tint_color(base, B_LIGHTEN_MAX_TINT));
		StrokeRect(BRect(rect.left + 1, rect.top + 1, rect.right, rect.bottom));
		SetHighColor(tint_color(base, B_DARKEN_2_TINT));
		StrokeRect(BRect(rect.left, rect.top, rect.right - 1, rect.bottom - 1));
	} else if (fBorder == B_PLAIN_BORDER) {
		SetHighColor(tint_color(base, B_DARKEN_3_TINT));
		StrokeRect(rect);
	}
	if (!fHasLabel)
		return;

	const float left = Bounds().left + 10;
	SetHighColor(base);
	FillRect(BRect(left - 4, Bounds().top, left + StringWidth(fLabel.String()) + 4,
		Bounds().top + ceilf(height.ascent + height.descent)));
	SetHighColor(ui_color(B_PANEL_TEXT_COLOR));
	DrawString(fLabel.String(), BPoint(left, Bounds().top + ceilf(height.ascent)));
}


// The frame's old edges lie inside a box that has grown.
void
BBox::FrameResized(float, float)
{
	Invalidate();
}


void
BBox::SetLabel(const char* label)
{
	fHasLabel = label != nullptr;
	fLabel = fHasLabel ? label : "";
	Invalidate();
}


const char*
BBox::Label() const
{
	return fHasLabel ? fLabel.String() : nullptr;
}


void
BBox::SetBorder(border_style border)
{
	fBorder = border;
	Invalidate();
}


border_style
BBox::Border() const
{
	return fBorder;
}
