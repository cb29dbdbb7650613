// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Finding and launching applications.
#include <filesystem>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <Entry.h>
#include <List.h>
#include <Messenger.h>
#include <Node.h>
#include <Path.h>
#include <Roster.h>

#include "platform/desktop/Processes.h"
#include "tests/platform/desktop/DesktopSupport.h"
#include "tests/platform/desktop/SessionApp.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Wait.h"

using test::kPeerSignature;
using test::Peer;
using test::SessionApp;


namespace {

/*!	A program built on the kits with a signature and a file of its own, and where it prints to. */
class Installed {
public:
	explicit Installed(const std::string& leaf = "launched-peer")
		:
		fPath(fFolder / leaf)
	{
		SessionApp::Get();
		std::filesystem::copy_file(test::ProgramPath("kit-peer"), fPath);
		setenv("PEER_OUTPUT", (fFolder / "output").c_str(), 1);
		setenv("PEER_SIGNATURE", "application/x-vnd.launched-peer", 1);
	}

	~Installed()
	{
		if (fTeam > 0)
			kill(fTeam, SIGKILL);
		unsetenv("PEER_OUTPUT");
		unsetenv("PEER_SIGNATURE");
	}

	entry_ref Ref() const
	{
		entry_ref ref;
		EXPECT_EQ(get_ref_for_path(fPath.c_str(), &ref), B_OK);
		return ref;
	}

	const std::string& Path() const { return fPath; }
	const test::TempFolder& Folder() const { return fFolder; }
	team_id* Team() { return &fTeam; }

	void SetFlags(uint32 flags) const
	{
		BNode node(fPath.c_str());
		EXPECT_EQ(node.WriteAttr("BEOS:APP_FLAGS", 'APPF', 0, &flags, sizeof(flags)),
			ssize_t(sizeof(flags)));
	}

	// Waits for the line, and returns all that came up to it.
	std::string OutputUpTo(const std::string& line) const
	{
		std::string output;
		EXPECT_TRUE(test::WaitFor([&]() {
			output = test::ReadFile(fFolder / "output");
			return output.find(line + "\n") != std::string::npos;
		})) << output;
		return output.substr(0, output.find(line + "\n"));
	}

private:
	test::TempFolder fFolder;
	std::string fPath;
	team_id fTeam = -1;
};


BMessage
text_message(const char* text)
{
	BMessage message('text');
	message.AddString("text", text);
	return message;
}


// A desktop entry that the tests' own data folder holds.
void
write_entry(const std::string& name, const std::string& lines)
{
	const std::filesystem::path folder
		= std::filesystem::path(getenv("XDG_DATA_HOME")) / "applications";
	std::filesystem::create_directories(folder);
	FILE* file = fopen((folder / name).c_str(), "w");
	ASSERT_NE(file, nullptr);
	fprintf(file, "[Desktop Entry]\nType=Application\nName=Test\n%s", lines.c_str());
	fclose(file);
}

} // namespace


TEST(Launch, MessagesComeFirstThenReadyToRun)
{
	Installed peer;
	const entry_ref ref = peer.Ref();
	BMessage first = text_message("first");
	BMessage second = text_message("second");
	BList messages;
	messages.AddItem(&first);
	messages.AddItem(&second);
	ASSERT_EQ(be_roster->Launch(&ref, &messages, peer.Team()), B_OK);
	EXPECT_EQ(peer.OutputUpTo("ready " + std::to_string(*peer.Team())),
		"text first\ntext second\n");
	app_info info;
	ASSERT_EQ(be_roster->GetRunningAppInfo(*peer.Team(), &info), B_OK);
	EXPECT_STREQ(info.signature, "application/x-vnd.launched-peer");
	EXPECT_STREQ(BPath(&info.ref).Path(), peer.Path().c_str());
}


TEST(Launch, ArgumentsArePassed)
{
	Installed peer;
	const entry_ref ref = peer.Ref();
	const char* const words[] = {"one", "; touch nowhere", "$HOME"};
	ASSERT_EQ(be_roster->Launch(&ref, 3, words, peer.Team()), B_OK);
	EXPECT_EQ(peer.OutputUpTo("ready " + std::to_string(*peer.Team())),
		"argv one ; touch nowhere $HOME\n");
}


