// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef QUERY_H
#define QUERY_H

#include <EntryList.h>
#include <StorageDefs.h>
#include <memory>

class BVolume;


typedef enum {
	B_INVALID_OP = 0,
	B_EQ,
	B_GT,
	B_GE,
	B_LT,
	B_LE,
	B_NE,
	B_CONTAINS,
	B_BEGINS_WITH,
	B_ENDS_WITH,
	B_AND = 0x101,
	B_OR,
	B_NOT,
} query_op;


/*!	The files of a volume whose attributes fulfill a condition.

	There is no index to ask, so Fetch() prepares and GetNextRef() walks on: through the user's home
	folder if the volume is the boot volume or the one that has it, else from the volume's root.
	Hidden folders and what is mounted below are left out, links are not followed, and the walk ends
	after a quarter of a million entries. Everything that a file answers to ReadAttr() can be asked
	for, besides "name", "size" and "last_modified".
*/
class BQuery : public BEntryList {
public:
	BQuery();
	~BQuery() override;
	BQuery(const BQuery&) = delete;
	BQuery& operator=(const BQuery&) = delete;

	status_t Clear();

	void PushAttr(const char* attribute);
	void PushOp(query_op operation);
	void PushUInt32(uint32 value);
	void PushInt32(int32 value);
	void PushUInt64(uint64 value);
	void PushInt64(int64 value);
	void PushString(const char* value, bool ignoreCase = false);

	status_t SetVolume(const BVolume* volume);
	status_t SetPredicate(const char* expression);

	status_t GetPredicate(char* buffer, size_t length);
	size_t PredicateLength();
	dev_t TargetDevice() const;

	status_t Fetch();

	status_t GetNextEntry(BEntry* entry, bool traverse = false) override;
	status_t GetNextRef(entry_ref* ref) override;
	status_t Rewind() override;
	int32 CountEntries() override;

private:
	struct Private;
	std::unique_ptr<Private> fPrivate;
};

#endif // QUERY_H
