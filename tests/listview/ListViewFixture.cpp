// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/listview/ListViewFixture.h"

#include <stdlib.h>
#include <string.h>

#include <Bitmap.h>
#include <Messenger.h>
#include <Node.h>
#include <Path.h>
#include <PopUpMenu.h>

#include "entryview/MEView.h"
#include "locale/KVLabel.h"
#include "locale/Labels.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"
#include "window/BitmapPath.h"


namespace {

void
fill(BBitmap& bitmap, rgb_color color)
{
	const uint8 pixel[] = {color.blue, color.green, color.red, 255};
	for (int32 at = 0; at < bitmap.BitsLength(); at += 4)
		memcpy(static_cast<uint8*>(bitmap.Bits()) + at, pixel, sizeof(pixel));
}

} // namespace


ListenerWindow::ListenerWindow(BRect frame)
	:
	BWindow(frame, "listener", B_TITLED_WINDOW, 0)
{
}


void
ListenerWindow::MessageReceived(BMessage* message)
{
	const std::lock_guard<std::mutex> guard(fLock);
	fReceived.push_back(*message);
}


std::vector<BMessage>
ListenerWindow::Received(uint32 what)
{
	const std::lock_guard<std::mutex> guard(fLock);
	std::vector<BMessage> found;
	for (const BMessage& message : fReceived) {
		if (message.what == what)
			found.push_back(message);
	}
	return found;
}


void
TestedMxView::MessageReceived(BMessage* message)
{
	BPoint where;
	if (message->what == 'clck' && message->FindPoint("where", &where) == B_OK)
		MouseDown(where);
	else
		MxView::MessageReceived(message);
}


void
TestedMxView::AddWPopMenu()
{
	menuCount++;
	if (opensMenu)
		MxView::AddWPopMenu();
}


void
TestedMxView::DrawProgressCalc(bool redraw)
{
	progressCalls.push_back(redraw);
	MxView::DrawProgressCalc(redraw);
}


void
TestedMxView::PlyBut(long button, BRect frame)
{
	buttonsDrawn.push_back(button);
	MxView::PlyBut(button, frame);
}


bigtime_t ListViewFixture::sNow = 0;


ListViewFixture::ListViewFixture()
	:
	fOldHome(getenv("HOME")),
	fOldConfiguration(getenv("XDG_CONFIG_HOME"))
{
	test::TheApplication();
	Prefs::DeleteMe();
	MEView::mPrefs = nullptr;
	setenv("HOME", fFolder.MakeFolder("home").c_str(), 1);
	setenv("XDG_CONFIG_HOME", fFolder.MakeFolder("home/.config").c_str(), 1);
	Prefs::getSTPrefs()->fLanguagePath.SetTo(fFolder.MakeFolder("language").c_str());
	KVLabel::getKVLabel("KORU-Haiku")->MirrorList(eLabel);
	MxView::MedListChecked = true;
	MxView::SingleAlbum = false;
	MxView::MedList = &fTitles;
	MxView::ImgList = &fAlbums;
	MEView::IsSelected = -1;
	MEView::IsNext = -1;
	MEView::SepListSelected = false;
	sNow = 1000000000;
}


ListViewFixture::~ListViewFixture()
{
	CloseView();
	EmptyLists();
	MxView::MedListChecked = false;
	MxView::SingleAlbum = false;
	MxView::MedList = nullptr;
	MxView::ImgList = nullptr;
	MEView::IsSelected = 0;
	MEView::IsNext = 0;
	MEView::SepListSelected = false;
	Prefs::DeleteMe();
	MEView::mPrefs = nullptr;
	setenv("HOME", fOldHome.c_str(), 1);
	setenv("XDG_CONFIG_HOME", fOldConfiguration.c_str(), 1);
}


std::string
ListViewFixture::AddTitle(const std::string& name, const std::string& length)
{
	const std::string path = fFolder.Write(name, "");
	if (!length.empty()) {
		const BString text(length.c_str());
		EXPECT_EQ(BNode(path.c_str()).WriteAttrString("Audio:Length", &text), B_OK);
	}
	fTitles.AddItem(new BPath(path.c_str()));
	return path;
}


void
ListViewFixture::AddTitles(int count, const std::string& length)
{
	for (int number = 0; number < count; number++)
		AddTitle("Title " + std::to_string(number) + ".mp3", length);
}


void
ListViewFixture::AddAlbum(const std::string& folder)
{
	BitmapPath* const album = new BitmapPath(fFolder.MakeFolder(folder).c_str());
	delete album->fBitmap;
	album->fBitmap = nullptr;
	fAlbums.AddItem(album);
}


void
ListViewFixture::AddAlbum(const std::string& folder, rgb_color color)
{
	AddAlbum(folder);
	BitmapPath* const album = static_cast<BitmapPath*>(fAlbums.LastItem());
	album->fBitmap = new BBitmap(BRect(0, 0, 9, 9), B_RGB32);
	fill(*album->fBitmap, color);
}


