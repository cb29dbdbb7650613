// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// Making the list view, and its tiles from the list shown.

#include "listview/MxView.h"

#include <stdio.h>
#include <string.h>
#include <string>
#include <unordered_map>

#include <Application.h>
#include <Bitmap.h>
#include <Directory.h>
#include <Font.h>
#include <InterfaceDefs.h>
#include <List.h>
#include <Messenger.h>
#include <Path.h>
#include <PopUpMenu.h>
#include <Window.h>

#include "entryview/MEView.h"
#include "listview/TileLayout.h"
#include "locale/KVLabel.h"
#include "locale/KVLangMenu.h"
#include "locale/Labels.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "window/BitmapPath.h"
#include "window/MediaWindow.h"
#include "window/WindowCommands.h"


namespace {

// A shorter path of a language file stands for none.
constexpr int32 kShortestLanguagePath = 7;

/*!	What the tiles of one folder share, looked up once for each folder of a list. */
struct FolderFacts {
	bool canOpen = false;
	// Position in the list of covers, -1 without.
	int32 image = -1;
};

int32
find_cover(const char* folder)
{
	if (MxView::ImgList == nullptr)
		return -1;
	for (int32 index = 0; index < MxView::ImgList->CountItems(); index++) {
		const BitmapPath* record = static_cast<BitmapPath*>(MxView::ImgList->ItemAt(index));
		if (record != nullptr && record->Path() != nullptr && strcmp(record->Path(), folder) == 0)
			return index;
	}
	return -1;
}


const FolderFacts&
facts_of(const char* folder, std::unordered_map<std::string, FolderFacts>& known)
{
	auto found = known.find(folder);
	if (found != known.end())
		return found->second;
	FolderFacts& facts = known[folder];
	facts.canOpen = BDirectory(folder).InitCheck() == B_OK;
	facts.image = find_cover(folder);
	return facts;
}

} // namespace


bool MxView::MedListChecked = false;
bool MxView::SingleAlbum = false;
BList* MxView::MedList = nullptr;
BList* MxView::ImgList = nullptr;
BPath* MxView::PlayListFile = nullptr;


MxView::MxView(BRect frame, const char* name, uint32 resizingMode, uint32 flags)
	:
	BView(frame, name, resizingMode, flags),
	settings(Prefs::getSTPrefs())
{
	SetViewColor(216, 216, 216, 20);
	SetViewColor(ui_color(B_MENU_BACKGROUND_COLOR));
	SetLowColor(150, 150, 150, 24);
	SetHighColor(10, 10, 10, 128);
	SetFont(be_plain_font);
	SetFontSize(11);

	listBackColor = make_color(220, 220, 220, 0);
	progressColor = make_color(240, 240, 240, 0);
	progressFillColor = make_color(30, 20, 30, 0);

	SetDrawingMode(B_OP_OVER);
	SetFont(be_bold_font, B_FONT_ALL);

	listBackColor = settings->altWinBackCol;
	tileSize = TileHeightFor(settings->LINK_SIZE);
	tileThird = tileSize / 3;
	const TileColumn column(Bounds(), tileSize);
	centerY = column.centerY;
	tileLeft = column.left;

	langMenu = new KVLangMenu("Language", "KORU-Haiku");
	langMenu->MirrorThisList(eLabel);
	if (langMenu->fLanguageFilePath.Length() >= kShortestLanguagePath)
		langMenu->LoadLangFile(langMenu->fLanguageFilePath.String());
}


MxView::~MxView()
{
	be_app_messenger.SendMessage(kMsgWindowGone);
	_DropMenu();
	delete langMenu;
	delete backBitmap;
	settings->altWinBackCol = listBackColor;
	settings->PrintPlayConditions();
	settings->Save();
	printf("[Del: MxView]");
}


void
MxView::AttachedToWindow()
{
	printf(" MxView::AttachedToWindow()");
	if (!MedListChecked) {
		const MEDIA_Window* window = dynamic_cast<MEDIA_Window*>(Window());
		if (window != nullptr)
			MedList = window->fFolderShown ? window->axflist : window->mflist;
		printf(" MedList %s", MedList != nullptr ? "FOUND" : "NOT FOUND");
		MedListChecked = true;
	}
	ChildsFromList(false);
	_ForgetTiming();
	_PlaceMarks();
	_LoadBackground();
	SetDrawingMode(B_OP_OVER);
	printf(" MxView::AttachedToWindow -ende-");
}


