// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What the remote control's family of programs needs besides.
#include "settings/Helpers.h"

#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <AppFileInfo.h>
#include <Application.h>
#include <File.h>
#include <Path.h>
#include <Roster.h>
#include <TypeConstants.h>

#include "settings/Locations.h"


// Everything before the path of the companion program, which ends the last of these lines.
static constexpr char kScriptBegin[]
	= "#!/bin/sh\n"
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
	  "\t";
static constexpr char kScriptEnd[] = " &\nfi\n# ---\nfi\n";


void
ChangeKoruFiletype(BNode node)
{
	int32 type = 1;
	if (node.ReadAttr("IR!OWN_FILE", B_INT32_TYPE, 0, &type, sizeof(type)) < 2) {
		printf(" err  change type ");
		return;
	}
	node.WriteAttr("KORU_TYPE", B_INT32_TYPE, 0, &type, sizeof(type));
	printf(" changed type  '%ld' ", static_cast<long>(type));
}


void
GetAnyAppVersion(const char* path)
{
	// Kept from call to call: the internal number of a program without a version is the last one's.
	static version_info sVersion;

	BFile file(path, B_READ_ONLY);
	const BAppFileInfo info(&file);
	const bool found = info.GetVersionInfo(&sVersion, B_APP_VERSION_KIND) == B_OK;
	printf("%ld|%ld|%ld|", found ? static_cast<long>(sVersion.major) : 0,
		found ? static_cast<long>(sVersion.middle) : 0,
		found ? static_cast<long>(sVersion.minor) : 0);
	printf("%ld|", static_cast<long>(sVersion.internal));
	if (found)
		printf(" %s ", sVersion.short_info);
	else
		printf(" [bad] ");
	printf(" ::'%s'\n", path);
	MakeRestartScript(false);
}


static bool
find_companion(BPath* path)
{
	app_info info;
	if (be_app == nullptr || be_app->GetAppInfo(&info) != B_OK)
		return false;
	const BPath program(&info.ref);
	return program.GetParent(path) == B_OK && path->Append("KORU") == B_OK;
}


void
MakeRestartScript(bool run)
{
	printf(" MakeRestartScript ");
	BPath companion;
	if (!find_companion(&companion)) {
		printf("..no path 2 app\n");
		return;
	}
	printf("'%s' path2app\n", companion.Path());

	FILE* const file = fopen(kRestartScript, "w");
	if (file == nullptr) {
		printf("'%s' OpenError!\n", kRestartScript);
		return;
	}
	fputs(kScriptBegin, file);
	fputs(companion.Path(), file);
	fputs(kScriptEnd, file);
	fclose(file);
	printf(" build\n");
	chmod(kRestartScript, 07777);

	if (!run)
		return;
	BString command(kRestartFileManager);
	command << " '" << kRestartScript << "' &";
	if (system(command.String()) != 0) {
		printf(" oops: couldn't execute :\n");
		printf("[open][%s]\n", command.String());
	}
}
