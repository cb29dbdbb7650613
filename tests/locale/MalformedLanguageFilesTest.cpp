// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Language files that no translator has written: no text is lost, and reading them ends soon.
#include "locale/KVLabel.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <random>
#include <string>

#include <string.h>
#include <sys/resource.h>

#include <gtest/gtest.h>

#include "locale/Labels.h"
#include "locale/LanguageMemory.h"
#include "tests/support/CpuTime.h"
#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"


namespace {

class MalformedLanguageFiles : public testing::Test {
protected:
	MalformedLanguageFiles()
		:
		fCatalogue(std::make_unique<KVLabel>("KORU-Haiku"))
	{
		fCatalogue->MirrorList(eLabel);
	}

	void TearDown() override
	{
		// Whatever was in the file, each number has a text of at most a line's length.
		EXPECT_EQ(fCatalogue->mirrorLabel.CountItems(), kLabelCount);
		for (int number = 0; number < kLabelCount; number++)
			EXPECT_LT(strlen(fCatalogue->getLabel(nullptr, number)), 255u) << number;
		EXPECT_STREQ(fCatalogue->getLabel(nullptr, kLabelCount), "-nf-");
	}

	// Loads the file and returns the milliseconds of work that it takes.
	double Load(const std::string& contents)
	{
		const std::string path = fFolder.Write("KORU-Haiku.deDE", contents);
		const auto start = test::CpuTime();
		fOutput = test::OutputOf([&] { fCatalogue->LoadLangFile(path.c_str()); });
		return std::chrono::duration<double, std::milli>(test::CpuTime() - start).count();
	}

	std::string Text(int number) { return fCatalogue->getLabel(nullptr, number); }

	int CountChanged()
	{
		int count = 0;
		for (int number = 0; number < kLabelCount; number++)
			count += Text(number) != eLabel[number] ? 1 : 0;
		return count;
	}

	test::TempFolder fFolder;
	std::unique_ptr<KVLabel> fCatalogue;
	std::string fOutput;
};


// The most memory that the process has had, in kilobytes.
long
peak_memory()
{
	struct rusage usage;
	getrusage(RUSAGE_SELF, &usage);
	return usage.ru_maxrss;
}

} // namespace


TEST_F(MalformedLanguageFiles, BinaryFileChangesNothing)
{
	std::mt19937 random(1);
	std::string bytes;
	for (int count = 0; count < 300000; count++)
		bytes += static_cast<char>(random());
	Load(bytes);
	EXPECT_EQ(CountChanged(), 0);
}


TEST_F(MalformedLanguageFiles, EmptyFileChangesNothing)
{
	Load("");
	EXPECT_NE(fOutput.find(" 0 Bytes |  read error 0 "), std::string::npos) << fOutput;
	EXPECT_EQ(CountChanged(), 0);
}


TEST_F(MalformedLanguageFiles, FolderChangesNothing)
{
	const std::string path = fFolder.MakeFolder("KORU-Haiku.frFR");
	AskStrSetting("KORU-Haiku", "svSE", true);
	fOutput = test::OutputOf([&] { fCatalogue->LoadLangFile(path.c_str()); });
	EXPECT_NE(fOutput.find(" 0 Bytes | "), std::string::npos) << fOutput;
	EXPECT_EQ(CountChanged(), 0);
	EXPECT_STREQ(AskStrSetting("", "none", false), "svSE");
}


TEST_F(MalformedLanguageFiles, ZeroBytesEndALine)
{
	using namespace std::string_literals;
	Load("\"Edit\"\t\"Bearb\0eiten\"\n\"\0\n\0\n\"Quit\"\t\"Ende\"\n"s);
	// The byte before the end is cut as if it were the line's end.
	EXPECT_EQ(Text(6), "Bear");
	EXPECT_EQ(Text(7), "Ende");
	EXPECT_EQ(CountChanged(), 2);
}


