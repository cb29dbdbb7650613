// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STRING_VIEW_H
#define STRING_VIEW_H

#include <String.h>
#include <View.h>


class BStringView : public BView {
public:
	BStringView(BRect frame, const char* name, const char* text,
		uint32 resizingMode = B_FOLLOW_LEFT_TOP, uint32 flags = B_WILL_DRAW);
	~BStringView() override;

	void AttachedToWindow() override;
	void Draw(BRect updateRect) override;
	void GetPreferredSize(float* width, float* height) override;

	void SetText(const char* text);
	const char* Text() const;
	void SetAlignment(alignment flag);
	alignment Alignment() const;
	// One of the B_TRUNCATE_ values, or B_NO_TRUNCATION.
	void SetTruncation(uint32 truncationMode);
	uint32 Truncation() const;

private:
	BString fText;
	bool fHasText = false;
	alignment fAlignment = B_ALIGN_LEFT;
	uint32 fTruncation = B_NO_TRUNCATION;
};

#endif // STRING_VIEW_H
