// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <string.h>

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>

#include <Autolock.h>
#include <Handler.h>
#include <InterfaceDefs.h>
#include <MessageQueue.h>
#include <Messenger.h>
#include <TypeConstants.h>

#include "platform/screen/DisplayThread.h"
#include "platform/screen/KeyMessages.h"
#include "platform/screen/KeyTable.h"
#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/Wait.h"

using test::Key;
using test::Log;
using test::LoggingView;
using test::LoggingWindow;


namespace {

class Keys : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		hosted::DisplayThread::Call(hosted::ForgetHeldKeys);
		fWindow = new LoggingWindow(BRect(60, 70, 259, 269), fLog);
		fView = new LoggingView(fWindow->Bounds(), "view", fViewLog);
		fWindow->AddChild(fView);
		fWindow->Show();
		test::Settle(fWindow);
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	void Press(const Key& key)
	{
		test::PressKey(fWindow, key);
		test::Settle(fWindow);
	}

	void Release(const Key& key)
	{
		test::ReleaseKey(fWindow, key);
		test::Settle(fWindow);
	}

	static bool IsDown(const BMessage& message, int32 key)
	{
		const void* data;
		ssize_t size;
		if (message.FindData("states", B_UINT8_TYPE, &data, &size) != B_OK || size != 16)
			return false;
		return (static_cast<const uint8*>(data)[key >> 3] & (1 << (7 - (key & 7)))) != 0;
	}

	Log fLog;
	Log fViewLog;
	LoggingWindow* fWindow = nullptr;
	LoggingView* fView = nullptr;
};

const Key kLetterA = {30, Qt::Key_A, QStringLiteral("a")};
const Key kUp = {103, Qt::Key_Up, QString()};

} // namespace


TEST_F(Keys, GoToTheWindowWithoutAFocusView)
{
	Press(kUp);
	const BMessage message = fLog.Last(B_KEY_DOWN);
	EXPECT_EQ(message.GetInt32("key", 0), 0x57);
	EXPECT_EQ(message.GetInt8("byte", 0), B_UP_ARROW);
	EXPECT_STREQ(message.GetString("bytes"), "\x1e");
	EXPECT_EQ(message.GetInt32("raw_char", 0), B_UP_ARROW);
	EXPECT_EQ(message.GetInt32("modifiers", -1), 0);
	EXPECT_TRUE(message.HasInt64("when"));
	EXPECT_FALSE(message.HasInt32("be:key_repeat"));
	EXPECT_TRUE(IsDown(message, 0x57));
	EXPECT_TRUE(fViewLog.Messages(B_KEY_DOWN).empty());

	Release(kUp);
	EXPECT_EQ(fLog.Last(B_KEY_UP).GetInt32("key", 0), 0x57);
	EXPECT_FALSE(IsDown(fLog.Last(B_KEY_UP), 0x57));
}


TEST_F(Keys, NoFieldOfTheKitStaysInTheMessage)
{
	Press(kLetterA);
	BMessage message = fLog.Last(B_KEY_DOWN);
	char* name;
	type_code type;
	for (int32 i = 0; message.GetInfo(B_ANY_TYPE, i, &name, &type) == B_OK; i++)
		EXPECT_NE(name[0], '_') << name;
}


TEST_F(Keys, GoToTheFocusView)
{
	{
		BAutolock lock(fWindow);
		fView->MakeFocus(true);
	}
	Press(kLetterA);
	EXPECT_EQ(fViewLog.Count("view: key"), 1);
	EXPECT_EQ(fViewLog.Messages(B_KEY_DOWN).size(), 1u);
	EXPECT_TRUE(fLog.Messages(B_KEY_DOWN).empty());
}


TEST_F(Keys, AMessengersKeyGoesWhereItWasSent)
{
	{
		BAutolock lock(fWindow);
		fView->MakeFocus(true);
	}
	BMessage message(B_KEY_DOWN);
	message.AddInt32("key", 0x62);
	message.AddInt32("modifiers", B_COMMAND_KEY);
	BMessenger(fWindow).SendMessage(&message);
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Messages(B_KEY_DOWN).size(), 1u);
	EXPECT_TRUE(fViewLog.Messages(B_KEY_DOWN).empty());
}


