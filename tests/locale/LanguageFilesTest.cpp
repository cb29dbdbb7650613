// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/KVLabel.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <Font.h>
#include <String.h>
#include <gtest/gtest.h>

#include "locale/Labels.h"
#include "tests/support/RunningApplication.h"


namespace {

// Every label that the program shows.
const std::set<int> kShown = {6, 47, 172, 173, 176, 177, 178, 179, 193, 194, 195, 196, 197, 199,
	200, 206, 207, 208, 209, 210, 211, 213, 214};
// Has the same text as 200, so every file that replaces the one replaces the other.
constexpr int kTwinOfPlayers = 212;
constexpr int kPlayers = 200;
constexpr int kMissing = 179;
constexpr int kBoxSize = 206;
constexpr int kNoPlayer = 213;
constexpr int kAbout = 214;

constexpr float kLargestTile = 114;
constexpr float kTileWidth = 490;
constexpr float kBesidePicture = 59;

constexpr size_t kLongestLine = 254;
constexpr size_t kFileCount = 14;


struct Entry {
	std::string english;
	std::string translation;
};


std::vector<std::filesystem::path>
language_files()
{
	std::vector<std::filesystem::path> files;
	for (const auto& entry : std::filesystem::directory_iterator(
			 std::filesystem::path(VINYLOH_SOURCES) / "resources/Language/Dictionaries"))
		files.push_back(entry.path());
	std::sort(files.begin(), files.end());
	return files;
}


std::vector<Entry>
entries_of(const std::filesystem::path& path)
{
	std::vector<Entry> entries;
	std::ifstream file(path, std::ios::binary);
	std::string line;
	while (std::getline(file, line)) {
		EXPECT_LE(line.size(), kLongestLine) << path << line;
		EXPECT_FALSE(line.empty()) << path;
		if (line.empty() || line[0] != '"')
			continue;
		std::vector<std::string> fields;
		size_t begin = 0;
		for (size_t end = line.find('"'); end != std::string::npos; end = line.find('"', begin)) {
			fields.push_back(line.substr(begin, end - begin));
			begin = end + 1;
		}
		fields.push_back(line.substr(begin));
		EXPECT_EQ(fields.size(), 5u) << path << line;
		if (fields.size() == 5)
			entries.push_back({fields[1], fields[3]});
	}
	return entries;
}


std::vector<int>
labels_with(const std::string& text)
{
	std::vector<int> numbers;
	for (int number = 0; eLabel[number] != nullptr; number++) {
		if (text == eLabel[number])
			numbers.push_back(number);
	}
	return numbers;
}

} // namespace


TEST(LanguageFiles, EachLanguageHasOne)
{
	const std::array<const char*, kFileCount> codes = {"deDE", "esES", "fiFI", "frFR", "huHU",
		"itIT", "jaJP", "nlNL", "noNO", "plPL", "ptPT", "ruRU", "svSE", "trTR"};
	const std::vector<std::filesystem::path> files = language_files();
	ASSERT_EQ(files.size(), codes.size());
	for (size_t index = 0; index < codes.size(); index++)
		EXPECT_EQ(files[index].filename(), std::string("KORU-Haiku.") + codes[index]);
}


TEST(LanguageFiles, EachTranslatesEveryTextThatTheProgramShows)
{
	for (const std::filesystem::path& path : language_files()) {
		std::set<int> translated;
		for (const Entry& entry : entries_of(path)) {
			const std::vector<int> numbers = labels_with(entry.english);
			EXPECT_FALSE(numbers.empty()) << path << entry.english;
			translated.insert(numbers.begin(), numbers.end());
			EXPECT_FALSE(entry.translation.empty()) << path << entry.english;
		}
		translated.erase(kTwinOfPlayers);
		EXPECT_EQ(translated, kShown) << path;
	}
}


// A line replaces every label that it matches loosely, so a careless one could change others.
TEST(LanguageFiles, EachLineReplacesTheLabelMeantAndNoOther)
{
	for (const std::filesystem::path& path : language_files()) {
		KVLabel labels("LanguageFilesTest");
		labels.MirrorList(eLabel);
		labels.LoadLangFile(path.c_str());
		std::set<int> expected = kShown;
		expected.insert(kTwinOfPlayers);
		for (const Entry& entry : entries_of(path)) {
			for (int number : labels_with(entry.english)) {
				EXPECT_STREQ(labels.getLabel(nullptr, number), entry.translation.c_str()) << path;
				expected.erase(number);
			}
		}
		EXPECT_TRUE(expected.empty()) << path;
		EXPECT_EQ(static_cast<size_t>(labels.fReplaced), kShown.size() + 1) << path;
		for (int number = 0; eLabel[number] != nullptr; number++) {
			if (kShown.count(number) == 0 && number != kTwinOfPlayers) {
				EXPECT_STREQ(labels.getLabel(nullptr, number), eLabel[number]) << path;
			}
		}
	}
}


// Texts that the program puts other texts behind end in a blank, as the English ones do.
TEST(LanguageFiles, TextsJoinOthersAsTheEnglishOnesDo)
{
	for (const std::filesystem::path& path : language_files()) {
		for (const Entry& entry : entries_of(path)) {
			if (entry.english == eLabel[kPlayers] || entry.english == eLabel[kBoxSize]) {
				EXPECT_EQ(entry.translation.back(), ' ') << path;
			}
			if (entry.english == eLabel[kNoPlayer] || entry.english == eLabel[kAbout]) {
				EXPECT_EQ(entry.translation.front(), ' ') << path;
			}
		}
	}
}


// The text itself is stored as the preferred player, and a longer one would be run.
TEST(LanguageFiles, NoPlayerIsShorterThanAnyPlayersPath)
{
	for (const std::filesystem::path& path : language_files()) {
		for (const Entry& entry : entries_of(path)) {
			if (entry.english == eLabel[kNoPlayer]) {
				EXPECT_LE(entry.translation.size(), 10u) << path;
			}
		}
	}
}


// Beside the picture of a missing title, left of its number and play time, at the largest size.
TEST(LanguageFiles, TextOfMissingTitlesFitsTheTile)
{
	test::TheApplication();
	BFont font(be_bold_font);
	font.SetSize(kLargestTile / 3.5f);
	BFont small(be_bold_font);
	small.SetSize(10);
	const float room
		= kTileWidth - 1 - kBesidePicture - 5 - small.StringWidth(" AlbumTrack: 100") - 5;
	for (const std::filesystem::path& path : language_files()) {
		for (const Entry& entry : entries_of(path)) {
			if (entry.english == eLabel[kMissing]) {
				EXPECT_LE(font.StringWidth(entry.translation.c_str()), room) << path;
			}
		}
	}
}


// The context menu stays narrower than a tile, with its mark, its arrow and a size behind the text.
TEST(LanguageFiles, TextsFitTheMenus)
{
	test::TheApplication();
	BFont font(be_plain_font);
	font.SetSize(11);
	for (const std::filesystem::path& path : language_files()) {
		for (const Entry& entry : entries_of(path)) {
			EXPECT_LE(BString(entry.translation.c_str()).CountChars(), 44) << path << entry.english;
			EXPECT_LE(font.StringWidth(entry.translation.c_str()), 300) << path << entry.english;
		}
	}
}
