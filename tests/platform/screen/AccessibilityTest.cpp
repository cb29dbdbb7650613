// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <View.h>
#include <Window.h>
#include <gtest/gtest.h>

#include "tests/support/Desktop.h"

#include <QAccessible>
#include <QWidget>


namespace {

class Label : public BView {
public:
	Label(BRect frame, const char* text)
		:
		BView(frame, "label", 0, B_WILL_DRAW),
		fText(text)
	{
	}

	void Draw(BRect) override
	{
		DrawString(fText, BPoint(5, 15));
		DrawString(fText, BPoint(6, 16));
		DrawString("  [3] ", BPoint(60, 15));
	}

	const char* fText;
};


class Accessibility : public testing::Test {
protected:
	Accessibility()
	{
		test::Application();
		fWindow = new BWindow(BRect(100, 100, 300, 200), "A window", B_TITLED_WINDOW, 0);
		fFirst = new Label(BRect(10, 10, 110, 30), "First");
		fWindow->AddChild(fFirst);
		fWindow->AddChild(new Label(BRect(10, 40, 110, 60), "Zwölf"));
		fWindow->AddChild(new BView(BRect(10, 70, 110, 90), "silent", 0, B_WILL_DRAW));
		fWindow->Show();
		test::Settle(fWindow);
	}

	~Accessibility() override { test::CloseWindow(fWindow); }

	void Ask(const std::function<void(QAccessibleInterface& window, QWidget& widget)>& question)
	{
		EXPECT_TRUE(test::OnWidget(fWindow, [&](QWidget& widget) {
			QAccessibleInterface* const window = QAccessible::queryAccessibleInterface(&widget);
			ASSERT_NE(window, nullptr);
			question(*window, widget);
		}));
	}

	BWindow* fWindow;
	Label* fFirst;
};

} // namespace


TEST_F(Accessibility, WindowAndViewsHaveNames)
{
	Ask([](QAccessibleInterface& window, QWidget&) {
		EXPECT_EQ(window.text(QAccessible::Name), "A window");
		EXPECT_EQ(window.role(), QAccessible::Window);
		ASSERT_EQ(window.childCount(), 2);
		EXPECT_EQ(window.child(0)->text(QAccessible::Name), "First, [3]");
		EXPECT_EQ(window.child(1)->text(QAccessible::Name), QString::fromUtf8("Zwölf, [3]"));
		EXPECT_EQ(window.child(2), nullptr);
		EXPECT_EQ(window.child(-1), nullptr);
	});
}


TEST_F(Accessibility, ViewsHavePlacesAndStates)
{
	Ask([](QAccessibleInterface& window, QWidget& widget) {
		QAccessibleInterface* const item = window.child(1);
		EXPECT_EQ(item->rect(), QRect(widget.mapToGlobal(QPoint(10, 40)), QSize(101, 21)));
		EXPECT_EQ(item->role(), QAccessible::ListItem);
		EXPECT_TRUE(item->isValid());
		EXPECT_FALSE(item->state().invisible);
		EXPECT_EQ(item->parent(), &window);
		EXPECT_EQ(window.indexOfChild(item), 1);
		EXPECT_EQ(window.childAt(item->rect().x() + 3, item->rect().y() + 3), item);
		EXPECT_EQ(window.childAt(item->rect().x() - 3, item->rect().y()), nullptr);
	});
}


TEST_F(Accessibility, FollowsWhatIsDrawn)
{
	fWindow->Lock();
	fFirst->fText = "Other";
	fFirst->Invalidate();
	fWindow->Unlock();
	test::Settle(fWindow);
	Ask([](QAccessibleInterface& window, QWidget&) {
		EXPECT_EQ(window.child(0)->text(QAccessible::Name), "Other, [3]");
	});

	fWindow->Lock();
	fFirst->Hide();
	fWindow->Unlock();
	test::Settle(fWindow);
	Ask([](QAccessibleInterface& window, QWidget&) {
		ASSERT_EQ(window.childCount(), 1);
		EXPECT_EQ(window.child(0)->text(QAccessible::Name), QString::fromUtf8("Zwölf, [3]"));
	});
}
