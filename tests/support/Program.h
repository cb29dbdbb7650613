// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PROGRAM_H
#define PROGRAM_H

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>


namespace test {

/*!	Another process, started by the test and killed with it.

	What it writes to its standard output is read line by line.
*/
class Program {
public:
	// words is the command line; variables, each "NAME=value", are added to the environment.
	explicit Program(const std::vector<std::string>& words,
		const std::vector<std::string>& variables = {});
	~Program();
	Program(const Program&) = delete;
	Program& operator=(const Program&) = delete;

	// -1 if it could not be started.
	pid_t Id() const { return fId; }

	// The next line without its end; empty if none comes in time.
	std::string ReadLine(std::chrono::milliseconds limit = std::chrono::seconds(20));
	// Reads lines until one is this.
	bool WaitForLine(const std::string& line,
		std::chrono::milliseconds limit = std::chrono::seconds(20));

	void Kill(int signal);
	// Whether it ends in time by itself; then what waitpid() said of it.
	bool WaitForEnd(int* status = nullptr,
		std::chrono::milliseconds limit = std::chrono::seconds(20));

private:
	pid_t fId = -1;
	int fOutput = -1;
	std::string fRead;
	bool fHasEnded = false;
	int fStatus = 0;
};

// The path of one of the programs in tests/programs.
std::string ProgramPath(const std::string& name);

} // namespace test

#endif // PROGRAM_H
