// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// A file's own icon, and the one that it is shown with.
#include <NodeInfo.h>

#include <sys/stat.h>
#include <vector>

#include <Bitmap.h>
#include <Node.h>
#include <TypeConstants.h>

#include "platform/storage/NodeInfoAttributes.h"
#include "platform/storage/TypeIcons.h"


static const char*
icon_attribute(icon_size size)
{
	return size == B_LARGE_ICON ? hosted::kLargeIconAttribute : hosted::kMiniIconAttribute;
}


static type_code
icon_type(icon_size size)
{
	return size == B_LARGE_ICON ? type_code(B_LARGE_ICON_TYPE) : type_code(B_MINI_ICON_TYPE);
}


// What a node without a type is shown as.
static const char*
type_by_kind(const BNode& node)
{
	if (node.IsDirectory())
		return "application/x-vnd.Be-directory";
	if (node.IsSymLink())
		return "application/x-vnd.Be-symlink";
	mode_t permissions = 0;
	if (node.GetPermissions(&permissions) == B_OK && (permissions & S_IXUSR) != 0)
		return B_APP_MIME_TYPE;
	return B_FILE_MIME_TYPE;
}


status_t
BNodeInfo::GetIcon(BBitmap* icon, icon_size size) const
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (hosted::CheckIconBitmap(icon, size) != B_OK)
		return B_BAD_VALUE;

	attr_info info;
	const status_t status = fNode->GetAttrInfo(icon_attribute(size), &info);
	if (status != B_OK)
		return status;
	if (info.type != icon_type(size))
		return B_BAD_TYPE;
	std::vector<uint8> bits(size * size);
	if (info.size != off_t(bits.size()))
		return B_BAD_DATA;
	const ssize_t count
		= fNode->ReadAttr(icon_attribute(size), info.type, 0, bits.data(), bits.size());
	if (count != ssize_t(bits.size()))
		return count < 0 ? static_cast<status_t>(count) : B_FILE_ERROR;
	return icon->ImportBits(bits.data(), static_cast<int32>(bits.size()), size, 0, B_CMAP8);
}


status_t
BNodeInfo::SetIcon(const BBitmap* icon, icon_size size)
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (size != B_LARGE_ICON && size != B_MINI_ICON)
		return B_BAD_VALUE;
	if (icon == nullptr)
		return fNode->RemoveAttr(icon_attribute(size));
	if (hosted::CheckIconBitmap(icon, size) != B_OK || icon->ColorSpace() != B_CMAP8)
		return B_BAD_VALUE;
	const ssize_t written = fNode->WriteAttr(icon_attribute(size), icon_type(size), 0, icon->Bits(),
		icon->BitsLength());
	return written < 0 ? static_cast<status_t>(written) : B_OK;
}


status_t
BNodeInfo::GetTrackerIcon(BBitmap* icon, icon_size size) const
{
	if (fNode == nullptr)
		return B_NO_INIT;
	if (hosted::CheckIconBitmap(icon, size) != B_OK)
		return B_BAD_VALUE;
	if (GetIcon(icon, size) == B_OK)
		return B_OK;

	char type[B_MIME_TYPE_LENGTH];
	if (GetType(type) == B_OK)
		return hosted::PutIconOfType(type, size, icon);
	return hosted::PutIconOfType(type_by_kind(*fNode), size, icon);
}


status_t
BNodeInfo::GetTrackerIcon(const entry_ref* ref, BBitmap* icon, icon_size size)
{
	if (ref == nullptr || hosted::CheckIconBitmap(icon, size) != B_OK)
		return B_BAD_VALUE;
	BNode node(ref);
	if (node.InitCheck() != B_OK)
		return node.InitCheck();
	return BNodeInfo(&node).GetTrackerIcon(icon, size);
}
