// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_FILE_OPS_H
#define MEDIA_FILE_OPS_H

// The MF_ codes of MEDIA_Window::DoWithMediaFiles(). They stand with the tiles, which send them and
// lie below the window.
#include "entryview/EntryMessages.h"

#endif // MEDIA_FILE_OPS_H
