// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PROGRAM_FLAGS_H
#define PROGRAM_FLAGS_H

#include <string>

#include <SupportDefs.h>


namespace hosted {

// The launch flags that a program's file has in its attribute "BEOS:APP_FLAGS"; without it
// B_MULTIPLE_LAUNCH.
uint32 ProgramFlags(const std::string& executable);

} // namespace hosted

#endif // PROGRAM_FLAGS_H
