// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Scripting the first audio player.
#include "appcontrol/RemoteCommands.h"

#include <math.h>
#include <stdio.h>

#include <AppDefs.h>
#include <Message.h>
#include <Roster.h>

#include "appcontrol/RemotePlayers.h"


namespace {

constexpr bigtime_t kStartLimit = 10000000;
constexpr bigtime_t kStartPause = 500000;

// A player whose tracks never end must not hold a command forever. The last track may still take
// the time-outs of its own questions.
constexpr long kMostTracks = 256;
constexpr bigtime_t kCommandLimit = 20000000;

constexpr float kVolumeStep = 0.02f;
constexpr float kFullVolume = 1;
constexpr float kHighestVolume = 2;
// Not above this, the sound counts as off.
constexpr float kMutedVolume = 0.03f;

} // namespace


static bool
send_to(const BMessenger& track, BMessage* request)
{
	return track.SendMessage(request, static_cast<BHandler*>(nullptr), kDeliveryLimit) == B_OK;
}


static bool
set_property(const BMessenger& track, const char* property, float value)
{
	BMessage request(B_SET_PROPERTY);
	request.AddSpecifier(property);
	request.AddFloat("data", value);
	return send_to(track, &request);
}


static bool
execute(const BMessenger& track, const char* property)
{
	BMessage request(B_EXECUTE_PROPERTY);
	request.AddSpecifier(property);
	return send_to(track, &request);
}


// False if the track does not tell it, or tells what is no number.
static bool
get_volume(const BMessenger& track, float* volume)
{
	BMessage request(B_GET_PROPERTY);
	request.AddSpecifier("volume");
	BMessage reply;
	return track.SendMessage(&request, &reply, kDeliveryLimit, kReplyLimit) == B_OK
		&& reply.FindFloat("result", volume) == B_OK && !isnan(*volume);
}


static bool
change_volume(const BMessenger& track, float step)
{
	float volume;
	if (!get_volume(track, &volume))
		return false;
	volume += step;
	if (volume > kHighestVolume)
		volume = kHighestVolume;
	if (volume < 0)
		volume = 0;
	return set_property(track, "volume", volume);
}


static bool
toggle_mute(const BMessenger& track)
{
	float volume;
	return get_volume(track, &volume)
		&& set_property(track, "volume", volume <= kMutedVolume ? kFullVolume : 0);
}


// False for a command that there is none.
static bool
is_command(long command)
{
	switch (command) {
		case kCommandPlay:
		case kCommandStop:
		case kCommandNext:
		case kCommandPrevious:
		case kCommandLouder:
		case kCommandSofter:
		case kCommandMute:
			return true;
		default:
			return false;
	}
}


static bool
do_with_track(const BMessenger& track, long command)
{
	switch (command) {
		case kCommandPlay:
			return set_property(track, "pitch", 1);
		case kCommandStop:
			return set_property(track, "pitch", 0);
		case kCommandNext:
			return execute(track, "next");
		case kCommandPrevious:
			return execute(track, "previous");
		case kCommandLouder:
			return change_volume(track, kVolumeStep);
		case kCommandSofter:
			return change_volume(track, -kVolumeStep);
		case kCommandMute:
			return toggle_mute(track);
		default:
			return false;
	}
}


// Starts the player if it does not run. A player that has just come may need a while until it has
// its tracks.
static void
make_player_run()
{
	if (BMessenger(kSoundplay).IsValid())
		return;

	const bigtime_t start = system_time();
	const status_t status = be_roster->Launch(kSoundplay, static_cast<BMessage*>(nullptr));
	if (status != B_OK && status != B_ALREADY_RUNNING) {
		printf("DoCommand: can't launch '%s'\n", kSoundplay);
		return;
	}
	do {
		snooze(kStartPause);
		if (BMessenger(kSoundplay).IsValid() && RemoteTrack(0).IsValid())
			return;
	} while (system_time() - start < kStartLimit);
}


BMessenger
RemoteTrack(long index)
{
	BMessage request(B_GET_PROPERTY);
	// The specifier that was added last is resolved first.
	request.AddSpecifier("Messenger");
	request.AddSpecifier("track", static_cast<int32>(index));

	BMessage reply;
	const BMessenger player(kSoundplay);
	if (player.SendMessage(&request, &reply, kDeliveryLimit, kReplyLimit) != B_OK)
		return BMessenger();

	// A reply without an error is one without a mistake.
	BMessenger track;
	if (reply.FindInt32("error") != 0 || reply.FindMessenger("result", &track) != B_OK)
		return BMessenger();
	return track;
}


bool
TellTracks(long command)
{
	if (!is_command(command))
		return false;
	const bigtime_t start = system_time();
	if (command == kCommandPlay)
		make_player_run();

	bool isTold = false;
	for (long index = 0; index < kMostTracks && system_time() - start < kCommandLimit; index++) {
		const BMessenger track = RemoteTrack(index);
		if (!track.IsValid())
			break;
		if (do_with_track(track, command))
			isTold = true;
	}
	return isTold;
}


void
DoCommand(long command)
{
	TellTracks(command);
}
