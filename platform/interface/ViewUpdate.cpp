// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: what has to be painted again, and painting it.
#include <View.h>

#include <Region.h>

#include "platform/interface/Dots.h"
#include "platform/interface/Painter.h"
#include "platform/interface/Pixels.h"
#include "platform/interface/RegionData.h"
#include "platform/interface/ViewData.h"
#include "platform/interface/ViewPrivate.h"

using hosted::RegionData;
using hosted::ViewData;


void
BView::Draw(BRect)
{
}


void
BView::DrawAfterChildren(BRect)
{
}


void
BView::Invalidate(BRect rect)
{
	if (fData->tree == nullptr)
		return;
	rect.OffsetBy(fData->state.baseOrigin + fData->state.origin);
	fData->Invalidate(fData->ToHostPixels(rect) & fData->VisibleRect());
}


void
BView::Invalidate(const BRegion* region)
{
	if (fData->tree == nullptr || region == nullptr)
		return;
	const QPoint offset = hosted::FloorPixel(fData->DrawOffset());
	fData->Invalidate(RegionData::Of(*region).translated(offset) & fData->VisibleRect());
}


void
BView::Invalidate()
{
	fData->Invalidate(fData->VisibleRect());
}


void
BView::Flush() const
{
	// An update is shown as a whole.
	if (fData->tree != nullptr && fData->tree->updating == nullptr)
		fData->tree->host->Flush();
}


// Drawing calls have painted when they return.
void
BView::Sync() const
{
	Flush();
}


namespace hosted {

namespace {

// An update of a host, as long as it runs. One that starts inside another has its own pixels.
class Update {
public:
	Update(TreeData& tree, const QRegion& pixels)
		:
		fTree(tree),
		fBefore(tree.updating)
	{
		fTree.updating = &pixels;
		fTree.updateCount++;
	}

	~Update()
	{
		fTree.updating = fBefore;
		fTree.updateCount++;
	}

private:
	TreeData& fTree;
	const QRegion* fBefore;
};

// The views that show pixels of an update, parents first.
void
collect(BView* view, const QRegion& pixels, std::vector<BView*>& views)
{
	const ViewData& data = ViewData::Of(view);
	const QRect visible = data.VisibleRect();
	if (visible.isEmpty() || !pixels.intersects(visible))
		return;
	views.push_back(view);
	const BPoint offset = data.HostOffset();
	for (BView* child = data.firstChild; child != nullptr; child = ViewData::Of(child).next) {
		if (FloorPixels(ViewData::Of(child).Frame().OffsetByCopy(offset)).intersects(visible))
			collect(child, pixels, views);
	}
}


/*!	Calls a hook with the part of the view that is painted. The drawing state is afterwards what it
	was before, whatever the hook left on the stack.
*/
template <typename Hook>
void
call_hook(BView& view, const QRegion& pixels, const std::vector<BView*>& views, size_t index,
	const Hook& hook)
{
	ViewData& data = ViewData::Of(view);
	const QRect visible = (pixels & data.VisibleRect()).boundingRect();
	if (visible.isEmpty())
		return;
	const size_t depth = data.stack.size();
	view.PushState();
	hook(ToRect(visible).OffsetBySelf(-data.HostOffset()));
	if (views[index] == nullptr)
		return;
	while (data.stack.size() > depth)
		view.PopState();
}

} // namespace


void
UpdateViews(ViewHost& host, BView& root, const QRegion& pixels)
{
	TreeData* tree = ViewData::Of(root).tree;
	QImage* image = host.Image();
	if (tree == nullptr || image == nullptr)
		return;
	const QRegion clipped = pixels & PixelsOf(*image);
	if (clipped.isEmpty())
		return;

	std::vector<BView*> views;
	collect(&root, clipped, views);
	{
		Update update(*tree, clipped);
		for (BView* view : views)
			PaintBackground(ViewData::Of(view));
		tree->walks.push_back(&views);
		for (size_t index = 0; index < views.size(); index++) {
			BView* view = views[index];
			if (view != nullptr && (view->Flags() & B_WILL_DRAW) != 0) {
				ViewData::Of(view).texts.reset();
				call_hook(*view, clipped, views, index, [view](BRect rect) { view->Draw(rect); });
			}
		}
		const uint32 afterFlags = B_WILL_DRAW | B_DRAW_ON_CHILDREN;
		for (size_t index = views.size(); index-- > 0;) {
			BView* view = views[index];
			if (view != nullptr && (view->Flags() & afterFlags) == afterFlags) {
				call_hook(*view, clipped, views, index,
					[view](BRect rect) { view->DrawAfterChildren(rect); });
			}
		}
		tree->walks.pop_back();
	}
	host.Painted(clipped);
}


BRegion
VisibleRegion(const BView& view)
{
	BRegion region;
	RegionData::Of(region) = ViewData::Of(view).OwnRegion();
	return region;
}

} // namespace hosted
