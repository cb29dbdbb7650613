// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Attributes of open files, by their descriptors.
#include <fs_attr.h>

#include <errno.h>

#include "platform/storage/Attributes.h"


namespace {

ssize_t
fail(ssize_t status)
{
	errno = static_cast<int>(status);
	return -1;
}

} // namespace


extern "C"
{

	ssize_t fs_read_attr(int fd, const char* attribute, uint32 /*type*/, off_t position,
		void* buffer, size_t length)
	{
		const ssize_t count = hosted::ReadAttribute(fd, attribute, position, buffer, length);
		return count >= 0 ? count : fail(count);
	}


	ssize_t fs_write_attr(int fd, const char* attribute, uint32 type, off_t position,
		const void* buffer, size_t length)
	{
		const ssize_t count = hosted::WriteAttribute(fd, attribute, type, position, buffer, length);
		return count >= 0 ? count : fail(count);
	}


	int fs_remove_attr(int fd, const char* attribute)
	{
		const status_t status = hosted::RemoveAttribute(fd, attribute);
		return status == B_OK ? 0 : static_cast<int>(fail(status));
	}


	int fs_stat_attr(int fd, const char* attribute, struct attr_info* info)
	{
		const status_t status = hosted::StatAttribute(fd, attribute, info);
		return status == B_OK ? 0 : static_cast<int>(fail(status));
	}

} // extern "C"
