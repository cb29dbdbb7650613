// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include <Region.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/platform/interface/RecordingHost.h"

using test::RecordingHost;


namespace {

using Calls = std::vector<std::string>;

// Fills itself with its color and writes down what it was asked to draw.
class ColorView : public BView {
public:
	ColorView(BRect frame, const char* name, Calls& calls, rgb_color color,
		uint32 flags = B_WILL_DRAW)
		:
		BView(frame, name, B_FOLLOW_NONE, flags),
		fCalls(calls)
	{
		SetHighColor(color);
	}

	void Draw(BRect updateRect) override
	{
		fCalls.push_back(std::string("draw ") + Name());
		lastRect = updateRect;
		FillRect(Bounds());
	}

	void DrawAfterChildren(BRect) override { fCalls.push_back(std::string("after ") + Name()); }

	BRect lastRect;

private:
	Calls& fCalls;
};

constexpr rgb_color kRed = {255, 0, 0, 255};
constexpr rgb_color kBlue = {0, 0, 255, 255};

} // namespace


TEST(Update, DrawsParentsFirstAndAfterChildrenInReverse)
{
	Calls calls;
	RecordingHost host;
	const uint32 after = B_WILL_DRAW | B_DRAW_ON_CHILDREN;
	ColorView* parent = new ColorView(BRect(10, 10, 29, 29), "parent", calls, kRed, after);
	parent->AddChild(new ColorView(BRect(5, 5, 9, 9), "child", calls, kBlue, after));
	host.root->AddChild(parent);
	EXPECT_TRUE(calls.empty());
	host.Update();
	EXPECT_EQ(calls, (Calls{"draw parent", "draw child", "after child", "after parent"}));
	EXPECT_EQ(host.At(10, 10), 0xff0000u);
	EXPECT_EQ(host.At(15, 15), 0x0000ffu);
	// What was not out of date stays.
	EXPECT_EQ(host.At(0, 0), 0x808080u);
	EXPECT_EQ(host.painted.boundingRect(), QRect(10, 10, 20, 20));
}


TEST(Update, ErasesWithTheViewColor)
{
	RecordingHost host;
	BView* plain = new BView(BRect(0, 0, 9, 9), "plain", B_FOLLOW_NONE, 0);
	BView* colored = new BView(BRect(10, 0, 19, 9), "colored", B_FOLLOW_NONE, 0);
	BView* clear = new BView(BRect(20, 0, 29, 9), "clear", B_FOLLOW_NONE, 0);
	colored->SetViewColor(1, 2, 3);
	clear->SetViewColor(B_TRANSPARENT_COLOR);
	host.root->SetViewColor(B_TRANSPARENT_COLOR);
	host.root->AddChild(plain);
	host.root->AddChild(colored);
	host.root->AddChild(clear);
	host.Update();
	EXPECT_EQ(host.At(5, 5), 0xffffffu);
	EXPECT_EQ(host.At(15, 5), 0x010203u);
	EXPECT_EQ(host.At(25, 5), 0x808080u);
}


TEST(Update, ParentDoesNotPaintOnItsChildren)
{
	Calls calls;
	RecordingHost host;
	ColorView* parent = new ColorView(BRect(0, 0, 19, 19), "parent", calls, kRed);
	parent->AddChild(new BView(BRect(5, 5, 9, 9), "child", B_FOLLOW_NONE, 0));
	host.root->AddChild(parent);
	host.Update();
	EXPECT_EQ(host.At(5, 5), 0xffffffu);
	EXPECT_EQ(host.At(4, 5), 0xff0000u);
	EXPECT_EQ(host.At(10, 10), 0xff0000u);
	parent->SetFlags(B_WILL_DRAW | B_DRAW_ON_CHILDREN);
	parent->FillRect(parent->Bounds());
	EXPECT_EQ(host.At(5, 5), 0xff0000u);
}


TEST(Update, GivesThePartInTheViewsCoordinates)
{
	Calls calls;
	RecordingHost host;
	ColorView* view = new ColorView(BRect(10, 10, 29, 29), "view", calls, kRed);
	host.root->AddChild(view);
	host.Update();
	EXPECT_EQ(view->lastRect, BRect(0, 0, 19, 19));
	view->Invalidate(BRect(3, 4, 5, 6));
	EXPECT_EQ(host.pending.boundingRect(), QRect(13, 14, 3, 3));
	view->Invalidate(BRect(15, 15, 100, 100));
	host.Update();
	EXPECT_EQ(view->lastRect, BRect(3, 4, 19, 19));
	BRegion region(BRect(0, 0, 1, 1));
	view->Invalidate(&region);
	EXPECT_EQ(host.pending.boundingRect(), QRect(10, 10, 2, 2));
	view->Invalidate();
	EXPECT_EQ(host.pending.boundingRect(), QRect(10, 10, 20, 20));
}


