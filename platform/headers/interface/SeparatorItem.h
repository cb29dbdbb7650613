// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SEPARATOR_ITEM_H
#define SEPARATOR_ITEM_H

#include <MenuItem.h>


class BSeparatorItem : public BMenuItem {
public:
	BSeparatorItem();
	~BSeparatorItem() override;

	// A separator stays disabled.
	void SetEnabled(bool enable) override;
};

#endif // SEPARATOR_ITEM_H
