// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What is dropped on the media window, the folders of albums and the cleaning of file names.
#include "window/MediaWindow.h"

#include <string>
#include <unordered_set>

#include <stdio.h>
#include <string.h>

#include <Entry.h>
#include <List.h>
#include <Message.h>
#include <Node.h>
#include <OS.h>
#include <String.h>
#include <StringView.h>

#include "listview/MxView.h"
#include "settings/Helpers.h"
#include "window/BitmapPath.h"
#include "window/MediaFileOps.h"
#include "window/PathLists.h"


namespace {

// Numbers as the trace prints them.
enum MediaType : int32 {
	kAudioType = 10,
	kVideoType = 11,
	kPlaylistType = 12,
	kOtherType = 0,
};

} // namespace


static constexpr bigtime_t kAfterAddMicros = 200;
static constexpr bigtime_t kAroundPlaylistMicros = 1000;
static constexpr char kRemoteTypeAttribute[] = "KORU_TYPE";


static MediaType
media_type_of(const char* path)
{
	if (IsNodeTypeOk(path, "audio/"))
		return kAudioType;
	if (IsNodeTypeOk(path, "video/") || IsNodeTypeOk(path, "/x-asf"))
		return kVideoType;
	if (IsNodeTypeOk(path, "/x-playlist"))
		return kPlaylistType;
	return kOtherType;
}


static void
remove_remote_type(const char* path)
{
	BNode node(path);
	const status_t status = node.RemoveAttr(kRemoteTypeAttribute);
	if (status < 0)
		printf("Unknown error remove %s: %s\n", kRemoteTypeAttribute, strerror(status));
}


void
MEDIA_Window::DraggedMediaFiles(BMessage* message, bool add)
{
	entry_ref ref;
	for (int32 index = 0; message->FindRef("refs", index, &ref) == B_OK; index++) {
		const BEntry entry(&ref);
		BPath path;
		if (entry.GetPath(&path) != B_OK)
			continue;

		const MediaType type = media_type_of(path.Path());
		if (type == kPlaylistType) {
			_OpenDroppedPlaylist(path);
			return;
		}
		if (type != kOtherType && add) {
			printf("+mt%ld:  '%s' \n", static_cast<long>(type), path.Path());
			if (mflist != nullptr) {
				DoWithMediaFiles(MF_ADD, path.Path(), -1);
				snooze(kAfterAddMicros);
				CheckFolderImages();
			}
		} else if (type != kOtherType) {
			printf("-mt%ld:  '%s' \n", static_cast<long>(type), path.Path());
			remove_remote_type(path.Path());
		} else if (entry.IsDirectory()) {
			_AddDroppedFolder(path);
		} else if (entry.IsFile()) {
			_AddFolderOf(path);
		}
	}
}


// The old list is dropped as it is, and the dropped file is from now on the one that is saved to.
void
MEDIA_Window::_OpenDroppedPlaylist(const BPath& path)
{
	printf("open a (Soundplay)-Playlist\n");
	if (mflist == nullptr)
		return;

	Lock();
	fForeignListStyle = true;
	DoWithMediaFiles(MF_DELETE, nullptr, -1);
	DoWithMediaFiles(MF_BUILD, nullptr, -1);
	fPlaylistPath = path;
	DoWithMediaFiles(MF_LOAD, nullptr, -1);
	MxView::MedList = mflist;
	// An album that was shown is left, or its titles would play from the new list's tiles.
	fFolderShown = false;
	MxView::SingleAlbum = false;
	snooze(kAroundPlaylistMicros);
	CheckFolderImages();
	Unlock();

	snooze(kAroundPlaylistMicros);
	DoWithMediaFiles(MF_UPDATE, nullptr, -1);
	fListView->Invalidate();
	_UpdateTitle();
}


void
MEDIA_Window::_AddDroppedFolder(const BPath& path)
{
	if (_HasFolder(path.Path())) {
		printf(" ...schon dabei \n");
		return;
	}
	fFolderList->AddItem(new BitmapPath(path.Path()));
	// One past the new folder, so that the media file list is shown and not the folder.
	DoWithMediaFiles(MF_FOLDER, path.Path(), fFolderList->CountItems());
	printf("%s\n.. Folder added\n", path.Path());
}


void
MEDIA_Window::_AddFolderOf(const BPath& path)
{
	printf(".. ohh anything dragged \n");
	BPath parent;
	if (path.GetParent(&parent) != B_OK)
		return;
	fFolderList->AddItem(new BitmapPath(parent.Path()));
	DoWithMediaFiles(MF_FOLDER, path.Path(), fFolderList->CountItems());
	printf("%s\n\n.. Folder added\n", path.Path());
}


bool
MEDIA_Window::_HasFolder(const char* folder) const
{
	for (int32 index = 0; index < fFolderList->CountItems(); index++) {
		if (strcmp(PathAt(fFolderList, index)->Path(), folder) == 0)
			return true;
	}
	return false;
}


void
MEDIA_Window::CheckFolderImages()
{
	printf(" ::CheckFolderImages \n");
	if (fFolderList == nullptr) {
		printf(" no folderlist \n");
		return;
	}

	const int32 count = mflist != nullptr ? mflist->CountItems() : 0;
	printf(" mflist has %ld items\n", static_cast<long>(count));
	// Ten thousand titles lie in a thousand folders; comparing each with each would be slow.
	std::unordered_set<std::string> known;
	for (int32 index = 0; index < fFolderList->CountItems(); index++)
		known.insert(PathAt(fFolderList, index)->Path());

	for (int32 index = 0; index < count; index++) {
		const BPath* const entry = PathAt(mflist, index);
		BPath parent;
		if (entry != nullptr && entry->GetParent(&parent) == B_OK
			&& known.insert(parent.Path()).second)
			_AppendFolder(parent.Path());
	}
	printf(" folderlist has %ld items\n", static_cast<long>(fFolderList->CountItems()));
}


void
MEDIA_Window::_AppendFolder(const char* folder)
{
	Lock();
	fFolderList->AddItem(new BitmapPath(folder));
	Unlock();

	if (fInfoWindow != nullptr && fInfoText != nullptr && fInfoWindow->Lock()) {
		fInfoText->SetText(folder);
		fInfoWindow->Unlock();
	}
}


void
MEDIA_Window::CheckPathChars(BPath* path)
{
	printf("CheckPathChars: \n%s\n", path->Path());
	BString leaf(path->Leaf());
	if (leaf.FindLast('\'') <= 0)
		return;

	printf("BAD chars in filename..\n");
	leaf.ReplaceAll('\'', '*');
	printf("Better is: %s\n", leaf.String());
	BEntry entry(path->Path());
	if (entry.Rename(leaf.String(), false) == B_OK)
		entry.GetPath(path);
	else
		path->SetTo(leaf.String());
}
