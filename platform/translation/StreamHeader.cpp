// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/translation/StreamHeader.h"

#include <math.h>
#include <string.h>


namespace hosted {

namespace {

constexpr float kMaxSide = 65000;
constexpr uint32 kMaxBytes = uint32(512) << 20;


void
put(uint8*& bytes, uint32 value)
{
	for (int shift = 24; shift >= 0; shift -= 8)
		*bytes++ = static_cast<uint8>(value >> shift);
}


void
put(uint8*& bytes, float value)
{
	uint32 bits;
	memcpy(&bits, &value, sizeof(bits));
	put(bytes, bits);
}


uint32
get(const uint8*& bytes)
{
	uint32 value = 0;
	for (int i = 0; i < 4; i++)
		value = (value << 8) | *bytes++;
	return value;
}


float
get_float(const uint8*& bytes)
{
	const uint32 bits = get(bytes);
	float value;
	memcpy(&value, &bits, sizeof(value));
	return value;
}

} // namespace


void
WriteStreamHeader(const TranslatorBitmap& header, uint8* bytes)
{
	put(bytes, header.magic);
	put(bytes, header.bounds.left);
	put(bytes, header.bounds.top);
	put(bytes, header.bounds.right);
	put(bytes, header.bounds.bottom);
	put(bytes, header.rowBytes);
	put(bytes, static_cast<uint32>(header.colors));
	put(bytes, header.dataSize);
}


bool
ReadStreamHeader(const uint8* bytes, TranslatorBitmap* header)
{
	header->magic = get(bytes);
	header->bounds.left = get_float(bytes);
	header->bounds.top = get_float(bytes);
	header->bounds.right = get_float(bytes);
	header->bounds.bottom = get_float(bytes);
	header->rowBytes = get(bytes);
	header->colors = static_cast<color_space>(get(bytes));
	header->dataSize = get(bytes);
	if (header->magic != B_TRANSLATOR_BITMAP)
		return false;

	const float width = header->bounds.right - header->bounds.left;
	const float height = header->bounds.bottom - header->bounds.top;
	// Written so that what is no number fails too.
	if (!(width >= 0 && width < kMaxSide && height >= 0 && height < kMaxSide))
		return false;
	const uint64 size = uint64(header->rowBytes) * (uint64(height) + 1);
	return header->rowBytes > uint32(width) / 8 && header->dataSize == size && size <= kMaxBytes;
}

} // namespace hosted
