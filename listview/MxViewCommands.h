// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MX_VIEW_COMMANDS_H
#define MX_VIEW_COMMANDS_H

#include <SupportDefs.h>


// Commands of the list view: code, fields, sender.
enum : uint32 {
	// The box sizes, from the context menu through the window; no fields.
	kMsgSizeMaxi = 'MWmx',
	kMsgSizeNormal = 'MWmd',
	kMsgSizeMini = 'MWmi',
	kMsgSizeMicro = 'MWm4',
	kMsgSizePico = 'MWm5',
	// Measure the play times, from the context menu through the window; no fields.
	kMsgSetPlayTimes = 'MWPT',
};

static_assert(kMsgSizeMaxi == 0x4D576D78, "codes are read high byte first");
static_assert(kMsgSizeNormal == 0x4D576D64, "codes are read high byte first");
static_assert(kMsgSizeMini == 0x4D576D69, "codes are read high byte first");
static_assert(kMsgSizeMicro == 0x4D576D34, "codes are read high byte first");
static_assert(kMsgSizePico == 0x4D576D35, "codes are read high byte first");
static_assert(kMsgSetPlayTimes == 0x4D575054, "codes are read high byte first");

#endif // MX_VIEW_COMMANDS_H
