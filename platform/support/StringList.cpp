// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <StringList.h>

#include <TypeConstants.h>
#include <algorithm>
#include <string.h>


BStringList::BStringList(int32 count)
{
	fStrings.reserve(static_cast<size_t>(std::max(count, 0)));
}


BStringList::BStringList(const BStringList& other) = default;


BStringList::~BStringList() = default;


bool
BStringList::Add(const BString& string, int32 index)
{
	if (index < 0 || index > CountStrings())
		return false;
	fStrings.insert(fStrings.begin() + index, BString(string));
	return true;
}


bool
BStringList::Add(const BString& string)
{
	return Add(string, CountStrings());
}


bool
BStringList::Add(const BStringList& list, int32 index)
{
	if (index < 0 || index > CountStrings())
		return false;
	const std::vector<BString> strings = list.fStrings;
	fStrings.insert(fStrings.begin() + index, strings.begin(), strings.end());
	return true;
}


bool
BStringList::Add(const BStringList& list)
{
	return Add(list, CountStrings());
}


bool
BStringList::Remove(const BString& string, bool ignoreCase)
{
	const BString wanted = string;
	const auto isWanted = [&](const BString& item) {
		return (ignoreCase ? item.ICompare(wanted) : item.Compare(wanted)) == 0;
	};
	const auto end = std::remove_if(fStrings.begin(), fStrings.end(), isWanted);
	const bool removed = end != fStrings.end();
	fStrings.erase(end, fStrings.end());
	return removed;
}


void
BStringList::Remove(const BStringList& list, bool ignoreCase)
{
	const std::vector<BString> strings = list.fStrings;
	for (const BString& string : strings)
		Remove(string, ignoreCase);
}


BString
BStringList::Remove(int32 index)
{
	const BString string = StringAt(index);
	Remove(index, 1);
	return string;
}


bool
BStringList::Remove(int32 index, int32 count)
{
	if (index < 0 || index >= CountStrings() || count <= 0)
		return false;
	count = std::min(count, CountStrings() - index);
	fStrings.erase(fStrings.begin() + index, fStrings.begin() + index + count);
	return true;
}


bool
BStringList::Replace(int32 index, const BString& string)
{
	if (index < 0 || index >= CountStrings())
		return false;
	fStrings[static_cast<size_t>(index)] = string;
	return true;
}


void
BStringList::MakeEmpty()
{
	fStrings.clear();
}


void
BStringList::Sort(bool ignoreCase)
{
	std::sort(fStrings.begin(), fStrings.end(), [=](const BString& a, const BString& b) {
		return (ignoreCase ? a.ICompare(b) : a.Compare(b)) < 0;
	});
}


bool
BStringList::Swap(int32 indexA, int32 indexB)
{
	if (indexA < 0 || indexA >= CountStrings() || indexB < 0 || indexB >= CountStrings())
		return false;
	std::swap(fStrings[static_cast<size_t>(indexA)], fStrings[static_cast<size_t>(indexB)]);
	return true;
}


bool
BStringList::Move(int32 fromIndex, int32 toIndex)
{
	if (fromIndex < 0 || fromIndex >= CountStrings() || toIndex < 0 || toIndex >= CountStrings())
		return false;
	const BString string = Remove(fromIndex);
	return Add(string, toIndex);
}


BString
BStringList::StringAt(int32 index) const
{
	if (index < 0 || index >= CountStrings())
		return BString();
	return fStrings[static_cast<size_t>(index)];
}


BString
BStringList::First() const
{
	return StringAt(0);
}


BString
BStringList::Last() const
{
	return StringAt(CountStrings() - 1);
}


bool
BStringList::HasString(const BString& string, bool ignoreCase) const
{
	return IndexOf(string, ignoreCase) >= 0;
}


int32
BStringList::IndexOf(const BString& string, bool ignoreCase) const
{
	for (int32 index = 0; index < CountStrings(); index++) {
		const BString& item = fStrings[static_cast<size_t>(index)];
		if ((ignoreCase ? item.ICompare(string) : item.Compare(string)) == 0)
			return index;
	}
	return -1;
}


int32
BStringList::CountStrings() const
{
	return static_cast<int32>(fStrings.size());
}


bool
BStringList::IsEmpty() const
{
	return fStrings.empty();
}


BString
BStringList::Join(const char* separator, int32 length) const
{
	const BString between = length < 0 ? BString(separator) : BString(separator, length);
	BString joined;
	for (const BString& string : fStrings) {
		if (&string != &fStrings.front())
			joined += between;
		joined += string;
	}
	return joined;
}


void
BStringList::DoForEach(bool (*func)(const BString& string))
{
	for (int32 index = 0; index < CountStrings(); index++) {
		if (func(fStrings[static_cast<size_t>(index)]))
			return;
	}
}


void
BStringList::DoForEach(bool (*func)(const BString& string, void* arg2), void* arg2)
{
	for (int32 index = 0; index < CountStrings(); index++) {
		if (func(fStrings[static_cast<size_t>(index)], arg2))
			return;
	}
}


BStringList&
BStringList::operator=(const BStringList& other)
{
	if (this != &other)
		fStrings = other.fStrings;
	return *this;
}


bool
BStringList::operator==(const BStringList& other) const
{
	return fStrings == other.fStrings;
}


bool
BStringList::operator!=(const BStringList& other) const
{
	return !(*this == other);
}


bool
BStringList::IsFixedSize() const
{
	return false;
}


type_code
BStringList::TypeCode() const
{
	return B_STRING_LIST_TYPE;
}


bool
BStringList::AllowsTypeCode(type_code code) const
{
	return code == B_STRING_LIST_TYPE;
}


ssize_t
BStringList::FlattenedSize() const
{
	ssize_t size = 0;
	for (const BString& string : fStrings)
		size += string.Length() + 1;
	return size;
}


status_t
BStringList::Flatten(void* buffer, ssize_t size) const
{
	if (buffer == nullptr || size < FlattenedSize())
		return B_NO_MEMORY;
	char* target = static_cast<char*>(buffer);
	for (const BString& string : fStrings) {
		memcpy(target, string.String(), static_cast<size_t>(string.Length()) + 1);
		target += string.Length() + 1;
	}
	return B_OK;
}


status_t
BStringList::Unflatten(type_code code, const void* buffer, ssize_t size)
{
	if (code != B_STRING_LIST_TYPE || size < 0 || (buffer == nullptr && size > 0))
		return B_BAD_VALUE;
	const char* source = static_cast<const char*>(buffer);
	if (size > 0 && source[size - 1] != '\0')
		return B_BAD_VALUE;

	MakeEmpty();
	for (const char* end = source + size; source != end; source += Last().Length() + 1)
		Add(BString(source));
	return B_OK;
}
