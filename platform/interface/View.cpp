// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Views: the tree, attaching and detaching.
#include <View.h>

#include <string.h>
#include <vector>

#include <Looper.h>
#include <Window.h>

#include "platform/app/Debugger.h"
#include "platform/interface/ViewData.h"
#include "platform/interface/ViewPrivate.h"

using hosted::ForSubtree;
using hosted::TreeData;
using hosted::ViewData;


BView::BView(BRect frame, const char* name, uint32 resizingMode, uint32 flags)
	:
	BHandler(name),
	fData(std::make_unique<ViewData>())
{
	fData->view = this;
	fData->position = BPoint(roundf(frame.left), roundf(frame.top));
	fData->width = roundf(frame.right) - fData->position.x;
	fData->height = roundf(frame.bottom) - fData->position.y;
	fData->resizingMode = resizingMode & 0xffff;
	fData->flags = flags;
}


BView::BView(const char* name, uint32 flags)
	:
	BView(BRect(), name, B_FOLLOW_NONE, flags | B_SUPPORTS_LAYOUT)
{
}


BView::~BView()
{
	if (fData->isRoot)
		hosted::DetachRoot(*this);
	RemoveSelf();
	BView* child = fData->firstChild;
	fData->firstChild = nullptr;
	while (child != nullptr) {
		ViewData& data = ViewData::Of(child);
		BView* next = data.next;
		data.parent = nullptr;
		data.next = nullptr;
		data.previous = nullptr;
		delete child;
		child = next;
	}
}


void
BView::AttachedToWindow()
{
}


void
BView::AllAttached()
{
}


void
BView::DetachedFromWindow()
{
}


void
BView::AllDetached()
{
}


static void
announce_attached(BView* view)
{
	ViewData& data = ViewData::Of(view);
	if (data.tree == nullptr)
		return;
	data.isAnnounced = true;
	view->AttachedToWindow();
	for (BView* child = data.firstChild; child != nullptr;) {
		BView* next = ViewData::Of(child).next;
		// A child that was added by a hook has had its own.
		if (!ViewData::Of(child).isAnnounced)
			announce_attached(child);
		child = next;
	}
	if (data.tree != nullptr)
		view->AllAttached();
}


static void
announce_detached(BView* view)
{
	ViewData& data = ViewData::Of(view);
	if (!data.isAnnounced)
		return;
	data.isAnnounced = false;
	view->DetachedFromWindow();
	for (BView* child = data.firstChild; child != nullptr;) {
		BView* next = ViewData::Of(child).next;
		announce_detached(child);
		child = next;
	}
	view->AllDetached();
}


static void
enter_tree(BView* view, TreeData* tree)
{
	BWindow* window = tree->host->Window();
	ForSubtree(view, [tree, window](BView* each) {
		ViewData& data = ViewData::Of(each);
		data.tree = tree;
		data.ownGeneration = 0;
		if (window != nullptr) {
			window->AddHandler(each);
			if (ViewData::Of(data.parent).isRoot)
				each->SetNextHandler(window);
			else
				each->SetNextHandler(data.parent);
		}
		if ((data.flags & B_PULSE_NEEDED) != 0)
			tree->host->PulseNeeded();
	});
}


static void
leave_tree(BView* view)
{
	TreeData* tree = ViewData::Of(view).tree;
	BWindow* window = tree->host->Window();
	std::vector<BView*> views;
	ForSubtree(view, [tree, &views](BView* each) {
		ViewData& data = ViewData::Of(each);
		views.push_back(each);
		if (tree->focus == each)
			tree->focus = nullptr;
		for (std::vector<BView*>* walk : tree->walks) {
			for (BView*& entry : *walk) {
				if (entry == each)
					entry = nullptr;
			}
		}
		tree->host->ViewDetached(*each);
		data.tree = nullptr;
		data.ownRegion = QRegion();
		data.updateRegion = QRegion();
	});
	// A looper finds its last handler at once, the first of many only after all others.
	for (auto each = views.rbegin(); window != nullptr && each != views.rend(); ++each)
		window->RemoveHandler(*each);
}


void
BView::AddChild(BView* child, BView* before)
{
	if (child == nullptr || child == this)
		return;
	ViewData& data = ViewData::Of(child);
	if (data.parent != nullptr)
		hosted::Debugger("AddChild failed - the view already has a parent.");
	if (before != nullptr && ViewData::Of(before).parent != this)
		return;
	fData->Insert(child, before);
	if (fData->tree == nullptr)
		return;

	enter_tree(child, fData->tree);
	data.PlaceChanged();
	// While the parent's own hooks are still to come, the child's follow them.
	if (fData->isAnnounced || fData->isRoot)
		announce_attached(child);
	if (data.tree != nullptr)
		data.InvalidateInParent(data.Frame());
}


