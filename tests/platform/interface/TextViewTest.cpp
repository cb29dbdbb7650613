// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <TextView.h>

#include <string.h>
#include <string>

#include <gtest/gtest.h>

#include <Clipboard.h>
#include <Message.h>
#include <TextControl.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/Receiver.h"


namespace {

class TextViewTest : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new BWindow(BRect(50, 50, 449, 349), "text", B_TITLED_WINDOW, 0);
		fView
			= new BTextView(BRect(0, 0, 199, 99), "text", BRect(2, 2, 197, 97), B_FOLLOW_LEFT_TOP);
		fWindow->AddChild(fView);
	}

	void TearDown() override { fWindow->Quit(); }

	void Type(const char* bytes) { fView->KeyDown(bytes, int32(strlen(bytes))); }

	void Press(char byte, int times = 1)
	{
		for (int i = 0; i < times; i++)
			fView->KeyDown(&byte, 1);
	}

	std::string Selected() const
	{
		int32 begin;
		int32 end;
		fView->GetSelection(&begin, &end);
		return std::string(fView->Text()).substr(begin, end - begin);
	}

	int32 Caret() const
	{
		int32 begin;
		int32 end;
		fView->GetSelection(&begin, &end);
		EXPECT_EQ(begin, end);
		return end;
	}

	void Send(uint32 what)
	{
		BMessage message(what);
		fView->MessageReceived(&message);
	}

	BWindow* fWindow = nullptr;
	BTextView* fView = nullptr;
};

} // namespace


TEST_F(TextViewTest, TypingAndErasing)
{
	Type("a");
	Type("\u00e4");
	Type("b");
	EXPECT_STREQ(fView->Text(), "a\u00e4b");
	Press(B_LEFT_ARROW);
	Press(B_BACKSPACE);
	EXPECT_STREQ(fView->Text(), "ab");
	Press(B_DELETE);
	EXPECT_STREQ(fView->Text(), "a");
	Press(B_DELETE);
	EXPECT_STREQ(fView->Text(), "a");
	Press(B_BACKSPACE, 3);
	EXPECT_STREQ(fView->Text(), "");
	EXPECT_EQ(fView->TextLength(), 0);
}


TEST_F(TextViewTest, SelectionIsReplaced)
{
	fView->SetText("one two");
	fView->Select(4, 7);
	EXPECT_EQ(Selected(), "two");
	Type("3");
	EXPECT_STREQ(fView->Text(), "one 3");
	fView->SelectAll();
	Press(B_BACKSPACE);
	EXPECT_STREQ(fView->Text(), "");
}


TEST_F(TextViewTest, SelectNeverSplitsACharacter)
{
	fView->SetText("\u00e4\u00f6");
	fView->Select(1, 3);
	EXPECT_EQ(Selected(), "\u00e4");
	fView->Select(-5, 100);
	EXPECT_EQ(Selected(), "\u00e4\u00f6");
	fView->Select(3, 1);
	EXPECT_EQ(Selected(), "\u00e4\u00f6");
}


TEST_F(TextViewTest, InsertGoesWhereTheCaretIs)
{
	fView->SetText("ad");
	fView->Select(1, 1);
	fView->Insert("b");
	fView->Insert("c");
	EXPECT_STREQ(fView->Text(), "abcd");
	EXPECT_EQ(Caret(), 3);
	fView->Delete(1, 3);
	EXPECT_STREQ(fView->Text(), "ad");
}


TEST_F(TextViewTest, LinesBreakBetweenWords)
{
	fView->SetText("");
	EXPECT_EQ(fView->CountLines(), 1);
	fView->SetText("one\n\nthree");
	EXPECT_EQ(fView->CountLines(), 3);
	std::string longText;
	for (int i = 0; i < 30; i++)
		longText += "word ";
	fView->SetText(longText.c_str());
	const int32 wrapped = fView->CountLines();
	EXPECT_GT(wrapped, 3);
	EXPECT_LT(wrapped, 30);
	fView->SetWordWrap(false);
	EXPECT_EQ(fView->CountLines(), 1);
	fView->SetWordWrap(true);
	EXPECT_EQ(fView->CountLines(), wrapped);
	// A word wider than the view is broken anyway.
	fView->SetText(std::string(200, 'w').c_str());
	EXPECT_GT(fView->CountLines(), 3);
}


