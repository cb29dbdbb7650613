// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WINDOW_COMMANDS_H
#define WINDOW_COMMANDS_H

#include <AppDefs.h>
#include <Roster.h>

#include "appcontrol/PlayerMessages.h"
#include "entryview/EntryMessages.h"
#include "locale/LanguageMessages.h"


// Commands of the media window: code, fields, sender. Those that lower folders send stand there.
enum : uint32 {
	// No fields; context menu.
	kMsgEditList = 'MW_E',
	kMsgCloseWindow = 'MW_C',
	kMsgHideTitleTab = 'MWhT',
	kMsgShowTitleTab = 'MWsT',
	kMsgToggleTitleTab = 'MWkT',
	kMsgToggleAlwaysInFront = 'MWff',
	// No fields; context menu, for the list view.
	kMsgBoxSizeMaxi = 'MWmx',
	kMsgBoxSizeNormal = 'MWmd',
	kMsgBoxSizeMini = 'MWmi',
	kMsgBoxSizeMicro = 'MWm4',
	kMsgBoxSizePico = 'MWm5',
	kMsgSetPlayTimes = 'MWPT',
	// "korukey" int32, the number of a remote control's key; remote controls.
	kMsgRemoteKey = 'MWse',

	// No fields; the window and the list view tell the application that they are gone.
	kMsgWindowGone = 'MW_Q',
	kMsgRemoteGone = 'irmi',

	// Sent by nobody in this program, listened to all the same.
	kMsgRosterReactivated = 'BRAZ',
	kMsgKeyDump = '_KDN',
};

static_assert(kMsgEditList == 0x4D575F45, "codes are read high byte first");
static_assert(kMsgCloseWindow == 0x4D575F43, "codes are read high byte first");
static_assert(kMsgHideTitleTab == 0x4D576854, "codes are read high byte first");
static_assert(kMsgShowTitleTab == 0x4D577354, "codes are read high byte first");
static_assert(kMsgToggleTitleTab == 0x4D576B54, "codes are read high byte first");
static_assert(kMsgToggleAlwaysInFront == 0x4D576666, "codes are read high byte first");
static_assert(kMsgBoxSizeMaxi == 0x4D576D78, "codes are read high byte first");
static_assert(kMsgBoxSizeNormal == 0x4D576D64, "codes are read high byte first");
static_assert(kMsgBoxSizeMini == 0x4D576D69, "codes are read high byte first");
static_assert(kMsgBoxSizeMicro == 0x4D576D34, "codes are read high byte first");
static_assert(kMsgBoxSizePico == 0x4D576D35, "codes are read high byte first");
static_assert(kMsgSetPlayTimes == 0x4D575054, "codes are read high byte first");
static_assert(kMsgRemoteKey == 0x4D577365, "codes are read high byte first");
static_assert(kMsgWindowGone == 0x4D575F51, "codes are read high byte first");
static_assert(kMsgRemoteGone == 0x69726D69, "codes are read high byte first");
static_assert(kMsgRosterReactivated == 0x4252415A, "codes are read high byte first");
static_assert(kMsgKeyDump == 0x5F4B444E, "codes are read high byte first");

// What the platform sends to the application and the window, and what they do with it.
static_assert(B_QUIT_REQUESTED == 0x5F515251, "ends the application, or closes the window");
static_assert(B_COUNT_PROPERTIES == 0x50434E54, "the application ignores it");
static_assert(B_GET_PROPERTY == 0x50474554, "the application and the window ignore it");
static_assert(B_REPLY == 0x52504C59, "the application ignores it");
static_assert(B_KEY_DOWN == 0x5F4B5944, "printed by the application, a key for the list view");
static_assert(B_KEY_UP == 0x5F4B5955, "printed by the application, ignored by the window");
static_assert(B_UNMAPPED_KEY_DOWN == 0x5F554B44, "tells the state");
static_assert(B_UNMAPPED_KEY_UP == 0x5F554B55, "ignored");
static_assert(B_MODIFIERS_CHANGED == 0x5F4D4348, "ignored");
static_assert(B_MOUSE_WHEEL_CHANGED == 0x5F4D5743, "ignored");
static_assert(B_SIMPLE_DATA == 0x44415441, "dropped files");
static_assert(B_ABOUT_REQUESTED == 0x5F414252, "shows the version");
static_assert(B_SOME_APP_QUIT == 0x42524151, "remembers the application");
static_assert(B_SOME_APP_LAUNCHED == 0x42524153, "remembers the application");
static_assert(B_SOME_APP_ACTIVATED == 0x42524157, "remembers the application");
static_assert((B_REQUEST_LAUNCHED | B_REQUEST_QUIT | B_REQUEST_ACTIVATED) == 7, "all notices");

#endif // WINDOW_COMMANDS_H
