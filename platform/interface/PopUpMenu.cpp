// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <PopUpMenu.h>

#include <math.h>

#include <Looper.h>
#include <OS.h>

#include "platform/interface/MenuAccess.h"
#include "platform/interface/MenuTracking.h"

using hosted::MenuLock;
using hosted::MenuTracking;
using Locker = std::lock_guard<std::recursive_mutex>;


BPopUpMenu::BPopUpMenu(const char* name, bool radioMode, bool labelFromMarked, menu_layout layout)
	:
	BMenu(name, layout)
{
	if (radioMode)
		SetRadioMode(true);
	if (labelFromMarked)
		SetLabelFromMarked(true);
}


BPopUpMenu::~BPopUpMenu()
{
	std::shared_ptr<MenuTracking> tracking;
	{
		Locker locker(MenuLock());
		tracking = fTracking;
	}
	if (tracking != nullptr)
		tracking->Close();
}


BMenuItem*
BPopUpMenu::Go(BPoint where, bool deliversMessage, bool openAnyway, bool async)
{
	return _Go(where, deliversMessage, openAnyway, BRect(), async);
}


BMenuItem*
BPopUpMenu::Go(BPoint where, bool deliversMessage, bool openAnyway, BRect clickToOpenRect,
	bool async)
{
	return _Go(where, deliversMessage, openAnyway, clickToOpenRect, async);
}


void
BPopUpMenu::SetAsyncAutoDestruct(bool on)
{
	Locker locker(MenuLock());
	fAutoDestruct = on;
}


bool
BPopUpMenu::AsyncAutoDestruct() const
{
	Locker locker(MenuLock());
	return fAutoDestruct;
}


BMenuItem*
BPopUpMenu::_Go(BPoint where, bool deliversMessage, bool openAnyway, BRect clickToOpenRect,
	bool async)
{
	std::shared_ptr<MenuTracking> before;
	{
		Locker locker(MenuLock());
		before = fTracking;
	}
	if (before != nullptr)
		before->Wait();

	MenuTracking::Request request;
	request.menu = this;
	request.place = hosted::PlaceOf(where.x, where.y, openAnyway);
	if (clickToOpenRect.IsValid()) {
		request.place.keepLeft = int(floorf(clickToOpenRect.left));
		request.place.keepTop = int(floorf(clickToOpenRect.top));
		request.place.keepRight = int(floorf(clickToOpenRect.right));
		request.place.keepBottom = int(floorf(clickToOpenRect.bottom));
	}
	request.invokes = deliversMessage;
	request.owner = BLooper::LooperForThread(find_thread(nullptr));

	auto tracking = std::make_shared<MenuTracking>(request);
	bool autoDestruct;
	{
		Locker locker(MenuLock());
		fTracking = tracking;
		autoDestruct = fAutoDestruct;
	}
	// The menu may be deleted from here on.
	if (!async)
		return MenuTracking::Run(tracking);
	std::function<void()> atEnd;
	if (autoDestruct)
		atEnd = [this]() { delete this; };
	MenuTracking::Start(tracking, atEnd);
	return nullptr;
}
