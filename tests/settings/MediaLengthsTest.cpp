// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Play times against those that the media library's own tool tells, and files that mean harm.
#include "settings/Helpers.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <string>

#include <stdlib.h>
#include <sys/resource.h>

#include <QImage>

#include <gtest/gtest.h>

#include "tests/support/CpuTime.h"
#include "tests/support/Media.h"
#include "tests/support/Output.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

using test::MakeMedia;
using test::Pattern;
using test::Tone;


namespace {

class MediaLengths : public testing::Test {
protected:
	long LengthOf(const std::string& path)
	{
		entry_ref ref;
		EXPECT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
		long seconds = -1;
		const std::string output = test::OutputOf([&] { GetMediaDuration(&ref, &seconds); });
		EXPECT_EQ(output, ":Laufzeit: " + std::to_string(seconds) + " seconds \n");
		return seconds;
	}

	std::string Make(const std::string& name, const std::string& arguments)
	{
		return MakeMedia(fFolder / name, arguments);
	}

	const test::TempFolder fFolder;
};


// The whole seconds that the tool tells; its length has a fraction that is far from both ends.
long
probed_length(const std::string& path)
{
	return atol(test::OutputOfCommand(
		"ffprobe -v error -show_entries format=duration -of csv=p=0 '" + path + "'")
					.c_str());
}


long
peak_memory()
{
	struct rusage usage;
	getrusage(RUSAGE_SELF, &usage);
	return usage.ru_maxrss;
}

} // namespace


TEST_F(MediaLengths, SoundInEachFormatHasTheToolsLength)
{
	const std::pair<const char*, const char*> formats[] = {{"cbr.mp3", " -b:a 96k"},
		{"vbr.mp3", " -q:a 5"}, {"bare.mp3", " -b:a 64k -write_xing 0 -id3v2_version 0"},
		{"a.flac", ""}, {"vorbis.ogg", " -c:a libvorbis -ac 2"}, {"a.opus", ""}, {"a.m4a", ""},
		{"a.wav", ""}, {"a.wma", ""}};
	for (const auto& [name, arguments] : formats) {
		const std::string path = Make(name, Tone(83.5) + arguments);
		EXPECT_EQ(LengthOf(path), 83) << name;
		EXPECT_EQ(probed_length(path), 83) << name;
	}
}


TEST_F(MediaLengths, FilmInEachFormatHasTheToolsLength)
{
	const std::pair<const char*, const char*> formats[] = {{"a.mp4", " -c:v mpeg4"},
		{"a.mkv", " -c:v mpeg4"}, {"a.webm", " -c:v libvpx -c:a libopus"}, {"a.avi", " -c:v mpeg4"},
		{"a.asf", " -c:v mpeg4"}, {"a.wmv", " -c:v msmpeg4"}, {"a.ts", " -c:v mpeg2video -r 25"}};
	for (const auto& [name, arguments] : formats) {
		const std::string path = Make(name, Tone(8.2) + Pattern(12.5) + arguments);
		EXPECT_EQ(LengthOf(path), 12) << name;
		EXPECT_EQ(probed_length(path), 12) << name;
	}
}


TEST_F(MediaLengths, CoverInsideOfSoundIsNoFilm)
{
	const std::string picture = test::SavePicture(test::TwoColors(200, 200), fFolder / "cover.jpg");
	for (const char* name : {"a.mp3", "a.flac", "a.m4a"}) {
		const std::string path = Make(name,
			Tone(7.5) + " -i '" + picture
				+ "' -map 0 -map 1 -c:v copy -disposition:v attached_pic");
		EXPECT_EQ(LengthOf(path), 7) << name;
	}
}


TEST_F(MediaLengths, AnythingElseHasNone)
{
	EXPECT_EQ(LengthOf(fFolder.Write("empty.mp3", "")), 0);
	EXPECT_EQ(LengthOf(fFolder.Write("text.mp3", "A text, a text, and nothing but a text.\n")), 0);
	EXPECT_EQ(LengthOf(fFolder.Write("notes.txt", std::string(100000, 'x'))), 0);
	EXPECT_EQ(LengthOf(fFolder.MakeFolder("folder.mp3")), 0);
	EXPECT_EQ(LengthOf(test::SavePicture(test::TwoColors(20, 20), fFolder / "a.jpg")), 0);
	EXPECT_EQ(LengthOf(test::SavePicture(test::TwoColors(20, 20), fFolder / "a.png")), 0);
	EXPECT_EQ(LengthOf(Make("a.gif", Pattern(2))), 0);
	EXPECT_EQ(LengthOf(fFolder.Write("list.m3u", "#EXTM3U\n/music/a.mp3\n")), 0);
	EXPECT_EQ(LengthOf(fFolder / "missing.mp3"), 0);
	std::mt19937 random(3);
	std::string bytes;
	for (int count = 0; count < 200000; count++)
		bytes += static_cast<char>(random());
	EXPECT_EQ(LengthOf(fFolder.Write("random", bytes)), 0);
}


// Some bytes of each file are changed, and it ends early: no file costs more than the reader's five
// seconds, and all together little memory.
TEST_F(MediaLengths, DamagedFilesCostLittle)
{
	const long before = peak_memory();
	std::mt19937 random(7);
	for (const char* name : {"a.mp3", "a.flac", "a.ogg", "a.opus", "a.m4a", "a.wav", "a.mkv",
			 "a.webm", "a.avi", "a.ts", "a.wma", "a.mp4"}) {
		const std::string whole = test::ReadFile(Make(name, Tone(1)));
		for (int round = 0; round < 12; round++) {
			std::string damaged = whole.substr(0, whole.size() - random() % (whole.size() / 2));
			// The beginning says most.
			for (int change = 0; change < 8; change++)
				damaged[random() % std::min<size_t>(damaged.size(), 400)] = char(random());
			const auto start = test::CpuTime();
			EXPECT_GE(LengthOf(fFolder.Write(name, damaged)), 0) << name;
			EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(8)) << name;
		}
	}
	EXPECT_LT(peak_memory() - before, 400000);
}
