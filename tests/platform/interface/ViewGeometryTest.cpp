// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <Region.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/platform/interface/RecordingHost.h"

using test::RecordingHost;

static_assert(B_FOLLOW_LEFT_TOP == 0x1212 && B_FOLLOW_ALL == 0x1234, "follow");
static_assert((B_FOLLOW_LEFT_RIGHT | B_FOLLOW_BOTTOM) == 0x3234, "follow");
static_assert(B_FOLLOW_H_CENTER == 0x0505 && B_FOLLOW_V_CENTER == 0x5050, "follow");
static_assert(B_WILL_DRAW == 0x20000000 && B_FRAME_EVENTS == 0x04000000, "flags");
static_assert(B_FULL_UPDATE_ON_RESIZE == 0x80000000 && B_PULSE_NEEDED == 0x10000000, "flags");
static_assert(B_DRAW_ON_CHILDREN == 0x00800000 && B_SUPPORTS_LAYOUT == 0x00100000, "flags");


TEST(ViewFrame, IsRounded)
{
	BView view(BRect(1.4f, 2.5f, 10.6f, 20.4f), "view", B_FOLLOW_NONE, 0);
	EXPECT_EQ(view.Frame(), BRect(1, 3, 11, 20));
	EXPECT_EQ(view.Bounds(), BRect(0, 0, 10, 17));
	view.MoveTo(-2.5f, 4.4f);
	EXPECT_EQ(view.Frame(), BRect(-3, 4, 7, 21));
	view.ResizeTo(5.5f, 6.4f);
	EXPECT_EQ(view.Bounds(), BRect(0, 0, 6, 6));
	view.MoveBy(1, 1);
	view.ResizeBy(1, -1);
	EXPECT_EQ(view.Frame(), BRect(-2, 5, 5, 10));
}


TEST(ViewFrame, LaidOutViewStartsWithoutSize)
{
	BView view("view", B_WILL_DRAW);
	EXPECT_EQ(view.Frame(), BRect(0, 0, -1, -1));
	EXPECT_EQ(view.Flags(), B_WILL_DRAW | B_SUPPORTS_LAYOUT);
}


TEST(ViewFrame, PreferredSizeIsItsOwn)
{
	BView view(BRect(5, 5, 14, 24), "view", B_FOLLOW_NONE, 0);
	float width;
	float height;
	view.GetPreferredSize(&width, &height);
	EXPECT_FLOAT_EQ(width, 9);
	EXPECT_FLOAT_EQ(height, 19);
	view.ResizeToPreferred();
	EXPECT_EQ(view.Frame(), BRect(5, 5, 14, 24));
}


TEST(ViewCoordinates, ConvertBetweenParentsAndTheScreen)
{
	RecordingHost host;
	BView* parent = new BView(BRect(10, 20, 59, 59), "parent", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(5, 6, 14, 15), "child", B_FOLLOW_NONE, 0);
	parent->AddChild(child);
	host.root->AddChild(parent);
	EXPECT_EQ(child->ConvertToParent(BPoint(1, 1)), BPoint(6, 7));
	EXPECT_EQ(child->ConvertFromParent(BPoint(6, 7)), BPoint(1, 1));
	EXPECT_EQ(child->ConvertToScreen(BPoint(1, 1)), BPoint(1016, 2027));
	EXPECT_EQ(child->ConvertFromScreen(BPoint(1016, 2027)), BPoint(1, 1));
	EXPECT_EQ(child->ConvertToParent(BRect(0, 0, 1, 1)), BRect(5, 6, 6, 7));
	EXPECT_EQ(child->ConvertFromParent(BRect(5, 6, 6, 7)), BRect(0, 0, 1, 1));
	EXPECT_EQ(child->ConvertToScreen(child->Bounds()), BRect(1015, 2026, 1024, 2035));
	EXPECT_EQ(child->ConvertFromScreen(BRect(1015, 2026, 1024, 2035)), child->Bounds());
	BPoint point(1, 1);
	child->ConvertToScreen(&point);
	child->ConvertFromScreen(&point);
	child->ConvertToParent(&point);
	EXPECT_EQ(point, BPoint(6, 7));
	BRect rect(0, 0, 1, 1);
	child->ConvertToScreen(&rect);
	child->ConvertFromScreen(&rect);
	child->ConvertToParent(&rect);
	child->ConvertFromParent(&rect);
	EXPECT_EQ(rect, BRect(0, 0, 1, 1));
	EXPECT_EQ(hosted::ToHost(*child, BPoint(1, 1)), BPoint(16, 27));
	EXPECT_EQ(hosted::FromHost(*child, BPoint(16, 27)), BPoint(1, 1));

	parent->ScrollTo(BPoint(0, 4));
	EXPECT_EQ(parent->LeftTop(), BPoint(0, 4));
	EXPECT_EQ(parent->Bounds(), BRect(0, 4, 49, 43));
	EXPECT_EQ(child->ConvertToScreen(BPoint(1, 1)), BPoint(1016, 2023));
	parent->ScrollBy(0, -4);
	EXPECT_EQ(parent->LeftTop(), BPoint(0, 0));
}


// The frame of a view at (10, 10, 30, 30) when its parent grows by 20 and 11.
static BRect
followed(uint32 mode)
{
	RecordingHost host;
	BView* parent = new BView(BRect(0, 0, 50, 50), "parent", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(10, 10, 30, 30), "child", mode, 0);
	parent->AddChild(child);
	host.root->AddChild(parent);
	parent->ResizeBy(20, 11);
	return child->Frame();
}


