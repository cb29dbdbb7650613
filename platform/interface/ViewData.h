// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef VIEW_DATA_H
#define VIEW_DATA_H

#include <memory>
#include <vector>

#include <QRegion>
#include <QString>

#include <Font.h>
#include <View.h>

#include "platform/interface/ViewHost.h"


namespace hosted {

struct BitmapData;

// What PushState() keeps.
struct DrawState {
	BPoint origin;
	// The earlier states' origins, added up.
	BPoint baseOrigin;
	BPoint pen;
	rgb_color high = {0, 0, 0, 255};
	rgb_color low = {255, 255, 255, 255};
	float penSize = 1;
	float miterLimit = 10;
	BFont font;
	drawing_mode mode = B_OP_COPY;
	source_alpha sourceAlpha = B_PIXEL_ALPHA;
	alpha_function alphaFunction = B_ALPHA_OVERLAY;
	cap_mode cap = B_BUTT_CAP;
	join_mode join = B_MITER_JOIN;
	// The pixels of the view that this and the earlier states allow, and the earlier ones alone.
	bool isClipped = false;
	bool isBaseClipped = false;
	QRegion clip;
	QRegion baseClip;
};

struct ViewBitmap {
	std::shared_ptr<BitmapData> bitmap;
	BRect source;
	BRect destination;
	uint32 follow;
	uint32 options;
};

struct ColoredLine {
	BPoint start;
	BPoint end;
	rgb_color color;
};

/*!	What a tree of attached views has in common. It belongs to the root view. */
struct TreeData {
	ViewHost* host = nullptr;
	BView* root = nullptr;
	BView* focus = nullptr;
	// Grows with every change of a view's place, size or visibility.
	uint64 generation = 1;
	// The pixels of the update under way, null outside one, and how many there have been.
	const QRegion* updating = nullptr;
	uint64 updateCount = 0;
	// Lists of views whose hooks are being called. A view that is detached meanwhile is replaced by
	// null in them.
	std::vector<std::vector<BView*>*> walks;
};

/*!	The private part of a view.

	Ten thousand of them are nothing unusual: no member costs more than its bytes.
*/
struct ViewData {
	BView* view = nullptr;
	BView* parent = nullptr;
	BView* next = nullptr;
	BView* previous = nullptr;
	BView* firstChild = nullptr;
	BView* lastChild = nullptr;
	int32 childCount = 0;
	// The child that was asked for last, for walks by index.
	BView* lastAsked = nullptr;
	int32 lastAskedIndex = 0;

	// In the parent's coordinates.
	BPoint position;
	float width = 0;
	float height = 0;
	BPoint scroll;
	uint32 resizingMode = 0;
	uint32 flags = 0;
	int32 hideLevel = 0;
	bool isRoot = false;
	// The attach hooks were called, and the detach hooks not yet.
	bool isAnnounced = false;
	rgb_color viewColor = {255, 255, 255, 255};
	std::unique_ptr<ViewBitmap> viewBitmap;

	DrawState state;
	std::vector<DrawState> stack;
	std::vector<ColoredLine> lines;

	// The texts drawn since the last update of the view, in their order; null for none.
	std::unique_ptr<std::vector<QString>> texts;

	// Null while the view is not attached.
	TreeData* tree = nullptr;
	// The root's own.
	std::unique_ptr<TreeData> ownTree;

	// Caches of OwnRegion() and DrawRegion(), with the tree's counts for which they hold.
	QRegion ownRegion;
	uint64 ownGeneration = 0;
	QRegion updateRegion;
	uint64 updateGeneration = 0;
	uint64 updateCount = 0;

	static ViewData& Of(const BView& view) { return *view.fData; }
	static ViewData& Of(const BView* view) { return *view->fData; }

	void NoteText(const QString& text);

	BRect Bounds() const { return BRect(scroll.x, scroll.y, scroll.x + width, scroll.y + height); }
	BRect Frame() const
	{
		return BRect(position.x, position.y, position.x + width, position.y + height);
	}

	// What is added to the view's coordinates (without the state's origin) to get the host's.
	BPoint HostOffset() const;
	// The state's origin and HostOffset().
	BPoint DrawOffset() const;

	// The rectangle of the host that shows the view and its children; empty while hidden or
	// detached.
	QRect VisibleRect() const;
	// What shows the view itself.
	const QRegion& OwnRegion();
	// Where drawing calls may paint now.
	QRegion DrawRegion();
	// A part of the view in the host's pixels.
	QRect ToHostPixels(BRect rect) const;

	// Has a rectangle of the parent's coordinates painted again.
	void InvalidateInParent(BRect rect) const;
	// Has what the first rectangle covers more than the second painted again.
	void InvalidateDifference(BRect rect, BRect without) const;
	void Invalidate(const QRegion& hostPixels) const;
	void PlaceChanged();

	void Insert(BView* child, BView* before);
	void Remove(BView* child);
	BView* ChildAt(int32 index);

	// Moves the child as its resizing mode says.
	void ParentResized(float dx, float dy);
	void SetSize(float newWidth, float newHeight);
	void SetPosition(BPoint where);

	DrawState Pushed() const;

private:
	void _UpdateOwnRegion();
};

// Tells a view that wants to know that it was moved or resized, by a message.
void PostFrameEvent(BView& view, bool moved);

// Calls a function with every view of the tree below the root, parents first, in a way that the
// function may take views off. accepts(view) picks the views before the first call.
template <typename Accepts, typename Function>
void WalkViews(TreeData& tree, const Accepts& accepts, const Function& function);

// Below a view, and the view itself.
template <typename Function>
void
ForSubtree(BView* view, const Function& function)
{
	function(view);
	for (BView* child = ViewData::Of(view).firstChild; child != nullptr;
		 child = ViewData::Of(child).next)
		ForSubtree(child, function);
}


template <typename Accepts, typename Function>
void
WalkViews(TreeData& tree, const Accepts& accepts, const Function& function)
{
	std::vector<BView*> views;
	for (BView* child = ViewData::Of(tree.root).firstChild; child != nullptr;
		 child = ViewData::Of(child).next) {
		ForSubtree(child, [&](BView* view) {
			if (accepts(ViewData::Of(view)))
				views.push_back(view);
		});
	}
	tree.walks.push_back(&views);
	for (size_t index = 0; index < views.size(); index++) {
		if (views[index] != nullptr)
			function(*views[index]);
	}
	tree.walks.pop_back();
}

} // namespace hosted

#endif // VIEW_DATA_H
