// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// For programs without windows: linked into one, it lets the program run where there is no display.
#include "platform/screen/DisplayThread.h"


static const bool sIsDisplayOptional = [] {
	hosted::DisplayThread::MakeDisplayOptional();
	return true;
}();
