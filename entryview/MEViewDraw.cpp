// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Drawing of a tile.
#include "entryview/MEView.h"

#include <Bitmap.h>

#include "locale/Labels.h"
#include "settings/Prefs.h"


// Where texts begin beside a built-in picture.
static constexpr float kBesidePicture = 59;
static constexpr float kRightMargin = 5;


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
	const float width = bounds.Width() - (x + 10);
	_DrawName(BPoint(x, y), width);

	y -= fontSize + 4;
	if (fArtist.Length() > 2) {
		SetFontSize(fontSize * 0.8f);
		DrawString(_Truncated(fArtist, width).String(), BPoint(x, y));
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
MEView::_DrawName(BPoint where, float width)
{
	const BString name = _Truncated(fName, width);
	if (fBadCharacters) {
		const rgb_color color = HighColor();
		SetHighColor(250, 80, 80);
		DrawString("*", where);
		SetHighColor(color);
		where.x += 20;
	}
	DrawString(name.String(), where);
}


void
MEView::_DrawMissing(BPoint where)
{
	SetHighColor(250, 120, 50);
	DrawString(getLabel(179), where);
	if (fMissingPath.InitCheck() == B_OK) {
		SetFontSize(9);
		DrawString(fMissingPath.Path(), BPoint(where.x, 10.5));
	}
}


void
MEView::_DrawNumber(BRect bounds)
{
	BString text;
	if (fTrack > 0 && SepListSelected)
		text << " AlbumTrack: " << fTrack;
	else
		text << "[" << fNumber + 1 << "]";

	SetFontSize(10);
	SetHighColor(130, 130, 130);
	const float x = bounds.right - kRightMargin - StringWidth(text.String());
	DrawString(text.String(), BPoint(x, bounds.top + 25));
}


void
MEView::_DrawTime(BRect bounds)
{
	BString text(" >|Stop");
	if (fLengthCode != 0)
		text.SetToFormat(" %ld:%02ld ", static_cast<long>(fMinutes), static_cast<long>(fSeconds));
	else
		SetHighColor(200, 80, 80);

	const float x = bounds.right - kRightMargin - StringWidth(text.String());
	DrawString(text.String(), BPoint(x, bounds.top + 40));
}


BString
MEView::_Truncated(const BString& text, float width) const
{
	BString truncated(text);
	TruncateString(&truncated, B_TRUNCATE_SMART, width);
	return truncated;
}
