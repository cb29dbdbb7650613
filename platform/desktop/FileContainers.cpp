// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What Ogg, Matroska and MPEG-4 files hold: whether there is a picture track among their tracks.
#include "platform/desktop/FileContents.h"

#include <array>
#include <string_view>


namespace hosted {

namespace {

// How much is looked at before a file is left undecided.
constexpr size_t kOggStart = 65536;
constexpr int kMaxElements = 400;


uint64_t
read_big_endian(std::string_view bytes)
{
	uint64_t value = 0;
	for (const char byte : bytes)
		value = (value << 8) | static_cast<uint8_t>(byte);
	return value;
}


bool
starts_with(std::string_view text, std::string_view start)
{
	return text.substr(0, start.size()) == start;
}


// A number of the Extensible Binary Meta Language: the first byte's leading zeros tell its length.
struct EbmlNumber {
	uint64_t value = 0;
	size_t length = 0; // 0: there is none
	bool isUnknown = false;
};


EbmlNumber
read_ebml_number(std::string_view bytes, bool keepMarker)
{
	EbmlNumber number;
	if (bytes.empty() || bytes[0] == 0)
		return number;

	const uint8_t first = static_cast<uint8_t>(bytes[0]);
	size_t length = 1;
	while ((first & (0x80 >> (length - 1))) == 0)
		length++;
	if (bytes.size() < length)
		return number;

	number.length = length;
	number.value = read_big_endian(bytes.substr(0, length));
	const uint64_t mask = (uint64_t(1) << (7 * length)) - 1;
	number.isUnknown = (number.value & mask) == mask;
	if (!keepMarker)
		number.value &= mask;
	return number;
}


struct EbmlElement {
	uint64_t id = 0;
	uint64_t start = 0; // of what is in it
	uint64_t end = 0;
};


bool
read_ebml_element(const FileContents& contents, uint64_t offset, uint64_t limit,
	EbmlElement* element)
{
	const std::string head = contents.Read(offset, 12);
	const EbmlNumber id = read_ebml_number(head, true);
	if (id.length == 0 || id.length > 4)
		return false;
	const EbmlNumber size = read_ebml_number(std::string_view(head).substr(id.length), false);
	if (size.length == 0)
		return false;

	element->id = id.value;
	element->start = offset + id.length + size.length;
	if (element->start > limit)
		return false;
	if (size.isUnknown || size.value > limit - element->start)
		element->end = limit;
	else
		element->end = element->start + size.value;
	return true;
}


// Calls the function with each element between the offsets until it returns false.
template <typename Function>
void
for_each_ebml_element(const FileContents& contents, uint64_t offset, uint64_t limit, int* budget,
	Function function)
{
	EbmlElement element;
	while (
		offset < limit && (*budget)-- > 0 && read_ebml_element(contents, offset, limit, &element)) {
		if (!function(element))
			return;
		offset = element.end;
	}
}


Tracks
combine(Tracks known, Tracks found)
{
	return known == Tracks::kVideo || found == Tracks::kUnknown ? known : found;
}


Tracks
matroska_track(const FileContents& contents, const EbmlElement& entry, int* budget)
{
	constexpr uint64_t kTrackType = 0x83;
	Tracks tracks = Tracks::kUnknown;
	for_each_ebml_element(contents, entry.start, entry.end, budget,
		[&](const EbmlElement& element) {
			if (element.id != kTrackType)
				return true;
			const std::string value = contents.Read(element.start, 1);
			if (value == "\x01")
				tracks = Tracks::kVideo;
			else if (value == "\x02")
				tracks = Tracks::kAudio;
			return false;
		});
	return tracks;
}


// Boxes of MPEG-4: a size, a name, and for big ones a longer size.
struct Box {
	std::string name;
	uint64_t start = 0; // of what is in it
	uint64_t end = 0;
};


bool
read_box(const FileContents& contents, uint64_t offset, uint64_t limit, Box* box)
{
	const std::string head = contents.Read(offset, 16);
	if (head.size() < 8)
		return false;
	uint64_t size = read_big_endian(std::string_view(head).substr(0, 4));
	uint64_t headSize = 8;
	if (size == 1) {
		if (head.size() < 16)
			return false;
		size = read_big_endian(std::string_view(head).substr(8, 8));
		headSize = 16;
	} else if (size == 0)
		size = limit - offset;
	if (size < headSize || offset + headSize > limit)
		return false;

	box->name = head.substr(4, 4);
	box->start = offset + headSize;
	box->end = size > limit - offset ? limit : offset + size;
	return true;
}


// Whether a picture track is among the boxes between the offsets, whatever lies in between.
Tracks
mpeg4_tracks(const FileContents& contents, uint64_t offset, uint64_t limit, int* budget)
{
	Tracks tracks = Tracks::kUnknown;
	Box box;
	while (offset < limit && (*budget)-- > 0 && read_box(contents, offset, limit, &box)) {
		if (box.name == "moov" || box.name == "trak" || box.name == "mdia") {
			tracks = combine(tracks, mpeg4_tracks(contents, box.start, box.end, budget));
		} else if (box.name == "hdlr") {
			// Version, flags and a number that is always 0 come first.
			const std::string handler = contents.Read(box.start + 8, 4);
			if (handler == "vide")
				tracks = Tracks::kVideo;
			else if (handler == "soun")
				tracks = combine(tracks, Tracks::kAudio);
		}
		if (tracks == Tracks::kVideo)
			break;
		offset = box.end;
	}
	return tracks;
}


Tracks
ogg_stream(std::string_view packet)
{
	using namespace std::literals;
	constexpr std::array<std::string_view, 4> kVideo
		= {"\x80theora"sv, "\x01video"sv, "OVP80"sv, "BBCD\0"sv};
	constexpr std::array<std::string_view, 6> kAudio = {"\x01vorbis"sv, "OpusHead"sv, "Speex   "sv,
		"\x7f"
		"FLAC"sv,
		"fLaC"sv,
		"\x01"
		"audio"sv};
	for (const std::string_view start : kVideo) {
		if (starts_with(packet, start))
			return Tracks::kVideo;
	}
	for (const std::string_view start : kAudio) {
		if (starts_with(packet, start))
			return Tracks::kAudio;
	}
	return Tracks::kUnknown;
}

} // namespace


// The first pages of all streams stand together at the file's start.
Tracks
TracksOfOgg(const FileContents& contents)
{
	constexpr size_t kPageHead = 27;
	constexpr uint8_t kFirstPage = 0x02;
	const std::string start = contents.Read(0, kOggStart);
	Tracks tracks = Tracks::kUnknown;
	std::string_view rest = start;
	while (rest.size() >= kPageHead && starts_with(rest, "OggS")) {
		if ((static_cast<uint8_t>(rest[5]) & kFirstPage) == 0)
			break;
		const size_t segments = static_cast<uint8_t>(rest[26]);
		if (rest.size() < kPageHead + segments)
			break;
		size_t length = 0;
		for (size_t i = 0; i < segments; i++)
			length += static_cast<uint8_t>(rest[kPageHead + i]);
		rest.remove_prefix(kPageHead + segments);
		tracks = combine(tracks, ogg_stream(rest.substr(0, length)));
		rest.remove_prefix(length < rest.size() ? length : rest.size());
	}
	return tracks;
}


Tracks
TracksOfMatroska(const FileContents& contents)
{
	constexpr uint64_t kSegment = 0x18538067;
	constexpr uint64_t kTracks = 0x1654ae6b;
	constexpr uint64_t kTrackEntry = 0xae;
	constexpr uint64_t kCluster = 0x1f43b675;
	int budget = kMaxElements;
	Tracks tracks = Tracks::kUnknown;
	const auto inTracks = [&](const EbmlElement& element) {
		if (element.id == kTrackEntry)
			tracks = combine(tracks, matroska_track(contents, element, &budget));
		return tracks != Tracks::kVideo;
	};
	const auto inSegment = [&](const EbmlElement& element) {
		if (element.id == kTracks)
			for_each_ebml_element(contents, element.start, element.end, &budget, inTracks);
		return element.id != kTracks && element.id != kCluster;
	};
	const auto atTop = [&](const EbmlElement& element) {
		if (element.id == kSegment)
			for_each_ebml_element(contents, element.start, element.end, &budget, inSegment);
		return element.id != kSegment;
	};
	for_each_ebml_element(contents, 0, contents.Size(), &budget, atTop);
	return tracks;
}


Tracks
TracksOfMpeg4(const FileContents& contents)
{
	int budget = kMaxElements;
	return mpeg4_tracks(contents, 0, contents.Size(), &budget);
}

} // namespace hosted
