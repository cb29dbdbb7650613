// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <AppDefs.h>

#include "entryview/MEView.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"


namespace {

constexpr int kCount = 100;
constexpr int kLast = kCount - 1;


class MxViewTileFiles : public ListViewFixture {
protected:
	void SetUp() override
	{
		AddTitles(kCount, "01:00");
		MakeView();
		// The window may have handled messages before it was locked.
		fView->ChildsFromList(false);
	}

	// Lets the window handle its messages until the tile has read its file.
	bool WaitForTile(int32 index)
	{
		return test::WaitFor([this, index]() {
			SendToView(BMessage(B_MOUSE_WHEEL_CHANGED));
			return Tile(index)->fLookedForIcon;
		});
	}
};

} // namespace


TEST_F(MxViewTileFiles, AreReadAtOnceWhereTilesAreSeenAndLaterElsewhere)
{
	for (int32 index : ShownTiles())
		EXPECT_EQ(Tile(index)->fLengthCode, 100) << index;
	EXPECT_FALSE(Tile(kLast)->fLookedForIcon);
	EXPECT_TRUE(WaitForTile(kLast));
	for (int32 index = 0; index < kCount; index++)
		EXPECT_EQ(Tile(index)->fLengthCode, 100) << index;
}


TEST_F(MxViewTileFiles, AreReadWhereTheUserGoes)
{
	fView->CenterMediaFile(60, false, 0);
	for (int32 index : ShownTiles())
		EXPECT_EQ(Tile(index)->fLengthCode, 100) << index;
	EXPECT_FALSE(Tile(kLast)->fLookedForIcon);
}


TEST_F(MxViewTileFiles, AreReadBeforeATitleIsTimed)
{
	fView->CenterMediaFile(kLast, true, 0);
	EXPECT_NEAR(fView->playLength, 61200000, 100);
}


TEST_F(MxViewTileFiles, AreAllReadBeforeTheirTimesAreAdded)
{
	fView->nextIndex = 0;
	const std::string output = test::OutputOf([this]() { fView->CalcContinousPlaytime(); });
	EXPECT_NE(output.find("   102.00 Times"), std::string::npos) << output;
}


TEST_F(MxViewTileFiles, AreReadOfTilesThatAreMadeAnewMeanwhile)
{
	fView->ChildsFromList(false);
	EXPECT_FALSE(Tile(kLast)->fLookedForIcon);
	EXPECT_TRUE(WaitForTile(kLast));
	fView->ChildsFromList(false);
	EXPECT_FALSE(Tile(kLast)->fLookedForIcon);
	EXPECT_TRUE(WaitForTile(kLast));
}
