// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <string>

#include <Bitmap.h>
#include <gtest/gtest.h>

#include "tests/support/RunningApplication.h"
#include "tests/support/Media.h"
#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"
#include "window/BitmapPath.h"
#include "window/TrackPfad.h"


namespace {

class BitmapPathTest : public testing::Test {
protected:
	void SetUp() override { test::TheApplication(); }

	void MakePicture(const std::string& name, int width)
	{
		test::MakeMedia(fFolder / name,
			"-f lavfi -i color=red:s=" + std::to_string(width) + "x8 -frames:v 1 -f image2");
	}

	test::TempFolder fFolder;
};

} // namespace


TEST_F(BitmapPathTest, TakesTheCover)
{
	MakePicture("Folder.jpg", 16);
	MakePicture("b_desktop.jpg", 32);
	const BitmapPath album(fFolder.Path().c_str());
	EXPECT_STREQ(album.Path(), fFolder.Path().c_str());
	EXPECT_EQ(album.fKind, BitmapPath::kCover);
	EXPECT_FALSE(album.fBuiltIn);
	ASSERT_NE(album.fBitmap, nullptr);
	EXPECT_EQ(album.fBitmap->Bounds().IntegerWidth(), 15);
}


TEST_F(BitmapPathTest, TakesTheFirstCoverOfAll)
{
	MakePicture("Folder.jpg", 16);
	MakePicture("folder.jpg", 24);
	MakePicture("b_desktop.jpg", 32);
	EXPECT_EQ(BitmapPath(fFolder.Path().c_str()).fBitmap->Bounds().IntegerWidth(), 15);
}


TEST_F(BitmapPathTest, TakesTheLowerCaseCoverAndTheDesktopPicture)
{
	MakePicture("b_desktop.jpg", 32);
	EXPECT_EQ(BitmapPath(fFolder.Path().c_str()).fBitmap->Bounds().IntegerWidth(), 31);
	MakePicture("folder.jpg", 24);
	const BitmapPath album(fFolder.Path().c_str());
	EXPECT_EQ(album.fKind, BitmapPath::kCover);
	EXPECT_EQ(album.fBitmap->Bounds().IntegerWidth(), 23);
}


TEST_F(BitmapPathTest, WhatIsNoPictureIsPassedOver)
{
	fFolder.Write("Folder.jpg", "no picture");
	MakePicture("folder.jpg", 24);
	EXPECT_EQ(BitmapPath(fFolder.Path().c_str()).fKind, BitmapPath::kCover);
}


TEST_F(BitmapPathTest, FolderWithoutPictureHasNone)
{
	const BitmapPath album(fFolder.Path().c_str());
	EXPECT_EQ(album.fBitmap, nullptr);
	EXPECT_EQ(album.fKind, BitmapPath::kNoPicture);
	EXPECT_FALSE(album.fBuiltIn);

	const BitmapPath missing((fFolder / "missing").c_str());
	EXPECT_EQ(missing.fKind, BitmapPath::kNoPicture);
}


TEST_F(BitmapPathTest, PictureThatIsNoneHasAnIcon)
{
	fFolder.Write("b_desktop.jpg", "no picture");
	const BitmapPath album(fFolder.Path().c_str());
	EXPECT_EQ(album.fKind, BitmapPath::kIcon);
	ASSERT_NE(album.fBitmap, nullptr);
	EXPECT_EQ(album.fBitmap->Bounds(), BRect(0, 0, 31, 31));
	EXPECT_EQ(album.fBitmap->ColorSpace(), B_CMAP8);
}


TEST_F(BitmapPathTest, AudioCDHasABuiltInPicture)
{
	const std::string folder = fFolder.MakeFolder("Audio CD/wav");
	std::string output;
	{
		output = test::OutputOf([&folder] {
			const BitmapPath album(folder.c_str());
			EXPECT_TRUE(album.fBuiltIn);
			EXPECT_EQ(album.fKind, BitmapPath::kCover);
			ASSERT_NE(album.fBitmap, nullptr);
			EXPECT_EQ(album.fBitmap->Bounds(), BRect(0, 0, 131, 131));
			const uint8* const bits = static_cast<const uint8*>(album.fBitmap->Bits());
			EXPECT_NE(bits[66 * album.fBitmap->BytesPerRow() + 30], bits[0]);
			album.PrintToStream();
		});
	}
	EXPECT_EQ(output,
		"add Bitmap: " + folder + "\n ### MAKE LINK /Audio CD/wav/  \n[1] [1] '" + folder + "'\n");
}


TEST_F(BitmapPathTest, AudioCDWithACoverShowsIt)
{
	const std::string folder = fFolder.MakeFolder("Audio CD/wav");
	MakePicture("Audio CD/wav/folder.jpg", 24);
	const BitmapPath album(folder.c_str());
	EXPECT_FALSE(album.fBuiltIn);
	ASSERT_NE(album.fBitmap, nullptr);
	EXPECT_EQ(album.fBitmap->Bounds().IntegerWidth(), 23);
}


TEST_F(BitmapPathTest, OnlyAudioCDsOwnFolderHasTheBuiltInPicture)
{
	for (const char* name : {"My Audio CD/wav", "Audio CD/mp3", "Audio CD"})
		EXPECT_FALSE(BitmapPath(fFolder.MakeFolder(name).c_str()).fBuiltIn) << name;
	// What is below it belongs to it.
	EXPECT_TRUE(BitmapPath(fFolder.MakeFolder("Audio CD/wav/1").c_str()).fBuiltIn);
}


TEST(TrackPfad, PrintsItsNumber)
{
	TrackPfad track("/music/a.mp3");
	EXPECT_EQ(track.fTrackNumber, 999);
	EXPECT_FALSE(track.fFlag);
	track.fTrackNumber = 3;
	EXPECT_EQ(test::OutputOf([&track] { track.PrintToStream(); }),
		"[TrackPfad] [3] '/music/a.mp3'\n");
}
