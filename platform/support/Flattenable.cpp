// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Flattenable.h>


BFlattenable::~BFlattenable() = default;


bool
BFlattenable::AllowsTypeCode(type_code code) const
{
	return code == TypeCode();
}
