// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_WINDOW_H
#define MEDIA_WINDOW_H

#include <array>

#include <Path.h>
#include <Rect.h>
#include <Window.h>

class BList;
class BMessage;
class BString;
class BStringView;
class MxView;
class Prefs;


/*!	The one main window: owns the media lists and routes every command to its handler.

	All of it runs in the window's own thread; other threads reach it only by message.
*/
class MEDIA_Window : public BWindow {
public:
	explicit MEDIA_Window(BRect frame);
	~MEDIA_Window() override;

	void MessageReceived(BMessage* message) override;
	void FrameMoved(BPoint where) override;
	void FrameResized(float width, float height) override;

	// Asks for the notices of applications that start, quit or become active, and ends that.
	virtual void StartWatching();
	virtual void StopWatching();
	// Sets the text that tells what happens at start.
	virtual void SetBst(BStringView* infoText);
	// Shows the version.
	virtual void AboutERequested();
	// Prints the modifier keys that are held, or, with the right Control key, the play state.
	virtual void AddOptionalByWinKey(BMessage* message);
	// Takes what was dropped. With add false, media files lose their "KORU_TYPE" instead.
	virtual void DraggedMediaFiles(BMessage* message, bool add);
	// Runs one of the MF_ operations. path is for MF_ADD only.
	virtual void DoWithMediaFiles(long operation, const char* path, long number);
	// Adds each folder that the media file list mentions first to the folder list.
	virtual void CheckFolderImages();
	// Renames a file whose name the players cannot take, and corrects the path.
	virtual void CheckPathChars(BPath* path);
	// A hook for a list layout; changes nothing.
	virtual void ShowList();
	// Sets the pulse in hundredths of a second; 0.01 or less switches it off.
	virtual void NextInBigtime(float hundredths);

	Prefs* fSettings = nullptr;
	// Open while the window is made, then null.
	BWindow* fInfoWindow = nullptr;
	// Owned by the information window.
	BStringView* fInfoText = nullptr;
	std::array<void*, 3> fSparePointers = {};
	// BPath entries: the media file list, and the files of the album folder shown. Owned.
	BList* mflist = nullptr;
	BList* axflist = nullptr;
	// TrackPfad entries, while an album is brought into order. Owned.
	BList* fTrackList = nullptr;
	// BitmapPath entries: the album folders. Owned.
	BList* fFolderList = nullptr;
	BPath fPlaylistPath;
	// The media file list differs from its file.
	bool fListChanged = false;
	// The album folder's list is shown and played.
	bool fFolderShown = false;
	// The list came from a playlist file that was dropped.
	bool fForeignListStyle = false;
	// The playlist file's lines begin with "file://".
	bool fListStyleWithFile = false;
	float fSpareFloat = 114;
	// While set, the window does not follow its own frame.
	bool fHollow = false;
	// Child view, deleted by the window.
	MxView* fListView = nullptr;

private:
	void _RestoreFrame();
	void _MoveIntoView();
	void _SetPlaylistPath();
	void _CollectFolders();
	void _UpdateTitle();
	void _DeleteLists();

	bool _HandleCommand(BMessage* message);
	void _HandlePlatformMessage(BMessage* message);
	void _PrintUnknown(const BMessage& message);
	void _PlayTitle(const BMessage& message);
	int32 _BackToTop();
	int32 _BackToList();
	void _ListOperation(const BMessage& message);
	void _Close();
	void _SetTitleTab(bool hidden);
	void _ToggleTitleTab();
	void _ToggleAlwaysInFront();
	void _TakePreferredPlayer(const BMessage& message);
	void _LanguageChanged(const BMessage& message);
	void _PrintStatus();

	void _HandleListOperation(long operation, const BString& path, long number);
	void _BuildList();
	void _DeleteList();
	void _AddFile(const BString& path);
	bool _FindListed(const BString& path);
	void _MarkChanged();
	void _TakeOneOut();
	void _LoadList();
	void _SaveList();
	void _TellNotSaved();
	void _PrintList();
	void _RemoveEntry(int32 number);
	void _UpdateView();
	void _OpenParent(int32 number);
	void _EditList();
	void _CleanName(int32 number);
	void _ShowFolder(int32 number);
	void _TakeTitle(int32 number);

	void _LeaveFolder();
	void _EnterFolder(const BPath& folder, int32 number);
	void _CollectTitles(const BPath& folder);
	void _CollectTrackNumbers();
	void _OrderByTrack();
	BPath* _ShownEntryAt(int32 number) const;

	void _OpenDroppedPlaylist(const BPath& path);
	void _AddDroppedFolder(const BPath& path);
	void _AddFolderOf(const BPath& path);
	void _AppendFolder(const char* folder);
	bool _HasFolder(const char* folder) const;

private:
	// The window is being deleted, and the application ends with it.
	bool fIsClosing = false;
};

// Opens the window that tells what happens at start, and hands its text line to the owner.
BWindow* ShowNextWindow(MEDIA_Window* owner);

#endif // MEDIA_WINDOW_H
