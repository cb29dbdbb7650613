// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/KeyMessages.h"

#include <ctype.h>
#include <string.h>
#include <string>

#include <QKeyEvent>

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <OS.h>
#include <TypeConstants.h>

#include "platform/screen/InputState.h"
#include "platform/screen/KeyTable.h"


namespace hosted {

namespace {

// Bits of the window system's own modifiers, the same with X11 and with Wayland's keymaps.
constexpr quint32 kNativeCapsLock = 0x02;
constexpr quint32 kNativeNumLock = 0x10;

constexpr uint32 kShiftBits = B_SHIFT_KEY | B_LEFT_SHIFT_KEY | B_RIGHT_SHIFT_KEY;
constexpr uint32 kControlBits = B_CONTROL_KEY | B_LEFT_CONTROL_KEY | B_RIGHT_CONTROL_KEY;
constexpr uint32 kCommandBits = B_COMMAND_KEY | B_LEFT_COMMAND_KEY | B_RIGHT_COMMAND_KEY;
constexpr uint32 kOptionBits = B_OPTION_KEY | B_LEFT_OPTION_KEY | B_RIGHT_OPTION_KEY;
constexpr uint32 kLockBits = B_CAPS_LOCK | B_SCROLL_LOCK | B_NUM_LOCK;

// Which key repeats, and how often it has come.
int32 sRepeatingKey = 0;
int32 sRepeatCount = 0;
// The key right of the space bar selects a third level of characters instead of being Command.
bool sThirdLevelHeld = false;


int32
raw_key(const QKeyEvent& event)
{
	int32 key = 0;
	if (event.nativeScanCode() > 8)
		key = RawKeyForScanCode(event.nativeScanCode() - 8);
	if (key == 0)
		key = RawKeyForQtKey(event.key(), (event.modifiers() & Qt::KeypadModifier) != 0);
	return key;
}


void
set_key_state(key_info& keys, int32 key, bool down)
{
	if (key <= 0 || key >= 128)
		return;
	const uint8 bit = 1 << (7 - (key & 7));
	if (down)
		keys.key_states[key >> 3] |= bit;
	else
		keys.key_states[key >> 3] &= ~bit;
}


// Sets or clears a modifier's bits where they contradict Qt, which does not tell the sides apart.
void
adopt(uint32& modifiers, bool held, uint32 general, uint32 all)
{
	if (!held)
		modifiers &= ~all;
	else if ((modifiers & all) == 0)
		modifiers |= general;
}


// Leaves the modifier out whose key the event is about: Qt's answer for it ignores the other side.
void
adopt_all(uint32& modifiers, Qt::KeyboardModifiers qtModifiers, uint32 except)
{
	if ((except & B_SHIFT_KEY) == 0)
		adopt(modifiers, (qtModifiers & Qt::ShiftModifier) != 0, B_SHIFT_KEY, kShiftBits);
	if ((except & B_CONTROL_KEY) == 0)
		adopt(modifiers, (qtModifiers & Qt::ControlModifier) != 0, B_CONTROL_KEY, kControlBits);
	if ((except & B_COMMAND_KEY) == 0)
		adopt(modifiers, (qtModifiers & Qt::AltModifier) != 0, B_COMMAND_KEY, kCommandBits);
	if ((except & B_OPTION_KEY) == 0 && !sThirdLevelHeld)
		adopt(modifiers, (qtModifiers & Qt::MetaModifier) != 0, B_OPTION_KEY, kOptionBits);
}


void
set_lock(uint32& modifiers, uint32 lock, bool on)
{
	if (on)
		modifiers |= lock;
	else
		modifiers &= ~lock;
}


void
adopt_locks(uint32& modifiers, const QKeyEvent& event, int32 key, bool down)
{
	// The native state is the one before the event.
	if (event.nativeScanCode() != 0) {
		set_lock(modifiers, B_CAPS_LOCK, (event.nativeModifiers() & kNativeCapsLock) != 0);
		set_lock(modifiers, B_NUM_LOCK, (event.nativeModifiers() & kNativeNumLock) != 0);
	}
	if (!down || event.isAutoRepeat())
		return;
	if (key == kRawCapsLock)
		modifiers ^= B_CAPS_LOCK;
	else if (key == kRawNumLock)
		modifiers ^= B_NUM_LOCK;
	else if (key == kRawScrollLock)
		modifiers ^= B_SCROLL_LOCK;
}


// The keys whose character does not depend on the keyboard's language.
char
fixed_character(int qtKey)
{
	if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12)
		return B_FUNCTION_KEY;
	switch (qtKey) {
		case Qt::Key_Escape:
			return B_ESCAPE;
		case Qt::Key_Tab:
		case Qt::Key_Backtab:
			return B_TAB;
		case Qt::Key_Backspace:
			return B_BACKSPACE;
		case Qt::Key_Return:
		case Qt::Key_Enter:
			return B_ENTER;
		case Qt::Key_Insert:
			return B_INSERT;
		case Qt::Key_Delete:
			return B_DELETE;
		case Qt::Key_Home:
			return B_HOME;
		case Qt::Key_End:
			return B_END;
		case Qt::Key_Left:
			return B_LEFT_ARROW;
		case Qt::Key_Up:
			return B_UP_ARROW;
		case Qt::Key_Right:
			return B_RIGHT_ARROW;
		case Qt::Key_Down:
			return B_DOWN_ARROW;
		case Qt::Key_PageUp:
			return B_PAGE_UP;
		case Qt::Key_PageDown:
			return B_PAGE_DOWN;
		case Qt::Key_Space:
			return B_SPACE;
		case Qt::Key_Print:
		case Qt::Key_SysReq:
		case Qt::Key_ScrollLock:
		case Qt::Key_Pause:
		case Qt::Key_Cancel:
			return B_FUNCTION_KEY;
		default:
			return 0;
	}
}


std::string
key_bytes(const QKeyEvent& event)
{
	const char fixed = fixed_character(event.key());
	if (fixed != 0)
		return std::string(1, fixed);
	const QByteArray text = event.text().toUtf8();
	if (!text.isEmpty())
		return std::string(text.constData(), text.size());
	// With Control some platforms give no text.
	if (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
		const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
		const char letter = static_cast<char>(tolower(event.key()));
		return std::string(1, control ? letter & 0x1f : letter);
	}
	return std::string();
}


int32
raw_character(const QKeyEvent& event, int32 key, const std::string& bytes)
{
	if (fixed_character(event.key()) != 0)
		return bytes[0] & 0x7f;
	if (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z)
		return tolower(event.key());
	const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
	const char character = UsCharacterFor(key);
	if (!plain && character != 0)
		return character & 0x7f;
	return bytes[0] & 0x7f;
}


void
add_key_fields(BMessage& message, int32 key, const key_info& keys)
{
	message.AddInt64("when", system_time());
	message.AddInt32("key", key);
	message.AddInt32("modifiers", keys.modifiers);
	message.AddData("states", B_UINT8_TYPE, keys.key_states, sizeof(keys.key_states));
}


void
add_bytes(BMessage& message, const std::string& bytes)
{
	for (char byte : bytes)
		message.AddInt8("byte", byte);
	message.AddString("bytes", bytes.c_str());
}


int32
count_repeat(const QKeyEvent& event, int32 key)
{
	if (!event.isAutoRepeat() || key != sRepeatingKey)
		sRepeatCount = 0;
	sRepeatingKey = key;
	// A repetition whose first press went elsewhere is the second at least.
	if (event.isAutoRepeat() && sRepeatCount == 0)
		sRepeatCount = 1;
	return ++sRepeatCount;
}


BMessage
key_message(const QKeyEvent& event, int32 key, const key_info& keys, bool down)
{
	const std::string bytes = key_bytes(event);
	const bool isMapped = !bytes.empty() && ModifierForRawKey(key) == 0;
	if (!isMapped) {
		BMessage message(down ? B_UNMAPPED_KEY_DOWN : B_UNMAPPED_KEY_UP);
		add_key_fields(message, key, keys);
		return message;
	}
	BMessage message(down ? B_KEY_DOWN : B_KEY_UP);
	add_key_fields(message, key, keys);
	message.AddInt32("raw_char", raw_character(event, key, bytes));
	if (down) {
		const int32 count = count_repeat(event, key);
		if (count > 1)
			message.AddInt32("be:key_repeat", count);
	}
	add_bytes(message, bytes);
	return message;
}


void
press_modifier(uint32& modifiers, uint32 bits, bool down)
{
	if (down) {
		modifiers |= bits;
		return;
	}
	// The general bit stays while the other side is held.
	const uint32 general = bits & 0xff;
	modifiers &= ~(bits & ~0xffu);
	for (uint32 all : {kShiftBits, kControlBits, kCommandBits, kOptionBits}) {
		if ((all & general) != 0 && (modifiers & all & ~0xffu) != 0)
			return;
	}
	modifiers &= ~general;
}

} // namespace


