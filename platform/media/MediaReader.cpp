// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Reading a file's structure with libavformat.
#include "platform/media/MediaReader.h"

#include <algorithm>
#include <array>
#include <stdio.h>
#include <string.h>
#include <string_view>

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}


#include <DataIO.h>
#include <MediaTrack.h>

#include "platform/desktop/FileTypes.h"


namespace hosted {

namespace {

constexpr std::chrono::seconds kMaxTime(5);
// Far more than any file needs. The parser of FLAC ends the process once it has searched half a
// gigabyte for a frame.
constexpr uint64_t kMaxBytes = uint64_t(64) << 20;
constexpr int kBufferSize = 32768;

// Formats that are no audio or video, or only name other files.
constexpr std::array<std::string_view, 10> kRefused
	= {"concat", "dash", "ffmetadata", "gif", "hls", "ico", "image2", "sdp", "tty", "txd"};


bool
is_refused(const AVInputFormat& format)
{
	const std::string_view name = format.name;
	if (name.find("_pipe") != std::string_view::npos)
		return true;
	return std::find(kRefused.begin(), kRefused.end(), name.substr(0, name.find(',')))
		!= kRefused.end();
}


int
refuse_other_files(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
	return AVERROR(EACCES);
}


// Integers of 8 and 16 bits are what the platform calls raw.
bool
is_raw_audio(AVCodecID codec)
{
	switch (codec) {
		case AV_CODEC_ID_PCM_S8:
		case AV_CODEC_ID_PCM_U8:
		case AV_CODEC_ID_PCM_S16LE:
		case AV_CODEC_ID_PCM_S16BE:
		case AV_CODEC_ID_PCM_U16LE:
		case AV_CODEC_ID_PCM_U16BE:
			return true;
		default:
			return false;
	}
}


int64
microseconds(int64_t time, AVRational base)
{
	return av_rescale_q(time, base, AVRational{1, 1000000});
}


// How long the track is, from the container's beginning on: a track that starts late ends late.
bigtime_t
duration_of(const AVFormatContext& context, const AVStream& stream)
{
	bigtime_t duration;
	if (stream.duration == AV_NOPTS_VALUE || stream.duration <= 0)
		duration = context.duration == AV_NOPTS_VALUE ? 0 : context.duration;
	else {
		duration = microseconds(stream.duration, stream.time_base);
		if (stream.start_time != AV_NOPTS_VALUE && context.start_time != AV_NOPTS_VALUE)
			duration += microseconds(stream.start_time, stream.time_base) - context.start_time;
	}
	return std::max<bigtime_t>(duration, 0);
}

} // namespace


/*!	The caller's data as libavformat reads it, until the time or the amount is used up. */
class MediaReader::Source {
public:
	explicit Source(BDataIO* data)
		:
		fData(data),
		fPositioned(dynamic_cast<BPositionIO*>(data)),
		fEnd(std::chrono::steady_clock::now() + kMaxTime)
	{
		unsigned char* const buffer = static_cast<unsigned char*>(av_malloc(kBufferSize));
		fContext = avio_alloc_context(buffer, kBufferSize, 0, this, _Read, nullptr,
			fPositioned != nullptr ? _Seek : nullptr);
	}

	~Source()
	{
		av_freep(&fContext->buffer);
		avio_context_free(&fContext);
	}

	AVIOContext* Context() { return fContext; }
	static int IsOver(void* source)
	{
		Source* const self = static_cast<Source*>(source);
		return self->fBytes > kMaxBytes || std::chrono::steady_clock::now() > self->fEnd ? 1 : 0;
	}

private:
	static int _Read(void* source, uint8_t* buffer, int size)
	{
		Source* const self = static_cast<Source*>(source);
		if (IsOver(self) != 0)
			return AVERROR_EXIT;
		const ssize_t count = self->fPositioned != nullptr
			? self->fPositioned->ReadAt(self->fPosition, buffer, size)
			:
			self->fData->Read(buffer, size);
		if (count < 0)
			return AVERROR(EIO);
		if (count == 0)
			return AVERROR_EOF;
		self->fPosition += count;
		self->fBytes += count;
		return static_cast<int>(count);
	}

