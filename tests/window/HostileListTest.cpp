// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Playlists whose lines are made to run a command or to write a file.
#include <filesystem>
#include <set>

#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <List.h>

#include "listview/MxView.h"
#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "tests/support/Unprivileged.h"
#include "tests/window/ShellFixture.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

// Names of files, or of folders if they end with a slash. Each would make a file "hurt" somewhere.
const char* const kWays[] = {
	"'; touch hurt; '",
	"x'; touch hurt; 'y.mp4",
	"x';touch hurt #.mp4",
	"x' & touch hurt & 'y.mp4",
	"x' && touch hurt && 'y.mp4",
	"x' || touch hurt || 'y.mp4",
	"x' | touch hurt | 'y.mp4",
	"x'$(touch hurt)'y.mp4",
	"x'`touch hurt`'y.mp4",
	"x'>hurt'",
	"x' >> hurt '.mp4",
	"x' 2> hurt '.mp4",
	"x'\\''; touch hurt; '.mp4",
	"'\"'; touch hurt; '\"'.mp4",
	"x'\ttouch\thurt;'.mp4",
	"x'; exec touch hurt; '.mp4",
	"x'; eval 'touch hurt'; '.mp4",
	"x'; . hurt.sh; '.mp4",
	"x' <(touch hurt) '.mp4",
	"x'${IFS}touch${IFS}hurt'.mp4",
	"'''; touch hurt; '''.mp4",
	"$(touch hurt).mp4",
	"`touch hurt`.mp4",
	"$(touch${IFS}hurt)",
	"a; touch hurt",
	"a;touch hurt;",
	"a & touch hurt",
	"a && touch hurt",
	"a || touch hurt",
	"a | touch hurt",
	"a > hurt",
	"a>hurt",
	"a\"; touch hurt; \"b.mp4",
	"\"$(touch hurt)\".mp4",
	"(touch hurt)",
	"{touch,hurt}",
	"a\\'; touch hurt; \\'.mp4",
	"\x1b]0;touch hurt\x07.mp4",
	"%s%n %s%n.mp4",
	"-o hurt",
	"--output=hurt",
	"*",
	"~",
	"!touch hurt",
	"\xc2\xa0; touch hurt",
};


class HostileList : public ShellFixture {
protected:
	HostileList()
		:
		fWork(fFolder.MakeFolder("work"))
	{
		Prefs::getSTPrefs();
		fFolder.Write("work/hurt.sh", "touch hurt\n");
		EXPECT_EQ(chdir(fWork.c_str()), 0);
		for (const char* way : kWays)
			fLines.push_back((fFolder / "music/") + way);
	}

	~HostileList() override { EXPECT_EQ(chdir("/"), 0); }

	// Drops a playlist of the lines, as a hostile one would come.
	void DropPlaylist(const std::string& name)
	{
		const std::string list = MakeTitle(name, "text/x-playlist");
		std::string contents = "#EXTM3U\n";
		for (const std::string& line : fLines)
			contents += line + "\r\n";
		fFolder.Write(name, contents);
		Send(Drop({list}));
		ASSERT_EQ(PathsOf(Window().mflist), fLines);
		Commands();
	}

	// All that is in the folder, without what the program may write.
	std::set<std::string> Everything()
	{
		std::set<std::string> paths;
		for (const auto& entry :
			std::filesystem::recursive_directory_iterator(fFolder.Path().c_str())) {
			const std::string path = entry.path();
			if (path != fFolder / "called" && path.find("/home/.config/") == std::string::npos)
				paths.insert(path);
		}
		return paths;
	}

	static bool EndsItsQuotes(const std::string& path)
	{
		return path.find('\'') != std::string::npos;
	}

	static std::string Failure(const std::string& command)
	{
		return "[open][" + command + "]\n oops: couldn't execute :\n" + command + "\n";
	}

	// A command that runs in the background may come late.
	void ExpectNothingHurt(const std::set<std::string>& before)
	{
		snooze(200000);
		EXPECT_EQ(Everything(), before);
	}

	std::string fWork;
	Paths fLines;
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}

} // namespace


TEST_F(HostileList, TriesManyWays)
{
	EXPECT_GE(fLines.size(), 30u);
}


TEST_F(HostileList, TitlesThatAreMissingRunNothing)
{
	DropPlaylist("lists/evil.m3u");
	const std::set<std::string> before = Everything();
	for (size_t number = 0; number < fLines.size(); number++) {
		const std::string output = Play(static_cast<int32>(number));
		EXPECT_TRUE(contains(output, Failure(fLines[number] + "\n ..File not found :("))) << output;
		EXPECT_EQ(Commands(), Paths()) << fLines[number];
	}
	ExpectNothingHurt(before);
}


