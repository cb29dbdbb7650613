// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef INPUT_STATE_H
#define INPUT_STATE_H

#include <InterfaceDefs.h>
#include <Point.h>
#include <SupportDefs.h>


namespace hosted {

/*!	What the keyboard and the pointer are doing, as far as the program's windows were told.

	Written by the display thread alone, read from any thread.
*/
struct PointerState {
	// Whether it is over one of the program's windows or held by one; elsewhere the place is old.
	bool isOurs = false;
	BPoint screenWhere;
	uint32 buttons = 0;
};

key_info CurrentKeys();
void SetCurrentKeys(const key_info& keys);

PointerState CurrentPointer();
void SetCurrentPointer(const PointerState& pointer);

// How windows of the program become active; those of other programs follow the desktop's own
// setting. From any thread.
mode_mouse MouseMode();
void SetMouseMode(mode_mouse mode);

} // namespace hosted

#endif // INPUT_STATE_H
