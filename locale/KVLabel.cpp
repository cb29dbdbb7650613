// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The catalogue's texts.
#include "locale/KVLabel.h"

#include <stdio.h>
#include <string.h>

#include "locale/LanguageMemory.h"


KVLabel* KVLabel::labelZgr = nullptr;


static char*
copy_of(const char* text)
{
	const size_t size = strlen(text) + 1;
	char* const copy = new char[size];
	memcpy(copy, text, size);
	return copy;
}


KVLabel::KVLabel(const char* name)
	:
	Setting4App(name),
	mirrorLabel(20),
	altLangFile("notset"),
	fNotFound(copy_of("-nf-"))
{
	lastLanguage = AskStrSetting(name, "LAST", false);
	PrintToStream();
	printf("\nBUILD-KVLabel-DONE\n");
}


KVLabel::~KVLabel()
{
	delete[] fReserved;
	delete[] fNotFound;
	KVLabel::ClearMirrorList();
	printf("DESTROY-KVLabel done\n");
	labelZgr = nullptr;
}


KVLabel*
KVLabel::getKVLabel(const char* name)
{
	if (labelZgr == nullptr)
		labelZgr = new KVLabel(name);
	return labelZgr;
}


const char*
KVLabel::getLabel(const char* const*, int number)
{
	if (number > fLastIndex)
		return fNotFound;
	return _TextAt(number);
}


const char*
KVLabel::GetLastLanguage() const
{
	return lastLanguage.String();
}


void
KVLabel::ClearMirrorList()
{
	for (int32 index = mirrorLabel.CountItems(); index >= 0; index--)
		delete[] static_cast<char*>(mirrorLabel.ItemAt(index));
	mirrorLabel.MakeEmpty();
}


void
KVLabel::DeleteMe()
{
	ClearMirrorList();
	altLangFile.Unset();
	Setting4App = "";
	delete labelZgr;
	printf("DESTROY-KVLabel::DeleteMe done\n");
}


void
KVLabel::PrintToStream()
{
	printf("\n- - - - -\n");
	printf("lastLanguage: '%s'\n", lastLanguage.String());
	printf(" Setting4App: '%s'\n", Setting4App.String());
	printf(" altLangFile: '%s'\n", altLangFile.Path() != nullptr ? altLangFile.Path() : "");
	printf(" mirrorLabel: %4ld Items \t(replaced:%ld)\n",
		static_cast<long>(mirrorLabel.CountItems()), static_cast<long>(fReplaced));
	printf(" quelllist= %p \n", static_cast<const void*>(quelllist));
	printf("- - - - -\n");
}


void
KVLabel::MirrorList(const char* const* list)
{
	ClearMirrorList();
	fLastIndex = _AppendCopies(list) - 1;
	fReplaced = 0;
	quelllist = list;
}


void
KVLabel::AddToMirrorList(const char* const* list)
{
	_AppendCopies(list);
	// One more than the last number, other than after MirrorList(): that number gives a null text.
	fLastIndex = mirrorLabel.CountItems();
	quelllist = list;
}


void
KVLabel::listLabel(const char* const* list)
{
	for (int32 index = 0; list[index] != nullptr; index++)
		printf("[%s]", list[index]);
	printf("\n");
}


int32
KVLabel::_AppendCopies(const char* const* list)
{
	int32 count = 0;
	for (; list[count] != nullptr; count++)
		mirrorLabel.AddItem(copy_of(list[count]));
	return count;
}


const char*
KVLabel::_TextAt(int32 index) const
{
	return static_cast<const char*>(mirrorLabel.ItemAt(index));
}
