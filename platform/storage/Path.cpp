// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Path.h>

#include <Directory.h>
#include <TypeConstants.h>
#include <stdlib.h>
#include <string.h>
#include <string>

#include "platform/storage/Folder.h"


namespace {

// Whether a path has to be brought into its absolute, shortest form.
bool
is_unclean(const std::string& path)
{
	if (path.empty() || path[0] != '/')
		return true;
	if (path == "/")
		return false;
	size_t begin = 1;
	while (true) {
		const size_t end = path.find('/', begin);
		const std::string part = path.substr(begin, end - begin);
		if (part.empty() || part == "." || part == "..")
			return true;
		if (end == std::string::npos)
			return false;
		begin = end + 1;
	}
}

} // namespace


BPath::BPath()
	:
	fCStatus(B_NO_INIT)
{
}


BPath::BPath(const BPath& path)
	:
	BPath()
{
	*this = path;
}


BPath::BPath(const entry_ref* ref)
	:
	BPath()
{
	SetTo(ref);
}


BPath::BPath(const BEntry* entry)
	:
	BPath()
{
	SetTo(entry);
}


BPath::BPath(const char* directory, const char* leaf, bool normalize)
	:
	BPath()
{
	SetTo(directory, leaf, normalize);
}


BPath::BPath(const BDirectory* directory, const char* leaf, bool normalize)
	:
	BPath()
{
	SetTo(directory, leaf, normalize);
}


BPath::~BPath()
{
	free(fName);
}


status_t
BPath::InitCheck() const
{
	return fCStatus;
}


status_t
BPath::_Fail(status_t status)
{
	Unset();
	return fCStatus = status;
}


status_t
BPath::SetTo(const entry_ref* ref)
{
	if (ref == nullptr)
		return _Fail(B_BAD_VALUE);
	const BEntry entry(ref);
	return SetTo(&entry);
}


status_t
BPath::SetTo(const BEntry* entry)
{
	if (entry == nullptr)
		return _Fail(B_BAD_VALUE);
	if (entry->InitCheck() != B_OK)
		return _Fail(entry->InitCheck());
	std::string folder;
	const status_t status = entry->fFolder->GetPath(&folder);
	if (status != B_OK)
		return _Fail(status);
	return entry->fName == "." ? SetTo("/") : SetTo(folder.c_str(), entry->Name());
}


status_t
BPath::SetTo(const char* path, const char* leaf, bool normalize)
{
	if (path == nullptr || path[0] == '\0' || (leaf != nullptr && leaf[0] == '/'))
		return _Fail(B_BAD_VALUE);
	// The arguments may be parts of the old path.
	std::string whole = path;
	if (leaf != nullptr && leaf[0] != '\0') {
		if (whole.back() != '/')
			whole += '/';
		whole += leaf;
	}
	if (whole.size() >= B_PATH_NAME_LENGTH)
		return _Fail(B_NAME_TOO_LONG);
	if (normalize || is_unclean(whole)) {
		const BEntry entry(whole.c_str());
		return SetTo(&entry);
	}

	char* name = strdup(whole.c_str());
	if (name == nullptr)
		return _Fail(B_NO_MEMORY);
	free(fName);
	fName = name;
	return fCStatus = B_OK;
}


status_t
BPath::SetTo(const BDirectory* directory, const char* leaf, bool normalize)
{
	BEntry entry;
	if (directory == nullptr || directory->InitCheck() != B_OK)
		return _Fail(B_BAD_VALUE);
	status_t status = directory->GetEntry(&entry);
	BPath folder;
	if (status == B_OK)
		status = folder.SetTo(&entry);
	return status == B_OK ? SetTo(folder.Path(), leaf, normalize) : _Fail(status);
}


void
BPath::Unset()
{
	free(fName);
	fName = nullptr;
	fCStatus = B_NO_INIT;
}


status_t
BPath::Append(const char* path, bool normalize)
{
	return fCStatus == B_OK ? SetTo(fName, path, normalize) : _Fail(B_BAD_VALUE);
}


