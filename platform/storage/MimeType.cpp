// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The names of types.
#include <MimeType.h>

#include <string.h>
#include <strings.h>

#include <Entry.h>
#include <Path.h>

#include "platform/desktop/FileTypes.h"

const char* B_APP_MIME_TYPE = "application/x-vnd.Be-elfexecutable";
const char* B_FILE_MIME_TYPE = "application/octet-stream";


BMimeType::BMimeType() = default;


BMimeType::BMimeType(const char* type)
{
	SetTo(type);
}


BMimeType::~BMimeType() = default;


status_t
BMimeType::SetTo(const char* type)
{
	Unset();
	if (type == nullptr)
		return fStatus;
	if (!IsValid(type)) {
		fStatus = B_BAD_VALUE;
		return fStatus;
	}
	fType = type;
	fStatus = B_OK;
	return fStatus;
}


void
BMimeType::Unset()
{
	fType.clear();
	fStatus = B_NO_INIT;
}


status_t
BMimeType::InitCheck() const
{
	return fStatus;
}


const char*
BMimeType::Type() const
{
	return fStatus == B_OK ? fType.c_str() : nullptr;
}


bool
BMimeType::IsValid() const
{
	return fStatus == B_OK;
}


bool
BMimeType::IsValid(const char* type)
{
	if (type == nullptr)
		return false;
	const size_t length = strlen(type);
	if (length == 0 || length >= B_MIME_TYPE_LENGTH)
		return false;

	size_t slashes = 0;
	for (size_t i = 0; i < length; i++) {
		const unsigned char byte = static_cast<unsigned char>(type[i]);
		if (byte <= ' ' || byte > '~' || strchr("<>@,;:\"()[]?=\\", byte) != nullptr)
			return false;
		if (byte == '/') {
			if (i == 0 || i == length - 1)
				return false;
			slashes++;
		}
	}
	return slashes <= 1;
}


bool
BMimeType::IsSupertypeOnly() const
{
	return fStatus == B_OK && fType.find('/') == std::string::npos;
}


status_t
BMimeType::GetSupertype(BMimeType* supertype) const
{
	if (supertype == nullptr)
		return B_BAD_VALUE;
	// The two may be the same object.
	const std::string type = fType;
	const status_t status = fStatus;
	supertype->Unset();
	if (status != B_OK)
		return status;
	const size_t slash = type.find('/');
	if (slash == std::string::npos)
		return B_BAD_VALUE;
	return supertype->SetTo(type.substr(0, slash).c_str());
}


bool
BMimeType::Contains(const BMimeType* type) const
{
	if (type == nullptr || fStatus != B_OK || type->fStatus != B_OK)
		return false;
	if (*this == *type)
		return true;
	BMimeType supertype;
	return type->GetSupertype(&supertype) == B_OK && *this == supertype;
}


bool
BMimeType::operator==(const BMimeType& type) const
{
	if (fStatus != B_OK || type.fStatus != B_OK)
		return fStatus != B_OK && type.fStatus != B_OK;
	return strcasecmp(fType.c_str(), type.fType.c_str()) == 0;
}


bool
BMimeType::operator==(const char* type) const
{
	return *this == BMimeType(type);
}


status_t
BMimeType::GuessMimeType(const entry_ref* file, BMimeType* result)
{
	if (file == nullptr || result == nullptr)
		return B_BAD_VALUE;
	const BPath path(file);
	if (path.InitCheck() != B_OK)
		return path.InitCheck();
	const std::string type = hosted::FileType(path.Path());
	return type.empty() ? B_ENTRY_NOT_FOUND : result->SetTo(type.c_str());
}


status_t
BMimeType::GuessMimeType(const char* filename, BMimeType* result)
{
	if (filename == nullptr || result == nullptr)
		return B_BAD_VALUE;
	const std::string name = filename;
	const std::string leaf = name.substr(name.rfind('/') + 1);
	return result->SetTo(hosted::FileTypeOfName(leaf).c_str());
}
