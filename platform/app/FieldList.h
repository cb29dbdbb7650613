// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FIELD_LIST_H
#define FIELD_LIST_H

#include <stddef.h>
#include <string>
#include <unordered_map>
#include <vector>

#include <SupportDefs.h>


namespace hosted {

/*!	One named field of a message: values of one type, one after the other in one block.

	The block starts where any type may stand. Values of one fixed size follow each other without a
	gap; of the others each starts at a multiple of eight, and their places are kept beside.
*/
class Field {
public:
	Field(const char* name, size_t length, type_code type, bool fixedSize, uint32 valueSize);

	const std::string& Name() const { return fName; }
	uint32 NameHash() const { return fHash; }
	void SetName(const char* name);
	bool IsNamed(const char* name, uint32 hash) const;

	type_code Type() const { return fType; }
	bool IsFixedSize() const { return fFixedSize; }
	uint32 ValueSize() const { return fValueSize; }
	int32 CountValues() const;
	// The index must be in range.
	const char* ValueAt(int32 index, uint32* size) const;

	status_t Add(const void* value, uint32 size);
	status_t Replace(int32 index, const void* value, uint32 size);
	void Remove(int32 index);

	static uint32 Hash(const char* name, size_t length);

private:
	struct Place {
		uint32 offset;
		uint32 size;
	};

	std::string fName;
	uint32 fHash;
	type_code fType;
	bool fFixedSize;
	// Of fields of fixed size only.
	uint32 fValueSize;
	std::vector<char> fData;
	std::vector<Place> fPlaces;
};


// The fields of a message, in the order in which they were added.
class FieldList {
public:
	Field* Find(const char* name);
	const Field* Find(const char* name) const;
	// Also checks the type, where B_ANY_TYPE fits all.
	status_t Find(const char* name, type_code type, const Field** field) const;

	status_t Add(const char* name, type_code type, const void* value, ssize_t size, bool fixedSize);
	status_t Replace(const char* name, type_code type, int32 index, const void* value,
		ssize_t size);
	status_t ValueAt(const char* name, type_code type, int32 index, const void** value,
		ssize_t* size) const;
	status_t RemoveValue(const char* name, int32 index);
	status_t RemoveName(const char* name);
	status_t Rename(const char* oldName, const char* newName);
	void MakeEmpty();

	const std::vector<Field>& Fields() const { return fFields; }

private:
	void _AddToIndex(size_t place);
	void _RebuildIndex();

private:
	std::vector<Field> fFields;
	// From the hash of a name to the field's place; empty as long as there are few fields.
	std::unordered_multimap<uint32, size_t> fIndex;
};

} // namespace hosted

#endif // FIELD_LIST_H
