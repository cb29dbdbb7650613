// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Tags.h"

#include <atomic>
#include <chrono>
#include <string.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <TypeConstants.h>

#include <gtest/gtest.h>

#include "platform/desktop/ComputedAttributes.h"
#include "tests/support/CpuTime.h"
#include "tests/support/Media.h"
#include "tests/support/TempFolder.h"

using hosted::ComputeAttribute;
using hosted::ReadTags;
using hosted::Tags;
using test::MakeMedia;
using test::TempFolder;
using test::Tone;


namespace {

const std::string kTags = " -metadata artist='Bj\u00f6rk' -metadata title='J\u00f3ga \u2603'"
						  " -metadata album='Homogenic' -metadata track=2/10";


void
expect_tags(const std::string& path)
{
	const Tags tags = ReadTags(path);
	EXPECT_EQ(tags.artist, "Bj\u00f6rk") << path;
	EXPECT_EQ(tags.title, "J\u00f3ga \u2603") << path;
	EXPECT_EQ(tags.album, "Homogenic") << path;
	EXPECT_EQ(tags.track, 2) << path;
}


// A tag of the first kind: 128 bytes at the end of the file.
std::string
old_tag(const std::string& title, const std::string& artist, uint8_t track)
{
	std::string tag("TAG");
	for (const std::string& text : {title, artist, std::string("Album")}) {
		tag += text;
		tag.resize(tag.size() + 30 - text.size(), '\0');
	}
	tag += "1999";
	tag.resize(tag.size() + 29, '\0');
	tag += static_cast<char>(track);
	tag += '\x01';
	return tag;
}


std::string
bare_mp3(const TempFolder& folder)
{
	return test::ReadFile(
		MakeMedia(folder / "bare.mp3", Tone(0.3) + " -id3v2_version 0 -write_xing 0"));
}

} // namespace


