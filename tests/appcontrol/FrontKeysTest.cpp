// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Keys for the application in front, and for the last one that was.
#include <InterfaceDefs.h>
#include <Message.h>
#include <Roster.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Output.h"
#include "tests/support/RunningApplication.h"

using test::Lines;
using test::OutputOf;
using test::RemoteTest;
using test::ScriptedPlayer;


namespace {

constexpr char kOther[] = "application/x-vnd.other";

class FrontKeysTest : public RemoteTest {
protected:
	static Lines Sent(ScriptedPlayer& target, void (*function)(long), long key)
	{
		OutputOf([function, key] { function(key); });
		return target.Take();
	}

	static Lines Key(const std::string& key, const std::string& character, const std::string& bytes,
		const std::string& modifiers = "0")
	{
		return {"key " + key + " char " + character + " byte " + character + " bytes '" + bytes
			+ "' modifiers " + modifiers + " when 1 states 16"};
	}
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(FrontKeysTest, AltPlusAndMinusGoToTheLastActiveApplication)
{
	ScriptedPlayer other(kOther);
	ASSERT_TRUE(other.IsReady());
	Remember(kOther);
	EXPECT_EQ(Sent(other, IAltPlusMinus, 0x40), Key("3a", "2b", "+", "402"));
	EXPECT_EQ(Sent(other, IAltPlusMinus, 0x3F), Key("25", "2d", "-", "402"));
	EXPECT_EQ(Sent(other, IAltPlusMinus, 0x5E), Lines());
}


TEST_F(FrontKeysTest, PagesGoToTheLastActiveApplication)
{
	ScriptedPlayer other(kOther);
	ASSERT_TRUE(other.IsReady());
	Remember(kOther);
	EXPECT_EQ(Sent(other, IPageUpDown, 0x3D), Key("21", "b", "\x0b"));
	EXPECT_EQ(Sent(other, IPageUpDown, 0x3E), Key("36", "c", "\x0c"));
	EXPECT_EQ(Sent(other, IPageUpDown, 0x40), Lines());
}


TEST_F(FrontKeysTest, LastApplicationThatIsGoneGetsNothing)
{
	{
		ScriptedPlayer other(kOther);
		ASSERT_TRUE(other.IsReady());
		Remember(kOther);
	}
	const std::string output = OutputOf([] { IPageUpDown(0x3D); });
	EXPECT_TRUE(contains(output, " oops - nobody for the key (61)\n")) << output;
}


TEST_F(FrontKeysTest, TheRemoteControlItselfGetsNothing)
{
	ScriptedPlayer remote("application/x-vnd.kv-KORU-Haiku", {"PLAYER_WINDOWS=remote"});
	ASSERT_TRUE(remote.IsReady());
	ASSERT_TRUE(remote.IsActive());
	Remember("application/x-vnd.kv-KORU-Haiku");
	for (const auto function : {IAltPlusMinus, IPageUpDown, IKeypress2App}) {
		const std::string output = OutputOf([function] { function(0x3D); });
		EXPECT_TRUE(contains(output, " no keypress to myself (61)\n")) << output;
	}
	for (const std::string& line : remote.Take())
		EXPECT_FALSE(contains(line, "key")) << line;
}


TEST_F(FrontKeysTest, ActiveApplicationGetsTheKeys)
{
	ScriptedPlayer active(kOther, {"PLAYER_WINDOWS=one"});
	ASSERT_TRUE(active.IsReady());
	ASSERT_TRUE(active.IsActive());
	active.Take();
	EXPECT_EQ(Sent(active, IKeypress2App, 0x40), Key("57", "1e", "\x1e"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x3F), Key("62", "1f", "\x1f"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x5B), Key("61", "1c", "\x1c"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x5F), Key("63", "1d", "\x1d"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x5E), Key("5e", "20", " "));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x60), Key("1", "1b", "\x1b"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x34), Key("12", "31", "1"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x37), Key("15", "34", "4"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x45), Key("29", "65", "e", "402"));
	EXPECT_EQ(Sent(active, IKeypress2App, 0x99), Lines());
}


TEST_F(FrontKeysTest, FileManagerIsNeverToldToEject)
{
	ScriptedPlayer tracker("application/x-vnd.Be-TRAK", {"PLAYER_WINDOWS=home"});
	ASSERT_TRUE(tracker.IsReady());
	ASSERT_TRUE(tracker.IsActive());
	tracker.Take();
	EXPECT_EQ(Sent(tracker, IKeypress2App, 0x45), Lines());
	EXPECT_EQ(Sent(tracker, IKeypress2App, 0x5E), Key("5e", "20", " "));
}


