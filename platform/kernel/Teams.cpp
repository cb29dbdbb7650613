// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Processes, as the process file system tells of them.
#include <OS.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits.h>
#include <stdlib.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>


namespace {

// Parts of the command line end in zeros; in the information blanks part them.
void
set_arguments(std::string commandLine, team_info* info)
{
	info->argc = static_cast<int32>(std::count(commandLine.begin(), commandLine.end(), '\0'));
	while (!commandLine.empty() && commandLine.back() == '\0')
		commandLine.pop_back();
	std::replace(commandLine.begin(), commandLine.end(), '\0', ' ');
	const size_t length = commandLine.copy(info->args, sizeof(info->args) - 1);
	info->args[length] = '\0';
}

} // namespace


extern "C"
{

	status_t get_team_info(team_id id, team_info* info)
	{
		if (info == nullptr)
			return B_BAD_VALUE;
		if (id < 0)
			return B_BAD_TEAM_ID;
		const pid_t process = id == 0 ? getpid() : id;
		const std::string folder = "/proc/" + std::to_string(process);
		struct stat status;
		std::error_code error;
		std::filesystem::directory_iterator threads(folder + "/task", error);
		if (error || stat(folder.c_str(), &status) != 0)
			return B_BAD_TEAM_ID;

		std::ifstream file(folder + "/cmdline", std::ios::binary);
		const std::string commandLine{std::istreambuf_iterator<char>(file), {}};
		*info = {};
		info->team = process;
		info->uid = status.st_uid;
		info->gid = status.st_gid;
		for (; !error && threads != std::filesystem::directory_iterator(); threads.increment(error))
			info->thread_count++;
		set_arguments(commandLine, info);
		return B_OK;
	}


	status_t get_next_team_info(int32* cookie, team_info* info)
	{
		if (cookie == nullptr || info == nullptr)
			return B_BAD_VALUE;
		// In ascending order of their numbers; the cookie is the last one given.
		std::error_code error;
		int32 next = INT_MAX;
		std::filesystem::directory_iterator entries("/proc", error);
		for (; !error && entries != std::filesystem::directory_iterator();
			 entries.increment(error)) {
			const std::string name = entries->path().filename();
			const bool isNumber = name.find_first_not_of("0123456789") == std::string::npos;
			const long number = isNumber ? strtol(name.c_str(), nullptr, 10) : 0;
			if (number > *cookie && number < next)
				next = static_cast<int32>(number);
		}
		if (next == INT_MAX)
			return B_BAD_VALUE;
		*cookie = next;
		// A process that ended meanwhile is passed over.
		const status_t status = get_team_info(next, info);
		return status == B_BAD_TEAM_ID ? get_next_team_info(cookie, info) : status;
	}

} // extern "C"
