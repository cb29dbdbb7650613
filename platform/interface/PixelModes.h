// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PIXEL_MODES_H
#define PIXEL_MODES_H

#include <QPoint>
#include <QRgb>

#include <InterfaceDefs.h>


namespace hosted {

// What a drawing call paints with.
struct Ink {
	rgb_color high = {0, 0, 0, 255};
	rgb_color low = {255, 255, 255, 255};
	drawing_mode mode = B_OP_COPY;
	source_alpha sourceAlpha = B_PIXEL_ALPHA;
	alpha_function alphaFunction = B_ALPHA_OVERLAY;
	::pattern pattern = {{0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}};
	// The pixel where the pattern begins.
	QPoint patternOrigin;

	bool IsSolidHigh() const;
	bool IsSolidLow() const;
};

// Paints a row of pixels that begins at (x, y). The coverage of each is 0 to 255; null for all.
void PaintSpan(QRgb* row, const uint8* coverage, int count, int x, int y, const Ink& ink);

// Paints a row of a picture. Pixels with alpha 0 are transparent. blendsAlpha: in the mode OVER
// other alpha values mix.
void PaintPicture(QRgb* row, const QRgb* picture, int count, const Ink& ink, bool blendsAlpha);

} // namespace hosted

#endif // PIXEL_MODES_H
