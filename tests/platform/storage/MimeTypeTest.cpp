// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MimeType.h>

#include <algorithm>
#include <stdlib.h>
#include <string.h>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <Bitmap.h>
#include <Entry.h>
#include <Message.h>

#include <gtest/gtest.h>

#include "tests/support/TempFolder.h"
#include "tests/support/Wait.h"

using test::TempFolder;


namespace {

// A player that is installed as far as the desktop can see, under a name that the kits know.
class FakePlayer {
public:
	FakePlayer()
		:
		fOldPath(getenv("PATH"))
	{
		chmod(fFolder.Write("audacious", "#!/bin/sh\n").c_str(), 0755);
		setenv("PATH", (fFolder.Path() + ":" + fOldPath).c_str(), 1);
		const std::string folder = std::string(getenv("XDG_DATA_HOME")) + "/applications";
		mkdir(getenv("XDG_DATA_HOME"), 0755);
		mkdir(folder.c_str(), 0755);
		fEntry = folder + "/audacious.desktop";
		FILE* const file = fopen(fEntry.c_str(), "w");
		EXPECT_NE(file, nullptr) << fEntry;
		if (file == nullptr)
			return;
		fprintf(file,
			"[Desktop Entry]\nType=Application\nName=Audacious\n"
			"Exec=%s/audacious %%F\nMimeType=audio/mpeg;audio/flac;\n",
			fFolder.Path().c_str());
		fclose(file);
	}

	~FakePlayer()
	{
		setenv("PATH", fOldPath.c_str(), 1);
		remove(fEntry.c_str());
	}

private:
	const TempFolder fFolder;
	const std::string fOldPath;
	std::string fEntry;
};

constexpr const char* kFakeSignature = "application/x-vnd.marcone-soundplay";


std::vector<std::string>
applications(const BMessage& reply)
{
	std::vector<std::string> names;
	const char* name = nullptr;
	for (int32 i = 0; reply.FindString("applications", i, &name) == B_OK; i++)
		names.emplace_back(name);
	return names;
}


std::string
guess(const std::string& name)
{
	BMimeType type;
	EXPECT_EQ(BMimeType::GuessMimeType(name.c_str(), &type), B_OK);
	return type.Type();
}

} // namespace


TEST(BMimeType, KnowsValidNames)
{
	EXPECT_TRUE(BMimeType::IsValid("audio/mpeg"));
	EXPECT_TRUE(BMimeType::IsValid("audio"));
	EXPECT_TRUE(BMimeType::IsValid("application/x-vnd.Be-MAIL"));
	EXPECT_TRUE(BMimeType::IsValid(std::string(239, 'a').c_str()));
	EXPECT_FALSE(BMimeType::IsValid(std::string(240, 'a').c_str()));
	for (const char* name : {"", "/", "/mpeg", "audio/", "audio/mpeg/x", "au dio/x", "audio/m(peg",
			 "a=b", "a\\b", "audio/\x7f", "audio/\xc3\xa4"})
		EXPECT_FALSE(BMimeType::IsValid(name)) << name;
	EXPECT_FALSE(BMimeType::IsValid(nullptr));
}


TEST(BMimeType, TakesAndForgetsNames)
{
	BMimeType type;
	EXPECT_EQ(type.InitCheck(), B_NO_INIT);
	EXPECT_EQ(type.Type(), nullptr);
	EXPECT_EQ(type.SetTo("audio/mpeg"), B_OK);
	EXPECT_STREQ(type.Type(), "audio/mpeg");
	EXPECT_TRUE(type.IsValid());
	EXPECT_EQ(type.SetTo("audio/"), B_BAD_VALUE);
	EXPECT_EQ(type.Type(), nullptr);
	EXPECT_EQ(type.SetTo(nullptr), B_NO_INIT);
	type.SetTo("audio");
	EXPECT_TRUE(type.IsSupertypeOnly());
	type.Unset();
	EXPECT_EQ(type.InitCheck(), B_NO_INIT);
	EXPECT_FALSE(type.IsSupertypeOnly());
}


