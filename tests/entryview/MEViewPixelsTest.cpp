// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Each state of a tile, compared pixel by pixel with the same drawn step by step from plain
// numbers.
#include "entryview/MEView.h"

#include <functional>
#include <string>

#include <string.h>

#include <Bitmap.h>
#include <Font.h>
#include <String.h>
#include <gtest/gtest.h>

#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"


namespace {

constexpr float kRight = 490;

// What follows from a tile's height: a text of the height's part of 3.5 ends near the bottom, and
// the line of the artist, of four fifths of it, stands above.
struct Size {
	float height;
	float font;
	float baseline;
	float artistFont;
	float artistBaseline;
	// Where texts begin behind a cover.
	float behindCover;
};

const Size kSizes[] = {
	{114, 32.571429f, 94.714286f, 26.057143f, 58.142857f, 124},
	{95, 27.142857f, 78.428571f, 21.714286f, 47.285714f, 105},
	{76, 21.714286f, 62.142857f, 17.371429f, 36.428571f, 86},
	{57, 16.285714f, 45.857143f, 13.028571f, 25.571429f, 67},
	{48, 13.714286f, 38.142857f, 10.971429f, 20.428571f, 58},
};

constexpr rgb_color kParent = {90, 91, 92, 255};
constexpr rgb_color kPlain = {240, 240, 240, 255};
constexpr rgb_color kYellow = {250, 250, 150, 255};
constexpr rgb_color kGrayFrame = {130, 130, 130, 255};
constexpr rgb_color kDarkFrame = {20, 20, 20, 255};
constexpr rgb_color kBlueFrame = {120, 120, 250, 255};
constexpr rgb_color kOrange = {250, 120, 50, 255};
constexpr rgb_color kStar = {250, 80, 80, 255};
constexpr rgb_color kStop = {200, 80, 80, 255};
constexpr float kBesidePicture = 59;


// A bitmap with a view in it, for a tile or for what a tile should look like.
struct Sheet {
	explicit Sheet(float height)
		:
		bitmap(BRect(0, 0, kRight, height), B_RGB32, true),
		view(new BView(bitmap.Bounds(), "sheet", 0, B_WILL_DRAW))
	{
		view->SetViewColor(kParent);
		view->SetLowColor(250, 250, 250);
		bitmap.AddChild(view);
		bitmap.Lock();
	}
	~Sheet() { bitmap.Unlock(); }

	// Edges are compared, too: the sheet begins in a color that no tile has.
	void Begin()
	{
		for (int32 at = 0; at < bitmap.BitsLength(); at++)
			static_cast<uint8*>(bitmap.Bits())[at] = at % 4 == 1 ? 200 : 3;
	}

	void Frame(rgb_color fill, rgb_color frame)
	{
		const float bottom = view->Bounds().bottom;
		view->SetHighColor(kParent);
		view->StrokeRect(BRect(0, 0, kRight, bottom));
		view->SetHighColor(fill);
		view->FillRoundRect(BRect(1, 1, kRight - 1, bottom - 1), 3, 3);
		view->SetHighColor(frame);
		view->StrokeRoundRect(BRect(0, 0, kRight, bottom), 3, 3);
		view->SetFont(be_bold_font);
	}

	void Picture(const BBitmap* picture, BRect place, drawing_mode mode)
	{
		view->SetDrawingMode(mode);
		view->DrawBitmap(picture, place);
		view->SetDrawingMode(B_OP_OVER);
	}

	void Text(const char* text, float size, rgb_color color, float x, float y)
	{
		view->SetDrawingMode(B_OP_OVER);
		view->SetHighColor(color);
		view->SetFontSize(size);
		view->DrawString(text, BPoint(x, y));
	}

	// The number and the time, which end five pixels before the right edge.
	void Labels(const char* number, const char* time, rgb_color timeColor)
	{
		BFont font(be_bold_font);
		font.SetSize(10);
		Text(number, 10, kGrayFrame, 485 - font.StringWidth(number), 25);
		Text(time, 10, timeColor, 485 - font.StringWidth(time), 40);
	}

	BBitmap bitmap;
	BView* view;
};


class MEViewPixels : public testing::TestWithParam<Size> {
protected:
	void SetUp() override
	{
		test::TheApplication();
		Prefs::getSTPrefs()->playingTitle = "";
		KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
		Reset();
	}

