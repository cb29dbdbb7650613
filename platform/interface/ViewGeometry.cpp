// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: places, sizes, coordinates, and what of a view can be seen.
#include <View.h>

#include <math.h>

#include "platform/interface/Pixels.h"
#include "platform/interface/ViewData.h"
#include "platform/interface/ViewPrivate.h"

using hosted::ViewData;


BRect
BView::Bounds() const
{
	return fData->Bounds();
}


BRect
BView::Frame() const
{
	return fData->Frame();
}


BPoint
BView::LeftTop() const
{
	return fData->scroll;
}


void
BView::MoveBy(float dx, float dy)
{
	MoveTo(fData->position.x + roundf(dx), fData->position.y + roundf(dy));
}


void
BView::MoveTo(BPoint where)
{
	MoveTo(where.x, where.y);
}


void
BView::MoveTo(float x, float y)
{
	fData->SetPosition(BPoint(roundf(x), roundf(y)));
}


void
BView::ResizeBy(float dx, float dy)
{
	ResizeTo(fData->width + roundf(dx), fData->height + roundf(dy));
}


void
BView::ResizeTo(float width, float height)
{
	fData->SetSize(roundf(width), roundf(height));
}


void
BView::ResizeTo(BSize size)
{
	ResizeTo(size.width, size.height);
}


void
BView::ScrollBy(float dx, float dy)
{
	ScrollTo(BPoint(fData->scroll.x + dx, fData->scroll.y + dy));
}


void
BView::ScrollTo(BPoint where)
{
	const BPoint scroll(roundf(where.x), roundf(where.y));
	if (scroll == fData->scroll)
		return;
	fData->scroll = scroll;
	fData->PlaceChanged();
	fData->Invalidate(fData->VisibleRect());
}


void
BView::ConvertToParent(BPoint* point) const
{
	*point += fData->position - fData->scroll;
}


BPoint
BView::ConvertToParent(BPoint point) const
{
	ConvertToParent(&point);
	return point;
}


void
BView::ConvertFromParent(BPoint* point) const
{
	*point -= fData->position - fData->scroll;
}


BPoint
BView::ConvertFromParent(BPoint point) const
{
	ConvertFromParent(&point);
	return point;
}


void
BView::ConvertToParent(BRect* rect) const
{
	rect->OffsetBy(fData->position - fData->scroll);
}


BRect
BView::ConvertToParent(BRect rect) const
{
	ConvertToParent(&rect);
	return rect;
}


void
BView::ConvertFromParent(BRect* rect) const
{
	rect->OffsetBy(fData->scroll - fData->position);
}


BRect
BView::ConvertFromParent(BRect rect) const
{
	ConvertFromParent(&rect);
	return rect;
}


// What is added to a view's coordinates to get the screen's; nothing while it is not attached.
static BPoint
screen_offset(const ViewData& data)
{
	if (data.tree == nullptr)
		return BPoint();
	return data.HostOffset() + data.tree->host->ScreenOrigin();
}


void
BView::ConvertToScreen(BPoint* point) const
{
	*point += screen_offset(*fData);
}


BPoint
BView::ConvertToScreen(BPoint point) const
{
	return point + screen_offset(*fData);
}


void
BView::ConvertFromScreen(BPoint* point) const
{
	*point -= screen_offset(*fData);
}


BPoint
BView::ConvertFromScreen(BPoint point) const
{
	return point - screen_offset(*fData);
}


void
BView::ConvertToScreen(BRect* rect) const
{
	rect->OffsetBy(screen_offset(*fData));
}


BRect
BView::ConvertToScreen(BRect rect) const
{
	return rect.OffsetByCopy(screen_offset(*fData));
}


void
BView::ConvertFromScreen(BRect* rect) const
{
	rect->OffsetBy(-screen_offset(*fData));
}


BRect
BView::ConvertFromScreen(BRect rect) const
{
	return rect.OffsetByCopy(-screen_offset(*fData));
}


void
BView::GetPreferredSize(float* width, float* height)
{
	if (width != nullptr)
		*width = fData->width;
	if (height != nullptr)
		*height = fData->height;
}


