// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef VIEW_PRIVATE_H
#define VIEW_PRIVATE_H

#include <vector>

#include <Point.h>
#include <Rect.h>

class BMessage;
class BRegion;
class BView;


/*!	What a view's host (a window, a bitmap) and the kit's own views reach beyond a view's public
	functions. All of it is called with the host's lock held.
*/
namespace hosted {

class ViewHost;

// A view that covers the host and is the parent of the views added to the host. It draws nothing
// but its white view color, is never given out by Parent() and receives no hooks. The host owns it,
// and takes the views off with DetachRoot() before it deletes it.
BView* NewRootView(ViewHost& host, BRect bounds);

// Calls the hooks of all attached views of the root as if each had been removed, and forgets the
// host. The views stay in the tree, and are deleted with the root.
void DetachRoot(BView& root);

// Sets the root's size. The children follow as their resizing modes say, and what has to be painted
// again is reported with NeedsUpdate(), including all of it that is new.
void ResizeRoot(BView& root, float width, float height);

// The deepest visible view at a point of the host, null where only the root is. The first one in
// the order of the list wins among siblings.
BView* ViewAt(BView& root, BPoint hostPoint);

// True if the view is the root or lies under it.
bool IsInTree(const BView& root, const BView& view);

// Between the coordinates of an attached view and those of its host.
BPoint ToHost(const BView& view, BPoint point);
BPoint FromHost(const BView& view, BPoint point);

// The visible part of a view in host coordinates, without its children's.
BRegion VisibleRegion(const BView& view);

// The focus view of the tree, null for none.
BView* FocusView(const BView& root);
// Moves the focus without asking the views, and calls FocusChanged(). Null for none.
void SetFocusView(BView& root, BView* view);

// Calls Pulse() of every view that wants it, parents first.
void PulseViews(BView& root);
// Calls WindowActivated() of every view, parents first.
void ActivateViews(BView& root, bool active);

// All views under the root that can be reached with the Tab key, in order.
std::vector<BView*> NavigableViews(BView& root);

// Scripting. The child that a specifier means, with the specifier taken off the message; null, and
// the sender is told, if there is none.
BHandler* ResolveChild(BView& parent, BMessage* message, const BMessage& specifier);
// The frame in "data". B_BAD_VALUE if it is no place for a view or window.
status_t FindFrame(const BMessage& message, BRect* frame);

} // namespace hosted

#endif // VIEW_PRIVATE_H
