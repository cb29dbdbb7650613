// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MESSAGE_FILTER_H
#define MESSAGE_FILTER_H

#include <stddef.h>

#include <SupportDefs.h>

class BHandler;
class BLooper;
class BMessage;
class BMessageFilter;


enum filter_result { B_SKIP_MESSAGE, B_DISPATCH_MESSAGE };

typedef filter_result (*filter_hook)(BMessage* message, BHandler** target, BMessageFilter* filter);

enum message_delivery { B_ANY_DELIVERY, B_DROPPED_DELIVERY, B_PROGRAMMED_DELIVERY };

enum message_source { B_ANY_SOURCE, B_REMOTE_SOURCE, B_LOCAL_SOURCE };


class BMessageFilter {
public:
	BMessageFilter(uint32 what, filter_hook hook = NULL);
	BMessageFilter(message_delivery delivery, message_source source, filter_hook hook = NULL);
	BMessageFilter(message_delivery delivery, message_source source, uint32 what,
		filter_hook hook = NULL);
	BMessageFilter(const BMessageFilter& filter);
	BMessageFilter(const BMessageFilter* filter);
	virtual ~BMessageFilter();

	BMessageFilter& operator=(const BMessageFilter& from);

	virtual filter_result Filter(BMessage* message, BHandler** target);

	message_delivery MessageDelivery() const { return fDelivery; }
	message_source MessageSource() const { return fSource; }
	uint32 Command() const { return fWhat; }
	bool FiltersAnyCommand() const { return fFiltersAny; }
	BLooper* Looper() const { return fLooper; }

private:
	friend class BHandler;
	friend class BLooper;

	bool fFiltersAny;
	uint32 fWhat;
	message_delivery fDelivery;
	message_source fSource;
	// The looper that the filter is installed in, or its handler's; it belongs to neither.
	BLooper* fLooper = NULL;
	filter_hook fHook;
};

#endif // MESSAGE_FILTER_H
