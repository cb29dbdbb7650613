// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Construction of a tile, and what it learns from its file.
#include "entryview/MEView.h"

#include <algorithm>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <Bitmap.h>
#include <Font.h>
#include <Node.h>
#include <NodeInfo.h>
#include <PopUpMenu.h>
#include <StorageDefs.h>
#include <TypeConstants.h>

#include "entryview/BuiltInPictures.h"
#include "settings/Prefs.h"


// Added to each length, so that the next title does not start too early.
static constexpr float kMarginMinutes = 0.02f;
// Keeps a length code within its 32 bits, whatever an attribute says.
static constexpr long kMaxMinutes = 20000000;

Prefs* MEView::mPrefs = nullptr;
bool MEView::SepListSelected = false;
float MEView::ehoehe = 114;
int32 MEView::IsSelected = 0;
int32 MEView::IsNext = 0;
BBitmap* MEView::SadImage = nullptr;
BBitmap* MEView::SadAudImage = nullptr;
BBitmap* MEView::SadVidImage = nullptr;


static void
make_picture(BBitmap** picture, float width, float height, const uint8* bits, int32 size)
{
	if (*picture != nullptr)
		return;
	*picture = new BBitmap(BRect(0, 0, width - 1, height - 1), B_CMAP8);
	(*picture)->SetBits(bits, size, 0, B_CMAP8);
}


static void
delete_picture(BBitmap** picture)
{
	delete *picture;
	*picture = nullptr;
}


MEView::MEView(BRect frame, const char* viewName, const char* displayName, long number)
	:
	BView(frame, viewName, B_FOLLOW_RIGHT, B_WILL_DRAW),
	fNumber(static_cast<int32>(number)),
	fName(displayName)
{
	if (mPrefs == nullptr) {
		mPrefs = Prefs::getSTPrefs();
		printf(" got Prefs..\n");
	}
	ehoehe = 114;

	SetLowColor(250, 250, 250, 124);
	SetHighColor(10, 10, 10, 128);
	SetFont(be_bold_font);
	SetFontSize(11);

	make_picture(&SadImage, 50, 50, SadBits, sizeof(SadBits));
	make_picture(&SadAudImage, 50, 52, SadAudBits, sizeof(SadAudBits));
	make_picture(&SadVidImage, 50, 52, SadVidBits, sizeof(SadVidBits));

	if (fName.Length() < 2)
		fName = "-err-";
	const int32 dot = fName.FindLast('.');
	if (dot > 1)
		fName.Truncate(dot);
	fBadCharacters = fName.FindLast('\'') > 0;
}


MEView::~MEView()
{
	delete fContextMenu;
	delete_picture(&SadImage);
	delete_picture(&SadAudImage);
	delete_picture(&SadVidImage);
}


void
MEView::LookForIcon(BPath* path)
{
	fLookedForIcon = true;
	const BNode node(path->Path());
	if (node.InitCheck() != B_OK) {
		fFound = false;
		fMissingPath = *path;
	}

	_ReadKind(node);
	_ReadLength(node);

	int32 track;
	if (node.ReadAttr("Audio:Track", B_INT32_TYPE, 0, &track, sizeof(track))
		== static_cast<ssize_t>(sizeof(track)))
		fTrack = track;
	node.ReadAttrString("Audio:Artist", &fArtist);
}


void
MEView::_ReadKind(const BNode& node)
{
	BNode copy(node);
	char type[B_MIME_TYPE_LENGTH] = "";
	BNodeInfo(&copy).GetType(type);
	if (strstr(type, "audio/") != nullptr)
		fKind = kAudioKind;
	if (strstr(type, "video/") != nullptr)
		fKind = kVideoKind;
	if (strstr(type, "application/x-asf") != nullptr) {
		fKind = kVideoKind;
		fNotAsf = false;
	}
}


void
MEView::_ReadLength(const BNode& node)
{
	fMinutes = 0;
	fSeconds = 0;
	BString text;
	if (node.ReadAttrString("Audio:Length", &text) == B_OK) {
		const long minutes = strtol(text.String(), nullptr, 10);
		fMinutes = static_cast<int32>(std::clamp(minutes, -kMaxMinutes, kMaxMinutes));
		const char* const lastTwo = text.String() + std::max<int32>(text.Length() - 2, 0);
		fSeconds = static_cast<int32>(strtol(lastTwo, nullptr, 10));
	}
	fLengthCode = fSeconds + fMinutes * 100;
	fLength = fMinutes + (fSeconds / 0.6f) / 100 + kMarginMinutes;
}