const char*
BPath::Path() const
{
	return fName;
}


const char*
BPath::Leaf() const
{
	return fName != nullptr ? strrchr(fName, '/') + 1 : nullptr;
}


status_t
BPath::GetParent(BPath* path) const
{
	if (path == nullptr)
		return B_BAD_VALUE;
	if (fCStatus != B_OK)
		return B_NO_INIT;
	const std::string whole = fName;
	if (whole == "/")
		return B_ENTRY_NOT_FOUND;
	const size_t slash = whole.rfind('/');
	return path->SetTo(slash == 0 ? "/" : whole.substr(0, slash).c_str());
}


bool
BPath::IsAbsolute() const
{
	return fName != nullptr && fName[0] == '/';
}


bool
BPath::operator==(const BPath& item) const
{
	return *this == item.Path();
}


bool
BPath::operator==(const char* path) const
{
	if (fName == nullptr || path == nullptr)
		return fName == nullptr && path == nullptr;
	return strcmp(fName, path) == 0;
}


bool
BPath::operator!=(const BPath& item) const
{
	return !(*this == item);
}


bool
BPath::operator!=(const char* path) const
{
	return !(*this == path);
}


BPath&
BPath::operator=(const BPath& item)
{
	if (this != &item)
		*this = item.Path();
	return *this;
}


BPath&
BPath::operator=(const char* path)
{
	if (path != nullptr)
		SetTo(path);
	else
		Unset();
	return *this;
}


bool
BPath::IsFixedSize() const
{
	return false;
}


type_code
BPath::TypeCode() const
{
	return B_REF_TYPE;
}


// Flat, a path is the reference to its entry: the two numbers, then the name with its zero.
ssize_t
BPath::FlattenedSize() const
{
	const char* leaf = Leaf();
	// The topmost directory is called by another name there.
	const size_t length = leaf != nullptr && leaf[0] == '\0' ? 1 : 0;
	return static_cast<ssize_t>(sizeof(dev_t) + sizeof(ino_t) + length)
		+ (leaf != nullptr ? static_cast<ssize_t>(strlen(leaf)) + 1 : 0);
}


status_t
BPath::Flatten(void* buffer, ssize_t size) const
{
	if (buffer == nullptr)
		return B_BAD_VALUE;
	if (size < FlattenedSize())
		return B_BAD_VALUE;
	entry_ref ref;
	if (fName != nullptr) {
		const status_t status = get_ref_for_path(fName, &ref);
		if (status != B_OK)
			return status;
	}
	char* target = static_cast<char*>(buffer);
	memcpy(target, &ref.device, sizeof(dev_t));
	memcpy(target + sizeof(dev_t), &ref.directory, sizeof(ino_t));
	if (ref.name != nullptr)
		strcpy(target + sizeof(dev_t) + sizeof(ino_t), ref.name);
	return B_OK;
}


bool
BPath::AllowsTypeCode(type_code code) const
{
	return code == B_REF_TYPE;
}


status_t
BPath::Unflatten(type_code code, const void* buffer, ssize_t size)
{
	constexpr size_t kNumbers = sizeof(dev_t) + sizeof(ino_t);
	if (code != B_REF_TYPE || buffer == nullptr || size < static_cast<ssize_t>(kNumbers))
		return _Fail(B_BAD_VALUE);
	const char* source = static_cast<const char*>(buffer);
	const size_t length = static_cast<size_t>(size) - kNumbers;
	if (length == 0) {
		Unset();
		return B_OK;
	}
	if (strnlen(source + kNumbers, length) == length)
		return _Fail(B_BAD_VALUE);
	entry_ref ref;
	memcpy(&ref.device, source, sizeof(dev_t));
	memcpy(&ref.directory, source + sizeof(dev_t), sizeof(ino_t));
	ref.set_name(source + kNumbers);
	return SetTo(&ref);
}
