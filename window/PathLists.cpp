// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "window/PathLists.h"

#include "window/TrackPfad.h"


void
EmptyPathList(BList* list)
{
	for (int32 index = 0; index < list->CountItems(); index++)
		delete static_cast<BPath*>(list->ItemAt(index));
	list->MakeEmpty();
}


void
EmptyTrackList(BList* list)
{
	for (int32 index = 0; index < list->CountItems(); index++)
		delete static_cast<TrackPfad*>(list->ItemAt(index));
	list->MakeEmpty();
}
