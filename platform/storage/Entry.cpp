// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Entry.h>

#include <Directory.h>
#include <Path.h>
#include <limits.h>
#include <string.h>
#include <unistd.h>
#include <utility>

#include "platform/storage/AttributeDatabase.h"
#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


namespace {

// The name of the topmost directory, which has no directory above it.
constexpr const char* kRootName = ".";


int
descriptor_of(const std::shared_ptr<hosted::Folder>& folder)
{
	return folder != nullptr ? folder->Descriptor() : AT_FDCWD;
}

} // namespace


BEntry::BEntry()
	:
	fCStatus(B_NO_INIT)
{
}


BEntry::BEntry(const BDirectory* directory, const char* path, bool traverse)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(directory, path, traverse);
}


BEntry::BEntry(const entry_ref* ref, bool traverse)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(ref, traverse);
}


BEntry::BEntry(const char* path, bool traverse)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(path, traverse);
}


BEntry::BEntry(const BEntry& entry) = default;


BEntry::~BEntry() = default;


BEntry& BEntry::operator=(const BEntry& other) = default;


status_t
BEntry::InitCheck() const
{
	return fCStatus;
}


bool
BEntry::Exists() const
{
	struct stat status;
	return GetStat(&status) == B_OK;
}


const char*
BEntry::Name() const
{
	return fCStatus == B_OK ? fName.c_str() : nullptr;
}


status_t
BEntry::GetStat(struct stat* stat) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (stat == nullptr)
		return B_BAD_VALUE;
	if (fstatat(fFolder->Descriptor(), fName.c_str(), stat, AT_SYMLINK_NOFOLLOW) != 0)
		return hosted::LastStatus();
	return B_OK;
}


status_t
BEntry::SetTo(const BDirectory* directory, const char* path, bool traverse)
{
	std::shared_ptr<hosted::Folder> base;
	status_t status = B_BAD_VALUE;
	if (directory != nullptr && directory->InitCheck() == B_OK)
		status = hosted::Folder::Open(directory->_Descriptor(), ".", &base);
	if (status == B_OK)
		return _Resolve(base, path, traverse, B_MAX_SYMLINKS);
	Unset();
	return fCStatus = status;
}


status_t
BEntry::SetTo(const entry_ref* ref, bool traverse)
{
	std::shared_ptr<hosted::Folder> base;
	status_t status = B_BAD_VALUE;
	if (ref != nullptr && ref->name != nullptr && strchr(ref->name, '/') == nullptr)
		status = hosted::Folder::Open(ref->device, ref->directory, &base);
	if (status == B_OK)
		return _Resolve(base, ref->name, traverse, B_MAX_SYMLINKS);
	Unset();
	return fCStatus = status;
}


status_t
BEntry::SetTo(const char* path, bool traverse)
{
	return _Resolve(nullptr, path, traverse, B_MAX_SYMLINKS);
}


void
BEntry::Unset()
{
	fFolder.reset();
	fName.clear();
	fCStatus = B_NO_INIT;
}


status_t
BEntry::_Assign(std::shared_ptr<hosted::Folder> folder, std::string name)
{
	fFolder = std::move(folder);
	fName = std::move(name);
	return fCStatus = B_OK;
}


/*!	Makes this the entry of a path. No base stands for the current directory.

	Only the directory is opened. With traverse, an entry that is a link is replaced by what it
	leads to.
*/
status_t
BEntry::_Resolve(std::shared_ptr<hosted::Folder> base, const char* path, bool traverse,
	int linksLeft)
{
	// The path may be of this very entry.
	std::string rest = path != nullptr ? path : "";
	Unset();
	if (rest.empty())
		return fCStatus = B_BAD_VALUE;
	while (rest.size() > 1 && rest.back() == '/')
		rest.pop_back();

	const size_t slash = rest.rfind('/');
	const std::string leaf = slash != std::string::npos ? rest.substr(slash + 1) : rest;
	if (leaf.empty() || leaf == "." || leaf == "..")
		return fCStatus = _ResolveDots(descriptor_of(base), rest);

	std::shared_ptr<hosted::Folder> folder;
	const std::string above = slash != std::string::npos ? rest.substr(0, slash + 1) : ".";
	status_t status = B_OK;
	if (slash == std::string::npos && base != nullptr)
		folder = std::move(base);
	else
		status = hosted::Folder::Open(descriptor_of(base), above.c_str(), &folder);
	if (status == B_OK && leaf.size() >= B_FILE_NAME_LENGTH)
		status = B_NAME_TOO_LONG;
	if (status != B_OK)
		return fCStatus = status;
	_Assign(std::move(folder), leaf);
	return traverse ? _Follow(linksLeft) : B_OK;
}


