// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef POPUPS_H
#define POPUPS_H

#include <string>
#include <vector>


/*!	What a user sees and does: the open native menu and dialog, and synthetic input for them.

	Called from any thread but the display thread, which it all happens in.
*/
namespace test {

// Waits until a native menu is open. Submenus count as menus of their own: the innermost is meant.
bool WaitForMenu();
bool WaitForNoMenu();

struct MenuRow {
	std::string label;
	bool separator = false;
	bool enabled = false;
	bool checkable = false;
	bool checked = false;
	bool radio = false;
	bool submenu = false;
	// In pixels; 0 for a row that is not seen.
	int height = 0;
};

// The rows of the innermost open menu.
std::vector<MenuRow> MenuRows();
// Pixel size of the innermost open menu's font, 0 without a menu.
int MenuFontPixels();
// The innermost open menu's left top corner on the screen.
bool MenuCorner(int* x, int* y);

// Clicks the row of the innermost menu with this label. False if there is none.
bool ClickMenuRow(const std::string& label);
// Lets go of a button that was pressed before the menu opened, over the row or, without a label,
// far away from the menu. The pointer is dragged there first.
bool ReleaseOverMenuRow(const std::string& label);
bool ReleaseOutsideMenu();
// Presses and releases a key (a Qt::Key) in the innermost menu, or else in the open dialog.
bool PressKey(int key, const std::string& text = std::string());

// Waits until a native dialog is open.
bool WaitForDialog();
bool WaitForNoDialog();
std::string DialogTitle();
// The dialog's text, as shown to the user.
std::string DialogText();
bool DialogHasIcon();
// Whether the whole text can be seen, if need be by scrolling.
bool DialogTextFits();
// Screen coordinates of the dialog: left, top, right, bottom.
bool DialogFrame(int frame[4]);
std::vector<std::string> DialogButtons();
std::string DialogDefaultButton();
bool ClickDialogButton(const std::string& label);
// What a window manager does to close a window.
bool CloseDialog();

} // namespace test

#endif // POPUPS_H
