// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// Everything that is drawn of the list view and is no tile, button glyph or time bar.

#include "listview/MxView.h"

#include <array>
#include <stdio.h>

#include <Bitmap.h>
#include <Font.h>
#include <InterfaceDefs.h>
#include <List.h>
#include <Window.h>

#include "listview/CoverGrid.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "window/BitmapPath.h"


namespace {

constexpr rgb_color kDark = {20, 20, 20, 255};
constexpr rgb_color kBarLight = {253, 253, 253, 255};
constexpr rgb_color kHintLow = {240, 240, 240, 255};
constexpr rgb_color kHintText = {25, 25, 25, 250};
constexpr rgb_color kChangedPanel = {250, 250, 150, 255};
constexpr rgb_color kCellFrame = {120, 120, 120, 255};
constexpr rgb_color kBusyPanel = {250, 100, 100, 255};
constexpr rgb_color kBusyText = {20, 10, 10, 255};

// A list of fewer titles shows how to fill it.
constexpr int32 kHintBelowTitles = 3;

// Those beside the center line first; from top to bottom they stand as 0, 2, 4, 5, 3, 1.
constexpr std::array<int32, 6> kDrawOrder = {4, 5, 3, 1, 0, 2};

// Where a button stands: in the strip's whole width, at the strip's ends or beside the center line.
BRect
button_frame(int32 button, BRect strip, float middle)
{
	BRect frame = strip;
	switch (button) {
		case 0:
			frame.bottom = strip.top + 58;
			break;
		case 1:
			frame.top = strip.bottom - 58;
			break;
		case 2:
			frame.top = strip.top + 68;
			frame.bottom = middle - 68;
			break;
		case 3:
			frame.top = middle + 68;
			frame.bottom = strip.bottom - 68;
			break;
		case 4:
			frame.top = middle - 58;
			frame.bottom = middle - 10;
			break;
		default:
			frame.top = middle + 10;
			frame.bottom = middle + 58;
			break;
	}
	return frame;
}

} // namespace


void
MxView::Draw(BRect)
{
	const BRect bounds = Bounds();
	const BRect oldGrid = imageGridRect;
	SetFontSize(15);
	fDrawnCenterY = centerY;

	_DrawFrame(bounds);
	_DrawCenterBar(bounds);
	_DrawButtons(bounds);
	SetPenSize(1);
	SetHighColor(kHintText);
	_DrawHints(bounds);
	_CheckGridFits(bounds);
	if (ImgList != nullptr && imagesFit)
		_DrawCoverGrid(bounds);

	SetHighColor(kDark);
	StrokeRect(bounds);
	ShowToppedAlbum(imageIndex);
	// The buttons were drawn beside a grid that is no longer there.
	if (imageGridRect != oldGrid)
		Invalidate();
}


void
MxView::_DrawFrame(BRect bounds)
{
	SetDrawingMode(B_OP_COPY);
	SetHighColor(kDark);
	if (settings->window_mtab)
		StrokeRoundRect(bounds.InsetByCopy(4, 6), 3, 3);
	listBackColor = ui_color(B_MENU_BACKGROUND_COLOR);
	SetViewColor(listBackColor);
	SetLowColor(listBackColor);
	SetFont(be_plain_font);
	SetFontSize(10);
}


void
MxView::_DrawCenterBar(BRect bounds)
{
	BRect band(bounds.right - 545, fDrawnCenterY - 2, bounds.right - 10, fDrawnCenterY + 2);
	SetHighColor(kBarLight);
	FillRect(band);
	band.InsetBy(1, 1);
	SetHighColor(kDark);
	FillRect(band);
}


void
MxView::_DrawButtons(BRect bounds)
{
	fButtonStrip.Set(imageGridRect.right + 15, 10, bounds.right - 525, bounds.bottom - 10);
	for (int32 button : kDrawOrder)
		_DrawButton(button, button_frame(button, fButtonStrip, fDrawnCenterY));
}


