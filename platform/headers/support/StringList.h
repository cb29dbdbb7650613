// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STRING_LIST_H
#define STRING_LIST_H

#include <Flattenable.h>
#include <String.h>
#include <vector>


class BStringList : public BFlattenable {
public:
	BStringList(int32 count = 20);
	BStringList(const BStringList& other);
	~BStringList() override;

	bool Add(const BString& string, int32 index);
	bool Add(const BString& string);
	bool Add(const BStringList& list, int32 index);
	bool Add(const BStringList& list);

	bool Remove(const BString& string, bool ignoreCase = false);
	void Remove(const BStringList& list, bool ignoreCase = false);
	BString Remove(int32 index);
	bool Remove(int32 index, int32 count);
	bool Replace(int32 index, const BString& string);
	void MakeEmpty();

	void Sort(bool ignoreCase = false);
	bool Swap(int32 indexA, int32 indexB);
	bool Move(int32 fromIndex, int32 toIndex);

	// An empty string if there is none at that place.
	BString StringAt(int32 index) const;
	BString First() const;
	BString Last() const;

	bool HasString(const BString& string, bool ignoreCase = false) const;
	int32 IndexOf(const BString& string, bool ignoreCase = false) const;
	int32 CountStrings() const;
	bool IsEmpty() const;

	// A negative length means all of the separator.
	BString Join(const char* separator, int32 length = -1) const;

	void DoForEach(bool (*func)(const BString& string));
	void DoForEach(bool (*func)(const BString& string, void* arg2), void* arg2);

	BStringList& operator=(const BStringList& other);
	bool operator==(const BStringList& other) const;
	bool operator!=(const BStringList& other) const;

	bool IsFixedSize() const override;
	type_code TypeCode() const override;
	bool AllowsTypeCode(type_code code) const override;
	ssize_t FlattenedSize() const override;
	status_t Flatten(void* buffer, ssize_t size) const override;
	status_t Unflatten(type_code code, const void* buffer, ssize_t size) override;

private:
	std::vector<BString> fStrings;
};

#endif // STRING_LIST_H
