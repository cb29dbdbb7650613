// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <OS.h>

#include "entryview/MEView.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"
#include "window/WindowCommands.h"

#include <QImage>


namespace {

constexpr bigtime_t kSecond = 1000000;

using Numbers = std::vector<int32>;


class MxViewPlayback : public ListViewFixture {
protected:
	Prefs& Settings() { return *Prefs::getSTPrefs(); }

	// The numbers of the titles that the window was asked to play.
	Numbers Asked()
	{
		Numbers numbers;
		for (const BMessage& message : Received(kMsgPlayTitle))
			numbers.push_back(message.GetInt32("ml_nr", -100));
		return numbers;
	}

	// The tiles that the distance to the target has placed.
	Numbers Placed()
	{
		Numbers placed;
		for (int32 index = 0; index < fView->CountChildren(); index++) {
			if (fView->ChildAt(index)->Frame().top != -(fView->tileSize + 10))
				placed.push_back(index);
		}
		return placed;
	}
};

} // namespace


TEST_F(MxViewPlayback, ThreeMinutesSevenEndAfter188Seconds)
{
	AddTitle("Title.mp3", "03:07");
	MakeView();
	EXPECT_NEAR(Tile(0)->fLength, 3.1367, 0.0001);
	fView->CenterMediaFile(0, true, 0);
	EXPECT_NEAR(fView->playLength, 188200000, 20);
	EXPECT_EQ(fView->playEnd, sNow + fView->playLength);

	sNow += 188190000;
	fView->Pulse();
	EXPECT_TRUE(Asked().empty());
	sNow += 20000;
	fView->Pulse();
	EXPECT_EQ(Asked(), (Numbers{1}));
}


TEST_F(MxViewPlayback, StartingTakesOverWhatIsPlayed)
{
	AddAlbum("album", {1, 2, 3, 255});
	AddTitles(3, "00:30");
	AddTitle("album/Song.mp3", "01:00");
	MakeView();
	Tile(3)->fArtist = "Somebody";
	const std::string output = test::OutputOf([this] { fView->CenterMediaFile(3, true, 0); });
	EXPECT_NE(output.find(" playing start  | next-timer  \n"), std::string::npos);
	EXPECT_EQ(MEView::IsSelected, 3);
	EXPECT_EQ(MEView::IsNext, 3);
	EXPECT_EQ(fView->imageIndex, 0);
	EXPECT_EQ(fView->centeredIndex, 3);
	EXPECT_EQ(fView->nextIndex, 3);
	EXPECT_EQ(Settings().last_timer_nr, 3);
	EXPECT_EQ(Settings().last_top_media, 3);
	EXPECT_EQ(Settings().next_top_media, 4);
	EXPECT_EQ(Settings().playingImage, 0);
	EXPECT_EQ(Settings().playingArtist, "Somebody");
	EXPECT_EQ(Settings().playingTitle, "Song");
}


TEST_F(MxViewPlayback, ShowingATitleTimesNothing)
{
	AddTitles(3, "00:30");
	MakeView();
	Settings().playingTitle = "before";
	MEView::IsSelected = 77;
	fView->CenterMediaFile(2, false, 0);
	EXPECT_EQ(fView->centeredIndex, 2);
	EXPECT_EQ(fView->playEnd, 0);
	EXPECT_EQ(MEView::IsSelected, 77);
	EXPECT_EQ(Settings().playingTitle, "before");
	EXPECT_EQ(Settings().last_timer_nr, -1);
	// The next-mark goes with it.
	EXPECT_EQ(fView->nextIndex, 2);
	EXPECT_EQ(Settings().next_top_media, 2);
}


TEST_F(MxViewPlayback, SameTitleKeepsItsEnd)
{
	AddTitles(3, "00:30");
	MakeView();
	fView->CenterMediaFile(1, true, 0);
	const bigtime_t end = fView->playEnd;
	sNow += 10 * kSecond;
	const std::string output = test::OutputOf([this] { fView->CenterMediaFile(1, true, 0); });
	EXPECT_NE(output.find(" | same play "), std::string::npos);
	EXPECT_EQ(fView->playEnd, end);
	EXPECT_EQ(Settings().last_timer_nr, 1);

	// Another one is timed anew, and so is the first after it.
	fView->CenterMediaFile(2, true, 0);
	EXPECT_GT(fView->playEnd, end);
	sNow += kSecond;
	const bigtime_t second = fView->playEnd;
	fView->CenterMediaFile(1, true, 0);
	EXPECT_GT(fView->playEnd, second);
}


