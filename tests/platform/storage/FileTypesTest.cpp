// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/FileTypes.h"

#include <chrono>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/CpuTime.h"
#include "tests/support/Media.h"
#include "tests/support/TempFolder.h"

using hosted::FileType;
using test::MakeMedia;
using test::Pattern;
using test::TempFolder;
using test::Tone;


namespace {

constexpr const char* kUnknown = "application/octet-stream";

std::string
type_named(const char* name)
{
	const TempFolder folder;
	return FileType(folder.Write(name, ""));
}

} // namespace


TEST(FileTypeByExtension, AudioHasHaikusNames)
{
	EXPECT_EQ(type_named("a.mp3"), "audio/mpeg");
	EXPECT_EQ(type_named("a.wav"), "audio/x-wav");
	EXPECT_EQ(type_named("a.flac"), "audio/x-flac");
	EXPECT_EQ(type_named("a.ogg"), "audio/ogg");
	EXPECT_EQ(type_named("a.opus"), "audio/ogg");
	EXPECT_EQ(type_named("a.m4a"), "audio/mp4");
	EXPECT_EQ(type_named("a.pls"), "audio/x-scpls");
	EXPECT_EQ(type_named("a.wma"), "audio/x-ms-wma");
	EXPECT_EQ(type_named("a.aiff"), "audio/x-aiff");
}


TEST(FileTypeByExtension, VideoHasHaikusNames)
{
	EXPECT_EQ(type_named("a.mp4"), "video/mp4");
	EXPECT_EQ(type_named("a.mkv"), "video/x-matroska");
	EXPECT_EQ(type_named("a.webm"), "video/webm");
	EXPECT_EQ(type_named("a.avi"), "video/x-msvideo");
	EXPECT_EQ(type_named("a.asf"), "video/x-asf");
	EXPECT_EQ(type_named("a.mpg"), "video/mpeg");
	EXPECT_EQ(type_named("a.wmv"), "video/x-ms-wmv");
}


TEST(FileTypeByExtension, PlaylistsAreText)
{
	EXPECT_EQ(type_named("a.m3u"), "text/x-playlist");
	EXPECT_EQ(type_named("a.m3u8"), "text/x-playlist");
}


TEST(FileTypeByExtension, LetterCaseDoesNotMatter)
{
	EXPECT_EQ(type_named("A.MP3"), "audio/mpeg");
	EXPECT_EQ(type_named("a.Flac"), "audio/x-flac");
}


TEST(FileTypeByExtension, LastDotCounts)
{
	EXPECT_EQ(type_named("a.mp3.txt"), "text/plain");
	EXPECT_EQ(type_named("01. Intro.mp3"), "audio/mpeg");
	EXPECT_NE(type_named("mp3"), "audio/mpeg");
	EXPECT_NE(type_named("a.mp3.part"), "audio/mpeg");
}


TEST(FileTypeByExtension, DesktopKnowsTheRest)
{
	EXPECT_EQ(type_named("letter.odt"), "application/vnd.oasis.opendocument.text");
	EXPECT_EQ(type_named("a.cpp"), "text/x-source-code");
}


TEST(FileTypeByKind, FoldersAndLinksHaveTheirOwn)
{
	const TempFolder folder;
	EXPECT_EQ(FileType(folder.MakeFolder("album.mp3")), "application/x-vnd.Be-directory");
	const std::string link = folder / "link.mp3";
	ASSERT_EQ(symlink(folder.Write("a.mp3", "").c_str(), link.c_str()), 0);
	EXPECT_EQ(FileType(link), "application/x-vnd.Be-symlink");
}


TEST(FileTypeByKind, PipesDevicesAndNothingHaveNone)
{
	const TempFolder folder;
	const std::string pipe = folder / "pipe";
	ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
	EXPECT_EQ(FileType(pipe), "");
	EXPECT_EQ(FileType("/dev/null"), "");
	EXPECT_EQ(FileType(folder / "missing.mp3"), "");
}


TEST(FileTypeByKind, ProgramsAreElfFilesOnly)
{
	const TempFolder folder;
	EXPECT_EQ(FileType("/bin/true"), "application/x-vnd.Be-elfexecutable");
	const std::string script = folder.Write("start", "#!/bin/sh\nexit 0\n");
	ASSERT_EQ(chmod(script.c_str(), 0755), 0);
	EXPECT_EQ(FileType(script), "application/x-shellscript");
	const std::string song = folder.Write("song.mp3", "");
	ASSERT_EQ(chmod(song.c_str(), 0755), 0);
	EXPECT_EQ(FileType(song), "audio/mpeg");
	EXPECT_NE(FileType(folder.Write("torn",
				  std::string("\x7f"
							  "ELF"))),
		"application/x-vnd.Be-elfexecutable");
}


