// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FLATTENABLE_H
#define FLATTENABLE_H

#include <SupportDefs.h>


class BFlattenable {
public:
	virtual ~BFlattenable();

	virtual bool IsFixedSize() const = 0;
	virtual type_code TypeCode() const = 0;
	virtual ssize_t FlattenedSize() const = 0;
	virtual status_t Flatten(void* buffer, ssize_t size) const = 0;
	virtual bool AllowsTypeCode(type_code code) const;
	virtual status_t Unflatten(type_code code, const void* buffer, ssize_t size) = 0;
};

#endif // FLATTENABLE_H
