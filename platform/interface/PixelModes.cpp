// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The drawing modes, a row of pixels at a time.
#include "platform/interface/PixelModes.h"

#include <algorithm>
#include <string.h>

#include "platform/interface/Palette.h"
#include "platform/interface/Pixels.h"


namespace hosted {

namespace {

constexpr QRgb kOpaque = 0xff000000;
constexpr QRgb kColorBits = 0x00ffffff;

int
channel(QRgb pixel, int shift)
{
	return static_cast<int>(pixel >> shift & 0xff);
}


template <typename Function>
inline QRgb
each_channel(QRgb destination, QRgb source, const Function& function)
{
	const int red = function(channel(destination, 16), channel(source, 16));
	const int green = function(channel(destination, 8), channel(source, 8));
	const int blue = function(channel(destination, 0), channel(source, 0));
	return kOpaque | static_cast<QRgb>(red) << 16 | static_cast<QRgb>(green) << 8
		| static_cast<QRgb>(blue);
}


inline QRgb
mix(QRgb destination, QRgb source, int alpha)
{
	if (alpha == 255)
		return source | kOpaque;
	return each_channel(destination, source,
		[alpha](int d, int s) { return d + ((s - d) * alpha >> 8); });
}


inline QRgb
add(QRgb destination, QRgb source)
{
	return each_channel(destination, source, [](int d, int s) { return std::min(255, d + s); });
}


inline QRgb
subtract(QRgb destination, QRgb source)
{
	return each_channel(destination, source, [](int d, int s) { return std::max(0, d - s); });
}


// The mean of each channel, rounded down, four at once.
inline QRgb
blend(QRgb destination, QRgb source)
{
	return kOpaque
		| ((((destination ^ source) & 0x00fefefe) >> 1) + (destination & source & kColorBits));
}


inline uint8
brightness(QRgb pixel)
{
	return Brightness(pixel >> 16 & 0xff, pixel >> 8 & 0xff, pixel & 0xff);
}


inline QRgb
darker(QRgb destination, QRgb source)
{
	return brightness(source) < brightness(destination) ? source | kOpaque : destination;
}


inline QRgb
brighter(QRgb destination, QRgb source)
{
	return brightness(source) > brightness(destination) ? source | kOpaque : destination;
}


inline QRgb
swap_colors(QRgb destination, QRgb high, QRgb low)
{
	if (((destination ^ high) & kColorBits) == 0)
		return low | kOpaque;
	if (((destination ^ low) & kColorBits) == 0)
		return high | kOpaque;
	return destination;
}


// Over what is there, whose own transparency counts.
QRgb
composite(QRgb destination, QRgb source, int alpha)
{
	const int below = static_cast<int>(destination >> 24) * (255 - alpha) / 255;
	const int total = alpha + below;
	if (total == 0)
		return 0;
	const QRgb mixed = each_channel(destination, source,
		[alpha, below, total](int d, int s) { return (s * alpha + d * below) / total; });
	return (mixed & kColorBits) | static_cast<QRgb>(total) << 24;
}


inline QRgb
paint_alpha(QRgb destination, QRgb source, int alpha, const Ink& ink)
{
	if (alpha == 0)
		return destination;
	if (ink.alphaFunction == B_ALPHA_COMPOSITE)
		return composite(destination, source, alpha);
	return mix(destination, source, alpha);
}


// The colors of an ink as pixels, and where its pattern has which.
struct Colors {
	QRgb high;
	QRgb low;
	int highAlpha;
	int lowAlpha;

