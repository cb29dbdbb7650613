// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WORKSPACES_H
#define WORKSPACES_H

#include <SupportDefs.h>

class QWidget;


/*!	The desktop's workspaces, as far as it tells programs of them: with X11 through the window
	manager. Elsewhere there is one, and it is the present one.

	Display thread only.
*/
namespace hosted {

int32 CountWorkspaces();
int32 CurrentWorkspace();
void ActivateWorkspace(int32 workspace);

// Shows a window on all workspaces, or only on the present one. The widget has its native window.
void ShowOnAllWorkspaces(const QWidget& widget, bool onAll);

} // namespace hosted

#endif // WORKSPACES_H
