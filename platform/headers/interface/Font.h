// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FONT_H
#define FONT_H

#include <InterfaceDefs.h>
#include <Rect.h>
#include <SupportDefs.h>

class BString;

namespace hosted {
struct FontData;
}


typedef char font_family[64];
typedef char font_style[64];

enum { B_CHAR_SPACING = 0, B_STRING_SPACING, B_BITMAP_SPACING, B_FIXED_SPACING };

enum { B_DISABLE_ANTIALIASING = 0x00000001, B_FORCE_ANTIALIASING = 0x00000002 };

enum {
	B_ITALIC_FACE = 0x0001,
	B_UNDERSCORE_FACE = 0x0002,
	B_STRIKEOUT_FACE = 0x0010,
	B_BOLD_FACE = 0x0020,
	B_REGULAR_FACE = 0x0040
};

enum {
	B_NO_TRUNCATION = 0xffffffff,
	B_TRUNCATE_END = 0,
	B_TRUNCATE_BEGINNING = 1,
	B_TRUNCATE_MIDDLE = 2,
	B_TRUNCATE_SMART = 3
};

struct escapement_delta {
	float nonspace;
	float space;
};

struct font_height {
	float ascent;
	float descent;
	float leading;
};


class BFont {
public:
	// The plain font.
	BFont() = default;
	BFont(const BFont& font) = default;
	BFont(const BFont* font);

	status_t SetFamilyAndStyle(const font_family family, const font_style style);
	void GetFamilyAndStyle(font_family* family, font_style* style) const;

	void SetSize(float size) { fSize = size; }
	float Size() const { return fSize; }
	void SetFace(uint16 face) { fFace = face; }
	uint16 Face() const { return fFace; }
	void SetSpacing(uint8 spacing) { fSpacing = spacing; }
	uint8 Spacing() const { return fSpacing; }
	void SetFlags(uint32 flags) { fFlags = flags; }
	uint32 Flags() const { return fFlags; }

	// Widths count 0 as long as the application has no connection to the display.
	float StringWidth(const char* string) const;
	float StringWidth(const char* string, int32 length) const;
	void GetHeight(font_height* height) const;
	// Shortens the text to the width, with an ellipsis for what was removed.
	void TruncateString(BString* inOut, uint32 mode, float width) const;

	void PrintToStream() const;

	BFont& operator=(const BFont& font) = default;
	bool operator==(const BFont& font) const;
	bool operator!=(const BFont& font) const { return !(*this == font); }

private:
	friend struct hosted::FontData;

	float fSize = 12;
	uint32 fFlags = 0;
	// Index into the table of the families in use.
	uint16 fFamily = 0;
	uint16 fFace = B_REGULAR_FACE;
	uint8 fSpacing = B_BITMAP_SPACING;
};


extern const BFont* be_plain_font;
extern const BFont* be_bold_font;
extern const BFont* be_fixed_font;

#endif // FONT_H
