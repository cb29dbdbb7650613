// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Ten thousand views in one parent, most of them parked outside of it.
#include <View.h>

#include "tests/platform/interface/Canvas.h"
#include "tests/platform/interface/RecordingHost.h"

using test::RecordingHost;


namespace {

constexpr int32 kCount = 10000;

class Tile : public BView {
public:
	Tile()
		:
		BView(BRect(0, -60, 99, -9), "tile", B_FOLLOW_NONE, B_WILL_DRAW)
	{
	}

	void Draw(BRect) override
	{
		sDrawn++;
		FillRect(Bounds());
	}

	static int32 sDrawn;
};

int32 Tile::sDrawn = 0;

} // namespace


TEST(ManyViews, OnlyThoseInSightAreDrawn)
{
	RecordingHost host(300, 1000);
	BView* list = new BView(BRect(0, 0, 299, 999), "list", B_FOLLOW_ALL, B_WILL_DRAW);
	host.root->AddChild(list);
	for (int32 index = 0; index < kCount; index++)
		list->AddChild(new Tile);
	ASSERT_EQ(list->CountChildren(), kCount);
	for (int32 index = 0; index < kCount; index++) {
		const bool isShown = index >= 5000 && index < 5013;
		list->ChildAt(index)->MoveTo(0, isShown ? (index - 5000) * 60.0f : -100);
	}

	Tile::sDrawn = 0;
	list->Invalidate();
	host.Update();
	EXPECT_EQ(Tile::sDrawn, 13);
	EXPECT_EQ(host.At(0, 0), 0x000000u);
	EXPECT_EQ(host.At(0, 55), 0xffffffu);

	while (list->CountChildren() > 0) {
		BView* child = list->ChildAt(0);
		child->RemoveSelf();
		delete child;
	}
	list->Invalidate();
	host.Update();
	EXPECT_EQ(Tile::sDrawn, 13);
	EXPECT_EQ(host.At(0, 0), 0xffffffu);
}