TEST(FileTypeByContents, AudioWithoutExtension)
{
	const TempFolder folder;
	MakeMedia(folder / "mp3", Tone(1) + " -f mp3");
	MakeMedia(folder / "bare", Tone(1) + " -f mp3 -id3v2_version 0 -write_xing 0");
	MakeMedia(folder / "flac", Tone(1) + " -f flac");
	MakeMedia(folder / "wav", Tone(1) + " -f wav");
	MakeMedia(folder / "vorbis", Tone(1) + " -ac 2 -c:a libvorbis -f ogg");
	MakeMedia(folder / "opus", Tone(1) + " -f opus");
	MakeMedia(folder / "m4a", Tone(1) + " -f ipod");
	MakeMedia(folder / "aac", Tone(1) + " -f adts");
	MakeMedia(folder / "aiff", Tone(1) + " -f aiff");
	EXPECT_EQ(FileType(folder / "mp3"), "audio/mpeg");
	EXPECT_EQ(FileType(folder / "bare"), "audio/mpeg");
	EXPECT_EQ(FileType(folder / "flac"), "audio/x-flac");
	EXPECT_EQ(FileType(folder / "wav"), "audio/x-wav");
	EXPECT_EQ(FileType(folder / "vorbis"), "audio/ogg");
	EXPECT_EQ(FileType(folder / "opus"), "audio/ogg");
	EXPECT_EQ(FileType(folder / "m4a"), "audio/mp4");
	EXPECT_EQ(FileType(folder / "aac"), "audio/aac");
	EXPECT_EQ(FileType(folder / "aiff"), "audio/x-aiff");
}


TEST(FileTypeByContents, VideoWithoutExtension)
{
	const TempFolder folder;
	MakeMedia(folder / "mp4", Pattern(1) + Tone(1) + " -c:v mpeg4 -f mp4");
	MakeMedia(folder / "mkv", Pattern(1) + Tone(1) + " -c:v mpeg4 -f matroska");
	MakeMedia(folder / "avi", Pattern(1) + " -c:v mpeg4 -f avi");
	MakeMedia(folder / "ts", Pattern(1) + " -c:v mpeg2video -r 25 -f mpegts");
	MakeMedia(folder / "asf", Tone(1) + " -f asf");
	EXPECT_EQ(FileType(folder / "mp4"), "video/mp4");
	EXPECT_EQ(FileType(folder / "mkv"), "video/x-matroska");
	EXPECT_EQ(FileType(folder / "avi"), "video/x-msvideo");
	EXPECT_EQ(FileType(folder / "ts"), "video/mp2t");
	EXPECT_EQ(FileType(folder / "asf"), "video/x-asf");
}


TEST(FileTypeByContents, ContainersAreLookedInto)
{
	const TempFolder folder;
	MakeMedia(folder / "audio.mp4", Tone(1) + " -c:a aac");
	MakeMedia(folder / "video.mp4", Pattern(1) + " -c:v mpeg4");
	MakeMedia(folder / "both.mp4", Tone(1) + Pattern(1) + " -c:v mpeg4 -movflags faststart");
	MakeMedia(folder / "audio.mkv", Tone(1));
	MakeMedia(folder / "both.mkv", Tone(1) + Pattern(1) + " -c:v mpeg4");
	MakeMedia(folder / "audio.webm", Tone(1) + " -c:a libopus");
	MakeMedia(folder / "video.ogg", Tone(1) + Pattern(1) + " -c:v libtheora -c:a libvorbis -ac 2");
	MakeMedia(folder / "audio.ogg", Tone(1) + " -c:a flac");
	EXPECT_EQ(FileType(folder / "audio.mp4"), "audio/mp4");
	EXPECT_EQ(FileType(folder / "video.mp4"), "video/mp4");
	EXPECT_EQ(FileType(folder / "both.mp4"), "video/mp4");
	EXPECT_EQ(FileType(folder / "audio.mkv"), "audio/x-matroska");
	EXPECT_EQ(FileType(folder / "both.mkv"), "video/x-matroska");
	EXPECT_EQ(FileType(folder / "audio.webm"), "audio/webm");
	EXPECT_EQ(FileType(folder / "video.ogg"), "video/ogg");
	EXPECT_EQ(FileType(folder / "audio.ogg"), "audio/ogg");
}


