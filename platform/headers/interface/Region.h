// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REGION_H
#define REGION_H

#include <memory>

#include <Rect.h>

namespace hosted {
struct RegionData;
}


// A set of pixels, kept as rectangles that do not overlap.
class BRegion {
public:
	BRegion();
	BRegion(const BRegion& other);
	BRegion(const BRect rect);
	virtual ~BRegion();

	BRegion& operator=(const BRegion& other);
	bool operator==(const BRegion& other) const;

	void Set(BRect rect);
	void MakeEmpty();

	BRect Frame() const;
	BRect RectAt(int32 index) const;
	int32 CountRects() const;

	bool Intersects(BRect rect) const;
	bool Contains(BPoint point) const;

	void OffsetBy(int32 x, int32 y);

	void Include(BRect rect);
	void Include(const BRegion* region);
	void Exclude(BRect rect);
	void Exclude(const BRegion* region);
	void IntersectWith(const BRegion* region);

private:
	friend struct hosted::RegionData;

	std::unique_ptr<hosted::RegionData> fData;
};

#endif // REGION_H
