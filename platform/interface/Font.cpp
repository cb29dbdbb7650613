// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Font.h>

#include <algorithm>
#include <array>
#include <deque>
#include <math.h>
#include <mutex>
#include <stdio.h>
#include <string.h>
#include <string>
#include <unordered_map>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

#include <Errors.h>

#include "platform/interface/FontData.h"
#include "platform/screen/DisplayThread.h"

using hosted::FontData;


namespace {

const char* const kPlainFamily = "Noto Sans";
const char* const kFixedFamily = "Noto Sans Mono";

enum : uint16 { kPlainIndex = 0, kFixedIndex = 1 };

// The names of all families that fonts were set to; a font stores an index.
struct Families {
	std::mutex mutex;
	std::deque<std::string> names = {kPlainFamily, kFixedFamily};
};

// Lives as long as the process: fonts may be used while static objects are destroyed.
Families&
families()
{
	static Families* sFamilies = new Families;
	return *sFamilies;
}


std::string
family_name(uint16 index)
{
	Families& shared = families();
	std::lock_guard<std::mutex> lock(shared.mutex);
	return shared.names[index];
}


bool
is_installed(const char* name)
{
	return hosted::DisplayThread::IsRunning()
		&& QFontDatabase::families().contains(QString::fromUtf8(name));
}


// The index of a known or installed family, -1 for others.
int32
index_of_family(const char* name)
{
	Families& shared = families();
	{
		std::lock_guard<std::mutex> lock(shared.mutex);
		for (size_t index = 0; index < shared.names.size(); index++) {
			if (shared.names[index] == name)
				return static_cast<int32>(index);
		}
	}
	if (!is_installed(name))
		return -1;
	std::lock_guard<std::mutex> lock(shared.mutex);
	shared.names.push_back(name);
	return static_cast<int32>(shared.names.size()) - 1;
}


struct FontStyle {
	const char* name;
	uint16 face;
};

const std::array<FontStyle, 4> kStyles = {{
	{"Regular", B_REGULAR_FACE},
	{"Bold", B_BOLD_FACE},
	{"Italic", B_ITALIC_FACE},
	{"Bold Italic", B_BOLD_FACE | B_ITALIC_FACE},
}};


// A font of the calling thread with its measures.
struct MeasuredFont {
	QFont font;
	QFontMetricsF metrics;
	std::unordered_map<uint32, float> advances;
	// Those of the ASCII characters, negative as long as they are not known.
	std::array<float, 128> asciiAdvances;

	explicit MeasuredFont(const QFont& font)
		:
		font(font),
		metrics(font)
	{
		std::fill(asciiAdvances.begin(), asciiAdvances.begin() + 0x20, 0.0f);
		std::fill(asciiAdvances.begin() + 0x20, asciiAdvances.end(), -1.0f);
		asciiAdvances[0x7f] = 0;
	}

	// The sum for a text of nothing but ASCII, negative for others.
	float AsciiWidth(const char* text, int32 length)
	{
		float width = 0;
		for (int32 index = 0; index < length; index++) {
			const uint8 character = static_cast<uint8>(text[index]);
			if (character >= asciiAdvances.size())
				return -1;
			float& advance = asciiAdvances[character];
			if (advance < 0)
				advance = static_cast<float>(metrics.horizontalAdvance(QChar(character)));
			width += advance;
		}
		return width;
	}

	float AdvanceOf(const QString& text, int start, int length, uint32 character)
	{
		const auto known = advances.find(character);
		if (known != advances.end())
			return known->second;
		const float advance
			= static_cast<float>(metrics.horizontalAdvance(text.mid(start, length)));
		advances.emplace(character, advance);
		return advance;
	}
};


QFont
make_font(const BFont& font)
{
	QFont result(QString::fromStdString(family_name(FontData::FamilyOf(font))));
	result.setPixelSize(std::max(1, static_cast<int>(roundf(font.Size()))));
	result.setBold((font.Face() & B_BOLD_FACE) != 0);
	result.setItalic((font.Face() & B_ITALIC_FACE) != 0);
	result.setUnderline((font.Face() & B_UNDERSCORE_FACE) != 0);
	result.setStrikeOut((font.Face() & B_STRIKEOUT_FACE) != 0);
	result.setHintingPreference(QFont::PreferNoHinting);
	result.setKerning(false);
	QFont::StyleStrategy strategy = QFont::NoSubpixelAntialias;
	if ((font.Flags() & B_DISABLE_ANTIALIASING) != 0)
		strategy = QFont::NoAntialias;
	result.setStyleStrategy(static_cast<QFont::StyleStrategy>(strategy | QFont::PreferNoShaping));
	return result;
}


// Null without a display, where Qt would end the process.
MeasuredFont*
measured_font(const BFont& font)
{
	if (!hosted::DisplayThread::IsRunning())
		return nullptr;
	thread_local std::unordered_map<uint64, MeasuredFont> sFonts;
	const uint64 size = static_cast<uint64>(std::clamp(roundf(font.Size()), 1.0f, 4096.0f));
	const uint64 key = static_cast<uint64>(FontData::FamilyOf(font)) << 32
		| static_cast<uint64>(font.Face()) << 48 | (font.Flags() & B_DISABLE_ANTIALIASING) << 16
		| size;
	auto found = sFonts.find(key);
	if (found == sFonts.end())
		found = sFonts.emplace(key, MeasuredFont(make_font(font))).first;
	return &found->second;
}

} // namespace


