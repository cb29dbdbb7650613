// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BUILT_IN_PICTURES_H
#define BUILT_IN_PICTURES_H

#include <SupportDefs.h>


// Pictures in the system's 8-bit palette, each row filled up to a multiple of 4 bytes.

// 50 by 50: an entry that does not exist.
extern const uint8 SadBits[2601];
// 50 by 52: audio and video without a cover.
extern const uint8 SadAudBits[2703];
extern const uint8 SadVidBits[2703];
// 132 by 132, and more bytes than that takes: an audio CD.
extern const uint8 kaudioCDBits[17689];

#endif // BUILT_IN_PICTURES_H
