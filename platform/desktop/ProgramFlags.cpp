// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/ProgramFlags.h"

#include <Node.h>
#include <Roster.h>


namespace hosted {

uint32
ProgramFlags(const std::string& executable)
{
	constexpr type_code kFlagsType = 'APPF';
	uint32 flags;
	BNode file(executable.c_str());
	if (file.ReadAttr("BEOS:APP_FLAGS", kFlagsType, 0, &flags, sizeof(flags)) != sizeof(flags))
		return B_MULTIPLE_LAUNCH;
	return flags;
}

} // namespace hosted
