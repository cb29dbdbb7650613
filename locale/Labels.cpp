// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/Labels.h"

#include "locale/KVLabel.h"


// The built-in texts, spelled as translators of the language files know them. A text that is its
// own number keeps the numbering stable between the products that share this table.
const char* eLabel[kLabelCount + 1] = {
	"Koru", // 0
	" Name: ", // 1
	"Header: ", // 2
	"Add New", // 3
	"-remote-", // 4
	"-unset-", // 5
	"Edit", // 6
	"Quit", // 7
	"Done..", // 8
	"MUTED", // 9
	"About", // 10
	"ReadPulse", // 11
	"Use hysterese", // 12
	"Continous", // 13
	"Teach In", // 14
	"teach-data", // 15
	"..pulse", // 16
	"set free", // 17
	"waiting", // 18
	"19", // 19
	"-codec-", // 20
	"RC5-Code", // 21
	"SIRCS", // 22
	"Denon", // 23
	"Motorola", // 24
	"Saba", // 25
	"U12_Code", // 26
	"U9_Code", // 27
	"U6_Code", // 28
	"H9X-Code-", // 29
	"Unknown", // 30
	"REMOTE_0", // 31
	"REMOTE_1", // 32
	"REMOTE_2", // 33
	"REMOTE_3", // 34
	"REMOTE_4", // 35
	"REMOTE_5", // 36
	"REMOTE_6", // 37
	"REMOTE", // 38
	"REMOTE_8", // 39
	"REMOTE_9", // 40
	"41", // 41
	"42", // 42
	"43", // 43
	"44", // 44
	"45", // 45
	"46", // 46
	"using:", // 47
	"48_oops", // 48
	"-?-", // 49
	"-unknown-", // 50
	"N0", // 51
	"N1", // 52
	"N2", // 53
	"N3", // 54
	"N4", // 55
	"N5", // 56
	"N6", // 57
	"N7", // 58
	"N8", // 59
	"N9", // 60
	"up", // 61
	"down", // 62
	"left", // 63
	"right", // 64
	"Vol+", // 65
	"Vol-", // 66
	"Mute", // 67
	"Power", // 68
	"OK", // 69
	"Tab", // 70
	"Menu", // 71
	"EXIT", // 72
	"LAST", // 73
	"TEXT", // 74
	"FAV", // 75
	"-F1-", // 76
	"-F2-", // 77
	"-F3-", // 78
	"-F4-", // 79
	"Kx80", // 80
	"Eject", // 81
	"Setup", // 82
	"Prg+", // 83
	"Prg-", // 84
	"Kx85", // 85
	"Kx86", // 86
	"Kx87", // 87
	"Kx88", // 88
	"Kx89", // 89
	"Kx90", // 90
	"|<<", // 91
	"<", // 92
	"||", // 93
	">", // 94
	">>|", // 95
	"[]", // 96
	"Rec.", // 97
	"Kx98", // 98
	"Kx99", // 99
	"-\?\?\?-", // 100
	"101", // 101
	"102", // 102
	"103", // 103
	"104", // 104
	"105", // 105
	"106", // 106
	"107", // 107
	"108", // 108
	"109", // 109
	"n.F.", // 110
	"Permit:", // 111
	"Workspaces", // 112
	"Desktop", // 113
	"Any-App.", // 114
	"Audio", // 115
	"Video", // 116
	"117", // 117
	"118", // 118
	" Default", // 119
	"-Any-", // 120
	"2 Bytes for Command", // 121
	"Cmd. in 1", // 122
	"Cmd. in 2", // 123
	"use 1 Command-Byte", // 124
	"use 2 Command-Bytes", // 125
	"Wrong header, data ", // 126
	"Thanks, press button on your remote to reassign..\n", // 127
	"128", // 128
	"Thanks, loading data..\n", // 129
	"Give name for new remote or select a remote\n", // 130
	"is Code for", // 131
	"select for", // 132
	"goes to:", // 133
	"134", // 134
	"135", // 135
	"136", // 136
	"Numbers", // 137
	"Controls", // 138
	"Media-Keys", // 139
	"Optionals", // 140
	" Splitting: ", // 141
	" Dedector: ", // 142
	" Teachbox: ", // 143
	"144", // 144
	"*TRACKER*ON*TOP*", // 145
	"Imitate your remote.", // 146
	"Move unused Buttons to this side.", // 147
	"Show grid", // 148
	"Use Dual-Funktion-Buttons", // 149
	"not avalible", // 150
	"151", // 151
	"View", // 152
	"Layout", // 153
	"Pulse", // 154
	"Pimp", // 155
	"MiniView", // 156
	"157", // 157
	"158", // 158
	"Preset edit", // 159
	"Preset reload", // 160
	"File", // 161
	"162:", // 162
	"This group", // 163
	"Copy", // 164
	"Paste", // 165
	"Clear", // 166
	"167", // 167
	"Workspace", // 168
	"(Locked) ", // 169
	"_KORU-TOPLIST", // 170
	"Toplist", // 171
	"Toggle Tab", // 172
	"Close", // 173
	"Open", // 174
	"Show Tab", // 175
	"Remove from List", // 176
	"Open folder", // 177
	"Allways in List:", // 178
	"not avalible..", // 179
	"180", // 180
	"Use pimped colors", // 181
	"Show PulseView", // 182
	"Settings", // 183
	"Hold last pressed key", // 184
	"Use system-sound", // 185
	"IR-Sensor:", // 186
	"..no port ", // 187
	"RESOURCE_BUSY", // 188
	"please reboot without Sensor.", // 189
	"190", // 190
	"On all Workspaces", // 191
	"Use Folder.jpg", // 192
	"Window ever on top", // 193
	"..back to playlist", // 194
	"Replace bad chars in filename", // 195
	"Add to Playlist", // 196
	"Set Playtime-Attribute", // 197
	"sort by tracknumber", // 198
	"Save", // 199
	"Prefered Audio-Application : ", // 200
	"Please remove IR-Sensor first, so we can restart \nthe Input-Server. ", // 201
	"Do nothing", // 202
	"Sensor is removed", // 203
	"204", // 204
	"205", // 205
	"BoxSize: ", // 206
	"mini", // 207
	"normal", // 208
	"maxi", // 209
	"micro", // 210
	"pico", // 211
	"Prefered Audio-Application : ", // 212
	" -none-", // 213
	" About", // 214
	"215", // 215
	"used keys:", // 216
	"217", // 217
	"218", // 218
	"219", // 219
	"220", // 220
	nullptr,
};


const char*
getLabel(int number)
{
	KVLabel* const catalogue = KVLabel::getKVLabel("KORU-Haiku");
	if (catalogue == nullptr)
		return eLabel[number];
	return catalogue->getLabel(nullptr, number);
}
