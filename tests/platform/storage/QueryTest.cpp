// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Entry.h>
#include <Node.h>
#include <Path.h>
#include <Query.h>
#include <TypeConstants.h>
#include <Volume.h>
#include <VolumeRoster.h>
#include <Directory.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <sched.h>
#include <set>
#include <stdlib.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/storage/Predicate.h"
#include "tests/support/TempFolder.h"


namespace {

static_assert(B_EQ == 1 && B_NE == 6 && B_CONTAINS == 7 && B_AND == 0x101 && B_OR == 0x102);


// How a process ends that asked for another root in vain.
constexpr int kMayNotChangeRoot = 77;


// A file that has a name, a track and a rating.
bool
matches(const char* text)
{
	const auto predicate = hosted::ParsePredicate(text);
	if (predicate == nullptr) {
		ADD_FAILURE() << "no predicate: " << text;
		return false;
	}
	return predicate->Matches(
		[](const std::string& attribute, type_code* type, std::string* value) {
			if (attribute == "name" || attribute == "BEOS:TYPE") {
				*type = B_STRING_TYPE;
				*value = attribute == "name" ? "Blue Train.mp3" : std::string("audio/mpeg", 11);
				return true;
			}
			if (attribute == "Audio:Track") {
				const int32 track = -7;
				*type = B_INT32_TYPE;
				value->assign(reinterpret_cast<const char*>(&track), sizeof(track));
				return true;
			}
			if (attribute == "rating") {
				const float rating = 2.5f;
				*type = B_FLOAT_TYPE;
				value->assign(reinterpret_cast<const char*>(&rating), sizeof(rating));
				return true;
			}
			return false;
		});
}


class BQueryTest : public testing::Test {
protected:
	void SetUp() override
	{
		fHomeBefore = getenv("HOME");
		setenv("HOME", fHome.Path().c_str(), 1);
		ASSERT_EQ(BVolumeRoster().GetBootVolume(&fVolume), B_OK);
	}
	void TearDown() override { setenv("HOME", fHomeBefore.c_str(), 1); }

	std::set<std::string> Names(const char* predicate)
	{
		BQuery query;
		query.SetVolume(&fVolume);
		query.SetPredicate(predicate);
		EXPECT_EQ(query.Fetch(), B_OK);
		return Names(query);
	}
	static std::set<std::string> Names(BQuery& query)
	{
		std::set<std::string> names;
		BEntry entry;
		while (query.GetNextEntry(&entry) == B_OK)
			names.insert(entry.Name());
		EXPECT_EQ(entry.InitCheck(), B_NO_INIT);
		return names;
	}

	using Set = std::set<std::string>;
	std::string fHomeBefore;
	test::TempFolder fHome;
	BVolume fVolume;
};

} // namespace


TEST(Predicate, ComparesTexts)
{
	EXPECT_TRUE(matches("name==\"Blue Train.mp3\""));
	EXPECT_TRUE(matches("((BEOS:TYPE=='audio/mpeg'))"));
	EXPECT_TRUE(matches("BEOS:TYPE=audio/mpeg"));
	EXPECT_FALSE(matches("name==\"Blue\""));
	EXPECT_TRUE(matches("name!=\"Blue\""));
	EXPECT_TRUE(matches("name>\"Blue\""));
	EXPECT_FALSE(matches("name<\"Blue\""));
	EXPECT_FALSE(matches("missing==\"x\""));
	EXPECT_FALSE(matches("missing!=\"x\""));
}


TEST(Predicate, ComparesNumbers)
{
	EXPECT_TRUE(matches("Audio:Track==-7"));
	EXPECT_TRUE(matches("Audio:Track<0"));
	EXPECT_TRUE(matches("Audio:Track >= -7 && Audio:Track <= -7"));
	EXPECT_FALSE(matches("Audio:Track==\"seven\""));
	EXPECT_FALSE(matches("Audio:Track==99999999999999999999"));
	EXPECT_TRUE(matches("rating>2"));
	EXPECT_FALSE(matches("rating>2.5"));
}


TEST(Predicate, KnowsPatterns)
{
	EXPECT_TRUE(matches("name==\"*.mp3\""));
	EXPECT_TRUE(matches("name==\"*Train*\""));
	EXPECT_TRUE(matches("name==\"B??e*\""));
	EXPECT_TRUE(matches("name==\"*[tT][rR]ain*\""));
	EXPECT_TRUE(matches("name==\"[A-C]*\""));
	EXPECT_FALSE(matches("name==\"[^A-C]*\""));
	EXPECT_FALSE(matches("name==\"*\\*\""));
	EXPECT_FALSE(matches("name==\"[\""));
}


