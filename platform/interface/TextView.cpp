// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What a text view holds and how it looks; its input is in TextViewInput.cpp.
#include <TextView.h>

#include <algorithm>
#include <math.h>
#include <utility>

#include <Window.h>


BTextView::BTextView(BRect frame, const char* name, BRect textRect, uint32 resizingMode,
	uint32 flags)
	:
	BView(frame, name, resizingMode, flags | B_FULL_UPDATE_ON_RESIZE),
	fTextRect(textRect),
	fColor(ui_color(B_DOCUMENT_TEXT_COLOR))
{
	SetViewColor(ui_color(B_DOCUMENT_BACKGROUND_COLOR));
	SetLowColor(ViewColor());
	_Layout();
}


BTextView::~BTextView() = default;


void
BTextView::AttachedToWindow()
{
	BView::AttachedToWindow();
	_Layout();
}


void
BTextView::Draw(BRect updateRect)
{
	SetFont(&fFont);
	const float height = _LineHeight();
	float top = fTextRect.top;
	for (const Line& line : fLines) {
		if (top + height >= updateRect.top && top <= updateRect.bottom)
			_DrawLine(line, top);
		top += height;
	}
	if (_HasCaret() && fCaretLit && fAnchor == fCaret) {
		SetHighColor(fColor);
		FillRect(_CaretRect());
	}
}


void
BTextView::_DrawLine(const Line& line, float top)
{
	const int32 begin = std::max(line.begin, std::min(fAnchor, fCaret));
	const int32 end = std::min(line.end, std::max(fAnchor, fCaret));
	if (begin < end) {
		SetHighColor(tint_color(ui_color(B_CONTROL_HIGHLIGHT_COLOR), B_LIGHTEN_1_TINT));
		FillRect(BRect(fTextRect.left + _WidthTo(line, begin), top,
			fTextRect.left + _WidthTo(line, end), top + _LineHeight() - 1));
	}
	SetHighColor(fColor);
	DrawString(fText.data() + line.begin, line.end - line.begin,
		BPoint(fTextRect.left, top + _Ascent()));
}


void
BTextView::SetText(const char* text)
{
	fText.clear();
	fAnchor = 0;
	fCaret = 0;
	_Replace(0, 0, text != nullptr ? text : "");
	Select(0, 0);
}


void
BTextView::Insert(const char* text)
{
	if (text == nullptr)
		return;
	const int32 where = std::min(fAnchor, fCaret);
	_Replace(where, where, text);
}


void
BTextView::Delete()
{
	Delete(std::min(fAnchor, fCaret), std::max(fAnchor, fCaret));
}


void
BTextView::Delete(int32 startOffset, int32 endOffset)
{
	if (startOffset < endOffset)
		_Replace(_Whole(startOffset), _Whole(endOffset), "");
}


const char*
BTextView::Text() const
{
	return fText.c_str();
}


int32
BTextView::TextLength() const
{
	return int32(fText.size());
}


void
BTextView::Select(int32 startOffset, int32 endOffset)
{
	if (startOffset > endOffset)
		return;
	fAnchor = _Whole(startOffset);
	fCaret = _Whole(endOffset);
	fColumn = -1;
	Invalidate();
}


void
BTextView::SelectAll()
{
	Select(0, TextLength());
}


void
BTextView::GetSelection(int32* startOffset, int32* endOffset) const
{
	*startOffset = std::min(fAnchor, fCaret);
	*endOffset = std::max(fAnchor, fCaret);
}


int32
BTextView::CountLines() const
{
	return int32(fLines.size());
}


void
BTextView::SetTextRect(BRect rect)
{
	fTextRect = rect;
	_Layout();
	Invalidate();
}


BRect
BTextView::TextRect() const
{
	return fTextRect;
}


void
BTextView::SetWordWrap(bool wrap)
{
	fWordWrap = wrap;
	_Layout();
	Invalidate();
}


bool
BTextView::DoesWordWrap() const
{
	return fWordWrap;
}


void
BTextView::MakeEditable(bool editable)
{
	fEditable = editable;
	Invalidate();
}


bool
BTextView::IsEditable() const
{
	return fEditable;
}


void
BTextView::MakeSelectable(bool selectable)
{
	fSelectable = selectable;
	if (!selectable)
		Select(fCaret, fCaret);
}


bool
BTextView::IsSelectable() const
{
	return fSelectable;
}


void
BTextView::SetFontAndColor(const BFont* font, uint32 mode, const rgb_color* color)
{
	if (font != nullptr) {
		// The view's own font takes over what the mask says.
		SetFont(font, mode);
		GetFont(&fFont);
	}
	if (color != nullptr)
		fColor = *color;
	_Layout();
	Invalidate();
}