TEST_F(Keys, EveryKeyOfTheTable)
{
	const struct {
		uint32 linuxKey;
		int32 raw;
	} rows[] = {{1, 0x01}, {59, 0x02}, {68, 0x0b}, {87, 0x0c}, {88, 0x0d}, {99, 0x0e}, {70, 0x0f},
		{119, 0x10}, {41, 0x11}, {2, 0x12}, {11, 0x1b}, {12, 0x1c}, {13, 0x1d}, {14, 0x1e},
		{110, 0x1f}, {102, 0x20}, {104, 0x21}, {111, 0x34}, {107, 0x35}, {109, 0x36}, {103, 0x57},
		{105, 0x61}, {108, 0x62}, {106, 0x63}, {15, 0x26}, {16, 0x27}, {25, 0x30}, {26, 0x31},
		{27, 0x32}, {43, 0x33}, {58, 0x3b}, {30, 0x3c}, {38, 0x44}, {39, 0x45}, {40, 0x46},
		{28, 0x47}, {42, 0x4b}, {86, 0x69}, {44, 0x4c}, {50, 0x52}, {51, 0x53}, {52, 0x54},
		{53, 0x55}, {54, 0x56}, {29, 0x5c}, {56, 0x5d}, {57, 0x5e}, {100, 0x5f}, {97, 0x60},
		{125, 0x66}, {126, 0x67}, {127, 0x68}, {69, 0x22}, {98, 0x23}, {55, 0x24}, {74, 0x25},
		{78, 0x3a}, {96, 0x5b}, {71, 0x37}, {72, 0x38}, {73, 0x39}, {75, 0x48}, {76, 0x49},
		{77, 0x4a}, {79, 0x58}, {80, 0x59}, {81, 0x5a}, {82, 0x64}, {83, 0x65}, {117, 0x6a},
		{121, 0x70}, {124, 0x6a}, {89, 0x6b}, {94, 0x6c}, {92, 0x6d}, {93, 0x6e}, {122, 0xf0},
		{123, 0xf1}, {164, 0xC00B0}, {163, 0xC00B5}, {165, 0xC00B6}, {166, 0xC00B7}, {113, 0xC00E2},
		{115, 0xC00E9}, {114, 0xC00EA}};
	for (const auto& row : rows)
		EXPECT_EQ(hosted::RawKeyForScanCode(row.linuxKey), row.raw) << row.linuxKey;
	EXPECT_EQ(hosted::RawKeyForScanCode(240), 0);
	EXPECT_EQ(hosted::RawKeyForQtKey(Qt::Key_Plus, true), 0x3a);
	EXPECT_EQ(hosted::RawKeyForQtKey(Qt::Key_Minus, true), 0x25);
	EXPECT_EQ(hosted::RawKeyForQtKey(Qt::Key_Minus, false), 0x1c);
}


TEST_F(Keys, BytesAndCharacters)
{
	const struct {
		Key key;
		int32 raw;
		std::string bytes;
		int32 rawCharacter;
	} rows[] = {
		{{28, Qt::Key_Return, QStringLiteral("\r")}, 0x47, "\x0a", 0x0a},
		{{96, Qt::Key_Enter, QStringLiteral("\r"), Qt::KeypadModifier}, 0x5b, "\x0a", 0x0a},
		{{57, Qt::Key_Space, QStringLiteral(" ")}, 0x5e, " ", ' '},
		{{59, Qt::Key_F1, QString()}, 0x02, "\x10", 0x10},
		{{111, Qt::Key_Delete, QStringLiteral("\x7f")}, 0x34, "\x7f", 0x7f},
		{{107, Qt::Key_End, QString()}, 0x35, "\x04", 0x04},
		{{71, Qt::Key_Home, QString(), Qt::KeypadModifier}, 0x37, "\x01", 0x01},
		{{71, Qt::Key_7, QStringLiteral("7"), Qt::KeypadModifier}, 0x37, "7", '7'},
		{{78, Qt::Key_Plus, QStringLiteral("+"), Qt::KeypadModifier}, 0x3a, "+", '+'},
		{{30, Qt::Key_A, QStringLiteral("A"), Qt::ShiftModifier}, 0x3c, "A", 'a'},
		{{30, Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier}, 0x3c, "\x01", 'a'},
		{{30, Qt::Key_A, QString(), Qt::ControlModifier}, 0x3c, "\x01", 'a'},
		{{2, Qt::Key_Exclam, QStringLiteral("!"), Qt::ShiftModifier}, 0x12, "!", '1'},
		{{40, Qt::Key_Adiaeresis, QString::fromUtf8("\xc3\xa4")}, 0x46, "\xc3\xa4", 0x43},
	};
	for (const auto& row : rows) {
		Press(row.key);
		const BMessage message = fLog.Last(B_KEY_DOWN);
		EXPECT_EQ(message.GetInt32("key", 0), row.raw);
		EXPECT_EQ(std::string(message.GetString("bytes", "")), row.bytes);
		EXPECT_EQ(message.GetInt32("raw_char", 0), row.rawCharacter);
		for (size_t i = 0; i < row.bytes.size(); i++)
			EXPECT_EQ(message.GetInt8("byte", i, 0), row.bytes[i]);
		EXPECT_FALSE(message.HasInt8("byte", row.bytes.size()));
		Release(row.key);
	}
}