TEST(Update, PaintsOnlyItsPixels)
{
	Calls calls;
	RecordingHost host;
	ColorView* view = new ColorView(BRect(0, 0, 29, 29), "view", calls, kRed);
	host.root->AddChild(view);
	host.Update();
	view->SetHighColor(kBlue);
	view->Invalidate(BRect(0, 0, 9, 9));
	host.Update();
	EXPECT_EQ(host.At(9, 9), 0x0000ffu);
	EXPECT_EQ(host.At(10, 9), 0xff0000u);
}


TEST(Update, LeavesOutHiddenParkedAndSilentViews)
{
	Calls calls;
	RecordingHost host;
	ColorView* hidden = new ColorView(BRect(0, 0, 9, 9), "hidden", calls, kRed);
	hidden->Hide();
	host.root->AddChild(hidden);
	host.root->AddChild(new ColorView(BRect(0, -50, 9, -41), "parked", calls, kRed));
	host.root->AddChild(new ColorView(BRect(0, 20, 9, 29), "silent", calls, kRed, 0));
	host.root->Invalidate();
	host.Update();
	EXPECT_TRUE(calls.empty());
	hidden->Show();
	EXPECT_EQ(host.pending.boundingRect(), QRect(0, 0, 10, 10));
	host.Update();
	EXPECT_EQ(calls, Calls{"draw hidden"});
	hidden->Hide();
	EXPECT_EQ(host.pending.boundingRect(), QRect(0, 0, 10, 10));
	host.Update();
	EXPECT_EQ(host.At(5, 5), 0xffffffu);
}


TEST(Update, RestoresTheDrawingState)
{
	class Careless : public BView {
	public:
		Careless()
			:
			BView(BRect(0, 0, 9, 9), "careless", B_FOLLOW_NONE, B_WILL_DRAW)
		{
		}

		void Draw(BRect) override
		{
			SetHighColor(255, 0, 0);
			PushState();
			SetDrawingMode(B_OP_BLEND);
		}
	};

	RecordingHost host;
	Careless* view = new Careless;
	host.root->AddChild(view);
	host.Update();
	EXPECT_EQ(view->HighColor(), make_color(0, 0, 0));
	EXPECT_EQ(view->DrawingMode(), B_OP_COPY);
}


TEST(Update, SurvivesAViewThatRemovesAnother)
{
	class Removing : public BView {
	public:
		Removing()
			:
			BView(BRect(0, 0, 9, 9), "removing", B_FOLLOW_NONE, B_WILL_DRAW)
		{
		}

		void Draw(BRect) override
		{
			BView* next = NextSibling();
			next->RemoveSelf();
			delete next;
		}
	};

	Calls calls;
	RecordingHost host;
	host.root->AddChild(new Removing);
	host.root->AddChild(new ColorView(BRect(0, 0, 9, 9), "removed", calls, kRed));
	host.Update();
	EXPECT_TRUE(calls.empty());
	EXPECT_EQ(host.root->CountChildren(), 1);
}


TEST(Update, ViewMayDeleteItself)
{
	class Leaving : public BView {
	public:
		Leaving()
			:
			BView(BRect(0, 0, 9, 9), "leaving", B_FOLLOW_NONE, B_WILL_DRAW)
		{
		}

		void Draw(BRect) override
		{
			RemoveSelf();
			delete this;
		}
	};

	RecordingHost host;
	host.root->AddChild(new Leaving);
	host.Update();
	EXPECT_EQ(host.root->CountChildren(), 0);
}


TEST(DirectDrawing, IsReportedAtOnce)
{
	RecordingHost host;
	BView* view = new BView(BRect(10, 10, 29, 29), "view", B_FOLLOW_NONE, 0);
	host.root->AddChild(view);
	host.Update();
	host.painted = QRegion();
	view->FillRect(BRect(-5, 0, 4, 4));
	EXPECT_EQ(host.painted.boundingRect(), QRect(10, 10, 5, 5));
	EXPECT_EQ(host.At(14, 14), 0x000000u);
	EXPECT_EQ(host.At(9, 10), 0x808080u);
	host.painted = QRegion();
	view->FillRect(BRect(50, 50, 60, 60));
	EXPECT_TRUE(host.painted.isEmpty());
}


