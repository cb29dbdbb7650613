// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <File.h>

#include <Directory.h>
#include <Entry.h>
#include <errno.h>
#include <fcntl.h>
#include <unistd.h>

#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


namespace {

constexpr uint32 kAccessMask = 0x3;


// Haiku's modes as the system's. A pipe or a device must not keep the caller waiting.
int
open_flags(uint32 openMode)
{
	int flags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
	switch (openMode & kAccessMask) {
		case B_WRITE_ONLY:
			flags |= O_WRONLY;
			break;
		case B_READ_WRITE:
			flags |= O_RDWR;
			break;
		default:
			flags |= O_RDONLY;
			break;
	}
	if ((openMode & B_CREATE_FILE) != 0) {
		flags |= O_CREAT;
		// Alone it has no meaning.
		if ((openMode & B_FAIL_IF_EXISTS) != 0)
			flags |= O_EXCL;
	}
	if ((openMode & B_ERASE_FILE) != 0)
		flags |= O_TRUNC;
	if ((openMode & B_OPEN_AT_END) != 0)
		flags |= O_APPEND;
	return flags;
}

} // namespace


BFile::BFile() = default;


BFile::BFile(const BFile& file)
	:
	BNode(file),
	BPositionIO(),
	fMode(file.fMode)
{
}


BFile::BFile(const entry_ref* ref, uint32 openMode)
{
	SetTo(ref, openMode);
}


BFile::BFile(const BEntry* entry, uint32 openMode)
{
	SetTo(entry, openMode);
}


BFile::BFile(const char* path, uint32 openMode)
{
	SetTo(path, openMode);
}


BFile::BFile(const BDirectory* directory, const char* path, uint32 openMode)
{
	SetTo(directory, path, openMode);
}


BFile::~BFile() = default;


BFile&
BFile::operator=(const BFile& file)
{
	BNode::operator=(file);
	fMode = file.fMode;
	return *this;
}


status_t
BFile::SetTo(const entry_ref* ref, uint32 openMode)
{
	BEntry entry;
	const status_t status = entry.SetTo(ref);
	return status == B_OK ? SetTo(&entry, openMode) : _Adopt(-1, status);
}


status_t
BFile::SetTo(const BEntry* entry, uint32 openMode)
{
	if (entry == nullptr)
		return _Adopt(-1, B_BAD_VALUE);
	if (entry->InitCheck() != B_OK)
		return _Adopt(-1, entry->InitCheck());
	return _SetTo(entry->fFolder->Descriptor(), entry->Name(), openMode);
}


status_t
BFile::SetTo(const char* path, uint32 openMode)
{
	return _SetTo(AT_FDCWD, path, openMode);
}


status_t
BFile::SetTo(const BDirectory* directory, const char* path, uint32 openMode)
{
	if (directory == nullptr || directory->InitCheck() != B_OK)
		return _Adopt(-1, B_BAD_VALUE);
	return _SetTo(directory->_Descriptor(), path, openMode);
}


status_t
BFile::_SetTo(int folder, const char* path, uint32 openMode)
{
	if (path == nullptr || (openMode & kAccessMask) == kAccessMask)
		return _Adopt(-1, B_BAD_VALUE);
	int flags = open_flags(openMode);
	if ((openMode & kAccessMask) == B_READ_ONLY && (flags & O_TRUNC) != 0) {
		// The system would empty the file; Haiku refuses, unless there is none yet.
		struct stat status;
		if (fstatat(folder, path, &status, 0) == 0)
			return _Adopt(-1, B_BAD_VALUE);
		flags &= ~O_TRUNC;
	}
	const int fd = openat(folder, path, flags, 0666);
	fMode = openMode;
	return _Adopt(fd, fd >= 0 ? B_OK : hosted::LastStatus());
}


bool
BFile::IsReadable() const
{
	return InitCheck() == B_OK && (fMode & kAccessMask) != B_WRITE_ONLY;
}


bool
BFile::IsWritable() const
{
	return InitCheck() == B_OK && (fMode & kAccessMask) != B_READ_ONLY;
}


ssize_t
BFile::Read(void* buffer, size_t size)
{
	if (InitCheck() != B_OK)
		return InitCheck();
	ssize_t count;
	do {
		count = read(_Descriptor(), buffer, size);
	} while (count < 0 && errno == EINTR);
	return count >= 0 ? count : hosted::LastStatus();
}


ssize_t
BFile::ReadAt(off_t location, void* buffer, size_t size)
{
	if (InitCheck() != B_OK)
		return InitCheck();
	if (location < 0)
		return B_BAD_VALUE;
	ssize_t count;
	do {
		count = pread(_Descriptor(), buffer, size, location);
	} while (count < 0 && errno == EINTR);
	return count >= 0 ? count : hosted::LastStatus();
}


ssize_t
BFile::Write(const void* buffer, size_t size)
{
	if (InitCheck() != B_OK)
		return InitCheck();
	ssize_t count;
	do {
		count = write(_Descriptor(), buffer, size);
	} while (count < 0 && errno == EINTR);
	return count >= 0 ? count : hosted::LastStatus();
}


ssize_t
BFile::WriteAt(off_t location, const void* buffer, size_t size)
{
	if (InitCheck() != B_OK)
		return InitCheck();
	if (location < 0)
		return B_BAD_VALUE;
	ssize_t count;
	do {
		count = pwrite(_Descriptor(), buffer, size, location);
	} while (count < 0 && errno == EINTR);
	return count >= 0 ? count : hosted::LastStatus();
}


off_t
BFile::Seek(off_t offset, uint32 seekMode)
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	// Others exist on Linux only.
	if (seekMode != SEEK_SET && seekMode != SEEK_CUR && seekMode != SEEK_END)
		return B_BAD_VALUE;
	const off_t position = lseek(_Descriptor(), offset, static_cast<int>(seekMode));
	return position >= 0 ? position : hosted::LastStatus();
}


off_t
BFile::Position() const
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	const off_t position = lseek(_Descriptor(), 0, SEEK_CUR);
	return position >= 0 ? position : hosted::LastStatus();
}


status_t
BFile::SetSize(off_t size)
{
	if (InitCheck() != B_OK)
		return InitCheck();
	if (size < 0)
		return B_BAD_VALUE;
	return ftruncate(_Descriptor(), size) == 0 ? B_OK : hosted::LastStatus();
}


status_t
BFile::GetSize(off_t* size) const
{
	return BStatable::GetSize(size);
}