	explicit Colors(const Ink& ink)
		:
		high(ToPixel(ink.high) | kOpaque),
		low(ToPixel(ink.low) | kOpaque),
		highAlpha(ink.high.alpha),
		lowAlpha(ink.sourceAlpha == B_CONSTANT_ALPHA ? ink.high.alpha : ink.low.alpha)
	{
	}
};


template <typename Function>
inline void
for_span(QRgb* row, const uint8* coverage, int count, const Function& function)
{
	if (coverage == nullptr) {
		for (int index = 0; index < count; index++)
			row[index] = function(row[index], index);
		return;
	}
	for (int index = 0; index < count; index++) {
		if (coverage[index] == 255)
			row[index] = function(row[index], index);
		else if (coverage[index] != 0)
			row[index] = mix(row[index], function(row[index], index), coverage[index]);
	}
}


// isHigh(index) tells the pattern's color at a pixel.
template <typename IsHigh>
void
paint_span(QRgb* row, const uint8* coverage, int count, const Ink& ink, const IsHigh& isHigh)
{
	const Colors colors(ink);
	const QRgb high = colors.high;
	const QRgb low = colors.low;
	const auto paint = [&](const auto& function) { for_span(row, coverage, count, function); };
	const auto source = [&](int index) { return isHigh(index) ? high : low; };
	switch (ink.mode) {
		case B_OP_COPY:
			return paint([&](QRgb, int index) { return source(index); });
		case B_OP_OVER:
			return paint([&](QRgb d, int index) { return isHigh(index) ? high : d; });
		case B_OP_ERASE:
			return paint([&](QRgb d, int index) { return isHigh(index) ? low : d; });
		case B_OP_INVERT:
			return paint([&](QRgb d, int index) { return isHigh(index) ? d ^ kColorBits : d; });
		case B_OP_ADD:
			return paint([&](QRgb d, int index) { return add(d, source(index)); });
		case B_OP_SUBTRACT:
			return paint([&](QRgb d, int index) { return subtract(d, source(index)); });
		case B_OP_BLEND:
			return paint([&](QRgb d, int index) { return blend(d, source(index)); });
		case B_OP_MIN:
			return paint([&](QRgb d, int index) { return darker(d, source(index)); });
		case B_OP_MAX:
			return paint([&](QRgb d, int index) { return brighter(d, source(index)); });
		case B_OP_SELECT:
			return paint(
				[&](QRgb d, int index) { return isHigh(index) ? swap_colors(d, high, low) : d; });
		default:
			return;
	}
}


// Coverage and the color's alpha make one alpha.
template <typename IsHigh>
void
paint_alpha_span(QRgb* row, const uint8* coverage, int count, const Ink& ink, const IsHigh& isHigh)
{
	const Colors colors(ink);
	for (int index = 0; index < count; index++) {
		const bool high = isHigh(index);
		int alpha = high ? colors.highAlpha : colors.lowAlpha;
		if (coverage != nullptr)
			alpha = alpha * coverage[index] / 255;
		row[index] = paint_alpha(row[index], high ? colors.high : colors.low, alpha, ink);
	}
}


template <typename IsHigh>
void
paint_any_span(QRgb* row, const uint8* coverage, int count, const Ink& ink, const IsHigh& isHigh)
{
	if (ink.mode == B_OP_ALPHA)
		paint_alpha_span(row, coverage, count, ink, isHigh);
	else
		paint_span(row, coverage, count, ink, isHigh);
}


template <typename Function>
inline void
for_opaque(QRgb* row, const QRgb* picture, int count, const Function& function)
{
	for (int index = 0; index < count; index++) {
		if (picture[index] >> 24 != 0)
			row[index] = function(row[index], picture[index]);
	}
}

} // namespace


bool
Ink::IsSolidHigh() const
{
	return memcmp(&pattern, &B_SOLID_HIGH, sizeof(pattern)) == 0;
}


bool
Ink::IsSolidLow() const
{
	return memcmp(&pattern, &B_SOLID_LOW, sizeof(pattern)) == 0;
}


void
PaintSpan(QRgb* row, const uint8* coverage, int count, int x, int y, const Ink& ink)
{
	if (ink.IsSolidHigh()) {
		if (coverage == nullptr && (ink.mode == B_OP_COPY || ink.mode == B_OP_OVER))
			std::fill(row, row + count, ToPixel(ink.high) | kOpaque);
		else
			paint_any_span(row, coverage, count, ink, [](int) { return true; });
		return;
	}
	if (ink.IsSolidLow()) {
		paint_any_span(row, coverage, count, ink, [](int) { return false; });
		return;
	}
	const uint8 bits = ink.pattern.data[(y - ink.patternOrigin.y()) & 7];
	const int first = x - ink.patternOrigin.x();
	paint_any_span(row, coverage, count, ink,
		[bits, first](int index) { return (bits & (0x80 >> ((first + index) & 7))) != 0; });
}


void
PaintPicture(QRgb* row, const QRgb* picture, int count, const Ink& ink, bool blendsAlpha)
{
	const Colors colors(ink);
	const auto paint = [&](const auto& function) { for_opaque(row, picture, count, function); };
	switch (ink.mode) {
		case B_OP_COPY:
			for (int index = 0; index < count; index++)
				row[index] = picture[index] | kOpaque;
			return;
		case B_OP_OVER:
			if (!blendsAlpha)
				return paint([](QRgb, QRgb s) { return s | kOpaque; });
			return paint([](QRgb d, QRgb s) { return mix(d, s, static_cast<int>(s >> 24)); });
		case B_OP_ERASE:
			return paint([&](QRgb, QRgb) { return colors.low; });
		case B_OP_INVERT:
			return paint([](QRgb d, QRgb) { return d ^ kColorBits; });
		case B_OP_ADD:
			return paint([](QRgb d, QRgb s) { return add(d, s); });
		case B_OP_SUBTRACT:
			return paint([](QRgb d, QRgb s) { return subtract(d, s); });
		case B_OP_BLEND:
			return paint([](QRgb d, QRgb s) { return blend(d, s); });
		case B_OP_MIN:
			return paint([](QRgb d, QRgb s) { return darker(d, s); });
		case B_OP_MAX:
			return paint([](QRgb d, QRgb s) { return brighter(d, s); });
		case B_OP_SELECT:
			return paint([&](QRgb d, QRgb) { return swap_colors(d, colors.high, colors.low); });
		case B_OP_ALPHA:
			return paint([&](QRgb d, QRgb s) {
				const int alpha = ink.sourceAlpha == B_CONSTANT_ALPHA ? ink.high.alpha
																	  : static_cast<int>(s >> 24);
				return paint_alpha(d, s, alpha, ink);
			});
	}
}

} // namespace hosted
