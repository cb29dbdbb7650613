// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_FILE_H
#define MEDIA_FILE_H

#include <memory>

#include <Entry.h>
#include <MediaDefs.h>
#include <MediaFormats.h>

class BDataIO;
class BMediaTrack;
class BMessage;


namespace hosted {
class MediaReader;
} // namespace hosted


/*!	A media file that is read: which tracks it has.

	The file owns the tracks that it gives out.
*/
class BMediaFile {
public:
	explicit BMediaFile(const entry_ref* ref);
	BMediaFile(const entry_ref* ref, int32 flags);
	explicit BMediaFile(BDataIO* source);
	BMediaFile(BDataIO* source, int32 flags);
	virtual ~BMediaFile();
	BMediaFile(const BMediaFile&) = delete;
	BMediaFile& operator=(const BMediaFile&) = delete;

	status_t InitCheck() const;
	status_t GetMetaData(BMessage* data) const;

	int32 CountTracks() const;
	BMediaTrack* TrackAt(int32 index);
	status_t ReleaseTrack(BMediaTrack* track);
	status_t ReleaseAllTracks();

private:
	void _Open(const entry_ref* ref);
	void _Open(BDataIO* source, const char* name);

private:
	std::unique_ptr<hosted::MediaReader> fReader;
	status_t fStatus = B_NO_INIT;
};

#endif // MEDIA_FILE_H
