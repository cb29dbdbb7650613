// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <TranslationUtils.h>

#include <BitmapStream.h>
#include <Entry.h>
#include <File.h>
#include <TranslatorRoster.h>


static BBitmap*
bitmap_of(BFile* file)
{
	if (!file->IsReadable() || !file->IsFile())
		return nullptr;
	BBitmapStream stream;
	BBitmap* bitmap = nullptr;
	BTranslatorRoster roster;
	const status_t status = roster.Translate(file, nullptr, nullptr, &stream, B_TRANSLATOR_BITMAP);
	if (status != B_OK || stream.DetachBitmap(&bitmap) != B_OK)
		return nullptr;
	return bitmap;
}


BBitmap*
BTranslationUtils::GetBitmap(const char* path)
{
	BFile file(path, B_READ_ONLY);
	return bitmap_of(&file);
}


BBitmap*
BTranslationUtils::GetBitmap(const entry_ref* ref)
{
	BFile file(ref, B_READ_ONLY);
	return bitmap_of(&file);
}
