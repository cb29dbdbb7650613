// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "entryview/MEView.h"

#include <string>

#include <unistd.h>

#include <Bitmap.h>
#include <Node.h>
#include <NodeInfo.h>
#include <TypeConstants.h>
#include <gtest/gtest.h>

#include "settings/Prefs.h"
#include "tests/support/Output.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/TempFolder.h"


namespace {

const BRect kFrame(0, 0, 490, 114);


class MEViewTest : public testing::Test {
protected:
	void SetUp() override { test::TheApplication(); }
};


BString
shown_name(const char* displayName)
{
	return MEView(kFrame, "MEV0", displayName, 0).fName;
}


// A tile that has looked at a file with these attributes.
class MEViewLookForIcon : public MEViewTest {
protected:
	MEViewLookForIcon()
		:
		fPath(fFolder.Write("Song.xyz", "").c_str()),
		fNode(fPath.Path())
	{
	}

	void SetType(const char* type) { BNodeInfo(&fNode).SetType(type); }

	void SetText(const char* name, const char* text)
	{
		const BString string(text);
		ASSERT_EQ(fNode.WriteAttrString(name, &string), B_OK);
	}

	test::TempFolder fFolder;
	BPath fPath;
	BNode fNode;
};

} // namespace


TEST_F(MEViewTest, NameLosesItsExtension)
{
	EXPECT_EQ(shown_name("Best of.mp3"), "Best of");
	EXPECT_EQ(shown_name("a.b.ogg"), "a.b");
	EXPECT_EQ(shown_name("ab.c"), "ab");
	EXPECT_EQ(shown_name("Folder"), "Folder");
}


TEST_F(MEViewTest, DotAtTheBeginningStays)
{
	EXPECT_EQ(shown_name(".x"), ".x");
	EXPECT_EQ(shown_name("a.mp3"), "a.mp3");
	EXPECT_EQ(shown_name(".mp3"), ".mp3");
}


TEST_F(MEViewTest, TooShortANameIsAnError)
{
	EXPECT_EQ(shown_name(""), "-err-");
	EXPECT_EQ(shown_name("x"), "-err-");
	EXPECT_EQ(shown_name("xy"), "xy");
}


TEST_F(MEViewTest, ApostropheBehindTheFirstCharacterIsBad)
{
	EXPECT_TRUE(MEView(kFrame, "v", "It's.mp3", 0).fBadCharacters);
	EXPECT_TRUE(MEView(kFrame, "v", "'n'.mp3", 0).fBadCharacters);
	EXPECT_FALSE(MEView(kFrame, "v", "'n.mp3", 0).fBadCharacters);
	EXPECT_FALSE(MEView(kFrame, "v", "plain.mp3", 0).fBadCharacters);
	EXPECT_FALSE(MEView(kFrame, "v", "plain.m'3", 0).fBadCharacters);
}


TEST_F(MEViewTest, StartsAsDocumented)
{
	MEView::ehoehe = 3;
	const MEView tile(kFrame, "MEV7", "Song", 7);
	EXPECT_EQ(tile.fNumber, 7);
	EXPECT_STREQ(tile.Name(), "MEV7");
	EXPECT_EQ(tile.ResizingMode(), 0x404u);
	EXPECT_NE(tile.Flags() & B_WILL_DRAW, 0u);
	EXPECT_TRUE(tile.fFound);
	EXPECT_TRUE(tile.fNotAsf);
	EXPECT_FALSE(tile.fCanOpenFolder);
	EXPECT_FALSE(tile.fCoverDrawn);
	EXPECT_EQ(tile.fKind, MEView::kUnknownKind);
	EXPECT_EQ(tile.fImageNumber, -1);
	EXPECT_EQ(tile.fTrack, 0);
	EXPECT_EQ(tile.fLength, 0);
	EXPECT_EQ(tile.fCover, nullptr);
	EXPECT_NE(tile.fMissingPath.InitCheck(), B_OK);
	EXPECT_EQ(MEView::ehoehe, 114);
	EXPECT_NE(MEView::mPrefs, nullptr);
	EXPECT_EQ(tile.LowColor(), (rgb_color{250, 250, 250, 124}));
	EXPECT_EQ(tile.HighColor(), (rgb_color{10, 10, 10, 128}));
	BFont font;
	tile.GetFont(&font);
	EXPECT_EQ(font.Size(), 11);
	EXPECT_EQ(font.Face(), be_bold_font->Face());
	EXPECT_EQ(font.Face(), B_BOLD_FACE);
}


TEST_F(MEViewTest, FirstTileFetchesTheSettings)
{
	MEView::mPrefs = nullptr;
	Prefs::getSTPrefs();
	EXPECT_EQ(test::OutputOf([] { MEView(kFrame, "v", "first", 0); }), " got Prefs..\n");
	EXPECT_EQ(MEView::mPrefs, Prefs::getSTPrefs());
	EXPECT_EQ(test::OutputOf([] { MEView(kFrame, "v", "second", 0); }), "");
}


TEST_F(MEViewTest, TilesShareTheirPictures)
{
	{
		const MEView first(kFrame, "v", "first", 0);
		ASSERT_NE(MEView::SadImage, nullptr);
		EXPECT_EQ(MEView::SadImage->Bounds(), BRect(0, 0, 49, 49));
		EXPECT_EQ(MEView::SadAudImage->Bounds(), BRect(0, 0, 49, 51));
		EXPECT_EQ(MEView::SadVidImage->Bounds(), BRect(0, 0, 49, 51));
		EXPECT_EQ(MEView::SadVidImage->ColorSpace(), B_CMAP8);
		const BBitmap* const picture = MEView::SadImage;
		{
			const MEView second(kFrame, "v", "second", 1);
			EXPECT_EQ(MEView::SadImage, picture);
		}
		EXPECT_EQ(MEView::SadImage, nullptr);
		EXPECT_EQ(MEView::SadAudImage, nullptr);
		EXPECT_EQ(MEView::SadVidImage, nullptr);
	}
	const MEView third(kFrame, "v", "third", 2);
	EXPECT_NE(MEView::SadImage, nullptr);
}


