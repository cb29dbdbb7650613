// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef CHECK_BOX_H
#define CHECK_BOX_H

#include <Control.h>


class BCheckBox : public BControl {
public:
	BCheckBox(BRect frame, const char* name, const char* label, BMessage* message,
		uint32 resizingMode = B_FOLLOW_LEFT_TOP, uint32 flags = B_WILL_DRAW | B_NAVIGABLE);
	~BCheckBox() override;

	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;
	void MouseMoved(BPoint where, uint32 code, const BMessage* dragMessage) override;
	void MouseUp(BPoint where) override;
	void GetPreferredSize(float* width, float* height) override;

private:
	BRect _MarkFrame() const;

private:
	// The mouse button went down on the box and is still over it.
	bool fPressed = false;
};

#endif // CHECK_BOX_H
