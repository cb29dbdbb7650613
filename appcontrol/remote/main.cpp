// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// A remote control on the command line: one command, and what became of it as the exit code.
#include <array>

#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <Application.h>
#include <Message.h>
#include <Roster.h>

#include "appcontrol/RemoteCommands.h"
#include "appcontrol/RemotePlayers.h"
#include "settings/Helpers.h"


namespace {

constexpr char kSignature[] = "application/x-vnd.kv-VinyloH-remote";

enum ExitCode {
	kDone = 0,
	kNobodyThere = 1,
	kMisused = 2,
};

struct PlayerCommand {
	const char* name;
	uint32 command;
};

constexpr std::array<PlayerCommand, 7> kPlayerCommands = {{
	{"play", kCommandPlay},
	{"stop", kCommandStop},
	{"next", kCommandNext},
	{"previous", kCommandPrevious},
	{"volume-up", kCommandLouder},
	{"volume-down", kCommandSofter},
	{"mute", kCommandMute},
}};

constexpr char kHelp[]
	= "Usage: vinyloh-remote [--application=SIGNATURE] COMMAND\n"
	  "Steers the players that run on this desktop.\n"
	  "\n"
	  "The first audio player:\n"
	  "  play          plays, and starts the player if it does not run\n"
	  "  stop          stops\n"
	  "  next          goes to the next title\n"
	  "  previous      goes to the previous title\n"
	  "  volume-up     a step louder\n"
	  "  volume-down   a step softer\n"
	  "  mute          turns the volume off, or on again\n"
	  "\n"
	  "Keys of a remote control, by their numbers, such as 94 or 0x5E:\n"
	  "  audio KEY     for the audio player that runs; a few keys start one\n"
	  "  video KEY     for the video player that runs; a few keys start one\n"
	  "  start KEY     starts the text editor (0x34), the terminal (0x35)\n"
	  "                or the office program (0x36)\n"
	  "\n"
	  "Options:\n"
	  "  --application=SIGNATURE\n"
	  "                the application that was active last, where keys for\n"
	  "                Haiku's media player go\n"
	  "  --help        shows this\n"
	  "\n"
	  "Exit codes: 0 if a player was told or started, 1 if none was there or it\n"
	  "did not answer, 2 for a mistake in the command. The manual page is\n"
	  "vinyloh-remote(1).\n";

} // namespace


static int
misused(const char* text, const char* what)
{
	fprintf(stderr, "vinyloh-remote: %s%s\nTry \"vinyloh-remote --help\".\n", text, what);
	return kMisused;
}


static int
nobody_there()
{
	fprintf(stderr, "vinyloh-remote: no player is there, or it does not answer.\n");
	return kNobodyThere;
}


static const PlayerCommand*
find_player_command(const char* name)
{
	for (const PlayerCommand& command : kPlayerCommands) {
		if (strcmp(command.name, name) == 0)
			return &command;
	}
	return nullptr;
}


// False for what is no number of a key.
static bool
parse_key(const char* text, long* key)
{
	constexpr long kHighestKey = 0xFF;
	char* end;
	errno = 0;
	*key = strtol(text, &end, 0);
	return errno == 0 && end != text && *end == '\0' && *key >= 0 && *key <= kHighestKey;
}


// Nobody has told this program which application was active before it was started.
static void
remember_application(const char* signature)
{
	app_info active;
	if (signature == nullptr) {
		signature
			= be_roster->GetActiveAppInfo(&active) == B_OK ? active.signature : kHaikuMediaPlayer;
	}
	BMessage notice(B_SOME_APP_LAUNCHED);
	notice.AddString("be:signature", signature);
	GetLastRosterMessenger(&notice, nullptr);
}


static int
press_key(const char* kind, long key, const char* application)
{
	if (strcmp(kind, "start") != 0)
		remember_application(application);
	if (strcmp(kind, "audio") == 0)
		return PassAudioKey(key) ? kDone : nobody_there();
	if (strcmp(kind, "video") == 0)
		return PassVideoKey(key) ? kDone : nobody_there();
	switch (StartProgramFor(key)) {
		case B_OK:
			return kDone;
		case B_BAD_VALUE:
			return misused("this key starts nothing", "");
		default:
			return kNobodyThere;
	}
}


static bool
is_key_kind(const char* word)
{
	return strcmp(word, "audio") == 0 || strcmp(word, "video") == 0 || strcmp(word, "start") == 0;
}


static int
run(const char* application, int count, char** words)
{
	if (count == 0)
		return misused("a command is missing", "");

	const PlayerCommand* const command = find_player_command(words[0]);
	const bool hasKey = is_key_kind(words[0]);
	long key = 0;
	if (command == nullptr && !hasKey)
		return misused("unknown command ", words[0]);
	if (hasKey && (count < 2 || !parse_key(words[1], &key)))
		return misused("a key's number is missing behind ", words[0]);
	if (count > (hasKey ? 2 : 1))
		return misused("too much behind ", words[0]);

	status_t status = B_OK;
	BApplication self(kSignature, &status);
	if (status != B_OK) {
		fprintf(stderr, "vinyloh-remote: cannot reach other applications.\n");
		return kNobodyThere;
	}
	if (command != nullptr)
		return TellTracks(command->command) ? kDone : nobody_there();
	return press_key(words[0], key, application);
}


int
main(int argc, char** argv)
{
	constexpr char kApplication[] = "--application=";
	const char* application = nullptr;
	int begin = 1;
	for (; begin < argc && argv[begin][0] == '-'; begin++) {
		if (strcmp(argv[begin], "--help") == 0 || strcmp(argv[begin], "-h") == 0) {
			fputs(kHelp, stdout);
			return kDone;
		}
		if (strncmp(argv[begin], kApplication, strlen(kApplication)) != 0)
			return misused("unknown option ", argv[begin]);
		application = argv[begin] + strlen(kApplication);
	}
	return run(application, argc - begin, argv + begin);
}
