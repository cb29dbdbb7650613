// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BEntry: giving a file another name or place.
#include <Entry.h>

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>

#include "platform/storage/AttributeDatabase.h"
#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


namespace {

struct Place {
	int folder;
	const char* name;
};


// Whether two names, which differ, are one entry, as they are where letter case does not count.
bool
is_one_entry(const Place& from, const Place& to)
{
	struct stat source;
	struct stat target;
	return fstatat(from.folder, from.name, &source, AT_SYMLINK_NOFOLLOW) == 0
		&& fstatat(to.folder, to.name, &target, AT_SYMLINK_NOFOLLOW) == 0
		&& source.st_dev == target.st_dev && source.st_ino == target.st_ino
		&& (S_ISDIR(source.st_mode) || source.st_nlink == 1);
}


status_t
rename_over(const Place& from, const Place& to)
{
	if (renameat(from.folder, from.name, to.folder, to.name) == 0)
		return B_OK;
	// Some file systems say so of a directory that is not empty.
	return errno == EEXIST ? B_DIRECTORY_NOT_EMPTY : hosted::LastStatus();
}


status_t
rename_to_free_name(const Place& from, const Place& to, bool isSameName)
{
	if (renameat2(from.folder, from.name, to.folder, to.name, RENAME_NOREPLACE) == 0)
		return B_OK;
	if (errno == EEXIST && !isSameName && is_one_entry(from, to))
		return rename_over(from, to);
	if (errno != EINVAL && errno != ENOSYS)
		return hosted::LastStatus();

	// A file system that cannot do both at once.
	struct stat status;
	if (fstatat(to.folder, to.name, &status, AT_SYMLINK_NOFOLLOW) == 0)
		return isSameName || !is_one_entry(from, to) ? B_FILE_EXISTS : rename_over(from, to);
	return rename_over(from, to);
}

} // namespace


// On success the object names the new place; if it fails it is as it was.
status_t
BEntry::_Rename(const std::shared_ptr<hosted::Folder>& base, const char* path, bool clobber)
{
	BEntry target;
	status_t status = target._Resolve(base, path, false, 0);
	if (status != B_OK)
		return status;

	std::string before;
	const bool isBeforeKnown = fFolder->GetPath(&before) == B_OK;
	const Place from = {fFolder->Descriptor(), fName.c_str()};
	const Place to = {target.fFolder->Descriptor(), target.fName.c_str()};
	if (clobber)
		status = rename_over(from, to);
	else
		status = rename_to_free_name(from, to, *this == target);
	if (status != B_OK)
		return status;

	std::string after;
	if (isBeforeKnown && target.fFolder->GetPath(&after) == B_OK && !(*this == target)) {
		after = hosted::JoinPath(after, target.fName);
		hosted::AttributeDatabase::Default().NodeMoved(hosted::JoinPath(before, fName), after);
		struct stat moved;
		if (target.GetStat(&moved) == B_OK && S_ISDIR(moved.st_mode))
			hosted::RememberFolder(moved.st_dev, moved.st_ino, after);
	}
	*this = target;
	return B_OK;
}
