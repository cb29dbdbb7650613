// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRANSLATOR_ROSTER_H
#define TRANSLATOR_ROSTER_H

#include <Archivable.h>
#include <TranslationDefs.h>

class BMessage;
class BPositionIO;


/*!	Turns data from one format into another: the picture formats that the system can read into
	bitmaps.

	The shared object may be deleted by whoever got it; the next Default() makes a new one.
*/
class BTranslatorRoster : public BArchivable {
public:
	BTranslatorRoster();
	~BTranslatorRoster() override;
	BTranslatorRoster(const BTranslatorRoster&) = delete;
	BTranslatorRoster& operator=(const BTranslatorRoster&) = delete;

	static BTranslatorRoster* Default();

	virtual status_t Identify(BPositionIO* source, BMessage* ioExtension, translator_info* info,
		uint32 hintType = 0, const char* hintMIME = nullptr, uint32 wantType = 0);
	virtual status_t Translate(BPositionIO* source, const translator_info* info,
		BMessage* ioExtension, BPositionIO* destination, uint32 wantOutType, uint32 hintType = 0,
		const char* hintMIME = nullptr);
};

#endif // TRANSLATOR_ROSTER_H
