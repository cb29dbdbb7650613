// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PROPERTY_INFO_H
#define PROPERTY_INFO_H

#include <stddef.h>

#include <SupportDefs.h>

class BMessage;


// One row of a table of properties; the table ends with a row without name. Lists end with 0.
struct property_info {
	const char* name;
	uint32 commands[10];
	uint32 specifiers[10];
	const char* usage;
	uint32 extra_data;
	uint32 types[10];
};


class BPropertyInfo {
public:
	// The table is not copied, and deleted with the object only if asked for.
	BPropertyInfo(property_info* properties = NULL, bool freeOnDelete = false);
	virtual ~BPropertyInfo();
	BPropertyInfo(const BPropertyInfo&) = delete;
	BPropertyInfo& operator=(const BPropertyInfo&) = delete;

	// The row that a message's current specifier means, or B_ERROR.
	virtual int32 FindMatch(BMessage* message, int32 index, BMessage* specifier, int32 form,
		const char* property, void* data = NULL) const;

	const property_info* Properties() const;
	int32 CountProperties() const;
	void PrintToStream() const;

private:
	property_info* fProperties;
	bool fOwnsProperties;
};

#endif // PROPERTY_INFO_H
