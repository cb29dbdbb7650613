// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The built-in texts, which language files refer to and which must therefore never change.
#include "locale/Labels.h"

#include <array>
#include <string>

#include <stdint.h>

#include <gtest/gtest.h>

#include "locale/KVLabel.h"


namespace {

// Written down apart from the table: by number, 0 to 220. An empty one is a place without a text of
// its own, which shows its number.
constexpr std::array<const char*, 221> kTexts = {{
	"Koru",
	" Name: ",
	"Header: ",
	"Add New",
	"-remote-",
	"-unset-",
	"Edit",
	"Quit",
	"Done..",
	"MUTED",
	"About",
	"ReadPulse",
	"Use hysterese",
	"Continous",
	"Teach In",
	"teach-data",
	"..pulse",
	"set free",
	"waiting",
	"",
	"-codec-",
	"RC5-Code",
	"SIRCS",
	"Denon",
	"Motorola",
	"Saba",
	"U12_Code",
	"U9_Code",
	"U6_Code",
	"H9X-Code-",
	"Unknown",
	"REMOTE_0",
	"REMOTE_1",
	"REMOTE_2",
	"REMOTE_3",
	"REMOTE_4",
	"REMOTE_5",
	"REMOTE_6",
	"REMOTE",
	"REMOTE_8",
	"REMOTE_9",
	"",
	"",
	"",
	"",
	"",
	"",
	"using:",
	"48_oops",
	"-?-",
	"-unknown-",
	"N0",
	"N1",
	"N2",
	"N3",
	"N4",
	"N5",
	"N6",
	"N7",
	"N8",
	"N9",
	"up",
	"down",
	"left",
	"right",
	"Vol+",
	"Vol-",
	"Mute",
	"Power",
	"OK",
	"Tab",
	"Menu",
	"EXIT",
	"LAST",
	"TEXT",
	"FAV",
	"-F1-",
	"-F2-",
	"-F3-",
	"-F4-",
	"Kx80",
	"Eject",
	"Setup",
	"Prg+",
	"Prg-",
	"Kx85",
	"Kx86",
	"Kx87",
	"Kx88",
	"Kx89",
	"Kx90",
	"|<<",
	"<",
	"||",
	">",
	">>|",
	"[]",
	"Rec.",
	"Kx98",
	"Kx99",
	"-?\?\?-",
	"",
	"",
	"",
	"",
	"",
	"",
	"",
	"",
	"",
	"n.F.",
	"Permit:",
	"Workspaces",
	"Desktop",
	"Any-App.",
	"Audio",
	"Video",
	"",
	"",
	" Default",
	"-Any-",
	"2 Bytes for Command",
	"Cmd. in 1",
	"Cmd. in 2",
	"use 1 Command-Byte",
	"use 2 Command-Bytes",
	"Wrong header, data ",
	"Thanks, press button on your remote to reassign..\n",
	"",
	"Thanks, loading data..\n",
	"Give name for new remote or select a remote\n",
	"is Code for",
	"select for",
	"goes to:",
	"",
	"",
	"",
	"Numbers",
	"Controls",
	"Media-Keys",
	"Optionals",
	" Splitting: ",
	" Dedector: ",
	" Teachbox: ",
	"",
	"*TRACKER*ON*TOP*",
	"Imitate your remote.",
	"Move unused Buttons to this side.",
	"Show grid",
	"Use Dual-Funktion-Buttons",
	"not avalible",
	"",
	"View",
	"Layout",
	"Pulse",
	"Pimp",
	"MiniView",
	"",
	"",
	"Preset edit",
	"Preset reload",
	"File",
	"162:",
	"This group",
	"Copy",
	"Paste",
	"Clear",
	"",
	"Workspace",
	"(Locked) ",
	"_KORU-TOPLIST",
	"Toplist",
	"Toggle Tab",
	"Close",
	"Open",
	"Show Tab",
	"Remove from List",
	"Open folder",
	"Allways in List:",
	"not avalible..",
	"",
	"Use pimped colors",
	"Show PulseView",
	"Settings",
	"Hold last pressed key",
	"Use system-sound",
	"IR-Sensor:",
	"..no port ",
	"RESOURCE_BUSY",
	"please reboot without Sensor.",
	"",
	"On all Workspaces",
	"Use Folder.jpg",
	"Window ever on top",
	"..back to playlist",
	"Replace bad chars in filename",
	"Add to Playlist",
	"Set Playtime-Attribute",
	"sort by tracknumber",
	"Save",
	"Prefered Audio-Application : ",
	"Please remove IR-Sensor first, so we can restart \nthe Input-Server. ",
	"Do nothing",
	"Sensor is removed",
	"",
	"",
	"BoxSize: ",
	"mini",
	"normal",
	"maxi",
	"micro",
	"pico",
	"Prefered Audio-Application : ",
	" -none-",
	" About",
	"",
	"used keys:",
	"",
	"",
	"",
	"",
}};

// Over all texts, each with its end.
uint64_t
checksum(const char* const* texts)
{
	uint64_t sum = 0xcbf29ce484222325;
	for (int number = 0; texts[number] != nullptr; number++) {
		const char* at = texts[number];
		do
			sum = (sum ^ static_cast<unsigned char>(*at)) * 0x100000001b3;
		while (*at++ != '\0');
	}
	return sum;
}

} // namespace


