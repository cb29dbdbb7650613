// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Keys for the application in front.
#include "appcontrol/RemoteCommands.h"

#include <stdio.h>
#include <string.h>

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <Message.h>
#include <OS.h>
#include <Roster.h>
#include <String.h>
#include <TypeConstants.h>

#include "appcontrol/RemoteApplications.h"
#include "appcontrol/RemoteKeys.h"
#include "appcontrol/RemotePlayers.h"
#include "settings/Helpers.h"


namespace {

constexpr char kDeskbar[] = "application/x-vnd.Be-TSKB";
constexpr char kXpdf[] = "application/x-vnd.mp-xpdf";
constexpr char kGobeProductive[] = "application/x-vnd.gobe.productive";

} // namespace


void
IAltPlusMinus(long key)
{
	if (key == kRemoteLouder || key == kRemotePageUp)
		PressKeyInLastApplication({kKeyKeypadPlus, '+', "+", kAlt}, key);
	else if (key == kRemoteSofter || key == kRemotePageDown)
		PressKeyInLastApplication({kKeyKeypadMinus, '-', "-", kAlt}, key);
}


void
IPageUpDown(long key)
{
	KeyPress press;
	if ((key == kRemotePageUp || key == kRemotePageDown) && KeyPressFor(key, &press))
		PressKeyInLastApplication(press, key);
}


// Where left and right mean pages.
static void
turn_pages(const char* signature, long key, KeyPress* press)
{
	const bool isNext = key == kRemoteNext;
	if (!isNext && key != kRemotePrevious)
		return;
	if (strcmp(signature, kXpdf) == 0) {
		*press = isNext ? KeyPress{kKeyN, 'n', "n", 0} : KeyPress{kKeyP, 'p', "p", 0};
	} else if (strcmp(signature, kGobeProductive) == 0) {
		KeyPressFor(isNext ? kRemotePageDown : kRemotePageUp, press);
	}
}


void
IKeypress2App(long key)
{
	KeyPress press;
	if (!KeyPressFor(key, &press))
		return;
	app_info active;
	if (be_roster->GetActiveAppInfo(&active) != B_OK) {
		printf(" oops - nobody for the key (%ld)\n", key);
		return;
	}
	// There it would unmount a disk.
	if (key == kRemoteEject && strcmp(active.signature, kFileManagerSignature) == 0) {
		printf(" no eject to the file manager\n");
		return;
	}
	turn_pages(active.signature, key, &press);
	PressKeyIn(active.signature, active.team, press, key);
}


void
IJumpMenu()
{
	const BMessenger target(kDeskbar);
	if (!target.IsValid()) {
		printf(" oops - bad messenger '%s'\n", kDeskbar);
		return;
	}
	const uint8 states[16] = {};
	BMessage message(B_UNMAPPED_KEY_DOWN);
	message.AddInt64("when", system_time());
	message.AddInt32("modifiers", 0);
	message.AddInt32("key", kKeyMenu);
	message.AddData("states", B_UINT8_TYPE, states, sizeof(states));
	target.SendMessage(&message, static_cast<BHandler*>(nullptr), kDeliveryLimit);
}


void
IJumpWorkSpace(long)
{
	printf(" Workspaces-Switching only on Zeta !\n");
}


void
CheckIt(BMessage* message)
{
	if (message == nullptr)
		return;
	BString signature;
	const BMessenger target = GetLastRosterMessenger(nullptr, &signature);
	if (!target.IsValid()
		|| target.SendMessage(message, static_cast<BHandler*>(nullptr), kDeliveryLimit) != B_OK)
		printf(" oops - bad messenger A\n");
	const team_id player = be_roster->TeamFor(kNewMediaPlayer);
	if (player >= 0)
		be_roster->ActivateApp(player);
}


void
FollowMousFocus(bool follow)
{
	static bool sIsSuspended = false;
	if (!follow && mouse_mode() == B_FOCUS_FOLLOWS_MOUSE) {
		set_mouse_mode(B_NORMAL_MOUSE);
		sIsSuspended = true;
	} else if (follow && sIsSuspended) {
		set_mouse_mode(B_FOCUS_FOLLOWS_MOUSE);
		sIsSuspended = false;
	}
}
