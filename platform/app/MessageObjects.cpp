// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The methods of messages for pointers and for objects that are stored as bytes.
#include <Message.h>

#include <array>
#include <string.h>
#include <string>
#include <vector>

#include <Entry.h>
#include <Flattenable.h>
#include <Messenger.h>
#include <Node.h>

#include "platform/app/Delivery.h"
#include "platform/app/Envelope.h"

using hosted::Address;
using hosted::FieldList;
using hosted::MessengerAccess;


namespace {

// Team, port and number; the rest is room that the platform's own form has.
using StoredMessenger = std::array<int32, 6>;

StoredMessenger
stored(const BMessenger& messenger)
{
	const Address address = MessengerAccess::AddressOf(messenger);
	return {address.team, address.port, address.token, 0, 0, 0};
}


struct StoredNode {
	int64 device;
	int64 node;
};

StoredNode
stored(const node_ref& ref)
{
	return {static_cast<int64>(ref.device), static_cast<int64>(ref.node)};
}


// Device, directory and the name with its end; without a name nothing follows.
std::string
stored(const entry_ref& ref)
{
	const StoredNode place = {static_cast<int64>(ref.device), static_cast<int64>(ref.directory)};
	std::string bytes(reinterpret_cast<const char*>(&place), sizeof(place));
	if (ref.name != nullptr)
		bytes.append(ref.name, strlen(ref.name) + 1);
	return bytes;
}


template <typename Type>
status_t
find_stored(const FieldList& fields, const char* name, type_code type, int32 index, Type* value)
{
	const void* data;
	ssize_t size;
	const status_t status = fields.ValueAt(name, type, index, &data, &size);
	if (status != B_OK)
		return status;
	if (size != static_cast<ssize_t>(sizeof(Type)))
		return B_BAD_VALUE;
	memcpy(static_cast<void*>(value), data, sizeof(Type));
	return B_OK;
}


status_t
find_ref(const FieldList& fields, const char* name, int32 index, entry_ref* ref)
{
	const void* data;
	ssize_t size;
	const status_t status = fields.ValueAt(name, B_REF_TYPE, index, &data, &size);
	if (status != B_OK)
		return status;
	StoredNode place;
	const ssize_t placeSize = static_cast<ssize_t>(sizeof(place));
	const char* bytes = static_cast<const char*>(data);
	if (size < placeSize || (size > placeSize && bytes[size - 1] != '\0'))
		return B_BAD_VALUE;
	memcpy(&place, bytes, sizeof(place));
	ref->device = static_cast<dev_t>(place.device);
	ref->directory = static_cast<ino_t>(place.node);
	return ref->set_name(size > placeSize ? bytes + placeSize : nullptr);
}


std::vector<char>
stored(const BMessage& message, status_t* status)
{
	std::vector<char> bytes(static_cast<size_t>(message.FlattenedSize()));
	*status = message.Flatten(bytes.data(), static_cast<ssize_t>(bytes.size()));
	return bytes;
}


std::vector<char>
stored(const BFlattenable& object, status_t* status)
{
	const ssize_t size = object.FlattenedSize();
	std::vector<char> bytes(size > 0 ? static_cast<size_t>(size) : 0);
	*status = size > 0 ? object.Flatten(bytes.data(), size) : B_BAD_VALUE;
	return bytes;
}

} // namespace


status_t
BMessage::AddPointer(const char* name, const void* value)
{
	return fFields->Add(name, B_POINTER_TYPE, &value, sizeof(value), true);
}


status_t
BMessage::FindPointer(const char* name, void** value) const
{
	return FindPointer(name, 0, value);
}


status_t
BMessage::FindPointer(const char* name, int32 index, void** value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const status_t status = find_stored(*fFields, name, B_POINTER_TYPE, index, value);
	if (status != B_OK)
		*value = nullptr;
	return status;
}


status_t
BMessage::ReplacePointer(const char* name, const void* value)
{
	return ReplacePointer(name, 0, value);
}


