// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/FieldList.h"

#include <string.h>
#include <utility>

#include <Errors.h>
#include <TypeConstants.h>


namespace hosted {

namespace {

// What one message may hold in one field; sizes and offsets then fit 32 bits.
constexpr size_t kMaxFieldSize = size_t(1) << 30;
constexpr size_t kMaxNameLength = 0xffff;
// With more fields than this the names are looked up through the index.
constexpr size_t kMaxUnindexed = 24;

uint32
padded(uint32 size)
{
	return (size + 7) & ~uint32(7);
}

} // namespace


Field::Field(const char* name, size_t length, type_code type, bool fixedSize, uint32 valueSize)
	:
	fName(name, length),
	fHash(Hash(name, length)),
	fType(type),
	fFixedSize(fixedSize),
	fValueSize(fixedSize ? valueSize : 0)
{
}


uint32
Field::Hash(const char* name, size_t length)
{
	// FNV-1a
	uint32 hash = 2166136261u;
	for (size_t i = 0; i < length; i++)
		hash = (hash ^ static_cast<unsigned char>(name[i])) * 16777619u;
	return hash;
}


void
Field::SetName(const char* name)
{
	fName = name;
	fHash = Hash(fName.data(), fName.size());
}


bool
Field::IsNamed(const char* name, uint32 hash) const
{
	return fHash == hash && fName == name;
}


int32
Field::CountValues() const
{
	const size_t count = fFixedSize ? fData.size() / fValueSize : fPlaces.size();
	return static_cast<int32>(count);
}


const char*
Field::ValueAt(int32 index, uint32* size) const
{
	if (fFixedSize) {
		*size = fValueSize;
		return fData.data() + static_cast<size_t>(index) * fValueSize;
	}
	const Place& place = fPlaces[static_cast<size_t>(index)];
	*size = place.size;
	return fData.data() + place.offset;
}


status_t
Field::Add(const void* value, uint32 size)
{
	if (fFixedSize && size != fValueSize)
		return B_BAD_VALUE;
	const size_t offset = fData.size();
	const size_t end = offset + (fFixedSize ? size : padded(size));
	if (end > kMaxFieldSize)
		return B_NO_MEMORY;

	// The value may be one of this field's own: the old block lives until it has been copied.
	std::vector<char> old;
	if (fData.capacity() < end) {
		old.swap(fData);
		fData.reserve(old.empty() ? end : end * 2);
		fData.assign(old.begin(), old.end());
	}
	fData.resize(end);
	memcpy(fData.data() + offset, value, size);

	if (!fFixedSize)
		fPlaces.push_back({static_cast<uint32>(offset), size});
	return B_OK;
}


status_t
Field::Replace(int32 index, const void* value, uint32 size)
{
	uint32 oldSize;
	char* oldValue = const_cast<char*>(ValueAt(index, &oldSize));
	if (size == oldSize) {
		memmove(oldValue, value, size);
		return B_OK;
	}
	if (fFixedSize)
		return B_BAD_VALUE;

	Field rebuilt(fName.data(), fName.size(), fType, false, 0);
	for (int32 i = 0; i < CountValues(); i++) {
		uint32 keptSize;
		const char* kept = ValueAt(i, &keptSize);
		const status_t status = i == index ? rebuilt.Add(value, size) : rebuilt.Add(kept, keptSize);
		if (status != B_OK)
			return status;
	}
	fData.swap(rebuilt.fData);
	fPlaces.swap(rebuilt.fPlaces);
	return B_OK;
}


void
Field::Remove(int32 index)
{
	uint32 size;
	const size_t offset = static_cast<size_t>(ValueAt(index, &size) - fData.data());
	const uint32 taken = fFixedSize ? size : padded(size);
	const auto start = fData.begin() + static_cast<ptrdiff_t>(offset);
	fData.erase(start, start + taken);
	if (fFixedSize)
		return;

	fPlaces.erase(fPlaces.begin() + index);
	for (size_t i = static_cast<size_t>(index); i < fPlaces.size(); i++)
		fPlaces[i].offset -= taken;
}


Field*
FieldList::Find(const char* name)
{
	if (name == nullptr)
		return nullptr;
	const uint32 hash = Field::Hash(name, strlen(name));
	if (!fIndex.empty()) {
		const auto range = fIndex.equal_range(hash);
		for (auto found = range.first; found != range.second; ++found) {
			if (fFields[found->second].IsNamed(name, hash))
				return &fFields[found->second];
		}
		return nullptr;
	}
	for (Field& field : fFields) {
		if (field.IsNamed(name, hash))
			return &field;
	}
	return nullptr;
}


const Field*
FieldList::Find(const char* name) const
{
	return const_cast<FieldList*>(this)->Find(name);
}


status_t
FieldList::Find(const char* name, type_code type, const Field** field) const
{
	if (name == nullptr)
		return B_BAD_VALUE;
	*field = Find(name);
	if (*field == nullptr)
		return B_NAME_NOT_FOUND;
	if (type != B_ANY_TYPE && type != (*field)->Type())
		return B_BAD_TYPE;
	return B_OK;
}


status_t
FieldList::Add(const char* name, type_code type, const void* value, ssize_t size, bool fixedSize)
{
	if (name == nullptr || value == nullptr || size <= 0)
		return B_BAD_VALUE;
	const size_t length = strlen(name);
	if (length > kMaxNameLength)
		return B_BAD_VALUE;
	if (static_cast<size_t>(size) > kMaxFieldSize)
		return B_NO_MEMORY;

	const uint32 bytes = static_cast<uint32>(size);
	Field* field = Find(name);
	if (field != nullptr)
		return field->Type() == type ? field->Add(value, bytes) : B_BAD_TYPE;

	Field added(name, length, type, fixedSize, bytes);
	const status_t status = added.Add(value, bytes);
	if (status != B_OK)
		return status;
	fFields.push_back(std::move(added));
	_AddToIndex(fFields.size() - 1);
	return B_OK;
}


status_t
FieldList::Replace(const char* name, type_code type, int32 index, const void* value, ssize_t size)
{
	if (name == nullptr || value == nullptr || size <= 0)
		return B_BAD_VALUE;
	if (static_cast<size_t>(size) > kMaxFieldSize)
		return B_NO_MEMORY;
	Field* field = Find(name);
	if (field == nullptr)
		return B_NAME_NOT_FOUND;
	if (field->Type() != type)
		return B_BAD_TYPE;
	if (index < 0 || index >= field->CountValues())
		return B_BAD_INDEX;
	return field->Replace(index, value, static_cast<uint32>(size));
}


status_t
FieldList::ValueAt(const char* name, type_code type, int32 index, const void** value,
	ssize_t* size) const
{
	const Field* field;
	const status_t status = Find(name, type, &field);
	if (status != B_OK)
		return status;
	if (index < 0 || index >= field->CountValues())
		return B_BAD_INDEX;
	uint32 bytes;
	*value = field->ValueAt(index, &bytes);
	*size = bytes;
	return B_OK;
}


status_t
FieldList::RemoveValue(const char* name, int32 index)
{
	if (name == nullptr)
		return B_BAD_VALUE;
	Field* field = Find(name);
	if (field == nullptr)
		return B_NAME_NOT_FOUND;
	if (index < 0 || index >= field->CountValues())
		return B_BAD_INDEX;
	if (field->CountValues() == 1)
		return RemoveName(name);
	field->Remove(index);
	return B_OK;
}


status_t
FieldList::RemoveName(const char* name)
{
	if (name == nullptr)
		return B_BAD_VALUE;
	Field* field = Find(name);
	if (field == nullptr)
		return B_NAME_NOT_FOUND;
	fFields.erase(fFields.begin() + (field - fFields.data()));
	_RebuildIndex();
	return B_OK;
}


status_t
FieldList::Rename(const char* oldName, const char* newName)
{
	if (oldName == nullptr || newName == nullptr || strlen(newName) > kMaxNameLength)
		return B_BAD_VALUE;
	Field* field = Find(oldName);
	if (field == nullptr)
		return B_NAME_NOT_FOUND;
	// Another field of the new name would be hidden behind this one.
	Field* hidden = Find(newName);
	if (hidden != nullptr && hidden != field)
		return B_BAD_VALUE;
	field->SetName(newName);
	_RebuildIndex();
	return B_OK;
}


void
FieldList::MakeEmpty()
{
	fFields.clear();
	fIndex.clear();
}


void
FieldList::_AddToIndex(size_t place)
{
	if (fFields.size() <= kMaxUnindexed)
		return;
	if (fIndex.empty()) {
		_RebuildIndex();
		return;
	}
	fIndex.emplace(fFields[place].NameHash(), place);
}


void
FieldList::_RebuildIndex()
{
	fIndex.clear();
	if (fFields.size() <= kMaxUnindexed)
		return;
	for (size_t i = 0; i < fFields.size(); i++)
		fIndex.emplace(fFields[i].NameHash(), i);
}

} // namespace hosted