TEST_F(Keys, RepeatsAreCounted)
{
	Press(kLetterA);
	Key repeat = kLetterA;
	repeat.repeats = true;
	for (int i = 0; i < 3; i++) {
		Release(repeat);
		Press(repeat);
	}
	Release(kLetterA);
	Press(kLetterA);
	const std::vector<BMessage> messages = fLog.Messages(B_KEY_DOWN);
	ASSERT_EQ(messages.size(), 5u);
	EXPECT_FALSE(messages[0].HasInt32("be:key_repeat"));
	EXPECT_EQ(messages[1].GetInt32("be:key_repeat", 0), 2);
	EXPECT_EQ(messages[3].GetInt32("be:key_repeat", 0), 4);
	EXPECT_FALSE(messages[4].HasInt32("be:key_repeat"));
	EXPECT_EQ(fLog.Messages(B_KEY_UP).size(), 1u);
}


TEST_F(Keys, RightControlAlone)
{
	Press({97, Qt::Key_Control, QString()});
	const BMessage changed = fLog.Last(B_MODIFIERS_CHANGED);
	EXPECT_EQ(changed.GetInt32("modifiers", 0), B_CONTROL_KEY | B_RIGHT_CONTROL_KEY);
	EXPECT_EQ(changed.GetInt32("be:old_modifiers", -1), 0);
	const BMessage key = fLog.Last(B_UNMAPPED_KEY_DOWN);
	EXPECT_EQ(key.GetInt32("key", 0), 0x60);
	EXPECT_EQ(key.GetInt32("modifiers", 0), B_CONTROL_KEY | B_RIGHT_CONTROL_KEY);
	EXPECT_TRUE(IsDown(key, 0x60));
	EXPECT_FALSE(key.HasString("bytes"));
	EXPECT_FALSE(key.HasInt32("raw_char"));
	EXPECT_EQ(modifiers(), uint32(B_CONTROL_KEY | B_RIGHT_CONTROL_KEY));

	key_info info;
	EXPECT_EQ(get_key_info(&info), B_OK);
	EXPECT_EQ(info.key_states[0x60 >> 3] & (1 << (7 - (0x60 & 7))), 1 << 7);

	Release({97, Qt::Key_Control, QString(), Qt::ControlModifier});
	EXPECT_EQ(modifiers(), 0u);
	EXPECT_EQ(fLog.Last(B_UNMAPPED_KEY_UP).GetInt32("key", 0), 0x60);
}


TEST_F(Keys, BothSidesOfAModifier)
{
	Press({42, Qt::Key_Shift, QString()});
	Press({54, Qt::Key_Shift, QString(), Qt::ShiftModifier});
	EXPECT_EQ(modifiers(), uint32(B_SHIFT_KEY | B_LEFT_SHIFT_KEY | B_RIGHT_SHIFT_KEY));
	Release({42, Qt::Key_Shift, QString(), Qt::ShiftModifier});
	EXPECT_EQ(modifiers(), uint32(B_SHIFT_KEY | B_RIGHT_SHIFT_KEY));
	Release({54, Qt::Key_Shift, QString(), Qt::ShiftModifier});
	EXPECT_EQ(modifiers(), 0u);
}


