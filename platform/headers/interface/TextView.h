// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TEXT_VIEW_H
#define TEXT_VIEW_H

#include <string>
#include <vector>

#include <Font.h>
#include <View.h>


/*!	Text in lines: selectable, and typed into as long as it is editable.

	Positions count bytes; whatever splits a character is moved to its beginning.
*/
class BTextView : public BView {
public:
	BTextView(BRect frame, const char* name, BRect textRect, uint32 resizingMode,
		uint32 flags = B_WILL_DRAW | B_PULSE_NEEDED);
	~BTextView() override;

	void AttachedToWindow() override;
	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;
	void MouseMoved(BPoint where, uint32 code, const BMessage* dragMessage) override;
	void MouseUp(BPoint where) override;
	void KeyDown(const char* bytes, int32 numBytes) override;
	void Pulse() override;
	void WindowActivated(bool active) override;
	void MessageReceived(BMessage* message) override;
	void MakeFocus(bool focused = true) override;

	void SetText(const char* text);
	// Puts the text where the caret is and moves the caret behind it.
	void Insert(const char* text);
	// Removes the selected text.
	void Delete();
	void Delete(int32 startOffset, int32 endOffset);
	const char* Text() const;
	int32 TextLength() const;

	void Select(int32 startOffset, int32 endOffset);
	void SelectAll();
	void GetSelection(int32* startOffset, int32* endOffset) const;

	int32 CountLines() const;
	void SetTextRect(BRect rect);
	BRect TextRect() const;
	void SetWordWrap(bool wrap);
	bool DoesWordWrap() const;
	void MakeEditable(bool editable = true);
	bool IsEditable() const;
	void MakeSelectable(bool selectable = true);
	bool IsSelectable() const;
	void SetFontAndColor(const BFont* font, uint32 mode = B_FONT_ALL,
		const rgb_color* color = NULL);

private:
	struct Line {
		int32 begin;
		int32 end;
	};

	void _Layout();
	void _LayoutParagraph(int32 begin, int32 end);
	float _LineHeight() const;
	float _Ascent() const;
	float _WidthTo(const Line& line, int32 offset) const;
	int32 _LineOf(int32 offset) const;
	int32 _OffsetIn(const Line& line, float x) const;
	int32 _OffsetAt(BPoint where) const;
	BPoint _PointOf(int32 offset) const;
	BRect _CaretRect() const;
	int32 _Before(int32 offset) const;
	int32 _After(int32 offset) const;
	int32 _Whole(int32 offset) const;
	void _Replace(int32 begin, int32 end, std::string text);
	void _Erase(bool backwards);
	void _MoveCaret(int32 offset, bool extend);
	void _MoveLines(int32 lines, bool extend);
	bool _HandleMove(char byte, bool extend);
	void _ScrollToCaret();
	void _ScrollLines(float lines);
	void _SelectWordAt(int32 offset);
	bool _HasCaret() const;
	void _DrawLine(const Line& line, float top);
	void _Copy(bool cut);
	void _Paste();

private:
	friend class BTextControl;

	std::string fText;
	std::vector<Line> fLines;
	BRect fTextRect;
	BFont fFont;
	rgb_color fColor;
	// The selection reaches from the anchor to the caret, in either order.
	int32 fAnchor = 0;
	int32 fCaret = 0;
	// Where moving up and down aims at; negative as long as no such move is going on.
	float fColumn = -1;
	bool fWordWrap = true;
	bool fEditable = true;
	bool fSelectable = true;
	// Line ends become blanks.
	bool fSingleLine = false;
	bool fDragging = false;
	bool fCaretLit = true;
};

#endif // TEXT_VIEW_H
