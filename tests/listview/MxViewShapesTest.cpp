// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <Font.h>
#include <InterfaceDefs.h>

#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"


/*	Corners, glyphs and texts, each pixel of them, compared with the same drawn from plain numbers.
 */
namespace {

constexpr rgb_color kDark = {20, 20, 20, 255};
constexpr rgb_color kPanel = {240, 240, 240, 255};
constexpr rgb_color kYellow = {250, 250, 150, 255};
constexpr rgb_color kHint = {25, 25, 25, 255};
const rgb_color kOuterEdge = tint_color(kPanel, 1.295f);
const rgb_color kInnerEdge = tint_color(kPanel, 1.555f);


// A view of 1001 x 701 pixels with tiles of 114 pixels.
class MxViewShapes : public ListViewFixture {
protected:
	MxViewShapes() { Prefs::getSTPrefs()->window_mtab = false; }

	static void SetText(BView& view, const BFont* font, float size, rgb_color color)
	{
		view.SetFont(font);
		view.SetFontSize(size);
		view.SetHighColor(color);
	}

	static void DrawButton(BView& view, BRect frame)
	{
		view.SetHighColor(kOuterEdge);
		view.StrokeRoundRect(BRect(frame.left, frame.top, frame.right + 2, frame.bottom + 2), 11,
			11);
		view.SetHighColor(kInnerEdge);
		view.StrokeRoundRect(BRect(frame.left, frame.top, frame.right + 1, frame.bottom + 1), 10,
			10);
		view.SetHighColor(kPanel);
		view.FillRoundRect(frame, 9, 9);
		view.SetHighColor(kDark);
		view.StrokeRoundRect(frame, 9, 9);
	}

	static void FillTriangle(BView& view, float left, float baseY, float tipY)
	{
		view.FillTriangle(BPoint(left + 3, baseY), BPoint(left + 19, baseY),
			BPoint(left + 11, tipY));
	}

	// The glyph of a button in a box of 22 by 22 with this corner.
	static void DrawGlyph(BView& view, int button, float left, float top)
	{
		switch (button) {
			case 0:
				FillTriangle(view, left, top + 17, top + 9);
				view.FillRect(BRect(left + 3, top + 5, left + 19, top + 7));
				break;
			case 1:
				FillTriangle(view, left, top + 5, top + 13);
				view.FillRect(BRect(left + 3, top + 15, left + 19, top + 17));
				break;
			case 2:
				FillTriangle(view, left, top + 11, top + 3);
				FillTriangle(view, left, top + 20, top + 12);
				break;
			case 3:
				FillTriangle(view, left, top + 2, top + 10);
				FillTriangle(view, left, top + 11, top + 19);
				break;
			case 4:
				FillTriangle(view, left, top + 16, top + 8);
				break;
			default:
				FillTriangle(view, left, top + 6, top + 14);
				break;
		}
	}
};

} // namespace


TEST_F(MxViewShapes, FrameWithTheTitleTabHidden)
{
	Prefs::getSTPrefs()->window_mtab = true;
	MakePicture();
	const auto frame = [](BView& view) {
		view.SetHighColor(kDark);
		view.StrokeRoundRect(BRect(4, 6, 996, 694), 3, 3);
	};
	EXPECT_EQ(CountDifferent(BRect(2, 2, 12, 14), frame), 0);
	EXPECT_EQ(CountDifferent(BRect(985, 686, 998, 698), frame), 0);
}


TEST_F(MxViewShapes, ButtonsAndTheirGlyphs)
{
	MakePicture();
	const BRect frames[]
		= {BRect(415, 10, 475, 68), BRect(415, 632, 475, 690), BRect(415, 78, 475, 282),
			BRect(415, 418, 475, 622), BRect(415, 292, 475, 340), BRect(415, 360, 475, 408)};
	// The tops of the glyphs' boxes.
	const float tops[] = {28, 650, 169, 509, 305, 373};
	for (int button = 0; button < 6; button++) {
		const BRect frame = frames[button];
		const auto draw = [&](BView& view) {
			// The bar of the middle row begins behind the buttons.
			view.SetHighColor(253, 253, 253);
			view.FillRect(BRect(455, 348, 990, 352));
			view.SetHighColor(kDark);
			view.FillRect(BRect(456, 349, 989, 351));
			DrawButton(view, frame);
			view.SetHighColor(252, 252, 252);
			DrawGlyph(view, button, 436, tops[button]);
			view.SetHighColor(kHint);
			DrawGlyph(view, button, 434, tops[button] - 1);
		};
		const BRect area(frame.left - 4, frame.top - 4, frame.right + 5, frame.bottom + 5);
		EXPECT_EQ(CountDifferent(area, draw), 0) << button;
	}
}


