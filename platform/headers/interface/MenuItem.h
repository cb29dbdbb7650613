// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MENU_ITEM_H
#define MENU_ITEM_H

#include <Archivable.h>
#include <Invoker.h>
#include <Menu.h>
#include <String.h>


class BMenuItem : public BArchivable, public BInvoker {
public:
	BMenuItem(const char* label, BMessage* message, char shortcut = 0, uint32 modifiers = 0);
	BMenuItem(BMenu* submenu, BMessage* message = NULL);
	~BMenuItem() override;
	BMenuItem(const BMenuItem&) = delete;
	BMenuItem& operator=(const BMenuItem&) = delete;

	virtual void SetLabel(const char* label);
	virtual void SetEnabled(bool enable);
	virtual void SetMarked(bool mark);
	// The letter that chooses the item in an open menu.
	virtual void SetTrigger(char trigger);
	// What is shown at the item's right edge.
	virtual void SetShortcut(char shortcut, uint32 modifiers);

	const char* Label() const;
	bool IsEnabled() const;
	bool IsMarked() const;
	char Trigger() const;
	char Shortcut(uint32* modifiers = NULL) const;
	BMenu* Submenu() const;
	BMenu* Menu() const;

protected:
	status_t Invoke(BMessage* message = NULL) override;

private:
	friend class BMenu;
	friend class hosted::MenuAccess;

	void _Install(BWindow* window);

private:
	// Names the item for an open native menu, which may outlive it.
	int64 fNumber;
	BString fLabel;
	bool fHasLabel = false;
	bool fEnabled = true;
	bool fMarked = false;
	char fTrigger = 0;
	char fShortcut = 0;
	uint32 fModifiers = 0;
	// Owned.
	BMenu* fSubmenu = nullptr;
	BMenu* fSuper = nullptr;
};

#include <SeparatorItem.h>

#endif // MENU_ITEM_H
