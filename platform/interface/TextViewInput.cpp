// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// How a text view answers to the mouse, the keys and the clipboard.
#include <TextView.h>

#include <algorithm>
#include <ctype.h>
#include <math.h>

#include <Clipboard.h>
#include <Message.h>
#include <Window.h>


void
BTextView::MouseDown(BPoint where)
{
	if (!fEditable && !fSelectable)
		return;
	MakeFocus(true);
	const BMessage* message = Window()->CurrentMessage();
	const int32 clicks = message != nullptr ? message->GetInt32("clicks", 1) : 1;
	const int32 modifiers = message != nullptr ? message->GetInt32("modifiers", 0) : 0;
	const int32 offset = _OffsetAt(where);
	if (fSelectable && clicks > 1) {
		_SelectWordAt(offset);
		return;
	}
	_MoveCaret(offset, fSelectable && (modifiers & B_SHIFT_KEY) != 0);
	fDragging = fSelectable;
	SetMouseEventMask(B_POINTER_EVENTS, B_LOCK_WINDOW_FOCUS);
}


void
BTextView::MouseMoved(BPoint where, uint32, const BMessage*)
{
	if (fDragging)
		_MoveCaret(_OffsetAt(where), true);
}


void
BTextView::MouseUp(BPoint)
{
	fDragging = false;
}


void
BTextView::KeyDown(const char* bytes, int32 numBytes)
{
	const BMessage* message = Window() != nullptr ? Window()->CurrentMessage() : nullptr;
	const bool shift = message != nullptr && (message->GetInt32("modifiers", 0) & B_SHIFT_KEY) != 0;
	if (numBytes == 1 && _HandleMove(bytes[0], shift && fSelectable))
		return;
	const bool control = numBytes == 1 && (uint8(bytes[0]) < B_SPACE && bytes[0] != B_ENTER);
	if (!fEditable || numBytes < 1 || (control && bytes[0] != B_BACKSPACE)) {
		BView::KeyDown(bytes, numBytes);
		return;
	}
	if (bytes[0] == B_BACKSPACE || bytes[0] == B_DELETE) {
		_Erase(bytes[0] == B_BACKSPACE);
		return;
	}
	_Replace(std::min(fAnchor, fCaret), std::max(fAnchor, fCaret),
		std::string(bytes, size_t(numBytes)));
}


// Backspace and Delete remove the selection, or the character before or behind the caret.
void
BTextView::_Erase(bool backwards)
{
	int32 begin = std::min(fAnchor, fCaret);
	int32 end = std::max(fAnchor, fCaret);
	if (begin == end && backwards)
		begin = begin > 0 ? _Before(begin) : 0;
	else if (begin == end)
		end = end < TextLength() ? _After(end) : end;
	Delete(begin, end);
}


bool
BTextView::_HandleMove(char byte, bool extend)
{
	if (!fEditable && !fSelectable)
		return false;
	const Line& line = fLines[_LineOf(fCaret)];
	const bool selected = fAnchor != fCaret && !extend;
	const int32 page = std::max(1, int32(Bounds().Height() / _LineHeight()) - 1);
	switch (byte) {
		case B_LEFT_ARROW:
			_MoveCaret(selected ? std::min(fAnchor, fCaret) : _Before(fCaret), extend);
			return true;
		case B_RIGHT_ARROW:
			_MoveCaret(selected ? std::max(fAnchor, fCaret) : _After(fCaret), extend);
			return true;
		case B_UP_ARROW:
			_MoveLines(-1, extend);
			return true;
		case B_DOWN_ARROW:
			_MoveLines(1, extend);
			return true;
		case B_PAGE_UP:
			_MoveLines(-page, extend);
			return true;
		case B_PAGE_DOWN:
			_MoveLines(page, extend);
			return true;
		case B_HOME:
			_MoveCaret(line.begin, extend);
			return true;
		case B_END:
			_MoveCaret(_OffsetIn(line, INFINITY), extend);
			return true;
		default:
			return false;
	}
}