void
ListViewFixture::EmptyLists()
{
	for (int32 index = 0; index < fTitles.CountItems(); index++)
		delete static_cast<BPath*>(fTitles.ItemAt(index));
	fTitles.MakeEmpty();
	for (int32 index = 0; index < fAlbums.CountItems(); index++)
		delete static_cast<BitmapPath*>(fAlbums.ItemAt(index));
	fAlbums.MakeEmpty();
}


TestedMxView&
ListViewFixture::_NewView(BRect frame)
{
	fView = new TestedMxView(frame, "MxView", B_FOLLOW_ALL_SIDES, B_WILL_DRAW);
	fView->clock = [] { return sNow; };
	return *fView;
}


TestedMxView&
ListViewFixture::MakeView(float right, float bottom)
{
	fWindow = new ListenerWindow(BRect(100, 100, 100 + right, 100 + bottom));
	fWindow->AddChild(&_NewView(BRect(0, 0, right, bottom)));
	fWindow->Run();
	fWindow->Lock();
	return *fView;
}


TestedMxView&
ListViewFixture::MakePicture(float right, float bottom)
{
	fBitmap = new BBitmap(BRect(0, 0, right, bottom), B_RGB32, true);
	fBitmap->Lock();
	fBitmap->AddChild(&_NewView(BRect(0, 0, right, bottom)));
	Redraw();
	return *fView;
}


void
ListViewFixture::CloseView()
{
	if (fWindow != nullptr)
		fWindow->Quit();
	fWindow = nullptr;
	if (fBitmap != nullptr) {
		fBitmap->Unlock();
		delete fBitmap;
	}
	fBitmap = nullptr;
	fView = nullptr;
}


MEView*
ListViewFixture::Tile(int32 index)
{
	return dynamic_cast<MEView*>(fView->ChildAt(index));
}


std::vector<int32>
ListViewFixture::ShownTiles()
{
	std::vector<int32> shown;
	for (int32 index = 0; index < fView->CountChildren(); index++) {
		const BRect frame = fView->ChildAt(index)->Frame();
		if (frame.bottom >= 0 && frame.top <= fView->Bounds().bottom)
			shown.push_back(index);
	}
	return shown;
}


std::vector<BMessage>
ListViewFixture::Received(uint32 what)
{
	BMessage last('last');
	BMessage reply;
	fWindow->Unlock();
	// Once for what was sent, and once for what that has sent in turn.
	for (int round = 0; round < 2; round++)
		BMessenger(fWindow).SendMessage(&last, &reply, 5000000, 5000000);
	fWindow->Lock();
	return fWindow->Received(what);
}


void
ListViewFixture::SendToView(BMessage message)
{
	BMessenger(fView).SendMessage(&message);
	Received(0);
}


void
ListViewFixture::Press(BPoint where, int32 buttons)
{
	BMessage message(B_MOUSE_DOWN);
	message.AddInt32("buttons", buttons);
	message.AddInt32("clicks", 1);
	message.AddPoint("be:view_where", where);
	message.AddPoint("where", where);
	SendToView(message);
}


void
ListViewFixture::Redraw()
{
	// Once to find the places, and once with all in place.
	fView->Draw(fView->Bounds());
	fView->Sync();
	fill(*fBitmap, kUntouched);
	fView->Draw(fView->Bounds());
	fView->Sync();
}


rgb_color
ListViewFixture::At(float x, float y) const
{
	const uint8* const pixel = static_cast<const uint8*>(fBitmap->Bits())
		+ static_cast<int>(y) * fBitmap->BytesPerRow() + static_cast<int>(x) * 4;
	return {pixel[2], pixel[1], pixel[0], 255};
}


int
ListViewFixture::Count(BRect area, rgb_color color) const
{
	int count = 0;
	for (int y = static_cast<int>(area.top); y <= area.bottom; y++) {
		for (int x = static_cast<int>(area.left); x <= area.right; x++)
			count += At(x, y) == color ? 1 : 0;
	}
	return count;
}


int
ListViewFixture::CountDifferent(BRect area, const std::function<void(BView&)>& draw) const
{
	BBitmap expected(fBitmap->Bounds(), B_RGB32, true);
	expected.Lock();
	BView* const view = new BView(expected.Bounds(), "expected", B_FOLLOW_NONE, B_WILL_DRAW);
	expected.AddChild(view);
	fill(expected, kUntouched);
	draw(*view);
	view->Sync();
	int count = 0;
	for (int y = static_cast<int>(area.top); y <= area.bottom; y++) {
		const int offset = y * fBitmap->BytesPerRow();
		for (int x = static_cast<int>(area.left); x <= area.right; x++) {
			const uint8* const one = static_cast<uint8*>(fBitmap->Bits()) + offset + x * 4;
			const uint8* const other = static_cast<uint8*>(expected.Bits()) + offset + x * 4;
			count += memcmp(one, other, 3) != 0 ? 1 : 0;
		}
	}
	expected.Unlock();
	return count;
}
