// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/ComputedAttributes.h"

#include <string.h>

#include <TypeConstants.h>

#include "platform/desktop/FileTypes.h"
#include "platform/desktop/Tags.h"


namespace hosted {

namespace {

bool
give_text(const std::string& text, type_code textType, type_code* type, std::string* value)
{
	if (text.empty())
		return false;
	*type = textType;
	value->assign(text.c_str(), text.size() + 1);
	return true;
}

} // namespace


bool
ComputeAttribute(const std::string& path, const char* name, type_code* type, std::string* value)
{
	constexpr const char* kAudio = "Audio:";
	if (strcmp(name, "BEOS:TYPE") == 0)
		return give_text(FileType(path), B_MIME_STRING_TYPE, type, value);
	if (strncmp(name, kAudio, strlen(kAudio)) != 0)
		return false;

	const std::string field = name + strlen(kAudio);
	if (field == "Artist")
		return give_text(ReadTags(path).artist, B_STRING_TYPE, type, value);
	if (field == "Title")
		return give_text(ReadTags(path).title, B_STRING_TYPE, type, value);
	if (field == "Album")
		return give_text(ReadTags(path).album, B_STRING_TYPE, type, value);
	if (field != "Track")
		return false;

	const int32 track = ReadTags(path).track;
	if (track == 0)
		return false;
	*type = B_INT32_TYPE;
	value->assign(reinterpret_cast<const char*>(&track), sizeof(track));
	return true;
}

} // namespace hosted