TEST_F(TextViewTest, ArrowsMoveTheCaret)
{
	fView->SetText("abc\nde\nfghi");
	Press(B_END);
	EXPECT_EQ(Caret(), 3);
	Press(B_RIGHT_ARROW);
	EXPECT_EQ(Caret(), 4);
	Press(B_DOWN_ARROW);
	EXPECT_EQ(Caret(), 7);
	Press(B_END);
	EXPECT_EQ(Caret(), 11);
	Press(B_UP_ARROW);
	EXPECT_EQ(Caret(), 6);
	Press(B_HOME);
	EXPECT_EQ(Caret(), 4);
	Press(B_UP_ARROW, 2);
	EXPECT_EQ(Caret(), 0);
	Press(B_LEFT_ARROW);
	EXPECT_EQ(Caret(), 0);
	Press(B_DOWN_ARROW, 10);
	EXPECT_EQ(Caret(), 11);
	Press(B_RIGHT_ARROW);
	EXPECT_EQ(Caret(), 11);
}


TEST_F(TextViewTest, MouseSelects)
{
	fView->SetText("abc def");
	fView->MouseDown(BPoint(0, 5));
	fView->MouseMoved(BPoint(190, 5), B_INSIDE_VIEW, nullptr);
	fView->MouseUp(BPoint(190, 5));
	EXPECT_EQ(Selected(), "abc def");
	fView->MouseMoved(BPoint(0, 5), B_INSIDE_VIEW, nullptr);
	EXPECT_EQ(Selected(), "abc def");
	fView->MouseDown(BPoint(190, 5));
	fView->MouseUp(BPoint(190, 5));
	EXPECT_EQ(Caret(), 7);
}


TEST_F(TextViewTest, CutCopyPasteAndSelectAll)
{
	fView->SetText("some text");
	fView->Select(0, 4);
	Send(B_COPY);
	fView->Select(9, 9);
	Send(B_PASTE);
	EXPECT_STREQ(fView->Text(), "some textsome");
	Send(B_SELECT_ALL);
	Send(B_CUT);
	EXPECT_STREQ(fView->Text(), "");
	Send(B_PASTE);
	Send(B_PASTE);
	EXPECT_STREQ(fView->Text(), "some textsomesome textsome");
}


TEST_F(TextViewTest, UneditableTextCanOnlyBeSelected)
{
	fView->SetText("fixed");
	fView->MakeEditable(false);
	Type("x");
	Press(B_BACKSPACE);
	Send(B_PASTE);
	EXPECT_STREQ(fView->Text(), "fixed");
	Send(B_SELECT_ALL);
	Send(B_CUT);
	EXPECT_STREQ(fView->Text(), "fixed");
	EXPECT_EQ(Selected(), "fixed");
	fView->MakeSelectable(false);
	EXPECT_EQ(Selected(), "");
	Send(B_SELECT_ALL);
	EXPECT_EQ(Selected(), "");
}


TEST_F(TextViewTest, CaretIsScrolledIntoSight)
{
	for (int i = 0; i < 40; i++)
		Type("\n");
	EXPECT_GT(fView->Bounds().top, 100);
	Press(B_UP_ARROW, 100);
	EXPECT_EQ(fView->Bounds().top, 0);
}


TEST_F(TextViewTest, ControlTakesOneLineAndInvokesOnEnter)
{
	test::Receiver* receiver = new test::Receiver;
	BTextControl* control = new BTextControl(BRect(10, 150, 209, 175), "name", "Name:", "start",
		new BMessage('text'));
	control->SetTarget(receiver);
	fWindow->AddChild(control);
	EXPECT_STREQ(control->Text(), "start");
	EXPECT_EQ(control->Divider(), 99);

	BTextView* input = control->TextView();
	control->MakeFocus(true);
	EXPECT_TRUE(input->IsFocus());
	const char enter = B_ENTER;
	input->KeyDown(&enter, 1);
	EXPECT_TRUE(receiver->HasOnly(0));
	input->KeyDown("x", 1);
	EXPECT_STREQ(control->Text(), "x");
	input->KeyDown(&enter, 1);
	EXPECT_STREQ(control->Text(), "x");
	ASSERT_TRUE(receiver->WaitForMessages(1));
	EXPECT_EQ(receiver->Messages()[0].what, uint32('text'));
	input->Insert("a\nb");
	EXPECT_EQ(input->CountLines(), 1);
	EXPECT_STREQ(control->Text(), "xa b");
	control->MakeFocus(false);
	EXPECT_TRUE(receiver->HasOnly(2));

	control->SetText("set");
	control->SetEnabled(false);
	input->KeyDown("x", 1);
	EXPECT_STREQ(control->Text(), "set");
	EXPECT_TRUE(receiver->HasOnly(2));
	receiver->Lock();
	receiver->Quit();
}