TEST(Predicate, StarsAreCheap)
{
	const std::string text(5000, 'a');
	EXPECT_FALSE(hosted::MatchesPattern(text.c_str(), "*a*a*a*a*a*a*a*a*b"));
	EXPECT_TRUE(hosted::MatchesPattern("", "***"));
	EXPECT_FALSE(hosted::MatchesPattern("", "?"));
	EXPECT_TRUE(hosted::MatchesPattern("a]b", "a[]]b"));
}


TEST(Predicate, JoinsConditions)
{
	EXPECT_TRUE(matches("(name==\"x\")||(rating>2)"));
	EXPECT_FALSE(matches("name==\"x\" && rating>2"));
	EXPECT_TRUE(matches("rating>2||name==\"x\"&&name==\"y\""));
	EXPECT_FALSE(matches("(rating>2||name==\"x\")&&name==\"y\""));
	EXPECT_TRUE(matches("!(name==\"x\")"));
}


TEST(Predicate, BadTextIsNone)
{
	for (const char* text : {"", "name", "name==", "==x", "(name==x", "name==x)", "name==\"x", "&&",
			 "name==x&&", "name==x||", "!", "()", "name==x y"}) {
		EXPECT_EQ(hosted::ParsePredicate(text), nullptr) << text;
	}
	EXPECT_EQ(hosted::ParsePredicate(std::string(100000, '(')), nullptr);
	EXPECT_EQ(hosted::ParsePredicate(std::string(100000, '!')), nullptr);
}


TEST_F(BQueryTest, FindsByTypeInTheHomeFolder)
{
	fHome.Write("Music/one.mp3", "");
	fHome.Write("Music/deep/er/two.mp3", "");
	fHome.Write("three.ogg", "");
	fHome.Write(".hidden/four.mp3", "");
	std::filesystem::create_directory_symlink(fHome.Path(), fHome / "loop");
	EXPECT_EQ(Names("((BEOS:TYPE=='audio/mpeg'))"), (Set{"one.mp3", "two.mp3"}));
	EXPECT_EQ(Names("((BEOS:TYPE==\"audio/mpeg\")&&(name==\"*w*\"))"), (Set{"two.mp3"}));
}


TEST_F(BQueryTest, FindsByStoredAttributes)
{
	const int32 track = 3;
	BNode node(fHome.Write("a", "12345").c_str());
	ASSERT_EQ(node.WriteAttr("Audio:Track", B_INT32_TYPE, 0, &track, sizeof(track)), 4);
	fHome.Write("b", "");
	EXPECT_EQ(Names("Audio:Track==3"), (Set{"a"}));
	EXPECT_EQ(Names("(size>=5)&&(name==a)"), (Set{"a"}));
	EXPECT_EQ(Names("last_modified>1000000000 && name==b"), (Set{"b"}));
}


TEST_F(BQueryTest, ConditionCanBePushed)
{
	fHome.Write("First.txt", "");
	fHome.Write("second.txt", "");
	BQuery query;
	query.SetVolume(&fVolume);
	query.PushAttr("name");
	query.PushString("IRS", true);
	query.PushOp(B_CONTAINS);
	query.PushAttr("size");
	query.PushInt32(0);
	query.PushOp(B_EQ);
	query.PushOp(B_AND);
	char buffer[100];
	ASSERT_EQ(query.GetPredicate(buffer, sizeof(buffer)), B_OK);
	EXPECT_STREQ(buffer, "((name==\"*[iI][rR][sS]*\")&&(size==0))");
	EXPECT_EQ(query.PredicateLength(), strlen(buffer) + 1);
	EXPECT_EQ(query.GetPredicate(buffer, 5), B_BAD_VALUE);
	ASSERT_EQ(query.Fetch(), B_OK);
	EXPECT_EQ(Names(query), (Set{"First.txt"}));
}


