// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// Measuring the titles' play times and keeping them with the files.

#include "listview/MxView.h"

#include <stdio.h>

#include <Entry.h>
#include <List.h>
#include <Node.h>
#include <OS.h>
#include <Path.h>
#include <String.h>

#include "entryview/MEView.h"
#include "listview/PlayTime.h"
#include "settings/Helpers.h"


namespace {

const char* const kLengthAttribute = "Audio:Length";

// An attribute could not be written during the last measuring.
bool AudioLengthWriteTouble = false;

} // namespace


void
MxView::ListWriteAttribute()
{
	snooze(50000);
	DrawProgressCalc(false);
	AudioLengthWriteTouble = false;
	const int32 count = MedList != nullptr ? MedList->CountItems() : 0;
	for (int32 index = 0; index < count; index++) {
		const BPath* path = static_cast<BPath*>(MedList->ItemAt(index));
		if (path != nullptr && path->InitCheck() == B_OK)
			_MeasureTitle(index, *path);
		_ShowMeasured(index, count);
	}
	DrawProgressCalc(true);
	// The time bar comes back with the next pulse, if a title is timed.
	Invalidate();
}


// While the window is busy nothing is updated: the tile shows its time at once, and the time bar
// runs down with the titles that are left.
void
MxView::_ShowMeasured(int32 index, int32 count)
{
	MEView* tile = _TileAt(index);
	if (tile != nullptr)
		tile->Draw(tile->Bounds());
	_DrawTimeBar(Bounds(), static_cast<float>(count - 1 - index) / count);
	Flush();
}


void
MxView::_MeasureTitle(int32 index, const BPath& path)
{
	BEntry entry(path.Path());
	entry_ref ref;
	if (!entry.Exists() || entry.GetRef(&ref) != B_OK)
		return;

	printf(":Node: '%s'\n", path.Path());
	BNode node(&ref);
	BString stored;
	const status_t status = node.ReadAttrString(kLengthAttribute, &stored);
	if (status == B_OK) {
		printf(" have allways (%ld) \n", static_cast<long>(stored.Length()));
		return;
	}

	long measuredSeconds = 0;
	GetMediaDuration(&ref, &measuredSeconds);
	if (measuredSeconds <= 0)
		return;

	const MeasuredLength length(measuredSeconds);
	MEView* tile = _TileAt(index);
	if (tile != nullptr) {
		// Not after the time is known, in case it cannot be written.
		_LookForIcon(tile);
		tile->fMinutes = length.minutes;
		tile->fSeconds = length.seconds;
		tile->fLengthCode = length.packed;
		tile->fLength = length.playMinutes;
	} else {
		printf("not a MEView (%ld)\n", static_cast<long>(index));
	}
	if (node.WriteAttrString(kLengthAttribute, &length.text) != B_OK) {
		printf(" .. can't set Attribute\n");
		AudioLengthWriteTouble = true;
	}
}
