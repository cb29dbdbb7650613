// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaFile.h>

#include <chrono>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <DataIO.h>
#include <Entry.h>
#include <File.h>
#include <MediaTrack.h>
#include <Message.h>

#include <gtest/gtest.h>

#include "tests/support/CpuTime.h"
#include "tests/support/Media.h"
#include "tests/support/TempFolder.h"

using test::MakeMedia;
using test::Pattern;
using test::TempFolder;
using test::Tone;


namespace {

struct Length {
	bigtime_t audio = 0;
	bigtime_t video = 0;
	int32 tracks = 0;
};


entry_ref
ref_of(const std::string& path)
{
	entry_ref ref;
	EXPECT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK) << path;
	return ref;
}


Length
length_of(const std::string& path)
{
	const entry_ref ref = ref_of(path);
	BMediaFile file(&ref);
	Length length;
	length.tracks = file.CountTracks();
	for (int32 i = 0; i < file.CountTracks(); i++) {
		BMediaTrack* const track = file.TrackAt(i);
		media_format format;
		EXPECT_EQ(track->EncodedFormat(&format), B_OK);
		if (format.IsAudio())
			length.audio = track->Duration();
		else if (format.IsVideo())
			length.video = track->Duration();
		EXPECT_EQ(file.ReleaseTrack(track), B_OK);
	}
	return length;
}


// What another reader of media says, in microseconds.
double
probed_length(const std::string& path)
{
	return 1e6
		* atof(test::OutputOfCommand("ffprobe -v error -show_entries format=duration"
									 " -of csv=p=0 '"
			+ path + "'")
				   .c_str());
}


// Encoders pad the last frame and some players' delays are counted, so a fraction is allowed.
void
expect_audio(const std::string& path, double seconds)
{
	const Length length = length_of(path);
	EXPECT_NEAR(static_cast<double>(length.audio), seconds * 1e6, 150000) << path;
	EXPECT_NEAR(static_cast<double>(length.audio), probed_length(path), 60000) << path;
	EXPECT_EQ(length.video, 0) << path;
}


void
expect_video(const std::string& path, double audio, double video)
{
	const Length length = length_of(path);
	EXPECT_NEAR(static_cast<double>(length.audio), audio * 1e6, 150000) << path;
	EXPECT_NEAR(static_cast<double>(length.video), video * 1e6, 150000) << path;
	const double longest = static_cast<double>(std::max(length.audio, length.video));
	EXPECT_NEAR(longest, probed_length(path), 60000) << path;
}


std::string
cover(const TempFolder& folder)
{
	return " -i '" + MakeMedia(folder / "cover.jpg", Pattern(1) + " -frames:v 1") + "'";
}

} // namespace


TEST(BMediaFile, LengthsOfAudioAreRight)
{
	const TempFolder folder;
	expect_audio(MakeMedia(folder / "cbr.mp3", Tone(12.4) + " -b:a 128k"), 12.4);
	expect_audio(MakeMedia(folder / "vbr.mp3", Tone(12.4) + " -q:a 4"), 12.4);
	expect_audio(
		MakeMedia(folder / "bare.mp3", Tone(12.4) + " -b:a 64k -write_xing 0 -id3v2_version 0"),
		12.4);
	expect_audio(MakeMedia(folder / "a.flac", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "vorbis.ogg", Tone(12.4) + " -c:a libvorbis -ac 2"), 12.4);
	expect_audio(MakeMedia(folder / "a.opus", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "a.m4a", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "front.m4a", Tone(12.4) + " -movflags faststart"), 12.4);
	expect_audio(MakeMedia(folder / "a.wav", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "deep.wav", Tone(12.4) + " -c:a pcm_s24le"), 12.4);
	expect_audio(MakeMedia(folder / "a.aiff", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "a.wma", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "a.mka", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "a.wv", Tone(12.4)), 12.4);
	expect_audio(MakeMedia(folder / "a.tta", Tone(12.4)), 12.4);
}


