// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef LABELS_H
#define LABELS_H


inline constexpr int kLabelCount = 221;

// The built-in English texts, by number, with a null behind the last one.
extern const char* eLabel[kLabelCount + 1];

// The text of that number in the language that is loaded. The catalogue owns it.
const char* getLabel(int number);

#endif // LABELS_H
