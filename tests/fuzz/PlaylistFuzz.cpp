// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Any bytes may be a playlist file: each title has an absolute path of one line, and what was read
// is the same after it was written and read again.
#include <string>
#include <vector>

#include <string.h>

#include <List.h>
#include <Path.h>

#include "tests/fuzz/FuzzFolder.h"
#include "window/PathLists.h"
#include "window/PlaylistFile.h"

// What the fuzzer calls.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// A line that is longer is taken apart, with its prefix.
static constexpr size_t kLongestPath = 1000;


static std::vector<std::string>
paths_of(const BList& list)
{
	std::vector<std::string> paths;
	for (int32 index = 0; index < list.CountItems(); index++) {
		const char* const path = PathAt(&list, index)->Path();
		Require(path != nullptr && path[0] == '/', "an absolute path");
		Require(strpbrk(path, "\r\n") == nullptr, "a path of one line");
		paths.push_back(path);
	}
	return paths;
}


// A title whose path is very short or long is none, or several, when it is read again.
static bool
comes_back(const std::vector<std::string>& paths)
{
	for (const std::string& path : paths) {
		if (path.size() <= 5 || path.size() > kLongestPath)
			return false;
	}
	return true;
}


extern "C" int
LLVMFuzzerInitialize(int* argc, char*** argv)
{
	AddSeeds(argc, argv,
		{"#EXTM3U\r\n;x\r\nfile:///music/a.mp3\r\nC:\\Music\\b.mp3\r\nalbum/c.mp3\r\n",
			"\xEF\xBB\xBF/music/\xC3\xBC.mp3\n/\xFF/../../x\n./a/../..\n",
			"/" + std::string(2000, 'x'), "file://file:///music/a.mp3\n//a//b/\n/......\n"});
	return 0;
}


extern "C" int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	static const std::string sRead = FuzzFolder() + "/list.m3u";
	static const std::string sWritten = FuzzFolder() + "/written.m3u";
	WriteBytes(sRead, data, size);

	BList list;
	bool withPrefix = false;
	Require(ReadPlaylist(sRead.c_str(), &list, &withPrefix), "a list of any file");
	const std::vector<std::string> paths = paths_of(list);
	Require(WritePlaylist(sWritten.c_str(), list, withPrefix), "a file of any list");
	EmptyPathList(&list);

	bool isPrefixed = false;
	Require(ReadPlaylist(sWritten.c_str(), &list, &isPrefixed), "a list of what was written");
	if (comes_back(paths)) {
		Require(paths_of(list) == paths, "the same titles");
		Require(isPrefixed == (withPrefix && !paths.empty()), "the same form");
	}
	EmptyPathList(&list);
	return 0;
}
