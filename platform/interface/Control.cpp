// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Control.h>

#include <string.h>

#include <Message.h>
#include <OS.h>
#include <Window.h>


BControl::BControl(BRect frame, const char* name, const char* label, BMessage* message,
	uint32 resizingMode, uint32 flags)
	:
	BView(frame, name, resizingMode, flags),
	BInvoker(message, BMessenger()),
	fLabel(label),
	fHasLabel(label != nullptr)
{
}


BControl::~BControl() = default;


void
BControl::AttachedToWindow()
{
	if (Parent() != nullptr)
		SetViewColor(Parent()->ViewColor());
	else
		SetViewColor(ui_color(B_PANEL_BACKGROUND_COLOR));
	SetLowColor(ViewColor());
	if (!Messenger().IsValid())
		SetTarget(Window());
}


void
BControl::DetachedFromWindow()
{
	fTracking = false;
}


void
BControl::MakeFocus(bool focused)
{
	if (focused == IsFocus())
		return;
	BView::MakeFocus(focused);
	Invalidate();
}


void
BControl::WindowActivated(bool active)
{
	BView::WindowActivated(active);
	if (IsFocus())
		Invalidate();
}


void
BControl::KeyDown(const char* bytes, int32 numBytes)
{
	if (numBytes != 1 || (bytes[0] != B_SPACE && bytes[0] != B_ENTER)) {
		BView::KeyDown(bytes, numBytes);
		return;
	}
	if (!fEnabled)
		return;
	SetValue(fValue == B_CONTROL_OFF ? B_CONTROL_ON : B_CONTROL_OFF);
	Invoke();
}


status_t
BControl::Invoke(BMessage* message)
{
	if (message == nullptr)
		message = Message();
	if (message == nullptr)
		return B_BAD_VALUE;
	BMessage copy(*message);
	copy.AddInt64("when", system_time());
	copy.AddPointer("source", this);
	copy.AddInt32("be:value", fValue);
	copy.AddMessenger("be:sender", BMessenger(this));
	return BInvoker::Invoke(&copy);
}


void
BControl::SetLabel(const char* label)
{
	const bool same
		= label != nullptr ? fHasLabel && strcmp(label, fLabel.String()) == 0 : !fHasLabel;
	if (same)
		return;
	fHasLabel = label != nullptr;
	fLabel = fHasLabel ? label : "";
	Invalidate();
}


void
BControl::SetValue(int32 value)
{
	if (value == fValue)
		return;
	fValue = value;
	Invalidate();
}


void
BControl::SetEnabled(bool enabled)
{
	if (enabled == fEnabled)
		return;
	fEnabled = enabled;
	Invalidate();
}


const char*
BControl::Label() const
{
	return fHasLabel ? fLabel.String() : nullptr;
}


int32
BControl::Value() const
{
	return fValue;
}


bool
BControl::IsEnabled() const
{
	return fEnabled;
}


rgb_color
BControl::LabelColor() const
{
	if (fEnabled)
		return ui_color(B_CONTROL_TEXT_COLOR);
	return tint_color(ViewColor(), B_DISABLED_LABEL_TINT);
}


bool
BControl::IsTracking() const
{
	return fTracking;
}


void
BControl::SetTracking(bool tracking)
{
	fTracking = tracking;
}
