// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The media window's life, frame and pulse.
#include "window/MediaWindow.h"

#include <algorithm>
#include <cmath>

#include <stdio.h>

#include <Application.h>
#include <FindDirectory.h>
#include <List.h>
#include <Message.h>
#include <Messenger.h>
#include <OS.h>
#include <Roster.h>
#include <Screen.h>
#include <String.h>

#include "listview/MxView.h"
#include "locale/Labels.h"
#include "settings/Helpers.h"
#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "window/BitmapPath.h"
#include "window/MediaFileOps.h"
#include "window/PathLists.h"
#include "window/WindowCommands.h"


// A flag of views, which means nothing to a window and is kept all the same.
static constexpr uint32 kWindowFlags = 0x20000000;
static constexpr bigtime_t kPulseMicros = 2000000;
static constexpr bigtime_t kSpanMicros = 20000000;
static constexpr bigtime_t kGoodbyeMicros = 500;
static constexpr float kMinWidth = 600;
static constexpr float kMaxWidth = 1240;
static constexpr float kMinHeight = 382;
static constexpr float kMaxHeight = 1024;
// No desktop reaches farther.
static constexpr float kFarthestEdge = 32767;
// Of a window of which less is seen, the user may not get hold.
static constexpr float kLeastSeen = 32;
// Stays free above a window that is moved into view.
static constexpr float kTabHeight = 40;
static constexpr int32 kListBlockSize = 20;
static constexpr char kPlaylistName[] = "_koru_media_list";
static constexpr uint32 kWatchedNotices = B_REQUEST_LAUNCHED | B_REQUEST_QUIT | B_REQUEST_ACTIVATED;
static constexpr bigtime_t kMicrosPerHundredth = 10000;
static constexpr float kNoPulse = 0.01f;
// Keeps the pulse within 64 bits.
static constexpr float kMaxPulse = 9e14f;
static constexpr int32 kUsingLabel = 47;


MEDIA_Window::MEDIA_Window(BRect frame)
	:
	BWindow(frame, "KORU-MEDIA-FILES", B_TITLED_WINDOW, kWindowFlags, B_CURRENT_WORKSPACE)
{
	SetPulseRate(kPulseMicros);
	SetSizeLimits(kMinWidth, kMaxWidth, kMinHeight, kMaxHeight);
	printf("me init frame: ");
	frame.PrintToStream();

	fSettings = Prefs::getSTPrefs();
	_RestoreFrame();
	if (fSettings->window_mtab)
		_SetTitleTab(true);
	else
		SetLook(B_FLOATING_WINDOW_LOOK);
	SetFeel(fSettings->mw_ever_topped ? B_FLOATING_ALL_WINDOW_FEEL : B_NORMAL_WINDOW_FEEL);

	fFolderList = new BList(kListBlockSize);
	fTrackList = new BList(kListBlockSize);
	fListView = new MxView(Bounds(), "MxView", B_FOLLOW_ALL_SIDES, B_WILL_DRAW | B_PULSE_NEEDED);
	_SetPlaylistPath();
	DoWithMediaFiles(MF_BUILD, nullptr, -1);
	DoWithMediaFiles(MF_LOAD, nullptr, -1);
	axflist = new BList(kListBlockSize);
	_CollectFolders();
	MxView::MedList = mflist;
	MxView::ImgList = fFolderList;
	AddChild(fListView);
	ShowList();
	_UpdateTitle();
	fListView->fFirstSpan = kSpanMicros;
	fListView->fSecondSpan = kSpanMicros;
	StartWatching();
}


MEDIA_Window::~MEDIA_Window()
{
	fIsClosing = true;
	StopWatching();
	DoWithMediaFiles(MF_SAVE, nullptr, -1);
	DoWithMediaFiles(MF_DELETE, nullptr, -1);
	_DeleteLists();

	Lock();
	BMessage gone(kMsgWindowGone);
	be_app_messenger.SendMessage(&gone);
	snooze(kGoodbyeMicros);
	BMessage remoteGone(kMsgRemoteGone);
	be_app_messenger.SendMessage(&remoteGone);
	Unlock();
}


// A damaged setting may hold anything, and one that could not be read holds nothing.
static bool
is_frame(BRect rect)
{
	for (float edge : {rect.left, rect.top, rect.right, rect.bottom}) {
		if (!std::isfinite(edge) || std::fabs(edge) > kFarthestEdge)
			return false;
	}
	return rect.IsValid();
}


