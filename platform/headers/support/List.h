// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LIST_H
#define LIST_H

#include <SupportDefs.h>


/*!	A list of pointers, which it never owns.

	ItemAt() answers NULL for any index outside the list.
*/
class BList {
public:
	// The count is how much room is made at a time.
	BList(int32 count = 20);
	BList(const BList& other);
	virtual ~BList();

	BList& operator=(const BList& other);
	bool operator==(const BList& other) const;
	bool operator!=(const BList& other) const;

	bool AddItem(void* item, int32 index);
	bool AddItem(void* item);
	bool AddList(const BList* list, int32 index);
	bool AddList(const BList* list);
	bool RemoveItem(void* item);
	void* RemoveItem(int32 index);
	bool RemoveItems(int32 index, int32 count);
	bool ReplaceItem(int32 index, void* item);
	void MakeEmpty();

	// The function is given pointers to the stored pointers.
	void SortItems(int (*compareFunc)(const void*, const void*));
	bool SwapItems(int32 indexA, int32 indexB);
	bool MoveItem(int32 fromIndex, int32 toIndex);

	void* ItemAt(int32 index) const;
	void* FirstItem() const;
	// The index must be within the list.
	void* ItemAtFast(int32 index) const;
	void* LastItem() const;
	void* Items() const;

	bool HasItem(void* item) const;
	bool HasItem(const void* item) const;
	int32 IndexOf(void* item) const;
	int32 IndexOf(const void* item) const;
	int32 CountItems() const;
	bool IsEmpty() const;

	// Both stop at the first item for which the function returns true.
	void DoForEach(bool (*func)(void* item));
	void DoForEach(bool (*func)(void* item, void* arg2), void* arg2);

private:
	void _MakeRoom(int32 count);

private:
	void** fItems = nullptr;
	int32 fCapacity = 0;
	int32 fItemCount = 0;
	int32 fBlockSize;
};

#endif // LIST_H
