// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Any bytes may be a picture, a media file, a file's type or the color of a drop.
#include <memory>
#include <string>

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
	Require(bitmap == nullptr || bitmap->Bounds().IsValid(), "a picture with a size");
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


// The first byte of an input chooses what is tried with the others.
extern "C" int
LLVMFuzzerInitialize(int* argc, char*** argv)
{
	using namespace std::string_literals;
	const std::string bitmap = "BM\x3a\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0"s
		+ std::string(28, '\0');
	const std::string sound = "RIFF\x2c\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x80\x3e\0\0"s
		+ "\2\0\x10\0data\x08\0\0\0abcdefgh"s;
	AddSeeds(argc, argv,
		{"\0"s + bitmap, "\0\xff\xd8\xff\xe0\0\x10JFIF\0"s, "\1"s + sound, "\1ID3\3\0\0\0\0\0\0"s,
			"\2audio/mpeg\0"s, "\3\1\2\3\4"s});
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
