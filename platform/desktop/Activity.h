// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ACTIVITY_H
#define ACTIVITY_H

#include <OS.h>


namespace hosted {

// Which program's windows have the user's attention. The desktop tells nobody, so the programs
// built on the kits tell each other.

// The team whose window is active, as far as it is known; -1 if none. Callable from any thread.
team_id ActiveTeam();

// The rest runs in the display thread.

// This process's own windows have become active or are no longer: tells all others.
void NoteOwnActivity(bool active);
// Another program says so of itself. Watchers hear only news.
void NoteActivityOf(team_id team, bool active, bool isNews);
// A program has come, and learns who is active; or is gone.
void TellActivityTo(team_id team);
void ForgetActivityOf(team_id team);

void ActivateOwnWindows();

} // namespace hosted

#endif // ACTIVITY_H
