// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef KEY_MESSAGES_H
#define KEY_MESSAGES_H

#include <vector>

#include <QString>

#include <Message.h>

class QKeyEvent;


namespace hosted {

// Display thread only. All of these keep CurrentKeys() up to date.

// The messages that a key event stands for, in order: B_MODIFIERS_CHANGED where it changes them,
// then the key itself.
std::vector<BMessage> MessagesForKey(const QKeyEvent& event, bool down);

// A key message for text that an input method has composed.
BMessage MessageForText(const QString& text);

// Adopts what an event says about the modifiers: keys may have been pressed or released while
// another program had the keyboard.
void AdoptModifiers(Qt::KeyboardModifiers modifiers);

// The keyboard went to another program: no key counts as held any more.
void ForgetHeldKeys();

} // namespace hosted

#endif // KEY_MESSAGES_H
