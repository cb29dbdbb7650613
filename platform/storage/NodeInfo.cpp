// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Type, preferred program and the hint where it is.
#include <NodeInfo.h>

#include <string.h>

#include <Node.h>
#include <Path.h>
#include <TypeConstants.h>
#include <fs_attr.h>

#include "platform/storage/NodeInfoAttributes.h"

using hosted::kHintAttribute;
using hosted::kPreferredAppAttribute;
using hosted::kTypeAttribute;


static status_t
read_text(const BNode& node, const char* name, char* text, size_t room)
{
	attr_info info;
	const status_t status = node.GetAttrInfo(name, &info);
	if (status != B_OK)
		return status;
	if (info.type != uint32(B_MIME_STRING_TYPE))
		return B_BAD_TYPE;
	if (info.size > off_t(room))
		return B_BAD_DATA;
	const ssize_t count = node.ReadAttr(name, B_MIME_STRING_TYPE, 0, text, room);
	if (count < 0)
		return static_cast<status_t>(count);
	text[count < ssize_t(room) ? count : ssize_t(room) - 1] = '\0';
	return B_OK;
}


static status_t
write_text(BNode& node, const char* name, const char* text, size_t room)
{
	if (text == nullptr)
		return node.RemoveAttr(name);
	const size_t size = strlen(text) + 1;
	if (size > room)
		return B_BAD_VALUE;
	const ssize_t written = node.WriteAttr(name, B_MIME_STRING_TYPE, 0, text, size);
	if (written < 0)
		return static_cast<status_t>(written);
	return written == ssize_t(size) ? B_OK : B_FILE_ERROR;
}


BNodeInfo::BNodeInfo() = default;


BNodeInfo::BNodeInfo(BNode* node)
{
	SetTo(node);
}


BNodeInfo::~BNodeInfo() = default;


status_t
BNodeInfo::SetTo(BNode* node)
{
	fNode = nullptr;
	fStatus = B_BAD_VALUE;
	if (node != nullptr && node->InitCheck() == B_OK) {
		fNode = node;
		fStatus = B_OK;
	}
	return fStatus;
}


status_t
BNodeInfo::InitCheck() const
{
	return fStatus;
}


status_t
BNodeInfo::GetType(char* type) const
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (type == nullptr)
		return B_BAD_VALUE;
	return read_text(*fNode, kTypeAttribute, type, B_MIME_TYPE_LENGTH);
}


status_t
BNodeInfo::SetType(const char* type)
{
	if (fNode == nullptr)
		return B_NO_INIT;
	return write_text(*fNode, kTypeAttribute, type, B_MIME_TYPE_LENGTH);
}


status_t
BNodeInfo::GetPreferredApp(char* signature, app_verb verb) const
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (signature == nullptr || verb != B_OPEN)
		return B_BAD_VALUE;
	return read_text(*fNode, kPreferredAppAttribute, signature, B_MIME_TYPE_LENGTH);
}


status_t
BNodeInfo::SetPreferredApp(const char* signature, app_verb verb)
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (verb != B_OPEN)
		return B_BAD_VALUE;
	return write_text(*fNode, kPreferredAppAttribute, signature, B_MIME_TYPE_LENGTH);
}


status_t
BNodeInfo::GetAppHint(entry_ref* ref) const
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (ref == nullptr)
		return B_BAD_VALUE;
	char path[B_PATH_NAME_LENGTH];
	const status_t status = read_text(*fNode, kHintAttribute, path, sizeof(path));
	return status == B_OK ? get_ref_for_path(path, ref) : status;
}


status_t
BNodeInfo::SetAppHint(const entry_ref* ref)
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (ref == nullptr)
		return fNode->RemoveAttr(kHintAttribute);
	const BPath path(ref);
	if (path.InitCheck() != B_OK)
		return path.InitCheck();
	return write_text(*fNode, kHintAttribute, path.Path(), B_PATH_NAME_LENGTH);
}
