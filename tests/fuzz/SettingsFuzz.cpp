// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Attributes of any type, size and contents on the settings file: they are loaded, saved, and
// loaded again with the same result.
#include <string>
#include <string_view>
#include <vector>

#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include <File.h>
#include <TypeConstants.h>

#include "settings/Prefs.h"
#include "settings/PrefsTable.h"
#include "tests/fuzz/FuzzFolder.h"

// What the fuzzer calls.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);


static std::vector<const char*>
all_keys()
{
	std::vector<const char*> keys = {kBackColorKey};
	for (const TextPref& pref : kTextPrefs)
		keys.push_back(pref.key);
	for (const FlagPref& pref : kFlagPrefs)
		keys.push_back(pref.key);
	for (const FramePref& pref : kFramePrefs)
		keys.push_back(pref.key);
	for (const NumberPref& pref : kNumberPrefs)
		keys.push_back(pref.key);
	return keys;
}


// Records of a key's number, a type's number, a size, and so many bytes.
static void
write_attributes(BFile& file, std::string_view input)
{
	static const std::vector<const char*> sKeys = all_keys();
	static const type_code kTypes[] = {B_STRING_TYPE, B_BOOL_TYPE, B_RECT_TYPE, B_INT32_TYPE,
		B_RGB_COLOR_TYPE, B_RAW_TYPE, B_INT64_TYPE, 0};
	while (input.size() > 3) {
		const char* const key = sKeys[static_cast<uint8_t>(input[0]) % sKeys.size()];
		const type_code type = kTypes[static_cast<uint8_t>(input[1]) % 8];
		const size_t wished = static_cast<uint8_t>(input[2]) * 2;
		input.remove_prefix(3);
		const std::string value(input.substr(0, wished));
		file.WriteAttr(key, type, 0, value.data(), value.size());
		input.remove_prefix(value.size());
	}
}


static bool
are_equal(const Prefs& left, const Prefs& right)
{
	for (const TextPref& pref : kTextPrefs) {
		const char* const text = pref.buffer(const_cast<Prefs&>(left));
		if (strcmp(text, pref.buffer(const_cast<Prefs&>(right))) != 0)
			return false;
	}
	for (const FlagPref& pref : kFlagPrefs) {
		if (left.*pref.field != right.*pref.field)
			return false;
	}
	// Byte for byte: what is not a number equals not even itself.
	for (const FramePref& pref : kFramePrefs) {
		if (memcmp(&(left.*pref.field), &(right.*pref.field), sizeof(BRect)) != 0)
			return false;
	}
	for (const NumberPref& pref : kNumberPrefs) {
		if (left.*pref.field != right.*pref.field)
			return false;
	}
	return left.altWinBackCol == right.altWinBackCol;
}


extern "C" int
LLVMFuzzerInitialize(int* argc, char*** argv)
{
	using namespace std::string_literals;
	AddSeeds(argc, argv,
		{"\0\4\2\1\2\3\4"s, "\1\0\2text"s, "\7\0\200"s + std::string(256, 'x'), "\12\1\1\7xx"s,
			"\27\2\10"s + std::string(16, '\x7f'), "\33\3\2\377\377\377\177"s});
	return 0;
}


extern "C" int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	static const std::string sPath = [] {
		FuzzFolder();
		return std::string(getenv("XDG_CONFIG_HOME")) + "/" + kSettingsFileName;
	}();
	unlink(sPath.c_str());
	BFile file(sPath.c_str(), B_READ_WRITE | B_CREATE_FILE);
	write_attributes(file, std::string_view(reinterpret_cast<const char*>(data), size));

	Prefs first;
	Require(!first.fError, "settings that load");
	for (const TextPref& pref : kTextPrefs)
		Require(strnlen(pref.buffer(first), pref.capacity) < pref.capacity, "an end of a text");
	Require(first.Save(), "settings that are saved");
	const Prefs second;
	Require(are_equal(first, second), "the same settings");
	return 0;
}
