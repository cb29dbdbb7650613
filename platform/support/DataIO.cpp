// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BDataIO and BPositionIO: what streams have in common.
#include <DataIO.h>

#include <stdio.h>


BDataIO::BDataIO() = default;


BDataIO::~BDataIO() = default;


ssize_t
BDataIO::Read(void* /*buffer*/, size_t /*size*/)
{
	return B_NOT_SUPPORTED;
}


ssize_t
BDataIO::Write(const void* /*buffer*/, size_t /*size*/)
{
	return B_NOT_SUPPORTED;
}


status_t
BDataIO::Flush()
{
	return B_OK;
}


status_t
BDataIO::ReadExactly(void* buffer, size_t size, size_t* _bytesRead)
{
	char* target = static_cast<char*>(buffer);
	size_t done = 0;
	ssize_t count = 1;
	while (done < size && count > 0) {
		count = Read(target + done, size - done);
		if (count > 0)
			done += static_cast<size_t>(count);
	}
	if (_bytesRead != nullptr)
		*_bytesRead = done;
	if (count < 0)
		return static_cast<status_t>(count);
	return done == size ? B_OK : B_PARTIAL_READ;
}


status_t
BDataIO::WriteExactly(const void* buffer, size_t size, size_t* _bytesWritten)
{
	const char* source = static_cast<const char*>(buffer);
	size_t done = 0;
	ssize_t count = 1;
	while (done < size && count > 0) {
		count = Write(source + done, size - done);
		if (count > 0)
			done += static_cast<size_t>(count);
	}
	if (_bytesWritten != nullptr)
		*_bytesWritten = done;
	if (count < 0)
		return static_cast<status_t>(count);
	return done == size ? B_OK : B_PARTIAL_WRITE;
}


BPositionIO::BPositionIO() = default;


BPositionIO::~BPositionIO() = default;


ssize_t
BPositionIO::Read(void* buffer, size_t size)
{
	const off_t position = Position();
	const ssize_t count = ReadAt(position, buffer, size);
	if (count > 0)
		Seek(position + count, SEEK_SET);
	return count;
}


ssize_t
BPositionIO::Write(const void* buffer, size_t size)
{
	const off_t position = Position();
	const ssize_t count = WriteAt(position, buffer, size);
	if (count > 0)
		Seek(position + count, SEEK_SET);
	return count;
}


status_t
BPositionIO::ReadAtExactly(off_t position, void* buffer, size_t size, size_t* _bytesRead)
{
	char* target = static_cast<char*>(buffer);
	size_t done = 0;
	ssize_t count = 1;
	while (done < size && count > 0) {
		count = ReadAt(position + static_cast<off_t>(done), target + done, size - done);
		if (count > 0)
			done += static_cast<size_t>(count);
	}
	if (_bytesRead != nullptr)
		*_bytesRead = done;
	if (count < 0)
		return static_cast<status_t>(count);
	return done == size ? B_OK : B_PARTIAL_READ;
}


status_t
BPositionIO::WriteAtExactly(off_t position, const void* buffer, size_t size, size_t* _bytesWritten)
{
	const char* source = static_cast<const char*>(buffer);
	size_t done = 0;
	ssize_t count = 1;
	while (done < size && count > 0) {
		count = WriteAt(position + static_cast<off_t>(done), source + done, size - done);
		if (count > 0)
			done += static_cast<size_t>(count);
	}
	if (_bytesWritten != nullptr)
		*_bytesWritten = done;
	if (count < 0)
		return static_cast<status_t>(count);
	return done == size ? B_OK : B_PARTIAL_WRITE;
}


status_t
BPositionIO::SetSize(off_t /*size*/)
{
	return B_ERROR;
}


status_t
BPositionIO::GetSize(off_t* size) const
{
	if (size == nullptr)
		return B_BAD_VALUE;
	// Asking for the end moves the position for a moment only.
	BPositionIO* self = const_cast<BPositionIO*>(this);
	const off_t position = Position();
	if (position < 0)
		return static_cast<status_t>(position);
	const off_t end = self->Seek(0, SEEK_END);
	if (end < 0)
		return static_cast<status_t>(end);
	self->Seek(position, SEEK_SET);
	*size = end;
	return B_OK;
}
