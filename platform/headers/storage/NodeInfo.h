// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef NODE_INFO_H
#define NODE_INFO_H

#include <Entry.h>
#include <File.h>
#include <Message.h>
#include <Mime.h>

class BBitmap;
class BNode;


/*!	The attributes of a file that say what it is: its type, its preferred program, its icon.

	The node is the caller's and has to outlive this object.
*/
class BNodeInfo {
public:
	BNodeInfo();
	explicit BNodeInfo(BNode* node);
	virtual ~BNodeInfo();
	BNodeInfo(const BNodeInfo&) = delete;
	BNodeInfo& operator=(const BNodeInfo&) = delete;

	status_t SetTo(BNode* node);
	status_t InitCheck() const;

	virtual status_t GetType(char* type) const;
	virtual status_t SetType(const char* type);
	virtual status_t GetIcon(BBitmap* icon, icon_size size = B_LARGE_ICON) const;
	virtual status_t SetIcon(const BBitmap* icon, icon_size size = B_LARGE_ICON);

	status_t GetPreferredApp(char* signature, app_verb verb = B_OPEN) const;
	status_t SetPreferredApp(const char* signature, app_verb verb = B_OPEN);
	status_t GetAppHint(entry_ref* ref) const;
	status_t SetAppHint(const entry_ref* ref);

	status_t GetTrackerIcon(BBitmap* icon, icon_size size = B_LARGE_ICON) const;
	static status_t GetTrackerIcon(const entry_ref* ref, BBitmap* icon,
		icon_size size = B_LARGE_ICON);

private:
	BNode* fNode = nullptr;
	status_t fStatus = B_NO_INIT;
};

#endif // NODE_INFO_H