TEST(BMimeType, ComparesWithoutLetterCase)
{
	const BMimeType type("audio/mpeg");
	EXPECT_TRUE(type == "AUDIO/Mpeg");
	EXPECT_FALSE(type == "audio/ogg");
	EXPECT_TRUE(type == BMimeType("audio/MPEG"));
	EXPECT_FALSE(type == BMimeType());
}


TEST(BMimeType, SupertypesContainTheirTypes)
{
	const BMimeType type("audio/mpeg");
	const BMimeType video("video");
	BMimeType supertype;
	ASSERT_EQ(type.GetSupertype(&supertype), B_OK);
	EXPECT_STREQ(supertype.Type(), "audio");
	EXPECT_TRUE(supertype.Contains(&type));
	EXPECT_TRUE(type.Contains(&type));
	EXPECT_FALSE(type.Contains(&supertype));
	EXPECT_FALSE(video.Contains(&type));
	EXPECT_EQ(supertype.GetSupertype(&supertype), B_BAD_VALUE);
	EXPECT_EQ(type.GetSupertype(nullptr), B_BAD_VALUE);
}


TEST(BMimeType, IsInstalledWhenTheDesktopKnowsIt)
{
	EXPECT_TRUE(BMimeType("audio/mpeg").IsInstalled());
	EXPECT_TRUE(BMimeType("audio/x-flac").IsInstalled());
	EXPECT_TRUE(BMimeType("text/x-playlist").IsInstalled());
	EXPECT_TRUE(BMimeType("audio").IsInstalled());
	EXPECT_FALSE(BMimeType("audio/x-surely-not").IsInstalled());
	EXPECT_FALSE(BMimeType("no-such-kind").IsInstalled());
	EXPECT_FALSE(BMimeType().IsInstalled());
}


TEST(BMimeType, DescribesItself)
{
	char text[B_MIME_TYPE_LENGTH];
	ASSERT_EQ(BMimeType("audio/mpeg").GetShortDescription(text), B_OK);
	EXPECT_NE(strstr(text, "MP3"), nullptr) << text;
	EXPECT_EQ(BMimeType("audio/x-surely-not").GetShortDescription(text), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BMimeType().GetShortDescription(text), B_NO_INIT);
	EXPECT_EQ(BMimeType("audio/mpeg").GetShortDescription(nullptr), B_BAD_VALUE);
}


TEST(BMimeType, GuessesByNameOrContents)
{
	EXPECT_EQ(guess("a.mp3"), "audio/mpeg");
	EXPECT_EQ(guess("/some/where.d/a.FLAC"), "audio/x-flac");
	EXPECT_EQ(guess("nothing"), B_FILE_MIME_TYPE);

	const TempFolder folder;
	entry_ref ref;
	BMimeType type;
	ASSERT_EQ(get_ref_for_path(folder.Write("a", "#EXTM3U\n").c_str(), &ref), B_OK);
	ASSERT_EQ(BMimeType::GuessMimeType(&ref, &type), B_OK);
	EXPECT_STREQ(type.Type(), "text/x-playlist");
	ASSERT_EQ(get_ref_for_path((folder / "missing.mp3").c_str(), &ref), B_OK);
	EXPECT_EQ(BMimeType::GuessMimeType(&ref, &type), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BMimeType::GuessMimeType(&ref, nullptr), B_BAD_VALUE);
}


