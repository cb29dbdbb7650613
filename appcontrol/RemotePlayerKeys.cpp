// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Remote keys for the running player.
#include "appcontrol/RemoteCommands.h"

#include <array>

#include <stdint.h>
#include <stdio.h>
#include <string.h>

#include <Application.h>
#include <List.h>
#include <Message.h>
#include <Roster.h>

#include "appcontrol/RemoteKeys.h"
#include "appcontrol/RemotePlayers.h"
#include "settings/Helpers.h"


namespace {

struct Player {
	const char* signature;
	// What a trace calls it; null for those that are found without one.
	const char* name;
};

constexpr std::array<Player, 7> kAudioPlayers = {{
	{kSoundplay, nullptr},
	{kZenebona, nullptr},
	{kHaikuMediaPlayer, "Haiku-MediaPlayer"},
	{kCLAmp, "CL-Amp"},
	{kBeMediaPlayer, "Be.MediaPlayer"},
	{kNewMediaPlayer, "yT-MediaPlayer"},
	{kOldMediaPlayer, "YT-MediaPlayer"},
}};

constexpr std::array<Player, 4> kVideoPlayers = {{
	{kVlc, nullptr},
	{kStampTV, nullptr},
	{kNewMediaPlayer, "yT-MediaPlayer"},
	{kHaikuMediaPlayer, "Haiku-MediaPlayer"},
}};

// A key that starts a player, and what is said if it does not start.
struct Launch {
	long key;
	const char* signature;
	const char* failure;
};

constexpr std::array<Launch, 5> kAudioLaunches = {{
	{kRemoteLaunch, kHaikuMediaPlayer, "Sorry Can't launch Haiku-MediaPlayer - next app.."},
	{kRemoteNumber1, kSoundplay, "Sorry Can't launch Soundplay - N1 app.."},
	{kRemoteNumber2, kZenebona, "Sorry Can't launch Zenebona - N2 app.."},
	{kRemoteNumber3, kNewMediaPlayer, "Sorry Can't launch MediaPlayer - N3 app.."},
	{kRemoteNumber4, kBeMediaPlayer, "Sorry Can't launch old Be.MediaPlayer - N4 app.."},
}};

constexpr std::array<Launch, 4> kVideoLaunches = {{
	{kRemoteLaunch, kVlc, "Sorry Can't launch VLC"},
	{kRemoteNumber1, kVlc, "Sorry Can't launch VLC - N1 app.."},
	{kRemoteNumber2, kStampTV, "Sorry Can't launch StampTV - N2 app.."},
	{kRemoteNumber3, kNewMediaPlayer, "Sorry Can't launch MediaPlayer - N3 app.."},
}};

// What the media player's keys carry as their characters.
constexpr char kBytes[] = "\"\"";
constexpr int32 kAltF = 0x422;
constexpr bigtime_t kPause = 1000;

} // namespace


// The player of the application that started last and is one, or null.
template <size_t N>
static const Player*
find_running(const std::array<Player, N>& players)
{
	BList teams;
	be_roster->GetAppList(&teams);
	for (int32 index = teams.CountItems() - 1; index >= 0; index--) {
		const team_id team = static_cast<team_id>(reinterpret_cast<intptr_t>(teams.ItemAt(index)));
		app_info info;
		if (be_roster->GetRunningAppInfo(team, &info) != B_OK)
			continue;
		for (const Player& player : players) {
			if (strcmp(info.signature, player.signature) != 0)
				continue;
			if (player.name != nullptr)
				printf(" %s FOUND\n ", player.name);
			return &player;
		}
	}
	return nullptr;
}


// Whether one was started, or runs meanwhile.
template <size_t N>
static bool
launch(const std::array<Launch, N>& launches, long key)
{
	for (const Launch& candidate : launches) {
		if (candidate.key != key)
			continue;
		const status_t status
			= be_roster->Launch(candidate.signature, static_cast<BMessage*>(nullptr));
		if (status == B_OK || status == B_ALREADY_RUNNING)
			return true;
		AnyAlert(candidate.failure, true);
	}
	return false;
}


