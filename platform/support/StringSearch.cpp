// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BString: comparing and searching.
#include <String.h>

#include <algorithm>
#include <string.h>
#include <strings.h>


namespace {

const char*
safe(const char* string)
{
	return string != nullptr ? string : "";
}


size_t
unsigned_length(int32 length)
{
	return static_cast<size_t>(std::max(length, 0));
}


bool
is_same(const char* a, const char* b, size_t length, bool ignoreCase)
{
	return (ignoreCase ? strncasecmp(a, b, length) : strncmp(a, b, length)) == 0;
}

} // namespace


bool
BString::operator<(const BString& string) const
{
	return Compare(string) < 0;
}


bool
BString::operator<=(const BString& string) const
{
	return Compare(string) <= 0;
}


bool
BString::operator==(const BString& string) const
{
	return Compare(string) == 0;
}


bool
BString::operator>=(const BString& string) const
{
	return Compare(string) >= 0;
}


bool
BString::operator>(const BString& string) const
{
	return Compare(string) > 0;
}


bool
BString::operator!=(const BString& string) const
{
	return Compare(string) != 0;
}


bool
BString::operator<(const char* string) const
{
	return Compare(string) < 0;
}


bool
BString::operator<=(const char* string) const
{
	return Compare(string) <= 0;
}


bool
BString::operator==(const char* string) const
{
	return Compare(string) == 0;
}


bool
BString::operator>=(const char* string) const
{
	return Compare(string) >= 0;
}


bool
BString::operator>(const char* string) const
{
	return Compare(string) > 0;
}


bool
BString::operator!=(const char* string) const
{
	return Compare(string) != 0;
}


BString::operator const char*() const
{
	return String();
}


bool
operator<(const char* a, const BString& b)
{
	return b > a;
}


bool
operator<=(const char* a, const BString& b)
{
	return b >= a;
}


bool
operator==(const char* a, const BString& b)
{
	return b == a;
}


bool
operator>(const char* a, const BString& b)
{
	return b < a;
}


bool
operator>=(const char* a, const BString& b)
{
	return b <= a;
}


bool
operator!=(const char* a, const BString& b)
{
	return b != a;
}


int
BString::Compare(const BString& string) const
{
	return strcmp(String(), string.String());
}


int
BString::Compare(const char* string) const
{
	return strcmp(String(), safe(string));
}


int
BString::Compare(const BString& string, int32 length) const
{
	return strncmp(String(), string.String(), unsigned_length(length));
}


int
BString::Compare(const char* string, int32 length) const
{
	return strncmp(String(), safe(string), unsigned_length(length));
}


int
BString::ICompare(const BString& string) const
{
	return strcasecmp(String(), string.String());
}


int
BString::ICompare(const char* string) const
{
	return strcasecmp(String(), safe(string));
}


int
BString::ICompare(const BString& string, int32 length) const
{
	return strncasecmp(String(), string.String(), unsigned_length(length));
}


int
BString::ICompare(const char* string, int32 length) const
{
	return strncasecmp(String(), safe(string), unsigned_length(length));
}


int32
BString::_FindFirst(const char* string, int32 fromOffset, bool ignoreCase) const
{
	if (string == nullptr)
		return B_BAD_VALUE;
	const int32 length = static_cast<int32>(strlen(string));
	if (fromOffset < 0)
		return B_ERROR;
	for (int32 index = fromOffset; index <= Length() - length; index++) {
		if (is_same(String() + index, string, unsigned_length(length), ignoreCase))
			return index;
	}
	return B_ERROR;
}


int32
BString::_FindLast(const char* string, int32 beforeOffset, bool ignoreCase) const
{
	if (string == nullptr)
		return B_BAD_VALUE;
	if (beforeOffset < 0)
		return B_ERROR;
	const int32 length = static_cast<int32>(strlen(string));
	for (int32 index = std::min(beforeOffset, Length()) - length; index >= 0; index--) {
		if (is_same(String() + index, string, unsigned_length(length), ignoreCase))
			return index;
	}
	return B_ERROR;
}


int32
BString::FindFirst(const BString& string) const
{
	return _FindFirst(string.String(), 0, false);
}


int32
BString::FindFirst(const char* string) const
{
	return _FindFirst(string, 0, false);
}


