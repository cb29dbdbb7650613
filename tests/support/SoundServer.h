// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TEST_SOUND_SERVER_H
#define TEST_SOUND_SERVER_H

#include <memory>
#include <string>
#include <vector>

#include "tests/support/Program.h"
#include "tests/support/TempFolder.h"


namespace test {

/*!	A sound server of the test's own, which plays to nobody. While it lives, this process knows no
	other one.
*/
class SoundServer {
public:
	SoundServer();
	~SoundServer();
	SoundServer(const SoundServer&) = delete;
	SoundServer& operator=(const SoundServer&) = delete;

	// The output is a module of the server with its arguments; none if empty. False if it does not
	// come up.
	bool Start(const std::string& output = "module-null-sink channels=2");
	void Stop() { fServer.reset(); }
	void Signal(int signal) { fServer->Kill(signal); }
	std::string Log() const { return ReadFile(fFolder / "log"); }

	// The first line of what pactl says.
	static std::string Ask(std::vector<std::string> words);
	// "Mute: yes" or "Mute: no".
	static std::string Mute() { return Ask({"get-sink-mute", "@DEFAULT_SINK@"}); }
	static std::string Volume() { return Ask({"get-sink-volume", "@DEFAULT_SINK@"}); }

private:
	TempFolder fFolder;
	std::unique_ptr<Program> fServer;
};

} // namespace test

#endif // TEST_SOUND_SERVER_H
