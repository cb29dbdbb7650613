// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Button.h>

#include <math.h>

#include <String.h>
#include <Window.h>


BButton::BButton(BRect frame, const char* name, const char* label, BMessage* message,
	uint32 resizingMode, uint32 flags)
	:
	BControl(frame, name, label, message, resizingMode, flags)
{
}


BButton::~BButton() = default;


void
BButton::AttachedToWindow()
{
	BControl::AttachedToWindow();
	if (fDefault && Window() != nullptr)
		Window()->SetDefaultButton(this);
}


void
BButton::DetachedFromWindow()
{
	if (Window() != nullptr && Window()->DefaultButton() == this) {
		Window()->SetDefaultButton(nullptr);
		// It is the default again in the next window.
		fDefault = true;
	}
	BControl::DetachedFromWindow();
}


void
BButton::Draw(BRect)
{
	const rgb_color base = ViewColor();
	const bool pressed = Value() != B_CONTROL_OFF;
	BRect rect = Bounds();
	if (fDefault) {
		SetHighColor(tint_color(base, IsEnabled() ? B_DARKEN_4_TINT : B_DARKEN_2_TINT));
		StrokeRoundRect(rect, 4, 4);
	}
	rect.InsetBy(2, 2);
	rgb_color face = ui_color(B_CONTROL_BACKGROUND_COLOR);
	if (IsEnabled())
		face = tint_color(face, pressed ? B_DARKEN_1_TINT : B_LIGHTEN_1_TINT);
	SetHighColor(face);
	FillRoundRect(rect, 3, 3);
	SetHighColor(tint_color(base, IsEnabled() ? B_DARKEN_3_TINT : B_DARKEN_1_TINT));
	StrokeRoundRect(rect, 3, 3);

	font_height height;
	GetFontHeight(&height);
	BString label(Label());
	TruncateString(&label, B_TRUNCATE_END, rect.Width() - 6);
	const float width = StringWidth(label.String());
	const float left = floorf((rect.left + rect.right - width) / 2) + (pressed ? 1 : 0);
	const float baseline
		= floorf((rect.top + rect.bottom + height.ascent - height.descent) / 2) + (pressed ? 1 : 0);
	SetHighColor(LabelColor());
	DrawString(label.String(), BPoint(left, baseline));
	if (IsFocus() && Window()->IsActive()) {
		SetHighColor(ui_color(B_KEYBOARD_NAVIGATION_COLOR));
		StrokeLine(BPoint(left, baseline + 2), BPoint(left + width, baseline + 2));
	}
}


void
BButton::MouseDown(BPoint)
{
	if (!IsEnabled())
		return;
	SetMouseEventMask(B_POINTER_EVENTS, B_LOCK_WINDOW_FOCUS);
	SetTracking(true);
	SetValue(B_CONTROL_ON);
}


void
BButton::MouseMoved(BPoint where, uint32, const BMessage*)
{
	if (IsTracking())
		SetValue(Bounds().Contains(where) ? B_CONTROL_ON : B_CONTROL_OFF);
}


void
BButton::MouseUp(BPoint where)
{
	if (!IsTracking())
		return;
	SetTracking(false);
	if (Bounds().Contains(where))
		Invoke();
	SetValue(B_CONTROL_OFF);
}


void
BButton::KeyDown(const char* bytes, int32 numBytes)
{
	if (numBytes != 1 || (bytes[0] != B_SPACE && bytes[0] != B_ENTER)) {
		BControl::KeyDown(bytes, numBytes);
		return;
	}
	if (!IsEnabled())
		return;
	SetValue(B_CONTROL_ON);
	Invoke();
}


void
BButton::GetPreferredSize(float* width, float* height)
{
	font_height fontHeight;
	GetFontHeight(&fontHeight);
	if (width != nullptr)
		*width = fmaxf(75, 20 + ceilf(StringWidth(BString(Label()).String())));
	if (height != nullptr)
		*height = ceilf(fontHeight.ascent + fontHeight.descent) + 12;
}


status_t
BButton::Invoke(BMessage* message)
{
	const status_t status = BControl::Invoke(message);
	SetValue(B_CONTROL_OFF);
	return status;
}


void
BButton::MakeDefault(bool flag)
{
	if (flag == fDefault)
		return;
	fDefault = flag;
	Invalidate();
	if (Window() == nullptr)
		return;
	// The window in turn tells the button that was the default before.
	if (flag)
		Window()->SetDefaultButton(this);
	else if (Window()->DefaultButton() == this)
		Window()->SetDefaultButton(nullptr);
}


bool
BButton::IsDefault() const
{
	return fDefault;
}
