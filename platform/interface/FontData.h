// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FONT_DATA_H
#define FONT_DATA_H

#include <QFont>
#include <QString>

#include <Font.h>


namespace hosted {

struct FontData {
	static uint16 FamilyOf(const BFont& font) { return font.fFamily; }
	static void SetFamily(BFont& font, uint16 family) { font.fFamily = family; }
};

// The one place where a font becomes one of Qt's: whole pixels, no hinting, no kerning. Kept by the
// calling thread. Null as long as there is no display.
const QFont* ToQFont(const BFont& font);

// Whether the characters take their shapes from each other: Arabic, Indic and the like, and marks
// above and below letters.
bool NeedsShaping(const QString& text);

// The text as it is drawn: without the control characters, which have no width.
QString VisibleText(const char* text, int32 length);

// The advances of the text's characters, added up.
float TextWidth(const BFont& font, const QString& text);

// The length of the text's string, up to the first NUL, which is at most that.
int32 ClampedLength(const char* text, int32 length);

} // namespace hosted

#endif // FONT_DATA_H