// Replaces a part of the text, and leaves the caret behind what is new.
void
BTextView::_Replace(int32 begin, int32 end, std::string text)
{
	if (fSingleLine)
		std::replace(text.begin(), text.end(), '\n', ' ');
	fText.replace(begin, end - begin, text);
	_Layout();
	const int32 caret = begin + int32(text.size());
	Select(caret, caret);
	_ScrollToCaret();
}


void
BTextView::_Layout()
{
	fLines.clear();
	int32 begin = 0;
	for (int32 i = 0; i < TextLength(); i++) {
		if (fText[i] == '\n') {
			_LayoutParagraph(begin, i);
			begin = i + 1;
		}
	}
	_LayoutParagraph(begin, TextLength());
}


// Breaks behind blanks, or within a word that is wider than the view.
void
BTextView::_LayoutParagraph(int32 begin, int32 end)
{
	const float limit = fTextRect.Width();
	float width = 0;
	int32 lineBegin = begin;
	// Where the line can end, and its width up to there; none yet if it is lineBegin.
	int32 breakAt = begin;
	float widthAtBreak = 0;
	int32 next;
	for (int32 i = begin; fWordWrap && i < end; i = next) {
		next = std::min(_After(i), end);
		const float characterWidth = fFont.StringWidth(fText.data() + i, next - i);
		const bool blank = fText[i] == ' ' || fText[i] == '\t';
		// A blank may hang over the edge.
		if (!blank && width + characterWidth > limit && i > lineBegin) {
			if (breakAt == lineBegin) {
				breakAt = i;
				widthAtBreak = width;
			}
			fLines.push_back({lineBegin, breakAt});
			lineBegin = breakAt;
			width -= widthAtBreak;
			widthAtBreak = 0;
		}
		width += characterWidth;
		if (blank) {
			breakAt = next;
			widthAtBreak = width;
		}
	}
	fLines.push_back({lineBegin, end});
}


float
BTextView::_LineHeight() const
{
	font_height height;
	fFont.GetHeight(&height);
	return ceilf(height.ascent + height.descent + height.leading);
}


float
BTextView::_Ascent() const
{
	font_height height;
	fFont.GetHeight(&height);
	return ceilf(height.ascent);
}


float
BTextView::_WidthTo(const Line& line, int32 offset) const
{
	return fFont.StringWidth(fText.data() + line.begin, offset - line.begin);
}


// The position before a line that was broken belongs to the next line.
int32
BTextView::_LineOf(int32 offset) const
{
	const auto after = std::upper_bound(fLines.begin(), fLines.end(), offset,
		[](int32 wanted, const Line& line) { return wanted < line.begin; });
	return int32(after - fLines.begin()) - 1;
}


int32
BTextView::_OffsetIn(const Line& line, float x) const
{
	int32 offset = line.begin;
	float left = 0;
	while (offset < line.end) {
		const int32 next = std::min(_After(offset), line.end);
		const float width = fFont.StringWidth(fText.data() + offset, next - offset);
		if (x < left + width / 2)
			break;
		left += width;
		offset = next;
	}
	// Behind its last blank a broken line's position would be the next line's.
	const bool broken = line.end < TextLength() && fText[line.end] != '\n';
	if (broken && offset == line.end && offset > line.begin)
		offset = _Before(offset);
	return offset;
}


int32
BTextView::_OffsetAt(BPoint where) const
{
	const int32 wanted = int32(floorf((where.y - fTextRect.top) / _LineHeight()));
	if (wanted < 0)
		return 0;
	if (wanted >= CountLines())
		return TextLength();
	return _OffsetIn(fLines[wanted], where.x - fTextRect.left);
}


BPoint
BTextView::_PointOf(int32 offset) const
{
	const int32 line = _LineOf(offset);
	return {fTextRect.left + _WidthTo(fLines[line], offset),
		fTextRect.top + float(line) * _LineHeight()};
}


BRect
BTextView::_CaretRect() const
{
	const BPoint top = _PointOf(fCaret);
	return {top.x, top.y, top.x, top.y + _LineHeight() - 1};
}


int32
BTextView::_Before(int32 offset) const
{
	do
		offset--;
	while (offset > 0 && (fText[offset] & 0xc0) == 0x80);
	return std::max(offset, 0);
}


int32
BTextView::_After(int32 offset) const
{
	do
		offset++;
	while (offset < TextLength() && (fText[offset] & 0xc0) == 0x80);
	return std::min(offset, TextLength());
}


int32
BTextView::_Whole(int32 offset) const
{
	offset = std::clamp(offset, 0, TextLength());
	while (offset > 0 && offset < TextLength() && (fText[offset] & 0xc0) == 0x80)
		offset--;
	return offset;
}


bool
BTextView::_HasCaret() const
{
	return fEditable && IsFocus() && Window() != nullptr && Window()->IsActive();
}
