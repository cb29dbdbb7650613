// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What screen readers learn of windows. All of it happens in the display thread.
#include "platform/screen/Accessibility.h"

#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/screen/NativeWidget.h"


namespace hosted {

namespace {

// One view of the window, by its place among those that show a text.
class ViewItem : public QAccessibleInterface {
public:
	ViewItem(NativeWidget& widget, int index)
		:
		fWidget(widget),
		fIndex(index)
	{
	}

	bool isValid() const override { return fIndex < fWidget.CountTexts(); }
	QObject* object() const override { return nullptr; }
	QAccessibleInterface* childAt(int, int) const override { return nullptr; }
	QAccessibleInterface* child(int) const override { return nullptr; }
	int childCount() const override { return 0; }
	int indexOfChild(const QAccessibleInterface*) const override { return -1; }
	void setText(QAccessible::Text, const QString&) override {}
	QAccessible::Role role() const override { return QAccessible::ListItem; }

	QAccessibleInterface* parent() const override
	{
		return QAccessible::queryAccessibleInterface(&fWidget);
	}

	QString text(QAccessible::Text kind) const override
	{
		return kind == QAccessible::Name ? fWidget.TextAt(fIndex).text : QString();
	}

	QRect rect() const override
	{
		const QRect frame = fWidget.TextAt(fIndex).frame;
		return QRect(fWidget.mapToGlobal(frame.topLeft()), frame.size());
	}

	QAccessible::State state() const override
	{
		QAccessible::State state;
		state.readOnly = true;
		state.invisible = !isValid() || !fWidget.isVisible();
		state.active = fWidget.isActiveWindow();
		return state;
	}

private:
	NativeWidget& fWidget;
	int fIndex;
};


class WindowItem : public QAccessibleWidget {
public:
	explicit WindowItem(NativeWidget& widget)
		:
		QAccessibleWidget(&widget, QAccessible::Window),
		fWidget(widget)
	{
	}

	~WindowItem() override
	{
		for (const QAccessible::Id id : fItems)
			QAccessible::deleteAccessibleInterface(id);
	}

	int childCount() const override { return fWidget.CountTexts(); }

	QAccessibleInterface* child(int index) const override
	{
		if (index < 0 || index >= childCount())
			return nullptr;
		while (static_cast<int>(fItems.size()) <= index) {
			const int next = static_cast<int>(fItems.size());
			fItems.push_back(QAccessible::registerAccessibleInterface(new ViewItem(fWidget, next)));
		}
		return QAccessible::accessibleInterface(fItems[static_cast<size_t>(index)]);
	}

	int indexOfChild(const QAccessibleInterface* item) const override
	{
		for (int index = 0; index < childCount(); index++) {
			if (child(index) == item)
				return index;
		}
		return -1;
	}

	// The innermost comes last.
	QAccessibleInterface* childAt(int x, int y) const override
	{
		for (int index = childCount() - 1; index >= 0; index--) {
			if (child(index)->rect().contains(x, y))
				return child(index);
		}
		return nullptr;
	}

private:
	NativeWidget& fWidget;
	// Made when they are first asked for, kept as long as the window.
	mutable std::vector<QAccessible::Id> fItems;
};


QAccessibleInterface*
make_item(const QString&, QObject* object)
{
	NativeWidget* const widget = dynamic_cast<NativeWidget*>(object);
	return widget != nullptr ? new WindowItem(*widget) : nullptr;
}

} // namespace


void
OfferAccessibility()
{
	QAccessible::installFactory(make_item);
}

} // namespace hosted