TEST(ViewResizing, FollowsTheParentsSides)
{
	EXPECT_EQ(followed(B_FOLLOW_NONE), BRect(10, 10, 30, 30));
	EXPECT_EQ(followed(B_FOLLOW_LEFT_TOP), BRect(10, 10, 30, 30));
	EXPECT_EQ(followed(B_FOLLOW_ALL), BRect(10, 10, 50, 41));
	EXPECT_EQ(followed(B_FOLLOW_RIGHT | B_FOLLOW_TOP), BRect(30, 10, 50, 30));
	EXPECT_EQ(followed(B_FOLLOW_RIGHT), BRect(30, 10, 50, 30));
	EXPECT_EQ(followed(B_FOLLOW_LEFT | B_FOLLOW_BOTTOM), BRect(10, 21, 30, 41));
	EXPECT_EQ(followed(B_FOLLOW_LEFT_RIGHT | B_FOLLOW_BOTTOM), BRect(10, 21, 50, 41));
	EXPECT_EQ(followed(B_FOLLOW_TOP_BOTTOM | B_FOLLOW_LEFT), BRect(10, 10, 30, 41));
	EXPECT_EQ(followed(B_FOLLOW_H_CENTER | B_FOLLOW_V_CENTER), BRect(20, 15, 40, 35));
}


TEST(ViewResizing, HappensOnlyWhileAttached)
{
	BView parent(BRect(0, 0, 50, 50), "parent", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(10, 10, 30, 30), "child", B_FOLLOW_ALL, 0);
	parent.AddChild(child);
	parent.ResizeBy(20, 20);
	EXPECT_EQ(child->Frame(), BRect(10, 10, 30, 30));
}


TEST(ViewResizing, RootPassesItOn)
{
	RecordingHost host;
	BView* view = new BView(BRect(0, 0, 99, 99), "view", B_FOLLOW_ALL, 0);
	BView* child
		= new BView(BRect(0, 90, 99, 99), "child", B_FOLLOW_LEFT_RIGHT | B_FOLLOW_BOTTOM, 0);
	view->AddChild(child);
	host.root->AddChild(view);
	hosted::ResizeRoot(*host.root, 199, 149);
	EXPECT_EQ(view->Frame(), BRect(0, 0, 199, 149));
	EXPECT_EQ(child->Frame(), BRect(0, 140, 199, 149));
	EXPECT_EQ(view->ResizingMode(), B_FOLLOW_ALL);
	view->SetResizingMode(B_FOLLOW_NONE);
	hosted::ResizeRoot(*host.root, 99, 99);
	EXPECT_EQ(view->Frame(), BRect(0, 0, 199, 149));
}


TEST(ViewHidden, CountsAndIncludesTheParents)
{
	BView parent(BRect(0, 0, 50, 50), "parent", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(10, 10, 30, 30), "child", B_FOLLOW_NONE, 0);
	parent.AddChild(child);
	EXPECT_FALSE(child->IsHidden());
	child->Hide();
	child->Hide();
	child->Show();
	EXPECT_TRUE(child->IsHidden());
	child->Show();
	EXPECT_FALSE(child->IsHidden());
	parent.Hide();
	EXPECT_TRUE(child->IsHidden());
	EXPECT_FALSE(child->IsHidden(child));
	EXPECT_TRUE(child->IsHidden(&parent));
	child->Hide();
	EXPECT_TRUE(child->IsHidden(child));
}


TEST(ViewAt, FindsTheDeepestAndAmongSiblingsTheFirst)
{
	RecordingHost host;
	BView* first = new BView(BRect(10, 10, 50, 50), "first", B_FOLLOW_NONE, 0);
	BView* second = new BView(BRect(30, 30, 70, 70), "second", B_FOLLOW_NONE, 0);
	BView* inner = new BView(BRect(0, 0, 10, 10), "inner", B_FOLLOW_NONE, 0);
	host.root->AddChild(first);
	host.root->AddChild(second);
	first->AddChild(inner);
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(15, 15)), inner);
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(40, 40)), first);
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(60, 60)), second);
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(5, 5)), nullptr);
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(-5, 5)), nullptr);
	first->Hide();
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(40, 40)), second);
	EXPECT_EQ(hosted::ViewAt(*host.root, BPoint(15, 15)), nullptr);
	EXPECT_TRUE(hosted::IsInTree(*host.root, *inner));
	EXPECT_FALSE(hosted::IsInTree(*second, *inner));
}


TEST(VisibleRegion, LacksChildrenAndWhatParentsCutOff)
{
	RecordingHost host;
	BView* parent = new BView(BRect(90, 0, 109, 19), "parent", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(0, 0, 3, 19), "child", B_FOLLOW_NONE, 0);
	host.root->AddChild(parent);
	EXPECT_EQ(hosted::VisibleRegion(*parent).Frame(), BRect(90, 0, 99, 19));
	parent->AddChild(child);
	EXPECT_EQ(hosted::VisibleRegion(*parent).Frame(), BRect(94, 0, 99, 19));
	EXPECT_EQ(hosted::VisibleRegion(*child).Frame(), BRect(90, 0, 93, 19));
	child->Hide();
	EXPECT_EQ(hosted::VisibleRegion(*parent).Frame(), BRect(90, 0, 99, 19));
	EXPECT_FALSE(hosted::VisibleRegion(*child).Frame().IsValid());
	child->Show();
	parent->SetFlags(B_DRAW_ON_CHILDREN);
	EXPECT_EQ(hosted::VisibleRegion(*parent).Frame(), BRect(90, 0, 99, 19));
	BRegion region;
	parent->GetClippingRegion(&region);
	EXPECT_FALSE(region.Frame().IsValid());
	host.pending = QRegion();
	parent->GetClippingRegion(&region);
	EXPECT_EQ(region.Frame(), BRect(0, 0, 9, 19));
}
