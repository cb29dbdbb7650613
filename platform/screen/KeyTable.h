// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef KEY_TABLE_H
#define KEY_TABLE_H

#include <SupportDefs.h>


namespace hosted {

// The number that Haiku gives the key with that number in Linux's input layer, 0 if it has none.
int32 RawKeyForScanCode(uint32 linuxKey);

// The same from Qt's name of the key, for events that carry no scan code.
int32 RawKeyForQtKey(int qtKey, bool keypad);

// What the key yields on a US keyboard without any modifier, 0 for keys that yield no character.
char UsCharacterFor(int32 rawKey);

// The modifier bits of a key, the general one and that of its side; 0 for other keys.
uint32 ModifierForRawKey(int32 rawKey);

inline constexpr int32 kRawCapsLock = 0x3b;
inline constexpr int32 kRawNumLock = 0x22;
inline constexpr int32 kRawScrollLock = 0x0f;
inline constexpr int32 kRawLeftAlt = 0x5d;
inline constexpr int32 kRawRightAlt = 0x5f;
inline constexpr int32 kRawLeftShift = 0x4b;
inline constexpr int32 kRawRightShift = 0x56;
inline constexpr int32 kRawLeftControl = 0x5c;
inline constexpr int32 kRawRightControl = 0x60;
inline constexpr int32 kRawLeftMeta = 0x66;
inline constexpr int32 kRawRightMeta = 0x67;

} // namespace hosted

#endif // KEY_TABLE_H
