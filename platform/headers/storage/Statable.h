// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STATABLE_H
#define STATABLE_H

#include <SupportDefs.h>
#include <string>
#include <sys/stat.h>
#include <time.h>

class BVolume;
struct node_ref;


// What entries and nodes can tell of the file behind them.
class BStatable {
public:
	virtual ~BStatable();

	virtual status_t GetStat(struct stat* stat) const = 0;

	bool IsFile() const;
	bool IsDirectory() const;
	bool IsSymLink() const;

	status_t GetNodeRef(node_ref* ref) const;
	status_t GetSize(off_t* size) const;

	status_t GetModificationTime(time_t* time) const;
	status_t SetModificationTime(time_t time);
	// The time of the last modification where the file system keeps none.
	status_t GetCreationTime(time_t* time) const;

	status_t GetPermissions(mode_t* permissions) const;
	status_t SetPermissions(mode_t permissions);

	status_t GetVolume(BVolume* volume) const;

private:
	// A path that leads to the node while the object exists. Its last component is to be followed
	// only if follow is set.
	virtual status_t _NodePath(std::string* path, bool* follow) const = 0;
};

#endif // STATABLE_H
