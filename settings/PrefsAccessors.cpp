// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Reading and writing of single settings.
#include "settings/Prefs.h"

#include <stdio.h>
#include <string.h>

#include <TypeConstants.h>

#include "settings/PrefsTable.h"


bool
Prefs::GetInt(const char* key, long* value, const long* deflt)
{
	// The setting has four bytes wherever a long has more.
	int32 stored = static_cast<int32>(*value);
	const ssize_t size = fFile->ReadAttr(key, B_INT32_TYPE, 0, &stored, sizeof(stored));
	if (size == B_ENTRY_NOT_FOUND) {
		stored = static_cast<int32>(*deflt);
		*value = *deflt;
		return _StoreDefault(key, B_INT32_TYPE, &stored, sizeof(stored));
	}
	if (size < 0)
		return _ReportReadError(key, size);

	*value = stored;
	return true;
}


bool
Prefs::GetBool(const char* key, bool* value, const bool* deflt)
{
	// Read as a number: any byte may be stored, but not any byte is a bool.
	uint8 stored = *value ? 1 : 0;
	const ssize_t size = fFile->ReadAttr(key, B_BOOL_TYPE, 0, &stored, sizeof(stored));
	if (size == B_ENTRY_NOT_FOUND) {
		*value = *deflt;
		return _StoreDefault(key, B_BOOL_TYPE, deflt, sizeof(bool));
	}
	if (size < 0)
		return _ReportReadError(key, size);

	*value = stored != 0;
	return true;
}


bool
Prefs::GetRect(const char* key, BRect* value, const BRect* deflt)
{
	static_assert(sizeof(BRect) == 16, "a frame is stored as four floats");
	const ssize_t size = fFile->ReadAttr(key, B_RECT_TYPE, 0, value, sizeof(BRect));
	if (size == B_ENTRY_NOT_FOUND) {
		*value = *deflt;
		return _StoreDefault(key, B_RECT_TYPE, deflt, sizeof(BRect));
	}
	if (size < 0)
		return _ReportReadError(key, size);

	return true;
}


bool
Prefs::GetStr(const char* key, char* value, const char* deflt)
{
	char stored[kMaxTextSize];
	const ssize_t size = fFile->ReadAttr(key, B_STRING_TYPE, 0, stored, sizeof(stored));
	if (size == B_ENTRY_NOT_FOUND)
		return _StoreDefault(key, B_STRING_TYPE, deflt, strlen(deflt));
	if (size < 0)
		return _ReportReadError(key, size);

	// A text that was stored as a default has no terminator.
	const size_t length = strnlen(stored, static_cast<size_t>(size));
	const size_t capacity = _CapacityOf(value);
	const size_t kept = length < capacity ? length : capacity - 1;
	memcpy(value, stored, kept);
	value[kept] = '\0';
	return true;
}


bool
Prefs::GetCol(const char* key, rgb_color* value, const rgb_color*)
{
	rgb_color stored;
	const ssize_t size = fFile->ReadAttr(key, B_RGB_COLOR_TYPE, 0, &stored, sizeof(stored));
	if (size != static_cast<ssize_t>(sizeof(stored))) {
		printf("  Err %s \n", key);
		return true;
	}

	*value = stored;
	return true;
}


bool
Prefs::PutInt(const char* key, const long* value)
{
	const int32 stored = static_cast<int32>(*value);
	return _Write(key, B_INT32_TYPE, &stored, sizeof(stored));
}


bool
Prefs::PutBool(const char* key, const bool* value)
{
	return _Write(key, B_BOOL_TYPE, value, sizeof(bool));
}


bool
Prefs::PutRect(const char* key, const BRect* value)
{
	return _Write(key, B_RECT_TYPE, value, sizeof(BRect));
}


bool
Prefs::PutStr(const char* key, const char* value)
{
	return _Write(key, B_STRING_TYPE, value, strlen(value) + 1);
}


bool
Prefs::PutCol(const char* key, const rgb_color* value)
{
	return _Write(key, B_RGB_COLOR_TYPE, value, sizeof(rgb_color));
}


size_t
Prefs::_CapacityOf(const char* buffer) const
{
	for (const TextPref& pref : kTextPrefs) {
		if (pref.buffer(const_cast<Prefs&>(*this)) == buffer)
			return pref.capacity;
	}
	return kMaxTextSize;
}


bool
Prefs::_StoreDefault(const char* key, uint32 type, const void* value, size_t size)
{
	if (fFile->WriteAttr(key, type, 0, value, size) >= 0)
		return true;

	printf("WriteAttr on %s died\n", key);
	fError = true;
	return false;
}


bool
Prefs::_ReportReadError(const char* key, ssize_t error)
{
	printf("Unknown error reading %s:\n%s\n", key, strerror(static_cast<int>(error)));
	fError = true;
	return false;
}


bool
Prefs::_Write(const char* key, uint32 type, const void* value, size_t size)
{
	const ssize_t written = fFile->WriteAttr(key, type, 0, value, size);
	if (written >= 0)
		return true;

	printf("Unknown error writing %s:\n%s\n", key, strerror(static_cast<int>(written)));
	fError = true;
	return false;
}