	void TearDown() override
	{
		Reset();
		MEView::IsSelected = 0;
		MEView::IsNext = 0;
	}

	static void Reset()
	{
		MEView::SepListSelected = false;
		MEView::IsSelected = -1;
		MEView::IsNext = -1;
	}

	// Draws a tile and what it should look like, while the pictures that it shows are there.
	void Compare(const char* name, const std::function<void(MEView&)>& prepare,
		const std::function<void(Sheet&)>& draw)
	{
		Sheet drawn(GetParam().height);
		MEView* const tile = new MEView(drawn.bitmap.Bounds(), "tile", name, 4);
		drawn.view->AddChild(tile);
		prepare(*tile);
		drawn.Begin();
		tile->Draw(tile->Bounds());
		drawn.view->Sync();

		Sheet expected(GetParam().height);
		expected.Begin();
		draw(expected);
		expected.view->Sync();
		ExpectEqual(drawn.bitmap, expected.bitmap);
	}

	void ExpectEqual(const BBitmap& drawn, const BBitmap& expected)
	{
		ASSERT_EQ(drawn.BitsLength(), expected.BitsLength());
		const uint8* const left = static_cast<const uint8*>(drawn.Bits());
		const uint8* const right = static_cast<const uint8*>(expected.Bits());
		int count = 0;
		std::string first;
		for (int32 at = 0; at < drawn.BitsLength(); at += 4) {
			if (memcmp(left + at, right + at, 3) == 0)
				continue;
			if (count++ == 0) {
				first = std::to_string(at % drawn.BytesPerRow() / 4) + ", "
					+ std::to_string(at / drawn.BytesPerRow());
			}
		}
		EXPECT_EQ(count, 0) << "the first at " << first;
	}
};

} // namespace


TEST_P(MEViewPixels, UnknownKind)
{
	const Size& size = GetParam();
	Compare(
		"Song.mp3", [](MEView&) {},
		[&](Sheet& sheet) {
			sheet.Frame(kPlain, kGrayFrame);
			sheet.Text("Song", size.font, kGrayFrame, size.behindCover, size.baseline);
			sheet.Labels("[5]", " >|Stop", kStop);
		});
}


TEST_P(MEViewPixels, AudioThatPlays)
{
	const Size& size = GetParam();
	const auto prepare = [](MEView& tile) {
		Prefs::getSTPrefs()->playingTitle = "Song";
		MEView::IsSelected = 4;
		tile.fKind = MEView::kAudioKind;
		tile.fArtist = "Duo";
		tile.fMinutes = 12;
		tile.fSeconds = 5;
		tile.fLengthCode = 1205;
	};
	Compare("Song.mp3", prepare, [&](Sheet& sheet) {
		sheet.Frame(kYellow, kDarkFrame);
		sheet.Picture(MEView::SadAudImage, BRect(3, 3, 50, 52), B_OP_BLEND);
		sheet.Text("Song", size.font, kDarkFrame, kBesidePicture, size.baseline);
		sheet.Text("Duo", size.artistFont, kDarkFrame, kBesidePicture, size.artistBaseline);
		sheet.Labels("[5]", " 12:05 ", kGrayFrame);
	});
}


TEST_P(MEViewPixels, VideoThatIsNextWithABadName)
{
	const Size& size = GetParam();
	const auto prepare = [](MEView& tile) {
		MEView::IsNext = 4;
		MEView::IsSelected = 3;
		tile.fKind = MEView::kVideoKind;
		tile.fArtist = "Duo";
		// Shown where an album's titles are alone.
		tile.fTrack = 3;
	};
	Compare("It's.avi", prepare, [&](Sheet& sheet) {
		sheet.Frame(kPlain, kBlueFrame);
		sheet.Picture(MEView::SadVidImage, BRect(3, 3, 50, 52), B_OP_BLEND);
		sheet.Text("*", size.font, kStar, kBesidePicture, size.baseline);
		sheet.Text("It's", size.font, kBlueFrame, kBesidePicture + 20, size.baseline);
		sheet.Text("Duo", size.artistFont, kBlueFrame, kBesidePicture, size.artistBaseline);
		sheet.Labels("[5]", " >|Stop", kStop);
	});
}


