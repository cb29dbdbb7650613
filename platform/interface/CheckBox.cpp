// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <CheckBox.h>

#include <math.h>

#include <String.h>
#include <Window.h>

static const float kMarkSize = 12;
static const float kLabelGap = 6;


BCheckBox::BCheckBox(BRect frame, const char* name, const char* label, BMessage* message,
	uint32 resizingMode, uint32 flags)
	:
	BControl(frame, name, label, message, resizingMode, flags)
{
}


BCheckBox::~BCheckBox() = default;


void
BCheckBox::Draw(BRect)
{
	const BRect box = _MarkFrame();
	const rgb_color base = ViewColor();
	SetHighColor(fPressed ? tint_color(base, B_DARKEN_1_TINT) : make_color(255, 255, 255));
	if (!IsEnabled())
		SetHighColor(tint_color(base, B_LIGHTEN_1_TINT));
	FillRect(box);
	const bool focused = IsFocus() && Window()->IsActive();
	if (focused)
		SetHighColor(ui_color(B_KEYBOARD_NAVIGATION_COLOR));
	else
		SetHighColor(tint_color(base, IsEnabled() ? B_DARKEN_3_TINT : B_DARKEN_1_TINT));
	StrokeRect(box);

	if (Value() != B_CONTROL_OFF) {
		SetHighColor(
			IsEnabled() ? ui_color(B_CONTROL_MARK_COLOR) : tint_color(base, B_DISABLED_LABEL_TINT));
		const BRect mark = box.InsetByCopy(3, 3);
		SetPenSize(2);
		StrokeLine(mark.LeftTop(), mark.RightBottom());
		StrokeLine(mark.LeftBottom(), mark.RightTop());
		SetPenSize(1);
	}

	font_height height;
	GetFontHeight(&height);
	SetHighColor(LabelColor());
	const BRect bounds = Bounds();
	const float baseline
		= floorf((bounds.top + bounds.bottom + height.ascent - height.descent) / 2);
	DrawString(BString(Label()).String(), BPoint(box.right + kLabelGap, baseline));
}


void
BCheckBox::MouseDown(BPoint)
{
	if (!IsEnabled())
		return;
	SetMouseEventMask(B_POINTER_EVENTS, B_LOCK_WINDOW_FOCUS);
	SetTracking(true);
	fPressed = true;
	Invalidate();
}


void
BCheckBox::MouseMoved(BPoint where, uint32, const BMessage*)
{
	const bool inside = Bounds().Contains(where);
	if (!IsTracking() || inside == fPressed)
		return;
	fPressed = inside;
	Invalidate();
}


void
BCheckBox::MouseUp(BPoint where)
{
	if (!IsTracking())
		return;
	SetTracking(false);
	fPressed = false;
	Invalidate();
	if (!Bounds().Contains(where))
		return;
	SetValue(Value() == B_CONTROL_OFF ? B_CONTROL_ON : B_CONTROL_OFF);
	Invoke();
}


void
BCheckBox::GetPreferredSize(float* width, float* height)
{
	font_height fontHeight;
	GetFontHeight(&fontHeight);
	if (width != nullptr) {
		*width = 2 + kMarkSize + kLabelGap + ceilf(StringWidth(BString(Label()).String()));
	}
	if (height != nullptr)
		*height = fmaxf(kMarkSize + 2, ceilf(fontHeight.ascent + fontHeight.descent) + 4);
}


BRect
BCheckBox::_MarkFrame() const
{
	const BRect bounds = Bounds();
	const float top = floorf((bounds.top + bounds.bottom - kMarkSize) / 2);
	return {bounds.left + 1, top, bounds.left + 1 + kMarkSize, top + kMarkSize};
}