void
BTextView::_MoveCaret(int32 offset, bool extend)
{
	fCaret = offset;
	if (!extend)
		fAnchor = offset;
	fColumn = -1;
	fCaretLit = true;
	_ScrollToCaret();
	Invalidate();
}


// Keeps to the column where the moving began, as far as the lines are long enough.
void
BTextView::_MoveLines(int32 lines, bool extend)
{
	const BPoint here = _PointOf(fCaret);
	const float column = fColumn >= 0 ? fColumn : here.x;
	_MoveCaret(_OffsetAt(BPoint(column, here.y + (float(lines) + 0.5f) * _LineHeight())), extend);
	fColumn = column;
}


void
BTextView::_ScrollToCaret()
{
	if (Window() == nullptr)
		return;
	const BRect bounds = Bounds();
	const BRect caret = _CaretRect();
	BPoint to = bounds.LeftTop();
	if (caret.bottom > bounds.bottom)
		to.y += caret.bottom - bounds.bottom;
	if (caret.top < to.y)
		to.y = caret.top <= fTextRect.top ? 0 : caret.top;
	if (caret.right > bounds.right)
		to.x += caret.right - bounds.right;
	if (caret.left < to.x)
		to.x = caret.left <= fTextRect.left ? 0 : caret.left;
	if (to != bounds.LeftTop())
		ScrollTo(to);
}


void
BTextView::_ScrollLines(float lines)
{
	const float height = _LineHeight();
	const float end = fTextRect.top + float(CountLines()) * height;
	const float lowest = fmaxf(0, end - Bounds().Height());
	const float top = std::clamp(Bounds().top + lines * height, 0.0f, lowest);
	if (top != Bounds().top)
		ScrollTo(BPoint(Bounds().left, roundf(top)));
}


void
BTextView::_SelectWordAt(int32 offset)
{
	const auto inWord = [this](int32 at) {
		return at < TextLength() && (isalnum(uint8(fText[at])) != 0 || (fText[at] & 0x80) != 0);
	};
	int32 begin = offset;
	int32 end = offset;
	while (begin > 0 && inWord(begin - 1))
		begin--;
	while (inWord(end))
		end++;
	Select(begin, end);
}


void
BTextView::Pulse()
{
	if (!_HasCaret() || fAnchor != fCaret)
		return;
	fCaretLit = !fCaretLit;
	Invalidate(_CaretRect());
}


void
BTextView::WindowActivated(bool active)
{
	BView::WindowActivated(active);
	if (IsFocus())
		Invalidate();
}


void
BTextView::MakeFocus(bool focused)
{
	if (focused == IsFocus())
		return;
	BView::MakeFocus(focused);
	fCaretLit = true;
	Invalidate();
}


void
BTextView::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case B_CUT:
			_Copy(fEditable);
			break;
		case B_COPY:
			_Copy(false);
			break;
		case B_PASTE:
			_Paste();
			break;
		case B_SELECT_ALL:
			if (fSelectable)
				SelectAll();
			break;
		case B_MOUSE_WHEEL_CHANGED:
			_ScrollLines(3 * message->GetFloat("be:wheel_delta_y", 0));
			break;
		default:
			BView::MessageReceived(message);
			break;
	}
}


void
BTextView::_Copy(bool cut)
{
	int32 begin;
	int32 end;
	GetSelection(&begin, &end);
	if (begin == end || !be_clipboard->Lock())
		return;
	be_clipboard->Clear();
	be_clipboard->Data()->AddData("text/plain", B_MIME_TYPE, fText.data() + begin, end - begin);
	be_clipboard->Commit();
	be_clipboard->Unlock();
	if (cut)
		Delete();
}


void
BTextView::_Paste()
{
	if (!fEditable || !be_clipboard->Lock())
		return;
	std::string text;
	const void* data;
	ssize_t size;
	if (be_clipboard->Data()->FindData("text/plain", B_MIME_TYPE, &data, &size) == B_OK)
		text.assign(static_cast<const char*>(data), size_t(size));
	be_clipboard->Unlock();
	if (!text.empty())
		_Replace(std::min(fAnchor, fCaret), std::max(fAnchor, fCaret), text);
}
