// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// When the tiles read their files. Ten thousand of them take seconds, so only those that are placed
// or asked for read them at once; the others do it piece by piece between the window's messages.
#include "listview/MxView.h"

#include <List.h>
#include <Looper.h>
#include <Path.h>

#include "entryview/MEView.h"


// Microseconds for one piece: short enough for clicks and keys to be answered at once.
static constexpr bigtime_t kPiece = 10000;


void
MxView::_LookForIcon(MEView* tile)
{
	if (tile->fLookedForIcon || MedList == nullptr)
		return;
	BPath* path = static_cast<BPath*>(MedList->ItemAt(tile->fNumber));
	if (path != nullptr)
		tile->LookForIcon(path);
}


// Until the time is up. Returns whether all tiles have read their files.
bool
MxView::_LookForIcons(bigtime_t limit)
{
	const bigtime_t begin = system_time();
	for (BView* child = ChildAt(fFirstUnread); child != nullptr; child = child->NextSibling()) {
		if (system_time() - begin >= limit)
			return false;
		MEView* tile = dynamic_cast<MEView*>(child);
		if (tile != nullptr)
			_LookForIcon(tile);
		fFirstUnread++;
	}
	return true;
}


// After the tiles have been made anew.
void
MxView::_LookForIconsLater()
{
	fFirstUnread = 0;
	if (!fLookingForIcons && Looper() != nullptr)
		fLookingForIcons = Looper()->PostMessage(kMsgLookForIcons, this) == B_OK;
}


void
MxView::_LookForMoreIcons()
{
	fLookingForIcons = !_LookForIcons(kPiece) && Looper() != nullptr
		&& Looper()->PostMessage(kMsgLookForIcons, this) == B_OK;
}
