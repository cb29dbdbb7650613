// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <TranslationUtils.h>

#include <memory>

#include <QImage>

#include <Bitmap.h>
#include <Entry.h>

#include <gtest/gtest.h>

#include "platform/screen/DisplayThread.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"


TEST(BTranslationUtils, ReadsPicturesByPathAndRef)
{
	ASSERT_TRUE(hosted::DisplayThread::Start());
	const test::TempFolder folder;
	const std::string path = test::SavePicture(test::TwoColors(30, 10), folder / "a.png");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
	const std::unique_ptr<BBitmap> byPath(BTranslationUtils::GetBitmap(path.c_str()));
	ASSERT_NE(byPath, nullptr);
	EXPECT_TRUE(byPath->Bounds() == BRect(0, 0, 29, 9));
	const std::unique_ptr<BBitmap> byRef(BTranslationUtils::GetBitmap(&ref));
	ASSERT_NE(byRef, nullptr);
	EXPECT_TRUE(byRef->Bounds() == BRect(0, 0, 29, 9));
}


TEST(BTranslationUtils, NothingForWhatIsNoPicture)
{
	ASSERT_TRUE(hosted::DisplayThread::Start());
	const test::TempFolder folder;
	EXPECT_EQ(BTranslationUtils::GetBitmap(folder.Write("a.png", "x").c_str()), nullptr);
	EXPECT_EQ(BTranslationUtils::GetBitmap((folder / "missing.png").c_str()), nullptr);
	EXPECT_EQ(BTranslationUtils::GetBitmap(folder.MakeFolder("folder.png").c_str()), nullptr);
}
