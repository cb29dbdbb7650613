// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The methods of messages for values of one fixed size each.
#include <Message.h>

#include <string.h>

#include "platform/app/Envelope.h"

using hosted::FieldList;


namespace {

// What is looked for stays as it was found if the status is not B_OK.
template <typename Type>
status_t
find_value(const FieldList& fields, const char* name, type_code type, int32 index, Type* value)
{
	const void* data;
	ssize_t size;
	const status_t status = fields.ValueAt(name, type, index, &data, &size);
	if (status != B_OK)
		return status;
	if (size < static_cast<ssize_t>(sizeof(Type)))
		return B_BAD_VALUE;
	memcpy(static_cast<void*>(value), data, sizeof(Type));
	return B_OK;
}


// A byte of any value may come from outside; only 0 and 1 make a bool.
status_t
find_value(const FieldList& fields, const char* name, type_code type, int32 index, bool* value)
{
	uint8 byte;
	const status_t status = find_value(fields, name, type, index, &byte);
	if (status == B_OK)
		*value = byte != 0;
	return status;
}


template <typename Type>
status_t
find_or_clear(const FieldList& fields, const char* name, type_code type, int32 index, Type* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const status_t status = find_value(fields, name, type, index, value);
	if (status != B_OK)
		*value = Type();
	return status;
}


template <typename Type>
Type
value_or(const FieldList& fields, const char* name, type_code type, int32 index, Type value)
{
	find_value(fields, name, type, index, &value);
	return value;
}


template <typename Type>
status_t
set_value(FieldList& fields, const char* name, type_code type, const Type& value)
{
	if (fields.Find(name) != nullptr)
		return fields.Replace(name, type, 0, &value, sizeof(value));
	return fields.Add(name, type, &value, sizeof(value), true);
}

} // namespace


// The same methods for each kind of value: Kind is part of their names, Argument how the defaults
// are passed.
#define VALUE_METHODS(Kind, Type, Argument, code) \
	status_t BMessage::Add##Kind(const char* name, Type value) \
	{ \
		return fFields->Add(name, code, &value, sizeof(value), true); \
	} \
	status_t BMessage::Find##Kind(const char* name, Type* value) const \
	{ \
		return find_or_clear(*fFields, name, code, 0, value); \
	} \
	status_t BMessage::Find##Kind(const char* name, int32 index, Type* value) const \
	{ \
		return find_or_clear(*fFields, name, code, index, value); \
	} \
	status_t BMessage::Replace##Kind(const char* name, Type value) \
	{ \
		return fFields->Replace(name, code, 0, &value, sizeof(value)); \
	} \
	status_t BMessage::Replace##Kind(const char* name, int32 index, Type value) \
	{ \
		return fFields->Replace(name, code, index, &value, sizeof(value)); \
	} \
	bool BMessage::Has##Kind(const char* name, int32 n) const \
	{ \
		return HasData(name, code, n); \
	} \
	Type BMessage::Get##Kind(const char* name, Argument defaultValue) const \
	{ \
		return value_or<Type>(*fFields, name, code, 0, defaultValue); \
	} \
	Type BMessage::Get##Kind(const char* name, int32 index, Argument defaultValue) const \
	{ \
		return value_or<Type>(*fFields, name, code, index, defaultValue); \
	} \
	status_t BMessage::Set##Kind(const char* name, Argument value) \
	{ \
		return set_value<Type>(*fFields, name, code, value); \
	}

#define VALUE_BY_NAME(Kind, Type, code) \
	Type BMessage::Find##Kind(const char* name, int32 n) const \
	{ \
		return value_or<Type>(*fFields, name, code, n, Type()); \
	}

VALUE_METHODS(Bool, bool, bool, B_BOOL_TYPE)
VALUE_METHODS(Int8, int8, int8, B_INT8_TYPE)
VALUE_METHODS(UInt8, uint8, uint8, B_UINT8_TYPE)
VALUE_METHODS(Int16, int16, int16, B_INT16_TYPE)
VALUE_METHODS(UInt16, uint16, uint16, B_UINT16_TYPE)
VALUE_METHODS(Int32, int32, int32, B_INT32_TYPE)
VALUE_METHODS(UInt32, uint32, uint32, B_UINT32_TYPE)
VALUE_METHODS(Int64, int64, int64, B_INT64_TYPE)
VALUE_METHODS(UInt64, uint64, uint64, B_UINT64_TYPE)
VALUE_METHODS(Float, float, float, B_FLOAT_TYPE)
VALUE_METHODS(Double, double, double, B_DOUBLE_TYPE)
VALUE_METHODS(Point, BPoint, const BPoint&, B_POINT_TYPE)
VALUE_METHODS(Rect, BRect, const BRect&, B_RECT_TYPE)
VALUE_METHODS(Size, BSize, const BSize&, B_SIZE_TYPE)
VALUE_METHODS(Color, rgb_color, rgb_color, B_RGB_32_BIT_TYPE)

VALUE_BY_NAME(Bool, bool, B_BOOL_TYPE)
VALUE_BY_NAME(Int8, int8, B_INT8_TYPE)
VALUE_BY_NAME(Int16, int16, B_INT16_TYPE)
VALUE_BY_NAME(Int32, int32, B_INT32_TYPE)
VALUE_BY_NAME(Int64, int64, B_INT64_TYPE)
VALUE_BY_NAME(Float, float, B_FLOAT_TYPE)
VALUE_BY_NAME(Double, double, B_DOUBLE_TYPE)
VALUE_BY_NAME(Point, BPoint, B_POINT_TYPE)
VALUE_BY_NAME(Rect, BRect, B_RECT_TYPE)