TEST_F(MxViewPlayback, TitleWithoutALengthEndsTheTiming)
{
	AddTitle("Timed.mp3", "00:30");
	AddTitle("Untimed.mp3");
	MakeView();
	fView->CenterMediaFile(0, true, 0);
	fView->CenterMediaFile(1, true, 0);
	EXPECT_EQ(fView->playEnd, 0);
	// What the settings say of the playing title stays with the timed one.
	EXPECT_EQ(Settings().last_top_media, 0);
	EXPECT_EQ(Settings().last_timer_nr, 0);
	EXPECT_EQ(MEView::IsSelected, 1);
	sNow += 3600 * kSecond;
	EXPECT_EQ(test::OutputOf([this] { fView->Pulse(); }), "");
	EXPECT_TRUE(Asked().empty());
}


TEST_F(MxViewPlayback, LimitOfTimingIsNotTimed)
{
	AddTitles(2);
	MakeView();
	Tile(1)->fLength = 0.03f;
	fView->CenterMediaFile(1, true, 0);
	EXPECT_EQ(fView->playEnd, 0);
	Tile(1)->fLength = 0.031f;
	fView->CenterMediaFile(1, true, 0);
	EXPECT_NEAR(fView->playEnd - sNow, 1860000, 1);
}


TEST_F(MxViewPlayback, WithoutALengthEachPulseSaysSo)
{
	MakeView();
	for (int pulse = 0; pulse < 3; pulse++)
		EXPECT_EQ(test::OutputOf([this] { fView->Pulse(); }), " xRTime 0 stop.. \n");
	EXPECT_EQ(fView->lastBounds, fView->Bounds());
}


TEST_F(MxViewPlayback, NextIsAskedForWithEachPulseUntilItPlays)
{
	AddTitles(3, "00:30");
	MakeView();
	fView->CenterMediaFile(0, true, 0);
	sNow += 29 * kSecond;
	fView->Pulse();
	EXPECT_TRUE(Asked().empty());
	sNow += 3 * kSecond;
	const std::string output = test::OutputOf([this] {
		fView->Pulse();
		fView->Pulse();
	});
	EXPECT_EQ(output, " NEXT SONG NR: 1 \n NEXT SONG NR: 1 \n");
	EXPECT_EQ(Asked(), (Numbers{1, 1}));
	fView->CenterMediaFile(1, true, 0);
	fView->Pulse();
	EXPECT_EQ(Asked().size(), 2u);
}


TEST_F(MxViewPlayback, EndItselfIsNotOver)
{
	AddTitles(3, "00:30");
	MakeView();
	fView->CenterMediaFile(0, true, 0);
	sNow = fView->playEnd;
	fView->Pulse();
	EXPECT_TRUE(Asked().empty());
	sNow++;
	fView->Pulse();
	EXPECT_EQ(Asked(), (Numbers{1}));
}


TEST_F(MxViewPlayback, AfterTheLastTitleTheWindowDecides)
{
	AddTitles(3, "00:30");
	MakeView();
	fView->CenterMediaFile(2, true, 0);
	sNow += 60 * kSecond;
	fView->Pulse();
	EXPECT_EQ(Asked(), (Numbers{3}));
}


TEST_F(MxViewPlayback, FirstTitleNeverStartsByItself)
{
	AddTitles(3, "00:30");
	MakeView();
	fView->CenterMediaFile(2, true, 0);
	fView->CenterMediaFile(0, false, 0);
	EXPECT_EQ(Settings().next_top_media, 0);
	sNow += 60 * kSecond;
	fView->Pulse();
	EXPECT_TRUE(Asked().empty());
}


TEST_F(MxViewPlayback, MachineThatSleptAsksOnceForTheNext)
{
	AddTitles(5, "03:07");
	MakeView();
	fView->CenterMediaFile(1, true, 0);
	sNow += 8 * 3600 * kSecond;
	fView->Pulse();
	ASSERT_EQ(Asked(), (Numbers{2}));
	// The titles that would have been over are not caught up with.
	fView->CenterMediaFile(2, true, 0);
	fView->Pulse();
	EXPECT_EQ(Asked().size(), 1u);
	EXPECT_EQ(fView->playEnd, sNow + fView->playLength);
}