// Nobody has started a title yet: the program does not begin to sound because it was started.
void
MxView::_ForgetTiming()
{
	playEnd = 0;
	playLength = 0;
	settings->last_timer_nr = -1;
}


void
MxView::_PlaceMarks()
{
	const BRect bounds = Bounds();
	upMarkRect.Set(bounds.right - 260, bounds.top + 4, bounds.right - 210, bounds.top + 12);
	downMarkRect.Set(bounds.right - 260, bounds.bottom - 12, bounds.right - 210, bounds.bottom - 4);
}


void
MxView::_LoadBackground()
{
	delete backBitmap;
	backBitmap = nullptr;
	const char* folder = settings->fLanguagePath.Path();
	printf("LanguagePath ::'%s'", folder != nullptr ? folder : "");
	if (folder == nullptr) {
		settings->Enviroment();
		folder = settings->fLanguagePath.Path();
	}
	if (folder == nullptr)
		return;

	BPath picture(folder, "_mediaback.jpg");
	if (picture.InitCheck() != B_OK)
		return;
	printf(" Background '%s'", picture.Path());
	backBitmap = GetImage(picture.Path());
	printf(" Background-Bitmap %s", backBitmap != nullptr ? " set" : " not found");
	if (backBitmap != nullptr)
		SetViewBitmap(backBitmap, B_FOLLOW_LEFT | B_FOLLOW_TOP, B_TILE_BITMAP);
}


void
MxView::ChildsFromList(bool quiet)
{
	centeredIndex = settings->last_top_media;
	const TileColumn column(Bounds(), tileSize);
	centerY = column.centerY;
	tileLeft = column.left;

	_RemoveTiles();
	lastIndex = (MedList != nullptr ? MedList->CountItems() : 0) - 1;
	// The position is a setting, which may be damaged or older than the list.
	if (centeredIndex < 0)
		centeredIndex = 0;
	if (centeredIndex > lastIndex)
		centeredIndex = lastIndex;
	_AddTiles(quiet);
	if (quiet)
		return;

	CenterMediaFile(centeredIndex, true, 0);
	if (CountChildren() == 0)
		printf(" ooh.. someBTV==NULL");
	else
		MEView::SepListSelected = SingleAlbum;
	DrawProgressCalc(true);
}


void
MxView::_RemoveTiles()
{
	for (int32 index = CountChildren() - 1; index >= 0; index--) {
		BView* tile = ChildAt(index);
		RemoveChild(tile);
		delete tile;
	}
	printf(" \nChildsFromList >> all Removed (%ld)\n", static_cast<long>(CountChildren()));
}


void
MxView::_AddTiles(bool quiet)
{
	const BRect parked = ParkedFrame(Bounds(), tileSize);
	std::unordered_map<std::string, FolderFacts> folders;
	for (int32 index = 0; index <= lastIndex; index++) {
		BPath* path = static_cast<BPath*>(MedList->ItemAt(index));
		if (path == nullptr || path->InitCheck() != B_OK)
			continue;

		char viewName[32];
		snprintf(viewName, sizeof(viewName), "MEV%ld", static_cast<long>(index));
		MEView* tile = new MEView(parked, viewName, path->Leaf(), index);
		AddChild(tile);
		if (!quiet)
			DrawProgressCalc(false);

		BPath parent;
		if (path->GetParent(&parent) == B_OK) {
			const FolderFacts& facts = facts_of(parent.Path(), folders);
			tile->fCanOpenFolder = facts.canOpen;
			if (facts.image >= 0) {
				tile->fCover = static_cast<BitmapPath*>(ImgList->ItemAt(facts.image))->fBitmap;
				tile->fImageNumber = facts.image;
			}
		}
	}
	_LookForIconsLater();
}


void
MxView::FrameResized(float, float height)
{
	printf(" FrameResized:");
	Bounds().PrintToStream();
	centerY = height * 0.5f;
	tileLeft = Bounds().right - 515;
	_PlaceMarks();
	CenterMediaFile(centeredIndex, false, 0);

	Invalidate();
	for (BView* tile = ChildAt(0); tile != nullptr; tile = tile->NextSibling())
		tile->Draw(Bounds());
	Draw(Bounds());
}


MEView*
MxView::_TileAt(int32 index) const
{
	// A negative index would give the first child.
	return index < 0 ? nullptr : dynamic_cast<MEView*>(ChildAt(index));
}
