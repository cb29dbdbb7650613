// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/KVLangMenu.h"

#include <array>

#include <stdio.h>
#include <string.h>
#include <strings.h>

#include <Application.h>
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <MenuItem.h>
#include <Message.h>
#include <Path.h>
#include <Roster.h>
#include <StorageDefs.h>

#include "locale/KVLabel.h"
#include "locale/LanguageMessages.h"


namespace {

struct Language {
	const char* code;
	const char* name;
};

// The first code that a file's name contains decides.
constexpr std::array<Language, 20> kLanguages = {{
	{".arAR", "Argentina"},
	{".nlBE", "Belgisch"},
	{".bgBG", "Bulgaria"},
	{".deDE", "Deutsch"},
	{".enUK", "English (UK)"},
	{".enUS", "English (US)"},
	{".esES", "Español"},
	{".etEE", "Estonia"},
	{".fiFI", "Finnish"},
	{".frFR", "Français"},
	{".itIT", "Italian"},
	{".jaJP", "日本語"},
	{".huHU", "Magyar"},
	{".nlNL", "Nederlands"},
	{".noNO", "Norsk"},
	{".plPL", "Polish"},
	{".ptPT", "Português"},
	{".ruRU", "Russian"},
	{".svSE", "Svenska"},
	{".trTR", "Tuerkç"},
}};

} // namespace


KVLangMenu::KVLangMenu(const char* menuName, const char* appName)
	:
	BMenu(menuName, B_ITEMS_IN_COLUMN),
	fAppName(appName),
	fSpareList(20)
{
	fCatalogue = KVLabel::getKVLabel(appName);
	fLastLanguage = fCatalogue->GetLastLanguage();
	KVLangMenu::ScanFolder();
	fItemCount = CountItems();
}


KVLangMenu::~KVLangMenu()
{
	fSpareList.MakeEmpty();
}


void
KVLangMenu::GetNameFor(const char* fileName, char* into)
{
	if (into == nullptr) {
		printf(" oops no INTO-ADR \n");
		return;
	}

	const char* name = fileName;
	for (const Language& language : kLanguages) {
		const char* const code = strstr(fileName, language.code);
		// A name that begins with the code is no language file's; the code may come again.
		if (code != nullptr && (code > fileName || strstr(code + 1, language.code) != nullptr)) {
			name = language.name;
			break;
		}
	}
	snprintf(into, B_FILE_NAME_LENGTH, "%s", name);
}


static void
open_folder(BDirectory* folder)
{
	app_info info;
	if (be_app == nullptr || be_app->GetAppInfo(&info) != B_OK)
		return;

	const BPath program(&info.ref);
	for (const char* name : {"Dictionaries", "Language/Dictionaries"}) {
		BPath path;
		program.GetParent(&path);
		path.Append(name);
		printf("KVLangMenu: '%s'\n", path.Path());
		const status_t status = folder->SetTo(path.Path());
		if (status == B_OK)
			return;
		printf("oops: %ld \n", static_cast<long>(status));
	}
}


void
KVLangMenu::ScanFolder()
{
	printf("KVLangMenu::ScanFolder()\n");
	fItemCount = 0;
	fSelected = -1;
	BDirectory folder;
	open_folder(&folder);

	int32 count = 0;
	BEntry entry;
	while (folder.InitCheck() == B_OK && folder.GetNextEntry(&entry) == B_OK) {
		BPath path;
		if (!entry.IsFile() || entry.GetPath(&path) != B_OK
			|| strncasecmp(path.Leaf(), fAppName.String(), fAppName.Length()) != 0)
			continue;
		if (_AddFile(path, count))
			count++;
	}

	printf(" back %ld \n", static_cast<long>(count));
	if (count > 0)
		_AddDefaultItem(count);
}


static BMessage*
item_message(int32 number, const char* path)
{
	BMessage* const message = new BMessage(kMsgLanguageChanged);
	message->AddInt32("_MenuItem", number);
	message->AddString("_LangFilePath", path);
	return message;
}