TEST(BMediaFile, LengthsOfVideoAreRight)
{
	const TempFolder folder;
	const std::string both = Tone(10) + Pattern(12);
	expect_video(MakeMedia(folder / "a.mp4", both + " -c:v mpeg4"), 10, 12);
	expect_video(MakeMedia(folder / "a.avi", both + " -c:v mpeg4"), 10, 12);
	expect_video(MakeMedia(folder / "a.mov", both + " -c:v mpeg4"), 10, 12);
	expect_video(MakeMedia(folder / "a.ogv", both + " -c:v libtheora -c:a libvorbis -ac 2"), 10,
		12);
	expect_video(MakeMedia(folder / "a.ts", both + " -c:v mpeg2video -r 25"), 10, 12);
	// These containers tell one length for all tracks.
	expect_video(MakeMedia(folder / "a.mkv", both + " -c:v mpeg4"), 12, 12);
	expect_video(MakeMedia(folder / "a.webm", both + " -c:v libvpx -c:a libopus"), 12, 12);
	expect_video(MakeMedia(folder / "a.asf", both + " -c:v mpeg4"), 12, 12);
	expect_video(MakeMedia(folder / "a.wmv", both + " -c:v msmpeg4"), 12, 12);
}


TEST(BMediaFile, CoverPicturesAreTracksWithoutLength)
{
	const TempFolder folder;
	const std::string picture
		= cover(folder) + " -map 0 -map 1 -c:v copy -disposition:v attached_pic";
	for (const char* name : {"a.mp3", "a.flac", "a.m4a"}) {
		const Length length = length_of(MakeMedia(folder / name, Tone(7.5) + picture));
		EXPECT_NEAR(static_cast<double>(length.audio), 7.5e6, 150000) << name;
		EXPECT_EQ(length.video, 0) << name;
		EXPECT_EQ(length.tracks, 2) << name;
	}
}


TEST(BMediaFile, TellsTheKindsOfTracks)
{
	const TempFolder folder;
	const auto encoded = [](const std::string& path, int32 index) {
		const entry_ref ref = ref_of(path);
		BMediaFile file(&ref);
		media_format format;
		BMediaTrack* const track = file.TrackAt(index);
		if (track == nullptr)
			return B_MEDIA_NO_TYPE;
		track->EncodedFormat(&format);
		return format.type;
	};
	EXPECT_EQ(encoded(MakeMedia(folder / "a.wav", Tone(1)), 0), B_MEDIA_RAW_AUDIO);
	EXPECT_EQ(encoded(MakeMedia(folder / "b.wav", Tone(1) + " -c:a pcm_s24le"), 0),
		B_MEDIA_ENCODED_AUDIO);
	EXPECT_EQ(encoded(MakeMedia(folder / "a.mp3", Tone(1)), 0), B_MEDIA_ENCODED_AUDIO);
	const std::string film = MakeMedia(folder / "a.mp4", Pattern(1) + Tone(1) + " -c:v mpeg4");
	EXPECT_EQ(encoded(film, 0), B_MEDIA_ENCODED_VIDEO);
	EXPECT_EQ(encoded(film, 1), B_MEDIA_ENCODED_AUDIO);
	const std::string words = folder.Write("a.srt", "1\n00:00:00,000 --> 00:00:01,000\nHello\n");
	const std::string titled
		= MakeMedia(folder / "a.mkv", Tone(1) + " -i '" + words + "' -map 0 -map 1");
	EXPECT_EQ(encoded(titled, 1), B_MEDIA_UNKNOWN_TYPE);
	const entry_ref ref = ref_of(titled);
	BMediaFile file(&ref);
	ASSERT_EQ(file.CountTracks(), 2);
	EXPECT_EQ(file.TrackAt(1)->Duration(), 0);
}


TEST(BMediaFile, GivesTheSameTrackUntilItIsReleased)
{
	const TempFolder folder;
	const entry_ref ref = ref_of(MakeMedia(folder / "a.wav", Tone(1)));
	BMediaFile file(&ref);
	ASSERT_EQ(file.InitCheck(), B_OK);
	BMediaTrack* const track = file.TrackAt(0);
	ASSERT_NE(track, nullptr);
	EXPECT_EQ(file.TrackAt(0), track);
	EXPECT_EQ(file.TrackAt(1), nullptr);
	EXPECT_EQ(file.TrackAt(-1), nullptr);
	EXPECT_EQ(file.ReleaseTrack(track), B_OK);
	EXPECT_EQ(file.ReleaseTrack(track), B_ERROR);
	EXPECT_EQ(file.ReleaseTrack(nullptr), B_ERROR);
	EXPECT_NE(file.TrackAt(0), nullptr);
	EXPECT_EQ(file.ReleaseAllTracks(), B_OK);
}


