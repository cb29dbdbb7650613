// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// Messages as bytes. All numbers are in host order:
//	header: "VMs1", size of the whole, what, flags, current specifier, number of fields
//	field: type, 16 bit length of the name, 16 bit flags, number of values, size of a value (0 if
//		they differ), name; then the values, each with its size before it if they differ
#include <algorithm>
#include <string.h>
#include <string>
#include <vector>

#include <DataIO.h>
#include <Errors.h>
#include <Message.h>
#include <TypeConstants.h>

#include "platform/app/Envelope.h"


using hosted::Envelope;
using hosted::Field;
using hosted::FieldList;
using hosted::MessageAccess;


namespace {

// The last character is the version.
constexpr uint32 kMagic = 'VMs1';
constexpr uint32 kMaxSize = 1u << 30;
// How deep messages may contain messages; far beyond use, far below what the stack bears.
constexpr int kMaxDepth = 64;
constexpr uint32 kDroppedFlag = 1;
constexpr uint32 kSpecifiersFlag = 2;
constexpr uint16 kFixedSizeFlag = 1;

struct Header {
	uint32 magic;
	uint32 size;
	uint32 what;
	uint32 flags;
	int32 currentSpecifier;
	uint32 fieldCount;
};

struct FieldHeader {
	uint32 type;
	uint16 nameLength;
	uint16 flags;
	uint32 valueCount;
	uint32 valueSize;
};


// Takes pieces off bytes of unknown origin, and never reads beyond them.
class Reader {
public:
	Reader(const char* bytes, size_t size)
		:
		fBytes(bytes),
		fLeft(size)
	{
	}

	const char* Take(size_t size)
	{
		if (size > fLeft)
			return nullptr;
		const char* taken = fBytes;
		fBytes += size;
		fLeft -= size;
		return taken;
	}

	template <typename Type>
	bool Read(Type* value)
	{
		const char* taken = Take(sizeof(Type));
		if (taken == nullptr)
			return false;
		memcpy(value, taken, sizeof(Type));
		return true;
	}

	size_t Left() const { return fLeft; }

private:
	const char* fBytes;
	size_t fLeft;
};


void
put(char*& to, const void* from, size_t size)
{
	memcpy(to, from, size);
	to += size;
}


size_t
flattened_size(const Field& field)
{
	size_t size = sizeof(FieldHeader) + field.Name().size();
	const size_t count = static_cast<size_t>(field.CountValues());
	if (field.IsFixedSize())
		return size + count * field.ValueSize();
	for (int32 i = 0; i < field.CountValues(); i++) {
		uint32 valueSize;
		field.ValueAt(i, &valueSize);
		size += sizeof(uint32) + valueSize;
	}
	return size;
}


void
put_field(char*& to, const Field& field)
{
	FieldHeader header;
	header.type = field.Type();
	header.nameLength = static_cast<uint16>(field.Name().size());
	header.flags = field.IsFixedSize() ? kFixedSizeFlag : 0;
	header.valueCount = static_cast<uint32>(field.CountValues());
	header.valueSize = field.IsFixedSize() ? field.ValueSize() : 0;
	put(to, &header, sizeof(header));
	put(to, field.Name().data(), field.Name().size());

	for (int32 i = 0; i < field.CountValues(); i++) {
		uint32 size;
		const char* value = field.ValueAt(i, &size);
		if (!field.IsFixedSize())
			put(to, &size, sizeof(size));
		put(to, value, size);
	}
}


bool
read_header(Reader& reader, Header* header)
{
	return reader.Read(header) && header->magic == kMagic && header->size >= sizeof(Header)
		&& header->size <= kMaxSize && header->size - sizeof(Header) <= reader.Left();
}


status_t unflatten_fields(Reader reader, const Header& header, FieldList* fields, int depth);


// Looks through a message inside a message without keeping it.
status_t
check_nested(const char* bytes, uint32 size, int depth)
{
	Reader reader(bytes, size);
	Header header;
	if (!read_header(reader, &header) || header.size != size)
		return B_BAD_VALUE;
	return unflatten_fields(reader, header, nullptr, depth + 1);
}


status_t
read_value(Reader& reader, const FieldHeader& header, const char* name, FieldList* fields,
	int depth)
{
	uint32 size = header.valueSize;
	const bool fixedSize = (header.flags & kFixedSizeFlag) != 0;
	if (!fixedSize && !reader.Read(&size))
		return B_BAD_VALUE;
	const char* value = reader.Take(size);
	if (value == nullptr || size == 0)
		return B_BAD_VALUE;
	if (header.type == B_MESSAGE_TYPE) {
		const status_t status = check_nested(value, size, depth);
		if (status != B_OK)
			return status;
	}
	if (fields == nullptr)
		return B_OK;
	return fields->Add(name, header.type, value, size, fixedSize);
}


status_t
read_field(Reader& reader, FieldList* fields, int depth)
{
	FieldHeader header;
	if (!reader.Read(&header) || (header.flags & ~kFixedSizeFlag) != 0 || header.valueCount == 0)
		return B_BAD_VALUE;
	const char* nameBytes = reader.Take(header.nameLength);
	if (nameBytes == nullptr || memchr(nameBytes, '\0', header.nameLength) != nullptr)
		return B_BAD_VALUE;
	const std::string name(nameBytes, header.nameLength);
	if (fields != nullptr && fields->Find(name.c_str()) != nullptr)
		return B_BAD_VALUE;

	for (uint32 i = 0; i < header.valueCount; i++) {
		const status_t status = read_value(reader, header, name.c_str(), fields, depth);
		if (status != B_OK)
			return B_BAD_VALUE;
	}
	return B_OK;
}


// Every value and every name takes bytes off the reader, so that what is kept is bounded by what
// came, whatever the counts claim. Without fields it only checks.
status_t
unflatten_fields(Reader reader, const Header& header, FieldList* fields, int depth)
{
	if (depth > kMaxDepth)
		return B_BAD_VALUE;
	const char* bytes = reader.Take(header.size - sizeof(Header));
	Reader fieldReader(bytes, header.size - sizeof(Header));
	for (uint32 i = 0; i < header.fieldCount; i++) {
		const status_t status = read_field(fieldReader, fields, depth);
		if (status != B_OK)
			return status;
	}
	return fieldReader.Left() == 0 ? B_OK : B_BAD_VALUE;
}


// The specifier that counts must be one of those that are there.
void
take_specifiers(const Header& header, const FieldList& fields, Envelope& envelope)
{
	const Field* specifiers = fields.Find("specifiers");
	const int32 count = specifiers == nullptr ? 0 : specifiers->CountValues();
	envelope.hasSpecifiers = (header.flags & kSpecifiersFlag) != 0 && count > 0;
	envelope.currentSpecifier
		= envelope.hasSpecifiers ? std::min(std::max(header.currentSpecifier, -1), count - 1) : -1;
}

} // namespace


