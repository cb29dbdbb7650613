// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: the drawing state.
#include <View.h>

#include <math.h>

#include <Region.h>

#include "platform/interface/Pixels.h"
#include "platform/interface/RegionData.h"
#include "platform/interface/ViewData.h"

using hosted::DrawState;
using hosted::RegionData;
using hosted::ViewData;


namespace hosted {

DrawState
ViewData::Pushed() const
{
	DrawState pushed = state;
	pushed.baseOrigin = state.baseOrigin + state.origin;
	pushed.origin = BPoint();
	pushed.isBaseClipped = state.isClipped;
	pushed.baseClip = state.clip;
	return pushed;
}

} // namespace hosted


void
BView::PushState()
{
	DrawState pushed = fData->Pushed();
	fData->stack.push_back(std::move(fData->state));
	fData->state = std::move(pushed);
}


void
BView::PopState()
{
	if (fData->stack.empty())
		return;
	fData->state = std::move(fData->stack.back());
	fData->stack.pop_back();
}


void
BView::SetOrigin(BPoint where)
{
	fData->state.origin = where;
}


void
BView::SetOrigin(float x, float y)
{
	SetOrigin(BPoint(x, y));
}


BPoint
BView::Origin() const
{
	return fData->state.origin;
}


void
BView::SetDrawingMode(drawing_mode mode)
{
	fData->state.mode = mode;
}


drawing_mode
BView::DrawingMode() const
{
	return fData->state.mode;
}


void
BView::SetBlendingMode(source_alpha sourceAlpha, alpha_function function)
{
	fData->state.sourceAlpha = sourceAlpha;
	fData->state.alphaFunction = function;
}


void
BView::GetBlendingMode(source_alpha* sourceAlpha, alpha_function* function) const
{
	if (sourceAlpha != nullptr)
		*sourceAlpha = fData->state.sourceAlpha;
	if (function != nullptr)
		*function = fData->state.alphaFunction;
}


void
BView::SetPenSize(float size)
{
	fData->state.penSize = size;
}


float
BView::PenSize() const
{
	return fData->state.penSize;
}


void
BView::SetLineMode(cap_mode cap, join_mode join, float miterLimit)
{
	fData->state.cap = cap;
	fData->state.join = join;
	fData->state.miterLimit = miterLimit;
}


cap_mode
BView::LineCapMode() const
{
	return fData->state.cap;
}


join_mode
BView::LineJoinMode() const
{
	return fData->state.join;
}


float
BView::LineMiterLimit() const
{
	return fData->state.miterLimit;
}


void
BView::SetViewColor(rgb_color color)
{
	fData->viewColor = color;
}


rgb_color
BView::ViewColor() const
{
	return fData->viewColor;
}


void
BView::SetHighColor(rgb_color color)
{
	fData->state.high = color;
}


rgb_color
BView::HighColor() const
{
	return fData->state.high;
}


void
BView::SetLowColor(rgb_color color)
{
	fData->state.low = color;
}


rgb_color
BView::LowColor() const
{
	return fData->state.low;
}


void
BView::SetViewUIColor(color_which which, float tint)
{
	fData->viewColor = tint_color(ui_color(which), tint);
}


void
BView::SetHighUIColor(color_which which, float tint)
{
	fData->state.high = tint_color(ui_color(which), tint);
}


void
BView::SetLowUIColor(color_which which, float tint)
{
	fData->state.low = tint_color(ui_color(which), tint);
}


void
BView::AdoptParentColors()
{
	const BView* parent = Parent();
	if (parent == nullptr)
		return;
	SetViewColor(parent->ViewColor());
	SetLowColor(parent->LowColor());
	SetHighColor(parent->HighColor());
}


void
BView::MovePenTo(BPoint point)
{
	fData->state.pen = point;
}


void
BView::MovePenTo(float x, float y)
{
	MovePenTo(BPoint(x, y));
}


void
BView::MovePenBy(float dx, float dy)
{
	fData->state.pen += BPoint(dx, dy);
}


BPoint
BView::PenLocation() const
{
	return fData->state.pen;
}


void
BView::GetClippingRegion(BRegion* region) const
{
	if (region == nullptr)
		return;
	const BPoint offset = fData->DrawOffset();
	RegionData::Of(*region) = fData->DrawRegion().translated(-hosted::FloorPixel(offset));
}


void
BView::ConstrainClippingRegion(BRegion* region)
{
	DrawState& state = fData->state;
	state.isClipped = state.isBaseClipped;
	state.clip = state.baseClip;
	if (region == nullptr)
		return;
	const QPoint origin = hosted::FloorPixel(state.baseOrigin + state.origin);
	const QRegion wanted = RegionData::Of(*region).translated(origin);
	state.clip = state.isClipped ? state.clip & wanted : wanted;
	state.isClipped = true;
}


void
BView::SetFont(const BFont* font, uint32 mask)
{
	if (font == nullptr)
		return;
	BFont& own = fData->state.font;
	if ((mask & B_FONT_FAMILY_AND_STYLE) != 0) {
		font_family family;
		font_style style;
		font->GetFamilyAndStyle(&family, &style);
		own.SetFamilyAndStyle(family, style);
	}
	if ((mask & B_FONT_SIZE) != 0)
		own.SetSize(font->Size());
	if ((mask & B_FONT_SPACING) != 0)
		own.SetSpacing(font->Spacing());
	if ((mask & B_FONT_FACE) != 0)
		own.SetFace(font->Face());
	if ((mask & B_FONT_FLAGS) != 0)
		own.SetFlags(font->Flags());
}


void
BView::GetFont(BFont* font) const
{
	if (font != nullptr)
		*font = fData->state.font;
}


void
BView::SetFontSize(float size)
{
	BFont font(fData->state.font);
	font.SetSize(size);
	SetFont(&font, B_FONT_SIZE);
}


void
BView::GetFontHeight(font_height* height) const
{
	fData->state.font.GetHeight(height);
}


float
BView::StringWidth(const char* string) const
{
	return fData->state.font.StringWidth(string);
}


float
BView::StringWidth(const char* string, int32 length) const
{
	return fData->state.font.StringWidth(string, length);
}


void
BView::TruncateString(BString* inOut, uint32 mode, float width) const
{
	fData->state.font.TruncateString(inOut, mode, width);
}


void
BView::SetFlags(uint32 flags)
{
	const uint32 changed = fData->flags ^ flags;
	fData->flags = flags;
	if (fData->tree == nullptr)
		return;
	if ((changed & flags & B_PULSE_NEEDED) != 0)
		fData->tree->host->PulseNeeded();
	if ((changed & (B_DRAW_ON_CHILDREN | B_TRANSPARENT_BACKGROUND)) != 0)
		fData->PlaceChanged();
}


uint32
BView::Flags() const
{
	return fData->flags;
}


void
BView::SetResizingMode(uint32 mode)
{
	fData->resizingMode = mode & 0xffff;
}


uint32
BView::ResizingMode() const
{
	return fData->resizingMode;
}
