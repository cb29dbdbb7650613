// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The media window's commands, and the playing of titles.
#include "window/MediaWindow.h"

#include <array>

#include <stdio.h>

#include <Application.h>
#include <InterfaceDefs.h>
#include <List.h>
#include <Message.h>
#include <Messenger.h>
#include <Roster.h>
#include <String.h>

#include "listview/MxView.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "window/ExternalPlayer.h"
#include "window/MediaFileOps.h"
#include "window/PathLists.h"
#include "window/WindowCommands.h"


namespace {

struct ModifierName {
	uint32 mask;
	const char* name;
};

// The right Control key has none: it shows the state instead.
constexpr std::array<ModifierName, 11> kModifierNames = {{
	{B_SHIFT_KEY, "B_SHIFT_KEY"},
	{B_CONTROL_KEY, "B_CONTROL_KEY"},
	{B_CAPS_LOCK, "B_CAPS_LOCK"},
	{B_LEFT_SHIFT_KEY, "B_LEFT_SHIFT_KEY"},
	{B_RIGHT_SHIFT_KEY, "B_RIGHT_SHIFT_KEY"},
	{B_LEFT_COMMAND_KEY, "B_LEFT_COMMAND_KEY"},
	{B_RIGHT_COMMAND_KEY, "B_RIGHT_COMMAND_KEY"},
	{B_LEFT_CONTROL_KEY, "B_LEFT_CONTROL_KEY"},
	{B_RIGHT_CONTROL_KEY, nullptr},
	{B_LEFT_OPTION_KEY, "B_LEFT_OPTION_KEY"},
	{B_RIGHT_OPTION_KEY, "B_RIGHT_OPTION_KEY"},
}};

// Taken from a look to hide its tab. What is left is no defined look for most; the window then
// keeps its old one.
constexpr uint32 kTabBits = 0x13;

// The list view shows no album as the playing one.
constexpr int32 kNoAlbum = -2;

} // namespace


void
MEDIA_Window::MessageReceived(BMessage* message)
{
	if (!_HandleCommand(message))
		_HandlePlatformMessage(message);
}


bool
MEDIA_Window::_HandleCommand(BMessage* message)
{
	switch (message->what) {
		case kMsgPlayTitle:
			_PlayTitle(*message);
			return true;
		case kMsgListOperation:
			_ListOperation(*message);
			return true;
		case kMsgEditList:
			DoWithMediaFiles(MF_EDIT, "--", 0);
			return true;
		case kMsgCloseWindow:
			_Close();
			return true;
		case kMsgHideTitleTab:
			_SetTitleTab(true);
			return true;
		case kMsgShowTitleTab:
			_SetTitleTab(false);
			return true;
		case kMsgToggleTitleTab:
			_ToggleTitleTab();
			return true;
		case kMsgToggleAlwaysInFront:
			_ToggleAlwaysInFront();
			return true;
		case kMsgBoxSizeMini:
		case kMsgBoxSizeMicro:
		case kMsgBoxSizePico:
		case kMsgBoxSizeNormal:
		case kMsgBoxSizeMaxi:
		case kMsgSetPlayTimes:
			fListView->MessageReceived(message);
			return true;
		case kMsgRemoteKey:
			fListView->KeyEvents(message);
			return true;
		case kMsgPreferredAudioApp:
			_TakePreferredPlayer(*message);
			return true;
		case kMsgLanguageChanged:
			_LanguageChanged(*message);
			return true;
	}
	return false;
}


void
MEDIA_Window::_HandlePlatformMessage(BMessage* message)
{
	switch (message->what) {
		case B_KEY_DOWN:
			fListView->KeyEvents(message);
			break;
		case B_UNMAPPED_KEY_DOWN:
			AddOptionalByWinKey(message);
			break;
		case B_SIMPLE_DATA:
			DraggedMediaFiles(message, true);
			break;
		case B_ABOUT_REQUESTED:
			AboutERequested();
			break;
		case B_SOME_APP_QUIT:
		case B_SOME_APP_LAUNCHED:
		case B_SOME_APP_ACTIVATED:
		case kMsgRosterReactivated:
			GetLastRosterMessenger(message, nullptr);
			break;
		case B_KEY_UP:
		case B_UNMAPPED_KEY_UP:
		case B_MODIFIERS_CHANGED:
		case B_MOUSE_WHEEL_CHANGED:
		case B_GET_PROPERTY:
			break;
		default:
			_PrintUnknown(*message);
			break;
	}
}


void
MEDIA_Window::_PrintUnknown(const BMessage& message)
{
	printf("MEDIA_Window::MessageReceived\n");
	message.PrintToStream();
}


void
MEDIA_Window::_PlayTitle(const BMessage& message)
{
	int32 number;
	if (message.FindInt32("ml_nr", &number) != B_OK) {
		message.PrintToStream();
		return;
	}
	if (mflist != nullptr && mflist->IsEmpty())
		return;

	const BPath* entry = nullptr;
	if (fFolderShown) {
		entry = PathAt(axflist, number);
		if (entry == nullptr)
			number = _BackToList();
	}
	// Not fFolderShown's other branch: the end of an album has just cleared it.
	if (!fFolderShown) {
		entry = PathAt(mflist, number);
		if (entry == nullptr) {
			number = _BackToTop();
			entry = PathAt(mflist, number);
		}
	}

	if (entry != nullptr && entry->Path() != nullptr)
		IOpenThisFile(entry->Path(), false);
	fListView->CenterMediaFile(number, true, 0);
}


