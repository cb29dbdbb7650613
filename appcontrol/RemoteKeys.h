// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REMOTE_KEYS_H
#define REMOTE_KEYS_H

#include <InterfaceDefs.h>
#include <Message.h>
#include <OS.h>


// The numbers of a remote control's keys.
enum : long {
	kRemoteNumber1 = 0x34,
	kRemoteNumber2 = 0x35,
	kRemoteNumber3 = 0x36,
	kRemoteNumber4 = 0x37,
	kRemotePageUp = 0x3D,
	kRemotePageDown = 0x3E,
	kRemoteSofter = 0x3F,
	kRemoteLouder = 0x40,
	kRemoteLaunch = 0x44,
	kRemoteEject = 0x45,
	kRemotePrevious = 0x5B,
	kRemotePause = 0x5D,
	kRemotePlay = 0x5E,
	kRemoteNext = 0x5F,
	kRemoteStop = 0x60,
};

// A key of the keyboard as a message tells it, without time. character is the "raw_char" and the
// "byte".
struct KeyPress {
	int32 key = 0x26;
	int8 character = B_TAB;
	const char* bytes = "";
	int32 modifiers = 0x30;
};

// Raw codes of keys of the keyboard.
inline constexpr int32 kKeyEscape = 0x01;
inline constexpr int32 kKey1 = 0x12;
inline constexpr int32 kKeyPageUp = 0x21;
inline constexpr int32 kKeyKeypadMinus = 0x25;
inline constexpr int32 kKeyE = 0x29;
inline constexpr int32 kKeyP = 0x30;
inline constexpr int32 kKeyPageDown = 0x36;
inline constexpr int32 kKeyKeypadPlus = 0x3A;
inline constexpr int32 kKeyF = 0x3F;
inline constexpr int32 kKeyEnter = 0x47;
inline constexpr int32 kKeyN = 0x51;
inline constexpr int32 kKeyUp = 0x57;
inline constexpr int32 kKeySpace = 0x5E;
inline constexpr int32 kKeyLeft = 0x61;
inline constexpr int32 kKeyDown = 0x62;
inline constexpr int32 kKeyRight = 0x63;
inline constexpr int32 kKeyMenu = 0x68;

inline constexpr int32 kAlt = B_COMMAND_KEY | B_LEFT_COMMAND_KEY;

// The message that this key is pressed now.
BMessage KeyDownMessage(const KeyPress& press);

// The keyboard's key for one of the remote control; false if there is none.
bool KeyPressFor(long key, KeyPress* press);

// Whether an application is this one, or the remote control's own; these are sent no keys.
bool IsSelf(const char* signature, team_id team);

// Both say so if there is nobody to send the key to, or only this program; key is what they name.
bool PressKeyIn(const char* signature, team_id team, const KeyPress& press, long key);
bool PressKeyInLastApplication(const KeyPress& press, long key);

#endif // REMOTE_KEYS_H
