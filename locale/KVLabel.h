// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef KV_LABEL_H
#define KV_LABEL_H

#include <List.h>
#include <Path.h>
#include <String.h>
#include <SupportDefs.h>


/*!	The process's catalogue of texts: a copy of a built-in table, overlaid by a language file.

	A language file holds lines of two quoted fields, a text as the catalogue has it and its
	translation; every other line is a comment. Nothing is locked.
*/
class KVLabel {
public:
	explicit KVLabel(const char* name);
	virtual ~KVLabel();
	KVLabel(const KVLabel&) = delete;
	KVLabel& operator=(const KVLabel&) = delete;

	// Deletes all texts.
	virtual void ClearMirrorList();
	// Writes the texts without a translation to a file in the user's home folder.
	virtual void ExpMissingStr();
	// Deletes the process's catalogue; nothing of it may be touched afterwards.
	virtual void DeleteMe();
	virtual void LoadLangFile(const char* path);
	virtual void PrintToStream();
	// Takes the place of all texts.
	virtual void MirrorList(const char* const* list);
	virtual void AddToMirrorList(const char* const* list);
	// Prints the texts of a table.
	virtual void listLabel(const char* const* list);

	// "-nf-" above the last number, null below 0. The table is not looked at.
	const char* getLabel(const char* const* list, int number);
	const char* GetLastLanguage() const;

	// The process's catalogue, made with that name if there is none.
	static KVLabel* getKVLabel(const char* name);

	static KVLabel* labelZgr;

	int32 fLanguageCode = 'deDE';
	// The code of the language loaded last.
	BString lastLanguage = "LAST";
	// The catalogue's name, under which its language is stored.
	BString Setting4App;
	int32 fLastIndex = 0;
	int32 fReplaced = 0;
	// Of char*, owned, allocated with new[].
	BList mirrorLabel;
	BPath altLangFile;
	// Never set; released with the catalogue.
	char* fReserved = nullptr;
	char* fNotFound;
	// The table mirrored last, not owned.
	const char* const* quelllist = nullptr;

private:
	int32 _AppendCopies(const char* const* list);
	const char* _TextAt(int32 index) const;
	void _ApplyFile(const char* path);
	void _ApplyLine(const char* line, int32 labelCount);
	void _RememberLanguage(const char* path);
	void _ReportIfWished();
};

#endif // KV_LABEL_H