TEST_F(BQueryTest, OrderOfCalls)
{
	BQuery query;
	entry_ref ref;
	EXPECT_EQ(query.GetNextRef(&ref), B_FILE_ERROR);
	EXPECT_EQ(query.Fetch(), B_NO_INIT);
	EXPECT_EQ(query.SetPredicate("name==x"), B_OK);
	EXPECT_EQ(query.Fetch(), B_NO_INIT);
	EXPECT_EQ(query.SetVolume(&fVolume), B_OK);
	EXPECT_EQ(query.TargetDevice(), fVolume.Device());
	EXPECT_EQ(query.Fetch(), B_OK);
	EXPECT_EQ(query.SetPredicate("name==y"), B_NOT_ALLOWED);
	EXPECT_EQ(query.SetVolume(&fVolume), B_NOT_ALLOWED);
	EXPECT_EQ(query.Fetch(), B_NOT_ALLOWED);
	EXPECT_EQ(query.CountEntries(), B_ERROR);
	EXPECT_EQ(query.Rewind(), B_ERROR);
	EXPECT_EQ(query.GetNextRef(&ref), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(query.Clear(), B_OK);
	EXPECT_EQ(query.GetNextRef(&ref), B_FILE_ERROR);
}


TEST_F(BQueryTest, BadConditions)
{
	BQuery query;
	query.SetVolume(&fVolume);
	query.SetPredicate("name==");
	EXPECT_EQ(query.Fetch(), B_BAD_VALUE);
	query.Clear();
	query.SetVolume(&fVolume);
	query.PushOp(B_EQ);
	EXPECT_EQ(query.Fetch(), B_BAD_VALUE);
	EXPECT_EQ(query.SetPredicate(nullptr), B_BAD_VALUE);
	EXPECT_EQ(query.SetVolume(nullptr), B_BAD_VALUE);
	const BVolume none;
	EXPECT_EQ(query.SetVolume(&none), B_BAD_VALUE);
	EXPECT_EQ(query.GetNextRef(nullptr), B_BAD_VALUE);
	EXPECT_EQ(query.GetNextEntry(nullptr), B_BAD_VALUE);
}


TEST(BVolume, BootVolumeIsTheRoot)
{
	BVolume volume;
	ASSERT_EQ(BVolumeRoster().GetBootVolume(&volume), B_OK);
	EXPECT_EQ(volume.InitCheck(), B_OK);
	BDirectory root;
	EXPECT_EQ(volume.GetRootDirectory(&root), B_OK);
	BEntry entry;
	EXPECT_EQ(root.GetEntry(&entry), B_OK);
	EXPECT_TRUE(entry == BEntry("/"));
	EXPECT_GT(volume.Capacity(), 0);
	EXPECT_GE(volume.Capacity(), volume.FreeBytes());
	char name[B_FILE_NAME_LENGTH];
	EXPECT_EQ(volume.GetName(name), B_OK);
	EXPECT_STRNE(name, "");
	EXPECT_TRUE(volume.KnowsAttr() && volume.KnowsQuery() && volume.KnowsMime());
	EXPECT_TRUE(volume == BVolume(volume.Device()));
}


TEST(BVolume, UnknownDevice)
{
	BVolume volume(static_cast<dev_t>(-1));
	EXPECT_EQ(volume.InitCheck(), B_BAD_VALUE);
	EXPECT_LT(volume.Capacity(), 0);
	EXPECT_LT(volume.FreeBytes(), 0);
	BDirectory root;
	EXPECT_EQ(volume.GetRootDirectory(&root), B_NO_INIT);
	EXPECT_EQ(volume.GetRootDirectory(nullptr), B_BAD_VALUE);
	char name[B_FILE_NAME_LENGTH];
	EXPECT_EQ(BVolume().GetName(name), B_NO_INIT);
	EXPECT_FALSE(volume.KnowsAttr());
}


TEST(BVolumeRoster, GivesTheVolumeOfARootThatWasChanged)
{
	const test::TempFolder folder;
	const pid_t child = fork();
	if (child == 0) {
		if (chroot(folder.Path().c_str()) != 0
			&& (unshare(CLONE_NEWUSER) != 0 || chroot(folder.Path().c_str()) != 0)) {
			_exit(kMayNotChangeRoot);
		}
		BVolumeRoster roster;
		BVolume boot;
		BVolume volume;
		const bool same = roster.GetBootVolume(&boot) == B_OK
			&& roster.GetNextVolume(&volume) == B_OK && volume.Device() == boot.Device();
		_exit(same ? 0 : 1);
	}
	int status = 0;
	ASSERT_EQ(waitpid(child, &status, 0), child);
	if (WIFEXITED(status) && WEXITSTATUS(status) == kMayNotChangeRoot)
		GTEST_SKIP() << "This user may not change the root here.";
	EXPECT_EQ(status, 0);
}


TEST(BVolumeRoster, GivesEveryVolumeOnce)
{
	BVolumeRoster roster;
	BVolume boot;
	BVolume volume;
	roster.GetBootVolume(&boot);
	std::multiset<dev_t> devices;
	while (roster.GetNextVolume(&volume) == B_OK)
		devices.insert(volume.Device());
	EXPECT_EQ(roster.GetNextVolume(&volume), B_BAD_VALUE);
	EXPECT_EQ(devices.count(boot.Device()), 1u);
	roster.Rewind();
	EXPECT_EQ(roster.GetNextVolume(&volume), B_OK);
	EXPECT_EQ(roster.GetNextVolume(nullptr), B_BAD_VALUE);
}
