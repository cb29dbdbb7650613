// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/AppName.h"

#include <gtest/gtest.h>

using hosted::AppIdentity;
using hosted::AppNameFor;
using hosted::ParseAppName;
using hosted::SameSignature;


namespace {

AppIdentity
identity(const std::string& signature)
{
	AppIdentity made;
	made.signature = signature;
	made.team = 4711;
	made.flags = 9;
	made.registered = 123456789012345;
	return made;
}


// Letters, digits, "-" and "_" in elements that begin with no digit, parted by dots.
bool
is_bus_name(const std::string& name)
{
	bool begins = true;
	for (char letter : name) {
		const bool isDigit = letter >= '0' && letter <= '9';
		if (letter == '.') {
			if (begins)
				return false;
			begins = true;
			continue;
		}
		if ((begins && isDigit) || (!isDigit && !isalpha(letter) && letter != '_' && letter != '-'))
			return false;
		begins = false;
	}
	return !begins && name.size() <= 255;
}

} // namespace


TEST(AppName, HoldsTheWholeIdentity)
{
	for (const char* signature : {"application/x-vnd.kv-VinyloH", "application/x-vnd.a_b.c..d+9",
			 "application/7", "text/odd", "application/x-vnd.\xc3\xa4"}) {
		const std::string name = AppNameFor(identity(signature));
		EXPECT_TRUE(is_bus_name(name)) << name;
		AppIdentity parsed;
		ASSERT_TRUE(ParseAppName(name, &parsed)) << name;
		EXPECT_EQ(parsed.signature, signature);
		EXPECT_EQ(parsed.team, 4711);
		EXPECT_EQ(parsed.flags, 9u);
		EXPECT_EQ(parsed.registered, 123456789012345);
	}
}


TEST(AppName, LongSignatureIsCutAndStillFound)
{
	const std::string signature = "application/x-vnd." + std::string(200, '.') + "end";
	const std::string name = AppNameFor(identity(signature));
	EXPECT_TRUE(is_bus_name(name)) << name;
	AppIdentity parsed;
	ASSERT_TRUE(ParseAppName(name, &parsed));
	EXPECT_TRUE(SameSignature(parsed.signature, signature));
}


TEST(AppName, OtherNamesAreRefused)
{
	AppIdentity parsed;
	parsed.team = 5;
	for (const char* name : {"", "org.vinyloh.kits", "org.vinyloh.kits.s.p1_1_1",
			 "org.vinyloh.kits.sabc", "org.vinyloh.kits.sabc.p", "org.vinyloh.kits.sabc.p1",
			 "org.vinyloh.kits.sabc.p1_1", "org.vinyloh.kits.sabc.p0_1_1",
			 "org.vinyloh.kits.sabc.p-1_1_1", "org.vinyloh.kits.sabc.p1_1_1x",
			 "org.vinyloh.kits.sabc.p99999999999_1_1", "org.vinyloh.kits.sabc.p1_4294967296_1",
			 "org.vinyloh.kits.sabc.p1_1_99999999999999999999", "org.vinyloh.kits.sa_.p1_1_1",
			 "org.vinyloh.kits.sa_0.p1_1_1", "org.vinyloh.kits.sa_0A.p1_1_1",
			 "org.vinyloh.kits.sa_zz.p1_1_1", "org.vinyloh.kits.sa.b.p1_1_1",
			 "org.vinyloh.kitsXsabc.p1_1_1", ":1.5"})
		EXPECT_FALSE(ParseAppName(name, &parsed)) << name;
	EXPECT_EQ(parsed.team, 5);
}


TEST(AppName, NameOfTooLongASignatureIsRefused)
{
	AppIdentity parsed;
	EXPECT_FALSE(ParseAppName("org.vinyloh.kits.s" + std::string(240, 'a') + ".p1_1_1", &parsed));
}


TEST(SameSignature, ComparesWithoutRegardToCase)
{
	EXPECT_TRUE(SameSignature("application/x-vnd.A", "Application/X-VND.a"));
	EXPECT_FALSE(SameSignature("application/x-vnd.A", "application/x-vnd.AB"));
}
