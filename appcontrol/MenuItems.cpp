// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Finding and setting of menu items.
#include "appcontrol/PreferredAudioApp.h"

#include <stdio.h>
#include <string.h>

#include <Menu.h>
#include <MenuItem.h>

#include "locale/Labels.h"


// Marks an entry that must stay as it is.
static constexpr int32 kForbiddenLabel = 49;


static void
set_item(BMenuItem* item, bool enable, bool mark)
{
	item->SetMarked(mark);
	if (!enable)
		item->SetEnabled(false);
	else if (!item->IsEnabled())
		item->SetEnabled(true);
}


// Looks at each item and into each submenu. An item found here keeps its enabled state.
static bool
set_in_items(BMenu* menu, const char* label, bool mark)
{
	for (int32 index = 0; index < menu->CountItems(); index++) {
		BMenu* const submenu = menu->SubmenuAt(index);
		if (submenu != nullptr) {
			printf("\n [Untermenu an %ld]", static_cast<long>(index));
			if (SetItemTo(submenu, 0, label, true, "suche", mark)) {
				printf("[SM-out]\n");
				return true;
			}
		}

		BMenuItem* const item = menu->ItemAt(index);
		if (item == nullptr) {
			printf("[Item==NULL]");
		} else if (item->Label() != nullptr && strcmp(item->Label(), label) == 0) {
			printf("[IN SUB FOUND '%s'] ", label);
			printf(" [Item %ld:%s]", static_cast<long>(index), item->Label());
			item->SetMarked(mark);
			printf("[<out]\n");
			return true;
		}
	}
	return false;
}


bool
SetItemTo(BMenu* menu, uint32 command, const char* label, bool enable, const char*, bool mark)
{
	if (menu == nullptr) {
		printf(" [Menu==NULL :%s][out]\n", label != nullptr ? label : "");
		return false;
	}
	if (label == nullptr) {
		printf(" return ! \n");
		return false;
	}
	const char* const forbidden = getLabel(kForbiddenLabel);
	if (forbidden != nullptr && strcmp(label, forbidden) == 0) {
		printf(" [forbidden Label :%s][out]\n", label);
		return false;
	}

	BMenuItem* const item = command != 0 ? menu->FindItem(command) : menu->FindItem(label);
	if (item != nullptr) {
		set_item(item, enable, mark);
		return true;
	}
	printf(" '%s' not found[2 enable]\n", label);
	return set_in_items(menu, label, mark);
}
