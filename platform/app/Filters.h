// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FILTERS_H
#define FILTERS_H

class BHandler;
class BList;
class BLooper;
class BMessage;


namespace hosted {

// Lets the filters of a list, which may be null, look at a message. They may change the target;
// null comes back when one of them wants the message dropped.
BHandler* ApplyFilters(const BList* filters, BMessage* message, BHandler* target);

// Deletes the filters and the list, which may be null.
void DeleteFilters(BList* filters);

} // namespace hosted

#endif // FILTERS_H