TEST_F(MxViewPlayback, ClockFarAheadIsNoTrouble)
{
	sNow = INT64_MAX - 1000 * kSecond;
	AddTitles(3, "03:07");
	MakeView();
	fView->CenterMediaFile(1, true, 0);
	EXPECT_GT(fView->playEnd, sNow);
	sNow += 100 * kSecond;
	fView->Pulse();
	EXPECT_TRUE(Asked().empty());
	sNow += 89 * kSecond;
	fView->Pulse();
	EXPECT_EQ(Asked(), (Numbers{2}));
}


TEST_F(MxViewPlayback, ClockThatWasSetBackWaits)
{
	AddTitles(3, "03:07");
	MakeView();
	fView->CenterMediaFile(1, true, 0);
	sNow -= 500 * kSecond;
	fView->Pulse();
	EXPECT_TRUE(Asked().empty());
}


TEST_F(MxViewPlayback, RealClockEndsATitleOfSeconds)
{
	AddTitle("First.mp3", "00:01");
	AddTitle("Second.mp3", "00:01");
	MakeView();
	fView->clock = system_time;
	const bigtime_t begin = system_time();
	fView->CenterMediaFile(0, true, 0);
	while (Asked().empty() && system_time() < begin + 20 * kSecond) {
		snooze(20000);
		fView->Pulse();
	}
	EXPECT_EQ(Asked().front(), 1);
	EXPECT_GE(system_time(), begin + 2200000);
}


TEST_F(MxViewPlayback, OneTitleMarksOnePastTheEnd)
{
	AddTitle("Only.mp3", "00:30");
	MakeView();
	MEView::IsNext = -5;
	fView->CenterMediaFile(0, false, 1);
	EXPECT_EQ(MEView::IsNext, 0);
	EXPECT_EQ(fView->nextIndex, 0);
	EXPECT_EQ(Settings().next_top_media, 1);
}


TEST_F(MxViewPlayback, StepsMoveTheMarkOnly)
{
	AddTitles(5, "00:30");
	MakeView();
	fView->CenterMediaFile(1, true, 0);
	fView->CenterMediaFile(1, false, 2);
	EXPECT_EQ(MEView::IsNext, 3);
	EXPECT_EQ(MEView::IsSelected, 1);
	EXPECT_EQ(fView->nextIndex, 3);
	EXPECT_EQ(fView->centeredIndex, 1);
	EXPECT_EQ(Settings().next_top_media, 3);
	// The marked tile stands in the middle.
	EXPECT_EQ(Tile(3)->Frame().top, 288);
	fView->CenterMediaFile(3, false, -2);
	EXPECT_EQ(MEView::IsNext, 1);
	EXPECT_EQ(Settings().next_top_media, 2);
}


