// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MENU_ACCESS_H
#define MENU_ACCESS_H

#include <memory>
#include <mutex>
#include <vector>

#include <SupportDefs.h>

class BMenu;
class BMenuItem;
class BWindow;


namespace hosted {

struct MenuContents;

// Guards what menus and items hold: a menu's items are chosen in another thread than its window's.
// Never held while one waits for a thread, or while an item is invoked.
std::recursive_mutex& MenuLock();


/*!	What the tracking of menus may do with menus and items that other threads change and delete
	meanwhile. Items go by their numbers.
*/
class MenuAccess {
public:
	static int64 NewNumber(BMenuItem* item);
	// Called by the item's destructor; waits for other threads that have the item pinned.
	static void ForgetNumber(int64 number);
	// A pinned item stays until Unpin(). Null if it is gone.
	static BMenuItem* Pin(int64 number);
	static void Unpin(int64 number);

	// The menu and its submenus as they are now; numbers gets the items that can be chosen.
	static std::shared_ptr<const MenuContents> Snapshot(const BMenu& menu,
		std::vector<int64>& numbers);

	// Gives untargeted items of the menu and its submenus, and those added later, to the window.
	static void Install(BMenu& menu, BWindow* window);
	static status_t Invoke(BMenuItem& item);
};

} // namespace hosted

#endif // MENU_ACCESS_H