status_t
BMessage::ReplacePointer(const char* name, int32 index, const void* value)
{
	return fFields->Replace(name, B_POINTER_TYPE, index, &value, sizeof(value));
}


bool
BMessage::HasPointer(const char* name, int32 n) const
{
	return HasData(name, B_POINTER_TYPE, n);
}


const void*
BMessage::GetPointer(const char* name, const void* defaultValue) const
{
	return GetPointer(name, 0, defaultValue);
}


const void*
BMessage::GetPointer(const char* name, int32 index, const void* defaultValue) const
{
	void* value;
	return FindPointer(name, index, &value) == B_OK ? value : defaultValue;
}


status_t
BMessage::SetPointer(const char* name, const void* value)
{
	return SetData(name, B_POINTER_TYPE, &value, sizeof(value));
}


status_t
BMessage::AddMessenger(const char* name, BMessenger value)
{
	const StoredMessenger bytes = stored(value);
	return fFields->Add(name, B_MESSENGER_TYPE, bytes.data(), sizeof(bytes), true);
}


status_t
BMessage::FindMessenger(const char* name, BMessenger* value) const
{
	return FindMessenger(name, 0, value);
}


status_t
BMessage::FindMessenger(const char* name, int32 index, BMessenger* value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	StoredMessenger bytes;
	const status_t status = find_stored(*fFields, name, B_MESSENGER_TYPE, index, &bytes);
	Address address;
	if (status == B_OK) {
		address.team = bytes[0];
		address.port = bytes[1];
		address.token = bytes[2];
	}
	*value = MessengerAccess::Make(address);
	return status;
}


status_t
BMessage::ReplaceMessenger(const char* name, BMessenger value)
{
	return ReplaceMessenger(name, 0, value);
}


status_t
BMessage::ReplaceMessenger(const char* name, int32 index, BMessenger value)
{
	const StoredMessenger bytes = stored(value);
	return fFields->Replace(name, B_MESSENGER_TYPE, index, bytes.data(), sizeof(bytes));
}


bool
BMessage::HasMessenger(const char* name, int32 n) const
{
	return HasData(name, B_MESSENGER_TYPE, n);
}


status_t
BMessage::AddRef(const char* name, const entry_ref* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const std::string bytes = stored(*value);
	return fFields->Add(name, B_REF_TYPE, bytes.data(), static_cast<ssize_t>(bytes.size()), false);
}


status_t
BMessage::FindRef(const char* name, entry_ref* value) const
{
	return FindRef(name, 0, value);
}


status_t
BMessage::FindRef(const char* name, int32 index, entry_ref* value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const status_t status = find_ref(*fFields, name, index, value);
	if (status != B_OK)
		*value = entry_ref();
	return status;
}


status_t
BMessage::ReplaceRef(const char* name, const entry_ref* value)
{
	return ReplaceRef(name, 0, value);
}


status_t
BMessage::ReplaceRef(const char* name, int32 index, const entry_ref* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const std::string bytes = stored(*value);
	return fFields->Replace(name, B_REF_TYPE, index, bytes.data(),
		static_cast<ssize_t>(bytes.size()));
}


bool
BMessage::HasRef(const char* name, int32 n) const
{
	return HasData(name, B_REF_TYPE, n);
}


status_t
BMessage::AddNodeRef(const char* name, const node_ref* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const StoredNode bytes = stored(*value);
	return fFields->Add(name, B_NODE_REF_TYPE, &bytes, sizeof(bytes), true);
}


status_t
BMessage::FindNodeRef(const char* name, node_ref* value) const
{
	return FindNodeRef(name, 0, value);
}


status_t
BMessage::FindNodeRef(const char* name, int32 index, node_ref* value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	StoredNode bytes;
	const status_t status = find_stored(*fFields, name, B_NODE_REF_TYPE, index, &bytes);
	*value = status == B_OK
		? node_ref(static_cast<dev_t>(bytes.device), static_cast<ino_t>(bytes.node))
		:
		node_ref();
	return status;
}


