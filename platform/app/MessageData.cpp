// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The methods of messages for plain bytes and texts.
#include <Message.h>

#include <string.h>

#include <String.h>
#include <StringList.h>

#include "platform/app/Envelope.h"

using hosted::FieldList;


namespace {

// Null if there is none, or one without an end.
status_t
find_text(const FieldList& fields, const char* name, int32 index, const char** value)
{
	*value = nullptr;
	const void* data;
	ssize_t size;
	const status_t status = fields.ValueAt(name, B_STRING_TYPE, index, &data, &size);
	if (status != B_OK)
		return status;
	const char* text = static_cast<const char*>(data);
	if (text[size - 1] != '\0')
		return B_BAD_VALUE;
	*value = text;
	return B_OK;
}


ssize_t
stored_size(const char* text)
{
	return text != nullptr ? static_cast<ssize_t>(strlen(text)) + 1 : 0;
}

} // namespace


status_t
BMessage::AddData(const char* name, type_code type, const void* data, ssize_t numBytes,
	bool isFixedSize, int32 count)
{
	// Room is made as it is needed.
	(void)count;
	return fFields->Add(name, type, data, numBytes, isFixedSize);
}


status_t
BMessage::FindData(const char* name, type_code type, const void** data, ssize_t* numBytes) const
{
	return FindData(name, type, 0, data, numBytes);
}


status_t
BMessage::FindData(const char* name, type_code type, int32 index, const void** data,
	ssize_t* numBytes) const
{
	if (data == nullptr)
		return B_BAD_VALUE;
	ssize_t size = 0;
	*data = nullptr;
	const status_t status = fFields->ValueAt(name, type, index, data, &size);
	if (numBytes != nullptr)
		*numBytes = size;
	return status;
}


status_t
BMessage::ReplaceData(const char* name, type_code type, const void* data, ssize_t numBytes)
{
	return fFields->Replace(name, type, 0, data, numBytes);
}


status_t
BMessage::ReplaceData(const char* name, type_code type, int32 index, const void* data,
	ssize_t numBytes)
{
	return fFields->Replace(name, type, index, data, numBytes);
}


bool
BMessage::HasData(const char* name, type_code type, int32 n) const
{
	const void* data;
	ssize_t size;
	return fFields->ValueAt(name, type, n, &data, &size) == B_OK;
}


status_t
BMessage::SetData(const char* name, type_code type, const void* data, ssize_t numBytes,
	bool fixedSize, int count)
{
	if (fFields->Find(name) != nullptr)
		return fFields->Replace(name, type, 0, data, numBytes);
	return AddData(name, type, data, numBytes, fixedSize, count);
}


status_t
BMessage::AddString(const char* name, const char* value)
{
	return fFields->Add(name, B_STRING_TYPE, value, stored_size(value), false);
}


status_t
BMessage::AddString(const char* name, const BString& value)
{
	return AddString(name, value.String());
}


status_t
BMessage::AddStrings(const char* name, const BStringList& list)
{
	for (int32 i = 0; i < list.CountStrings(); i++) {
		const status_t status = AddString(name, list.StringAt(i));
		if (status != B_OK)
			return status;
	}
	return B_OK;
}


status_t
BMessage::FindString(const char* name, const char** value) const
{
	return FindString(name, 0, value);
}


status_t
BMessage::FindString(const char* name, int32 index, const char** value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	return find_text(*fFields, name, index, value);
}


status_t
BMessage::FindString(const char* name, BString* value) const
{
	return FindString(name, 0, value);
}


status_t
BMessage::FindString(const char* name, int32 index, BString* value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const char* text;
	const status_t status = find_text(*fFields, name, index, &text);
	value->SetTo(text);
	return status;
}


const char*
BMessage::FindString(const char* name, int32 n) const
{
	const char* text;
	find_text(*fFields, name, n, &text);
	return text;
}


status_t
BMessage::FindStrings(const char* name, BStringList* list) const
{
	if (list == nullptr)
		return B_BAD_VALUE;
	list->MakeEmpty();
	const hosted::Field* field;
	const status_t status = fFields->Find(name, B_STRING_TYPE, &field);
	if (status != B_OK)
		return status;
	for (int32 i = 0; i < field->CountValues(); i++)
		list->Add(GetString(name, i, ""));
	return B_OK;
}


status_t
BMessage::ReplaceString(const char* name, const char* value)
{
	return ReplaceString(name, 0, value);
}


status_t
BMessage::ReplaceString(const char* name, int32 index, const char* value)
{
	return fFields->Replace(name, B_STRING_TYPE, index, value, stored_size(value));
}


status_t
BMessage::ReplaceString(const char* name, const BString& value)
{
	return ReplaceString(name, 0, value.String());
}


status_t
BMessage::ReplaceString(const char* name, int32 index, const BString& value)
{
	return ReplaceString(name, index, value.String());
}


bool
BMessage::HasString(const char* name, int32 n) const
{
	return HasData(name, B_STRING_TYPE, n);
}


const char*
BMessage::GetString(const char* name, const char* defaultValue) const
{
	return GetString(name, 0, defaultValue);
}


const char*
BMessage::GetString(const char* name, int32 index, const char* defaultValue) const
{
	const char* text;
	return find_text(*fFields, name, index, &text) == B_OK ? text : defaultValue;
}


status_t
BMessage::SetString(const char* name, const char* value)
{
	return SetData(name, B_STRING_TYPE, value, stored_size(value), false);
}


status_t
BMessage::SetString(const char* name, const BString& value)
{
	return SetString(name, value.String());
}
