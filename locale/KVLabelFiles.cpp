// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Language files, and the report of what they leave untranslated.
#include "locale/KVLabel.h"

#include <string>
#include <string_view>

#include <stdio.h>
#include <string.h>
#include <sys/stat.h>

#include <Clipboard.h>
#include <FindDirectory.h>
#include <InterfaceDefs.h>
#include <Node.h>

#include "locale/LanguageMemory.h"
#include "settings/Locations.h"


// With their terminator: longer lines are split, longer texts are compared by their begin.
static constexpr size_t kLineSize = 255;
static constexpr size_t kKeySize = 256;


static off_t
file_size(const char* path)
{
	const BNode node(path);
	struct stat status;
	if (!node.IsFile() || node.GetStat(&status) != B_OK)
		return 0;
	return status.st_size;
}


void
KVLabel::LoadLangFile(const char* path)
{
	printf("KVLabel::LoadLangFile\n");
	printf(" -'%s'-\n", path);
	altLangFile.SetTo(path);
	fReplaced = 0;
	printf(" %ld Bytes | ", static_cast<long>(file_size(path)));

	FILE* const file = fopen(path, "r");
	if (file == nullptr) {
		printf("..oops cant open - reset\n");
		AskStrSetting(Setting4App.String(), "_non", true);
	} else {
		char first;
		const size_t size = fread(&first, 1, 1, file);
		fclose(file);
		if (size == 0) {
			printf(" read error %d ", static_cast<int>(size));
		} else {
			_ApplyFile(path);
			printf(" ..(replaced: %ld )..done\n\n", static_cast<long>(fReplaced));
			_RememberLanguage(path);
		}
	}
	_ReportIfWished();
}


void
KVLabel::_ApplyFile(const char* path)
{
	FILE* const file = fopen(path, "r");
	if (file == nullptr)
		return;

	const int32 labelCount = mirrorLabel.CountItems();
	char line[kLineSize];
	while (fgets(line, sizeof(line), file) != nullptr) {
		if (line[0] != '"')
			continue;
		// Usually the line end; of a last line without one it is a character of the text.
		line[strlen(line) - 1] = '\0';
		_ApplyLine(line, labelCount);
	}
	fclose(file);
}


// The text behind the third double quote, up to the fourth. False if there is no third one.
static bool
find_translation(std::string_view line, std::string* translation)
{
	size_t begin = 0;
	for (int quotes = 0; quotes < 3; quotes++) {
		const size_t quote = line.find('"', begin);
		if (quote == std::string_view::npos)
			return false;
		begin = quote + 1;
	}
	*translation = line.substr(begin, line.find('"', begin) - begin);
	return true;
}


void
KVLabel::_ApplyLine(const char* line, int32 labelCount)
{
	std::string translation;
	if (!find_translation(line, &translation))
		return;

	const std::string_view view(line);
	const size_t length = view.size();
	for (int32 index = 0; index < labelCount; index++) {
		const char* const text = _TextAt(index);
		// A first field of the same length is enough, if the text itself stands anywhere: one line
		// can meet several labels.
		const size_t keyLength = strnlen(text, kKeySize - 1);
		if (keyLength + 1 >= length || line[keyLength + 1] != '"'
			|| view.find(std::string_view(text, keyLength)) == std::string_view::npos)
			continue;

		char* const copy = new char[translation.size() + 1];
		memcpy(copy, translation.c_str(), translation.size() + 1);
		delete[] text;
		mirrorLabel.ReplaceItem(index, copy);
		fReplaced++;
	}
}


void
KVLabel::_RememberLanguage(const char* path)
{
	const char* const dot = strrchr(path, '.');
	lastLanguage = dot != nullptr ? dot + 1 : path;
	AskStrSetting(Setting4App.String(), lastLanguage.String(), true);
}


// Command, Option or Control held while a language is chosen asks for the report.
void
KVLabel::_ReportIfWished()
{
	key_info keys = {};
	const bool locked = be_clipboard != nullptr && be_clipboard->Lock();
	get_key_info(&keys);
	if (locked)
		be_clipboard->Unlock();

	printf("\nmod: %ld  kstates: %d ", static_cast<long>(keys.modifiers), keys.key_states[0]);
	if ((keys.modifiers & B_COMMAND_KEY) != 0)
		printf("[B_COMMAND_KEY]");
	if ((keys.modifiers & B_OPTION_KEY) != 0)
		printf("[B_OPTION_KEY]");
	if ((keys.modifiers & B_CONTROL_KEY) != 0)
		printf("[B_CONTROL_KEY]");

	if ((keys.modifiers & (B_COMMAND_KEY | B_OPTION_KEY | B_CONTROL_KEY)) != 0) {
		PrintToStream();
		ExpMissingStr();
	}
}


static void
write_untranslated(FILE* file, const BList& texts, const char* const* source)
{
	fputs("\n# - - - not translated Labels: \n", file);
	for (int32 index = 0; index < texts.CountItems(); index++) {
		if (source[index] == nullptr) {
			fputs("\nBREAK: Q-POINTER IS NULL\n", file);
			break;
		}
		const char* const text = static_cast<const char*>(texts.ItemAt(index));
		if (text == nullptr) {
			fputs("\nBREAK: M-POINTER IS NULL\n", file);
			break;
		}
		if (strcmp(text, source[index]) == 0)
			fprintf(file, "\"%s\"\t\t\"%s\"\n", text, text);
	}
}


static void
write_all(FILE* file, const BList& texts)
{
	fputs("\n# - - - all direct Labels: \n", file);
	for (int32 index = 0; index < texts.CountItems(); index++) {
		const char* const text = static_cast<const char*>(texts.ItemAt(index));
		if (text != nullptr)
			fprintf(file, "\"%s\"\n", text);
	}
}


void
KVLabel::ExpMissingStr()
{
	printf("\n - ExpMissingStr -\n");
	BPath home;
	if (find_directory(B_USER_DIRECTORY, &home) != B_OK)
		home.SetTo(kFallbackHome);
	BString path(home.Path());
	path << "/" << Setting4App << "_" << lastLanguage << "_Missing.txt";

	FILE* const file = fopen(path.String(), "w");
	if (file == nullptr) {
		printf("..can't open \n");
		return;
	}

	fputs("# - - - missing in: ", file);
	fprintf(file, "\n# - - - '%s'", altLangFile.Path() != nullptr ? altLangFile.Path() : "");
	if (!mirrorLabel.IsEmpty()) {
		if (quelllist == nullptr)
			write_all(file, mirrorLabel);
		else
			write_untranslated(file, mirrorLabel, quelllist);
		// The texts are not counted.
		printf(" - %ld not translated - \n", 0L);
	}
	fclose(file);
}
