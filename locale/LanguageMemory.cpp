// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "locale/LanguageMemory.h"

#include <stdio.h>

#include <Directory.h>
#include <File.h>
#include <FindDirectory.h>
#include <Path.h>
#include <TypeConstants.h>


static constexpr char kFolderName[] = "_LP_x-vnd.KV";
static constexpr char kFileName[] = "kv_simpel_locale";
static constexpr char kLastCode[] = "_last_lg_selected";
static constexpr char kLastNumber[] = "_last_nr_selected";
// A code of four characters and its end.
static constexpr size_t kCodeSize = 5;


static void
open_memory(BFile* file)
{
	BPath path;
	if (find_directory(B_USER_SETTINGS_DIRECTORY, &path) != B_OK
		|| path.Append(kFolderName) != B_OK)
		return;
	create_directory(path.Path(), 0755);
	path.Append(kFileName);
	file->SetTo(path.Path(), B_READ_WRITE | B_CREATE_FILE);
}


char*
AskStrSetting(const char* name, const char* value, bool write)
{
	static char sBuffer[32];

	// What follows the text is cleared: five bytes are stored, however short it is.
	char text[sizeof(sBuffer)] = "";
	snprintf(text, sizeof(text), "%s", value);
	for (size_t index = 0; index < sizeof(sBuffer); index++)
		sBuffer[index] = text[index];

	BFile file;
	open_memory(&file);
	if (write) {
		file.WriteAttr(kLastCode, B_STRING_TYPE, 0, sBuffer, kCodeSize);
		file.WriteAttr(name, B_STRING_TYPE, 0, sBuffer, kCodeSize);
		return sBuffer;
	}

	const ssize_t size = file.ReadAttr(kLastCode, B_STRING_TYPE, 0, sBuffer, kCodeSize);
	if (size >= 0)
		sBuffer[size] = '\0';
	return sBuffer;
}


int32
AskIntSetting(long value, bool write)
{
	int32 number = static_cast<int32>(value);
	BFile file;
	open_memory(&file);
	if (write)
		file.WriteAttr(kLastNumber, B_INT32_TYPE, 0, &number, sizeof(number));
	else
		file.ReadAttr(kLastNumber, B_INT32_TYPE, 0, &number, sizeof(number));
	return number;
}
