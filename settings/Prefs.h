// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PREFS_H
#define PREFS_H

#include <memory>

#include <File.h>
#include <GraphicsDefs.h>
#include <Path.h>
#include <Rect.h>
#include <String.h>
#include <SupportDefs.h>


/*!	The one settings object of the process.

	Each setting is a typed attribute of one file whose contents stay empty. A key that is absent is
	written with its default when it is first read. Nothing is locked: the fields belong to the
	window's thread, once the window is there.
*/
class Prefs {
public:
	static Prefs* getSTPrefs();
	// Saves and deletes the shared object; the next getSTPrefs() makes a new one.
	static void DeleteMe();

	Prefs();
	virtual ~Prefs();

	// Both stop at the first failure, set fError and return false.
	bool LoadPrefs();
	bool Save();

	// Finds or makes the folder of language files beside the program.
	void Enviroment();
	void PrintPlayConditions();

	bool GetInt(const char* key, long* value, const long* deflt);
	bool GetBool(const char* key, bool* value, const bool* deflt);
	bool GetRect(const char* key, BRect* value, const BRect* deflt);
	/*!	A buffer of the settings' own is never filled beyond its size; any other has to hold 256
		bytes. A missing default is written without its terminator and not copied to value.
	*/
	bool GetStr(const char* key, char* value, const char* deflt);
	// Never writes a default; a missing color is no failure.
	bool GetCol(const char* key, rgb_color* value, const rgb_color* deflt);

	bool PutInt(const char* key, const long* value);
	bool PutBool(const char* key, const bool* value);
	bool PutRect(const char* key, const BRect* value);
	// Writes the terminator, too.
	bool PutStr(const char* key, const char* value);
	bool PutCol(const char* key, const rgb_color* value);

	static Prefs* aPrefsZgr;

	BPath fLanguagePath;
	// The settings that are stored begin with the defaults of PrefsTable.h.
	int32 PRIORITY = 0;
	bool use_ompl = false;
	bool window_mtab = false;
	bool mw_ever_topped = false;
	// Index of the title that plays.
	int32 last_top_media = 0;
	// Its index in the media file list while an album folder is shown, and what is then saved.
	int32 last_top_media_buf = 0;
	int32 next_top_media = 0;
	int32 LINK_SIZE = 0;
	int32 last_timer_nr = -1;
	int32 playingImage = -1;
	BString playingTitle;
	BString playingArtist;
	rgb_color altWinBackCol = {216, 216, 216, 0};
	char rs232_port[80] = "";
	char ir_logfile[64] = "";
	BRect prefs_window_rect;
	BRect vr_window_rect;
	BRect lt_window_rect;
	BRect pr_window_rect;
	bool window_by_begin = false;
	bool use_pimped = false;
	bool use_systemsound = false;
	bool use_DualButton = false;
	bool show_pulse = false;
	bool hold_irInfo = false;
	bool all_workspaces = false;
	bool use_Folderjpg = false;
	bool use_splitting = false;
	// Neither loaded nor saved.
	char fSpareText[80] = "-empty-";
	char Desktop[80] = "";
	char Application[80] = "";
	char Audio[80] = "";
	char Video[80] = "";
	char Presetfile[80] = "";
	char Layoutfile[80] = "";
	char pref_AudioApp[255] = "";
	// Some read or write has failed.
	bool fError = false;

private:
	void _SetDefaults();
	bool _LoadTexts(size_t begin, size_t end);
	bool _LoadFlags(size_t begin, size_t end);
	bool _LoadFrames();
	bool _LoadNumbers();
	bool _SaveTexts(size_t begin, size_t end);
	bool _SaveFlags(size_t begin, size_t end);
	bool _SaveFrames();
	size_t _CapacityOf(const char* buffer) const;
	bool _StoreDefault(const char* key, uint32 type, const void* value, size_t size);
	bool _ReportReadError(const char* key, ssize_t error);
	bool _Write(const char* key, uint32 type, const void* value, size_t size);

private:
	std::unique_ptr<BFile> fFile;
};

#endif // PREFS_H
