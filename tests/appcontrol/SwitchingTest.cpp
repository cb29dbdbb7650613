// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <algorithm>
#include <string.h>
#include <unistd.h>

#include <List.h>
#include <Roster.h>
#include <StringView.h>
#include <TextView.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"

using test::Lines;
using test::OutputOf;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

constexpr char kTracker[] = "application/x-vnd.Be-TRAK";
// Two time-outs and what a busy machine adds.
constexpr bigtime_t kQuestionLimit = 8000000;

class SwitchingTest : public RemoteTest {
protected:
	static bool Heard(ScriptedPlayer& target, const std::string& line)
	{
		Lines all;
		return test::WaitFor(
			[&] {
				const Lines lines = target.Take();
				all.insert(all.end(), lines.begin(), lines.end());
				return std::find(all.begin(), all.end(), line) != all.end();
			},
			std::chrono::seconds(20));
	}

	static bool HasWindows(size_t count)
	{
		return test::WaitFor([count] { return Titles().size() == count; });
	}

	static Lines Titles()
	{
		BList windows;
		LookForTrackerWins(false, &windows);
		Lines titles;
		for (int32 index = 0; index < windows.CountItems(); index++) {
			RemoteWindow* const window = static_cast<RemoteWindow*>(windows.ItemAt(index));
			titles.push_back(window->title.String());
			EXPECT_TRUE(window->messenger.IsValid());
			delete window;
		}
		return titles;
	}
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(SwitchingTest, WithoutFileManagerThereAreNoWindows)
{
	EXPECT_EQ(Titles(), Lines());
	EXPECT_EQ(OutputOf([] { WinMessengers(); }), " no file manager\n");
	EXPECT_EQ(OutputOf([] { AskTracker4Info(); }), " no file manager\n");
	LookForTrackerWins(true, nullptr);
}


TEST_F(SwitchingTest, FileManagersWindowsAreListed)
{
	ScriptedPlayer tracker(kTracker, {"PLAYER_WINDOWS=home|music"});
	ASSERT_TRUE(tracker.IsReady());
	ASSERT_TRUE(HasWindows(2));
	EXPECT_EQ(Titles(), (Lines{"home", "music"}));

	const std::string team = std::to_string(tracker.Team());
	EXPECT_EQ(OutputOf([] { AskTracker4Info(); }),
		"Messenger: home [Team: " + team + "]\nMessenger: music [Team: " + team + "]\n");
	EXPECT_EQ(OutputOf([] { WinMessengers(); }),
		" messenger [Team: " + team + "] is valid\n messenger [Team: " + team + "] is valid\n");
	BList windows;
	EXPECT_EQ(OutputOf([&] { LookForTrackerWins(true, &windows); }),
		"Window: home\nWindow: music\n");
	for (int32 index = 0; index < windows.CountItems(); index++)
		delete static_cast<RemoteWindow*>(windows.ItemAt(index));
}


TEST_F(SwitchingTest, SilentFileManagerDelaysOnly)
{
	ScriptedPlayer tracker(kTracker, {"PLAYER_WINDOWS=home", "PLAYER_FAULT=silent-windows"});
	ASSERT_TRUE(tracker.IsReady());
	const bigtime_t start = system_time();
	EXPECT_EQ(Titles(), Lines());
	EXPECT_LT(system_time() - start, kQuestionLimit);
}


TEST_F(SwitchingTest, WindowsWithoutEndEnd)
{
	ScriptedPlayer tracker(kTracker, {"PLAYER_WINDOWS=home", "PLAYER_FAULT=endless-windows"});
	ASSERT_TRUE(tracker.IsReady());
	const bigtime_t start = system_time();
	EXPECT_TRUE(HasWindows(1));
	EXPECT_LT(system_time() - start, 25000000);
}


TEST_F(SwitchingTest, AskingForTheWindowsActivatesOneIfWanted)
{
	ScriptedPlayer tracker(kTracker, {"PLAYER_WINDOWS=home|music"});
	ASSERT_TRUE(tracker.IsReady());
	ASSERT_TRUE(HasWindows(2));
	ASSERT_TRUE(Heard(tracker, "window music: active"));
	const std::string output = OutputOf([] { AskTrackerWins(false); });
	EXPECT_TRUE(contains(output, "Team: " + std::to_string(tracker.Team()) + " " + kTracker + "\n"))
		<< output;
	EXPECT_TRUE(contains(output, "Window: home\nWindow: music\n")) << output;
	tracker.Take();
	OutputOf([] { AskTrackerWins(true); });
	EXPECT_TRUE(Heard(tracker, "window home: active"));
}


TEST_F(SwitchingTest, ApplicationIsActivatedByItsSignature)
{
	EXPECT_EQ(OutputOf([] { ActivAppB5("application/x-vnd.nobody"); }),
		" B5M: oops - bad messenger 'application/x-vnd.nobody'\n");
	EXPECT_EQ(OutputOf([] { ActivAppB5(nullptr); }), " B5M: oops - bad messenger ''\n");
	ScriptedPlayer one("application/x-vnd.one", {"PLAYER_WINDOWS=one"});
	ASSERT_TRUE(one.IsReady());
	ASSERT_TRUE(one.IsActive());
	ScriptedPlayer two("application/x-vnd.two", {"PLAYER_WINDOWS=two"});
	ASSERT_TRUE(two.IsReady());
	ASSERT_TRUE(two.IsActive());
	EXPECT_EQ(OutputOf([] { ActivAppB5("application/x-vnd.one"); }), "");
	EXPECT_TRUE(one.IsActive());
}


TEST_F(SwitchingTest, SwitcherGoesRoundAndLists)
{
	ScriptedPlayer one("application/x-vnd.one", {"PLAYER_WINDOWS=one"});
	ASSERT_TRUE(one.IsReady());
	ScriptedPlayer tracker(kTracker, {"PLAYER_WINDOWS=home|music"});
	ASSERT_TRUE(tracker.IsReady());
	ASSERT_TRUE(HasWindows(2));
	// This process, the two programs, and the second one's windows.
	BTextView list(BRect(0, 0, 199, 99), "list", BRect(0, 0, 199, 99), B_FOLLOW_NONE);
	BStringView name(BRect(0, 0, 99, 19), "name", "");
	app_info current;
	current.team = getpid();
	const char* const names[]
		= {"scripted-player", "scripted-player", "home", "music", "appcontrol-tests"};
	for (long index = 0; index < 5; index++) {
		const std::string output = OutputOf([&] { IStrgTab(&name, &current, &list); });
		char line[80];
		snprintf(line, sizeof(line), "Will activate %2ld %s\n", (index + 1) % 5, names[index]);
		EXPECT_EQ(output, line);
		EXPECT_STREQ(name.Text(), names[index]);
		EXPECT_STREQ(list.Text(),
			"appcontrol-tests\nscripted-player\nscripted-player\nhome\nmusic\n");
		if (index == 0) {
			EXPECT_TRUE(one.IsActive());
			EXPECT_EQ(current.team, one.Team());
		}
		if (index == 2) {
			EXPECT_TRUE(Heard(tracker, "window home: active"));
		}
	}
}


TEST_F(SwitchingTest, SwitcherNeedsNoViews)
{
	const std::string output = OutputOf([] { IStrgTab(nullptr, nullptr, nullptr); });
	EXPECT_EQ(output, "Will activate  0 appcontrol-tests\n");
}


TEST_F(SwitchingTest, ServersAreNotSwitchedTo)
{
	for (const char* signature : {"application/x-vnd.some_server", "application/x-vnd.a_daemon",
			 "application/x-vnd.Deskbar", "application/x-vnd.wstitle"}) {
		ScriptedPlayer server(signature);
		ASSERT_TRUE(server.IsReady());
		BTextView list(BRect(0, 0, 199, 99), "list", BRect(0, 0, 199, 99), B_FOLLOW_NONE);
		OutputOf([&] { IStrgTab(nullptr, nullptr, &list); });
		EXPECT_STREQ(list.Text(), "appcontrol-tests\n") << signature;
	}
}


TEST_F(SwitchingTest, FrontWindowIsClosed)
{
	ScriptedPlayer front("application/x-vnd.front", {"PLAYER_WINDOWS=one|two"});
	ASSERT_TRUE(front.IsReady());
	ASSERT_TRUE(front.IsActive());
	ASSERT_TRUE(Heard(front, "window two: active"));
	EXPECT_EQ(OutputOf([] { ICloseThisFAW(); }), "");
	EXPECT_TRUE(Heard(front, "window two: quit"));
	EXPECT_TRUE(front.Process().Id() > 0
		&& !front.Process().WaitForEnd(nullptr, std::chrono::milliseconds(1)));
}


TEST_F(SwitchingTest, WindowsThatDoNotTellDelayOnly)
{
	ScriptedPlayer front("application/x-vnd.front",
		{"PLAYER_WINDOWS=one|two|three|four", "PLAYER_FAULT=silent-active"});
	ASSERT_TRUE(front.IsReady());
	ASSERT_TRUE(front.IsActive());
	ASSERT_TRUE(Heard(front, "window four: active"));
	const bigtime_t start = system_time();
	EXPECT_EQ(OutputOf([] { ICloseThisFAW(); }), " oops - no front window\n");
	EXPECT_LT(system_time() - start, kQuestionLimit);
	EXPECT_EQ(front.Take(), Lines());
}


TEST_F(SwitchingTest, SomeWindowsAreNeverClosed)
{
	for (const char* title : {"Tracker Status", "/boot/home/Desktop"}) {
		ScriptedPlayer tracker(kTracker, {std::string("PLAYER_WINDOWS=") + title});
		ASSERT_TRUE(tracker.IsReady());
		ASSERT_TRUE(tracker.IsActive());
		ASSERT_TRUE(Heard(tracker, std::string("window ") + title + ": active"));
		EXPECT_EQ(OutputOf([] { ICloseThisFAW(); }),
			std::string(" .. don't quit '") + title + "'\n");
		EXPECT_EQ(tracker.Take(), Lines());
	}
}


TEST_F(SwitchingTest, SomeApplicationsAreNeverAskedToClose)
{
	for (const char* signature : {"application/x-vnd.Be-TSKB", "application/x-vnd.Be-SHEL",
			 "application/x-vnd.Haiku-Terminal", "application/x-vnd.Be-WORK"}) {
		ScriptedPlayer kept(signature, {"PLAYER_WINDOWS=one"});
		ASSERT_TRUE(kept.IsReady());
		ASSERT_TRUE(kept.IsActive());
		EXPECT_EQ(OutputOf([] { ICloseThisFAW(); }),
			std::string(" .. don't quit '") + signature + "'\n");
	}
	for (const char* signature :
		{"application/x-vnd.kv-KORU-Haiku", "application/x-vnd.kv-VinyloH"}) {
		ScriptedPlayer self(signature, {"PLAYER_WINDOWS=one"});
		ASSERT_TRUE(self.IsReady());
		ASSERT_TRUE(self.IsActive());
		EXPECT_EQ(OutputOf([] { ICloseThisFAW(); }), " .. don't quit myself\n");
	}
}
