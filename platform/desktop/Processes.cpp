// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/Processes.h"

#include <algorithm>
#include <dirent.h>
#include <limits.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include "platform/desktop/FileText.h"


namespace hosted {

namespace {

std::string
path_of(pid_t process, const char* name)
{
	return "/proc/" + std::to_string(process) + name;
}


std::string
link_target(const std::string& path)
{
	char target[PATH_MAX];
	const ssize_t length = readlink(path.c_str(), target, sizeof(target));
	if (length <= 0 || static_cast<size_t>(length) >= sizeof(target))
		return "";
	return std::string(target, static_cast<size_t>(length));
}


// The words of the status line behind the program's name, which may itself hold blanks and
// brackets: the state comes first, then the parent.
std::vector<std::string>
status_words(pid_t process)
{
	const std::string text = FileText(path_of(process, "/stat"));
	const size_t nameEnd = text.rfind(')');
	std::vector<std::string> words;
	if (nameEnd == std::string::npos)
		return words;
	size_t at = nameEnd + 1;
	while (at < text.size()) {
		const size_t begin = text.find_first_not_of(" \n", at);
		if (begin == std::string::npos)
			break;
		at = std::min(text.find_first_of(" \n", begin), text.size());
		words.push_back(text.substr(begin, at - begin));
	}
	return words;
}

} // namespace


std::vector<pid_t>
OwnProcesses()
{
	std::vector<pid_t> processes;
	DIR* folder = opendir("/proc");
	if (folder == nullptr)
		return processes;
	for (const dirent* entry = readdir(folder); entry != nullptr; entry = readdir(folder)) {
		char* end;
		const long number = strtol(entry->d_name, &end, 10);
		if (*end == '\0' && number > 0 && number <= INT_MAX
			&& IsOwnProcess(static_cast<pid_t>(number)))
			processes.push_back(static_cast<pid_t>(number));
	}
	closedir(folder);
	std::sort(processes.begin(), processes.end());
	return processes;
}


bool
IsOwnProcess(pid_t process)
{
	struct stat status;
	return process > 0 && stat(path_of(process, "").c_str(), &status) == 0
		&& status.st_uid == geteuid();
}


std::string
ProcessExecutable(pid_t process)
{
	std::string path = link_target(path_of(process, "/exe"));
	// An update may have replaced the file under the running program.
	static const std::string kDeleted = " (deleted)";
	if (path.size() > kDeleted.size()
		&& path.compare(path.size() - kDeleted.size(), kDeleted.size(), kDeleted) == 0)
		path.resize(path.size() - kDeleted.size());
	return path;
}


std::vector<std::string>
ProcessArguments(pid_t process)
{
	const std::string text = FileText(path_of(process, "/cmdline"));
	std::vector<std::string> words;
	size_t begin = 0;
	while (begin < text.size()) {
		const size_t end = std::min(text.find('\0', begin), text.size());
		words.push_back(text.substr(begin, end - begin));
		begin = end + 1;
	}
	return words;
}


std::string
ProcessFolder(pid_t process)
{
	return link_target(path_of(process, "/cwd"));
}


pid_t
ProcessParent(pid_t process)
{
	const std::vector<std::string> words = status_words(process);
	return words.size() > 1 ? static_cast<pid_t>(atol(words[1].c_str())) : -1;
}


bigtime_t
ProcessStart(pid_t process)
{
	constexpr size_t kStateWord = 0;
	constexpr size_t kStartWord = 19;
	const std::vector<std::string> words = status_words(process);
	if (words.size() <= kStartWord || words[kStateWord] == "Z" || words[kStateWord] == "X")
		return -1;
	static const long kTicks = sysconf(_SC_CLK_TCK);
	return strtoll(words[kStartWord].c_str(), nullptr, 10) * (1000000 / kTicks);
}


bigtime_t
TimeSinceBoot()
{
	struct timespec now;
	clock_gettime(CLOCK_BOOTTIME, &now);
	return static_cast<bigtime_t>(now.tv_sec) * 1000000 + now.tv_nsec / 1000;
}


int
PinProcess(pid_t process)
{
	return static_cast<int>(syscall(SYS_pidfd_open, process, 0));
}


bool
TerminateProcess(pid_t process, const std::function<bool()>& isStillRight)
{
	if (process <= 1 || process == getpid())
		return false;
	const int pinned = PinProcess(process);
	if (pinned < 0)
		return false;
	const bool asked = IsOwnProcess(process) && isStillRight()
		&& syscall(SYS_pidfd_send_signal, pinned, SIGTERM, nullptr, 0) == 0;
	close(pinned);
	return asked;
}

} // namespace hosted
