// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/LanguageMemory.h"

#include <string>

#include <unistd.h>

#include <FindDirectory.h>
#include <Node.h>
#include <Path.h>
#include <TypeConstants.h>
#include <fs_attr.h>
#include <gtest/gtest.h>


namespace {

std::string
memory_path()
{
	BPath path;
	find_directory(B_USER_SETTINGS_DIRECTORY, &path);
	path.Append("_LP_x-vnd.KV/kv_simpel_locale");
	return path.Path();
}


std::string
stored(const char* name)
{
	const BNode node(memory_path().c_str());
	attr_info info;
	if (node.GetAttrInfo(name, &info) != B_OK)
		return "-absent-";
	EXPECT_EQ(info.type, static_cast<uint32>(B_STRING_TYPE));
	std::string data(static_cast<size_t>(info.size), '\0');
	node.ReadAttr(name, info.type, 0, data.data(), data.size());
	return data;
}


class LanguageMemory : public testing::Test {
protected:
	void SetUp() override { unlink(memory_path().c_str()); }
};

} // namespace


TEST_F(LanguageMemory, NothingStoredGivesTheValueBack)
{
	EXPECT_STREQ(AskStrSetting("App", "LAST", false), "LAST");
	EXPECT_EQ(AskIntSetting(-3, false), -3);
}


TEST_F(LanguageMemory, CodeIsStoredTwiceInFiveBytes)
{
	EXPECT_STREQ(AskStrSetting("App", "deDE", true), "deDE");
	EXPECT_EQ(stored("_last_lg_selected"), std::string("deDE", 5));
	EXPECT_EQ(stored("App"), std::string("deDE", 5));
	EXPECT_STREQ(AskStrSetting("Other", "LAST", false), "deDE");
}


TEST_F(LanguageMemory, LongCodeIsCutToFiveBytes)
{
	AskStrSetting("App", "deutsch", true);
	EXPECT_EQ(stored("App"), "deuts");
	EXPECT_STREQ(AskStrSetting("App", "a longer default", false), "deuts");
}


TEST_F(LanguageMemory, ShortCodeIsFilledUp)
{
	AskStrSetting("App", "a much longer one", false);
	AskStrSetting("App", "fr", true);
	EXPECT_EQ(stored("App"), std::string("fr\0\0\0", 5));
	EXPECT_STREQ(AskStrSetting("App", "LAST", false), "fr");
}


TEST_F(LanguageMemory, OverlongValueFitsTheBuffer)
{
	const std::string text(100, 'x');
	EXPECT_EQ(std::string(AskStrSetting("App", text.c_str(), false)), text.substr(0, 31));
}


TEST_F(LanguageMemory, NumberIsStored)
{
	EXPECT_EQ(AskIntSetting(17, true), 17);
	EXPECT_EQ(AskIntSetting(0, false), 17);
	attr_info info;
	const BNode node(memory_path().c_str());
	ASSERT_EQ(node.GetAttrInfo("_last_nr_selected", &info), B_OK);
	EXPECT_EQ(info.type, static_cast<uint32>(B_INT32_TYPE));
	EXPECT_EQ(info.size, 4);
}