	static int64_t _Seek(void* source, int64_t offset, int whence)
	{
		Source* const self = static_cast<Source*>(source);
		off_t size = 0;
		if (self->fPositioned->GetSize(&size) != B_OK)
			size = -1;
		whence &= ~AVSEEK_FORCE;
		if (whence == AVSEEK_SIZE)
			return size;
		if (whence == SEEK_CUR)
			offset += self->fPosition;
		else if (whence == SEEK_END)
			offset += size;
		if (offset < 0 || (whence == SEEK_END && size < 0))
			return AVERROR(EINVAL);
		self->fPosition = offset;
		return offset;
	}

private:
	BDataIO* const fData;
	BPositionIO* const fPositioned;
	const std::chrono::steady_clock::time_point fEnd;
	AVIOContext* fContext = nullptr;
	off_t fPosition = 0;
	uint64_t fBytes = 0;
};


MediaReader::MediaReader(BDataIO* source, const std::string& name, Depth depth)
{
	static const bool sQuiet = [] {
		av_log_set_level(AV_LOG_QUIET);
		return true;
	}();
	static_cast<void>(sQuiet);
	Source data(source);
	_Read(data, name, depth);
	fTracks.resize(fFacts.size());
}


MediaReader::~MediaReader()
{
	ReleaseAllTracks();
}


BMediaTrack*
MediaReader::TrackAt(int32 index)
{
	if (index < 0 || index >= CountTracks())
		return nullptr;
	if (fTracks[index] == nullptr)
		fTracks[index] = new BMediaTrack(fFacts[index]);
	return fTracks[index];
}


bool
MediaReader::ReleaseTrack(BMediaTrack* track)
{
	if (track == nullptr)
		return false;
	for (BMediaTrack*& known : fTracks) {
		if (known == track) {
			known = nullptr;
			delete track;
			return true;
		}
	}
	return false;
}


void
MediaReader::ReleaseAllTracks()
{
	for (BMediaTrack*& track : fTracks) {
		delete track;
		track = nullptr;
	}
}


void
MediaReader::_Read(Source& source, const std::string& name, Depth depth)
{
	const AVInputFormat* format = nullptr;
	const int score
		= av_probe_input_buffer2(source.Context(), &format, name.c_str(), nullptr, 0, 0);
	if (score < 0 || format == nullptr || is_refused(*format))
		return;
	// Any bytes look a little like some format.
	const std::string type = FileTypeOfName(name);
	const bool isNamed = type.rfind("audio/", 0) == 0 || type.rfind("video/", 0) == 0;
	if (score <= AVPROBE_SCORE_RETRY && !isNamed)
		return;

	AVFormatContext* context = avformat_alloc_context();
	context->pb = source.Context();
	context->io_open = refuse_other_files;
	context->interrupt_callback.callback = Source::IsOver;
	context->interrupt_callback.opaque = &source;
	if (avformat_open_input(&context, name.c_str(), format, nullptr) < 0)
		return;
	// What was found before an error counts.
	if (depth == Depth::kTracks)
		avformat_find_stream_info(context, nullptr);
	_Describe(*context);
	avformat_close_input(&context);
}


void
MediaReader::_Describe(const AVFormatContext& context)
{
	for (unsigned int i = 0; i < context.nb_streams; i++)
		fFacts.push_back(_DescribeStream(context, *context.streams[i]));

	const AVDictionaryEntry* entry = nullptr;
	do {
		entry = av_dict_get(context.metadata, "", entry, AV_DICT_IGNORE_SUFFIX);
		if (entry != nullptr)
			fMetaData.emplace_back(entry->key, entry->value);
	} while (entry != nullptr);
}


TrackFacts
MediaReader::_DescribeStream(const AVFormatContext& context, const AVStream& stream)
{
	const AVCodecParameters& codec = *stream.codecpar;
	TrackFacts facts;
	facts.codecID = codec.codec_id;
	if (codec.codec_type == AVMEDIA_TYPE_AUDIO) {
		media_raw_audio_format output = {};
		output.frame_rate = static_cast<float>(codec.sample_rate);
		output.channel_count = codec.ch_layout.nb_channels;
		facts.decoded.type = B_MEDIA_RAW_AUDIO;
		facts.decoded.u.raw_audio = output;
		if (is_raw_audio(codec.codec_id))
			facts.encoded = facts.decoded;
		else {
			facts.encoded.type = B_MEDIA_ENCODED_AUDIO;
			facts.encoded.u.encoded_audio.output = output;
			facts.encoded.u.encoded_audio.bit_rate = static_cast<float>(codec.bit_rate);
		}
	} else if (codec.codec_type == AVMEDIA_TYPE_VIDEO) {
		media_raw_video_format output = {};
		output.field_rate = static_cast<float>(av_q2d(stream.avg_frame_rate));
		output.display.format = B_RGB32;
		output.display.line_width = codec.width;
		output.display.line_count = codec.height;
		output.display.bytes_per_row = codec.width * 4;
		facts.decoded.type = B_MEDIA_RAW_VIDEO;
		facts.decoded.u.raw_video = output;
		facts.encoded.type = B_MEDIA_ENCODED_VIDEO;
		facts.encoded.u.encoded_video.output = output;
		facts.encoded.u.encoded_video.avg_bit_rate = static_cast<float>(codec.bit_rate);
	} else
		return facts;

	const AVCodec* const decoder = avcodec_find_decoder(codec.codec_id);
	facts.hasDecoder = decoder != nullptr;
	if (decoder != nullptr) {
		facts.codecName = decoder->long_name != nullptr ? decoder->long_name : decoder->name;
		facts.codecShortName = decoder->name;
	}
	// A cover picture is there as long as the file, but it does not play.
	if ((stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0) {
		facts.frames = 1;
		return facts;
	}
	facts.duration = duration_of(context, stream);
	const AVRational pictures
		= stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
	double rate = codec.sample_rate;
	if (facts.decoded.type == B_MEDIA_RAW_VIDEO)
		rate = pictures.den > 0 ? av_q2d(pictures) : 0;
	if (stream.nb_frames > 0 && facts.decoded.type == B_MEDIA_RAW_VIDEO)
		facts.frames = stream.nb_frames;
	else
		facts.frames = static_cast<int64>(static_cast<double>(facts.duration) * rate / 1e6 + 0.5);
	return facts;
}

} // namespace hosted