TEST_F(MxViewPlayback, OfTwentyTitlesThirteenArePlaced)
{
	AddTitles(20);
	Settings().LINK_SIZE = 5;
	MakeView(1000, 700);
	fView->CenterMediaFile(10, false, 0);
	EXPECT_EQ(Placed(), (Numbers{4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
	EXPECT_EQ(fView->visibleCount, 12);
	EXPECT_EQ(Tile(3)->Frame().top, -58);
	EXPECT_EQ(Tile(17)->Frame().top, -58);
	EXPECT_EQ(Tile(3)->Frame().left, 485);
	// One tile and one gap apart.
	EXPECT_EQ(Tile(11)->Frame().top - Tile(10)->Frame().top, 53);
	EXPECT_EQ(Tile(10)->Frame().top, 350 - 29);
}


TEST_F(MxViewPlayback, OnlyWholeTilesAreShown)
{
	AddTitles(20);
	MakeView(1000, 400);
	fView->CenterMediaFile(10, false, 0);
	// The neighbors begin at 19 and 257; the ones beyond would cross the edges.
	EXPECT_EQ(ShownTiles(), (Numbers{9, 10, 11}));
	EXPECT_EQ(Tile(8)->Frame().bottom, -10);
	EXPECT_EQ(fView->visibleCount, 12);
}


TEST_F(MxViewPlayback, IndexWithoutATileStartsNothing)
{
	AddTitles(3, "00:30");
	MakeView();
	for (const long index : {-1L, 3L, 100L}) {
		fView->CenterMediaFile(index, true, 0);
		EXPECT_EQ(fView->playEnd, 0) << index;
		EXPECT_EQ(fView->centeredIndex, 0) << index;
		EXPECT_EQ(fView->nextIndex, index) << index;
	}
	// Laid out relative to the index that is not there.
	fView->CenterMediaFile(3, true, 0);
	EXPECT_EQ(Tile(2)->Frame().top, 288 - 119);
}


TEST_F(MxViewPlayback, StepFromAnIndexWithoutATileMarksNoTile)
{
	AddTitles(3, "00:30");
	MakeView();
	MEView::IsNext = 77;
	fView->CenterMediaFile(-1, false, 2);
	EXPECT_EQ(MEView::IsNext, 77);
	EXPECT_EQ(fView->nextIndex, 1);
	EXPECT_EQ(Settings().next_top_media, 1);
}


TEST_F(MxViewPlayback, LargestIndexHasNoNext)
{
	AddTitles(3, "00:30");
	MakeView();
	Settings().last_top_media = INT32_MAX;
	fView->CenterMediaFile(INT32_MAX, false, 0);
	EXPECT_EQ(Settings().next_top_media, INT32_MAX);
}


TEST_F(MxViewPlayback, TilesStandAtTheColumnsLeft)
{
	AddTitles(20);
	MakeView();
	fView->tileLeft = 300;
	fView->CenterMediaFile(10, false, 0);
	for (int32 index = 0; index < 20; index++)
		EXPECT_EQ(Tile(index)->Frame().left, 300) << index;
}


TEST_F(MxViewPlayback, TileThatStaysInItsPlaceIsDrawnAnew)
{
	AddTitles(2, "00:30");
	MakeView();
	fView->CenterMediaFile(1, false, 0);
	fWindow->Unlock();
	fWindow->Show();
	test::Settle(fWindow);
	const auto fill = [this] { return test::PictureOf(fWindow).pixel(800, 300); };
	EXPECT_EQ(fill(), qRgb(240, 240, 240));
	fWindow->Lock();
	fView->CenterMediaFile(1, true, 0);
	fWindow->Unlock();
	test::Settle(fWindow);
	EXPECT_EQ(fill(), qRgb(250, 250, 150));
	fWindow->Lock();
}


TEST_F(MxViewPlayback, WithoutTilesNothingChanges)
{
	MakeView();
	fView->nextIndex = 4;
	fView->visibleCount = 5;
	Settings().next_top_media = 9;
	const std::string output = test::OutputOf([this] { fView->CenterMediaFile(0, true, 1); });
	EXPECT_EQ(output, "no childs..\n");
	EXPECT_EQ(fView->nextIndex, 4);
	EXPECT_EQ(fView->visibleCount, 5);
	EXPECT_EQ(Settings().next_top_media, 9);
}


TEST_F(MxViewPlayback, SumOfPlayTimesEndsAtATitleWithoutOne)
{
	AddTitle("One.mp3", "10:00");
	AddTitle("Two.mp3", "01:00");
	AddTitle("Three.mp3", "02:30");
	AddTitle("Four.mp3");
	AddTitle("Five.mp3", "20:00");
	MakeView();
	fView->nextIndex = 1;
	const auto sum = [this] { return test::OutputOf([this] { fView->CalcContinousPlaytime(); }); };
	EXPECT_EQ(sum(), " CalcContinousPlaytime:\t  ab 1|     3.54 Times \n");
	// A time of exactly the limit counts.
	Tile(3)->fLength = 0.03f;
	EXPECT_EQ(sum(), " CalcContinousPlaytime:\t  ab 1|    23.59 Times \n");
	fView->nextIndex = 4;
	EXPECT_EQ(sum(), " CalcContinousPlaytime:\t  ab 4|    20.02 Times \n");
	fView->nextIndex = 9;
	EXPECT_EQ(sum(), " CalcContinousPlaytime:\t  ab 9|     0.00 Times \n");
	// What is no tile is passed over.
	fView->AddChild(new BView(BRect(0, 0, 1, 1), "other", B_FOLLOW_NONE, 0), Tile(0));
	fView->nextIndex = 0;
	EXPECT_EQ(sum(), " CalcContinousPlaytime:\t  ab 0|    33.61 Times \n");
}
