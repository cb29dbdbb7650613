// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DEBUGGER_H
#define DEBUGGER_H

namespace hosted {

// Where the platform would stop the program for its debugger: says why on standard error and
// aborts.
[[noreturn]] void Debugger(const char* reason);

} // namespace hosted

#endif // DEBUGGER_H
