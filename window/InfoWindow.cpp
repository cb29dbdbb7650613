// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The window that tells what happens at start.
#include "window/MediaWindow.h"

#include <stdio.h>

#include <Application.h>
#include <Font.h>
#include <InterfaceDefs.h>
#include <StringView.h>
#include <View.h>


static constexpr float kTextSize = 12;
static constexpr float kTextInset = 5;


static BStringView*
make_text(BRect frame)
{
	frame.left += kTextInset;
	BStringView* const text = new BStringView(frame, "gloInfo", "WYN INFO OPEND",
		B_FOLLOW_LEFT_RIGHT | B_FOLLOW_BOTTOM);
	text->SetAlignment(B_ALIGN_LEFT);
	BFont font(be_plain_font);
	font.SetSize(kTextSize);
	text->SetFont(&font);
	return text;
}


BWindow*
ShowNextWindow(MEDIA_Window* owner)
{
	BWindow* const window = new BWindow(BRect(20, 80, 840, 100), " WYN Init-Win ", B_TITLED_WINDOW,
		B_NOT_RESIZABLE | B_NOT_ZOOMABLE);
	window->SetType(B_BORDERED_WINDOW);
	window->SetLook(B_MODAL_WINDOW_LOOK);

	BView* const view = new BView(window->Bounds(), "view", B_FOLLOW_ALL_SIDES, B_WILL_DRAW);
	view->SetViewColor(183, 201, 237);
	view->SetViewColor(ui_color(B_MENU_BACKGROUND_COLOR));
	window->AddChild(view);
	BStringView* const text = make_text(view->Bounds());
	view->AddChild(text);

	if (owner == nullptr)
		printf(" CAN NOT SET BST \n");
	else
		owner->SetBst(text);

	const bool locked = be_app->Lock();
	window->Show();
	if (locked)
		be_app->Unlock();
	printf(" INFOWIN  ON DESKTOP ?\n");
	return window;
}
