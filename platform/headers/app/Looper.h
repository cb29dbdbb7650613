// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LOOPER_H
#define LOOPER_H

#include <memory>
#include <stddef.h>
#include <vector>

#include <Handler.h>
#include <OS.h>
#include <SupportDefs.h>

class BList;
class BMessage;
class BMessageFilter;
class BMessageQueue;
class BWindow;

namespace hosted {
class LooperAccess;
struct LooperCore;
} // namespace hosted


#define B_LOOPER_PORT_DEFAULT_CAPACITY 200


class BLooper : public BHandler {
public:
	BLooper(const char* name = NULL, int32 priority = B_NORMAL_PRIORITY,
		int32 portCapacity = B_LOOPER_PORT_DEFAULT_CAPACITY);
	~BLooper() override;

	status_t PostMessage(uint32 command);
	status_t PostMessage(BMessage* message);
	status_t PostMessage(uint32 command, BHandler* handler, BHandler* replyTo = NULL);
	status_t PostMessage(BMessage* message, BHandler* handler, BHandler* replyTo = NULL);

	virtual void DispatchMessage(BMessage* message, BHandler* handler);
	void MessageReceived(BMessage* message) override;
	BMessage* CurrentMessage() const;
	BMessage* DetachCurrentMessage();
	BMessageQueue* MessageQueue() const;
	bool IsMessageWaiting() const;

	void AddHandler(BHandler* handler);
	bool RemoveHandler(BHandler* handler);
	int32 CountHandlers() const;
	BHandler* HandlerAt(int32 index) const;
	int32 IndexOf(BHandler* handler) const;

	BHandler* PreferredHandler() const;
	void SetPreferredHandler(BHandler* handler);

	virtual thread_id Run();
	void Loop();
	virtual void Quit();
	virtual bool QuitRequested();

	// Lock() may be called on a looper that is gone; it then returns false.
	bool Lock();
	void Unlock();
	bool IsLocked() const;
	status_t LockWithTimeout(bigtime_t timeout);
	thread_id Thread() const;
	team_id Team() const;
	static BLooper* LooperForThread(thread_id thread);

	thread_id LockingThread() const;
	int32 CountLocks() const;
	int32 CountLockRequests() const;

	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override;
	status_t GetSupportedSuites(BMessage* data) override;

	// The looper deletes its filters.
	virtual void AddCommonFilter(BMessageFilter* filter);
	virtual bool RemoveCommonFilter(BMessageFilter* filter);
	virtual void SetCommonFilterList(BList* filters);
	BList* CommonFilterList() const;

protected:
	// For windows. The hooks run in the looper's thread, with its lock held.

	// The queue has run empty after messages, or has been busy for a while: the time to show what
	// they changed.
	virtual void _BatchDone();
	// The handler that gets a message, before filters see it. target is null if the one that the
	// message names is gone, preferred if the message did not name one. Null drops the message.
	virtual BHandler* _TargetFor(BMessage* message, BHandler* target, bool preferred);
	// Makes the looper one of the application's windows, in BWindow's constructor, and no longer
	// one with null, first thing in its destructor. The application counts and asks only listed
	// windows, which menus and off-screen windows are not, but closes all of them.
	void _SetWindow(BWindow* window, bool listed);

	// Hands a message to the looper as if it had been taken from the queue: finds the target, runs
	// the filters and dispatches. Takes the message over and deletes it. CurrentMessage() is back
	// to what it was afterwards.
	void _Deliver(BMessage* message);
	// Dispatches straight to a handler of this looper, past target search, but through the filters.
	// The message stays the caller's.
	void _DispatchTo(BMessage* message, BHandler* handler);
	// Waits until the queue holds a message, _Wake() is called, or the time has
	// come (in system_time()). The lock should not be held. True if a message waits.
	bool _WaitForMessage(bigtime_t until);
	// Ends a _WaitForMessage(); from any thread.
	void _Wake();
	// Whether the caller is the thread that runs the loop.
	bool _IsOwnThread() const;
	bool _IsRunning() const;

private:
	friend class BApplication;
	friend class BHandler;
	friend class BWindow;
	friend class hosted::LooperAccess;

	BLooper(int32 priority, int32 port, const char* name);

	void _Init(int32 priority, int32 port, int32 capacity);
	void _RunLoop();
	void _DispatchNext(BMessage* message);
	BMessage* _FinishMessage();
	BHandler* _FindTarget(BMessage* message);
	BHandler* _ResolveSpecifiers(BMessage* message, BHandler* target);
	BHandler* _ApplyFilters(BMessage* message, BHandler* target);
	void _AnswerQuitRequest(BMessage* message);

private:
	// Shared with who posts or locks while the looper is being deleted.
	std::shared_ptr<hosted::LooperCore> fCore;
	std::vector<BHandler*> fHandlers;
	BHandler* fPreferred = NULL;
	BList* fCommonFilters = NULL;
	// The message that is being dispatched, null if somebody took it over.
	BMessage* fLastMessage = NULL;
	// Those that wait for the dispatch of another one in their midst.
	std::vector<BMessage*> fOuterMessages;
	int32 fPriority = B_NORMAL_PRIORITY;
	bool fTerminating = false;
};

#endif // LOOPER_H
