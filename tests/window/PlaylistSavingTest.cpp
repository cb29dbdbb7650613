// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What is on the disk when a save ends too early, or is one of two.
#include "window/PlaylistFile.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <signal.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <List.h>
#include <Node.h>
#include <NodeInfo.h>
#include <Path.h>
#include <TypeConstants.h>
#include <gtest/gtest.h>

#include "tests/support/TempFolder.h"
#include "window/PathLists.h"


namespace {

// Runs a function in a process of its own, from one system call to the next.
class Stepper {
public:
	explicit Stepper(const std::function<void()>& function)
		:
		fProcess(fork())
	{
		if (fProcess == 0) {
			if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
				_exit(2);
			raise(SIGSTOP);
			function();
			_exit(3);
		}
		_Wait();
		ptrace(PTRACE_SETOPTIONS, fProcess, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
	}

	~Stepper()
	{
		if (!fHasEnded) {
			kill(fProcess, SIGKILL);
			_Wait();
		}
	}

	// Lets it run to where its next system call begins or ends. False if it has ended.
	bool Step()
	{
		if (!fHasEnded && ptrace(PTRACE_SYSCALL, fProcess, nullptr, nullptr) == 0)
			_Wait();
		return !fHasEnded;
	}

	// The call at whose beginning it stands; -1 at a call's end.
	long Call() const
	{
		__ptrace_syscall_info info = {};
		if (ptrace(PTRACE_GET_SYSCALL_INFO, fProcess, sizeof(info), &info) <= 0
			|| info.op != PTRACE_SYSCALL_INFO_ENTRY)
			return -1;
		return static_cast<long>(info.entry.nr);
	}

	// What the process ended with; -1 if by a signal.
	int Result() const { return WIFEXITED(fStatus) ? WEXITSTATUS(fStatus) : -1; }

private:
	void _Wait()
	{
		while (waitpid(fProcess, &fStatus, 0) < 0)
			continue;
		fHasEnded = WIFEXITED(fStatus) || WIFSIGNALED(fStatus);
	}

	pid_t fProcess;
	int fStatus = 0;
	bool fHasEnded = false;
};


class PlaylistSaving : public testing::Test {
protected:
	PlaylistSaving()
	{
		for (int number = 0; number < 200; number++) {
			const std::string end = "/a title with a long name " + std::to_string(number) + ".mp3";
			fOld.AddItem(new BPath(("/old" + end).c_str()));
			fNew.AddItem(new BPath(("/new" + end).c_str()));
		}
		fPath = fFolder / "list";
		EXPECT_TRUE(::WritePlaylist(fPath.c_str(), fNew, false));
		fNewText = test::ReadFile(fPath);
		SaveOld();
		fOldText = test::ReadFile(fPath);
	}

	~PlaylistSaving() override
	{
		EmptyPathList(&fOld);
		EmptyPathList(&fNew);
	}

	void SaveOld() { EXPECT_TRUE(::WritePlaylist(fPath.c_str(), fOld, false)); }

	// To be run in a process of its own.
	std::function<void()> SaveNew()
	{
		return [this] { _exit(::WritePlaylist(fPath.c_str(), fNew, false) ? 0 : 1); };
	}

	void ExpectWhole(const std::string& where)
	{
		const std::string text = test::ReadFile(fPath);
		EXPECT_TRUE(text == fOldText || text == fNewText) << where << ": " << text.size();
		BNode node(fPath.c_str());
		char type[B_MIME_TYPE_LENGTH] = "";
		EXPECT_EQ(BNodeInfo(&node).GetType(type), B_OK) << where;
		EXPECT_STREQ(type, "text/x-playlist") << where;
	}

	test::TempFolder fFolder;
	BList fOld;
	BList fNew;
	std::string fPath;
	std::string fOldText;
	std::string fNewText;
};


bool
is_rename(long call)
{
#ifdef SYS_rename
	if (call == SYS_rename)
		return true;
#endif
#ifdef SYS_renameat
	if (call == SYS_renameat)
		return true;
#endif
	return call == SYS_renameat2;
}

} // namespace


TEST_F(PlaylistSaving, KilledAtAnyMomentOneListIsThereWhole)
{
	int oldCount = 0;
	int newCount = 0;
	for (int moment = 0; !HasFailure(); moment++) {
		{
			Stepper save(SaveNew());
			bool runs = true;
			for (int step = 0; step < moment && runs; step++)
				runs = save.Step();
			if (!runs) {
				EXPECT_EQ(save.Result(), 0) << "it cannot be watched, or it failed";
				break;
			}
			// It is killed where it stands.
		}
		ExpectWhole("moment " + std::to_string(moment));
		const bool isOld = test::ReadFile(fPath) == fOldText;
		(isOld ? oldCount : newCount)++;
		if (!isOld)
			SaveOld();
	}
	EXPECT_GT(oldCount, 20);
	EXPECT_GT(newCount, 0);
}


TEST_F(PlaylistSaving, TheNewListIsOnTheDiskBeforeItTakesTheOldOnesPlace)
{
	Stepper save(SaveNew());
	int syncsBefore = 0;
	int syncsAfter = 0;
	int renames = 0;
	while (save.Step()) {
		const long call = save.Call();
		if (is_rename(call))
			renames++;
		else if (call == SYS_fsync)
			(renames == 0 ? syncsBefore : syncsAfter)++;
	}
	EXPECT_EQ(save.Result(), 0);
	EXPECT_EQ(renames, 1);
	EXPECT_GE(syncsBefore, 1);
	// The folder, which names the new one.
	EXPECT_GE(syncsAfter, 1);
	EXPECT_EQ(test::ReadFile(fPath), fNewText);
}


TEST_F(PlaylistSaving, OfTwoCopiesThatSaveAtOnceOneWins)
{
	std::vector<pid_t> copies;
	for (const BList* list : {&fOld, &fNew}) {
		const pid_t copy = fork();
		if (copy == 0) {
			bool saved = true;
			for (int turn = 0; turn < 100 && saved; turn++)
				saved = ::WritePlaylist(fPath.c_str(), *list, false);
			_exit(saved ? 0 : 1);
		}
		copies.push_back(copy);
	}

	for (const pid_t copy : copies) {
		int status = 0;
		while (waitpid(copy, &status, WNOHANG) == 0)
			ExpectWhole("while both save");
		EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
	}
	ExpectWhole("at the end");
	int count = 0;
	for (const auto& entry : std::filesystem::directory_iterator(fFolder.Path())) {
		EXPECT_EQ(entry.path(), fPath);
		count++;
	}
	EXPECT_EQ(count, 1);
}


TEST_F(PlaylistSaving, AKilledSaveLeavesNothingThatStopsTheNext)
{
	for (int turn = 0; turn < 3; turn++) {
		Stepper save(SaveNew());
		while (save.Step() && save.Call() != SYS_fsync)
			continue;
	}
	EXPECT_EQ(test::ReadFile(fPath), fOldText);
	EXPECT_TRUE(::WritePlaylist(fPath.c_str(), fNew, false));
	EXPECT_EQ(test::ReadFile(fPath), fNewText);
}
