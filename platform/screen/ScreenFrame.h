// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SCREEN_FRAME_H
#define SCREEN_FRAME_H

#include <Rect.h>


namespace hosted {

// The screen that shows most of that frame; if none does, the first: (0, 0) to its last pixel.
// Invalid without a display. Asks the display thread.
BRect ScreenFrame(BRect shown = BRect());

} // namespace hosted

#endif // SCREEN_FRAME_H
