// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/platform/interface/RecordingHost.h"

using test::RecordingHost;


namespace {

// Writes down which hooks are called.
class HookView : public BView {
public:
	HookView(const char* name, std::vector<std::string>& calls, uint32 flags = 0)
		:
		BView(BRect(0, 0, 9, 9), name, B_FOLLOW_NONE, flags),
		fCalls(calls)
	{
	}

	~HookView() override { fCalls.push_back(std::string("deleted ") + Name()); }

	void AttachedToWindow() override { _Call("attached "); }
	void AllAttached() override { _Call("all attached "); }
	void DetachedFromWindow() override { _Call("detached "); }
	void AllDetached() override { _Call("all detached "); }
	void Pulse() override { _Call("pulse "); }
	void WindowActivated(bool active) override { _Call(active ? "active " : "inactive "); }

private:
	void _Call(const char* hook) { fCalls.push_back(std::string(hook) + Name()); }

	std::vector<std::string>& fCalls;
};

using Calls = std::vector<std::string>;

} // namespace


TEST(ViewTree, KeepsChildrenInOrder)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	BView* a = new BView(BRect(), "a", B_FOLLOW_NONE, 0);
	BView* b = new BView(BRect(), "b", B_FOLLOW_NONE, 0);
	BView* c = new BView(BRect(), "c", B_FOLLOW_NONE, 0);
	parent.AddChild(a);
	parent.AddChild(c);
	parent.AddChild(b, c);
	EXPECT_EQ(parent.CountChildren(), 3);
	EXPECT_EQ(parent.ChildAt(0), a);
	EXPECT_EQ(parent.ChildAt(1), b);
	EXPECT_EQ(parent.ChildAt(2), c);
	EXPECT_EQ(parent.ChildAt(3), nullptr);
	EXPECT_EQ(parent.ChildAt(-1), a);
	EXPECT_EQ(a->ChildAt(-1), nullptr);
	EXPECT_EQ(a->NextSibling(), b);
	EXPECT_EQ(c->PreviousSibling(), b);
	EXPECT_EQ(a->PreviousSibling(), nullptr);
	EXPECT_EQ(c->NextSibling(), nullptr);
	EXPECT_EQ(b->Parent(), &parent);
	EXPECT_EQ(parent.Parent(), nullptr);
	EXPECT_EQ(parent.Window(), nullptr);

	EXPECT_TRUE(parent.RemoveChild(b));
	EXPECT_FALSE(parent.RemoveChild(b));
	EXPECT_EQ(parent.ChildAt(1), c);
	EXPECT_EQ(b->Parent(), nullptr);
	EXPECT_FALSE(b->RemoveSelf());
	delete b;
	EXPECT_TRUE(a->RemoveSelf());
	delete a;
	EXPECT_EQ(parent.CountChildren(), 1);
	EXPECT_EQ(parent.ChildAt(0), c);
}


TEST(ViewTreeDeathTest, SecondParentStopsTheProgram)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	BView first(BRect(), "first", B_FOLLOW_NONE, 0);
	BView second(BRect(), "second", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(), "child", B_FOLLOW_NONE, 0);
	first.AddChild(child);
	EXPECT_DEATH(second.AddChild(child), "already has a parent");
	EXPECT_DEATH(first.AddChild(child), "already has a parent");
}


TEST(ViewTree, NoViewIsItsOwnChild)
{
	BView first(BRect(), "first", B_FOLLOW_NONE, 0);
	BView second(BRect(), "second", B_FOLLOW_NONE, 0);
	BView* child = new BView(BRect(), "child", B_FOLLOW_NONE, 0);
	first.AddChild(child);
	first.AddChild(&first);
	first.AddChild(nullptr);
	second.AddChild(&first, child);
	EXPECT_EQ(second.CountChildren(), 0);
	EXPECT_EQ(first.CountChildren(), 1);
}


TEST(ViewTree, FindsViewsByName)
{
	BView parent(BRect(), "parent", B_FOLLOW_NONE, 0);
	BView* middle = new BView(BRect(), "middle", B_FOLLOW_NONE, 0);
	BView* deep = new BView(BRect(), "deep", B_FOLLOW_NONE, 0);
	parent.AddChild(middle);
	middle->AddChild(deep);
	EXPECT_EQ(parent.FindView("deep"), deep);
	EXPECT_EQ(parent.FindView("parent"), &parent);
	EXPECT_EQ(parent.FindView("none"), nullptr);
	EXPECT_EQ(parent.FindView(nullptr), nullptr);
}


TEST(ViewTree, DeletesItsChildren)
{
	Calls calls;
	HookView* parent = new HookView("parent", calls);
	parent->AddChild(new HookView("child", calls));
	delete parent;
	EXPECT_EQ(calls, (Calls{"deleted parent", "deleted child"}));
}


TEST(ViewTree, IndexesStayRightWhenChildrenComeAndGo)
{
	BView parent(BRect(), "parent", B_FOLLOW_NONE, 0);
	std::vector<BView*> expected;
	for (int index = 0; index < 20; index++) {
		expected.push_back(new BView(BRect(), "child", B_FOLLOW_NONE, 0));
		parent.AddChild(expected.back());
	}
	for (int round = 0; round < 15; round++) {
		const size_t at = static_cast<size_t>(round * 7) % expected.size();
		EXPECT_EQ(parent.ChildAt(static_cast<int32>(at)), expected[at]);
		BView* moved = expected[at];
		parent.RemoveChild(moved);
		expected.erase(expected.begin() + static_cast<long>(at));
		for (size_t index = 0; index < expected.size(); index++)
			ASSERT_EQ(parent.ChildAt(static_cast<int32>(index)), expected[index]);
		if (round % 2 == 0) {
			parent.AddChild(moved, expected[2]);
			expected.insert(expected.begin() + 2, moved);
		} else
			delete moved;
	}
}


