// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Menu.h>

#include <algorithm>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <MenuItem.h>
#include <SeparatorItem.h>

#include "platform/interface/MenuAccess.h"

using hosted::MenuLock;
using Locker = std::lock_guard<std::recursive_mutex>;


BMenu::BMenu(const char* name, menu_layout)
	:
	BView(name, B_WILL_DRAW)
{
}


BMenu::~BMenu()
{
	std::vector<BMenuItem*> items;
	{
		Locker locker(MenuLock());
		items.swap(fItems);
		for (BMenuItem* item : items)
			item->fSuper = nullptr;
		if (fSuperitem != nullptr)
			fSuperitem->fSubmenu = nullptr;
	}
	for (BMenuItem* item : items)
		delete item;
}


status_t
BMenu::SetTargetForItems(BHandler* target)
{
	Locker locker(MenuLock());
	for (BMenuItem* item : fItems) {
		const status_t status = item->SetTarget(target);
		if (status != B_OK)
			return status;
	}
	return B_OK;
}


status_t
BMenu::SetTargetForItems(BMessenger messenger)
{
	Locker locker(MenuLock());
	for (BMenuItem* item : fItems) {
		const status_t status = item->SetTarget(messenger);
		if (status != B_OK)
			return status;
	}
	return B_OK;
}


void
BMenu::SetEnabled(bool enable)
{
	Locker locker(MenuLock());
	if (fEnabled == enable)
		return;
	fEnabled = enable;
	if (fSuperitem != nullptr)
		fSuperitem->SetEnabled(enable);
}


void
BMenu::SetRadioMode(bool on)
{
	Locker locker(MenuLock());
	fRadioMode = on;
	if (!on)
		fLabelFromMarked = false;
}


bool
BMenu::AddItem(BMenuItem* item)
{
	Locker locker(MenuLock());
	return AddItem(item, CountItems());
}


bool
BMenu::AddItem(BMenuItem* item, int32 index)
{
	Locker locker(MenuLock());
	if (item == nullptr || index < 0 || index > CountItems())
		return false;
	if (item->fSuper != nullptr) {
		fprintf(stderr, "BMenu::AddItem: the item \"%s\" is in a menu already\n",
			item->fLabel.String());
		abort();
	}
	if (item->IsMarked())
		_ItemMarked(item);
	fItems.insert(fItems.begin() + index, item);
	item->fSuper = this;
	if (fInstalledIn != nullptr)
		item->_Install(fInstalledIn);
	return true;
}


bool
BMenu::AddItem(BMenu* submenu)
{
	Locker locker(MenuLock());
	return AddItem(submenu, CountItems());
}


bool
BMenu::AddItem(BMenu* submenu, int32 index)
{
	Locker locker(MenuLock());
	if (submenu == nullptr || index < 0 || index > CountItems())
		return false;
	return AddItem(new BMenuItem(submenu), index);
}


bool
BMenu::AddSeparatorItem()
{
	return AddItem(new BSeparatorItem);
}


bool
BMenu::RemoveItem(BMenuItem* item)
{
	Locker locker(MenuLock());
	const int32 index = IndexOf(item);
	return index >= 0 && RemoveItem(index) != nullptr;
}


BMenuItem*
BMenu::RemoveItem(int32 index)
{
	Locker locker(MenuLock());
	BMenuItem* item = ItemAt(index);
	if (item == nullptr)
		return nullptr;
	fItems.erase(fItems.begin() + index);
	item->fSuper = nullptr;
	item->_Install(nullptr);
	return item;
}


bool
BMenu::RemoveItem(BMenu* submenu)
{
	Locker locker(MenuLock());
	const int32 index = IndexOf(submenu);
	return index >= 0 && RemoveItem(index) != nullptr;
}


bool
BMenu::RemoveItems(int32 index, int32 count, bool deleteItems)
{
	std::vector<BMenuItem*> removed;
	{
		Locker locker(MenuLock());
		const int64 end = std::min<int64>(int64(index) + count, CountItems());
		for (int64 i = end - 1; i >= std::max<int32>(index, 0); i--)
			removed.push_back(RemoveItem(int32(i)));
	}
	if (deleteItems) {
		for (BMenuItem* item : removed)
			delete item;
	}
	return !removed.empty();
}