TEST(DirectDrawing, IsShownWhenFlushedButNotInsideAnUpdate)
{
	class Flushing : public BView {
	public:
		Flushing()
			:
			BView(BRect(0, 0, 9, 9), "flushing", B_FOLLOW_NONE, B_WILL_DRAW)
		{
		}

		void Draw(BRect) override { Flush(); }
	};

	RecordingHost host;
	Flushing* view = new Flushing;
	view->Flush();
	host.root->AddChild(view);
	host.Update();
	EXPECT_EQ(host.flushes, 0);
	view->Flush();
	view->Sync();
	EXPECT_EQ(host.flushes, 2);
}


TEST(DirectDrawing, SkipsWhatWaitsForAnUpdate)
{
	RecordingHost host;
	BView* view = new BView(BRect(0, 0, 19, 19), "view", B_FOLLOW_NONE, 0);
	host.root->AddChild(view);
	host.Update();
	view->Invalidate(BRect(0, 0, 9, 19));
	view->FillRect(view->Bounds());
	EXPECT_EQ(host.At(9, 5), 0xffffffu);
	EXPECT_EQ(host.At(10, 5), 0x000000u);
	host.Update();
	view->FillRect(view->Bounds());
	EXPECT_EQ(host.At(9, 5), 0x000000u);
}


TEST(DirectDrawing, SkipsChildrenAndDetachedOrHiddenViewsPaintNothing)
{
	RecordingHost host;
	BView* view = new BView(BRect(0, 0, 19, 19), "view", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(5, 5, 9, 9), "child", B_FOLLOW_NONE, 0);
	view->FillRect(view->Bounds());
	host.root->AddChild(view);
	view->AddChild(child);
	host.Update();
	view->FillRect(view->Bounds());
	EXPECT_EQ(host.At(5, 5), 0xffffffu);
	child->Hide();
	host.Update();
	child->FillRect(child->Bounds());
	EXPECT_EQ(host.At(5, 5), 0xffffffu);
	view->FillRect(view->Bounds());
	EXPECT_EQ(host.At(5, 5), 0x000000u);
}


TEST(Moving, OldAndNewPlaceArePaintedAgain)
{
	Calls calls;
	RecordingHost host;
	ColorView* view = new ColorView(BRect(0, 0, 9, 9), "view", calls, kRed);
	host.root->AddChild(view);
	host.Update();
	view->MoveTo(20, 0);
	EXPECT_EQ(view->Frame(), BRect(20, 0, 29, 9));
	EXPECT_EQ(host.pending, QRegion(0, 0, 10, 10) + QRegion(20, 0, 10, 10));
	host.Update();
	EXPECT_EQ(host.At(5, 5), 0xffffffu);
	EXPECT_EQ(host.At(25, 5), 0xff0000u);
	view->MoveTo(20, 0);
	EXPECT_TRUE(host.pending.isEmpty());
	// What lies outside of the parent needs no painting.
	view->MoveTo(20, -500);
	host.Update();
	view->MoveTo(20, -600);
	EXPECT_TRUE(host.pending.isEmpty());
}


TEST(Resizing, OnlyWhatAppearsIsPaintedUnlessAskedFor)
{
	Calls calls;
	RecordingHost host;
	ColorView* view = new ColorView(BRect(0, 0, 9, 9), "view", calls, kRed);
	host.root->AddChild(view);
	host.Update();
	view->ResizeTo(19, 9);
	EXPECT_EQ(host.pending, QRegion(10, 0, 10, 10));
	host.Update();
	view->ResizeTo(4, 9);
	EXPECT_EQ(host.pending, QRegion(5, 0, 15, 10));
	host.Update();
	view->SetFlags(B_WILL_DRAW | B_FULL_UPDATE_ON_RESIZE);
	view->ResizeTo(9, 9);
	EXPECT_EQ(host.pending, QRegion(0, 0, 10, 10));
	host.Update();
	hosted::ResizeRoot(*host.root, 109, 99);
	EXPECT_EQ(host.pending, QRegion(100, 0, 10, 100));
}


TEST(Removing, ItsPlaceIsPaintedAgain)
{
	RecordingHost host;
	BView* view = new BView(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	host.root->AddChild(view);
	EXPECT_EQ(host.pending, QRegion(0, 0, 10, 10));
	host.Update();
	view->RemoveSelf();
	EXPECT_EQ(host.pending, QRegion(0, 0, 10, 10));
	delete view;
}


TEST(Scrolling, PaintsTheViewAgain)
{
	Calls calls;
	RecordingHost host;
	ColorView* view = new ColorView(BRect(0, 0, 9, 9), "view", calls, kRed);
	host.root->AddChild(view);
	host.Update();
	view->ScrollTo(BPoint(0, 30));
	host.Update();
	EXPECT_EQ(view->lastRect, BRect(0, 30, 9, 39));
	EXPECT_EQ(host.At(9, 9), 0xff0000u);
}