TEST_F(MalformedLanguageFiles, OneLineOfTenMegabytesIsReadInPieces)
{
	const long before = peak_memory();
	Load("\"Edit\"\t\"" + std::string(10000000, 'x') + "\"");
	EXPECT_EQ(Text(6), std::string(254 - 8 - 1, 'x'));
	EXPECT_EQ(CountChanged(), 1);
	EXPECT_LT(peak_memory() - before, 60000);
}


TEST_F(MalformedLanguageFiles, QuotesAloneCostNoMoreThanTheirNumber)
{
	// Each piece takes part, and none is an entry.
	EXPECT_LT(Load(std::string(10000000, '"')), 30000);
	EXPECT_EQ(CountChanged(), 0);
}


TEST_F(MalformedLanguageFiles, WindowsLineEndsAreOutsideOfTheQuotes)
{
	Load("\"Edit\"\t\t\"Bearbeiten\"\r\n\r\n\"Quit\"\t\t\"Beenden\"\r\n");
	EXPECT_EQ(Text(6), "Bearbeiten");
	EXPECT_EQ(Text(7), "Beenden");
}


TEST_F(MalformedLanguageFiles, OldMacintoshLineEndsMakeOneLine)
{
	Load("\"Edit\"\t\t\"Bearbeiten\"\r\"Close\"\t\t\"Zu\"\r");
	EXPECT_EQ(Text(6), "Bearbeiten");
	EXPECT_EQ(Text(173), "Close");
}


TEST_F(MalformedLanguageFiles, ByteOrderMarkMakesTheFirstLineAComment)
{
	Load("\xEF\xBB\xBF\"Edit\"\t\"Bearbeiten\"\n\"Quit\"\t\"Beenden\"\n");
	EXPECT_EQ(Text(6), "Edit");
	EXPECT_EQ(Text(7), "Beenden");
}


TEST_F(MalformedLanguageFiles, LastLineWithoutAnEndIsRead)
{
	Load("\"Edit\"\t\"Bearbeiten\"\n\"Quit\"\t\"Beenden\" ");
	EXPECT_EQ(Text(6), "Bearbeiten");
	EXPECT_EQ(Text(7), "Beenden");
}


TEST_F(MalformedLanguageFiles, EmptyTranslationEmptiesTheText)
{
	Load("\"Edit\"\t\"\"\n");
	EXPECT_EQ(Text(6), "");
	// An empty text is met by any line whose second character is a quote.
	Load("\"\"\t\"again\"\n");
	EXPECT_EQ(Text(6), "again");
}


TEST_F(MalformedLanguageFiles, TwiceAsManyLinesTakeAboutTwiceAsLong)
{
	const auto lines = [](int count) {
		std::string contents;
		for (int number = 0; number < count; number++)
			contents += "\"a text of nobody\"\t\t\"number " + std::to_string(number) + "\"\n";
		return contents;
	};
	const std::string half = lines(50000);
	const std::string whole = lines(100000) + "\"Edit\"\t\"Bearbeiten\"\n";
	double halfTime = 1e9;
	double wholeTime = 1e9;
	// The shortest of three, for a machine with other work.
	for (int round = 0; round < 3; round++) {
		halfTime = std::min(halfTime, Load(half));
		fCatalogue->MirrorList(eLabel);
		wholeTime = std::min(wholeTime, Load(whole));
		EXPECT_EQ(Text(6), "Bearbeiten");
		EXPECT_EQ(CountChanged(), 1);
	}
	EXPECT_LT(wholeTime, 4 * halfTime + 100);
}


TEST_F(MalformedLanguageFiles, EachLineThatReplacesFreesTheTextBefore)
{
	std::string contents;
	for (int number = 0; number < 100000; number++) {
		const std::string from = number == 0 ? "Edit" : std::to_string(number + 99999);
		contents += "\"" + from + "\"\t\"" + std::to_string(number + 100000) + "\"\n";
	}
	const long before = peak_memory();
	Load(contents);
	EXPECT_EQ(Text(6), "199999");
	EXPECT_EQ(fCatalogue->fReplaced, 100000);
	EXPECT_LT(peak_memory() - before, 60000);
}
