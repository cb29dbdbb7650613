// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SCREEN_H
#define SCREEN_H

#include <GraphicsDefs.h>
#include <Rect.h>
#include <SupportDefs.h>

class BWindow;

class BScreen {
public:
	BScreen(screen_id id = B_MAIN_SCREEN_ID);
	BScreen(BWindow* window);
	~BScreen();

	bool IsValid();
	BRect Frame();
	color_space ColorSpace();
	const color_map* ColorMap();
	uint8 IndexForColor(rgb_color color);
	uint8 IndexForColor(uint8 red, uint8 green, uint8 blue, uint8 alpha = 255);
	rgb_color ColorForIndex(uint8 index);

private:
	BScreen(const BScreen&) = delete;
	BScreen& operator=(const BScreen&) = delete;

private:
	BRect fWindowFrame;
};

#endif // SCREEN_H
