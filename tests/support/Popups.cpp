// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Popups.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>

#include "platform/screen/DisplayThread.h"
#include "tests/support/Wait.h"


namespace test {

namespace {

QMenu*
open_menu()
{
	return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}


QDialog*
open_dialog()
{
	const QWidgetList widgets = QApplication::topLevelWidgets();
	for (QWidget* widget : widgets) {
		QDialog* dialog = qobject_cast<QDialog*>(widget);
		if (dialog != nullptr && dialog->isVisible())
			return dialog;
	}
	return nullptr;
}


// Runs the function with the innermost open menu, if there is one, in the display thread.
bool
with_menu(const std::function<bool(QMenu*)>& function)
{
	bool result = false;
	hosted::DisplayThread::Call([&]() {
		QMenu* menu = open_menu();
		result = menu != nullptr && function(menu);
	});
	return result;
}


bool
with_dialog(const std::function<bool(QDialog*)>& function)
{
	bool result = false;
	hosted::DisplayThread::Call([&]() {
		QDialog* dialog = open_dialog();
		result = dialog != nullptr && function(dialog);
	});
	return result;
}


QString
plain(QString text)
{
	text.replace(QLatin1String("&&"), QLatin1String("\x01"));
	text.remove(QLatin1Char('&'));
	text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
	return text;
}


QAction*
find_action(QMenu* menu, const std::string& label)
{
	const QList<QAction*> actions = menu->actions();
	for (QAction* action : actions) {
		if (plain(action->text()).toStdString() == label)
			return action;
	}
	return nullptr;
}


void
send_mouse(QWidget* widget, QEvent::Type type, const QPoint& where, Qt::MouseButton button,
	Qt::MouseButtons buttons)
{
	QPointer<QWidget> target(widget);
	if (target == nullptr)
		return;
	QMouseEvent event(type, where, widget->mapToGlobal(where), button, buttons, Qt::NoModifier);
	QApplication::sendEvent(widget, &event);
}


// Far enough in many steps that the menu takes it for a movement.
void
drag_to(QMenu* menu, const QPoint& where)
{
	for (int i = 4; i >= 0; i--) {
		send_mouse(menu, QEvent::MouseMove, where + QPoint(4 * i, 0), Qt::NoButton,
			Qt::RightButton);
	}
}

} // namespace


bool
WaitForMenu()
{
	return WaitFor([]() { return with_menu([](QMenu* menu) { return menu->isVisible(); }); });
}


bool
WaitForNoMenu()
{
	return WaitFor([]() { return !with_menu([](QMenu*) { return true; }); });
}


std::vector<MenuRow>
MenuRows()
{
	std::vector<MenuRow> rows;
	with_menu([&](QMenu* menu) {
		const QList<QAction*> actions = menu->actions();
		for (QAction* action : actions) {
			MenuRow row;
			row.label = plain(action->text()).toStdString();
			row.separator = action->isSeparator();
			row.enabled = action->isEnabled() && !action->isSeparator();
			row.checkable = action->isCheckable();
			row.checked = action->isChecked();
			row.radio = action->actionGroup() != nullptr;
			row.submenu = action->menu() != nullptr;
			row.height = menu->actionGeometry(action).height();
			rows.push_back(row);
		}
		return true;
	});
	return rows;
}


int
MenuFontPixels()
{
	int pixels = 0;
	with_menu([&](QMenu* menu) {
		pixels = menu->font().pixelSize();
		return true;
	});
	return pixels;
}


bool
MenuCorner(int* x, int* y)
{
	return with_menu([&](QMenu* menu) {
		*x = menu->frameGeometry().left();
		*y = menu->frameGeometry().top();
		return true;
	});
}


bool
ClickMenuRow(const std::string& label)
{
	return with_menu([&](QMenu* menu) {
		QAction* action = find_action(menu, label);
		if (action == nullptr)
			return false;
		const QPoint where = menu->actionGeometry(action).center();
		QPointer<QMenu> target(menu);
		send_mouse(menu, QEvent::MouseMove, where, Qt::NoButton, Qt::NoButton);
		if (target != nullptr)
			send_mouse(menu, QEvent::MouseButtonPress, where, Qt::LeftButton, Qt::LeftButton);
		if (target != nullptr)
			send_mouse(menu, QEvent::MouseButtonRelease, where, Qt::LeftButton, Qt::NoButton);
		return true;
	});
}


bool
ReleaseOverMenuRow(const std::string& label)
{
	return with_menu([&](QMenu* menu) {
		QAction* action = find_action(menu, label);
		if (action == nullptr)
			return false;
		const QPoint where = menu->actionGeometry(action).center();
		drag_to(menu, where);
		send_mouse(menu, QEvent::MouseButtonRelease, where, Qt::RightButton, Qt::NoButton);
		return true;
	});
}


bool
ReleaseOutsideMenu()
{
	return with_menu([&](QMenu* menu) {
		const QPoint where = menu->rect().bottomRight() + QPoint(50, 50);
		send_mouse(menu, QEvent::MouseButtonRelease, where, Qt::RightButton, Qt::NoButton);
		return true;
	});
}


bool
PressKey(int key, const std::string& text)
{
	bool result = false;
	hosted::DisplayThread::Call([&]() {
		QWidget* target = open_menu();
		if (target == nullptr && open_dialog() != nullptr) {
			target = open_dialog()->focusWidget();
			if (target == nullptr)
				target = open_dialog();
		}
		if (target == nullptr)
			return;
		result = true;
		const QString typed = QString::fromStdString(text);
		QPointer<QWidget> guarded(target);
		QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
		QApplication::sendEvent(target, &press);
		QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, typed);
		if (guarded != nullptr)
			QApplication::sendEvent(target, &release);
	});
	return result;
}


