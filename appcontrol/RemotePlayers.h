// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REMOTE_PLAYERS_H
#define REMOTE_PLAYERS_H

#include <OS.h>
#include <SupportDefs.h>


// The players that can be steered, by their signatures. Those of two differ in case only.

inline constexpr char kSoundplay[] = "application/x-vnd.marcone-soundplay";
inline constexpr char kZenebona[] = "application/x-vnd.RMC.Zenebona";
inline constexpr char kHaikuMediaPlayer[] = "application/x-vnd.Haiku-MediaPlayer";
inline constexpr char kCLAmp[] = "application/x-vnd.ClaesL-CLAmp";
inline constexpr char kBeMediaPlayer[] = "application/x-vnd.Be.MediaPlayer";
inline constexpr char kNewMediaPlayer[] = "application/x-vnd.yT-MediaPlayer";
inline constexpr char kOldMediaPlayer[] = "application/x-vnd.YT-MediaPlayer";
inline constexpr char kVlc[] = "application/x-vnd.videolan-vlc";
inline constexpr char kStampTV[] = "application/x-vnd.Me.stampTV";

// How long another application may take to accept a message, and how long to answer it.
inline constexpr bigtime_t kDeliveryLimit = 2000000;
inline constexpr bigtime_t kReplyLimit = 2000000;

// What DoCommand(), IAudioApps(), IVideoApps() and IAnyApps() do, for callers that have to know
// what became of it.

// False if no track was told: there is no player, it does not answer, or it does not say how loud
// it is.
bool TellTracks(long command);
// False if no player took the key, and the key started none. True also if one runs to which the key
// means nothing.
bool PassAudioKey(long key);
bool PassVideoKey(long key);
// B_BAD_VALUE for a key that starts nothing.
status_t StartProgramFor(long key);

#endif // REMOTE_PLAYERS_H
