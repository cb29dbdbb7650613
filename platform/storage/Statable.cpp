// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Statable.h>

#include <Node.h>
#include <Volume.h>
#include <fcntl.h>

#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


BStatable::~BStatable() = default;


bool
BStatable::IsFile() const
{
	struct stat status;
	return GetStat(&status) == B_OK && S_ISREG(status.st_mode);
}


bool
BStatable::IsDirectory() const
{
	struct stat status;
	return GetStat(&status) == B_OK && S_ISDIR(status.st_mode);
}


bool
BStatable::IsSymLink() const
{
	struct stat status;
	return GetStat(&status) == B_OK && S_ISLNK(status.st_mode);
}


status_t
BStatable::GetNodeRef(node_ref* ref) const
{
	if (ref == nullptr)
		return B_BAD_VALUE;
	struct stat status;
	const status_t error = GetStat(&status);
	if (error != B_OK)
		return error;

	*ref = node_ref(status.st_dev, status.st_ino);
	// A directory may be opened by this later.
	std::string path;
	bool follow;
	std::shared_ptr<hosted::Folder> folder;
	if (S_ISDIR(status.st_mode) && _NodePath(&path, &follow) == B_OK
		&& hosted::Folder::Open(AT_FDCWD, path.c_str(), &folder) == B_OK) {
		folder->Remember();
	}
	return B_OK;
}


status_t
BStatable::GetSize(off_t* size) const
{
	if (size == nullptr)
		return B_BAD_VALUE;
	struct stat status;
	const status_t error = GetStat(&status);
	if (error == B_OK)
		*size = status.st_size;
	return error;
}


status_t
BStatable::GetModificationTime(time_t* time) const
{
	if (time == nullptr)
		return B_BAD_VALUE;
	struct stat status;
	const status_t error = GetStat(&status);
	if (error == B_OK)
		*time = status.st_mtime;
	return error;
}


status_t
BStatable::SetModificationTime(time_t time)
{
	std::string path;
	bool follow;
	const status_t error = _NodePath(&path, &follow);
	if (error != B_OK)
		return error;
	timespec times[2] = {};
	times[0].tv_nsec = UTIME_OMIT;
	times[1].tv_sec = time;
	const int flags = follow ? 0 : AT_SYMLINK_NOFOLLOW;
	return utimensat(AT_FDCWD, path.c_str(), times, flags) == 0 ? B_OK : hosted::LastStatus();
}


status_t
BStatable::GetCreationTime(time_t* time) const
{
	if (time == nullptr)
		return B_BAD_VALUE;
	std::string path;
	bool follow;
	const status_t error = _NodePath(&path, &follow);
	if (error != B_OK)
		return error;
	struct statx status;
	if (statx(AT_FDCWD, path.c_str(), follow ? 0 : AT_SYMLINK_NOFOLLOW, STATX_BTIME | STATX_MTIME,
			&status)
		!= 0) {
		return hosted::LastStatus();
	}
	const bool isKnown = (status.stx_mask & STATX_BTIME) != 0;
	*time = isKnown ? status.stx_btime.tv_sec : status.stx_mtime.tv_sec;
	return B_OK;
}


status_t
BStatable::GetPermissions(mode_t* permissions) const
{
	if (permissions == nullptr)
		return B_BAD_VALUE;
	struct stat status;
	const status_t error = GetStat(&status);
	if (error == B_OK)
		*permissions = status.st_mode & 07777;
	return error;
}


status_t
BStatable::SetPermissions(mode_t permissions)
{
	std::string path;
	bool follow;
	const status_t error = _NodePath(&path, &follow);
	if (error != B_OK)
		return error;
	const int flags = follow ? 0 : AT_SYMLINK_NOFOLLOW;
	if (fchmodat(AT_FDCWD, path.c_str(), permissions & 07777, flags) != 0)
		return hosted::LastStatus();
	return B_OK;
}


status_t
BStatable::GetVolume(BVolume* volume) const
{
	if (volume == nullptr)
		return B_BAD_VALUE;
	struct stat status;
	const status_t error = GetStat(&status);
	return error == B_OK ? volume->SetTo(status.st_dev) : error;
}
