// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <ByteOrder.h>

#include <string.h>


namespace {

// How many bytes are turned around at a time; 0 if the type's values have no byte order.
size_t
unit_of(type_code type)
{
	switch (type) {
		case B_INT16_TYPE:
		case B_UINT16_TYPE:
			return sizeof(int16);
		case B_INT32_TYPE:
		case B_UINT32_TYPE:
		case B_FLOAT_TYPE:
		case B_POINT_TYPE:
		case B_RECT_TYPE:
		case B_SIZE_TYPE:
			return sizeof(int32);
		case B_INT64_TYPE:
		case B_UINT64_TYPE:
		case B_DOUBLE_TYPE:
		case B_OFF_T_TYPE:
		case B_TIME_TYPE:
		case B_POINTER_TYPE:
			return sizeof(int64);
		default:
			return 0;
	}
}


size_t
value_size(type_code type)
{
	switch (type) {
		case B_POINT_TYPE:
		case B_SIZE_TYPE:
			return 2 * sizeof(float);
		case B_RECT_TYPE:
			return 4 * sizeof(float);
		default:
			return unit_of(type);
	}
}

} // namespace


extern "C"
{

	double __swap_double(double value)
	{
		uint64 bits;
		memcpy(&bits, &value, sizeof(bits));
		bits = __swap_int64(bits);
		memcpy(&value, &bits, sizeof(bits));
		return value;
	}


	float __swap_float(float value)
	{
		uint32 bits;
		memcpy(&bits, &value, sizeof(bits));
		bits = __swap_int32(bits);
		memcpy(&value, &bits, sizeof(bits));
		return value;
	}


	status_t swap_data(type_code type, void* data, size_t length, swap_action action)
	{
		if (length == 0)
			return B_OK;
		const size_t unit = unit_of(type);
		if (data == nullptr || unit == 0 || length % value_size(type) != 0)
			return B_BAD_VALUE;

		const bool isAboutLittle
			= action == B_SWAP_HOST_TO_LENDIAN || action == B_SWAP_LENDIAN_TO_HOST;
		if (action != B_SWAP_ALWAYS && isAboutLittle == (B_HOST_IS_LENDIAN != 0))
			return B_OK;

		char* bytes = static_cast<char*>(data);
		for (size_t begin = 0; begin < length; begin += unit) {
			for (size_t index = 0; index < unit / 2; index++) {
				char& low = bytes[begin + index];
				char& high = bytes[begin + unit - 1 - index];
				const char kept = low;
				low = high;
				high = kept;
			}
		}
		return B_OK;
	}


	bool is_type_swapped(type_code type)
	{
		return unit_of(type) != 0;
	}

} // extern "C"
