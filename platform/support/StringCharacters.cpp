// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BString: single bytes and characters, letter case, the open buffer, printing into the text.
#include <String.h>

#include <algorithm>
#include <stdio.h>
#include <string.h>


namespace {

bool
begins_character(char c)
{
	return (static_cast<uchar>(c) & 0xc0) != 0x80;
}


// Case and blanks do not depend on the locale: only ASCII is looked at.
char
lower(char c)
{
	return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}


char
upper(char c)
{
	return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace


int32
BString::CountChars() const
{
	return static_cast<int32>(std::count_if(fData.begin(), fData.end(), begins_character));
}


char
BString::operator[](int32 index) const
{
	return fData.data()[index];
}


char
BString::ByteAt(int32 index) const
{
	return index >= 0 && index < Length() ? fData[static_cast<size_t>(index)] : '\0';
}


BString&
BString::SetByteAt(int32 position, char to)
{
	if (position >= 0 && position < Length())
		fData[static_cast<size_t>(position)] = to;
	return *this;
}


const char*
BString::CharAt(int32 charIndex, int32* bytes) const
{
	auto begin = fData.begin();
	for (; begin != fData.end(); ++begin) {
		if (begins_character(*begin) && charIndex-- <= 0)
			break;
	}
	auto end = begin;
	if (end != fData.end())
		end = std::find_if(begin + 1, fData.end(), begins_character);

	if (bytes != nullptr)
		*bytes = static_cast<int32>(end - begin);
	return String() + (begin - fData.begin());
}


bool
BString::CharAt(int32 charIndex, char* buffer, int32* bytes) const
{
	int32 length;
	const char* character = CharAt(charIndex, &length);
	if (bytes != nullptr)
		*bytes = length;
	if (length == 0)
		return false;
	memcpy(buffer, character, static_cast<size_t>(length));
	return true;
}


char*
BString::LockBuffer(int32 maxLength)
{
	fData.resize(static_cast<size_t>(std::max(maxLength, Length())));
	return fData.data();
}


BString&
BString::UnlockBuffer(int32 length)
{
	if (length <= 0)
		length = static_cast<int32>(strlen(String()));
	return Truncate(length);
}


BString&
BString::ToLower()
{
	std::transform(fData.begin(), fData.end(), fData.begin(), lower);
	return *this;
}


BString&
BString::ToUpper()
{
	std::transform(fData.begin(), fData.end(), fData.begin(), upper);
	return *this;
}


BString&
BString::Capitalize()
{
	ToLower();
	if (!fData.empty())
		fData[0] = upper(fData[0]);
	return *this;
}


BString&
BString::Trim()
{
	constexpr const char* kBlanks = " \t\n\v\f\r";
	fData.erase(fData.find_last_not_of(kBlanks) + 1);
	fData.erase(0, fData.find_first_not_of(kBlanks));
	return *this;
}


BString&
BString::operator<<(const char* string)
{
	return Append(string);
}


BString&
BString::operator<<(const BString& string)
{
	return Append(string);
}


BString&
BString::operator<<(char c)
{
	return Append(c, 1);
}


BString&
BString::operator<<(bool value)
{
	return Append(value ? "true" : "false");
}


BString&
BString::operator<<(int value)
{
	return Append(std::to_string(value).c_str());
}


BString&
BString::operator<<(unsigned int value)
{
	return Append(std::to_string(value).c_str());
}


BString&
BString::operator<<(unsigned long value)
{
	return Append(std::to_string(value).c_str());
}


BString&
BString::operator<<(long value)
{
	return Append(std::to_string(value).c_str());
}


BString&
BString::operator<<(unsigned long long value)
{
	return Append(std::to_string(value).c_str());
}


BString&
BString::operator<<(long long value)
{
	return Append(std::to_string(value).c_str());
}


BString&
BString::operator<<(float value)
{
	return *this << static_cast<double>(value);
}


BString&
BString::operator<<(double value)
{
	BString text;
	return Append(text.SetToFormat("%.2f", value));
}