TEST_F(FrontKeysTest, LeftAndRightTurnPages)
{
	{
		ScriptedPlayer xpdf("application/x-vnd.mp-xpdf", {"PLAYER_WINDOWS=text"});
		ASSERT_TRUE(xpdf.IsReady());
		ASSERT_TRUE(xpdf.IsActive());
		xpdf.Take();
		EXPECT_EQ(Sent(xpdf, IKeypress2App, 0x5F), Key("51", "6e", "n"));
		EXPECT_EQ(Sent(xpdf, IKeypress2App, 0x5B), Key("30", "70", "p"));
		EXPECT_EQ(Sent(xpdf, IKeypress2App, 0x40), Key("57", "1e", "\x1e"));
	}
	ScriptedPlayer gobe("application/x-vnd.gobe.productive", {"PLAYER_WINDOWS=slides"});
	ASSERT_TRUE(gobe.IsReady());
	ASSERT_TRUE(gobe.IsActive());
	gobe.Take();
	EXPECT_EQ(Sent(gobe, IKeypress2App, 0x5F), Key("36", "c", "\x0c"));
	EXPECT_EQ(Sent(gobe, IKeypress2App, 0x5B), Key("21", "b", "\x0b"));
}


TEST_F(FrontKeysTest, DeskbarOpensItsMenu)
{
	EXPECT_EQ(OutputOf([] { IJumpMenu(); }), " oops - bad messenger 'application/x-vnd.Be-TSKB'\n");
	ScriptedPlayer deskbar("application/x-vnd.Be-TSKB");
	ASSERT_TRUE(deskbar.IsReady());
	EXPECT_EQ(OutputOf([] { IJumpMenu(); }), "");
	EXPECT_EQ(deskbar.Take(), (Lines{"unmapped key 68 modifiers 0 when 1 states 16"}));
}


TEST_F(FrontKeysTest, WorkspacesAreNotSwitched)
{
	const int32 before = current_workspace();
	EXPECT_EQ(OutputOf([] { IJumpWorkSpace(0x34); }), " Workspaces-Switching only on Zeta !\n");
	EXPECT_EQ(current_workspace(), before);
}


TEST_F(FrontKeysTest, MessagesAreForwarded)
{
	BMessage note('note');
	note.AddString("text", "hello");
	ScriptedPlayer other(kOther);
	ASSERT_TRUE(other.IsReady());
	Remember(kOther);
	ScriptedPlayer player("application/x-vnd.yT-MediaPlayer", {"PLAYER_WINDOWS=one"});
	ASSERT_TRUE(player.IsReady());
	ASSERT_TRUE(player.IsActive());
	ScriptedPlayer front("application/x-vnd.front", {"PLAYER_WINDOWS=two"});
	ASSERT_TRUE(front.IsReady());
	ASSERT_TRUE(front.IsActive());

	const std::string output = OutputOf([&note] { CheckIt(&note); });
	EXPECT_EQ(other.Take(), (Lines{"note hello"}));
	EXPECT_FALSE(contains(output, "oops")) << output;
	EXPECT_TRUE(player.IsActive());
}


TEST_F(FrontKeysTest, MessageForNobodyIsAnOops)
{
	{
		ScriptedPlayer other(kOther);
		ASSERT_TRUE(other.IsReady());
		Remember(kOther);
	}
	BMessage note('note');
	EXPECT_TRUE(contains(OutputOf([&note] { CheckIt(&note); }), " oops - bad messenger A\n"));
	EXPECT_EQ(OutputOf([] { CheckIt(nullptr); }), "");
}


TEST_F(FrontKeysTest, FocusFollowsThePointerAgainAfterwards)
{
	test::TheApplication();
	const mode_mouse before = mouse_mode();
	set_mouse_mode(B_FOCUS_FOLLOWS_MOUSE);
	FollowMousFocus(false);
	EXPECT_EQ(mouse_mode(), B_NORMAL_MOUSE);
	FollowMousFocus(true);
	EXPECT_EQ(mouse_mode(), B_FOCUS_FOLLOWS_MOUSE);
	// Where it did not follow, it does not begin to.
	set_mouse_mode(B_CLICK_TO_FOCUS_MOUSE);
	FollowMousFocus(false);
	FollowMousFocus(true);
	EXPECT_EQ(mouse_mode(), B_CLICK_TO_FOCUS_MOUSE);
	set_mouse_mode(before);
}
