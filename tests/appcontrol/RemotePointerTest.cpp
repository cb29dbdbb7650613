// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <math.h>
#include <thread>

#include <InterfaceDefs.h>
#include <StringView.h>
#include <Window.h>
#include <WindowScreen.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"

using test::Lines;
using test::OutputOf;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

constexpr char kOther[] = "application/x-vnd.other";

class RemotePointerTest : public RemoteTest {
protected:
	static std::string Move(BPoint where, long key, BView* view = nullptr,
		BStringView* name = nullptr, BWindow* window = nullptr)
	{
		return OutputOf([=] { IMoveMouse(where, key, view, name, window); });
	}

	static BPoint Pointer()
	{
		BPoint where;
		get_mouse(&where, nullptr);
		return where;
	}
};

} // namespace


TEST_F(RemotePointerTest, WindowsMoveBySteps)
{
	BWindow* const window = new BWindow(BRect(200, 200, 299, 299), "own", B_TITLED_WINDOW, 0);
	window->Show();
	const std::pair<long, BPoint> steps[]
		= {{0x40, BPoint(200, 180)}, {0x3F, BPoint(200, 200)}, {0x5B, BPoint(180, 200)},
			{0x5F, BPoint(200, 200)}, {0x3E, BPoint(200, 300)}, {0x3D, BPoint(200, 200)}};
	for (const auto& [key, place] : steps) {
		const long number = key;
		EXPECT_EQ(OutputOf([=] { IMoveWindow(number, window); }), "");
		ASSERT_TRUE(window->Lock());
		EXPECT_EQ(window->Frame().LeftTop(), place) << number;
		EXPECT_EQ(window->CountLocks(), 1);
		window->Unlock();
	}
	EXPECT_EQ(OutputOf([=] { IMoveWindow(0x99, window); }), "Mouse-oops\n");
	test::CloseWindow(window);
	EXPECT_EQ(OutputOf([] { IMoveWindow(0x40, nullptr); }), "Mouse-oops\n");
}


TEST_F(RemotePointerTest, WindowThatStaysLockedIsGivenUp)
{
	BWindow* const window = new BWindow(BRect(200, 200, 299, 299), "own", B_TITLED_WINDOW, 0);
	window->Show();
	ASSERT_TRUE(window->Lock());
	std::string output;
	const bigtime_t start = system_time();
	std::thread thread([&] { output = OutputOf([=] { IMoveWindow(0x40, window); }); });
	thread.join();
	EXPECT_LT(system_time() - start, 8000000);
	window->Unlock();
	EXPECT_EQ(output, "Mouse-oops\n");
	test::CloseWindow(window);
}


TEST_F(RemotePointerTest, PointerMovesBySteps)
{
	EXPECT_EQ(Move(BPoint(100, 100), 0x5F), "");
	EXPECT_EQ(Pointer(), BPoint(120, 100));
	EXPECT_EQ(Move(Pointer(), 0x40), "");
	EXPECT_EQ(Pointer(), BPoint(120, 80));
	EXPECT_EQ(Move(Pointer(), 0x3E), "");
	EXPECT_EQ(Pointer(), BPoint(120, 180));
	EXPECT_EQ(Move(BPoint(NAN, 100), 0x5F), "Mouse-oops\n");
	EXPECT_EQ(Move(BPoint(100, INFINITY), 0x5F), "Mouse-oops\n");
	EXPECT_EQ(Pointer(), BPoint(120, 180));
	// It stays on the screen.
	EXPECT_EQ(Move(BPoint(5, 5), 0x5B), "");
	EXPECT_EQ(Pointer(), BPoint(0, 5));
}


TEST_F(RemotePointerTest, PointIsTheViewsIfThereIsOne)
{
	BWindow* const window = new BWindow(BRect(300, 200, 399, 299), "own", B_TITLED_WINDOW, 0);
	BView* const view = new BView(BRect(10, 20, 90, 90), "view", B_FOLLOW_NONE, 0);
	window->AddChild(view);
	window->Show();
	EXPECT_EQ(Move(BPoint(200, 200), 0x5F, view), "");
	EXPECT_EQ(Pointer(), BPoint(530, 420));
	test::CloseWindow(window);
}


TEST_F(RemotePointerTest, ClicksGoToTheLastActiveApplication)
{
	ScriptedPlayer other(kOther);
	ASSERT_TRUE(other.IsReady());
	Remember(kOther);
	Move(BPoint(10, 10), 0x5E);
	EXPECT_EQ(other.Take(), (Lines{"press clicks 1 buttons 1", "release clicks 1 buttons 0"}));
	Move(BPoint(10, 10), 0x44);
	EXPECT_EQ(other.Take(), (Lines{"press clicks 2 buttons 1", "release clicks 2 buttons 0"}));
	Move(BPoint(10, 10), 0x60);
	EXPECT_EQ(other.Take(), (Lines{"press clicks 1 buttons 2", "release clicks 1 buttons 0"}));
	// Other keys are the keyboard's.
	Move(BPoint(10, 10), 0x35);
	EXPECT_EQ(other.Take(),
		(Lines{"key 13 char 32 byte 32 bytes '2' modifiers 0 when 1 states 16"}));
}


TEST_F(RemotePointerTest, OwnWindowIsNotClicked)
{
	ScriptedPlayer other(kOther);
	ASSERT_TRUE(other.IsReady());
	Remember(kOther);
	BWindow* const window = new BWindow(BRect(200, 200, 299, 299), "own", B_TITLED_WINDOW, 0);
	window->Show();
	const std::string output = Move(BPoint(250, 250), 0x5E, nullptr, nullptr, window);
	EXPECT_NE(output.find(" no click on myself\n"), std::string::npos) << output;
	EXPECT_EQ(other.Take(), Lines());
	Move(BPoint(310, 250), 0x5E, nullptr, nullptr, window);
	EXPECT_EQ(other.Take().size(), 2u);
	test::CloseWindow(window);
}


TEST_F(RemotePointerTest, ShowsWhatIsInFront)
{
	ScriptedPlayer front(kOther, {"PLAYER_WINDOWS=one"});
	ASSERT_TRUE(front.IsReady());
	ASSERT_TRUE(front.IsActive());
	BStringView name(BRect(0, 0, 99, 19), "name", "nobody");
	Move(BPoint(100, 100), 0x5F, nullptr, &name);
	EXPECT_STREQ(name.Text(), "scripted-player");
}


// Where programs may not move the pointer. Run by the test below.
TEST_F(RemotePointerTest, DISABLED_PointerStaysWhereItIs)
{
	const BPoint before = Pointer();
	const bigtime_t start = system_time();
	EXPECT_EQ(Move(BPoint(100, 100), 0x5F), " the desktop does not let the pointer be moved\n");
	EXPECT_LT(system_time() - start, 5000000);
	EXPECT_EQ(Pointer(), before);
}


TEST_F(RemotePointerTest, SaysSoWhereThePointerCannotBeMoved)
{
	test::Program program({"/proc/self/exe", "--gtest_also_run_disabled_tests",
							  "--gtest_filter=*DISABLED_PointerStaysWhereItIs"},
		{"QT_QPA_PLATFORM=minimal"});
	EXPECT_TRUE(program.WaitForEnd());
	// Some of the lines are empty.
	bool hasPassed = false;
	for (int i = 0; i < 50 && !hasPassed; i++)
		hasPassed = program.ReadLine(std::chrono::milliseconds(50)) == "[  PASSED  ] 1 test.";
	EXPECT_TRUE(hasPassed);
}
