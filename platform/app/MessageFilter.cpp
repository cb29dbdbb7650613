// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MessageFilter.h>

#include <List.h>
#include <Message.h>

#include "platform/app/Filters.h"


BMessageFilter::BMessageFilter(uint32 what, filter_hook hook)
	:
	fFiltersAny(false),
	fWhat(what),
	fDelivery(B_ANY_DELIVERY),
	fSource(B_ANY_SOURCE),
	fHook(hook)
{
}


BMessageFilter::BMessageFilter(message_delivery delivery, message_source source, filter_hook hook)
	:
	fFiltersAny(true),
	fWhat(0),
	fDelivery(delivery),
	fSource(source),
	fHook(hook)
{
}


BMessageFilter::BMessageFilter(message_delivery delivery, message_source source, uint32 what,
	filter_hook hook)
	:
	fFiltersAny(false),
	fWhat(what),
	fDelivery(delivery),
	fSource(source),
	fHook(hook)
{
}


BMessageFilter::BMessageFilter(const BMessageFilter& filter)
	:
	BMessageFilter(&filter)
{
}


BMessageFilter::BMessageFilter(const BMessageFilter* filter)
	:
	fFiltersAny(filter->fFiltersAny),
	fWhat(filter->fWhat),
	fDelivery(filter->fDelivery),
	fSource(filter->fSource),
	fHook(filter->fHook)
{
}


BMessageFilter::~BMessageFilter()
{
}


BMessageFilter&
BMessageFilter::operator=(const BMessageFilter& from)
{
	// Where the filter is installed does not change.
	fFiltersAny = from.fFiltersAny;
	fWhat = from.fWhat;
	fDelivery = from.fDelivery;
	fSource = from.fSource;
	fHook = from.fHook;
	return *this;
}


filter_result
BMessageFilter::Filter(BMessage* message, BHandler** target)
{
	return fHook != nullptr ? fHook(message, target, this) : B_DISPATCH_MESSAGE;
}


namespace hosted {

namespace {

bool
concerns(const BMessageFilter& filter, const BMessage& message)
{
	if (!filter.FiltersAnyCommand() && filter.Command() != message.what)
		return false;
	const message_delivery delivery
		= message.WasDropped() ? B_DROPPED_DELIVERY : B_PROGRAMMED_DELIVERY;
	if (filter.MessageDelivery() != B_ANY_DELIVERY && filter.MessageDelivery() != delivery)
		return false;
	const message_source source = message.IsSourceRemote() ? B_REMOTE_SOURCE : B_LOCAL_SOURCE;
	return filter.MessageSource() == B_ANY_SOURCE || filter.MessageSource() == source;
}

} // namespace


BHandler*
ApplyFilters(const BList* filters, BMessage* message, BHandler* target)
{
	if (filters == nullptr)
		return target;
	// A filter may change the list that it is in.
	const BList list = *filters;
	for (int32 i = 0; i < list.CountItems() && target != nullptr; i++) {
		BMessageFilter* filter = static_cast<BMessageFilter*>(list.ItemAt(i));
		if (!filters->HasItem(filter) || !concerns(*filter, *message))
			continue;
		if (filter->Filter(message, &target) == B_SKIP_MESSAGE)
			return nullptr;
	}
	return target;
}


void
DeleteFilters(BList* filters)
{
	if (filters == nullptr)
		return;
	for (int32 i = 0; i < filters->CountItems(); i++)
		delete static_cast<BMessageFilter*>(filters->ItemAt(i));
	delete filters;
}

} // namespace hosted
