// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/appcontrol/ScriptedPlayer.h"

#include <algorithm>
#include <sstream>

#include <stdlib.h>
#include <unistd.h>

#include <Message.h>
#include <Messenger.h>
#include <Roster.h>

#include "platform/desktop/PlayersTable.h"
#include "settings/Helpers.h"
#include "tests/support/Output.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Wait.h"


namespace test {

namespace {

Lines
lines_of(const std::string& text)
{
	Lines lines;
	std::istringstream stream(text);
	for (std::string line; std::getline(stream, line);)
		lines.push_back(line);
	return lines;
}


Lines
joined(Lines variables, const Lines& more)
{
	variables.insert(variables.end(), more.begin(), more.end());
	return variables;
}

} // namespace


ScriptedPlayer::ScriptedPlayer(const std::string& signature, const Lines& variables)
	:
	fSignature(signature)
{
	fProgram = std::make_unique<Program>(Lines{ProgramPath("scripted-player")},
		joined({"PLAYER_SIGNATURE=" + signature, "PLAYER_RECORD=" + fFolder / "record"},
			variables));
}


bool
ScriptedPlayer::IsReady()
{
	const bool isReady = WaitFor(
		[this]() {
			const Lines lines = lines_of(ReadFile(fFolder / "record"));
			return !lines.empty() && lines.front() == "ready";
		},
		std::chrono::seconds(30));
	fTaken = 1;
	return isReady && BMessenger(fSignature.c_str(), Team()).IsValid();
}


bool
ScriptedPlayer::IsActive()
{
	app_info active;
	return WaitFor(
		[&]() { return be_roster->GetActiveAppInfo(&active) == B_OK && active.team == Team(); },
		std::chrono::seconds(20));
}


Lines
ScriptedPlayer::Take()
{
	BMessage mark('mark');
	BMessage reply;
	const BMessenger self(fSignature.c_str(), Team());
	// One that has ended has nothing more to come.
	if (self.IsValid()) {
		EXPECT_EQ(self.SendMessage(&mark, &reply, 20000000, 20000000), B_OK);
	}
	const Lines all = lines_of(ReadFile(fFolder / "record"));
	const Lines lines(all.begin() + static_cast<ptrdiff_t>(std::min(fTaken, all.size())),
		all.end());
	fTaken = all.size();
	return lines;
}


RemoteTest::RemoteTest()
{
	TheApplication();
	// None of the players is where the table says.
	std::istringstream table(hosted::BuiltInPlayersTable());
	for (std::string line; std::getline(table, line);) {
		if (line.find("\texecutable ") == 0)
			line = "\texecutable " + fFolder / "nowhere";
		if (line.find("spare ") != 0)
			fTable += line + "\n";
	}
	AddPlayers("");
}


RemoteTest::~RemoteTest()
{
	unlink((std::string(getenv("XDG_CONFIG_HOME")) + "/VinyloH/players.table").c_str());
}


void
RemoteTest::Remember(const char* signature)
{
	BMessage notice(B_SOME_APP_LAUNCHED);
	notice.AddString("be:signature", signature);
	OutputOf([&notice] { GetLastRosterMessenger(&notice, nullptr); });
}


void
RemoteTest::AddPlayers(const std::string& table)
{
	const std::string folder = std::string(getenv("XDG_CONFIG_HOME")) + "/VinyloH";
	const std::string made = fFolder.Write("players.table", table + fTable);
	const std::string move = "mkdir -p '" + folder + "' && mv '" + made + "' '" + folder + "'";
	ASSERT_EQ(system(move.c_str()), 0);
}

} // namespace test