void
MxView::_DrawButton(int32 button, BRect frame)
{
	BRect outline = frame;
	outline.right += 2;
	outline.bottom += 2;
	SetHighColor(tint_color(progressColor, B_DARKEN_2_TINT));
	StrokeRoundRect(outline, 11, 11);
	outline.right -= 1;
	outline.bottom -= 1;
	SetHighColor(tint_color(progressColor, B_DARKEN_4_TINT));
	StrokeRoundRect(outline, 10, 10);
	SetHighColor(progressColor);
	FillRoundRect(frame, 9, 9);
	SetHighColor(kDark);
	StrokeRoundRect(frame, 9, 9);
	PlyBut(button, frame);
}


void
MxView::_DrawHints(BRect bounds)
{
	if (MedList == nullptr)
		printf(" *MxView::Draw() MedList == NULL\n");
	const bool isShort = MedList == nullptr || MedList->CountItems() < kHintBelowTitles;
	if (MedList != nullptr && isShort) {
		const char* hint = "  Drag audio or video-files.. ";
		const float x = bounds.right - 505;
		SetFont(be_bold_font);
		SetFontSize(20);
		SetLowColor(kHintLow);
		SetHighColor(kHintLow);
		DrawString(hint, BPoint(x, fDrawnCenterY - 16));
		DrawString(hint, BPoint(x + 2, fDrawnCenterY - 14));
		SetHighColor(kHintText);
		DrawString(hint, BPoint(x + 1, fDrawnCenterY - 15));
	}
	if (pathTrouble && isShort) {
		SetLowColor(kHintLow);
		SetHighColor(kHintText);
		DrawString("  PathTrouble.. ", BPoint(imageGridRect.left + 10, imageGridRect.bottom + 30));
	}
}


void
MxView::_CheckGridFits(BRect bounds)
{
	imagesFit = CoverGridFits(bounds.right - bounds.left, tileThird);
	if (imagesFit)
		return;

	imageGridRect.Set(0, 0, 1, 1);
	if (Window() != nullptr)
		Window()->SetZoomLimits(bounds.Width(), bounds.Height() + 200);
}


void
MxView::_DrawCoverGrid(BRect bounds)
{
	SetDrawingMode(B_OP_COPY);
	const CoverGrid grid(bounds, tileThird, ImgList->CountItems());
	SetHighColor(listChanged ? kChangedPanel : progressColor);
	FillRoundRect(grid.area.InsetByCopy(-3, -3), 3, 3);

	for (size_t index = 0; index < grid.cells.size(); index++)
		_DrawCover(index, grid.cells[index]);

	imageGridRect = grid.area;
	SetHighColor(kDark);
	StrokeRoundRect(imageGridRect.InsetByCopy(-4, -4), 3, 3);
}


void
MxView::_DrawCover(int32 index, BRect cell)
{
	const BitmapPath* record = static_cast<BitmapPath*>(ImgList->ItemAt(index));
	if (record == nullptr) {
		printf(" BitmapPath==NULL \n");
		return;
	}

	if (record->fBitmap != nullptr) {
		DrawBitmap(record->fBitmap, record->fBitmap->Bounds(), cell, B_FILTER_BITMAP_BILINEAR);
	} else {
		SetHighColor(kDark);
		FillRect(cell);
	}
	SetHighColor(kCellFrame);
	StrokeRect(cell.InsetByCopy(-1, -1));
}


void
MxView::DrawProgressCalc(bool redraw)
{
	SetFont(be_bold_font);
	SetFontSize(20);
	if (imageGridRect.Width() > 40) {
		SetHighColor(kBusyPanel);
		FillRect(imageGridRect.InsetByCopy(-1, -1));
		SetLowColor(kBusyPanel);
		SetHighColor(kBusyText);
		DrawString("  CalcTime.. ", BPoint(20, imageGridRect.top + tileThird - 4));
	}
	if (redraw)
		Draw(Bounds());
}


// A hook for bands around the center line that a later drawing may want to erase.
void
MxView::EraseView(BRect)
{
}
