// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaTrack.h>

#include <string.h>
#include <string>

#include <Entry.h>
#include <MediaFile.h>

#include <gtest/gtest.h>

#include "tests/support/Media.h"
#include "tests/support/TempFolder.h"

static_assert(B_MEDIA_NO_TYPE == -1 && B_MEDIA_UNKNOWN_TYPE == 0 && B_MEDIA_RAW_AUDIO == 1);
static_assert(B_MEDIA_RAW_VIDEO == 2 && B_MEDIA_TEXT == 6 && B_MEDIA_MULTISTREAM == 8);
static_assert(B_MEDIA_ENCODED_AUDIO == 10 && B_MEDIA_ENCODED_VIDEO == 11);
static_assert(sizeof(media_codec_info::pretty_name) == 96);
static_assert(sizeof(media_codec_info::short_name) == 32);

using test::MakeMedia;
using test::Pattern;
using test::TempFolder;
using test::Tone;


namespace {

class Opened {
public:
	explicit Opened(const std::string& path)
		:
		fRef(_Ref(path)),
		fFile(&fRef)
	{
	}

	BMediaTrack* Track(int32 index) { return fFile.TrackAt(index); }

private:
	static entry_ref _Ref(const std::string& path)
	{
		entry_ref ref;
		get_ref_for_path(path.c_str(), &ref);
		return ref;
	}

private:
	entry_ref fRef;
	BMediaFile fFile;
};

} // namespace


TEST(MediaFormat, StartsAsNothing)
{
	media_format format;
	EXPECT_EQ(format.type, 0);
	EXPECT_FALSE(format.IsAudio());
	EXPECT_FALSE(format.IsVideo());
	format.type = B_MEDIA_RAW_AUDIO;
	format.u.raw_audio.frame_rate = 44100;
	EXPECT_TRUE(format.IsAudio());
	format.Clear();
	EXPECT_EQ(format.type, 0);
	EXPECT_EQ(format.u.raw_audio.frame_rate, 0);
	format.type = B_MEDIA_ENCODED_VIDEO;
	EXPECT_TRUE(format.IsVideo());
}


TEST(BMediaTrack, DescribesAudio)
{
	const TempFolder folder;
	Opened opened(MakeMedia(folder / "a.flac", Tone(2) + " -ac 2"));
	BMediaTrack* const track = opened.Track(0);
	ASSERT_NE(track, nullptr);
	EXPECT_EQ(track->InitCheck(), B_OK);
	media_format format;
	format.type = B_MEDIA_RAW_AUDIO;
	ASSERT_EQ(track->DecodedFormat(&format), B_OK);
	EXPECT_EQ(format.type, B_MEDIA_RAW_AUDIO);
	EXPECT_EQ(format.u.raw_audio.frame_rate, 44100);
	EXPECT_EQ(format.u.raw_audio.channel_count, 2u);
	EXPECT_EQ(track->CountFrames(), 88200);
	media_codec_info info;
	ASSERT_EQ(track->GetCodecInfo(&info), B_OK);
	EXPECT_STREQ(info.short_name, "flac");
	EXPECT_NE(strstr(info.pretty_name, "FLAC"), nullptr);
}


TEST(BMediaTrack, DescribesVideo)
{
	const TempFolder folder;
	Opened opened(MakeMedia(folder / "a.mp4", Pattern(2) + " -c:v mpeg4"));
	BMediaTrack* const track = opened.Track(0);
	ASSERT_NE(track, nullptr);
	media_format format;
	format.type = B_MEDIA_RAW_VIDEO;
	ASSERT_EQ(track->DecodedFormat(&format), B_OK);
	EXPECT_EQ(format.u.raw_video.display.line_width, 64u);
	EXPECT_EQ(format.u.raw_video.display.line_count, 48u);
	EXPECT_EQ(format.u.raw_video.field_rate, 10);
	EXPECT_EQ(track->CountFrames(), 20);
	ASSERT_EQ(track->EncodedFormat(&format), B_OK);
	EXPECT_EQ(format.type, B_MEDIA_ENCODED_VIDEO);
}


TEST(BMediaTrack, RefusesTheWrongKindAndNothing)
{
	const TempFolder folder;
	Opened opened(MakeMedia(folder / "a.wav", Tone(1)));
	BMediaTrack* const track = opened.Track(0);
	ASSERT_NE(track, nullptr);
	media_format format;
	format.type = B_MEDIA_RAW_VIDEO;
	EXPECT_EQ(track->DecodedFormat(&format), B_BAD_TYPE);
	EXPECT_EQ(track->DecodedFormat(nullptr), B_BAD_VALUE);
	EXPECT_EQ(track->EncodedFormat(nullptr), B_BAD_VALUE);
	EXPECT_EQ(track->GetCodecInfo(nullptr), B_BAD_VALUE);
}


TEST(BMediaTrack, SubtitlesHaveNoDecoder)
{
	const TempFolder folder;
	const std::string words = folder.Write("a.srt", "1\n00:00:00,000 --> 00:00:01,000\nHello\n");
	Opened opened(MakeMedia(folder / "a.mkv", Tone(1) + " -i '" + words + "' -map 0 -map 1"));
	BMediaTrack* const track = opened.Track(1);
	ASSERT_NE(track, nullptr);
	media_format format;
	media_codec_info info;
	EXPECT_EQ(track->DecodedFormat(&format), B_NO_INIT);
	EXPECT_EQ(track->GetCodecInfo(&info), B_NO_INIT);
	EXPECT_EQ(track->CountFrames(), 0);
}
