// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "appcontrol/PreferredAudioApp.h"

#include <array>

#include <stdio.h>
#include <string.h>

#include <Entry.h>
#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>
#include <MimeType.h>
#include <Path.h>
#include <Roster.h>

#include "appcontrol/PlayerMessages.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"


namespace {

struct Player {
	const char* tag;
	const char* signature;
};

// Compared exactly. The signatures of two players differ in the case of two letters only.
constexpr std::array<Player, 9> kPlayers = {{
	{"[DA_App_A]", "application/x-vnd.marcone-soundplay"},
	{"[DA_App_B]", "application/x-vnd.RMC.Zenebona"},
	{"[DA_App_C]", "application/x-vnd.yT-MediaPlayer"},
	{"[DA_App_D]", "application/x-vnd.Be.MediaPlayer"},
	{"[DA_App_E]", "application/x-vnd.YT-MediaPlayer"},
	{"[DA_App_F]", "application/x-vnd.yT-AudioTagger"},
	{"[DA_App_H]", "application/x-vnd.ClaesL-CLAmp"},
	{"[DV_Vid_A]", "application/x-vnd.videolan-vlc"},
	{"[DV_Vid_D]", "application/x-vnd.Haiku-MediaPlayer"},
}};

constexpr char kAudioType[] = "audio/x-mpeg";
constexpr int32 kNoneLabel = 213;

} // namespace


static BMenuItem*
add_item(BMenu* menu, const char* label, const char* path)
{
	BMessage* const message = new BMessage(kMsgPreferredAudioApp);
	message->AddString("aa_mime", path);
	BMenuItem* const item = new BMenuItem(label, message);
	menu->AddItem(item);
	return item;
}


static void
add_none(BMenu* menu)
{
	const char* const none = getLabel(kNoneLabel);
	menu->SetRadioMode(true);
	add_item(menu, none, none)->SetMarked(true);
	menu->AddSeparatorItem();
}


// Prints the tags of the signature; false if it has none.
static bool
print_tags(const char* signature)
{
	bool isKnown = false;
	for (const Player& player : kPlayers) {
		if (strcmp(player.signature, signature) == 0) {
			printf("%s", player.tag);
			isKnown = true;
		}
	}
	if (!isKnown)
		printf(" [unknown]");
	return isKnown;
}


static void
add_player(BMenu* menu, const char* signature, const Prefs& settings)
{
	const bool isKnown = print_tags(signature);
	entry_ref ref;
	if (be_roster->FindApp(signature, &ref) != B_OK) {
		printf(" [not found: '%s']\n", signature);
		return;
	}

	const BPath path(&ref);
	if (path.InitCheck() != B_OK) {
		printf(" [not found: '%s']\n", signature);
		return;
	}
	printf(" [%ld]: '%s'", static_cast<long>(strlen(signature)), path.Path());
	if (isKnown && menu != nullptr) {
		BMenuItem* const item = add_item(menu, path.Leaf(), path.Path());
		if (strcmp(path.Path(), settings.pref_AudioApp) == 0)
			item->SetMarked(true);
		printf(" [OK]");
	} else {
		printf(" [Trouble]");
	}
	printf("\n");
}


void
AskForPrefApp(BMenu* menu)
{
	printf("\nAskForPrefApp() \n");
	if (menu != nullptr)
		add_none(menu);

	const Prefs* const settings = Prefs::getSTPrefs();
	BMessage reply;
	BMimeType(kAudioType).GetSupportingApps(&reply);
	const int32 subCount = reply.GetInt32("be:sub", 0);
	printf(" subs:%ld  supers:%ld \n", static_cast<long>(subCount),
		static_cast<long>(reply.GetInt32("be:super", 0)));

	const char* signature;
	for (int32 index = 0; reply.FindString("applications", index, &signature) == B_OK; index++)
		add_player(menu, signature, *settings);
	for (int32 index = 0; reply.FindString("applications", index, &signature) == B_OK; index++) {
		printf(index < subCount ? "     Full support: '%s'\n" : "Supertype support: '%s'\n",
			signature);
	}
}
