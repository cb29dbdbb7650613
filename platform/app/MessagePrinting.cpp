// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// Messages as text, in the platform's form: with its quirks, because people compare it.
#include <Message.h>

#include <inttypes.h>
#include <stdio.h>
#include <string.h>
#include <string>

#include <Entry.h>
#include <Node.h>
#include <Path.h>

#include "platform/app/Envelope.h"

using hosted::Field;
using hosted::MessageAccess;


namespace {

// Far deeper than what comes from outside may be.
constexpr int kMaxDepth = 128;

void print_message(const BMessage& message, const std::string& indent, int depth);


bool
is_printable(int c)
{
	return c >= 0x20 && c < 0x7f;
}


void
print_code(uint32 code, const char* start, const char* end)
{
	const int first = static_cast<int>(code >> 24);
	if (!is_printable(first)) {
		printf("%s0x%" PRIx32 "%s", start, code, end);
		return;
	}
	printf("%s'%c%c%c%c'%s", start, first, static_cast<int>(code >> 16 & 0xff),
		static_cast<int>(code >> 8 & 0xff), static_cast<int>(code & 0xff), end);
}


template <typename Type>
Type
read(const char* value, uint32 size)
{
	Type result = Type();
	if (size >= sizeof(Type))
		memcpy(static_cast<void*>(&result), value, sizeof(Type));
	return result;
}


void
print_ref(const BMessage& message, const char* name, int32 index)
{
	entry_ref ref;
	message.FindRef(name, index, &ref);
	BPath path(&ref);
	const char* full = path.Path();
	printf("entry_ref(device=%d, directory=%lld, name=\"%s\", path=\"%s\")\n",
		static_cast<int>(ref.device), static_cast<long long>(ref.directory),
		ref.name != nullptr ? ref.name : "(null)", full != nullptr ? full : "(null)");
}


bool
print_integer(type_code type, const char* value, uint32 size)
{
	switch (type) {
		case B_INT8_TYPE:
		case B_UINT8_TYPE:
		{
			const int number
				= type == B_INT8_TYPE ? read<int8>(value, size) : read<uint8>(value, size);
			printf("%s(0x%hx or %d or '%c')\n", type == B_INT8_TYPE ? "int8" : "uint8",
				static_cast<unsigned short>(number), number, number);
			return true;
		}
		case B_INT16_TYPE:
		{
			const int number = read<int16>(value, size);
			printf("int16(0x%x or %d)\n", static_cast<unsigned>(number), number);
			return true;
		}
		case B_UINT16_TYPE:
		{
			const int number = read<uint16>(value, size);
			printf("uint16(0x%x or %d)\n", static_cast<unsigned>(number), number);
			return true;
		}
		case B_INT32_TYPE:
		case B_UINT32_TYPE:
		{
			// Read as a long, the four bytes make no negative number.
			const long number = read<uint32>(value, size);
			printf("%s(0x%lx or %ld)\n", type == B_INT32_TYPE ? "int32" : "uint32",
				static_cast<unsigned long>(number), number);
			return true;
		}
		case B_INT64_TYPE:
		case B_UINT64_TYPE:
		{
			const long number = read<int64>(value, size);
			printf("%s(0x%lx or %ld)\n", type == B_INT64_TYPE ? "int64" : "uint64",
				static_cast<unsigned long>(number), number);
			return true;
		}
		default:
			return false;
	}
}


bool
print_number(type_code type, const char* value, uint32 size)
{
	switch (type) {
		case B_BOOL_TYPE:
			printf("bool(%s)\n", read<uint8>(value, size) != 0 ? "true" : "false");
			return true;
		case B_FLOAT_TYPE:
			printf("float(%.4f)\n", static_cast<double>(read<float>(value, size)));
			return true;
		case B_DOUBLE_TYPE:
			printf("double(%.8f)\n", read<double>(value, size));
			return true;
		case B_RECT_TYPE:
		{
			const BRect rect = read<BRect>(value, size);
			printf("BRect(l:%.1f, t:%.1f, r:%.1f, b:%.1f)\n", static_cast<double>(rect.left),
				static_cast<double>(rect.top), static_cast<double>(rect.right),
				static_cast<double>(rect.bottom));
			return true;
		}
		case B_POINT_TYPE:
		{
			const BPoint point = read<BPoint>(value, size);
			printf("BPoint(x:%f, y:%f)\n", static_cast<double>(point.x),
				static_cast<double>(point.y));
			return true;
		}
		case B_RGB_32_BIT_TYPE:
		{
			const rgb_color color = read<rgb_color>(value, size);
			printf("rgb_color(%u, %u, %u, %u)\n", color.red, color.green, color.blue, color.alpha);
			return true;
		}
		default:
			return print_integer(type, value, size);
	}
}


void
print_nested(const BMessage& message, const char* name, int32 index, const std::string& indent,
	int depth)
{
	BMessage nested;
	if (depth >= kMaxDepth || message.FindMessage(name, index, &nested) != B_OK) {
		printf("(bad message)\n");
		return;
	}
	print_message(nested, indent, depth + 1);
}


void
print_value(const BMessage& message, const Field& field, int32 index, const std::string& indent,
	int depth)
{
	uint32 size;
	const char* value = field.ValueAt(index, &size);
	const char* name = field.Name().c_str();
	switch (field.Type()) {
		case B_STRING_TYPE:
			printf("string(\"%s\", %ld bytes)\n", message.GetString(name, index, ""),
				static_cast<long>(size));
			break;
		case B_REF_TYPE:
			print_ref(message, name, index);
			break;
		case B_NODE_REF_TYPE:
		{
			node_ref ref;
			message.FindNodeRef(name, index, &ref);
			printf("node_ref(device=%d, node=%lld, ", static_cast<int>(ref.device),
				static_cast<long long>(ref.node));
			break;
		}
		case B_MESSAGE_TYPE:
			print_nested(message, name, index, indent, depth);
			break;
		default:
			if (print_number(field.Type(), value, size))
				break;
			print_code(field.Type(), "(type = ", ")");
			printf("(size = %ld)\n", static_cast<long>(size));
			break;
	}
}


// The indent is that of the closing bracket; the fields stand one step deeper.
void
print_message(const BMessage& message, const std::string& indent, int depth)
{
	print_code(message.what, "BMessage(", ") {\n");
	const std::string inner = indent + "        ";
	for (const Field& field : MessageAccess::FieldsOf(message).Fields()) {
		const int32 count = field.CountValues();
		for (int32 i = 0; i < count; i++) {
			printf("%s%s", inner.c_str(), field.Name().c_str());
			if (count > 1)
				printf("[%" PRId32 "]", i);
			printf(" = ");
			print_value(message, field, i, inner, depth);
		}
	}
	printf("%s}\n", indent.c_str());
}

} // namespace


void
BMessage::PrintToStream() const
{
	print_message(*this, "", 0);
}
