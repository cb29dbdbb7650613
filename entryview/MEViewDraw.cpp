// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Drawing of a tile.
#include "entryview/MEView.h"

#include <algorithm>

#include <Bitmap.h>
#include <Font.h>

#include "locale/Labels.h"
#include "settings/Prefs.h"


// Where texts begin beside a built-in picture.
static constexpr float kBesidePicture = 59;
static constexpr float kRightMargin = 5;
static constexpr float kLabelFontSize = 10;
static constexpr float kNumberBaseline = 25;
static constexpr float kTimeBaseline = 40;
// Pixels between a line of text and what stands at the right of it.
static constexpr float kLabelGap = 6;
static constexpr float kEdgeGap = 10;
// How far the red star moves the name.
static constexpr float kStarWidth = 20;


static bool
overlap(float top, float bottom, float otherTop, float otherBottom)
{
	return top < otherBottom && otherTop < bottom;
}


void
MEView::Draw(BRect)
{
	if (Frame().bottom < 0)
		return;

	const BRect bounds = Bounds();
	PushState();
	SetHighColor(Parent() != nullptr ? Parent()->ViewColor() : ViewColor());
	StrokeRect(bounds);
	SetHighColor(_DrawBackground(bounds));
	StrokeRoundRect(bounds, 3, 3);

	const float fontSize = bounds.Height() / 3.5f;
	SetFontSize(fontSize);
	float y = bounds.bottom - 3 - fontSize * 0.5f;
	float x = _DrawPicture(bounds);
	_DrawName(BPoint(x, y));

	y -= fontSize + 4;
	if (fArtist.Length() > 2) {
		SetFontSize(fontSize * 0.8f);
		_DrawCut(fArtist.String(), BPoint(x, y));
	}

	if (!fFound) {
		if (SadImage != nullptr) {
			DrawBitmap(SadImage, BRect(3, 3, 50, 50));
			x = kBesidePicture;
		}
		if (bounds.Height() <= 50)
			y += 4;
		_DrawMissing(BPoint(x, y));
	}
	_DrawNumber(bounds);
	_DrawTime(bounds);
	PopState();
}


// Fills the tile and returns the color of its frame, which the name is drawn in, too.
rgb_color
MEView::_DrawBackground(BRect bounds)
{
	const bool playing = mPrefs->playingTitle == fName;
	const rgb_color fill = playing ? rgb_color{250, 250, 150, 50} : rgb_color{240, 240, 240, 50};
	SetHighColor(fill);
	FillRoundRect(bounds.InsetByCopy(1, 1), 3, 3);

	if (fNumber == IsNext && fNumber != IsSelected)
		return {120, 120, 250, 50};
	return playing ? rgb_color{20, 20, 20, 50} : rgb_color{130, 130, 130, 50};
}


// Draws the cover or the picture of the kind, and returns where the texts begin.
float
MEView::_DrawPicture(BRect bounds)
{
	const float height = bounds.Height();
	float x = 5;
	if (fCover != nullptr && fFound) {
		if (SepListSelected) {
			x = 5 - height;
		} else {
			DrawBitmap(fCover, BRect(3, 3, height - 3, height - 3));
			fCoverDrawn = true;
		}
	}
	x = height + 5 + x;

	SetDrawingMode(B_OP_BLEND);
	if (fCover == nullptr && (fKind == kAudioKind || fKind == kVideoKind)) {
		DrawBitmap(fKind == kAudioKind ? SadAudImage : SadVidImage, BRect(3, 3, 50, 52));
		x = kBesidePicture;
	}
	if (!fFound && SadImage != nullptr)
		x = kBesidePicture;
	SetDrawingMode(B_OP_OVER);
	return x;
}


void
MEView::_DrawName(BPoint where)
{
	if (fBadCharacters) {
		const rgb_color color = HighColor();
		SetHighColor(250, 80, 80);
		DrawString("*", where);
		SetHighColor(color);
		where.x += kStarWidth;
	}
	_DrawCut(fName.String(), where);
}


void
MEView::_DrawMissing(BPoint where)
{
	SetHighColor(250, 120, 50);
	_DrawCut(getLabel(179), where);
	if (fMissingPath.InitCheck() == B_OK) {
		SetFontSize(9);
		_DrawCut(fMissingPath.Path(), BPoint(where.x, 10.5));
	}
}


void
MEView::_DrawNumber(BRect bounds)
{
	const BString text = _NumberText();
	SetFontSize(kLabelFontSize);
	SetHighColor(130, 130, 130);
	const float x = bounds.right - kRightMargin - StringWidth(text.String());
	DrawString(text.String(), BPoint(x, bounds.top + kNumberBaseline));
}


void
MEView::_DrawTime(BRect bounds)
{
	const BString text = _TimeText();
	if (fLengthCode == 0)
		SetHighColor(200, 80, 80);
	const float x = bounds.right - kRightMargin - StringWidth(text.String());
	DrawString(text.String(), BPoint(x, bounds.top + kTimeBaseline));
}


BString
MEView::_NumberText() const
{
	BString text;
	if (fTrack > 0 && SepListSelected)
		text << " AlbumTrack: " << fTrack;
	else
		text << "[" << fNumber + 1 << "]";
	return text;
}


BString
MEView::_TimeText() const
{
	BString text(" >|Stop");
	if (fLengthCode != 0)
		text.SetToFormat(" %ld:%02ld ", static_cast<long>(fMinutes), static_cast<long>(fSeconds));
	return text;
}


// Draws a line that ends before the tile's edge, and before the number and the time where it
// stands as high as they do.
void
MEView::_DrawCut(const char* text, BPoint where)
{
	BFont font;
	GetFont(&font);
	font_height line;
	font.GetHeight(&line);
	BFont labelFont(font);
	labelFont.SetSize(kLabelFontSize);
	font_height label;
	labelFont.GetHeight(&label);

	const float width = Bounds().Width();
	float right = width - kEdgeGap;
	const auto stopBefore = [&](const BString& labelText, float baseline) {
		if (overlap(where.y - line.ascent, where.y + line.descent, baseline - label.ascent,
				baseline + label.descent)) {
			const float labelWidth = labelFont.StringWidth(labelText.String());
			right = std::min(right, width - kRightMargin - labelWidth - kLabelGap);
		}
	};
	stopBefore(_NumberText(), kNumberBaseline);
	stopBefore(_TimeText(), kTimeBaseline);

	BString cut(text);
	TruncateString(&cut, B_TRUNCATE_SMART, std::max(right - where.x, 0.0f));
	DrawString(cut.String(), where);
}
