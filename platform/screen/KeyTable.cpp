// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/KeyTable.h"

#include <array>

#include <Qt>

#include <InterfaceDefs.h>


namespace hosted {

namespace {

struct Key {
	uint32 linuxKey;
	int32 rawKey;
	// On a US keyboard; 0 where it is not one fixed character.
	char character;
	int qtKey;
	bool keypad;
};

constexpr bool kKeypad = true;
constexpr bool kMain = false;

constexpr std::array<Key, 121> kKeys = {{
	{1, 0x01, B_ESCAPE, Qt::Key_Escape, kMain},
	{59, 0x02, B_FUNCTION_KEY, Qt::Key_F1, kMain},
	{60, 0x03, B_FUNCTION_KEY, Qt::Key_F2, kMain},
	{61, 0x04, B_FUNCTION_KEY, Qt::Key_F3, kMain},
	{62, 0x05, B_FUNCTION_KEY, Qt::Key_F4, kMain},
	{63, 0x06, B_FUNCTION_KEY, Qt::Key_F5, kMain},
	{64, 0x07, B_FUNCTION_KEY, Qt::Key_F6, kMain},
	{65, 0x08, B_FUNCTION_KEY, Qt::Key_F7, kMain},
	{66, 0x09, B_FUNCTION_KEY, Qt::Key_F8, kMain},
	{67, 0x0a, B_FUNCTION_KEY, Qt::Key_F9, kMain},
	{68, 0x0b, B_FUNCTION_KEY, Qt::Key_F10, kMain},
	{87, 0x0c, B_FUNCTION_KEY, Qt::Key_F11, kMain},
	{88, 0x0d, B_FUNCTION_KEY, Qt::Key_F12, kMain},
	{99, 0x0e, B_FUNCTION_KEY, Qt::Key_Print, kMain},
	{70, kRawScrollLock, B_FUNCTION_KEY, Qt::Key_ScrollLock, kMain},
	{119, 0x10, B_FUNCTION_KEY, Qt::Key_Pause, kMain},
	{41, 0x11, '`', Qt::Key_QuoteLeft, kMain},
	{2, 0x12, '1', Qt::Key_1, kMain},
	{3, 0x13, '2', Qt::Key_2, kMain},
	{4, 0x14, '3', Qt::Key_3, kMain},
	{5, 0x15, '4', Qt::Key_4, kMain},
	{6, 0x16, '5', Qt::Key_5, kMain},
	{7, 0x17, '6', Qt::Key_6, kMain},
	{8, 0x18, '7', Qt::Key_7, kMain},
	{9, 0x19, '8', Qt::Key_8, kMain},
	{10, 0x1a, '9', Qt::Key_9, kMain},
	{11, 0x1b, '0', Qt::Key_0, kMain},
	{12, 0x1c, '-', Qt::Key_Minus, kMain},
	{13, 0x1d, '=', Qt::Key_Equal, kMain},
	{14, 0x1e, B_BACKSPACE, Qt::Key_Backspace, kMain},
	{110, 0x1f, B_INSERT, Qt::Key_Insert, kMain},
	{102, 0x20, B_HOME, Qt::Key_Home, kMain},
	{104, 0x21, B_PAGE_UP, Qt::Key_PageUp, kMain},
	{69, kRawNumLock, 0, Qt::Key_NumLock, kMain},
	{98, 0x23, '/', Qt::Key_Slash, kKeypad},
	{55, 0x24, '*', Qt::Key_Asterisk, kKeypad},
	{74, 0x25, '-', Qt::Key_Minus, kKeypad},
	{15, 0x26, B_TAB, Qt::Key_Tab, kMain},
	{16, 0x27, 'q', Qt::Key_Q, kMain},
	{17, 0x28, 'w', Qt::Key_W, kMain},
	{18, 0x29, 'e', Qt::Key_E, kMain},
	{19, 0x2a, 'r', Qt::Key_R, kMain},
	{20, 0x2b, 't', Qt::Key_T, kMain},
	{21, 0x2c, 'y', Qt::Key_Y, kMain},
	{22, 0x2d, 'u', Qt::Key_U, kMain},
	{23, 0x2e, 'i', Qt::Key_I, kMain},
	{24, 0x2f, 'o', Qt::Key_O, kMain},
	{25, 0x30, 'p', Qt::Key_P, kMain},
	{26, 0x31, '[', Qt::Key_BracketLeft, kMain},
	{27, 0x32, ']', Qt::Key_BracketRight, kMain},
	{43, 0x33, '\\', Qt::Key_Backslash, kMain},
	{111, 0x34, B_DELETE, Qt::Key_Delete, kMain},
	{107, 0x35, B_END, Qt::Key_End, kMain},
	{109, 0x36, B_PAGE_DOWN, Qt::Key_PageDown, kMain},
	{71, 0x37, B_HOME, Qt::Key_7, kKeypad},
	{72, 0x38, B_UP_ARROW, Qt::Key_8, kKeypad},
	{73, 0x39, B_PAGE_UP, Qt::Key_9, kKeypad},
	{78, 0x3a, '+', Qt::Key_Plus, kKeypad},
	{58, kRawCapsLock, 0, Qt::Key_CapsLock, kMain},
	{30, 0x3c, 'a', Qt::Key_A, kMain},
	{31, 0x3d, 's', Qt::Key_S, kMain},
	{32, 0x3e, 'd', Qt::Key_D, kMain},
	{33, 0x3f, 'f', Qt::Key_F, kMain},
	{34, 0x40, 'g', Qt::Key_G, kMain},
	{35, 0x41, 'h', Qt::Key_H, kMain},
	{36, 0x42, 'j', Qt::Key_J, kMain},
	{37, 0x43, 'k', Qt::Key_K, kMain},
	{38, 0x44, 'l', Qt::Key_L, kMain},
	{39, 0x45, ';', Qt::Key_Semicolon, kMain},
	{40, 0x46, '\'', Qt::Key_Apostrophe, kMain},
	{28, 0x47, B_ENTER, Qt::Key_Return, kMain},
	{75, 0x48, B_LEFT_ARROW, Qt::Key_4, kKeypad},
	{76, 0x49, 0, Qt::Key_5, kKeypad},
	{77, 0x4a, B_RIGHT_ARROW, Qt::Key_6, kKeypad},
	{42, kRawLeftShift, 0, Qt::Key_Shift, kMain},
	{44, 0x4c, 'z', Qt::Key_Z, kMain},
	{45, 0x4d, 'x', Qt::Key_X, kMain},
	{46, 0x4e, 'c', Qt::Key_C, kMain},
	{47, 0x4f, 'v', Qt::Key_V, kMain},
	{48, 0x50, 'b', Qt::Key_B, kMain},
	{49, 0x51, 'n', Qt::Key_N, kMain},
	{50, 0x52, 'm', Qt::Key_M, kMain},
	{51, 0x53, ',', Qt::Key_Comma, kMain},
	{52, 0x54, '.', Qt::Key_Period, kMain},
	{53, 0x55, '/', Qt::Key_Slash, kMain},
	{54, kRawRightShift, 0, Qt::Key_unknown, kMain},
	{103, 0x57, B_UP_ARROW, Qt::Key_Up, kMain},
	{79, 0x58, B_END, Qt::Key_1, kKeypad},
	{80, 0x59, B_DOWN_ARROW, Qt::Key_2, kKeypad},
	{81, 0x5a, B_PAGE_DOWN, Qt::Key_3, kKeypad},
	{96, 0x5b, B_ENTER, Qt::Key_Enter, kKeypad},
	{29, kRawLeftControl, 0, Qt::Key_Control, kMain},
	{56, kRawLeftAlt, 0, Qt::Key_Alt, kMain},
	{57, 0x5e, B_SPACE, Qt::Key_Space, kMain},
	{100, kRawRightAlt, 0, Qt::Key_AltGr, kMain},
	{97, kRawRightControl, 0, Qt::Key_unknown, kMain},
	{105, 0x61, B_LEFT_ARROW, Qt::Key_Left, kMain},
	{108, 0x62, B_DOWN_ARROW, Qt::Key_Down, kMain},
	{106, 0x63, B_RIGHT_ARROW, Qt::Key_Right, kMain},
	{82, 0x64, B_INSERT, Qt::Key_0, kKeypad},
	{83, 0x65, B_DELETE, Qt::Key_Period, kKeypad},
	{125, kRawLeftMeta, 0, Qt::Key_Meta, kMain},
	{126, kRawRightMeta, 0, Qt::Key_unknown, kMain},
	{127, 0x68, 0, Qt::Key_Menu, kMain},
	{86, 0x69, '\\', Qt::Key_unknown, kMain},
	{124, 0x6a, '\\', Qt::Key_yen, kMain},
	{117, 0x6a, '=', Qt::Key_Equal, kKeypad},
	{89, 0x6b, '\\', Qt::Key_unknown, kMain},
	{94, 0x6c, 0, Qt::Key_Muhenkan, kMain},
	{92, 0x6d, 0, Qt::Key_Henkan, kMain},
	{93, 0x6e, 0, Qt::Key_Hiragana_Katakana, kMain},
	{121, 0x70, ',', Qt::Key_Comma, kKeypad},
	{122, 0xf0, 0, Qt::Key_Hangul, kMain},
	{123, 0xf1, 0, Qt::Key_Hangul_Hanja, kMain},
	{164, 0xC00B0, 0, Qt::Key_MediaPlay, kMain},
	{163, 0xC00B5, 0, Qt::Key_MediaNext, kMain},
	{165, 0xC00B6, 0, Qt::Key_MediaPrevious, kMain},
	{166, 0xC00B7, 0, Qt::Key_MediaStop, kMain},
	{113, 0xC00E2, 0, Qt::Key_VolumeMute, kMain},
	{115, 0xC00E9, 0, Qt::Key_VolumeUp, kMain},
	{114, 0xC00EA, 0, Qt::Key_VolumeDown, kMain},
}};

} // namespace


int32
RawKeyForScanCode(uint32 linuxKey)
{
	for (const Key& key : kKeys) {
		if (key.linuxKey == linuxKey)
			return key.rawKey;
	}
	return 0;
}


int32
RawKeyForQtKey(int qtKey, bool keypad)
{
	int32 found = 0;
	for (const Key& key : kKeys) {
		if (key.qtKey != qtKey || qtKey == Qt::Key_unknown)
			continue;
		if (key.keypad == keypad)
			return key.rawKey;
		found = key.rawKey;
	}
	return found;
}


char
UsCharacterFor(int32 rawKey)
{
	for (const Key& key : kKeys) {
		if (key.rawKey == rawKey)
			return key.character;
	}
	return 0;
}


uint32
ModifierForRawKey(int32 rawKey)
{
	switch (rawKey) {
		case kRawLeftShift:
			return B_SHIFT_KEY | B_LEFT_SHIFT_KEY;
		case kRawRightShift:
			return B_SHIFT_KEY | B_RIGHT_SHIFT_KEY;
		case kRawLeftControl:
			return B_CONTROL_KEY | B_LEFT_CONTROL_KEY;
		case kRawRightControl:
			return B_CONTROL_KEY | B_RIGHT_CONTROL_KEY;
		case kRawLeftAlt:
			return B_COMMAND_KEY | B_LEFT_COMMAND_KEY;
		case kRawRightAlt:
			return B_COMMAND_KEY | B_RIGHT_COMMAND_KEY;
		case kRawLeftMeta:
			return B_OPTION_KEY | B_LEFT_OPTION_KEY;
		case kRawRightMeta:
			return B_OPTION_KEY | B_RIGHT_OPTION_KEY;
		case 0x68:
			return B_MENU_KEY;
		default:
			return 0;
	}
}

} // namespace hosted
