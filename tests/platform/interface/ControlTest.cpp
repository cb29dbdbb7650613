// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Control.h>

#include <gtest/gtest.h>

#include <Box.h>
#include <Button.h>
#include <CheckBox.h>
#include <Message.h>
#include <Messenger.h>
#include <StringView.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/Receiver.h"


namespace {

const BRect kFrame(10, 10, 109, 39);


/*!	A window that is never shown, and a receiver for what controls send.
 */
class ControlTest : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fReceiver = new test::Receiver;
		fWindow = new BWindow(BRect(50, 50, 349, 249), "controls", B_TITLED_WINDOW, 0);
	}

	void TearDown() override
	{
		fWindow->Quit();
		fReceiver->Lock();
		fReceiver->Quit();
	}

	// Attaches the control, which the window then owns.
	template <class Type>
	Type* Attach(Type* control)
	{
		control->SetTarget(fReceiver);
		fWindow->AddChild(control);
		return control;
	}

	test::Receiver* fReceiver = nullptr;
	BWindow* fWindow = nullptr;
};


BCheckBox*
new_check_box()
{
	return new BCheckBox(kFrame, "box", "Label", new BMessage('chck'));
}


BButton*
new_button(const char* label = "Press")
{
	return new BButton(kFrame, "button", label, new BMessage('push'));
}

} // namespace


TEST_F(ControlTest, InvokeSendsACopyWithItsFields)
{
	BCheckBox* box = Attach(new_check_box());
	box->SetValue(B_CONTROL_ON);
	EXPECT_TRUE(fReceiver->HasOnly(0));
	EXPECT_EQ(box->Invoke(), B_OK);
	ASSERT_TRUE(fReceiver->WaitForMessages(1));
	const BMessage message = fReceiver->Messages()[0];
	EXPECT_EQ(message.what, uint32('chck'));
	EXPECT_EQ(message.GetInt32("be:value", -1), B_CONTROL_ON);
	EXPECT_TRUE(message.HasInt64("when"));
	void* source = nullptr;
	EXPECT_EQ(message.FindPointer("source", &source), B_OK);
	EXPECT_EQ(source, static_cast<BControl*>(box));
	BMessenger sender;
	EXPECT_EQ(message.FindMessenger("be:sender", &sender), B_OK);
	EXPECT_TRUE(sender == BMessenger(box));
	EXPECT_FALSE(box->Message()->HasInt64("when"));
}


TEST_F(ControlTest, InvokeWithoutMessageFails)
{
	BCheckBox* box = Attach(new BCheckBox(kFrame, "box", "Label", nullptr));
	EXPECT_EQ(box->Invoke(), B_BAD_VALUE);
	BMessage other('othr');
	EXPECT_EQ(box->Invoke(&other), B_OK);
	ASSERT_TRUE(fReceiver->WaitForMessages(1));
	EXPECT_EQ(fReceiver->Messages()[0].what, uint32('othr'));
}


TEST_F(ControlTest, UntargetedControlGoesToItsWindow)
{
	BCheckBox* box = new_check_box();
	EXPECT_FALSE(box->Messenger().IsValid());
	fWindow->AddChild(box);
	EXPECT_EQ(box->Target(), fWindow);
}


TEST_F(ControlTest, TakesTheColorOfTheViewItLiesIn)
{
	BView* parent = new BView(BRect(0, 0, 199, 199), "parent", B_FOLLOW_NONE, B_WILL_DRAW);
	parent->SetViewColor(10, 20, 30);
	fWindow->AddChild(parent);
	BCheckBox* inside = new_check_box();
	parent->AddChild(inside);
	EXPECT_EQ(inside->ViewColor(), make_color(10, 20, 30));
	EXPECT_EQ(inside->LowColor(), make_color(10, 20, 30));
	BCheckBox* alone = Attach(new_check_box());
	EXPECT_EQ(alone->ViewColor(), ui_color(B_PANEL_BACKGROUND_COLOR));
	BBox* box = new BBox(kFrame);
	parent->AddChild(box);
	EXPECT_EQ(box->ViewColor(), make_color(10, 20, 30));
}


TEST_F(ControlTest, CheckBoxTogglesWithMouseAndKeys)
{
	BCheckBox* box = Attach(new_check_box());
	box->MouseDown(BPoint(5, 5));
	EXPECT_EQ(box->Value(), B_CONTROL_OFF);
	box->MouseUp(BPoint(5, 5));
	EXPECT_EQ(box->Value(), B_CONTROL_ON);
	EXPECT_TRUE(fReceiver->WaitForMessages(1));

	box->MouseDown(BPoint(5, 5));
	box->MouseMoved(BPoint(500, 5), B_EXITED_VIEW, nullptr);
	box->MouseUp(BPoint(500, 5));
	EXPECT_EQ(box->Value(), B_CONTROL_ON);

	const char space = B_SPACE;
	box->KeyDown(&space, 1);
	EXPECT_EQ(box->Value(), B_CONTROL_OFF);
	EXPECT_TRUE(fReceiver->WaitForMessages(2));
	EXPECT_EQ(fReceiver->Messages()[1].GetInt32("be:value", -1), B_CONTROL_OFF);
}


