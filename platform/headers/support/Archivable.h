// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ARCHIVABLE_H
#define ARCHIVABLE_H

#include <SupportDefs.h>

class BMessage;


class BArchivable {
public:
	BArchivable();
	explicit BArchivable(BMessage* from);
	virtual ~BArchivable();

	virtual status_t Archive(BMessage* into, bool deep = true) const;
	virtual status_t Perform(perform_code code, void* argument);
};

#endif // ARCHIVABLE_H
