// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SCRIPTED_PLAYER_H
#define SCRIPTED_PLAYER_H

#include <memory>
#include <string>
#include <vector>

#include <OS.h>

#include <gtest/gtest.h>

#include "tests/support/Program.h"
#include "tests/support/TempFolder.h"


namespace test {

inline constexpr char kSoundplaySignature[] = "application/x-vnd.marcone-soundplay";

using Lines = std::vector<std::string>;


/*!	A player that runs and keeps a record of what it is asked for; programs/scripted-player has what
	it does.
*/
class ScriptedPlayer {
public:
	// More variables for it, each "NAME=value".
	explicit ScriptedPlayer(const std::string& signature = kSoundplaySignature,
		const Lines& variables = {});

	bool IsReady();
	// Waits until it is the active application, as one with windows becomes.
	bool IsActive();
	// Everything that it was asked for since the last call, once it has done all that was sent to
	// it before.
	Lines Take();

	Program& Process() { return *fProgram; }
	team_id Team() const { return fProgram->Id(); }

private:
	TempFolder fFolder;
	std::string fSignature;
	std::unique_ptr<Program> fProgram;
	size_t fTaken = 0;
};


/*!	Tests with a session bus of their own, and a table of players that finds none of whoever runs
	the tests.
*/
class RemoteTest : public testing::Test {
protected:
	RemoteTest();
	~RemoteTest() override;

	// Makes a running application the last active one.
	static void Remember(const char* signature);

	// Adds to the table of players, before all others.
	void AddPlayers(const std::string& table);

	TempFolder fFolder;

private:
	std::string fTable;
};

} // namespace test

#endif // SCRIPTED_PLAYER_H
