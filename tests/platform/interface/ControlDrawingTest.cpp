// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Bitmap.h>

#include <math.h>
#include <string.h>
#include <vector>

#include <gtest/gtest.h>

#include <Box.h>
#include <Button.h>
#include <CheckBox.h>
#include <Menu.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <Message.h>
#include <StringView.h>
#include <TextControl.h>
#include <TextView.h>

#include "tests/support/Desktop.h"


namespace {

const BRect kBounds(0, 0, 149, 39);


/*!	A picture that a view was drawn into.
 */
class Picture {
public:
	// Draws the view, which is deleted, over the color of a panel.
	explicit Picture(BView* view)
		:
		fBitmap(kBounds, B_RGB32, true)
	{
		EXPECT_TRUE(fBitmap.Lock());
		BView* back = new BView(kBounds, "back", B_FOLLOW_NONE, B_WILL_DRAW);
		back->SetViewColor(kBack);
		fBitmap.AddChild(back);
		back->SetHighColor(kBack);
		back->FillRect(kBounds);
		back->AddChild(view);
		DrawAll(view);
		view->Sync();
		fBitmap.RemoveChild(back);
		delete back;
		fBitmap.Unlock();
	}

	static void DrawAll(BView* view)
	{
		view->PushState();
		view->Draw(view->Bounds());
		view->PopState();
		for (int32 i = 0; i < view->CountChildren(); i++)
			DrawAll(view->ChildAt(i));
	}

	rgb_color At(int x, int y) const
	{
		const uint8* pixel
			= static_cast<const uint8*>(fBitmap.Bits()) + y * fBitmap.BytesPerRow() + 4 * x;
		return make_color(pixel[2], pixel[1], pixel[0]);
	}

	// The frame of the pixels that are this dark.
	BRect Dark(int limit = 100) const
	{
		BRect frame(1000, 1000, -1, -1);
		for (int y = 0; y <= kBounds.bottom; y++) {
			for (int x = 0; x <= kBounds.right; x++) {
				const rgb_color color = At(x, y);
				if (color.red < limit && color.green < limit && color.blue < limit)
					frame = frame | BRect(x, y, x, y);
			}
		}
		return frame;
	}

	int Count(rgb_color color) const
	{
		int count = 0;
		for (int y = 0; y <= kBounds.bottom; y++) {
			for (int x = 0; x <= kBounds.right; x++)
				count += At(x, y) == color ? 1 : 0;
		}
		return count;
	}

	bool operator==(const Picture& other) const
	{
		return memcmp(fBitmap.Bits(), other.fBitmap.Bits(), fBitmap.BitsLength()) == 0;
	}

	inline static const rgb_color kBack = {216, 216, 216, 255};

private:
	BBitmap fBitmap;
};


class ControlDrawing : public testing::Test {
protected:
	void SetUp() override { test::Application(); }

	static BStringView* NewText(const char* text) { return new BStringView(kBounds, "", text); }

	static BButton* NewButton() { return new BButton(kBounds, "", "OK", nullptr); }

	static BCheckBox* NewBox(int32 value)
	{
		BCheckBox* box = new BCheckBox(kBounds, "", "Box", nullptr);
		box->SetValue(value);
		return box;
	}
};

} // namespace


TEST_F(ControlDrawing, StringViewStandsOnItsBaseline)
{
	const Picture picture(NewText("HHH"));
	font_height height;
	be_plain_font->GetHeight(&height);
	const BRect dark = picture.Dark();
	EXPECT_NEAR(dark.bottom, kBounds.bottom - ceilf(height.descent), 1);
	EXPECT_LT(dark.left, 4);
	EXPECT_EQ(picture.At(140, 2), Picture::kBack);
}


TEST_F(ControlDrawing, StringViewAlignsAndTruncates)
{
	BStringView* right = NewText("HHH");
	right->SetAlignment(B_ALIGN_RIGHT);
	EXPECT_GT(Picture(right).Dark().right, kBounds.right - 5);

	BStringView* center = NewText("HHH");
	center->SetAlignment(B_ALIGN_CENTER);
	const BRect dark = Picture(center).Dark();
	EXPECT_NEAR((dark.left + dark.right) / 2, kBounds.right / 2, 2);

	const char* wide = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH";
	EXPECT_GT(Picture(NewText(wide)).Dark().right, kBounds.right - 3);
	BStringView* truncated = NewText(wide);
	truncated->SetTruncation(B_TRUNCATE_END);
	EXPECT_FALSE(Picture(truncated) == Picture(NewText(wide)));
	EXPECT_FALSE(Picture(NewText(nullptr)).Dark().IsValid());
}


