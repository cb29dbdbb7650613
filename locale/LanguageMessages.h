// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LANGUAGE_MESSAGES_H
#define LANGUAGE_MESSAGES_H

#include <SupportDefs.h>


// Another language was chosen: "_MenuItem" int32, "_LangFilePath" string. The language menu sends
// it to its own list view and to every running application.
inline constexpr uint32 kMsgLanguageChanged = 'kvCL';

static_assert(kMsgLanguageChanged == 0x6B76434C, "codes are read high byte first");

#endif // LANGUAGE_MESSAGES_H