TEST(BMediaFile, MissingFileHasTheFilesError)
{
	const TempFolder folder;
	const entry_ref ref = ref_of(folder / "missing.mp3");
	BMediaFile file(&ref);
	EXPECT_EQ(file.InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(file.CountTracks(), 0);
	EXPECT_EQ(file.TrackAt(0), nullptr);
	EXPECT_EQ(file.ReleaseTrack(nullptr), B_ERROR);
}


TEST(BMediaFile, WhatIsNoMediaHasNoHandler)
{
	const TempFolder folder;
	const std::string paths[] = {
		folder.Write("a.txt", std::string(5000, 'x')),
		folder.Write("empty.mp3", ""),
		folder.Write("list.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:10,\n/etc/passwd\n"),
		folder.Write("concat.mp3", "ffconcat version 1.0\nfile '/etc/passwd'\n"),
		MakeMedia(folder / "picture.jpg", Pattern(1) + " -frames:v 1"),
		MakeMedia(folder / "picture.png", Pattern(1) + " -frames:v 1"),
		folder.MakeFolder("folder.mp3"),
	};
	for (const std::string& path : paths) {
		const entry_ref ref = ref_of(path);
		BMediaFile file(&ref);
		EXPECT_EQ(file.InitCheck(), B_MEDIA_NO_HANDLER) << path;
		EXPECT_EQ(file.CountTracks(), 0) << path;
		EXPECT_EQ(file.TrackAt(0), nullptr) << path;
	}
	BMediaFile none(static_cast<const entry_ref*>(nullptr));
	EXPECT_EQ(none.InitCheck(), B_BAD_VALUE);
}


TEST(BMediaFile, PipesAreNotWaitedFor)
{
	const TempFolder folder;
	const std::string path = folder / "pipe.mp3";
	ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
	const entry_ref ref = ref_of(path);
	BMediaFile file(&ref);
	EXPECT_EQ(file.InitCheck(), B_MEDIA_NO_HANDLER);
}


TEST(BMediaFile, DamagedFilesEndInTime)
{
	const TempFolder folder;
	const auto start = test::CpuTime();
	for (const char* name :
		{"a.mp3", "a.flac", "a.ogg", "a.m4a", "a.wav", "a.mkv", "a.ts", "a.avi"}) {
		const std::string whole = test::ReadFile(MakeMedia(folder / name, Tone(0.5)));
		for (const size_t part : {size_t(1), size_t(7), size_t(100), size_t(101)})
			length_of(folder.Write(name, whole.substr(0, whole.size() * part / 101)));
		length_of(folder.Write(name, std::string(1 << 20, '\0')));
		length_of(folder.Write(name, std::string(1 << 20, '\xff')));
		const std::string path = folder.Write(name, whole);
		ASSERT_EQ(truncate(path.c_str(), off_t(4) << 30), 0);
		length_of(path);
	}
	EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(60));
}


TEST(BMediaFile, ReadsFromMemory)
{
	const TempFolder folder;
	const std::string data = test::ReadFile(MakeMedia(folder / "a.flac", Tone(3)));
	BMemoryIO source(data.data(), data.size());
	BMediaFile file(&source);
	ASSERT_EQ(file.InitCheck(), B_OK);
	ASSERT_EQ(file.CountTracks(), 1);
	EXPECT_NEAR(static_cast<double>(file.TrackAt(0)->Duration()), 3e6, 1000);
}


TEST(BMediaFile, TellsWhatTheFileSaysOfItself)
{
	const TempFolder folder;
	const entry_ref ref = ref_of(MakeMedia(folder / "a.flac", Tone(1) + " -metadata TITLE=Name"));
	BMediaFile file(&ref);
	BMessage data;
	ASSERT_EQ(file.GetMetaData(&data), B_OK);
	EXPECT_STREQ(data.FindString("TITLE"), "Name");
	EXPECT_EQ(file.GetMetaData(nullptr), B_BAD_VALUE);
}
