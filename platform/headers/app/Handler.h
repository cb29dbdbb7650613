// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef HANDLER_H
#define HANDLER_H

#include <atomic>
#include <stddef.h>

#include <Archivable.h>
#include <OS.h>
#include <SupportDefs.h>

class BList;
class BLooper;
class BMessage;
class BMessageFilter;
class BMessenger;

namespace hosted {
class HandlerAccess;
struct Observers;
} // namespace hosted


// The change that an observer gets notice of, when it watches all of them.
#define B_OBSERVE_WHAT_CHANGE "be:observe_change_what"
#define B_OBSERVE_ORIGINAL_WHAT "be:observe_orig_what"
inline constexpr uint32 B_OBSERVER_OBSERVE_ALL = 0xffffffff;


class BHandler : public BArchivable {
public:
	BHandler(const char* name = NULL);
	~BHandler() override;
	BHandler(const BHandler&) = delete;
	BHandler& operator=(const BHandler&) = delete;

	status_t Archive(BMessage* into, bool deep = true) const override;

	virtual void MessageReceived(BMessage* message);
	BLooper* Looper() const;
	void SetName(const char* name);
	const char* Name() const;
	virtual void SetNextHandler(BHandler* handler);
	BHandler* NextHandler() const;

	// The handler deletes its filters.
	virtual void AddFilter(BMessageFilter* filter);
	virtual bool RemoveFilter(BMessageFilter* filter);
	virtual void SetFilterList(BList* filters);
	BList* FilterList();

	bool LockLooper();
	status_t LockLooperWithTimeout(bigtime_t timeout);
	void UnlockLooper();

	virtual BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier,
		int32 what, const char* property);
	virtual status_t GetSupportedSuites(BMessage* data);

	// To watch another application's or looper's handler, by messages that it answers to.
	status_t StartWatching(BMessenger target, uint32 what);
	status_t StartWatchingAll(BMessenger target);
	status_t StopWatching(BMessenger target, uint32 what);
	status_t StopWatchingAll(BMessenger target);
	// To be watched by a handler.
	status_t StartWatching(BHandler* observer, uint32 what);
	status_t StartWatchingAll(BHandler* observer);
	status_t StopWatching(BHandler* observer, uint32 what);
	status_t StopWatchingAll(BHandler* observer);

	status_t Perform(perform_code code, void* argument) override;

	virtual void SendNotices(uint32 what, const BMessage* message = NULL);
	bool IsWatched() const;

private:
	friend class BLooper;
	friend class hosted::HandlerAccess;

	int32 fToken;
	char* fName = NULL;
	// Read without a lock by who wants to lock it.
	std::atomic<BLooper*> fLooper{NULL};
	BHandler* fNextHandler = NULL;
	BList* fFilters = NULL;
	hosted::Observers* fObservers = NULL;
};

#endif // HANDLER_H
