// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/interface/MenuAccess.h"

#include <condition_variable>
#include <map>
#include <math.h>
#include <string>
#include <thread>
#include <unordered_map>

#include <Font.h>
#include <Menu.h>
#include <MenuItem.h>

#include "platform/screen/MenuDisplay.h"


namespace hosted {

namespace {

struct Numbers {
	int64 last = 0;
	std::unordered_map<int64, BMenuItem*> items;
	std::map<int64, std::thread::id> pinned;
	std::condition_variable_any unpinned;
};

// Both live as long as the process: static menus are destroyed in any order.
Numbers&
numbers_table()
{
	static Numbers* sNumbers = new Numbers;
	return *sNumbers;
}


std::string
shortcut_text(char shortcut, uint32 modifiers)
{
	if (shortcut == 0)
		return {};
	std::string text;
	if ((modifiers & B_CONTROL_KEY) != 0)
		text += "Ctrl+";
	if ((modifiers & B_OPTION_KEY) != 0)
		text += "Meta+";
	if ((modifiers & B_COMMAND_KEY) != 0)
		text += "Alt+";
	if ((modifiers & B_SHIFT_KEY) != 0)
		text += "Shift+";
	text += shortcut;
	return text;
}


std::string
text_or_nothing(const char* text)
{
	return text != nullptr ? text : "";
}


std::shared_ptr<MenuContents>
empty_contents(const BMenu& menu)
{
	BFont font;
	menu.GetFont(&font);
	font_family family;
	font_style style;
	font.GetFamilyAndStyle(&family, &style);

	auto contents = std::make_shared<MenuContents>();
	contents->fontFamily = family;
	contents->fontPixels = fmax(1, roundf(font.Size()));
	contents->bold = (font.Face() & B_BOLD_FACE) != 0;
	contents->italic = (font.Face() & B_ITALIC_FACE) != 0;
	contents->radio = menu.IsRadioMode();
	return contents;
}

} // namespace


std::recursive_mutex&
MenuLock()
{
	static std::recursive_mutex* sLock = new std::recursive_mutex;
	return *sLock;
}


int64
MenuAccess::NewNumber(BMenuItem* item)
{
	std::lock_guard<std::recursive_mutex> lock(MenuLock());
	Numbers& table = numbers_table();
	table.last++;
	table.items[table.last] = item;
	return table.last;
}


void
MenuAccess::ForgetNumber(int64 number)
{
	std::unique_lock<std::recursive_mutex> lock(MenuLock());
	Numbers& table = numbers_table();
	table.unpinned.wait(lock, [&]() {
		const auto pin = table.pinned.find(number);
		return pin == table.pinned.end() || pin->second == std::this_thread::get_id();
	});
	table.items.erase(number);
}


BMenuItem*
MenuAccess::Pin(int64 number)
{
	std::lock_guard<std::recursive_mutex> lock(MenuLock());
	Numbers& table = numbers_table();
	const auto found = table.items.find(number);
	if (found == table.items.end())
		return nullptr;
	table.pinned[number] = std::this_thread::get_id();
	return found->second;
}


void
MenuAccess::Unpin(int64 number)
{
	std::lock_guard<std::recursive_mutex> lock(MenuLock());
	Numbers& table = numbers_table();
	table.pinned.erase(number);
	table.unpinned.notify_all();
}


std::shared_ptr<const MenuContents>
MenuAccess::Snapshot(const BMenu& menu, std::vector<int64>& numbers)
{
	std::lock_guard<std::recursive_mutex> lock(MenuLock());
	std::shared_ptr<MenuContents> contents = empty_contents(menu);
	for (const BMenuItem* item : menu.fItems) {
		MenuLine line;
		line.label = text_or_nothing(item->Label());
		line.enabled = item->IsEnabled();
		line.marked = item->IsMarked();
		line.trigger = item->fTrigger;
		line.shortcut = shortcut_text(item->fShortcut, item->fModifiers);
		if (dynamic_cast<const BSeparatorItem*>(item) != nullptr) {
			line.kind = MenuLine::kSeparator;
		} else if (item->Submenu() != nullptr) {
			line.kind = MenuLine::kSubmenu;
			line.submenu = Snapshot(*item->Submenu(), numbers);
		} else {
			line.choice = int(numbers.size());
			numbers.push_back(item->fNumber);
		}
		contents->lines.push_back(std::move(line));
	}
	return contents;
}


void
MenuAccess::Install(BMenu& menu, BWindow* window)
{
	std::lock_guard<std::recursive_mutex> lock(MenuLock());
	menu._Install(window);
}


status_t
MenuAccess::Invoke(BMenuItem& item)
{
	return item.Invoke();
}

} // namespace hosted