TEST_F(Keys, EachModifierHasItsBits)
{
	const struct {
		uint32 linuxKey;
		int qtKey;
		uint32 bits;
	} rows[] = {{42, Qt::Key_Shift, B_SHIFT_KEY | B_LEFT_SHIFT_KEY},
		{54, Qt::Key_Shift, B_SHIFT_KEY | B_RIGHT_SHIFT_KEY},
		{29, Qt::Key_Control, B_CONTROL_KEY | B_LEFT_CONTROL_KEY},
		{56, Qt::Key_Alt, B_COMMAND_KEY | B_LEFT_COMMAND_KEY},
		{100, Qt::Key_Alt, B_COMMAND_KEY | B_RIGHT_COMMAND_KEY},
		{125, Qt::Key_Meta, B_OPTION_KEY | B_LEFT_OPTION_KEY},
		{126, Qt::Key_Meta, B_OPTION_KEY | B_RIGHT_OPTION_KEY},
		{100, Qt::Key_AltGr, B_OPTION_KEY | B_RIGHT_OPTION_KEY}, {127, Qt::Key_Menu, B_MENU_KEY}};
	for (const auto& row : rows) {
		Press({row.linuxKey, row.qtKey, QString()});
		EXPECT_EQ(fLog.Last(B_UNMAPPED_KEY_DOWN).GetInt32("modifiers", 0), int32(row.bits));
		Release({row.linuxKey, row.qtKey, QString()});
		EXPECT_EQ(modifiers(), 0u) << row.linuxKey;
	}
}


TEST_F(Keys, LocksAreKept)
{
	constexpr uint32 kCaps = 2;
	Press({58, Qt::Key_CapsLock, QString()});
	EXPECT_EQ(modifiers(), uint32(B_CAPS_LOCK));
	Press({30, Qt::Key_A, QStringLiteral("A"), Qt::NoModifier, false, kCaps});
	EXPECT_EQ(fLog.Last(B_KEY_DOWN).GetInt32("modifiers", 0), B_CAPS_LOCK);
	EXPECT_STREQ(fLog.Last(B_KEY_DOWN).GetString("bytes"), "A");
	Press({58, Qt::Key_CapsLock, QString(), Qt::NoModifier, false, kCaps});
	EXPECT_EQ(modifiers(), 0u);
}


// The modifier was pressed while another program had the keyboard.
TEST_F(Keys, ModifiersThatNobodySawPressed)
{
	Press({30, Qt::Key_A, QStringLiteral("A"), Qt::ShiftModifier});
	EXPECT_EQ(fLog.Last(B_KEY_DOWN).GetInt32("modifiers", 0), B_SHIFT_KEY);
	Press(kLetterA);
	EXPECT_EQ(fLog.Last(B_KEY_DOWN).GetInt32("modifiers", -1), 0);
}


TEST_F(Keys, MediaKeysAreUnmapped)
{
	Press({164, Qt::Key_MediaPlay, QString()});
	EXPECT_EQ(fLog.Last(B_UNMAPPED_KEY_DOWN).GetInt32("key", 0), 0xC00B0);
	EXPECT_TRUE(fLog.Messages(B_KEY_DOWN).empty());
}


TEST_F(Keys, CommandIsKeptFromTheProgram)
{
	Press({56, Qt::Key_Alt, QString()});
	Press({30, Qt::Key_A, QStringLiteral("a"), Qt::AltModifier});
	Press({31, Qt::Key_S, QStringLiteral("s"), Qt::AltModifier});
	Press({103, Qt::Key_Up, QString(), Qt::AltModifier});
	EXPECT_TRUE(fLog.Messages(B_KEY_DOWN).empty());
	EXPECT_EQ(fLog.Messages(B_SELECT_ALL).size(), 1u);

	Release({56, Qt::Key_Alt, QString(), Qt::AltModifier});
	Press({15, Qt::Key_Tab, QStringLiteral("\t"), Qt::ControlModifier});
	EXPECT_TRUE(fLog.Messages(B_KEY_DOWN).empty());
}


TEST_F(Keys, CommandWAsksTheWindow)
{
	fWindow->agreesToQuit = false;
	Press({17, Qt::Key_W, QStringLiteral("w"), Qt::AltModifier});
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Count("quit requested"), 1);
}


TEST_F(Keys, CommandQAsksTheApplication)
{
	BMessageQueue* queue = test::Application().MessageQueue();
	EXPECT_EQ(queue->FindMessage(B_QUIT_REQUESTED, 0), nullptr);
	Press({16, Qt::Key_Q, QStringLiteral("q"), Qt::AltModifier});
	EXPECT_TRUE(
		test::WaitFor([queue]() { return queue->FindMessage(B_QUIT_REQUESTED, 0) != nullptr; }));
	BMessage* message = queue->FindMessage(B_QUIT_REQUESTED, 0);
	queue->RemoveMessage(message);
	delete message;
}


