// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Several screens, in a process of its own: the display's platform is chosen when it starts.
#include <Screen.h>

#include <string>

#include <gtest/gtest.h>

#include "tests/support/Program.h"
#include "tests/support/TempFolder.h"


TEST(BScreen, IsTheOneThatShowsMostOfTheWindow)
{
	const test::TempFolder folder;
	const auto screen = [](const char* name, int x, int y, int width, int height) {
		return std::string("{\"name\":\"") + name + "\",\"x\":" + std::to_string(x)
			+ ",\"y\":" + std::to_string(y) + ",\"width\":" + std::to_string(width) + ",\"height\":"
			+ std::to_string(height) + ",\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":1}";
	};
	const std::string screens = folder.Write("screens.json",
		"{\"synchronousWindowSystemEvents\":false,\"windowFrameMargins\":true,\"screens\":["
			+ screen("left", 0, 0, 800, 600) + "," + screen("right", 800, 100, 1000, 500) + "]}");
	const char* const left = "0 0 799 599";
	const char* const right = "800 100 1799 599";

	test::Program program({test::ProgramPath("screen-of-window"), "10", "10", "300", "200", "900",
							  "200", "1200", "400", "700", "200", "1000", "400", "500", "200",
							  "850", "400", "9000", "9000", "9100", "9100"},
		{"QT_QPA_PLATFORM=offscreen:configfile=" + screens});
	EXPECT_EQ(program.ReadLine(), left);
	EXPECT_EQ(program.ReadLine(), right);
	// On both of them.
	EXPECT_EQ(program.ReadLine(), right);
	EXPECT_EQ(program.ReadLine(), left);
	// On none: the first. The same without a window.
	EXPECT_EQ(program.ReadLine(), left);
	EXPECT_EQ(program.ReadLine(), left);
	EXPECT_TRUE(program.WaitForEnd());
}
