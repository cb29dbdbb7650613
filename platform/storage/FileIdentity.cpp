// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What tells a file from another one that takes its place.
#include "platform/storage/AttributeDatabase.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


namespace hosted {

namespace {

bool
is_unsteady_type(uint32 type)
{
	constexpr uint32 kExfat = 0x2011bab0;
	constexpr uint32 kFuse = 0x65735546;
	constexpr uint32 kCifs = 0xff534d42;
	constexpr uint32 kSmb2 = 0xfe534d42;
	switch (type) {
		case MSDOS_SUPER_MAGIC:
		case kExfat:
		case kFuse:
		case kCifs:
		case kSmb2:
		case V9FS_MAGIC:
			return true;
		default:
			return false;
	}
}


bool
are_nodes_unsteady(int fd, uint64 device)
{
	// Files are asked for by the thousand, and nearly always lie on the same file system.
	thread_local uint64 tDevice = 0;
	thread_local bool tAreUnsteady = false;
	if (device == tDevice)
		return tAreUnsteady;
	struct statfs status;
	if (fstatfs(fd, &status) != 0)
		return false;
	tDevice = device;
	tAreUnsteady = is_unsteady_type(static_cast<uint32>(status.f_type));
	return tAreUnsteady;
}

} // namespace


status_t
IdentifyFile(int fd, FileIdentity* identity)
{
	const status_t error = PathOfDescriptor(fd, &identity->path);
	if (error != B_OK)
		return error;
	struct statx status;
	if (statx(fd, "", AT_EMPTY_PATH, STATX_INO | STATX_BTIME, &status) != 0)
		return LastStatus();
	identity->node = status.stx_ino;
	identity->birth = 0;
	if ((status.stx_mask & STATX_BTIME) != 0) {
		identity->birth
			= static_cast<int64>(status.stx_btime.tv_sec) * 1000000000 + status.stx_btime.tv_nsec;
	}
	const uint64 device = static_cast<uint64>(status.stx_dev_major) << 32 | status.stx_dev_minor;
	identity->isNodeUnsteady = are_nodes_unsteady(fd, device);
	return B_OK;
}

} // namespace hosted
