// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BUTTON_H
#define BUTTON_H

#include <Control.h>


class BButton : public BControl {
public:
	BButton(BRect frame, const char* name, const char* label, BMessage* message,
		uint32 resizingMode = B_FOLLOW_LEFT_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE | B_FULL_UPDATE_ON_RESIZE);
	~BButton() override;

	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;
	void MouseMoved(BPoint where, uint32 code, const BMessage* dragMessage) override;
	void MouseUp(BPoint where) override;
	void KeyDown(const char* bytes, int32 numBytes) override;
	void AttachedToWindow() override;
	void DetachedFromWindow() override;
	void GetPreferredSize(float* width, float* height) override;
	status_t Invoke(BMessage* message = NULL) override;

	// The default button takes Enter for the whole window.
	virtual void MakeDefault(bool flag);
	bool IsDefault() const;

private:
	bool fDefault = false;
};

#endif // BUTTON_H
