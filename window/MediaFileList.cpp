// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The operations on the media file list.
#include "window/MediaWindow.h"

#include <stdio.h>
#include <string.h>

#include <List.h>
#include <Node.h>
#include <NodeInfo.h>
#include <String.h>

#include "listview/MxView.h"
#include "locale/Labels.h"
#include "settings/Helpers.h"
#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "window/ExternalPlayer.h"
#include "window/MediaFileOps.h"
#include "window/PathLists.h"
#include "window/PlaylistFile.h"


static constexpr int32 kListBlockSize = 20;
static constexpr int32 kAlreadyListedLabel = 178;


void
MEDIA_Window::DoWithMediaFiles(long operation, const char* path, long number)
{
	printf("DoWithMediaFiles [%ld proc]\t", operation);
	if (operation == MF_BUILD)
		_BuildList();
	else if (operation == MF_DELETE)
		_DeleteList();
	if (mflist == nullptr) {
		printf(" oops NO mflist\n");
		return;
	}

	BString cleaned(path != nullptr ? path : "");
	cleaned.RemoveSet("\r\n");
	_HandleListOperation(operation, cleaned, number);
}


void
MEDIA_Window::_HandleListOperation(long operation, const BString& path, long number)
{
	const int32 index = static_cast<int32>(number);
	switch (operation) {
		case MF_ADD:
			_AddFile(path);
			break;
		case MF_DEC:
			_TakeOneOut();
			break;
		case MF_LOAD:
			_LoadList();
			break;
		case MF_SAVE:
			_SaveList();
			break;
		case MF_SHOW:
			_PrintList();
			break;
		case MF_REMOVE:
			_RemoveEntry(index);
			break;
		case MF_UPDATE:
			_UpdateView();
			break;
		case MF_OFOLD:
			_OpenParent(index);
			break;
		case MF_EDIT:
			_EditList();
			break;
		case MF_RBC:
			_CleanName(index);
			break;
		case MF_FOLDER:
			_ShowFolder(index);
			break;
		case MF_TAKE:
			_TakeTitle(index);
			break;
	}
}


void
MEDIA_Window::_BuildList()
{
	if (mflist == nullptr)
		mflist = new BList(kListBlockSize);
	printf(" build mflist\n");
}


void
MEDIA_Window::_DeleteList()
{
	if (mflist != nullptr) {
		if (MxView::MedList == mflist)
			MxView::MedList = nullptr;
		EmptyPathList(mflist);
		delete mflist;
		mflist = nullptr;
	}
	printf(" delete mflist\n");
}


void
MEDIA_Window::_AddFile(const BString& path)
{
	printf("-MF_ADD\n");
	printf("will add: %s\n", path.String());
	if (_FindListed(path)) {
		printf("-MF_ADD return\n");
		return;
	}

	printf("-MF_ADD  >> \n");
	mflist->AddItem(new BPath(path.String()));
	_MarkChanged();
	printf(" add to mflist\n");
	// One past the new entry: until the view chooses, what plays is behind the last one.
	fSettings->last_top_media = mflist->CountItems();
	if (!fFolderShown)
		fListView->ChildsFromList(false);
	fListView->Draw(fListView->Bounds());
	printf("-MF_ADD return 2\n");
}


// Points at the entry with that path, if there is one.
bool
MEDIA_Window::_FindListed(const BString& path)
{
	for (int32 index = 0; index < mflist->CountItems(); index++) {
		const BPath* const entry = PathAt(mflist, index);
		if (entry == nullptr || entry->Path() == nullptr || path != entry->Path())
			continue;

		printf("%ld |%s\n%s\n", static_cast<long>(index), getLabel(kAlreadyListedLabel),
			path.String());
		printf(" reLC %ld  - se %ld\n", static_cast<long>(fListView->centeredIndex),
			static_cast<long>(index));
		fSettings->last_top_media = index;
		if (!fFolderShown)
			fListView->CenterMediaFile(index, false, 0);
		return true;
	}
	return false;
}


void
MEDIA_Window::_MarkChanged()
{
	fListChanged = true;
	fListView->listChanged = true;
}


// Marks the list and takes nothing out; MF_REMOVE does that.
void
MEDIA_Window::_TakeOneOut()
{
	printf("-MF_DEC\n");
	fListChanged = true;
	printf(" remove from mflist  -not implemented \n");
	fListView->Draw(fListView->Bounds());
}