TEST_P(MEViewPixels, TileWithItsCover)
{
	const Size& size = GetParam();
	BBitmap cover(BRect(0, 0, 39, 39), B_RGB32);
	for (int32 at = 0; at < cover.BitsLength(); at++)
		static_cast<uint8*>(cover.Bits())[at] = static_cast<uint8>(at * 7);
	const auto prepare = [&cover](MEView& tile) {
		tile.fKind = MEView::kAudioKind;
		tile.fCover = &cover;
		tile.fArtist = "Duo";
	};
	Compare("Song.mp3", prepare, [&](Sheet& sheet) {
		sheet.Frame(kPlain, kGrayFrame);
		sheet.Picture(&cover, BRect(3, 3, size.height - 3, size.height - 3), B_OP_COPY);
		sheet.Text("Song", size.font, kGrayFrame, size.behindCover, size.baseline);
		sheet.Text("Duo", size.artistFont, kGrayFrame, size.behindCover, size.artistBaseline);
		sheet.Labels("[5]", " >|Stop", kStop);
	});
}


TEST_P(MEViewPixels, TitleOfAnAlbum)
{
	const Size& size = GetParam();
	const BBitmap cover(BRect(0, 0, 39, 39), B_RGB32);
	for (const int32 track : {0, 3}) {
		const auto prepare = [&cover, track](MEView& tile) {
			MEView::SepListSelected = true;
			tile.fKind = MEView::kAudioKind;
			tile.fCover = const_cast<BBitmap*>(&cover);
			tile.fArtist = "Duo";
			tile.fTrack = track;
		};
		Compare("Song.mp3", prepare, [&](Sheet& sheet) {
			sheet.Frame(kPlain, kGrayFrame);
			sheet.Text("Song", size.font, kGrayFrame, 10, size.baseline);
			sheet.Text("Duo", size.artistFont, kGrayFrame, 10, size.artistBaseline);
			sheet.Labels(track == 0 ? "[5]" : " AlbumTrack: 3", " >|Stop", kStop);
		});
	}
}


TEST_P(MEViewPixels, MissingEntry)
{
	const Size& size = GetParam();
	const BBitmap cover(BRect(0, 0, 39, 39), B_RGB32);
	// The smallest tile has its second line a little lower.
	const float baseline = size.artistBaseline + (size.height == 48 ? 4 : 0);
	for (const bool withPath : {false, true}) {
		const auto prepare = [&cover, withPath](MEView& tile) {
			tile.fFound = false;
			// An album's cover is not shown on it.
			tile.fCover = const_cast<BBitmap*>(&cover);
			if (withPath)
				tile.fMissingPath.SetTo("/music/gone.mp3");
		};
		Compare("gone.mp3", prepare, [&](Sheet& sheet) {
			sheet.Frame(kPlain, kGrayFrame);
			sheet.Text("gone", size.font, kGrayFrame, kBesidePicture, size.baseline);
			sheet.Picture(MEView::SadImage, BRect(3, 3, 50, 50), B_OP_OVER);
			sheet.Text("not avalible..", size.font, kOrange, kBesidePicture, baseline);
			if (withPath)
				sheet.Text("/music/gone.mp3", 9, kOrange, kBesidePicture, 10.5f);
			sheet.Labels("[5]", " >|Stop", kStop);
		});
	}
}


TEST_P(MEViewPixels, LongNameLosesItsMiddle)
{
	const Size& size = GetParam();
	const char* const name = "A name so long that it fits no tile of any size, and goes on and on";
	Compare(
		name, [](MEView&) {},
		[&](Sheet& sheet) {
			sheet.Frame(kPlain, kGrayFrame);
			BFont font(be_bold_font);
			font.SetSize(size.font);
			BString cut(name);
			float right = kRight - 10;
			// On lower tiles the name stands beside the time and ends before that.
			if (size.height < 95) {
				BFont small(be_bold_font);
				small.SetSize(10);
				right = kRight - 5 - small.StringWidth(" >|Stop") - 6;
			}
			font.TruncateString(&cut, B_TRUNCATE_SMART, right - size.behindCover);
			EXPECT_NE(cut, name);
			sheet.Text(cut.String(), size.font, kGrayFrame, size.behindCover, size.baseline);
			sheet.Labels("[5]", " >|Stop", kStop);
		});
}


INSTANTIATE_TEST_SUITE_P(Sizes, MEViewPixels, testing::ValuesIn(kSizes),
	[](const testing::TestParamInfo<Size>& info) {
		return std::to_string(static_cast<int>(info.param.height));
	});
