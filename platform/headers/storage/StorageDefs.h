// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STORAGE_DEFS_H
#define STORAGE_DEFS_H

#include <SupportDefs.h>
#include <fcntl.h>
#include <sys/stat.h>


#define B_DEV_NAME_LENGTH 128
#define B_FILE_NAME_LENGTH 256
#define B_ATTR_NAME_LENGTH (B_FILE_NAME_LENGTH - 1)
#define B_MIME_TYPE_LENGTH (B_ATTR_NAME_LENGTH - 15)
#define B_MAX_SYMLINKS 16
#define B_PATH_NAME_LENGTH 1024

// How to open a file. The kit translates them for the system below.
#define B_READ_ONLY 0x0000
#define B_WRITE_ONLY 0x0001
#define B_READ_WRITE 0x0002
#define B_FAIL_IF_EXISTS 0x0100
#define B_CREATE_FILE 0x0200
#define B_ERASE_FILE 0x0400
#define B_OPEN_AT_END 0x0800

enum node_flavor {
	B_FILE_NODE = 0x01,
	B_SYMLINK_NODE = 0x02,
	B_DIRECTORY_NODE = 0x04,
	B_ANY_NODE = 0x07,
};

#endif // STORAGE_DEFS_H
