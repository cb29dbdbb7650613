// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <EntryList.h>


BEntryList::BEntryList() = default;


BEntryList::~BEntryList() = default;
