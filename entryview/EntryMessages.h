// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ENTRY_MESSAGES_H
#define ENTRY_MESSAGES_H

#include <SupportDefs.h>


// What tiles and the list view ask of the media window: code, fields, sender.
enum : uint32 {
	// "ml_nr" int32; tiles, list view.
	kMsgPlayTitle = 'MWpl',
	// "mpl_what" (an MF_ code), "mpl_nr" int32; tiles, menus, list view.
	kMsgListOperation = 'mpl1',
};

static_assert(kMsgPlayTitle == 0x4D57706C, "codes are read high byte first");
static_assert(kMsgListOperation == 0x6D706C31, "codes are read high byte first");

// The operations on the media file list. 11 and everything above 14 do nothing.
enum : int32 {
	MF_BUILD = 0,
	MF_DELETE = 1,
	MF_ADD = 2,
	MF_DEC = 3,
	MF_LOAD = 4,
	MF_SAVE = 5,
	MF_SHOW = 6,
	MF_REMOVE = 7,
	MF_UPDATE = 8,
	MF_OFOLD = 9,
	MF_EDIT = 10,
	MF_RBC = 12,
	MF_FOLDER = 13,
	MF_TAKE = 14,
};

// Stands for no album folder: MF_FOLDER with it goes back to the media file list.
inline constexpr int32 kNoFolderNumber = 999;

#endif // ENTRY_MESSAGES_H