TEST(FileTypeByContents, TranslationsAreNoVideo)
{
	const TempFolder folder;
	const std::string text = "<?xml version=\"1.0\"?>\n<!DOCTYPE TS>\n<TS/>\n";
	EXPECT_EQ(FileType(folder.Write("de.ts", text)).find("video/"), std::string::npos);
}


TEST(FileTypeByContents, TextAndUnknownBytes)
{
	const TempFolder folder;
	EXPECT_EQ(FileType(folder.Write("notes", "some words\n")), "text/plain");
	EXPECT_EQ(FileType(folder.Write("list", "#EXTM3U\n/a.mp3\n")), "text/x-playlist");
	EXPECT_EQ(FileType(folder.Write("noise", std::string("\x01\x02\x00\x03\xfe", 5))), kUnknown);
	EXPECT_EQ(FileType(folder.Write("empty", "")), kUnknown);
}


// Each of these once sent some reader astray: sizes of nothing, sizes past the end, endless nests.
TEST(FileTypeByContents, DamagedContainersEndQuickly)
{
	const TempFolder folder;
	const auto start = test::CpuTime();
	std::string nest;
	for (int i = 0; i < 100000; i++)
		nest += std::string("\x7f\xff\xff\xff"
							"moov",
			8);
	EXPECT_EQ(FileType(folder.Write("nest.mp4", nest)), "video/mp4");
	EXPECT_EQ(FileType(folder.Write("zero.mp4", std::string(4096, '\0'))), "video/mp4");
	const std::string wide(std::string("\0\0\0\x01"
									   "free",
							   8)
		+ std::string(8, '\xff'));
	EXPECT_EQ(FileType(folder.Write("wide.mp4", wide)), "video/mp4");
	EXPECT_EQ(FileType(folder.Write("ff.mkv", std::string(100000, '\xff'))), "video/x-matroska");
	EXPECT_EQ(FileType(folder.Write("81.mkv", std::string(100000, '\x81'))), "video/x-matroska");
	const std::string segment("\x18\x53\x80\x67\x01\xff\xff\xff\xff\xff\xff\xff\x01\x00", 14);
	EXPECT_EQ(FileType(folder.Write("segment.mkv", segment)), "video/x-matroska");
	std::string page("OggS\0\x02", 6);
	page += std::string(20, '\0') + std::string(1, '\xff');
	EXPECT_EQ(FileType(folder.Write("page.ogg", page)), "audio/ogg");
	EXPECT_EQ(FileType(folder.Write("tag", "ID3\x04" + std::string(6, '\x7f'))), "audio/mpeg");
	EXPECT_LT(test::CpuTime() - start, std::chrono::seconds(5));
}


TEST(FileTypeOfName, NeedsNoFile)
{
	EXPECT_EQ(hosted::FileTypeOfName("gone.mp3"), "audio/mpeg");
	EXPECT_EQ(hosted::FileTypeOfName("gone.odt"), "application/vnd.oasis.opendocument.text");
	EXPECT_EQ(hosted::FileTypeOfName("gone"), kUnknown);
}


TEST(HaikuTypeName, TranslatesWhatDiffers)
{
	EXPECT_EQ(hosted::HaikuTypeName("application/vnd.ms-asf"), "video/x-asf");
	EXPECT_EQ(hosted::HaikuTypeName("audio/x-vorbis+ogg"), "audio/ogg");
	EXPECT_EQ(hosted::HaikuTypeName("audio/flac"), "audio/x-flac");
	EXPECT_EQ(hosted::HaikuTypeName("audio/x-mpegurl"), "text/x-playlist");
	EXPECT_EQ(hosted::HaikuTypeName("audio/mpeg"), "audio/mpeg");
	EXPECT_EQ(hosted::HaikuTypeName("chemical/x-pdb"), "chemical/x-pdb");
}


TEST(DesktopTypeName, IsTheOtherWayRound)
{
	EXPECT_EQ(hosted::DesktopTypeName("audio/x-mpeg"), "audio/mpeg");
	EXPECT_EQ(hosted::DesktopTypeName("text/x-playlist"), "audio/x-mpegurl");
	EXPECT_EQ(hosted::DesktopTypeName("application/x-vnd.Be-directory"), "inode/directory");
	EXPECT_EQ(hosted::DesktopTypeName("text/html"), "text/html");
}
