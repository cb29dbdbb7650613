// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <ByteOrder.h>
#include <ClassInfo.h>
#include <SupportDefs.h>
#include <TypeConstants.h>

#include <gtest/gtest.h>
#include <string.h>
#include <string>
#include <type_traits>


namespace {

static_assert(std::is_same_v<int8, signed char> && std::is_same_v<uint8, unsigned char>);
static_assert(std::is_same_v<int16, short> && std::is_same_v<uint16, unsigned short>);
static_assert(std::is_same_v<int32, int> && std::is_same_v<uint32, unsigned int>);
static_assert(std::is_same_v<int64, long> && std::is_same_v<uint64, unsigned long>);
static_assert(std::is_same_v<status_t, int32> && std::is_same_v<type_code, uint32>);
static_assert(std::is_same_v<bigtime_t, int64>);
static_assert(!std::is_convertible_v<int32*, long*>);
static_assert(min_c(1, 2) == 1 && max_c(1, 2) == 2);

static_assert(B_STRING_TYPE == 0x43535452);
static_assert(B_INT32_TYPE == 0x4c4f4e47);
static_assert(B_BOOL_TYPE == 0x424f4f4c);
static_assert(B_RECT_TYPE == 0x52454354);
static_assert(B_RGB_COLOR_TYPE == 0x52474243);
static_assert(B_RGB_32_BIT_TYPE == 0x52474242);
static_assert(B_MIME_STRING_TYPE == 0x4d494d53);
static_assert(B_REF_TYPE == 0x52524546);
static_assert(B_MESSAGE_TYPE == 0x4d534747);
static_assert(B_MESSENGER_TYPE == 0x4d534e47);
static_assert(B_INT8_TYPE == 'BYTE' && B_UINT8_TYPE == 'UBYT');
static_assert(B_INT16_TYPE == 'SHRT' && B_UINT16_TYPE == 'USHT' && B_UINT32_TYPE == 'ULNG');
static_assert(B_INT64_TYPE == 'LLNG' && B_UINT64_TYPE == 'ULLG');
static_assert(B_FLOAT_TYPE == 'FLOT' && B_DOUBLE_TYPE == 'DBLE');
static_assert(B_POINT_TYPE == 'BPNT' && B_POINTER_TYPE == 'PNTR' && B_SIZE_TYPE == 'SIZE');
static_assert(B_RAW_TYPE == 'RAWT' && B_ANY_TYPE == 'ANYT' && B_CHAR_TYPE == 'CHAR');
static_assert(B_TIME_TYPE == 'TIME' && B_OFF_T_TYPE == 'OFFT' && B_NODE_REF_TYPE == 'NREF');
static_assert(B_LARGE_ICON_TYPE == 'ICON' && B_MINI_ICON_TYPE == 'MICN');
static_assert(B_VECTOR_ICON_TYPE == 'VICN' && B_PROPERTY_INFO_TYPE == 'SCTD');


struct Base {
	virtual ~Base() = default;
};
struct Derived : Base {};

} // namespace


TEST(Atomics, AnswerTheValueBefore)
{
	int32 value = 5;
	EXPECT_EQ(atomic_add(&value, 3), 5);
	EXPECT_EQ(atomic_and(&value, 12), 8);
	EXPECT_EQ(atomic_or(&value, 1), 8);
	EXPECT_EQ(atomic_get_and_set(&value, 20), 9);
	EXPECT_EQ(atomic_test_and_set(&value, 30, 99), 20);
	EXPECT_EQ(atomic_get(&value), 20);
	EXPECT_EQ(atomic_test_and_set(&value, 30, 20), 20);
	EXPECT_EQ(atomic_get(&value), 30);
	atomic_set(&value, -1);
	EXPECT_EQ(value, -1);
}


TEST(Atomics, WideOnesLikewise)
{
	int64 value = 1L << 40;
	EXPECT_EQ(atomic_add64(&value, 1), 1L << 40);
	EXPECT_EQ(atomic_get64(&value), (1L << 40) + 1);
	EXPECT_EQ(atomic_test_and_set64(&value, 7, 7), (1L << 40) + 1);
	EXPECT_EQ(atomic_get_and_set64(&value, 7), (1L << 40) + 1);
	EXPECT_EQ(value, 7);
}


TEST(ByteOrder, NumbersAreTurnedAround)
{
	EXPECT_EQ(B_SWAP_INT16(0x1234), 0x3412);
	EXPECT_EQ(B_SWAP_INT32(0x12345678u), 0x78563412u);
	EXPECT_EQ(B_HOST_TO_BENDIAN_INT32(1u), 0x01000000u);
	EXPECT_EQ(B_BENDIAN_TO_HOST_INT32(0x01000000u), 1u);
	EXPECT_EQ(B_HOST_TO_LENDIAN_INT32(1u), 1u);
	EXPECT_FLOAT_EQ(B_SWAP_FLOAT(B_SWAP_FLOAT(1.5f)), 1.5f);
}


TEST(SwapData, ArrayIsTurnedValueByValue)
{
	uint32 values[] = {0x01020304, 0x0a0b0c0d};
	EXPECT_EQ(swap_data(B_INT32_TYPE, values, sizeof(values), B_SWAP_HOST_TO_BENDIAN), B_OK);
	EXPECT_EQ(values[0], 0x04030201u);
	EXPECT_EQ(values[1], 0x0d0c0b0au);
	EXPECT_EQ(swap_data(B_INT32_TYPE, values, sizeof(values), B_SWAP_HOST_TO_LENDIAN), B_OK);
	EXPECT_EQ(values[0], 0x04030201u);
}


TEST(SwapData, TypeWithoutOrderOrWrongLengthIsRefused)
{
	char text[8] = "abcdefg";
	EXPECT_EQ(swap_data(B_STRING_TYPE, text, sizeof(text), B_SWAP_ALWAYS), B_BAD_VALUE);
	EXPECT_EQ(swap_data(B_INT32_TYPE, text, 7, B_SWAP_ALWAYS), B_BAD_VALUE);
	EXPECT_EQ(swap_data(B_INT32_TYPE, nullptr, 4, B_SWAP_ALWAYS), B_BAD_VALUE);
	EXPECT_EQ(swap_data(B_STRING_TYPE, nullptr, 0, B_SWAP_ALWAYS), B_OK);
	EXPECT_STREQ(text, "abcdefg");
	EXPECT_FALSE(is_type_swapped(B_STRING_TYPE));
	EXPECT_TRUE(is_type_swapped(B_RECT_TYPE));
}


TEST(ClassInfo, KindIsAskedOfTheObject)
{
	Derived derived;
	Base base;
	Base* object = &derived;
	EXPECT_TRUE(is_kind_of(object, Derived));
	EXPECT_TRUE(is_instance_of(object, Derived));
	EXPECT_FALSE(is_instance_of(object, Base));
	EXPECT_EQ(cast_as(object, Derived), &derived);
	object = &base;
	EXPECT_FALSE(is_kind_of(object, Derived));
	EXPECT_TRUE(is_instance_of(object, Base));
	EXPECT_EQ(cast_as(object, Derived), nullptr);
}
