// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "window/BitmapPath.h"

#include <array>

#include <stdio.h>
#include <string.h>

#include <Bitmap.h>
#include <Mime.h>
#include <Node.h>
#include <NodeInfo.h>
#include <Rect.h>

#include "entryview/BuiltInPictures.h"
#include "settings/Helpers.h"


// Looked for in this order. The last one's icon stands in for a picture that is none.
static constexpr std::array<const char*, 3> kCoverNames
	= {"Folder.jpg", "folder.jpg", "b_desktop.jpg"};
static constexpr char kAudioCDFolder[] = "/Audio CD/wav";


BitmapPath::BitmapPath(const char* folder)
	:
	BPath(folder)
{
	printf("add Bitmap: %s\n", folder);
	_LoadCover(folder);
	if (fBitmap == nullptr && strstr(folder, kAudioCDFolder) != nullptr)
		_MakeAudioCD();
	if (fBitmap == nullptr) {
		const BPath last(folder, kCoverNames.back());
		if (last.InitCheck() == B_OK)
			_TakeIcon(last.Path());
	}
}


BitmapPath::~BitmapPath()
{
	delete fBitmap;
	fBuiltIn = false;
	fKind = kNoPicture;
}


void
BitmapPath::PrintToStream() const
{
	printf("[%d] [%ld] '%s'\n", fBuiltIn, static_cast<long>(fKind), Path());
}


void
BitmapPath::_LoadCover(const char* folder)
{
	for (const char* name : kCoverNames) {
		const BPath path(folder, name);
		if (path.InitCheck() != B_OK)
			continue;
		fBitmap = GetImage(path.Path());
		if (fBitmap != nullptr) {
			fKind = kCover;
			return;
		}
	}
}


void
BitmapPath::_MakeAudioCD()
{
	fBitmap = new BBitmap(BRect(0, 0, 131, 131), B_CMAP8);
	// Takes as much of the table as the bitmap has room for.
	fBitmap->SetBits(kaudioCDBits, sizeof(kaudioCDBits), 0, B_CMAP8);
	fBuiltIn = true;
	fKind = kCover;
	printf(" ### MAKE LINK /Audio CD/wav/  \n");
}


void
BitmapPath::_TakeIcon(const char* path)
{
	fBitmap = new BBitmap(BRect(0, 0, B_LARGE_ICON - 1, B_LARGE_ICON - 1), B_CMAP8);
	BNode node(path);
	if (BNodeInfo(&node).GetTrackerIcon(fBitmap, B_LARGE_ICON) == B_OK) {
		fKind = kIcon;
		return;
	}
	delete fBitmap;
	fBitmap = nullptr;
}
