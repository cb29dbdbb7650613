// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/window/ShellFixture.h"

#include <algorithm>
#include <mutex>

#include <spawn.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "settings/Locations.h"
#include "tests/support/Wait.h"


static std::mutex sMutex;
static std::vector<std::string> sCommands;


// Stands in the place of the C library's function for the whole test program.
extern "C" int
system(const char* command)
{
	{
		const std::lock_guard<std::mutex> lock(sMutex);
		sCommands.push_back(command);
	}
	char* const words[]
		= {const_cast<char*>("sh"), const_cast<char*>("-c"), const_cast<char*>(command), nullptr};
	pid_t process;
	if (posix_spawn(&process, "/bin/sh", nullptr, nullptr, words, environ) != 0)
		return -1;
	int status = 0;
	return waitpid(process, &status, 0) == process ? status : -1;
}


ShellFixture::ShellFixture()
{
	_MakeTool(kFileManager);
	Commands();
}


std::string
ShellFixture::MakePlayer(const std::string& name)
{
	_MakeTool(name);
	return fFolder / ("tools/" + name);
}


std::vector<std::string>
ShellFixture::Commands()
{
	const std::lock_guard<std::mutex> lock(sMutex);
	std::vector<std::string> commands;
	commands.swap(sCommands);
	return commands;
}


std::string
ShellFixture::Called(int count)
{
	std::string called;
	test::WaitFor([&] {
		called = test::ReadFile(fFolder / "called");
		return std::count(called.begin(), called.end(), '\1') >= count;
	});
	called.erase(std::remove(called.begin(), called.end(), '\1'), called.end());
	return called;
}


// The mark at the end tells that the line is whole.
void
ShellFixture::_MakeTool(const std::string& name)
{
	const std::string path = fFolder.Write("tools/" + name,
		"#!/bin/sh\n{ printf '%s' '" + name
			+ "'; for word; do printf '[%s]' \"$word\"; done; printf '\\001'; } >>'"
			+ (fFolder / "called") + "'\n");
	chmod(path.c_str(), 0755);
}
