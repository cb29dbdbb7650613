// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <StringView.h>

#include <math.h>
#include <string.h>


BStringView::BStringView(BRect frame, const char* name, const char* text, uint32 resizingMode,
	uint32 flags)
	:
	BView(frame, name, resizingMode, flags | B_FULL_UPDATE_ON_RESIZE),
	fText(text),
	fHasText(text != nullptr)
{
}


BStringView::~BStringView() = default;


void
BStringView::AttachedToWindow()
{
	if (Parent() == nullptr)
		return;
	SetViewColor(Parent()->ViewColor());
	SetLowColor(ViewColor());
}


void
BStringView::Draw(BRect)
{
	if (!fHasText)
		return;
	const BRect bounds = Bounds();
	BString text(fText);
	if (fTruncation != B_NO_TRUNCATION)
		TruncateString(&text, fTruncation, bounds.Width());
	font_height height;
	GetFontHeight(&height);

	float x = bounds.left;
	if (fAlignment == B_ALIGN_RIGHT)
		x = bounds.right - StringWidth(text.String());
	else if (fAlignment == B_ALIGN_CENTER)
		x = bounds.left + (bounds.Width() - StringWidth(text.String())) / 2;
	DrawString(text.String(), BPoint(x, bounds.bottom - ceilf(height.descent)));
}


void
BStringView::GetPreferredSize(float* width, float* height)
{
	font_height fontHeight;
	GetFontHeight(&fontHeight);
	if (width != nullptr)
		*width = ceilf(StringWidth(fText.String()));
	if (height != nullptr)
		*height = ceilf(fontHeight.ascent + fontHeight.descent + fontHeight.leading);
}


void
BStringView::SetText(const char* text)
{
	const bool same = text != nullptr ? fHasText && strcmp(text, fText.String()) == 0 : !fHasText;
	if (same)
		return;
	fHasText = text != nullptr;
	fText = fHasText ? text : "";
	Invalidate();
}


const char*
BStringView::Text() const
{
	return fHasText ? fText.String() : nullptr;
}


void
BStringView::SetAlignment(alignment flag)
{
	fAlignment = flag;
	Invalidate();
}


alignment
BStringView::Alignment() const
{
	return fAlignment;
}


void
BStringView::SetTruncation(uint32 truncationMode)
{
	if (truncationMode == fTruncation)
		return;
	fTruncation = truncationMode;
	Invalidate();
}


uint32
BStringView::Truncation() const
{
	return fTruncation;
}
