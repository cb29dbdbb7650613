// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LIST_VIEW_FIXTURE_H
#define LIST_VIEW_FIXTURE_H

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include <List.h>
#include <Message.h>
#include <Window.h>
#include <gtest/gtest.h>

#include "listview/MxView.h"
#include "tests/support/TempFolder.h"

class BBitmap;
class MEView;


// Keeps what the list view sends. It runs, but is not shown.
class ListenerWindow : public BWindow {
public:
	explicit ListenerWindow(BRect frame);

	void MessageReceived(BMessage* message) override;

	std::vector<BMessage> Received(uint32 what);

private:
	std::mutex fLock;
	std::vector<BMessage> fReceived;
};


// Can count how often the context menu is asked for instead of opening it, and keeps what it is
// told to draw.
class TestedMxView : public MxView {
public:
	using MxView::MxView;

	// Takes 'clck' for a click that no press of a button has led to.
	void MessageReceived(BMessage* message) override;
	void AddWPopMenu() override;
	void DrawProgressCalc(bool redraw) override;
	void PlyBut(long button, BRect frame) override;

	bool opensMenu = false;
	int menuCount = 0;
	std::vector<bool> progressCalls;
	std::vector<long> buttonsDrawn;
};


/*!	A list view with lists, settings and a clock of the test's own.

	The window stays locked by the test; only while it waits for messages it is unlocked.
*/
class ListViewFixture : public testing::Test {
protected:
	ListViewFixture();
	~ListViewFixture() override;

	// Adds an entry to the list shown. A length is stored with the file.
	std::string AddTitle(const std::string& name, const std::string& length = "");
	// Titles "Title 0.mp3", "Title 1.mp3" and so on.
	void AddTitles(int count, const std::string& length = "");
	// An album without a cover.
	void AddAlbum(const std::string& folder);
	void AddAlbum(const std::string& folder, rgb_color color);

	// No view may show them any more.
	void EmptyLists();

	// The view in a window, with these last coordinates.
	TestedMxView& MakeView(float right = 1000, float bottom = 700);
	// The view in a bitmap, drawn once.
	TestedMxView& MakePicture(float right = 1000, float bottom = 700);
	void CloseView();

	MEView* Tile(int32 index);
	// The tiles that stand wholly or partly below the view's top.
	std::vector<int32> ShownTiles();

	// What the view has sent to its window so far.
	std::vector<BMessage> Received(uint32 what);
	// Hands it to the view in the window's thread, and waits until it is handled.
	void SendToView(BMessage message);
	// A press of these buttons, delivered as the window does.
	void Press(BPoint where, int32 buttons);

	// Draws the view anew on a background that nothing else is drawn in.
	void Redraw();
	rgb_color At(float x, float y) const;
	int Count(BRect area, rgb_color color) const;
	// How many pixels of the area differ from what that drawing leaves on an untouched ground.
	int CountDifferent(BRect area, const std::function<void(BView&)>& draw) const;

	static bigtime_t sNow;

	test::TempFolder fFolder;
	BList fTitles;
	BList fAlbums;
	ListenerWindow* fWindow = nullptr;
	BBitmap* fBitmap = nullptr;
	TestedMxView* fView = nullptr;

private:
	TestedMxView& _NewView(BRect frame);

	std::string fOldHome;
	std::string fOldConfiguration;
};

inline constexpr rgb_color kUntouched = {1, 200, 99, 255};

#endif // LIST_VIEW_FIXTURE_H