void
MEDIA_Window::_RestoreFrame()
{
	const BRect kept = fSettings->prefs_window_rect;
	if (is_frame(kept)) {
		MoveTo(kept.LeftTop());
		ResizeTo(kept.Width(), kept.Height());
	}
	_MoveIntoView();
	printf("me prefs frame: ");
	kept.PrintToStream();
	fSettings->PrintPlayConditions();
}


// The screen that the frame belongs to may be gone since it was kept.
void
MEDIA_Window::_MoveIntoView()
{
	BScreen screen(this);
	if (!screen.IsValid())
		return;

	const BRect desktop = screen.Frame();
	const BRect frame = Frame();
	const BRect seen = frame & desktop;
	if (seen.IsValid() && seen.Width() >= kLeastSeen && seen.Height() >= kLeastSeen)
		return;
	MoveTo(std::max(desktop.left, std::min(frame.left, desktop.right - frame.Width())),
		std::max(desktop.top + kTabHeight, std::min(frame.top, desktop.bottom - frame.Height())));
}


void
MEDIA_Window::_SetPlaylistPath()
{
	const status_t status = find_directory(B_USER_DIRECTORY, &fPlaylistPath);
	if (status != B_OK) {
		fPlaylistPath.SetTo(kFallbackHome);
		printf(" oops-> better /boot/home \n");
	}
	fPlaylistPath.Append(kPlaylistName);
	printf("U_playlist_PATH    : %s (%ld)\n", fPlaylistPath.Path(), static_cast<long>(status));
}


void
MEDIA_Window::_CollectFolders()
{
	if (fInfoWindow == nullptr)
		fInfoWindow = ShowNextWindow(this);
	CheckFolderImages();

	if (fInfoWindow != nullptr) {
		const BMessenger info(fInfoWindow);
		info.SendMessage(B_QUIT_REQUESTED);
		fInfoWindow = nullptr;
		fInfoText = nullptr;
	}
}


void
MEDIA_Window::_UpdateTitle()
{
	BString title(getLabel(kUsingLabel));
	title << " >> " << fPlaylistPath.Path();
	SetTitle(title.String());
}


// The list view outlives these lists by a little; it finds none then.
void
MEDIA_Window::_DeleteLists()
{
	MxView::MedList = nullptr;
	MxView::ImgList = nullptr;
	MxView::PlayListFile = nullptr;

	for (int32 index = fFolderList->CountItems() - 1; index >= 0; index--)
		delete static_cast<BitmapPath*>(fFolderList->RemoveItem(index));
	delete fFolderList;
	fFolderList = nullptr;

	EmptyPathList(axflist);
	delete axflist;
	axflist = nullptr;
	printf(" delete axflist\n");

	EmptyTrackList(fTrackList);
	delete fTrackList;
	fTrackList = nullptr;
	printf(" delete trList\n");
}


void
MEDIA_Window::FrameMoved(BPoint)
{
	if (fHollow || fSettings == nullptr)
		return;
	fSettings->prefs_window_rect = Frame();
}


void
MEDIA_Window::FrameResized(float width, float height)
{
	if (fHollow)
		return;

	if (fSettings != nullptr)
		fSettings->prefs_window_rect = Frame();
	fListView->FrameResized(width, height);
	fListView->Draw(Bounds());
	fListView->Invalidate();
	ShowList();
}


void
MEDIA_Window::StartWatching()
{
	be_roster->StartWatching(BMessenger(this), kWatchedNotices);
}


void
MEDIA_Window::StopWatching()
{
	be_roster->StopWatching(BMessenger(this));
}


void
MEDIA_Window::SetBst(BStringView* infoText)
{
	fInfoText = infoText;
}


void
MEDIA_Window::AboutERequested()
{
	AnyAlert("WYN Version: Beta030", false);
}


void
MEDIA_Window::ShowList()
{
	if (fHollow)
		printf("*ShowList()  IsHollow\n");
}


void
MEDIA_Window::NextInBigtime(float hundredths)
{
	// Written so that what is no number switches the pulse off, too.
	if (!(hundredths > kNoPulse)) {
		SetPulseRate(0);
		printf("MEDIA_Window:: Pulse-Funtion  ----\n");
		return;
	}

	SetPulseRate(static_cast<int64>(std::min(hundredths, kMaxPulse)) * kMicrosPerHundredth);
	printf("MEDIA_Window:: Pulse-Function  %5.2f\n", hundredths);
}