bool
WaitForDialog()
{
	return WaitFor([]() { return with_dialog([](QDialog*) { return true; }); });
}


bool
WaitForNoDialog()
{
	return WaitFor([]() { return !with_dialog([](QDialog*) { return true; }); });
}


std::string
DialogTitle()
{
	std::string title;
	with_dialog([&](QDialog* dialog) {
		title = dialog->windowTitle().toStdString();
		return true;
	});
	return title;
}


std::string
DialogText()
{
	std::string text;
	with_dialog([&](QDialog* dialog) {
		const QLabel* label = dialog->findChild<QLabel*>(QStringLiteral("text"));
		if (label != nullptr)
			text = label->text().toStdString();
		return true;
	});
	return text;
}


bool
DialogHasIcon()
{
	return with_dialog([](QDialog* dialog) {
		const QLabel* label = dialog->findChild<QLabel*>(QStringLiteral("icon"));
		return label != nullptr && !label->pixmap(Qt::ReturnByValue).isNull();
	});
}


bool
DialogTextFits()
{
	return with_dialog([](QDialog* dialog) {
		const QLabel* label = dialog->findChild<QLabel*>(QStringLiteral("text"));
		if (label == nullptr || label->height() < label->heightForWidth(label->width()))
			return false;
		const QScrollArea* area = dialog->findChild<QScrollArea*>();
		return area == nullptr || area->viewport()->width() >= label->width();
	});
}


bool
DialogFrame(int frame[4])
{
	return with_dialog([&](QDialog* dialog) {
		const QRect rect = dialog->geometry();
		frame[0] = rect.left();
		frame[1] = rect.top();
		frame[2] = rect.right();
		frame[3] = rect.bottom();
		return true;
	});
}


std::vector<std::string>
DialogButtons()
{
	std::vector<std::string> labels;
	with_dialog([&](QDialog* dialog) {
		const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
		for (const QPushButton* button : buttons)
			labels.push_back(plain(button->text()).toStdString());
		return true;
	});
	return labels;
}


std::string
DialogDefaultButton()
{
	std::string label;
	with_dialog([&](QDialog* dialog) {
		const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
		for (const QPushButton* button : buttons) {
			if (button->isDefault())
				label = plain(button->text()).toStdString();
		}
		return true;
	});
	return label;
}


bool
ClickDialogButton(const std::string& label)
{
	return with_dialog([&](QDialog* dialog) {
		const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
		for (QPushButton* button : buttons) {
			if (plain(button->text()).toStdString() != label)
				continue;
			const QPoint where = button->rect().center();
			send_mouse(button, QEvent::MouseButtonPress, where, Qt::LeftButton, Qt::LeftButton);
			send_mouse(button, QEvent::MouseButtonRelease, where, Qt::LeftButton, Qt::NoButton);
			return true;
		}
		return false;
	});
}


bool
CloseDialog()
{
	return with_dialog([](QDialog* dialog) {
		dialog->close();
		return true;
	});
}

} // namespace test
