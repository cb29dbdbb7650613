// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MENU_DISPLAY_H
#define MENU_DISPLAY_H

#include <chrono>
#include <memory>
#include <string>
#include <vector>


namespace hosted {

struct MenuContents;

struct MenuLine {
	enum Kind { kItem, kSeparator, kSubmenu };

	Kind kind = kItem;
	std::string label;
	// Empty, or what is shown at the right edge.
	std::string shortcut;
	// The letter that chooses the line; 0 for none.
	char trigger = 0;
	bool enabled = true;
	bool marked = false;
	// What Choice() gives when this line is chosen.
	int choice = -1;
	std::shared_ptr<const MenuContents> submenu;
};

// A menu as it was when it was asked for: what the display thread builds a native one from.
struct MenuContents {
	std::string fontFamily;
	int fontPixels = 12;
	bool bold = false;
	bool italic = false;
	bool radio = false;
	std::vector<MenuLine> lines;
};

struct MenuPlace {
	// Screen coordinates of the left top corner.
	int x = 0;
	int y = 0;
	// The menu stays open when the mouse button that opened it is released elsewhere. It does
	// anyway when that happens within the click time.
	bool staysOpen = false;
	std::chrono::microseconds clickTime{500000};
	// Letting go of the button within these edges keeps the menu open; nothing when right < left.
	int keepLeft = 0;
	int keepTop = 0;
	int keepRight = -1;
	int keepBottom = -1;
};


/*!	One opening of a native menu.

	Made and used by any thread but the display thread. Once open it is over by a choice, by the
	user's turning away, by Close(), or when the display thread ends.
*/
class NativeMenu {
public:
	static std::shared_ptr<NativeMenu> Open(std::shared_ptr<const MenuContents> contents,
		const MenuPlace& place);

	// Whether the menu is over, after waiting at most that long.
	bool WaitFor(std::chrono::milliseconds limit);
	void Wait();
	// The chosen line's number, -1 without a choice. Only once the menu is over.
	int Choice();
	// Returns at once; the menu is over soon after.
	void Close();

private:
	struct State;
	class Window;

	explicit NativeMenu(std::shared_ptr<State> state);

private:
	std::shared_ptr<State> fState;
};

} // namespace hosted

#endif // MENU_DISPLAY_H
