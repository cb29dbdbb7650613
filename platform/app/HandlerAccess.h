// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef HANDLER_ACCESS_H
#define HANDLER_ACCESS_H

#include <Handler.h>


namespace hosted {

// The kit's way into handlers.
class HandlerAccess {
public:
	static int32 TokenOf(const BHandler& handler) { return handler.fToken; }
};

} // namespace hosted

#endif // HANDLER_ACCESS_H
