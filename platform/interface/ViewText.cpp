// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: drawing of text and pictures.
#include <View.h>

#include <algorithm>
#include <math.h>
#include <string.h>

#include <Bitmap.h>

#include "platform/interface/BitmapData.h"
#include "platform/interface/FontData.h"
#include "platform/interface/Painter.h"
#include "platform/interface/Pixels.h"
#include "platform/interface/ViewData.h"

using hosted::BitmapData;
using hosted::Painter;
using hosted::ViewData;


void
BView::DrawChar(char character)
{
	DrawString(&character, 1, fData->state.pen);
}


void
BView::DrawChar(char character, BPoint location)
{
	DrawString(&character, 1, location);
}


void
BView::DrawString(const char* string, escapement_delta* delta)
{
	DrawString(string, fData->state.pen, delta);
}


void
BView::DrawString(const char* string, BPoint location, escapement_delta* delta)
{
	if (string != nullptr)
		DrawString(string, static_cast<int32>(strlen(string)), location, delta);
}


void
BView::DrawString(const char* string, int32 length, escapement_delta* delta)
{
	DrawString(string, length, fData->state.pen, delta);
}


// Draws the characters one by one, each moved on by what is added to the one before. Returns the
// whole width.
static float
draw_spaced(Painter& painter, const BFont& font, const QString& text, BPoint where,
	const escapement_delta& delta)
{
	float width = 0;
	for (int index = 0; index < text.size();) {
		const int length = text[index].isHighSurrogate() && index + 1 < text.size() ? 2 : 1;
		const QString character = text.mid(index, length);
		if (!painter.IsEmpty()) {
			const BPoint point = painter.ToHost(where + BPoint(width, 0));
			painter.DrawText(
				QPoint(hosted::FloorPixel(roundf(point.x)), hosted::FloorPixel(roundf(point.y))),
				character);
		}
		width += hosted::TextWidth(font, character);
		width += character[0].isSpace() ? delta.space : delta.nonspace;
		index += length;
	}
	return width;
}


void
BView::DrawString(const char* string, int32 length, BPoint location, escapement_delta* delta)
{
	length = hosted::ClampedLength(string, length);
	if (length == 0)
		return;
	const BFont& font = fData->state.font;
	Painter painter(*fData);
	float width;
	if (delta != nullptr && (delta->nonspace != 0 || delta->space != 0)) {
		width = draw_spaced(painter, font, hosted::VisibleText(string, length), location, *delta);
	} else {
		width = font.StringWidth(string, length);
		if (!painter.IsEmpty()) {
			fData->NoteText(hosted::VisibleText(string, length));
			const BPoint where = painter.ToHost(location);
			painter.DrawText(
				QPoint(hosted::FloorPixel(roundf(where.x)), hosted::FloorPixel(roundf(where.y))),
				hosted::VisibleText(string, length));
		}
	}
	fData->state.pen = BPoint(location.x + width, location.y);
}


void
BView::DrawBitmapAsync(const BBitmap* bitmap, BRect source, BRect destination, uint32 options)
{
	if (bitmap == nullptr)
		return;
	Painter painter(*fData);
	if (painter.IsEmpty())
		return;
	painter.DrawPicture(BitmapData::Of(*bitmap), source, painter.ToHost(destination), options);
}


void
BView::DrawBitmapAsync(const BBitmap* bitmap, BRect source, BRect destination)
{
	DrawBitmapAsync(bitmap, source, destination, 0);
}


void
BView::DrawBitmapAsync(const BBitmap* bitmap, BRect destination)
{
	if (bitmap != nullptr)
		DrawBitmapAsync(bitmap, bitmap->Bounds().OffsetToCopy(B_ORIGIN), destination, 0);
}


void
BView::DrawBitmapAsync(const BBitmap* bitmap, BPoint where)
{
	if (bitmap != nullptr)
		DrawBitmapAsync(bitmap, bitmap->Bounds().OffsetToCopy(where));
}


void
BView::DrawBitmapAsync(const BBitmap* bitmap)
{
	DrawBitmapAsync(bitmap, fData->state.pen);
}


void
BView::DrawBitmap(const BBitmap* bitmap, BRect source, BRect destination, uint32 options)
{
	DrawBitmapAsync(bitmap, source, destination, options);
}


void
BView::DrawBitmap(const BBitmap* bitmap, BRect source, BRect destination)
{
	DrawBitmapAsync(bitmap, source, destination);
}


void
BView::DrawBitmap(const BBitmap* bitmap, BRect destination)
{
	DrawBitmapAsync(bitmap, destination);
}


void
BView::DrawBitmap(const BBitmap* bitmap, BPoint where)
{
	DrawBitmapAsync(bitmap, where);
}


void
BView::DrawBitmap(const BBitmap* bitmap)
{
	DrawBitmapAsync(bitmap);
}


void
BView::SetViewBitmap(const BBitmap* bitmap, BRect source, BRect destination, uint32 followFlags,
	uint32 options)
{
	if (bitmap == nullptr) {
		ClearViewBitmap();
		return;
	}
	fData->viewBitmap = std::make_unique<hosted::ViewBitmap>(
		hosted::ViewBitmap{BitmapData::Share(*bitmap), source, destination, followFlags, options});
	Invalidate();
}


void
BView::SetViewBitmap(const BBitmap* bitmap, uint32 followFlags, uint32 options)
{
	BRect bounds;
	if (bitmap != nullptr)
		bounds = bitmap->Bounds().OffsetToCopy(B_ORIGIN);
	SetViewBitmap(bitmap, bounds, bounds, followFlags, options);
}


void
BView::ClearViewBitmap()
{
	fData->viewBitmap.reset();
	Invalidate();
}


// A text that is drawn once more, for a shadow or another time, is said once.
void
hosted::ViewData::NoteText(const QString& text)
{
	const QString said = text.simplified();
	if (said.isEmpty() || tree == nullptr || tree->host->Window() == nullptr)
		return;
	if (texts == nullptr)
		texts = std::make_unique<std::vector<QString>>();
	if (std::find(texts->begin(), texts->end(), said) == texts->end())
		texts->push_back(said);
}
