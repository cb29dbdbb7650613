// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Pictures, media lengths and file types.
#include "settings/Helpers.h"

#include <algorithm>
#include <memory>

#include <stdio.h>
#include <string.h>

#include <Bitmap.h>
#include <BitmapStream.h>
#include <File.h>
#include <MediaDefs.h>
#include <MediaFile.h>
#include <MediaFormats.h>
#include <MediaTrack.h>
#include <NodeInfo.h>
#include <TranslatorFormats.h>
#include <TranslatorRoster.h>


static BBitmap*
translate(BTranslatorRoster* roster, const char* path)
{
	BFile file(path, B_READ_ONLY);
	if (!file.IsReadable())
		return nullptr;

	BBitmapStream stream;
	BBitmap* bitmap = nullptr;
	if (roster->Translate(&file, nullptr, nullptr, &stream, B_TRANSLATOR_BITMAP) != B_OK
		|| stream.DetachBitmap(&bitmap) != B_OK) {
		printf("\xA0"
			   "can't translate '%s'\n",
			path);
		return nullptr;
	}
	return bitmap;
}


BBitmap*
GetImage(const char* path)
{
	// The default roster may be deleted; the next one who asks for it gets a new one.
	const std::unique_ptr<BTranslatorRoster> roster(BTranslatorRoster::Default());
	return translate(roster.get(), path);
}


// The track's duration if it is of that kind.
static bool
find_duration(BMediaTrack* track, media_type encoded, media_type raw, bigtime_t* duration)
{
	media_format format;
	format.Clear();
	track->EncodedFormat(&format);
	if (format.type != encoded && format.type != raw)
		return false;

	format.Clear();
	format.type = raw;
	track->DecodedFormat(&format);
	media_codec_info codec;
	track->GetCodecInfo(&codec);
	*duration = track->Duration();
	return true;
}


void
GetMediaDuration(const entry_ref* ref, long* seconds)
{
	BMediaFile file(ref);
	bigtime_t audioMicros = 0;
	bigtime_t videoMicros = 0;
	for (int32 index = 0; index < file.CountTracks(); index++) {
		if (audioMicros != 0 && videoMicros != 0)
			break;
		BMediaTrack* const track = file.TrackAt(index);
		if (track == nullptr)
			continue;
		if (!find_duration(track, B_MEDIA_ENCODED_VIDEO, B_MEDIA_RAW_VIDEO, &videoMicros))
			find_duration(track, B_MEDIA_ENCODED_AUDIO, B_MEDIA_RAW_AUDIO, &audioMicros);
		file.ReleaseTrack(track);
	}

	const long found = static_cast<long>(std::max(audioMicros, videoMicros) / 1000000);
	if (seconds != nullptr)
		*seconds = found;
	BString text(":Laufzeit: ");
	text << found << " seconds";
	printf("%s \n", text.String());
}


bool
IsNodeTypeOk(const char* path, const char* part)
{
	BNode node(path);
	const BNodeInfo info(&node);
	char type[256] = "";
	if (info.GetType(type) != B_OK)
		return false;
	return strstr(type, part) != nullptr;
}
