// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SHELL_FIXTURE_H
#define SHELL_FIXTURE_H

#include <string>
#include <vector>

#include "tests/window/MediaWindowFixture.h"


/*!	Notes each text that the program hands to the shell, which runs it all the same.

	The file manager, and players of MakePlayer(), note each of their arguments as it arrives.
*/
class ShellFixture : public MediaWindowFixture {
protected:
	ShellFixture();

	std::string MakePlayer(const std::string& name);

	// What system() was called with since the test began or this was last called.
	static std::vector<std::string> Commands();
	// The program and arguments that were noted, when there are that many calls; each in brackets.
	std::string Called(int count);

private:
	void _MakeTool(const std::string& name);
};

#endif // SHELL_FIXTURE_H
