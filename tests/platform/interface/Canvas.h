// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef CANVAS_H
#define CANVAS_H

#include <ostream>
#include <string>
#include <vector>

#include <Bitmap.h>
#include <View.h>

#include "platform/interface/BitmapData.h"


inline std::ostream&
operator<<(std::ostream& stream, const BRect& rect)
{
	return stream << "(" << rect.left << ", " << rect.top << ", " << rect.right << ", "
				  << rect.bottom << ")";
}


inline std::ostream&
operator<<(std::ostream& stream, const BPoint& point)
{
	return stream << "(" << point.x << ", " << point.y << ")";
}


inline std::ostream&
operator<<(std::ostream& stream, const rgb_color& color)
{
	return stream << "(" << int(color.red) << ", " << int(color.green) << ", " << int(color.blue)
				  << ", " << int(color.alpha) << ")";
}


namespace test {

using Picture = std::vector<std::string>;

// A white picture with a view to draw into.
class Canvas {
public:
	explicit Canvas(int32 width = 8, int32 height = 8, color_space space = B_RGB32)
		:
		bitmap(BRect(0, 0, width - 1, height - 1), B_BITMAP_ACCEPTS_VIEWS, space),
		view(new BView(bitmap.Bounds(), "canvas", B_FOLLOW_ALL, B_WILL_DRAW))
	{
		bitmap.Lock();
		bitmap.AddChild(view);
		Clear(make_color(255, 255, 255));
	}

	~Canvas() { bitmap.Unlock(); }

	void Clear(rgb_color color)
	{
		view->PushState();
		view->SetDrawingMode(B_OP_COPY);
		view->SetHighColor(color);
		view->FillRect(view->Bounds());
		view->PopState();
	}

	// 0xRRGGBB
	uint32 At(int32 x, int32 y) const { return Raw(x, y) & 0xffffff; }

	uint32 Raw(int32 x, int32 y) const
	{
		const uint8* row = static_cast<const uint8*>(bitmap.Bits()) + y * bitmap.BytesPerRow();
		return reinterpret_cast<const uint32*>(row)[x];
	}

	// A row of characters for a row of pixels: '.' white, '#' black, '+' between.
	Picture Shape() const
	{
		Picture picture;
		for (int32 y = 0; y <= bitmap.Bounds().IntegerHeight(); y++) {
			std::string row;
			for (int32 x = 0; x <= bitmap.Bounds().IntegerWidth(); x++) {
				const uint32 pixel = At(x, y);
				row += pixel == 0xffffff ? '.' : pixel == 0 ? '#' : '+';
			}
			picture.push_back(row);
		}
		return picture;
	}

	// Draws what is out of date in these pixels, as a window does.
	void Update(const QRegion& pixels)
	{
		hosted::UpdateViews(hosted::HostOf(bitmap), hosted::RootOf(bitmap), pixels);
	}

	void Update() { Update(QRegion(-1000, -1000, 4000, 4000)); }

	BBitmap bitmap;
	// Deleted with the bitmap.
	BView* view;
};

} // namespace test

#endif // CANVAS_H
