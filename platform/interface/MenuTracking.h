// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MENU_TRACKING_H
#define MENU_TRACKING_H

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include <SupportDefs.h>

#include "platform/screen/MenuDisplay.h"

class BLooper;
class BMenu;
class BMenuItem;


namespace hosted {

/*!	One showing of a menu: opens the native menu, waits for the choice, and invokes the chosen item.

	The display thread only reports; everything else happens in the thread that asked, or in a
	thread of the showing's own. Menu, items and window may be gone before it is over.
*/
class MenuTracking {
public:
	struct Request {
		const BMenu* menu = nullptr;
		MenuPlace place;
		bool invokes = false;
		// The window whose thread asks, or null. Its end closes the menu.
		BLooper* owner = nullptr;
	};

	explicit MenuTracking(const Request& request);

	// Shows the menu and returns the choice. The owner's views keep being updated.
	static BMenuItem* Run(const std::shared_ptr<MenuTracking>& tracking);
	// Shows the menu from a thread of its own, which calls the function last of all.
	static void Start(std::shared_ptr<MenuTracking> tracking, std::function<void()> atEnd);

	// Waits until the menu is closed and its item invoked.
	void Wait();
	// Closes the menu and waits, except in the thread that the showing itself runs in.
	void Close();

private:
	BMenuItem* _Track(bool updatesOwner);
	int _WaitForChoice(bool updatesOwner);
	BMenuItem* _Deliver(int choice);
	void _Finish();

private:
	// By choice. Before the contents, which fill it.
	std::vector<int64> fItems;
	std::shared_ptr<const MenuContents> fContents;
	MenuPlace fPlace;
	bool fInvokes;
	BLooper* fOwner;

	std::mutex fMutex;
	std::condition_variable fChanged;
	std::shared_ptr<NativeMenu> fNative;
	std::thread::id fThread;
	bool fClosing = false;
	bool fOver = false;
};

// Closes the menus that the window's thread has opened, and waits until they are over. Called when
// the window goes; a null owner means all menus, when the application goes.
void CloseMenusOf(const BLooper* owner);

// The place for a menu, with the user's click time.
MenuPlace PlaceOf(float x, float y, bool staysOpen);

} // namespace hosted

#endif // MENU_TRACKING_H
