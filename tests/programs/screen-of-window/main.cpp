// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Prints the frame of the screen of a window at each of the given places: left, top, right, bottom.
// The last line is that of no window.
#include <stdio.h>
#include <stdlib.h>

#include <Application.h>
#include <Screen.h>
#include <Window.h>


static void
print(BRect frame)
{
	printf("%g %g %g %g\n", frame.left, frame.top, frame.right, frame.bottom);
}


int
main(int count, char** arguments)
{
	BApplication application("application/x-vnd.VinyloH-screen-of-window");
	for (int index = 1; index + 3 < count; index += 4) {
		const BRect frame(static_cast<float>(atof(arguments[index])),
			static_cast<float>(atof(arguments[index + 1])),
			static_cast<float>(atof(arguments[index + 2])),
			static_cast<float>(atof(arguments[index + 3])));
		BWindow* const window = new BWindow(frame, "", B_TITLED_WINDOW, 0);
		print(BScreen(window).Frame());
		window->Quit();
	}
	print(BScreen(static_cast<BWindow*>(nullptr)).Frame());
	return 0;
}
