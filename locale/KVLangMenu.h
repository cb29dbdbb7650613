// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef KV_LANG_MENU_H
#define KV_LANG_MENU_H

#include <List.h>
#include <Menu.h>
#include <String.h>

class BMessage;
class BPath;
class KVLabel;


/*!	The menu of the language files that lie beside the program.

	It makes the catalogue if there is none, and never deletes it. A chosen item sends
	kMsgLanguageChanged; whoever receives it restores the built-in texts and calls SetLangFile().
*/
class KVLangMenu : public BMenu {
public:
	KVLangMenu(const char* menuName, const char* appName);
	~KVLangMenu() override;

	// Writes the language's name, or the file name itself, into a buffer of at least
	// B_FILE_NAME_LENGTH bytes.
	virtual void GetNameFor(const char* fileName, char* into);
	virtual void ScanFolder();
	virtual void MirrorThisList(const char* const* list);
	virtual void MirrorAddThisList(const char* const* list);
	// Tells every application, loads the file and marks its item.
	virtual void SetLangFile(BMessage* message);
	virtual void LoadLangFile(const char* path);

	/*!	Takes the language that another copy of the program has chosen, with this copy's own file of
		that name, on top of the table. Nobody else is told; the language loaded already stays.
	*/
	void FollowLangFile(const BMessage& message, const char* const* list);

	BString fAppName;
	int32 fItemCount = 0;
	// The item whose file is of the language loaded last; -1 if there is none.
	int32 fSelected = -1;
	BList fSpareList;
	BString fLastLanguage;
	// The file of that item.
	BString fLanguageFilePath;
	// The process's, not owned.
	KVLabel* fCatalogue = nullptr;

private:
	bool _AddFile(const BPath& path, int32 number);
	void _AddDefaultItem(int32 fileCount);
	void _MarkItem(int32 number);
};

#endif // KV_LANG_MENU_H
