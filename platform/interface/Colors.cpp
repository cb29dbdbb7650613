// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The user interface's colors and color arithmetic.
#include <InterfaceDefs.h>

#include <array>
#include <stdio.h>


const pattern B_SOLID_HIGH = {{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}};
const pattern B_MIXED_COLORS = {{0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55}};
const pattern B_SOLID_LOW = {{0, 0, 0, 0, 0, 0, 0, 0}};

const rgb_color B_TRANSPARENT_COLOR = {0x77, 0x74, 0x77, 0x00};
const rgb_color B_TRANSPARENT_32_BIT = {0x77, 0x74, 0x77, 0x00};
const uint8 B_TRANSPARENT_MAGIC_CMAP8 = 0xff;
const uint16 B_TRANSPARENT_MAGIC_RGBA15 = 0x39ce;
const uint32 B_TRANSPARENT_MAGIC_RGBA32 = 0x00777477;

const struct screen_id B_MAIN_SCREEN_ID = {0};


struct UiColor {
	color_which which;
	rgb_color color;
};

static constexpr rgb_color
gray(uint8 value)
{
	return {value, value, value, 255};
}


static constexpr std::array<UiColor, 36> kUiColors = {{
	{B_PANEL_BACKGROUND_COLOR, gray(216)},
	{B_MENU_BACKGROUND_COLOR, gray(216)},
	{B_WINDOW_TAB_COLOR, {255, 203, 0, 255}},
	{B_NAVIGATION_BASE_COLOR, {0, 0, 229, 255}},
	{B_DESKTOP_COLOR, {51, 102, 152, 255}},
	{B_MENU_SELECTED_BACKGROUND_COLOR, gray(153)},
	{B_MENU_ITEM_TEXT_COLOR, gray(0)},
	{B_MENU_SELECTED_ITEM_TEXT_COLOR, gray(0)},
	{B_MENU_SELECTED_BORDER_COLOR, gray(0)},
	{B_PANEL_TEXT_COLOR, gray(0)},
	{B_DOCUMENT_BACKGROUND_COLOR, gray(255)},
	{B_DOCUMENT_TEXT_COLOR, gray(0)},
	{B_CONTROL_BACKGROUND_COLOR, gray(222)},
	{B_CONTROL_TEXT_COLOR, gray(0)},
	{B_CONTROL_BORDER_COLOR, gray(172)},
	{B_CONTROL_HIGHLIGHT_COLOR, {102, 152, 203, 255}},
	{B_NAVIGATION_PULSE_COLOR, gray(0)},
	{B_SHINE_COLOR, gray(255)},
	{B_SHADOW_COLOR, gray(0)},
	{B_TOOL_TIP_BACKGROUND_COLOR, {255, 255, 216, 255}},
	{B_TOOL_TIP_TEXT_COLOR, gray(0)},
	{B_WINDOW_TEXT_COLOR, gray(0)},
	{B_WINDOW_INACTIVE_TAB_COLOR, gray(232)},
	{B_WINDOW_INACTIVE_TEXT_COLOR, gray(80)},
	{B_WINDOW_BORDER_COLOR, gray(224)},
	{B_WINDOW_INACTIVE_BORDER_COLOR, gray(232)},
	{B_CONTROL_MARK_COLOR, {27, 82, 140, 255}},
	{B_LIST_BACKGROUND_COLOR, gray(255)},
	{B_LIST_SELECTED_BACKGROUND_COLOR, gray(190)},
	{B_LIST_ITEM_TEXT_COLOR, gray(0)},
	{B_LIST_SELECTED_ITEM_TEXT_COLOR, gray(0)},
	{B_SCROLL_BAR_THUMB_COLOR, gray(216)},
	{B_LINK_TEXT_COLOR, {51, 102, 187, 255}},
	{B_STATUS_BAR_COLOR, {50, 150, 255, 255}},
	{B_SUCCESS_COLOR, {46, 204, 64, 255}},
	{B_FAILURE_COLOR, {255, 65, 54, 255}},
}};


rgb_color
ui_color(color_which which)
{
	for (const UiColor& entry : kUiColors) {
		if (entry.which == which)
			return entry.color;
	}
	fprintf(stderr, "ui_color(): unknown color %d\n", static_cast<int>(which));
	return make_color(0, 0, 0);
}


static uint8
tint_channel(uint8 value, float tint)
{
	const float channel = value;
	if (tint < 1.0f)
		return static_cast<uint8>(255.0f - (255.0f - channel) * tint);
	return static_cast<uint8>(channel * (2.0f - tint));
}


rgb_color
tint_color(rgb_color color, float tint)
{
	return make_color(tint_channel(color.red, tint), tint_channel(color.green, tint),
		tint_channel(color.blue, tint), color.alpha);
}


static uint8
mix_channel(uint8 first, uint8 second, uint8 amount)
{
	return static_cast<uint8>((first * (255 - amount) + second * amount) / 255);
}


rgb_color
mix_color(rgb_color color1, rgb_color color2, uint8 amount)
{
	return make_color(mix_channel(color1.red, color2.red, amount),
		mix_channel(color1.green, color2.green, amount),
		mix_channel(color1.blue, color2.blue, amount),
		mix_channel(color1.alpha, color2.alpha, amount));
}


rgb_color
disable_color(rgb_color color, rgb_color background)
{
	return mix_color(color, background, 185);
}