TEST_F(ControlTest, DisabledControlsDoNothing)
{
	BCheckBox* box = Attach(new_check_box());
	BButton* button = Attach(new_button());
	box->SetEnabled(false);
	button->SetEnabled(false);
	EXPECT_FALSE(box->IsEnabled());
	const char enter = B_ENTER;
	for (BControl* control : {static_cast<BControl*>(box), static_cast<BControl*>(button)}) {
		control->MouseDown(BPoint(5, 5));
		control->MouseUp(BPoint(5, 5));
		control->KeyDown(&enter, 1);
		EXPECT_EQ(control->Value(), B_CONTROL_OFF);
	}
	EXPECT_TRUE(fReceiver->HasOnly(0));
}


TEST_F(ControlTest, ButtonInvokesWhenLetGoInside)
{
	BButton* button = Attach(new_button());
	button->MouseDown(BPoint(5, 5));
	EXPECT_EQ(button->Value(), B_CONTROL_ON);
	button->MouseMoved(BPoint(500, 5), B_EXITED_VIEW, nullptr);
	EXPECT_EQ(button->Value(), B_CONTROL_OFF);
	button->MouseUp(BPoint(500, 5));
	EXPECT_TRUE(fReceiver->HasOnly(0));

	button->MouseDown(BPoint(5, 5));
	button->MouseUp(BPoint(5, 5));
	EXPECT_EQ(button->Value(), B_CONTROL_OFF);
	ASSERT_TRUE(fReceiver->WaitForMessages(1));
	EXPECT_EQ(fReceiver->Messages()[0].GetInt32("be:value", -1), B_CONTROL_ON);

	const char enter = B_ENTER;
	button->KeyDown(&enter, 1);
	EXPECT_TRUE(fReceiver->WaitForMessages(2));
	EXPECT_EQ(button->Value(), B_CONTROL_OFF);
}


TEST_F(ControlTest, OnlyOneButtonIsTheDefault)
{
	BButton* first = Attach(new_button("first"));
	BButton* second = Attach(new_button("second"));
	EXPECT_EQ(fWindow->DefaultButton(), nullptr);
	first->MakeDefault(true);
	EXPECT_EQ(fWindow->DefaultButton(), first);
	EXPECT_TRUE(first->IsDefault());
	second->MakeDefault(true);
	EXPECT_EQ(fWindow->DefaultButton(), second);
	EXPECT_FALSE(first->IsDefault());
	second->MakeDefault(false);
	EXPECT_EQ(fWindow->DefaultButton(), nullptr);

	fWindow->SetDefaultButton(first);
	EXPECT_TRUE(first->IsDefault());
	first->RemoveSelf();
	EXPECT_EQ(fWindow->DefaultButton(), nullptr);
	delete first;
}


TEST_F(ControlTest, DefaultButtonGivenBeforeTheWindow)
{
	BButton* button = new_button();
	button->MakeDefault(true);
	Attach(button);
	EXPECT_EQ(fWindow->DefaultButton(), button);
}


TEST_F(ControlTest, LabelsMayBeMissing)
{
	BCheckBox* box = Attach(new BCheckBox(kFrame, "box", nullptr, nullptr));
	EXPECT_EQ(box->Label(), nullptr);
	box->SetLabel("text");
	EXPECT_STREQ(box->Label(), "text");
}


TEST_F(ControlTest, PreferredSizeHoldsTheLabel)
{
	BButton* button = Attach(new_button("A button with quite a long label on it"));
	button->ResizeToPreferred();
	EXPECT_GE(button->Bounds().Width(), button->StringWidth(button->Label()));
	BCheckBox* box = Attach(new_check_box());
	box->ResizeToPreferred();
	EXPECT_GE(box->Bounds().Width(), box->StringWidth("Label") + 13);
}


TEST_F(ControlTest, StringViewKeepsTextAndTakesParentsColor)
{
	BView* parent = new BView(BRect(0, 0, 199, 199), "parent", B_FOLLOW_NONE, B_WILL_DRAW);
	parent->SetViewColor(10, 20, 30);
	fWindow->AddChild(parent);
	BStringView* view = new BStringView(kFrame, "text", "Hello");
	EXPECT_EQ(view->ViewColor(), make_color(255, 255, 255));
	parent->AddChild(view);
	EXPECT_EQ(view->ViewColor(), make_color(10, 20, 30));
	EXPECT_EQ(view->LowColor(), make_color(10, 20, 30));
	EXPECT_EQ(view->Alignment(), B_ALIGN_LEFT);
	EXPECT_EQ(view->Truncation(), uint32(B_NO_TRUNCATION));
	EXPECT_STREQ(view->Text(), "Hello");
	view->SetText("Bye");
	EXPECT_STREQ(view->Text(), "Bye");
	view->SetText(nullptr);
	EXPECT_EQ(view->Text(), nullptr);
}
