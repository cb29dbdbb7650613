// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "appcontrol/RemoteKeys.h"

#include <AppDefs.h>
#include <OS.h>


BMessage
KeyDownMessage(const KeyPress& press)
{
	const uint8 states[16] = {};
	BMessage message(B_KEY_DOWN);
	message.AddInt64("when", system_time());
	message.AddInt32("modifiers", press.modifiers);
	message.AddInt32("key", press.key);
	message.AddInt32("raw_char", press.character);
	message.AddInt8("byte", press.character);
	message.AddString("bytes", press.bytes);
	message.AddData("states", B_UINT8_TYPE, states, sizeof(states));
	return message;
}
