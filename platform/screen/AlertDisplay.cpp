// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/AlertDisplay.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <utility>

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/screen/DisplayThread.h"


namespace hosted {

struct NativeAlert::State {
	std::mutex mutex;
	std::condition_variable changed;
	bool over = false;
	int choice = -1;
	// Of the display thread alone.
	QPointer<QDialog> dialog;
};


class NativeAlert::Dialog : public QDialog {
public:
	Dialog(const AlertContents& contents, std::shared_ptr<State> state, const QWidget* over);

	bool eventFilter(QObject* watched, QEvent* event) override;
	void reject() override;

protected:
	void keyPressEvent(QKeyEvent* event) override;

private:
	QWidget* _NewText(const QString& text);
	QWidget* _NewIcon();
	QLayout* _NewButtons();
	void _Place(const QWidget* below);
	void _Choose(int index);

private:
	AlertContents fContents;
	std::shared_ptr<State> fState;
	std::vector<QPushButton*> fButtons;
};


namespace {

constexpr int kTextWidth = 420;
constexpr int kMaxTextHeight = 360;
constexpr int kButtonWidth = 75;

QStyle::StandardPixmap
picture_of(AlertIcon icon)
{
	switch (icon) {
		case AlertIcon::kWarning:
			return QStyle::SP_MessageBoxWarning;
		case AlertIcon::kStop:
			return QStyle::SP_MessageBoxCritical;
		default:
			return QStyle::SP_MessageBoxInformation;
	}
}


// The key's character as key messages have it, 0 for keys that an alert cannot have as shortcut.
char
character_of(const QKeyEvent& event)
{
	switch (event.key()) {
		case Qt::Key_Return:
		case Qt::Key_Enter:
			return '\n';
		case Qt::Key_Escape:
			return 0x1b;
		case Qt::Key_Backspace:
			return 0x08;
		case Qt::Key_Delete:
			return 0x7f;
		case Qt::Key_Tab:
			return '\t';
		default:
			break;
	}
	const QByteArray text = event.text().toUtf8();
	return text.size() == 1 ? text[0] : 0;
}

} // namespace


NativeAlert::Dialog::Dialog(const AlertContents& contents, std::shared_ptr<State> state,
	const QWidget* over)
	:
	fContents(contents),
	fState(std::move(state))
{
	setAttribute(Qt::WA_DeleteOnClose);
	setWindowModality(Qt::ApplicationModal);
	setWindowTitle(QString::fromStdString(fContents.title));
	Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
	setWindowFlags(flags);

	QHBoxLayout* top = new QHBoxLayout;
	if (fContents.icon != AlertIcon::kNone)
		top->addWidget(_NewIcon(), 0, Qt::AlignTop);
	top->addWidget(_NewText(QString::fromStdString(fContents.text)), 1);
	QVBoxLayout* all = new QVBoxLayout(this);
	all->addLayout(top);
	all->addLayout(_NewButtons());
	all->setSizeConstraint(QLayout::SetFixedSize);
	adjustSize();
	_Place(over);
	// The window below is not the parent: an alert outlives the window that it stands over.
	winId();
	if (over != nullptr)
		windowHandle()->setTransientParent(over->windowHandle());
}


QWidget*
NativeAlert::Dialog::_NewIcon()
{
	const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
	QLabel* label = new QLabel;
	label->setObjectName(QStringLiteral("icon"));
	label->setPixmap(style()->standardIcon(picture_of(fContents.icon)).pixmap(size, size));
	return label;
}


// A text that is too long for the screen scrolls.
QWidget*
NativeAlert::Dialog::_NewText(const QString& text)
{
	QLabel* label = new QLabel;
	label->setObjectName(QStringLiteral("text"));
	label->setTextFormat(Qt::PlainText);
	label->setText(text);
	label->setWordWrap(true);
	label->setTextInteractionFlags(Qt::TextSelectableByMouse);
	label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
	const int wanted
		= label->fontMetrics().boundingRect(QRect(0, 0, 10000, 10000), 0, text).width() + 8;
	const int width = std::clamp(wanted, kTextWidth / 2, kTextWidth);
	const int height = label->heightForWidth(width);
	if (height <= kMaxTextHeight) {
		label->setFixedSize(width, height);
		return label;
	}
	QScrollArea* area = new QScrollArea;
	area->setFrameShape(QFrame::NoFrame);
	area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	area->setWidget(label);
	label->resize(width, height);
	const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area);
	area->setFixedSize(width + bar + 4, kMaxTextHeight);
	return area;
}


