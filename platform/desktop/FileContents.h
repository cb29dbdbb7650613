// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FILE_CONTENTS_H
#define FILE_CONTENTS_H

#include <stdint.h>
#include <string>

#include "platform/desktop/FileTypeTables.h"


namespace hosted {

/*!	A plain file opened to look at a few places of it.

	Devices, pipes and links are not opened, so that nothing ever waits.
*/
class FileContents {
public:
	explicit FileContents(const std::string& path);
	~FileContents();
	FileContents(const FileContents&) = delete;
	FileContents& operator=(const FileContents&) = delete;

	bool IsOpen() const { return fFile >= 0; }
	uint64_t Size() const { return fSize; }

	// As many bytes as there are at that place, at most the wanted number.
	std::string Read(uint64_t offset, size_t size) const;

private:
	int fFile = -1;
	uint64_t fSize = 0;
};

// The type that these contents have, for the kinds that can be told by their first bytes; null for
// others.
const char* SniffType(const FileContents& contents);

// The type of a file whose extension leaves open whether it is audio or video; the extension's own
// where its contents do not decide.
const char* RefineType(const FileContents& contents, const ExtensionType& extension);

// What is in a container.
enum class Tracks {
	kUnknown,
	kAudio,
	kVideo,
};

Tracks TracksOfOgg(const FileContents& contents);
Tracks TracksOfMatroska(const FileContents& contents);
Tracks TracksOfMpeg4(const FileContents& contents);

} // namespace hosted

#endif // FILE_CONTENTS_H
