// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SIZE_H
#define SIZE_H

#include <math.h>

#include <SupportDefs.h>


enum { B_SIZE_UNSET = -2, B_SIZE_UNLIMITED = 1024 * 1024 * 1024 };


class BSize {
public:
	float width = B_SIZE_UNSET;
	float height = B_SIZE_UNSET;

	BSize() = default;
	BSize(float width, float height)
		:
		width(width),
		height(height)
	{
	}

	float Width() const { return width; }
	float Height() const { return height; }

	void Set(float newWidth, float newHeight)
	{
		width = newWidth;
		height = newHeight;
	}

	void SetWidth(float newWidth) { width = newWidth; }
	void SetHeight(float newHeight) { height = newHeight; }

	int32 IntegerWidth() const { return static_cast<int32>(ceilf(width)); }
	int32 IntegerHeight() const { return static_cast<int32>(ceilf(height)); }

	bool IsWidthSet() const { return width != B_SIZE_UNSET; }
	bool IsHeightSet() const { return height != B_SIZE_UNSET; }

	bool operator==(const BSize& other) const
	{
		return width == other.width && height == other.height;
	}

	bool operator!=(const BSize& other) const { return !(*this == other); }
};

#endif // SIZE_H
