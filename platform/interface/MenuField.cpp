// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MenuField.h>

#include <math.h>

#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <Window.h>

#include "platform/interface/MenuAccess.h"
#include "platform/interface/MenuTracking.h"

using hosted::MenuTracking;


namespace {

// The item's label has changed, in whatever thread.
const uint32 kMsgFieldChanged = '_MFc';


/*!	The item whose label stands in the field.
 */
class FieldItem : public BMenuItem {
public:
	FieldItem(BMenu* menu)
		:
		BMenuItem(menu)
	{
	}

	// An invalid messenger as long as the field hangs in no window.
	void SetField(const BMessenger& field)
	{
		std::lock_guard<std::recursive_mutex> lock(hosted::MenuLock());
		fField = field;
	}

	void SetLabel(const char* label) override
	{
		BMenuItem::SetLabel(label);
		_Report();
	}

	void SetEnabled(bool enable) override
	{
		BMenuItem::SetEnabled(enable);
		_Report();
	}

private:
	void _Report()
	{
		std::lock_guard<std::recursive_mutex> lock(hosted::MenuLock());
		if (fField.IsValid())
			fField.SendMessage(kMsgFieldChanged);
	}

private:
	BMessenger fField;
};

} // namespace


BMenuField::BMenuField(BRect frame, const char* name, const char* label, BMenu* menu,
	uint32 resizingMode, uint32 flags)
	:
	BMenuField(frame, name, label, menu, false, resizingMode, flags)
{
}


BMenuField::BMenuField(BRect frame, const char* name, const char* label, BMenu* menu, bool fixed,
	uint32 resizingMode, uint32 flags)
	:
	BView(frame, name, resizingMode, flags | B_FULL_UPDATE_ON_RESIZE),
	fLabel(label),
	fItem(new FieldItem(menu)),
	fDivider(label != nullptr ? floorf(frame.Width() / 2) : 0),
	fFixedSize(fixed)
{
}


BMenuField::~BMenuField()
{
	if (fTracking != nullptr)
		fTracking->Close();
	delete fItem;
}


void
BMenuField::AttachedToWindow()
{
	if (Parent() != nullptr)
		SetViewColor(Parent()->ViewColor());
	else
		SetViewColor(ui_color(B_PANEL_BACKGROUND_COLOR));
	SetLowColor(ViewColor());
	static_cast<FieldItem*>(fItem)->SetField(BMessenger(this));
	if (Menu() != nullptr)
		hosted::MenuAccess::Install(*Menu(), Window());
}


void
BMenuField::DetachedFromWindow()
{
	if (fTracking != nullptr)
		fTracking->Close();
	static_cast<FieldItem*>(fItem)->SetField(BMessenger());
	if (Menu() != nullptr)
		hosted::MenuAccess::Install(*Menu(), nullptr);
}


void
BMenuField::Draw(BRect)
{
	font_height height;
	GetFontHeight(&height);
	const rgb_color base = ViewColor();
	const rgb_color text
		= IsEnabled() ? ui_color(B_PANEL_TEXT_COLOR) : tint_color(base, B_DISABLED_LABEL_TINT);
	const BRect bounds = Bounds();
	const float baseline
		= floorf((bounds.top + bounds.bottom + height.ascent - height.descent) / 2);
	SetHighColor(text);
	BString label(fLabel);
	TruncateString(&label, B_TRUNCATE_END, fDivider - 4);
	DrawString(label.String(), BPoint(bounds.left, baseline));

	BString shown;
	{
		std::lock_guard<std::recursive_mutex> lock(hosted::MenuLock());
		shown = fItem->Label();
	}
	const BRect box = _BoxFrame();
	const float arrow = 8;
	TruncateString(&shown, B_TRUNCATE_END, box.Width() - arrow - 14);
	SetHighColor(tint_color(ui_color(B_MENU_BACKGROUND_COLOR), B_LIGHTEN_1_TINT));
	FillRoundRect(box, 2, 2);
	const bool focused = IsFocus() && Window()->IsActive();
	SetHighColor(focused ? ui_color(B_KEYBOARD_NAVIGATION_COLOR)
						 : tint_color(base, IsEnabled() ? B_DARKEN_3_TINT : B_DARKEN_1_TINT));
	StrokeRoundRect(box, 2, 2);
	SetHighColor(text);
	DrawString(shown.String(), BPoint(box.left + 6, baseline));
	const float right = box.right - 5;
	const float top = floorf((box.top + box.bottom) / 2) - 2;
	FillTriangle(BPoint(right - arrow, top), BPoint(right, top),
		BPoint(right - arrow / 2, top + arrow / 2));
}


void
BMenuField::MouseDown(BPoint where)
{
	if (IsEnabled() && _BoxFrame().Contains(where))
		_Open(false);
}


void
BMenuField::KeyDown(const char* bytes, int32 numBytes)
{
	const bool opens = numBytes == 1
		&& (bytes[0] == B_SPACE || bytes[0] == B_DOWN_ARROW || bytes[0] == B_RIGHT_ARROW);
	if (!opens)
		BView::KeyDown(bytes, numBytes);
	else if (IsEnabled())
		_Open(true);
}


void
BMenuField::MakeFocus(bool focused)
{
	if (focused == IsFocus())
		return;
	BView::MakeFocus(focused);
	Invalidate();
}


void
BMenuField::MessageReceived(BMessage* message)
{
	if (message->what == kMsgFieldChanged)
		Invalidate();
	else
		BView::MessageReceived(message);
}


BMenu*
BMenuField::Menu() const
{
	return fItem->Submenu();
}


BMenuItem*
BMenuField::MenuItem() const
{
	return fItem;
}


void
BMenuField::SetLabel(const char* label)
{
	fLabel = label;
	Invalidate();
}


const char*
BMenuField::Label() const
{
	return fLabel.String();
}


void
BMenuField::SetEnabled(bool enabled)
{
	if (enabled == fEnabled)
		return;
	fEnabled = enabled;
	fItem->SetEnabled(enabled);
	Invalidate();
}


bool
BMenuField::IsEnabled() const
{
	return fEnabled;
}


void
BMenuField::SetDivider(float position)
{
	fDivider = roundf(position);
	Invalidate();
}


float
BMenuField::Divider() const
{
	return fDivider;
}


// As wide as what is left, or as what the menu's widest item needs.
BRect
BMenuField::_BoxFrame() const
{
	BRect box = Bounds();
	box.left += fDivider;
	if (fFixedSize || Menu() == nullptr)
		return box;
	std::lock_guard<std::recursive_mutex> lock(hosted::MenuLock());
	float widest = StringWidth(BString(fItem->Label()).String());
	for (int32 i = 0; i < Menu()->CountItems(); i++)
		widest = fmaxf(widest, StringWidth(BString(Menu()->ItemAt(i)->Label()).String()));
	box.right = fminf(box.right, box.left + ceilf(widest) + 24);
	return box;
}


void
BMenuField::_Open(bool staysOpen)
{
	if (Menu() == nullptr)
		return;
	if (fTracking != nullptr)
		fTracking->Wait();
	const BRect box = ConvertToScreen(_BoxFrame());
	MenuTracking::Request request;
	request.menu = Menu();
	request.place = hosted::PlaceOf(box.left, box.bottom + 1, staysOpen);
	request.place.keepLeft = int(box.left);
	request.place.keepTop = int(box.top);
	request.place.keepRight = int(box.right);
	request.place.keepBottom = int(box.bottom);
	request.invokes = true;
	request.owner = Window();
	fTracking = std::make_shared<MenuTracking>(request);
	MenuTracking::Start(fTracking, nullptr);
}
