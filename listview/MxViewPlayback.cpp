// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// The order of play: laying out around a title, timing it, asking for the next, and what shows it.

#include "listview/MxView.h"

#include <algorithm>
#include <inttypes.h>
#include <math.h>
#include <stdint.h>
#include <stdio.h>

#include <Bitmap.h>
#include <Font.h>
#include <InterfaceDefs.h>
#include <List.h>
#include <Message.h>
#include <Messenger.h>
#include <Window.h>

#include "entryview/MEView.h"
#include "entryview/EntryMessages.h"
#include "listview/PlayTime.h"
#include "listview/TileLayout.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "window/BitmapPath.h"


namespace {

constexpr rgb_color kDark = {20, 20, 20, 255};
constexpr rgb_color kRing = {250, 250, 150, 255};
constexpr rgb_color kTrackOutline = {12, 12, 12, 255};

} // namespace


void
MxView::CenterMediaFile(long index, bool startPlay, long step)
{
	const int32 count = CountChildren();
	if (count < 1) {
		printf("no childs..\n");
		return;
	}

	const TileColumn column(Bounds(), tileSize);
	centerY = column.centerY;
	visibleHalf = column.CountHalf();
	BPoint centered = column.CenteredTile();
	centered.x = tileLeft;

	MEView* tile = _TileAt(index);
	if (tile != nullptr) {
		_LookForIcon(tile);
		tile->MoveTo(centered);
		centeredIndex = index;
		if (startPlay)
			_StartTiming(index, *tile);
	}

	int32 target = index;
	if (step != 0) {
		target = MoveMark(index, step, count);
		if (tile != nullptr)
			MEView::IsNext = target;
	}

	_PlaceTiles(target, centered);
	settings->next_top_media = target;
	nextIndex = target;
	if (settings->next_top_media == settings->last_top_media && target < INT32_MAX)
		settings->next_top_media++;
	if (imageIndex >= 0)
		ShowToppedAlbum(imageIndex);
}


void
MxView::_StartTiming(int32 index, const MEView& tile)
{
	MEView::IsSelected = index;
	MEView::IsNext = index;
	imageIndex = tile.fImageNumber;
	printf(" playing start ");
	if (!IsTimed(tile.fLength)) {
		playEnd = 0;
	} else if (tile.fNumber == settings->last_timer_nr) {
		// A title that is timed already keeps its end, so that showing it again changes nothing.
		printf(" | same play ");
	} else {
		settings->last_timer_nr = tile.fNumber;
		const bigtime_t now = clock();
		playLength = PlayMicros(tile.fLength);
		playEnd = now + playLength;
		printf(" | next-timer  ");
		settings->last_top_media = index;
		settings->playingImage = tile.fImageNumber;
		settings->playingArtist = tile.fArtist;
		settings->playingTitle = tile.fName;
	}
	printf("\n");
}


void
MxView::_PlaceTiles(int32 target, BPoint centered)
{
	TileColumn column(Bounds(), tileSize);
	column.left = centered.x;
	const BPoint parked(centered.x, ParkedTop(tileSize));
	visibleCount = 0;
	int32 index = 0;
	for (BView* tile = ChildAt(0); tile != nullptr; tile = tile->NextSibling(), index++) {
		if (TileColumn::IsNear(index, target)) {
			if (MEView* near = dynamic_cast<MEView*>(tile))
				_LookForIcon(near);
			tile->MoveTo(column.PositionFor(index, target));
			visibleCount++;
		} else {
			tile->MoveTo(parked);
		}
		tile->Invalidate();
		if (column.CrossesEdge(tile->Frame()))
			tile->MoveTo(parked);
	}
	visibleCount--;
}


