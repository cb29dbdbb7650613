// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MenuItem.h>

#include <Message.h>
#include <OS.h>
#include <Window.h>

#include "platform/interface/MenuAccess.h"

using hosted::MenuAccess;
using hosted::MenuLock;
using Locker = std::lock_guard<std::recursive_mutex>;


BMenuItem::BMenuItem(const char* label, BMessage* message, char shortcut, uint32 modifiers)
	:
	BInvoker(message, BMessenger()),
	fNumber(MenuAccess::NewNumber(this))
{
	BMenuItem::SetLabel(label);
	BMenuItem::SetShortcut(shortcut, modifiers);
}


BMenuItem::BMenuItem(BMenu* submenu, BMessage* message)
	:
	BInvoker(message, BMessenger()),
	fNumber(MenuAccess::NewNumber(this)),
	fSubmenu(submenu)
{
	if (submenu == nullptr)
		return;
	Locker locker(MenuLock());
	// An item that the menu was taken out of no longer owns it.
	if (submenu->fSuperitem != nullptr)
		submenu->fSuperitem->fSubmenu = nullptr;
	submenu->fSuperitem = this;
	const BMenuItem* marked = submenu->IsLabelFromMarked() ? submenu->FindMarked() : nullptr;
	BMenuItem::SetLabel(marked != nullptr ? marked->Label() : submenu->Name());
}


BMenuItem::~BMenuItem()
{
	BMenu* super = Menu();
	if (super != nullptr)
		super->RemoveItem(this);
	MenuAccess::ForgetNumber(fNumber);
	// Leaves this item by itself.
	delete fSubmenu;
}


void
BMenuItem::SetLabel(const char* label)
{
	Locker locker(MenuLock());
	fHasLabel = label != nullptr;
	fLabel = fHasLabel ? label : "";
}


void
BMenuItem::SetEnabled(bool enable)
{
	Locker locker(MenuLock());
	if (fEnabled == enable)
		return;
	fEnabled = enable;
	if (fSubmenu != nullptr)
		fSubmenu->SetEnabled(enable);
}


void
BMenuItem::SetMarked(bool mark)
{
	Locker locker(MenuLock());
	fMarked = mark;
	if (mark && fSuper != nullptr)
		fSuper->_ItemMarked(this);
}


void
BMenuItem::SetTrigger(char trigger)
{
	Locker locker(MenuLock());
	fTrigger = trigger;
}


void
BMenuItem::SetShortcut(char shortcut, uint32 modifiers)
{
	Locker locker(MenuLock());
	fShortcut = shortcut;
	fModifiers = shortcut != 0 ? modifiers | B_COMMAND_KEY : 0;
}


const char*
BMenuItem::Label() const
{
	Locker locker(MenuLock());
	return fHasLabel ? fLabel.String() : nullptr;
}


bool
BMenuItem::IsEnabled() const
{
	Locker locker(MenuLock());
	if (fSubmenu != nullptr)
		return fSubmenu->IsEnabled();
	return fEnabled && (fSuper == nullptr || fSuper->IsEnabled());
}


bool
BMenuItem::IsMarked() const
{
	Locker locker(MenuLock());
	return fMarked;
}


char
BMenuItem::Trigger() const
{
	Locker locker(MenuLock());
	return fTrigger;
}


char
BMenuItem::Shortcut(uint32* modifiers) const
{
	Locker locker(MenuLock());
	if (modifiers != nullptr)
		*modifiers = fModifiers;
	return fShortcut;
}


BMenu*
BMenuItem::Submenu() const
{
	Locker locker(MenuLock());
	return fSubmenu;
}


BMenu*
BMenuItem::Menu() const
{
	Locker locker(MenuLock());
	return fSuper;
}


status_t
BMenuItem::Invoke(BMessage* message)
{
	BMessage copy;
	{
		Locker locker(MenuLock());
		if (!IsEnabled())
			return B_ERROR;
		if (fSuper != nullptr && fSuper->IsRadioMode())
			SetMarked(true);
		const BMessage* original = message != nullptr ? message : Message();
		if (original == nullptr)
			return B_BAD_VALUE;
		copy = *original;
		copy.AddInt32("index", fSuper != nullptr ? fSuper->IndexOf(this) : -1);
		copy.AddInt64("when", system_time());
		copy.AddPointer("source", this);
		copy.AddMessenger("be:sender", BMessenger(fSuper));
	}
	return BInvoker::Invoke(&copy);
}


void
BMenuItem::_Install(BWindow* window)
{
	if (fSubmenu != nullptr)
		fSubmenu->_Install(window);
	if (window != nullptr && !Messenger().IsValid())
		SetTarget(window);
}


BSeparatorItem::BSeparatorItem()
	:
	BMenuItem("", nullptr)
{
	BMenuItem::SetEnabled(false);
}


BSeparatorItem::~BSeparatorItem() = default;


void
BSeparatorItem::SetEnabled(bool)
{
}
