// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_TRACK_H
#define MEDIA_TRACK_H

#include <MediaDefs.h>
#include <MediaFormats.h>


namespace hosted {
class MediaReader;
struct TrackFacts;
} // namespace hosted


// One track of a media file, which owns it: BMediaFile::ReleaseTrack() deletes it.
class BMediaTrack {
public:
	BMediaTrack(const BMediaTrack&) = delete;
	BMediaTrack& operator=(const BMediaTrack&) = delete;

	status_t InitCheck() const;
	status_t GetCodecInfo(media_codec_info* info) const;
	status_t EncodedFormat(media_format* format) const;
	// The format's type says which kind is wanted, the answer what the track decodes to.
	status_t DecodedFormat(media_format* format, uint32 flags = 0);

	int64 CountFrames() const;
	bigtime_t Duration() const;

protected:
	virtual ~BMediaTrack();

private:
	friend class hosted::MediaReader;

	explicit BMediaTrack(const hosted::TrackFacts& facts);

private:
	// The reader's, which outlives the track.
	const hosted::TrackFacts& fFacts;
};

#endif // MEDIA_TRACK_H
