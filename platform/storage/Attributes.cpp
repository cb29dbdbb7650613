// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/Attributes.h"

#include <StorageDefs.h>
#include <algorithm>
#include <mutex>
#include <string.h>

#include "platform/desktop/ComputedAttributes.h"
#include "platform/storage/AttributeDatabase.h"
#include "platform/storage/ExtendedAttributes.h"
#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


namespace hosted {

namespace {

// Changing a part of a value means reading and writing all of it.
std::mutex sPartialWrite;


status_t
check_name(const char* name)
{
	if (name == nullptr || name[0] == '\0')
		return B_BAD_VALUE;
	return strlen(name) <= B_ATTR_NAME_LENGTH ? B_OK : B_NAME_TOO_LONG;
}


status_t
status_of(int error)
{
	switch (error) {
		case EBADMSG:
			return B_BAD_DATA;
		case EFBIG:
			return B_RESULT_NOT_REPRESENTABLE;
		case ENODATA:
			return B_ENTRY_NOT_FOUND;
		default:
			return StatusFromErrno(error);
	}
}


// What is stored for a node.
status_t
get_stored(int fd, const char* name, type_code* type, std::string* value)
{
	const int error = ExtendedAttributes::Read(fd, name, type, value);
	if (error != ENODATA && !ExtendedAttributes::IsRefusal(fd, error))
		return status_of(error);
	if (!AttributeDatabase::Default().Exists())
		return B_ENTRY_NOT_FOUND;
	FileIdentity file;
	const status_t status = IdentifyFile(fd, &file);
	if (status != B_OK)
		return status;
	return AttributeDatabase::Default().Read(file, name, type, value);
}


bool
compute(int fd, const char* name, type_code* type, std::string* value)
{
	struct stat status;
	std::string path;
	return fstat(fd, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode))
		&& PathOfDescriptor(fd, &path) == B_OK && ComputeAttribute(path, name, type, value);
}


// Puts a value where there is a place for it, and takes an older one away from the other place.
status_t
store(int fd, const char* name, type_code type, const std::string& value)
{
	AttributeDatabase& database = AttributeDatabase::Default();
	const int error = ExtendedAttributes::Write(fd, name, type, value);
	if (error != 0 && !ExtendedAttributes::IsRefusal(fd, error))
		return status_of(error);
	if (error == 0 && !database.Exists())
		return B_OK;

	FileIdentity file;
	const status_t found = IdentifyFile(fd, &file);
	if (error == 0) {
		if (found == B_OK)
			database.Remove(file, name);
		return B_OK;
	}
	if (found != B_OK)
		return status_of(error);
	const status_t status = database.Write(file, name, type, value);
	if (status == B_OK)
		ExtendedAttributes::Remove(fd, name);
	// Without a database it is the file system that cannot do it.
	const bool isWritable = status != B_NO_INIT && status != B_PERMISSION_DENIED;
	return isWritable ? status : status_of(error);
}

} // namespace


status_t
GetAttribute(int fd, const char* name, type_code* type, std::string* value)
{
	status_t status = check_name(name);
	if (status == B_OK)
		status = get_stored(fd, name, type, value);
	if (status == B_ENTRY_NOT_FOUND && compute(fd, name, type, value))
		return B_OK;
	return status;
}


ssize_t
ReadAttribute(int fd, const char* name, off_t offset, void* buffer, size_t length)
{
	if (buffer == nullptr || offset < 0)
		return B_BAD_VALUE;
	type_code type;
	std::string value;
	const status_t status = GetAttribute(fd, name, &type, &value);
	if (status != B_OK)
		return status;
	const size_t begin = std::min(static_cast<size_t>(offset), value.size());
	return static_cast<ssize_t>(value.copy(static_cast<char*>(buffer), length, begin));
}


ssize_t
WriteAttribute(int fd, const char* name, type_code type, off_t offset, const void* buffer,
	size_t length)
{
	status_t status = check_name(name);
	if (status != B_OK)
		return status;
	if (buffer == nullptr || offset < 0 || length > kMaxAttributeSize
		|| static_cast<size_t>(offset) > kMaxAttributeSize - length) {
		return B_BAD_VALUE;
	}
	std::unique_lock<std::mutex> guard(sPartialWrite, std::defer_lock);
	std::string value;
	if (offset > 0 || length == 0) {
		guard.lock();
		type_code oldType;
		status = get_stored(fd, name, &oldType, &value);
		if (status != B_OK && status != B_ENTRY_NOT_FOUND)
			return status;
		if (status == B_ENTRY_NOT_FOUND && length == 0)
			return 0;
		value.resize(static_cast<size_t>(offset), '\0');
	}
	value.append(static_cast<const char*>(buffer), length);
	status = store(fd, name, type, value);
	return status == B_OK ? static_cast<ssize_t>(length) : status;
}


status_t
RemoveAttribute(int fd, const char* name)
{
	const status_t status = check_name(name);
	if (status != B_OK)
		return status;
	const int error = ExtendedAttributes::Remove(fd, name);
	if (error != 0 && error != ENODATA && !ExtendedAttributes::IsRefusal(fd, error))
		return status_of(error);
	status_t inDatabase = B_ENTRY_NOT_FOUND;
	FileIdentity file;
	if (AttributeDatabase::Default().Exists() && IdentifyFile(fd, &file) == B_OK)
		inDatabase = AttributeDatabase::Default().Remove(file, name);
	return error == 0 ? B_OK : inDatabase;
}


status_t
StatAttribute(int fd, const char* name, attr_info* info)
{
	if (info == nullptr)
		return B_BAD_VALUE;
	type_code type;
	std::string value;
	const status_t status = GetAttribute(fd, name, &type, &value);
	if (status != B_OK)
		return status;
	info->type = type;
	info->size = static_cast<off_t>(value.size());
	return B_OK;
}


status_t
ListAttributes(int fd, std::vector<std::string>* names)
{
	const int error = ExtendedAttributes::List(fd, names);
	if (error != 0 && !ExtendedAttributes::IsRefusal(fd, error))
		return status_of(error);
	FileIdentity file;
	std::vector<std::string> more;
	if (!AttributeDatabase::Default().Exists() || IdentifyFile(fd, &file) != B_OK)
		return B_OK;
	const status_t status = AttributeDatabase::Default().List(file, &more);
	for (const std::string& name : more) {
		if (std::find(names->begin(), names->end(), name) == names->end())
			names->push_back(name);
	}
	return status;
}

} // namespace hosted
