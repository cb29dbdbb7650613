// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ME_VIEW_H
#define ME_VIEW_H

#include <Path.h>
#include <String.h>
#include <View.h>

class BBitmap;
class BNode;
class BPopUpMenu;
class Prefs;


/*!	One tile of the list: a media file or an album folder.

	The list view makes all tiles anew whenever the list changes, and deletes all before: each
	tile's destructor deletes the pictures that the tiles share, the next constructor makes them
	again. All of it runs in the window's thread.
*/
class MEView : public BView {
public:
	// What the entry's file type tells.
	enum : int32 {
		kUnknownKind = 0,
		kAudioKind = 1,
		kVideoKind = 2,
	};

	MEView(BRect frame, const char* viewName, const char* displayName, long number);
	~MEView() override;

	void MessageReceived(BMessage* message) override;
	void Draw(BRect update) override;
	void MouseDown(BPoint where) override;

	// Builds the context menu on first use and shows it.
	virtual void AddPopMenu();
	// Looks at the entry itself: whether it exists, its type and its attributes.
	virtual void LookForIcon(BPath* path);

	// Fetched by the first tile.
	static Prefs* mPrefs;
	// An album folder's titles are shown instead of the media file list.
	static bool SepListSelected;
	// Each tile sets it to the largest height of a tile in pixels; nothing reads it.
	static float ehoehe;
	// Numbers of the tile clicked last, and of the one that plays next.
	static int32 IsSelected;
	static int32 IsNext;
	static BBitmap* SadImage;
	static BBitmap* SadAudImage;
	static BBitmap* SadVidImage;

	// Place in the list shown, from 0.
	int32 fNumber;
	// Owned, kept for the tile's life.
	BPopUpMenu* fContextMenu = nullptr;
	// LookForIcon() has run.
	bool fLookedForIcon = false;
	bool fFound = true;
	bool fCoverDrawn = false;
	// Set by the list view.
	bool fCanOpenFolder = false;
	// An apostrophe behind the name's first character.
	bool fBadCharacters = false;
	bool fNotAsf = true;
	int32 fKind = kUnknownKind;
	BPath fMissingPath;
	// Without its extension.
	BString fName;
	// minutes * 100 + seconds
	int32 fLengthCode = 0;
	// In minutes, with a margin of 0.02.
	float fLength = 0;
	int32 fMinutes = 0;
	int32 fSeconds = 0;
	// The album's place among the covers; -1 if it has none.
	int32 fImageNumber = -1;
	int32 fTrack = 0;
	// The album's, not owned; set by the list view.
	BBitmap* fCover = nullptr;
	BString fArtist;

private:
	void _ReadKind(const BNode& node);
	void _ReadLength(const BNode& node);

	rgb_color _DrawBackground(BRect bounds);
	float _DrawPicture(BRect bounds);
	void _DrawName(BPoint where);
	void _DrawMissing(BPoint where);
	void _DrawNumber(BRect bounds);
	void _DrawTime(BRect bounds);
	BString _NumberText() const;
	BString _TimeText() const;
	void _DrawCut(const char* text, BPoint where);

	void _Play();
	void _BuildMenu();
	void _AddMenuItem(int32 label, int32 operation, int32 number, bool enabled);
};

#endif // ME_VIEW_H
