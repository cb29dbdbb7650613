// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef INPUT_FIELDS_H
#define INPUT_FIELDS_H


namespace hosted {

// Fields that the display thread adds to its messages to a window. The window takes them out
// before anyone else sees the message.

// int32, an InputKind: the message comes from the desktop and not from a program.
inline constexpr char kInputKind[] = "_input";
// BPoint in the window's coordinates, for the pointer and drops.
inline constexpr char kInputWhere[] = "_where";
// bool: the pointer is not over the window (any more).
inline constexpr char kInputOutside[] = "_outside";
// int32, with a new frame: how many of the window's own requests the desktop had seen by then.
inline constexpr char kInputSerial[] = "_serial";

enum InputKind { kInputKey = 1, kInputPointer, kInputDrop, kInputFrame };

} // namespace hosted

#endif // INPUT_FIELDS_H
