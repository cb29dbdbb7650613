// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Telling a file's type by what is in it.
#include "platform/desktop/FileContents.h"

#include <array>
#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include <SupportDefs.h>


namespace hosted {

namespace {

// Bytes at a place that give a type away.
struct Signature {
	size_t offset;
	std::string_view bytes;
	const char* type;
};

using namespace std::literals;

constexpr Signature kSignatures[] = {
	{0, "fLaC"sv, "audio/x-flac"},
	{0, "\xff\xd8\xff"sv, "image/jpeg"},
	{0, "\x89PNG\r\n\x1a\n"sv, "image/png"},
	{0, "GIF87a"sv, "image/gif"},
	{0, "GIF89a"sv, "image/gif"},
	{0, "MThd\0\0\0\x06"sv, "audio/midi"},
	{0, "MAC "sv, "audio/x-ape"},
	{0, "MPCK"sv, "audio/x-musepack"},
	{0, "MP+"sv, "audio/x-musepack"},
	{0, "wvpk"sv, "audio/x-wavpack"},
	{0, "TTA1"sv, "audio/x-tta"},
	{0, "DSD "sv, "audio/x-dsf"},
	{0, ".snd\0"sv, "audio/basic"},
	{0, "#!AMR"sv, "audio/amr"},
	{0, ".RMF"sv, "video/vnd.rn-realvideo"},
	{0, "FLV\x01"sv, "video/x-flv"},
	{0, "\0\0\x01\xba"sv, "video/mpeg"},
	{0, "\0\0\x01\xb3"sv, "video/mpeg"},
	{0, "\x30\x26\xb2\x75\x8e\x66\xcf\x11\xa6\xd9"sv, "video/x-asf"},
	{0, "#EXTM3U"sv, "text/x-playlist"},
	{0, "\xef\xbb\xbf#EXTM3U"sv, "text/x-playlist"},
	{0, "[playlist]"sv, "audio/x-scpls"},
};

// Inside a container of chunks: which kind it is stands behind its size.
constexpr Signature kChunkForms[] = {
	{8, "WAVE"sv, "audio/x-wav"},
	{8, "AVI "sv, "video/x-msvideo"},
	{8, "WEBP"sv, "image/webp"},
	{8, "RMID"sv, "audio/midi"},
	{8, "AIFF"sv, "audio/x-aiff"},
	{8, "AIFC"sv, "audio/x-aiff"},
};

constexpr size_t kTransportPacket = 188;


bool
is_at(std::string_view contents, size_t offset, std::string_view bytes)
{
	return contents.size() >= offset + bytes.size()
		&& contents.substr(offset, bytes.size()) == bytes;
}


uint8_t
byte_at(std::string_view bytes, size_t index)
{
	return static_cast<uint8_t>(bytes[index]);
}


// The length of the frame of MPEG audio that begins here; 0 for what is none.
size_t
mpeg_frame_size(std::string_view head)
{
	// Kilobits a second: MPEG 1 layers I to III, then MPEG 2 layer I and layers II, III.
	constexpr uint16_t kBitRates[5][15] = {
		{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
		{0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
		{0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},
		{0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
		{0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
	};
	constexpr uint32_t kSampleRates[3] = {44100, 48000, 32000};
	if (head.size() < 4 || byte_at(head, 0) != 0xff || (byte_at(head, 1) & 0xe0) != 0xe0)
		return 0;

	const int version = (byte_at(head, 1) >> 3) & 3; // 0: 2.5, 2: 2, 3: 1
	const int layer = 4 - ((byte_at(head, 1) >> 1) & 3); // 4 is none
	const int bitRate = byte_at(head, 2) >> 4;
	const int sampleRate = (byte_at(head, 2) >> 2) & 3;
	if (version == 1 || layer == 4 || bitRate == 0 || bitRate == 15 || sampleRate == 3)
		return 0;

	const size_t row = version == 3 ? layer - 1 : (layer == 1 ? 3 : 4);
	const size_t bits = kBitRates[row][bitRate] * size_t(1000);
	const size_t rate = kSampleRates[sampleRate] >> (version == 3 ? 0 : version == 2 ? 1 : 2);
	const size_t padding = (byte_at(head, 2) >> 1) & 1;
	if (layer == 1)
		return (12 * bits / rate + padding) * 4;
	return (layer == 3 && version != 3 ? 72 : 144) * bits / rate + padding;
}


// The length of a frame of AAC audio with its own header; 0 for what is none.
size_t
aac_frame_size(std::string_view head)
{
	if (head.size() < 7 || byte_at(head, 0) != 0xff || (byte_at(head, 1) & 0xf6) != 0xf0)
		return 0;
	const size_t length = (size_t(byte_at(head, 3) & 3) << 11) | (size_t(byte_at(head, 4)) << 3)
		| (byte_at(head, 5) >> 5);
	return length >= 7 ? length : 0;
}


// Whether three frames follow each other, which chance does not bring about.
bool
are_frames(const FileContents& contents, uint64_t offset, size_t (*frameSize)(std::string_view))
{
	for (int frame = 0; frame < 3; frame++) {
		const size_t size = frameSize(contents.Read(offset, 8));
		if (size == 0)
			return false;
		offset += size;
		if (frame > 0 && offset >= contents.Size())
			return true;
	}
	return true;
}


const char*
audio_frames_type(const FileContents& contents, uint64_t offset)
{
	if (are_frames(contents, offset, mpeg_frame_size))
		return "audio/mpeg";
	if (are_frames(contents, offset, aac_frame_size))
		return "audio/aac";
	return nullptr;
}


// A tag before the audio, which is MPEG's unless it says otherwise itself.
const char*
tagged_audio_type(const FileContents& contents, std::string_view start)
{
	uint64_t size = 10;
	for (size_t i = 6; i < 10; i++)
		size += uint64_t(byte_at(start, i) & 0x7f) << (7 * (9 - i));
	if ((byte_at(start, 5) & 0x10) != 0)
		size += 10;
	if (contents.Read(size, 4) == "fLaC")
		return "audio/x-flac";
	const char* const type = audio_frames_type(contents, size);
	return type != nullptr ? type : "audio/mpeg";
}


bool
is_transport_stream(const FileContents& contents)
{
	// Discs put four bytes of time before each packet.
	for (const size_t extra : {size_t(0), size_t(4)}) {
		int packets = 0;
		while (
			packets < 4 && contents.Read(extra + packets * (kTransportPacket + extra), 1) == "\x47")
			packets++;
		if (packets == 4)
			return true;
	}
	return false;
}


const char*
mpeg4_type(const FileContents& contents, std::string_view start)
{
	if (is_at(start, 8, "qt  "))
		return "video/quicktime";
	if (is_at(start, 8, "M4A ") || is_at(start, 8, "M4B "))
		return "audio/mp4";
	constexpr std::array<std::string_view, 5> kPictures = {"avif", "avis", "heic", "heix", "mif1"};
	for (const std::string_view brand : kPictures) {
		if (is_at(start, 8, brand))
			return nullptr;
	}
	if (is_at(start, 8, "3gp"))
		return "video/3gpp";
	return TracksOfMpeg4(contents) == Tracks::kAudio ? "audio/mp4" : "video/mp4";
}


const char*
matroska_type(const FileContents& contents, std::string_view start)
{
	const bool isWeb = start.substr(0, 64).find("webm") != std::string_view::npos;
	if (TracksOfMatroska(contents) == Tracks::kAudio)
		return isWeb ? "audio/webm" : "audio/x-matroska";
	return isWeb ? "video/webm" : "video/x-matroska";
}


// A program is what can be started: a plain executable, or one with an interpreter to load it. A
// library has none.
bool
is_elf_program(const FileContents& contents, std::string_view start)
{
	constexpr uint64_t kExecutable = 2;
	constexpr uint64_t kShared = 3;
	constexpr uint64_t kInterpreter = 3;
	constexpr size_t kMaxHeaders = 64;
	if (start.size() < 64)
		return false;
	const bool isLong = byte_at(start, 4) == 2;
	const bool isBig = byte_at(start, 5) == 2;
	const auto number = [isBig](std::string_view bytes, size_t offset, size_t size) {
		uint64_t value = 0;
		for (size_t i = 0; i < size && offset + size <= bytes.size(); i++) {
			const size_t place = isBig ? i : size - 1 - i;
			value = (value << 8) | byte_at(bytes, offset + place);
		}
		return value;
	};

	const uint64_t kind = number(start, 16, 2);
	if (kind != kShared)
		return kind == kExecutable;
	const uint64_t offset = isLong ? number(start, 32, 8) : number(start, 28, 4);
	const size_t size = number(start, isLong ? 54 : 42, 2);
	const size_t count = number(start, isLong ? 56 : 44, 2);
	for (size_t i = 0; i < count && i < kMaxHeaders; i++) {
		if (number(contents.Read(offset + i * size, 4), 0, 4) == kInterpreter)
			return true;
	}
	return false;
}

} // namespace


FileContents::FileContents(const std::string& path)
{
	const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC);
	if (file < 0)
		return;
	struct stat status;
	if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
		close(file);
		return;
	}
	fFile = file;
	fSize = status.st_size;
}


FileContents::~FileContents()
{
	if (fFile >= 0)
		close(fFile);
}


std::string
FileContents::Read(uint64_t offset, size_t size) const
{
	std::string bytes;
	if (fFile < 0 || offset >= fSize)
		return bytes;
	bytes.resize(size);
	ssize_t count;
	do {
		count = pread(fFile, &bytes[0], size, static_cast<off_t>(offset));
	} while (count < 0 && errno == EINTR);
	bytes.resize(count > 0 ? count : 0);
	return bytes;
}


const char*
SniffType(const FileContents& contents)
{
	const std::string start = contents.Read(0, 512);
	for (const Signature& signature : kSignatures) {
		if (is_at(start, signature.offset, signature.bytes))
			return signature.type;
	}
	if (is_at(start, 0, "RIFF"sv) || is_at(start, 0, "FORM"sv)) {
		for (const Signature& form : kChunkForms) {
			if (is_at(start, form.offset, form.bytes))
				return form.type;
		}
	}
	if (is_at(start, 0, "ID3"sv) && start.size() >= 10)
		return tagged_audio_type(contents, start);
	if (is_at(start, 0, "OggS"sv))
		return TracksOfOgg(contents) == Tracks::kVideo ? "video/ogg" : "audio/ogg";
	if (is_at(start, 4, "ftyp"sv))
		return mpeg4_type(contents, start);
	if (is_at(start, 0, "\x1a\x45\xdf\xa3"sv))
		return matroska_type(contents, start);
	if (is_at(start, 0,
			"\x7f"
			"ELF"sv)) {
		return is_elf_program(contents, start) ? "application/x-vnd.Be-elfexecutable" : nullptr;
	}
	if (is_transport_stream(contents))
		return "video/mp2t";
	return audio_frames_type(contents, 0);
}


const char*
RefineType(const FileContents& contents, const ExtensionType& extension)
{
	switch (extension.lookInto) {
		case LookInto::kOgg:
		{
			const Tracks tracks = TracksOfOgg(contents);
			if (tracks == Tracks::kUnknown)
				return extension.type;
			return tracks == Tracks::kVideo ? "video/ogg" : "audio/ogg";
		}
		case LookInto::kMatroska:
			if (TracksOfMatroska(contents) != Tracks::kAudio)
				return extension.type;
			return strcmp(extension.type, "video/webm") == 0 ? "audio/webm" : "audio/x-matroska";
		case LookInto::kMpeg4:
			if (TracksOfMpeg4(contents) != Tracks::kAudio)
				return extension.type;
			if (strcmp(extension.type, "video/mp4") == 0)
				return "audio/mp4";
			return strcmp(extension.type, "video/3gpp") == 0 ? "audio/3gpp" : "audio/3gpp2";
		case LookInto::kTransportStream:
			return is_transport_stream(contents) ? extension.type : nullptr;
		case LookInto::kNothing:
			break;
	}
	return extension.type;
}

} // namespace hosted
