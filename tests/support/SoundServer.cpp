// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/SoundServer.h"

#include <stdlib.h>
#include <sys/stat.h>

#include "tests/support/Wait.h"


namespace test {

SoundServer::SoundServer()
{
	const std::string runtime = fFolder.MakeFolder("runtime");
	chmod(runtime.c_str(), 0700);
	setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
	setenv("PULSE_RUNTIME_PATH", fFolder.MakeFolder("pulse").c_str(), 1);
	setenv("PULSE_SERVER", ("unix:" + fFolder / "socket").c_str(), 1);
}


SoundServer::~SoundServer()
{
	Stop();
	for (const char* name : {"XDG_RUNTIME_DIR", "PULSE_RUNTIME_PATH", "PULSE_SERVER"})
		unsetenv(name);
}


bool
SoundServer::Start(const std::string& output)
{
	std::vector<std::string> words = {"pulseaudio", "--daemonize=no", "-n", "--use-pid-file=no",
		"--exit-idle-time=-1", "--log-level=error", "--log-target=file:" + fFolder / "log",
		"--load=module-native-protocol-unix socket=" + fFolder / "socket"};
	if (!output.empty())
		words.push_back("--load=" + output);
	fServer = std::make_unique<Program>(words);
	return fServer->Id() > 0
		&& WaitFor([]() { return !Ask({"info"}).empty(); }, std::chrono::seconds(20));
}


std::string
SoundServer::Ask(std::vector<std::string> words)
{
	words.insert(words.begin(), "pactl");
	// Silent while the server is not there yet.
	words.insert(words.begin(), {"sh", "-c", "exec \"$@\" 2>/dev/null", "sh"});
	Program program(words);
	const std::string line = program.ReadLine();
	program.WaitForEnd();
	return line;
}

} // namespace test
