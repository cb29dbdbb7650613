// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAYLIST_FILE_H
#define PLAYLIST_FILE_H

class BList;


/*!	Appends a new BPath for each line of a playlist file to the list. A line that is no absolute
	path is taken from the playlist's own folder. withPrefix tells whether a line began with
   "file://".

	Returns false if the file could not be read, or not to its end.
*/
bool ReadPlaylist(const char* path, BList* list, bool* withPrefix);

/*!	Writes the BPaths of the list to the playlist file and gives it its type.

	The old file stays until the new one is on the disk, whole. Where a link is named, what it leads
	to is written. Permissions and attributes are kept. Returns false, with the old file as it was,
	if the file may not be written or the disk is full.
*/
bool WritePlaylist(const char* path, const BList& list, bool withPrefix);

// The lines of a playlist as ReadPlaylist() takes them apart, for one piece that was read.
// Returns null for what is no title. line is edited.
const char* PlaylistEntry(char* line, bool* withPrefix);

#endif // PLAYLIST_FILE_H
