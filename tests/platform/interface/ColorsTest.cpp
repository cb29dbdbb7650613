// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <InterfaceDefs.h>

#include <string.h>

#include "tests/platform/interface/Canvas.h"

static_assert(sizeof(rgb_color) == 4, "four bytes");
static_assert(B_RGB32 == 8 && B_RGBA32 == 0x2008 && B_CMAP8 == 4 && B_GRAY8 == 2, "color spaces");
static_assert(B_RGB24_BIG == 0x1003 && B_RGB32_BIG == 0x1008 && B_RGBA32_BIG == 0x3008, "spaces");
static_assert(B_OP_COPY == 0 && B_OP_BLEND == 6 && B_OP_SELECT == 9 && B_OP_ALPHA == 10, "modes");
static_assert(B_SHIFT_KEY == 1 && B_MENU_KEY == 0x80 && B_RIGHT_OPTION_KEY == 0x8000, "modifiers");
static_assert(B_RIGHT_CONTROL_KEY == 0x2000 && B_CAPS_LOCK == 8 && B_NUM_LOCK == 0x20, "modifiers");
static_assert(B_F1_KEY == 2 && B_F12_KEY == 0x0d && B_PAUSE_KEY == 0x10, "raw keys");
static_assert(B_ENTER == 0x0a && B_RIGHT_ARROW == 0x1d && B_DELETE == 0x7f, "key characters");
static_assert(B_ALIGN_LEFT == 0 && B_ALIGN_RIGHT == 1 && B_ALIGN_CENTER == 2, "alignments");
static_assert(B_BUTT_CAP == 3 && B_SQUARE_CAP == 4 && B_MITER_JOIN == 1, "line ends");
static_assert(B_CLICK_TO_FOCUS_MOUSE == -1 && B_FOCUS_FOLLOWS_MOUSE == 1, "mouse modes");
static_assert(sizeof(key_info) == 20, "a word and 16 bytes");


TEST(Color, BytesLieInTheOrderOfTheName)
{
	const rgb_color color = {1, 2, 3, 4};
	const uint8 bytes[4] = {1, 2, 3, 4};
	EXPECT_EQ(memcmp(&color, bytes, 4), 0);
}


TEST(Color, ComparesAlphaToo)
{
	EXPECT_EQ(make_color(1, 2, 3), make_color(1, 2, 3, 255));
	EXPECT_NE(make_color(1, 2, 3), make_color(1, 2, 3, 254));
	rgb_color color;
	EXPECT_EQ(color.set_to(4, 5, 6), make_color(4, 5, 6));
}


TEST(Color, TransparentOneIsKnown)
{
	EXPECT_EQ(B_TRANSPARENT_COLOR, make_color(0x77, 0x74, 0x77, 0));
	EXPECT_EQ(B_TRANSPARENT_COLOR, B_TRANSPARENT_32_BIT);
	EXPECT_EQ(B_TRANSPARENT_MAGIC_CMAP8, 0xff);
	EXPECT_EQ(B_TRANSPARENT_MAGIC_RGBA32, 0x00777477u);
	EXPECT_EQ(B_TRANSPARENT_MAGIC_RGBA15, 0x39ce);
}


static std::vector<int>
tints(uint8 gray)
{
	std::vector<int> result;
	for (float tint : {B_LIGHTEN_MAX_TINT, B_LIGHTEN_2_TINT, B_LIGHTEN_1_TINT, B_NO_TINT,
			 B_DARKEN_1_TINT, B_DARKEN_2_TINT, B_DARKEN_3_TINT, B_DARKEN_4_TINT, B_DARKEN_MAX_TINT})
		result.push_back(tint_color(make_color(gray, gray, gray), tint).green);
	return result;
}


TEST(TintColor, TruncatesEachChannel)
{
	EXPECT_EQ(tints(216), (std::vector<int>{255, 239, 231, 216, 184, 152, 128, 96, 0}));
	EXPECT_EQ(tints(240), (std::vector<int>{255, 249, 246, 240, 204, 169, 142, 106, 0}));
	EXPECT_EQ(tints(255), (std::vector<int>{255, 255, 255, 255, 217, 179, 151, 113, 0}));
}


TEST(TintColor, KeepsAlpha)
{
	EXPECT_EQ(tint_color(make_color(216, 240, 255, 7), B_DARKEN_1_TINT),
		make_color(184, 204, 217, 7));
	EXPECT_FLOAT_EQ(B_DISABLED_LABEL_TINT, B_DARKEN_3_TINT);
}


