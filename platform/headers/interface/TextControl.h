// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TEXT_CONTROL_H
#define TEXT_CONTROL_H

#include <Control.h>
#include <TextView.h>


/*!	A label and a line of text to type into.

	Enter, and leaving the line, invoke the control if the text has changed.
 */
class BTextControl : public BControl {
public:
	BTextControl(BRect frame, const char* name, const char* label, const char* text,
		BMessage* message, uint32 resizingMode = B_FOLLOW_LEFT_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE);
	~BTextControl() override;

	void AttachedToWindow() override;
	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;
	void MakeFocus(bool focused = true) override;
	void SetEnabled(bool enabled) override;

	virtual void SetText(const char* text);
	const char* Text() const;
	virtual void SetDivider(float position);
	float Divider() const;
	BTextView* TextView() const;

private:
	BRect _BoxFrame() const;

private:
	// Child view.
	BTextView* fTextView;
	float fDivider;
};

#endif // TEXT_CONTROL_H
