// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef KEY_CODES_H
#define KEY_CODES_H

#include <SupportDefs.h>


// The platform's raw key codes that the list view acts on.
enum : int32 {
	kKeyPageUp = 0x21,
	kKeyKeypadMinus = 0x25,
	kKeyEnd = 0x35,
	kKeyPageDown = 0x36,
	kKeyKeypadPlus = 0x3A,
	kKeyEnter = 0x47,
	kKeyUp = 0x57,
	kKeyKeypadEnter = 0x5B,
	kKeyLeft = 0x61,
	kKeyDown = 0x62,
	kKeyRight = 0x63,
};

// The raw key code that a key number of the remote control stands for; 0 if it stands for none.
int32 RawKeyForRemote(int32 remoteKey);

#endif // KEY_CODES_H
