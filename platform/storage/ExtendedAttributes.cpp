// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/ExtendedAttributes.h"

#include <atomic>
#include <errno.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/xattr.h>


namespace hosted {

namespace {

constexpr const char kPrefix[] = "user.haiku.";
constexpr size_t kPrefixLength = sizeof(kPrefix) - 1;
// The system's own limit, which the prefix counts for.
constexpr size_t kMaxName = 255;

std::atomic<int> sRefusal{0};

} // namespace


void
ExtendedAttributes::SetRefusal(int error)
{
	sRefusal = error;
}


std::string
ExtendedAttributes::EncodeName(const char* name)
{
	std::string encoded = kPrefix;
	for (; *name != '\0'; name++) {
		if (*name == '/')
			encoded += "%\\";
		else if (*name == '%')
			encoded += "%%";
		else
			encoded += *name;
	}
	return encoded;
}


bool
ExtendedAttributes::DecodeName(const std::string& encoded, std::string* name)
{
	if (encoded.compare(0, kPrefixLength, kPrefix) != 0 || encoded.size() == kPrefixLength)
		return false;
	name->clear();
	for (size_t index = kPrefixLength; index < encoded.size(); index++) {
		char c = encoded[index];
		if (c == '%' && index + 1 < encoded.size()) {
			index++;
			c = encoded[index] == '\\' ? '/' : encoded[index];
		}
		*name += c;
	}
	return true;
}


int
ExtendedAttributes::Read(int fd, const char* name, type_code* type, std::string* value)
{
	if (sRefusal != 0)
		return sRefusal;
	const std::string encoded = EncodeName(name);
	// Most values are short.
	char shortValue[256];
	ssize_t size = fgetxattr(fd, encoded.c_str(), shortValue, sizeof(shortValue));
	std::string longValue;
	const char* data = shortValue;
	if (size < 0 && errno == ERANGE && encoded.size() <= kMaxName) {
		longValue.resize(sizeof(type_code) + kMaxAttributeSize);
		size = fgetxattr(fd, encoded.c_str(), longValue.data(), longValue.size());
		data = longValue.data();
		// Somebody else's, larger than any of ours.
		if (size < 0 && errno == ERANGE)
			return EFBIG;
	}
	if (size < 0)
		return errno;
	if (size < static_cast<ssize_t>(sizeof(type_code)))
		return EBADMSG;
	memcpy(type, data, sizeof(type_code));
	value->assign(data + sizeof(type_code), static_cast<size_t>(size) - sizeof(type_code));
	return 0;
}


int
ExtendedAttributes::Write(int fd, const char* name, type_code type, const std::string& value)
{
	if (sRefusal != 0)
		return sRefusal;
	std::string data(reinterpret_cast<const char*>(&type), sizeof(type));
	data += value;
	return fsetxattr(fd, EncodeName(name).c_str(), data.data(), data.size(), 0) == 0 ? 0 : errno;
}


int
ExtendedAttributes::Remove(int fd, const char* name)
{
	if (sRefusal != 0)
		return sRefusal;
	return fremovexattr(fd, EncodeName(name).c_str()) == 0 ? 0 : errno;
}


int
ExtendedAttributes::List(int fd, std::vector<std::string>* names)
{
	names->clear();
	if (sRefusal != 0)
		return sRefusal;
	// The list may grow between asking for its size and reading it.
	std::string list;
	ssize_t size;
	do {
		size = flistxattr(fd, nullptr, 0);
		if (size <= 0)
			return size == 0 ? 0 : errno;
		list.resize(static_cast<size_t>(size));
		size = flistxattr(fd, list.data(), list.size());
	} while (size < 0 && errno == ERANGE);
	if (size < 0)
		return errno;

	list.resize(static_cast<size_t>(size));
	for (size_t begin = 0; begin < list.size(); begin += strlen(list.c_str() + begin) + 1) {
		std::string name;
		if (DecodeName(list.c_str() + begin, &name))
			names->push_back(name);
	}
	return 0;
}


bool
ExtendedAttributes::IsRefusal(int fd, int error)
{
	switch (error) {
		case EOPNOTSUPP:
		case ENOSYS:
		case ENOSPC:
		case EDQUOT:
		case E2BIG:
		case ERANGE:
			return true;
		case EPERM:
		case EBADF:
			break;
		default:
			return false;
	}
	// Links and devices cannot have any, nor can folders in which everybody may write. A file for
	// which that is not allowed is protected.
	struct stat status;
	return fstat(fd, &status) == 0 && !S_ISREG(status.st_mode);
}

} // namespace hosted
