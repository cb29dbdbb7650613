// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/QueryWalk.h"

#include <TypeConstants.h>

#include "platform/storage/Attributes.h"


namespace hosted {

namespace {

constexpr size_t kMaxDepth = 64;
constexpr size_t kMaxVisited = 250000;


template <typename Value>
std::string
bytes_of(Value value)
{
	return std::string(reinterpret_cast<const char*>(&value), sizeof(value));
}


// Gives access to the descriptor, which attributes are read by.
class OpenNode : public BNode {
public:
	using BNode::BNode;
	int Descriptor() const { return _Descriptor(); }
};

} // namespace


QueryWalk::QueryWalk(const std::string& root)
{
	auto folder = std::make_unique<BDirectory>(root.c_str());
	struct stat status;
	if (folder->GetStat(&status) == B_OK) {
		fDevice = status.st_dev;
		fFolders.push_back(std::move(folder));
	}
}


status_t
QueryWalk::Next(const Predicate& predicate, entry_ref* ref)
{
	while (!fFolders.empty() && fVisited < kMaxVisited) {
		BDirectory& folder = *fFolders.back();
		entry_ref found;
		if (folder.GetNextRef(&found) != B_OK) {
			fFolders.pop_back();
			continue;
		}
		fVisited++;
		struct stat status;
		if (folder.GetStatFor(found.name, &status) != B_OK)
			continue;
		if (S_ISDIR(status.st_mode))
			_Enter(found, status);
		if (_Matches(predicate, found)) {
			*ref = found;
			return B_OK;
		}
	}
	return B_ENTRY_NOT_FOUND;
}


void
QueryWalk::_Enter(const entry_ref& ref, const struct stat& status)
{
	if (ref.name[0] == '.' || status.st_dev != fDevice || fFolders.size() >= kMaxDepth)
		return;
	auto folder = std::make_unique<BDirectory>(fFolders.back().get(), ref.name);
	if (folder->InitCheck() == B_OK)
		fFolders.push_back(std::move(folder));
}


bool
QueryWalk::_Matches(const Predicate& predicate, const entry_ref& ref)
{
	// Many conditions are decided by the name, which needs no open file.
	std::unique_ptr<OpenNode> node;
	const auto read = [&](const std::string& attribute, type_code* type, std::string* value) {
		if (attribute == "name") {
			*type = B_STRING_TYPE;
			*value = ref.name;
			return true;
		}
		if (node == nullptr)
			node = std::make_unique<OpenNode>(&ref);
		struct stat status;
		if (node->GetStat(&status) != B_OK)
			return false;
		if (attribute == "size" || attribute == "last_modified") {
			*type = B_INT64_TYPE;
			*value = bytes_of<int64>(attribute == "size" ? status.st_size : status.st_mtime);
			return true;
		}
		return GetAttribute(node->Descriptor(), attribute.c_str(), type, value) == B_OK;
	};
	return predicate.Matches(read);
}

} // namespace hosted
