// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Screen.h>

#include <InterfaceDefs.h>
#include <Window.h>

#include "platform/screen/ScreenFrame.h"


BScreen::BScreen(screen_id)
{
}


// The screen that shows most of the window, or else the desktop's first.
BScreen::BScreen(BWindow* window)
{
	if (window != nullptr)
		fWindowFrame = window->Frame();
}


BScreen::~BScreen() = default;


bool
BScreen::IsValid()
{
	return hosted::ScreenFrame(fWindowFrame).IsValid();
}


BRect
BScreen::Frame()
{
	return hosted::ScreenFrame(fWindowFrame);
}


color_space
BScreen::ColorSpace()
{
	return B_RGB32;
}


const color_map*
BScreen::ColorMap()
{
	return system_colors();
}


uint8
BScreen::IndexForColor(rgb_color color)
{
	// Every color that is mostly transparent is the one transparent entry.
	if (color.alpha < 128)
		return B_TRANSPARENT_8_BIT;
	const int index = ((color.red & 0xf8) << 7) | ((color.green & 0xf8) << 2) | (color.blue >> 3);
	return system_colors()->index_map[index];
}


uint8
BScreen::IndexForColor(uint8 red, uint8 green, uint8 blue, uint8 alpha)
{
	return IndexForColor(make_color(red, green, blue, alpha));
}


rgb_color
BScreen::ColorForIndex(uint8 index)
{
	return system_colors()->color_list[index];
}
