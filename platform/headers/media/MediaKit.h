// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_KIT_H
#define MEDIA_KIT_H

#include <MediaDefs.h>
#include <MediaFile.h>
#include <MediaFormats.h>
#include <MediaNode.h>
#include <MediaRoster.h>
#include <MediaTrack.h>
#include <ParameterWeb.h>

#endif // MEDIA_KIT_H
