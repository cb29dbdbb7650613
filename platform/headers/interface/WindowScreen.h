// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WINDOW_SCREEN_H
#define WINDOW_SCREEN_H

#include <SupportDefs.h>

// Moves the pointer, in screen coordinates. Nothing happens where the desktop does not let programs
// do that.
void set_mouse_position(int32 x, int32 y);

#endif // WINDOW_SCREEN_H
