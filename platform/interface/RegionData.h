// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REGION_DATA_H
#define REGION_DATA_H

#include <QRegion>

#include <Region.h>


namespace hosted {

struct RegionData {
	QRegion pixels;

	static const QRegion& Of(const BRegion& region) { return region.fData->pixels; }
	static QRegion& Of(BRegion& region) { return region.fData->pixels; }
};

} // namespace hosted

#endif // REGION_DATA_H
