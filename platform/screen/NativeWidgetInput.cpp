// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What the user does to the window with the keyboard, the pointer and by dropping things.
#include "platform/screen/NativeWidget.h"

#include <math.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <AppDefs.h>
#include <Message.h>
#include <OS.h>
#include <View.h>

#include "platform/app/Envelope.h"
#include "platform/interface/InputFields.h"
#include "platform/screen/Drops.h"
#include "platform/screen/InputState.h"
#include "platform/screen/KeyMessages.h"


namespace hosted {

namespace {

// Qt counts an eighth of a degree, and a notch of a common wheel has 15 degrees.
constexpr float kAnglePerNotch = 120;


uint32
haiku_buttons(Qt::MouseButtons buttons)
{
	uint32 result = 0;
	if ((buttons & Qt::LeftButton) != 0)
		result |= B_PRIMARY_MOUSE_BUTTON;
	if ((buttons & Qt::RightButton) != 0)
		result |= B_SECONDARY_MOUSE_BUTTON;
	if ((buttons & Qt::MiddleButton) != 0)
		result |= B_TERTIARY_MOUSE_BUTTON;
	return result;
}


BPoint
to_point(const QPointF& point)
{
	return BPoint(floorf(point.x()), floorf(point.y()));
}

} // namespace


// The pointer.


void
NativeWidget::_SendPointerMessage(BMessage& message, const QPointF& where, Qt::MouseButtons buttons)
{
	PointerState pointer;
	pointer.isOurs = true;
	pointer.screenWhere = to_point(ToScreen(where));
	pointer.buttons = haiku_buttons(buttons);
	SetCurrentPointer(pointer);

	message.AddInt64("when", system_time());
	message.AddPoint("screen_where", pointer.screenWhere);
	message.AddInt32("buttons", pointer.buttons);
	message.AddInt32("modifiers", CurrentKeys().modifiers);
	message.AddInt32(kInputKind, kInputPointer);
	message.AddPoint(kInputWhere, to_point(where));
	if (!rect().contains(where.toPoint()))
		message.AddBool(kInputOutside, true);
	fWindow->Send(message);
}


void
NativeWidget::_SendPointer(uint32 what, QMouseEvent* event)
{
	AdoptModifiers(event->modifiers());
	// A release is let through: what was pressed before the modal window came has to end.
	if (IsBlocked() && what != B_MOUSE_UP) {
		if (what == B_MOUSE_DOWN)
			QApplication::beep();
		return;
	}
	const bool isKnown = what == B_MOUSE_MOVED || haiku_buttons(event->button()) != 0;
	if (!isKnown)
		return;
	BMessage message(what);
	const std::shared_ptr<const ViewDrag> drag = fWindow->Drag();
	if (drag != nullptr && what == B_MOUSE_MOVED)
		message.AddMessage("be:drag_message", &drag->message);
	// What was left over from a release that nobody saw.
	if (what == B_MOUSE_DOWN)
		fWindow->EndDrag();
	_SendPointerMessage(message, event->position(), event->buttons());
	if (drag != nullptr && what == B_MOUSE_UP && event->buttons() == Qt::NoButton)
		_EndViewDrag(event);
}


// Drops what a view of this window has dragged, if the pointer is over a window of the program.
void
NativeWidget::_EndViewDrag(QMouseEvent* event)
{
	const std::shared_ptr<const ViewDrag> drag = fWindow->Drag();
	fWindow->EndDrag();
	NativeWidget* target = this;
	if (!rect().contains(event->position().toPoint())) {
		target = dynamic_cast<NativeWidget*>(
			QApplication::topLevelAt(event->globalPosition().toPoint()));
	}
	if (target == nullptr || target->IsBlocked())
		return;
	BMessage message(drag->message);
	target->_SendDrop(message, target->mapFromGlobal(mapToGlobal(event->position())), drag->offset,
		drag->replyTo);
}


void
NativeWidget::mousePressEvent(QMouseEvent* event)
{
	_SendPointer(B_MOUSE_DOWN, event);
}


void
NativeWidget::mouseReleaseEvent(QMouseEvent* event)
{
	_SendPointer(B_MOUSE_UP, event);
}


void
NativeWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
	_SendPointer(B_MOUSE_DOWN, event);
}


void
NativeWidget::mouseMoveEvent(QMouseEvent* event)
{
	_SendPointer(B_MOUSE_MOVED, event);
}


void
NativeWidget::enterEvent(QEnterEvent*)
{
	if (MouseMode() == B_FOCUS_FOLLOWS_MOUSE && !IsBlocked())
		activateWindow();
}