TEST_F(ControlDrawing, ButtonShowsItsStates)
{
	const Picture normal(NewButton());
	BButton* pressed = NewButton();
	pressed->SetValue(B_CONTROL_ON);
	BButton* standard = NewButton();
	standard->MakeDefault(true);
	BButton* disabled = NewButton();
	disabled->SetEnabled(false);
	EXPECT_FALSE(normal == Picture(pressed));
	EXPECT_FALSE(normal == Picture(standard));
	EXPECT_TRUE(normal.Dark(60).IsValid());
	EXPECT_FALSE(Picture(disabled).Dark(60).IsValid());
	EXPECT_EQ(normal.At(0, 0), Picture::kBack);
	const BRect label = normal.Dark(60);
	EXPECT_NEAR((label.left + label.right) / 2, kBounds.right / 2, 3);
}


TEST_F(ControlDrawing, CheckBoxShowsItsMark)
{
	const rgb_color mark = ui_color(B_CONTROL_MARK_COLOR);
	EXPECT_EQ(Picture(NewBox(B_CONTROL_OFF)).Count(mark), 0);
	EXPECT_GT(Picture(NewBox(B_CONTROL_ON)).Count(mark), 5);
	EXPECT_TRUE(Picture(NewBox(B_CONTROL_ON)).Dark(60).IsValid());
}


TEST_F(ControlDrawing, BoxHasABorderAndALabel)
{
	const Picture plain(new BBox(kBounds));
	EXPECT_FALSE(plain.At(0, 20) == Picture::kBack);
	EXPECT_EQ(plain.At(50, 20), Picture::kBack);
	EXPECT_FALSE(plain.Dark(60).IsValid());

	BBox* labelled = new BBox(kBounds);
	labelled->SetLabel("Label");
	EXPECT_TRUE(Picture(labelled).Dark(60).IsValid());

	BBox* bare = new BBox(kBounds, "", B_FOLLOW_NONE, B_WILL_DRAW, B_NO_BORDER);
	EXPECT_EQ(Picture(bare).At(0, 20), Picture::kBack);
}


TEST_F(ControlDrawing, MenuFieldShowsLabelAndMarkedItem)
{
	const auto newField = [](bool marked) {
		BMenu* menu = new BMenu("menu");
		menu->SetLabelFromMarked(true);
		menu->AddItem(new BMenuItem("HHHHHH", nullptr));
		menu->AddItem(new BMenuItem("ii", nullptr));
		menu->ItemAt(1)->SetMarked(marked);
		BMenuField* field = new BMenuField(kBounds, "", "Label:", menu, true);
		field->SetDivider(60);
		EXPECT_STREQ(field->MenuItem()->Label(), marked ? "ii" : "menu");
		return field;
	};
	EXPECT_FALSE(Picture(newField(true)) == Picture(newField(false)));
	EXPECT_LT(Picture(newField(true)).Dark(60).left, 10);
}


TEST_F(ControlDrawing, TextViewShowsTextAndSelection)
{
	const auto newView = [](int32 begin, int32 end) {
		BTextView* view = new BTextView(kBounds, "", kBounds, B_FOLLOW_NONE);
		view->SetText("HHH");
		view->Select(begin, end);
		return view;
	};
	const rgb_color selected = tint_color(ui_color(B_CONTROL_HIGHLIGHT_COLOR), B_LIGHTEN_1_TINT);
	EXPECT_EQ(Picture(newView(1, 1)).Count(selected), 0);
	EXPECT_GT(Picture(newView(0, 1)).Count(selected), 20);
	EXPECT_GT(Picture(newView(0, 3)).Count(selected), 2 * Picture(newView(0, 1)).Count(selected));
	EXPECT_LT(Picture(newView(1, 1)).Dark().left, 5);
}


TEST_F(ControlDrawing, TextControlShowsLabelBoxAndText)
{
	const Picture filled(new BTextControl(kBounds, "", "Name", "HHH", nullptr));
	const Picture empty(new BTextControl(kBounds, "", "Name", "", nullptr));
	EXPECT_FALSE(filled == empty);
	EXPECT_LT(empty.Dark(60).left, 5);
	EXPECT_LT(empty.Dark(60).right, 74);
	EXPECT_GT(filled.Dark(60).right, 76);
}
