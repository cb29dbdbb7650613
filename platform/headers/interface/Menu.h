// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MENU_H
#define MENU_H

#include <stdint.h>
#include <vector>

#include <Messenger.h>
#include <View.h>

class BMenuItem;

namespace hosted {
class MenuAccess;
} // namespace hosted


enum menu_layout {
	B_ITEMS_IN_ROW = 0,
	B_ITEMS_IN_COLUMN = 1,
	B_ITEMS_IN_MATRIX = 2,
};


/*!	A list of items, shown by a native menu that always puts them in a column.

	Any thread may ask for and change what it holds; an open native menu shows what was there when
	it opened.
*/
class BMenu : public BView {
public:
	BMenu(const char* name, menu_layout layout = B_ITEMS_IN_COLUMN);
	~BMenu() override;

	virtual status_t SetTargetForItems(BHandler* target);
	virtual status_t SetTargetForItems(BMessenger messenger);
	virtual void SetEnabled(bool enable);
	virtual void SetRadioMode(bool on);

	bool AddItem(BMenuItem* item);
	bool AddItem(BMenuItem* item, int32 index);
	bool AddItem(BMenu* submenu);
	bool AddItem(BMenu* submenu, int32 index);
	bool AddSeparatorItem();
	bool RemoveItem(BMenuItem* item);
	BMenuItem* RemoveItem(int32 index);
	bool RemoveItem(BMenu* submenu);
	bool RemoveItems(int32 index, int32 count, bool deleteItems = false);

	BMenuItem* ItemAt(int32 index) const;
	BMenu* SubmenuAt(int32 index) const;
	int32 CountItems() const;
	int32 IndexOf(BMenuItem* item) const;
	int32 IndexOf(BMenu* submenu) const;
	BMenuItem* FindItem(uint32 command) const;
	BMenuItem* FindItem(const char* label) const;

	void SetLabelFromMarked(bool on);
	bool IsLabelFromMarked();
	bool IsEnabled() const;
	bool IsRadioMode() const;
	BMenuItem* FindMarked();
	BMenu* Supermenu() const;
	BMenuItem* Superitem() const;

private:
	friend class BMenuItem;
	friend class hosted::MenuAccess;

	void _ItemMarked(BMenuItem* item);
	void _Install(BWindow* window);

private:
	// Owned.
	std::vector<BMenuItem*> fItems;
	BMenuItem* fSuperitem = nullptr;
	// Where untargeted items go; null as long as the menu hangs in no window.
	BWindow* fInstalledIn = nullptr;
	bool fEnabled = true;
	bool fRadioMode = false;
	bool fLabelFromMarked = false;
};

#endif // MENU_H
