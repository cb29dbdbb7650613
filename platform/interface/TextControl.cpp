// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <TextControl.h>

#include <math.h>
#include <string>

#include <Window.h>


namespace {

/*!	The line of a text control. Enter and leaving it hand a changed text to the control.
 */
class TextInput : public BTextView {
public:
	TextInput(BRect frame, BTextControl* control)
		:
		BTextView(frame, "_input_", frame.OffsetToCopy(B_ORIGIN), B_FOLLOW_ALL,
			B_WILL_DRAW | B_PULSE_NEEDED | B_NAVIGABLE),
		fControl(control)
	{
		SetWordWrap(false);
	}

	void KeyDown(const char* bytes, int32 numBytes) override
	{
		if (numBytes == 1 && bytes[0] == B_ENTER)
			_Commit();
		else if (numBytes == 1 && (bytes[0] == B_UP_ARROW || bytes[0] == B_DOWN_ARROW))
			BView::KeyDown(bytes, numBytes);
		else
			BTextView::KeyDown(bytes, numBytes);
	}

	void MakeFocus(bool focused) override
	{
		if (focused == IsFocus())
			return;
		BTextView::MakeFocus(focused);
		fControl->Invalidate();
		if (focused) {
			fCommitted = Text();
			SelectAll();
		} else {
			Select(0, 0);
			_Commit();
		}
	}

	void SetCommitted(const char* text) { fCommitted = text; }

private:
	void _Commit()
	{
		if (fCommitted == Text() || !fControl->IsEnabled())
			return;
		fCommitted = Text();
		fControl->Invoke();
	}

private:
	BTextControl* fControl;
	std::string fCommitted;
};

} // namespace


BTextControl::BTextControl(BRect frame, const char* name, const char* label, const char* text,
	BMessage* message, uint32 resizingMode, uint32 flags)
	:
	BControl(frame, name, label, message, resizingMode, flags & ~B_NAVIGABLE),
	fTextView(nullptr),
	fDivider(label != nullptr && label[0] != '\0' ? floorf(frame.Width() / 2) : 0)
{
	fTextView = new TextInput(_BoxFrame().InsetByCopy(2, 2), this);
	fTextView->fSingleLine = true;
	AddChild(fTextView);
	BTextControl::SetText(text);
}


BTextControl::~BTextControl() = default;


void
BTextControl::AttachedToWindow()
{
	BControl::AttachedToWindow();
	fTextView->MakeEditable(IsEnabled());
}


void
BTextControl::Draw(BRect)
{
	font_height height;
	GetFontHeight(&height);
	const BRect box = _BoxFrame();
	BString label(Label());
	TruncateString(&label, B_TRUNCATE_END, fDivider - 4);
	SetHighColor(LabelColor());
	const float baseline = floorf((box.top + box.bottom + height.ascent - height.descent) / 2);
	DrawString(label.String(), BPoint(Bounds().left, baseline));

	SetHighColor(fTextView->ViewColor());
	FillRect(box);
	const bool focused = fTextView->IsFocus() && Window()->IsActive();
	SetHighColor(focused
			? ui_color(B_KEYBOARD_NAVIGATION_COLOR)
			:
			tint_color(ViewColor(), IsEnabled() ? B_DARKEN_3_TINT : B_DARKEN_1_TINT));
	StrokeRect(box);
}


void
BTextControl::MouseDown(BPoint)
{
	if (IsEnabled())
		MakeFocus(true);
}


void
BTextControl::MakeFocus(bool focused)
{
	fTextView->MakeFocus(focused);
}


void
BTextControl::SetEnabled(bool enabled)
{
	if (enabled == IsEnabled())
		return;
	fTextView->MakeEditable(enabled);
	fTextView->MakeSelectable(enabled);
	if (!enabled && fTextView->IsFocus())
		fTextView->MakeFocus(false);
	const rgb_color text = enabled
		? ui_color(B_DOCUMENT_TEXT_COLOR)
		:
		tint_color(ui_color(B_DOCUMENT_BACKGROUND_COLOR), B_DARKEN_3_TINT);
	fTextView->SetFontAndColor(nullptr, B_FONT_ALL, &text);
	BControl::SetEnabled(enabled);
}


void
BTextControl::SetText(const char* text)
{
	fTextView->SetText(text);
	static_cast<TextInput*>(fTextView)->SetCommitted(fTextView->Text());
}


const char*
BTextControl::Text() const
{
	return fTextView->Text();
}


void
BTextControl::SetDivider(float position)
{
	fDivider = floorf(position);
	const BRect inner = _BoxFrame().InsetByCopy(2, 2);
	fTextView->MoveTo(inner.LeftTop());
	fTextView->ResizeTo(inner.Width(), inner.Height());
	fTextView->SetTextRect(inner.OffsetToCopy(B_ORIGIN));
	Invalidate();
}


float
BTextControl::Divider() const
{
	return fDivider;
}


BTextView*
BTextControl::TextView() const
{
	return fTextView;
}


BRect
BTextControl::_BoxFrame() const
{
	BRect box = Bounds();
	box.left += fDivider;
	return box;
}
