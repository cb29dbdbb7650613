// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <Region.h>

#include "tests/platform/interface/Canvas.h"

using test::Canvas;
using test::Picture;


TEST(ViewState, HasTheDefaults)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	EXPECT_EQ(view.HighColor(), make_color(0, 0, 0));
	EXPECT_EQ(view.LowColor(), make_color(255, 255, 255));
	EXPECT_EQ(view.ViewColor(), make_color(255, 255, 255));
	EXPECT_EQ(view.DrawingMode(), B_OP_COPY);
	EXPECT_FLOAT_EQ(view.PenSize(), 1);
	EXPECT_EQ(view.LineCapMode(), B_BUTT_CAP);
	EXPECT_EQ(view.LineJoinMode(), B_MITER_JOIN);
	EXPECT_FLOAT_EQ(view.LineMiterLimit(), 10);
	EXPECT_EQ(view.PenLocation(), B_ORIGIN);
	source_alpha sourceAlpha;
	alpha_function function;
	view.GetBlendingMode(&sourceAlpha, &function);
	EXPECT_EQ(sourceAlpha, B_PIXEL_ALPHA);
	EXPECT_EQ(function, B_ALPHA_OVERLAY);
	BFont font;
	view.GetFont(&font);
	EXPECT_EQ(font, *be_plain_font);
}


TEST(ViewState, ViewColorIsNotInherited)
{
	BView parent(BRect(0, 0, 9, 9), "parent", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(0, 0, 9, 9), "child", B_FOLLOW_NONE, 0);
	parent.SetViewColor(1, 2, 3);
	parent.SetHighColor(4, 5, 6, 7);
	parent.SetLowColor(make_color(8, 9, 10));
	parent.AddChild(child);
	EXPECT_EQ(child->ViewColor(), make_color(255, 255, 255));
	child->AdoptParentColors();
	EXPECT_EQ(child->ViewColor(), make_color(1, 2, 3));
	EXPECT_EQ(child->HighColor(), make_color(4, 5, 6, 7));
	EXPECT_EQ(child->LowColor(), make_color(8, 9, 10));
}


TEST(ViewState, TakesUiColors)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.SetViewUIColor(B_PANEL_BACKGROUND_COLOR);
	view.SetHighUIColor(B_PANEL_BACKGROUND_COLOR, B_DARKEN_1_TINT);
	view.SetLowUIColor(B_LIST_SELECTED_BACKGROUND_COLOR);
	EXPECT_EQ(view.ViewColor(), make_color(216, 216, 216));
	EXPECT_EQ(view.HighColor(), make_color(184, 184, 184));
	EXPECT_EQ(view.LowColor(), make_color(190, 190, 190));
}


TEST(ViewState, IsPushedAndPopped)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.SetHighColor(1, 1, 1);
	view.SetOrigin(5, 5);
	view.PushState();
	EXPECT_EQ(view.HighColor(), make_color(1, 1, 1));
	EXPECT_EQ(view.Origin(), B_ORIGIN);
	view.SetHighColor(2, 2, 2);
	view.SetPenSize(3);
	view.SetDrawingMode(B_OP_OVER);
	view.SetLineMode(B_ROUND_CAP, B_ROUND_JOIN, 5);
	view.PopState();
	EXPECT_EQ(view.HighColor(), make_color(1, 1, 1));
	EXPECT_EQ(view.Origin(), BPoint(5, 5));
	EXPECT_FLOAT_EQ(view.PenSize(), 1);
	EXPECT_EQ(view.DrawingMode(), B_OP_COPY);
	EXPECT_EQ(view.LineCapMode(), B_BUTT_CAP);
	view.PopState();
	EXPECT_EQ(view.HighColor(), make_color(1, 1, 1));
}


TEST(ViewState, OriginsAddUp)
{
	Canvas canvas(6, 3);
	canvas.view->SetOrigin(1, 1);
	canvas.view->PushState();
	canvas.view->SetOrigin(BPoint(2, 0));
	canvas.view->FillRect(BRect(0, 0, 0, 0));
	canvas.view->PopState();
	canvas.view->FillRect(BRect(0, 0, 0, 0));
	EXPECT_EQ(canvas.Shape(), (Picture{"......", ".#.#..", "......"}));
}


TEST(ViewState, PenMoves)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.MovePenTo(3, 4);
	view.MovePenBy(1, -1);
	EXPECT_EQ(view.PenLocation(), BPoint(4, 3));
	view.MovePenTo(BPoint(1, 1));
	EXPECT_EQ(view.PenLocation(), BPoint(1, 1));
	// A view that is not attached still moves its pen.
	view.StrokeLine(BPoint(7, 7));
	EXPECT_EQ(view.PenLocation(), BPoint(7, 7));
}


TEST(ViewClipping, ConstrainsDrawing)
{
	Canvas canvas(6, 3);
	BRegion region(BRect(1, 1, 2, 5));
	canvas.view->ConstrainClippingRegion(&region);
	canvas.view->FillRect(BRect(0, 0, 5, 2));
	EXPECT_EQ(canvas.Shape(), (Picture{"......", ".##...", ".##..."}));
	BRegion clipping;
	canvas.view->GetClippingRegion(&clipping);
	EXPECT_EQ(clipping.Frame(), BRect(1, 1, 2, 2));

	canvas.view->PushState();
	BRegion inner(BRect(2, 0, 5, 1));
	canvas.view->ConstrainClippingRegion(&inner);
	canvas.view->GetClippingRegion(&clipping);
	EXPECT_EQ(clipping.Frame(), BRect(2, 1, 2, 1));
	canvas.view->ConstrainClippingRegion(nullptr);
	canvas.view->GetClippingRegion(&clipping);
	EXPECT_EQ(clipping.Frame(), BRect(1, 1, 2, 2));
	canvas.view->PopState();

	canvas.view->ConstrainClippingRegion(nullptr);
	canvas.view->FillRect(BRect(5, 0, 5, 0));
	EXPECT_EQ(canvas.Shape()[0], ".....#");
}


TEST(ViewClipping, FollowsTheView)
{
	Canvas canvas(6, 2);
	BView* child = new BView(BRect(2, 1, 5, 1), "child", B_FOLLOW_NONE, 0);
	canvas.view->AddChild(child);
	BRegion region(BRect(1, 0, 1, 0));
	child->ConstrainClippingRegion(&region);
	child->FillRect(child->Bounds());
	EXPECT_EQ(canvas.Shape(), (Picture{"......", "...#.."}));
}