TEST(GetSupportingApps, NamesPlayersThatAreInstalled)
{
	const FakePlayer player;
	BMessage reply;
	ASSERT_EQ(BMimeType("audio/x-mpeg").GetSupportingApps(&reply), B_OK);
	EXPECT_EQ(reply.what, uint32('rgrz'));
	EXPECT_EQ(reply.GetInt32("result", -1), B_OK);
	const int32 subs = reply.GetInt32("be:sub", -1);
	const int32 supers = reply.GetInt32("be:super", -1);
	const std::vector<std::string> names = applications(reply);
	ASSERT_GE(subs, 1);
	ASSERT_GE(supers, 0);
	ASSERT_EQ(names.size(), size_t(subs + supers));
	EXPECT_EQ(std::count(names.begin(), names.begin() + subs, kFakeSignature), 1);
	EXPECT_TRUE(std::is_sorted(names.begin(), names.begin() + subs));
	EXPECT_TRUE(std::is_sorted(names.begin() + subs, names.end()));
	EXPECT_EQ(std::count(names.begin(), names.end(), kFakeSignature), 1);
}


TEST(GetSupportingApps, OtherTypesHaveItAsSupporterOfTheSupertype)
{
	const FakePlayer player;
	BMessage reply;
	ASSERT_EQ(BMimeType("audio/x-surely-not").GetSupportingApps(&reply), B_OK);
	EXPECT_EQ(reply.GetInt32("be:sub", -1), 0);
	const std::vector<std::string> names = applications(reply);
	EXPECT_EQ(names.size(), size_t(reply.GetInt32("be:super", -1)));
	EXPECT_EQ(std::count(names.begin(), names.end(), kFakeSignature), 1);

	ASSERT_EQ(BMimeType("audio").GetSupportingApps(&reply), B_OK);
	EXPECT_FALSE(reply.HasInt32("be:sub"));
	EXPECT_EQ(applications(reply), names);
}


TEST(GetSupportingApps, NobodyPlaysWhatIsNoMedia)
{
	const FakePlayer player;
	BMessage reply;
	ASSERT_EQ(BMimeType("chemical/x-surely-not").GetSupportingApps(&reply), B_OK);
	EXPECT_EQ(reply.GetInt32("be:sub", -1), 0);
	EXPECT_EQ(reply.GetInt32("be:super", -1), 0);
	EXPECT_TRUE(applications(reply).empty());
	EXPECT_EQ(BMimeType("audio/mpeg").GetSupportingApps(nullptr), B_BAD_VALUE);
	EXPECT_EQ(BMimeType().GetSupportingApps(&reply), B_NO_INIT);
}


TEST(GetPreferredApp, IsTheDesktopsChoice)
{
	const FakePlayer player;
	const std::string list = std::string(getenv("XDG_CONFIG_HOME")) + "/mimeapps.list";
	FILE* const file = fopen(list.c_str(), "w");
	ASSERT_NE(file, nullptr);
	fputs("[Default Applications]\naudio/mpeg=audacious.desktop\n", file);
	fclose(file);
	char signature[B_MIME_TYPE_LENGTH] = "";
	// The desktop's library notices changes a little later.
	EXPECT_TRUE(test::WaitFor([&signature] {
		return BMimeType("audio/x-mpeg").GetPreferredApp(signature) == B_OK
			&& strcmp(signature, kFakeSignature) == 0;
	})) << signature;
	EXPECT_EQ(BMimeType("chemical/x-surely-not").GetPreferredApp(signature), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BMimeType().GetPreferredApp(signature), B_NO_INIT);
	EXPECT_EQ(BMimeType("audio/mpeg").GetPreferredApp(nullptr), B_BAD_VALUE);
	remove(list.c_str());
}


TEST(BMimeType, HasAnIcon)
{
	BBitmap large(BRect(0, 0, 31, 31), B_RGBA32);
	EXPECT_EQ(BMimeType("audio/mpeg").GetIcon(&large, B_LARGE_ICON), B_OK);
	EXPECT_EQ(BMimeType("audio/mpeg").GetIcon(&large, B_MINI_ICON), B_BAD_VALUE);
	EXPECT_EQ(BMimeType("audio/mpeg").GetIcon(nullptr, B_LARGE_ICON), B_BAD_VALUE);
	EXPECT_EQ(BMimeType("audio/x-surely-not").GetIcon(&large, B_LARGE_ICON), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BMimeType().GetIcon(&large, B_LARGE_ICON), B_NO_INIT);
}
