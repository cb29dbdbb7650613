// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaTrack.h>

#include <stdio.h>

#include "platform/media/MediaReader.h"


BMediaTrack::BMediaTrack(const hosted::TrackFacts& facts)
	:
	fFacts(facts)
{
}


BMediaTrack::~BMediaTrack() = default;


status_t
BMediaTrack::InitCheck() const
{
	return B_OK;
}


status_t
BMediaTrack::GetCodecInfo(media_codec_info* info) const
{
	if (info == nullptr)
		return B_BAD_VALUE;
	if (!fFacts.hasDecoder)
		return B_NO_INIT;
	*info = media_codec_info();
	snprintf(info->pretty_name, sizeof(info->pretty_name), "%s", fFacts.codecName.c_str());
	snprintf(info->short_name, sizeof(info->short_name), "%s", fFacts.codecShortName.c_str());
	info->id = fFacts.codecID;
	return B_OK;
}


status_t
BMediaTrack::EncodedFormat(media_format* format) const
{
	if (format == nullptr)
		return B_BAD_VALUE;
	*format = fFacts.encoded;
	return B_OK;
}


status_t
BMediaTrack::DecodedFormat(media_format* format, uint32)
{
	if (format == nullptr)
		return B_BAD_VALUE;
	if (!fFacts.hasDecoder)
		return B_NO_INIT;
	if (format->type != B_MEDIA_UNKNOWN_TYPE && format->type != fFacts.decoded.type)
		return B_BAD_TYPE;
	*format = fFacts.decoded;
	return B_OK;
}


int64
BMediaTrack::CountFrames() const
{
	return fFacts.frames;
}


bigtime_t
BMediaTrack::Duration() const
{
	return fFacts.duration;
}
