// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_DEFS_H
#define MEDIA_DEFS_H

#include <GraphicsDefs.h>
#include <SupportDefs.h>


typedef int32 media_node_id;

enum media_type {
	B_MEDIA_NO_TYPE = -1,
	B_MEDIA_UNKNOWN_TYPE = 0,
	B_MEDIA_RAW_AUDIO = 1,
	B_MEDIA_RAW_VIDEO = 2,
	B_MEDIA_TEXT = 6,
	B_MEDIA_MULTISTREAM = 8,
	B_MEDIA_ENCODED_AUDIO = 10,
	B_MEDIA_ENCODED_VIDEO = 11,
};

struct media_raw_audio_format {
	float frame_rate;
	uint32 channel_count;
};

struct media_video_display_info {
	color_space format;
	uint32 line_width;
	uint32 line_count;
	uint32 bytes_per_row;
};

struct media_raw_video_format {
	float field_rate;
	media_video_display_info display;
};

struct media_encoded_audio_format {
	media_raw_audio_format output;
	float bit_rate;
};

struct media_encoded_video_format {
	media_raw_video_format output;
	float avg_bit_rate;
};

struct media_multistream_format {
	float avg_bit_rate;
};

// What a track holds; 0 in a field means that it is not known.
struct media_format {
	media_format() { Clear(); }

	void Clear();
	bool IsAudio() const { return type == B_MEDIA_RAW_AUDIO || type == B_MEDIA_ENCODED_AUDIO; }
	bool IsVideo() const { return type == B_MEDIA_RAW_VIDEO || type == B_MEDIA_ENCODED_VIDEO; }

	media_type type;
	union {
		media_raw_audio_format raw_audio;
		media_raw_video_format raw_video;
		media_encoded_audio_format encoded_audio;
		media_encoded_video_format encoded_video;
		media_multistream_format multistream;
	} u;
};

#endif // MEDIA_DEFS_H
