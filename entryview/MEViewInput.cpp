// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Messages, clicks and the context menu of a tile.
#include "entryview/MEView.h"

#include <stdio.h>

#include <AppDefs.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <OS.h>
#include <PopUpMenu.h>
#include <Window.h>

#include "entryview/EntryMessages.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"


void
MEView::MessageReceived(BMessage* message)
{
	switch (message->what) {
		// The platform calls MouseDown() and its like from here.
		case B_MOUSE_DOWN:
		case B_MOUSE_UP:
		case B_MOUSE_MOVED:
		case B_KEY_DOWN:
		case B_KEY_UP:
		case B_VIEW_MOVED:
		case B_VIEW_RESIZED:
		case B_INVALIDATE:
			BView::MessageReceived(message);
			return;
	}

	printf("MEView::MessageReceived\n");
	if (message->what == B_SIMPLE_DATA) {
		const BMessenger window(Window());
		window.SendMessage(message, static_cast<BHandler*>(nullptr), B_INFINITE_TIMEOUT);
	}
}


void
MEView::MouseDown(BPoint)
{
	const BMessage* const message = Window()->CurrentMessage();
	int32 buttons = 0;
	if (message != nullptr && message->what == B_MOUSE_DOWN)
		buttons = message->GetInt32("buttons", 0);

	if (buttons == B_PRIMARY_MOUSE_BUTTON)
		_Play();
	else if (buttons == B_SECONDARY_MOUSE_BUTTON)
		AddPopMenu();
}


void
MEView::_Play()
{
	mPrefs->playingImage = fImageNumber;
	mPrefs->playingArtist = fArtist;
	mPrefs->playingTitle = fName;
	IsSelected = fNumber;
	IsNext = fNumber + 1;

	BMessage message(kMsgPlayTitle);
	message.AddInt32("ml_nr", fNumber);
	const BMessenger window(Window());
	window.SendMessage(&message, static_cast<BHandler*>(nullptr), B_INFINITE_TIMEOUT);
}


void
MEView::AddPopMenu()
{
	BPoint where;
	uint32 buttons;
	GetMouse(&where, &buttons);
	if (buttons != B_SECONDARY_MOUSE_BUTTON)
		return;

	if (fContextMenu == nullptr)
		_BuildMenu();
	GetMouse(&where, &buttons);
	fContextMenu->Go(ConvertToScreen(where), true, false, true);
}


// The menu stays as it was built, whatever changes later.
void
MEView::_BuildMenu()
{
	fContextMenu = new BPopUpMenu("MeView_Menu", false, true, B_ITEMS_IN_COLUMN);
	// The label from the marked item brings radio mode along, which would leave a mark.
	fContextMenu->SetRadioMode(false);

	fContextMenu->AddSeparatorItem();
	_AddMenuItem(177, MF_OFOLD, fNumber, fCanOpenFolder);
	if (!SepListSelected) {
		_AddMenuItem(176, MF_REMOVE, fNumber, true);
		if (fBadCharacters) {
			fContextMenu->AddSeparatorItem();
			_AddMenuItem(195, MF_RBC, fNumber, true);
		}
	} else {
		fContextMenu->AddSeparatorItem();
		_AddMenuItem(196, MF_TAKE, fNumber, true);
		fContextMenu->AddSeparatorItem();
		_AddMenuItem(194, MF_FOLDER, kNoFolderNumber, true);
	}
	fContextMenu->SetFontSize(11);
}


void
MEView::_AddMenuItem(int32 label, int32 operation, int32 number, bool enabled)
{
	BMessage* const message = new BMessage(kMsgListOperation);
	message->AddInt32("mpl_nr", number);
	message->AddInt32("mpl_what", operation);
	BMenuItem* const item = new BMenuItem(getLabel(label), message);
	item->SetTarget(Window());
	item->SetEnabled(enabled);
	fContextMenu->AddItem(item);
}
