// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef POP_UP_MENU_H
#define POP_UP_MENU_H

#include <memory>

#include <Menu.h>

namespace hosted {
class MenuTracking;
} // namespace hosted


class BPopUpMenu : public BMenu {
public:
	BPopUpMenu(const char* name, bool radioMode = true, bool labelFromMarked = true,
		menu_layout layout = B_ITEMS_IN_COLUMN);
	// Closes the menu if it is open.
	~BPopUpMenu() override;

	BMenuItem* Go(BPoint where, bool deliversMessage = false, bool openAnyway = false,
		bool async = false);
	BMenuItem* Go(BPoint where, bool deliversMessage, bool openAnyway, BRect clickToOpenRect,
		bool async = false);

	// Whether the menu deletes itself after an asynchronous Go().
	void SetAsyncAutoDestruct(bool on);
	bool AsyncAutoDestruct() const;

private:
	BMenuItem* _Go(BPoint where, bool deliversMessage, bool openAnyway, BRect clickToOpenRect,
		bool async);

private:
	// The last opening, over or not.
	std::shared_ptr<hosted::MenuTracking> fTracking;
	bool fAutoDestruct = false;
};

#endif // POP_UP_MENU_H
