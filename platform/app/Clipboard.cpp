// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Clipboard.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/screen/DesktopClipboard.h"

BClipboard* be_clipboard = nullptr;


namespace hosted {

struct ClipboardContents {
	std::string name;
	bool onDesktop = false;

	std::mutex mutex;
	BMessage data;
	// Grows with every change.
	uint32 count = 0;
	// Another program has put something on the desktop's clipboard that nobody has read yet.
	bool stale = true;
	std::vector<BMessenger> watchers;

	// With the mutex held.
	void Changed();
};


struct ClipboardLock {
	std::recursive_mutex mutex;
	std::atomic<std::thread::id> owner{};
	// Of the owner alone.
	int depth = 0;
};


void
ClipboardContents::Changed()
{
	count++;
	watchers.erase(std::remove_if(watchers.begin(), watchers.end(),
					   [](const BMessenger& watcher) { return !watcher.IsValid(); }),
		watchers.end());
	BMessage notice(B_CLIPBOARD_CHANGED);
	for (const BMessenger& watcher : watchers)
		watcher.SendMessage(&notice, static_cast<BHandler*>(nullptr), 0);
}


namespace {

// The display thread tells of other programs' changes as long as the process lives.
ClipboardContents*
contents_of(const char* name)
{
	static std::mutex* sMutex = new std::mutex;
	static auto* sContents = new std::map<std::string, ClipboardContents*>;

	std::lock_guard<std::mutex> lock(*sMutex);
	ClipboardContents*& contents = (*sContents)[name];
	if (contents == nullptr) {
		contents = new ClipboardContents;
		contents->name = name;
		contents->onDesktop = contents->name == "system";
	}
	return contents;
}


void
watch_desktop(ClipboardContents* contents)
{
	if (!contents->onDesktop)
		return;
	WatchDesktopClipboard([contents]() {
		std::lock_guard<std::mutex> lock(contents->mutex);
		contents->stale = true;
		contents->Changed();
	});
}


// Takes in what another program has put on the desktop's clipboard.
bool
fetch_from_desktop(ClipboardContents* contents)
{
	if (!contents->onDesktop)
		return true;
	watch_desktop(contents);
	{
		std::lock_guard<std::mutex> lock(contents->mutex);
		if (!contents->stale)
			return true;
		contents->stale = false;
	}
	// Not with the mutex held: the display thread takes it.
	std::string text;
	bool own;
	const bool read = ReadDesktopClipboard(&text, &own);
	std::lock_guard<std::mutex> lock(contents->mutex);
	if (!read) {
		contents->stale = true;
		return false;
	}
	if (own)
		return true;
	// Nothing told of the change that was before the first look.
	if (contents->count == 0)
		contents->count = 1;
	contents->data.MakeEmpty();
	if (!text.empty())
		contents->data.AddData("text/plain", B_MIME_TYPE, text.data(), ssize_t(text.size()), false);
	return true;
}


std::string
text_of(const BMessage& data)
{
	const void* text;
	ssize_t size;
	if (data.FindData("text/plain", B_MIME_TYPE, &text, &size) != B_OK)
		return {};
	return {static_cast<const char*>(text), size_t(size)};
}

} // namespace

} // namespace hosted


BClipboard::BClipboard(const char* name, bool)
	:
	fName(name != nullptr ? name : "system"),
	fData(std::make_unique<BMessage>()),
	fShared(hosted::contents_of(fName.String())),
	fLock(std::make_unique<hosted::ClipboardLock>())
{
}


BClipboard::~BClipboard() = default;


const char*
BClipboard::Name() const
{
	return fName.String();
}


uint32
BClipboard::LocalCount() const
{
	return fCount;
}


uint32
BClipboard::SystemCount() const
{
	hosted::watch_desktop(fShared);
	std::lock_guard<std::mutex> lock(fShared->mutex);
	return fShared->count;
}


status_t
BClipboard::StartWatching(BMessenger target)
{
	if (!target.IsValid())
		return B_BAD_VALUE;
	hosted::watch_desktop(fShared);
	std::lock_guard<std::mutex> lock(fShared->mutex);
	std::vector<BMessenger>& watchers = fShared->watchers;
	if (std::find(watchers.begin(), watchers.end(), target) == watchers.end())
		watchers.push_back(target);
	return B_OK;
}


status_t
BClipboard::StopWatching(BMessenger target)
{
	std::lock_guard<std::mutex> lock(fShared->mutex);
	std::vector<BMessenger>& watchers = fShared->watchers;
	const auto found = std::find(watchers.begin(), watchers.end(), target);
	if (found == watchers.end())
		return B_BAD_VALUE;
	watchers.erase(found);
	return B_OK;
}


bool
BClipboard::Lock()
{
	fLock->mutex.lock();
	fLock->owner = std::this_thread::get_id();
	fLock->depth++;
	if (fLock->depth > 1 || _Download(false))
		return true;
	Unlock();
	return false;
}


void
BClipboard::Unlock()
{
	_AssertLocked();
	fLock->depth--;
	if (fLock->depth == 0)
		fLock->owner = std::thread::id();
	fLock->mutex.unlock();
}


bool
BClipboard::IsLocked() const
{
	return fLock->owner == std::this_thread::get_id();
}


status_t
BClipboard::Clear()
{
	_AssertLocked();
	return fData->MakeEmpty();
}


status_t
BClipboard::Commit()
{
	return Commit(false);
}


status_t
BClipboard::Commit(bool failIfChanged)
{
	_AssertLocked();
	{
		std::lock_guard<std::mutex> lock(fShared->mutex);
		if (failIfChanged && fShared->count != fCount)
			return B_ERROR;
		fShared->data = *fData;
		fShared->stale = false;
		fShared->Changed();
		fCount = fShared->count;
	}
	if (fShared->onDesktop)
		hosted::WriteDesktopClipboard(hosted::text_of(*fData));
	return B_OK;
}


status_t
BClipboard::Revert()
{
	_AssertLocked();
	return _Download(true) ? B_OK : B_ERROR;
}


BMessage*
BClipboard::Data() const
{
	_AssertLocked();
	return fData.get();
}


void
BClipboard::_AssertLocked() const
{
	if (IsLocked())
		return;
	fprintf(stderr, "The clipboard \"%s\" is used without being locked\n", fName.String());
	abort();
}


// Changes that were not committed stay as long as nobody else has changed the clipboard, unless
// always is set.
bool
BClipboard::_Download(bool always)
{
	if (!hosted::fetch_from_desktop(fShared))
		return false;
	std::lock_guard<std::mutex> lock(fShared->mutex);
	if (always || fCount != fShared->count) {
		*fData = fShared->data;
		fCount = fShared->count;
	}
	return true;
}
