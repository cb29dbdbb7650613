// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BNode: its attributes.
#include <Node.h>

#include <String.h>
#include <TypeConstants.h>
#include <stdio.h>

#include "platform/storage/Attributes.h"


ssize_t
BNode::WriteAttr(const char* name, type_code type, off_t offset, const void* buffer, size_t length)
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	return hosted::WriteAttribute(fFd, name, type, offset, buffer, length);
}


ssize_t
BNode::ReadAttr(const char* name, type_code /*type*/, off_t offset, void* buffer,
	size_t length) const
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	return hosted::ReadAttribute(fFd, name, offset, buffer, length);
}


status_t
BNode::RemoveAttr(const char* name)
{
	return InitCheck() == B_OK ? hosted::RemoveAttribute(fFd, name) : B_FILE_ERROR;
}


// Haiku's own file system has no such thing either.
status_t
BNode::RenameAttr(const char* oldName, const char* newName)
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	return oldName != nullptr && newName != nullptr ? B_NOT_SUPPORTED : B_BAD_VALUE;
}


status_t
BNode::GetAttrInfo(const char* name, struct attr_info* info) const
{
	return InitCheck() == B_OK ? hosted::StatAttribute(fFd, name, info) : B_FILE_ERROR;
}


status_t
BNode::GetNextAttrName(char* buffer)
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	if (buffer == nullptr)
		return B_BAD_VALUE;
	if (!fAttributesListed) {
		const status_t status = hosted::ListAttributes(fFd, &fAttributeNames);
		if (status != B_OK)
			return status;
		fAttributesListed = true;
		fNextAttribute = 0;
	}
	if (fNextAttribute >= fAttributeNames.size())
		return B_ENTRY_NOT_FOUND;
	const std::string& name = fAttributeNames[fNextAttribute++];
	buffer[name.copy(buffer, B_ATTR_NAME_LENGTH - 1)] = '\0';
	return B_OK;
}


status_t
BNode::RewindAttrs()
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	fAttributesListed = false;
	return B_OK;
}


status_t
BNode::WriteAttrString(const char* name, const BString* data)
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	if (name == nullptr || data == nullptr)
		return B_BAD_VALUE;
	const size_t length = static_cast<size_t>(data->Length()) + 1;
	const ssize_t written = WriteAttr(name, B_STRING_TYPE, 0, data->String(), length);
	return written >= 0 ? B_OK : static_cast<status_t>(written);
}


status_t
BNode::ReadAttrString(const char* name, BString* result) const
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	if (name == nullptr || result == nullptr)
		return B_BAD_VALUE;
	type_code type;
	std::string value;
	const status_t status = hosted::GetAttribute(fFd, name, &type, &value);
	if (status == B_OK)
		result->SetTo(value.c_str());
	return status;
}
