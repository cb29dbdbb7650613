// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LOCATIONS_H
#define LOCATIONS_H

/*!	Where the programs are that shell commands name. What stands here is Haiku's; a build for
	another system defines the places that differ.
*/

#ifndef VINYLOH_FILE_MANAGER
#define VINYLOH_FILE_MANAGER "/boot/system/Tracker"
#define VINYLOH_RESTART_FILE_MANAGER "/boot/beos/system/Tracker"
#endif

#ifndef VINYLOH_RESTART_FILE_MANAGER
#define VINYLOH_RESTART_FILE_MANAGER VINYLOH_FILE_MANAGER
#endif

#ifndef VINYLOH_FALLBACK_PLAYER
#define VINYLOH_FALLBACK_PLAYER "/boot/beos/apps/MediaPlayer"
#endif


// Opens a folder, or a file with the application that the system prefers for it.
inline constexpr char kFileManager[] = VINYLOH_FILE_MANAGER;
// The same, as the restart script names it.
inline constexpr char kRestartFileManager[] = VINYLOH_RESTART_FILE_MANAGER;
// Opens files that have no type.
inline constexpr char kFallbackPlayer[] = VINYLOH_FALLBACK_PLAYER;
// Edits the playlist file.
inline constexpr char kTextEditorSignature[] = "application/x-vnd.Haiku-StyledEdit";
// Stands in for the home folder if the system names none.
inline constexpr char kFallbackHome[] = "/boot/home";
inline constexpr char kRestartScript[] = "/boot/var/tmp/restart_koru.sh";

#endif // LOCATIONS_H
