// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PREFS_TABLE_H
#define PREFS_TABLE_H

#include <array>

#include <stddef.h>

#include "settings/Prefs.h"

// The keys with their fields and defaults, in the order in which they are loaded.


struct TextPref {
	const char* key;
	char* (*buffer)(Prefs& prefs);
	size_t capacity;
	const char* deflt;
};

struct FlagPref {
	const char* key;
	bool Prefs::*field;
	bool deflt;
};

struct FramePref {
	const char* key;
	BRect Prefs::*field;
	float left;
	float top;
	float right;
	float bottom;
};

struct NumberPref {
	const char* key;
	int32 Prefs::*field;
	long deflt;
};

inline constexpr char kSettingsFileName[] = "_KORU_WYN_Beta030";
inline constexpr char kBackColorKey[] = "altWinBackCol";
// The longest text that is read from the settings file.
inline constexpr size_t kMaxTextSize = 256;

// Two texts are loaded before the flags, the others after them.
inline constexpr size_t kFirstTexts = 2;
inline constexpr std::array<TextPref, 9> kTextPrefs = {{
	{"rs232_port", [](Prefs& prefs) -> char* { return prefs.rs232_port; },
		sizeof(Prefs::rs232_port), "serial2"},
	{"ir_logfile", [](Prefs& prefs) -> char* { return prefs.ir_logfile; },
		sizeof(Prefs::ir_logfile), "/boot/home/_logfile_KORU_"},
	{"Desktop", [](Prefs& prefs) -> char* { return prefs.Desktop; }, sizeof(Prefs::Desktop),
		"-empty-"},
	{"Application", [](Prefs& prefs) -> char* { return prefs.Application; },
		sizeof(Prefs::Application), "-empty-"},
	{"Audio", [](Prefs& prefs) -> char* { return prefs.Audio; }, sizeof(Prefs::Audio), "-empty-"},
	{"Video", [](Prefs& prefs) -> char* { return prefs.Video; }, sizeof(Prefs::Video), "-empty-"},
	{"Presetfile", [](Prefs& prefs) -> char* { return prefs.Presetfile; },
		sizeof(Prefs::Presetfile), "_preset_"},
	{"Layoutfile", [](Prefs& prefs) -> char* { return prefs.Layoutfile; },
		sizeof(Prefs::Layoutfile), "_LAYOUT_"},
	{"pref_AudioApp", [](Prefs& prefs) -> char* { return prefs.pref_AudioApp; },
		sizeof(Prefs::pref_AudioApp), "-empty-"},
}};

// Nine flags are loaded before the color, the others after the frames.
inline constexpr size_t kFirstFlags = 9;
inline constexpr std::array<FlagPref, 12> kFlagPrefs = {{
	{"use_splitting", &Prefs::use_splitting, false},
	{"use_pimped", &Prefs::use_pimped, false},
	{"show_pulse", &Prefs::show_pulse, false},
	{"hold_irInfo", &Prefs::hold_irInfo, false},
	{"use_systemsound", &Prefs::use_systemsound, false},
	{"all_workspaces", &Prefs::all_workspaces, false},
	{"use_DualButton", &Prefs::use_DualButton, false},
	{"use_Folderjpg", &Prefs::use_Folderjpg, true},
	{"mw_ever_topped", &Prefs::mw_ever_topped, true},
	{"window_by_begin", &Prefs::window_by_begin, false},
	{"use_ompl", &Prefs::use_ompl, false},
	{"window_mtab", &Prefs::window_mtab, false},
}};

inline constexpr std::array<FramePref, 4> kFramePrefs = {{
	{"prefs_window_rect", &Prefs::prefs_window_rect, 60, 100, 760, 300},
	{"vr_window_rect", &Prefs::vr_window_rect, 40, 40, 600, 600},
	{"pr_window_rect", &Prefs::pr_window_rect, 40, 40, 640, 355},
	{"lt_window_rect", &Prefs::lt_window_rect, 200, 100, 800, 515},
}};

inline constexpr NumberPref kPriorityPref = {"PRIORITY", &Prefs::PRIORITY, 40};
inline constexpr NumberPref kLastPlayPref = {"LAST_PLAY", &Prefs::last_top_media, 0};
inline constexpr NumberPref kLinkSizePref = {"LINK_SIZE", &Prefs::LINK_SIZE, 1};
inline constexpr std::array<NumberPref, 3> kNumberPrefs
	= {{kPriorityPref, kLastPlayPref, kLinkSizePref}};

#endif // PREFS_TABLE_H