TEST(LabelTable, HasAll221TextsAndAnEnd)
{
	int count = 0;
	while (eLabel[count] != nullptr)
		count++;
	EXPECT_EQ(count, 221);
	EXPECT_EQ(kLabelCount, 221);
}


TEST(LabelTable, EachTextIsTheKnownOne)
{
	for (size_t number = 0; number < kTexts.size(); number++) {
		const std::string text = kTexts[number];
		EXPECT_EQ(eLabel[number], text.empty() ? std::to_string(number) : text) << number;
	}
}


TEST(LabelTable, ChecksumOfAllTexts)
{
	EXPECT_EQ(checksum(eLabel), 0x5cc7da1e452fcdb2);
}


TEST(LabelTable, TextsThatTheProgramShows)
{
	KVLabel labels("LabelTableTest");
	labels.MirrorList(eLabel);
	const auto text = [&labels](int number) { return labels.getLabel(nullptr, number); };
	EXPECT_STREQ(text(6), "Edit");
	EXPECT_STREQ(text(47), "using:");
	EXPECT_STREQ(text(49), "-?-");
	EXPECT_STREQ(text(172), "Toggle Tab");
	EXPECT_STREQ(text(173), "Close");
	EXPECT_STREQ(text(174), "Open");
	EXPECT_STREQ(text(175), "Show Tab");
	EXPECT_STREQ(text(176), "Remove from List");
	EXPECT_STREQ(text(177), "Open folder");
	EXPECT_STREQ(text(178), "Allways in List:");
	EXPECT_STREQ(text(179), "not avalible..");
	EXPECT_STREQ(text(193), "Window ever on top");
	EXPECT_STREQ(text(194), "..back to playlist");
	EXPECT_STREQ(text(195), "Replace bad chars in filename");
	EXPECT_STREQ(text(196), "Add to Playlist");
	EXPECT_STREQ(text(197), "Set Playtime-Attribute");
	EXPECT_STREQ(text(198), "sort by tracknumber");
	EXPECT_STREQ(text(199), "Save");
	EXPECT_STREQ(text(200), "Prefered Audio-Application : ");
	EXPECT_STREQ(text(206), "BoxSize: ");
	EXPECT_STREQ(text(207), "mini");
	EXPECT_STREQ(text(208), "normal");
	EXPECT_STREQ(text(209), "maxi");
	EXPECT_STREQ(text(210), "micro");
	EXPECT_STREQ(text(211), "pico");
	EXPECT_STREQ(text(212), "Prefered Audio-Application : ");
	EXPECT_STREQ(text(213), " -none-");
	EXPECT_STREQ(text(214), " About");
}