TEST_F(MxViewShapes, PanelOfTheCovers)
{
	MakePicture();
	const auto panel = [](BView& view) {
		view.SetHighColor(kPanel);
		view.FillRoundRect(BRect(16, 16, 403, 60), 3, 3);
		view.SetHighColor(kDark);
		view.StrokeRoundRect(BRect(15, 15, 404, 61), 3, 3);
	};
	EXPECT_EQ(CountDifferent(BRect(10, 10, 408, 66), panel), 0);
}


TEST_F(MxViewShapes, HintOfAnEmptyListIsRaised)
{
	MakePicture();
	const char* const text = "  Drag audio or video-files.. ";
	const auto hint = [text](BView& view) {
		SetText(view, be_bold_font, 20, kPanel);
		view.DrawString(text, BPoint(495, 334));
		view.DrawString(text, BPoint(497, 336));
		view.SetHighColor(kHint);
		view.DrawString(text, BPoint(496, 335));
	};
	EXPECT_EQ(CountDifferent(BRect(480, 300, 998, 346), hint), 0);
}


TEST_F(MxViewShapes, PathTrouble)
{
	MakePicture();
	fView->pathTrouble = true;
	Redraw();
	const auto text = [](BView& view) {
		SetText(view, be_bold_font, 20, kHint);
		view.DrawString("  PathTrouble.. ", BPoint(29, 87));
	};
	EXPECT_EQ(CountDifferent(BRect(2, 63, 410, 110), text), 0);
}


TEST_F(MxViewShapes, BusyLabel)
{
	MakePicture();
	fView->DrawProgressCalc(false);
	fView->Sync();
	const auto label = [](BView& view) {
		view.SetHighColor(250, 100, 100);
		view.FillRect(BRect(18, 18, 401, 58));
		SetText(view, be_bold_font, 20, {20, 10, 10, 255});
		view.DrawString("  CalcTime.. ", BPoint(20, 53));
	};
	EXPECT_EQ(CountDifferent(BRect(18, 18, 401, 58), label), 0);
}


TEST_F(MxViewShapes, TimeBar)
{
	MakePicture();
	fView->playLength = 100000000;
	fView->playEnd = sNow + fView->playLength / 3;
	fView->Pulse();
	fView->Sync();
	const auto bar = [](BView& view) {
		view.SetHighColor(kOuterEdge);
		view.StrokeRoundRect(BRect(986, 11, 996, 691), 6, 6);
		view.SetHighColor(kInnerEdge);
		view.StrokeRoundRect(BRect(986, 11, 995, 690), 5, 5);
		view.SetHighColor(kPanel);
		view.FillRect(BRect(987, 12, 993, 688));
		view.SetHighColor(30, 20, 30);
		// 688 - 670 / 3 is 464.7.
		view.FillRect(BRect(987, 464, 993, 688));
		view.SetHighColor(12, 12, 12);
		view.StrokeRoundRect(BRect(986, 11, 994, 689), 3, 3);
	};
	EXPECT_EQ(CountDifferent(BRect(980, 5, 999, 345), bar), 0);
	EXPECT_EQ(CountDifferent(BRect(980, 356, 999, 698), bar), 0);
}


TEST_F(MxViewShapes, RingOfTheAlbumShown)
{
	AddAlbum("album", {10, 120, 200, 255});
	MxView::SingleAlbum = true;
	MakePicture();
	fView->imageIndex = 0;
	Redraw();
	const auto ring = [](BView& view) {
		view.SetPenSize(4);
		view.SetHighColor(kYellow);
		view.StrokeRoundRect(BRect(12, 298, 407, 693), 3, 3);
		view.SetPenSize(1);
		view.SetHighColor(kDark);
		view.StrokeRect(BRect(15, 301, 404, 690));
	};
	EXPECT_EQ(CountDifferent(BRect(4, 290, 413, 302), ring), 0);
	EXPECT_EQ(CountDifferent(BRect(4, 689, 413, 698), ring), 0);
}


TEST_F(MxViewShapes, PanelOfAMissingCover)
{
	AddAlbum("plain");
	MakePicture();
	fView->imageIndex = 0;
	Redraw();
	const auto panel = [](BView& view) {
		view.SetHighColor(kDark);
		view.StrokeRect(BRect(15, 301, 404, 690));
		view.SetHighColor(kPanel);
		view.FillRoundRect(BRect(16, 302, 403, 689), 3, 3);
		SetText(view, be_plain_font, 10, kDark);
		view.DrawString(".. missing:", BPoint(25, 326));
		view.SetFontSize(20);
		view.DrawString("Folder.jpg", BPoint(25, 356));
	};
	EXPECT_EQ(CountDifferent(BRect(13, 299, 406, 692), panel), 0);
}