namespace hosted {

const QFont*
ToQFont(const BFont& font)
{
	const MeasuredFont* measured = measured_font(font);
	return measured == nullptr ? nullptr : &measured->font;
}


bool
NeedsShaping(const QString& text)
{
	struct Range {
		char16_t first;
		char16_t last;
	};
	// Marks; Hebrew to Tibetan and Hangul's parts; Khmer and Mongolian; joiners; their kin.
	static constexpr std::array<Range, 7> kRanges = {{
		{0x0300, 0x036f},
		{0x0591, 0x10ff},
		{0x1100, 0x11ff},
		{0x1700, 0x1cff},
		{0x200c, 0x200d},
		{0x20d0, 0x20ff},
		{0xa880, 0xabff},
	}};
	return std::any_of(text.begin(), text.end(), [](QChar character) {
		return std::any_of(kRanges.begin(), kRanges.end(), [character](const Range& range) {
			return character.unicode() >= range.first && character.unicode() <= range.last;
		});
	});
}


int32
ClampedLength(const char* text, int32 length)
{
	if (text == nullptr || length <= 0)
		return 0;
	return static_cast<int32>(strnlen(text, static_cast<size_t>(length)));
}


QString
VisibleText(const char* text, int32 length)
{
	QString result = QString::fromUtf8(text, length);
	result.removeIf(
		[](QChar character) { return character.unicode() < 0x20 || character.unicode() == 0x7f; });
	return result;
}


float
TextWidth(const BFont& font, const QString& text)
{
	MeasuredFont* measured = measured_font(font);
	if (measured == nullptr)
		return 0;
	float width = 0;
	const int count = static_cast<int>(text.size());
	for (int index = 0; index < count; index++) {
		uint32 character = text[index].unicode();
		int length = 1;
		if (text[index].isHighSurrogate() && index + 1 < count) {
			character = QChar::surrogateToUcs4(text[index], text[index + 1]);
			length = 2;
		}
		width += measured->AdvanceOf(text, index, length, character);
		index += length - 1;
	}
	return width;
}

} // namespace hosted


// The constructor has no side effects, so the order of construction does not matter.
static BFont
make_font(uint16 family, uint16 face)
{
	BFont font;
	FontData::SetFamily(font, family);
	font.SetFace(face);
	return font;
}


static const BFont sPlainFont;
static const BFont sBoldFont = make_font(kPlainIndex, B_BOLD_FACE);
static const BFont sFixedFont = make_font(kFixedIndex, B_REGULAR_FACE);

const BFont* be_plain_font = &sPlainFont;
const BFont* be_bold_font = &sBoldFont;
const BFont* be_fixed_font = &sFixedFont;


BFont::BFont(const BFont* font)
	:
	BFont()
{
	if (font != nullptr)
		*this = *font;
}


status_t
BFont::SetFamilyAndStyle(const font_family family, const font_style style)
{
	if (family == nullptr && style == nullptr)
		return B_BAD_VALUE;
	int32 index = fFamily;
	if (family != nullptr)
		index = index_of_family(family);
	if (index < 0)
		return B_NAME_NOT_FOUND;
	uint16 face = B_REGULAR_FACE;
	if (style != nullptr) {
		const auto found = std::find_if(kStyles.begin(), kStyles.end(),
			[style](const FontStyle& entry) { return strcmp(entry.name, style) == 0; });
		if (found == kStyles.end())
			return B_NAME_NOT_FOUND;
		face = found->face;
	}
	fFamily = static_cast<uint16>(index);
	fFace = face;
	return B_OK;
}


void
BFont::GetFamilyAndStyle(font_family* family, font_style* style) const
{
	if (family != nullptr)
		snprintf(*family, sizeof(*family), "%s", family_name(fFamily).c_str());
	if (style == nullptr)
		return;
	const uint16 face = fFace & (B_BOLD_FACE | B_ITALIC_FACE);
	const char* name = kStyles[0].name;
	for (const FontStyle& entry : kStyles) {
		if (entry.face == face)
			name = entry.name;
	}
	snprintf(*style, sizeof(*style), "%s", name);
}


float
BFont::StringWidth(const char* string) const
{
	if (string == nullptr)
		return 0;
	return StringWidth(string, static_cast<int32>(strlen(string)));
}


float
BFont::StringWidth(const char* string, int32 length) const
{
	length = hosted::ClampedLength(string, length);
	MeasuredFont* measured = length == 0 ? nullptr : measured_font(*this);
	if (measured == nullptr)
		return 0;
	const float width = measured->AsciiWidth(string, length);
	return width >= 0 ? width : hosted::TextWidth(*this, hosted::VisibleText(string, length));
}


void
BFont::GetHeight(font_height* height) const
{
	if (height == nullptr)
		return;
	*height = {0, 0, 0};
	const MeasuredFont* measured = measured_font(*this);
	if (measured == nullptr)
		return;
	height->ascent = static_cast<float>(measured->metrics.ascent());
	height->descent = static_cast<float>(measured->metrics.descent());
	height->leading = static_cast<float>(std::max<qreal>(0, measured->metrics.leading()));
}


void
BFont::PrintToStream() const
{
	font_family family;
	font_style style;
	GetFamilyAndStyle(&family, &style);
	printf("BFont { %s, %s 0x%x %f %fpt }\n", family, style, fFace, fSize, fSize);
}


bool
BFont::operator==(const BFont& font) const
{
	return fFamily == font.fFamily && fFace == font.fFace && fSize == font.fSize
		&& fSpacing == font.fSpacing && fFlags == font.fFlags;
}
