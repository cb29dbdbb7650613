// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// The context menu of the list view.

#include "listview/MxView.h"

#include <array>
#include <stdio.h>

#include <AppDefs.h>
#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <PopUpMenu.h>
#include <String.h>
#include <Window.h>

#include "appcontrol/PreferredAudioApp.h"
#include "entryview/MEView.h"
#include "entryview/EntryMessages.h"
#include "locale/KVLangMenu.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "window/WindowCommands.h"


namespace {

constexpr float kMenuFontSize = 11;

enum {
	kLabelEdit = 6,
	kLabelToggleTab = 172,
	kLabelClose = 173,
	kLabelBack = 194,
	kLabelOnTop = 193,
	kLabelPlayTimes = 197,
	kLabelSave = 199,
	kLabelPlayer = 200,
	kLabelBoxSize = 206,
	kLabelAbout = 214,
};

struct SizeItem {
	int labelNumber;
	uint32 command;
	int32 linkSize;
};

constexpr std::array<SizeItem, 5> kSizeItems = {{
	{211, kMsgBoxSizePico, 5},
	{210, kMsgBoxSizeMicro, 4},
	{207, kMsgBoxSizeMini, 3},
	{208, kMsgBoxSizeNormal, 2},
	{209, kMsgBoxSizeMaxi, 1},
}};

BMenuItem*
list_operation_item(int label, int32 operation, int32 number)
{
	BMessage* message = new BMessage(kMsgListOperation);
	if (number >= 0)
		message->AddInt32("mpl_nr", number);
	message->AddInt32("mpl_what", operation);
	return new BMenuItem(getLabel(label), message);
}

} // namespace


void
MxView::AddWPopMenu()
{
	BPoint where;
	uint32 buttons;
	GetMouse(&where, &buttons, false);
	_LookForIcons(B_INFINITE_TIMEOUT);
	const int32 unmeasuredCount = _CountUnmeasured();
	if (popMenu == nullptr)
		_BuildMenu(unmeasuredCount);
	popMenu->Go(ConvertToScreen(where), true, true, true);
}


int32
MxView::_CountUnmeasured() const
{
	int32 count = 0;
	int32 index = 0;
	for (BView* child = ChildAt(0); child != nullptr; child = child->NextSibling(), index++) {
		const MEView* tile = dynamic_cast<MEView*>(child);
		if (tile == nullptr)
			printf(" not a MEView (%ld) \n", static_cast<long>(index));
		else if (tile->fLengthCode == 0)
			count++;
	}
	return count;
}


void
MxView::_BuildMenu(int32 unmeasuredCount)
{
	popMenu = new BPopUpMenu("MeView_Menu", false, false);
	popMenu->AddSeparatorItem();
	if (SingleAlbum) {
		popMenu->AddItem(list_operation_item(kLabelBack, MF_FOLDER, kNoFolderNumber));
		popMenu->AddSeparatorItem();
	}
	popMenu->AddItem(new BMenuItem(getLabel(kLabelToggleTab), new BMessage(kMsgToggleTitleTab)));
	BMenuItem* onTop = new BMenuItem(getLabel(kLabelOnTop), new BMessage(kMsgToggleAlwaysInFront));
	onTop->SetMarked(settings->mw_ever_topped);
	popMenu->AddItem(onTop);
	popMenu->AddSeparatorItem();
	if (unmeasuredCount > 0) {
		popMenu->AddItem(new BMenuItem(getLabel(kLabelPlayTimes), new BMessage(kMsgSetPlayTimes)));
		popMenu->AddSeparatorItem();
	}
	popMenu->AddItem(new BMenuItem(getLabel(kLabelEdit), new BMessage(kMsgEditList)));
	if (listChanged)
		popMenu->AddItem(list_operation_item(kLabelSave, MF_SAVE, -1));

	popMenu->AddSeparatorItem();
	BMenu* players = new BMenu(getLabel(kLabelPlayer));
	AskForPrefApp(players);
	players->SetTargetForItems(Window());
	popMenu->AddItem(players);
	if (sizeMenuShown)
		_AddSizeItems();

	popMenu->AddSeparatorItem();
	if (langMenu != nullptr) {
		langMenu->SetTargetForItems(this);
		popMenu->AddItem(langMenu);
	}
	popMenu->AddSeparatorItem();
	popMenu->AddItem(new BMenuItem(getLabel(kLabelAbout), new BMessage(B_ABOUT_REQUESTED)));
	popMenu->AddSeparatorItem();
	popMenu->AddItem(new BMenuItem(getLabel(kLabelClose), new BMessage(kMsgCloseWindow)));
	popMenu->SetTargetForItems(Window());
	popMenu->SetFontSize(kMenuFontSize);
}


void
MxView::_AddSizeItems()
{
	popMenu->AddSeparatorItem();
	for (const SizeItem& size : kSizeItems) {
		BString text(getLabel(kLabelBoxSize));
		text << getLabel(size.labelNumber);
		BMenuItem* item = new BMenuItem(text.String(), new BMessage(size.command));
		item->SetMarked(size.linkSize == settings->LINK_SIZE);
		popMenu->AddItem(item);
	}
}