TEST_F(Keys, ClipboardCommandsGoToTheFocusView)
{
	{
		BAutolock lock(fWindow);
		fView->MakeFocus(true);
	}
	Press({46, Qt::Key_C, QStringLiteral("c"), Qt::AltModifier});
	EXPECT_EQ(fViewLog.Messages(B_COPY).size(), 1u);
}


TEST_F(Keys, ShortcutsOfTheProgram)
{
	fWindow->AddShortcut('S', B_SHIFT_KEY, new BMessage('save'));
	Press({31, Qt::Key_S, QStringLiteral("s"), Qt::AltModifier});
	EXPECT_TRUE(fLog.Messages('save').empty());
	Press({31, Qt::Key_S, QStringLiteral("S"), Qt::AltModifier | Qt::ShiftModifier});
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Messages('save').size(), 1u);
	EXPECT_TRUE(fLog.Last('save').HasInt64("when"));
	fWindow->RemoveShortcut('s', B_SHIFT_KEY);
	Press({31, Qt::Key_S, QStringLiteral("S"), Qt::AltModifier | Qt::ShiftModifier});
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Messages('save').size(), 1u);
}


TEST_F(Keys, ShortcutOfAHandlerThatIsGoneDoesNothing)
{
	LoggingView* const view = new LoggingView(BRect(0, 0, 9, 9), "gone", fViewLog);
	{
		BAutolock lock(fWindow);
		fWindow->AddShortcut('s', 0, new BMessage('save'), view);
		fWindow->AddChild(view);
	}
	const Key letter = {31, Qt::Key_S, QStringLiteral("s"), Qt::AltModifier};
	Press(letter);
	EXPECT_EQ(fViewLog.Messages('save').size(), 1u);
	{
		BAutolock lock(fWindow);
		view->RemoveSelf();
		delete view;
	}
	Press(letter);
	test::Settle(fWindow);
	EXPECT_EQ(fViewLog.Messages('save').size(), 1u);
	// The view handed its own on.
	EXPECT_EQ(fLog.Messages('save').size(), 1u);
}


TEST_F(Keys, EscapeClosesWhereTheFlagSaysSo)
{
	fWindow->agreesToQuit = false;
	Press({1, Qt::Key_Escape, QStringLiteral("\x1b")});
	EXPECT_EQ(fLog.Messages(B_KEY_DOWN).size(), 1u);
	fWindow->SetFlags(B_CLOSE_ON_ESCAPE);
	Press({1, Qt::Key_Escape, QStringLiteral("\x1b")});
	test::Settle(fWindow);
	EXPECT_EQ(fLog.Count("quit requested"), 1);
}


TEST_F(Keys, ComposedTextIsOneMessage)
{
	test::OnWidget(fWindow, [](QWidget& widget) {
		QInputMethodEvent event;
		event.setCommitString(QString::fromUtf8("\xe3\x81\x82"));
		QCoreApplication::sendEvent(&widget, &event);
	});
	test::Settle(fWindow);
	EXPECT_STREQ(fLog.Last(B_KEY_DOWN).GetString("bytes"), "\xe3\x81\x82");
	EXPECT_EQ(fLog.Last(B_KEY_DOWN).GetInt8("byte", 2, 0), int8(0x82));
}


TEST_F(Keys, TabMovesTheFocus)
{
	LoggingView* first = new LoggingView(BRect(0, 0, 9, 9), "first", fViewLog, B_NAVIGABLE);
	LoggingView* second = new LoggingView(BRect(10, 0, 19, 9), "second", fViewLog, B_NAVIGABLE);
	{
		BAutolock lock(fWindow);
		fWindow->AddChild(first);
		fWindow->AddChild(second);
		first->MakeFocus(true);
	}
	const auto focus = [this]() { return fWindow->CurrentFocus(); };
	Press({15, Qt::Key_Tab, QStringLiteral("\t")});
	EXPECT_EQ(test::Locked(fWindow, focus), second);
	Press({15, Qt::Key_Tab, QStringLiteral("\t")});
	EXPECT_EQ(test::Locked(fWindow, focus), first);
	Press({15, Qt::Key_Backtab, QStringLiteral("\t"), Qt::ShiftModifier});
	EXPECT_EQ(test::Locked(fWindow, focus), second);
}
