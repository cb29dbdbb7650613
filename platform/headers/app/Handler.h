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

namespace hosted {
class HandlerAccess;
} // namespace hosted


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

	status_t Perform(perform_code code, void* argument) override;

private:
	friend class BLooper;
	friend class hosted::HandlerAccess;

	int32 fToken;
	char* fName = NULL;
	// Read without a lock by who wants to lock it.
	std::atomic<BLooper*> fLooper{NULL};
	BHandler* fNextHandler = NULL;
	BList* fFilters = NULL;
};

#endif // HANDLER_H
