// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REMOTE_COMMANDS_H
#define REMOTE_COMMANDS_H

#include <Messenger.h>
#include <SupportDefs.h>


/*!	Steers other running applications: players, the file manager, whatever is in front.

	The calls wait for other applications: up to four seconds for each question and ten while a
	player starts, so that none may be made in a window's thread. They are for one thread at a time.
	What fails is printed; key numbers are those of a remote control's keys, RemoteKeys.h has them.
*/


// Players.

// The commands of DoCommand().
enum : uint32 {
	kCommandPlay = 'play',
	kCommandStop = 'stop',
	kCommandNext = 'next',
	kCommandPrevious = 'prev',
	kCommandLouder = 'vol+',
	kCommandSofter = 'vol-',
	kCommandMute = 'mute',
};

static_assert(kCommandPlay == 0x706C6179 && kCommandMute == 0x6D757465,
	"codes are read high byte first");

// The first audio player's object for that track list; an invalid messenger if there is none, or if
// the player does not answer in time.
BMessenger RemoteTrack(long index);

// Does a command with every track list of the first audio player. "play" starts it before if need
// be. Unknown commands do nothing.
void DoCommand(long command);

// Pass a key on to the running player; a few keys start one if none runs.
void IAudioApps(long key);
void IVideoApps(long key);

#endif // REMOTE_COMMANDS_H
