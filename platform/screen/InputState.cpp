// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/InputState.h"

#include <mutex>


namespace hosted {

namespace {

struct State {
	std::mutex mutex;
	key_info keys = {};
	PointerState pointer;
	mode_mouse mouseMode = B_NORMAL_MOUSE;
};


// Never destroyed: the display thread may still run while the process leaves.
State&
state()
{
	static State* sState = new State;
	return *sState;
}

} // namespace


key_info
CurrentKeys()
{
	std::lock_guard<std::mutex> lock(state().mutex);
	return state().keys;
}


void
SetCurrentKeys(const key_info& keys)
{
	std::lock_guard<std::mutex> lock(state().mutex);
	state().keys = keys;
}


PointerState
CurrentPointer()
{
	std::lock_guard<std::mutex> lock(state().mutex);
	return state().pointer;
}


void
SetCurrentPointer(const PointerState& pointer)
{
	std::lock_guard<std::mutex> lock(state().mutex);
	state().pointer = pointer;
}


mode_mouse
MouseMode()
{
	std::lock_guard<std::mutex> lock(state().mutex);
	return state().mouseMode;
}


void
SetMouseMode(mode_mouse mode)
{
	std::lock_guard<std::mutex> lock(state().mutex);
	state().mouseMode = mode;
}

} // namespace hosted