int32
BString::FindFirst(const BString& string, int32 fromOffset) const
{
	return _FindFirst(string.String(), fromOffset, false);
}


int32
BString::FindFirst(const char* string, int32 fromOffset) const
{
	return _FindFirst(string, fromOffset, false);
}


int32
BString::FindFirst(char c) const
{
	return FindFirst(c, 0);
}


int32
BString::FindFirst(char c, int32 fromOffset) const
{
	if (fromOffset < 0)
		return B_ERROR;
	const size_t index = fData.find(c, static_cast<size_t>(fromOffset));
	return index != std::string::npos ? static_cast<int32>(index) : B_ERROR;
}


int32
BString::FindLast(const BString& string) const
{
	return _FindLast(string.String(), Length(), false);
}


int32
BString::FindLast(const char* string) const
{
	return _FindLast(string, Length(), false);
}


int32
BString::FindLast(const BString& string, int32 beforeOffset) const
{
	return _FindLast(string.String(), beforeOffset, false);
}


int32
BString::FindLast(const char* string, int32 beforeOffset) const
{
	return _FindLast(string, beforeOffset, false);
}


int32
BString::FindLast(char c) const
{
	return FindLast(c, Length());
}


int32
BString::FindLast(char c, int32 beforeOffset) const
{
	if (beforeOffset < 0)
		return B_ERROR;
	const size_t index = fData.rfind(c, static_cast<size_t>(beforeOffset));
	return index != std::string::npos ? static_cast<int32>(index) : B_ERROR;
}


int32
BString::IFindFirst(const BString& string) const
{
	return _FindFirst(string.String(), 0, true);
}


int32
BString::IFindFirst(const char* string) const
{
	return _FindFirst(string, 0, true);
}


int32
BString::IFindFirst(const BString& string, int32 fromOffset) const
{
	return _FindFirst(string.String(), fromOffset, true);
}


int32
BString::IFindFirst(const char* string, int32 fromOffset) const
{
	return _FindFirst(string, fromOffset, true);
}


int32
BString::IFindLast(const BString& string) const
{
	return _FindLast(string.String(), Length(), true);
}


int32
BString::IFindLast(const char* string) const
{
	return _FindLast(string, Length(), true);
}


int32
BString::IFindLast(const BString& string, int32 beforeOffset) const
{
	return _FindLast(string.String(), beforeOffset, true);
}


int32
BString::IFindLast(const char* string, int32 beforeOffset) const
{
	return _FindLast(string, beforeOffset, true);
}


bool
BString::StartsWith(const BString& string) const
{
	return StartsWith(string.String(), string.Length());
}


bool
BString::StartsWith(const char* string) const
{
	return string != nullptr && StartsWith(string, static_cast<int32>(strlen(string)));
}


bool
BString::StartsWith(const char* string, int32 length) const
{
	return string != nullptr && length >= 0 && length <= Length()
		&& is_same(String(), string, unsigned_length(length), false);
}


bool
BString::IStartsWith(const BString& string) const
{
	return IStartsWith(string.String(), string.Length());
}


bool
BString::IStartsWith(const char* string) const
{
	return string != nullptr && IStartsWith(string, static_cast<int32>(strlen(string)));
}


bool
BString::IStartsWith(const char* string, int32 length) const
{
	return string != nullptr && length >= 0 && length <= Length()
		&& is_same(String(), string, unsigned_length(length), true);
}


bool
BString::EndsWith(const BString& string) const
{
	return EndsWith(string.String(), string.Length());
}


bool
BString::EndsWith(const char* string) const
{
	return string != nullptr && EndsWith(string, static_cast<int32>(strlen(string)));
}


bool
BString::EndsWith(const char* string, int32 length) const
{
	return string != nullptr && length >= 0 && length <= Length()
		&& is_same(String() + Length() - length, string, unsigned_length(length), false);
}


bool
BString::IEndsWith(const BString& string) const
{
	return IEndsWith(string.String(), string.Length());
}


bool
BString::IEndsWith(const char* string) const
{
	return string != nullptr && IEndsWith(string, static_cast<int32>(strlen(string)));
}


bool
BString::IEndsWith(const char* string, int32 length) const
{
	return string != nullptr && length >= 0 && length <= Length()
		&& is_same(String() + Length() - length, string, unsigned_length(length), true);
}
