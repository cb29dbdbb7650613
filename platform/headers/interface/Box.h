// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BOX_H
#define BOX_H

#include <String.h>
#include <View.h>


class BBox : public BView {
public:
	BBox(BRect frame, const char* name = NULL, uint32 resizingMode = B_FOLLOW_LEFT_TOP,
		uint32 flags = B_WILL_DRAW | B_FRAME_EVENTS | B_NAVIGABLE_JUMP,
		border_style border = B_FANCY_BORDER);
	~BBox() override;

	void AttachedToWindow() override;
	void Draw(BRect updateRect) override;
	void FrameResized(float width, float height) override;

	void SetLabel(const char* label);
	const char* Label() const;
	virtual void SetBorder(border_style border);
	border_style Border() const;

private:
	BString fLabel;
	bool fHasLabel = false;
	border_style fBorder;
};

#endif // BOX_H
