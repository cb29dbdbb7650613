// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ENTRY_LIST_H
#define ENTRY_LIST_H

#include <SupportDefs.h>

class BEntry;
struct entry_ref;


class BEntryList {
public:
	BEntryList();
	virtual ~BEntryList();

	virtual status_t GetNextEntry(BEntry* entry, bool traverse = false) = 0;
	virtual status_t GetNextRef(entry_ref* ref) = 0;
	virtual status_t Rewind() = 0;
	virtual int32 CountEntries() = 0;
};

#endif // ENTRY_LIST_H