// A player that does not answer is not asked again.
static bool
repeat_command(uint32 command, int times)
{
	for (int i = 0; i < times; i++) {
		if (!TellTracks(command))
			return false;
	}
	return true;
}


static bool
steer_soundplay(long key)
{
	constexpr int kVolumeSteps = 3;
	switch (key) {
		case kRemoteSofter:
			return repeat_command(kCommandSofter, kVolumeSteps);
		case kRemoteLouder:
			return repeat_command(kCommandLouder, kVolumeSteps);
		case kRemotePrevious:
			return TellTracks(kCommandPrevious);
		case kRemoteNext:
			return TellTracks(kCommandNext);
		case kRemoteStop:
		case kRemotePause:
			return TellTracks(kCommandStop);
		case kRemotePlay:
			return TellTracks(kCommandPlay);
		default:
			return true;
	}
}


// The media player's key on the keyboard for that of the remote control.
static KeyPress
media_player_key(long key)
{
	switch (key) {
		case kRemoteLouder:
			return {kKeyUp, B_UP_ARROW, kBytes};
		case kRemoteSofter:
			return {kKeyDown, B_DOWN_ARROW, kBytes};
		case kRemotePageDown:
			return {kKeyPageDown, B_PAGE_DOWN, kBytes};
		case kRemotePageUp:
			return {kKeyPageUp, B_PAGE_UP, kBytes};
		case kRemotePrevious:
			return {kKeyLeft, B_LEFT_ARROW, kBytes};
		case kRemoteNext:
			return {kKeyRight, B_RIGHT_ARROW, kBytes};
		case kRemotePause:
		case kRemotePlay:
			return {kKeySpace, B_SPACE, kBytes};
		case kRemoteStop:
			printf(" SIM ALT-F\n");
			return {kKeyF, 'f', "f", kAltF};
		default:
		{
			KeyPress press;
			press.bytes = kBytes;
			return press;
		}
	}
}


static void
activate_self()
{
	app_info info;
	if (be_app == nullptr || be_app->GetAppInfo(&info) != B_OK)
		return;
	printf(" will top myself '%s'  Team:%ld\n", info.signature, static_cast<long>(info.team));
	be_roster->ActivateApp(info.team);
}


static bool
press_key(const char* signature, long key)
{
	bool isTaken;
	if (strcmp(signature, kHaikuMediaPlayer) == 0) {
		printf("(Haiku?)Mediaplayer_selected");
		const KeyPress press = media_player_key(key);
		isTaken = PressKeyInLastApplication(press, key);
		activate_self();
	} else {
		printf("  target is '%s' \n", signature);
		printf("  WILL SEND ");
		isTaken = PressKeyIn(signature, -1, KeyPress(), key);
	}
	snooze(kPause);
	return isTaken;
}


bool
PassAudioKey(long key)
{
	printf("IAudioApps(%ld)\t", key);
	const Player* const player = find_running(kAudioPlayers);
	if (player == nullptr) {
		const bool isStarted = launch(kAudioLaunches, key);
		printf("IAudioApps any startet ? -end (%ld)\n", key);
		return isStarted;
	}
	if (strcmp(player->signature, kSoundplay) != 0)
		return press_key(player->signature, key);
	const bool isDone = steer_soundplay(key);
	snooze(kPause);
	return isDone;
}


bool
PassVideoKey(long key)
{
	printf("IVideoApps(%ld)\t", key);
	const Player* const player = find_running(kVideoPlayers);
	bool isDone;
	if (player == nullptr) {
		isDone = launch(kVideoLaunches, key);
		printf("IVideoApps any startet ? -end (%ld)\n", key);
	} else {
		isDone = press_key(player->signature, key);
	}
	printf("IVideoApps end\n");
	return isDone;
}


void
IAudioApps(long key)
{
	PassAudioKey(key);
}


void
IVideoApps(long key)
{
	PassVideoKey(key);
}