// Whether there is something in the file.
static bool
can_be_read(const BPath& path)
{
	BFile file(path.Path(), B_READ_ONLY);
	if (file.InitCheck() != B_OK) {
		printf("..ooops cant open\n");
		return false;
	}

	off_t size = 0;
	file.GetSize(&size);
	printf(": '%s'  %ld Bytes\n", path.Path(), static_cast<long>(size));
	char first;
	const ssize_t read = file.Read(&first, 1);
	if (read > 0)
		return true;
	printf(" can't read %d ", static_cast<int>(read));
	return false;
}


bool
KVLangMenu::_AddFile(const BPath& path, int32 number)
{
	if (!can_be_read(path))
		return false;

	char name[B_FILE_NAME_LENGTH];
	GetNameFor(path.Leaf(), name);
	BMenuItem* const item = new BMenuItem(name, item_message(number, path.Path()));
	AddItem(item);
	if (strstr(path.Path(), fLastLanguage.String()) != nullptr) {
		printf("  = last selected !\n");
		item->SetMarked(true);
		fSelected = number;
		fLanguageFilePath = path.Path();
	}
	return true;
}


void
KVLangMenu::_AddDefaultItem(int32 fileCount)
{
	AddSeparatorItem();
	BMenuItem* const item = new BMenuItem("-default", item_message(fileCount + 1, "_none"));
	AddItem(item);
	item->SetMarked(fSelected == -1);
}


void
KVLangMenu::MirrorThisList(const char* const* list)
{
	if (fCatalogue == nullptr)
		printf(" KVLabel-Class not installed \n");
	else
		fCatalogue->MirrorList(list);
}


void
KVLangMenu::MirrorAddThisList(const char* const* list)
{
	if (fCatalogue == nullptr)
		printf(" KVLabel-Class not installed \n");
	else
		fCatalogue->AddToMirrorList(list);
}


void
KVLangMenu::LoadLangFile(const char* path)
{
	if (fCatalogue == nullptr)
		printf(" KVLabel-Class not installed \n");
	else
		fCatalogue->LoadLangFile(path);
}


void
KVLangMenu::SetLangFile(BMessage* message)
{
	be_roster->Broadcast(message);

	const char* path;
	if (message->FindString("_LangFilePath", &path) == B_OK)
		LoadLangFile(path);
	else
		printf("KVLangMenu::SetLangFile: _LangFilePath nf.\n");

	int32 number;
	if (message->FindInt32("_MenuItem", &number) == B_OK)
		_MarkItem(number);
	else
		printf("KVLangMenu::SetLangFile: _MenuItem nf.\n");

	if (fCatalogue != nullptr)
		fCatalogue->PrintToStream();
}


static const char*
file_of(const BMenuItem* item)
{
	const BMessage* const message = item != nullptr ? item->Message() : nullptr;
	return message != nullptr ? message->GetString("_LangFilePath", nullptr) : nullptr;
}


void
KVLangMenu::FollowLangFile(const BMessage& message, const char* const* list)
{
	const char* chosen;
	if (fCatalogue == nullptr || message.FindString("_LangFilePath", &chosen) != B_OK)
		return;

	// Anybody may send the message: there need not be a name in it.
	const BPath path(chosen);
	if (path.Leaf() == nullptr)
		return;
	for (int32 index = 0; index < fItemCount; index++) {
		const char* const own = file_of(ItemAt(index));
		if (own == nullptr || strcmp(BPath(own).Leaf(), path.Leaf()) != 0)
			continue;
		if (fCatalogue->altLangFile == BPath(own))
			return;
		MirrorThisList(list);
		LoadLangFile(own);
		_MarkItem(index);
		return;
	}
}


void
KVLangMenu::_MarkItem(int32 number)
{
	for (int32 index = 0; index < fItemCount; index++) {
		BMenuItem* const item = ItemAt(index);
		if (item == nullptr)
			continue;
		item->SetMarked(false);
		if (index == number) {
			item->SetMarked(true);
			printf(" Mark Item nr: %ld\n", static_cast<long>(index));
		}
	}
}
