// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Colors, and views that take them.
#include "settings/Helpers.h"

#include <stdio.h>

#include <Box.h>
#include <Button.h>
#include <CheckBox.h>
#include <MenuField.h>
#include <Message.h>
#include <StringView.h>
#include <TextControl.h>
#include <TypeConstants.h>


rgb_color
make_color(int red, int green, int blue, int alpha)
{
	static rgb_color sLastColor;
	sLastColor.red = static_cast<uint8>(red);
	sLastColor.green = static_cast<uint8>(green);
	sLastColor.blue = static_cast<uint8>(blue);
	sLastColor.alpha = static_cast<uint8>(alpha);
	return sLastColor;
}


rgb_color
HasMsgColor(BMessage* message, rgb_color deflt)
{
	const void* data;
	ssize_t size;
	if (message->FindData("RGBColor", B_RGB_COLOR_TYPE, &data, &size) == B_OK
		&& size >= static_cast<ssize_t>(sizeof(rgb_color)))
		return *static_cast<const rgb_color*>(data);

	rgb_color color;
	entry_ref ref;
	if (message->FindRef("refs", &ref) == B_OK) {
		const BNode node(&ref);
		if (node.ReadAttr("RGBCOLOR", B_RGB_COLOR_TYPE, 0, &color, sizeof(color))
			== static_cast<ssize_t>(sizeof(color)))
			return color;
	}
	return deflt;
}


template <class View>
static void
color_view(BView* child, rgb_color color)
{
	if (dynamic_cast<View*>(child) == nullptr)
		return;
	child->SetViewColor(color);
	child->Invalidate();
}


void
ColorToChilds(BView* parent)
{
	if (parent == nullptr) {
		printf("View=NULL\n");
		return;
	}

	const rgb_color color = parent->ViewColor();
	for (int32 index = parent->CountChildren(); index >= 0; index--) {
		BView* const child = parent->ChildAt(index);
		color_view<BCheckBox>(child, color);
		color_view<BStringView>(child, color);
		color_view<BButton>(child, color);
		color_view<BTextControl>(child, color);
		color_view<BMenuField>(child, color);
		color_view<BBox>(child, color);
	}
}


void
AddToolTip(BView* view, const char*)
{
	if (view == nullptr)
		printf("AddTT: bad view\n");
}