void
MEDIA_Window::_LoadList()
{
	fListView->pathTrouble = false;
	const bool read = ReadPlaylist(fPlaylistPath.Path(), mflist, &fListStyleWithFile);
	fListChanged = false;
	fListView->listChanged = false;
	MxView::PlayListFile = &fPlaylistPath;
	if (!read) {
		printf("'%s' OpenError!\n", fPlaylistPath.Path());
		fListView->pathTrouble = true;
		fListView->Invalidate();
		return;
	}
	printf("ListStyleWithFile %d\n", fListStyleWithFile);
}


void
MEDIA_Window::_SaveList()
{
	if (!fListChanged) {
		printf(" mflist not changed -not saved\n");
		return;
	}

	if (fListStyleWithFile)
		printf(" MP-Style, saving with 'file://'\n");
	if (!WritePlaylist(fPlaylistPath.Path(), *mflist, fListStyleWithFile)) {
		printf("'%s' OpenError!\n", fPlaylistPath.Path());
		_TellNotSaved();
		return;
	}
	printf(" save mflist\n");
	printf(" mflist has %ld items\n", static_cast<long>(mflist->CountItems()));
	printf(" Write Attribute 'x-playlist'\n");

	fListChanged = false;
	fListView->listChanged = false;
	printf(" save mflist end\n");
	fListView->Draw(fListView->Bounds());
}


void
MEDIA_Window::_TellNotSaved()
{
	static constexpr char kText[] = ".. can't save the playlist!";
	if (fIsClosing)
		AnyAlertAndWait(kText);
	else
		AnyAlert(kText, false);
}


void
MEDIA_Window::_PrintList()
{
	printf("-MF_SHOW\n");
	printf(" mflist has %ld items\n", static_cast<long>(mflist->CountItems()));
	for (int32 index = 0; index < mflist->CountItems(); index++) {
		const BPath* const entry = PathAt(mflist, index);
		if (entry != nullptr && entry->Path() != nullptr)
			printf("[%ld]'%s'\n", static_cast<long>(index), entry->Path());
	}
	printf(" show mflist\n");
}


void
MEDIA_Window::_RemoveEntry(int32 number)
{
	BPath* const entry = PathAt(mflist, number);
	printf("-MF_REMOVE\n");
	if (entry == nullptr) {
		printf(" DeleteX %ld >> entry not found\n", static_cast<long>(number));
		return;
	}

	printf(" DeleteX %ld '%s'\n", static_cast<long>(number),
		entry->Path() != nullptr ? entry->Path() : "");
	_MarkChanged();
	mflist->RemoveItem(number);
	delete entry;
	fListView->ChildsFromList(false);
}


void
MEDIA_Window::_UpdateView()
{
	printf("-MF_UPDATE\n");
	fListView->Draw(fListView->Bounds());
	fListView->ChildsFromList(false);
}


BPath*
MEDIA_Window::_ShownEntryAt(int32 number) const
{
	return PathAt(fFolderShown ? axflist : mflist, number);
}


void
MEDIA_Window::_OpenParent(int32 number)
{
	const BPath* const entry = _ShownEntryAt(number);
	printf("-MF_OFOLD\n");
	BPath parent;
	if (entry != nullptr && entry->GetParent(&parent) == B_OK)
		IOpenThisFile(parent.Path(), true);
}


void
MEDIA_Window::_EditList()
{
	BNode node(fPlaylistPath.Path());
	BNodeInfo info(&node);
	info.SetType("text/plain");
	info.SetPreferredApp(kTextEditorSignature);

	BString command(kFileManager);
	command << " '" << fPlaylistPath.Path() << "' &";
	printf("[open][%s]\n", command.String());
	if (RunQuoted(command.String(), fPlaylistPath.Path()) != 0)
		printf(" oops: couldn't execute \n");
}


void
MEDIA_Window::_CleanName(int32 number)
{
	BPath* const entry = PathAt(mflist, number);
	printf("-MF_RBC\n");
	if (entry == nullptr || entry->Path() == nullptr) {
		printf(" RemoveBadChars %ld >> entry not found\n", static_cast<long>(number));
		return;
	}

	printf(" RemoveBadChars %ld\n%s\n", static_cast<long>(number), entry->Path());
	_MarkChanged();
	CheckPathChars(entry);
	fListView->ChildsFromList(false);
}