void
MxView::Pulse()
{
	lastBounds = Bounds();
	const bigtime_t remaining = playEnd - clock();
	if (playLength <= kNoPlayLength) {
		printf(" xRTime %" PRId64 " stop.. \n", static_cast<int64_t>(playLength));
		return;
	}
	if (playEnd <= kNoPlayEnd)
		return;

	const float ratio = static_cast<float>(remaining) / playLength;
	if (remaining < playLength)
		_DrawTimeBar(lastBounds, ratio);
	if (remaining < 0 && settings->next_top_media > 0) {
		printf(" NEXT SONG NR: %ld \n", static_cast<long>(settings->next_top_media));
		_PlayTitle(settings->next_top_media);
	}
}


void
MxView::_PlayTitle(int32 index)
{
	BMessage message(kMsgPlayTitle);
	message.AddInt32("ml_nr", index);
	_SendToWindow(&message);
}


void
MxView::_DrawTimeBar(BRect bounds, float ratio)
{
	BRect track(bounds.right - 13, 12, bounds.right - 7, bounds.bottom - 12);
	BRect outline(track.left - 1, track.top - 1, track.right + 3, track.bottom + 3);
	SetDrawingMode(B_OP_COPY);
	SetHighColor(tint_color(progressColor, B_DARKEN_2_TINT));
	StrokeRoundRect(outline, 6, 6);
	outline.right -= 1;
	outline.bottom -= 1;
	SetHighColor(tint_color(progressColor, B_DARKEN_4_TINT));
	StrokeRoundRect(outline, 5, 5);
	SetHighColor(progressColor);
	FillRect(track);

	// The fill is measured against the view's height less 30, not against the track's.
	BRect rest = track;
	rest.top = truncf(track.bottom - (bounds.bottom - bounds.top - 30) * ratio);
	SetHighColor(progressFillColor);
	FillRect(rest);

	SetHighColor(kTrackOutline);
	StrokeRoundRect(track.InsetByCopy(-1, -1), 3, 3);
}


void
MxView::ShowToppedAlbum(long image)
{
	if (imageIndex < 0 || imageGridRect.Width() <= 1.5 * tileSize || ImgList == nullptr
		|| !imagesFit || image >= ImgList->CountItems())
		return;
	const BitmapPath* record = static_cast<BitmapPath*>(ImgList->ItemAt(image));
	if (record == nullptr)
		return;

	BRect square = imageGridRect;
	square.bottom = Bounds().bottom - 14;
	square.top = square.bottom - imageGridRect.Width();
	if (square.top <= imageGridRect.bottom)
		return;

	SetDrawingMode(B_OP_COPY);
	square.InsetBy(-4, -4);
	if (SingleAlbum) {
		SetPenSize(4);
		SetHighColor(kRing);
		StrokeRoundRect(square.InsetByCopy(-3, -3), 3, 3);
		SetPenSize(1);
	}
	SetHighColor(kDark);
	StrokeRect(square);
	if (record->fBitmap == nullptr) {
		_DrawMissingCover(square);
	} else {
		DrawBitmap(record->fBitmap, record->fBitmap->Bounds(), square.InsetByCopy(2, 2),
			B_FILTER_BITMAP_BILINEAR);
	}
}


void
MxView::_DrawMissingCover(BRect frame)
{
	SetHighColor(progressColor);
	SetLowColor(progressColor);
	FillRoundRect(frame.InsetByCopy(1, 1), 3, 3);
	SetHighColor(kDark);
	SetFont(be_plain_font);
	SetFontSize(10);
	DrawString(".. missing:", BPoint(frame.left + 10, frame.top + 25));
	SetFontSize(20);
	DrawString("Folder.jpg", BPoint(frame.left + 10, frame.top + 55));
}


void
MxView::CalcContinousPlaytime()
{
	printf(" CalcContinousPlaytime:\t ");
	printf(" ab %ld|", static_cast<long>(nextIndex));
	_LookForIcons(B_INFINITE_TIMEOUT);
	float playMinutes = 0;
	for (int32 index = std::max<int32>(nextIndex, 0); index < CountChildren(); index++) {
		const MEView* tile = _TileAt(index);
		if (tile == nullptr)
			continue;
		if (tile->fLength < kUntimedMinutes)
			break;
		playMinutes += tile->fLength;
	}
	printf(" %8.2f Times \n", playMinutes);
}
