// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <BitmapStream.h>

#include <algorithm>
#include <stdio.h>
#include <string.h>

#include <Bitmap.h>

#include "platform/translation/StreamHeader.h"

using hosted::kStreamHeaderSize;


BBitmapStream::BBitmapStream(BBitmap* bitmap)
{
	_TakeBitmap(bitmap);
}


BBitmapStream::~BBitmapStream()
{
	delete fBitmap;
}


ssize_t
BBitmapStream::ReadAt(off_t position, void* buffer, size_t size)
{
	if (buffer == nullptr || position < 0)
		return B_BAD_VALUE;
	if (fBitmap == nullptr)
		return B_NO_INIT;
	if (position >= fSize)
		return 0;

	uint8* target = static_cast<uint8*>(buffer);
	size_t rest = std::min<size_t>(size, fSize - position);
	const size_t done = rest;
	if (position < off_t(kStreamHeaderSize)) {
		const size_t part = std::min<size_t>(rest, kStreamHeaderSize - position);
		memcpy(target, fHeader + position, part);
		target += part;
		position += off_t(part);
		rest -= part;
	}
	if (rest > 0) {
		const uint8* const bits = static_cast<const uint8*>(fBitmap->Bits());
		memcpy(target, bits + position - kStreamHeaderSize, rest);
	}
	return done;
}


ssize_t
BBitmapStream::WriteAt(off_t position, const void* data, size_t size)
{
	if (data == nullptr || position < 0 || position > fSize)
		return B_BAD_VALUE;
	if (fDetached)
		return B_NO_INIT;

	const uint8* source = static_cast<const uint8*>(data);
	size_t rest = size;
	if (position < off_t(kStreamHeaderSize)) {
		const size_t part = std::min<size_t>(rest, kStreamHeaderSize - position);
		memcpy(fHeader + position, source, part);
		source += part;
		position += off_t(part);
		rest -= part;
		fSize = std::max(fSize, position);
		if (position == off_t(kStreamHeaderSize)) {
			const status_t status = _MakeBitmap();
			if (status != B_OK)
				return status;
		}
	}
	if (rest > 0) {
		if (fBitmap == nullptr)
			return B_NO_INIT;
		const size_t room = fBitmap->BitsLength() + kStreamHeaderSize - position;
		rest = std::min(rest, room);
		memcpy(static_cast<uint8*>(fBitmap->Bits()) + position - kStreamHeaderSize, source, rest);
		source += rest;
	}
	return source - static_cast<const uint8*>(data);
}


off_t
BBitmapStream::Seek(off_t position, uint32 whence)
{
	if (whence == SEEK_CUR)
		position += fPosition;
	else if (whence == SEEK_END)
		position += fSize;
	else if (whence != SEEK_SET)
		return B_BAD_VALUE;
	if (position < 0)
		return B_BAD_VALUE;
	fPosition = position;
	return position;
}


off_t
BBitmapStream::Position() const
{
	return fPosition;
}


off_t
BBitmapStream::Size() const
{
	return fSize;
}


// The size is the bitmap's and nobody else's.
status_t
BBitmapStream::SetSize(off_t size)
{
	if (size < 0)
		return B_BAD_VALUE;
	return fBitmap == nullptr || size == fSize ? B_OK : B_BAD_VALUE;
}


status_t
BBitmapStream::DetachBitmap(BBitmap** outBitmap)
{
	if (outBitmap == nullptr)
		return B_BAD_VALUE;
	if (fBitmap == nullptr)
		return B_ERROR;
	*outBitmap = fBitmap;
	fBitmap = nullptr;
	fDetached = true;
	fSize = 0;
	return B_OK;
}


void
BBitmapStream::_TakeBitmap(BBitmap* bitmap)
{
	delete fBitmap;
	fBitmap = bitmap;
	fDetached = false;
	fSize = 0;
	if (bitmap == nullptr || bitmap->InitCheck() != B_OK)
		return;
	TranslatorBitmap header;
	header.magic = B_TRANSLATOR_BITMAP;
	header.bounds = bitmap->Bounds();
	header.rowBytes = bitmap->BytesPerRow();
	header.colors = bitmap->ColorSpace();
	header.dataSize = bitmap->BitsLength();
	hosted::WriteStreamHeader(header, fHeader);
	fSize = off_t(kStreamHeaderSize) + bitmap->BitsLength();
}


// The header is complete: the bitmap that it describes takes the place of an older one.
status_t
BBitmapStream::_MakeBitmap()
{
	TranslatorBitmap header;
	if (!hosted::ReadStreamHeader(fHeader, &header))
		return B_MISMATCHED_VALUES;
	if (fBitmap != nullptr && fBitmap->Bounds() == header.bounds
		&& fBitmap->ColorSpace() == header.colors
		&& uint32(fBitmap->BytesPerRow()) == header.rowBytes)
		return B_OK;

	BBitmap* const bitmap = new BBitmap(header.bounds, header.colors);
	const status_t status = bitmap->InitCheck();
	if (status != B_OK || uint32(bitmap->BytesPerRow()) != header.rowBytes
		|| uint32(bitmap->BitsLength()) != header.dataSize) {
		delete bitmap;
		return status != B_OK ? status : B_MISMATCHED_VALUES;
	}
	_TakeBitmap(bitmap);
	return B_OK;
}
