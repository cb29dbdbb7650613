// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Bitmap.h>
#include <InterfaceDefs.h>

#include "tests/listview/ListViewFixture.h"
#include "tests/support/Output.h"


namespace {

constexpr rgb_color kTrack = {240, 240, 240, 255};
constexpr rgb_color kRest = {30, 20, 30, 255};
constexpr rgb_color kEdge = {12, 12, 12, 255};


// The bar of a view of 1001 x 701 pixels: its track is (987, 12) to (993, 688).
class MxViewTimeBar : public ListViewFixture {
protected:
	void SetUp() override { MakePicture(); }

	void ShowRest(double ratio)
	{
		Redraw();
		fView->playLength = 100000000;
		fView->playEnd = sNow + static_cast<bigtime_t>(fView->playLength * ratio);
		fView->Pulse();
		fView->Sync();
	}

	bool IsShown() { return At(990, 688) != kUntouched; }

	// The first row of what remains; 689 when nothing does.
	int RestTop()
	{
		int top = 689;
		while (top > 0 && At(990, top - 1) == kRest)
			top--;
		return top;
	}
};

} // namespace


TEST_F(MxViewTimeBar, RestIsMeasuredAgainstTheHeightLess30)
{
	ShowRest(0.5);
	EXPECT_EQ(RestTop(), 353);
	// The edge rounds the corners.
	EXPECT_EQ(Count(BRect(987, 353, 993, 685), kRest), 7 * 333);
	EXPECT_EQ(Count(BRect(987, 15, 993, 352), kTrack), 7 * 338);
	ShowRest(0.25);
	EXPECT_EQ(RestTop(), 520);
	ShowRest(0.1);
	EXPECT_EQ(RestTop(), 621);
	ShowRest(0.999);
	EXPECT_EQ(RestTop(), 18);
	ShowRest(0);
	EXPECT_EQ(RestTop(), 688);
}


TEST_F(MxViewTimeBar, ItIsEdged)
{
	ShowRest(0.5);
	EXPECT_EQ(Count(BRect(986, 20, 986, 680), kEdge), 661);
	EXPECT_EQ(Count(BRect(994, 20, 994, 680), kEdge), 661);
	EXPECT_EQ(At(990, 11), kEdge);
	EXPECT_EQ(At(990, 689), kEdge);
	EXPECT_EQ(At(995, 300), tint_color(kTrack, 1.555f));
	EXPECT_EQ(At(996, 300), tint_color(kTrack, 1.295f));
	EXPECT_EQ(At(990, 690), tint_color(kTrack, 1.555f));
	EXPECT_EQ(At(990, 691), tint_color(kTrack, 1.295f));
	EXPECT_EQ(At(985, 300), kUntouched);
	EXPECT_EQ(At(997, 300), kUntouched);
	EXPECT_EQ(At(990, 10), kUntouched);
	EXPECT_EQ(At(990, 692), kUntouched);
}


TEST_F(MxViewTimeBar, FullTimeIsNotDrawn)
{
	ShowRest(1);
	EXPECT_FALSE(IsShown());
	// A clock that was set back.
	ShowRest(1.5);
	EXPECT_FALSE(IsShown());
}


TEST_F(MxViewTimeBar, IsEmptyAfterTheEnd)
{
	for (const double ratio : {-0.01, -0.5, -1.0, -1000.0, -80000000000.0}) {
		// A machine that slept, and a clock that is far ahead.
		sNow = 2000000000 - static_cast<bigtime_t>(100000000 * ratio);
		ShowRest(ratio);
		EXPECT_TRUE(IsShown()) << ratio;
		EXPECT_EQ(Count(BRect(980, 0, 1000, 700), kRest), 0) << ratio;
		EXPECT_EQ(At(990, 689), kEdge) << ratio;
	}
}


TEST_F(MxViewTimeBar, IsNotDrawnWithoutTiming)
{
	Redraw();
	fView->playLength = 499;
	fView->playEnd = sNow;
	const std::string output = test::OutputOf([this] { fView->Pulse(); });
	EXPECT_EQ(output, " xRTime 499 stop.. \n");
	EXPECT_FALSE(IsShown());

	fView->playLength = 500;
	fView->playEnd = 500;
	EXPECT_EQ(test::OutputOf([this] { fView->Pulse(); }), "");
	EXPECT_FALSE(IsShown());

	fView->playEnd = 501;
	fView->Pulse();
	fView->Sync();
	EXPECT_TRUE(IsShown());
}
