// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MENU_FIELD_H
#define MENU_FIELD_H

#include <memory>

#include <String.h>
#include <View.h>

class BMenu;
class BMenuItem;

namespace hosted {
class MenuTracking;
} // namespace hosted


/*!	A label and a box that shows the menu's marked item, or its name, and opens the menu.
 */
class BMenuField : public BView {
public:
	BMenuField(BRect frame, const char* name, const char* label, BMenu* menu,
		uint32 resizingMode = B_FOLLOW_LEFT_TOP, uint32 flags = B_WILL_DRAW | B_NAVIGABLE);
	BMenuField(BRect frame, const char* name, const char* label, BMenu* menu, bool fixed,
		uint32 resizingMode = B_FOLLOW_LEFT_TOP, uint32 flags = B_WILL_DRAW | B_NAVIGABLE);
	~BMenuField() override;

	void AttachedToWindow() override;
	void DetachedFromWindow() override;
	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;
	void KeyDown(const char* bytes, int32 numBytes) override;
	void MakeFocus(bool focused = true) override;
	void MessageReceived(BMessage* message) override;

	BMenu* Menu() const;
	BMenuItem* MenuItem() const;
	virtual void SetLabel(const char* label);
	const char* Label() const;
	virtual void SetEnabled(bool enabled);
	bool IsEnabled() const;
	virtual void SetDivider(float position);
	float Divider() const;

private:
	BRect _BoxFrame() const;
	void _Open(bool staysOpen);

private:
	BString fLabel;
	// Owned, with its menu.
	BMenuItem* fItem;
	float fDivider;
	bool fFixedSize;
	bool fEnabled = true;
	std::shared_ptr<hosted::MenuTracking> fTracking;
};

#endif // MENU_FIELD_H
