// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Tags of audio files, read by TagLib through a stream that gives out a bounded amount.
#include "platform/desktop/Tags.h"

#include <algorithm>
#include <limits.h>
#include <mutex>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <sys/stat.h>

#include <taglib/fileref.h>
#include <taglib/id3v1tag.h>
#include <taglib/infotag.h>
#include <taglib/tag.h>
#include <taglib/tiostream.h>
#include <taglib/wavfile.h>

#include <DataIO.h>

#include "platform/desktop/FileContents.h"
#include "platform/desktop/FileTypes.h"
#include "platform/media/MediaReader.h"


namespace hosted {

namespace {

// Pictures that are part of the tags are read with them, so this is generous.
constexpr uint64_t kMaxBytes = 64 << 20;
constexpr int kMaxReads = 50000;
constexpr size_t kMaxText = 4096;


/*!	A file that cannot be written and that seems to end once too much of it was read.

	Damaged files can make their readers search everything, byte by byte.
*/
class BoundedStream : public TagLib::IOStream {
public:
	BoundedStream(const FileContents& contents, const std::string& name)
		:
		fContents(contents),
		fName(name)
	{
	}

	TagLib::FileName name() const override { return fName.c_str(); }
	TagLib::ByteVector readBlock(unsigned long length) override;
	void writeBlock(const TagLib::ByteVector&) override {}
	void insert(const TagLib::ByteVector&, unsigned long, unsigned long) override {}
	void removeBlock(unsigned long, unsigned long) override {}
	bool readOnly() const override { return true; }
	bool isOpen() const override { return true; }
	void seek(long offset, Position position) override;
	long tell() const override { return fPosition; }
	long length() override { return _IsExhausted() ? 0 : static_cast<long>(fContents.Size()); }
	void truncate(long) override {}

private:
	bool _IsExhausted() const { return fBytes > kMaxBytes || fReads > kMaxReads; }

private:
	const FileContents& fContents;
	const std::string fName;
	long fPosition = 0;
	uint64_t fBytes = 0;
	int fReads = 0;
};


TagLib::ByteVector
BoundedStream::readBlock(unsigned long length)
{
	fReads++;
	if (_IsExhausted() || fPosition < 0 || uint64_t(fPosition) >= fContents.Size())
		return TagLib::ByteVector();
	const uint64_t wanted = std::min<uint64_t>(length, fContents.Size() - fPosition);
	if (wanted > kMaxBytes - std::min(fBytes, kMaxBytes)) {
		fBytes = kMaxBytes + 1;
		return TagLib::ByteVector();
	}

	const std::string bytes = fContents.Read(fPosition, wanted);
	fBytes += bytes.size();
	fPosition += static_cast<long>(bytes.size());
	return TagLib::ByteVector(bytes.data(), static_cast<unsigned int>(bytes.size()));
}


void
BoundedStream::seek(long offset, Position position)
{
	const long start = position == Beginning ? 0
		: position == Current				 ? fPosition
											 : static_cast<long>(fContents.Size());
	long target;
	if (!__builtin_add_overflow(start, offset, &target))
		fPosition = std::max(target, 0L);
}


bool
is_utf8(const TagLib::ByteVector& bytes)
{
	size_t following = 0;
	for (const char signedByte : bytes) {
		const uint8_t byte = static_cast<uint8_t>(signedByte);
		if (following > 0) {
			if ((byte & 0xc0) != 0x80)
				return false;
			following--;
		} else if (byte >= 0x80) {
			if (byte >= 0xc2 && byte < 0xe0)
				following = 1;
			else if (byte >= 0xe0 && byte < 0xf0)
				following = 2;
			else if (byte >= 0xf0 && byte < 0xf5)
				following = 3;
			else
				return false;
		}
	}
	return following == 0;
}


// The old kinds of tags do not say which characters their bytes are.
TagLib::String
text_of_unknown_encoding(const TagLib::ByteVector& bytes)
{
	const int end = bytes.find('\0');
	const TagLib::ByteVector text = end >= 0 ? bytes.mid(0, end) : bytes;
	const TagLib::String::Type encoding
		= is_utf8(text) ? TagLib::String::UTF8 : TagLib::String::Latin1;
	return TagLib::String(text, encoding).stripWhiteSpace();
}


struct OldTagText : TagLib::ID3v1::StringHandler {
	TagLib::String parse(const TagLib::ByteVector& bytes) const override
	{
		return text_of_unknown_encoding(bytes);
	}
};


struct ChunkTagText : TagLib::RIFF::Info::StringHandler {
	TagLib::String parse(const TagLib::ByteVector& bytes) const override
	{
		return text_of_unknown_encoding(bytes);
	}
};


std::string
utf8_of(const TagLib::String& text)
{
	std::string bytes = text.stripWhiteSpace().to8Bit(true);
	bytes.resize(std::min(bytes.size(), bytes.find('\0')));
	if (bytes.size() > kMaxText) {
		size_t end = kMaxText;
		while (end > 0 && (bytes[end] & 0xc0) == 0x80)
			end--;
		bytes.resize(end);
	}
	return bytes;
}


// The first of several tags of a file goes before the others.
void
add_missing(Tags& tags, const TagLib::Tag* more)
{
	if (more == nullptr)
		return;
	if (tags.artist.empty())
		tags.artist = utf8_of(more->artist());
	if (tags.title.empty())
		tags.title = utf8_of(more->title());
	if (tags.album.empty())
		tags.album = utf8_of(more->album());
	if (tags.track == 0)
		tags.track = static_cast<int32>(std::min<unsigned int>(more->track(), INT_MAX));
}


// The contents as the Media Kit reads them.
class ContentsIO : public BPositionIO {
public:
	explicit ContentsIO(const FileContents& contents)
		:
		fContents(contents)
	{
	}

