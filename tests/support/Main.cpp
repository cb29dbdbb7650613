// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <algorithm>
#include <optional>
#include <stdlib.h>
#include <string.h>
#include <string>

#include "platform/screen/DisplayThread.h"
#include "platform/screen/QtMessages.h"
#include "tests/support/TempFolder.h"


// The child process of a death test ends without cleaning up, so it uses its parent's home folder.
static bool
is_death_test(int argc, char** argv)
{
	return std::any_of(argv, argv + argc, [](const char* argument) {
		return strstr(argument, "gtest_internal_run_death_test") != nullptr;
	});
}


static void
move_in(test::TempFolder& home)
{
	setenv("HOME", home.Path().c_str(), 1);
	setenv("XDG_CONFIG_HOME", home.MakeFolder(".config").c_str(), 1);
	setenv("XDG_DATA_HOME", home.MakeFolder(".local/share").c_str(), 1);
	setenv("XDG_CACHE_HOME", home.MakeFolder(".cache").c_str(), 1);
}


// Every test program has a home folder of its own and the off-screen display. Variables that are
// set on purpose (a session bus, a real display) stay.
int
main(int argc, char** argv)
{
	std::optional<test::TempFolder> home;
	if (!is_death_test(argc, argv))
		move_in(home.emplace());
	setenv("QT_QPA_PLATFORM", "offscreen", 0);
	setenv("QT_SCALE_FACTOR", "1", 1);
	setenv("QT_FONT_DPI", "96", 1);
	setenv("LC_ALL", "C.UTF-8", 1);

	testing::InitGoogleTest(&argc, argv);
	int result = RUN_ALL_TESTS();
	hosted::DisplayThread::Stop();
	if (hosted::CountQtWarnings() > 0) {
		fprintf(stderr, "Qt warned %d times\n", hosted::CountQtWarnings());
		result = 1;
	}
	return result;
}