bool
BView::RemoveChild(BView* child)
{
	if (child == nullptr || ViewData::Of(child).parent != this)
		return false;
	return child->RemoveSelf();
}


bool
BView::RemoveSelf()
{
	if (fData->parent == nullptr)
		return false;
	if (fData->tree != nullptr) {
		TreeData* tree = fData->tree;
		fData->InvalidateInParent(fData->Frame());
		announce_detached(this);
		const bool hadFocus = tree->focus != nullptr && hosted::IsInTree(*this, *tree->focus);
		leave_tree(this);
		tree->generation++;
		if (hadFocus)
			tree->host->FocusChanged(nullptr);
	}
	ViewData::Of(fData->parent).Remove(this);
	return true;
}


int32
BView::CountChildren() const
{
	return fData->childCount;
}


BView*
BView::ChildAt(int32 index) const
{
	return fData->ChildAt(index);
}


BView*
BView::NextSibling() const
{
	return fData->next;
}


BView*
BView::PreviousSibling() const
{
	return fData->previous;
}


BWindow*
BView::Window() const
{
	return fData->tree == nullptr ? nullptr : fData->tree->host->Window();
}


BView*
BView::Parent() const
{
	if (fData->parent == nullptr || ViewData::Of(fData->parent).isRoot)
		return nullptr;
	return fData->parent;
}


BView*
BView::FindView(const char* name) const
{
	if (name == nullptr)
		return nullptr;
	if (Name() != nullptr && strcmp(Name(), name) == 0)
		return const_cast<BView*>(this);
	for (BView* child = fData->firstChild; child != nullptr; child = ViewData::Of(child).next) {
		BView* found = child->FindView(name);
		if (found != nullptr)
			return found;
	}
	return nullptr;
}


namespace hosted {

void
ViewData::Insert(BView* child, BView* before)
{
	ViewData& data = Of(child);
	data.parent = view;
	data.next = before;
	data.previous = before == nullptr ? lastChild : Of(before).previous;
	if (data.previous == nullptr)
		firstChild = child;
	else
		Of(data.previous).next = child;
	if (before == nullptr)
		lastChild = child;
	else {
		Of(before).previous = child;
		lastAsked = nullptr;
	}
	childCount++;
}


void
ViewData::Remove(BView* child)
{
	ViewData& data = Of(child);
	if (data.previous == nullptr)
		firstChild = data.next;
	else
		Of(data.previous).next = data.next;
	if (data.next == nullptr)
		lastChild = data.previous;
	else
		Of(data.next).previous = data.previous;
	data.parent = nullptr;
	data.next = nullptr;
	data.previous = nullptr;
	lastAsked = nullptr;
	childCount--;
}


// Goes from the nearest of the first, the last, and the child that was asked for last. Below 0 it
// is the first one, as on Haiku.
BView*
ViewData::ChildAt(int32 index)
{
	if (index < 0)
		return firstChild;
	if (index >= childCount)
		return nullptr;
	BView* child = firstChild;
	int32 at = 0;
	if (childCount - 1 - index < index) {
		child = lastChild;
		at = childCount - 1;
	}
	if (lastAsked != nullptr && abs(lastAskedIndex - index) < abs(at - index)) {
		child = lastAsked;
		at = lastAskedIndex;
	}
	for (; at < index; at++)
		child = Of(child).next;
	for (; at > index; at--)
		child = Of(child).previous;
	lastAsked = child;
	lastAskedIndex = index;
	return child;
}


BView*
NewRootView(ViewHost& host, BRect bounds)
{
	BView* root = new BView(bounds, nullptr, B_FOLLOW_NONE, 0);
	ViewData& data = ViewData::Of(root);
	data.isRoot = true;
	data.ownTree = std::make_unique<TreeData>();
	data.tree = data.ownTree.get();
	data.tree->host = &host;
	data.tree->root = root;
	return root;
}


void
DetachRoot(BView& root)
{
	ViewData& data = ViewData::Of(root);
	if (data.tree == nullptr)
		return;
	for (BView* child = data.firstChild; child != nullptr;) {
		BView* next = ViewData::Of(child).next;
		announce_detached(child);
		child = next;
	}
	for (BView* child = data.lastChild; child != nullptr; child = ViewData::Of(child).previous)
		leave_tree(child);
	data.tree = nullptr;
}


bool
IsInTree(const BView& root, const BView& view)
{
	for (const BView* each = &view; each != nullptr; each = ViewData::Of(each).parent) {
		if (each == &root)
			return true;
	}
	return false;
}

} // namespace hosted