TEST(Launch, LaunchedProgramLivesInASessionOfItsOwn)
{
	Installed peer;
	const entry_ref ref = peer.Ref();
	ASSERT_EQ(be_roster->Launch(&ref, static_cast<const BMessage*>(nullptr), peer.Team()), B_OK);
	EXPECT_EQ(getsid(*peer.Team()), *peer.Team());
}


TEST(Launch, SingleProgramGetsTheMessageInstead)
{
	Installed peer;
	peer.SetFlags(B_SINGLE_LAUNCH);
	const entry_ref ref = peer.Ref();
	ASSERT_EQ(be_roster->Launch(&ref, static_cast<const BMessage*>(nullptr), peer.Team()), B_OK);
	peer.OutputUpTo("ready " + std::to_string(*peer.Team()));
	app_info info;
	ASSERT_EQ(be_roster->GetRunningAppInfo(*peer.Team(), &info), B_OK);
	EXPECT_EQ(info.flags, uint32(B_SINGLE_LAUNCH));

	const BMessage message = text_message("for the running one");
	team_id team = 5;
	EXPECT_EQ(be_roster->Launch(&ref, &message, &team), B_ALREADY_RUNNING);
	EXPECT_EQ(team, -1);
	peer.OutputUpTo("text for the running one");
	const char* const words[] = {"again"};
	EXPECT_EQ(be_roster->Launch(&ref, 1, words, &team), B_ALREADY_RUNNING);
	peer.OutputUpTo("argv again");
}


TEST(Launch, ProgramIsFoundByTheSignatureInItsDesktopEntry)
{
	Installed peer;
	write_entry("launched-peer.desktop",
		"Exec=\"" + peer.Path() + "\" %U\nX-Haiku-Signature=application/x-vnd.launched-peer\n");
	entry_ref ref;
	ASSERT_TRUE(test::WaitFor(
		[&]() { return be_roster->FindApp("application/x-vnd.launched-peer", &ref) == B_OK; }));
	EXPECT_STREQ(BPath(&ref).Path(), peer.Path().c_str());
	BMessage message = text_message("by signature");
	ASSERT_EQ(be_roster->Launch("application/x-vnd.launched-peer", &message, peer.Team()), B_OK);
	EXPECT_EQ(peer.OutputUpTo("ready " + std::to_string(*peer.Team())), "text by signature\n");
}


TEST(Launch, FilesBecomeWordsForForeignPrograms)
{
	SessionApp::Get();
	test::ProgramFolder programs;
	test::TempFolder folder;
	const std::string output = folder / "output";
	programs.Add("audacious", "#!/bin/sh\nprintf '%s\\n' \"$@\" end > '" + output + "'\n");
	const std::string song = folder.Write("a song; `touch x`.mp3", "");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(song.c_str(), &ref), B_OK);
	BMessage refs(B_REFS_RECEIVED);
	refs.AddRef("refs", &ref);
	team_id team = -1;
	ASSERT_EQ(be_roster->Launch("application/x-vnd.marcone-soundplay", &refs, &team), B_OK);
	EXPECT_GT(team, 0);
	EXPECT_TRUE(test::WaitFor([&]() { return test::ReadFile(output) == song + "\nend\n"; }));
}


TEST(Launch, FailsExactly)
{
	SessionApp::Get();
	team_id team = 5;
	BMessage message;
	EXPECT_EQ(be_roster->Launch(static_cast<const char*>(nullptr), &message, &team), B_BAD_VALUE);
	EXPECT_EQ(team, -1);
	EXPECT_EQ(be_roster->Launch(static_cast<const entry_ref*>(nullptr), &message), B_BAD_VALUE);
	EXPECT_EQ(be_roster->Launch("application/x-vnd.nobody", &message),
		B_LAUNCH_FAILED_APP_NOT_FOUND);
	EXPECT_EQ(be_roster->Launch("no type at all", &message), B_BAD_VALUE);
	EXPECT_EQ(be_roster->Launch(test::kOwnSignature, &message), B_BAD_VALUE);
	entry_ref own;
	ASSERT_EQ(get_ref_for_path(hosted::ProcessExecutable(getpid()).c_str(), &own), B_OK);
	EXPECT_EQ(be_roster->Launch(&own, &message), B_BAD_VALUE);
	entry_ref missing;
	ASSERT_EQ(get_ref_for_path("/usr/bin/no-such-file", &missing), B_OK);
	EXPECT_EQ(be_roster->Launch(&missing, &message), B_ENTRY_NOT_FOUND);
}


