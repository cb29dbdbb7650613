// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/Wait.h"


namespace test {

namespace {

std::vector<char*>
pointers_to(std::vector<std::string>& texts)
{
	std::vector<char*> pointers;
	for (std::string& text : texts)
		pointers.push_back(text.data());
	pointers.push_back(nullptr);
	return pointers;
}


std::vector<std::string>
environment_with(const std::vector<std::string>& variables)
{
	std::vector<std::string> whole = variables;
	for (char** variable = environ; *variable != nullptr; variable++) {
		const std::string text = *variable;
		bool replaced = false;
		for (const std::string& own : variables)
			replaced = replaced || own.compare(0, own.find('='), text, 0, text.find('=')) == 0;
		if (!replaced)
			whole.push_back(text);
	}
	return whole;
}

} // namespace


Program::Program(const std::vector<std::string>& words, const std::vector<std::string>& variables)
{
	int ends[2];
	if (pipe2(ends, O_CLOEXEC) != 0)
		return;
	posix_spawn_file_actions_t actions;
	posix_spawn_file_actions_init(&actions);
	posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
	posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
	std::vector<std::string> arguments = words;
	std::vector<std::string> environment = environment_with(variables);
	if (posix_spawnp(&fId, words.front().c_str(), &actions, nullptr, pointers_to(arguments).data(),
			pointers_to(environment).data())
		!= 0)
		fId = -1;
	posix_spawn_file_actions_destroy(&actions);
	close(ends[1]);
	fOutput = ends[0];
}


Program::~Program()
{
	if (fId > 0 && !fHasEnded) {
		kill(fId, SIGKILL);
		waitpid(fId, nullptr, 0);
	}
	if (fOutput >= 0)
		close(fOutput);
}


std::string
Program::ReadLine(std::chrono::milliseconds limit)
{
	const auto end = std::chrono::steady_clock::now() + limit;
	while (fRead.find('\n') == std::string::npos) {
		const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
			end - std::chrono::steady_clock::now());
		pollfd waited = {fOutput, POLLIN, 0};
		char buffer[4096];
		ssize_t count = 0;
		if (left.count() > 0 && poll(&waited, 1, static_cast<int>(left.count())) > 0)
			count = read(fOutput, buffer, sizeof(buffer));
		if (count <= 0)
			return "";
		fRead.append(buffer, static_cast<size_t>(count));
	}
	const size_t length = fRead.find('\n');
	const std::string line = fRead.substr(0, length);
	fRead.erase(0, length + 1);
	return line;
}


bool
Program::WaitForLine(const std::string& line, std::chrono::milliseconds limit)
{
	const auto end = std::chrono::steady_clock::now() + limit;
	while (std::chrono::steady_clock::now() < end) {
		const std::string found = ReadLine(std::chrono::duration_cast<std::chrono::milliseconds>(
			end - std::chrono::steady_clock::now()));
		if (found == line)
			return true;
		if (found.empty() && fRead.empty())
			return false;
	}
	return false;
}


void
Program::Kill(int signal)
{
	if (fId > 0 && !fHasEnded)
		kill(fId, signal);
}


bool
Program::WaitForEnd(int* status, std::chrono::milliseconds limit)
{
	const bool ended = WaitFor(
		[this]() {
			fHasEnded = fHasEnded || waitpid(fId, &fStatus, WNOHANG) == fId;
			return fHasEnded;
		},
		limit);
	if (ended && status != nullptr)
		*status = fStatus;
	return ended;
}


std::string
ProgramPath(const std::string& name)
{
	return std::string(VINYLOH_TEST_PROGRAMS) + "/" + name;
}

} // namespace test
