// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "window/ExternalPlayer.h"

#include <array>

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include <AppDefs.h>
#include <File.h>
#include <List.h>
#include <Messenger.h>
#include <OS.h>
#include <Roster.h>
#include <String.h>
#include <TypeConstants.h>

#include "settings/Helpers.h"
#include "settings/Locations.h"
#include "settings/Prefs.h"


// Players that are asked to quit before another title is started.
static constexpr std::array<const char*, 9> kPlayers = {
	"application/x-vnd.marcone-soundplay",
	"application/x-vnd.RMC.Zenebona",
	"application/x-vnd.yT-MediaPlayer",
	"application/x-vnd.Be.MediaPlayer",
	"application/x-vnd.YT-MediaPlayer",
	"application/x-vnd.yT-AudioTagger",
	"application/x-vnd.Haiku-MediaPlayer",
	"application/x-vnd.videolan-vlc",
	"application/x-vnd.Me.stampTV",
};

static constexpr char kExecutableType[] = "application/x-vnd.Be-elfexecutable";
static constexpr char kFolderType[] = "application/x-vnd.Be-directory";
static constexpr size_t kMaxTypeLength = 4095;
// A preferred player of at most this length is none: "-empty-", " -none-".
static constexpr size_t kMinPlayerLength = 10;

static constexpr bigtime_t kStartMicros = 60000;
static constexpr bigtime_t kCloseMicros = 400000;
static constexpr bigtime_t kQuitMicros = 5000;


int
RunQuoted(const char* command, const char* path)
{
	if (strchr(path, '\'') != nullptr)
		return -1;
	return system(command);
}


// Whether the shell would take the path as one word that stands for itself, and find no program
// there that may be run though it cannot be read.
static bool
is_harmless(const char* path)
{
	if (path[0] != '/' || access(path, X_OK) == 0)
		return false;
	for (const char* at = path; *at != '\0'; at++) {
		const unsigned char byte = static_cast<unsigned char>(*at);
		const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
			|| (byte >= '0' && byte <= '9') || byte >= 0x80 || strchr("/._-+,:@%", byte) != nullptr;
		if (!isPlain)
			return false;
	}
	return true;
}


static void
report_command(const BString& command)
{
	printf("[open][%s]\n", command.String());
}


static void
report_failure(const BString& command)
{
	printf(" oops: couldn't execute :\n%s\n", command.String());
}


static BString
type_of(const BFile& file)
{
	char type[kMaxTypeLength + 1] = "";
	const ssize_t size = file.ReadAttr("BEOS:TYPE", B_MIME_STRING_TYPE, 0, type, kMaxTypeLength);
	if (size >= 0)
		type[size] = '\0';
	if (type[0] == '\0' && file.IsDirectory())
		return kFolderType;
	return type;
}


static BString
player_command(const char* path, const BString& ordinary)
{
	const Prefs* const settings = Prefs::getSTPrefs();
	if (settings == nullptr || strlen(settings->pref_AudioApp) <= kMinPlayerLength) {
		printf(" ..no User-Prefered-Audio-App \n");
		return ordinary;
	}

	const BString player(settings->pref_AudioApp);
	printf("evnt. Audio mit: '%s' starten\n", player.String());
	const int32 position = player.FindFirst("MediaPlayer");
	printf("MediaPlayer? : %ld\n", static_cast<long>(position));
	if (position != 0) {
		ICloseMediaApp();
		printf("wait close.. reopen app\n");
		snooze(kCloseMicros);
	}
	BString command(player);
	command << " '" << path << "' &";
	return command;
}


static BString
command_for(const BFile& file, const char* path)
{
	const BString type = type_of(file);
	printf(" Mime: at. %s \n", type.String());

	BString command;
	if (type.FindFirst(kExecutableType) != 0)
		command << kFileManager << " ";
	if (type.IsEmpty()) {
		printf(" ..oops hat keinerlei Filetype - also Mediaplayer..\n");
		command = kFallbackPlayer;
		command << " ";
	}
	command << "'" << path << "' &";

	if (type.FindFirst("audio") >= 0)
		return player_command(path, command);
	return command;
}


void
IOpenThisFile(const char* path, bool alert)
{
	BString command;
	int result;
	BFile file(path, B_READ_ONLY);
	if (file.IsReadable()) {
		command = command_for(file, path);
		file.Unset();
		report_command(command);
		result = RunQuoted(command.String(), path);
	} else {
		command << path << "\n ..File not found :(";
		if (alert)
			AnyAlert(command.String(), false);
		report_command(command);
		// What is run is the path itself, so it must mean nothing else to the shell.
		result = is_harmless(path) ? system(command.String()) : -1;
	}
	if (result != 0)
		report_failure(command);
	snooze(kStartMicros);
}


static const char*
player_signature(const char* signature)
{
	const char* found = nullptr;
	for (const char* player : kPlayers) {
		if (strcmp(player, signature) == 0)
			found = player;
	}
	return found;
}


static void
ask_to_quit(const char* signature)
{
	printf(" '%s' ", signature);
	printf(" STOP\n");
	status_t status = B_OK;
	const BMessenger player(signature, -1, &status);
	printf(" status %ld \n", static_cast<long>(status));
	player.SendMessage(B_QUIT_REQUESTED);
	snooze(kQuitMicros);
}


void
ICloseMediaApp()
{
	printf(" - will stop any Audio-App \n");
	BList teams;
	be_roster->GetAppList(&teams);
	printf("count roster teams: %ld\n", static_cast<long>(teams.CountItems()) - 1);

	for (int32 index = 0; index < teams.CountItems(); index++) {
		const team_id team = static_cast<team_id>(reinterpret_cast<uintptr_t>(teams.ItemAt(index)));
		app_info info;
		if (be_roster->GetRunningAppInfo(team, &info) != B_OK)
			continue;
		const char* const signature = player_signature(info.signature);
		if (signature != nullptr) {
			ask_to_quit(signature);
			break;
		}
	}
	printf("stop end\n");
}
