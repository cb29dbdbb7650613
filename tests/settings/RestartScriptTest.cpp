// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The restart script, with the system's calls turned to a folder of the test's own, and the
// versions of programs.
#include "settings/Helpers.h"

#include <string>

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <AppFileInfo.h>
#include <File.h>
#include <Path.h>
#include <Roster.h>
#include <gtest/gtest.h>

#include "settings/Locations.h"
#include "tests/support/Output.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/TempFolder.h"


namespace {

// Where the script goes instead; empty for its own place.
std::string sScript;
std::string sCommand;
int sCommandResult = 0;


const char*
place_of(const char* path)
{
	return !sScript.empty() && strcmp(path, kRestartScript) == 0 ? sScript.c_str() : path;
}

} // namespace


// In place of the C library's.
extern "C" FILE*
fopen(const char* path, const char* mode)
{
	using Function = FILE* (*)(const char*, const char*);
	static const Function sOriginal = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "fopen"));
	return sOriginal(place_of(path), mode);
}


extern "C" int
chmod(const char* path, mode_t mode) noexcept
{
	return static_cast<int>(syscall(SYS_fchmodat, AT_FDCWD, place_of(path), mode));
}


extern "C" int
system(const char* command)
{
	sCommand = command;
	return sCommandResult;
}


namespace {

class RestartScript : public testing::Test {
protected:
	void SetUp() override
	{
		app_info info;
		ASSERT_EQ(test::TheApplication().GetAppInfo(&info), B_OK);
		BPath folder;
		ASSERT_EQ(BPath(&info.ref).GetParent(&folder), B_OK);
		fCompanion = std::string(folder.Path()) + "/KORU";
		sScript = fFolder / "script";
		sCommand = "";
		sCommandResult = 0;
	}
	void TearDown() override { sScript = ""; }

	std::string Begin() { return " MakeRestartScript '" + fCompanion + "' path2app\n"; }

	const test::TempFolder fFolder;
	std::string fCompanion;
};

} // namespace


TEST_F(RestartScript, IsWrittenWithTheCompanionsPath)
{
	EXPECT_EQ(test::OutputOf([] { MakeRestartScript(false); }), Begin() + " build\n");
	EXPECT_EQ(test::ReadFile(sScript),
		"#!/bin/sh\n"
		"#PATH=:/boot/beos/bin:/boot/develop/tools:/boot/apps:/boot/preferences export PATH\n"
		"#\n"
		"# ---\n"
		"answer=`alert \" ..Restart Inputserver and KORU now ?\" \"No\" \"Yes\"`\n"
		"if [ $answer == \"No\" ]\n"
		"then\n"
		"\texit\n"
		"else\n"
		"\tkill -9 KORU\n"
		"\tsleep 1\n"
		"\t/system/servers/input_server -q\n"
		"\tsleep 5\n"
		"# ---\n"
		"\tanswerB=`alert \" ..Restart KORU now ?\" \"No\" \"Yes\"`\n"
		"if [ $answerB != \"No\" ]\n"
		"then\n"
		"\t" + fCompanion
			+ " &\nfi\n# ---\nfi\n");
	struct stat status;
	ASSERT_EQ(stat(sScript.c_str(), &status), 0);
	EXPECT_EQ(status.st_mode & 07777, 07777u);
	EXPECT_EQ(sCommand, "");
}


TEST_F(RestartScript, IsHandedToTheFileManagerIfItShallRun)
{
	EXPECT_EQ(test::OutputOf([] { MakeRestartScript(true); }), Begin() + " build\n");
	const std::string command = std::string(kRestartFileManager) + " '" + kRestartScript + "' &";
	EXPECT_EQ(sCommand, command);

	sCommandResult = 256;
	EXPECT_EQ(test::OutputOf([] { MakeRestartScript(true); }),
		Begin() + " build\n oops: couldn't execute :\n[open][" + command + "]\n");
}


TEST_F(RestartScript, PlaceThatCannotBeWrittenIsPrinted)
{
	sScript = fFolder / "no/such/folder";
	EXPECT_EQ(test::OutputOf([] { MakeRestartScript(true); }),
		Begin() + "'/boot/var/tmp/restart_koru.sh' OpenError!\n");
	EXPECT_EQ(sCommand, "");
}


TEST_F(RestartScript, VersionIsPrintedAndItsInternalNumberStays)
{
	const std::string known = fFolder.Write("known", "");
	version_info version = {1, 2, 3, B_BETA_VERSION, 45, "A program", "A program's long text"};
	BFile(known.c_str(), B_READ_WRITE)
		.WriteAttr("BEOS:APP_VERSION", 'APPV', 0, &version, sizeof(version));
	const std::string written = Begin() + " build\n";
	EXPECT_EQ(test::OutputOf([&known] { GetAnyAppVersion(known.c_str()); }),
		"1|2|3|45| A program  ::'" + known + "'\n" + written);

	const std::string unknown = fFolder.Write("unknown", "");
	EXPECT_EQ(test::OutputOf([&unknown] { GetAnyAppVersion(unknown.c_str()); }),
		"0|0|0|45| [bad]  ::'" + unknown + "'\n" + written);
	const std::string missing = fFolder / "missing";
	EXPECT_EQ(test::OutputOf([&missing] { GetAnyAppVersion(missing.c_str()); }),
		"0|0|0|45| [bad]  ::'" + missing + "'\n" + written);
}