std::vector<BMessage>
MessagesForKey(const QKeyEvent& event, bool down)
{
	std::vector<BMessage> messages;
	// The release between two repetitions is none.
	if (!down && event.isAutoRepeat())
		return messages;

	const int32 key = raw_key(event);
	key_info keys = CurrentKeys();
	const uint32 oldModifiers = keys.modifiers;
	uint32 bits = ModifierForRawKey(key);
	if (event.key() == Qt::Key_AltGr) {
		bits = B_OPTION_KEY | B_RIGHT_OPTION_KEY;
		sThirdLevelHeld = down;
	}
	set_key_state(keys, key, down);
	if (bits != 0)
		press_modifier(keys.modifiers, bits, down);
	adopt_all(keys.modifiers, event.modifiers(), bits);
	adopt_locks(keys.modifiers, event, key, down);
	SetCurrentKeys(keys);

	if (keys.modifiers != oldModifiers) {
		BMessage message(B_MODIFIERS_CHANGED);
		message.AddInt64("when", system_time());
		message.AddInt32("modifiers", keys.modifiers);
		message.AddInt32("be:old_modifiers", oldModifiers);
		message.AddData("states", B_UINT8_TYPE, keys.key_states, sizeof(keys.key_states));
		messages.push_back(message);
	}
	// A modifier that repeats says nothing new.
	if (bits == 0 || !event.isAutoRepeat())
		messages.push_back(key_message(event, key, keys, down));
	return messages;
}


BMessage
MessageForText(const QString& text)
{
	const QByteArray utf8 = text.toUtf8();
	BMessage message(B_KEY_DOWN);
	add_key_fields(message, 0, CurrentKeys());
	message.AddInt32("raw_char", utf8.isEmpty() ? 0 : utf8[0] & 0x7f);
	add_bytes(message, std::string(utf8.constData(), utf8.size()));
	return message;
}


void
AdoptModifiers(Qt::KeyboardModifiers modifiers)
{
	key_info keys = CurrentKeys();
	const uint32 oldModifiers = keys.modifiers;
	adopt_all(keys.modifiers, modifiers, 0);
	if (keys.modifiers != oldModifiers)
		SetCurrentKeys(keys);
}


void
ForgetHeldKeys()
{
	key_info keys = CurrentKeys();
	keys.modifiers &= kLockBits;
	memset(keys.key_states, 0, sizeof(keys.key_states));
	sRepeatingKey = 0;
	sThirdLevelHeld = false;
	SetCurrentKeys(keys);
}

} // namespace hosted
