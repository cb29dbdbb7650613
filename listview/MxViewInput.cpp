// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// Messages and mouse clicks of the list view.

#include "listview/MxView.h"

#include <algorithm>
#include <array>
#include <stdio.h>

#include <List.h>
#include <Menu.h>
#include <Message.h>
#include <Messenger.h>
#include <PopUpMenu.h>
#include <Window.h>

#include "appcontrol/PreferredAudioApp.h"
#include "entryview/EntryMessages.h"
#include "listview/CoverGrid.h"
#include "listview/TileLayout.h"
#include "locale/KVLangMenu.h"
#include "locale/Labels.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "window/WindowCommands.h"


namespace {

struct BoxSize {
	uint32 command;
	int32 linkSize;
};

constexpr std::array<BoxSize, 5> kBoxSizes = {{
	{kMsgBoxSizeMaxi, 1},
	{kMsgBoxSizeNormal, 2},
	{kMsgBoxSizeMini, 3},
	{kMsgBoxSizeMicro, 4},
	{kMsgBoxSizePico, 5},
}};

} // namespace


void
MxView::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case kMsgBoxSizeMaxi:
		case kMsgBoxSizeNormal:
		case kMsgBoxSizeMini:
		case kMsgBoxSizeMicro:
		case kMsgBoxSizePico:
			_SetBoxSize(message->what);
			break;
		case kMsgSetPlayTimes:
			printf("Wish: Set PlaytimeAttribute..\n");
			ListWriteAttribute();
			break;
		case B_SIMPLE_DATA:
			_SendToWindow(message);
			break;
		case B_PASTE:
			_TakeColor(message);
			break;
		case B_MOUSE_WHEEL_CHANGED:
			break;
		case kMsgLookForIcons:
			_LookForMoreIcons();
			break;
		case kMsgLanguageChanged:
			_ChangeLanguage(message);
			break;
		// The view's own mouse, key and frame events arrive here; they need no trace.
		case B_MOUSE_DOWN:
		case B_MOUSE_UP:
		case B_MOUSE_MOVED:
		case B_KEY_DOWN:
		case B_KEY_UP:
		case B_VIEW_MOVED:
		case B_VIEW_RESIZED:
			BView::MessageReceived(message);
			break;
		default:
			printf("MxView::MessageReceived\n");
			message->PrintToStream();
			BView::MessageReceived(message);
			break;
	}
}


void
MxView::_SetBoxSize(uint32 command)
{
	if (popMenu != nullptr) {
		for (const BoxSize& size : kBoxSizes)
			SetItemTo(popMenu, size.command, "..egal..", true, "", size.command == command);
	}
	for (const BoxSize& size : kBoxSizes) {
		if (size.command == command)
			settings->LINK_SIZE = size.linkSize;
	}
	tileSize = TileHeightFor(settings->LINK_SIZE);
	tileThird = tileSize / 3;
	for (BView* tile = ChildAt(0); tile != nullptr; tile = tile->NextSibling())
		tile->ResizeTo(kTileWidth, tileSize);
	CenterMediaFile(settings->last_top_media, true, 0);
	Draw(Bounds());
	Invalidate();
}


void
MxView::_TakeColor(BMessage* message)
{
	listBackColor = HasMsgColor(message, listBackColor);
	Draw(Bounds());
	Invalidate();
}


void
MxView::_ChangeLanguage(BMessage* message)
{
	if (langMenu != nullptr) {
		langMenu->MirrorThisList(eLabel);
		langMenu->SetLangFile(message);
	}
	_SendToWindow(message);
}


void
MxView::FollowLanguage(const BMessage& message)
{
	if (langMenu != nullptr)
		langMenu->FollowLangFile(message, eLabel);
	Invalidate();
}


void
MxView::_SendToWindow(BMessage* message)
{
	BMessenger(Window()).SendMessage(message);
}


void
MxView::MouseDown(BPoint where)
{
	if (upMarkRect.Contains(where)) {
		printf(" UP selected\n");
		return;
	}
	if (downMarkRect.Contains(where)) {
		printf(" DOWN selected\n");
		return;
	}

	_DropMenu();
	const int32 buttons = _PressedButtons();
	if (_ClickCover(where) || _ClickButton(where) || _ClickMenuArea(where))
		return;
	if (buttons == B_SECONDARY_MOUSE_BUTTON || buttons == B_PRIMARY_MOUSE_BUTTON)
		AddWPopMenu();
}


// The language menu outlives the context menu that it was lent to.
void
MxView::_DropMenu()
{
	if (popMenu == nullptr)
		return;
	if (langMenu != nullptr)
		popMenu->RemoveItem(langMenu);
	delete popMenu;
	popMenu = nullptr;
}


int32
MxView::_PressedButtons() const
{
	const BMessage* current = Window() != nullptr ? Window()->CurrentMessage() : nullptr;
	if (current == nullptr || current->what != B_MOUSE_DOWN)
		return 0;
	return current->GetInt32("buttons", 0);
}


bool
MxView::_ClickCover(BPoint where)
{
	if (!imageGridRect.Contains(where) || ImgList == nullptr)
		return false;
	const int32 index = CoverIndexAt(where, imageGridRect, tileThird);
	if (index >= ImgList->CountItems())
		return false;

	BMessage message(kMsgListOperation);
	message.AddInt32("mpl_nr", index);
	message.AddInt32("mpl_what", MF_FOLDER);
	_SendToWindow(&message);
	ShowToppedAlbum(index);
	return true;
}


bool
MxView::_ClickButton(BPoint where)
{
	constexpr std::array<int32, 6> kTestOrder = {2, 3, 0, 1, 4, 5};
	const auto hit = std::find_if(kTestOrder.begin(), kTestOrder.end(),
		[&](int32 button) { return buttonRect[button].Contains(where); });
	if (hit == kTestOrder.end())
		return false;

	const int32 count = CountChildren();
	switch (*hit) {
		case 0:
			CenterMediaFile(0, false, 0);
			break;
		case 1:
			CenterMediaFile(count - 1, false, 0);
			break;
		case 2:
			CenterMediaFile(std::max<int32>(0, centeredIndex - visibleCount), false, 0);
			break;
		case 3:
			CenterMediaFile(std::min(centeredIndex + visibleCount, count - 1), false, 0);
			break;
		case 4:
			CenterMediaFile(nextIndex, false, -1);
			break;
		default:
			CenterMediaFile(nextIndex, false, 1);
			break;
	}
	return true;
}


bool
MxView::_ClickMenuArea(BPoint where)
{
	if (!menuRect.IsValid() || !menuRect.Contains(where))
		return false;
	const float below = menuRect.bottom - where.y;
	printf("  ..MenuRect ");
	where.PrintToStream();
	printf("  ..> %5.1f ", below);
	printf("  ..> %d Feld", static_cast<int>(below / menuRect.Width()));
	return true;
}