TEST_F(HostileList, TitlesThatAreThereReachThePlayerWholeOrNotAtAll)
{
	for (const char* way : kWays)
		MakeTitle(std::string("music/") + way, "video/mp4");
	DropPlaylist("lists/evil.m3u");
	const std::set<std::string> before = Everything();
	std::string called;
	int count = 0;
	for (size_t number = 0; number < fLines.size(); number++) {
		const std::string& path = fLines[number];
		const std::string command = std::string(kFileManager) + " '" + path + "' &";
		const std::string output = Play(static_cast<int32>(number));
		if (EndsItsQuotes(path)) {
			EXPECT_TRUE(contains(output, Failure(command))) << output;
			EXPECT_EQ(Commands(), Paths()) << path;
			continue;
		}
		EXPECT_TRUE(contains(output, "[open][" + command + "]\n")) << output;
		EXPECT_EQ(Commands(), Paths{command});
		called += kFileManager + ("[" + path + "]");
		EXPECT_EQ(Called(++count), called);
	}
	ExpectNothingHurt(before);
}


TEST_F(HostileList, PreferredPlayerGetsAudioWholeOrNotAtAll)
{
	MakePlayer("MediaPlayerX");
	Prefs* const prefs = Prefs::getSTPrefs();
	snprintf(prefs->pref_AudioApp, sizeof(prefs->pref_AudioApp), "MediaPlayerX");
	for (const char* way : kWays)
		MakeTitle(std::string("music/") + way);
	DropPlaylist("lists/evil.m3u");
	const std::set<std::string> before = Everything();
	for (size_t number = 0; number < fLines.size(); number++) {
		const std::string command = "MediaPlayerX '" + fLines[number] + "' &";
		EXPECT_TRUE(contains(Play(static_cast<int32>(number)), "[open][" + command + "]\n"));
		EXPECT_EQ(Commands(), EndsItsQuotes(fLines[number]) ? Paths() : Paths{command});
	}
	ExpectNothingHurt(before);
}


TEST_F(HostileList, FoldersOfTitlesAreOpenedWholeOrNotAtAll)
{
	Paths lines;
	for (const std::string& line : fLines) {
		std::filesystem::create_directories(line);
		lines.push_back(line + "/title.mp4");
	}
	const Paths folders = fLines;
	fLines = lines;
	DropPlaylist("lists/evil.m3u");
	const std::set<std::string> before = Everything();
	for (size_t number = 0; number < folders.size(); number++) {
		const std::string command = std::string(kFileManager) + " '" + folders[number] + "' &";
		const std::string output = Do(MF_OFOLD, "", static_cast<int32>(number));
		const bool isRun = !EndsItsQuotes(folders[number]);
		EXPECT_TRUE(contains(output, isRun ? "[open][" + command + "]\n" : Failure(command)));
		EXPECT_EQ(Commands(), isRun ? Paths{command} : Paths());
	}
	ExpectNothingHurt(before);
}


TEST_F(HostileList, PlaylistsOwnNameRunsNothing)
{
	fLines = {"/music/a.mp3"};
	DropPlaylist("lists/x'; touch hurt; '.m3u");
	const std::set<std::string> before = Everything();
	EXPECT_TRUE(contains(Do(MF_EDIT), " oops: couldn't execute \n"));
	EXPECT_EQ(Commands(), Paths());
	ExpectNothingHurt(before);
}


TEST_F(HostileList, ProgramThatCannotBeReadIsNotRun)
{
	const std::string program = fFolder.Write("music/program", "#!/bin/sh\ntouch hurt\n");
	chmod(fFolder.Path().c_str(), 0755);
	chmod(program.c_str(), 0111);
	fLines = {program};
	DropPlaylist("lists/evil.m3u");
	chmod((fFolder / "music").c_str(), 0755);
	std::string output;
	{
		const test::Unprivileged unprivileged;
		ASSERT_TRUE(unprivileged.IsDone());
		output = Play(0);
	}
	EXPECT_TRUE(contains(output, Failure(program + "\n ..File not found :("))) << output;
	EXPECT_EQ(Commands(), Paths());
}


TEST_F(HostileList, LinkToAnotherFileIsNoPlaylist)
{
	// It would become the file that is saved to.
	const std::string precious = fFolder.Write("precious.m3u", "precious\n");
	const std::string link = fFolder / "lists.m3u";
	ASSERT_EQ(symlink(precious.c_str(), link.c_str()), 0);
	const std::string output = Send(Drop({link}));
	EXPECT_FALSE(contains(output, "open a (Soundplay)-Playlist"));
	EXPECT_EQ(Window().fPlaylistPath, PlaylistPath().c_str());
}
