// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DESKTOP_CLIPBOARD_H
#define DESKTOP_CLIPBOARD_H

#include <functional>
#include <string>


namespace hosted {

// The text that the desktop's programs share by copying and pasting. Callable from any thread.

// Calls the function, in the display thread, whenever another program puts something on the
// clipboard. Only the first function is kept; calling this again makes up for a display thread that
// was started anew. False without a display.
bool WatchDesktopClipboard(std::function<void()> changed);

// What is on the clipboard, unless this process put it there: then *own is set and the text empty.
// False without a display.
bool ReadDesktopClipboard(std::string* text, bool* own);

// Replaces the clipboard's contents. Does not wait.
void WriteDesktopClipboard(const std::string& text);

} // namespace hosted

#endif // DESKTOP_CLIPBOARD_H