BMenuItem*
BMenu::ItemAt(int32 index) const
{
	Locker locker(MenuLock());
	if (index < 0 || index >= CountItems())
		return nullptr;
	return fItems[index];
}


BMenu*
BMenu::SubmenuAt(int32 index) const
{
	Locker locker(MenuLock());
	const BMenuItem* item = ItemAt(index);
	return item != nullptr ? item->Submenu() : nullptr;
}


int32
BMenu::CountItems() const
{
	Locker locker(MenuLock());
	return int32(fItems.size());
}


int32
BMenu::IndexOf(BMenuItem* item) const
{
	Locker locker(MenuLock());
	const auto found = std::find(fItems.begin(), fItems.end(), item);
	return found != fItems.end() ? int32(found - fItems.begin()) : -1;
}


int32
BMenu::IndexOf(BMenu* submenu) const
{
	Locker locker(MenuLock());
	if (submenu == nullptr)
		return -1;
	const auto found = std::find_if(fItems.begin(), fItems.end(),
		[submenu](const BMenuItem* item) { return item->Submenu() == submenu; });
	return found != fItems.end() ? int32(found - fItems.begin()) : -1;
}


BMenuItem*
BMenu::FindItem(uint32 command) const
{
	Locker locker(MenuLock());
	for (BMenuItem* item : fItems) {
		if (item->Command() == command)
			return item;
		BMenuItem* found
			= item->Submenu() != nullptr ? item->Submenu()->FindItem(command) : nullptr;
		if (found != nullptr)
			return found;
	}
	return nullptr;
}


BMenuItem*
BMenu::FindItem(const char* label) const
{
	if (label == nullptr)
		return nullptr;
	Locker locker(MenuLock());
	for (BMenuItem* item : fItems) {
		if (item->Label() != nullptr && strcmp(item->Label(), label) == 0)
			return item;
		BMenuItem* found = item->Submenu() != nullptr ? item->Submenu()->FindItem(label) : nullptr;
		if (found != nullptr)
			return found;
	}
	return nullptr;
}


void
BMenu::SetLabelFromMarked(bool on)
{
	Locker locker(MenuLock());
	fLabelFromMarked = on;
	if (on)
		SetRadioMode(true);
}


bool
BMenu::IsLabelFromMarked()
{
	Locker locker(MenuLock());
	return fLabelFromMarked;
}


bool
BMenu::IsEnabled() const
{
	Locker locker(MenuLock());
	if (!fEnabled)
		return false;
	return Supermenu() == nullptr || Supermenu()->IsEnabled();
}


bool
BMenu::IsRadioMode() const
{
	Locker locker(MenuLock());
	return fRadioMode;
}


BMenuItem*
BMenu::FindMarked()
{
	Locker locker(MenuLock());
	const auto found = std::find_if(fItems.begin(), fItems.end(),
		[](const BMenuItem* item) { return item->IsMarked(); });
	return found != fItems.end() ? *found : nullptr;
}


BMenu*
BMenu::Supermenu() const
{
	Locker locker(MenuLock());
	return fSuperitem != nullptr ? fSuperitem->Menu() : nullptr;
}


BMenuItem*
BMenu::Superitem() const
{
	Locker locker(MenuLock());
	return fSuperitem;
}


// The item is about to be the marked one; it may not be in the list yet.
void
BMenu::_ItemMarked(BMenuItem* item)
{
	if (fRadioMode) {
		for (BMenuItem* other : fItems) {
			if (other != item && other->IsMarked())
				other->SetMarked(false);
		}
	}
	if (fLabelFromMarked && fSuperitem != nullptr)
		fSuperitem->SetLabel(item->Label());
}


void
BMenu::_Install(BWindow* window)
{
	fInstalledIn = window;
	for (BMenuItem* item : fItems)
		item->_Install(window);
}
