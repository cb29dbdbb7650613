// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Any bytes may be a picture, a media file, a file's type or the color of a drop.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <stdlib.h>

#include <Bitmap.h>
#include <Entry.h>
#include <Message.h>
#include <Node.h>
#include <TypeConstants.h>

#include "settings/Helpers.h"
#include "tests/fuzz/FuzzFolder.h"

// What the fuzzer calls.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);


static void
try_picture(const std::string& path)
{
	const std::unique_ptr<BBitmap> bitmap(GetImage(path.c_str()));
	if (bitmap == nullptr)
		return;
	const BRect bounds = bitmap->Bounds();
	Require(bounds.IsValid(), "a picture with a size");
	// Its pixels are decoded only now. Larger ones would take most of the time.
	if ((bounds.Width() + 1) * (bounds.Height() + 1) <= 1000000)
		Require(bitmap->Bits() != nullptr, "pixels");
}


static void
try_duration(const std::string& path)
{
	entry_ref ref;
	Require(get_ref_for_path(path.c_str(), &ref) == B_OK, "the file");
	long seconds = -1;
	GetMediaDuration(&ref, &seconds);
	Require(seconds != -1, "a duration");
}


static void
try_type(const std::string& path, const std::string& bytes)
{
	BNode node(path.c_str());
	node.WriteAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, bytes.data(), bytes.size());
	const bool isAudio = IsNodeTypeOk(path.c_str(), "audio/");
	Require(!isAudio || bytes.find("audio/") != std::string::npos, "a type that is written there");
}


static void
try_color(const std::string& path, const std::string& bytes)
{
	const rgb_color deflt = {1, 2, 3, 4};
	BMessage color(B_PASTE);
	color.AddData("RGBColor", B_RGB_COLOR_TYPE, bytes.data(), static_cast<ssize_t>(bytes.size()));
	const bool isColor = HasMsgColor(&color, deflt) != deflt;
	Require(!isColor || bytes.size() >= sizeof(rgb_color), "a whole color in the message");

	BNode node(path.c_str());
	node.WriteAttr("RGBCOLOR", B_RGB_COLOR_TYPE, 0, bytes.data(), bytes.size());
	entry_ref ref;
	get_ref_for_path(path.c_str(), &ref);
	BMessage drop(B_SIMPLE_DATA);
	drop.AddRef("refs", &ref);
	const bool isDropped = HasMsgColor(&drop, deflt) != deflt;
	Require(!isDropped || bytes.size() >= sizeof(rgb_color), "a whole color on the file");
}


// Small files of many formats, made with the tools that the tests use as well. What a tool cannot
// make here is left out.
static std::vector<std::string>
sample_files()
{
	const std::string folder = FuzzFolder() + "/samples";
	std::filesystem::create_directory(folder);
	std::string commands = "cd '" + folder + "' && exec 2> /dev/null\n";
	for (const char* format :
		{"jpg", "png", "gif", "bmp", "webp", "tif", "tga", "ico", "xpm", "mng"})
		commands += std::string("convert -size 9x7 gradient:red-blue 0.") + format + "\n";
	commands += "ffmpeg -nostdin -v quiet -f lavfi -i sine=duration=0.2:sample_rate=16000";
	for (const char* format : {"mp3", "flac", "ogg", "opus", "m4a", "wav", "wma", "mka", "webm",
			 "avi", "ts", "aiff", "wv"})
		commands += std::string(" -y 1.") + format;
	const int result = system(commands.c_str());
	static_cast<void>(result);

	std::vector<std::string> samples;
	for (const auto& entry : std::filesystem::directory_iterator(folder)) {
		std::ifstream file(entry.path(), std::ios::binary);
		const std::string kind(1, entry.path().filename().string()[0] == '0' ? '\0' : '\1');
		samples.push_back(kind
			+ std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
	}
	std::filesystem::remove_all(folder);
	return samples;
}


// The first byte of an input chooses what is tried with the others.
extern "C" int
LLVMFuzzerInitialize(int* argc, char*** argv)
{
	using namespace std::string_literals;
	std::vector<std::string> seeds = sample_files();
	for (const std::string& other : {"\2audio/mpeg\0"s, "\3\1\2\3\4"s})
		seeds.push_back(other);
	AddSeeds(argc, argv, seeds);
	return 0;
}


extern "C" int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	static const std::string sPath = FuzzFolder() + "/file";
	if (size == 0)
		return 0;
	const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
	remove(sPath.c_str());
	WriteBytes(sPath, data + 1, size - 1);
	switch (data[0] % 4) {
		case 0:
			try_picture(sPath);
			break;
		case 1:
			try_duration(sPath);
			break;
		case 2:
			try_type(sPath, bytes);
			break;
		default:
			try_color(sPath, bytes);
			break;
	}
	return 0;
}
