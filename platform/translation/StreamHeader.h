// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STREAM_HEADER_H
#define STREAM_HEADER_H

#include <TranslatorFormats.h>


namespace hosted {

constexpr size_t kStreamHeaderSize = sizeof(TranslatorBitmap);
static_assert(kStreamHeaderSize == 32, "the header is written as it lies in memory");

// To and from the big endian order of the stream.
void WriteStreamHeader(const TranslatorBitmap& header, uint8* bytes);
// False unless this is the header of a picture of a sane size.
bool ReadStreamHeader(const uint8* bytes, TranslatorBitmap* header);

} // namespace hosted

#endif // STREAM_HEADER_H
