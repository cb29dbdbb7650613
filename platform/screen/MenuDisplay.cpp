// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/MenuDisplay.h"

#include <condition_variable>
#include <mutex>
#include <utility>

#include <QActionGroup>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>

#include "platform/screen/DisplayThread.h"
#include "platform/screen/KeyMessages.h"
#include "platform/screen/NativeWidget.h"


namespace hosted {

struct NativeMenu::State {
	std::mutex mutex;
	std::condition_variable changed;
	bool over = false;
	int choice = -1;
	// Of the display thread alone.
	QPointer<QMenu> menu;
};


/*!	A native menu that knows how the platform's menus treat the button that opened them.
 */
class NativeMenu::Window : public QMenu {
public:
	// What a menu and its submenus share.
	struct Gesture {
		MenuPlace place;
		QElapsedTimer age;
		// The button that opened the menu is up again, or another press came.
		bool settled = false;
	};

	Window(std::shared_ptr<const MenuContents> contents, std::shared_ptr<Gesture> gesture,
		QWidget* parent);

protected:
	void mousePressEvent(QMouseEvent* event) override;
	void mouseReleaseEvent(QMouseEvent* event) override;

private:
	void _Build();
	void _AddLine(const MenuLine& line, QActionGroup* group);
	bool _IsOverAnyMenu(const QPoint& screen) const;
	bool _KeepsOpen(const QPoint& screen) const;

private:
	std::shared_ptr<const MenuContents> fContents;
	std::shared_ptr<Gesture> fGesture;
};


namespace {

QString
text_of(const MenuLine& line)
{
	QString text = QString::fromStdString(line.label);
	text.replace(QLatin1Char('\t'), QLatin1Char(' '));
	int trigger = -1;
	if (line.trigger != 0)
		trigger = text.indexOf(QLatin1Char(line.trigger), 0, Qt::CaseInsensitive);
	QString result;
	for (int i = 0; i < text.size(); i++) {
		if (i == trigger || text[i] == QLatin1Char('&'))
			result += QLatin1Char('&');
		result += text[i];
	}
	if (!line.shortcut.empty())
		result += QLatin1Char('\t') + QString::fromStdString(line.shortcut);
	return result;
}

} // namespace


NativeMenu::Window::Window(std::shared_ptr<const MenuContents> contents,
	std::shared_ptr<Gesture> gesture, QWidget* parent)
	:
	QMenu(parent),
	fContents(std::move(contents)),
	fGesture(std::move(gesture))
{
	QFont font(QString::fromStdString(fContents->fontFamily));
	font.setPixelSize(fContents->fontPixels);
	font.setBold(fContents->bold);
	font.setItalic(fContents->italic);
	setFont(font);
	// Qt would leave out those at the ends and beside others.
	setSeparatorsCollapsible(false);
	_Build();
}


void
NativeMenu::Window::_Build()
{
	QActionGroup* group = nullptr;
	if (fContents->radio) {
		group = new QActionGroup(this);
		// At most one: a radio menu may also begin without a mark.
		group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
	}
	for (const MenuLine& line : fContents->lines)
		_AddLine(line, group);
}


void
NativeMenu::Window::_AddLine(const MenuLine& line, QActionGroup* group)
{
	if (line.kind == MenuLine::kSeparator) {
		addSeparator();
		return;
	}
	if (line.kind == MenuLine::kSubmenu) {
		Window* submenu = new Window(line.submenu, fGesture, this);
		submenu->setTitle(text_of(line));
		QAction* action = addMenu(submenu);
		action->setEnabled(line.enabled);
		return;
	}
	QAction* action = addAction(text_of(line));
	action->setData(line.choice);
	action->setEnabled(line.enabled);
	if (line.marked || group != nullptr) {
		action->setCheckable(true);
		action->setChecked(line.marked);
	}
	if (group != nullptr)
		group->addAction(action);
}


void
NativeMenu::Window::mousePressEvent(QMouseEvent* event)
{
	fGesture->settled = true;
	QMenu::mousePressEvent(event);
}


void
NativeMenu::Window::mouseReleaseEvent(QMouseEvent* event)
{
	if (fGesture->settled) {
		QMenu::mouseReleaseEvent(event);
		return;
	}
	fGesture->settled = true;
	const QPoint screen = event->globalPosition().toPoint();
	const auto age = std::chrono::milliseconds(fGesture->age.elapsed());
	if (age < fGesture->place.clickTime || _KeepsOpen(screen))
		return;
	if (_IsOverAnyMenu(screen)) {
		QMenu::mouseReleaseEvent(event);
		return;
	}
	if (!fGesture->place.staysOpen) {
		QWidget* root = this;
		while (qobject_cast<QMenu*>(root->parentWidget()) != nullptr)
			root = root->parentWidget();
		root->close();
	}
}


bool
NativeMenu::Window::_IsOverAnyMenu(const QPoint& screen) const
{
	for (const QWidget* menu = this; menu != nullptr; menu = menu->parentWidget()) {
		if (qobject_cast<const QMenu*>(menu) == nullptr)
			break;
		if (menu->rect().contains(menu->mapFromGlobal(screen)))
			return true;
	}
	return false;
}


bool
NativeMenu::Window::_KeepsOpen(const QPoint& screen) const
{
	const MenuPlace& place = fGesture->place;
	return screen.x() >= place.keepLeft && screen.x() <= place.keepRight
		&& screen.y() >= place.keepTop && screen.y() <= place.keepBottom;
}


NativeMenu::NativeMenu(std::shared_ptr<State> state)
	:
	fState(std::move(state))
{
}


namespace {

// Where the desktop keeps windows' places to itself, Qt counts from each window's own corner.
void
move_to_qt_coordinates(MenuPlace& place, const QWidget* parent)
{
	const auto* window = dynamic_cast<const NativeWidget*>(parent);
	if (window == nullptr)
		return;
	const QPoint offset = window->QtOffset();
	place.x += offset.x();
	place.y += offset.y();
	place.keepLeft += offset.x();
	place.keepRight += offset.x();
	place.keepTop += offset.y();
	place.keepBottom += offset.y();
}

} // namespace


std::shared_ptr<NativeMenu>
NativeMenu::Open(std::shared_ptr<const MenuContents> contents, const MenuPlace& place)
{
	auto state = std::make_shared<State>();
	const auto finish = [state]() {
		std::lock_guard<std::mutex> lock(state->mutex);
		state->over = true;
		state->changed.notify_all();
	};
	// An empty menu would be a speck that hardly anyone could close on purpose.
	const bool ran = !contents->lines.empty() && DisplayThread::Call([&]() {
		auto gesture = std::make_shared<Window::Gesture>();
		gesture->place = place;
		gesture->age.start();
		// Where there is none, in the background of a desktop for example, the menu stands alone.
		QWidget* parent = QApplication::activeWindow();
		move_to_qt_coordinates(gesture->place, parent);
		const QPoint where(gesture->place.x, gesture->place.y);
		Window* menu = new Window(std::move(contents), std::move(gesture), parent);
		menu->setAttribute(Qt::WA_DeleteOnClose);
		state->menu = menu;
		QObject::connect(menu, &QMenu::triggered, [state](QAction* action) {
			// The menu had the keyboard, and who is chosen may ask what was held.
			AdoptModifiers(QGuiApplication::keyboardModifiers());
			std::lock_guard<std::mutex> lock(state->mutex);
			bool isNumber = false;
			const int choice = action->data().toInt(&isNumber);
			if (isNumber)
				state->choice = choice;
		});
		QObject::connect(menu, &QObject::destroyed, finish);
		QObject::connect(qApp, &QCoreApplication::aboutToQuit, menu, [menu]() { delete menu; });
		menu->popup(where);
	});
	if (!ran)
		finish();
	return std::shared_ptr<NativeMenu>(new NativeMenu(std::move(state)));
}


bool
NativeMenu::WaitFor(std::chrono::milliseconds limit)
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	return fState->changed.wait_for(lock, limit, [this]() { return fState->over; });
}


void
NativeMenu::Wait()
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->changed.wait(lock, [this]() { return fState->over; });
}


int
NativeMenu::Choice()
{
	std::lock_guard<std::mutex> lock(fState->mutex);
	return fState->choice;
}


void
NativeMenu::Close()
{
	DisplayThread::Post([state = fState]() {
		if (state->menu != nullptr)
			state->menu->close();
	});
}

} // namespace hosted