TEST(UiColor, GivesTheDefaults)
{
	EXPECT_EQ(ui_color(B_PANEL_BACKGROUND_COLOR), make_color(216, 216, 216));
	EXPECT_EQ(ui_color(B_MENU_BACKGROUND_COLOR), make_color(216, 216, 216));
	EXPECT_EQ(ui_color(B_WINDOW_TAB_COLOR), make_color(255, 203, 0));
	EXPECT_EQ(ui_color(B_NAVIGATION_BASE_COLOR), make_color(0, 0, 229));
	EXPECT_EQ(ui_color(B_DESKTOP_COLOR), make_color(51, 102, 152));
	EXPECT_EQ(ui_color(B_MENU_SELECTED_BACKGROUND_COLOR), make_color(153, 153, 153));
	EXPECT_EQ(ui_color(B_MENU_ITEM_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_MENU_SELECTED_ITEM_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_MENU_SELECTED_BORDER_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_PANEL_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_DOCUMENT_BACKGROUND_COLOR), make_color(255, 255, 255));
	EXPECT_EQ(ui_color(B_DOCUMENT_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_CONTROL_BACKGROUND_COLOR), make_color(222, 222, 222));
	EXPECT_EQ(ui_color(B_CONTROL_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_CONTROL_BORDER_COLOR), make_color(172, 172, 172));
	EXPECT_EQ(ui_color(B_CONTROL_HIGHLIGHT_COLOR), make_color(102, 152, 203));
	EXPECT_EQ(ui_color(B_NAVIGATION_PULSE_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_SHINE_COLOR), make_color(255, 255, 255));
	EXPECT_EQ(ui_color(B_SHADOW_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_TOOL_TIP_BACKGROUND_COLOR), make_color(255, 255, 216));
	EXPECT_EQ(ui_color(B_TOOL_TIP_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_WINDOW_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_WINDOW_INACTIVE_TAB_COLOR), make_color(232, 232, 232));
	EXPECT_EQ(ui_color(B_WINDOW_INACTIVE_TEXT_COLOR), make_color(80, 80, 80));
	EXPECT_EQ(ui_color(B_WINDOW_BORDER_COLOR), make_color(224, 224, 224));
	EXPECT_EQ(ui_color(B_WINDOW_INACTIVE_BORDER_COLOR), make_color(232, 232, 232));
	EXPECT_EQ(ui_color(B_CONTROL_MARK_COLOR), make_color(27, 82, 140));
	EXPECT_EQ(ui_color(B_LIST_BACKGROUND_COLOR), make_color(255, 255, 255));
	EXPECT_EQ(ui_color(B_LIST_SELECTED_BACKGROUND_COLOR), make_color(190, 190, 190));
	EXPECT_EQ(ui_color(B_LIST_ITEM_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_LIST_SELECTED_ITEM_TEXT_COLOR), make_color(0, 0, 0));
	EXPECT_EQ(ui_color(B_SCROLL_BAR_THUMB_COLOR), make_color(216, 216, 216));
	EXPECT_EQ(ui_color(B_LINK_TEXT_COLOR), make_color(51, 102, 187));
	EXPECT_EQ(ui_color(B_STATUS_BAR_COLOR), make_color(50, 150, 255));
	EXPECT_EQ(ui_color(B_SUCCESS_COLOR), make_color(46, 204, 64));
	EXPECT_EQ(ui_color(B_FAILURE_COLOR), make_color(255, 65, 54));
}


TEST(UiColor, IsBlackForUnknownOnes)
{
	testing::internal::CaptureStderr();
	EXPECT_EQ(ui_color(static_cast<color_which>(77)), make_color(0, 0, 0));
	const std::string printed = testing::internal::GetCapturedStderr();
	EXPECT_NE(printed.find("77"), std::string::npos);
	EXPECT_EQ(printed.back(), '\n');
}


TEST(MixColor, GoesFromTheFirstToTheSecond)
{
	const rgb_color first = make_color(0, 100, 200);
	const rgb_color second = make_color(255, 0, 200);
	EXPECT_EQ(mix_color(first, second, 0), first);
	EXPECT_EQ(mix_color(first, second, 255), second);
	EXPECT_EQ(mix_color(first, second, 51), make_color(51, 80, 200));
}


TEST(SystemColors, HoldThePalette)
{
	const color_map* map = system_colors();
	EXPECT_EQ(map->color_list[0], make_color(0, 0, 0));
	EXPECT_EQ(map->color_list[31], make_color(248, 248, 248));
	EXPECT_EQ(map->color_list[32], make_color(0, 0, 255));
	EXPECT_EQ(map->color_list[62], make_color(0, 152, 51));
	EXPECT_EQ(map->color_list[63], make_color(255, 255, 255));
	EXPECT_EQ(map->color_list[65], make_color(203, 255, 203));
	EXPECT_EQ(map->color_list[189], make_color(255, 175, 19));
	EXPECT_EQ(map->color_list[255], make_color(255, 255, 255, 0));
	EXPECT_EQ(system_colors(), map);

	// FNV-1a of all of them, in their order.
	uint32 hash = 2166136261u;
	for (const rgb_color& color : map->color_list) {
		for (const uint8 channel : {color.red, color.green, color.blue, color.alpha})
			hash = (hash ^ channel) * 16777619u;
	}
	EXPECT_EQ(hash, 0x331ceee2u);
}


static int
index_for(uint8 red, uint8 green, uint8 blue)
{
	return system_colors()->index_map[(red >> 3) << 10 | (green >> 3) << 5 | blue >> 3];
}


TEST(SystemColors, FindTheNearestIndex)
{
	EXPECT_EQ(index_for(0, 0, 0), 0);
	// Five bits of each channel know no full white.
	EXPECT_EQ(index_for(255, 255, 255), 31);
	EXPECT_EQ(index_for(128, 128, 128), 16);
	EXPECT_EQ(system_colors()->color_list[index_for(255, 0, 0)].red >> 4, 15);
}
