// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <AppDefs.h>
#include <Errors.h>
#include <Message.h>
#include <PropertyInfo.h>


namespace {

property_info sProperties[] = {{"Track", {}, {B_INDEX_SPECIFIER, B_NAME_SPECIFIER}, nullptr, 7, {}},
	{"Volume", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 9, {}},
	{nullptr, {}, {}, nullptr, 0, {}}};

int32
match(uint32 what, int32 index, int32 form, const char* name, uint32* data = nullptr)
{
	const BPropertyInfo properties(sProperties);
	BMessage message(what);
	BMessage specifier(static_cast<uint32>(form));
	return properties.FindMatch(&message, index, &specifier, form, name, data);
}

} // namespace


TEST(PropertyInfoFindMatch, NameFormAndCommandCount)
{
	EXPECT_EQ(BPropertyInfo(sProperties).CountProperties(), 2);
	uint32 data = 0;
	EXPECT_EQ(match(B_GET_PROPERTY, 0, B_DIRECT_SPECIFIER, "Volume", &data), 1);
	EXPECT_EQ(data, 9u);
	EXPECT_EQ(match(B_GET_PROPERTY, 0, B_INDEX_SPECIFIER, "Volume"), B_ERROR);
	EXPECT_EQ(match(B_COUNT_PROPERTIES, 0, B_DIRECT_SPECIFIER, "Volume"), B_ERROR);
	EXPECT_EQ(match(B_GET_PROPERTY, 0, B_DIRECT_SPECIFIER, "volume"), B_ERROR);
	EXPECT_EQ(match(B_GET_PROPERTY, 0, B_NAME_SPECIFIER, "Track"), 0);
	EXPECT_EQ(BPropertyInfo().CountProperties(), 0);
}


TEST(PropertyInfoFindMatch, CommandsCountForTheInnermostObjectOnly)
{
	EXPECT_EQ(match(B_GET_PROPERTY, 1, B_DIRECT_SPECIFIER, "Volume"), B_ERROR);
	EXPECT_EQ(match(B_GET_PROPERTY, 1, B_INDEX_SPECIFIER, "Track"), 0);
}
