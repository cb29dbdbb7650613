// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef CLIPBOARD_H
#define CLIPBOARD_H

#include <memory>

#include <AppDefs.h>
#include <Message.h>
#include <Messenger.h>
#include <String.h>
#include <SupportDefs.h>

namespace hosted {
struct ClipboardContents;
struct ClipboardLock;
} // namespace hosted


enum {
	B_CLIPBOARD_CHANGED = 'CLCH',
};


/*!	Data to cut, copy and paste, under a name.

	The text of "system" is shared with the other programs of the desktop; everything else stays in
	the process.
*/
class BClipboard {
public:
	BClipboard(const char* name, bool transient = false);
	virtual ~BClipboard();
	BClipboard(const BClipboard&) = delete;
	BClipboard& operator=(const BClipboard&) = delete;

	const char* Name() const;
	uint32 LocalCount() const;
	uint32 SystemCount() const;
	status_t StartWatching(BMessenger target);
	status_t StopWatching(BMessenger target);

	bool Lock();
	void Unlock();
	bool IsLocked() const;

	status_t Clear();
	status_t Commit();
	// With failIfChanged, B_ERROR if someone else has committed since Lock().
	status_t Commit(bool failIfChanged);
	status_t Revert();
	BMessage* Data() const;

private:
	void _AssertLocked() const;
	bool _Download(bool always);

private:
	BString fName;
	std::unique_ptr<BMessage> fData;
	// What all clipboards of this name share; lives as long as the process.
	hosted::ClipboardContents* fShared;
	std::unique_ptr<hosted::ClipboardLock> fLock;
	uint32 fCount = 0;
};

extern BClipboard* be_clipboard;

#endif // CLIPBOARD_H