	ssize_t ReadAt(off_t position, void* buffer, size_t size) override
	{
		const std::string bytes = fContents.Read(position, size);
		memcpy(buffer, bytes.data(), bytes.size());
		return bytes.size();
	}
	ssize_t WriteAt(off_t, const void*, size_t) override { return B_NOT_ALLOWED; }
	off_t Seek(off_t position, uint32) override { return fPosition = position; }
	off_t Position() const override { return fPosition; }
	status_t GetSize(off_t* size) const override
	{
		*size = fContents.Size();
		return B_OK;
	}

private:
	const FileContents& fContents;
	off_t fPosition = 0;
};


// Containers for video that TagLib does not know have tags too.
Tags
tags_of_container(const FileContents& contents, const std::string& leaf)
{
	Tags tags;
	ContentsIO source(contents);
	const MediaReader reader(&source, leaf, MediaReader::Depth::kMetaData);
	for (const auto& [name, value] : reader.MetaData()) {
		const TagLib::String text(value, TagLib::String::UTF8);
		if (strcasecmp(name.c_str(), "artist") == 0)
			tags.artist = utf8_of(text);
		else if (strcasecmp(name.c_str(), "title") == 0)
			tags.title = utf8_of(text);
		else if (strcasecmp(name.c_str(), "album") == 0)
			tags.album = utf8_of(text);
		else if (strcasecmp(name.c_str(), "track") == 0)
			tags.track = std::max(0, static_cast<int32>(strtol(value.c_str(), nullptr, 10)));
	}
	return tags;
}


Tags
parse_tags(const std::string& path, bool isVideo)
{
	Tags tags;
	const FileContents contents(path);
	if (!contents.IsOpen())
		return tags;

	const std::string leaf = path.substr(path.rfind('/') + 1);
	BoundedStream stream(contents, leaf);
	const TagLib::FileRef file(&stream, false);
	if (file.isNull())
		return tags_of_container(contents, leaf);
	add_missing(tags, file.tag());
	const TagLib::RIFF::WAV::File* const wave
		= dynamic_cast<const TagLib::RIFF::WAV::File*>(file.file());
	if (wave != nullptr)
		add_missing(tags, wave->InfoTag());
	if (isVideo && tags.artist.empty() && tags.title.empty() && tags.album.empty())
		return tags_of_container(contents, leaf);
	return tags;
}


// Which file in which state the remembered tags belong to.
struct FileState {
	dev_t device = 0;
	ino_t inode = 0;
	off_t size = -1;
	timespec modified = {};
	timespec changed = {};

	bool operator==(const FileState& other) const
	{
		return device == other.device && inode == other.inode && size == other.size
			&& modified.tv_sec == other.modified.tv_sec
			&& modified.tv_nsec == other.modified.tv_nsec && changed.tv_sec == other.changed.tv_sec
			&& changed.tv_nsec == other.changed.tv_nsec;
	}
};


struct LastTags {
	std::mutex lock;
	FileState state;
	Tags tags;
	OldTagText oldText;
	ChunkTagText chunkText;
};


LastTags&
last_tags()
{
	static LastTags* const last = [] {
		LastTags* const made = new LastTags;
		TagLib::ID3v1::Tag::setStringHandler(&made->oldText);
		TagLib::RIFF::Info::Tag::setStringHandler(&made->chunkText);
		return made;
	}();
	return *last;
}

} // namespace


Tags
ReadTags(const std::string& path)
{
	struct stat status;
	if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
		return Tags();

	FileState state;
	state.device = status.st_dev;
	state.inode = status.st_ino;
	state.size = status.st_size;
	state.modified = status.st_mtim;
	state.changed = status.st_ctim;

	LastTags& last = last_tags();
	const std::lock_guard<std::mutex> locked(last.lock);
	if (last.state == state)
		return last.tags;

	const std::string type = FileType(path);
	Tags tags;
	const bool isVideo = type.rfind("video/", 0) == 0;
	if (isVideo || type.rfind("audio/", 0) == 0)
		tags = parse_tags(path, isVideo);
	last.state = state;
	last.tags = tags;
	return tags;
}

} // namespace hosted
