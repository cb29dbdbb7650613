// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaFile.h>

#include <DataIO.h>
#include <File.h>
#include <Message.h>

#include "platform/media/MediaReader.h"


BMediaFile::BMediaFile(const entry_ref* ref)
{
	_Open(ref);
}


BMediaFile::BMediaFile(const entry_ref* ref, int32)
{
	_Open(ref);
}


BMediaFile::BMediaFile(BDataIO* source)
{
	_Open(source, "");
}


BMediaFile::BMediaFile(BDataIO* source, int32)
{
	_Open(source, "");
}


BMediaFile::~BMediaFile() = default;


status_t
BMediaFile::InitCheck() const
{
	return fStatus;
}


status_t
BMediaFile::GetMetaData(BMessage* data) const
{
	if (data == nullptr)
		return B_BAD_VALUE;
	if (fStatus != B_OK)
		return B_NO_INIT;
	for (const auto& [name, value] : fReader->MetaData())
		data->AddString(name.c_str(), value.c_str());
	return B_OK;
}


int32
BMediaFile::CountTracks() const
{
	return fStatus == B_OK ? fReader->CountTracks() : 0;
}


BMediaTrack*
BMediaFile::TrackAt(int32 index)
{
	return fStatus == B_OK ? fReader->TrackAt(index) : nullptr;
}


status_t
BMediaFile::ReleaseTrack(BMediaTrack* track)
{
	return fStatus == B_OK && fReader->ReleaseTrack(track) ? B_OK : B_ERROR;
}


status_t
BMediaFile::ReleaseAllTracks()
{
	if (fStatus == B_OK)
		fReader->ReleaseAllTracks();
	return fStatus;
}


void
BMediaFile::_Open(const entry_ref* ref)
{
	if (ref == nullptr) {
		fStatus = B_BAD_VALUE;
		return;
	}

	// Opening a pipe would wait for somebody to write into it.
	const BEntry entry(ref, true);
	if (entry.Exists() && !entry.IsFile()) {
		fStatus = B_MEDIA_NO_HANDLER;
		return;
	}
	BFile file(ref, B_READ_ONLY);
	fStatus = file.InitCheck();
	if (fStatus == B_OK)
		_Open(&file, ref->name);
}


void
BMediaFile::_Open(BDataIO* source, const char* name)
{
	if (source == nullptr) {
		fStatus = B_BAD_VALUE;
		return;
	}
	fReader = std::make_unique<hosted::MediaReader>(source, name);
	fStatus = fReader->IsKnown() ? B_OK : B_MEDIA_NO_HANDLER;
}
