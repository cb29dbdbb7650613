// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BDirectory: opening one, and what lies in it by name.
#include <Directory.h>

#include <Entry.h>
#include <File.h>
#include <Path.h>
#include <SymLink.h>
#include <string.h>
#include <unistd.h>

#include "platform/storage/DirectoryEntries.h"
#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


BDirectory::BDirectory() = default;


BDirectory::BDirectory(const BDirectory& directory)
	:
	BNode(directory),
	BEntryList()
{
}


BDirectory::BDirectory(const entry_ref* ref)
{
	SetTo(ref);
}


BDirectory::BDirectory(const node_ref* ref)
{
	SetTo(ref);
}


BDirectory::BDirectory(const BEntry* entry)
{
	SetTo(entry);
}


BDirectory::BDirectory(const char* path)
{
	SetTo(path);
}


BDirectory::BDirectory(const BDirectory* directory, const char* path)
{
	SetTo(directory, path);
}


BDirectory::~BDirectory() = default;


BDirectory&
BDirectory::operator=(const BDirectory& directory)
{
	if (this != &directory) {
		BNode::operator=(directory);
		fEntries.reset();
	}
	return *this;
}


status_t
BDirectory::SetTo(const entry_ref* ref)
{
	fEntries.reset();
	BEntry entry;
	const status_t status = entry.SetTo(ref);
	return status == B_OK ? SetTo(&entry) : _Adopt(-1, status);
}


status_t
BDirectory::SetTo(const node_ref* ref)
{
	fEntries.reset();
	if (ref == nullptr)
		return _Adopt(-1, B_BAD_VALUE);
	std::shared_ptr<hosted::Folder> folder;
	const status_t status = hosted::Folder::Open(ref->device, ref->node, &folder);
	return status == B_OK ? _SetTo(folder->Descriptor(), ".") : _Adopt(-1, status);
}


status_t
BDirectory::SetTo(const BEntry* entry)
{
	fEntries.reset();
	if (entry == nullptr)
		return _Adopt(-1, B_BAD_VALUE);
	if (entry->InitCheck() != B_OK)
		return _Adopt(-1, entry->InitCheck());
	return _SetTo(entry->fFolder->Descriptor(), entry->Name());
}


status_t
BDirectory::SetTo(const char* path)
{
	return _SetTo(AT_FDCWD, path);
}


status_t
BDirectory::SetTo(const BDirectory* directory, const char* path)
{
	if (directory == nullptr || directory->InitCheck() != B_OK) {
		fEntries.reset();
		return _Adopt(-1, B_BAD_VALUE);
	}
	return _SetTo(directory->_Descriptor(), path);
}


