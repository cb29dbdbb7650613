// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What the shell is given for each kind of path, letter for letter.
#include <chrono>

#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <List.h>
#include <Node.h>
#include <TypeConstants.h>

#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "tests/support/Output.h"
#include "tests/support/Popups.h"
#include "tests/window/ShellFixture.h"
#include "window/ExternalPlayer.h"
#include "window/MediaFileOps.h"
#include "window/MediaWindow.h"


namespace {

class ShellCommands : public ShellFixture {
protected:
	std::string Open(const std::string& path)
	{
		return test::OutputOf([&] { IOpenThisFile(path.c_str(), false); });
	}

	void Prefer(const std::string& player)
	{
		Prefs* const prefs = Prefs::getSTPrefs();
		snprintf(prefs->pref_AudioApp, sizeof(prefs->pref_AudioApp), "%s", player.c_str());
	}

	// Opens the file and looks at the text, and at what arrives.
	void ExpectCommand(const std::string& path, const std::string& before)
	{
		Open(path);
		const Paths commands = Commands();
		ASSERT_EQ(commands.size(), 1u) << path;
		EXPECT_EQ(commands[0], before + "'" + path + "' &");
	}
};


bool
contains(const std::string& text, const std::string& part)
{
	return text.find(part) != std::string::npos;
}


const std::string kManager = std::string(kFileManager) + " ";

// Names as they are found in collections of music.
const char* const kNames[] = {
	"plain",
	"with blanks  in it ",
	" first",
	"$HOME ${x} $(x)",
	"this & that",
	"one; two",
	"\"quoted\"",
	"-leading",
	"--help",
	"line\nfeed",
	"\u00fcber \u65e5\u672c \u041c",
	"\xff\xfe\x80",
	"`ticks`",
	"back\\slash\\n",
	"*?[a-z]{a,b}",
	"(live) <2001> |x|",
	"#5 ~x !x =x %20",
	"tab\there\x02",
};

} // namespace


TEST_F(ShellCommands, FileManagerGetsAnyNameAsItIs)
{
	Prefs::getSTPrefs();
	std::string called;
	int count = 0;
	for (const char* name : kNames) {
		const std::string video = MakeTitle(std::string(name) + ".mp4", "video/mp4");
		ExpectCommand(video, kManager);
		called += kFileManager + ("[" + video + "]");
		EXPECT_EQ(Called(++count), called);
	}
}


TEST_F(ShellCommands, PreferredPlayerGetsAnyNameAsItIs)
{
	// A name that begins so needs no waiting for another player's end.
	MakePlayer("MediaPlayerX");
	Prefer("MediaPlayerX");
	std::string called;
	int count = 0;
	for (const char* name : kNames) {
		const std::string title = MakeTitle(std::string(name) + ".mp3");
		ExpectCommand(title, "MediaPlayerX ");
		called += "MediaPlayerX[" + title + "]";
		EXPECT_EQ(Called(++count), called);
	}
}


TEST_F(ShellCommands, AudioWithoutAPreferredPlayerRunsTheFileManager)
{
	Prefs::getSTPrefs();
	const std::string output = Open(MakeTitle("a.mp3"));
	EXPECT_EQ(Commands(), Paths{kManager + "'" + (fFolder / "a.mp3") + "' &"});
	EXPECT_FALSE(contains(output, "will stop any"));
}


TEST_F(ShellCommands, AudioWithAPreferredPlayerFirstAsksARunningOneToQuit)
{
	if (IsPlayerRunning())
		GTEST_SKIP() << "a player is running";
	const std::string player = MakePlayer("player");
	Prefer(player);
	const auto begin = std::chrono::steady_clock::now();
	const std::string output = Open(MakeTitle("a.mp3"));
	// The old player has time to end, and the new one to begin.
	EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(460));
	EXPECT_EQ(Commands(), Paths{player + " '" + (fFolder / "a.mp3") + "' &"});
	EXPECT_LT(output.find(" - will stop any Audio-App \n"), output.find("stop end\n"));
	EXPECT_LT(output.find("stop end\n"), output.find("wait close.. reopen app\n[open]["));
}


TEST_F(ShellCommands, FolderRunsTheFileManager)
{
	ExpectCommand(fFolder.MakeFolder("an album"), kManager);
}


TEST_F(ShellCommands, ProgramIsRunItself)
{
	const std::string mark = fFolder / "ran";
	const std::string program
		= MakeTitle("a program", "application/x-vnd.Be-elfexecutable; and more");
	fFolder.Write("a program", "#!/bin/sh\n: > '" + mark + "'\n");
	chmod(program.c_str(), 0755);
	ExpectCommand(program, "");
}


TEST_F(ShellCommands, FileWithoutATypeRunsTheFallbackPlayer)
{
	const std::string path = fFolder.Write("untyped", "");
	BNode(path.c_str()).WriteAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, "", 1);
	const std::string output = Open(path);
	EXPECT_EQ(Commands(), Paths{std::string(kFallbackPlayer) + " '" + path + "' &"});
	EXPECT_TRUE(contains(output,
		" Mime: at.  \n ..oops hat keinerlei Filetype - also Mediaplayer..\n[open]["));
}


TEST_F(ShellCommands, NotFoundTextIsRunIfItsPathIsAPlainWord)
{
	for (const char* name : {"missing.mp3", "a-b_c+d,e:f@g%20.mp3", "\u00fcber.mp3"}) {
		const std::string text = (fFolder / name) + "\n ..File not found :(";
		const std::string output = Open(fFolder / name);
		EXPECT_EQ(Commands(), Paths{text});
		EXPECT_EQ(output, "[open][" + text + "]\n oops: couldn't execute :\n" + text + "\n");
	}
}


TEST_F(ShellCommands, NotFoundTextIsNotRunIfItsPathIsMoreThanAWord)
{
	for (const char* name :
		{"with blank.mp3", "a;b", "$x", "a'b", "a\nb", "~", "a=b", "a!b", "a^b"}) {
		const std::string text = (fFolder / name) + "\n ..File not found :(";
		EXPECT_EQ(Open(fFolder / name),
			"[open][" + text + "]\n oops: couldn't execute :\n" + text + "\n");
		EXPECT_EQ(Commands(), Paths());
	}
}


TEST_F(ShellCommands, NotFoundTextOfABareNameIsNotRun)
{
	const std::string text = "true\n ..File not found :(";
	EXPECT_EQ(Open("true"), "[open][" + text + "]\n oops: couldn't execute :\n" + text + "\n");
	EXPECT_EQ(Commands(), Paths());
}


TEST_F(ShellCommands, EditRunsTheFileManagerWithThePlaylist)
{
	WritePlaylist({"/music/a.mp3"});
	Do(MF_EDIT);
	EXPECT_EQ(Commands(), Paths{kManager + "'" + PlaylistPath() + "' &"});
}


TEST_F(ShellCommands, FailingCommandIsPrintedAgain)
{
	// What runs in the background never fails for the shell; a text that it cannot read does.
	const std::string text = (fFolder / "missing") + "\n ..File not found :(";
	EXPECT_TRUE(contains(Open(fFolder / "missing"), " oops: couldn't execute :\n" + text + "\n"));
}


TEST_F(ShellCommands, StartTakesSixtyMilliseconds)
{
	const std::string folder = fFolder.MakeFolder("album");
	const auto begin = std::chrono::steady_clock::now();
	Open(folder);
	EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(60));
}
