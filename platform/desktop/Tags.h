// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TAGS_H
#define TAGS_H

#include <string>

#include <SupportDefs.h>


namespace hosted {

// What a title says about itself. Texts are UTF-8, empty if absent; the track is 0 if absent.
struct Tags {
	std::string artist;
	std::string title;
	std::string album;
	int32 track = 0;
};

/*!	Reads the tags of an audio or video file of any common kind. Nothing is found in what is no
	plain file, cannot be opened or is damaged; the amount that is read for them is bounded, however
	big the file is.

	The last file is remembered as long as it stays as it was. Callable from any thread.
*/
Tags ReadTags(const std::string& path);

} // namespace hosted

#endif // TAGS_H
