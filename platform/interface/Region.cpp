// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Region.h>

#include "platform/interface/Pixels.h"
#include "platform/interface/RegionData.h"

using hosted::RegionData;


// Pixels that a rectangle covers only in part belong to the region.
static QRect
covered_pixels(BRect rect)
{
	if (!rect.IsValid())
		return QRect();
	return QRect(hosted::FloorPixel(rect.LeftTop()),
		QPoint(hosted::FloorPixel(ceilf(rect.right)), hosted::FloorPixel(ceilf(rect.bottom))));
}


BRegion::BRegion()
	:
	fData(std::make_unique<RegionData>())
{
}


BRegion::BRegion(const BRegion& other)
	:
	fData(std::make_unique<RegionData>(*other.fData))
{
}


BRegion::BRegion(const BRect rect)
	:
	BRegion()
{
	Set(rect);
}


BRegion::~BRegion() = default;


BRegion&
BRegion::operator=(const BRegion& other)
{
	fData->pixels = other.fData->pixels;
	return *this;
}


bool
BRegion::operator==(const BRegion& other) const
{
	return fData->pixels == other.fData->pixels;
}


void
BRegion::Set(BRect rect)
{
	fData->pixels = covered_pixels(rect);
}


void
BRegion::MakeEmpty()
{
	fData->pixels = QRegion();
}


BRect
BRegion::Frame() const
{
	return hosted::ToRect(fData->pixels.boundingRect());
}


BRect
BRegion::RectAt(int32 index) const
{
	if (index < 0 || index >= CountRects())
		return BRect();
	return hosted::ToRect(fData->pixels.begin()[index]);
}


int32
BRegion::CountRects() const
{
	return fData->pixels.rectCount();
}


bool
BRegion::Intersects(BRect rect) const
{
	return fData->pixels.intersects(covered_pixels(rect));
}


bool
BRegion::Contains(BPoint point) const
{
	return fData->pixels.contains(hosted::FloorPixel(point));
}


void
BRegion::OffsetBy(int32 x, int32 y)
{
	fData->pixels.translate(x, y);
}


void
BRegion::Include(BRect rect)
{
	fData->pixels += covered_pixels(rect);
}


void
BRegion::Include(const BRegion* region)
{
	fData->pixels += region->fData->pixels;
}


void
BRegion::Exclude(BRect rect)
{
	fData->pixels -= covered_pixels(rect);
}


void
BRegion::Exclude(const BRegion* region)
{
	fData->pixels -= region->fData->pixels;
}


void
BRegion::IntersectWith(const BRegion* region)
{
	fData->pixels &= region->fData->pixels;
}