TEST(Launch, WhatCannotRunFails)
{
	SessionApp::Get();
	test::TempFolder folder;
	const std::string broken = folder.Write("broken", "#!/no/such/interpreter\n");
	chmod(broken.c_str(), 0755);
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(broken.c_str(), &ref), B_OK);
	EXPECT_EQ(be_roster->Launch(&ref, static_cast<const BMessage*>(nullptr)),
		B_LAUNCH_FAILED_EXECUTABLE);
}


TEST(FindApp, KnowsPlayersBySignature)
{
	entry_ref ref;
	ASSERT_EQ(be_roster->FindApp("application/x-vnd.videolan-vlc", &ref), B_OK);
	EXPECT_STREQ(BPath(&ref).Path(), "/usr/bin/vlc");
	EXPECT_EQ(be_roster->FindApp("application/x-vnd.marcone-soundplay", &ref),
		B_LAUNCH_FAILED_APP_NOT_FOUND);
}


TEST(FindApp, GivesTheDesktopsChoiceForAType)
{
	test::ProgramFolder programs;
	const std::string opener = programs.Add("text-opener", "#!/bin/sh\n");
	write_entry("text-opener.desktop", "Exec=" + opener + " %f\nMimeType=text/x-haiku-test;\n");
	FILE* file = fopen((std::string(getenv("XDG_CONFIG_HOME")) + "/mimeapps.list").c_str(), "w");
	ASSERT_NE(file, nullptr);
	fprintf(file,
		"[Default Applications]\ntext/x-haiku-test=text-opener.desktop\n"
		"audio/mpeg=text-opener.desktop\n");
	fclose(file);
	entry_ref ref;
	ASSERT_TRUE(
		test::WaitFor([&]() { return be_roster->FindApp("text/x-haiku-test", &ref) == B_OK; }));
	EXPECT_STREQ(BPath(&ref).Path(), opener.c_str());
	EXPECT_EQ(be_roster->FindApp("audio/mpeg", &ref), B_OK);
	EXPECT_STREQ(ref.name, "text-opener");

	// A file goes by its type; a program is its own.
	test::TempFolder folder;
	entry_ref song;
	ASSERT_EQ(get_ref_for_path(folder.Write("song.mp3", "").c_str(), &song), B_OK);
	ASSERT_EQ(be_roster->FindApp(&song, &ref), B_OK);
	EXPECT_STREQ(ref.name, "text-opener");
	entry_ref program;
	ASSERT_EQ(get_ref_for_path(opener.c_str(), &program), B_OK);
	ASSERT_EQ(be_roster->FindApp(&program, &ref), B_OK);
	EXPECT_STREQ(ref.name, "text-opener");
}


TEST(FindApp, FailsExactly)
{
	entry_ref ref;
	EXPECT_EQ(be_roster->FindApp(static_cast<const char*>(nullptr), &ref), B_BAD_VALUE);
	EXPECT_EQ(be_roster->FindApp("a//b", &ref), B_BAD_VALUE);
	EXPECT_EQ(be_roster->FindApp("text/plain", static_cast<entry_ref*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(be_roster->FindApp("application/x-vnd.nobody", &ref), B_LAUNCH_FAILED_APP_NOT_FOUND);
	// A type that the desktop knows and nobody opens.
	EXPECT_EQ(be_roster->FindApp("application/x-cpio", &ref), B_LAUNCH_FAILED_NO_PREFERRED_APP);
	test::TempFolder folder;
	ASSERT_EQ(symlink("/no/where", (folder / "link").c_str()), 0);
	entry_ref link;
	ASSERT_EQ(get_ref_for_path((folder / "link").c_str(), &link), B_OK);
	EXPECT_EQ(be_roster->FindApp(&link, &ref), B_LAUNCH_FAILED_NO_RESOLVE_LINK);
	const std::string thrown = folder.Write("Trash/files/thrown", "#!/bin/sh\n");
	chmod(thrown.c_str(), 0755);
	entry_ref trash;
	ASSERT_EQ(get_ref_for_path(thrown.c_str(), &trash), B_OK);
	EXPECT_EQ(be_roster->FindApp(&trash, &ref), B_LAUNCH_FAILED_APP_IN_TRASH);
}
