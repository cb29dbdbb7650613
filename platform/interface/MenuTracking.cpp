// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/interface/MenuTracking.h"

#include <algorithm>
#include <math.h>
#include <utility>

#include <InterfaceDefs.h>
#include <Window.h>

#include "platform/interface/MenuAccess.h"


namespace hosted {

namespace {

struct OpenMenus {
	std::mutex mutex;
	std::vector<std::pair<const BLooper*, std::weak_ptr<MenuTracking>>> list;
};

// Lives as long as the process, as threads of showings may.
OpenMenus&
open_menus()
{
	static OpenMenus* sOpenMenus = new OpenMenus;
	return *sOpenMenus;
}


void
remember(const BLooper* owner, const std::shared_ptr<MenuTracking>& tracking)
{
	OpenMenus& open = open_menus();
	std::lock_guard<std::mutex> lock(open.mutex);
	open.list.erase(std::remove_if(open.list.begin(), open.list.end(),
						[](const auto& entry) { return entry.second.expired(); }),
		open.list.end());
	open.list.emplace_back(owner, tracking);
}

} // namespace


MenuTracking::MenuTracking(const Request& request)
	:
	fContents(MenuAccess::Snapshot(*request.menu, fItems)),
	fPlace(request.place),
	fInvokes(request.invokes),
	fOwner(request.owner)
{
}


BMenuItem*
MenuTracking::Run(const std::shared_ptr<MenuTracking>& tracking)
{
	remember(tracking->fOwner, tracking);
	return tracking->_Track(true);
}


void
MenuTracking::Start(std::shared_ptr<MenuTracking> tracking, std::function<void()> atEnd)
{
	remember(tracking->fOwner, tracking);
	std::thread thread([tracking, atEnd = std::move(atEnd)]() {
		tracking->_Track(false);
		if (atEnd)
			atEnd();
	});
	thread.detach();
}


BMenuItem*
MenuTracking::_Track(bool updatesOwner)
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fThread = std::this_thread::get_id();
		if (fClosing) {
			fOver = true;
			fChanged.notify_all();
			return nullptr;
		}
	}
	const int choice = _WaitForChoice(updatesOwner);
	BMenuItem* item = _Deliver(choice);
	_Finish();
	return item;
}


int
MenuTracking::_WaitForChoice(bool updatesOwner)
{
	std::shared_ptr<NativeMenu> native = NativeMenu::Open(fContents, fPlace);
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fNative = native;
		if (fClosing)
			native->Close();
	}
	BWindow* window = updatesOwner ? dynamic_cast<BWindow*>(fOwner) : nullptr;
	if (window == nullptr) {
		native->Wait();
	} else {
		while (!native->WaitFor(std::chrono::milliseconds(20)))
			window->UpdateIfNeeded();
	}
	return native->Choice();
}


BMenuItem*
MenuTracking::_Deliver(int choice)
{
	if (choice < 0 || size_t(choice) >= fItems.size())
		return nullptr;
	const int64 number = fItems[choice];
	BMenuItem* item = MenuAccess::Pin(number);
	if (item == nullptr)
		return nullptr;
	if (fInvokes)
		MenuAccess::Invoke(*item);
	MenuAccess::Unpin(number);
	return item;
}


void
MenuTracking::_Finish()
{
	std::lock_guard<std::mutex> lock(fMutex);
	fOver = true;
	fNative.reset();
	fChanged.notify_all();
}


void
MenuTracking::Wait()
{
	std::unique_lock<std::mutex> lock(fMutex);
	if (fThread == std::this_thread::get_id())
		return;
	fChanged.wait(lock, [this]() { return fOver; });
}


void
MenuTracking::Close()
{
	{
		std::lock_guard<std::mutex> lock(fMutex);
		fClosing = true;
		if (fNative != nullptr)
			fNative->Close();
	}
	Wait();
}


void
CloseMenusOf(const BLooper* owner)
{
	std::vector<std::shared_ptr<MenuTracking>> closing;
	{
		OpenMenus& open = open_menus();
		std::lock_guard<std::mutex> lock(open.mutex);
		for (const auto& entry : open.list) {
			std::shared_ptr<MenuTracking> tracking = entry.second.lock();
			if (tracking != nullptr && (owner == nullptr || entry.first == owner))
				closing.push_back(std::move(tracking));
		}
	}
	for (const auto& tracking : closing)
		tracking->Close();
}


MenuPlace
PlaceOf(float x, float y, bool staysOpen)
{
	MenuPlace place;
	place.x = int(floorf(x));
	place.y = int(floorf(y));
	place.staysOpen = staysOpen;
	bigtime_t clickTime;
	if (get_click_speed(&clickTime) == B_OK)
		place.clickTime = std::chrono::microseconds(clickTime);
	return place;
}

} // namespace hosted
