// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REMOTE_VIEWS_H
#define REMOTE_VIEWS_H

#include <View.h>

#include "appcontrol/RemotePlayers.h"


// Calls the function with the view, its window locked if it has one. A view that is null, or whose
// window stays locked, is left alone.
template <typename Kind, typename Function>
void
WithView(Kind* view, const Function& function)
{
	if (view == nullptr)
		return;
	if (view->Looper() == nullptr) {
		function(*view);
	} else if (view->LockLooperWithTimeout(kDeliveryLimit) == B_OK) {
		function(*view);
		view->UnlockLooper();
	}
}

#endif // REMOTE_VIEWS_H