QLayout*
NativeAlert::Dialog::_NewButtons()
{
	QHBoxLayout* row = new QHBoxLayout;
	row->addStretch(1);
	int widest = 0;
	for (size_t i = 0; i < fContents.buttons.size(); i++) {
		QString label = QString::fromStdString(fContents.buttons[i].label);
		label.replace(QLatin1Char('&'), QLatin1String("&&"));
		QPushButton* button = new QPushButton(label);
		button->setAutoDefault(false);
		button->installEventFilter(this);
		connect(button, &QPushButton::clicked, this, [this, i]() { _Choose(int(i)); });
		if (fContents.width != AlertContents::kFromLabel)
			button->setMinimumWidth(kButtonWidth);
		widest = std::max({widest, button->sizeHint().width(), button->minimumWidth()});
		fButtons.push_back(button);
		row->addWidget(button);
		if (fContents.offset && i == 0 && fContents.buttons.size() == 3)
			row->addSpacing(kButtonWidth / 2);
	}
	if (fContents.width == AlertContents::kFromWidest) {
		for (QPushButton* button : fButtons)
			button->setMinimumWidth(widest);
	}
	if (!fButtons.empty()) {
		fButtons.back()->setDefault(true);
		fButtons.back()->setFocus();
	}
	return row;
}


void
NativeAlert::Dialog::_Place(const QWidget* below)
{
	QRect over(QPoint(fContents.overLeft, fContents.overTop),
		QPoint(fContents.overRight, fContents.overBottom));
	QScreen* screen = QGuiApplication::primaryScreen();
	if (!over.isEmpty() && QGuiApplication::screenAt(over.center()) != nullptr)
		screen = QGuiApplication::screenAt(over.center());
	const QRect available = screen->availableGeometry();
	if (over.isEmpty())
		over = below != nullptr ? below->frameGeometry() : available;
	QRect frame = rect();
	frame.moveCenter(over.center());
	frame.moveLeft(
		std::max(std::min(frame.left(), available.right() - frame.width()), available.left()));
	frame.moveTop(
		std::max(std::min(frame.top(), available.bottom() - frame.height()), available.top()));
	move(frame.topLeft());
}


void
NativeAlert::Dialog::_Choose(int index)
{
	{
		std::lock_guard<std::mutex> lock(fState->mutex);
		fState->choice = index;
	}
	done(QDialog::Accepted);
}


// Enter is the alert's, even where a button has the focus.
bool
NativeAlert::Dialog::eventFilter(QObject* watched, QEvent* event)
{
	if (event->type() == QEvent::KeyPress) {
		QKeyEvent* key = static_cast<QKeyEvent*>(event);
		if (character_of(*key) == '\n') {
			keyPressEvent(key);
			return true;
		}
	}
	return QDialog::eventFilter(watched, event);
}


void
NativeAlert::Dialog::keyPressEvent(QKeyEvent* event)
{
	const char key = character_of(*event);
	for (size_t i = 0; key != 0 && i < fContents.buttons.size(); i++) {
		if (fContents.buttons[i].key == key) {
			_Choose(int(i));
			return;
		}
	}
	if (key == '\n') {
		if (!fButtons.empty())
			_Choose(int(fButtons.size()) - 1);
		return;
	}
	if (key == 0x1b) {
		if (fContents.closesOnEscape)
			done(QDialog::Rejected);
		return;
	}
	QDialog::keyPressEvent(event);
}


// The window manager's close command and the like: an alert wants its answer.
void
NativeAlert::Dialog::reject()
{
	if (fContents.closesOnEscape)
		QDialog::reject();
}


NativeAlert::NativeAlert(std::shared_ptr<State> state)
	:
	fState(std::move(state))
{
}


std::shared_ptr<NativeAlert>
NativeAlert::Open(const AlertContents& contents)
{
	auto state = std::make_shared<State>();
	const auto finish = [state]() {
		std::lock_guard<std::mutex> lock(state->mutex);
		state->over = true;
		state->changed.notify_all();
	};
	const bool ran = DisplayThread::Call([&]() {
		Dialog* dialog = new Dialog(contents, state, QApplication::activeWindow());
		state->dialog = dialog;
		QObject::connect(dialog, &QObject::destroyed, finish);
		QObject::connect(qApp, &QCoreApplication::aboutToQuit, dialog,
			[dialog]() { delete dialog; });
		dialog->show();
		dialog->activateWindow();
	});
	if (!ran)
		finish();
	return std::shared_ptr<NativeAlert>(new NativeAlert(std::move(state)));
}


bool
NativeAlert::WaitFor(std::chrono::milliseconds limit)
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	return fState->changed.wait_for(lock, limit, [this]() { return fState->over; });
}


void
NativeAlert::Wait()
{
	std::unique_lock<std::mutex> lock(fState->mutex);
	fState->changed.wait(lock, [this]() { return fState->over; });
}


int
NativeAlert::Choice()
{
	std::lock_guard<std::mutex> lock(fState->mutex);
	return fState->choice;
}


void
NativeAlert::Close()
{
	DisplayThread::Post([state = fState]() { delete state->dialog; });
}

} // namespace hosted
