// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// Keys of the list view: they move the next-mark, play the marked title or close the player.

#include "listview/MxView.h"

#include <stdio.h>

#include <Message.h>

#include "listview/KeyCodes.h"
#include "window/ExternalPlayer.h"


void
MxView::KeyEvents(BMessage* message)
{
	int32 key = message->GetInt32("key", 0);
	if (key == 0) {
		key = RawKeyForRemote(message->GetInt32("korukey", 0));
		if (key == 0)
			printf(" sorry...\n");
	}
	_PressKey(key);
}


void
MxView::_PressKey(int32 key)
{
	switch (key) {
		case kKeyUp:
		case kKeyKeypadMinus:
			CenterMediaFile(nextIndex, false, -1);
			break;
		case kKeyDown:
		case kKeyKeypadPlus:
			CenterMediaFile(nextIndex, false, 1);
			break;
		case kKeyLeft:
			CenterMediaFile(nextIndex, false, -visibleCount);
			break;
		case kKeyRight:
			CenterMediaFile(nextIndex, false, visibleCount);
			break;
		case kKeyPageUp:
			CenterMediaFile(nextIndex, false, -lastIndex);
			break;
		case kKeyPageDown:
			CenterMediaFile(nextIndex, false, lastIndex);
			break;
		case kKeyEnter:
		case kKeyKeypadEnter:
			CenterMediaFile(nextIndex, true, 0);
			_PlayTitle(nextIndex);
			break;
		case kKeyEnd:
			ICloseMediaApp();
			break;
		default:
			for (BView* tile = ChildAt(0); tile != nullptr; tile = tile->NextSibling())
				tile->Draw(Bounds());
			break;
	}
}
