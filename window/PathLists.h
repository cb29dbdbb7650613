// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PATH_LISTS_H
#define PATH_LISTS_H

#include <List.h>
#include <Path.h>


// The entry of that number; null if there is no such list or entry.
inline BPath*
PathAt(const BList* list, int32 number)
{
	return list != nullptr ? static_cast<BPath*>(list->ItemAt(number)) : nullptr;
}


// Deletes the entries, BPaths or TrackPfads, and empties the list.
void EmptyPathList(BList* list);
void EmptyTrackList(BList* list);

#endif // PATH_LISTS_H
