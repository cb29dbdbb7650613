// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef QT_MESSAGES_H
#define QT_MESSAGES_H


namespace hosted {

// Sends Qt's messages to standard error, without the lines that are known to mean nothing here.
void InstallQtMessageFilter();

// Number of Qt warnings since the start that were not such lines. Tests expect 0.
int CountQtWarnings();

} // namespace hosted

#endif // QT_MESSAGES_H
