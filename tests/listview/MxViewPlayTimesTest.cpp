// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <atomic>
#include <errno.h>
#include <set>
#include <thread>

#include <Messenger.h>
#include <Node.h>
#include <Path.h>
#include <String.h>

#include "entryview/MEView.h"
#include "platform/storage/ExtendedAttributes.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"

#include <QImage>


namespace {

class MxViewPlayTimes : public ListViewFixture {
protected:
	// A title of silence, made without any tool: 8000 bytes are a second.
	std::string AddSound(const std::string& name, int bytes)
	{
		std::string sound("RIFF....WAVEfmt ", 16);
		sound += std::string("\x10\0\0\0\1\0\1\0\x40\x1f\0\0\x40\x1f\0\0\1\0\x08\0data", 24);
		for (int shift = 0; shift < 32; shift += 8)
			sound += static_cast<char>(bytes >> shift);
		for (int shift = 0; shift < 32; shift += 8)
			sound[4 + shift / 8] = static_cast<char>((bytes + 36) >> shift);
		const std::string path = fFolder.Write(name, sound + std::string(bytes, '\x80'));
		fTitles.AddItem(new BPath(path.c_str()));
		return path;
	}

	static std::string StoredLength(const std::string& path)
	{
		BString text("none");
		BNode(path.c_str()).ReadAttrString("Audio:Length", &text);
		return text.String();
	}

	std::string Measure()
	{
		return test::OutputOf([this] { fView->ListWriteAttribute(); });
	}
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(MxViewPlayTimes, LengthIsWrittenAndShown)
{
	const std::string path = AddSound("Three.wav", 3 * 8000);
	MakeView();
	EXPECT_EQ(Tile(0)->fLengthCode, 0);
	const std::string output = Measure();
	EXPECT_TRUE(contains(output, ":Node: '" + path + "'\n"));
	EXPECT_EQ(StoredLength(path), "00:04");
	EXPECT_EQ(Tile(0)->fMinutes, 0);
	EXPECT_EQ(Tile(0)->fSeconds, 4);
	EXPECT_EQ(Tile(0)->fLengthCode, 4);
	EXPECT_NEAR(Tile(0)->fLength, 4 / 60.0 + 0.02, 0.00001);
}


TEST_F(MxViewPlayTimes, FiftyNineSecondsAreWrittenAsAMinute)
{
	const std::string path = AddSound("Minute.wav", 59 * 8000);
	MakeView();
	Measure();
	EXPECT_EQ(StoredLength(path), "01:00");
	EXPECT_EQ(Tile(0)->fLengthCode, 100);
}


TEST_F(MxViewPlayTimes, LessThanASecondWritesNothing)
{
	const std::string path = AddSound("Short.wav", 4000);
	MakeView();
	Measure();
	EXPECT_EQ(StoredLength(path), "none");
	EXPECT_EQ(Tile(0)->fLengthCode, 0);
}


TEST_F(MxViewPlayTimes, WhatIsNoSoundWritesNothing)
{
	const std::string path = AddTitle("Text.mp3");
	MakeView();
	Measure();
	EXPECT_EQ(StoredLength(path), "none");
}


TEST_F(MxViewPlayTimes, StoredLengthStaysEvenIfItIsWrong)
{
	const std::string path = AddSound("Three.wav", 3 * 8000);
	const BString wrong("99:59");
	BNode(path.c_str()).WriteAttrString("Audio:Length", &wrong);
	MakeView();
	EXPECT_TRUE(contains(Measure(), " have allways ("));
	EXPECT_EQ(StoredLength(path), "99:59");
	EXPECT_EQ(Tile(0)->fLengthCode, 9959);
}


TEST_F(MxViewPlayTimes, MissingFileIsPassedOver)
{
	fTitles.AddItem(new BPath((fFolder / "gone.wav").c_str()));
	fTitles.AddItem(new BPath);
	const std::string path = AddSound("Three.wav", 3 * 8000);
	MakeView();
	const std::string output = Measure();
	EXPECT_FALSE(contains(output, "gone.wav"));
	EXPECT_EQ(StoredLength(path), "00:04");
	// The entry without a path has no tile: the title's own one is the second.
	EXPECT_TRUE(contains(output, "not a MEView (2)\n"));
}


TEST_F(MxViewPlayTimes, TimeThatCannotBeKeptIsShown)
{
	const std::string path = AddSound("Three.wav", 3 * 8000);
	MakeView();
	hosted::ExtendedAttributes::SetRefusal(EROFS);
	const std::string output = Measure();
	hosted::ExtendedAttributes::SetRefusal(0);
	EXPECT_TRUE(contains(output, " .. can't set Attribute\n"));
	EXPECT_EQ(StoredLength(path), "none");
	EXPECT_EQ(Tile(0)->fLengthCode, 4);
}


TEST_F(MxViewPlayTimes, EmptyListIsMeasuredAtOnce)
{
	MakeView();
	fView->progressCalls.clear();
	const bigtime_t begin = system_time();
	EXPECT_FALSE(contains(Measure(), ":Node:"));
	// After the pause in which the menu vanishes.
	EXPECT_GE(system_time() - begin, 50000);
	EXPECT_EQ(fView->progressCalls, (std::vector<bool>{false, true}));
}


TEST_F(MxViewPlayTimes, MeasuredTitleIsTimed)
{
	AddSound("Three.wav", 3 * 8000);
	AddSound("Two.wav", 2 * 8000);
	MakeView();
	Measure();
	fView->CenterMediaFile(1, true, 0);
	// Two seconds, the one that was added, and the margin.
	EXPECT_NEAR(fView->playLength, 4200000, 10);
}


TEST_F(MxViewPlayTimes, MeasuringAThousandTitlesCanBeFollowed)
{
	for (int number = 0; number < 1000; number++)
		AddSound("Title " + std::to_string(number) + ".wav", 8000);
	TestedMxView& view = MakeView();
	fWindow->Unlock();
	fWindow->Show();
	test::Settle(fWindow);

	std::atomic<bool> isOver(false);
	bool isBusySeen = false;
	std::set<int> barTops;
	// Looks at the window as the user does.
	std::thread watcher([&] {
		while (!isOver) {
			const QImage picture = test::PictureOf(fWindow);
			isBusySeen = isBusySeen || picture.pixel(390, 21) == qRgb(250, 100, 100);
			int top = 20;
			while (top < 680 && picture.pixel(990, top) != qRgb(30, 20, 30))
				top++;
			barTops.insert(top);
			snooze(1000);
		}
	});
	BMessage measure('MWPT');
	BMessage reply;
	BMessenger(&view).SendMessage(&measure);
	BMessage last('last');
	BMessenger(&view).SendMessage(&last, &reply);
	isOver = true;
	watcher.join();
	fWindow->Lock();
	EXPECT_TRUE(isBusySeen);
	EXPECT_GT(barTops.size(), 5u);
	EXPECT_EQ(StoredLength(fFolder / "Title 999.wav"), "00:02");
	EXPECT_EQ(Tile(999)->fLengthCode, 2);
}