TEST_F(MEViewTest, PicturesAreNotEmpty)
{
	const MEView tile(kFrame, "v", "tile", 0);
	for (const BBitmap* picture : {MEView::SadImage, MEView::SadAudImage, MEView::SadVidImage}) {
		const uint8* const bits = static_cast<const uint8*>(picture->Bits());
		// The middle is painted, the corner is not.
		EXPECT_NE(bits[25 * picture->BytesPerRow() + 25], 255);
		EXPECT_EQ(bits[0], 255);
	}
}


TEST_F(MEViewLookForIcon, ReadsAudio)
{
	SetType("audio/mpeg");
	SetText("Audio:Length", "12:05");
	SetText("Audio:Artist", "Somebody");
	const int32 track = 3;
	fNode.WriteAttr("Audio:Track", B_INT32_TYPE, 0, &track, sizeof(track));

	MEView tile(kFrame, "v", "Song", 0);
	tile.LookForIcon(&fPath);
	EXPECT_TRUE(tile.fFound);
	EXPECT_EQ(tile.fKind, MEView::kAudioKind);
	EXPECT_EQ(tile.fMinutes, 12);
	EXPECT_EQ(tile.fSeconds, 5);
	EXPECT_EQ(tile.fLengthCode, 1205);
	EXPECT_FLOAT_EQ(tile.fLength, 12 + 5 / 60.0f + 0.02f);
	EXPECT_EQ(tile.fTrack, 3);
	EXPECT_EQ(tile.fArtist, "Somebody");
}


TEST_F(MEViewLookForIcon, KindFollowsTheType)
{
	const struct {
		const char* type;
		int32 kind;
		bool notAsf;
	} expected[] = {
		{"video/mp4", MEView::kVideoKind, true},
		{"application/x-asf", MEView::kVideoKind, false},
		{"text/plain", MEView::kUnknownKind, true},
	};
	for (const auto& each : expected) {
		SetType(each.type);
		MEView tile(kFrame, "v", "Song", 0);
		tile.LookForIcon(&fPath);
		EXPECT_EQ(tile.fKind, each.kind) << each.type;
		EXPECT_EQ(tile.fNotAsf, each.notAsf) << each.type;
	}
}


TEST_F(MEViewLookForIcon, WithoutAttributesThereIsTheMarginOnly)
{
	MEView tile(kFrame, "v", "Song", 0);
	tile.LookForIcon(&fPath);
	EXPECT_EQ(tile.fLengthCode, 0);
	EXPECT_FLOAT_EQ(tile.fLength, 0.02f);
	EXPECT_EQ(tile.fTrack, 0);
	EXPECT_EQ(tile.fArtist, "");
}


TEST_F(MEViewLookForIcon, OddLengthsAreReadAsFarAsTheyGo)
{
	const struct {
		const char* text;
		int32 minutes;
		int32 seconds;
	} expected[] = {{"4:35", 4, 35}, {"123:07", 123, 7}, {"", 0, 0}, {"7", 7, 7}, {"x:yz", 0, 0},
		{"99999999999999999999:00", 20000000, 0}};
	for (const auto& each : expected) {
		SetText("Audio:Length", each.text);
		MEView tile(kFrame, "v", "Song", 0);
		tile.LookForIcon(&fPath);
		EXPECT_EQ(tile.fMinutes, each.minutes) << each.text;
		EXPECT_EQ(tile.fSeconds, each.seconds) << each.text;
	}
}


TEST_F(MEViewLookForIcon, AttributeOfWrongSizeIsNoTrack)
{
	fNode.WriteAttr("Audio:Track", B_INT16_TYPE, 0, "\7\0", 2);
	MEView tile(kFrame, "v", "Song", 0);
	tile.LookForIcon(&fPath);
	EXPECT_EQ(tile.fTrack, 0);
}


TEST_F(MEViewLookForIcon, MissingFileIsNotFound)
{
	unlink(fPath.Path());
	MEView tile(kFrame, "v", "Song", 0);
	tile.LookForIcon(&fPath);
	EXPECT_FALSE(tile.fFound);
	EXPECT_EQ(tile.fMissingPath, fPath);
	EXPECT_EQ(tile.fKind, MEView::kUnknownKind);
	EXPECT_EQ(tile.fLengthCode, 0);
	EXPECT_FLOAT_EQ(tile.fLength, 0.02f);
}


TEST_F(MEViewLookForIcon, SecondLookForgetsALengthThatIsGone)
{
	SetText("Audio:Length", "4:35");
	MEView tile(kFrame, "v", "Song", 0);
	tile.LookForIcon(&fPath);
	EXPECT_EQ(tile.fLengthCode, 435);
	ASSERT_EQ(fNode.RemoveAttr("Audio:Length"), B_OK);
	tile.LookForIcon(&fPath);
	EXPECT_EQ(tile.fLengthCode, 0);
	EXPECT_EQ(tile.fMinutes, 0);
	EXPECT_EQ(tile.fSeconds, 0);
	EXPECT_FLOAT_EQ(tile.fLength, 0.02f);
}