TEST(ViewAttach, ParentsComeFirstAndAllAttachedLast)
{
	Calls calls;
	{
		RecordingHost host;
		HookView* parent = new HookView("parent", calls);
		HookView* child = new HookView("child", calls);
		parent->AddChild(child);
		EXPECT_TRUE(calls.empty());
		host.root->AddChild(parent);
		EXPECT_EQ(calls,
			(Calls{"attached parent", "attached child", "all attached child",
				"all attached parent"}));
		EXPECT_EQ(parent->Parent(), nullptr);
		EXPECT_EQ(child->Parent(), parent);

		calls.clear();
		parent->RemoveSelf();
		EXPECT_EQ(calls,
			(Calls{"detached parent", "detached child", "all detached child",
				"all detached parent"}));
		EXPECT_EQ(host.detached, (std::vector<BView*>{parent, child}));

		calls.clear();
		host.root->AddChild(parent);
		calls.clear();
	}
	// A host that goes detaches first and deletes then.
	EXPECT_EQ(calls,
		(Calls{"detached parent", "detached child", "all detached child", "all detached parent",
			"deleted parent", "deleted child"}));
}


TEST(ViewAttach, ChildAddedByAHookIsAttachedOnce)
{
	class Adding : public BView {
	public:
		explicit Adding(Calls& calls)
			:
			BView(BRect(0, 0, 9, 9), "adding", B_FOLLOW_NONE, 0),
			fCalls(calls)
		{
		}

		void AttachedToWindow() override { AddChild(new HookView("added", fCalls)); }

	private:
		Calls& fCalls;
	};

	Calls calls;
	RecordingHost host;
	host.root->AddChild(new Adding(calls));
	EXPECT_EQ(calls, (Calls{"attached added", "all attached added"}));
}


TEST(ViewFocus, IsOneViewsAndGoesWithIt)
{
	RecordingHost host;
	BView* first = new BView(BRect(0, 0, 9, 9), "first", B_FOLLOW_NONE, 0);
	BView* second = new BView(BRect(0, 0, 9, 9), "second", B_FOLLOW_NONE, 0);
	first->MakeFocus();
	EXPECT_FALSE(first->IsFocus());
	host.root->AddChild(first);
	first->AddChild(second);
	first->MakeFocus();
	EXPECT_TRUE(first->IsFocus());
	second->MakeFocus();
	EXPECT_FALSE(first->IsFocus());
	EXPECT_EQ(hosted::FocusView(*host.root), second);
	first->MakeFocus(false);
	EXPECT_TRUE(second->IsFocus());
	host.focusChanges.clear();
	first->RemoveSelf();
	EXPECT_EQ(hosted::FocusView(*host.root), nullptr);
	EXPECT_EQ(host.focusChanges, std::vector<BView*>{nullptr});
	EXPECT_FALSE(second->IsFocus());
	delete first;
}


TEST(ViewPulse, GoesToThoseThatWantIt)
{
	Calls calls;
	RecordingHost host;
	HookView* parent = new HookView("parent", calls, B_PULSE_NEEDED);
	parent->AddChild(new HookView("deaf", calls));
	parent->AddChild(new HookView("child", calls, B_PULSE_NEEDED));
	host.root->AddChild(parent);
	EXPECT_EQ(host.pulsesNeeded, 2);
	parent->Hide();
	calls.clear();
	hosted::PulseViews(*host.root);
	EXPECT_EQ(calls, (Calls{"pulse parent", "pulse child"}));
	parent->ChildAt(0)->SetFlags(B_PULSE_NEEDED);
	EXPECT_EQ(host.pulsesNeeded, 3);
	calls.clear();
	hosted::ActivateViews(*host.root, true);
	EXPECT_EQ(calls, (Calls{"active parent", "active deaf", "active child"}));
}


TEST(ViewPulse, SurvivesViewsThatRemoveEachOther)
{
	class Removing : public BView {
	public:
		Removing()
			:
			BView(BRect(0, 0, 9, 9), "removing", B_FOLLOW_NONE, B_PULSE_NEEDED)
		{
		}

		void Pulse() override
		{
			BView* next = NextSibling();
			if (next == nullptr)
				return;
			next->RemoveSelf();
			delete next;
		}
	};

	RecordingHost host;
	for (int index = 0; index < 4; index++)
		host.root->AddChild(new Removing);
	hosted::PulseViews(*host.root);
	EXPECT_EQ(host.root->CountChildren(), 2);
}


TEST(NavigableViews, AreTheVisibleOnesInOrder)
{
	RecordingHost host;
	BView* first = new BView(BRect(0, 0, 9, 9), "first", B_FOLLOW_NONE, B_NAVIGABLE);
	BView* second = new BView(BRect(0, 0, 9, 9), "second", B_FOLLOW_NONE, 0);
	BView* third = new BView(BRect(0, 0, 9, 9), "third", B_FOLLOW_NONE, B_NAVIGABLE);
	BView* hidden = new BView(BRect(0, 0, 9, 9), "hidden", B_FOLLOW_NONE, B_NAVIGABLE);
	host.root->AddChild(first);
	host.root->AddChild(second);
	second->AddChild(third);
	second->AddChild(hidden);
	hidden->Hide();
	EXPECT_EQ(hosted::NavigableViews(*host.root), (std::vector<BView*>{first, third}));
}
