// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Settings that somebody has damaged, or that another desktop has left: the window can be seen and
// used.
#include <limits>
#include <string>
#include <vector>

#include <stdint.h>

#include <Autolock.h>
#include <List.h>
#include <Screen.h>

#include "listview/MxView.h"
#include "settings/Prefs.h"
#include "tests/window/MediaWindowFixture.h"
#include "window/MediaWindow.h"


namespace {

class DamagedSettings : public MediaWindowFixture {
protected:
	Prefs& Settings() { return *Prefs::getSTPrefs(); }

	// The frame of a window that is made with this one kept.
	BRect FrameAfter(BRect kept)
	{
		CloseWindow();
		Settings().prefs_window_rect = kept;
		return Window().Frame();
	}
};


constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kHuge = 1e30f;

} // namespace


TEST_F(DamagedSettings, WindowIsNeverPlacedWhereItCannotBeSeen)
{
	const BRect screen = BScreen().Frame();
	ASSERT_TRUE(screen.IsValid());
	const std::vector<BRect> kept = {
		// Another screen was there: to the right, above, below, to the left.
		BRect(screen.right + 200, 100, screen.right + 900, 500),
		BRect(100, -1200, 800, -800),
		BRect(100, screen.bottom + 1, 800, screen.bottom + 401),
		BRect(-3000, 100, -2300, 500),
		// Only an edge or a corner is left of it.
		BRect(screen.right - 5, 100, screen.right + 695, 500),
		BRect(100, screen.bottom - 10, 800, screen.bottom + 390),
		BRect(-700, -400, 8, 9),
		// No frames at all.
		BRect(kNan, kNan, kNan, kNan),
		BRect(60, kNan, 760, 300),
		BRect(-kInfinity, -kInfinity, kInfinity, kInfinity),
		BRect(-kHuge, -kHuge, kHuge, kHuge),
		BRect(kHuge, kHuge, kHuge, kHuge),
		BRect(760, 300, 60, 100),
		BRect(),
	};
	for (const BRect& rect : kept) {
		const BRect frame = FrameAfter(rect);
		const BRect seen = frame & screen;
		ASSERT_TRUE(seen.IsValid()) << rect.left << " " << rect.top << ": " << frame.left;
		EXPECT_GE(seen.Width(), 32) << rect.left << " " << rect.top;
		EXPECT_GE(seen.Height(), 32) << rect.left << " " << rect.top;
		EXPECT_GE(frame.Width(), 600);
		EXPECT_LE(frame.Width(), 1240);
		EXPECT_GE(frame.Height(), 382);
		EXPECT_LE(frame.Height(), 1024);
	}
}


TEST_F(DamagedSettings, WindowThatIsMovedIntoViewKeepsItsSizeAndHasRoomForItsTab)
{
	const BRect screen = BScreen().Frame();
	const BRect frame = FrameAfter(BRect(5000, 4000, 5650, 4400));
	EXPECT_EQ(frame.Width(), 650);
	EXPECT_EQ(frame.Height(), 400);
	EXPECT_GE(frame.left, screen.left);
	EXPECT_GE(frame.top, screen.top + 20);
	EXPECT_LE(frame.bottom, screen.bottom);
}


TEST_F(DamagedSettings, WindowThatIsPartlySeenStaysWhereItWas)
{
	const BRect screen = BScreen().Frame();
	const BRect beyondTheEdge(screen.right - 300, 100, screen.right + 400, 500);
	EXPECT_EQ(FrameAfter(beyondTheEdge), beyondTheEdge);
	EXPECT_EQ(FrameAfter(BRect(-500, 100, 200, 500)), BRect(-500, 100, 200, 500));
}


TEST_F(DamagedSettings, AnyPlayPositionStartsAndPlays)
{
	Paths titles;
	for (int number = 0; number < 5; number++)
		titles.push_back(MakeTitle(std::to_string(number) + ".mp3"));
	WritePlaylist(titles);
	for (const int32 position :
		{int32(2000000000), INT32_MAX, int32(-2000000000), INT32_MIN, int32(-1), int32(5)}) {
		CloseWindow();
		Settings().last_top_media = position;
		Settings().last_top_media_buf = 0;
		ASSERT_EQ(Window().mflist->CountItems(), 5) << position;
		const BAutolock lock(&Window());
		MxView& list = *Window().fListView;
		EXPECT_GE(list.CountChildren(), 1) << position;
		list.CenterMediaFile(position, false, 0);
		list.CenterMediaFile(position, true, 1);
		Play(position);
		// Whatever was asked for before, a title of the list plays.
		Play(2);
		EXPECT_EQ(list.centeredIndex, 2) << position;
	}
}


TEST_F(DamagedSettings, AnyTileSizeIsTheLargest)
{
	for (const int32 size : {int32(2000000000), INT32_MIN, int32(0)}) {
		CloseWindow();
		Settings().LINK_SIZE = size;
		EXPECT_EQ(Window().fListView->tileSize, 114) << size;
	}
}
