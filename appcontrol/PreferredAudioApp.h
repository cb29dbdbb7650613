// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PREFERRED_AUDIO_APP_H
#define PREFERRED_AUDIO_APP_H

#include <SupportDefs.h>

class BMenu;


/*!	Fills a menu with the installed players that are known and play MPEG audio, and marks the
	preferred one. The items have no target. Without a menu it only prints what it finds.
*/
void AskForPrefApp(BMenu* menu);

/*!	Marks, enables or disables the item with that command, or, if command is 0, with that label.
	Submenus are searched, too. tag names the call in the recursion and has no other meaning.

	Returns whether there is such an item.
*/
bool SetItemTo(BMenu* menu, uint32 command, const char* label, bool enable, const char* tag,
	bool mark);

#endif // PREFERRED_AUDIO_APP_H
