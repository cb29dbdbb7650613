// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WATCHING_H
#define WATCHING_H

#include <Messenger.h>

#include "platform/desktop/RunningApps.h"


namespace hosted {

// Who in this process watches the running applications. Callable from any thread.

// Adds a watcher, or gives it a new mask of B_REQUEST_... bits.
void AddWatcher(const BMessenger& target, uint32 mask);
// False if it did not watch.
bool RemoveWatcher(const BMessenger& target);

// Sends the notice of an event, one of B_SOME_APP_..., to all who asked for it. Waits for nobody.
void NotifyWatchers(uint32 event, const RunningApp& app);

} // namespace hosted

#endif // WATCHING_H
