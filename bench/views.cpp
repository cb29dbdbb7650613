// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What a window with many views costs, in milliseconds a step, for ever more views: with what a
// step has to do for each view constant, the columns grow by the factor that the numbers of views
// do. Usage: bench-views
#include <chrono>
#include <functional>
#include <stdio.h>
#include <stdlib.h>

#include <Application.h>
#include <View.h>
#include <Window.h>


namespace {

constexpr int kCounts[] = {1000, 10000, 100000};


double
milliseconds(const std::function<void()>& step)
{
	const auto begin = std::chrono::steady_clock::now();
	step();
	return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
		.count();
}


void
measure(int count)
{
	BWindow* window
		= new BWindow(BRect(50, 50, 349, 1049), "views", B_TITLED_WINDOW, B_NOT_CLOSABLE);
	window->Lock();
	const double add = milliseconds([&] {
		for (int index = 0; index < count; index++)
			window->AddChild(new BView(BRect(0, -60, 99, -9), "tile", B_FOLLOW_NONE, B_WILL_DRAW));
	});
	const double move = milliseconds([&] {
		for (int index = 0; index < count; index++)
			window->ChildAt(index)->MoveTo(0, index < 13 ? index * 60.0f : -100);
	});
	const double removeLast = milliseconds([&] {
		for (int index = count - 1; index >= count / 2; index--) {
			BView* view = window->ChildAt(index);
			view->RemoveSelf();
			delete view;
		}
	});
	const double quit = milliseconds([&] { window->Quit(); });
	printf("%8d %10.1f %10.1f %20.1f %20.1f\n", count, add, move, removeLast, quit);
}

} // namespace


int
main()
{
	setenv("QT_QPA_PLATFORM", "offscreen", 1);
	BApplication application("application/x-vnd.kv-VinyloH-bench-views");
	printf("%8s %10s %10s %20s %20s\n", "views", "add", "move", "remove half, last 1st",
		"quit with the rest");
	for (const int count : kCounts)
		measure(count);
	return 0;
}
