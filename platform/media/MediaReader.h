// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_READER_H
#define MEDIA_READER_H

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <MediaDefs.h>
#include <SupportDefs.h>

class BDataIO;
class BMediaTrack;
struct AVFormatContext;
struct AVIOContext;
struct AVStream;


namespace hosted {

// What is known of a track without decoding it.
struct TrackFacts {
	media_format encoded;
	media_format decoded; // type 0 for what is neither audio nor video
	bigtime_t duration = 0;
	int64 frames = 0;
	bool hasDecoder = false;
	std::string codecName;
	std::string codecShortName;
	int32 codecID = 0;
};

/*!	Finds out which tracks a media file has and how long they are.

	All of it is read when the reader is made: at most for a few seconds, and never from another
	file or place than the source, whatever the file names. The source is not needed afterwards.
*/
class MediaReader {
public:
	enum class Depth {
		kTracks,
		// Only what the file says of itself, which is much faster; nothing that needs a look at the
		// tracks' contents is certain then.
		kMetaData,
	};

	// name is the file's, whose extension helps to tell what it is; it may be empty.
	MediaReader(BDataIO* source, const std::string& name, Depth depth = Depth::kTracks);
	~MediaReader();
	MediaReader(const MediaReader&) = delete;
	MediaReader& operator=(const MediaReader&) = delete;

	// Whether the source is in a format that is known.
	bool IsKnown() const { return !fFacts.empty(); }
	const std::vector<std::pair<std::string, std::string>>& MetaData() const { return fMetaData; }

	int32 CountTracks() const { return static_cast<int32>(fFacts.size()); }
	BMediaTrack* TrackAt(int32 index);
	bool ReleaseTrack(BMediaTrack* track);
	void ReleaseAllTracks();

private:
	class Source;

	void _Read(Source& source, const std::string& name, Depth depth);
	void _Describe(const AVFormatContext& context);
	static TrackFacts _DescribeStream(const AVFormatContext& context, const AVStream& stream);

private:
	std::vector<TrackFacts> fFacts;
	// One for each of the facts, null as long as nobody wants it.
	std::vector<BMediaTrack*> fTracks;
	std::vector<std::pair<std::string, std::string>> fMetaData;
};

} // namespace hosted

#endif // MEDIA_READER_H
