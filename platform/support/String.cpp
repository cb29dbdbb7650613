// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BString: contents, assignment, insertion, removal, searching.
#include <String.h>

#include <StringList.h>
#include <algorithm>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <strings.h>
#include <utility>


namespace {

const char*
safe(const char* string)
{
	return string != nullptr ? string : "";
}


// How many bytes of a text are meant by a length that may be too large or negative.
size_t
clamped(const char* string, int32 length)
{
	return length > 0 ? strnlen(safe(string), static_cast<size_t>(length)) : 0;
}

} // namespace


BString::BString() = default;


BString::BString(const char* string)
	:
	fData(safe(string))
{
}


BString::BString(const BString& string) = default;


BString::BString(const char* string, int32 maxLength)
	:
	fData(safe(string), clamped(string, maxLength))
{
}


BString::BString(BString&& string) noexcept
	: fData(std::move(string.fData))
{
	string.fData.clear();
}


BString::~BString() = default;


const char*
BString::String() const
{
	return fData.c_str();
}


int32
BString::Length() const
{
	return static_cast<int32>(fData.size());
}


bool
BString::IsEmpty() const
{
	return fData.empty();
}


BString&
BString::operator=(const BString& string)
{
	if (this != &string)
		fData = string.fData;
	return *this;
}


BString&
BString::operator=(BString&& string) noexcept
{
	if (this != &string) {
		fData = std::move(string.fData);
		string.fData.clear();
	}
	return *this;
}


BString&
BString::operator=(const char* string)
{
	return SetTo(string);
}


BString&
BString::operator=(char c)
{
	return SetTo(c, 1);
}


BString&
BString::SetTo(const char* string)
{
	fData = safe(string);
	return *this;
}


BString&
BString::SetTo(const char* string, int32 maxLength)
{
	fData.assign(safe(string), clamped(string, maxLength));
	return *this;
}


BString&
BString::SetTo(const BString& string)
{
	return *this = string;
}


BString&
BString::SetTo(const BString& string, int32 maxLength)
{
	*this = string;
	return maxLength < 0 ? *this : Truncate(maxLength);
}


BString&
BString::SetTo(char c, int32 count)
{
	fData.assign(static_cast<size_t>(std::max(count, 0)), c);
	return *this;
}


BString&
BString::Adopt(BString& from)
{
	return *this = std::move(from);
}


BString&
BString::Adopt(BString& from, int32 maxLength)
{
	*this = std::move(from);
	return Truncate(maxLength);
}


BString&
BString::SetToFormat(const char* format, ...)
{
	va_list arguments;
	va_start(arguments, format);
	va_list again;
	va_copy(again, arguments);
	const int length = vsnprintf(nullptr, 0, format, arguments);
	va_end(arguments);

	if (length >= 0) {
		// The arguments may point into this very text.
		std::string text(static_cast<size_t>(length), '\0');
		vsnprintf(text.data(), text.size() + 1, format, again);
		fData = std::move(text);
	}
	va_end(again);
	return *this;
}


BString&
BString::CopyInto(BString& into, int32 fromOffset, int32 length) const
{
	if (this == &into)
		return into;
	if (fromOffset < 0 || fromOffset >= Length()) {
		into.fData.clear();
		return into;
	}
	const size_t count = length < 0 ? std::string::npos : static_cast<size_t>(length);
	into.fData = fData.substr(static_cast<size_t>(fromOffset), count);
	return into;
}


void
BString::CopyInto(char* into, int32 fromOffset, int32 length) const
{
	if (into == nullptr || length <= 0 || fromOffset < 0 || fromOffset >= Length())
		return;
	length = std::min(length, Length() - fromOffset);
	memcpy(into, fData.data() + fromOffset, static_cast<size_t>(length));
}


BString&
BString::operator+=(const BString& string)
{
	return Append(string);
}


BString&
BString::operator+=(const char* string)
{
	return Append(string);
}


BString&
BString::operator+=(char c)
{
	return Append(c, 1);
}


