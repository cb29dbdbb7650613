// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FS_ATTR_H
#define FS_ATTR_H

#include <SupportDefs.h>


typedef struct attr_info {
	uint32 type;
	off_t size;
} attr_info;

// Each fails with -1 and Haiku's code in errno.
extern "C"
{
	ssize_t fs_read_attr(int fd, const char* attribute, uint32 type, off_t position, void* buffer,
		size_t length);
	ssize_t fs_write_attr(int fd, const char* attribute, uint32 type, off_t position,
		const void* buffer, size_t length);
	int fs_remove_attr(int fd, const char* attribute);
	int fs_stat_attr(int fd, const char* attribute, struct attr_info* info);
}

#endif // FS_ATTR_H