void
NativeWidget::leaveEvent(QEvent*)
{
	// A button that is held keeps the pointer here. A menu may have taken the release.
	if (QGuiApplication::mouseButtons() != Qt::NoButton || IsBlocked())
		return;
	PointerState pointer = CurrentPointer();
	pointer.isOurs = false;
	pointer.buttons = 0;
	SetCurrentPointer(pointer);
	BMessage message(B_MOUSE_MOVED);
	message.AddInt64("when", system_time());
	message.AddPoint("screen_where", pointer.screenWhere);
	message.AddInt32("buttons", 0);
	message.AddInt32("modifiers", CurrentKeys().modifiers);
	message.AddInt32(kInputKind, kInputPointer);
	message.AddPoint(kInputWhere,
		to_point(FromScreen(QPointF(pointer.screenWhere.x, pointer.screenWhere.y))));
	message.AddBool(kInputOutside, true);
	fWindow->Send(message);
}


void
NativeWidget::wheelEvent(QWheelEvent* event)
{
	AdoptModifiers(event->modifiers());
	event->accept();
	if (IsBlocked() || event->angleDelta().isNull())
		return;
	BMessage message(B_MOUSE_WHEEL_CHANGED);
	message.AddInt64("when", system_time());
	message.AddFloat("be:wheel_delta_x", -event->angleDelta().x() / kAnglePerNotch);
	message.AddFloat("be:wheel_delta_y", -event->angleDelta().y() / kAnglePerNotch);
	message.AddInt32("modifiers", CurrentKeys().modifiers);
	message.AddInt32(kInputKind, kInputPointer);
	message.AddPoint(kInputWhere, to_point(event->position()));
	fWindow->Send(message);
}


// The keyboard.


void
NativeWidget::_SendKeys(QKeyEvent* event, bool down)
{
	event->accept();
	const bool isBlocked = IsBlocked();
	for (BMessage& message : MessagesForKey(*event, down)) {
		if (isBlocked && message.what != B_MODIFIERS_CHANGED)
			continue;
		message.AddInt32(kInputKind, kInputKey);
		fWindow->Send(message);
	}
}


void
NativeWidget::keyPressEvent(QKeyEvent* event)
{
	_SendKeys(event, true);
}


void
NativeWidget::keyReleaseEvent(QKeyEvent* event)
{
	_SendKeys(event, false);
}


void
NativeWidget::focusInEvent(QFocusEvent*)
{
}


void
NativeWidget::focusOutEvent(QFocusEvent* event)
{
	// A menu of the program takes the keys for a while, and gives them back.
	if (event->reason() != Qt::PopupFocusReason)
		ForgetHeldKeys();
}


bool
NativeWidget::focusNextPrevChild(bool)
{
	return false;
}


void
NativeWidget::inputMethodEvent(QInputMethodEvent* event)
{
	event->accept();
	if (event->commitString().isEmpty() || IsBlocked())
		return;
	BMessage message = MessageForText(event->commitString());
	message.AddInt32(kInputKind, kInputKey);
	fWindow->Send(message);
}


QVariant
NativeWidget::inputMethodQuery(Qt::InputMethodQuery query) const
{
	if (query == Qt::ImEnabled)
		return true;
	return QWidget::inputMethodQuery(query);
}


// Drops.


void
NativeWidget::dragEnterEvent(QDragEnterEvent* event)
{
	if (IsBlocked() || !CanTakeDrop(*event->mimeData()))
		return;
	event->setDropAction(Qt::CopyAction);
	event->accept();
}


void
NativeWidget::dragMoveEvent(QDragMoveEvent* event)
{
	event->setDropAction(Qt::CopyAction);
	event->accept();
}


void
NativeWidget::_SendDrop(BMessage& message, const QPointF& where, BPoint offset,
	const BMessenger& replyTo)
{
	message.AddPoint("_drop_point_", to_point(ToScreen(where)));
	message.AddPoint("_drop_offset_", offset);
	MessageAccess::EnvelopeOf(message).dropped = true;
	message.AddInt32(kInputKind, kInputDrop);
	message.AddPoint(kInputWhere, to_point(where));
	fWindow->Send(message, replyTo);
}


void
NativeWidget::dropEvent(QDropEvent* event)
{
	AdoptModifiers(event->modifiers());
	BMessage message;
	if (IsBlocked() || !MessageForDrop(*event->mimeData(), message)) {
		event->ignore();
		return;
	}
	message.AddInt64("when", system_time());
	message.AddInt32("buttons", haiku_buttons(event->buttons()));
	_SendDrop(message, event->position(), BPoint(0, 0), BMessenger());
	event->setDropAction(Qt::CopyAction);
	event->accept();
}

} // namespace hosted
