// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/app/Debugger.h"

#include <stdio.h>
#include <stdlib.h>


namespace hosted {

void
Debugger(const char* reason)
{
	fflush(stdout);
	fprintf(stderr, "debugger: %s\n", reason);
	fflush(stderr);
	abort();
}

} // namespace hosted
