// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "appcontrol/RemoteKeys.h"

#include <stdio.h>

#include <AppDefs.h>
#include <Application.h>
#include <Messenger.h>
#include <OS.h>
#include <Roster.h>
#include <String.h>
#include <TypeConstants.h>

#include "appcontrol/RemoteCommands.h"
#include "appcontrol/RemotePlayers.h"
#include "settings/Helpers.h"


namespace {

constexpr char kRemoteControlSignature[] = "application/x-vnd.kv-KORU-Haiku";
constexpr char kOwnSignature[] = "application/x-vnd.kv-VinyloH";

} // namespace


BMessage
KeyDownMessage(const KeyPress& press)
{
	const uint8 states[16] = {};
	BMessage message(B_KEY_DOWN);
	message.AddInt64("when", system_time());
	message.AddInt32("modifiers", press.modifiers);
	message.AddInt32("key", press.key);
	message.AddInt32("raw_char", press.character);
	message.AddInt8("byte", press.character);
	message.AddString("bytes", press.bytes);
	message.AddData("states", B_UINT8_TYPE, states, sizeof(states));
	return message;
}


bool
KeyPressFor(long key, KeyPress* press)
{
	switch (key) {
		case kRemoteLouder:
			*press = {kKeyUp, B_UP_ARROW, "\x1e", 0};
			return true;
		case kRemoteSofter:
			*press = {kKeyDown, B_DOWN_ARROW, "\x1f", 0};
			return true;
		case kRemotePrevious:
			*press = {kKeyLeft, B_LEFT_ARROW, "\x1c", 0};
			return true;
		case kRemoteNext:
			*press = {kKeyRight, B_RIGHT_ARROW, "\x1d", 0};
			return true;
		case kRemotePageUp:
			*press = {kKeyPageUp, B_PAGE_UP, "\x0b", 0};
			return true;
		case kRemotePageDown:
			*press = {kKeyPageDown, B_PAGE_DOWN, "\x0c", 0};
			return true;
		case kRemotePause:
		case kRemotePlay:
			*press = {kKeySpace, B_SPACE, " ", 0};
			return true;
		case kRemoteStop:
			*press = {kKeyEscape, B_ESCAPE, "\x1b", 0};
			return true;
		case kRemoteLaunch:
			*press = {kKeyEnter, B_ENTER, "\n", 0};
			return true;
		case kRemoteEject:
			*press = {kKeyE, 'e', "e", kAlt};
			return true;
		case kRemoteNumber1:
		case kRemoteNumber2:
		case kRemoteNumber3:
		case kRemoteNumber4:
		{
			static const char* const kDigits[] = {"1", "2", "3", "4"};
			const long number = key - kRemoteNumber1;
			*press = {kKey1 + static_cast<int32>(number), static_cast<int8>(kDigits[number][0]),
				kDigits[number], 0};
			return true;
		}
		default:
			return false;
	}
}


bool
IsSelf(const char* signature, team_id team)
{
	const BString text(signature);
	if (text.ICompare(kRemoteControlSignature) == 0 || text.ICompare(kOwnSignature) == 0)
		return true;
	app_info own;
	return be_app != nullptr && be_app->GetAppInfo(&own) == B_OK && own.team == team;
}


static bool
press_key(const BMessenger& target, const char* signature, const KeyPress& press, long key)
{
	if (!target.IsValid()) {
		printf(" oops - nobody for the key (%ld)\n", key);
		return false;
	}
	if (IsSelf(signature, target.Team())) {
		printf(" no keypress to myself (%ld)\n", key);
		return false;
	}
	FollowMousFocus(false);
	BMessage message = KeyDownMessage(press);
	const status_t status
		= target.SendMessage(&message, static_cast<BHandler*>(nullptr), kDeliveryLimit);
	FollowMousFocus(true);
	if (status != B_OK)
		printf(" oops - the key is not taken (%ld)\n", key);
	return status == B_OK;
}


bool
PressKeyIn(const char* signature, team_id team, const KeyPress& press, long key)
{
	return press_key(BMessenger(signature, team), signature, press, key);
}


bool
PressKeyInLastApplication(const KeyPress& press, long key)
{
	BString signature;
	const BMessenger target = GetLastRosterMessenger(nullptr, &signature);
	return press_key(target, signature.String(), press, key);
}
