// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <List.h>

#include <algorithm>
#include <stdlib.h>
#include <string.h>


BList::BList(int32 count)
	:
	fBlockSize(std::max(count, 1))
{
}


BList::BList(const BList& other)
	:
	fBlockSize(other.fBlockSize)
{
	AddList(&other);
}


BList::~BList()
{
	free(fItems);
}


BList&
BList::operator=(const BList& other)
{
	if (this != &other) {
		MakeEmpty();
		fBlockSize = other.fBlockSize;
		AddList(&other);
	}
	return *this;
}


bool
BList::operator==(const BList& other) const
{
	return fItemCount == other.fItemCount && std::equal(fItems, fItems + fItemCount, other.fItems);
}


bool
BList::operator!=(const BList& other) const
{
	return !(*this == other);
}


void
BList::_MakeRoom(int32 count)
{
	if (count <= fCapacity)
		return;
	const int64 doubled = std::max<int64>(count, 2 * static_cast<int64>(fCapacity));
	const int64 blocks = (doubled + fBlockSize - 1) / fBlockSize;
	fCapacity = static_cast<int32>(std::min<int64>(blocks * fBlockSize, INT32_MAX));
	fItems = static_cast<void**>(realloc(fItems, static_cast<size_t>(fCapacity) * sizeof(void*)));
	if (fItems == nullptr)
		abort();
}


bool
BList::AddItem(void* item, int32 index)
{
	if (index < 0 || index > fItemCount)
		return false;
	_MakeRoom(fItemCount + 1);
	std::copy_backward(fItems + index, fItems + fItemCount, fItems + fItemCount + 1);
	fItems[index] = item;
	fItemCount++;
	return true;
}


bool
BList::AddItem(void* item)
{
	return AddItem(item, fItemCount);
}


bool
BList::AddList(const BList* list, int32 index)
{
	if (list == nullptr || index < 0 || index > fItemCount)
		return false;
	// The list may be this one, whose items move.
	const int32 count = list->fItemCount;
	if (count == 0)
		return true;
	void** items = static_cast<void**>(malloc(static_cast<size_t>(count) * sizeof(void*)));
	if (items == nullptr)
		abort();
	std::copy_n(list->fItems, count, items);

	_MakeRoom(fItemCount + count);
	std::copy_backward(fItems + index, fItems + fItemCount, fItems + fItemCount + count);
	std::copy_n(items, count, fItems + index);
	fItemCount += count;
	free(items);
	return true;
}


bool
BList::AddList(const BList* list)
{
	return AddList(list, fItemCount);
}


bool
BList::RemoveItem(void* item)
{
	return RemoveItems(IndexOf(item), 1);
}


void*
BList::RemoveItem(int32 index)
{
	void* item = ItemAt(index);
	RemoveItems(index, 1);
	return item;
}


bool
BList::RemoveItems(int32 index, int32 count)
{
	if (index < 0 || index >= fItemCount || count <= 0)
		return false;
	count = std::min(count, fItemCount - index);
	std::copy(fItems + index + count, fItems + fItemCount, fItems + index);
	fItemCount -= count;
	return true;
}


bool
BList::ReplaceItem(int32 index, void* item)
{
	if (index < 0 || index >= fItemCount)
		return false;
	fItems[index] = item;
	return true;
}


void
BList::MakeEmpty()
{
	free(fItems);
	fItems = nullptr;
	fCapacity = 0;
	fItemCount = 0;
}


void
BList::SortItems(int (*compareFunc)(const void*, const void*))
{
	if (compareFunc != nullptr && fItemCount > 1)
		qsort(fItems, static_cast<size_t>(fItemCount), sizeof(void*), compareFunc);
}


bool
BList::SwapItems(int32 indexA, int32 indexB)
{
	if (indexA < 0 || indexA >= fItemCount || indexB < 0 || indexB >= fItemCount)
		return false;
	std::swap(fItems[indexA], fItems[indexB]);
	return true;
}


bool
BList::MoveItem(int32 fromIndex, int32 toIndex)
{
	if (fromIndex < 0 || fromIndex >= fItemCount || toIndex < 0 || toIndex >= fItemCount)
		return false;
	void** from = fItems + fromIndex;
	void** to = fItems + toIndex;
	if (from < to)
		std::rotate(from, from + 1, to + 1);
	else
		std::rotate(to, from, from + 1);
	return true;
}


void*
BList::ItemAt(int32 index) const
{
	return index >= 0 && index < fItemCount ? fItems[index] : nullptr;
}


void*
BList::FirstItem() const
{
	return ItemAt(0);
}


void*
BList::ItemAtFast(int32 index) const
{
	return fItems[index];
}


void*
BList::LastItem() const
{
	return ItemAt(fItemCount - 1);
}


void*
BList::Items() const
{
	return fItems;
}


bool
BList::HasItem(void* item) const
{
	return IndexOf(item) >= 0;
}


bool
BList::HasItem(const void* item) const
{
	return IndexOf(item) >= 0;
}


int32
BList::IndexOf(void* item) const
{
	return IndexOf(static_cast<const void*>(item));
}


int32
BList::IndexOf(const void* item) const
{
	void** const found = std::find(fItems, fItems + fItemCount, item);
	return found != fItems + fItemCount ? static_cast<int32>(found - fItems) : -1;
}


int32
BList::CountItems() const
{
	return fItemCount;
}


bool
BList::IsEmpty() const
{
	return fItemCount == 0;
}


void
BList::DoForEach(bool (*func)(void* item))
{
	for (int32 index = 0; func != nullptr && index < fItemCount; index++) {
		if (func(fItems[index]))
			return;
	}
}


void
BList::DoForEach(bool (*func)(void* item, void* arg2), void* arg2)
{
	for (int32 index = 0; func != nullptr && index < fItemCount; index++) {
		if (func(fItems[index], arg2))
			return;
	}
}