TEST(ReadTags, KnowsTheCommonKinds)
{
	const TempFolder folder;
	expect_tags(MakeMedia(folder / "v3.mp3", Tone(0.3) + kTags + " -id3v2_version 3"));
	expect_tags(MakeMedia(folder / "v4.mp3", Tone(0.3) + kTags + " -id3v2_version 4"));
	expect_tags(MakeMedia(folder / "a.flac", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.ogg", Tone(0.3) + kTags + " -ac 2 -c:a libvorbis"));
	expect_tags(MakeMedia(folder / "flac.ogg", Tone(0.3) + kTags + " -c:a flac"));
	expect_tags(MakeMedia(folder / "a.opus", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "opus.ogg", Tone(0.3) + kTags + " -c:a libopus"));
	expect_tags(MakeMedia(folder / "a.m4a", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.mp4", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.wma", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.asf", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.wav", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.aiff", Tone(0.3) + kTags + " -write_id3v2 1"));
	expect_tags(MakeMedia(folder / "nameless", Tone(0.3) + kTags + " -f mp3"));
}


TEST(ReadTags, KnowsContainersForVideo)
{
	const TempFolder folder;
	expect_tags(MakeMedia(folder / "a.mka", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.mkv", Tone(0.3) + kTags));
	expect_tags(MakeMedia(folder / "a.webm", Tone(0.3) + kTags + " -c:a libopus"));
	const std::string old = MakeMedia(folder / "a.mov", Tone(0.3) + kTags);
	EXPECT_EQ(ReadTags(old).title, "J\u00f3ga \u2603");
	EXPECT_EQ(ReadTags(old).artist, "Bj\u00f6rk");
	const std::string path = MakeMedia(folder / "a.avi", test::Pattern(0.3) + kTags);
	EXPECT_EQ(ReadTags(path).title, "J\u00f3ga \u2603");
	EXPECT_EQ(ReadTags(path).artist, "Bj\u00f6rk");
}


TEST(ReadTags, OldTagsAreLatin)
{
	const TempFolder folder;
	const std::string path
		= folder.Write("old.mp3", bare_mp3(folder) + old_tag("Caf\xe9", "Mot\xf6rhead", 7));
	const Tags tags = ReadTags(path);
	EXPECT_EQ(tags.title, "Caf\u00e9");
	EXPECT_EQ(tags.artist, "Mot\u00f6rhead");
	EXPECT_EQ(tags.album, "Album");
	EXPECT_EQ(tags.track, 7);
}


TEST(ReadTags, OldTagsMayHoldUnicode)
{
	const TempFolder folder;
	const std::string path
		= folder.Write("old.mp3", bare_mp3(folder) + old_tag("Caf\u00e9", "B", 0));
	EXPECT_EQ(ReadTags(path).title, "Caf\u00e9");
	EXPECT_EQ(ReadTags(path).track, 0);
}


// Encoding 0 is Latin 1, 1 is UTF-16 with its byte order in front.
TEST(ReadTags, TextFramesSayTheirEncoding)
{
	const TempFolder folder;
	const auto frame = [](const std::string& id, const std::string& contents) {
		return id + std::string(3, '\0') + static_cast<char>(contents.size()) + std::string(2, '\0')
			+ contents;
	};
	const std::string frames = frame("TPE1",
								   std::string("\0Bl\xfc"
											   "te",
									   6))
		+ frame("TIT2",
			std::string("\x01\xff\xfe"
						"A\0\x03\x26",
				7))
		+ frame("TALB", std::string("\x01\xfe\xff\x26\x03", 5));
	const std::string head = std::string("ID3\x03\0\0\0\0\0", 9) + static_cast<char>(frames.size());
	const Tags tags = ReadTags(folder.Write("a.mp3", head + frames + bare_mp3(folder)));
	EXPECT_EQ(tags.artist, "Bl\u00fcte");
	EXPECT_EQ(tags.title, "A\u2603");
	EXPECT_EQ(tags.album, "\u2603");
}


TEST(ReadTags, NothingWithoutTags)
{
	const TempFolder folder;
	const std::string path = MakeMedia(folder / "a.flac", Tone(0.3) + " -bitexact");
	const Tags tags = ReadTags(path);
	EXPECT_EQ(tags.artist, "");
	EXPECT_EQ(tags.title, "");
	EXPECT_EQ(tags.album, "");
	EXPECT_EQ(tags.track, 0);
}


TEST(ReadTags, NothingInOtherFiles)
{
	const TempFolder folder;
	MakeMedia(folder / "a.mp3", Tone(0.3) + kTags);
	const std::string text = folder / "a.txt";
	ASSERT_EQ(rename((folder / "a.mp3").c_str(), text.c_str()), 0);
	EXPECT_EQ(ReadTags(text).title, "");
	const std::string pipe = folder / "pipe.mp3";
	ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
	EXPECT_EQ(ReadTags(pipe).title, "");
	EXPECT_EQ(ReadTags(folder.MakeFolder("folder.mp3")).title, "");
	EXPECT_EQ(ReadTags(folder / "missing.mp3").title, "");
}


TEST(ReadTags, SeesAChangedFile)
{
	const TempFolder folder;
	const std::string path = folder / "a.mp3";
	MakeMedia(path, Tone(0.3) + " -metadata title=First");
	EXPECT_EQ(ReadTags(path).title, "First");
	EXPECT_EQ(ReadTags(path).title, "First");
	MakeMedia(path, Tone(0.3) + " -metadata title=Other");
	EXPECT_EQ(ReadTags(path).title, "Other");
}


TEST(ReadTags, DamagedFilesGiveNothingAndEnd)
{
	const TempFolder folder;
	const auto start = test::CpuTime();
	const std::string names[] = {"a.mp3", "a.flac", "a.ogg", "a.m4a", "a.wma", "a.wav", "a.aiff",
		"a.ape", "a.wv", "a.mpc", "a.opus", "a.tta", "a.dsf", "a.mp4"};
	for (const std::string& name : names) {
		ReadTags(folder.Write("zero/" + name, std::string(1 << 20, '\0')));
		ReadTags(folder.Write("ff/" + name, std::string(1 << 20, '\xff')));
		ReadTags(folder.Write("empty/" + name, ""));
		ReadTags(folder.Write("tag/" + name, "ID3\x04" + std::string(6, '\x7f')));
	}
	EXPECT_EQ(ReadTags(folder / "zero/a.mp3").title, "");
	EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(20));
}


// A sparse file of many gigabytes must not be searched from end to end.
TEST(ReadTags, HugeFilesEnd)
{
	const TempFolder folder;
	const auto start = test::CpuTime();
	for (const char* name : {"a.mp3", "a.wav", "a.m4a", "a.ogg", "a.flac", "a.wma"}) {
		const std::string path = folder.Write(name, "");
		ASSERT_EQ(truncate(path.c_str(), off_t(8) << 30), 0);
		EXPECT_EQ(ReadTags(path).title, "") << name;
	}
	EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(20));
}


TEST(ReadTags, AnyHalfOfAFileIsSafe)
{
	const TempFolder folder;
	for (const char* name : {"a.mp3", "a.flac", "a.ogg", "a.m4a", "a.wma", "a.wav"}) {
		const std::string whole = test::ReadFile(MakeMedia(folder / name, Tone(0.3) + kTags));
		for (size_t size = 0; size < whole.size() && size < 2000; size += 37) {
			const Tags tags = ReadTags(folder.Write(name, whole.substr(0, size)));
			EXPECT_TRUE(tags.track == 0 || tags.track == 2 || tags.track == 10) << name << size;
		}
	}
}


TEST(ReadTags, ThreadsMayAskAtOnce)
{
	const TempFolder folder;
	const std::string first = MakeMedia(folder / "1.mp3", Tone(0.3) + " -metadata title=One");
	const std::string second = MakeMedia(folder / "2.flac", Tone(0.3) + " -metadata title=Two");
	std::atomic<int> wrong{0};
	std::vector<std::thread> threads;
	for (int i = 0; i < 4; i++) {
		threads.emplace_back([&] {
			for (int round = 0; round < 50; round++) {
				if (ReadTags(first).title != "One" || ReadTags(second).title != "Two")
					wrong++;
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	EXPECT_EQ(wrong, 0);
}


TEST(ComputeAttribute, GivesTypesAndTags)
{
	const TempFolder folder;
	const std::string path = MakeMedia(folder / "a.mp3", Tone(0.3) + kTags);
	type_code type = 0;
	std::string value;
	ASSERT_TRUE(ComputeAttribute(path, "BEOS:TYPE", &type, &value));
	EXPECT_EQ(type, type_code(B_MIME_STRING_TYPE));
	EXPECT_EQ(value, std::string("audio/mpeg", 11));
	ASSERT_TRUE(ComputeAttribute(path, "Audio:Artist", &type, &value));
	EXPECT_EQ(type, type_code(B_STRING_TYPE));
	EXPECT_STREQ(value.c_str(), "Bj\u00f6rk");
	EXPECT_EQ(value.size(), strlen("Bj\u00f6rk") + 1);
	ASSERT_TRUE(ComputeAttribute(path, "Audio:Title", &type, &value));
	EXPECT_STREQ(value.c_str(), "J\u00f3ga \u2603");
	ASSERT_TRUE(ComputeAttribute(path, "Audio:Album", &type, &value));
	EXPECT_STREQ(value.c_str(), "Homogenic");
	ASSERT_TRUE(ComputeAttribute(path, "Audio:Track", &type, &value));
	EXPECT_EQ(type, type_code(B_INT32_TYPE));
	int32 track = 0;
	ASSERT_EQ(value.size(), sizeof(track));
	memcpy(&track, value.data(), sizeof(track));
	EXPECT_EQ(track, 2);
}


TEST(ComputeAttribute, OthersAreAbsentAndLeaveTheOutput)
{
	const TempFolder folder;
	const std::string path = MakeMedia(folder / "a.flac", Tone(0.3) + " -bitexact");
	type_code type = 7;
	std::string value = "kept";
	for (const char* name : {"Audio:Length", "Audio:Artist", "Audio:Track", "Audio:", "Audio:Genre",
			 "KORU_TYPE", "BEOS:PREF_APP", ""})
		EXPECT_FALSE(ComputeAttribute(path, name, &type, &value)) << name;
	EXPECT_EQ(type, type_code(7));
	EXPECT_EQ(value, "kept");
}