status_t
MessageAccess::Unflatten(BMessage& message, const char* bytes, size_t size, size_t* used)
{
	message.MakeEmpty();
	message.what = 0;

	Reader reader(bytes, size);
	Header header;
	if (!read_header(reader, &header) || (used == nullptr && header.size != size))
		return B_BAD_VALUE;
	FieldList fields;
	const status_t status = unflatten_fields(reader, header, &fields, 0);
	if (status != B_OK)
		return status;

	message.what = header.what;
	std::swap(FieldsOf(message), fields);
	Envelope& envelope = EnvelopeOf(message);
	envelope.dropped = (header.flags & kDroppedFlag) != 0;
	take_specifiers(header, FieldsOf(message), envelope);
	if (used != nullptr)
		*used = header.size;
	return B_OK;
}


ssize_t
BMessage::FlattenedSize() const
{
	size_t size = sizeof(Header);
	for (const Field& field : fFields->Fields())
		size += flattened_size(field);
	return static_cast<ssize_t>(size);
}


status_t
BMessage::Flatten(char* buffer, ssize_t size) const
{
	const ssize_t needed = FlattenedSize();
	if (buffer == nullptr)
		return B_BAD_VALUE;
	if (size < needed)
		return B_BUFFER_OVERFLOW;
	if (needed > static_cast<ssize_t>(kMaxSize))
		return B_NO_MEMORY;

	Header header;
	header.magic = kMagic;
	header.size = static_cast<uint32>(needed);
	header.what = what;
	header.flags = (fEnvelope->dropped ? kDroppedFlag : 0)
		| (fEnvelope->hasSpecifiers ? kSpecifiersFlag : 0);
	header.currentSpecifier = fEnvelope->currentSpecifier;
	header.fieldCount = static_cast<uint32>(fFields->Fields().size());
	put(buffer, &header, sizeof(header));
	for (const Field& field : fFields->Fields())
		put_field(buffer, field);
	return B_OK;
}


status_t
BMessage::Flatten(BDataIO* stream, ssize_t* size) const
{
	if (stream == nullptr)
		return B_BAD_VALUE;
	std::vector<char> buffer(static_cast<size_t>(FlattenedSize()));
	const status_t status = Flatten(buffer.data(), static_cast<ssize_t>(buffer.size()));
	if (status != B_OK)
		return status;

	const ssize_t written = stream->Write(buffer.data(), buffer.size());
	if (written < 0)
		return static_cast<status_t>(written);
	if (static_cast<size_t>(written) != buffer.size())
		return B_ERROR;
	if (size != nullptr)
		*size = written;
	return B_OK;
}


status_t
BMessage::Unflatten(const char* flatBuffer)
{
	if (flatBuffer == nullptr)
		return B_BAD_VALUE;
	// The caller vouches for as many bytes as the header says.
	Header header;
	memcpy(&header, flatBuffer, 2 * sizeof(uint32));
	const bool sane = header.magic == kMagic && header.size >= sizeof(Header);
	size_t used;
	return MessageAccess::Unflatten(*this, flatBuffer, sane ? header.size : 0, &used);
}


status_t
BMessage::Unflatten(BDataIO* stream)
{
	if (stream == nullptr)
		return B_BAD_VALUE;
	MakeEmpty();
	what = 0;

	std::vector<char> buffer(sizeof(Header));
	Header header;
	size_t filled = 0;
	size_t wanted = sizeof(Header);
	while (filled < wanted) {
		// Read in pieces: a header that lies about the size must not make us take the memory.
		const size_t piece = std::min<size_t>(wanted - filled, 65536);
		buffer.resize(filled + piece);
		const ssize_t bytesRead = stream->Read(buffer.data() + filled, piece);
		if (bytesRead < 0)
			return static_cast<status_t>(bytesRead);
		if (bytesRead == 0)
			return B_BAD_VALUE;
		filled += static_cast<size_t>(bytesRead);
		if (filled == sizeof(Header) && wanted == sizeof(Header)) {
			memcpy(&header, buffer.data(), sizeof(header));
			if (header.magic != kMagic || header.size < sizeof(Header) || header.size > kMaxSize)
				return B_BAD_VALUE;
			wanted = header.size;
		}
	}
	return MessageAccess::Unflatten(*this, buffer.data(), filled, nullptr);
}
