// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MX_VIEW_H
#define MX_VIEW_H

#include <array>

#include <GraphicsDefs.h>
#include <Rect.h>
#include <SupportDefs.h>
#include <View.h>

class BBitmap;
class BList;
class BMessage;
class BPath;
class BPopUpMenu;
class KVLangMenu;
class Prefs;


/*!	The one view of the media window: the column of tiles, the play buttons, the time bar and the
	grid of covers.

	It lives in the window's thread. The window owns the lists that the class-wide pointers name.
*/
class MxView : public BView {
public:
	MxView(BRect frame, const char* name, uint32 resizingMode, uint32 flags);
	~MxView() override;

	void MessageReceived(BMessage* message) override;
	void AttachedToWindow() override;
	void Draw(BRect update) override;
	void MouseDown(BPoint where) override;
	void Pulse() override;
	void FrameResized(float width, float height) override;

	virtual void ListWriteAttribute();
	virtual void ChildsFromList(bool quiet);
	virtual void AddWPopMenu();
	virtual void KeyEvents(BMessage* message);
	virtual void CenterMediaFile(long index, bool startPlay, long step);
	virtual void EraseView(BRect area);
	virtual void DrawProgressCalc(bool redraw);
	virtual void ShowToppedAlbum(long image);
	virtual void CalcContinousPlaytime();
	virtual void PlyBut(long button, BRect frame);

	// Whether the list was taken from the window.
	static bool MedListChecked;
	// Whether one album folder's contents are shown instead of the media file list.
	static bool SingleAlbum;
	// BPath entries; the list that is shown and played.
	static BList* MedList;
	// BitmapPath entries; the album folders with their covers.
	static BList* ImgList;
	static BPath* PlayListFile;

	// The shared settings, not owned.
	Prefs* settings = nullptr;
	rgb_color listBackColor = {220, 220, 220, 0};
	rgb_color progressColor = {240, 240, 240, 0};
	rgb_color progressFillColor = {30, 20, 30, 0};
	BBitmap* backBitmap = nullptr;
	BPopUpMenu* popMenu = nullptr;
	// Lent to popMenu while that exists.
	KVLangMenu* langMenu = nullptr;
	float tileSize = 114;
	float tileThird = 38;
	float centerY = 0;
	float tileLeft = 0;
	BRect upMarkRect;
	BRect downMarkRect;
	BRect imageGridRect = BRect(0, 0, 1, 1);
	BRect menuRect;
	std::array<BRect, 6> buttonRect;
	BRect lastBounds;
	int32 visibleHalf = 0;
	int32 centeredIndex = 0;
	int32 nextIndex = 1;
	int32 visibleCount = 5;
	int32 lastIndex = 0;
	int32 imageIndex = -1;
	// System time at which the playing title ends; 0 when none is timed.
	int64 playEnd = 0;
	// In microseconds.
	int64 playLength = 0;
	bool imagesFit = false;
	bool listChanged = false;
	bool sizeMenuShown = true;
	bool pathTrouble = false;
	// Set by the window, in microseconds. Nothing reads them.
	int64 fFirstSpan = 0;
	int64 fSecondSpan = 0;
};

#endif // MX_VIEW_H