BString&
BString::Append(const BString& string)
{
	fData += string.fData;
	return *this;
}


BString&
BString::Append(const BString& string, int32 length)
{
	return Insert(string, length, Length());
}


BString&
BString::Append(const char* string)
{
	fData += safe(string);
	return *this;
}


BString&
BString::Append(const char* string, int32 length)
{
	fData.append(safe(string), clamped(string, length));
	return *this;
}


BString&
BString::Append(char c, int32 count)
{
	fData.append(static_cast<size_t>(std::max(count, 0)), c);
	return *this;
}


BString&
BString::Prepend(const char* string)
{
	return Insert(string, 0);
}


BString&
BString::Prepend(const char* string, int32 length)
{
	return Insert(string, length, 0);
}


BString&
BString::Prepend(const BString& string)
{
	return Insert(string, 0);
}


BString&
BString::Prepend(const BString& string, int32 length)
{
	return Insert(string, length, 0);
}


BString&
BString::Prepend(char c, int32 count)
{
	return Insert(c, count, 0);
}


BString&
BString::Insert(const char* string, int32 position)
{
	return Insert(string, static_cast<int32>(strlen(safe(string))), position);
}


BString&
BString::Insert(const char* string, int32 length, int32 position)
{
	return Insert(BString(string, length), length, position);
}


BString&
BString::Insert(const BString& string, int32 position)
{
	return Insert(string, string.Length(), position);
}


BString&
BString::Insert(const BString& string, int32 length, int32 position)
{
	if (position > Length())
		return *this;
	std::string text = string.fData.substr(0, static_cast<size_t>(std::max(length, 0)));
	if (position < 0) {
		text.erase(0, static_cast<size_t>(-static_cast<int64>(position)));
		position = 0;
	}
	fData.insert(static_cast<size_t>(position), text);
	return *this;
}


BString&
BString::Insert(char c, int32 count, int32 position)
{
	BString text;
	return Insert(text.SetTo(c, count), count, position);
}


BString&
BString::Truncate(int32 newLength, bool /*lazy*/)
{
	newLength = std::max(newLength, 0);
	if (newLength < Length())
		fData.resize(static_cast<size_t>(newLength));
	return *this;
}


BString&
BString::Remove(int32 from, int32 length)
{
	if (length > 0 && from >= 0 && from < Length())
		fData.erase(static_cast<size_t>(from), static_cast<size_t>(length));
	return *this;
}


BString&
BString::RemoveFirst(const BString& string)
{
	return Remove(FindFirst(string), string.Length());
}


BString&
BString::RemoveLast(const BString& string)
{
	return Remove(FindLast(string), string.Length());
}


BString&
BString::RemoveAll(const BString& string)
{
	return RemoveAll(string.String());
}


BString&
BString::RemoveFirst(const char* string)
{
	return RemoveFirst(BString(string));
}


BString&
BString::RemoveLast(const char* string)
{
	return RemoveLast(BString(string));
}


BString&
BString::RemoveAll(const char* string)
{
	// The argument may be this very text.
	return _Replace(BString(string), "", INT32_MAX, 0, false);
}


BString&
BString::RemoveSet(const char* setOfBytesToRemove)
{
	return ReplaceSet(setOfBytesToRemove, "");
}


BString&
BString::MoveInto(BString& into, int32 from, int32 length)
{
	if (this == &into)
		return into;
	CopyInto(into, from, length);
	Remove(from, length);
	return into;
}


void
BString::MoveInto(char* into, int32 from, int32 length)
{
	CopyInto(into, from, length);
	Remove(from, length);
}


bool
BString::Split(const char* separator, bool noEmptyStrings, BStringList& _list) const
{
	const size_t length = strlen(safe(separator));
	if (length == 0)
		return false;

	size_t begin = 0;
	while (true) {
		const size_t end = fData.find(separator, begin);
		const std::string piece = fData.substr(begin, end - begin);
		if (!piece.empty() || !noEmptyStrings)
			_list.Add(piece.c_str());
		if (end == std::string::npos)
			return true;
		begin = end + length;
	}
}
