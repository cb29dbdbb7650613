// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/KeyCodes.h"


int32
RawKeyForRemote(int32 remoteKey)
{
	switch (remoteKey) {
		case 61:
			return kKeyUp;
		case 62:
			return kKeyDown;
		case 63:
			return kKeyLeft;
		case 64:
			return kKeyRight;
		case 69:
		case 94:
			return kKeyEnter;
		case 81:
			return kKeyEnd;
		case 91:
			return kKeyPageUp;
		case 95:
			return kKeyPageDown;
		default:
			return 0;
	}
}
