// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "window/TrackPfad.h"

#include <stdio.h>


TrackPfad::TrackPfad(const char* path)
	:
	BPath(path)
{
}


TrackPfad::~TrackPfad() = default;


void
TrackPfad::PrintToStream() const
{
	printf("[TrackPfad] [%ld] '%s'\n", static_cast<long>(fTrackNumber), Path());
}
