// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Construction, loading and saving of the settings.
#include "settings/Prefs.h"

#include <stdio.h>
#include <sys/stat.h>

#include <Application.h>
#include <Directory.h>
#include <Entry.h>
#include <FindDirectory.h>
#include <Roster.h>

#include "settings/PrefsTable.h"


Prefs* Prefs::aPrefsZgr = nullptr;


Prefs*
Prefs::getSTPrefs()
{
	if (aPrefsZgr == nullptr)
		aPrefsZgr = new Prefs;
	return aPrefsZgr;
}


void
Prefs::DeleteMe()
{
	delete aPrefsZgr;
	aPrefsZgr = nullptr;
}


Prefs::Prefs()
{
	BPath path;
	if (find_directory(B_USER_SETTINGS_DIRECTORY, &path, true) == B_OK)
		path.Append(kSettingsFileName);
	printf("\nUSING WYN-Version..\n");
	printf("U_SETTING_PATH %s\n", path.Path() != nullptr ? path.Path() : "");

	fFile = std::make_unique<BFile>(path.Path(), B_READ_WRITE | B_CREATE_FILE);
	_SetDefaults();
	LoadPrefs();
}


Prefs::~Prefs()
{
	Save();
}


// The frames get theirs when they are loaded.
void
Prefs::_SetDefaults()
{
	for (const TextPref& pref : kTextPrefs)
		snprintf(pref.buffer(*this), pref.capacity, "%s", pref.deflt);
	for (const FlagPref& pref : kFlagPrefs)
		this->*pref.field = pref.deflt;
	for (const NumberPref& pref : kNumberPrefs)
		this->*pref.field = static_cast<int32>(pref.deflt);
}


bool
Prefs::LoadPrefs()
{
	const bool loaded = _LoadTexts(0, kFirstTexts) && _LoadFlags(0, kFirstFlags)
		&& GetCol(kBackColorKey, &altWinBackCol, &altWinBackCol)
		&& _LoadTexts(kFirstTexts, kTextPrefs.size()) && _LoadFrames()
		&& _LoadFlags(kFirstFlags, kFlagPrefs.size()) && _LoadNumbers();
	if (!loaded)
		fError = true;
	return loaded;
}


bool
Prefs::_LoadTexts(size_t begin, size_t end)
{
	for (size_t index = begin; index < end; index++) {
		char* const buffer = kTextPrefs[index].buffer(*this);
		if (!GetStr(kTextPrefs[index].key, buffer, buffer))
			return false;
	}
	return true;
}


bool
Prefs::_LoadFlags(size_t begin, size_t end)
{
	for (size_t index = begin; index < end; index++) {
		const FlagPref& pref = kFlagPrefs[index];
		bool* const field = &(this->*pref.field);
		// This one flag keeps the value that it has.
		const bool deflt = pref.field == &Prefs::use_splitting ? *field : pref.deflt;
		if (!GetBool(pref.key, field, &deflt))
			return false;
	}
	return true;
}


bool
Prefs::_LoadFrames()
{
	for (const FramePref& pref : kFramePrefs) {
		const BRect deflt(pref.left, pref.top, pref.right, pref.bottom);
		this->*pref.field = deflt;
		if (!GetRect(pref.key, &(this->*pref.field), &deflt))
			return false;
	}
	return true;
}


bool
Prefs::_LoadNumbers()
{
	for (const NumberPref& pref : kNumberPrefs) {
		long value = this->*pref.field;
		const bool loaded = GetInt(pref.key, &value, &pref.deflt);
		this->*pref.field = static_cast<int32>(loaded ? value : pref.deflt);
		if (!loaded)
			return false;
	}
	return true;
}


bool
Prefs::Save()
{
	if (!_SaveFlags(0, kFirstFlags) || !_SaveTexts(kFirstTexts, kTextPrefs.size()) || !_SaveFrames()
		|| !_SaveTexts(0, kFirstTexts) || !_SaveFlags(kFirstFlags, kFlagPrefs.size()))
		return false;

	// Saving goes on if just this position cannot be written.
	const long lastPlay = last_top_media_buf != 0 ? last_top_media_buf : last_top_media;
	PutInt(kLastPlayPref.key, &lastPlay);

	const long linkSize = LINK_SIZE;
	const long priority = PRIORITY;
	if (!PutInt(kLinkSizePref.key, &linkSize) || !PutCol(kBackColorKey, &altWinBackCol)
		|| !PutInt(kPriorityPref.key, &priority))
		return false;

	printf("Prefs-Save\n");
	return true;
}


bool
Prefs::_SaveTexts(size_t begin, size_t end)
{
	for (size_t index = begin; index < end; index++) {
		if (!PutStr(kTextPrefs[index].key, kTextPrefs[index].buffer(*this)))
			return false;
	}
	return true;
}


bool
Prefs::_SaveFlags(size_t begin, size_t end)
{
	for (size_t index = begin; index < end; index++) {
		if (!PutBool(kFlagPrefs[index].key, &(this->*kFlagPrefs[index].field)))
			return false;
	}
	return true;
}


bool
Prefs::_SaveFrames()
{
	for (const FramePref& pref : kFramePrefs) {
		if (!PutRect(pref.key, &(this->*pref.field)))
			return false;
	}
	return true;
}


void
Prefs::Enviroment()
{
	app_info info;
	if (be_app == nullptr || be_app->GetAppInfo(&info) != B_OK)
		return;

	const BEntry program(&info.ref);
	BPath path;
	if (program.GetPath(&path) != B_OK || path.GetParent(&path) != B_OK
		|| path.Append("Language") != B_OK)
		return;

	const BDirectory folder(path.Path());
	if (folder.InitCheck() == B_OK) {
		printf(">> OK: %s\n", path.Path());
	} else {
		mkdir(path.Path(), 0755);
		printf(">> build: %s\n", path.Path());
	}
	fLanguagePath = path;
}


void
Prefs::PrintPlayConditions()
{
	printf(" -UseOwnPlaylist %d \n", use_ompl);
	printf(" last_top_media %3ld  last_top_media_buf %3ld\n", static_cast<long>(last_top_media),
		static_cast<long>(last_top_media_buf));
	printf(" next_top_media %3ld  last_timer_nr\t\t%3ld\n", static_cast<long>(next_top_media),
		static_cast<long>(last_timer_nr));
	printf(" playingTitle: '%s' \n", playingTitle.String());
	printf(" playingImage: %ld \n", static_cast<long>(playingImage));
}
