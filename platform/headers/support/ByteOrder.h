// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BYTE_ORDER_H
#define BYTE_ORDER_H

#include <SupportDefs.h>
#include <TypeConstants.h>


typedef enum {
	B_SWAP_HOST_TO_LENDIAN,
	B_SWAP_HOST_TO_BENDIAN,
	B_SWAP_LENDIAN_TO_HOST,
	B_SWAP_BENDIAN_TO_HOST,
	B_SWAP_ALWAYS,
} swap_action;

#define __swap_int16(value) __builtin_bswap16(value)
#define __swap_int32(value) __builtin_bswap32(value)
#define __swap_int64(value) __builtin_bswap64(value)

extern "C"
{
	double __swap_double(double value);
	float __swap_float(float value);

	// Swaps every value of an array in place. The length is in bytes.
	status_t swap_data(type_code type, void* data, size_t length, swap_action action);
	bool is_type_swapped(type_code type);
}


#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
#define B_HOST_IS_LENDIAN 1
#define B_HOST_IS_BENDIAN 0
#define B_HOST_TO_LENDIAN_INT16(value) (uint16)(value)
#define B_HOST_TO_LENDIAN_INT32(value) (uint32)(value)
#define B_HOST_TO_LENDIAN_INT64(value) (uint64)(value)
#define B_HOST_TO_LENDIAN_FLOAT(value) (float)(value)
#define B_HOST_TO_LENDIAN_DOUBLE(value) (double)(value)
#define B_HOST_TO_BENDIAN_INT16(value) __swap_int16(value)
#define B_HOST_TO_BENDIAN_INT32(value) __swap_int32(value)
#define B_HOST_TO_BENDIAN_INT64(value) __swap_int64(value)
#define B_HOST_TO_BENDIAN_FLOAT(value) __swap_float(value)
#define B_HOST_TO_BENDIAN_DOUBLE(value) __swap_double(value)
#else
#define B_HOST_IS_LENDIAN 0
#define B_HOST_IS_BENDIAN 1
#define B_HOST_TO_LENDIAN_INT16(value) __swap_int16(value)
#define B_HOST_TO_LENDIAN_INT32(value) __swap_int32(value)
#define B_HOST_TO_LENDIAN_INT64(value) __swap_int64(value)
#define B_HOST_TO_LENDIAN_FLOAT(value) __swap_float(value)
#define B_HOST_TO_LENDIAN_DOUBLE(value) __swap_double(value)
#define B_HOST_TO_BENDIAN_INT16(value) (uint16)(value)
#define B_HOST_TO_BENDIAN_INT32(value) (uint32)(value)
#define B_HOST_TO_BENDIAN_INT64(value) (uint64)(value)
#define B_HOST_TO_BENDIAN_FLOAT(value) (float)(value)
#define B_HOST_TO_BENDIAN_DOUBLE(value) (double)(value)
#endif

#define B_LENDIAN_TO_HOST_INT16(value) B_HOST_TO_LENDIAN_INT16(value)
#define B_LENDIAN_TO_HOST_INT32(value) B_HOST_TO_LENDIAN_INT32(value)
#define B_LENDIAN_TO_HOST_INT64(value) B_HOST_TO_LENDIAN_INT64(value)
#define B_LENDIAN_TO_HOST_FLOAT(value) B_HOST_TO_LENDIAN_FLOAT(value)
#define B_LENDIAN_TO_HOST_DOUBLE(value) B_HOST_TO_LENDIAN_DOUBLE(value)
#define B_BENDIAN_TO_HOST_INT16(value) B_HOST_TO_BENDIAN_INT16(value)
#define B_BENDIAN_TO_HOST_INT32(value) B_HOST_TO_BENDIAN_INT32(value)
#define B_BENDIAN_TO_HOST_INT64(value) B_HOST_TO_BENDIAN_INT64(value)
#define B_BENDIAN_TO_HOST_FLOAT(value) B_HOST_TO_BENDIAN_FLOAT(value)
#define B_BENDIAN_TO_HOST_DOUBLE(value) B_HOST_TO_BENDIAN_DOUBLE(value)

#define B_SWAP_INT16(value) __swap_int16(value)
#define B_SWAP_INT32(value) __swap_int32(value)
#define B_SWAP_INT64(value) __swap_int64(value)
#define B_SWAP_FLOAT(value) __swap_float(value)
#define B_SWAP_DOUBLE(value) __swap_double(value)

#endif // BYTE_ORDER_H