status_t
BDirectory::_SetTo(int folder, const char* path)
{
	fEntries.reset();
	if (path == nullptr)
		return _Adopt(-1, B_BAD_VALUE);
	const int fd = openat(folder, path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
	return _Adopt(fd, fd >= 0 ? B_OK : hosted::LastStatus());
}


status_t
BDirectory::GetEntry(BEntry* entry) const
{
	if (entry == nullptr)
		return B_BAD_VALUE;
	if (InitCheck() != B_OK) {
		entry->Unset();
		return B_NO_INIT;
	}
	return entry->SetTo(this, ".");
}


// Of its volume, that is.
bool
BDirectory::IsRootDirectory() const
{
	struct stat own;
	struct stat above;
	return GetStat(&own) == B_OK && fstatat(_Descriptor(), "..", &above, 0) == 0
		&& (own.st_dev != above.st_dev || own.st_ino == above.st_ino);
}


status_t
BDirectory::FindEntry(const char* path, BEntry* entry, bool traverse) const
{
	if (path == nullptr || entry == nullptr)
		return B_BAD_VALUE;
	status_t status;
	// Without a directory of its own the current one is meant.
	if (InitCheck() == B_OK)
		status = entry->SetTo(this, path, traverse);
	else
		status = entry->SetTo(path, traverse);
	if (status == B_OK && !entry->Exists())
		status = B_ENTRY_NOT_FOUND;
	if (status != B_OK)
		entry->Unset();
	return status;
}


bool
BDirectory::Contains(const char* path, int32 nodeFlags) const
{
	BEntry entry;
	return InitCheck() == B_OK && FindEntry(path, &entry) == B_OK && Contains(&entry, nodeFlags);
}


bool
BDirectory::Contains(const BEntry* entry, int32 nodeFlags) const
{
	if (InitCheck() != B_OK || entry == nullptr || !entry->Exists())
		return false;
	const bool isWanted = ((nodeFlags & B_FILE_NODE) != 0 && entry->IsFile())
		|| ((nodeFlags & B_DIRECTORY_NODE) != 0 && entry->IsDirectory())
		|| ((nodeFlags & B_SYMLINK_NODE) != 0 && entry->IsSymLink()) || nodeFlags == B_ANY_NODE;

	BPath own;
	BPath other;
	if (!isWanted || own.SetTo(this) != B_OK || other.SetTo(entry) != B_OK)
		return false;
	const std::string prefix = hosted::JoinPath(own.Path(), "");
	return strncmp(other.Path(), prefix.c_str(), prefix.size()) == 0 && other != own;
}


status_t
BDirectory::GetStatFor(const char* path, struct stat* stat) const
{
	if (InitCheck() != B_OK)
		return B_NO_INIT;
	if (stat == nullptr)
		return B_BAD_VALUE;
	if (path == nullptr)
		return GetStat(stat);
	if (fstatat(_Descriptor(), path, stat, AT_SYMLINK_NOFOLLOW) != 0)
		return hosted::LastStatus();
	return B_OK;
}


status_t
BDirectory::CreateDirectory(const char* path, BDirectory* directory)
{
	if (path == nullptr)
		return B_BAD_VALUE;
	const int base = InitCheck() == B_OK ? _Descriptor() : AT_FDCWD;
	if (mkdirat(base, path, 0777) != 0)
		return hosted::LastStatus();
	return directory != nullptr ? directory->_SetTo(base, path) : B_OK;
}


status_t
BDirectory::CreateFile(const char* path, BFile* file, bool failIfExists)
{
	if (path == nullptr)
		return B_BAD_VALUE;
	BFile unnamed;
	BFile* target = file != nullptr ? file : &unnamed;
	const uint32 mode
		= B_READ_WRITE | B_CREATE_FILE | B_ERASE_FILE | (failIfExists ? B_FAIL_IF_EXISTS : 0);
	return target->_SetTo(InitCheck() == B_OK ? _Descriptor() : AT_FDCWD, path, mode);
}


status_t
BDirectory::CreateSymLink(const char* path, const char* linkToPath, BSymLink* link)
{
	if (path == nullptr || linkToPath == nullptr)
		return B_BAD_VALUE;
	const int base = InitCheck() == B_OK ? _Descriptor() : AT_FDCWD;
	if (symlinkat(linkToPath, base, path) != 0)
		return hosted::LastStatus();
	return link != nullptr ? link->_SetTo(base, path) : B_OK;
}


status_t
create_directory(const char* path, mode_t mode)
{
	if (path == nullptr || path[0] == '\0')
		return B_BAD_VALUE;
	const std::string whole = path;
	size_t end = 0;
	while (end != std::string::npos) {
		end = whole.find('/', end + 1);
		const std::string part = whole.substr(0, end);
		if (mkdir(part.c_str(), mode) == 0)
			continue;
		// What is there, or lies on a volume that nobody writes to, need not be made.
		const status_t error = hosted::LastStatus();
		struct stat status;
		if (stat(part.c_str(), &status) != 0)
			return error;
		if (!S_ISDIR(status.st_mode))
			return B_NOT_A_DIRECTORY;
	}
	return B_OK;
}
