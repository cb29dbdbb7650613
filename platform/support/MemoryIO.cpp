// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BMemoryIO and BMallocIO: streams in memory.
#include <DataIO.h>

#include <algorithm>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>


namespace {

ssize_t
read_from(const char* data, size_t length, off_t position, void* buffer, size_t size)
{
	if (buffer == nullptr || position < 0)
		return B_BAD_VALUE;
	if (static_cast<size_t>(position) >= length)
		return 0;
	size = std::min(size, length - static_cast<size_t>(position));
	memcpy(buffer, data + position, size);
	return static_cast<ssize_t>(size);
}


// Where a seek leads to, or an error.
off_t
seek_target(off_t current, size_t length, off_t position, uint32 seekMode)
{
	off_t base;
	switch (seekMode) {
		case SEEK_SET:
			base = 0;
			break;
		case SEEK_CUR:
			base = current;
			break;
		case SEEK_END:
			base = static_cast<off_t>(length);
			break;
		default:
			return B_BAD_VALUE;
	}
	off_t target;
	if (__builtin_add_overflow(base, position, &target) || target < 0)
		return B_BAD_VALUE;
	return target;
}

} // namespace


BMemoryIO::BMemoryIO(void* data, size_t length)
	:
	fReadOnly(false),
	fBuffer(static_cast<char*>(data)),
	fLength(length),
	fBufferSize(length)
{
}


BMemoryIO::BMemoryIO(const void* data, size_t length)
	:
	fReadOnly(true),
	fBuffer(static_cast<char*>(const_cast<void*>(data))),
	fLength(length),
	fBufferSize(length)
{
}


BMemoryIO::~BMemoryIO() = default;


ssize_t
BMemoryIO::ReadAt(off_t position, void* buffer, size_t size)
{
	return read_from(fBuffer, fLength, position, buffer, size);
}


ssize_t
BMemoryIO::WriteAt(off_t position, const void* buffer, size_t size)
{
	if (fReadOnly)
		return B_NOT_ALLOWED;
	if (buffer == nullptr || position < 0)
		return B_BAD_VALUE;
	if (static_cast<size_t>(position) >= fBufferSize)
		return 0;
	size = std::min(size, fBufferSize - static_cast<size_t>(position));
	memcpy(fBuffer + position, buffer, size);
	fLength = std::max(fLength, static_cast<size_t>(position) + size);
	return static_cast<ssize_t>(size);
}


off_t
BMemoryIO::Seek(off_t position, uint32 seekMode)
{
	const off_t target = seek_target(fPosition, fLength, position, seekMode);
	if (target >= 0)
		fPosition = target;
	return target;
}


off_t
BMemoryIO::Position() const
{
	return fPosition;
}


status_t
BMemoryIO::SetSize(off_t size)
{
	if (fReadOnly)
		return B_NOT_ALLOWED;
	if (size < 0)
		return B_BAD_VALUE;
	if (static_cast<size_t>(size) > fBufferSize)
		return B_ERROR;
	fLength = static_cast<size_t>(size);
	return B_OK;
}


BMallocIO::BMallocIO() = default;


BMallocIO::~BMallocIO()
{
	free(fData);
}


ssize_t
BMallocIO::ReadAt(off_t position, void* buffer, size_t size)
{
	return read_from(fData, fLength, position, buffer, size);
}


ssize_t
BMallocIO::WriteAt(off_t position, const void* buffer, size_t size)
{
	off_t end;
	if (buffer == nullptr || position < 0 || size > SSIZE_MAX
		|| __builtin_add_overflow(position, static_cast<off_t>(size), &end)) {
		return B_BAD_VALUE;
	}
	if (size == 0)
		return 0;
	if (static_cast<size_t>(end) > fLength) {
		const status_t status = SetSize(end);
		if (status != B_OK)
			return status;
	}
	memcpy(fData + position, buffer, size);
	return static_cast<ssize_t>(size);
}


off_t
BMallocIO::Seek(off_t position, uint32 seekMode)
{
	const off_t target = seek_target(fPosition, fLength, position, seekMode);
	if (target >= 0)
		fPosition = target;
	return target;
}


off_t
BMallocIO::Position() const
{
	return fPosition;
}


status_t
BMallocIO::SetSize(off_t size)
{
	if (size < 0)
		return B_BAD_VALUE;
	const size_t length = static_cast<size_t>(size);
	if (length > fMallocSize) {
		// Half as much again at least, so that a file written byte by byte stays cheap.
		size_t room = std::max(length, fMallocSize + fMallocSize / 2);
		room = (room + fBlockSize - 1) / fBlockSize * fBlockSize;
		char* data = room >= length ? static_cast<char*>(realloc(fData, room)) : nullptr;
		if (data == nullptr)
			return B_NO_MEMORY;
		fData = data;
		fMallocSize = room;
	}
	if (length > fLength)
		memset(fData + fLength, 0, length - fLength);
	fLength = length;
	return B_OK;
}


void
BMallocIO::SetBlockSize(size_t blockSize)
{
	fBlockSize = std::max<size_t>(blockSize, 1);
}


const void*
BMallocIO::Buffer() const
{
	return fData;
}


size_t
BMallocIO::BufferLength() const
{
	return fLength;
}
