// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Shortening of texts to a width.
#include <Font.h>

#include <algorithm>
#include <string.h>
#include <string>
#include <vector>

#include <String.h>

#include "platform/interface/FontData.h"


namespace {

// A text that is a little too wide by rounding still fits.
constexpr float kTolerance = 1.0f / 128;
const char* const kEllipsis = "\xe2\x80\xa6";

struct Character {
	int32 offset;
	int32 length;
	float width;
};

// How many characters stay on either side of the ellipsis.
struct Kept {
	size_t left = 0;
	size_t right = 0;
};

bool
continues_character(char byte)
{
	return (static_cast<uint8>(byte) & 0xc0) == 0x80;
}


std::vector<Character>
split_characters(const BFont& font, const char* text)
{
	std::vector<Character> characters;
	for (int32 offset = 0; text[offset] != '\0';) {
		int32 length = 1;
		while (continues_character(text[offset + length]))
			length++;
		characters.push_back({offset, length, font.StringWidth(text + offset, length)});
		offset += length;
	}
	return characters;
}


Kept
keep_beginning(const std::vector<Character>& characters, float width)
{
	Kept kept;
	float used = 0;
	while (kept.left < characters.size() && used + characters[kept.left].width <= width)
		used += characters[kept.left++].width;
	return kept;
}


Kept
keep_end(const std::vector<Character>& characters, float width)
{
	Kept kept;
	float used = 0;
	while (kept.right < characters.size()) {
		used += characters[characters.size() - 1 - kept.right].width;
		if (used > width)
			break;
		kept.right++;
	}
	return kept;
}


/*!	Fills the whole width from both ends, the narrower side next and the right one when both are
	alike, then gives characters back until the ellipsis has room.
*/
Kept
keep_both_ends(const std::vector<Character>& characters, float width, float ellipsisWidth)
{
	const size_t count = characters.size();
	Kept kept;
	float leftWidth = 0;
	float rightWidth = 0;
	bool isLeftNext = true;
	while (kept.left + kept.right < count) {
		const Character& next = characters[isLeftNext ? kept.left : count - 1 - kept.right];
		if (leftWidth + rightWidth + next.width > width)
			break;
		if (isLeftNext) {
			leftWidth += next.width;
			kept.left++;
		} else {
			rightWidth += next.width;
			kept.right++;
		}
		isLeftNext = rightWidth > leftWidth;
	}
	while (kept.left + kept.right > 0 && leftWidth + rightWidth + ellipsisWidth > width) {
		if (kept.right == 0 || (leftWidth > rightWidth && kept.left > 0))
			leftWidth -= characters[--kept.left].width;
		else
			rightWidth -= characters[count - kept.right--].width;
	}
	return kept;
}

} // namespace


void
BFont::TruncateString(BString* inOut, uint32 mode, float width) const
{
	if (inOut == nullptr || mode == B_NO_TRUNCATION)
		return;
	const std::string text = inOut->String();
	if (StringWidth(text.c_str()) <= width + kTolerance)
		return;
	const float ellipsisWidth = StringWidth(kEllipsis);
	if (ellipsisWidth > width) {
		inOut->SetTo("");
		return;
	}

	const std::vector<Character> characters = split_characters(*this, text.c_str());
	Kept kept;
	switch (mode) {
		case B_TRUNCATE_BEGINNING:
			kept = keep_end(characters, width - ellipsisWidth);
			break;
		case B_TRUNCATE_END:
			kept = keep_beginning(characters, width - ellipsisWidth);
			break;
		default:
			kept = keep_both_ends(characters, width, ellipsisWidth);
			break;
	}

	std::string result;
	for (size_t index = 0; index < kept.left; index++)
		result.append(text, characters[index].offset, characters[index].length);
	result += kEllipsis;
	for (size_t index = characters.size() - kept.right; index < characters.size(); index++)
		result.append(text, characters[index].offset, characters[index].length);
	inOut->SetTo(result.c_str());
}