void
BView::ResizeToPreferred()
{
	float width;
	float height;
	GetPreferredSize(&width, &height);
	ResizeTo(width, height);
}


void
BView::Show()
{
	fData->hideLevel--;
	if (fData->hideLevel != 0 || fData->tree == nullptr)
		return;
	fData->PlaceChanged();
	fData->InvalidateInParent(fData->Frame());
}


void
BView::Hide()
{
	if (fData->hideLevel == 0 && fData->tree != nullptr)
		fData->InvalidateInParent(fData->Frame());
	fData->hideLevel++;
	fData->PlaceChanged();
}


bool
BView::IsHidden() const
{
	return IsHidden(nullptr);
}


bool
BView::IsHidden(const BView* lookingFrom) const
{
	for (const BView* view = this; view != nullptr; view = ViewData::Of(view).parent) {
		if (ViewData::Of(view).hideLevel > 0)
			return true;
		if (view == lookingFrom)
			break;
	}
	return false;
}


namespace hosted {

BPoint
ViewData::HostOffset() const
{
	BPoint offset = -scroll;
	if (!isRoot) {
		offset += position;
		if (parent != nullptr)
			offset += Of(parent).HostOffset();
	}
	return offset;
}


BPoint
ViewData::DrawOffset() const
{
	return HostOffset() + state.baseOrigin + state.origin;
}


QRect
ViewData::ToHostPixels(BRect rect) const
{
	return FloorPixels(rect.OffsetByCopy(HostOffset()));
}


QRect
ViewData::VisibleRect() const
{
	if (tree == nullptr || hideLevel > 0)
		return QRect();
	const QRect all = ToHostPixels(Bounds());
	if (isRoot)
		return all;
	const QRect ofParent = Of(parent).VisibleRect();
	return ofParent.isEmpty() ? QRect() : all & ofParent;
}


void
ViewData::_UpdateOwnRegion()
{
	ownGeneration = tree->generation;
	const QRect visible = VisibleRect();
	ownRegion = visible;
	if (visible.isEmpty() || (flags & B_DRAW_ON_CHILDREN) != 0)
		return;
	const BPoint offset = HostOffset();
	for (const BView* child = firstChild; child != nullptr; child = Of(child).next) {
		const ViewData& data = Of(child);
		if (data.hideLevel > 0 || (data.flags & B_TRANSPARENT_BACKGROUND) != 0)
			continue;
		const QRect covered = FloorPixels(data.Frame().OffsetByCopy(offset));
		if (covered.intersects(visible))
			ownRegion -= covered;
	}
}


const QRegion&
ViewData::OwnRegion()
{
	if (tree == nullptr)
		ownRegion = QRegion();
	else if (ownGeneration != tree->generation)
		_UpdateOwnRegion();
	return ownRegion;
}


QRegion
ViewData::DrawRegion()
{
	if (tree == nullptr || tree->host->Image() == nullptr)
		return QRegion();
	QRegion region = OwnRegion();
	if (region.isEmpty())
		return region;
	if (tree->updating != nullptr) {
		if (updateGeneration != tree->generation || updateCount != tree->updateCount) {
			updateRegion = region & *tree->updating;
			updateGeneration = tree->generation;
			updateCount = tree->updateCount;
		}
		region = updateRegion;
	} else if (!tree->host->PendingUpdate().isEmpty())
		region -= tree->host->PendingUpdate();
	if (state.isClipped) {
		const QPoint offset = FloorPixel(HostOffset());
		region &= state.clip.translated(offset);
	}
	return region;
}


void
ViewData::PlaceChanged()
{
	if (tree != nullptr)
		tree->generation++;
}


void
ViewData::Invalidate(const QRegion& hostPixels) const
{
	if (tree == nullptr || hostPixels.isEmpty())
		return;
	tree->host->NeedsUpdate(hostPixels);
}


void
ViewData::InvalidateInParent(BRect rect) const
{
	if (tree == nullptr || parent == nullptr || hideLevel > 0)
		return;
	const ViewData& above = Of(parent);
	const QRect pixels = above.ToHostPixels(rect);
	if (!pixels.isEmpty())
		Invalidate(pixels & above.VisibleRect());
}


void
ViewData::InvalidateDifference(BRect rect, BRect without) const
{
	if (tree == nullptr || parent == nullptr || hideLevel > 0)
		return;
	const ViewData& above = Of(parent);
	const QRegion pixels = QRegion(above.ToHostPixels(rect)) - above.ToHostPixels(without);
	Invalidate(pixels & above.VisibleRect());
}


void
ViewData::SetPosition(BPoint where)
{
	if (where == position)
		return;
	const BRect oldFrame = Frame();
	position = where;
	if (tree == nullptr)
		return;
	PlaceChanged();
	InvalidateInParent(oldFrame);
	InvalidateInParent(Frame());
	PostFrameEvent(*view, true);
}


// What one edge of a frame does when the parent grows: it follows the far edge, the center, or
// stays.
static float
edge_delta(uint32 rule, uint32 far, float delta)
{
	if (rule == far)
		return delta;
	if (rule == 5)
		return static_cast<float>(static_cast<int32>(delta) / 2);
	return 0;
}


static BRect
follow_parent(BRect frame, uint32 mode, float dx, float dy)
{
	frame.top += edge_delta(mode >> 12 & 0xf, 3, dy);
	frame.left += edge_delta(mode >> 8 & 0xf, 4, dx);
	frame.bottom += edge_delta(mode >> 4 & 0xf, 3, dy);
	frame.right += edge_delta(mode & 0xf, 4, dx);
	return frame;
}


void
ViewData::SetSize(float newWidth, float newHeight)
{
	const float dx = newWidth - width;
	const float dy = newHeight - height;
	if (dx == 0 && dy == 0)
		return;
	const BRect oldFrame = Frame();
	width = newWidth;
	height = newHeight;
	if (viewBitmap != nullptr) {
		viewBitmap->destination
			= follow_parent(viewBitmap->destination, viewBitmap->follow, dx, dy);
	}
	if (tree == nullptr)
		return;
	PlaceChanged();
	if (isRoot)
		Invalidate(QRegion(VisibleRect()) - ToHostPixels(oldFrame.OffsetToCopy(B_ORIGIN)));
	else if ((flags & B_FULL_UPDATE_ON_RESIZE) != 0)
		InvalidateInParent(oldFrame | Frame());
	else {
		InvalidateDifference(oldFrame, Frame());
		InvalidateDifference(Frame(), oldFrame);
	}
	for (BView* child = firstChild; child != nullptr; child = Of(child).next)
		Of(child).ParentResized(dx, dy);
	PostFrameEvent(*view, false);
}


void
ViewData::ParentResized(float dx, float dy)
{
	const BRect frame = follow_parent(Frame(), resizingMode, dx, dy);
	SetPosition(frame.LeftTop());
	SetSize(frame.Width(), frame.Height());
}


void
ResizeRoot(BView& root, float width, float height)
{
	ViewData::Of(root).SetSize(roundf(width), roundf(height));
}


BPoint
ToHost(const BView& view, BPoint point)
{
	return point + ViewData::Of(view).HostOffset();
}


BPoint
FromHost(const BView& view, BPoint point)
{
	return point - ViewData::Of(view).HostOffset();
}


static BView*
deepest_view_at(BView& view, BPoint hostPoint)
{
	ViewData& data = ViewData::Of(view);
	const BPoint inView = hostPoint - data.HostOffset();
	for (BView* child = data.firstChild; child != nullptr; child = ViewData::Of(child).next) {
		const ViewData& childData = ViewData::Of(child);
		if (childData.hideLevel <= 0 && childData.Frame().Contains(inView))
			return deepest_view_at(*child, hostPoint);
	}
	return &view;
}


BView*
ViewAt(BView& root, BPoint hostPoint)
{
	if (!ViewData::Of(root).Bounds().Contains(hostPoint))
		return nullptr;
	BView* view = deepest_view_at(root, hostPoint);
	return view == &root ? nullptr : view;
}

} // namespace hosted
