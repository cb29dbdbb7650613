// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BString: replacing.
#include <String.h>

#include <algorithm>
#include <string.h>
#include <utility>


BString&
BString::_Replace(const char* what, const char* with, int32 maxCount, int32 fromOffset,
	bool ignoreCase)
{
	if (what == nullptr || what[0] == '\0')
		return *this;

	// Built beside the old text: what was put in is not searched again, and the arguments may point
	// into this text.
	const std::string replacement = with != nullptr ? with : "";
	const size_t length = strlen(what);
	int32 begin = std::min(std::max(fromOffset, 0), Length());
	std::string text = fData.substr(0, static_cast<size_t>(begin));
	for (; maxCount > 0; maxCount--) {
		const int32 found = _FindFirst(what, begin, ignoreCase);
		if (found < 0)
			break;
		text.append(fData, static_cast<size_t>(begin), static_cast<size_t>(found - begin));
		text += replacement;
		begin = found + static_cast<int32>(length);
	}
	text.append(fData, static_cast<size_t>(begin), std::string::npos);
	fData = std::move(text);
	return *this;
}


BString&
BString::ReplaceFirst(char replaceThis, char withThis)
{
	return Replace(replaceThis, withThis, 1);
}


BString&
BString::ReplaceLast(char replaceThis, char withThis)
{
	const int32 index = FindLast(replaceThis);
	return index >= 0 ? SetByteAt(index, withThis) : *this;
}


BString&
BString::ReplaceAll(char replaceThis, char withThis, int32 fromOffset)
{
	return Replace(replaceThis, withThis, INT32_MAX, fromOffset);
}


BString&
BString::Replace(char replaceThis, char withThis, int32 maxReplaceCount, int32 fromOffset)
{
	for (int32 index = std::max(fromOffset, 0); index < Length() && maxReplaceCount > 0; index++) {
		if (ByteAt(index) == replaceThis) {
			SetByteAt(index, withThis);
			maxReplaceCount--;
		}
	}
	return *this;
}


BString&
BString::ReplaceFirst(const char* replaceThis, const char* withThis)
{
	return _Replace(replaceThis, withThis, 1, 0, false);
}


BString&
BString::ReplaceLast(const char* replaceThis, const char* withThis)
{
	const int32 found = FindLast(replaceThis);
	return found >= 0 ? _Replace(replaceThis, withThis, 1, found, false) : *this;
}


BString&
BString::ReplaceAll(const char* replaceThis, const char* withThis, int32 fromOffset)
{
	return _Replace(replaceThis, withThis, INT32_MAX, fromOffset, false);
}


BString&
BString::Replace(const char* replaceThis, const char* withThis, int32 maxReplaceCount,
	int32 fromOffset)
{
	return _Replace(replaceThis, withThis, maxReplaceCount, fromOffset, false);
}


BString&
BString::IReplaceFirst(char replaceThis, char withThis)
{
	return IReplace(replaceThis, withThis, 1);
}


BString&
BString::IReplaceLast(char replaceThis, char withThis)
{
	const char text[] = {replaceThis, '\0'};
	const int32 index = IFindLast(text);
	return index >= 0 ? SetByteAt(index, withThis) : *this;
}


BString&
BString::IReplaceAll(char replaceThis, char withThis, int32 fromOffset)
{
	return IReplace(replaceThis, withThis, INT32_MAX, fromOffset);
}


BString&
BString::IReplace(char replaceThis, char withThis, int32 maxReplaceCount, int32 fromOffset)
{
	const char what[] = {replaceThis, '\0'};
	const char with[] = {withThis, '\0'};
	return _Replace(what, with, maxReplaceCount, fromOffset, true);
}


BString&
BString::IReplaceFirst(const char* replaceThis, const char* withThis)
{
	return _Replace(replaceThis, withThis, 1, 0, true);
}


BString&
BString::IReplaceLast(const char* replaceThis, const char* withThis)
{
	const int32 found = IFindLast(replaceThis);
	return found >= 0 ? _Replace(replaceThis, withThis, 1, found, true) : *this;
}


BString&
BString::IReplaceAll(const char* replaceThis, const char* withThis, int32 fromOffset)
{
	return _Replace(replaceThis, withThis, INT32_MAX, fromOffset, true);
}


BString&
BString::IReplace(const char* replaceThis, const char* withThis, int32 maxReplaceCount,
	int32 fromOffset)
{
	return _Replace(replaceThis, withThis, maxReplaceCount, fromOffset, true);
}


BString&
BString::ReplaceSet(const char* setOfBytes, char with)
{
	const char text[] = {with, '\0'};
	return ReplaceSet(setOfBytes, text);
}


BString&
BString::ReplaceSet(const char* setOfBytes, const char* with)
{
	if (setOfBytes == nullptr)
		return *this;
	std::string text;
	for (const char c : fData) {
		if (c == '\0' || strchr(setOfBytes, c) == nullptr)
			text += c;
		else if (with != nullptr)
			text += with;
	}
	fData = std::move(text);
	return *this;
}