// The end of the media file list was passed: it starts again. Returns the first number.
int32
MEDIA_Window::_BackToTop()
{
	printf("\nEND OF TOPLIST\n");
	printf(" OOPS: \n");
	fSettings->PrintPlayConditions();
	fSettings->last_top_media = 0;
	fSettings->last_top_media_buf = 0;
	fSettings->last_timer_nr = -1;
	MxView::MedList = mflist;
	printf("PLAY FROM TOP\n");
	fListView->ChildsFromList(false);
	fListView->imageIndex = kNoAlbum;
	printf("  NOW: \n");
	fSettings->PrintPlayConditions();
	return 0;
}


// The end of an album was passed: the media file list goes on where it was. Returns that number.
int32
MEDIA_Window::_BackToList()
{
	printf("END OF ALT-LIST\n");
	printf(" OOPS: \n");
	fSettings->PrintPlayConditions();
	fSettings->last_top_media = fSettings->last_top_media_buf;
	fSettings->last_timer_nr = -1;
	const int32 number = fSettings->last_top_media;
	MxView::MedList = mflist;
	printf("PLAY FROM TOP\n");
	fFolderShown = false;
	MxView::SingleAlbum = false;
	fListView->ChildsFromList(false);
	fListView->imageIndex = kNoAlbum;
	printf("  NOW: \n");
	fSettings->PrintPlayConditions();
	return number;
}


void
MEDIA_Window::_ListOperation(const BMessage& message)
{
	DoWithMediaFiles(message.GetInt32("mpl_what", -1), "--", message.GetInt32("mpl_nr", -1));
}


void
MEDIA_Window::_Close()
{
	be_app_messenger.SendMessage(kMsgWindowGone);
	const BMessenger window(this);
	window.SendMessage(B_QUIT_REQUESTED);
}


void
MEDIA_Window::_SetTitleTab(bool hidden)
{
	if (hidden)
		SetLook(static_cast<window_look>(Look() & ~kTabBits));
	else
		SetLook(B_FLOATING_WINDOW_LOOK);
	fSettings->window_mtab = hidden;
}


void
MEDIA_Window::_ToggleTitleTab()
{
	_SetTitleTab(!fSettings->window_mtab);
	fListView->Invalidate();
}


void
MEDIA_Window::_ToggleAlwaysInFront()
{
	fSettings->mw_ever_topped = !fSettings->mw_ever_topped;
	SetFeel(fSettings->mw_ever_topped ? B_FLOATING_ALL_WINDOW_FEEL : B_NORMAL_WINDOW_FEEL);
}


void
MEDIA_Window::_TakePreferredPlayer(const BMessage& message)
{
	const char* path;
	if (message.FindString("aa_mime", &path) != B_OK)
		return;
	snprintf(fSettings->pref_AudioApp, sizeof(fSettings->pref_AudioApp), "%s", path);
	printf("upaa >> %s \n", fSettings->pref_AudioApp);
}


void
MEDIA_Window::_LanguageChanged(const BMessage& message)
{
	// The list view knows already, unless another copy of the program has told everybody.
	fListView->FollowLanguage(message);
	_UpdateTitle();
	printf(" KV_SIM_LOCALE reloadet\n");
}


void
MEDIA_Window::AddOptionalByWinKey(BMessage* message)
{
	const uint32 modifiers = static_cast<uint32>(message->GetInt32("modifiers", 0));
	for (const ModifierName& modifier : kModifierNames) {
		if ((modifiers & modifier.mask) == 0)
			continue;
		if (modifier.name != nullptr)
			printf(".. %s\n", modifier.name);
		else
			_PrintStatus();
	}
}


void
MEDIA_Window::_PrintStatus()
{
	printf("show TOPLIST-Info: \n");
	printf("Toplist-Images : %ld\n", static_cast<long>(fFolderList->CountItems()));
	printf("Toplist-Items  : %ld\n",
		static_cast<long>(mflist != nullptr ? mflist->CountItems() : 0));
	printf("   AlienList-Style : %d\n", fForeignListStyle);
	printf("ListStyleWithFile  : %d\n", fListStyleWithFile);
	printf("Folderlist : %d|%d\n", MxView::SingleAlbum, fFolderShown);
	printf("Prefs_play : %ld\n", static_cast<long>(fSettings->last_top_media));
	printf("Prefs_next : %ld\n", static_cast<long>(fSettings->next_top_media));
	printf("PlayTitle : %s\n", fSettings->playingTitle.String());
	printf("PlayArtist: %s\n", fSettings->playingArtist.String());
	printf("PlayImage : %ld\n", static_cast<long>(fSettings->playingImage));
	printf("ContPTime : ");
	fListView->CalcContinousPlaytime();
}
