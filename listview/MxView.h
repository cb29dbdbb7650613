// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MX_VIEW_H
#define MX_VIEW_H

#include <array>

#include <GraphicsDefs.h>
#include <OS.h>
#include <Rect.h>
#include <View.h>

class BBitmap;
class BList;
class BPath;
class BPopUpMenu;
class KVLangMenu;
class MEView;
class Prefs;


/*!	The view that fills the media window: the column of tiles, the grid of covers, six buttons and
	the time bar. It times the playing title and asks the window for the next one.

	All of it runs in the window's thread. The tiles are its only child views, one for each entry of
	the list shown, in the list's order.
*/
class MxView : public BView {
public:
	// Microseconds of system time; tests set a clock of their own.
	using Clock = bigtime_t (*)();

	MxView(BRect frame, const char* name, uint32 resizingMode, uint32 flags);
	~MxView() override;

	void MessageReceived(BMessage* message) override;
	void AttachedToWindow() override;
	void Draw(BRect update) override;
	void MouseDown(BPoint where) override;
	void Pulse() override;
	void FrameResized(float width, float height) override;

	// Measures every title that has no play time and writes the attribute "Audio:Length".
	virtual void ListWriteAttribute();
	// Makes all tiles anew; unless quiet, shows the progress and starts timing the playing title.
	virtual void ChildsFromList(bool quiet);
	// Shows the context menu, which is built anew after each click.
	virtual void AddWPopMenu();
	// Does what a key means: "key" int32 of the keyboard, or "korukey" int32 of a remote control.
	virtual void KeyEvents(BMessage* message);
	// Lays the tiles out around an entry; startPlay begins to time it, a step other than 0 moves
	// the next-mark by that much from the entry.
	virtual void CenterMediaFile(long index, bool startPlay, long step);
	// A hook; does nothing.
	virtual void EraseView(BRect rect);
	// Draws a notice over the grid that the view is busy, and with redraw the whole view again.
	virtual void DrawProgressCalc(bool redraw);
	// Draws an album's cover large below the grid if there is room, with a ring if its titles are
	// shown.
	virtual void ShowToppedAlbum(long image);
	// Prints the minutes for which titles follow each other by themselves, from the next one on.
	virtual void CalcContinousPlaytime();
	// Draws the glyph of one of the six buttons, and takes its frame as the place to click.
	virtual void PlyBut(long button, BRect frame);
	// Takes the language that another copy of the program has chosen, and shows it.
	void FollowLanguage(const BMessage& message);

	// The list to show has been fetched from the window.
	static bool MedListChecked;
	// The contents of one album folder are shown instead of the media file list.
	static bool SingleAlbum;
	// Of BPath, the list shown and played; and of BitmapPath, the albums with their covers. Both
	// are the window's.
	static BList* MedList;
	static BList* ImgList;
	// The playlist file in use, the window's.
	static BPath* PlayListFile;

	Prefs* settings;
	rgb_color listBackColor;
	rgb_color progressColor;
	rgb_color progressFillColor;
	// Owned; null as long as there is none.
	BBitmap* backBitmap = nullptr;
	BPopUpMenu* popMenu = nullptr;
	// Owned, lent to each context menu.
	KVLangMenu* langMenu = nullptr;
	// Pixels: a tile's height, and the side of a cell of the cover grid.
	float tileSize;
	float tileThird;
	float centerY;
	float tileLeft;
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
	// Microseconds: the system time at which the playing title ends (0: none is timed), its length.
	bigtime_t playEnd = 0;
	bigtime_t playLength = 0;
	bool imagesFit = false;
	bool listChanged = false;
	bool sizeMenuShown = true;
	bool pathTrouble = false;
	// Two spans in microseconds that the window sets at start. Nothing reads them.
	bigtime_t fFirstSpan = 0;
	bigtime_t fSecondSpan = 0;
	Clock clock = system_time;

private:
	// To the view itself: let more tiles read their files.
	static constexpr uint32 kMsgLookForIcons = 'LkFI';

	MEView* _TileAt(int32 index) const;
	void _RemoveTiles();
	void _AddTiles(bool quiet);
	void _LookForIcon(MEView* tile);
	bool _LookForIcons(bigtime_t limit);
	void _LookForIconsLater();
	void _LookForMoreIcons();
	void _ForgetTiming();
	void _PlaceMarks();
	void _LoadBackground();

	void _MeasureTitle(int32 index, const BPath& path);
	void _ShowMeasured(int32 index, int32 count);

	void _DrawFrame(BRect bounds);
	void _DrawCenterBar(BRect bounds);
	void _DrawButtons(BRect bounds);
	void _DrawButton(int32 button, BRect frame);
	void _DrawHints(BRect bounds);
	void _CheckGridFits(BRect bounds);
	void _DrawCoverGrid(BRect bounds);
	void _DrawCover(int32 index, BRect cell);
	void _DrawMissingCover(BRect frame);
	void _DrawTimeBar(BRect bounds, float ratio);
	void _DrawGlyph(int32 button, BRect box);

	void _StartTiming(int32 index, const MEView& tile);
	void _PlaceTiles(int32 target, BPoint centered);
	void _PlayTitle(int32 index);

	void _SetBoxSize(uint32 command);
	void _TakeColor(BMessage* message);
	void _ChangeLanguage(BMessage* message);
	void _SendToWindow(BMessage* message);
	bool _ClickCover(BPoint where);
	bool _ClickButton(BPoint where);
	bool _ClickMenuArea(BPoint where);
	int32 _PressedButtons() const;
	void _DropMenu();

	void _PressKey(int32 key);
	void _BuildMenu(int32 unmeasuredCount);
	void _AddSizeItems();
	int32 _CountUnmeasured() const;

private:
	// The row of the centered tile at the last drawing, and the area of the button column.
	float fDrawnCenterY = 0;
	BRect fButtonStrip;
	// The tiles before this one have read their files.
	int32 fFirstUnread = 0;
	// The message that lets more of them do so is under way.
	bool fLookingForIcons = false;
};

#endif // MX_VIEW_H
