// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The application's loopers and windows, and how it closes them.
#include <Application.h>

#include <vector>

#include <Errors.h>

#include "platform/app/LooperCore.h"
#include "platform/app/Registry.h"
#include "platform/interface/MenuTracking.h"

using hosted::LooperCore;
using hosted::Registry;


namespace {

// Whether the window is closed, or was about to close by itself.
bool
quit_window(const std::shared_ptr<LooperCore>& core, bool force)
{
	if (core->Lock(B_INFINITE_TIMEOUT) != B_OK) {
		bool hasThread;
		{
			std::lock_guard<std::mutex> lock(core->mutex);
			hasThread = core->hasThread;
		}
		// One without a thread is being deleted by the thread that made it.
		if (hasThread)
			core->WaitForEnd();
		else
			snooze(1000);
		return true;
	}

	// The window lives as long as it is locked.
	if (!force && !core->looper->QuitRequested()) {
		core->Unlock();
		return false;
	}
	core->looper->Quit();
	return true;
}

} // namespace


bool
BApplication::QuitRequested()
{
	return _QuitAllWindows(false);
}


bool
BApplication::_QuitAllWindows(bool force)
{
	// Windows that are asked may need the application's lock in their own threads.
	const int32 locks = force || !IsLocked() ? 0 : CountLocks();
	if (locks > 0)
		fCore->UnlockFully();

	// A window that waits for its menu's answer keeps its lock.
	hosted::CloseMenusOf(nullptr);
	bool quits = true;
	while (quits) {
		const std::vector<std::shared_ptr<LooperCore>> windows = Registry::Get().Windows(!force);
		if (windows.empty())
			break;
		quits = quit_window(windows.front(), force);
	}

	for (int32 i = 0; i < locks; i++)
		fCore->Lock(B_INFINITE_TIMEOUT);
	return quits;
}


int32
BApplication::CountWindows() const
{
	return static_cast<int32>(Registry::Get().Windows(true).size());
}


BWindow*
BApplication::WindowAt(int32 index) const
{
	return Registry::Get().WindowAt(index);
}


int32
BApplication::CountLoopers() const
{
	return static_cast<int32>(Registry::Get().Loopers().size());
}


BLooper*
BApplication::LooperAt(int32 index) const
{
	const std::vector<std::shared_ptr<LooperCore>> loopers = Registry::Get().Loopers();
	if (index < 0 || index >= static_cast<int32>(loopers.size()))
		return nullptr;
	return loopers[static_cast<size_t>(index)]->looper;
}
