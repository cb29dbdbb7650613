// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <QColor>
#include <QMimeData>
#include <QUrl>

#include <Entry.h>
#include <GraphicsDefs.h>
#include <Path.h>
#include <TypeConstants.h>

#include "platform/screen/Drops.h"
#include "tests/support/Desktop.h"
#include "tests/support/LoggingWindow.h"
#include "tests/support/TempFolder.h"

using test::Log;
using test::LoggingView;
using test::LoggingWindow;


namespace {

class Drops : public testing::Test {
protected:
	void SetUp() override
	{
		test::Application();
		fWindow = new LoggingWindow(BRect(60, 70, 259, 269), fWindowLog);
		fView = new LoggingView(BRect(20, 30, 119, 129), "view", fLog);
		fWindow->AddChild(fView);
		fWindow->Show();
		test::Settle(fWindow);
	}

	void TearDown() override { test::CloseWindow(fWindow); }

	std::vector<std::string> DroppedPaths(const QByteArray& uriList)
	{
		EXPECT_TRUE(test::DropUrls(fWindow, 30, 40, uriList));
		test::Settle(fWindow);
		std::vector<std::string> paths;
		const BMessage message = fLog.Last(B_SIMPLE_DATA);
		entry_ref ref;
		for (int32 i = 0; message.FindRef("refs", i, &ref) == B_OK; i++)
			paths.push_back(BPath(&ref).Path());
		return paths;
	}

	Log fLog;
	Log fWindowLog;
	LoggingWindow* fWindow = nullptr;
	LoggingView* fView = nullptr;
};

using Paths = std::vector<std::string>;

} // namespace


TEST_F(Drops, FilesReachTheViewAndThenTheWindow)
{
	test::TempFolder folder;
	const std::string path = folder.Path() + "/a.mp3";
	EXPECT_EQ(DroppedPaths(QByteArray("file://") + path.c_str() + "\r\n"), Paths({path}));
	const BMessage message = fLog.Last(B_SIMPLE_DATA);
	EXPECT_TRUE(message.WasDropped());
	EXPECT_EQ(message.FindPoint("_drop_point_"), BPoint(90, 110));
	EXPECT_EQ(message.FindPoint("click_pt"), BPoint(10, 10));
	EXPECT_TRUE(message.HasInt32("buttons"));
	EXPECT_FALSE(message.HasInt32("_input"));
	BMessage copy(message);
	EXPECT_EQ(copy.DropPoint(), BPoint(90, 110));
	EXPECT_EQ(fWindowLog.Messages(B_SIMPLE_DATA).size(), 1u);
}


TEST_F(Drops, BesideTheViewsTheWindowTakesIt)
{
	EXPECT_TRUE(test::DropUrls(fWindow, 190, 190, "file:///tmp/x\r\n"));
	test::Settle(fWindow);
	EXPECT_TRUE(fLog.Messages(B_SIMPLE_DATA).empty());
	EXPECT_EQ(fWindowLog.Messages(B_SIMPLE_DATA).size(), 1u);
}


TEST_F(Drops, NamesKeepTheirBytes)
{
	test::TempFolder folder;
	const QByteArray base = QByteArray("file://") + folder.Path().c_str();
	const QByteArray list = base + "/with%20blank%23%3F%25.mp3\r\n" + base
		+ "/%C3%A4%C3%B6%C3%BC.mp3\r\n" + base + "/%E3%81%82.mp3\r\n" + base
		+ "/latin%E4%FF.mp3\r\n" + base + "/not encoded \xc3\xa4.mp3\r\n";
	EXPECT_EQ(DroppedPaths(list),
		Paths({folder.Path() + "/with blank#?%.mp3",
			folder.Path() + "/\xc3\xa4\xc3\xb6\xc3\xbc.mp3", folder.Path() + "/\xe3\x81\x82.mp3",
			folder.Path() + "/latin\xe4\xff.mp3", folder.Path() + "/not encoded \xc3\xa4.mp3"}));
}


TEST_F(Drops, QtsOwnListOfUrls)
{
	test::TempFolder folder;
	const QString path
		= QString::fromStdString(folder.Path()) + QString::fromUtf8("/\xc3\xa4 b.mp3");
	EXPECT_TRUE(test::Drop(fWindow, 30, 40,
		[&](QMimeData& data) { data.setUrls({QUrl::fromLocalFile(path)}); }));
	test::Settle(fWindow);
	entry_ref ref;
	EXPECT_EQ(fLog.Last(B_SIMPLE_DATA).FindRef("refs", &ref), B_OK);
	EXPECT_STREQ(ref.name, "\xc3\xa4 b.mp3");
}


TEST_F(Drops, FoldersLoseTheirSlash)
{
	test::TempFolder folder;
	folder.MakeFolder("album");
	EXPECT_EQ(DroppedPaths(QByteArray("file://") + folder.Path().c_str() + "/album/"),
		Paths({folder.Path() + "/album"}));
}


TEST_F(Drops, AColorIsPasted)
{
	EXPECT_TRUE(test::Drop(fWindow, 30, 40,
		[](QMimeData& data) { data.setColorData(QColor(12, 34, 56)); }));
	test::Settle(fWindow);
	const BMessage message = fLog.Last(B_PASTE);
	const void* bytes;
	ssize_t size;
	ASSERT_EQ(message.FindData("RGBColor", B_RGB_COLOR_TYPE, &bytes, &size), B_OK);
	ASSERT_EQ(size, 4);
	const rgb_color expected = {12, 34, 56, 255};
	EXPECT_EQ(memcmp(bytes, &expected, 4), 0);
	EXPECT_TRUE(message.WasDropped());
}


TEST_F(Drops, EverythingElseIsRefused)
{
	EXPECT_FALSE(test::Drop(fWindow, 30, 40,
		[](QMimeData& data) { data.setText(QStringLiteral("file:///tmp/x")); }));
	EXPECT_FALSE(test::DropUrls(fWindow, 30, 40, "http://example.org/a.mp3\r\n"));
	EXPECT_FALSE(test::DropUrls(fWindow, 30, 40, "file://other.example.org/a.mp3\r\n"));
	EXPECT_FALSE(test::DropUrls(fWindow, 30, 40, ""));
	EXPECT_FALSE(test::DropUrls(fWindow, 30, 40, "file:///tmp/a%00b\r\n"));
	test::Settle(fWindow);
	EXPECT_TRUE(fLog.Messages(B_SIMPLE_DATA).empty());
}


TEST(LocalPaths, TakesWhatNamesAFileHere)
{
	EXPECT_EQ(hosted::LocalPaths("# comment\r\nfile:///a\r\nhttp://b/c\r\nFILE://localhost/d\n"
								 "file:/e\nfile://\nfile:f\n/g\n"),
		Paths({"/a", "/d", "/e"}));
	EXPECT_EQ(hosted::LocalPaths("file:///"), Paths({"/"}));
}
