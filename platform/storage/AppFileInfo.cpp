// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <AppFileInfo.h>

#include <string.h>

#include <TypeConstants.h>

#include "platform/storage/NodeInfoAttributes.h"

static_assert(sizeof(version_info) == 340, "records follow each other in the attribute");


static const uint32 kVersionType = 'APPV';


BAppFileInfo::BAppFileInfo() = default;


BAppFileInfo::BAppFileInfo(BFile* file)
{
	SetTo(file);
}


BAppFileInfo::~BAppFileInfo() = default;


status_t
BAppFileInfo::SetTo(BFile* file)
{
	const status_t status = BNodeInfo::SetTo(file);
	fFile = status == B_OK ? file : nullptr;
	return status;
}


status_t
BAppFileInfo::GetSignature(char* signature) const
{
	if (fFile == nullptr)
		return B_NO_INIT;
	if (signature == nullptr)
		return B_BAD_VALUE;

	attr_info info;
	const status_t status = fFile->GetAttrInfo(hosted::kSignatureAttribute, &info);
	if (status != B_OK)
		return status;
	if (info.type != uint32(B_MIME_STRING_TYPE))
		return B_BAD_TYPE;
	if (info.size > B_MIME_TYPE_LENGTH)
		return B_BAD_DATA;
	const ssize_t count
		= fFile->ReadAttr(hosted::kSignatureAttribute, info.type, 0, signature, B_MIME_TYPE_LENGTH);
	if (count < 0)
		return static_cast<status_t>(count);
	signature[count < B_MIME_TYPE_LENGTH ? count : B_MIME_TYPE_LENGTH - 1] = '\0';
	return B_OK;
}


// The attribute has the program's record, and after it the one of the system that it is made for.
status_t
BAppFileInfo::GetVersionInfo(version_info* info, version_kind kind) const
{
	if (fFile == nullptr)
		return B_NO_INIT;
	if (info == nullptr || (kind != B_APP_VERSION_KIND && kind != B_SYSTEM_VERSION_KIND))
		return B_BAD_VALUE;

	attr_info attribute;
	const status_t status = fFile->GetAttrInfo(hosted::kVersionAttribute, &attribute);
	if (status != B_OK)
		return status;
	if (attribute.type != kVersionType)
		return B_BAD_TYPE;
	version_info record;
	const off_t offset = kind == B_APP_VERSION_KIND ? 0 : sizeof(record);
	if (attribute.size < offset + off_t(sizeof(record)))
		return attribute.size > 0 && offset > 0 ? B_ENTRY_NOT_FOUND : B_BAD_DATA;
	const ssize_t count = fFile->ReadAttr(hosted::kVersionAttribute, attribute.type, offset,
		&record, sizeof(record));
	if (count != ssize_t(sizeof(record)))
		return count < 0 ? static_cast<status_t>(count) : B_BAD_DATA;

	record.short_info[sizeof(record.short_info) - 1] = '\0';
	record.long_info[sizeof(record.long_info) - 1] = '\0';
	*info = record;
	return B_OK;
}
