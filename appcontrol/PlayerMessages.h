// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAYER_MESSAGES_H
#define PLAYER_MESSAGES_H

#include <SupportDefs.h>


// A player was chosen for audio: "aa_mime" string, its path. Sent by the menu of players.
inline constexpr uint32 kMsgPreferredAudioApp = 'UPAA';

static_assert(kMsgPreferredAudioApp == 0x55504141, "codes are read high byte first");

#endif // PLAYER_MESSAGES_H
