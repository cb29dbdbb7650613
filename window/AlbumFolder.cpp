// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The contents of one album folder, shown instead of the media file list.
#include "window/MediaWindow.h"

#include <algorithm>
#include <vector>

#include <stdio.h>
#include <sys/stat.h>

#include <Directory.h>
#include <Entry.h>
#include <List.h>
#include <Node.h>
#include <String.h>
#include <TypeConstants.h>

#include "listview/MxView.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "window/BitmapPath.h"
#include "window/ExternalPlayer.h"
#include "window/MediaFileOps.h"
#include "window/PathLists.h"
#include "window/TrackPfad.h"


void
MEDIA_Window::_ShowFolder(int32 number)
{
	// Of a thousand folders one has the number that leads back, which it must do all the same.
	const BitmapPath* folder = nullptr;
	if (number != kNoFolderNumber)
		folder = static_cast<BitmapPath*>(fFolderList->ItemAt(number));
	if (folder == nullptr)
		_LeaveFolder();
	else
		_EnterFolder(*folder, number);
	fListView->Invalidate();
}


void
MEDIA_Window::_LeaveFolder()
{
	printf("no valid folder...  back to the default-List\n");
	MxView::MedList = mflist;
	fListView->pathTrouble = false;
	fFolderShown = false;
	MxView::SingleAlbum = false;
	fSettings->last_top_media = fSettings->last_top_media_buf;
	fSettings->last_timer_nr = fSettings->last_top_media_buf;
	fListView->ChildsFromList(false);
	fListView->imageIndex = fSettings->playingImage;
	fListView->ShowToppedAlbum(fSettings->playingImage);
}


void
MEDIA_Window::_EnterFolder(const BPath& folder, int32 number)
{
	EmptyTrackList(fTrackList);
	EmptyPathList(axflist);
	printf("clear axflist %ld Items | ", static_cast<long>(axflist->CountItems()));
	fListView->pathTrouble = false;
	printf("fpath.Path: %s\n", folder.Path());

	_CollectTitles(folder);
	_CollectTrackNumbers();
	_OrderByTrack();

	printf("set playdata ..\n");
	if (axflist->IsEmpty()) {
		printf("no items, open Folder please!\n");
		IOpenThisFile(folder.Path(), true);
	} else {
		fSettings->last_top_media_buf = fSettings->last_top_media;
		fSettings->last_top_media = 0;
		fSettings->last_timer_nr = 0;
		fFolderShown = true;
		MxView::SingleAlbum = true;
		MxView::MedList = axflist;
		fListView->ChildsFromList(false);
	}
	fListView->imageIndex = number;
}


static bool
is_media(const char* path)
{
	return IsNodeTypeOk(path, "audio/") || IsNodeTypeOk(path, "video/")
		|| IsNodeTypeOk(path, "/x-asf");
}


void
MEDIA_Window::_CollectTitles(const BPath& folder)
{
	BDirectory directory(folder.Path());
	const status_t status = directory.InitCheck();
	if (status != B_OK) {
		fListView->pathTrouble = true;
		printf(" %ld InitCheck()\n", static_cast<long>(status));
		BString text(" OpenError: \n");
		text << folder.Path();
		AnyAlert(text.String(), false);
		return;
	}

	BEntry entry;
	while (directory.GetNextEntry(&entry) == B_OK) {
		struct stat info;
		BPath path;
		if (entry.GetStat(&info) != B_OK || !S_ISREG(info.st_mode) || entry.GetPath(&path) != B_OK)
			continue;
		if (is_media(path.Path()))
			axflist->AddItem(new BPath(path));
		else
			printf(" -> BAD (%s)\n", path.Path());
	}
}


// Fills the track list from the album's last title to its first, up to one without a number.
void
MEDIA_Window::_CollectTrackNumbers()
{
	printf("now axflist has %ld Items\n", static_cast<long>(axflist->CountItems()));
	printf("look for TrackNr info...\n");
	for (int32 index = axflist->CountItems() - 1; index >= 0; index--) {
		const BPath* const entry = PathAt(axflist, index);
		if (entry == nullptr || entry->Path() == nullptr) {
			printf("## %ld Path=NULL\n", static_cast<long>(index));
			break;
		}

		const BNode node(entry->Path());
		int32 number = 0;
		const ssize_t size = node.ReadAttr("Audio:Track", B_INT32_TYPE, 0, &number, sizeof(number));
		if (size != static_cast<ssize_t>(sizeof(number)) || number <= 0) {
			printf("## break, found no TrackNr or <= 0 !\n%s\n", entry->Path());
			break;
		}
		TrackPfad* const track = new TrackPfad(entry->Path());
		track->fTrackNumber = number;
		fTrackList->AddItem(track);
	}
}


void
MEDIA_Window::_OrderByTrack()
{
	printf("sort TrackNr...\n");
	std::vector<TrackPfad*> tracks;
	for (int32 index = 0; index < fTrackList->CountItems(); index++)
		tracks.push_back(static_cast<TrackPfad*>(fTrackList->ItemAt(index)));
	// Titles of the same number stay in the order in which they were found.
	std::stable_sort(tracks.begin(), tracks.end(),
		[](const TrackPfad* left, const TrackPfad* right) {
			return left->fTrackNumber < right->fTrackNumber;
		});
	fTrackList->MakeEmpty();
	for (TrackPfad* track : tracks)
		fTrackList->AddItem(track);

	printf(" have a TRACKPNr-LIST:\n");
	if (fTrackList->CountItems() != axflist->CountItems()) {
		printf(" axflist:\n");
		for (int32 index = 0; index < axflist->CountItems(); index++)
			printf(" %2ld + %s\n", static_cast<long>(index), PathAt(axflist, index)->Path());
		return;
	}

	EmptyPathList(axflist);
	for (size_t index = 0; index < tracks.size(); index++) {
		axflist->AddItem(new BPath(tracks[index]->Path()));
		printf(" %3ld| Nr:%3ld = %s\n", static_cast<long>(index),
			static_cast<long>(tracks[index]->fTrackNumber), tracks[index]->Path());
	}
}


void
MEDIA_Window::_TakeTitle(int32 number)
{
	const BPath* const entry = fFolderShown ? PathAt(axflist, number) : nullptr;
	if (entry == nullptr)
		return;
	DoWithMediaFiles(MF_ADD, entry->Path(), -1);
	DoWithMediaFiles(MF_FOLDER, nullptr, kNoFolderNumber);
}