// For a path that ends in a directory without a name of its own: finds its real name.
status_t
BEntry::_ResolveDots(int base, const std::string& path)
{
	std::shared_ptr<hosted::Folder> folder;
	status_t status = hosted::Folder::Open(base, path.c_str(), &folder);
	if (status != B_OK)
		return status;
	if (folder->IsRoot())
		return _Assign(folder, kRootName);

	std::string where;
	status = folder->GetPath(&where);
	std::shared_ptr<hosted::Folder> above;
	if (status == B_OK)
		status = hosted::Folder::Open(folder->Descriptor(), "..", &above);
	return status == B_OK ? _Assign(above, where.substr(where.rfind('/') + 1)) : status;
}


status_t
BEntry::_Follow(int linksLeft)
{
	char target[PATH_MAX];
	const ssize_t length
		= readlinkat(fFolder->Descriptor(), fName.c_str(), target, sizeof(target) - 1);
	if (length < 0)
		return B_OK;
	target[length] = '\0';
	if (linksLeft == 0) {
		Unset();
		return fCStatus = B_LINK_LIMIT;
	}

	const status_t status = _Resolve(fFolder, target, true, linksLeft - 1);
	if (status == B_OK && !Exists()) {
		Unset();
		fCStatus = B_ENTRY_NOT_FOUND;
	}
	return fCStatus;
}


status_t
BEntry::GetRef(entry_ref* ref) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (ref == nullptr)
		return B_BAD_VALUE;
	fFolder->Remember();
	ref->device = fFolder->Device();
	ref->directory = fFolder->Node();
	return ref->set_name(fName.c_str());
}


status_t
BEntry::GetPath(BPath* path) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (path == nullptr)
		return B_BAD_VALUE;
	return path->SetTo(this);
}


status_t
BEntry::GetParent(BEntry* entry) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (entry == nullptr)
		return B_BAD_VALUE;
	if (fName == kRootName)
		return B_ENTRY_NOT_FOUND;
	return entry->_Resolve(fFolder, ".", false, 0);
}


status_t
BEntry::GetParent(BDirectory* directory) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (directory == nullptr)
		return B_BAD_VALUE;
	if (fName == kRootName)
		return B_ENTRY_NOT_FOUND;
	return directory->_SetTo(fFolder->Descriptor(), ".");
}


status_t
BEntry::GetName(char* buffer) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (buffer == nullptr)
		return B_BAD_VALUE;
	strcpy(buffer, fName.c_str());
	return B_OK;
}


status_t
BEntry::Rename(const char* path, bool clobber)
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	return path != nullptr ? _Rename(fFolder, path, clobber) : B_BAD_VALUE;
}


status_t
BEntry::MoveTo(BDirectory* directory, const char* path, bool clobber)
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (directory == nullptr || directory->InitCheck() != B_OK)
		return B_BAD_VALUE;
	std::shared_ptr<hosted::Folder> base;
	const status_t status = hosted::Folder::Open(directory->_Descriptor(), ".", &base);
	if (status != B_OK)
		return status;
	const std::string name = path != nullptr ? path : fName;
	return _Rename(base, name.c_str(), clobber);
}


status_t
BEntry::Remove()
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	struct stat status;
	const status_t error = GetStat(&status);
	if (error != B_OK)
		return error;
	std::string path;
	fFolder->GetPath(&path);

	const int flags = S_ISDIR(status.st_mode) ? AT_REMOVEDIR : 0;
	if (unlinkat(fFolder->Descriptor(), fName.c_str(), flags) != 0)
		return hosted::LastStatus();
	if (S_ISDIR(status.st_mode) || status.st_nlink == 1)
		hosted::AttributeDatabase::Default().NodeRemoved(hosted::JoinPath(path, fName));
	return B_OK;
}


bool
BEntry::operator==(const BEntry& other) const
{
	if (fCStatus != B_OK || other.fCStatus != B_OK)
		return fCStatus != B_OK && other.fCStatus != B_OK;
	// Entries of one directory share it.
	return fFolder->Device() == other.fFolder->Device() && fFolder->Node() == other.fFolder->Node()
		&& fName == other.fName;
}


bool
BEntry::operator!=(const BEntry& other) const
{
	return !(*this == other);
}


status_t
BEntry::_NodePath(std::string* path, bool* follow) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	*path = "/proc/self/fd/" + std::to_string(fFolder->Descriptor()) + "/" + fName;
	*follow = false;
	return B_OK;
}