status_t
BMessage::ReplaceNodeRef(const char* name, const node_ref* value)
{
	return ReplaceNodeRef(name, 0, value);
}


status_t
BMessage::ReplaceNodeRef(const char* name, int32 index, const node_ref* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const StoredNode bytes = stored(*value);
	return fFields->Replace(name, B_NODE_REF_TYPE, index, &bytes, sizeof(bytes));
}


bool
BMessage::HasNodeRef(const char* name, int32 n) const
{
	return HasData(name, B_NODE_REF_TYPE, n);
}


status_t
BMessage::AddMessage(const char* name, const BMessage* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	status_t status;
	const std::vector<char> bytes = stored(*value, &status);
	if (status != B_OK)
		return status;
	return fFields->Add(name, B_MESSAGE_TYPE, bytes.data(), static_cast<ssize_t>(bytes.size()),
		false);
}


status_t
BMessage::FindMessage(const char* name, BMessage* value) const
{
	return FindMessage(name, 0, value);
}


status_t
BMessage::FindMessage(const char* name, int32 index, BMessage* value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const void* data;
	ssize_t size;
	const status_t status = fFields->ValueAt(name, B_MESSAGE_TYPE, index, &data, &size);
	if (status != B_OK) {
		value->MakeEmpty();
		value->what = 0;
		return status;
	}
	// A message may be found in itself.
	BMessage found;
	const status_t read = hosted::MessageAccess::Unflatten(found, static_cast<const char*>(data),
		static_cast<size_t>(size), nullptr);
	*value = found;
	return read;
}


status_t
BMessage::ReplaceMessage(const char* name, const BMessage* value)
{
	return ReplaceMessage(name, 0, value);
}


status_t
BMessage::ReplaceMessage(const char* name, int32 index, const BMessage* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	status_t status;
	const std::vector<char> bytes = stored(*value, &status);
	if (status != B_OK)
		return status;
	return fFields->Replace(name, B_MESSAGE_TYPE, index, bytes.data(),
		static_cast<ssize_t>(bytes.size()));
}


bool
BMessage::HasMessage(const char* name, int32 n) const
{
	return HasData(name, B_MESSAGE_TYPE, n);
}


status_t
BMessage::AddFlat(const char* name, const BFlattenable* object, int32 count)
{
	(void)count;
	if (object == nullptr)
		return B_BAD_VALUE;
	status_t status;
	const std::vector<char> bytes = stored(*object, &status);
	if (status != B_OK)
		return status;
	return fFields->Add(name, object->TypeCode(), bytes.data(), static_cast<ssize_t>(bytes.size()),
		object->IsFixedSize());
}


status_t
BMessage::FindFlat(const char* name, BFlattenable* value) const
{
	return FindFlat(name, 0, value);
}


status_t
BMessage::FindFlat(const char* name, int32 index, BFlattenable* value) const
{
	if (value == nullptr)
		return B_BAD_VALUE;
	const void* data;
	ssize_t size;
	const status_t status = fFields->ValueAt(name, value->TypeCode(), index, &data, &size);
	if (status != B_OK)
		return status;
	return value->Unflatten(value->TypeCode(), data, size);
}


status_t
BMessage::ReplaceFlat(const char* name, const BFlattenable* value)
{
	return ReplaceFlat(name, 0, value);
}


status_t
BMessage::ReplaceFlat(const char* name, int32 index, const BFlattenable* value)
{
	if (value == nullptr)
		return B_BAD_VALUE;
	status_t status;
	const std::vector<char> bytes = stored(*value, &status);
	if (status != B_OK)
		return status;
	return fFields->Replace(name, value->TypeCode(), index, bytes.data(),
		static_cast<ssize_t>(bytes.size()));
}


bool
BMessage::HasFlat(const char* name, const BFlattenable* object) const
{
	return HasFlat(name, 0, object);
}


bool
BMessage::HasFlat(const char* name, int32 n, const BFlattenable* object) const
{
	return object != nullptr && HasData(name, object->TypeCode(), n);
}
